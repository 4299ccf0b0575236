#!/usr/bin/env bash
# Uses go down only: each folder includes no folder above it. Qt stays in desktop/, SQLite in storage/, and no header of
# an operating system stands outside desktop/, but for the few calls that make a file safe on the disk.
set -euo pipefail
cd "$(dirname "$0")/../src"

# check FOLDER ALLOWED...: FOLDER includes nothing but the folders named.
failed=0
check() {
    local folder=$1 allowed
    shift
    allowed=$(printf '%s|' "$folder" "$@")
    local wrong
    wrong=$(grep -rnE '^#include "[a-z]+/' "$folder" | grep -vE "#include \"(${allowed%|})/" || true)
    [ -z "$wrong" ] || { echo "$wrong"; failed=1; }
}

logic=(base platform storage screen runstate geo entry band keyer review)
check base
check platform base
for folder in storage screen runstate geo entry band keyer review; do check "$folder" "${logic[@]}"; done
check app "${logic[@]}"
check script "${logic[@]}" app
check desktop "${logic[@]}" app

forbidden() {
    local what=$1 pattern=$2
    shift 2
    local wrong
    wrong=$(grep -rnE --exclude='file_calls_*.cpp' "$pattern" "$@" || true)
    [ -z "$wrong" ] || { echo "$what:"; echo "$wrong"; failed=1; }
}

all=(base platform storage screen runstate geo entry band keyer review app script)
forbidden "Qt outside desktop/" '#include <(Q|Qt)[A-Z]' "${all[@]}"
forbidden "SQLite outside storage/" 'sqlite3' base platform screen runstate geo entry band keyer review app script desktop
forbidden "System headers outside desktop/" \
    '#include <(unistd|fcntl|windows|pthread|signal|dirent|termios|poll|sys/[a-z]+)\.?h?>' "${all[@]}"

[ "$failed" -eq 0 ] && echo "layers: clean"
exit "$failed"
