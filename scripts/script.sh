# Sourced by every script of the project. Finds the root, prints help, reports errors.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# The scripts use this to call each other.
# shellcheck disable=SC2034
scripts="$root/scripts"

# Prints the comment at the top of the script, which is its help.
usage() {
    sed -n '2,/^[^#]/{/^[^#]/d;s/^# \{0,1\}//;p}' "$0"
}

# help_if_asked "$@"
help_if_asked() {
    case "${1:-}" in
    -h | --help)
        usage
        exit 0
        ;;
    esac
}

# fail MESSAGE...: ends the script with exit code 1.
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# misused MESSAGE...: ends the script with exit code 2, for wrong arguments.
misused() {
    printf '%s: %s; see %s --help\n' "${0##*/}" "$*" "$0" >&2
    exit 2
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        printf "%s: '%s' needs root, and there is no sudo\n" "${0##*/}" "$*" >&2
        return 1
    fi
}
