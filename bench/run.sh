#!/usr/bin/env bash
# Builds the benchmarks and runs them all, each with its baseline in the same run.
set -euo pipefail
cd "$(dirname "$0")/.."
source cmake/packages.sh
install_packages "${build_packages[@]}" "${desktop_packages[@]}" "${test_packages[@]}"
cmake --preset bench >/dev/null
cmake --build --preset bench -- -j "$(nproc)"
cd build/bench/bin
export QT_QPA_PLATFORM=offscreen
# with_screen COMMAND...: under an X server of its own.
with_screen() {
    local server display
    exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>/dev/null)
    server=$!
    read -r display <&3
    DISPLAY=":$display" QT_QPA_PLATFORM=xcb "$@" || true
    kill "$server"
    exec 3<&-
}

# The logs lie on this disk: a folder in memory would make every commit look fast.
interleaved=(--benchmark_enable_random_interleaving=true --benchmark_repetitions=9
             --benchmark_report_aggregates_only=true)
echo "== one QSO committed"
./commit_bench "${interleaved[@]}"
echo "== a key"
./key_bench "${interleaved[@]}"
echo "== the rules of a QSO"
./rules_bench "${interleaved[@]}"
echo "== a big contest"
./contest_bench "${interleaved[@]}"
echo "== reviewing a big log"
./review_bench "${interleaved[@]}"
echo "== a row deleted, and a paper log"
./correction_bench "${interleaved[@]}"
echo "== a big log written for the organisers"
./export_bench "${interleaved[@]}"
echo "== sleeping to a deadline (ms late)"
./deadline_bench
echo "== keying (ms off)"
./keying_bench
echo "== the start, under a window system (ms)"
with_screen ./start_bench .
echo "== scrolling through big logs in the window (ms)"
./scroll_bench
echo "== memory (MB)"
./memory_bench empty
./memory_bench kelvo
