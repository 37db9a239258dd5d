#!/usr/bin/env python3
"""Draws how far the program's numbers are from print, for docs/validation.md.

    build/release/beam_tests --gtest_output=xml:beam.xml         (and connections_tests, calculator_tests)
    build/release/tools/CheckSectionFigures data/sections build/release/program --deviations > sections.txt
    tools/deviations.py beam.xml connections.xml calculator.xml sections.txt

    rsvg-convert -z 2 build/deviations.svg -o docs/pictures/deviations.png

The tool writes build/deviations.svg, and the count and the worst of each row to the terminal. The
tests record what is read here by FromPrint (tests/Largest.h).
"""

import math
import pathlib
import re
import sys
import xml.etree.ElementTree as tree
from xml.sax.saxutils import escape

TARGET = pathlib.Path(__file__).parent.parent / "build/deviations.svg"
ORDER = ("Sections", "Strengths", "Shear", "Bolts", "Welds", "Physical", "Conversion")
FAMILIES = {"W": "W, WT", "WT": "W, WT", "HSS-Rec": "hollow", "HSS-Sqr": "hollow",
            "HSS-Rnd": "hollow", "Pipe": "hollow", "L-Eq": "angles", "L-UnEq": "angles",
            "2L-Eq": "angles", "2L-UnEq": "angles"}
LEAST, MOST = -3, 4                         # of the axis, powers of ten of a per cent
LEFT, RIGHT, TOP, STEP, WIDTH = 245, 690, 70, 26, 900
STYLE = """
rect { fill: #ffffff } text { fill: #1c1c1c; font: 13px sans-serif } .small { font-size: 11.5px }
.title { font-size: 16px; font-weight: bold } line { stroke: #d5d5d5 } .row { stroke: #ececec }
.own { fill: none; stroke: #4a6fa5 } .beyond { fill: #1d56a5 } .required { fill: #c05a00 }
.section { fill: #6b7a3a }
@media (prefers-color-scheme: dark) {
rect { fill: #16191d } text { fill: #e8e8e8 } line { stroke: #454b52 } .row { stroke: #282d33 }
.own { stroke: #8fb4e8 } .beyond { fill: #6aa5f5 } .required { fill: #f2a35c } .section { fill: #b5c77a }
}
"""


def of_tests(path):
    """Pairs of a row's name and its marks: (deviation, half a unit of the print's last digit)."""
    for each in tree.parse(path).iter("property"):
        name = each.get("name")
        if name.startswith("print: "):
            marks = [tuple(map(float, mark.split("/"))) for mark in each.get("value").split()]
            yield name.removeprefix("print: "), marks


def of_sections(path):
    for line in open(path, encoding="utf-8"):
        found = re.match(r"\S+ of (\S+), check \d+: \d+ cases, largest (\S+)", line)
        if found:
            yield ("Sections, " + FAMILIES.get(found[1], "other rolled"),
                   [(100 * float(found[2]), None)])


def place(deviation):
    power = math.log10(max(abs(deviation), 10 ** LEAST))
    return LEFT + (RIGHT - LEFT) * (min(power, MOST) - LEAST) / (MOST - LEAST)


def kind(name, deviation, rounding):
    if rounding is None:
        return "section"
    if "required" in name:
        return "required"
    return "own" if abs(deviation) <= 1.02 * rounding else "beyond"


def percent(value):
    return "0" if value < 1e-9 else f"{float(f'{value:.2g}'):g} %"


def drawing(rows):
    bottom = TOP + STEP * len(rows)
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {bottom + 62}" '
           f'width="{WIDTH}" height="{bottom + 62}">', f"<style>{STYLE}</style>",
           "<title>Deviations from print, by table</title>",
           f'<rect width="{WIDTH}" height="{bottom + 62}"/>',
           '<text class="title" x="14" y="26">How far from print, in per cent of the printed figure</text>',
           '<text class="small" x="14" y="46">a mark a case; a section figure\'s: the worst of a check</text>',
           f'<text class="small" x="{RIGHT + 16}" y="{TOP - 8}">marks, worst</text>']
    for power in range(LEAST, MOST + 1):
        x = place(10 ** power)
        label = f"{10.0 ** power:g}"
        out.append(f'<line x1="{x:.1f}" y1="{TOP}" x2="{x:.1f}" y2="{bottom}"/>')
        out.append(f'<text class="small" text-anchor="middle" x="{x:.1f}" y="{bottom + 16}">'
                   f'{"≤ " if power == LEAST else ""}{label}</text>')
    for number, (name, marks) in enumerate(rows):
        y = TOP + STEP * (number + 0.5)
        out.append(f'<line class="row" x1="14" y1="{y + STEP / 2}" x2="{WIDTH - 14}" y2="{y + STEP / 2}"/>')
        out.append(f'<text x="14" y="{y + 4}">{escape(name)}</text>')
        worst = max(abs(deviation) for deviation, _ in marks)
        out.append(f'<text class="small" x="{RIGHT + 16}" y="{y + 4}">{len(marks)}, {percent(worst)}</text>')
        for k, (deviation, rounding) in enumerate(marks):
            out.append(f'<circle class="{kind(name, deviation, rounding)}" cx="{place(deviation):.1f}" '
                       f'cy="{y + 3.5 * (k * 2 % 5 - 2):.1f}" r="2.6"/>')
    x = 14
    for style, text in (("own", "no more than the print's own rounding"), ("beyond", "beyond it"),
                        ("required", "the required search"), ("section", "figures against each other")):
        out.append(f'<circle class="{style}" cx="{x + 4}" cy="{bottom + 42}" r="4"/>')
        out.append(f'<text class="small" x="{x + 14}" y="{bottom + 46}">{text}</text>')
        x += 40 + 6.3 * len(text)
    return "\n".join([*out, "</svg>", ""])


def main():
    rows = {}
    for path in sys.argv[1:]:
        for name, marks in (of_tests if path.endswith(".xml") else of_sections)(path):
            rows.setdefault(name, []).extend(marks)
    if not rows:
        sys.exit(__doc__)
    ordered = sorted(rows.items(),
                     key=lambda row: [k for k, p in enumerate(ORDER) if row[0].startswith(p)])
    for name, marks in ordered:
        print(f"{name}: {len(marks)}, worst {percent(max(abs(d) for d, _ in marks))}")
    TARGET.write_text(drawing(ordered), encoding="utf-8")


if __name__ == "__main__":
    main()
