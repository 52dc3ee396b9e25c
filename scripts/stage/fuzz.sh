#!/usr/bin/env bash
# fuzz.sh [SECONDS]: builds the fuzz targets and gives each its run, as tests/fuzz defines it: a number of inputs, or as
# many as so many seconds allow.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system count sanitizers; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done
record=$PWD/build/fuzz/tests.xml
seconds=${1:-0}

targets() { cmake --build build/fuzz --target help | sed -n 's/^\(lumo_fuzz_[A-Za-z0-9_]*\): phony$/\1/p' | sort -u; }

# A target that nothing runs would be forgotten without a word.
everyTargetHasTest() {
    local run
    run=$(grep -c '<testcase ' "$record" || true)
    [ "$run" -ge "$#" ] || die "$# fuzz targets, but only $run runs of them are defined."
}

runTargets() {
    local code=0
    rm -f "$record"
    ctest --test-dir build/fuzz --parallel "$(jobCount)" --tests-regex '^Fuzz\.' --no-tests=error \
        --timeout "$((seconds + 300))" --output-on-failure --output-junit "$record" </dev/null || code=$?
    addCTestCount "$record" || code=1
    everyTargetHasTest "$@"
    return "$code"
}

useSanitizerOptions
cmake --preset fuzz -DLUMO_FUZZ_SECONDS="$seconds"
names=$(targets)
[ -n "$names" ] || die "there is no target named lumo_fuzz_… to run."
# shellcheck disable=SC2086  # lists of names
cmake --build build/fuzz --parallel "$(jobCount)" --target $names
# shellcheck disable=SC2086
runTargets $names
