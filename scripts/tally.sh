# Sourced by ./test. Runs suites, counts their results, and prints one line per
# suite. Needs logs (the folder of the logs) and suite_seconds (the time limit).
# shellcheck shell=bash
# shellcheck disable=SC2154

total_passed=0
total_failed=0

# Extracts the result from a log: GoogleTest's summary or a script's last line.
passed_in() {
    sed -n -e 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}\..*/\1/p' -e 's/^\([0-9]*\) passed, [0-9]* failed\r\{0,1\}$/\1/p' "$1" |
        tail -n 1
}
failed_in() {
    sed -n -e 's/^\[  FAILED  \] \([0-9]*\) tests\{0,1\}, listed below.*/\1/p' -e 's/^[0-9]* passed, \([0-9]*\) failed\r\{0,1\}$/\1/p' "$1" |
        tail -n 1
}

skipped_in() {
    sed -n 's/^\[  SKIPPED \] \([0-9]*\) tests\{0,1\}, listed below.*/\1/p' "$1" | tail -n 1
}

# run_suite LOG-NAME COMMAND...: runs a suite or a part of one. Stores its output
# in one file, its exit code and seconds in another.
run_suite() {
    local log="$logs/$1.log" start=$EPOCHREALTIME code=0
    shift
    timeout -k 10 "$suite_seconds" "$@" >"$log" 2>&1 9>&- </dev/null || code=$?
    awk -v a="$start" -v b="$EPOCHREALTIME" -v code="$code" 'BEGIN { printf "%d %.1f\n", code, b - a }' >"$log.end"
}

# count PART: adds the results of a part to the suite's passed, failed, skipped
# and seconds. A part that fails without a failed test, or that reports nothing,
# has crashed and counts as a failure.
count() {
    local log="$logs/$1.log" code part_seconds part_passed part_failed part_skipped
    read -r code part_seconds <"$log.end"
    part_passed=$(passed_in "$log")
    part_failed=$(failed_in "$log")
    part_skipped=$(skipped_in "$log")
    if [ "$code" -eq 124 ] || [ "$code" -eq 137 ]; then
        printf 'The suite did not end within %d s.\n' "$suite_seconds" >>"$log"
    fi
    if { [ "$code" -ne 0 ] && [ "${part_failed:-0}" -eq 0 ]; } ||
        [ $((${part_passed:-0} + ${part_failed:-0})) -eq 0 ]; then
        printf 'The suite ended with exit code %d and no failed test of its own.\n' "$code" >>"$log"
        part_failed=1
    fi
    passed=$((passed + ${part_passed:-0}))
    failed=$((failed + ${part_failed:-0}))
    skipped=$((skipped + ${part_skipped:-0}))
    seconds=$(awk -v a="$seconds" -v b="$part_seconds" 'BEGIN { printf "%.1f", a + b }')
    [ "${part_failed:-0}" -eq 0 ] || failing+=("$log")
}

# report NAME PASSED FAILED [REST]: prints the line of a suite.
report() {
    printf '%-34s %4d passed, %d failed%s\n' "$1" "$2" "$3" "${4:-}"
    total_passed=$((total_passed + $2))
    total_failed=$((total_failed + $3))
}

# account NAME PART...: reports a suite that was run in one or several parts.
account() {
    local name="$1" passed=0 failed=0 skipped=0 seconds=0 part note="" failing=()
    shift
    for part in "$@"; do
        count "$part"
    done
    # Tests without the necessary permission are reported as skipped.
    [ "$skipped" -eq 0 ] || note="  ($skipped skipped: not permitted here)"
    report "$name" "$passed" "$failed" "  $seconds s$note"
    for part in "${failing[@]}"; do
        { grep -vE '^\[ +(OK|RUN) +\]|^\[-+\]' "$part" || true; } | tail -n 60 | cut -c 1-200 | sed 's/^/    /'
        printf '    The whole log: %s\n' "$part"
    done
}

# suite NAME LOG-NAME COMMAND...: runs and reports a suite.
suite() {
    run_suite "${@:2}"
    account "$1" "$2"
}

# Prints the last line and returns success if nothing failed.
report_total() {
    printf '%d passed, %d failed\n' "$total_passed" "$total_failed"
    [ "$total_failed" -eq 0 ]
}
