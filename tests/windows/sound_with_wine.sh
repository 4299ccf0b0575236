#!/usr/bin/env bash
# The sound driver of the Windows program under Wine: into a device of ALSA that keeps what it hears, and without one.
#
#   sound_with_wine.sh WINDOWS_TESTS     where windows_sound_test is
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source "$here/wine.sh"
windows=$(realpath "$1")
work=$(mktemp -d)
clean_up() {
    wineserver -k >/dev/null 2>&1 || true
    rm -rf "$work"
}
trap clean_up EXIT

# run DEVICE TESTS: DEVICE is what ALSA knows of the computer. Wine looks for devices when it begins.
run() {
    echo "$1" > "$work/devices"
    wineserver -k >/dev/null 2>&1 || true
    ALSA_CONFIG_PATH=$work/devices PULSE_SERVER=/nowhere wine "$windows/windows_sound_test.exe" "--gtest_filter=$2" \
        > "$work/output" 2>/dev/null || { cat "$work/output"; return 1; }
    grep -q PASSED "$work/output"
}

recorder="pcm.!default { type file slave.pcm { type null } file $work/heard format raw }"
run "$recorder" "WithADevice.AStopEndsTheSound"
# The last one that is played is a tone, not silence.
run "$recorder" "WithADevice.EveryFormatIsHeardToItsEnd"
[ "$(tr -d '\0' < "$work/heard" | wc -c)" -gt 10000 ] || { echo "nothing was heard"; exit 1; }
echo "with a device: passed"
run "" "WithoutADevice.*"
echo "without a device: passed"
