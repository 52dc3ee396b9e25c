#!/usr/bin/env bash
# run_vm.sh BUILD_DIR WORK_DIR: boots Debian's kernel in an emulated machine, over this machine's own files, and runs
# the programs of BUILD_DIR/bin in it. Needs neither root nor hardware virtualisation.
#
# Ends with 0 when every check passed, 77 when something needed could not be had, 1 otherwise. WORK_DIR keeps the
# kernel for the next time; WORK_DIR/out has what the machine wrote.
#
# LUMO_VM_FAULT="set 04 refuse" breaks the keyboards beforehand: a way to see that the checks can fail.
# LUMO_VM_FAULT_EVERY=20 plays only each twentieth of all fault cases; 1 plays all, which takes the machine longer than
# LUMO_VM_SECONDS usually allows.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for piece in say count; do
    # shellcheck source=/dev/null
    . "$here/../../scripts/$piece.sh"
done

[ $# = 2 ] || die "usage: run_vm.sh BUILD_DIR WORK_DIR"
[ -d "$1/bin" ] || die "there is no build in $1."
mkdir -p "$2"
build=$(cd "$1" && pwd)
work=$(cd "$2" && pwd)
out=$work/out
for piece in kernel initramfs machine; do
    # shellcheck source=/dev/null
    . "$here/host/$piece.sh"
done

# Ends with "could not be run", which is not "passed".
cannotRun() {
    note "The tests on a real kernel could not be run: $*"
    exit 77
}

# needCommand COMMAND PACKAGE
needCommand() { command -v "$1" >/dev/null || [ -x "/usr/libexec/$1" ] || cannotRun "$1 is missing (package $2)."; }

needPrograms() {
    local program
    needCommand qemu-system-x86_64 qemu-system-x86
    needCommand busybox busybox-static
    ! ldd "$(command -v busybox)" >/dev/null 2>&1 ||
        cannotRun "busybox needs libraries here; package busybox-static has one that does not."
    needCommand cpio cpio
    needCommand depmod kmod
    needCommand xz xz-utils
    needCommand udevadm udev
    needCommand Xvfb xvfb
    needCommand xdotool xdotool
    [[ $(ldconfig -p) == *libXtst.so.6* ]] || cannotRun "keys cannot be sent quickly (package libxtst6)."
    needCommand strace strace
    needCommand dbus-daemon dbus-daemon
    needCommand at-spi-bus-launcher at-spi2-core
    /usr/bin/python3 -c 'import gi; gi.require_version("Gio", "2.0")' 2>/dev/null ||
        cannotRun "Python's door to the accessibility bus is missing (package python3-gi)."
    for program in vexa-lumo-65 vexa-lumo-65-interface lumo-fault-matrix lumo-uhid-keyboard lumo-usbip-keyboard; do
        [ -x "$build/bin/$program" ] || die "$build/bin/$program has not been built."
    done
    [ -f "$build/probe/generic/lumo-turn-probe.so" ] || die "the probe of the main loop has not been built."
}

# What the scenario found, as "PASSED FAILED"; a scenario that never came to its count has found nothing.
countOf() { sed -n 's/^\([0-9]*\) passed, \([0-9]*\) failed$/\1 \2/p' "$out/report.txt" | tail -n 1; }

# Fails when the machine did not reach the end, a check failed, or none was made.
judge() {
    local count passed failed
    count=$(countOf)
    read -r passed failed <<<"${count:-0 1}"
    addCount "$passed" "$failed"
    if [ ! -f "$out/status" ] || [ -z "$count" ]; then
        note "FAILED: the machine did not reach the end. The last lines of its console ($work/console.log):"
        tail -n 40 "$work/console.log" | tr -d '\r'
        return 1
    fi
    [ "$(cat "$out/status")" = 0 ] && [ "$failed" = 0 ] && [ "$passed" -gt 0 ]
}

[ "$(uname -m)" = x86_64 ] ||
    cannotRun "the emulated machine is an x86_64, and this $(uname -m) builds no programs for it."
needPrograms
unpackKernel
packInitramfs
bootMachine
judge
