#!/usr/bin/env bash
# Runs the tests of the program for Windows under wine, on a display of their own, and takes the
# pictures of its screens: after tools/windows/build.sh.
set -euo pipefail
cd "$(dirname "$0")/../.."
source cmake/prepare.sh
source tools/windows/libraries.sh

install_missing "$WINDOWS_TEST_PACKAGES"
[ -e "$libraries/lib/cmake/Qt6Test/Qt6TestConfig.cmake" ] || fail "build the program first: tools/windows/build.sh"
build_googletest
say "Building (mingw-cross, with tests)"
cmake --preset mingw-cross -DTENSARIX_TESTS=ON >build/build-mingw-cross.log 2>&1 || fail "see build/build-mingw-cross.log"
cmake --build --preset mingw-cross >>build/build-mingw-cross.log 2>&1 || fail "see build/build-mingw-cross.log"

program=$PWD/build/windows/tensarix
export WINEPREFIX=$PWD/build/windows/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
runtime=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
export WINEPATH="Z:$libraries/bin;Z:$runtime;Z:/usr/x86_64-w64-mingw32/lib"

rm -f build/windows/display # an earlier run's: wine would start before there is a display
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp -noreset 3>build/windows/display 2>build/windows/xvfb.log &
server=$!
trap 'wineserver -k; kill $server' EXIT
until [ -s build/windows/display ]; do sleep 0.1; done
DISPLAY=:$(head -1 build/windows/display)
export DISPLAY
wine wineboot -i >build/windows/wine.log 2>&1 || fail "wine does not start; see build/windows/wine.log"
# Debian's wine does not look where its own fonts lie; without a display the toolkit has none at all.
cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
mkdir -p "$libraries/lib/fonts"
cp /usr/share/fonts/truetype/dejavu/DejaVuSans*.ttf "$libraries/lib/fonts/"

failed=()
run() { # NAME COMMAND...
    local name=$1 log=build/windows/$1.log
    shift
    say "Testing ($name)"
    timeout 900 wine "$@" >"$log" 2>&1 || failed+=("$log")
    tail -n 3 "$log"
}
for tests in "$program"/*_tests.exe; do
    run "$(basename "$tests" .exe)" "$tests"
done
# Those of the window without the display, which takes ten times as long under wine, then the tour
# of all screens on it. wine hands on none of the toolkit's variables.
run window_tests "$program/src/window/window_tests.exe" -platform offscreen
mkdir -p build/windows/pictures
run picture_tour "$program/program/picture_tour.exe" -platform windows build/windows/pictures
[ ${#failed[@]} -eq 0 ] || fail "see ${failed[*]}"
say "All tests passed; the pictures are in build/windows/pictures"
