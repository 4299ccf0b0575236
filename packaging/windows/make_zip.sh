#!/usr/bin/env bash
# The folder that an operator unzips on Windows: build/kelvo-VERSION-windows-x86_64.zip.
#
#   make_zip.sh BUILD_FOLDER NEWDB LICENCES    the built programs; what makes empty databases; licences of the libraries
set -euo pipefail
cd "$(dirname "$0")/../.."
build=$1 newdb=$2 licences=$3

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
name=kelvo-$version-windows-x86_64
zip=$PWD/build/$name.zip
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
folder=$place/$name
mkdir -p "$folder/licences" "$folder/empty"

cp "$build/bin/kelvo.exe" "$build/bin/kelvo-newdb.exe" "$build/bin/Sontrel.HLP" "$folder"
x86_64-w64-mingw32-strip "$folder"/*.exe
# Empty databases in a folder of their own: unzipped once more, they do not replace a log.
"$newdb" "$folder/empty" >/dev/null
# Read with the editor that every Windows has.
sed 's/$/\r/' packaging/windows/README.txt > "$folder/README.txt"
packaging/lay_out_documents.sh "$folder/docs"
sed -i 's/$/\r/' "$folder"/docs/*.md
sed 's/$/\r/' LICENSE > "$folder/licences/Kelvo.txt"
cp "$licences"/* "$folder/licences/"

rm -f "$zip"
(cd "$place" && zip -q -r -X "$zip" "$name")
echo "made ${zip#"$PWD/"}"
