#!/usr/bin/env bash
# Lets clang-tidy look at every file of the programs, as clang sees them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system count llvm; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

# Only what Qt's code generator writes is built: its headers are included. What it wrote itself is not ours to tidy.
files() {
    sed -n 's/^  "file": "\(.*\)",\{0,1\}$/\1/p' build/tidy/compile_commands.json | grep -v "^$PWD/build/" | sort -u
}

generatedHeaders() {
    cmake --build build/tidy --target help | sed -n 's/^\([A-Za-z0-9_-]*_autogen\): phony$/\1/p'
}

tool=$(findLlvmTool clang-tidy)
cmake --preset tidy -DBUILD_TESTING=OFF
# shellcheck disable=SC2046  # a list of names
cmake --build build/tidy --parallel "$(jobCount)" --target $(generatedHeaders)
[ "$(files | wc -l)" -gt 100 ] || die "build/tidy/compile_commands.json names too few files to be true."
# One file a process: what one file uses up is not missed by the next.
if files | xargs -d '\n' -P "$(jobCount)" -n 1 "$tool" -p build/tidy --quiet; then
    addCount 1 0
else
    addCount 0 1 && exit 1
fi
