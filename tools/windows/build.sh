#!/usr/bin/env bash
# Builds Tensarix for 64-bit Windows on a Debian machine, from nothing: the libraries, the program,
# Tensarix-<version>-win64.zip, which holds a folder that can be put anywhere, and an installer.
# What was built once is kept in build/windows.
set -euo pipefail
cd "$(dirname "$0")/../.."
source cmake/prepare.sh
source tools/windows/libraries.sh

install_missing "$BUILD_PACKAGES $WINDOWS_PACKAGES"
build_sqlite
build_qt
gather_licences
build release tensarix_section_figures_checked # what makes the store, and holds it against its tables
build mingw-cross
rm -f build/windows/tensarix/Tensarix-*-win64.* # another version's
build mingw-cross package
for package in build/windows/tensarix/Tensarix-*-win64.*; do
    mv "$package" build/windows/
    say "Made build/windows/${package##*/}"
done
