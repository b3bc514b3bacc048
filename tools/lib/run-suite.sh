#!/usr/bin/env bash
# run-suite.sh ARCH FILTER SEED LONG: runs the test programs of a build under Wine, on the current DISPLAY, or natively
# if ARCH is native-asan. SEED and LONG may be empty. For each program it leaves NAME.log, NAME.xml and NAME.status (the
# exit status) in build/ARCH/results. Runs on this system and inside the i386 system.
. "$(dirname "$0")/common.sh"
. "$project/tools/lib/wine.sh"

arch=$1 filter=$2 seed=$3 long=$4
results=$build/$arch/results
# In seconds. Only a program that hangs takes that long.
limit=1800
[ -z "$seed" ] || export QUORVANE_SEED=$seed
[ -z "$long" ] || { export QUORVANE_LONG=$long && limit=86400; }

# run_program NAME
run_program() {
    local status=0 program=(wine "$1.exe")
    [ "$arch" != native-asan ] || program=("./$1")
    timeout -k 10 "$limit" "${program[@]}" --gtest_color=no "--gtest_filter=$filter" \
        "--gtest_output=xml:../results/$1.xml" >"$results/$1.log" 2>&1 </dev/null || status=$?
    printf '%s\n' "$status" >"$results/$1.status"
    say "$arch $1: ended with status $status"
}

if [ "$arch" != native-asan ]; then
    fresh_prefix "$arch" "$arch" wine-tests.reg
    trap end_wine EXIT
fi
mkdir -p "$results"
cd "$build/$arch/bin"
while read -r program; do
    run_program "$program"
done <"$build/$arch/tests.list"
