#!/usr/bin/env bash
# The bash completion of tavi, sourced into a test shell: commands, options,
# option values, report kinds, db subcommands and the file types each place
# takes. The zsh completion is checked for syntax and for reading the
# option values from the help texts the same way.
# Usage: completion_test.sh SOURCE_DIR TAVI_BIN_DIR
set -uo pipefail
source_dir=$1
PATH=$2:$PATH
# shellcheck source=/dev/null
source "$source_dir/dist/completion/tavi.bash"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/sub"
touch "$work/story.tvi" "$work/LOUD.TVI" "$work/notes.txt" "$work/norms.tvidb" \
    "$work/pick.SBT" "$work/old.sd1"
cd "$work" || exit 1

failures=0
# expect LINE WORD... : completing LINE (a trailing blank starts a new word)
# offers exactly these words, in any order.
expect() {
    local line=$1
    shift
    read -r -a COMP_WORDS <<<"$line"
    [[ $line == *' ' ]] && COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    case "${COMP_WORDS[0]}" in
    tavi-gui) _tavi_gui ;;
    *) _tavi ;;
    esac
    local got want
    got=$(printf '%s\n' "${COMPREPLY[@]}" | sort | tr '\n' ' ')
    want=$(printf '%s\n' "$@" | sort | tr '\n' ' ')
    if [[ $got != "$want" ]]; then
        echo "FAIL: '$line' gave [$got] expected [$want]"
        failures=$((failures + 1))
    fi
}

commands=$(tavi --help | sed -n 's/^  \([a-z][a-z0-9-]*\)  .*/\1/p')
# shellcheck disable=SC2086
expect "tavi " $commands
expect "tavi re" report
expect "tavi --settings-dir sub " $commands
expect "tavi --settings-dir s" sub
expect "tavi --" --help --settings-dir
kinds=$(tavi report --help | sed -n '/^Reports (KIND):/,$ s/^  \([a-z][a-z0-9-]*\) .*/\1/p')
[[ $kinds == *smr*types* ]] || { echo "FAIL: tavi report --help lists no kinds"; failures=$((failures + 1)); }
# shellcheck disable=SC2086
expect "tavi report " $kinds
expect "tavi report go" goals
expect "tavi si " suggest
expect "tavi si suggest --speaker " 1 2
expect "tavi report smr --speaker " 1 2
expect "tavi report smr --sp" --speaker
expect "tavi report types " LOUD.TVI story.tvi sub
expect "tavi report smr -o " LOUD.TVI norms.tvidb notes.txt old.sd1 pick.SBT story.tvi sub
expect "tavi check " LOUD.TVI story.tvi sub
expect "tavi check --date-format " MM-DD-YY DD-MM-YY
expect "tavi check --j" --json
expect "tavi measures --word-lists " primary alt1 alt2 other
expect "tavi measures --cut-base " total aset
expect "tavi measures --window 50 s" story.tvi sub
expect "tavi batch --format " csv tsv txt
expect "tavi batch --selections " pick.SBT sub
expect "tavi batch --save-selections " pick.SBT sub
expect "tavi explore --speaker " 1 2 either
expect "tavi explore --code-level " word utterance either
expect "tavi explore --save-separate " sub
expect "tavi explore --type maze " LOUD.TVI story.tvi sub
expect "tavi db " create info list add remove clear convert select
expect "tavi db add " norms.tvidb sub
expect "tavi db add norms.tvidb " LOUD.TVI story.tvi sub
expect "tavi db add norms.tvidb --speaker 2 st" story.tvi
expect "tavi db convert " old.sd1 sub
expect "tavi db create x.tvidb --sample-type " 101 102 103 104
expect "tavi lists " codes morphemes words
expect "tavi lists words " LOUD.TVI story.tvi sub
expect "tavi lists words --area " main mazes both
expect "tavi lists codes -o " LOUD.TVI norms.tvidb notes.txt old.sd1 pick.SBT story.tvi sub
expect "tavi settings " 
expect "tavi-gui " LOUD.TVI story.tvi sub

# Every option of every command's help completes after "--".
for command in $commands; do
    options=$(tavi "$command" --help | grep -oE -- '(^|[][ ,|(])--[a-zA-Z][a-zA-Z0-9-]*' |
        sed 's/^[^-]*//' | sort -u)
    # shellcheck disable=SC2086
    expect "tavi $command --" $( (echo --help; echo "$options") | sort -u)
done

if command -v zsh >/dev/null; then
    zsh -n "$source_dir/dist/completion/_tavi" || failures=$((failures + 1))
    got=$(zsh -fc "source <(sed -n '/^_tavi_option_argument/,/^}/p' \
        '$source_dir/dist/completion/_tavi')
        h=\$(tavi measures --help)
        print -r -- \$(_tavi_option_argument \"\$h\" --word-lists) \
            \$(_tavi_option_argument \"\$h\" --window) \
            \$(_tavi_option_argument \"\$h\" --entire)")
    if [[ $got != "primary|alt1|alt2|other N" ]]; then
        echo "FAIL: zsh option values [$got]"
        failures=$((failures + 1))
    fi
else
    echo "zsh is not installed: its completion is not checked"
fi

if ((failures)); then
    echo "$failures completion check(s) failed"
    exit 1
fi
echo "every completion check passed"
