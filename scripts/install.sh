# shellcheck shell=bash
# Finds what is missing, says so, installs it. Sourced after system.sh. Where nothing is missing, no package tool is
# called that could ask the network.

# Prints those of the given Debian packages that are not installed.
missingDebs() {
    local installed name
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null | sed -n 's/ installed$//p') || true
    for name in "$@"; do
        grep -qxF -- "$name" <<<"$installed" || printf '%s\n' "$name"
    done
}

missingFormulas() {
    local installed name
    installed=$(brew list --formula -1)
    for name in "$@"; do
        grep -qxF -- "$name" <<<"$installed" || printf '%s\n' "$name"
    done
}

# A list that is out of date is no reason to stop; a package that cannot be had is.
installDebs() {
    local lock="DPkg::Lock::Timeout=300"
    asRoot apt-get -q -o "$lock" update </dev/null || note "The package lists could not be renewed; trying with those at hand."
    asRoot env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o "$lock" install --no-install-recommends "$@" </dev/null ||
        die "these packages could not be installed: $*. Install them by hand, or check the network, and start again."
}

needDebs() {
    local missing
    command -v dpkg-query >/dev/null || die "this system ($(systemName)) has no Debian packages, and nothing else is supported besides macOS. Needed here are the equivalents of: $*"
    missing=$(missingDebs "$@" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    say "Installing with apt-get: $missing"
    # shellcheck disable=SC2086  # a list of names
    installDebs $missing
}

needFormulas() {
    local missing
    xcode-select -p >/dev/null 2>&1 || die "Apple's command line tools are missing: run xcode-select --install and start again."
    command -v brew >/dev/null || die "Homebrew is missing. With it, these would be installed: $*"
    missing=$(missingFormulas "$@" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    say "Installing with Homebrew: $missing"
    # shellcheck disable=SC2086  # a list of names
    brew install $missing || die "these could not be installed: $missing"
}
