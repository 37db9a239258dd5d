#!/usr/bin/env bash
# Builds Tensarix for 64-bit Windows on a Debian machine, from nothing: the libraries, the program,
# Tensarix-<version>-win64.zip and an installer. What was built once is kept in build/windows.
set -euo pipefail
cd "$(dirname "$0")/../.."
source cmake/prepare.sh
source tools/windows/libraries.sh

windows=$PWD/build/windows
libraries=$windows/libraries
mkdir -p "$windows"

install_missing "$BUILD_PACKAGES $WINDOWS_PACKAGES"
build_sqlite
build_qt
