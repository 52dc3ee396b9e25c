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

configure() {
    local options=()
    if isMac; then options=(-DCMAKE_PREFIX_PATH="$(brew --prefix qt)"); else options=(-DCMAKE_CXX_COMPILER=g++); fi
    cmake --preset "$preset" "${options[@]}"
}

cleanUp() {
    stopDisplay
    dropPrivateFolders
}

runTests() {
    local record="$PWD/$build/tests.xml" code=0
    rm -f "$record"
    underSanitizer ctest --test-dir "$build" --parallel "$(jobCount)" --timeout 300 --no-tests=error \
        --output-on-failure --output-junit "$record" </dev/null || code=$?
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
if ! isMac; then startDisplay; fi
runTests
