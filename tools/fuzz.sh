#!/usr/bin/env bash
# Runs the fuzzers with libFuzzer, each for a number of minutes, two at a time.
#
#   tools/fuzz.sh [MINUTES [NAME ...]]     20 minutes and all of them without a word
#
# Seeds are in fuzz/corpus; what a run finds new stays in build/fuzz/corpus, a crash in
# build/fuzz/NAME-*. It ends with status 1 when anything was found.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
minutes=${1-20}
shift || true
tools/setup.sh program fuzz
tools/build.sh fuzz all
names=("$@")
[ ${#names[@]} -gt 0 ] || for file in fuzz/fuzz_*.cpp; do names+=("$(basename "$file" .cpp | sed s/fuzz_//)"); done

run() {
  local name=$1 own=build/fuzz/corpus/$1
  mkdir -p "$own"
  nice -n 19 build/fuzz/bin/fuzz_"$name" -max_total_time=$((60 * minutes)) -timeout=300 -rss_limit_mb=4096 -max_len=16384 \
    -artifact_prefix=build/fuzz/"$name"- -print_final_stats=1 "$own" fuzz/corpus/"$name" >build/fuzz/"$name".log 2>&1
}

for name in "${names[@]}"; do
  while [ "$(jobs -rp | wc -l)" -ge 2 ]; do sleep 1; done
  run "$name" &
done
wait
failed=0
for name in "${names[@]}"; do
  log=build/fuzz/$name.log
  if grep -qs '^Done ' "$log"; then
    echo "$name: nothing found in $(grep -oP '^Done \K\d+' "$log") runs"
  else
    echo "$name: see $log"
    failed=1
  fi
done
exit $failed
