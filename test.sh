#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. See usage.
. "$(dirname "$0")/tools/lib/common.sh"
. "$project/tools/lib/screen.sh"
. "$project/tools/lib/x86-root.sh"
. "$project/tools/lib/selection.sh"
. "$project/tools/lib/report.sh"

usage() {
    cat <<'TEXT'
Usage: ./test.sh [--arch x64|x86|x64-checked|native-asan] [--filter PATTERN] [--seed N] [--long]
Installs the packages that are missing, builds, and runs every test under Wine: on x64, on x86, and in an x64 build
in which memory faults and undefined behaviour end the program. Tests that need no window also run natively under the
address sanitizer.
  --arch ARCH        run one of the four only
  --filter PATTERN   run only tests whose full name matches (a GoogleTest filter),
                     and leave the checks out
  --seed N           start seeded tests from this seed (default: 1; with --long a random one, which is printed)
  --long             repeat seeded tests for hours
  --help             show this text
Environment:
  QUORVANE_X86_ROOT  the folder to keep the i386 system in (default: build/x86-root)
  CI=true            count a skipped test as a failure
TEXT
}

refuse() {
    usage >&2
    exit 2
}

arches=(x64 x86 x64-checked native-asan) filter='*' seed="" long=""
parse_options() {
    while [ $# -gt 0 ]; do
        case "$1 ${2:-}" in
        "--arch x64" | "--arch x86" | "--arch x64-checked" | "--arch native-asan") arches=("$2") && shift ;;
        "--filter "?*) filter=$2 && shift ;;
        "--seed "?*) seed=$2 && shift ;;
        "--long "*) long=true ;;
        "--help "*) usage && exit ;;
        *) refuse ;;
        esac
        shift
    done
    [[ -z $seed || $seed =~ ^[0-9]+$ ]] || refuse
    [ -z "$long" ] || seed=${seed:-$((RANDOM * 32768 + RANDOM))}
    [ -z "$seed" ] || say "Seed: $seed"
}

tests_x86() { [[ " ${arches[*]} " == *" x86 "* ]]; }

install_packages() {
    local packages=("${x64_packages[@]}" g++ clang clang-format clang-tidy lld python3)
    ! tests_x86 || packages+=("${x86_packages[@]}")
    ! tests_x86 || system_has_wine32 || packages+=(debootstrap)
    install_missing "${packages[@]}"
}

# build_arch ARCH: leaves the programs to run in build/ARCH/programs.list; with a filter, those that it can concern.
build_arch() {
    local programs=$build/$1/programs.list targets=(all)
    configure_preset "$1"
    if [ "$filter" != '*' ]; then
        programs_for "$1" "$filter" >"$programs"
        mapfile -t targets <"$programs"
        say "Programs that the filter can concern on $1: ${targets[*]}"
    else
        cp "$build/$1/tests.list" "$programs"
        # Built so that it keeps compiling; ./bench.sh runs it.
        [[ $1 != x64 && $1 != x86 ]] || targets+=(quorvane_bench)
    fi
    build_targets "$1" "${targets[@]}"
}

# The i386 system comes over the network while the compilers work.
build_all() {
    local arch preparing=''
    if tests_x86; then
        x86_prepare >"$build/x86-skipped" &
        preparing=$!
        # A failing build must not leave it behind.
        trap 'wait' EXIT
    fi
    for arch in "${arches[@]}"; do
        build_arch "$arch"
    done
    x86_usable=true
    [ -z "$preparing" ] || wait "$preparing" || x86_usable=false
}

can_run() { [ "$1" != x86 ] || $x86_usable; }

# run_lane ARCH LANE: on a screen of its own where windows open.
run_lane() {
    if [ "$1" = native-asan ]; then
        "$project/tools/lib/run-suite.sh" "$1" "$2" "$filter" "$seed" "$long"
        return
    fi
    start_screen
    trap stop_screen EXIT
    if [ "$1" = x86 ] && ! system_has_wine32; then
        x86_enter "$(id -u):$(id -g)" bash /quorvane/tools/lib/run-suite.sh x86 "$2" "$filter" "$seed" "$long"
    else
        "$project/tools/lib/run-suite.sh" "$1" "$2" "$filter" "$seed" "$long"
    fi
}

