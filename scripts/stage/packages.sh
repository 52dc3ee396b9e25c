#!/usr/bin/env bash
# Makes the Debian packages and looks at what is in them. Ends with 77 where there is no Debian.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck disable=SC2034  # program.sh builds there: what ./run starts, and no second copy of it
runDirectory=build/run
for piece in say system program; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

if isMac; then
    note "Debian packages are made on Debian."
    exit 77
fi
rm -f "$runDirectory"/*.deb
withTests OFF
buildProgram package
exec tests/packaging/check_packages.sh "$runDirectory"
