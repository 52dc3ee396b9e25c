# shellcheck shell=bash
# How many checks a stage of ./test really ran: each stage adds its lines to the file named by LUMO_COUNT_FILE,
# and the last line of ./test is their sum. Sourced.

# addCount PASSED FAILED
addCount() { printf '%d %d\n' "$1" "$2" >>"${LUMO_COUNT_FILE:-/dev/null}"; }

# Prints "PASSED FAILED", the sums over the given files.
sumCounts() { cat /dev/null "$@" | awk '{ passed += $1; failed += $2 } END { printf "%d %d\n", passed, failed }'; }

# Counts CTest's own record of a run. A test that CTest lists and did not run, for whatever reason, is no pass.
addCTestCount() {
    local all passed
    all=$(grep -c '^[[:space:]]*<testcase ' "$1" || true)
    passed=$(grep -c '^[[:space:]]*<testcase .*status="run"' "$1" || true)
    addCount "$passed" "$((all - passed))"
    [ "$all" = "$passed" ]
}
