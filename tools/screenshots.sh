#!/usr/bin/env bash
# Pictures of the desktop program for the README: starts tavi-gui under a
# virtual X server with a sample transcript and its Standard Measures Report
# open and writes PNG files to docs/screenshots/.
#
# Needs (Debian 12): apt-get install xvfb xauth fonts-dejavu-core
# and a build: cmake --preset default && cmake --build build --target tavi-gui
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
gui=${TAVI_GUI:-$root/build/bin/tavi-gui}
sample=${1:-$root/data/samples/story-age7.tvi}
out=$root/docs/screenshots
[ -x "$gui" ] || { echo "screenshots: build tavi-gui first ($gui not found)"; exit 1; }
command -v xvfb-run >/dev/null || { echo "screenshots: install xvfb and xauth"; exit 1; }
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
mkdir -p "$settings/docs/My TAVI Data" "$out"
TAVI_DATA_USER=$settings/user XDG_DOCUMENTS_DIR=$settings/docs QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s "-screen 0 1280x860x24" "$gui" --screenshot "$out" "$sample"
ls -l "$out"
