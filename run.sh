#!/usr/bin/env bash
# Installs what is missing, builds Tensarix and starts it. Without a display: saves pictures of its
# screens instead.
set -euo pipefail
cd "$(dirname "$0")"
source cmake/prepare.sh

install_missing "$BUILD_PACKAGES $SPEECH_PACKAGES"
build release tensarix picture_tour

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    say "Starting Tensarix"
    exec build/release/program/tensarix
fi
say "There is no display here: taking pictures of the screens instead"
build/release/program/picture_tour pictures >build/tour.log 2>&1 ||
    fail "the picture tour failed; see build/tour.log"
say "The pictures are in $(pwd)/pictures"
