#!/usr/bin/env bash
# The machine's first process once the host's files are there: drivers, device manager, scenario, off.
set -uo pipefail
export PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
out=/mnt/lumo-out
files=/run/lumo-files
# shellcheck source=/dev/null
. $out/job
: "${lumoTests:?}" "${lumoBuild:?}" "${lumoKernel:?}" "${lumoFault=}" "${lumoFaultEvery=1}"

# Everything is in memory already; /tmp keeps the host's files, because the build may lie there.
mountSystem() {
    mount -t proc proc /proc
    mount -t sysfs sysfs /sys
    mkdir -p /dev/pts /dev/shm
    mount -t devpts devpts /dev/pts
    mount -t tmpfs -o mode=1777 tmpfs /dev/shm
    mount -t tmpfs -o mode=755 tmpfs /run
    ln -sfn /proc/self/fd /dev/fd
}

# The virtual host controller comes before the device manager, which would be busy with its root hubs otherwise.
loadDrivers() {
    local modules=/usr/lib/modules
    mkdir -p "$modules"
    mount --bind "$lumoKernel/lib/modules" "$modules"
    modprobe -a hid hid-generic uhid usbhid evdev vhci-hcd
}

# Debian's whole set of rules would cost seconds for each plug under emulation. Ours comes with a stand-in for the
# seat's session, which here is the user nobody: what is tagged for it becomes his.
startDeviceManager() {
    local rules=/run/lumo-rules
    mkdir -p $rules /etc/udev/rules.d
    cp /usr/lib/udev/rules.d/50-udev-default.rules /usr/lib/udev/rules.d/99-systemd.rules $rules
    mount --bind $rules /usr/lib/udev/rules.d
    mount -t tmpfs tmpfs /etc/udev/rules.d
    cp "$lumoTests/../../packaging/linux/70-vexa-lumo-65.rules" "$lumoTests/guest/73-seat.rules" /etc/udev/rules.d
    cp "$lumoBuild/bin/vexa-lumo-65-interface" /usr/lib/udev
    /usr/lib/systemd/systemd-udevd --daemon
    udevadm control --ping
}

# The checkout may lie where only its owner can look, as in /root; the program runs as somebody else. It lies as
# installed, its pictures beside it.
copyFiles() {
    local pictures=$files/share/vexa-lumo-65
    mkdir -p $files/bin $pictures
    cp "$lumoTests"/{guest,../assistive}/*.py "$lumoTests"/../../packaging/linux/post{inst,rm} $files
    cp "$lumoBuild"/bin/{vexa-lumo-65,lumo-{fault-matrix,uhid-keyboard,usbip-keyboard}} $files/bin
    cp -r "$lumoBuild/probe" $files
    cp -r "$lumoTests"/../../vexa_lumo_macos/assets/{*.png,skins} $pictures
    chmod -R a+rX $files
}

runScenario() {
    cd /tmp || return
    LUMO_BIN=$files/bin LUMO_FAULT=$lumoFault LUMO_FAULT_EVERY=$lumoFaultEvery PYTHONUNBUFFERED=1 PYTHONDONTWRITEBYTECODE=1 \
        LANG=C.UTF-8 /usr/bin/python3 $files/scenario.py >>$out/report.txt 2>&1
}

mountSystem
loadDrivers
startDeviceManager
copyFiles
runScenario
echo $? >$out/status
cp -r /run/lumo/. $out/ 2>/dev/null
dmesg >$out/kernel.txt
sync
busybox poweroff -f
