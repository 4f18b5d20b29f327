# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Makes a coverage of outlines that only nearly fit: no gap, no overlap, every face one owner.

`node` cuts all segments at their meetings, `Coverage` finds the faces between them and what encloses
each, `bridges` closes narrow inlets, and `settle` gives every face to one owner.
"""

import math
from collections import defaultdict

from .geometry import Buckets, area2, foot, meeting

OUTSIDE = None
# The label of a segment that bounds no outline but closes an inlet.
BRIDGE = 'bridge'


def node(edges):
    """Cuts segments until they meet in ends only.

    edges: {(a, b) with a < b: set of labels}. A label is kept on a piece when an odd number of its
    segments cover it, so that the labels still describe the same areas by the odd-even rule.
    """
    dirty = set(edges)
    while dirty:
        grid = Buckets(1000)
        for edge in edges:
            grid.add(edge, edge)
        cuts = defaultdict(set)
        for first in sorted(dirty):
            for second in grid.near(first):
                if first == second:
                    continue
                for point in meeting(*first, *second):
                    cuts[first].add(point)
                    cuts[second].add(point)
        dirty = set()
        for (a, b), points in sorted(cuts.items()):
            points -= {a, b}
            if not points:
                continue
            labels = edges.pop((a, b))
            chain = [a] + sorted(points, key=lambda p: foot(p, a, b)[0]) + [b]
            for p, q in zip(chain, chain[1:]):
                piece = (min(p, q), max(p, q))
                edges[piece] = edges.get(piece, frozenset()) ^ labels
                dirty.add(piece)
    return {edge: labels for edge, labels in edges.items() if labels}


class Coverage:
    """The faces between noded segments, and the owner of each."""

    def __init__(self, edges):
        self.labels = edges
        around = defaultdict(list)
        for a, b in edges:
            around[a].append(b)
            around[b].append(a)
        self._turn = {}
        for point, ends in around.items():
            ends.sort(key=lambda end: math.atan2(end[1] - point[1], end[0] - point[0]))
            for i, end in enumerate(ends):
                # The face on the left goes on along the next end clockwise.
                self._turn[end, point] = (point, ends[i - 1])
        self._walk()
        self._nest()
        self._own()

    def _walk(self):
        """Numbers the boundary cycles: `cycle_of` of every directed edge, and their rings."""
        self.cycle_of = {}
        self.rings = []
        for start in sorted(self._turn):
            if start in self.cycle_of:
                continue
            ring = []
            edge = start
            while edge not in self.cycle_of:
                self.cycle_of[edge] = len(self.rings)
                ring.append(edge[0])
                edge = self._turn[edge]
            self.rings.append(ring)
        self.areas = [area2(ring) / 2 for ring in self.rings]

    def _nest(self):
        """Joins the outer cycle of each connected piece to the face that it lies in."""
        self.face_of_cycle = list(range(len(self.rings)))
        outer = [i for i, area in enumerate(self.areas) if area <= 0]
        self.outside = len(self.rings)
        columns = defaultdict(list)
        for edge in self.cycle_of:
            (x1, _), (x2, _) = edge
            if x1 < x2:
                for column in range(x1 // 1000, x2 // 1000 + 1):
                    columns[column].append(edge)
        for i in outer:
            x, y = min(self.rings[i])
            best = None
            for a, b in columns[x // 1000]:
                # Half-open in x, so that the leftmost point never meets edges of its own piece.
                if a[0] < x <= b[0]:
                    height = a[1] + (b[1] - a[1]) * (x - a[0]) / (b[0] - a[0])
                    if height < y and (best is None or height > best[0]):
                        best = (height, (a, b))
            self.face_of_cycle[i] = ('inside', best[1]) if best else self.outside
        for i in outer:
            self.face_of_cycle[i] = self._resolve(i)

    def _resolve(self, i):
        face = self.face_of_cycle[i]
        if isinstance(face, tuple):
            return self._resolve(self.cycle_of[face[1]])
        return face

    def left(self, a, b):
        return self.face_of_cycle[self.cycle_of[a, b]]

    def _own(self):
        """`owners` of each face: the labels whose rings enclose it, by crossing edge after edge."""
        self.owners = {self.outside: frozenset()}
        self.borders = defaultdict(lambda: defaultdict(float))
        beside = defaultdict(list)
        for (a, b), labels in sorted(self.labels.items()):
            one, two = self.left(a, b), self.left(b, a)
            if one == two:
                continue
            beside[one].append((two, labels))
            beside[two].append((one, labels))
            length = math.hypot(b[0] - a[0], b[1] - a[1])
            self.borders[one][two] += length
            self.borders[two][one] += length
        todo = [self.outside]
        while todo:
            face = todo.pop()
            for other, labels in beside[face]:
                owners = self.owners[face] ^ (labels - {BRIDGE})
                if other not in self.owners:
                    self.owners[other] = owners
                    todo.append(other)
                elif self.owners[other] != owners:
                    raise ValueError('outlines do not close near %s' % (self.rings[other][:1],))
        self.face_area = defaultdict(float)
        for i, area in enumerate(self.areas):
            self.face_area[self.face_of_cycle[i]] += area


def bridges(coverage, claims, width, reach):
    """Segments across the mouths of narrow inlets from the outside between two owners.

    Where two units that should touch are drawn apart up to the outer border, the gap is open to the
    outside and no face of its own. A bridge leads from a vertex of the outer border to the border
    of another owner at most `width` away that is much farther, but at most `reach`, along the
    border; of bridges within each other's inlet only the outermost is kept.
    """
    result = []
    for number, ring in enumerate(coverage.rings):
        if coverage.face_of_cycle[number] == coverage.outside:
            result += _bridges_of(coverage, claims, ring, width, reach)
    return result


def _bridges_of(coverage, claims, ring, width, reach):
    count = len(ring)
    ends = [ring[(i + 1) % count] for i in range(count)]
    owners = [claims(coverage.owners[coverage.left(b, a)]) for a, b in zip(ring, ends)]
    along = [0.0]
    for a, b in zip(ring, ends):
        along.append(along[-1] + math.dist(a, b))
    grid = Buckets(400)
    for i in range(count):
        grid.add(i, (ring[i], ends[i]))
    candidates = []
    for i, point in enumerate(ring):
        for j in grid.near([point], width):
            if owners[i] & owners[j] or owners[i - 1] & owners[j]:
                continue
            t, distance = foot(point, ring[j], ends[j])
            at = along[j] + t * (along[j + 1] - along[j])
            inlet = abs(at - along[i])
            if along[-1] - inlet < inlet:
                continue
            if 0 < distance <= width and 3 * distance + 150 < inlet <= reach:
                dx = ring[j][0] + t * (ends[j][0] - ring[j][0]) - point[0]
                dy = ring[j][1] + t * (ends[j][1] - ring[j][1]) - point[1]
                # A little too long, so that it surely meets the other border when rounded.
                stretch = 1 + 2 / distance
                end = (round(point[0] + dx * stretch), round(point[1] + dy * stretch))
                candidates.append((min(at, along[i]), max(at, along[i]), point, end))
    kept = []
    for low, high, point, end in sorted(candidates, key=lambda item: (item[0] - item[1], item)):
        if not any(first <= low and high <= last for first, last, _, _ in kept):
            kept.append((low, high, point, end))
    return [(point, end) for _, _, point, end in kept]


def settle(coverage, claims, speck):
    """The one owner of every face.

    claims(labels): the set of owners that the labels of a face speak for. Faces with no claim (gaps
    within the land) or several (overlaps) go to the neighbour with the longest common border, an
    overlap only to one of its claimants. Pieces smaller than `speck` that came off their unit join
    a neighbour.
    """
    final = {coverage.outside: OUTSIDE}
    allowed = {}
    for face, labels in sorted(coverage.owners.items()):
        if face == coverage.outside:
            continue
        owners = claims(labels)
        if len(owners) == 1:
            final[face] = next(iter(owners))
        else:
            allowed[face] = owners
    open_faces = sorted(allowed, key=lambda face: (-coverage.face_area[face], face))
    while open_faces:
        rest = []
        for face in open_faces:
            shares = defaultdict(float)
            for other, length in coverage.borders[face].items():
                owner = final.get(other)
                if owner and (not allowed[face] or owner in allowed[face]):
                    shares[owner] += length
            if shares:
                final[face] = max(sorted(shares), key=lambda owner: shares[owner])
            else:
                rest.append(face)
        if len(rest) == len(open_faces):
            for face in rest:
                final[face] = min(allowed[face]) if allowed[face] else OUTSIDE
            break
        open_faces = rest
    _absorb_specks(coverage, final, speck)
    return final


def _absorb_specks(coverage, final, speck):
    for _ in range(3):
        seen = set()
        pieces = []
        for face in sorted(f for f in final if f != coverage.outside):
            if face in seen or final[face] is OUTSIDE:
                continue
            piece, todo = [], [face]
            seen.add(face)
            while todo:
                current = todo.pop()
                piece.append(current)
                for other in coverage.borders[current]:
                    if other not in seen and final.get(other) == final[face]:
                        seen.add(other)
                        todo.append(other)
            pieces.append(piece)
        changed = False
        for piece in pieces:
            if sum(coverage.face_area[face] for face in piece) >= speck:
                continue
            shares = defaultdict(float)
            for face in piece:
                for other, length in coverage.borders[face].items():
                    if other not in piece and final.get(other) != final[piece[0]]:
                        shares[final.get(other)] += length
            inland = {owner: length for owner, length in shares.items() if owner is not OUTSIDE}
            new_owner = max(sorted(inland), key=lambda o: inland[o]) if inland else OUTSIDE
            for face in piece:
                final[face] = new_owner
            changed = True
        if not changed:
            break
