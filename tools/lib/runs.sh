# shellcheck shell=bash
# A run is the programs of one build under one Wine. It is called as the build, with "-wine10" behind it where Wine 10 is
# asked for by its number. Its results are in build/ARCH/results, or build/ARCH/results-wine10. Source it after
# debian-root.sh; do not run it.

arch_of() { printf '%s' "${1%-wine*}"; }

folder_of() { printf 'results%s' "${1#"$(arch_of "$1")"}"; }

results_of() { printf '%s/%s/%s' "$build" "$(arch_of "$1")" "$(folder_of "$1")"; }

# suite_of RUN: the Debian whose Wine it asks for.
suite_of() {
    if [[ $1 == *-wine* ]]; then
        printf '%s' "${suite_with_wine[${1##*-wine}]}"
    else
        printf '%s' "$own_suite"
    fi
}

# root_of RUN: nothing where it needs none.
root_of() { [ "$1" = native-asan ] || root_for "$(arch_of "$1")" "$(suite_of "$1")"; }

# roots_of RUN...: each root once.
roots_of() {
    local run
    for run; do
        root_of "$run"
        say
    done | sort -u | grep . || true
}

# root_packages RUN...: what must be installed to make their roots; nothing where they cannot be made.
root_packages() { [ -z "$(roots_of "$@")" ] || ! become_root_possible || say debootstrap; }

# reason_against RUN: the file with why its root cannot be used.
reason_against() { printf '%s/%s.skipped' "$build" "$(root_of "$1")"; }

can_run() { [ -z "$(root_of "$1")" ] || [ ! -s "$(reason_against "$1")" ]; }

# prepare_roots RUN...: all at once. Leaves the reason where one cannot be used.
prepare_roots() {
    local root
    for root in $(roots_of "$@"); do
        root_prepare "$root" >"$build/$root.skipped" &
    done
    wait
}
