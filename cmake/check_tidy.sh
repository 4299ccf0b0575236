#!/usr/bin/env bash
# clang-tidy over the sources of src/ that this system compiles, a dozen at a time as they are compiled there: alone each
# would take as long as the dozen.  check_tidy.sh BUILD_FOLDER JOBS
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t dozens < <(grep -o '"file": ".*/Unity/[^"]*' "$1/compile_commands.json" | cut -d '"' -f 4)
[ ${#dozens[@]} -gt 0 ] || { echo "tidy: $1 compiles each source by itself" >&2; exit 1; }
printf '%s\n' "${dozens[@]}" |
    xargs -n 1 -P "$2" clang-tidy -p "$1" --quiet --extra-arg=-Wno-unknown-warning-option 2>/dev/null
echo "tidy: clean"
