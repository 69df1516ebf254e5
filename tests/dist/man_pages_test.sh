#!/usr/bin/env bash
# The manual page of tavi names every command, every option each command's
# --help prints, the report kinds and the db subcommands, so the page cannot
# drift from the program. A new option needs only a line in docs/man/tavi.1.
# Usage: man_pages_test.sh TAVI MANPAGE
set -euo pipefail
tavi=$1
page=$2

# The page as text: roff's \- as -, font changes removed.
text=$(sed -e 's/\\-/-/g' -e 's/\\f[BIRP]//g' -e 's/\\(em/--/g' "$page")
missing=()
named() {
    grep -qE -- "(^|[^a-zA-Z0-9-])$(printf '%s' "$1" | sed 's/[.|]/\\&/g')([^a-zA-Z0-9-]|$)" <<<"$text"
}
options_of() {
    grep -oE -- '(^|[][ ,|(])--?[a-zA-Z][a-zA-Z0-9-]*' | sed 's/^[^-]*//' | sort -u
}

global_help=$("$tavi" --help)
for option in $(options_of <<<"$global_help") --version; do
    named "$option" || missing+=("tavi $option")
done
commands=$(sed -n 's/^  \([a-z][a-z0-9-]*\)  .*/\1/p' <<<"$global_help")
[[ -n $commands ]] || { echo "no commands in tavi --help"; exit 1; }
for command in $commands; do
    grep -qE "^\.SS \"tavi $command( |\")" "$page" || missing+=("the section of tavi $command")
    help=$("$tavi" "$command" --help)
    for option in $(options_of <<<"$help"); do
        named "$option" || missing+=("tavi $command $option")
    done
    # Kinds in the usage line ("tavi x a|b") or listed under "Reports (KIND):",
    # and db's subcommands.
    kinds=$(sed -nE "s/^Usage: [^ ]+ ${command} ([a-z0-9]+(\\|[a-z0-9]+)+).*/\\1/p" <<<"$help")
    kinds+=" $(sed -n '/^Reports (KIND):/,$ s/^  \([a-z][a-z0-9-]*\) .*/\1/p' <<<"$help")"
    for kind in ${kinds//|/ }; do
        named "$kind" || missing+=("tavi $command $kind")
    done
    if [[ $(head -n 1 <<<"$help") == *SUBCOMMAND* ]]; then
        for sub in $(sed -nE 's/^  ([a-z]+) [A-Z].*/\1/p' <<<"$help"); do
            grep -qE "^\.BI? \"?$sub " "$page" || missing+=("tavi $command $sub")
        done
    fi
done
for name in TAVI_DATA_GROUP TAVI_DATA_USER TAVI_SYS.ini TAVI.ini "EXIT STATUS" FILES ENVIRONMENT; do
    named "$name" || missing+=("$name")
done

if ((${#missing[@]})); then
    echo "$page does not describe:"
    printf '  %s\n' "${missing[@]}"
    exit 1
fi
echo "$page describes every command and option of $tavi"
