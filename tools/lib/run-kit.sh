#!/usr/bin/env bash
# run-kit.sh ARCH: runs every test kit in build/ARCH/kits under Wine, on the current DISPLAY, from a fresh drive C. The
# file "arguments" in a kit has one argument of its run.cmd in each line. Leaves log, status and report.html in the kit.
# Runs on this system and inside a root alike.
. "$(dirname "$0")/common.sh"
. "$project/tools/lib/wine.sh"

arch=$1
kits=$build/$arch/kits

# run_kit FOLDER: as if typed at a prompt, with no keyboard to answer a question.
run_kit() {
    local arguments=() status=0
    mapfile -t arguments <"$1/arguments"
    (cd "$1" && exec wine cmd /c run.cmd "${arguments[@]}" >log 2>/dev/null </dev/null) || status=$?
    say "$status" >"$1/status"
}

fresh_prefix "$arch" "$arch-kit" wine-tests.reg
trap end_wine EXIT
on_drive="$WINEPREFIX/drive_c/test kits"
cp -r "$kits" "$on_drive"
for kit in "$on_drive"/*; do
    run_kit "$kit"
    cp "$kit"/{log,status,report.html} "$kits/${kit##*/}" || die "$(cat "$kit/log")"
done
