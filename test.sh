#!/usr/bin/env bash
# Installs what is missing, checks the sources, builds Tensarix and runs every test, first as
# released, then under AddressSanitizer and UBSan.
set -euo pipefail
cd "$(dirname "$0")"
source cmake/prepare.sh

install_missing "$BUILD_PACKAGES $SPEECH_PACKAGES $TEST_PACKAGES"
tools/check_code.sh light
for preset in release sanitize; do
    build "$preset"
    say "Testing ($preset)"
    ctest --preset "$preset" || fail "tests failed ($preset)"
done
say "All tests passed"
