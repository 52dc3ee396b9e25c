#!/usr/bin/env bash
# check_packages.sh FOLDER: looks at the two Debian packages in FOLDER, installs them into a scratch root and removes
# them again. Needs neither root nor the network, and touches nothing of this machine.
#
# Ends with 0 when every check passed, 1 otherwise.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for piece in say count; do
    # shellcheck source=/dev/null
    . "$here/../../scripts/$piece.sh"
done
[ $# = 1 ] || die "usage: check_packages.sh FOLDER"
source=$(cd "$here/../.." && pwd)
programPackage=$(ls "$1"/vexa-lumo-65_*.deb)
toolsPackage=$(ls "$1"/vexa-lumo-65-tools_*.deb)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
passed=0 failed=0

# check WHAT COMMAND [ARGUMENT…]: what the command says is shown when it fails.
check() {
    local what=$1
    shift
    if "$@" >"$scratch/said" 2>&1; then
        passed=$((passed + 1)) && note "PASS  $what"
    else
        failed=$((failed + 1)) && note "FAIL  $what" && cat "$scratch/said"
    fi
}

control() { dpkg-deb --field "$1" "$2"; }

# Full paths of what is no folder, sorted.
contentsOf() { dpkg-deb --fsys-tarfile "$1" | tar -t | sed -n 's|^\.\(/.*[^/]\)$|\1|p' | LC_ALL=C sort; }

artwork() { (cd "$source/vexa_lumo_macos/assets" && find . -name '*.png' | sed 's|^\.|/usr/share/vexa-lumo-65|'); }

hasContents() { diff <(contentsOf "$1") <(cat | LC_ALL=C sort); }

programContents() { { cat "$here/vexa-lumo-65.contents" && artwork; } | hasContents "$programPackage"; }

belongsToRoot() { ! dpkg-deb --contents "$1" | grep -vE '^(d|-)rw[x-]r-[x-]r-[x-] root/root '; }

hasNoLintianErrors() { lintian --allow-root --fail-on error "$1"; }

# What man has to say against a page goes to the console. Started in the folder of all manuals, as it is when installed.
manualsAreClean() {
    local page said
    for page in "$root"/usr/share/man/man1/*.1.gz; do
        said=$(cd "$root/usr/share/man" && man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
        [ -z "$said" ] || { echo "$page: $said" && return 1; }
    done
}

# The packages' scripts run outside the root, where there is no shell for them, and are told so. What the packages depend
# on is not there.
scratchDpkg() {
    PATH=$PATH:/usr/sbin:/sbin fakeroot dpkg --root="$root" --log="$scratch/dpkg.log" --force-depends \
        --force-script-chrootless --force-not-root "$@"
}

makeRoot() {
    mkdir -p "$root"/var/lib/dpkg/{info,updates}
    : >"$root/var/lib/dpkg/status"
}

# What the menu needs is where the entry says.
menuEntryIsWhole() {
    local entry=$root/usr/share/applications/com.vexalumo.lumo65.desktop
    [ -x "$root/usr/bin/$(sed -n 's/^Exec=//p' "$entry")" ] &&
        [ -f "$root/usr/share/icons/hicolor/48x48/apps/$(sed -n 's/^Icon=//p' "$entry").png" ]
}

iconsHaveTheirSizes() {
    local icon size
    for icon in "$root"/usr/share/icons/hicolor/*x*/apps/*.png; do
        size=${icon%/apps/*} && size=${size##*/}
        [[ $(file "$icon") == *"PNG image data, ${size%x*} x ${size#*x}, "* ]] || { echo "$icon" && return 1; }
    done
}

# udev looks for the program of a rule there, when it is given by its name alone.
ruleFindsItsProgram() {
    local name
    name=$(sed -n 's/^IMPORT{program}="\([^ ]*\) .*/\1/p' "$root/usr/lib/udev/rules.d/70-vexa-lumo-65.rules")
    [ "$("$root/usr/lib/udev/$name" /sys/no-such-device)" = VEXA_LUMO_65_INTERFACE=other ]
}

# dpkg's own records are all that may be left.
nothingIsLeft() { ! find "$root" -mindepth 1 -not -path "$root/var" -not -path "$root/var/lib*" | grep .; }

for package in "$programPackage" "$toolsPackage"; do
    check "lintian finds no error in ${package##*/}" hasNoLintianErrors "$package"
    check "everything in it belongs to root, who alone may write it" belongsToRoot "$package"
done
check "the program's package holds what it should, and nothing else" programContents
check "so does the developers'" hasContents "$toolsPackage" <"$here/vexa-lumo-65-tools.contents"
check "the menu entry is valid" desktop-file-validate "$source/packaging/linux/com.vexalumo.lumo65.desktop"
check "the metainfo is valid" appstreamcli validate --no-net "$source/packaging/linux/com.vexalumo.lumo65.metainfo.xml"
check "the metainfo tells the version of the package" \
    grep -qF "<release version=\"$(control "$programPackage" Version)\"" "$source/packaging/linux/com.vexalumo.lumo65.metainfo.xml"
makeRoot
check "both packages can be installed" scratchDpkg --install "$programPackage" "$toolsPackage"
check "the menu entry names a program and an icon that are there" menuEntryIsWhole
check "the icons have the sizes of their folders" iconsHaveTheirSizes
check "the udev rule finds its program" ruleFindsItsProgram
check "the manual pages can be set" manualsAreClean
check "both packages can be removed" scratchDpkg --remove vexa-lumo-65-tools vexa-lumo-65
check "nothing is left of them" nothingIsLeft
addCount "$passed" "$failed"
note "$passed passed, $failed failed"
[ "$failed" = 0 ]
