#!/usr/bin/env bash
# Takes the pictures of docs/ from those that picture_tour has saved:
#   QT_QPA_PLATFORM=offscreen build/release/program/picture_tour FOLDER
#   tools/guide_pictures.sh FOLDER
set -euo pipefail

# name in docs/pictures, name in the tour
pictures="
browse       browse-00
find         find-zx
view         view-04
beam         beam-13th
bolts        bolts-after
weld         weld-after
weights-1    weights-1
weights-2    weights-2-editing
calculator   calculator-1
registers    calculator-memory-0
popup        popup
"

if [ $# -ne 1 ] || [ ! -d "$1" ]; then
    echo "usage: tools/guide_pictures.sh FOLDER" >&2
    exit 2
fi
target="$(dirname "$0")/../docs/pictures"
while read -r name tour; do
    [ -z "$name" ] || cp -- "$1/$tour.png" "$target/$name.png"
done <<<"$pictures"
