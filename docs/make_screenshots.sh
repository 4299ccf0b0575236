#!/usr/bin/env bash
# Makes the pictures of the guides from the program itself: under an X server of its own, by real keys, in stations that
# the scripted operator has filled (docs/stations). The same program makes the same pictures, byte by byte.
#
#   docs/make_screenshots.sh [OPTION]... [PICTURE]...    the pictures, all if none is named
#
#     --size WIDTHxHEIGHT    of the screen (1024x768)
#     --programs DIR         where the programs are; without it they are built
#     --to DIR               where the pictures go (docs/pictures)
#     --list                 says the names of the pictures
set -euo pipefail
documents=$(cd "$(dirname "$0")" && pwd)
source "$documents/../cmake/packages.sh"

# Each has its steps below, in picture_NAME.
pictures=(setup setup_question setup_station setup_cw
    entry entry_exchange entry_duplicate entry_ghz entry_maraton entry_cw paper_log
    review_view review_correction review_edi1 review_edi2 review_archive review_print review_station review_delete)

size=1024x768
programs=
target=$documents/pictures
wanted=()
while [ $# -gt 0 ]; do
    case $1 in
        --size) size=$2 && shift ;;
        --programs) programs=$(cd "$2" && pwd) && shift ;;
        --to) mkdir -p "$2" && target=$(cd "$2" && pwd) && shift ;;
        --list) printf '%s\n' "${pictures[@]}" && exit ;;
        -*) echo "There is no option $1" >&2 && exit 2 ;;
        *) wanted+=("$1") ;;
    esac
    shift
