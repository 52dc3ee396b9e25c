# shellcheck shell=bash
# Starts a program of ours on a screen in memory, takes one picture of its window and quits it the way a user does.
# Sourced after display.sh.

programPid=
programLog=

programRuns() { kill -0 "$programPid" 2>/dev/null; }

# Asks again five times a second until the given command says yes; gives up when the program has ended or the
# seconds are over.
waitFor() {
    local seconds=$1 end
    shift
    end=$((SECONDS + seconds))
    until "$@"; do
        programRuns && [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.2
    done
}

# What the program writes goes to the console and to the log in which the handshake is looked for.
startProgram() {
    programLog=$1
    shift
    : >"$programLog"
    "$@" > >(tee "$programLog") 2>&1 </dev/null &
    programPid=$!
}

mainWindow() { xdotool search --all --onlyvisible --pid "$programPid" --name '^Vexa Lumo 65$' 2>/dev/null | sed -n 1p; }

windowStands() { [ -n "$(mainWindow)" ]; }

handshakeIsThrough() { grep -qF '[VexaProtocol] Handshake verified with hardware!' "$programLog"; }

# Of what stands still once the window is painted: header and status bar. Between them the keyboard lives.
pixelsOf() { convert "$1" \( -clone 0 -gravity North -crop x45+0+0 \) \( -clone 0 -gravity South -crop x28+0+0 \) -delete 0 +repage -append -depth 8 rgb:- | cksum; }

# A window that has not been painted has one colour or a handful.
isPainted() { [ "$(identify -format %k "$1")" -ge 64 ]; }

takePicture() { import -silent -window "$1" "png24:$2" 2>/dev/null; }

# True once the picture just taken is painted and agrees with the one before.
pictureIsSteady() {
    local window=$1 picture=$2 before="$2.before"
    [ ! -f "$picture" ] || mv "$picture" "$before"
    takePicture "$window" "$picture" && [ -f "$before" ] && isPainted "$picture" || return 1
    [ "$(pixelsOf "$before")" = "$(pixelsOf "$picture")" ]
}

# Ctrl+Q as from a keyboard; there is no window manager here that would hand out the focus.
quitProgram() {
    local code=0
    xdotool windowfocus --sync "$1" key --clearmodifiers ctrl+q
    waitFor 30 programEnded || programEnded || die "the program did not quit on Ctrl+Q."
    wait "$programPid" || code=$?
    programPid=
    [ "$code" = 0 ] || die "the program ended with status $code."
}

programEnded() { ! programRuns; }

stopProgram() {
    [ -n "$programPid" ] || return 0
    kill "$programPid" 2>/dev/null || true
    wait "$programPid" 2>/dev/null || true
    programPid=
}

# Ends the command: the program is gone, or the seconds are over.
giveUp() {
    programRuns || die "the program ended before its time; what it said is above and in $programLog."
    die "$1"
}

# pictureOf PICTURE READY-COMMAND PROGRAM [ARGUMENT…]
pictureOf() {
    local picture=$1 ready=$2 window
    shift 2
    mkdir -p "${picture%/*}"
    rm -f "$picture" "$picture.before"
    startProgram "${picture%.png}.log" "$@"
    waitFor 60 windowStands || giveUp "no window within 60 seconds."
    waitFor 60 "$ready" || giveUp "the window stands, but the handshake with the virtual keyboard did not come."
    window=$(mainWindow)
    waitFor 60 pictureIsSteady "$window" "$picture" || giveUp "the window was not painted and at rest within 60 seconds."
    rm -f "$picture.before"
    quitProgram "$window"
}
