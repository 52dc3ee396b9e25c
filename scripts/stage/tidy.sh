#!/usr/bin/env bash
# Lets clang-tidy look at every file of the programs, as clang sees them. Nothing is built for it: no file of ours
# includes what a generator writes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system count llvm; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

# What Qt's generators will write is not ours to tidy.
files() {
    sed -n 's/^  "file": "\(.*\)",\{0,1\}$/\1/p' build/tidy/compile_commands.json | grep -v "^$PWD/build/" | sort -u
}

tool=$(findLlvmTool clang-tidy)
cmake --preset tidy -DBUILD_TESTING=OFF
[ "$(files | wc -l)" -gt 100 ] || die "build/tidy/compile_commands.json names too few files to be true."
# One file a process: all are looked at, whatever is found in one.
if files | xargs -d '\n' -P "$(jobCount)" -n 1 "$tool" -p build/tidy --quiet; then
    addCount 1 0
else
    addCount 0 1 && exit 1
fi
