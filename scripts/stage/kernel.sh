#!/usr/bin/env bash
# Boots a real kernel with an emulated keyboard and runs the tests that need it. Ends with 77 where the emulator or
# the kernel cannot be had.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck disable=SC2034  # program.sh builds there: what ./run starts, and no second copy of it
runDirectory=build/run
for piece in say system program; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

if isMac; then
    note "The real kernel is Linux's; it is run on Linux."
    exit 77
fi
# What users install, and in an emulated machine only that is quick enough to paint the keyboard at every frame.
withTests ON
buildProgram vexa-lumo-65 vexa-lumo-65-interface lumo-fault-matrix lumo-usbip-keyboard lumo-uhid-keyboard \
    lumo-turn-probe
exec tests/vm/run_vm.sh "$runDirectory" build/kernel
