"""The application icon, in colour and in one colour."""

from canvas import INK, Canvas, path_of
from outline import Outline

SHADES = (("#2c7fc9", "0"), ("#153e6f", "1"))    # of the badge, from the top down
STEEL, EDGE, TICK = "#f4f8fc", "#0d2c52", "#ffb454"


class Frame:
    """The outer box of a profile."""

    def __init__(self, left, top, width, depth):
        self.left, self.top, self.right, self.bottom = left, top, left + width, top + depth
        self.mid_x, self.mid_y = left + width / 2, top + depth / 2


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


def gradient(canvas):
    stops = "".join(f'<stop offset="{at}" stop-color="{colour}"/>' for colour, at in SHADES)
    canvas.elements.append('<defs><linearGradient id="badge" gradientUnits="userSpaceOnUse" '
                           f'x1="0" y1="4" x2="0" y2="124">{stops}</linearGradient></defs>')


def application_icon():
    canvas = Canvas("Tensarix", 128, 128)
    gradient(canvas)
    canvas.add("rect", x=4, y=4, width=120, height=120, rx=27, ry=27, fill="url(#badge)")
    profile = i_outline(Frame(31, 22, 66, 84), 14, 16, 9)
    canvas.add("path", d=path_of(profile), fill=STEEL, stroke=EDGE, stroke_width=1.5,
               stroke_linejoin="round")
    for x in (14, 78):
        canvas.add("rect", x=x, y=62, width=36, height=4, rx=2, fill=TICK)
    return canvas


def symbolic_icon():
    canvas = Canvas("Tensarix", 128, 128)
    profile = i_outline(Frame(20, 14, 88, 100), 18, 20, 10)
    canvas.add("path", d=path_of(profile), fill=INK)
    return canvas


PICTURES = {"tensarix": application_icon, "tensarix-symbolic": symbolic_icon}
