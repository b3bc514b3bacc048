#!/usr/bin/env bash
# check-selection.sh ARCH: the name of every test that has run, taken as a filter, leads to the program that has it.
. "$(dirname "$0")/../lib/common.sh"
. "$project/tools/lib/selection.sh"

arch=$1 status=0 names=0

# names_in RESULTS: once for each that differs before its last slash.
names_in() {
    sed -nE 's/.*<testcase name="([^"]*)".* classname="([^"]*)".*/\2.\1/p' "$1" | sed -E 's|/[^/.]*$|/1|' | sort -u
}

while read -r program; do
    known=$(tests_of "$arch" "$program")
    while read -r name; do
        names=$((names + 1))
        may_match "$name" <<<"$known" || { say "$program: a filter \"$name\" passes it over" && status=1; }
    done < <(names_in "$build/$arch/results/$program.xml")
done <"$build/$arch/programs.list"
[ "$names" -gt 0 ] || die "no test has run on $arch"
exit "$status"
