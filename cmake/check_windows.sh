#!/usr/bin/env bash
# The program without its windows compiles for Windows too, with the same warnings. What needs the toolkit is compiled
# by build-windows alone.  check_windows.sh JOBS
set -euo pipefail
cd "$(dirname "$0")/.."

# The header of the database engine says the same on every system, but no other header of this one may be seen.
headers=$(mktemp -d)
trap 'rm -rf "$headers"' EXIT
cp /usr/include/sqlite3.h "$headers"

warnings=(-Wall -Wextra -Wpedantic -Wconversion -Wshadow=local -Wno-restrict -Werror)
find src -name '*.cpp' -not -path 'src/desktop/*' -not -name console_main.cpp -not -name '*_unix.cpp' -print0 |
    xargs -0 -r -n 8 -P "$1" x86_64-w64-mingw32-g++-posix -std=c++20 -fsyntax-only "${warnings[@]}" \
        -isystem "$headers" -I src
echo "windows: compiles"
