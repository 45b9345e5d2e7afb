#!/usr/bin/env bash
# with_session.sh COMMAND [ARGUMENT...]: runs a command, on the X display that there is, in a session
# of its own: with a window manager, and with a bus on which screen readers listen. Ends as the
# command does; 77 where the machine lacks something of it.
set -euo pipefail

for program in blackbox dbus-run-session dbus-send xdotool; do
    command -v "$program" >/dev/null || { echo "skipped: $program is not installed"; exit 77; }
done

limit=30 # seconds that the window manager may take
work=$(mktemp -d)
manager=
stop() {
    if [ -n "$manager" ]; then
        kill "$manager" 2>/dev/null || true
        wait "$manager" || true
    fi
    rm -rf "$work"
}
trap stop EXIT

cat >"$work/settings" <<END
session.focusModel: ClickToFocus
session.focusNewWindows: True
session.screen0.toolbar.autoHide: True
END
blackbox -rc "$work/settings" >"$work/log" 2>&1 &
manager=$!
until xdotool get_num_desktops >/dev/null 2>&1; do
    if [ $SECONDS -ge $limit ] || ! kill -0 "$manager" 2>/dev/null; then
        echo "the window manager did not start:" >&2
        cat "$work/log" >&2
        exit 1
    fi
done

# Says on the bus that a screen reader is at work, as one does when it starts.
read -r -d '' listen <<'END' || true
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
    org.freedesktop.DBus.Properties.Set string:org.a11y.Status string:IsEnabled \
    variant:boolean:true >/dev/null || { echo "skipped: at-spi2-core is not installed"; exit 77; }
exec "$@"
END
QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 dbus-run-session -- bash -c "$listen" listen "$@"
