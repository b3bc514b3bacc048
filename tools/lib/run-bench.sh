#!/usr/bin/env bash
# run-bench.sh ARCH ROUNDS ONLY: measures a build under Wine, on the current DISPLAY. ONLY may be empty. Leaves the
# tables and all figures in build/bench. Runs on this system and inside a root.
. "$(dirname "$0")/common.sh"
. "$project/tools/lib/wine.sh"

arch=$1 rounds=$2 only=$3
# In seconds. Only a run that hangs takes that long.
limit=1800

fresh_prefix "$arch" "bench-$arch" wine-tests.reg
trap end_wine EXIT
cd "$build/$arch/bin"
timeout -k 10 "$limit" wine quorvane_bench.exe --title "$arch" --json "../../bench/$arch.json" --rounds "$rounds" \
    ${only:+--only "$only"} >"$build/bench/$arch.md" </dev/null || die "the measurement ended with status $?"
sed -i 's/\r$//' "$build/bench/$arch.md"
