#!/usr/bin/env bash
# Real keys in a real window: the desktop program under an X server without a screen, driven by key events of that
# server, with its own auto-repeat. What came of it is read from the log database.
#
#   real_keys_test.sh PROGRAM_FOLDER     where kelvo and kelvo-newdb are
set -euo pipefail

programs=$1
source "$(dirname "$0")/real_window.sh"

rows() {
    sqlite3 -cmd '.timeout 2000' "$station/LogKelvo.mdb" \
        'SELECT Callsign, Rcvd, QRALoc FROM Uus144a ORDER BY ID' 2>/dev/null
}
row_count_is() { [ "$(rows | wc -l)" -eq "$1" ]; }
show_more() {
    echo "--- rows:"
    rows
}

# expect_row NUMBER PATTERN: the row, as CALL|CODE|LOCATOR.
expect_row() {
    wait_for "row $1" row_count_is "$1"
    local row
    row=$(rows | tail -n 1)
    grep -qE "$2" <<<"$row" || fail "expected a row like $2, got $row"
    alive || fail "the program is gone"
}

# log_qso CALL CODE LOCATOR
log_qso() {
    typed "$1"
    xdotool key Tab
    typed "$2$3"
    xdotool key Return
}

start_server
start_program

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
