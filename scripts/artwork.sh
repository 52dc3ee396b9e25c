#!/usr/bin/env bash
# Draws the pictures of vexa_lumo_macos/assets anew from the drawings in its svg/. For whoever changes a drawing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck disable=SC2034  # program.sh builds there
runDirectory=build/artwork
for piece in say system install program; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done
assets=vexa_lumo_macos/assets

if isMac; then needFormulas optipng; else needDebs optipng; fi
buildProgram lumo-artwork
tool=$(programPath lumo-artwork)
say "Drawing"
"$tool" "$assets"
# Rows as they are: read quickest, and smallest where areas are even. In the wheel no two pixels are alike: its rows as
# what differs from the pixel at the left.
find "$assets" -name '*.png' ! -name colorwheel.png -exec optipng -quiet -force -nx -f0 -zc9 {} +
optipng -quiet -force -nx -f1 -zc9 "$assets/colorwheel.png"
note "$(find "$assets" -name '*.png' | wc -l | tr -d ' ') pictures below $assets."
