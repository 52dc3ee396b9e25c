#!/usr/bin/env bash
# checkList.sh SRC FILE...: every source file below SRC with code for macOS is one of the files.
set -euo pipefail
src=$1
shift
listed=$(printf '%s\n' "$@")
status=0
while IFS= read -r file; do
    if ! grep -qxF "$file" <<<"$listed"; then
        echo "$file has code for macOS: add it to tests/macos/compile/appleSources.cmake."
        status=1
    fi
done < <(grep -rlE 'Q_OS_MAC|__APPLE__|platform/macos/' "$src" --include='*.cpp' --include='*.mm')
for file in "$@"; do
    if [ ! -e "$file" ]; then
        echo "$file is listed in tests/macos/compile/appleSources.cmake and does not exist."
        status=1
    fi
done
exit "$status"
