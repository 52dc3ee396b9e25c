# shellcheck shell=bash
# What our commands say on the console, and how they end early. Sourced; works with the bash 3.2 of macOS.

say() { printf '\n== %s\n' "$*"; }

note() { printf '   %s\n' "$*"; }

# Ends the command with one sentence that tells what could not be had.
die() {
    printf '\n%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}
