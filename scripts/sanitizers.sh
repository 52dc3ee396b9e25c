# shellcheck shell=bash
# Makes sure that the sanitizers find anything here, and sets their options. Sourced after say.sh.
#
# LeakSanitizer needs ptrace, ThreadSanitizer a memory layout that a kernel with much address randomisation does not
# give it. Both can be missing in a container, so each has to report a mistake made on purpose first.

sanitizerPrefix=()

# Prints the program that makes the mistake which the given sanitizer is there for.
mistakeFor() {
    case "$1" in
        asan) echo '#include <cstdlib>
                    int main() { void* volatile lost = std::malloc(16); lost = nullptr; return lost != nullptr; }' ;;
        tsan) echo '#include <thread>
                    int shared; int main() { std::thread other([] { ++shared; }); ++shared; other.join(); }' ;;
    esac
}

# True when the program says what is wrong with it; it is run five times, since the layout is random.
reportsMistake() {
    local turn
    for turn in 1 2 3 4 5; do
        "${@:2}" >"$scratch/$turn" 2>&1 && return 1
        grep -qE "$1" "$scratch/$turn" || return 1
    done
}

# Leaves in sanitizerPrefix what underSanitizer starts a command with.
proveSanitizer() {
    local flag=address words='detected memory leaks'
    if [ "$1" = tsan ]; then flag=thread words='data race'; fi
    scratch=$(mktemp -d)
    mistakeFor "$1" | g++ -std=c++20 -g -fsanitize="$flag" -x c++ - -o "$scratch/mistake" -pthread
    if reportsMistake "$words" "$scratch/mistake"; then
        sanitizerPrefix=()
    elif reportsMistake "$words" setarch -R "$scratch/mistake"; then
        note "The sanitizer needs a fixed memory layout here: the tests run under setarch -R."
        sanitizerPrefix=(setarch -R)
    else
        cat "$scratch/1" >&2
        die "$1 does not find a mistake made on purpose; it cannot be used on this machine."
    fi
    rm -r "$scratch"
}

underSanitizer() { ${sanitizerPrefix[@]+"${sanitizerPrefix[@]}"} "$@"; }

useSanitizerOptions() {
    export LSAN_OPTIONS="suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0"
    export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1
    export UBSAN_OPTIONS=print_stacktrace=1 TSAN_OPTIONS=second_deadlock_stack=1
}
