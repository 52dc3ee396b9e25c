#!/usr/bin/env bash
# checkImports.sh NM LIST LINKED OBJECT...: what the objects import from the system is in the list, by where it lives,
# and every framework of the list is one the program is linked with. Mangled C++ names are our own, Qt's or the
# standard library's, and not looked at.
set -euo pipefail
nm=$1 list=$2 linked=$3
shift 3
status=0

allowed=$(sed 's/#.*//' "$list" | grep -v '^\[' | tr -d ' ' | sort -u)
imported=$("$nm" --just-symbol-name --undefined-only "$@" | grep '^_' | grep -v '^__Z' | sort -u)
if [ -z "$imported" ]; then
    echo "The objects import nothing: they cannot be the ones meant."
    exit 1
fi
while IFS= read -r symbol; do
    echo "$symbol is imported and not in $list."
    status=1
done < <(comm -13 <(echo "$allowed") <(echo "$imported"))
while IFS= read -r framework; do
    if ! grep -qF -- "-framework $framework\"" "$linked"; then
        echo "$framework is in $list, but $linked does not link it."
        status=1
    fi
done < <(sed -n 's/^\[framework \(.*\)\]$/\1/p' "$list")
exit "$status"
