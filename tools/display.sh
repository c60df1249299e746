# shellcheck shell=bash
# A virtual display with a window manager. To be sourced after setup.sh, under `set -euo pipefail`.
# shellcheck source=tools/setup.sh
: "${logs:?setup.sh comes first}"

display_processes=()

stop_display() {
    # The window manager first: without its display it would complain.
    local process
    for process in "${display_processes[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    display_processes=()
}

# start_display: sets DISPLAY to a display of its own, ready with its window manager. The caller
# ends it with stop_display, also when this fails.
start_display() {
    local server manager number ready=""
    mkdir -p "$logs"
    # Both tell on a pipe when they are ready, so that nothing has to sleep or guess.
    exec {server}< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp \
        2>"$logs/display.log")
    display_processes=("$!")
    read -r -t 60 number <&"$server" || fail "the virtual display does not start: $logs/display.log"
    export DISPLAY=:$number
    exec {manager}< <(exec openbox --sm-disable --startup "echo ready" 2>>"$logs/display.log")
    display_processes=("$!" "${display_processes[@]}")
    # Its own messages come the same way.
    until [[ $ready == ready ]]; do
        read -r -t 60 ready <&"$manager" ||
            fail "the window manager does not start: $logs/display.log"
    done
}
