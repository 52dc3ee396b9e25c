#!/usr/bin/env bash
# tests.sh dev|asan|tsan: builds the preset of that name and runs all its tests.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system display count sanitizers; do
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

# Tests see no settings of the user's, and leave none; mocked devices listen on sockets below TMPDIR, whose paths
# must be short.
usePrivateFolders() {
    private=$(mktemp -d /tmp/lumo-XXXXXX)
    mkdir -m 700 "$private/run"
    export TMPDIR=/tmp XDG_RUNTIME_DIR="$private/run"
    export XDG_CONFIG_HOME="$private/config" XDG_CACHE_HOME="$private/cache" XDG_DATA_HOME="$private/data"
}

cleanUp() {
    stopDisplay
    if [ -n "${private:-}" ]; then rm -rf "$private"; fi
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
