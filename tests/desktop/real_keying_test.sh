#!/usr/bin/env bash
# Messages keyed by real keys in a real window: the program on a serial adapter without hardware, whose lines are
# written down. What they say is read as Morse code.
#
#   real_keying_test.sh PROGRAM_FOLDER LIBRARY    where kelvo, kelvo-newdb and serial_adapter are; modem_lines_shim
set -euo pipefail

programs=$1
library=$2
source "$(dirname "$0")/real_window.sh"

lines=$work/lines
trouble=$work/trouble
adapter=$work/adapter
port=97

show_more() {
    echo "--- lines:"
    tail -n 30 "$lines"
    echo "--- adapter:"
    cat "$adapter"
}

# What the lines did since forget_lines, without the times.
forget_lines() { : >"$lines"; }
happened() { cut -d ' ' -f 2- "$lines"; }
marks() { grep -c 'DTR on' "$lines" || true; }
at_least_marks() { [ "$(marks)" -ge "$1" ]; }
transmitter_is_off() { [ "$(happened | grep RTS | tail -n 1)" = "RTS off" ]; }
key_is_up() { [ "$(happened | grep DTR | tail -n 1)" = "DTR off" ]; }
lines_are_down() { transmitter_is_off && key_is_up; }

# The message as dots and dashes, a blank between letters, "/" between words. A dot is 37 ms at 30 words a minute.
keyed() {
    awk -v dot=37 '
        $2 == "open" { opening = 1 }
        $2 == "RTS" && $3 == "on" { transmitting = !opening }
        $2 == "RTS" && $3 == "off" { transmitting = opening = 0 }
        $2 == "DTR" && $3 == "on" {
            gap = ($1 - up) / 1e6
            if (code != "" && gap > 2 * dot) code = code (gap > 6 * dot ? " / " : " ")
            down = $1
        }
        $2 == "DTR" && $3 == "off" {
            up = $1
            if (transmitting) code = code (($1 - down) / 1e6 > 2 * dot ? "-" : ".")
        }
        END { print code }' "$lines"
}

# expect_message KEY CODE
expect_message() {
    forget_lines
    xdotool key "$1"
    wait_for "the message of $1" at_least_marks 1
    wait_for "the end of the message of $1" lines_are_down
    [ "$(keyed)" = "$2" ] || fail "$1 sent $(keyed) in place of $2"
    alive || fail "the program is gone"
}

# begin_long_message MARKS: leaves it in the middle.
begin_long_message() {
    forget_lines
    xdotool key F3
    wait_for "the message" at_least_marks "$1"
}

# expect_stopped: the message that was begun ends soon, and far before its end.
long_message_marks=140
expect_stopped() {
    wait_for "both lines down" lines_are_down
    [ "$(marks)" -lt $((long_message_marks / 2)) ] || fail "the message went on to mark $(marks)"
}

# The pixels of the field that shows how far a message is: some lines out of the server's picture of the screen.
progress_field() {
    local picture=$work/screen/Xvfb_screen0 bytes_per_line=$((screen_width * 4)) top height=16
    top=$((22 + 6120 * (screen_height - 22 - 19) / 9000))  # below the menu, above the notices
    local begin=$(($(stat -c %s "$picture") - screen_width * screen_height * 4))
    dd if="$picture" iflag=skip_bytes,count_bytes skip=$((begin + top * bytes_per_line)) \
        count=$((height * bytes_per_line)) status=none | cksum
}
progress_differs() { [ "$(progress_field)" != "$1" ]; }

# A pulled adapter is given back as it was found, one that the program dies with drops its lines.
hang_ups() { grep -c "$1" "$adapter" || true; }
adapter_hung_up() { [ "$(hang_ups '^hung up')" -eq "$1" ]; }

# The program with the library in front of everything but the sanitizer, which wants to be the first.
start_on_adapter() {
    local sanitizer
    sanitizer=$(ldd "$programs/kelvo" | awk '/libasan/ { print $3 }')
    forget_lines
    start_program "LD_PRELOAD=${sanitizer:+$sanitizer:}$library" KELVO_LINES_LOG="$lines" KELVO_LINES_TROUBLE="$trouble"
}

open_entry() {
    step="opening the entry form"
    xdotool key Tab Tab Tab Tab space
    xdotool key alt+o
    keyboard_to_box
    xdotool key Return
    keyboard_to_form
    press_button 520 4550
    xdotool key alt+q
    wait_for "the entry form" title_has UTC
    press_button 8180 640
    press_button 8780 1150
    xdotool mousemove 300 600
}

mkdir "$station" "$work/screen"
: >"$adapter"
"$programs/serial_adapter" >"$adapter" &
helper=$!
adapter_is_there() { [ -s "$adapter" ]; }
wait_for "the adapter" adapter_is_there
ln -s "$(head -n 1 "$adapter")" "$station/COM$port"
printf 'YO2XYZ\r\nKN05OS\r\n2\r\n 1 \r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n' >"$station/KelvoInit.dat"
printf '%s\r\n' 'CQ DE #1' '#2 5NN' 'PARIS PARIS PARIS PARIS PARIS PARIS PARIS PARIS PARIS PARIS' '#3' 'TU' '0' '73' \
    " $port " >"$station/KELVOTextCw.dat"

start_server -fbdir "$work/screen"
start_on_adapter
open_entry
[ -z "$(happened)" ] || fail "the lines were touched before the first message"

step="sending each message"
typed yo5aaa
expect_message F1 "-.-. --.- / -.. . / -.-- --- ..--- -..- -.-- --.."
expect_message F2 "-.-- --- ..... .- .- .- / ..... -. -."
expect_message F4 "- - .----"
expect_message F5 "- ..-"
expect_message F6 "-----"
expect_message F7 "--... ...--"

step="looking at the window while a message is sent"
begin_long_message 1
for _ in 1 2 3; do
    shown=$(progress_field)
    wait_for "the progress of the message" progress_differs "$shown"
    ! transmitter_is_off || fail "the message was over before the window showed it"
done

step="stopping with End"
xdotool key End
expect_stopped

step="stopping with Escape"
begin_long_message 3
xdotool key Escape
expect_stopped
expect_message F5 "- ..-"

step="typing while a message is sent"
# The first Escape behind a message is still the one of the keyer, the second gives the QSO up.
xdotool key Escape Escape
begin_long_message 2
typed yo6bbb
xdotool key End
expect_stopped
expect_message F2 "-.-- --- -.... -... -... -... / ..... -. -."

step="asking the program to end in the middle of a message"
begin_long_message 3
kill -TERM "$program"
expect_stopped
keyboard_to_box
xdotool key n
keyboard_to_form
expect_message F5 "- ..-"

step="pulling the adapter out in the middle of a message"
begin_long_message 3
echo unplugged >"$trouble"
wait_for "the adapter to be given up" adapter_hung_up 1
alive || fail "the program is gone"
rm "$trouble"
expect_message F5 "- ..-"

step="killing the program in the middle of an element"
begin_long_message 3
kill -KILL "$program"
wait "$program" 2>/dev/null || true
wait_for "the adapter to be free" adapter_hung_up 2
[ "$(hang_ups HUPCL)" -eq 1 ] || fail "the system would leave the lines up"

step="starting again and crashing"
start_on_adapter
open_entry
begin_long_message 3
kill -ABRT "$program"
wait "$program" 2>/dev/null || true
program=
wait_for "the adapter to be free" adapter_hung_up 3
[ "$(hang_ups HUPCL)" -eq 2 ] || fail "the system would leave the lines up"
echo "real keying: all messages heard"
