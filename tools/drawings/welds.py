"""The nine weld groups: large pictures with their parameters, and small icons.

The lines are those of the weld routines, y pointing up, L the base length and K the length kL.
The eccentricity aL runs from the centroid of the group, level, to the load line; a positive
angle Ø turns the load clockwise, so that its line leans to the right at the top.
"""

import math

from canvas import AXIS, BODY, INK, Canvas
from outline import Outline

WELD_WIDTH, ICON_WELD_WIDTH = 5.0, 4.6
ANGLE = math.radians(26)     # of the load as drawn
SHAFT = 104                  # length of the load's arrow
LENGTH, SECOND, SECOND_OF_ANGLE = 146, 90, 108
UNDER_LAST_ROW = 12

# Each group as its lines over L and K.
GROUPS = {
    1: lambda l, k: [((0, 0), (0, l))],     # two lines in one place, see weld_picture
    2: lambda l, k: [((0, 0), (0, l)), ((k, 0), (k, l))],
    3: lambda l, k: [((0, 0), (l, 0)), ((0, k), (l, k))],
    4: lambda l, k: [((0, 0), (k, 0)), ((k, 0), (k, l)), ((0, l), (k, l)), ((0, 0), (0, l))],
    5: lambda l, k: [((0, 0), (l, 0)), ((l, 0), (l, k)), ((0, k), (l, k)), ((0, 0), (0, k))],
    6: lambda l, k: [((0, 0), (k, 0)), ((0, 0), (0, l)), ((0, l), (k, l))],
    7: lambda l, k: [((0, 0), (k, 0)), ((k, 0), (k, l)), ((0, l), (k, l))],
    8: lambda l, k: [((0, 0), (0, l)), ((0, l), (k, l))],
    9: lambda l, k: [((0, l), (k, l)), ((k, 0), (k, l))],
}
WIDE_GROUPS = {3, 5}                  # their base length lies level
CENTROID_FROM_LEFT = {6, 8}           # xL from the left line
CENTROID_FROM_RIGHT = {7, 9}          # xL from the right line
CENTROID_FROM_TOP = {8, 9}            # yL


class Group:
    """A weld group in place: its lines in picture coordinates, its box and its centroid."""

    def __init__(self, item, length, second, left, bottom):
        raw = GROUPS[item](length, second)
        self.lines = [tuple((left + x, bottom - y) for x, y in line) for line in raw]
        xs = [p[0] for line in self.lines for p in line]
        ys = [p[1] for line in self.lines for p in line]
        self.left, self.right, self.top, self.bottom = min(xs), max(xs), min(ys), max(ys)
        total = sum(math.dist(*line) for line in self.lines)
        self.x, self.y = (sum(math.dist(p, q) * (p[i] + q[i]) / 2 for p, q in self.lines) / total
                          for i in (0, 1))

    def draw(self, canvas, width):
        for p, q in self.lines:
            canvas.line(p, q, INK, width, cap="round")


def weld_picture(item):
    canvas = Canvas(f"Weld Configuration {item}")
    second = SECOND_OF_ANGLE if item in CENTROID_FROM_TOP else SECOND
    group, load = centred(canvas, item, second)
    plate(canvas, group, load + 24)
    group.draw(canvas, WELD_WIDTH)
    if item == 1:
        canvas.note(group.left + 10, group.bottom - 22, "2 lines", colour=INK)
    level_line(canvas, group, load, item)
    lengths(canvas, group, item)
    eccentricity(canvas, group, item, load)
    load_arrow(canvas, load, group)
    return canvas


def centred(canvas, item, second):
    """The group and its load line, placed so that the whole picture is centred."""
    group = Group(item, LENGTH, second, 0, 0)
    load = max(group.right + 46, group.x + 92)
    left, right = -far_left(item) - 10, load + math.sin(ANGLE) * SHAFT + 12
    top = min(group.top - 36, group.y - math.cos(ANGLE) * SHAFT - 20)
    bottom = rows(group, item)[1] + UNDER_LAST_ROW
    dx, dy = (canvas.width - left - right) / 2, (canvas.height - top - bottom) / 2
    return Group(item, LENGTH, second, dx, dy), load + dx


