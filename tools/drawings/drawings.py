#!/usr/bin/env python3
"""Writes the pictures of the welds and the icons, or checks them.

    python3 tools/drawings/drawings.py            writes src/window/pictures/*.svg
    python3 tools/drawings/drawings.py --check    checks that the files are those this program
                                                  writes and that each picture is sound

Python's own library is all it needs. --check ends with 1 and a list when something is wrong.
"""

import re
import sys
from pathlib import Path

sys.dont_write_bytecode = True    # leaves no caches among the sources

import icons
import welds
from canvas import KEY_COLOURS

FOLDER = Path(__file__).resolve().parents[2] / "src" / "window" / "pictures"
PICTURES = {**welds.PICTURES, **icons.PICTURES}
OWN_COLOURS = {"tensarix"}    # the application icon brings its own colours
TAGS = {"svg", "title", "path", "line", "polygon", "circle", "text", "rect",
        "defs", "linearGradient", "stop"}


def colour_faults(name, text):
    used = set(re.findall(r'(?:fill|stroke)="([^"]+)"', text)) - {"none"}
    strange = set() if name in OWN_COLOURS else used - set(KEY_COLOURS)
    return [f"{name}: the colour {c} is not in the key" for c in sorted(strange)]


def tag_faults(name, text):
    strange = set(re.findall(r"<([A-Za-z]+)", text)) - TAGS
    return [f"{name}: <{tag}> is not plain SVG Tiny" for tag in sorted(strange)]


def file_faults(name, text):
    file = FOLDER / f"{name}.svg"
    if not file.exists():
        return [f"{name}: there is no file"]
    same = file.read_text(encoding="utf-8") == text
    return [] if same else [f"{name}: the file is not what is drawn now"]


def check():
    faults = [f"{file.name}: not a picture of this program"
              for file in FOLDER.glob("*.svg") if file.stem not in PICTURES]
    for name, draw in PICTURES.items():
        canvas = draw()
        text = canvas.svg()
        faults += [f"{name}: {fault}" for fault in canvas.faults()]
        faults += colour_faults(name, text) + tag_faults(name, text) + file_faults(name, text)
    print("\n".join(faults) or f"{len(PICTURES)} pictures, nothing wrong")
    return 1 if faults else 0


def write():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, draw in PICTURES.items():
        (FOLDER / f"{name}.svg").write_text(draw().svg(), encoding="utf-8", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(check() if "--check" in sys.argv[1:] else write())
