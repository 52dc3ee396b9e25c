#!/usr/bin/env bash
# Makes the icons of the macOS bundle and of Linux desktops anew from the picture of the program. For whoever changes
# that picture: on Debian, after scripts/artwork.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
for piece in say system install; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done
picture=vexa_lumo_macos/assets/appicon.png
icon=packaging/macos/vexa-lumo-65.icns
desktopIcons=packaging/linux/icons
desktopSizes=(16 32 48 64 128 256 512)

# Kind and pixels of each PNG in the file. ic11 to ic14 are what a screen of scale 2 shows for 16, 32, 128 and 256
# points, ic10 is so for 512. A plain 16 the system scales itself.
elements=(ic11:32 ic12:64 ic07:128 ic13:256 ic08:256 ic14:512 ic09:512 ic10:1024)

bigEndian() { printf '%b' "$(printf '\\0%03o' $(($1 >> 24 & 255)) $(($1 >> 16 & 255)) $(($1 >> 8 & 255)) $(($1 & 255)))"; }

# chunk KIND FILE: the length counts the eight bytes before the contents.
chunk() {
    printf '%s' "$1"
    bigEndian $(($(wc -c <"$2") + 8))
    cat "$2"
}

# drawIcon PIXELS FILE
drawIcon() { convert "$picture" -resize "$1x$1" -strip "png32:$2"; }

needDebs imagemagick
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for element in "${elements[@]}"; do
    size=${element#*:}
    drawIcon "$size" "$folder/picture"
    chunk "${element%:*}" "$folder/picture" >>"$folder/contents"
done
chunk icns "$folder/contents" >"$icon"
note "$icon has ${#elements[@]} pictures."
mkdir -p "$desktopIcons"
for size in "${desktopSizes[@]}"; do drawIcon "$size" "$desktopIcons/$size.png"; done
note "$desktopIcons has ${#desktopSizes[@]} pictures."
