# shellcheck shell=bash
# What all scripts share. Source it; do not run it.

set -euo pipefail

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$project/build
export LANG=C.UTF-8

say() { printf '%s\n' "$*"; }

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# become_root_possible: whether as_root can work. Not every user may use sudo.
become_root_possible() { [ "$(id -u)" -eq 0 ] || { command -v sudo >/dev/null && sudo true 2>/dev/null; }; }

is_installed() { dpkg-query --show --showformat '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed; }

# install_missing PACKAGE...: prints nothing when all are installed.
install_missing() {
    local package missing=()
    for package; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    become_root_possible || die "these packages are missing, and this user is not root and may not use sudo: ${missing[*]}"
    say "Installing: ${missing[*]}"
    as_root apt-get update -q >"$build/apt.log" 2>&1 || die "apt-get update failed, see $build/apt.log"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" \
        >>"$build/apt.log" 2>&1 || die "apt-get install failed, see $build/apt.log"
}

# What is needed to build, run and look at the x64 library.
x64_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-x86-64-win32 googletest nlohmann-json3-dev
    wine wine64 fonts-wine fonts-wqy-microhei libxrender1 libxcursor1 libxi6 libxrandr2 xvfb)

# What the x86 library needs besides.
x86_packages=(g++-mingw-w64-i686-posix g++-mingw-w64-i686-win32)

# configure_preset PRESET: with a compiler cache where there is one. Two checkouts share what it holds.
configure_preset() {
    local launcher=${CMAKE_CXX_COMPILER_LAUNCHER:-$(command -v ccache || true)}
    export CCACHE_BASEDIR=$project CCACHE_SLOPPINESS=pch_defines,time_macros
    (cd "$project" && cmake --preset "$1" "-DCMAKE_C_COMPILER_LAUNCHER=$launcher" \
        "-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher" >"$build/$1-configure.log" 2>&1) ||
        die "$(cat "$build/$1-configure.log")"
}

# build_targets PRESET [TARGET...]: of a configured build.
build_targets() {
    local preset=$1 targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    say "Building $preset"
    (cd "$project" && cmake --build --preset "$preset" "${targets[@]}" >"$build/$preset-build.log" 2>&1) ||
        die "$(grep -v '^\[' "$build/$preset-build.log")"
}

# build_preset PRESET [TARGET...]
build_preset() {
    configure_preset "$1"
    build_targets "$@"
}

mkdir -p "$build"