# run_all: of one build two programs at once, because few keep a processor busy; of several builds one each.
run_all() {
    local arch lane lanes=(1) suites=()
    [ ${#arches[@]} -gt 1 ] || lanes=(1 2)
    for arch in "${arches[@]}"; do
        rm -rf "$build/$arch/results"
        can_run "$arch" || continue
        mkdir -p "$build/$arch/results"
        cp "$build/$arch/programs.list" "$build/$arch/results/queue"
        say "Running the tests on $arch"
        for lane in "${lanes[@]}"; do
            run_lane "$arch" "$lane" &
            suites+=($!)
        done
    done
    [ ${#suites[@]} -eq 0 ] || wait "${suites[@]}" || true
}

# start_checks: while the tests wait for windows, the processors have time to compile.
start_checks() {
    checks=""
    # A filter asks for tests, and no check is one.
    [ "$filter" = '*' ] || { say "With a filter the checks are left out" && return; }
    (count_checks >"$build/checks.log" && printf '%s %s\n' "$passed" "$failed" >"$build/checks.counts") &
    checks=$!
}

# finish_checks: adds what they counted, and a check of what has run.
finish_checks() {
    local good bad
    [ -n "$checks" ] || return 0
    wait "$checks" || die "the checks broke off, see $build/checks.log"
    cat "$build/checks.log"
    read -r good bad <"$build/checks.counts"
    passed=$((passed + good)) failed=$((failed + bad))
    ! can_run "${arches[0]}" || count_check "selection by filters" "$project/tools/checks/check-selection.sh" "${arches[0]}"
}

# skip_x86 COUNT: what ran on x64 would have run on x86.
skip_x86() {
    printf '\nSkipped: the tests on x86, because %s\n' "$(cat "$build/x86-skipped")"
    skipped=$((skipped + ($1 > 0 ? $1 : 1)))
}

count_checks() {
    local arch
    count_check "format of the sources" "$project/tools/checks/check-format.sh"
    count_check "keys of the language files" "$project/tools/checks/check-language-keys.sh"
    count_check "what is written from host/tables.txt" "$project/tests/tables/written-tables.py"
    count_check "includes between folders" "$project/tools/checks/check-includes.sh"
    count_check "planted includes" "$project/tests/includes/planted-includes.sh"
    [[ " ${arches[*]} " != *" x64 "* ]] || count_check "clang-tidy" "$project/tools/checks/check-tidy.sh"
    for arch in "${arches[@]}"; do
        [[ $arch == x64 || $arch == x86 ]] || continue
        count_check "broken tables for $arch" "$project/tests/tables/broken-headers.sh" "$arch"
        count_check "second build of Quorvane.dll for $arch" "$project/tools/checks/check-same-build.sh" "$arch"
        ! can_run "$arch" || count_check "test kit for $arch" "$project/tools/checks/check-test-kit.sh" "$arch"
    done
}

# count_suites: leaves the number of test program cases in executed.
count_suites() {
    local arch before
    local -A ran=()
    executed=0
    for arch in "${arches[@]}"; do
        before=$((passed + failed))
        ! can_run "$arch" || count_suite "$arch"
        ran[$arch]=$((passed + failed - before))
        executed=$((executed + ran[$arch]))
    done
    $x86_usable || skip_x86 "${ran[x64]:-0}"
}

# close_run: the closing line, and the status that it stands for.
close_run() {
    local counts="$passed passed, $failed failed" status=0
    [ "$failed" -eq 0 ] || status=1
    if [ "$skipped" -gt 0 ]; then
        counts+=", $skipped skipped"
        [ "${CI:-}" != true ] || { say "CI=true: a skipped test is a failure" && status=1; }
    fi
    [ "$executed" -gt 0 ] || { say "No test was run" && status=1; }
    say "$counts"
    exit "$status"
}

parse_options "$@"
install_packages
build_all
start_checks
run_all
finish_checks
count_suites
close_run
