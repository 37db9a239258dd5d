"""The pictures of the section families, with the symbols of their property rows.

Centroids, plastic neutral axes and shear centres stand where the drawn outline has them. The
proportions are chosen to be read, thicker than most sections are. Property rows that no length
in the picture belongs to (weight, moduli, ratios) are not drawn; neither is k1 of the channels,
for which no figures are published.
"""

import math

from canvas import Canvas
from outline import Outline, centroid, half_area, weak_axis

SLOPE = 1 / 6   # flanges of S, ST, C and MC: 2 on 12


class Frame:
    """The outer box of a profile."""

    def __init__(self, left, top, width, depth):
        self.left, self.top, self.right, self.bottom = left, top, left + width, top + depth
        self.mid_x, self.mid_y = left + width / 2, top + depth / 2


# --- I-shapes

def i_outline(frame, tw, tf, fillet, slope=0.0, toe=0.0):
    """Corners clockwise from the upper left; tf is the thickness halfway out on the flange."""
    left, right = frame.mid_x - tw / 2, frame.mid_x + tw / 2
    rise = (frame.right - right) * slope / 2
    tip, root = tf - rise, tf + rise
    upper, lower = (lambda t: frame.top + t), (lambda t: frame.bottom - t)
    return Outline([
        (frame.left, frame.top), (frame.right, frame.top),
        (frame.right, upper(tip), toe), (right, upper(root), fillet),
        (right, lower(root), fillet), (frame.right, lower(tip), toe),
        (frame.right, frame.bottom), (frame.left, frame.bottom),
        (frame.left, lower(tip), toe), (left, lower(root), fillet),
        (left, upper(root), fillet), (frame.left, upper(tip), toe)])


def i_axes(canvas, frame, foot):
    canvas.axis((frame.left - 14, frame.mid_y), (frame.right + 10, frame.mid_y), "X")
    canvas.axis((frame.mid_x, frame.top - 5), (frame.mid_x, foot), "Y")


def depth_and_width(canvas, frame, x, y, symbols=("d", "b_f"), foot=None):
    """foot: where the extension line of the lower end starts, when not on the left edge."""
    canvas.tall(frame.top, frame.bottom, x, symbols[0], objects=(frame.left, foot or frame.left))
    canvas.wide(frame.left, frame.right, y, symbols[1], objects=(frame.top, frame.top))


def wide_flange(title, width, tw, tf, fillet, depth=176):
    canvas, frame = Canvas(title), Frame(152 - width / 2, 58, width, depth)
    outline = i_outline(frame, tw, tf, fillet)
    canvas.body(outline)
    i_axes(canvas, frame, frame.bottom + 26)
    depth_and_width(canvas, frame, frame.left - 51, 24)
    low_web, flange = outline.toe(4)
    high_web = outline.toe(3)[1]
    near, far = frame.right + 15, frame.right + 48
    canvas.tall(frame.top, high_web[1], near, "k_des", "right", (frame.right, high_web[0]))
    canvas.tall(high_web[1], low_web[1], far, "T", objects=(near + 3, low_web[0]))
    canvas.tall(low_web[1], frame.bottom, far, "k_det", "right", (None, frame.right))
    low_flange = outline.toe(4)[1]
    canvas.wide(frame.mid_x, low_flange[0], frame.bottom + 18, "k_1", "right",
                (None, low_flange[1]))
    canvas.tall(frame.bottom - tf, frame.bottom, frame.left - 14, "t_f", "left of first",
                (frame.left, frame.left), pinched=True)
    web_thickness(canvas, frame, tw, frame.mid_y - 30)
    return canvas


def web_thickness(canvas, frame, tw, y):
    canvas.wide(frame.mid_x - tw / 2, frame.mid_x + tw / 2, y, "t_w", "right", pinched=True)


