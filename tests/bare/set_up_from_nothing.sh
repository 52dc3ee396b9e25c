#!/usr/bin/env bash
# set_up_from_nothing.sh FOLDER: proves, on bare Debian 12 systems below FOLDER, what the README promises to whoever has
# nothing yet: that ./run and ./test quick install what they need and pass, and that the Debian package installs, starts
# and goes again.
#
# Needs root, debootstrap, and the mirror that this machine's own apt uses. Takes half an hour and 8 GB; FOLDER must not
# exist yet and is left behind, to be looked at. What is cloned is what is committed.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for piece in say count; do
    # shellcheck source=/dev/null
    . "$here/../../scripts/$piece.sh"
done
[ $# = 1 ] || die "usage: set_up_from_nothing.sh FOLDER"
[ "$(id -u)" = 0 ] || die "a bare system can be made by root only."
[ ! -e "$1" ] || die "$1 is there already."
command -v debootstrap >/dev/null || die "debootstrap is missing (package debootstrap)."
mkdir -p "$1"
folder=$(cd "$1" && pwd)
checkout=/root/vexa-lumo-65
passed=0 failed=0

# The address of Debian 12 among this machine's own.
# shellcheck disable=SC2016  # fields of apt's
mirror() {
    apt-get indextargets --format '$(CODENAME) $(COMPONENT) $(REPO_URI)' | sed -n 's/^bookworm main //p' | sed -n 1p
}

makeSystem() {
    local address
    address=$(mirror)
    [ -n "$address" ] || die "this machine's apt knows no mirror of Debian 12."
    debootstrap --variant=minbase bookworm "$1" "$address"
    cp /etc/resolv.conf /etc/hosts "$1/etc/"
}

# inside SYSTEM COMMAND…: runs a shell command there. Mounts and processes go with it.
inside() {
    # shellcheck disable=SC2016  # for the shell inside
    unshare --mount --pid --fork --kill-child env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root TERM=dumb sh -c '
        mount -t proc proc "$1/proc" && mount --rbind /sys "$1/sys" && mount --rbind /dev "$1/dev" &&
            exec chroot "$1" bash -ec "$2"' inside "$1" "$2" </dev/null
}

# check WHAT COMMAND [ARGUMENT…]
check() {
    local what=$1
    shift
    say "$what"
    if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)) && note "FAILED: $what"; fi
}

startsAndLeavesPicture() { inside "$folder/source" "cd $checkout && ./run" && [ -s "$folder/source$checkout/build/run/pictures/vexa-lumo-65.png" ]; }

givePackage() { cp "$folder/source$checkout"/build/run/vexa-lumo-65_*.deb "$folder/user/root/package.deb"; }

# shellcheck disable=SC2016  # for the shell inside
installsAndStarts() {
    givePackage && inside "$folder/user" '
        apt-get -q update
        DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends /root/package.deb
        code=0
        QT_QPA_PLATFORM=offscreen timeout 10 vexa-lumo-65 || code=$?
        [ "$code" = 124 ]  # it was still there when its time was over'
}

# The launch is remembered in the home folder, which is the user's; a package takes nothing from there.
leavesNoTrace() {
    inside "$folder/user" 'DEBIAN_FRONTEND=noninteractive apt-get -q -y purge vexa-lumo-65
        rm -r /root/package.deb /root/.config/vexa-lumo-65' &&
        ! find "$folder/user" -xdev \( -name '*lumo65*' -o -name '*lumo-65*' \) | grep .
}

say "Making two bare systems"
makeSystem "$folder/source"
cp -a "$folder/source" "$folder/user"
git clone --quiet --no-hardlinks "$here/../.." "$folder/source$checkout"
check "./run sets up, builds, starts and leaves its picture" startsAndLeavesPicture
check "./test packages makes the packages" inside "$folder/source" "cd $checkout && ./test packages"
check "The package can be installed on a bare system, and the program starts" installsAndStarts
check "It can be removed without a trace" leavesNoTrace
check "./test quick sets up and passes" inside "$folder/source" "cd $checkout && ./test quick"
say "$passed passed, $failed failed"
[ "$failed" = 0 ]
