# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Turns outlines that only nearly fit each other into a coverage whose neighbours share every edge.

All coordinates are integers (x, y). The way: `snap` pulls borders drawn twice onto each other,
`node` cuts all segments at their meetings, `Coverage` finds the faces between the segments and who
owns each, gives slivers to a neighbour, and hands out the arcs between junctions, which
`simplify_arcs` thins once for both sides; `rings_of` chains them into rings again.
"""

import math
from collections import defaultdict

OUTSIDE = None
# The label of a segment that bounds no outline but closes an inlet.
BRIDGE = 'bridge'


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


# --- snapping ---------------------------------------------------------------------------------------

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


# --- noding -----------------------------------------------------------------------------------------

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


# --- faces ------------------------------------------------------------------------------------------

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
    outside and no face of its own. A bridge leads from a vertex of the outer border to the border of
    another owner at most `width` away that is much farther, but at most `reach`, along the border; of
    bridges within each other's inlet only the outermost is kept.
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


def settle(coverage, claims, speck):
    """The one owner of every face.

    claims(labels): the set of owners that the labels of a face speak for. Faces with no claim (gaps
    within the land) or several (overlaps) go to the neighbour with the longest common border, an
    overlap only to one of its claimants. Pieces smaller than `speck` that came off their unit join a
    neighbour.
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


# --- arcs -------------------------------------------------------------------------------------------

def borders(coverage, final):
    """{(a, b): (owner on the left, owner on the right)} of the edges between different owners."""
    result = {}
    for a, b in coverage.labels:
        left, right = final[coverage.left(a, b)], final[coverage.left(b, a)]
        if left != right:
            result[a, b] = (left, right)
    return result


def arcs_of(edges):
    """Chains border edges into arcs between junctions: list of (points, left owner, right owner)."""
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

    Distances are taken with x multiplied by x_scale. A closed line keeps the point farthest from its
    start, so that it stays a ring.
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
        # Degrees of longitude shrink with latitude; coordinates here are ten-thousandths of degrees.
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
    """{owner: rings}: closed rings (first point repeated), the owner on their left, largest first."""
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
