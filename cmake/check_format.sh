#!/usr/bin/env bash
# Every source file is formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -co --exclude-standard 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'benchmarks/*.h' 'benchmarks/*.cpp' |
    xargs -r clang-format --dry-run --Werror
echo "format: clean"
