#!/usr/bin/env bash
# The desktop program under an X server, typed into at full speed: QSO after QSO into a big log, without ever waiting for
# the program. Says how long from each key until its picture is painted, those that log a QSO apart. Before and behind it
# a line of text of the toolkit is typed into as fast, a tenth of the time each.
#
#   typing_bench.sh PROGRAM_FOLDER [SECONDS]      ten minutes when not given
set -euo pipefail

programs=$1
seconds=${2:-600}
rows=${ROWS:-10000}
# Milliseconds that the typing program is told to leave between two keys. It comes to some 33 keys a second, which is
# faster than any operator; how many they were is told.
delay=50

source "$(dirname "$0")/../tests/desktop/real_window.sh"

sql() { sqlite3 -cmd '.timeout 5000' "$station/$1" "$2"; }
row_count() { sql LogKelvo.mdb 'SELECT count(*) FROM Uus144a'; }
row_count_is() { [ "$(row_count)" -eq "$1" ]; }

# A big log, and a memory that knows its stations; every fourth station that will be worked is in it.
fill_station() {
    mkdir -p "$station"
    "$programs/kelvo-newdb" "$station" >/dev/null
    local numbers="WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < $rows)"
    sql LogKelvo.mdb "$numbers INSERT INTO Uus144a (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)
        SELECT printf('DL%05dX', i), '15.11.26', '12:34', printf('599 %03d', i), '599 001', 'CW', '144', 'JN97MM', '255'
        FROM n"
    sql DbsKelvo.mdb "$numbers INSERT INTO QRA (Call, QRA_LOC) SELECT printf('DL%05dX', i), 'JN97MM' FROM n"
    sql DbsKelvo.mdb "$numbers INSERT INTO QRA (Call, QRA_LOC)
        SELECT printf('HA%05dX', 4 * i), 'JN97MM' FROM n WHERE i < 5000"
}

choose_contest() {
    xdotool key Tab Tab Tab Tab space
    xdotool key alt+o
    keyboard_to_box
    xdotool key Return
    keyboard_to_form
    typed yo2xyz
    xdotool key Return
    typed kn05os
    xdotool key Return 0
    xdotool key alt+q
    wait_for "the entry form" title_has UTC
    press_button 8180 640
    press_button 8780 1150
    xdotool mousemove 300 600
    # The points of so many rows are counted before the entry opens.
    sleep 1
}

# qso NUMBER: the words for the program that types.
qso() {
    local locator=kn16aa
    [ $(($1 % 4)) -ne 0 ] || locator=
    printf 'type --delay %s %s\nkey --delay %s Tab\ntype --delay %s %s%s\nkey --delay %s Return\n' \
        "$delay" "$(printf 'ha%05dx' "$1")" "$delay" "$delay" "$(printf %03d $(($1 % 999 + 1)))" "$locator" "$delay"
}

# type_for SECONDS: in pieces, each of which one process types.
typed_qsos=0
type_for() {
    local end=$((SECONDS + $1)) i
    while [ "$SECONDS" -lt "$end" ]; do
        for i in {1..5}; do qso $((++typed_qsos)); done >"$work/keys"
        xdotool "$work/keys" >/dev/null
    done
}

measure_empty_window() {
    program_name=typing_bench_empty start_program
    type_for $(((seconds + 9) / 10))
    xdotool key Escape
    wait_for "the empty window to go" gone
    program=
    tee -a "$work/empty" <"$work/program.log" | grep -v ^figure
}

start_server
step="filling the log"
fill_station

step="typing into an empty window"
echo "== a line of text of the toolkit"
measure_empty_window

step="choosing the contest"
program_name=typing_bench_kelvo start_program
choose_contest
step="typing into the program"
typed_qsos=0
type_for "$seconds"
wait_for "$typed_qsos rows" row_count_is $((rows + typed_qsos))

step="ending the program"
xdotool key alt+x
keyboard_to_box
xdotool key y
wait_for "the program to end" gone
program=
echo "== the program, $typed_qsos QSOs, all of them in the log"
cat "$work/program.log"

step="typing into an empty window again"
echo "== a line of text of the toolkit, again"
measure_empty_window
# The worse of both times.
sort -t $'\t' -k 2,2 -k 3,3gr "$work/empty" | awk -F '\t' '$1 == "figure" && !seen[$2]++ {
    print "figure\tempty." $2 "\t" $3 "\t" $4
}'
