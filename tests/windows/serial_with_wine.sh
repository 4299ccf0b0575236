#!/usr/bin/env bash
# The serial driver of the Windows program under Wine, on an adapter made of a pseudo-terminal: what it does to the lines
# is written down by the library that gives the terminal its lines.
#
#   serial_with_wine.sh LINUX_TESTS LIBRARY WINDOWS_TESTS    where serial_adapter is; modem_lines_shim; windows_serial_test
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source "$here/wine.sh"
adapter_program=$1/serial_adapter library=$(realpath "$2") windows=$(realpath "$3")

work=$(mktemp -d)
helper=
clean_up() {
    [ -z "$helper" ] || kill "$helper" 2>/dev/null || true
    rm -f "$WINEPREFIX/dosdevices/com77" "$WINEPREFIX/dosdevices/com78"
    wineserver -k 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT

"$adapter_program" > "$work/adapter" &
helper=$!
for _ in $(seq 100); do
    [ ! -s "$work/adapter" ] || break
    sleep 0.05
done

# Wine lists its ports when it begins.
wineserver -k 2>/dev/null || true
ln -sfn "$(head -n 1 "$work/adapter")" "$WINEPREFIX/dosdevices/com77"
ln -sfn /dev/null "$WINEPREFIX/dosdevices/com78"
export KELVO_ADAPTER=77 KELVO_NO_ADAPTER=78
export KELVO_LINES_TROUBLE_FILE="Z:$work/trouble"

# The server of Wine opens all files, so it is the one that the device can be denied to.
LD_PRELOAD=$library KELVO_LINES_LOG=/dev/null KELVO_LINES_TROUBLE=$work/denied \
    wineserver -p >/dev/null 2>&1

# run TEST: what it did to the lines, without the times, in one line of text.
run() {
    : > "$work/lines"
    LD_PRELOAD=$library KELVO_LINES_OPENED_ELSEWHERE=1 KELVO_LINES_LOG=$work/lines KELVO_LINES_TROUBLE=$work/trouble \
        wine "$windows/windows_serial_test.exe" "--gtest_filter=SerialAdapterTest.$1" > "$work/output" 2>"$work/wine" ||
        { cat "$work/output" "$work/wine"; return 1; }
    rm -f "$work/trouble"
    cut -d ' ' -f 2- "$work/lines" | paste -sd ,
}
expect() {
    local did
    did=$(run "$1")
    [ "$did" = "$2" ] || { echo "$1: expected lines \"$2\", they did \"$did\""; exit 1; }
    echo "$1: passed"
}

echo denied > "$work/denied"
expect OneThatTheSystemDeniesIsToldToBeInUse ""
rm "$work/denied"
expect WhatIsNoSerialLineIsToldSo ""
element="DTR on,DTR off"
expect KeysItsLines "RTS on,$element,$element,$element,RTS off,RTS on,RTS off"
expect PulledOutInTheMiddleOfAMessageItIsAnErrorAndGivenUp "RTS on"
