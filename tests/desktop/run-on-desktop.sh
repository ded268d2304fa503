#!/usr/bin/env bash
# run-on-desktop.sh <program> [argument...]: runs a program on a display and under a window manager of its own.
set -euo pipefail

work=$(mktemp -d)
end_desktop() {
    jobs -p | xargs --no-run-if-empty kill 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap end_desktop EXIT

wait_for_file() {
    for _ in {1..300}; do
        [[ -s $1 ]] && return
        sleep 0.1
    done
    echo "$2 does not start:" >&2
    cat "$work/log" >&2
    return 1
}

Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp 3>"$work/display" 2>>"$work/log" &
wait_for_file "$work/display" Xvfb
DISPLAY=:$(<"$work/display")
export DISPLAY
unset WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$work

HOME=$work openbox --sm-disable --startup "sh -c 'echo ready >$work/ready'" >>"$work/log" 2>&1 &
wait_for_file "$work/ready" openbox

"$@"