done
[ ${#wanted[@]} -gt 0 ] || wanted=("${pictures[@]}")
for picture in "${wanted[@]}"; do
    [[ " ${pictures[*]} " == *" $picture "* ]] || { echo "There is no picture $picture" >&2; exit 2; }
done

cd "$documents/.."
install_packages g++ xvfb xdotool "${picture_packages[@]}"
if [ -z "$programs" ]; then
    install_packages "${build_packages[@]}" "${desktop_packages[@]}"
    cmake --preset release >/dev/null
    cmake --build --preset release -- -j "$(nproc)"
    programs=$PWD/build/release/bin
fi

source tests/desktop/real_window.sh
source tests/desktop/operator.sh
screen_width=${size%x*}
screen_height=${size#*x}
# Nothing of this machine's own: its clock shows UTC, its desktop chooses no fonts and colours.
export TZ=UTC LC_ALL=C.UTF-8
export -n XDG_CURRENT_DESKTOP DESKTOP_SESSION QT_QPA_PLATFORMTHEME QT_SCALE_FACTOR QT_FONT_DPI

# ---- The station.

# prepare NAME: plays docs/stations/NAME.kelvo, once.
prepare() {
    [ -d "$work/stations/$1" ] && return
    mkdir -p "$work/stations/$1"
    "$programs/kelvo-script" --folder "$work/stations/$1" "$documents/stations/$1.kelvo" >"$work/script.log" ||
        fail "docs/stations/$1.kelvo: $(cat "$work/script.log")"
}

end_program() {
    [ -z "$program" ] && return
    kill -KILL "$program"
    wait "$program" 2>/dev/null || true
    program=
}

# lay_out NAME ["DATE TIME"]: the folder of the program becomes a copy of this station; "new" is an empty folder. The
# program takes DATE TIME for the present time in UTC: the station's clock may differ from UTC by any number of hours.
lay_out() {
    local hours
    end_program
    rm -rf "$station"
    [ "$1" = new ] && mkdir "$station" && return
    prepare "$1"
    cp -r "$work/stations/$1" "$station"
    [ $# -gt 1 ] || return 0
    hours=$(awk -v now="$(date +%s)" -v wanted="$(date -d "$2" +%s)" 'BEGIN { printf "%.5f", (now - wanted) / 3600 }')
    sed -i "3s/.*/$hours\r/" "$station/KelvoInit.dat"
}

# begin [VARIABLE=VALUE...]: the first page of a new run.
begin() {
    played=()
    start_program "$@"
}

# ---- Pictures.

grab() {
    import -silent -window root -strip -define png:exclude-chunks=date,time \
        -define png:compression-level=9 -define png:compression-filter=1 "$1"
}

# A caret blinks while its window has the keyboard, and stands still after that.
take_keyboard_away() { xdotool windowfocus 1; }

# The picture does not change any more.
settled() {
    grab "$work/first.png"
    sleep 0.6
    grab "$work/second.png"
    cmp -s "$work/first.png" "$work/second.png"
}
take() {
    step="taking the picture $1"
    take_keyboard_away
    wait_for "a picture that stands still" settled
    mv "$work/second.png" "$target/$1.png"
    give_keyboard "$window"
    echo "$target/$1.png"
}

# ---- The steps to each picture.

picture_setup() {
    lay_out new
    begin
    take setup
}

picture_setup_question() {
    lay_out new
    begin
    choose OpBCampNatUUS
    take setup_question
}

picture_setup_station() {
    lay_out new
    begin
    pick_contest OpBCampNatUUS
    go_to TxtMyCall
    text yo2xyz
    keys Enter
    text kn05os
    keys Enter
    text 3
    take setup_station
}

picture_setup_cw() {
    lay_out national
    begin
    pick_contest OpBCampNatUUS
    choose OpbCwJ
    take setup_cw
}

# The national championship on Sunday morning, in the middle of stage B.
sunday_morning="2026-08-02 06:24:04"
open_stage_b() {
    lay_out national "$sunday_morning"
    begin
    pick_contest OpBCampNatUUS
    start_entry
    keys Alt+4 Alt+B Alt+S
}

picture_entry() {
    open_stage_b
    take entry
}

picture_entry_exchange() {
    open_stage_b
    text 4mmm
    keys Tab
    text 01
    take entry_exchange
}

picture_entry_duplicate() {
    open_stage_b
    text 8bbb
    keys Tab
    text 014
    take entry_duplicate
}

picture_entry_ghz() {
    lay_out international "2026-09-05 14:41:04"
    begin
    pick_contest OpBCampInternUUS
    start_entry
    keys Alt+H Alt+Y Down Down Alt+S
    text yo5ggg/p
    keys Tab
    text 00
    take entry_ghz
}

picture_entry_maraton() {
    lay_out maraton "2026-11-10 17:22:04"
    begin
    pick_contest OpBMaraton
    start_entry
    keys Alt+4 Alt+S
    text 3ddd
    keys Tab
    text 01
    take entry_maraton
}

# A message on its way, through a serial adapter made of a pseudo-terminal. The program is stopped in the middle of it, in
# a figure of five long marks.
keyed_marks=29
marks_are_keyed() { [ "$(grep -c 'DTR on' "$work/lines")" -ge "$keyed_marks" ]; }
adapter_is_there() { [ -s "$work/adapter" ]; }
picture_entry_cw() {
    g++ -std=c++20 -O1 -shared -fPIC -o "$work/modem_lines_shim.so" tests/desktop/modem_lines_shim.cpp -ldl
    g++ -std=c++20 -O1 -o "$work/serial_adapter" tests/desktop/serial_adapter_main.cpp -pthread
    : >"$work/adapter"
    "$work/serial_adapter" >"$work/adapter" &
    helper=$!
    wait_for "the serial adapter" adapter_is_there
    lay_out national "$sunday_morning"
    ln -s "$(head -n 1 "$work/adapter")" "$station/COM1"
    begin "LD_PRELOAD=$work/modem_lines_shim.so" "KELVO_LINES_LOG=$work/lines"
    pick_contest OpBCampNatUUS
    choose OpbCwJ
    start_entry
    keys Alt+4 Alt+B Alt+C
    text 4mmm
    : >"$work/lines"
    keys Tab F2
    take_keyboard_away
    wait_for "the middle of the message" marks_are_keyed
    kill -STOP "$program"
    take entry_cw
    kill -CONT "$program"
}

picture_paper_log() {
    lay_out national
    begin
    pick_contest OpBCampNatUUS
    menu mnuInputLog alt+i
    keys Ctrl+a
    text 02.08.26
    keys Enter Ctrl+a
    text 06:00
    start_entry
    keys Alt+4 Alt+B Alt+S
    text 4mmm
    keys Tab
    text 3
    take paper_log
}

open_review() {
    lay_out national
    begin
    pick_contest OpBCampNatUUS
    start_review
}

view_stage_a() {
    menu mnuLogAnzeigen alt+g
    choose OpB144a
}

picture_review_view() {
    open_review
    view_stage_a
    take review_view
}

picture_review_correction() {
    open_review
    view_stage_a
    keys Ctrl+Up Ctrl+Up Ctrl+Up Ctrl+Delete
    take review_correction
}

open_edi_page() {
    open_review
    menu mnuFormEDI alt+m h Down Return
    keys Alt+4
    go_to TxtPWWLo
    text KN05OS
    go_to TxtPSect
    keys Ctrl+a
    text Single
    go_to TxtPAdr1
    keys Ctrl+a
    text "str. Morii 5, Lugoj"
    go_to TxtRName
    keys Ctrl+a
    text "Ion Pop"
    go_to TxtSTxEq
    keys Ctrl+a
    text "transverter"
    go_to TxtSPowe
    keys Ctrl+a
    text 50
    go_to TxtSAnte
    keys Ctrl+a
    text "9 el. Yagi"
}

picture_review_edi1() {
    open_edi_page
    take review_edi1
}

picture_review_edi2() {
    open_edi_page
    choose CmdNextPage
    take review_edi2
}

picture_review_archive() {
    open_review
    menu MnuArhiva alt+m Up Return
    keys Alt+4
    go_to TxtNameDat
    text "uus26 144 b"
    take review_archive
}

picture_review_print() {
    open_review
    menu mnuLOGDrucken alt+r
    take review_print
}

picture_review_station() {
    open_review
    menu mnuFormTXT alt+m h Return
    keys Alt+4
    take review_station
}

picture_review_delete() {
    open_review
    menu mnuLOGLöschen alt+d
    answer Return
    take review_delete
}

mkdir -p "$target"
start_server
# A sound device that nobody hears: without one the page has no frame for voice.
printf '[wave]\nfile = /dev/null\n' >"$work/sound.conf"
export ALSOFT_CONF=$work/sound.conf ALSOFT_DRIVERS=wave
sound_device=yes
for picture in "${wanted[@]}"; do
    step="on the way to the picture $picture"
    "picture_$picture"
done
