# Sourced by scripts that check something. Counts checks and reports those
# that fail.
# shellcheck shell=bash

passed=0
failed=0

# check NAME COMMAND...: runs one check; the output of COMMAND explains a failure.
# Through a file: a program that COMMAND has started and not ended would keep the
# writing end of a pipe open, and the check would wait for it.
check() {
    local name="$1" log
    shift
    log=$(mktemp)
    if ("$@") >"$log" 2>&1; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf '%s: %s\n%s\n' "${0##*/}" "$name" "$(<"$log")"
    fi
    rm -f "$log"
}

# Prints the last line of a suite and returns its success.
report_checks() {
    printf '%d passed, %d failed\n' "$passed" "$failed"
    [ "$failed" -eq 0 ]
}
