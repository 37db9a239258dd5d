# shellcheck shell=bash disable=SC2034 # what it sets is used where it is sourced
# What the scripts share: the packages, and one build of a preset.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config qt6-base-dev qt6-base-private-dev libgl-dev \
libsqlite3-dev libgtest-dev fonts-dejavu-core"
SPEECH_PACKAGES="speech-dispatcher speech-dispatcher-espeak-ng"
TEST_PACKAGES="xvfb xauth dpkg-dev file desktop-file-utils appstream xdotool xclip"
LIGHT_CHECK_PACKAGES="clang-format cppcheck shellcheck"
TIDY_PACKAGES="clang-tidy libbenchmark-dev"
WINDOWS_PACKAGES="g++-mingw-w64-x86-64-posix dpkg-dev tcl nsis"
WINDOWS_TEST_PACKAGES="wine64 wine fonts-wine xvfb googletest"

say() { printf '== %s\n' "$*"; }

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_missing "packages...": asks apt only for what is not there.
install_missing() {
    command -v apt-get >/dev/null || fail "this script installs with apt; see README.md for a build by hand"
    local package missing=()
    for package in $1; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    [ -z "$sudo" ] || command -v sudo >/dev/null || fail "packages are missing and there is no sudo: ${missing[*]}"
    mkdir -p build
    { $sudo apt-get update && $sudo env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"; } >build/apt.log 2>&1 ||
        fail "apt could not install them; see build/apt.log"
}

# build PRESET [TARGETS...]: configures and builds; says only what went wrong.
build() {
    local preset=$1 log="build/build-$1.log"
    shift
    say "Building ($preset)"
    mkdir -p build
    { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1 || {
        grep -E 'error|FAILED|Error' "$log" | head -20 >&2 || true
        fail "the build failed; see $log"
    }
}
