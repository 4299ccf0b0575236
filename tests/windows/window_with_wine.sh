#!/usr/bin/env bash
# The Windows program in its window under Wine, led by keys alone through an evening of an operator: QSOs, the end, a
# new start, one more QSO, the EDI file, the printed log. The Linux program is led the same way; rows and file must be the same.
#
#   window_with_wine.sh LINUX_PROGRAMS WINDOWS_PROGRAMS [PICTURES]    PICTURES: a folder for what the screen showed
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
linux=$(realpath "$1") windows=$(realpath "$2") pictures=${3:+$(mkdir -p "$3" && realpath "$3")}
source "$here/wine.sh"
source "$here/../desktop/real_window.sh"
source "$here/../desktop/operator.sh"

# The programs of each system under the same names. Scripts and empty databases are those of Linux for both.
mkdir "$work/linux" "$work/windows"
ln -s "$linux"/kelvo* "$work/linux/"
ln -s "$linux/kelvo-script" "$linux/kelvo-newdb" "$work/windows/"
cat >"$work/windows/kelvo" <<END
#!/bin/sh
shift
exec wine "$windows/kelvo.exe" --folder "Z:\$1"
END
chmod +x "$work/windows/kelvo"

# look NAME: keeps a picture of the screen, where they are wanted.
look() {
    [ -z "$pictures" ] || import -silent -window root "$pictures/$system-$1.png"
}

show_more() { look failed; }

# Time and date are those of the run.
rows() {
    sqlite3 -cmd '.timeout 2000' "$station/LogKelvo.mdb" \
        'SELECT Callsign, Sent, Rcvd, Mode, Freq, QRALoc, Pct FROM Uus144b ORDER BY ID' 2>/dev/null
}
row_count_is() { [ "$(rows | wc -l)" -eq "$1" ]; }

begin() {
    played=()
    start_program
    pick_contest OpBCampNatUUS
}

# log_qso CALL CODE LOCATOR ROWS: the locator behind its KN, and how many rows the log has then.
log_qso() {
    keys Ctrl+a
    text "$1"
    keys Tab
    text "$2$3"
    keys Enter
    wait_for "row $4" row_count_is "$4"
}

end_program() {
    xdotool key alt+x
    keyboard_to_box
    look question
    xdotool key y
    wait_for "the program to end" gone
    wait "$program" || fail "the program ended with status $?"
    program=
}

work_stage_b() {
    begin
    start_entry
    keys Alt+4 Alt+B Alt+S
}

edi_file_is_there() { compgen -G "$station/L[oO][gG]/*.edi" >/dev/null; }
write_edi_file() {
    menu mnuFormEDI alt+m h Down Return
    keys Alt+4
    go_to TxtPSect
    keys Ctrl+a
    text Single
    look edi
    choose CmdNextPage
    choose CmdGata
    answer y Return
    wait_for "the EDI file" edi_file_is_there
}

# There is no printer: the sheet becomes a PDF in the folder of the results.
sheet_is_there() { compgen -G "$station/L[oO][gG]/*.pdf" >/dev/null; }
print_log() {
    menu mnuLOGDrucken alt+r
    choose OpBD144b
    answer y
    wait_for "the printed sheet" sheet_is_there
    pdftotext -layout "$station"/L[oO][gG]/*.pdf - | grep -q YO8RST || fail "the last QSO is not on the sheet"
    rm "$station"/L[oO][gG]/*.pdf
}

lead() {
    local first
    system=$1
    programs=$work/$system
    station=$work/$system-station
    mkdir "$station"
    "$linux/kelvo-script" --folder "$station" "$here/../../docs/stations/national.kelvo" >/dev/null
    first=$(rows | wc -l)

    step="working stations on $system"
    begin
    look setup
    start_entry
    keys Alt+4 Alt+B Alt+S
    text yo7zzz
    look call
    log_qso yo7zzz 021 15ab $((first + 1))
    log_qso yo9yyy 022 34bc $((first + 2))
    look entry
    end_program

    step="going on after a new start on $system"
    work_stage_b
    log_qso yo8rst 023 37cd $((first + 3))
    end_program

    step="writing the EDI file on $system"
    begin
    start_review
    write_edi_file
    end_program

    step="printing on $system"
    begin
    start_review
    print_log
    look print
    end_program
    rows >"$work/$system.rows"
}

start_server
# Without a window manager Wine shows no window.
openbox >/dev/null 2>&1 &
helper=$!
lead linux
lead windows
diff "$work/linux.rows" "$work/windows.rows"
# The minutes in them are those of the run.
sed -Ei "s/^([0-9]{8};)[0-9]{4};/\\1;/" "$work"/*-station/L[oO][gG]/*.edi
diff -r "$work"/linux-station/L[oO][gG] "$work"/windows-station/L[oO][gG]
echo "the same rows ($(wc -l <"$work/windows.rows")) and files on both systems"
