#!/usr/bin/env bash
# visit.sh DEMO VISIT: one visit to the demo's window by way of the accessibility bus (visit.py), on a screen, a session
# bus and folders of its own: keys are pressed on that screen, and nobody else's window shall get them.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for piece in say display private; do
    # shellcheck source=/dev/null
    . "$here/../../scripts/$piece.sh"
done

cleanUp() {
    stopDisplay
    dropPrivateFolders
}

[ $# = 2 ] || die "usage: visit.sh DEMO VISIT"
trap cleanUp EXIT
usePrivateFolders
: "${privateFolders:?}"
startDisplay
unset AT_SPI_BUS_ADDRESS
export GSETTINGS_BACKEND=memory
dbus-run-session -- /usr/bin/python3 -B "$here/visit.py" "$1" "$2" "$privateFolders"
