# Completion of till's arguments in bash. Options and commands are those of its own help.

_till()
{
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} help command="" i
    case $before in
        --db | --catalogue | --plugin | --config | --record | --trace | --junit)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return ;;
        --lang)
            mapfile -t COMPREPLY < <(compgen -W 'ru en' -- "$current")
            return ;;
        --colour | --color)
            mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$current")
            return ;;
        --state)
            mapfile -t COMPREPLY < <(compgen -W 'open subtotal closed cancelled' -- "$current")
            return ;;
        --set | --jobs | --timeout | --from | --to) return ;;
    esac
    help=$("$1" --help 2>/dev/null)
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE '^  +-.*' <<<"$help" | grep -oE -- '--[a-z-]+')" \
            -- "$current")
        return
    fi
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            play | backup | demo | from-trace | info | check | set-apart | receipts | receipt | journal) command=${COMP_WORDS[i]} ;;
        esac
    done
    case $command in
        '')
            mapfile -t COMPREPLY < <(compgen -W "$(sed -nE 's/^  till ([a-z-]+) .*/\1/p' <<<"$help")" \
                -- "$current") ;;
        play | backup | from-trace)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    esac
}

complete -F _till till
