# shellcheck shell=bash
# The stages of ./test and .ci/run: each is a command of its own, is timed, and leaves its counts in a file.
# Sourced after count.sh, with stageFolder set; one file of a run lies there for each stage.
: "${stageFolder:?}"

stageLines=()
stagesFailed=0
stagesIncomplete=0

# A stage that fails before it counted a failure has failed all the same: it counts as one.
countSilentFailure() {
    local passed failed
    read -r passed failed < <(sumCounts "$1")
    [ "$failed" -gt 0 ] || printf '0 1\n' >>"$1"
    return 0
}

# addStageLine RESULT TITLE SECONDS COUNT-FILE
addStageLine() {
    local passed failed
    read -r passed failed < <(sumCounts "$4")
    stageLines+=("$(printf '%-11s %5d s %6d passed %4d failed   %s' "$1" "$3" "$passed" "$failed" "$2")")
}

# runStage NAME TITLE COMMAND [ARGUMENT…]; never fails itself, so that the later stages run too.
runStage() {
    local counts="$stageFolder/$1" title=$2 begin=$SECONDS code=0 result=passed
    shift 2
    : >"$counts"
    say "$title"
    LUMO_COUNT_FILE=$counts "$@" </dev/null || code=$?
    case "$code" in
        0) ;;
        77) result=INCOMPLETE stagesIncomplete=$((stagesIncomplete + 1)) ;;
        *) result=FAILED stagesFailed=$((stagesFailed + 1)) && countSilentFailure "$counts" ;;
    esac
    addStageLine "$result" "$title" "$((SECONDS - begin))" "$counts"
}

nothingFailed() { [ "$stagesFailed" = 0 ]; }

printSummary() {
    local passed failed
    read -r passed failed < <(sumCounts "$stageFolder"/*)
    say "Summary"
    printf '   %s\n' "${stageLines[@]}"
    printf '   %s\n\n' "${SECONDS} seconds in all"
    [ "$stagesIncomplete" = 0 ] || printf 'INCOMPLETE: what is marked so above could not be run on this machine; its own words say why.\n\n'
    printf '%d passed, %d failed\n' "$passed" "$failed"
}

# 0 when all was run and passed, 1 when something failed, 3 when something could not be run.
stagesStatus() {
    if ! nothingFailed; then
        echo 1
    elif [ "$stagesIncomplete" -gt 0 ]; then
        echo 3
    else
        echo 0
    fi
}
