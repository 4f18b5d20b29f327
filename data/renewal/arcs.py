# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Turns a coverage's borders into arcs between junctions, thins each once, and chains rings of them.

As an arc is thinned for both of its sides at once, neighbours keep sharing every edge.
"""

import math
from collections import defaultdict

from .coverage import OUTSIDE
from .geometry import Buckets, area2, foot, meeting


def borders(coverage, final):
    """{(a, b): (owner on the left, owner on the right)} of the edges between different owners."""
    result = {}
    for a, b in coverage.labels:
        left, right = final[coverage.left(a, b)], final[coverage.left(b, a)]
        if left != right:
            result[a, b] = (left, right)
    return result


def arcs_of(edges):
    """Chains border edges into arcs between junctions: [(points, left owner, right owner)]."""
    ends = defaultdict(list)
    for (a, b), (left, right) in edges.items():
        ends[a].append((b, left, right))
        ends[b].append((a, right, left))
    for neighbours in ends.values():
        neighbours.sort(key=lambda item: item[0])

    def is_junction(point):
        neighbours = ends[point]
        return len(neighbours) != 2 or neighbours[0][1:] != neighbours[1][:0:-1]

    used = set()
    arcs = []

    def chain(start, step):
        points, owners = [start], step[1:]
        previous, current = start, step[0]
        used.add(frozenset((previous, current)))
        points.append(current)
        while current != start and not is_junction(current):
            following = next(item[0] for item in ends[current] if item[0] != previous)
            previous, current = current, following
            used.add(frozenset((previous, current)))
            points.append(current)
        arcs.append((points, *owners))

    for only_junctions in (True, False):
        for point in sorted(ends):
            if only_junctions and not is_junction(point):
                continue
            for step in ends[point]:
                if frozenset((point, step[0])) not in used:
                    chain(point, step)
    return arcs


def thin(points, tolerance, x_scale):
    """Douglas-Peucker: no dropped point is farther than `tolerance` from the thinned line.

    Distances are taken with x multiplied by x_scale. A closed line keeps the point farthest from
    its start and one beside, so that it stays a ring.
    """
    flat = [(x * x_scale, y) for x, y in points]
    keep = {0, len(points) - 1}
    if points[0] == points[-1]:
        far = max(range(len(flat)), key=lambda i: math.hypot(flat[i][0] - flat[0][0],
                                                             flat[i][1] - flat[0][1]))
        if 0 < far < len(points) - 1:
            keep.add(far)
            side = max(range(len(flat)), key=lambda i: foot(flat[i], flat[0], flat[far])[1])
            keep.add(side)
    stops = sorted(keep)
    todo = list(zip(stops, stops[1:]))
    while todo:
        first, last = todo.pop()
        worst, at = tolerance, None
        for i in range(first + 1, last):
            distance = foot(flat[i], flat[first], flat[last])[1]
            if distance > worst:
                worst, at = distance, i
        if at is not None:
            keep.add(at)
            todo += [(first, at), (at, last)]
    return [points[i] for i in sorted(keep)]


def crossing_arcs(lines):
    """The numbers of the lines that meet another line, or themselves, other than in common ends."""
    grid = Buckets(1000)
    segments = {}
    bad = set()
    for number, line in enumerate(lines):
        for a, b in zip(line, line[1:]):
            segment = (min(a, b), max(a, b))
            if segment in segments:
                bad |= {number, segments[segment]}
            segments[segment] = number
            grid.add(segment, segment)
    for segment, number in segments.items():
        for other in grid.near(segment):
            if other > segment and meeting(*segment, *other):
                bad |= {number, segments[other]}
    return bad


def simplify_arcs(arcs, tolerance):
    """The arcs thinned, each once; where thinned arcs would cross, they keep more points."""
    tolerances = [tolerance] * len(arcs)

    def thinned(i):
        points = arcs[i][0]
        if tolerances[i] == 0:
            return points
        # Degrees of longitude shrink with latitude; coordinates are ten-thousandths of degrees.
        x_scale = math.cos(math.radians(points[0][1] / 10000.0))
        return thin(points, tolerances[i], x_scale)

    lines = [thinned(i) for i in range(len(arcs))]
    while True:
        bad = {i for i in crossing_arcs(lines) if tolerances[i]}
        if not bad:
            break
        for i in bad:
            tolerances[i] = tolerances[i] / 2 if tolerances[i] > 2 else 0
            lines[i] = thinned(i)
    return [(line, *arc[1:]) for line, arc in zip(lines, arcs)]


def rings_of(arcs):
    """{owner: rings}: closed rings (first point repeated), owner on the left, largest first."""
    sides = defaultdict(list)
    for points, left, right in arcs:
        if left is not OUTSIDE:
            sides[left].append(points)
        if right is not OUTSIDE:
            sides[right].append(points[::-1])
    return {owner: _close(sorted(lines)) for owner, lines in sorted(sides.items())}


def _close(lines):
    starts = defaultdict(list)
    for line in lines:
        starts[line[0]].append(line)
    rings = []
    for start in sorted(starts):
        while starts[start]:
            ring = list(starts[start].pop())
            while ring[-1] != start:
                ring += _sharpest_left(ring, starts[ring[-1]])[1:]
            rings.append(_canonical(ring))
    return sorted(rings, key=lambda ring: (-abs(area2(ring)), ring))


def _sharpest_left(ring, candidates):
    """Takes the candidate that keeps the owner's area in one piece where rings touch in a point."""
    here, before = ring[-1], ring[-2]
    back = math.atan2(before[1] - here[1], before[0] - here[0])

    def turn(line):
        angle = math.atan2(line[1][1] - here[1], line[1][0] - here[0]) - back
        return -(angle % (2 * math.pi))

    candidates.sort(key=turn)
    return candidates.pop(0)


def _canonical(ring):
    points = ring[:-1]
    first = points.index(min(points))
    points = points[first:] + points[:first]
    return points + points[:1]
