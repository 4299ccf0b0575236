#!/usr/bin/env bash
# Checks the folder that an operator unpacks: all that the programs load is in it, and they run from anywhere.
#
#   check_folder.sh FOLDER
set -euo pipefail
folder=$(cd "$1" && pwd)
demonstration=$(cd "$(dirname "$0")/../../demo" && pwd)/one_pass_contest.kelvo
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "check_folder.sh: $*" >&2
    exit 1
}

# A path with blanks, and another working directory.
place="$work/a place/of my own"
mkdir -p "$(dirname "$place")"
cp -r "$folder" "$place"
cd /

# Whatever is loaded comes from the folder, but for what the C library and the compiler bring on every system.
everywhere='^(linux-vdso|ld-linux-x86-64|libc|libm|libdl|libpthread|librt|libresolv|libstdc\+\+|libgcc_s)\.so\.'
{
    for program in kelvo kelvo-newdb kelvo-script; do ldd "$place/$program"; done
    # Inside a program its RPATH serves the plugins; ldd looks at them without one.
    find "$place/plugins" -name '*.so' -exec env LD_LIBRARY_PATH="$place/lib" ldd {} +
} | sed -nE 's/^\s*(\S+) => (.*) \(0x[0-9a-f]+\)$/\1\t\2/p; s/^\s*(\S+) => not found$/\1\tnot found/p' | sort -u >"$work/loaded"
strangers=$(grep -vE "$everywhere" "$work/loaded" | awk -F '\t' -v place="$place/lib/" 'index($2, place) != 1' || true)
[ -z "$strangers" ] || fail "loaded from elsewhere: $strangers"
[ "$(wc -l <"$work/loaded")" -gt 50 ] || fail "ldd told too little"

# The newest version of the C library that anything asks for is the one that README.txt names.
newest=$(objdump -T "$place"/kelvo{,-newdb,-script} "$place"/lib/* "$place"/plugins/*/* | grep -oE 'GLIBC_[0-9.]+' | sort -uV |
    tail -n 1)
grep -q "glibc ${newest#GLIBC_}" "$place/README.txt" || fail "README.txt does not ask for $newest"

# What the operator's documents show and lead to is beside them.
grep -ohE '\]\([^)#]+' "$place"/docs/*.md | cut -c 3- | sort -u >"$work/links"
[ "$(wc -l <"$work/links")" -gt 15 ] || fail "the documents have too few links"
while read -r link; do
    [ -s "$place/docs/$link" ] || fail "docs/ has no $link"
done <"$work/links"

# A whole contest by the scripted operator.
"$place/kelvo-script" --folder "$work/played" "$demonstration" >"$work/script.log" || fail "$(cat "$work/script.log")"
grep -q ' passed, 0 failed$' "$work/script.log" || fail "no contest was played"

# The desktop program starts and makes its databases beside itself. No screen is needed for that.
env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen HOME="$work" "$place/kelvo" >"$work/kelvo.log" 2>&1 &
program=$!
trap 'kill -KILL $program 2>/dev/null || true; rm -rf "$work"' EXIT
is_in_use() { [ -s "$place/LogKelvo.mdb" ] && grep -q "$place/lib/libQt6Core" "/proc/$program/maps"; }
end=$((SECONDS + 20))
until is_in_use; do
    kill -0 "$program" 2>/dev/null || fail "the program ended: $(cat "$work/kelvo.log")"
    [ "$SECONDS" -lt "$end" ] || fail "the program made no databases: $(cat "$work/kelvo.log")"
    sleep 0.1
done
{ kill -KILL "$program" && wait "$program" || true; } 2>/dev/null

# The entry of the menu: the path of the program survives its quoting.
export XDG_DATA_HOME=$work/share
"$place/install-desktop-entry" >/dev/null
entry=$XDG_DATA_HOME/applications/kelvo.desktop
grep -qxF "Exec=\"$place/kelvo\"" "$entry" || fail "the menu entry starts something else: $(cat "$entry")"
[ -s "$(sed -n 's/^Icon=//p' "$entry")" ] || fail "the menu entry has no icon"
"$place/install-desktop-entry" --remove >/dev/null
[ ! -e "$entry" ] || fail "the menu entry is still there"

echo "checked $folder"
