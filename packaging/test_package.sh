#!/usr/bin/env bash
# Tries the archive for Linux where nothing was ever built: in a fresh Debian 12 of the smallest kind, without compiler,
# toolkit, fonts or printers, under the hands of an ordinary user. Real keys work one QSO and write its EDI file.
#
#   packaging/test_package.sh [--tree DIR] [ARCHIVE]    --tree keeps the fresh system in DIR, and takes the one there
#
# It needs root and a Debian mirror (DEBIAN_MIRROR, default http://deb.debian.org/debian), and takes some minutes. The
# archive is the one that ./package made. The screen at the end goes to build/package/tested.png.
set -euo pipefail
cd "$(dirname "$0")/.."
source cmake/packages.sh

tree=
[ "${1:-}" != --tree ] || { mkdir -p "$2" && tree=$(cd "$2" && pwd) && shift 2; }
archive=$(realpath "${1:-$(ls -t build/kelvo-*-linux-x86_64.tar.xz | head -n 1)}")
name=$(basename "$archive" .tar.xz)
[ "$(id -u)" -eq 0 ] || { echo "This needs root: it makes a system tree and changes into it." >&2; exit 1; }
install_packages debootstrap xvfb xdotool imagemagick sqlite3 poppler-utils xz-utils

source tests/desktop/real_window.sh
source tests/desktop/operator.sh

# ---- The fresh system.

[ -n "$tree" ] || tree=$work/tree
leave() {
    local status=$?
    umount "$tree/proc" 2>/dev/null || true
    (exit "$status")
    clean_up
}
trap leave EXIT

step="making a fresh system"
if [ ! -x "$tree/bin/sh" ]; then
    debootstrap --variant=minbase bookworm "$tree" "${DEBIAN_MIRROR:-http://deb.debian.org/debian}" \
        >"$work/debootstrap.log" 2>&1 || fail "$(tail -n 3 "$work/debootstrap.log")"
fi
mount -t proc proc "$tree/proc"
rm -rf "$tree/home/op" && mkdir "$tree/home/op" && chown 1000:1000 "$tree/home/op"

# in_tree COMMAND...: as an ordinary user, who has nothing set but what a session sets.
in_tree() {
    chroot --userspec=1000:1000 "$tree" /usr/bin/env -i HOME=/home/op PATH=/usr/bin:/bin LANG=C.UTF-8 \
        DISPLAY="${DISPLAY:-}" "$@"
}
for unwanted in gcc g++ fc-list; do
    ! in_tree sh -c "command -v $unwanted" >/dev/null || fail "the fresh system has $unwanted"
done

step="unpacking"
place="/home/op/a folder"
mkdir "$tree$place"
tar --extract --file "$archive" --directory "$tree$place"
chown -R 1000:1000 "$tree$place"
station="$tree$place/$name"
programs=$station

