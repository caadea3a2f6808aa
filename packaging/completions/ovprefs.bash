# Completion of ovprefs for bash. Commands, options and the words that an option
# takes come from the help of the program itself.
# shellcheck shell=bash

# The answer to the word before is one of several words, a file, or free.
_ovprefs_option_value() {
    local placeholder="$1" cur="$2"
    case "$placeholder" in
    *'|'*) mapfile -t COMPREPLY < <(compgen -W "${placeholder//|/ }" -- "$cur") ;;
    FILE) mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
    DIR) mapfile -t COMPREPLY < <(compgen -d -- "$cur") ;;
    esac
}

_ovprefs() {
    local program="$1" cur="$2" prev="$3" command="${COMP_WORDS[1]:-}" help placeholder
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "--help --version $("$program" --help 2>/dev/null |
            sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p')" -- "$cur")
        return
    fi
    help=$("$program" "$command" --help 2>/dev/null) || return
    if [[ $prev =~ ^--[a-z-]+$ ]]; then
        # The placeholder ends at the default or at the explanation.
        placeholder=$(sed -n "s/^  $prev \([^ =]\{1,\}\).*/\1/p" <<<"$help")
        if [ -n "$placeholder" ]; then
            _ovprefs_option_value "$placeholder" "$cur"
            return
        fi
    fi
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(sed -n 's/^  \(--[a-z-]*\).*/\1/p' <<<"$help")" -- "$cur")
        return
    fi
    case "$command" in
    rules) mapfile -t COMPREPLY < <(compgen -W "$("$program" rules 2>/dev/null | sed -n 's/^\(OV[0-9]*\).*/\1/p')" -- "$cur") ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
    esac
}

complete -o filenames -F _ovprefs ovprefs
