#!/usr/bin/env bash
# The desktop entry passes desktop-file-validate without a hint, every type it
# opens is one TAVI's shared-mime-info file defines, and that file gives
# *.tvi and *.tvidb their types once compiled by update-mime-database.
# Usage: desktop_files_test.sh SOURCE_DIR
set -euo pipefail
dist=$1/dist
for tool in desktop-file-validate update-mime-database; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is not installed (apt-get install desktop-file-utils shared-mime-info)"
        exit 77
    fi
done
status=0
report=$(desktop-file-validate "$dist/tavi.desktop" 2>&1) || status=1
if [[ -n $report ]]; then
    echo "$report"
    status=1
fi

defined=$(sed -n 's/.*<mime-type type="\([^"]*\)".*/\1/p' "$dist/tavi.xml")
opened=$(sed -n 's/^MimeType=//p' "$dist/tavi.desktop" | tr ';' '\n' | sed '/^$/d')
[[ -n $opened ]] || { echo "tavi.desktop opens no file type"; status=1; }
for type in $opened; do
    grep -qxF "$type" <<<"$defined" || { echo "tavi.desktop opens $type, not defined in tavi.xml"; status=1; }
done
grep -qxF text/x-tavi-transcript <<<"$opened" || { echo "tavi.desktop does not open transcripts"; status=1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/mime/packages"
cp "$dist/tavi.xml" "$work/mime/packages/"
XDG_DATA_HOME=$work XDG_DATA_DIRS=$work update-mime-database "$work/mime" >/dev/null 2>"$work/log" ||
    status=1
if [[ -s $work/log ]]; then
    cat "$work/log"
    status=1
fi
for glob in text/x-tavi-transcript:\*.tvi application/x-tavi-database:\*.tvidb; do
    grep -qF ":$glob" "$work/mime/globs2" || { echo "no glob $glob"; status=1; }
done
exit $status
