#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. See usage.
. "$(dirname "$0")/tools/lib/common.sh"
. "$project/tools/lib/screen.sh"
. "$project/tools/lib/debian-root.sh"
. "$project/tools/lib/runs.sh"
. "$project/tools/lib/selection.sh"
. "$project/tools/lib/report.sh"

usage() {
    cat <<'TEXT'
Usage: ./test.sh [--arch x64|x86|x64-checked|native-asan] [--wine 8|10] [--filter PATTERN] [--seed N] [--long]
Installs the packages that are missing, builds, and runs every test under Wine: on x64, on x86, and in an x64 build
in which memory faults and undefined behaviour end the program. Tests that need no window also run natively under the
address sanitizer.
  --arch ARCH        run one of the four only
  --wine 8|10        run what runs under Wine under that of Debian 12 or 13, and leave the checks out
  --filter PATTERN   run only tests whose full name matches (a GoogleTest filter),
                     and leave the checks out
  --seed N           start seeded tests from this seed (default: 1; with --long a random one, which is printed)
  --long             repeat seeded tests for hours
  --help             show this text
Environment:
  QUORVANE_ROOTS     the folder to keep other Debian systems in (default: build/roots)
  CI=true            also run the tests of the editors on x64 under the other Debian's Wine, and count a skipped test as
                     a failure
TEXT
}

refuse() {
    usage >&2
    exit 2
}

arches=(x64 x86 x64-checked native-asan) wine="" filter='*' seed="" long="" runs=()
parse_options() {
    while [ $# -gt 0 ]; do
        case "$1 ${2:-}" in
        "--arch x64" | "--arch x86" | "--arch x64-checked" | "--arch native-asan") arches=("$2") && shift ;;
        "--wine 8" | "--wine 10") wine=$2 && shift ;;
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

# plan_runs: what runs under no Wine is left out where one is asked for.
plan_runs() {
    [ -z "$wine" ] || mapfile -t arches < <(printf '%s\n' "${arches[@]}" | grep -vx native-asan)
    [ ${#arches[@]} -gt 0 ] || refuse
    runs=("${arches[@]/%/${wine:+-wine$wine}}")
    ! shows_other_wine || runs+=("x64-wine$(other_wine)")
}

# shows_other_wine: a taste of it, where every change is tested.
shows_other_wine() { [ "${CI:-}" = true ] && [ -z "$wine" ] && [ "$filter" = '*' ] && [[ " ${arches[*]} " == *" x64 "* ]]; }

install_packages() {
    local packages=("${x64_packages[@]}" g++ clang clang-format clang-tidy lld python3)
    [[ " ${arches[*]} " != *" x86 "* ]] || packages+=("${x86_packages[@]}")
    mapfile -t -O "${#packages[@]}" packages < <(root_packages "${runs[@]}")
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

# Other Debian systems come over the network while the compilers work.
build_all() {
    local arch
    prepare_roots "${runs[@]}" &
    # A failing build must not leave it behind.
    trap 'wait' EXIT
    for arch in "${arches[@]}"; do
        build_arch "$arch"
    done
    wait
}

# programs_of RUN
programs_of() {
    if shows_other_wine && [[ $1 == *-wine* ]]; then
        say editor_tests
    else
        cat "$build/$(arch_of "$1")/programs.list"
    fi
}

# run_lane RUN LANE: on a screen of its own where windows open.
run_lane() {
    local arguments
    arguments=("$(arch_of "$1")" "$(folder_of "$1")" "$2" "$filter" "$seed" "$long")
    if [ "$1" = native-asan ]; then
        "$project/tools/lib/run-suite.sh" "${arguments[@]}"
        return
    fi
    start_screen
    trap stop_screen EXIT
    with_wine_of "$(suite_of "$1")" "$(arch_of "$1")" tools/lib/run-suite.sh "${arguments[@]}"
}

# prepare_results RUN
prepare_results() {
    local results
    results=$(results_of "$1")
    rm -rf "$results"
    mkdir -p "$results"
    programs_of "$1" | tee "$results/queue" >"$results/programs.list"
}

# run_all: of one run two programs at once, because few keep a processor busy; of several runs one each.
run_all() {
    local run lane lanes=(1) suites=()
    [ ${#runs[@]} -gt 1 ] || lanes=(1 2)
    for run in "${runs[@]}"; do
        prepare_results "$run"
        can_run "$run" || continue
        say "Running the tests on $run"
        for lane in "${lanes[@]}"; do
            run_lane "$run" "$lane" &
            suites+=($!)
        done
    done
    [ ${#suites[@]} -eq 0 ] || wait "${suites[@]}" || true
}

# start_checks: while the tests wait for windows, the processors have time to compile.
start_checks() {
    checks=""
    # Who asks for some tests or for a Wine asks for no check.
    [ "$filter$wine" = '*' ] || { say "With a filter or a Wine the checks are left out" && return; }
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
    ! can_run "${runs[0]}" || count_check "selection by filters" "$project/tools/checks/check-selection.sh" "${arches[0]}"
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
        { [[ " ${runs[*]} " == *" $arch "* ]] && can_run "$arch"; } || continue
        count_check "test kit for $arch" "$project/tools/checks/check-test-kit.sh" "$arch"
    done
}

# count_suites: leaves the number of test program cases in executed.
count_suites() {
    local run before=$((passed + failed))
    for run in "${runs[@]}"; do
        ! can_run "$run" || count_suite "$run"
    done
    executed=$((passed + failed - before))
    for run in "${runs[@]}"; do
        can_run "$run" || skip_suite "$run"
    done
}

# skip_suite RUN: what its programs ran on x64 they would have run here, too.
skip_suite() {
    local program count=0
    printf '\nSkipped: the tests on %s, because %s\n' "$1" "$(cat "$(reason_against "$1")")"
    while read -r program; do
        count=$((count + $(cases_run "$build/x64/results/$program.xml")))
    done <"$(results_of "$1")/programs.list"
    skipped=$((skipped + (count > 0 ? count : 1)))
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
plan_runs
install_packages
build_all
start_checks
run_all
finish_checks
count_suites
close_run
