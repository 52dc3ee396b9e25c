#!/usr/bin/env bash
# long.sh faults|fuzz|races|monkey: what takes an hour or several, once in a while. LUMO_LONG_SECONDS says how long
# each target of the fuzzing and each monkey runs (3600); the races take a sixth of it. Logs lie in build/long.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system display count sanitizers private; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done
seconds=${LUMO_LONG_SECONDS:-3600}
logs=build/long

cleanUp() {
    stopDisplay
    dropPrivateFolders
}

# build PRESET TARGET
build() {
    cmake --preset "$1" -DCMAKE_CXX_COMPILER=g++ &&
        cmake --build "build/$1" --parallel "$(jobCount)" --target "$2"
}

# logged NAME COMMAND [ARGUMENT…]: counts it as one check.
logged() {
    local log=$logs/$1.log
    shift
    if "$@" 2>&1 | tee "$log"; then addCount 1 0; else addCount 0 1 && return 1; fi
}

# Every fault case, and the page that tells what came of them.
runFaults() {
    local code=0
    rm -f build/kernel/out/faults.md
    LUMO_VM_FAULT_EVERY=1 LUMO_VM_SECONDS=${LUMO_VM_SECONDS:-5400} scripts/stage/kernel.sh || code=$?
    if [ -s build/kernel/out/faults.md ]; then cp build/kernel/out/faults.md docs/faults.md; fi
    return "$code"
}

runFuzz() {
    local code=0
    scripts/stage/fuzz.sh "$seconds" || code=$?
    cp build/fuzz/Testing/Temporary/LastTest.log "$logs/fuzz.log"
    return "$code"
}

runRaces() {
    proveSanitizer tsan
    useSanitizerOptions
    build tsan lumo_races && logged races underSanitizer build/tsan/bin/lumo_races --seconds "$((seconds / 6))"
}

# runMonkey PRESET
runMonkey() {
    build "$1" lumo_monkey && logged "monkey-$1" underSanitizer "build/$1/bin/lumo_monkey" --seconds "$seconds"
}

runMonkeys() {
    local code=0
    useUtf8
    usePrivateFolders
    startDisplay
    runMonkey release || code=1
    proveSanitizer asan
    useSanitizerOptions
    runMonkey asan || code=1
    return "$code"
}

trap cleanUp EXIT
mkdir -p "$logs"
case "$1" in
    faults) runFaults ;;
    fuzz) runFuzz ;;
    races) runRaces ;;
    monkey) runMonkeys ;;
    *) die "there is no long run named $1." ;;
esac
