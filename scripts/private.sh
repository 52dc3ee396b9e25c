# shellcheck shell=bash
# Folders of their own for programs under test. Sourced; whoever makes them calls dropPrivateFolders on exit.

privateFolders=

# Tests see no settings of the user's, and leave none; mocked devices listen on sockets below TMPDIR, whose paths
# must be short.
usePrivateFolders() {
    privateFolders=$(mktemp -d /tmp/lumo-XXXXXX)
    mkdir -m 700 "$privateFolders/run"
    export TMPDIR=/tmp XDG_RUNTIME_DIR="$privateFolders/run"
    export XDG_CONFIG_HOME="$privateFolders/config" XDG_CACHE_HOME="$privateFolders/cache"
    export XDG_DATA_HOME="$privateFolders/data"
}

dropPrivateFolders() {
    [ -n "$privateFolders" ] || return 0
    rm -rf "$privateFolders"
    privateFolders=
}
