#!/usr/bin/env bash
# Every source file is formatted the way .clang-format says.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say count llvm; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

sources() { find src tools tests bench -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.mm' -o -name '*.m' \); }

tool=$(findLlvmTool clang-format)
if sources | tr '\n' '\0' | xargs -0 "$tool" --dry-run --Werror; then
    addCount 1 0
    note "$(sources | wc -l) files, all as .clang-format says."
else
    addCount 0 1
    die "run $tool -i over the files named above."
fi
