#!/usr/bin/env bash
# A station that is copied from one system to the other goes on there: logs, locator memory and set-up files.
#
#   both_ways_with_wine.sh LINUX_PROGRAMS WINDOWS_PROGRAMS
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source "$here/wine.sh"
linux=$(realpath "$1") windows=$(realpath "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# play SYSTEM FOLDER SCRIPT
play() {
    if [ "$1" = linux ]; then
        "$linux/kelvo-script" --folder "$2" "$3"
    else
        wine "$windows/kelvo-script.exe" --folder "Z:$2" "Z:$3" 2>/dev/null
    fi | tee "$work/output" | tail -n 1 | grep -q ' 0 failed' || { cat "$work/output"; return 1; }
}

for way in "linux windows" "windows linux"; do
    read -r first second <<<"$way"
    play "$first" "$work/$first" "$here/first_weekend.kelvo"
    # As somebody would who has only what the page on moving says: databases and set-up files.
    mkdir "$work/$first-$second"
    cp "$work/$first"/*.mdb "$work/$first"/*.dat "$work/$first-$second/"
    play "$second" "$work/$first-$second" "$here/second_weekend.kelvo"
    sqlite3 "$work/$first-$second/LogKelvo.mdb" .dump > "$work/$first.dump"
    echo "from $first to $second: passed"
done
cmp "$work/linux.dump" "$work/windows.dump"
