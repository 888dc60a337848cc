#!/usr/bin/env bash
# Installs the Debian packages that Dialwright needs and that are missing.
#
#   tools/setup.sh [--list] [GROUP ...]     groups: program (the default), check, desktop, bench,
#                                           package, fuzz
#
# With --list it only tells what is missing.
# It does nothing, and quickly, when all is there. It works as root, or with sudo as a plain user.
set -euo pipefail

declare -A groups

# What builds and runs the program.
groups[program]="
  g++                   # the compiler
  cmake                 # configures the build
  ninja-build           # runs it
  pkg-config            # finds Cairo
  libcli11-dev          # the command line's parser
  nlohmann-json3-dev    # the answers in JSON
  libcairo2-dev         # PDF, PNG and BMP
  fonts-dejavu-core     # a face for the texts on a machine without any
"

# What ./check needs besides.
groups[check]="
  ccache                # one compilation for all work trees
  libgtest-dev          # the tests
  clang-format          # the layout of the code
  clang-tidy-19         # the linter, of a version that reads all of C++20
  python3               # the checks that look at the program from outside
  python3-ezdxf         # an independent reader of our DXF
  python3-ephem         # an independent almanac
  librsvg2-bin          # an independent reader of our SVG
  poppler-utils         # an independent reader of our PDF
  desktop-file-utils    # validates the menu entry
  shared-mime-info      # reads the description of the project's type
  appstream             # validates the software centre's page
"

# What the desktop needs besides.
groups[desktop]="
  qt6-base-dev          # windows
"

# What the measurements need besides.
groups[bench]="
  libbenchmark-dev      # the stop-watch
  libproj-dev           # another gnomonic projection
"

# What building the Debian packages needs besides.
groups[package]="
  dpkg-dev              # finds the libraries that the programs need
  file                  # tells programs from texts
"

# What the long runs of the fuzzers need besides.
groups[fuzz]="
  clang-19              # the compiler that has libFuzzer
  libclang-rt-19-dev    # libFuzzer and the sanitizers
"

list=
if [ "${1-}" = --list ]; then
  list=yes
  shift
fi
[ $# -gt 0 ] || set -- program
wanted=()
for group; do
  if [ -z "${groups[$group]-}" ]; then
    echo "setup: there is no group '$group'; the groups are program, check, desktop, bench, package, fuzz" >&2
    exit 2
  fi
  while read -r package _; do
    [ -z "$package" ] || wanted+=("$package")
  done <<<"${groups[$group]}"
done

if ! command -v dpkg-query >/dev/null; then
  [ -n "$list" ] || echo "setup: this is no Debian system; these packages or their like are needed: ${wanted[*]}" >&2
  exit 0
fi

missing_of() {
  local installed
  installed=" $(dpkg-query -W -f='${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
  for package; do
    [[ $installed == *" installed:$package "* ]] || printf '%s ' "$package"
  done
}

read -ra missing <<<"$(missing_of "${wanted[@]}")"
[ ${#missing[@]} -gt 0 ] || exit 0
if [ -n "$list" ]; then
  printf '%s\n' "${missing[@]}"
  exit 0
fi

if [ "$(id -u)" = 0 ]; then
  as_root=(env)
elif command -v sudo >/dev/null; then
  as_root=(sudo env)
else
  echo "setup: Dialwright needs packages that only root may install, and there is no sudo." >&2
  echo "setup: as root, run: apt-get install ${missing[*]}" >&2
  exit 1
fi

apt=("${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=600)
echo "setup: installing ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
"${apt[@]}" update >"$log" 2>&1 || true # an old list may do; the installation tells
if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1 </dev/null; then
  cat "$log" >&2
  echo "setup: these packages could not be installed: ${missing[*]}" >&2
  exit 1
fi
