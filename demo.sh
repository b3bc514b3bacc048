#!/usr/bin/env bash
# Installs what is missing, builds the x64 library and shows it in the reference host. See usage.
. "$(dirname "$0")/tools/lib/common.sh"
. "$project/tools/lib/screen.sh"
. "$project/tools/lib/wine.sh"
. "$project/tools/demo/operator.sh"
. "$project/tools/demo/demo-roads.sh"

usage() {
    cat <<'TEXT'
Usage: ./demo.sh [--headless]
Installs the packages that are missing, builds, and opens the reference host on a sample machine.
  --headless   have a scripted operator make an edit in every editor, with mouse and keyboard on a screen of its own,
               and leave screenshots in build/demo. This is the default where no display can be reached.
  --help       show this text
TEXT
}

headless=false
case "$# ${1:-}" in
"0 ") ;;
"1 --headless") headless=true ;;
"1 --help") usage && exit ;;
*) usage >&2 && exit 2 ;;
esac

build_bin=$build/x64/bin
shots=$build/demo
machine=$shots/machine.json
before=$shots/machine-before.json

display_reachable() { [ -n "${DISPLAY:-}" ] && timeout 10 xdotool getdisplaygeometry >/dev/null 2>&1; }

prepare() {
    install_missing "${x64_packages[@]}" xdotool imagemagick jq
    build_preset x64 QuorvaneHost Quorvane window_probe
    rm -rf "$shots"
    mkdir "$shots"
    cp "$build_bin/samples/machine.json" "$machine"
    cp "$machine" "$before"
}

# start_host TAG: sets host_pid.
start_host() {
    (cd "$build_bin" && exec wine QuorvaneHost.exe --machine "$(winepath -w "$machine")" --lang "$1") &
    host_pid=$!
}

changes() { jq -n -r --slurpfile before "$before" --slurpfile after "$machine" -f "$project/tools/demo/changes.jq"; }

report_changes() {
    say "Changed in the machine file:"
    changes
}

for_a_person() {
    fresh_prefix x64 demo
    say "The reference host opens on $machine; close its window to end the demo."
    start_host en
    wait "$host_pid"
    report_changes
}

# end_host: by its close key, as a person would.
end_host() {
    press_key alt+F4
    until_true "the host to end" host_ended
}
host_ended() { ! kill -0 "$host_pid" 2>/dev/null; }

# visit TAG COMMAND...: does the command in one run of the host.
visit() {
    start_host "$1"
    "${@:2}"
    end_host
}

by_the_operator() {
    trap 'end_wine; stop_screen' EXIT
    start_screen
    fresh_prefix x64 demo wine-desktop.reg
    visit en tour en
    visit zh-CN tour zh-CN
    visit en job
    report_changes
    [ "$(changes)" = "$expected_changes" ] || die "these are not the changes that the operator made"
}

prepare
if ! $headless && display_reachable; then
    for_a_person
else
    by_the_operator
fi
