#!/usr/bin/env bash
# checkProgramPath.sh SCRIPTS BUILD: ./run starts the executable inside the bundle.
set -euo pipefail
scripts=$1
runDirectory=${2##*/}
cd "${2%/*}"
for piece in say program; do
    # shellcheck source=/dev/null
    . "$scripts/$piece.sh"
done
path=$(programPath vexa-lumo-65)
expected=$PWD/$runDirectory/bin/vexa-lumo-65.app/Contents/MacOS/vexa-lumo-65
[ "$path" = "$expected" ] || die "it is $path, not $expected."
