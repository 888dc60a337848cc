#!/usr/bin/env bash
# Builds the Debian packages of this machine's architecture into build/packages, if anything changed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
tools/setup.sh program desktop package
tools/build.sh package deb
ls build/packages/*.deb
