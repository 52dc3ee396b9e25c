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
cmake --preset dev -DCMAKE_CXX_COMPILER=g++
cmake --build build/dev --parallel "$(jobCount)"
exec tests/vm/run_vm.sh build/dev build/kernel
