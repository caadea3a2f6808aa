# Sourced by scripts/check-package: checks the Debian package. Needs folder and
# checks.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154

# In a root of its own: installed, used, removed.
install_deb() {
    mkdir -p "$deb_root/var/lib/dpkg/"{info,updates,triggers}
    touch "$deb_root/var/lib/dpkg/status"
    deb_dpkg -i "$1"
}

deb_dpkg() {
    dpkg --root="$deb_root" --force-depends --force-not-root --force-bad-path --log=/dev/null "$@" 2>&1
}

deb_is_removed() {
    deb_dpkg -P ovprefs || return
    local left
    left=$(find "$deb_root" -mindepth 1 -path "$deb_root/var" -prune -o -print)
    [ -z "$left" ] || { printf 'left: %s\n' "$left" && false; }
}

is_lintian_clean() {
    local output code=0
    # Root is who runs the tests in a container. The compiler cuts texts into pieces
    # of 16 bytes, which lintian takes for words: "foll" of "follows".
    output=$(lintian --allow-root --fail-on error,warning,info --display-info \
        --suppress-tags spelling-error-in-binary "$1" 2>&1) || code=$?
    printf '%s' "$output"
    [ "$code" -eq 0 ] && [ -z "$output" ]
}

deb_program_runs() {
    [[ $("$deb_root/usr/bin/ovprefs" --version) == "ovprefs "* ]] &&
        [ "$("$deb_root/usr/bin/ovprefs" get "$deb_root/usr/share/doc/ovprefs/examples/office.cfg" HR_OFFICE)" != '' ]
}

# The commands of the program, one a line.
deb_commands() {
    "$deb_root/usr/bin/ovprefs" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z-]*\) .*/\1/p'
}

# options_of COMMAND
deb_options_of() {
    "$deb_root/usr/bin/ovprefs" "$1" --help | sed -n 's/^  \(--[a-z-]*\).*/\1/p'
}

man_page_is_complete() {
    local page="$folder/page" command option found=0
    MANWIDTH=200 man --warnings=mac -l "$deb_root/usr/share/man/man1/ovprefs.1.gz" >"$page" 2>"$page.warnings" || return
    [ ! -s "$page.warnings" ] || { cat "$page.warnings" && return 1; }
    for command in $(deb_commands); do
        sed -n "/^   $command\$/,/^   [a-z]/p" "$page" >"$page.$command"
        [ -s "$page.$command" ] || { printf 'no command %s\n' "$command" && return 1; }
        for option in $(deb_options_of "$command"); do
            [ "$option" = --help ] || grep -qE -- "^ +$option( |$)" "$page.$command" ||
                { printf 'no option %s of %s\n' "$option" "$command" && return 1; }
            found=$((found + 1))
        done
    done
    [ "$found" -gt 20 ]
}

# completes EXPECTED WORD...: the last word is completed to these, one a line.
completes() {
    local expected="$1"
    shift
    diff <(sort <<<"$expected") <(
        PATH="$deb_root/usr/bin:$PATH"
        # shellcheck disable=SC1091
        . "$deb_root/usr/share/bash-completion/completions/ovprefs"
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
        _ovprefs ovprefs "${!#}" "${COMP_WORDS[-2]}"
        printf '%s\n' "${COMPREPLY[@]}" | sort
    )
}

bash_completes() {
    local command
    completes "$(deb_commands)
--help
--version" ovprefs '' || return
    for command in $(deb_commands); do
        completes "$(deb_options_of "$command")" ovprefs "$command" -- || return
    done
    completes 'text
json
sarif' ovprefs check --format '' && completes sarif ovprefs check --format s
}

# zsh_completes WORD EXPECTED: what an interactive shell makes of a line and Tab.
zsh_completes() {
    local line="$1" expected="$2"
    diff <(printf '%s\n' "$expected") <(
        PATH="$deb_root/usr/bin:$PATH" HOME="$folder" ZDOTDIR="$folder" TERM=dumb zsh -f "$scripts/zsh-complete" \
            "$deb_root/usr/share/zsh/vendor-completions" "$line"
    )
}

# Each of these has one completion only.
zsh_words_complete() {
    zsh_completes 'ovprefs expl' 'ovprefs explain' && zsh_completes 'ovprefs check --fail' 'ovprefs check --fail-on' &&
        zsh_completes 'ovprefs check --format sa' 'ovprefs check --format sarif'
}

# check_deb DEB
check_deb() {
    deb_root="$folder/root"
    check 'the Debian package is installed' install_deb "$1"
    check 'the Debian package is clean for lintian' is_lintian_clean "$1"
    check 'the installed ovprefs runs' deb_program_runs
    check 'the manual page has all commands and options' man_page_is_complete
    check 'completion in bash' bash_completes
    check 'completion in zsh' zsh_words_complete
    check 'nothing is left of the Debian package' deb_is_removed
}