def standard_beam():
    canvas, frame, tw, tf = Canvas("S-Shape"), Frame(98, 58, 124, 184), 15, 20
    outline = i_outline(frame, tw, tf, 12, SLOPE, 8)
    canvas.body(outline)
    i_axes(canvas, frame, frame.bottom + 8)
    depth_and_width(canvas, frame, 30, 24)
    far = frame.right + 46
    high, low = outline.toe(3)[1], outline.toe(4)[0]
    canvas.tall(frame.top, high[1], far, "k", "right", (frame.right, high[0]))
    canvas.tall(high[1], low[1], far, "T", objects=(None, low[0]))
    mid = (frame.left + frame.mid_x - tw / 2) / 2
    canvas.tall(frame.bottom - tf, frame.bottom, mid, "t_f", "left of first", pinched=True)
    web_thickness(canvas, frame, tw, frame.mid_y - 30)
    return canvas


# --- channels

def channel_outline(frame, tw, tf, fillet, toe):
    inner = frame.left + tw
    rise = (frame.right - inner) * SLOPE / 2
    return Outline([
        (frame.left, frame.top), (frame.right, frame.top),
        (frame.right, frame.top + tf - rise, toe), (inner, frame.top + tf + rise, fillet),
        (inner, frame.bottom - tf - rise, fillet), (frame.right, frame.bottom - tf + rise, toe),
        (frame.right, frame.bottom), (frame.left, frame.bottom)])


def channel_shear_centre(frame, tw, tf):
    """Distance behind the back of the web (thin-walled channel, flanges of mean thickness)."""
    flange = frame.right - frame.left - tw / 2
    depth = frame.bottom - frame.top - tf
    return 3 * flange ** 2 * tf / (6 * flange * tf + depth * tw) - tw / 2


def channel(title, width, tw, tf, depth):
    canvas, frame = Canvas(title), Frame(114, 60, width, depth)
    outline = channel_outline(frame, tw, tf, 11, 7)
    x, xp = centroid(outline.points())[0], half_area(outline.points(), 0)
    shear = frame.left - channel_shear_centre(frame, tw, tf)
    foot = frame.bottom + 20
    canvas.body(outline)
    canvas.axis((frame.left - 54, frame.mid_y), (frame.right + 8, frame.mid_y), "X")
    canvas.axis((x, frame.top - 5), (x, foot + 5), "Y")
    canvas.plastic_axis((xp, frame.top - 22), (xp, frame.bottom + 6))
    canvas.shear_centre(shear, frame.mid_y)
    channel_places(canvas, frame, (x, xp, shear), foot)
    channel_thicknesses(canvas, frame, outline, tw, tf)
    canvas.legend(plastic=True, shear=True)
    return canvas


def channel_places(canvas, frame, places, foot):
    x, xp, shear = places
    depth_and_width(canvas, frame, 24, 20)
    canvas.wide(shear, frame.left, foot, "e_0", "left", (frame.mid_y + 6, frame.bottom))
    canvas.wide(frame.left, x, foot, "x", "right")
    canvas.wide(frame.left, xp, frame.top - 18, "x_p", "left")


def channel_thicknesses(canvas, frame, outline, tw, tf):
    high, low = outline.toe(3)[1], outline.toe(4)[0]
    near, far = frame.right + 15, frame.right + 48
    canvas.tall(frame.top, high[1], near, "k_des", "right", (frame.right, high[0]))
    canvas.tall(high[1], low[1], far, "T", objects=(near + 3, low[0]))
    canvas.tall(low[1], frame.bottom, far, "k_det", "right", (None, frame.right))
    mid = (frame.left + tw + frame.right) / 2
    canvas.tall(frame.bottom - tf, frame.bottom, mid, "t_f", "right of last", pinched=True)
    canvas.wide(frame.left, frame.left + tw, frame.mid_y - 36, "t_w", "right", pinched=True)


# --- tees

def tee_outline(frame, tw, tf, fillet, slope=0.0, toe=0.0):
    left, right = frame.mid_x - tw / 2, frame.mid_x + tw / 2
    rise = (frame.right - right) * slope / 2
    tip, root = frame.top + tf - rise, frame.top + tf + rise
    return Outline([
        (frame.left, frame.top), (frame.right, frame.top), (frame.right, tip, toe),
        (right, root, fillet), (right, frame.bottom), (left, frame.bottom),
        (left, root, fillet), (frame.left, tip, toe)])


