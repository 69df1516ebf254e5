#!/usr/bin/env bash
# Each manual page renders with man -l, and groff finds nothing to warn about.
# Usage: man_render_test.sh PAGE...
set -euo pipefail
for tool in man groff; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is not installed (apt-get install man-db groff-base)"
        exit 77
    fi
done
status=0
for page in "$@"; do
    warnings=$(LC_ALL=C.UTF-8 groff -man -Tutf8 -ww -z "$page" 2>&1)
    if [[ -n $warnings ]]; then
        echo "$page: $warnings"
        status=1
    fi
    rendered=$(LC_ALL=C.UTF-8 MANWIDTH=80 man -l "$page" 2>&1)
    for section in NAME SYNOPSIS DESCRIPTION "EXIT STATUS" FILES "SEE ALSO"; do
        grep -q "^$section" <<<"$rendered" || { echo "$page: no $section when rendered"; status=1; }
    done
done
exit $status
