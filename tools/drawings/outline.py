"""Closed outlines with rounded corners.

Coordinates are those of the picture, y pointing down.
"""

import math

SAMPLES_A_CURVE = 12


class Outline:
    """A polygon whose corners are (x, y) or (x, y, radius of the rounding)."""

    def __init__(self, corners):
        self.corners = [(c[0], c[1], c[2] if len(c) > 2 else 0.0) for c in corners]
        self.curves = [self._curve(i) for i in range(len(self.corners))]

    def toe(self, i):
        """The two points between which corner i is rounded, in the order of the outline."""
        return self.curves[i][0], self.curves[i][3]

    def _curve(self, i):
        (x0, y0, _), (x, y, r) = self.corners[i - 1], self.corners[i]
        x2, y2, _ = self.corners[(i + 1) % len(self.corners)]
        back, ahead = unit(x0 - x, y0 - y), unit(x2 - x, y2 - y)
        cosine = max(-1.0, min(1.0, -(back[0] * ahead[0] + back[1] * ahead[1])))
        turn = math.acos(cosine)
        reach = r * math.tan(turn / 2)
        # A cubic with these handles leaves the true arc by less than 0.03 % of the radius.
        handle = reach - 4 / 3 * math.tan(turn / 4) * r
        return [(x + d[0] * s, y + d[1] * s)
                for d, s in ((back, reach), (back, handle), (ahead, handle), (ahead, reach))]

    def points(self):
        """The outline as a polygon, rounded corners in short steps."""
        found = []
        for corner, curve in zip(self.corners, self.curves):
            steps = SAMPLES_A_CURVE if corner[2] else 0
            found += [bezier(curve, i / steps) for i in range(steps + 1)] if steps else [curve[0]]
        return found


def unit(x, y):
    length = math.hypot(x, y)
    return x / length, y / length


def bezier(p, t):
    weights = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t ** 3)
    return tuple(sum(w * q[axis] for w, q in zip(weights, p)) for axis in (0, 1))
