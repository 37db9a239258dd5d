#!/usr/bin/env bash
# Runs tests under valgrind: a wrong access or a lost byte is a fault.
#   tools/check_memory.sh           the tests of the rooms without a toolkit
#   tools/check_memory.sh FILTER    those tests of the window that GoogleTest's FILTER chooses
set -euo pipefail
cd "$(dirname "$0")/.."
source cmake/prepare.sh

rooms=(common controls measures speech weights beam shell calculator connections sections)
# Tests that only repeat one thing thousands of times.
exhaustive='CalcFuzz.*:CalcChains.*:SolveWeldGroup.Agrees*:FindSearch.EveryProperty*:FindSearch.ValueLists*'

under_valgrind() {
    local log
    log=build/memory-$(basename "$1").log
    say "$(basename "$1") under valgrind"
    valgrind --quiet --leak-check=full --show-leak-kinds=definite,indirect \
        --errors-for-leak-kinds=definite,indirect --suppressions=tests/valgrind.supp \
        --error-exitcode=99 "$@" >"$log" 2>&1 || fail "see $log"
}

install_missing "$BUILD_PACKAGES $SPEECH_PACKAGES $TEST_PACKAGES valgrind"
if [ $# -gt 0 ]; then
    build debug window_tests
    # Without the code that the toolkit makes for patterns while it runs.
    QT_ENABLE_REGEXP_JIT=0 under_valgrind build/debug/src/window/window_tests --gtest_filter="$1"
    exit
fi
build debug "${rooms[@]/%/_tests}"
for room in "${rooms[@]}"; do
    under_valgrind "build/debug/${room}_tests" --gtest_filter="-$exhaustive"
done
