#!/usr/bin/env bash
# Real keys in a real window: the desktop program under an X server without a screen, driven by key events of that
# server, with its own auto-repeat. What came of it is read from the log database.
#
#   real_keys_test.sh PROGRAM_FOLDER     where kelvo and kelvo-newdb are
set -euo pipefail

programs=$1
work=$(mktemp -d)
station=$work/station
server=
program=
window=

# Nothing stays behind, whatever happens.
clean_up() {
    local status=$?
    for process in $program $server; do
        kill -KILL "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$work"
    exit "$status"
}
trap clean_up EXIT
trap 'exit 1' INT TERM HUP

step="starting"
fail() {
    echo "FAILED while $step: $*"
    echo "--- rows:"
    rows || true
    echo "--- windows:"
    for window in $(xdotool search --onlyvisible --name . 2>/dev/null); do
        echo "$window $(xdotool getwindowname "$window" 2>/dev/null)"
    done
    echo "--- what the program said:"
    tail -n 40 "$work/program.log" || true
    exit 1
}

# wait_for WHAT COMMAND...: until the command succeeds, at most 20 seconds.
wait_for() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

rows() {
    sqlite3 -cmd '.timeout 2000' "$station/LogKelvo.mdb" \
        'SELECT Callsign, Rcvd, QRALoc FROM Uus144a ORDER BY ID' 2>/dev/null
}
row_count_is() { [ "$(rows | wc -l)" -eq "$1" ]; }
alive() { kill -0 "$program" 2>/dev/null; }
gone() { ! alive; }
server_is_ready() { [ -s "$work/display" ]; }
title_has() { xdotool getwindowname "$window" 2>/dev/null | grep -q "$1"; }

boxes() { xdotool search --onlyvisible --name '^(Kelvo|EXIT)$' 2>/dev/null | grep -vx "$window"; }
box_is_open() { [ -n "$(boxes)" ]; }
no_box_is_open() { ! box_is_open; }

# The part of a window manager: the keyboard belongs to the newest window.
give_keyboard() { xdotool windowfocus --sync "$1" 2>/dev/null; }
keyboard_to_box() {
    wait_for "a message box" box_is_open
    wait_for "the keyboard in the box" give_keyboard "$(boxes | head -n 1)"
}
keyboard_to_form() {
    wait_for "the box to go" no_box_is_open
    wait_for "the keyboard in the form" give_keyboard "$window"
}

# expect_row NUMBER PATTERN: the row, as CALL|CODE|LOCATOR.
expect_row() {
    wait_for "row $1" row_count_is "$1"
    local row
    row=$(rows | tail -n 1)
    grep -qE "$2" <<<"$row" || fail "expected a row like $2, got $row"
    alive || fail "the program is gone"
}

typed() { xdotool type --delay 12 "$1"; }

# log_qso CALL CODE LOCATOR
log_qso() {
    typed "$1"
    xdotool key Tab
    typed "$2$3"
    xdotool key Return
}

# press_button LEFT TOP: clicks a place of the form given in its twips, 12000 by 9000 on the whole form. The form lies
# between the menu bar and the line of notices.
screen_width=1024
screen_height=768
press_button() {
    local menu=22 notices=19
    xdotool mousemove $(($1 * screen_width / 12000)) $((menu + $2 * (screen_height - menu - notices) / 9000)) click 1
}

Xvfb -displayfd 3 -screen 0 "${screen_width}x${screen_height}x24" -nolisten tcp 3>"$work/display" >"$work/server.log" 2>&1 &
server=$!
wait_for "the X server" server_is_ready
DISPLAY=":$(cat "$work/display")"
export DISPLAY
export QT_QPA_PLATFORM=xcb
# Fonts and the window system keep what they allocate.
export ASAN_OPTIONS="detect_leaks=0:${ASAN_OPTIONS:-}"

mkdir "$station"
"$programs/kelvo-newdb" "$station" >/dev/null
"$programs/kelvo" --folder "$station" >"$work/program.log" 2>&1 &
program=$!
window=$(timeout 30 xdotool search --sync --onlyvisible --name '^Kelvo$' | head -n 1) || true
[ -n "$window" ] || fail "no window"
wait_for "the keyboard in the window" give_keyboard "$window"

step="choosing the contest by the keyboard"
xdotool key Tab Tab Tab Tab space
xdotool key alt+o
keyboard_to_box
xdotool key Return
keyboard_to_form

step="holding Enter where it raises a box"
xdotool keydown Return
keyboard_to_box
sleep 1
xdotool keyup Return
box_is_open || fail "the key that raised the box answered it too"
xdotool key Return
keyboard_to_form

step="filling the page"
typed yo2xyz
xdotool key Return
typed kn05os
xdotool key Return 0
xdotool key alt+q
wait_for "the entry form" title_has UTC

step="choosing band and mode"
press_button 8180 640
press_button 8780 1150
xdotool mousemove 300 600

step="logging a QSO"
log_qso yo5aaa 001 kn16aa
expect_row 1 '^YO5AAA\|599 001\|KN16AA$'

step="holding a letter in the call field"
typed yo5
xdotool keydown a
sleep 1
xdotool keyup a
log_qso '' 002 kn26aa
expect_row 2 '^YO5A{4,}\|599 002\|KN26AA$'

step="holding Tab in the call field"
typed yo6bbb
xdotool keydown Tab
sleep 1.2
xdotool keyup Tab
alive || fail "the program is gone"
typed 003kn15aa
xdotool key Return
expect_row 3 '^YO6BBB\|599 003\|KN15AA$'

step="rolling three digits and a letter"
typed yo7ccc
xdotool key Tab
xdotool keydown 0 keydown 1 keyup 0 keydown 2 keyup 1 keydown k keyup 2 keydown n keyup k keyup n
typed 25aa
xdotool key Return
expect_row 4 '^YO7CCC\|599 012\|KN25AA$'

step="closing a box with Enter held down"
xdotool key Tab
keyboard_to_box
xdotool keydown Return
keyboard_to_form
sleep 1
xdotool keyup Return
log_qso yo8ddd 004 kn37aa
expect_row 5 '^YO8DDD\|599 004\|KN37AA$'

step="answering a question with a letter held down"
xdotool key alt+x
keyboard_to_box
xdotool keydown n
keyboard_to_form
sleep 1
xdotool keyup n
log_qso yo9eee 005 kn35aa
expect_row 6 '^YO9EEE\|599 005\|KN35AA$'

step="ending the program"
xdotool key alt+x
keyboard_to_box
xdotool key y
wait_for "the program to end" gone
status=0
wait "$program" || status=$?
program=
[ "$status" -eq 0 ] || fail "the program ended with status $status"
row_count_is 6 || fail "rows after the end"
echo "real keys: $(rows | wc -l) QSOs logged"
