# shellcheck shell=bash
# The emulated machine. Sourced by run_vm.sh, after kernel.sh and initramfs.sh, with work and out set.
: "${work:?}" "${out:?}" "${kernelTree=}" "${kernelRelease=}"

# Emulation on a busy machine is slow; a machine that stands still is none the less found.
kMachineSeconds=${LUMO_VM_SECONDS:-1200}

# This machine's files are shared read-only; only $out can be written from inside.
runQemu() {
    qemu-system-x86_64 -accel tcg,thread=multi -cpu max -M q35 -smp 2 -m 2048 \
        -nodefaults -no-user-config -display none -no-reboot -nic none \
        -kernel "$kernelTree/vmlinux" -initrd "$work/initrd.cpio" \
        -append "console=ttyS0 quiet panic=-1 random.trust_cpu=on mitigations=off nokaslr no_timer_check audit=0" \
        -serial "file:$work/console.log" \
        -virtfs local,path=/,mount_tag=hostroot,security_model=none,readonly=on,multidevs=remap \
        -virtfs "local,path=$out,mount_tag=out,security_model=none,multidevs=remap" </dev/null &
    qemuPid=$!
}

stopQemu() {
    kill "$qemuPid" 2>/dev/null || true
    wait "$qemuPid" 2>/dev/null || true
}

# Shows the checks as they are made, until the machine is switched off.
followReport() { tail -n +1 -s 0.2 -f --pid="$qemuPid" "$out/report.txt"; }

bootMachine() {
    local code=0 end=$((SECONDS + kMachineSeconds)) follower
    rm -rf "$out" "$work/console.log"
    mkdir -p "$out"
    : >"$out/report.txt"
    : >"$work/console.log"
    note "Starting $kernelRelease in an emulated machine"
    runQemu
    trap stopQemu EXIT
    followReport &
    follower=$!
    while kill -0 "$qemuPid" 2>/dev/null && [ "$SECONDS" -lt "$end" ]; do sleep 0.5; done
    if kill -0 "$qemuPid" 2>/dev/null; then
        note "The machine was still running after $kMachineSeconds seconds and has been stopped."
        stopQemu
    fi
    wait "$qemuPid" 2>/dev/null || code=$?
    trap - EXIT
    wait "$follower" || true
    [ "$code" = 0 ] || note "The emulator ended with status $code."
}
