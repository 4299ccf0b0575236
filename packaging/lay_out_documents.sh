#!/usr/bin/env bash
# The operator's documents, for the folder that he unpacks: their links to each other and to the pictures hold there.
#
#   lay_out_documents.sh FOLDER    the folder to make
set -euo pipefail
documents=$(cd "$(dirname "$0")/../docs" && pwd)
folder=$1

mkdir -p "$folder/pictures"
for page in operators_guide keys file_formats windows; do
    install -m 644 "$documents/$page.md" "$folder"
done
install -m 644 "$documents"/pictures/*.png "$folder/pictures"
