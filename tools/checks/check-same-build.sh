#!/usr/bin/env bash
# check-same-build.sh PRESET: builds the DLL a second time, from a copy of the sources in another folder. It must be
# equal to the one in build/PRESET, byte for byte.
. "$(dirname "$0")/../lib/common.sh"

preset=$1
again=$build/again/$preset
# A compile cache would compare a build with itself.
export CCACHE_DISABLE=1
unset CMAKE_CXX_COMPILER_LAUNCHER CMAKE_C_COMPILER_LAUNCHER

# What a commit of the current state would hold.
copy_sources() {
    rm -rf "$again"
    mkdir -p "$again"
    (cd "$project" && git -c safe.directory="$project" ls-files -z --cached --others --exclude-standard |
        while IFS= read -r -d '' file; do [ ! -e "$file" ] || printf '%s\0' "$file"; done |
        tar -c --null -T - | tar -x -C "$again")
}

build_again() {
    cd "$again"
    cmake --preset "$preset"
    cmake --build --preset "$preset" --target Quorvane
}

copy_sources
build_again >"$again.log" 2>&1 || die "$(cat "$again.log")"
cmp "$build/$preset/bin/Quorvane.dll" "$again/build/$preset/bin/Quorvane.dll"