def tee(title, width, depth, tw, tf, fillet, slope=0.0, toe=0.0):
    canvas, frame = Canvas(title), Frame(158 - width / 2, 74, width, depth)
    outline = tee_outline(frame, tw, tf, fillet, slope, toe)
    y, yp = centroid(outline.points())[1], half_area(outline.points(), 1)
    canvas.body(outline)
    canvas.axis((frame.left - 26, y), (frame.right + 10, y), "X")
    canvas.axis((frame.mid_x, frame.top - 5), (frame.mid_x, frame.bottom + 8), "Y")
    canvas.plastic_axis((frame.left - 6, yp), (frame.right + 26, yp))
    tee_heights(canvas, frame, y, yp, outline.toe(3)[1])
    depth_and_width(canvas, frame, 20, 30, foot=frame.mid_x - tw / 2)
    mid = (frame.left + frame.mid_x - tw / 2) / 2
    canvas.tall(frame.top, frame.top + tf, mid, "t_f", "right of first", pinched=True)
    web_thickness(canvas, frame, tw, frame.bottom - 40)
    canvas.legend(plastic=True)
    return canvas


def tee_heights(canvas, frame, y, yp, web):
    canvas.tall(frame.top, y, frame.left - 20, "y", "right")
    canvas.tall(frame.top, yp, frame.right + 22, "y_p", "right of first", (frame.right, None))
    canvas.tall(frame.top, web[1], frame.right + 50, "k", "right", (frame.right + 25, web[0]))


# --- hollow sections

def box_outline(frame, inset, radius):
    left, top = frame.left + inset, frame.top + inset
    right, bottom = frame.right - inset, frame.bottom - inset
    return Outline([(left, top, radius), (right, top, radius),
                    (right, bottom, radius), (left, bottom, radius)])


def hollow_box(title, width, depth, wall=13):
    canvas = Canvas(title)
    frame = Frame(148 - width / 2, 62 + (182 - depth) / 2, width, depth)
    canvas.body(box_outline(frame, 0, 2 * wall), box_outline(frame, wall, wall))
    canvas.axis((frame.left - 10, frame.mid_y), (frame.right + 18, frame.mid_y), "X")
    canvas.axis((frame.mid_x, frame.top - 5), (frame.mid_x, frame.bottom + 14), "Y")
    depth_and_width(canvas, frame, frame.left - 50, frame.top - 36, ("H_t", "b"))
    canvas.wide(frame.right - wall, frame.right, frame.mid_y - 36, "t_nom, t_des", "right")
    return canvas


def ring(frame, inset):
    radius = (frame.right - frame.left) / 2 - inset
    return box_outline(frame, inset, radius)


def hollow_round(title, wall, inside):
    canvas, frame = Canvas(title), Frame(78, 62, 176, 176)
    canvas.body(ring(frame, 0), ring(frame, wall))
    canvas.axis((frame.left - 8, frame.mid_y), (frame.right + 8, frame.mid_y), "X")
    canvas.axis((frame.mid_x, frame.top - 8), (frame.mid_x, frame.bottom + 10), "Y")
    canvas.tall(frame.top, frame.bottom, 28, "OD", objects=(frame.mid_x - 4, frame.mid_x - 4))
    if inside:
        inside_diameter(canvas, frame, wall)
    round_wall(canvas, frame, wall)
    return canvas


def inside_diameter(canvas, frame, wall):
    """A slanting dimension through the centre, its symbol beside the axes."""
    radius, angle = (frame.right - frame.left) / 2 - wall, math.radians(45)
    dx, dy = math.cos(angle), math.sin(angle)
    at = lambda r: (frame.mid_x + dx * r, frame.mid_y + dy * r)
    canvas.arrow(at(-radius), (-dx, -dy))
    canvas.arrow(at(radius), (dx, dy))
    canvas.line(at(-radius), at(24))
    canvas.line(at(54), at(radius))
    canvas.symbol(*at(39), "ID")


