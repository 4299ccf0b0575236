#!/usr/bin/env bash
# Lays out the folder that an operator unpacks: the programs, and everything that they need and a plain Linux may lack.
#
#   lay_out_folder.sh PROGRAMS FOLDER    where the built programs and the help file are; the folder to make
#
# The libraries are those of this system, copied as they are. Each of them is a file of its own and can be replaced by
# another build of the same library. Only the programs know where they are: their RPATH serves all that they load.
set -euo pipefail
packaging=$(cd "$(dirname "$0")/.." && pwd)
programs=$(cd "$1" && pwd)
folder=$2

# The C library must fit the kernel and the name services of the system, and what stands on it has to be as new as the
# newest thing that is loaded: these come from the system. Every Linux has them.
from_the_system='/(ld-linux-x86-64|libc|libm|libdl|libpthread|librt|libresolv|libstdc\+\+|libgcc_s)\.so\.'

plugin_source=$(dirname "$(ldconfig -p | awk '/libQt6Core.so.6 / { print $NF; exit }')")/qt6/plugins
plugins=(
    platforms/libqxcb.so                                          # X11, and by way of it Wayland
    platforms/libqoffscreen.so                                    # for tests
    platforminputcontexts/libcomposeplatforminputcontextplugin.so # dead keys
    platforminputcontexts/libibusplatforminputcontextplugin.so
    printsupport/libcupsprintersupport.so
)
fonts=(
    dejavu/DejaVuSans.ttf dejavu/DejaVuSans-Bold.ttf dejavu/DejaVuSansMono.ttf
    liberation/LiberationSans-Regular.ttf liberation/LiberationSans-Bold.ttf
)

fail() {
    echo "lay_out_folder.sh: $*" >&2
    exit 1
}

rm -rf "$folder"
mkdir -p "$folder"/{lib,plugins,fonts,icons,licences,empty}

# ---- The programs.

for program in kelvo kelvo-newdb kelvo-script; do
    cp "$programs/$program" "$folder"
    strip "$folder/$program"
    patchelf --force-rpath --set-rpath '$ORIGIN/lib' "$folder/$program"
done
[ -f "$programs/Sontrel.HLP" ] || fail "there is no help file in $programs"
cp "$programs/Sontrel.HLP" "$folder"
printf '[Paths]\nPrefix = .\nPlugins = plugins\n' >"$folder/qt.conf"

# ---- What they load. `brought` are the files of this system that are copied.

brought=()
for plugin in "${plugins[@]}"; do
    install -D -m 644 "$plugin_source/$plugin" "$folder/plugins/$plugin"
    brought+=("$plugin_source/$plugin")
done
for font in "${fonts[@]}"; do
    install -m 644 "/usr/share/fonts/truetype/$font" "$folder/fonts"
    brought+=("/usr/share/fonts/truetype/$font")
done

loaded=$(ldd "$programs"/kelvo "$programs"/kelvo-{newdb,script} "${plugins[@]/#/$plugin_source/}")
missing=$(grep 'not found' <<<"$loaded" || true)
[ -z "$missing" ] || fail "$missing"
for library in $(awk '$2 == "=>" { print $3 }' <<<"$loaded" | sort -u | grep -vE "$from_the_system"); do
    install -m 644 "$library" "$folder/lib"
    brought+=("$library")
done

# ---- Empty databases. In a folder of their own: unpacked once more, they do not replace a log.

"$programs/kelvo-newdb" "$folder/empty" >/dev/null

# ---- For the eye and for reading.

cp "$packaging"/icons/kelvo.svg "$packaging"/icons/kelvo-*.png "$folder/icons"
cp "$packaging/linux/README.txt" "$folder"
install -m 755 "$packaging/linux/install-desktop-entry" "$folder"
"$packaging/lay_out_documents.sh" "$folder/docs"

# ---- Licences: who made what lies in the folder, and from which package it is.

cp "$packaging/../LICENSE" "$folder/licences/Kelvo.txt"
cp "$packaging/linux/LIBRARIES.txt" "$folder/licences/LIBRARIES.txt"
mapfile -t real < <(realpath "${brought[@]}")
# Debian lists a file under one of the two names that it may have, /lib or /usr/lib.
owners=$(dpkg -S "${real[@]}" "${real[@]#/usr}" 2>/dev/null || true)
for file in "${real[@]}"; do
    grep -qE ": (/usr)?${file#/usr}\$" <<<"$owners" || fail "no package owns $file, so nothing tells its licence"
done
mapfile -t packages < <(cut -d : -f 1 <<<"$owners" | sort -u)
for package in "${packages[@]}"; do
    cp "/usr/share/doc/$package/copyright" "$folder/licences/$package.txt"
    dpkg-query -W -f '${Package} ${Version}, source ${source:Package} ${source:Version}\n' "$package" | head -n 1
done >>"$folder/licences/LIBRARIES.txt"
grep -ohE '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$folder"/licences/*.txt | sort -u |
    while read -r text; do [ ! -f "$text" ] || cp -L "$text" "$folder/licences"; done
