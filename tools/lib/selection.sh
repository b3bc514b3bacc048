# shellcheck shell=bash
# Which test programs a filter can concern, told from the sources: what it cannot concern need not be built. Sourced,
# never run.

# programs_for ARCH FILTER: of a configured build; in doubt one program too many. All of them where no source has a test
# that matches.
programs_for() {
    local program found=""
    while read -r program; do
        ! may_match "$2" < <(tests_of "$1" "$program") || found+=$program$'\n'
    done <"$build/$1/tests.list"
    printf '%s\n' "${found:-$(cat "$build/$1/tests.list")}" | grep .
}

# tests_of ARCH PROGRAM: "SUITE.TEST" of every test in the sources that it is built from. What a macro of ours makes may
# have any name.
tests_of() {
    sources_of "$1" "$2" | tr '\n' ' ' |
        { grep -oP '\b(TEST(_F|_P)?|TYPED_TEST(_P)?)\(\s*\w+\s*,\s*\w+|\b(?!TYPED)[A-Z]+_TEST\(' || true; } |
        sed -E 's/^[A-Z]+_TEST\($/any/; s/.*\(\s*//; s/\s*,\s*/./' | sort -u
}

# sources_of ARCH PROGRAM: their text.
sources_of() {
    cd "$build/$1" || return
    ninja -t inputs "$2" | grep '\.cpp$' | grep -v '^/usr/' | xargs cat
}

# may_match FILTER: true if a pattern of the filter can match a test that is read.
may_match() {
    local tests patterns pattern test
    mapfile -t tests
    pattern=${1%%-*}
    IFS=: read -ra patterns <<<"${pattern:-*}"
    for pattern in "${patterns[@]}"; do
        pattern=$(core_of "$pattern")
        for test in "${tests[@]}"; do
            # shellcheck disable=SC2053
            [[ $test != $pattern && $test != any ]] || return 0
        done
    done
    return 1
}

# core_of PATTERN: the full name of a test can have more before the suite and after either name, split off by slashes.
core_of() {
    sed -E '/[.]/! s|.*/.*|*|; s|^[^.]*/([^./]*[A-Za-z*?][^./]*\.)|\1|; s|/[^/.]*(\.)|\1|; s|/[^/.]*$|*|; s|[0-9*?]*$|*|' <<<"$1"
}
