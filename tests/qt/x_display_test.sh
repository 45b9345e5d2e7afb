#!/usr/bin/env bash
# x_display_test.sh KVDLG SERVER: opens dialogs on the X display, presses real keys and mouse
# buttons there, and looks at what they did. SERVER is the server text of the sample database.
# 77 where the machine lacks xdotool.
set -euo pipefail

kvdlg=$1
server=$2
command -v xdotool >/dev/null || { echo "skipped: xdotool is not installed"; exit 77; }

limit=30 # seconds that anything may take
work=$(mktemp -d)
dialog=
window=
stop() {
    [ -z "$dialog" ] || kill "$dialog" 2>/dev/null || true
    rm -rf "$work"
}
trap stop EXIT

fail() {
    echo "FAILED: $*" >&2
    cat "$work/errors" "$work/outcome" >&2 || true
    exit 1
}

# wait_until WORDS COMMAND...: until the command succeeds.
wait_until() {
    local words=$1 end=$((SECONDS + limit))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $end ] || fail "$words"
    done
}

window_of() { xdotool search --onlyvisible --name "^$1\$" | tail -n 1; }
is_open() { [ -n "$(window_of "$1")" ]; }
has_focus() { [ "$(xdotool getwindowfocus)" = "$1" ]; }
has_ended() { ! kill -0 "$dialog" 2>/dev/null; }
is_open_or_failed() { is_open "$1" || has_ended; }

# open CLASS CAPTION: `window` is then its window, which has got the keyboard by itself.
open() {
    "$kvdlg" run "$1" --db "$server" >"$work/outcome" 2>"$work/errors" &
    dialog=$!
    wait_until "$1 opens" is_open_or_failed "$2"
    ! has_ended || fail "$1 does not open"
    window=$(window_of "$2")
    wait_until "$1 takes the keyboard" has_focus "$window"
}

# click_at X Y: in percent of the window.
click_at() {
    local WIDTH=0 HEIGHT=0
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=[0-9]+$')"
    xdotool mousemove --window "$window" $((WIDTH * $1 / 100)) $((HEIGHT * $2 / 100)) click 1
}

# ends_with CODE: the dialog closes, and the program ends so.
ends_with() {
    wait_until "the dialog closes" has_ended
    local code=0
    wait "$dialog" || code=$?
    dialog=
    [ "$code" = "$1" ] || fail "ended with $code instead of $1"
}

outcome_has() { grep -qF -- "$1" "$work/outcome" || fail "the outcome has no $1"; }
outcome_lacks() { ! grep -qF -- "$1" "$work/outcome" || fail "the outcome has $1"; }

# What is typed, chosen by arrows, and clicked arrives.
open CKvGuiListSel 'Multiple Selections Dialog'
xdotool key Tab Tab Down
xdotool key shift+Tab shift+Tab
xdotool type --delay 0 'TYPED IN'
xdotool key Return
click_at 65 94
ends_with 0
outcome_has '"result": "IDOK"'
outcome_has '"TYPED IN"'

# A message box takes the keyboard and gives it back.
open CKvGuiListSel 'Multiple Selections Dialog'
xdotool type --delay 0 'no such name'
xdotool key Return
wait_until "the message opens" is_open kvdlg
message=$(window_of kvdlg)
wait_until "the message takes the keyboard" has_focus "$message"
xdotool key Return
wait_until "the dialog gets the keyboard back" has_focus "$window"
xdotool type --delay 0 'X'
xdotool key Escape
ends_with 1
outcome_has '"No Matches found!"'
outcome_has '"text": "no such nameX"'
outcome_has '"result": "IDCANCEL"'

# A check box is reached and checked by keys alone, and the default button pressed by Enter.
open CKvGuiPipeStatusDlg 'Pipeline Status'
xdotool key Tab Tab Tab space Return
ends_with 0
outcome_has '"ABN"'
outcome_lacks '"CNCL"'

echo "passed"
