# shellcheck shell=bash
# Which packages each purpose needs: the one table of them. Sourced after system.sh. One name a line.
#
# Debian 12 is what we try. Debian 13 and Ubuntu 24.04 differ in compiler versions only, by their package lists;
# nobody has run the commands there yet.

# Prints "LLVM-version GCC-version" of the system's default compilers: some packages have no unversioned name.
compilerVersions() {
    case "$(systemName)" in
        debian:12) echo "14 12" ;;
        debian:13) echo "19 14" ;;
        ubuntu:24.04) echo "18 13" ;;
        *) return 1 ;;
    esac
}

packagesToBuild() {
    printf '%s\n' cmake ninja-build g++ pkg-config qt6-base-dev qt6-svg-dev libudev-dev nlohmann-json3-dev
    # Beside what it is built with: a window on Wayland, too, its letters, and the one emoji among them.
    printf '%s\n' qt6-wayland fonts-inter fonts-noto-color-emoji
}

# A screen in memory, keys and pictures for it.
packagesForPicture() { printf '%s\n' xvfb xauth xdotool imagemagick; }

packagesToTest() {
    local llvm gcc
    read -r llvm gcc <<<"$1"
    printf '%s\n' libgtest-dev libgmock-dev libbenchmark-dev libumockdev-dev umockdev xvfb xauth dbus
    # The window as assistive technology sees it.
    printf '%s\n' at-spi2-core gir1.2-glib-2.0 python3-gi python3
    # Static checks, fuzzing, and the compile check of the Apple code against both standard libraries.
    printf '%s\n' clang clang-tidy clang-format llvm "libclang-rt-$llvm-dev" "libc++-$llvm-dev" "libc++abi-$llvm-dev"
    if [ "$(dpkg --print-architecture)" = amd64 ]; then
        printf '%s\n' "libstdc++-$gcc-dev-arm64-cross" libc6-dev-arm64-cross
    fi
}

# The real kernel: an emulated machine, what its first file system is packed with, and inside it a desktop with a
# screen in memory whose accessibility tree can be read.
packagesForKernel() {
    printf '%s\n' qemu-system-x86 qemu-system-data seabios busybox-static kmod cpio xz-utils udev
    printf '%s\n' strace xvfb xdotool libxtst6 dbus-daemon at-spi2-core gir1.2-glib-2.0 python3-gi python3
}

# Making the Debian packages, and what has an opinion about them.
packagesForPackages() { printf '%s\n' dpkg-dev file gzip fakeroot lintian desktop-file-utils appstream man-db; }

# Counting instructions.
packagesToMeasure() { printf '%s\n' valgrind; }

formulasToBuild() { printf '%s\n' cmake ninja pkg-config qt nlohmann-json; }

formulasToTest() { printf '%s\n' googletest google-benchmark; }
