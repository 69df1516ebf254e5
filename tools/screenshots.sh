#!/usr/bin/env bash
# The picture gallery of the desktop program for the documentation: starts
# tavi-gui under a virtual X server with a sample transcript and the
# demonstration database, and lets it drive its own menu commands: the
# editor with live checking, the Standard Measures Report, a summary, a
# table of counts, the database samples dialog, a database report, a
# normative graph and the batch dialog. Each window's place is printed
# against the area it must lie in; the run fails when one lies outside.
#
#   tools/screenshots.sh [OUTDIR]    (default docs/screenshots)
#
# Needs (Debian 12): apt-get install xvfb xauth fonts-dejavu-core
# and a build: cmake --preset ci && cmake --build --preset ci --target tavi-gui
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
gui=${TAVI_GUI:-$root/build/bin/tavi-gui}
sample=${TAVI_SAMPLE:-$root/data/samples/story-age7.tvi}
database=${TAVI_DATABASE:-$root/data/samples/demo-narrative.tvidb}
out=${1:-$root/docs/screenshots}
[ -x "$gui" ] || { echo "screenshots: build tavi-gui first ($gui not found)"; exit 1; }
command -v xvfb-run >/dev/null || { echo "screenshots: install xvfb and xauth"; exit 1; }
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
docs=$settings/home/clinician/Documents
mkdir -p "$docs/My TAVI Data" "$out"
out=$(cd "$out" && pwd)
sample=$(cd "$(dirname "$sample")" && pwd)/$(basename "$sample")
status=0
# From the database's folder, so that the pictures show its name only.
(cd "$(dirname "$database")" &&
    TAVI_DATA_USER=$settings/user XDG_DOCUMENTS_DIR=$docs QT_QPA_PLATFORM=xcb \
        timeout 120 xvfb-run -a -s "-screen 0 1280x860x24" \
        "$gui" --screenshot "$out" --database "$(basename "$database")" "$sample") || status=$?
ls -l "$out"
if [ "$status" != 0 ]; then
    echo "screenshots: FAILED (a window outside its area, or a step not done)"
    exit "$status"
fi
