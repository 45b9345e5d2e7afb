#!/usr/bin/env bash
# with_x_display.sh COMMAND [ARGUMENT...]: runs a command on an X display of its own, which shows
# nothing and has no window manager. Ends as the command does; 77 where the machine lacks Xvfb.
set -euo pipefail

command -v Xvfb >/dev/null || { echo "skipped: Xvfb is not installed"; exit 77; }

work=$(mktemp -d)
server=
stop() {
    # Until it has gone, its number is not free for another one.
    if [ -n "$server" ]; then
        kill "$server" 2>/dev/null || true
        wait "$server" || true
    fi
    rm -rf "$work"
}
trap stop EXIT

mkfifo "$work/number"
# Without -noreset the display starts anew, and refuses who comes meanwhile, whenever the last
# program has left it.
Xvfb -displayfd 3 -noreset -screen 0 1280x1024x24 -nolisten tcp 3>"$work/number" 2>"$work/log" &
server=$!
# It tells its number once it takes connections.
if ! read -r -t 30 number <"$work/number"; then
    echo "Xvfb did not start:" >&2
    cat "$work/log" >&2
    exit 1
fi

mkdir -m 700 "$work/run"
DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work/run "$@"
