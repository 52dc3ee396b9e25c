# shellcheck shell=bash
# Debian's kernel and its modules, unpacked beside the build and never installed. Sourced by run_vm.sh, with work and
# cannotRun set. Sets kernelTree and kernelRelease.
: "${work:?}"

kernelTree=
kernelRelease=

# The versioned package that the name without a version stands for; nothing when the package lists do not know it.
kernelPackage() {
    apt-cache depends linux-image-amd64 2>/dev/null |
        sed -n 's/^ *Depends: \(linux-image-[0-9][^ ]*\)$/\1/p' | sed -n 1p || true
}

# Also without the network a kernel unpacked earlier will do.
newestUnpacked() {
    local stamp
    # shellcheck disable=SC2012  # names of our own making
    stamp=$(ls -t "$work"/linux-image-*/complete 2>/dev/null | sed -n 1p)
    [ -z "$stamp" ] || basename "$(dirname "$stamp")"
}

# Started as root, apt would first try as its own user, who may not be able to enter this folder.
fetchKernel() {
    note "Fetching $1, which is unpacked and not installed"
    (cd "$kernelTree" && apt-get -q -o APT::Sandbox::User="$(id -un)" download "$1" </dev/null) ||
        cannotRun "the package $1 could not be downloaded; check the network, or apt-get update."
}

# The kernel as the compressor found it. An emulated processor starts that faster than the packed one, whose
# decompressor it would have to run. Offsets: the x86 boot protocol's setup_sects, payload_offset, payload_length.
unwrapKernel() {
    local image=$1 sectors offset length
    sectors=$(od -An -tu1 -j $((0x1f1)) -N 1 "$image")
    offset=$(od -An -tu4 -j $((0x248)) -N 4 "$image")
    length=$(od -An -tu4 -j $((0x24c)) -N 4 "$image")
    length=$((length - 4))  # the unpacked size follows
    head -c $(((sectors + 1) * 512 + offset + length)) "$image" | tail -c "$length" | xz -dc
}

unpackKernel() {
    local package
    package=$(kernelPackage)
    package=${package:-$(newestUnpacked)}
    [ -n "$package" ] || cannotRun "the package lists name no kernel (linux-image-amd64); apt-get update may help."
    kernelTree=$work/$package
    kernelRelease=${package#linux-image-}
    [ ! -f "$kernelTree/complete" ] || return 0
    rm -rf "$kernelTree"
    mkdir -p "$kernelTree"
    fetchKernel "$package"
    dpkg-deb -x "$kernelTree"/*.deb "$kernelTree"
    rm "$kernelTree"/*.deb
    [ -d "$kernelTree/lib" ] || ln -s usr/lib "$kernelTree/lib"  # newer packages have no other place for modules
    depmod -b "$kernelTree" "$kernelRelease"
    unwrapKernel "$kernelTree/boot/vmlinuz-$kernelRelease" >"$kernelTree/vmlinux" ||
        cannotRun "this kernel is packed in a way that is not known here."
    touch "$kernelTree/complete"
}
