# shellcheck shell=bash
# Builds and finds the programs as users have them. Sourced after say.sh, in the root of the repository, with
# runDirectory set.
: "${runDirectory:?}"

# Warnings do not stop a user's build: a compiler newer than ours may have new ones.
configureProgram() {
    local prefix=()
    [ ! -f "$runDirectory/build.ninja" ] || return 0
    if isMac; then prefix=(-DCMAKE_PREFIX_PATH="$(brew --prefix qt)"); fi
    cmake --preset release -B "$runDirectory" -DBUILD_TESTING=OFF -DLUMO_STRICT=OFF ${prefix[@]+"${prefix[@]}"}
}

# withTests ON|OFF: whether the programs of the tests can be built there, too. A package is made of all that can be built.
withTests() {
    configureProgram
    cmake -B "$runDirectory" -DBUILD_TESTING="$1"
}

# buildProgram TARGET…
buildProgram() {
    say "Building $*"
    configureProgram
    cmake --build "$runDirectory" --target "$@" --parallel "$(jobCount)"
}

# On macOS a program may come as a bundle.
programPath() {
    local plain="$PWD/$runDirectory/bin/$1"
    if [ -x "$plain.app/Contents/MacOS/$1" ]; then plain="$plain.app/Contents/MacOS/$1"; fi
    [ -x "$plain" ] || die "the build left no program at $plain."
    printf '%s\n' "$plain"
}
