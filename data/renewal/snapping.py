# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Pulls borders that were drawn twice onto each other."""

import math
from collections import defaultdict

from .geometry import Buckets, foot


def _edge_owners(outlines):
    owners = defaultdict(set)
    for owner, rings in outlines:
        for ring in rings:
            for i in range(len(ring)):
                if ring[i - 1] != ring[i]:
                    owners[frozenset((ring[i - 1], ring[i]))].add(owner)
    return owners


def snap(outlines, merge, reach):
    """The outlines with borders that run beside each other pulled together.

    outlines: list of (owner, open rings). A vertex on an edge of one owner only moves onto a vertex
    of another owner that is at most `merge` away; after that each edge of one owner only is bent
    through the vertices of other owners within `reach` of it.
    """
    outlines = _merge_vertices(outlines, merge)
    owners = _edge_owners(outlines)
    vertices = defaultdict(set)
    for owner, rings in outlines:
        for ring in rings:
            for point in ring:
                vertices[point].add(owner)
    grid = Buckets(400)
    for point in sorted(vertices):
        grid.add(point, [point])

    bends = {}
    for edge, edge_owners in owners.items():
        if len(edge_owners) > 1:
            continue
        a, b = sorted(edge)
        found = []
        for point in grid.near((a, b), int(reach)):
            if point in edge or vertices[point] <= edge_owners:
                continue
            t, distance = foot(point, a, b)
            if 0.0 < t < 1.0 and distance <= reach:
                found.append((t, point))
        bends[edge] = [point for _, point in sorted(found)]

    bent = []
    for owner, rings in outlines:
        new_rings = []
        for ring in rings:
            points = []
            for i in range(len(ring)):
                a, b = ring[i - 1], ring[i]
                if a == b:
                    continue
                middle = bends.get(frozenset((a, b)), [])
                points.append(a)
                points.extend(middle if a < b else reversed(middle))
            if len(points) > 2:
                new_rings.append(points)
        bent.append((owner, new_rings))
    return bent


def _merge_vertices(outlines, merge):
    owners = _edge_owners(outlines)
    vertex_owners = defaultdict(set)
    loose = set()
    for edge, edge_owners in owners.items():
        for point in edge:
            vertex_owners[point] |= edge_owners
            if len(edge_owners) == 1:
                loose.add(point)
    grid = Buckets(400)
    for point in sorted(vertex_owners):
        grid.add(point, [point])
    target = {}
    taken = set()
    # Vertices shared by many units come first: they are the junctions the others should meet.
    for point in sorted(loose, key=lambda p: (-len(vertex_owners[p]), p)):
        if point in target:
            continue
        taken.add(point)
        for other in grid.near([point], int(merge)):
            if other in target or other in taken or other not in loose:
                continue
            if vertex_owners[other] & vertex_owners[point]:
                continue
            if math.hypot(other[0] - point[0], other[1] - point[1]) <= merge:
                target[other] = point
    return [(owner, [[target.get(point, point) for point in ring] for ring in rings])
            for owner, rings in outlines]
