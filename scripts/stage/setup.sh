#!/usr/bin/env bash
# setup.sh quick|vm|packages|long|measure|full: installs what the stages of that mode need.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
for piece in say system packages install; do
    # shellcheck source=/dev/null
    . "scripts/$piece.sh"
done

packagesForMode() {
    local versions
    versions=$(compilerVersions) || die "./test knows Debian 12 and 13 and Ubuntu 24.04; this is $(systemName)."
    packagesToBuild
    packagesToTest "$versions"
    packagesForPicture
    case "$1" in full | packages) packagesForPackages ;; esac
    case "$1" in measure) packagesToMeasure ;; esac
}

# Without an emulator the real kernel is left out, and the whole run ends as incomplete; that is for its stage to say.
installKernelPackages() {
    # shellcheck disable=SC2046  # a list of names
    (needDebs $(packagesForKernel)) || note "The emulated machine could not be installed."
}

if isMac; then
    # shellcheck disable=SC2046  # lists of names
    needFormulas $(formulasToBuild) $(formulasToTest)
    exit 0
fi
packages=$(packagesForMode "$1")
# shellcheck disable=SC2086  # a list of names
needDebs $packages
case "$1" in full | vm | long) installKernelPackages ;; esac
note "Everything needed is installed."
