# shellcheck shell=bash
# Which system this is and what it allows. Sourced after say.sh.

isMac() { [ "$(uname -s)" = Darwin ]; }

hasDisplay() { isMac || [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }

# nproc respects the processors this process may use; macOS has no nproc.
jobCount() { nproc 2>/dev/null || sysctl -n hw.ncpu; }

# Name and version as the system itself writes them, for example "debian:12" or "ubuntu:24.04".
systemName() { (. /etc/os-release && printf '%s:%s' "${ID:-unknown}" "${VERSION_ID:-}") 2>/dev/null || uname -s; }

# Runs a command as root: directly, or through sudo, which may ask for the password where there is a terminal.
asRoot() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        note "This needs root, and there is no sudo here."
        return 1
    fi
}

# Text from our programs is UTF-8; a bare machine has no locale set at all.
useUtf8() {
    if [ -z "${LC_ALL:-}${LC_CTYPE:-}${LANG:-}" ]; then
        export LC_ALL=C.UTF-8
    fi
}
