# shellcheck shell=bash
# The libraries of the program for Windows, from the sources of Debian's own packages: Qt's base
# module and SQLite. Sourced by build.sh and test.sh.

windows=$PWD/build/windows
libraries=$windows/libraries
mkdir -p "$windows"

# apt asked with the source packages of the archives that this machine uses, beside its own lists.
apt_source() {
    apt-get -o Dir::Etc::SourceList="$windows/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$windows/apt/lists" "$@"
}

# fetch_source PACKAGE: unpacks it to $windows/source/PACKAGE.
fetch_source() {
    local folder=$windows/source/$1
    [ ! -d "$folder" ] || return 0
    say "Fetching the source of $1"
    mkdir -p "$windows/apt/lists/partial" "$windows/source"
    # shellcheck disable=SC2016 # apt's own variables
    apt-get indextargets --format 'deb-src $(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u >"$windows/apt/sources.list"
    {
        apt_source update && cd "$windows/source" && apt_source source --download-only "$1" &&
            dpkg-source -x "$1"_*.dsc "$folder.new" && mv "$folder.new" "$folder" && cd -
    } >"$windows/$1.log" 2>&1 || fail "the source of $1 could not be fetched; see $windows/$1.log"
}

# What a window, its dialogs and a local socket need, and no more.
build_qt() {
    [ ! -e "$libraries/lib/cmake/Qt6Widgets/Qt6WidgetsConfig.cmake" ] || return 0
    fetch_source qt6-base
    say "Building Qt for Windows: about 15 minutes on two idle cores"
    local off=() feature
    # wintab.h, which tablets need, is not in the archive.
    for feature in tabletevent sql dbus printsupport concurrent testlib_selfcover icu ssl vulkan \
        openssl schannel direct2d directwrite3; do
        off+=("-DFEATURE_$feature=OFF")
    done
    for feature in system_zlib system_png system_pcre2 system_freetype system_harfbuzz system_jpeg; do
        off+=("-DFEATURE_$feature=OFF")
    done
    {
        cmake -S "$windows/source/qt6-base" -B "$windows/qt" -G Ninja \
            -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_INSTALL_PREFIX="$libraries" \
            -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
            -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no "${off[@]}" &&
            cmake --build "$windows/qt" && cmake --install "$windows/qt"
    } >"$windows/qt.log" 2>&1 || fail "Qt could not be built; see $windows/qt.log"
}

build_sqlite() {
    [ ! -e "$libraries/lib/libsqlite3.a" ] || return 0
    fetch_source sqlite3
    say "Building SQLite for Windows"
    mkdir -p "$windows/sqlite" "$libraries/lib" "$libraries/include"
    {
        (cd "$windows/sqlite" && "$windows/source/sqlite3/configure" && make sqlite3.c) &&
            x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_OMIT_LOAD_EXTENSION -c \
                "$windows/sqlite/sqlite3.c" -o "$windows/sqlite/sqlite3.o" &&
            cp "$windows/sqlite/sqlite3.h" "$libraries/include/" &&
            x86_64-w64-mingw32-ar rcs "$libraries/lib/libsqlite3.a" "$windows/sqlite/sqlite3.o"
    } >"$windows/sqlite.log" 2>&1 || fail "SQLite could not be built; see $windows/sqlite.log"
}

# build_googletest: for the tests alone.
build_googletest() {
    [ ! -e "$libraries/lib/cmake/GTest/GTestConfig.cmake" ] || return 0
    say "Building GoogleTest for Windows"
    {
        cmake -S /usr/src/googletest -B "$windows/googletest" -G Ninja \
            -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_INSTALL_PREFIX="$libraries" -DBUILD_GMOCK=OFF &&
            cmake --build "$windows/googletest" --target install
    } >"$windows/googletest.log" 2>&1 ||
        fail "GoogleTest could not be built; see $windows/googletest.log"
}

# gather_licences: those of all that is in the package beside the program.
gather_licences() {
    local target=$windows/licences qt=$windows/source/qt6-base file name
    [ ! -d "$target" ] || return 0
    rm -rf "$target.new"
    mkdir -p "$target.new/qt"
    sed "s/@QT_VERSION@/$(dpkg-parsechangelog -l "$qt/debian/changelog" -S Version)/;
         s/@SQLITE_VERSION@/$(dpkg-parsechangelog -l "$windows/source/sqlite3/debian/changelog" -S Version)/" \
        package/windows/LICENCES.txt >"$target.new/README.txt"
    cp "$qt"/LICENSES/*GPL*.txt "$qt/debian/copyright" "$target.new/qt/"
    find "$qt/src/3rdparty" -type f \( -iname '*licen[cs]e*' -o -iname 'copying*' \) |
        while read -r file; do
            name=${file#"$qt"/src/3rdparty/}
            cp "$file" "$target.new/qt/${name//\//-}"
        done
    cp "$windows/source/sqlite3/debian/copyright" "$target.new/sqlite.txt"
    cp /usr/share/doc/mingw-w64-common/copyright "$target.new/mingw-w64.txt"
    cp /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright "$target.new/gcc.txt"
    mv "$target.new" "$target"
}
