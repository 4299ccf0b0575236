#!/usr/bin/env bash
# Everything of the Windows program that can be tried under Wine. First ./build-windows and the tests for Linux
# (cmake --preset debug, cmake --build --preset debug, and the same with release).
#
#   all_with_wine.sh [LINUX_BUILD [WINDOWS_BUILD]]    default: build/debug and build/windows
set -euo pipefail
cd "$(dirname "$0")/../.."
source cmake/packages.sh
install_packages "${wine_packages[@]}"
source tests/windows/wine.sh
linux=${1:-build/debug} windows=${2:-build/windows}

echo "== functions"
ctest --test-dir "$windows" --output-on-failure -E '^script_'
echo "== scripts, against Linux"
tests/windows/compare_with_wine.sh "$linux/bin" "$windows/bin"
echo "== stations that move from one system to the other"
tests/windows/both_ways_with_wine.sh "$linux/bin" "$windows/bin"
echo "== the program in its window"
tests/windows/window_with_wine.sh build/release/bin "$windows/bin"
echo "== sound"
tests/windows/sound_with_wine.sh "$windows/bin"
echo "== serial line"
tests/windows/serial_with_wine.sh "$linux/bin" "$linux/tests/desktop/libmodem_lines_shim.so" "$windows/bin"
