# What the scripts install from Debian 12, and how.

# The compiler and the logic of the program.
build_packages=(g++ cmake ninja-build libsqlite3-dev)
# The desktop program.
desktop_packages=(qt6-base-dev qt6-serialport-dev libopenal-dev libasound2 fonts-dejavu-core fonts-liberation)
# Tests and checks; real keys into a real window; distances by somebody else.
test_packages=(libgtest-dev libgmock-dev libgeographiclib-dev clang-format clang-tidy lld xvfb xdotool sqlite3 poppler-utils
    g++-mingw-w64-x86-64-posix)
# Benchmarks, and the table of what they measured.
bench_packages=(libbenchmark-dev python3 util-linux)
# The Windows program, made here, and Windows to try it under.
windows_packages=(g++-mingw-w64-x86-64-posix qt6-base-dev qt6-base-dev-tools dpkg-dev tcl googletest zip)
wine_packages=(wine wine64 fonts-wine openbox xvfb xdotool imagemagick sqlite3)
# The compiler that fuzzes, with its sanitizers (./fuzz).
fuzz_packages=(clang libclang-rt-14-dev)
# What packs the archive for Linux.
archive_packages=(binutils patchelf xz-utils)
# The pictures of the guides; the icon.
picture_packages=(imagemagick)
icon_packages=(librsvg2-bin imagemagick)

# install_packages NAME...: installs those that are not there yet. Says so when it may not.
install_packages() {
    command -v dpkg-query >/dev/null || return 0
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Please install: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null
}