def round_wall(canvas, frame, wall):
    """The wall thickness along a radius, with a shoulder that carries the symbols."""
    radius, angle = (frame.right - frame.left) / 2, math.radians(-48)
    dx, dy = math.cos(angle), math.sin(angle)
    at = lambda r: (frame.mid_x + dx * r, frame.mid_y + dy * r)
    canvas.pinch(at(radius - wall), at(radius), (dx, dy))
    shoulder = at(radius + 20)
    canvas.line(shoulder, (shoulder[0] + 8, shoulder[1]))
    canvas.symbol(shoulder[0] + 12, shoulder[1], "t_nom, t_des", "start")


# --- angles

def angle_outline(heel, across, down, t, fillet, toe):
    """An angle whose heel is at a point; across and down are the signed lengths of its legs."""
    x, y = heel
    sx, sy = math.copysign(1, across), math.copysign(1, down)
    return Outline([
        (x, y), (x + across, y), (x + across, y + sy * t, toe), (x + sx * t, y + sy * t, fillet),
        (x + sx * t, y + down, toe), (x, y + down)])


def single_angle():
    canvas, frame, t = Canvas("Angle"), Frame(112, 64, 122, 160), 20
    heel = (frame.left, frame.bottom)
    outline = angle_outline(heel, 122, -160, t, 19, 9)
    polygon = outline.points()
    centre = centroid(polygon)
    plastic = half_area(polygon, 0), half_area(polygon, 1)
    canvas.body(outline)
    single_axes(canvas, frame, centre, weak_axis(polygon), t)
    canvas.plastic_axis((plastic[0], frame.top - 20), (plastic[0], frame.bottom + 6))
    canvas.plastic_axis((frame.left - 22, plastic[1]), (frame.right + 6, plastic[1]))
    canvas.shear_centre(frame.left + t / 2, frame.bottom - t / 2)
    single_places(canvas, frame, centre, plastic, t)
    single_lengths(canvas, frame, outline, t)
    canvas.legend(plastic=True, shear=True)
    return canvas


def single_axes(canvas, frame, centre, weak, t):
    x, y = centre
    canvas.axis((frame.left - 46, y), (frame.right + 6, y), "X")
    canvas.axis((x, frame.top - 41), (x, frame.bottom + 6), "Y", both=False)
    sign = -1 if weak[1] > 0 else 1
    dx, dy = weak[0] * sign, weak[1] * sign
    canvas.axis((x + dx * 134, y + dy * 134), (x - dx * 84, y - dy * 84), "Z")
    slant = math.atan2(dy, dx)
    canvas.arc(centre, 84, slant, -math.pi / 2)
    canvas.arrow(polar_point(centre, 84, slant), (dy, -dx), scale=0.8)
    canvas.arrow((x, y - 84), (1, 0), scale=0.8)
    canvas.symbol(frame.left + t / 2, y - 97, "α")


def polar_point(centre, radius, angle):
    return centre[0] + radius * math.cos(angle), centre[1] + radius * math.sin(angle)


def single_places(canvas, frame, centre, plastic, t):
    canvas.wide(frame.left, plastic[0], frame.top - 16, "x_p", "right", (frame.top, None))
    canvas.wide(frame.left, centre[0], frame.top - 37, "x", "right", (frame.top - 16, None))
    canvas.tall(plastic[1], frame.bottom, frame.left - 18, "y_p", "left", (None, frame.left))
    canvas.tall(centre[1], frame.bottom, frame.left - 42, "y", "left", (None, frame.left - 18))
    canvas.wide(frame.left, frame.left + t / 2, frame.bottom + 15, "e_o", "left",
                (frame.bottom, frame.bottom - t / 2 + 6))


