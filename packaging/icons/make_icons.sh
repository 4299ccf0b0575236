#!/usr/bin/env bash
# Draws the icon of kelvo.svg anew in all its sizes. They lie in the tree: only who changes the drawing needs this.
set -euo pipefail
cd "$(dirname "$0")"
source ../../cmake/packages.sh
install_packages "${icon_packages[@]}"

pictures=()
for size in 16 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" kelvo.svg --output "kelvo-$size.png"
    pictures+=("kelvo-$size.png")
done
convert "${pictures[@]}" kelvo.ico
