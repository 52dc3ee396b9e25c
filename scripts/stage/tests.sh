#!/usr/bin/env bash
# tests.sh dev|asan|tsan: builds the preset of that name and runs all its tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system display count sanitizers private; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done
preset=$1
build=build/$preset
resources=$PWD/$build/displays.json

configure() {
    local options=()
    if isMac; then options=(-DCMAKE_PREFIX_PATH="$(brew --prefix qt)"); else options=(-DCMAKE_CXX_COMPILER=g++); fi
    cmake --preset "$preset" "${options[@]}"
}

cleanUp() {
    stopDisplay
    dropPrivateFolders
}

# One window's test at a time on a screen, and a screen for each processor. What says nothing of resources gets one
# of its own.
startDisplays() {
    local ids=
    for _ in $(seq "$(jobCount)"); do
        startDisplay
        ids+="${ids:+, }{\"id\": \"${DISPLAY#:}\", \"slots\": 1}"
    done
    printf '{"version": {"major": 1, "minor": 0}, "local": [{"displays": [%s]}]}\n' "$ids" >"$resources"
    startDisplay
}

runTests() {
    local record="$PWD/$build/tests.xml" code=0 known=()
    rm -f "$record"
    if ! isMac; then known=(--resource-spec-file "$resources"); fi
    underSanitizer ctest --test-dir "$build" --parallel "$(jobCount)" --timeout 300 --no-tests=error \
        --output-on-failure --output-junit "$record" ${known[@]+"${known[@]}"} </dev/null || code=$?
    addCTestCount "$record" || code=1
    return "$code"
}

trap cleanUp EXIT
if [ "$preset" != dev ]; then
    proveSanitizer "$preset"
    useSanitizerOptions
fi
configure
cmake --build "$build" --parallel "$(jobCount)"
useUtf8
usePrivateFolders
if ! isMac; then startDisplays; fi
runTests
