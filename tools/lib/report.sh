# shellcheck shell=bash
# Sums up the results of run-suite.sh. Source it; do not run it.

passed=0 failed=0 skipped=0

# count_check NAME COMMAND...: counts a check that is not a test program as one test.
count_check() {
    local name=$1 text
    shift
    if text=$("$@" 2>&1); then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf '\nFAILED %s\n%s\n' "$name" "$text"
    fi
}

# count_suite RUN
count_suite() {
    local program results
    results=$(results_of "$1")
    while read -r program; do
        count_program "$1" "$program" "$results/$program"
    done <"$results/programs.list"
}

# cases_run XML: 0 where the file is missing.
cases_run() { cat "$1" 2>/dev/null | grep -c '<testcase .*status="run"' || true; }

# count_program RUN PROGRAM FILES
count_program() {
    local title="$1 $2" log=$3.log xml=$3.xml status
    status=$(cat "$3.status" 2>/dev/null || echo "none, it was never started")
    [ -e "$log" ] || : >"$log"
    sed -i 's/\r$//' "$log"
    if [ -s "$xml" ]; then
        count_finished "$title" "$xml" "$status"
    else
        count_broken_off "$title" "$log" "$status"
    fi
    print_failures "$title" "$log"
}

# count_finished TITLE XML STATUS
count_finished() {
    local run bad left
    run=$(cases_run "$2")
    left=$(grep -c '<testcase .*result="skipped"' "$2" || true)
    bad=$(sed -n 's/.*<testsuites .* failures="\([0-9]*\)".*/\1/p' "$2")
    if [ "$bad" -eq 0 ] && [ "$3" != 0 ]; then
        printf '\nFAILED %s: its tests passed, but it ended with status %s\n' "$1" "$3"
        failed=$((failed + 1))
    fi
    passed=$((passed + run - bad - left)) failed=$((failed + bad)) skipped=$((skipped + left))
}

# count_broken_off TITLE LOG STATUS: for a program that crashed or hung, so that it wrote no result.
count_broken_off() {
    local good bad last
    good=$(grep -c '^\[       OK \]' "$2" || true)
    bad=$(grep -c '^\[  FAILED  \] .* (' "$2" || true)
    last=$(sed -n 's/^\[ RUN      \] //p' "$2" | tail -n 1)
    printf '\nFAILED %s: it broke off with status %s (124 and 137: it hung); last test: %s\n' "$1" "$3" "${last:-none}"
    passed=$((passed + good)) failed=$((failed + bad + 1))
}

# print_failures TITLE LOG: prints the output of each test that failed, was skipped, or never ended.
print_failures() {
    awk -v title="$1" '
        /^\[ RUN      \]/ { text = ""; open = 1 }
        /^Modules:/ { open = -1 } # the rest of a back trace says nothing of the test
        open > 0 { text = text $0 "\n" }
        /^\[       OK \]/ { open = 0; text = "" }
        /^\[  (FAILED |SKIPPED) \]/ && open > 0 { printf "\n%s\n%s", title, text; open = 0; text = "" }
        END { if (open) printf "\n%s\n%s", title, text }
    ' "$2"
}