step="running the programs without a screen"
in_tree mkdir /home/op/made
in_tree "$place/$name/kelvo-newdb" /home/op/made >/dev/null
[ -s "$tree/home/op/made/LogKelvo.mdb" ] || fail "kelvo-newdb made nothing"
mkdir "$tree/home/op/demo" && cp demo/*.kelvo "$tree/home/op/demo"
for demonstration in "$tree"/home/op/demo/*.kelvo; do
    in_tree "$place/$name/kelvo-script" "${demonstration#"$tree"}" >"$work/script.log" || fail "$(cat "$work/script.log")"
    echo "$(basename "$demonstration"): $(tail -n 1 "$work/script.log")"
done

# ---- The operator.

# begin: the first page of a new run, from another working directory.
begin() {
    played=()
    chroot --userspec=1000:1000 "$tree" /usr/bin/env -i HOME=/home/op PATH=/usr/bin:/bin LANG=C.UTF-8 \
        DISPLAY="$DISPLAY" ALSOFT_DRIVERS=null "$place/$name/kelvo" >"$work/program.log" 2>&1 &
    program=$!
    wait_for "the window" window_is_open
    wait_for "the keyboard in the window" give_keyboard "$window"
}

finish() {
    menu mnuBeenden alt+x
    keyboard_to_box
    xdotool key y
    wait_for "the program to end" gone
    wait "$program" || fail "the program ended with status $?"
    program=
}

rows() { sqlite3 -cmd '.timeout 2000' "$station/LogKelvo.mdb" 'SELECT Callsign, Sent, Rcvd, QRALoc, Pct FROM Uus144a'; }
one_row() { [ "$(rows | wc -l)" -eq 1 ]; }
file_is_there() { [ -s "$station/$1" ]; }

# Without a window manager nobody else does this.
start_server

step="the first start"
begin
strangers=$(grep -oE '/[^ ].*\.so[.0-9]*$' "/proc/$program/maps" | sort -u | grep -vF "$place/$name/" |
    grep -vE '/(ld-linux-x86-64|libc|libm|libdl|libpthread|librt|libresolv|libstdc\+\+|libgcc_s)\.so\.' || true)
[ -z "$strangers" ] || fail "loaded from the system: $strangers"
wait_for "the databases" file_is_there LogKelvo.mdb
pick_contest OpBFloareademina
go_to TxtMyCall
text yo2xyz
keys Enter
text kn05os
keys Enter
text 0

step="working one QSO"
start_entry
keys Alt+4 Alt+S
text yo5aaa
keys Tab
text 001
text kn16aa
keys Enter
wait_for "the row" one_row
echo "logged: $(rows)"

step="writing the EDI file"
menu mnuAnfang alt+g
wait_for "the first page" title_has '^Kelvo$'
start_review
menu mnuFormEDI alt+m h Down Return
answer Return
keys Alt+4
go_to TxtPWWLo
text KN05OS
choose CmdNextPage
choose CmdGata
answer y y
edi="LOG/YO2XYZ144 Floare$(date +%y).edi"
wait_for "the file $edi" file_is_there "$edi"
grep -q '^\[REGITEST;1\]' "$station/$edi" || fail "$edi has no header"
grep -qE ';YO5AAA;1;59;001;59;001;;KN16AA;70;;;;;' "$station/$edi" || fail "$edi has no row"
tail -n 1 "$station/$edi"

step="printing without a printer"
menu mnuLOGDrucken alt+r
choose OpBD144a
answer y
sheet_is_there() { [ -n "$(find "$station/LOG" -iname '*.pdf' -size +0)" ]; }
wait_for "the PDF file" sheet_is_there
find "$station/LOG" -iname '*.pdf' -exec pdftotext {} - \; | grep -q YO5AAA || fail "the sheet has no row"
find "$station/LOG" -iname '*.pdf' -exec pdffonts {} \; | grep -q LiberationSans || fail "the sheet has another font"
finish

step="starting again"
begin

step="the help"
help_windows() { xdotool search --onlyvisible --name ' - Kelvo$' 2>/dev/null; }
help_is_open() { [ -n "$(help_windows)" ]; }
help_is_closed() { ! help_is_open; }
menu mnuInit alt+h Return
wait_for "the help" help_is_open
wait_for "the keyboard in the help" give_keyboard "$(help_windows | head -n 1)"
xdotool key Escape
wait_for "the help to close" help_is_closed
wait_for "the keyboard in the form" give_keyboard "$window"

step="going on with the log"
pick_contest OpBFloareademina
start_entry
keys Alt+4 Alt+S
one_row || fail "the log is gone"
[ "$(rows)" = 'YO5AAA|59 001|59 001|KN16AA|70' ] || fail "the log is another one: $(rows)"
sleep 1
mkdir -p build/package
import -silent -window root build/package/tested.png
finish

step="the menu of the desktop"
in_tree "$place/$name/install-desktop-entry" >/dev/null
grep -qF "$place/$name/kelvo" "$tree/home/op/.local/share/applications/kelvo.desktop" || fail "no entry"
in_tree "$place/$name/install-desktop-entry" --remove >/dev/null

echo "What the program said:"
cat "$work/program.log"
echo "the archive works in a fresh system; its screen: build/package/tested.png"
