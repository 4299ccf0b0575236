#!/usr/bin/env bash
# The folder for Linux, laid out from these programs and checked.
#
#   folder_test.sh PROGRAMS    where the built programs and the help file are
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$here/lay_out_folder.sh" "$1" "$work/folder"
"$here/check_folder.sh" "$work/folder"
