#!/usr/bin/env bash
# Takes the pictures of docs/ from those that picture_tour has saved:
#   QT_QPA_PLATFORM=offscreen build/release/program/picture_tour FOLDER
#   tools/guide_pictures.sh FOLDER
set -euo pipefail

# name in docs/pictures, name in the tour
pictures="
browse       browse-W-Shape
any-section  any-section-found
find         find-found
view         view-all-C-Shape
compare      compare
beam         beam-13th
bolts        bolts-result
weld         weld-result
weights-1    weights-1
weights-2    weights-2
calculator   calculator-1
registers    calculator-memory-in
popup        popup
remarks      remarks
"

if [ $# -ne 1 ] || [ ! -d "$1" ]; then
    echo "usage: tools/guide_pictures.sh FOLDER" >&2
    exit 2
fi
target="$(dirname "$0")/../docs/pictures"
while read -r name tour; do
    [ -z "$name" ] || cp -- "$1/$tour.png" "$target/$name.png"
done <<<"$pictures"
