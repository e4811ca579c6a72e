# Completion of till's arguments in bash. Options and commands are those of its own help.

_till()
{
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} help command="" i
    help=$("$1" --help 2>/dev/null)
    case $before in
        --lang)
            mapfile -t COMPREPLY < <(compgen -W 'ru en' -- "$current")
            return ;;
        --colour | --color)
            mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$current")
            return ;;
        --state)
            mapfile -t COMPREPLY < <(compgen -W 'open subtotal closed cancelled' -- "$current")
            return ;;
        --*)
            case $(sed -nE "s/^  $before <([A-Z=]+)>.*/\1/p" <<<"$help") in
                '') ;;
                FILE)
                    compopt -o filenames
                    mapfile -t COMPREPLY < <(compgen -f -- "$current")
                    return ;;
                *) return ;;
            esac ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE '^  +-.*' <<<"$help" | grep -oE -- '--[a-z-]+')" \
            -- "$current")
        return
    fi
    for ((i = 1; i < COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == [a-z]* ]] || continue
        grep -qE "^  till ${COMP_WORDS[i]}( |\$)" <<<"$help" && command=${COMP_WORDS[i]}
    done
    if [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(sed -nE 's/^  till ([a-z-]+) .*/\1/p' <<<"$help")" \
            -- "$current")
    elif grep -qE "^  till $command (PATH|FILE|TRACE)" <<<"$help"; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -F _till till
