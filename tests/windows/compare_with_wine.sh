#!/usr/bin/env bash
# The program without its windows does the same on Linux and under Wine: every script passes on both, prints the same,
# and leaves the same files, byte by byte; databases are compared by what is in them.
#
#   compare_with_wine.sh LINUX_PROGRAMS WINDOWS_PROGRAMS [SCRIPT...]    default: all scripts of tests/ and demo/
set -euo pipefail
shopt -s nullglob
here=$(cd "$(dirname "$0")" && pwd)
source "$here/wine.sh"
linux=$(realpath "$1") windows=$(realpath "$2")
shift 2
scripts=("$@")
[ ${#scripts[@]} -gt 0 ] || scripts=("$here"/../scripts/*/*.kelvo "$here"/../../demo/*.kelvo)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/linux" "$work/windows"

# comparable FOLDER: databases give way to what is in them.
comparable() {
    local database
    for database in "$1"/*.mdb; do
        sqlite3 "$database" .dump > "$database.dump"
        rm "$database"
    done
}

# sameOutput FOLDER: one line end, and the folder under one name.
sameOutput() {
    sed -e 's/\r$//' -e "s|[A-Za-z]:$1|FOLDER|g" -e "s|$1|FOLDER|g"
}

# All of them in one Windows, which takes seconds to begin.
echo "@echo off" > "$work/all.bat"
for i in "${!scripts[@]}"; do
    script=$(realpath "${scripts[$i]}")
    "$linux/kelvo-script" --folder "$work/linux/$i" "$script" > "$work/linux/$i.txt" 2>&1 || true
    printf '"Z:%s\\kelvo-script.exe" --folder "Z:%s" "Z:%s" > "Z:%s" 2>&1\n' \
        "${windows//\//\\}" "$work/windows/$i" "$script" "$work/windows/$i.txt"
done >> "$work/all.bat"
sed -i 's/$/\r/' "$work/all.bat"
wine cmd /c "Z:${work//\//\\}\\all.bat" 2>/dev/null

failed=0
for i in "${!scripts[@]}"; do
    differences=$work/differences.txt
    status=0
    : > "$differences"
    for side in linux windows; do
        comparable "$work/$side/$i"
        sameOutput "$work/$side/$i" < "$work/$side/$i.txt" > "$work/$side.txt"
        grep -q '^[1-9][0-9]* passed, 0 failed$' "$work/$side.txt" || status=1
    done
    diff "$work/linux.txt" "$work/windows.txt" >> "$differences" || status=1
    diff -r "$work/linux/$i" "$work/windows/$i" >> "$differences" || status=1
    [ "$status" -ne 0 ] || continue
    echo "FAILED ${scripts[$i]}"
    tail -n 3 "$work/windows.txt"
    head -n 20 "$differences"
    failed=$((failed + 1))
done
echo "$((${#scripts[@]} - failed)) passed, $failed failed"
[ "$failed" -eq 0 ]
