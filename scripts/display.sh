# shellcheck shell=bash
# A screen in memory for a machine without one. Sourced after say.sh; whoever starts it calls stopDisplay on exit.

displayPids=()

# Starts an Xvfb on a number the server picks itself, and sets DISPLAY; may be called for more of them. The server
# writes the number once it accepts connections, so reading it is all the waiting there is. Left alone it would begin
# anew whenever the last program is gone, and refuse the next one meanwhile.
startDisplay() {
    local pipe number=
    pipe=$(mktemp -u)
    mkfifo "$pipe"
    exec 9<>"$pipe"
    rm "$pipe"
    Xvfb -displayfd 9 -noreset -screen 0 1600x1200x24 -nolisten tcp >/dev/null 2>&1 &
    displayPids+=("$!")
    for _ in {1..60}; do
        ! read -r -t 1 number <&9 || break
        kill -0 "$!" 2>/dev/null || break
    done
    exec 9>&-
    [ -n "$number" ] || die "the screen in memory (Xvfb) did not start."
    unset WAYLAND_DISPLAY
    export DISPLAY=":$number" QT_QPA_PLATFORM=xcb
}

stopDisplay() {
    local pid
    for pid in ${displayPids[@]+"${displayPids[@]}"}; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    displayPids=()
}
