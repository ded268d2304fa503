#!/usr/bin/env bash
# use-run.sh, given to run-on-desktop.sh: opens the application with ./run as a user does, on a folder of the user's own
# and on none, and leaves it with Ctrl+Q.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
checkout=$PWD
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Neither the question for usage data nor the tour.
mkdir -p "$work/settings/Velmo"
printf '[Telemetry]\nEnabled=1\n\n[tour]\ndontShow=true\n' >"$work/settings/Velmo/workstation.conf"
export XDG_CONFIG_HOME=$work/settings

# use <argument>...: from another folder, since a path is meant from where the user is.
use() {
    local run window=""
    (cd "$work" && exec "$checkout/run" "$@") &
    run=$!
    for _ in {1..3000}; do # it may have to be built
        window=$(xdotool search --onlyvisible --pid "$run" 2>/dev/null | head -n 1) || true
        [[ -z $window ]] || break
        kill -0 "$run"
        sleep 0.1
    done
    [[ -n $window ]]
    xdotool windowactivate --sync "$window"
    until ! kill -0 "$run" 2>/dev/null; do
        xdotool key ctrl+q
        sleep 0.5
    done
    wait "$run"
}

cp -r apps/workstation/projects "$work/my projects"
use "my projects"
rm -rf build/projects
use
diff -r apps/workstation/projects build/projects
echo "./run opens and closes."
