# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Plane geometry on integer points (x, y), and a grid that finds neighbours."""

import math
from collections import defaultdict


class Buckets:
    """Segments or points by the squares of a grid that their bounding boxes touch."""

    def __init__(self, size):
        self.size = size
        self.squares = defaultdict(list)

    def _span(self, points, margin):
        xs = [point[0] for point in points]
        ys = [point[1] for point in points]
        for i in range((min(xs) - margin) // self.size, (max(xs) + margin) // self.size + 1):
            for j in range((min(ys) - margin) // self.size, (max(ys) + margin) // self.size + 1):
                yield i, j

    def add(self, item, points):
        for square in self._span(points, 0):
            self.squares[square].append(item)

    def near(self, points, margin=0):
        """The items that share a square with the points' bounding box, each once, in order."""
        found = {}
        for square in self._span(points, margin):
            for item in self.squares.get(square, ()):
                found[item] = True
        return list(found)


def area2(ring):
    """Twice the signed area of a closed ring (first point repeated or not)."""
    return sum(ring[i - 1][0] * ring[i][1] - ring[i][0] * ring[i - 1][1] for i in range(len(ring)))


def contains(rings, x, y):
    """Whether the point lies in the rings by the odd-even rule."""
    inside = False
    for ring in rings:
        for i in range(len(ring)):
            (x1, y1), (x2, y2) = ring[i - 1], ring[i]
            if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
                inside = not inside
    return inside


def foot(point, a, b):
    """Where on a-b the point's nearest position lies (0 to 1) and how far away it is."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    length2 = dx * dx + dy * dy
    t = 0.0 if length2 == 0 else ((point[0] - a[0]) * dx + (point[1] - a[1]) * dy) / length2
    t = min(1.0, max(0.0, t))
    return t, math.hypot(point[0] - a[0] - t * dx, point[1] - a[1] - t * dy)


def cross(o, a, b):
    return (a[0] - o[0]) * (b[1] - o[1]) - (a[1] - o[1]) * (b[0] - o[0])


def _within_box(point, a, b):
    return (min(a[0], b[0]) <= point[0] <= max(a[0], b[0])
            and min(a[1], b[1]) <= point[1] <= max(a[1], b[1]))


def meeting(a, b, c, d):
    """The points at which segments a-b and c-d meet other than in a common end, rounded."""
    o1, o2 = cross(a, b, c), cross(a, b, d)
    o3, o4 = cross(c, d, a), cross(c, d, b)
    points = set()
    for orientation, point, p, q in ((o1, c, a, b), (o2, d, a, b), (o3, a, c, d), (o4, b, c, d)):
        if orientation == 0 and point not in (p, q) and _within_box(point, p, q):
            points.add(point)
    if not points and o1 and o2 and o3 and o4 and (o1 > 0) != (o2 > 0) and (o3 > 0) != (o4 > 0):
        t = o3 / (o3 - o4)
        points.add((round(a[0] + t * (b[0] - a[0])), round(a[1] + t * (b[1] - a[1]))))
    return points


def inner_point(rings):
    """A point (floats) well inside the rings: the widest of some horizontal cuts, in its middle."""
    ys = sorted({point[1] for ring in rings for point in ring})
    low, high = ys[0], ys[-1]
    levels = [low + (high - low) * (k + 0.5) / 24 for k in range(24)] + [
        (p + q) / 2 for p, q in zip(ys, ys[1:])][:2000]
    best = None
    for y in levels:
        xs = sorted(x1 + (y - y1) * (x2 - x1) / (y2 - y1)
                    for ring in rings for (x1, y1), (x2, y2) in zip(ring, ring[1:] + ring[:1])
                    if (y1 > y) != (y2 > y))
        for left, right in zip(xs[::2], xs[1::2]):
            if best is None or right - left > best[0]:
                best = (right - left, (left + right) / 2, y)
    return best[1], best[2]
