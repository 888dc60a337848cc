#!/usr/bin/env bash
# Takes the pictures of the desktop for the documentation from the desktop itself, without a screen.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
tools/setup.sh program desktop
tools/build.sh release all-programs -DDIALWRIGHT_DESKTOP=ON
mkdir -p docs/images
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='qt.qpa.*=false' XDG_CACHE_HOME=$folder \
  build/release/bin/dialwright-desktop --folder "$folder" --lang en --screenshots docs/images
