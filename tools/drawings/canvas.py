"""A picture in SVG Tiny: bodies, lines, arrowheads, dimensions and symbols with subscripts.

It remembers the boxes of its texts and the strokes of its lines, so that a picture in which
something runs into a text is found without looking.
"""

import math
from xml.sax.saxutils import escape

# The program replaces these four colours by those of its palette when it loads a picture.
INK, BODY, MEASURE, AXIS = "#101010", "#d9e2ec", "#1f5fa8", "#a83232"
KEY_COLOURS = (INK, BODY, MEASURE, AXIS)

TEXT, SUBSCRIPT, NOTE = 15.0, 11.0, 11.5     # font sizes
SUBSCRIPT_DROP, COMMA = 4.0, 8.0
ARROW, ARROW_HALF = 7.0, 2.3
OBJECT_GAP, OVERSHOOT = 2.5, 3.0             # of extension lines
TAIL = 13.0                                  # of an arrow that points inwards from outside
BEST_INSIDE = 17.0                           # from this length on arrows stand between the ends

NARROW, WIDE = "iljt1Ifr.,:() ", "mwMWØ"


def number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def text_width(text, size):
    """About the width of a sans-serif text; real fonts differ by a few percent."""
    return size * sum(0.36 if c in NARROW else 0.9 if c in WIDE else 0.63 for c in text)


def parts_of(symbol):
    """"b_f" is b with the subscript f; parts are divided by commas."""
    found = []
    for part in symbol.split(","):
        main, _, sub = part.strip().partition("_")
        found.append((main, sub))
    return found


