# Completion for bash. Commands and options come from the program's own help.
_rulesctl() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$(rulesctl --help 2>/dev/null |
            sed -n '/^Commands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p') --help --version" -- "$word")
        return
    fi
    local help
    help=$(rulesctl "${COMP_WORDS[1]}" --help 2>/dev/null)
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(sed -n '/^Options:/,/^Examples:/{
            s/^  \(-[a-z], \)\{0,1\}\(--[a-z-]*\).*/\2/p}' <<<"$help")" -- "$word")
        return
    fi
    case $before in
    --format)
        mapfile -t COMPREPLY < <(compgen -W "$(sed -n 's/^  --format \([a-z|]*\).*/\1/p' <<<"$help" |
            tr '|' ' ')" -- "$word")
        ;;
    --language)
        mapfile -t COMPREPLY < <(compgen -W "de en zh_CN" -- "$word")
        ;;
    *)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    esac
}
complete -F _rulesctl rulesctl
