#!/usr/bin/env bash
# Configures and builds one preset, silently unless that fails.
#
#   tools/build.sh PRESET TARGET [CMAKE OPTION ...]
#
# Two at once on the same folder wait for each other.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")/.."
preset=$1
target=$2
shift 2
build=build/$preset

mkdir -p "$build"
exec {lock}>"$build/build.lock"
flock "$lock"

log=$build/build.log
make_it() {
  if ! grep -qsFx "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$build/CMakeCache.txt"; then
    rm -rf "$build"/{CMakeCache.txt,CMakeFiles,build.ninja} # none yet, or the folder was moved
  fi
  if [ $# -gt 0 ] || [ ! -e "$build/build.ninja" ]; then
    cmake --preset "$preset" "$@" || return
  fi
  cmake --build "$build" --target "$target" --parallel "$(nproc)"
}
if ! make_it "$@" {lock}>&- >"$log" 2>&1; then
  cat "$log"
  exit 1
fi