def single_lengths(canvas, frame, outline, t):
    flange, web = outline.toe(3)
    canvas.tall(frame.top, frame.bottom, 18, "d", objects=(frame.left, frame.left - 42))
    canvas.wide(frame.left, frame.right, frame.bottom + 47, "b",
                objects=(frame.bottom + 16, frame.bottom))
    canvas.wide(frame.left, flange[0], frame.bottom + 33, "k_des", "left", (None, flange[1]))
    canvas.tall(web[1], frame.bottom, frame.right + 34, "k_det", "right", (web[0], frame.right))
    canvas.tall(frame.bottom - t, frame.bottom, frame.right - 24, "t", "right of last", pinched=True)


def double_angle(title, leg_down, leg_across, t, plastic):
    gap = 9
    canvas = Canvas(title)
    frame = Frame(162 - leg_across - gap / 2, 156 - leg_down / 2, 2 * leg_across + gap, leg_down)
    heels = frame.mid_x - gap / 2, frame.mid_x + gap / 2
    angles = [angle_outline((heel, frame.top), leg, leg_down, t, 10, 7)
              for heel, leg in zip(heels, (-leg_across, leg_across))]
    for angle in angles:
        canvas.body(angle)
    double_heights(canvas, frame, angles[1].points(), plastic)
    double_lengths(canvas, frame, heels, t)
    return canvas


def double_heights(canvas, frame, polygon, plastic):
    y, yp = centroid(polygon)[1], half_area(polygon, 1)
    canvas.axis((frame.left - 24, y), (frame.right + 8, y), "X")
    canvas.axis((frame.mid_x, frame.top - 38), (frame.mid_x, frame.bottom + 8), "Y")
    canvas.tall(frame.top, y, frame.left - 18, "y", "right")
    if plastic:
        canvas.plastic_axis((frame.left + 6, yp), (frame.right + 36, yp))
        canvas.tall(frame.top, yp, frame.right + 32, "y_p", "right of first", (frame.right, None))
        canvas.legend(plastic=True)


def double_lengths(canvas, frame, heels, t):
    canvas.tall(frame.top, frame.bottom, frame.left - 48, "d",
                objects=(frame.left, heels[0] - t))
    canvas.wide(heels[1], frame.right, frame.top - 28, "b", objects=(frame.top, frame.top))
    middle = (heels[1] + t + frame.right) / 2
    canvas.tall(frame.top, frame.top + t, middle, "t", "right of first", pinched=True)


# --- the list

PICTURES = {
    "WShapeImage": lambda: wide_flange("W-Shape", 150, 13, 19, 13),
    "MShapeImage": lambda: wide_flange("M-Shape", 112, 9, 12, 12, 180),
    "HPShapeImage": lambda: wide_flange("HP-Shape", 170, 16, 16, 13, 168),
    "SShapeImage": standard_beam,
    "CShapeImage": lambda: channel("C-Shape", 100, 22, 18, 176),
    "MCShapeImage": lambda: channel("MC-Shape", 118, 25, 18, 176),
    "WTShapeImage": lambda: tee("WT-Shape", 168, 186, 13, 20, 12),
    "MTShapeImage": lambda: tee("MT-Shape", 150, 180, 9, 17, 11),
    "STShapeImage": lambda: tee("ST-Shape", 140, 190, 15, 19, 11, SLOPE, 7),
    "HSSRecImage": lambda: hollow_box("Rectangular HSS", 116, 184),
    "HSSSqrImage": lambda: hollow_box("Square HSS", 160, 160),
    "HSSRndImage": lambda: hollow_round("Round HSS", 13, False),
    "PipeImage": lambda: hollow_round("Pipe", 16, True),
    "SAngleImage": single_angle,
    "DLEqImage": lambda: double_angle("Double Angle (Equal Legs)", 100, 100, 15, False),
    "DLUnEqImage1": lambda: double_angle("Short legs back to back", 76, 98, 14, True),
    "DLUnEqImage2": lambda: double_angle("Long legs back to back", 146, 94, 15, True),
}
