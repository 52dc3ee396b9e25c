# shellcheck shell=bash
# The machine's first file system: just enough to reach this machine's files. Sourced by run_vm.sh, after kernel.sh,
# with work, build and here set. Writes $work/initrd.cpio.
: "${work:?}" "${build:?}" "${here:?}" "${kernelTree=}"

# What reaching the files takes, each after what it needs.
bootModules=(virtio_ring virtio virtio_pci_modern_dev virtio_pci_legacy_dev virtio_pci
    9pnet 9pnet_virtio netfs fscache 9p overlay)

# Debian 12 keeps modules plain; newer systems pack them, and busybox cannot load those.
copyModule() {
    local found
    found=$(find "$kernelTree/lib/modules/" -name "$1.ko*" -print -quit)
    case "$found" in
        *.ko) cp "$found" "$2/$1.ko" ;;
        *.ko.xz) xz -dc "$found" >"$2/$1.ko" ;;
        '') note "This kernel has $1 built in, or does without." ;;
        *) cannotRun "this kernel's modules are packed in a way that is not known here." ;;
    esac
}

# Paths may have blanks: the machine reads them from a file, not from its command line.
writeJob() {
    printf 'lumoTests=%q\nlumoBuild=%q\nlumoKernel=%q\n' "$here" "$build" "$kernelTree"
    printf 'lumoModules=%q\nlumoFault=%q\n' "${bootModules[*]}" "${LUMO_VM_FAULT:-}"
    printf 'lumoFaultEvery=%q\n' "${LUMO_VM_FAULT_EVERY:-20}"
}

packInitramfs() {
    local root=$work/initramfs module
    rm -rf "$root"
    mkdir -p "$root/bin" "$root/modules" "$root/proc" "$root/dev" "$root/host" "$root/memory" "$root/root"
    cp "$(command -v busybox)" "$root/bin/busybox"
    install -m 755 "$here/guest/init" "$root/init"
    for module in "${bootModules[@]}"; do copyModule "$module" "$root/modules"; done
    writeJob >"$root/job"
    (cd "$root" && find . | cpio --quiet -o -H newc) >"$work/initrd.cpio"
}
