#!/usr/bin/env bash
# Installs what is missing, builds, and measures the editors under Wine against their baseline. See usage.
. "$(dirname "$0")/tools/lib/common.sh"
. "$project/tools/lib/screen.sh"
. "$project/tools/lib/debian-root.sh"
. "$project/tools/lib/runs.sh"

usage() {
    cat <<'TEXT'
Usage: ./bench.sh [--arch x64|x86] [--only TEXT] [--rounds N]
Installs the packages that are missing, builds, and measures the editors on x64 and x86 under Wine against a baseline:
bare dialogs with the same windows and rows. Prints tables, and leaves them in build/bench with all figures as JSON.
  --arch x64|x86     measure one architecture only
  --only TEXT        measure only the editors' cases whose name contains the text
  --rounds N         measure each case N times (default: 15)
  --help             show this text
Environment:
  QUORVANE_ROOTS     the folder to keep an i386 Debian in (default: build/roots)
TEXT
}

refuse() {
    usage >&2
    exit 2
}

arches=(x64 x86) only='' rounds=15
parse_options() {
    while [ $# -gt 0 ]; do
        case "$1 ${2:-}" in
        "--arch x64" | "--arch x86") arches=("$2") && shift ;;
        "--only "?*) only=$2 && shift ;;
        "--rounds "[1-9]*) rounds=$2 && shift ;;
        "--help "*) usage && exit ;;
        *) refuse ;;
        esac
        shift
    done
}

install_packages() {
    local packages=("${x64_packages[@]}")
    [[ " ${arches[*]} " != *" x86 "* ]] || packages+=("${x86_packages[@]}")
    mapfile -t -O "${#packages[@]}" packages < <(root_packages "${arches[@]}")
    install_missing "${packages[@]}"
}

# One architecture at a time: two at once would slow each other down.
measure() {
    local arch=$1
    start_screen
    trap stop_screen EXIT
    with_wine_of "$own_suite" "$arch" tools/lib/run-bench.sh "$arch" "$rounds" "$only"
    stop_screen
    trap - EXIT
}

machine_kind() {
    printf '%s cores, %s MiB of memory, %s\n\n' "$(nproc)" "$(awk '$1 == "MemTotal:" { print int($2 / 1024) }' /proc/meminfo)" \
        "$(wine --version 2>/dev/null)"
}

parse_options "$@"
install_packages
mkdir -p "$build/bench"
for arch in "${arches[@]}"; do
    build_preset "$arch" quorvane_bench
done
prepare_roots "${arches[@]}"
measured=()
for arch in "${arches[@]}"; do
    if ! can_run "$arch"; then
        say "Skipped: $arch, because $(cat "$(reason_against "$arch")")"
        continue
    fi
    say "Measuring $arch"
    measure "$arch"
    measured+=("$arch")
done
machine_kind
for arch in "${measured[@]}"; do
    cat "$build/bench/$arch.md"
done
