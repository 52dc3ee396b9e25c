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
# Each row as what differs from its left or from the one above: the forms that are read quickest, and no larger here.
find "$assets" -name '*.png' -exec optipng -quiet -force -nx -f1-2 -zc9 {} +
note "$(find "$assets" -name '*.png' | wc -l | tr -d ' ') pictures below $assets."
