# bash completion for tavi and tavi-gui.
#
# The commands, the options and the values an option takes are read from the
# program's own help (`tavi --help`, `tavi COMMAND --help`), so a new command
# or option completes without a change here. Transcripts are *.tvi, reference
# databases *.tvidb, selection files *.SBT.

# The commands listed by `tavi --help`.
_tavi_commands() {
    "$1" --help 2>/dev/null | sed -n 's/^  \([a-z][a-z0-9-]*\)  .*/\1/p'
}

# Every option named in a help text, with --help.
_tavi_options() {
    {
        grep -oE -- '(^|[][ ,|(])--?[a-zA-Z][a-zA-Z0-9-]*' | sed 's/^[^-]*//'
        echo --help
    } | sort -u
}

# What follows OPTION in a help text: "1|2" (values), "FILE", "DIR", ... or
# nothing for a flag.
_tavi_option_argument() {
    local option=$1
    grep -oE -- "(^|[][ ,|(])${option}[ =]([A-Z][A-Za-z0-9.:,_-]*|[a-z0-9]+(\\|[a-z0-9]+)+)" |
        head -n 1 | sed -E "s/^.*${option}[ =]//"
}

# Files with one of the extensions (any case), and folders.
_tavi_files() {
    local f ext
    compopt -o filenames 2>/dev/null
    while IFS= read -r f; do
        if [[ -d $f ]]; then
            COMPREPLY+=("$f")
            continue
        fi
        for ext in "$@"; do
            if [[ ${f,,} == *."$ext" ]]; then
                COMPREPLY+=("$f")
                break
            fi
        done
    done < <(compgen -f -- "$cur")
}

_tavi() {
    local cur=${COMP_WORDS[COMP_CWORD]}
    local prev=''
    ((COMP_CWORD > 0)) && prev=${COMP_WORDS[COMP_CWORD - 1]}
    local program=${COMP_WORDS[0]}
    COMPREPLY=()

    # The command: the first word after the global options.
    local i command='' command_at=0 global_help
    global_help=$("$program" --help 2>/dev/null)
    for ((i = 1; i < COMP_CWORD; i++)); do
        case "${COMP_WORDS[i]}" in
        --settings-dir) ((i++)) ;;
        -*) ;;
        *)
            command=${COMP_WORDS[i]}
            command_at=$i
            break
            ;;
        esac
    done

    local help
    if [[ -n $command ]]; then
        help=$("$program" "$command" --help 2>/dev/null)
    else
        help=$global_help
    fi

    # The value of an option.
    if [[ $prev == -* ]]; then
        local argument
        argument=$(_tavi_option_argument "$prev" <<<"$help")
        [[ -z $argument ]] && argument=$(_tavi_option_argument "$prev" <<<"$global_help")
        if [[ -n $argument ]]; then
            case "$argument" in
            *'|'*) mapfile -t COMPREPLY < <(compgen -W "${argument//|/ }" -- "$cur") ;;
            DIR)
                compopt -o filenames 2>/dev/null
                mapfile -t COMPREPLY < <(compgen -d -- "$cur")
                ;;
            *.SBT) _tavi_files sbt ;;
            FILE* | OUT)
                compopt -o filenames 2>/dev/null
                mapfile -t COMPREPLY < <(compgen -f -- "$cur")
                ;;
            MM-DD-YY | FORMAT) mapfile -t COMPREPLY < <(compgen -W "MM-DD-YY DD-MM-YY" -- "$cur") ;;
            esac
                return 0
        fi
    fi

    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_tavi_options <<<"$help")" -- "$cur")
        return 0
    fi

    if [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_tavi_commands "$program")" -- "$cur")
        return 0
    fi

    # The words after the command that are not options or their values.
    local words=() argument
    for ((i = command_at + 1; i < COMP_CWORD; i++)); do
        case "${COMP_WORDS[i]}" in
        -*)
            argument=$(_tavi_option_argument "${COMP_WORDS[i]}" <<<"$help")
            [[ -n $argument ]] && ((i++))
            ;;
        *) words+=("${COMP_WORDS[i]}") ;;
        esac
    done

    # A kind or subcommand first: the kinds listed under "Reports (KIND):"
    # ("tavi report smr"), or named in the usage line ("tavi x a|b",
    # "tavi si suggest"), or
    # "tavi db SUBCOMMAND".
    local kinds
    kinds=$(sed -nE "s/^Usage: [^ ]+ ${command} ([a-z0-9]+(\\|[a-z0-9]+)*)( .*)?$/\\1/p" <<<"$help")
    kinds+=" $(sed -n '/^Reports (KIND):/,$ s/^  \([a-z][a-z0-9-]*\) .*/\1/p' <<<"$help")"
    if [[ ${#words[@]} -eq 0 && -n ${kinds// /} ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${kinds//|/ }" -- "$cur")
        return 0
    fi
    if [[ $command == db ]]; then
        if [[ ${#words[@]} -eq 0 ]]; then
            mapfile -t COMPREPLY < <(compgen -W \
                "$(sed -nE 's/^  ([a-z]+) [A-Z].*/\1/p' <<<"$help" | sort -u)" -- "$cur")
                return 0
        fi
        case "${words[0]}" in
        convert) _tavi_files sd1 ;;
        add) if [[ ${#words[@]} -eq 1 ]]; then _tavi_files tvidb; else _tavi_files tvi; fi ;;
        *) [[ ${#words[@]} -eq 1 ]] && _tavi_files tvidb ;;
        esac
        return 0
    fi
    [[ $command == settings ]] && return 0
    _tavi_files tvi
}

_tavi_gui() {
    local cur=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--commands" -- "$cur")
        return 0
    fi
    _tavi_files tvi
}

complete -F _tavi tavi
complete -F _tavi_gui tavi-gui