class Canvas:
    def __init__(self, title, width=330, height=300):
        self.title, self.width, self.height = title, width, height
        self.elements, self.strokes, self.boxes = [], [], []

    # --- plain marks

    def svg(self):
        size = f'{self.width} {self.height}'
        head = ('<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                f'width="{self.width}" height="{self.height}" viewBox="0 0 {size}">')
        title = f"<title>{escape(self.title)}</title>"
        return "\n".join([head, title, *self.elements, "</svg>", ""])

    def add(self, tag, **attributes):
        text = " ".join(f'{k.replace("_", "-")}="{v if isinstance(v, str) else number(v)}"'
                        for k, v in attributes.items())
        self.elements.append(f"<{tag} {text}/>")

    def body(self, *outlines, fill=BODY, stroke=INK, width=1.4):
        """One body; every outline after the first is a hole in it."""
        path = " ".join(path_of(o) for o in outlines)
        self.add("path", d=path, fill=fill, fill_rule="evenodd", stroke=stroke,
                 stroke_width=width, stroke_linejoin="round")
        for points in (o.points() for o in outlines):
            self.strokes += zip(points, points[1:] + points[:1])

    def line(self, p, q, colour=MEASURE, width=0.9, dash=None, cap=None):
        extra = {"stroke_dasharray": dash} if dash else {}
        extra |= {"stroke_linecap": cap} if cap else {}
        self.add("line", x1=p[0], y1=p[1], x2=q[0], y2=q[1], stroke=colour,
                 stroke_width=width, **extra)
        self.strokes.append((p, q))

    def path(self, d, colour, width, **extra):
        self.add("path", d=d, fill="none", stroke=colour, stroke_width=width, **extra)

    def arrow(self, tip, direction, colour=MEASURE, scale=1.0):
        (x, y), (dx, dy) = tip, direction
        back, half = ARROW * scale, ARROW_HALF * scale
        points = [tip, (x - dx * back - dy * half, y - dy * back + dx * half),
                  (x - dx * back + dy * half, y - dy * back - dx * half)]
        self.add("polygon", points=" ".join(f"{number(a)},{number(b)}" for a, b in points),
                 fill=colour)

    def arc(self, centre, radius, start, end, colour=MEASURE, width=0.9):
        """An arc of at most a quarter turn, angles in radians from the x-axis towards y down."""
        turn = end - start
        handle = 4 / 3 * math.tan(turn / 4) * radius
        a, b = polar(centre, radius, start), polar(centre, radius, end)
        c = (a[0] - math.sin(start) * handle, a[1] + math.cos(start) * handle)
        d = (b[0] + math.sin(end) * handle, b[1] - math.cos(end) * handle)
        self.path("M" + pair(a) + " C" + " ".join(map(pair, (c, d, b))), colour, width)
        steps = [polar(centre, radius, start + turn * i / 6) for i in range(7)]
        self.strokes += list(zip(steps, steps[1:]))

    # --- texts

    def text(self, x, y, text, colour=MEASURE, size=TEXT, anchor="start"):
        """One run of text on the baseline y."""
        self.elements.append(
            f'<text x="{number(x)}" y="{number(y)}" font-family="sans-serif" '
            f'font-size="{number(size)}" fill="{colour}" text-anchor="{anchor}">'
            f"{escape(text)}</text>")
        width = text_width(text, size)
        left = x - {"start": 0, "middle": width / 2, "end": width}[anchor]
        drop = 0.22 * size if set(text) & set("gpqyjQ,") else 0
        rise = 0.58 * size if text and set(text) <= set("acemnopqrsuvwxyz") else 0.75 * size
        self.boxes.append((text, left, y - rise, left + width, y + drop))

    def symbol(self, x, y, symbol, anchor="middle", colour=MEASURE):
        """A symbol whose middle height is y. Letter and subscript meet at one point, from which
        each runs away, so that they fit together in any font."""
        parts, baseline = parts_of(symbol), y + 0.33 * TEXT
        left = x - {"start": 0, "middle": 0.5, "end": 1}[anchor] * symbol_width(symbol)
        for i, (main, sub) in enumerate(parts):
            joint = left + text_width(main, TEXT)
            self.text(joint, baseline, main, colour, anchor="end")
            if sub:
                self.text(joint + 0.5, baseline + SUBSCRIPT_DROP, sub, colour, SUBSCRIPT)
            left = joint + text_width(sub, SUBSCRIPT) + 1
            if i + 1 < len(parts):
                self.text(left, baseline, ",", colour)
                left += COMMA

    # --- dimensions

    def extend(self, p, q):
        """An extension line from the object at p to the dimension line at q."""
        if math.dist(p, q) <= OBJECT_GAP:
            return
        dx, dy = (q[0] - p[0]) / math.dist(p, q), (q[1] - p[1]) / math.dist(p, q)
        self.line((p[0] + dx * OBJECT_GAP, p[1] + dy * OBJECT_GAP),
                  (q[0] + dx * OVERSHOOT, q[1] + dy * OVERSHOOT), width=0.6)

    def wide(self, x1, x2, y, symbol, place="in", objects=(None, None), pinched=False):
        """A horizontal dimension at height y; objects: heights where its extension lines start."""
        for x, start in zip((x1, x2), objects):
            if start is not None:
                self.extend((x, start), (x, y))
        self._dimension((x1, y), (x2, y), symbol, place, pinched)

    def tall(self, y1, y2, x, symbol, place="in", objects=(None, None), pinched=False):
        """A vertical dimension at x, y1 above y2; objects: where its extension lines start."""
        for y, start in zip((y1, y2), objects):
            if start is not None:
                self.extend((start, y), (x, y))
        self._dimension((x, y1), (x, y2), symbol, place, pinched)

    def _dimension(self, p, q, symbol, place, pinched):
        length = math.dist(p, q)
        direction = (q[0] - p[0]) / length, (q[1] - p[1]) / length
        pinched = pinched or length < BEST_INSIDE
        if pinched:
            self.pinch(p, q, direction)
        else:
            self.arrow(p, (-direction[0], -direction[1]))
            self.arrow(q, direction)
            self._shaft(p, q, direction, symbol if place == "in" else None)
        tail = TAIL if pinched else 0
        self._dimension_symbol(p, q, symbol, place, tail)

    def _shaft(self, p, q, direction, symbol):
        if symbol is None:
            self.line(p, q)
            return
        width = symbol_width(symbol) if direction[1] == 0 else TEXT * 1.15
        reach = (math.dist(p, q) - width) / 2 - 3.5
        self.line(p, (p[0] + direction[0] * reach, p[1] + direction[1] * reach))
        self.line((q[0] - direction[0] * reach, q[1] - direction[1] * reach), q)

    def pinch(self, p, q, direction):
        """Two arrows that point at a short distance from outside."""
        dx, dy = direction
        self.line((p[0] - dx * (ARROW + TAIL), p[1] - dy * (ARROW + TAIL)), p)
        self.line(q, (q[0] + dx * (ARROW + TAIL), q[1] + dy * (ARROW + TAIL)))
        self.line(p, q, width=0.5)
        self.arrow(p, direction)
        self.arrow(q, (-dx, -dy))

    def _dimension_symbol(self, p, q, symbol, place, tail):
        x, y = (p[0] + q[0]) / 2, (p[1] + q[1]) / 2
        out = tail + ARROW if tail else 0
        flat = p[1] == q[1]
        if place == "in":
            self.symbol(x, y, symbol)
        elif place == "left":
            self.symbol((p[0] - out if flat else x) - 5, y, symbol, "end")
        elif place == "right":
            self.symbol((q[0] + out if flat else x) + 5, y, symbol, "start")
        elif place == "above":
            self.symbol(x, (y if flat else p[1] - out) - 12, symbol)
        elif place == "below":
            self.symbol(x, (y if flat else q[1] + out) + 10, symbol)
        elif place == "right of first":
            self.symbol(p[0] + 5, p[1] - out + 5, symbol, "start")
        elif place == "left of first":
            self.symbol(p[0] - 5, p[1] - out + 5, symbol, "end")
        elif place == "right of last":
            self.symbol(q[0] + 5, q[1] + out - 5, symbol, "start")
        else:
            raise ValueError(place)

    # --- axes and marked points

    def axis_line(self, p, q):
        self.line(p, q, AXIS, 0.9, "12 3 2.5 3")

    def axis(self, p, q, letter, both=True):
        """A centre line with its letter beyond both ends, or beyond the first one only."""
        self.axis_line(p, q)
        dx, dy = (q[0] - p[0]) / math.dist(p, q), (q[1] - p[1]) / math.dist(p, q)
        for (x, y), sign in ((p, -1), (q, 1))[:2 if both else 1]:
            self.letter(x + sign * dx * 9, y + sign * dy * 10, letter)

    def letter(self, x, y, letter):
        self.text(x, y + 0.36 * NOTE * 1.15, letter, INK, NOTE * 1.15, "middle")

    def plastic_axis(self, p, q):
        self.line(p, q, AXIS, 0.9, "4 2.5")

    def note(self, x, y, text, anchor="start", colour=AXIS):
        self.text(x, y + 0.36 * NOTE, text, colour, NOTE, anchor)

    def shear_centre(self, x, y):
        self.add("circle", cx=x, cy=y, r=3.6, fill="none", stroke=AXIS, stroke_width=1.1)
        for dx, dy in ((6.5, 0), (0, 6.5)):
            self.line((x - dx, y - dy), (x + dx, y + dy), AXIS, 0.9)

    def legend(self, plastic=False, shear=False):
        """What the dashed line and the crossed circle stand for, at the foot of the picture."""
        y, x = self.height - 8, 12
        if plastic:
            self.plastic_axis((x, y), (x + 22, y))
            self.note(x + 27, y, "plastic neutral axis")
        if shear:
            x = 176
            self.shear_centre(x + 7, y)
            self.note(x + 18, y, "shear center")

    # --- what is wrong with the picture

    def faults(self):
        found = [f"'{b[0]}' leaves the picture" for b in self.boxes
                 if b[1] < 1 or b[2] < 1 or b[3] > self.width - 1 or b[4] > self.height - 1]
        for i, a in enumerate(self.boxes):
            found += [f"'{a[0]}' meets '{b[0]}'" for b in self.boxes[i + 1:] if meet(a, b)]
            found += [f"'{a[0]}' is struck by {pair(s[0])} - {pair(s[1])}"
                      for s in self.strokes if strikes(s, a)]
        return found


def symbol_width(symbol):
    return sum(text_width(main, TEXT) + text_width(sub, SUBSCRIPT) + (0.5 if sub else 0)
               for main, sub in parts_of(symbol)) + (COMMA + 1) * (len(parts_of(symbol)) - 1)


def pair(p):
    return f"{number(p[0])} {number(p[1])}"


def polar(centre, radius, angle):
    return centre[0] + radius * math.cos(angle), centre[1] + radius * math.sin(angle)


def path_of(outline):
    pieces = []
    for corner, curve in zip(outline.corners, outline.curves):
        pieces.append(("L" if pieces else "M") + pair(curve[0]))
        if corner[2]:
            pieces.append("C" + " ".join(map(pair, curve[1:])))
    return " ".join(pieces) + " Z"


def meet(a, b):
    return a[1] < b[3] - 0.3 and b[1] < a[3] - 0.3 and a[2] < b[4] - 0.3 and b[2] < a[4] - 0.3


def strikes(stroke, box):
    """Whether a stroke passes through a box (Liang and Barsky's clipping)."""
    (x0, y0), (x1, y1) = stroke
    enter, leave = 0.0, 1.0
    for move, low, high in ((x1 - x0, box[1] - x0, box[3] - x0), (y1 - y0, box[2] - y0, box[4] - y0)):
        if move == 0:
            if low >= 0 or high <= 0:
                return False
            continue
        a, b = sorted((low / move, high / move))
        enter, leave = max(enter, a), min(leave, b)
    return enter < leave
