# shellcheck shell=bash
# A private X server of a fixed size. Source it; do not run it.

# start_screen: exports DISPLAY and sets screen_pid.
start_screen() {
    local folder number
    folder=$(mktemp -d)
    mkfifo "$folder/number"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -noreset -nolisten tcp 3>"$folder/number" >/dev/null 2>&1 &
    screen_pid=$!
    read -r -t 60 number <"$folder/number" || die "Xvfb did not start"
    rm -r "$folder"
    export DISPLAY=:$number
}

stop_screen() {
    kill "$screen_pid" 2>/dev/null || true
    wait "$screen_pid" 2>/dev/null || true
}
