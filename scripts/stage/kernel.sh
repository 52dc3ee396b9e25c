#!/usr/bin/env bash
# Boots a real kernel with an emulated keyboard and runs the tests that need it. Ends with 77 where the emulator or
# the kernel cannot be had.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

if isMac; then
    note "The real kernel is Linux's; it is run on Linux."
    exit 77
fi
# What users install, and in an emulated machine only that is quick enough to paint the keyboard at every frame.
cmake --preset release -DCMAKE_CXX_COMPILER=g++
cmake --build build/release --parallel "$(jobCount)" --target vexa-lumo-65 lumo-fault-matrix \
    lumo-usbip-keyboard lumo-uhid-keyboard
exec tests/vm/run_vm.sh build/release build/kernel