def far_left(item):
    """How far left of the group the upright length stands."""
    return 56 if item in CENTROID_FROM_TOP else 30


def rows(group, item):
    """The heights of the dimension of xL and of that of aL."""
    first = group.bottom + 24
    return first, first + (26 if item in CENTROID_FROM_RIGHT else 0)


def plate(canvas, group, right):
    corners = [(group.left, group.top), (right, group.top), (right, group.bottom),
               (group.left, group.bottom)]
    canvas.body(Outline(corners), width=0.8)


def level_line(canvas, group, load, item):
    """The level of the centroid, to the load line and, where yL is measured, to its dimension."""
    start = group.left - 30 if item in CENTROID_FROM_TOP else group.x - 12
    canvas.axis_line((start, group.y), (load + 14, group.y))
    canvas.add("circle", cx=group.x, cy=group.y, r=3.2, fill=BODY, stroke=AXIS, stroke_width=1.2)


def lengths(canvas, group, item):
    upright, level = ("kL", "L") if item in WIDE_GROUPS else ("L", "kL")
    canvas.tall(group.top, group.bottom, group.left - far_left(item), upright,
                objects=(group.left - 3, group.left - 3))
    if item != 1:
        canvas.wide(group.left, group.right, group.top - 28, level,
                    objects=(group.top - 3, group.top - 3))
    if item in CENTROID_FROM_TOP:
        canvas.tall(group.top, group.y, group.left - 24, "yL", "left")


def eccentricity(canvas, group, item, load):
    first, last = rows(group, item)
    if item in CENTROID_FROM_LEFT:
        canvas.wide(group.left, group.x, first, "xL", "left", (group.bottom + 2, group.y + 4))
    elif item in CENTROID_FROM_RIGHT:
        canvas.wide(group.x, group.right, first, "xL", "right", (None, group.bottom + 2))
    start = {1: group.bottom + 2, 6: None, 8: None}.get(item, group.y + 4)
    canvas.wide(group.x, load, last, "aL", objects=(start, group.y))


def load_arrow(canvas, x, group):
    y, (dx, dy) = group.y, (math.sin(ANGLE), -math.cos(ANGLE))
    tail = x + dx * SHAFT, y + dy * SHAFT
    canvas.line((x + dx * 8, y + dy * 8), tail, AXIS, 2.2)
    canvas.arrow((x, y), (-dx, -dy), AXIS, 1.7)
    canvas.line((x, y), (x, y - SHAFT), AXIS, 0.8, "4 2.5")
    # The angle stands clear of the plate's edge, within the plate where it is deep enough.
    arc = 46 if y - group.top > 68 else 62
    canvas.arc((x, y), arc, -math.pi / 2, ANGLE - math.pi / 2, AXIS)
    middle = x + math.sin(ANGLE / 2) * (arc + 13) + 1, y - math.cos(ANGLE / 2) * (arc + 13)
    canvas.symbol(*middle, "Ø", colour=AXIS)
    canvas.symbol(tail[0] + dx * 12, tail[1] + dy * 11, "P", colour=AXIS)


def weld_icon(item):
    canvas = Canvas(f"Weld Configuration {item}", 48, 48)
    wide = item in WIDE_GROUPS
    length, second = (34, 22) if wide else (34, 26 if item in CENTROID_FROM_TOP else 20)
    width, height = (length, second) if wide else (0 if item == 1 else second, length)
    group = Group(item, length, second, 24 - width / 2, 24 + height / 2)
    group.draw(canvas, ICON_WELD_WIDTH)
    return canvas


PICTURES = {
    **{f"wImage{item}": (lambda item=item: weld_picture(item)) for item in GROUPS},
    **{f"weld{item}": (lambda item=item: weld_icon(item)) for item in GROUPS},
}
