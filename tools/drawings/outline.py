"""Closed outlines with rounded corners, and what they weigh: area, centroid, neutral axes.

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


def moments(polygon):
    """Area, first moments and second moments (A, Sx, Sy, Ixx, Iyy, Ixy) about the origin."""
    sums = [0.0] * 6
    for (x0, y0), (x1, y1) in zip(polygon, polygon[1:] + polygon[:1]):
        cross = x0 * y1 - x1 * y0
        sums[0] += cross / 2
        sums[1] += cross * (y0 + y1) / 6
        sums[2] += cross * (x0 + x1) / 6
        sums[3] += cross * (y0 * y0 + y0 * y1 + y1 * y1) / 12
        sums[4] += cross * (x0 * x0 + x0 * x1 + x1 * x1) / 12
        sums[5] += cross * (x0 * y1 + 2 * x0 * y0 + 2 * x1 * y1 + x1 * y0) / 24
    return [s * math.copysign(1, sums[0]) for s in sums]


def centroid(polygon):
    area, sx, sy = moments(polygon)[:3]
    return sy / area, sx / area


def below(polygon, axis, limit):
    """The part of the polygon whose coordinate on the axis (0 x, 1 y) is at most the limit."""
    kept = []
    for p, q in zip(polygon, polygon[1:] + polygon[:1]):
        if p[axis] <= limit:
            kept.append(p)
        if (p[axis] <= limit) != (q[axis] <= limit):
            t = (limit - p[axis]) / (q[axis] - p[axis])
            kept.append((p[0] + t * (q[0] - p[0]), p[1] + t * (q[1] - p[1])))
    return kept


def half_area(polygon, axis):
    """Where the plastic neutral axis lies: the coordinate that halves the area."""
    values = [p[axis] for p in polygon]
    low, high, half = min(values), max(values), moments(polygon)[0] / 2
    for _ in range(60):
        middle = (low + high) / 2
        if moments(below(polygon, axis, middle))[0] < half:
            low = middle
        else:
            high = middle
    return low


def weak_axis(polygon):
    """The unit direction of the principal axis about which the second moment is smallest."""
    area, sx, sy, ixx, iyy, ixy = moments(polygon)
    ixx, iyy, ixy = ixx - sx * sx / area, iyy - sy * sy / area, ixy - sx * sy / area
    # Iyy and Ixx are spreads along x and y; the weak axis runs along the widest spread.
    angle = 0.5 * math.atan2(2 * ixy, iyy - ixx)
    return math.cos(angle), math.sin(angle)
