#!/usr/bin/env bash
# run-suite.sh ARCH RESULTS LANE FILTER SEED LONG: runs test programs of a build under Wine, on the current DISPLAY, or
# natively if ARCH is native-asan; SEED and LONG may be empty. Lanes share the programs in build/ARCH/RESULTS/queue. For
# each program its lane leaves NAME.log, NAME.xml and NAME.status (its exit status) in build/ARCH/RESULTS. Runs on this
# system and inside a root alike.
. "$(dirname "$0")/common.sh"
. "$project/tools/lib/wine.sh"

arch=$1 folder=$2 lane=$3 filter=$4 seed=$5 long=$6
results=$build/$arch/$folder
# In seconds. Only a program that hangs takes that long.
limit=1800
[ -z "$seed" ] || export QUORVANE_SEED=$seed
[ -z "$long" ] || { export QUORVANE_LONG=$long && limit=86400; }

# next_program: takes one that no lane has taken; prints nothing where all are taken.
next_program() {
    (flock 9 && sed -n 1p "$results/queue" && sed -i 1d "$results/queue") 9>"$results/queue.lock"
}

# run_program NAME
run_program() {
    local status=0 program=(wine "$1.exe")
    [ "$arch" != native-asan ] || program=("./$1")
    timeout -k 10 "$limit" "${program[@]}" --gtest_color=no "--gtest_filter=$filter" \
        "--gtest_output=xml:../$folder/$1.xml" >"$results/$1.log" 2>&1 </dev/null || status=$?
    printf '%s\n' "$status" >"$results/$1.status"
    say "$arch/$folder $1: ended with status $status"
}

if [ "$arch" != native-asan ]; then
    fresh_prefix "$arch" "$arch-$lane" wine-tests.reg
    trap end_wine EXIT
fi
cd "$build/$arch/bin"
while next=$(next_program) && [ -n "$next" ]; do
    run_program "$next"
done
