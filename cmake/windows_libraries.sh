#!/usr/bin/env bash
# Builds the libraries of the Windows program from Debian's source packages, static, once.
#
#   windows_libraries.sh FOLDER    they come to FOLDER/qt and FOLDER/sqlite; what is there already stays
#
# The toolkit takes an hour or more on two cores, and 2 GB of disk while it is built.
set -euo pipefail
checkout=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$1"
libraries=$(cd "$1" && pwd)
work=$libraries/work
jobs=$(nproc)
# The toolchain file looks for them there.
export KELVO_WINDOWS_LIBRARIES=$libraries

# fetch NAME: the source package of that name, unpacked and patched as Debian builds it, in $work/NAME. The lists of
# packages of this computer are left alone: they may not name sources at all.
fetch() {
    local apt=$work/apt signed=/usr/share/keyrings/debian-archive-keyring.gpg suite
    mkdir -p "$apt/lists/partial" "$apt/archives/partial" "$work/packages"
    for suite in debian/bookworm debian/bookworm-updates debian-security/bookworm-security; do
        echo "deb-src [signed-by=$signed] http://deb.debian.org/${suite%/*} ${suite#*/} main"
    done > "$apt/sources.list"
    local options=(-qq -o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt" -o APT::Sandbox::User=root)
    apt-get "${options[@]}" update
    (cd "$work/packages" && apt-get "${options[@]}" source --download-only "$1")
    rm -rf "${work:?}/$1"
    dpkg-source --no-check -x "$work/packages/$1"_*.dsc "$work/$1" >/dev/null
}

# The database engine as one source file, which its own scripts put together, with what Debian sets of what we use.
build_sqlite() {
    [ ! -e "$libraries/sqlite/lib/libsqlite3.a" ] || return 0
    echo "Building SQLite for Windows"
    fetch sqlite3
    mkdir -p "$work/sqlite" "$libraries/sqlite/include" "$libraries/sqlite/lib"
    (
        cd "$work/sqlite"
        "$work/sqlite3/configure" --disable-tcl --disable-readline
        make sqlite3.c
        x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_SECURE_DELETE \
            -DSQLITE_LIKE_DOESNT_MATCH_BLOBS -DSQLITE_MAX_SCHEMA_RETRY=25 -DSQLITE_OMIT_LOAD_EXTENSION \
            -c sqlite3.c -o sqlite3.o
        cp sqlite3.h "$libraries/sqlite/include/"
        x86_64-w64-mingw32-ar rcs libsqlite3.a sqlite3.o
        mv libsqlite3.a "$libraries/sqlite/lib/"
    ) > "$work/sqlite.log" 2>&1 || { tail -n 30 "$work/sqlite.log" >&2; return 1; }
}

# The toolkit, of which Windows needs the windows, the printer and the tests. Its own copies of the small libraries
# for pictures and fonts go in. The header that the support of drawing tablets needs is not in Debian's source package.
# Fonts by DirectWrite need Direct2D, whose plugin the compiler cannot build.
build_qt() {
    [ ! -e "$libraries/qt/kelvo-built" ] || return 0
    echo "Building Qt for Windows: this takes an hour or more"
    [ -e "$work/qt6-base/CMakeLists.txt" ] || fetch qt6-base
    local own_copies=() library
    for library in zlib png jpeg freetype harfbuzz pcre2 doubleconversion; do
        own_copies+=("-DFEATURE_system_$library=OFF")
    done
    (
        cmake -G Ninja -S "$work/qt6-base" -B "$work/qt" -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_TOOLCHAIN_FILE="$checkout/cmake/windows_toolchain.cmake" \
            -DCMAKE_INSTALL_PREFIX="$libraries/qt" -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
            -DBUILD_SHARED_LIBS=OFF -DFEATURE_static_runtime=ON -DFEATURE_pkg_config=OFF \
            -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF \
            -DFEATURE_tabletevent=OFF -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF \
            -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DINPUT_opengl=no -DFEATURE_vulkan=OFF \
            -DFEATURE_direct2d=OFF -DFEATURE_directwrite=OFF "${own_copies[@]}"
        nice cmake --build "$work/qt" -- -j "$jobs"
        cmake --install "$work/qt"
    ) > "$work/qt.log" 2>&1 || { tail -n 30 "$work/qt.log" >&2; return 1; }
    touch "$libraries/qt/kelvo-built"
}

# What the zip has to say of the libraries in the program: who wrote them, and under which terms.
keep_licences() {
    [ ! -e "$libraries/licences/LIBRARIES.txt" ] || return 0
    local package texts=$libraries/licences
    mkdir -p "$texts"
    for package in qt6-base sqlite3; do
        [ -e "$work/$package/debian/copyright" ] || fetch "$package"
        cp "$work/$package/debian/copyright" "$texts/$package.txt"
    done
    for package in LGPL-3.0-only GPL-3.0-only GPL-2.0-only BSD-3-Clause Apache-2.0; do
        cp "$work/qt6-base/LICENSES/$package.txt" "$texts/"
    done
    cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$texts/mingw-w64.txt"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$texts/gcc-mingw-w64.txt"
    {
        echo "Libraries in the program files, built from Debian's source packages:"
        echo
        for package in "$work"/packages/*.dsc; do
            basename "$package" .dsc | tr _ ' '
        done
        dpkg-query -W -f '${Package} ${Version}\n' mingw-w64-x86-64-dev g++-mingw-w64-x86-64-posix
        echo
        echo "Qt is used under the GNU Lesser General Public License, version 3. Kelvo's source"
        echo "and its script build-windows make the program anew with any other build of it."
    } > "$texts/LIBRARIES.txt"
}

build_sqlite
build_qt
keep_licences
# Sources and what lay about while building: a tenth of it is left.
rm -rf "$work"
