#!/usr/bin/env bash
# Checks the sources without running them: format, scripts and cppcheck, which is quick,
# then clang-tidy, which is not.
#   tools/check_code.sh          everything
#   tools/check_code.sh light    without clang-tidy
set -euo pipefail
cd "$(dirname "$0")/.."
source cmake/prepare.sh

half=${1:-whole}
cores=$(nproc)

sources() { find src tests tools bench cmake .ci ./*.sh -type f \( "$@" \); }

check_light() {
    say "Checking format and scripts"
    sources -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror || fail "clang-format -i mends the format"
    sources -name '*.sh' -o -path .ci/run | xargs shellcheck -x || fail "shellcheck has found faults"
    say "Checking with cppcheck"
    mkdir -p build/cppcheck
    cppcheck --quiet --error-exitcode=1 -j "$cores" --cppcheck-build-dir=build/cppcheck \
        --std=c++20 --library=qt --library=googletest -I src -I tests \
        --enable=warning,performance,portability src tests tools bench ||
        fail "cppcheck has found faults" # its style is clang-tidy's matter
}

# One key for all of ours that the verdict on a source depends on: the headers it includes, however
# indirectly, the forms, and the checks.
key_of() {
    {
        clang-tidy -p build/tidy --dump-config "$1"
        c++ -MM -MG -nostdinc -nostdinc++ -I src -I tests "$1" | tr ' ' '\n' |
            sed -n "s#^ui_\(.*\)\.h\$#src/window/*/\1.ui#p; /\//p" | xargs sh -c "cat \$*" sh
    } | sha256sum | cut -d ' ' -f 1
}

# What was clean is not checked again until something of it changes.
tidy() {
    local clean
    clean=build/tidy/clean/$(key_of "$1")
    [ ! -e "$clean" ] || return 0
    clang-tidy --quiet -p build/tidy "$1" 2>/dev/null && touch "$clean"
}

check_tidy() {
    build tidy # configures, and makes headers of the forms
    say "Checking with clang-tidy"
    mkdir -p build/tidy/clean
    export -f key_of tidy
    # The Windows voice has headers that are not here.
    sources -name '*.cpp' ! -name 'SapiVoice.cpp' | xargs -P "$cores" -I{} bash -c 'tidy {}' ||
        fail "clang-tidy has found faults"
}

install_missing "$LIGHT_CHECK_PACKAGES"
check_light
[ "$half" = light ] && exit
install_missing "$BUILD_PACKAGES $TIDY_PACKAGES"
check_tidy
say "The code is clean"
