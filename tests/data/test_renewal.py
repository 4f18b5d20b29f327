#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Tests of the city data's text and of the steps of data/renew that made it."""

import math
import random
import sys
import unittest
from collections import Counter, defaultdict
from pathlib import Path

DATA = Path(__file__).resolve().parents[2] / 'data'
sys.path.insert(0, str(DATA))

import build_catalogue  # noqa: E402
from renewal import arcs, catalogue, coverage, datum, geometry, snapping, tables  # noqa: E402


def edges_of(outlines):
    """{edge: labels} as coverage.node takes them, the owner of a ring as its label."""
    edges = {}
    for owner, rings in outlines:
        for ring in rings:
            for i in range(len(ring)):
                edge = (min(ring[i - 1], ring[i]), max(ring[i - 1], ring[i]))
                edges[edge] = edges.get(edge, frozenset()) ^ {owner}
    return edges


def coverage_of(outlines, tolerance=0, speck=0):
    """{owner: closed rings} after all steps but the pulling together."""
    faces = coverage.Coverage(coverage.node(edges_of(outlines)))
    final = coverage.settle(faces, set, speck)
    lines = arcs.arcs_of(arcs.borders(faces, final))
    if tolerance:
        lines = arcs.simplify_arcs(lines, tolerance)
    return arcs.rings_of(lines)


def area(rings):
    """The area of nested rings as they are oriented: outer ones count, holes take away."""
    return sum(geometry.area2(ring) for ring in rings) / 2


def directed_edges(rings):
    return Counter((a, b) for ring in rings for a, b in zip(ring, ring[1:]))


class Datum(unittest.TestCase):

    def test_known_shifts(self):
        # The formula's published test point lies in Beijing.
        lng, lat = datum.wgs84_to_gcj02(116.404, 39.915)
        self.assertAlmostEqual(lng, 116.41024449916938, 9)
        self.assertAlmostEqual(lat, 39.91640428150164, 9)

    def test_the_inverse_leaves_no_residual(self):
        source = random.Random(1)
        for _ in range(2000):
            lng, lat = source.uniform(73, 135), source.uniform(18, 54)
            there = datum.wgs84_to_gcj02(lng, lat)
            back = datum.gcj02_to_wgs84(*there)
            self.assertLess(math.hypot(back[0] - lng, back[1] - lat), 1e-9)
            self.assertGreater(math.hypot(there[0] - lng, there[1] - lat), 1e-4)


class Snapping(unittest.TestCase):

    def test_borders_drawn_twice_come_together(self):
        left = [(0, 0), (1000, 0), (1010, 500), (1000, 1000), (0, 1000)]
        right = [(1004, 0), (2000, 0), (2000, 1000), (1003, 1000)]
        snapped = dict(snapping.snap([('left', [left]), ('right', [right])], 25, 60))
        rings = coverage_of(list(snapped.items()))
        self.assertEqual(sorted(rings), ['left', 'right'])
        left_edges, right_edges = directed_edges(rings['left']), directed_edges(rings['right'])
        self.assertEqual(len([1 for a, b in left_edges if (b, a) in right_edges]), 2)

    def test_a_unit_keeps_its_own_detail(self):
        ring = [(0, 0), (20, 0), (20, 20), (40, 20), (40, 0), (1000, 0), (1000, 1000), (0, 1000)]
        self.assertEqual([set(map(tuple, rings[0])) for _, rings in
                          snapping.snap([('one', [ring])], 25, 60)], [set(ring)])


class Fitting(unittest.TestCase):

    def test_an_overlap_goes_to_one_claimant(self):
        rings = coverage_of([('a', [[(0, 0), (110, 0), (110, 100), (0, 100)]]),
                             ('b', [[(100, 0), (200, 0), (200, 100), (100, 100)]])])
        self.assertEqual(area(rings['a']) + area(rings['b']), 20000)

    def test_a_gap_inside_the_land_goes_to_a_neighbour(self):
        rings = coverage_of([('a', [[(0, 0), (200, 0), (200, 50), (100, 55), (0, 50)]]),
                             ('b', [[(0, 50), (100, 70), (200, 50), (200, 100), (0, 100)]])])
        self.assertEqual(area(rings['a']) + area(rings['b']), 20000)

    def test_an_enclave_becomes_a_hole_and_a_ring(self):
        enclave = [(40, 40), (60, 40), (60, 60), (40, 60)]
        rings = coverage_of([('a', [[(0, 0), (100, 0), (100, 100), (0, 100)], enclave]),
                             ('b', [enclave])])
        self.assertEqual(len(rings['a']), 2)
        self.assertEqual(area(rings['a']), 10000 - 400)
        self.assertEqual(area(rings['b']), 400)

    def test_separate_islands_stay_apart(self):
        rings = coverage_of([('a', [[(0, 0), (10, 0), (10, 10)], [(50, 0), (60, 0), (60, 10)]])])
        self.assertEqual([area([ring]) for ring in rings['a']], [50, 50])

    def test_specks_are_absorbed(self):
        big, crumb = [(0, 0), (100, 0), (100, 100), (0, 100)], [(50, 50), (53, 50), (53, 53)]
        outlines = [('a', [big, crumb]), ('b', [crumb])]
        self.assertEqual(sorted(coverage_of(outlines)), ['a', 'b'])
        self.assertEqual(coverage_of(outlines, speck=100), {'a': [
            [(0, 0), (100, 0), (100, 100), (0, 100), (0, 0)]]})

    def test_crossing_random_outlines_leave_no_gap_and_no_overlap(self):
        source = random.Random(7)
        outlines = []
        for i in range(6):
            for j in range(6):
                x, y = i * 1000, j * 1000

                def near(px, py):
                    return px + source.randint(-40, 40), py + source.randint(-40, 40)

                outlines.append(('%d-%d' % (i, j), [[
                    near(x, y), near(x + 500, y), near(x + 1000, y), near(x + 1000, y + 500),
                    near(x + 1000, y + 1000), near(x + 500, y + 1000), near(x, y + 1000)]]))
        rings = coverage_of(outlines, tolerance=30)
        self.assertEqual(len(rings), 36)
        for _ in range(4000):
            # Between two outer squares a gap may open to the outside, so look at the inner ones.
            x, y = source.uniform(1050, 4950), source.uniform(1050, 4950)
            owners = [owner for owner, own in rings.items() if geometry.contains(own, x, y)]
            self.assertEqual(len(owners), 1, (x, y, owners))

    def test_segments_meet_in_ends_only_afterwards(self):
        source = random.Random(3)
        triangle = [(source.randint(0, 300), source.randint(0, 300)) for _ in range(60)]
        outlines = [(str(i), [triangle[i:i + 3]]) for i in range(0, 60, 3)]
        pieces = list(coverage.node(edges_of(outlines)))
        self.assertGreater(len(pieces), 100)
        for i, first in enumerate(pieces):
            for second in pieces[:i]:
                self.assertFalse(geometry.meeting(*first, *second), (first, second))


class Inlets(unittest.TestCase):

    WEST = [(0, 0), (1000, 0), (1000, 100), (990, 1000), (0, 1000)]
    EAST = [(1000, 0), (2000, 0), (2000, 1000), (1010, 1000), (1000, 100)]

    def bridges(self, width, reach):
        edges = edges_of([('w', [self.WEST]), ('e', [self.EAST])])
        return coverage.bridges(coverage.Coverage(coverage.node(edges)), set, width, reach)

    def test_the_mouth_is_bridged_once(self):
        found = self.bridges(30, 5000)
        self.assertEqual(len(found), 1)
        self.assertEqual({point[1] for point in found[0]}, {1000})

    def test_wide_or_long_inlets_stay_open(self):
        self.assertEqual(self.bridges(15, 5000), [])
        self.assertEqual(self.bridges(30, 1000), [])

    def test_a_bridged_inlet_is_filled(self):
        edges = edges_of([('w', [self.WEST]), ('e', [self.EAST])])
        (a, b), = self.bridges(30, 5000)
        edges[min(a, b), max(a, b)] = frozenset({coverage.BRIDGE})
        faces = coverage.Coverage(coverage.node(edges))
        final = coverage.settle(faces, set, 0)
        rings = arcs.rings_of(arcs.arcs_of(arcs.borders(faces, final)))
        self.assertEqual(sorted(rings), ['e', 'w'])
        self.assertEqual(area(rings['w']) + area(rings['e']), 2000000)


class Thinning(unittest.TestCase):

    def test_shared_edges_are_thinned_alike(self):
        source = random.Random(5)
        border = [(1000 + source.randint(-8, 8), y) for y in range(0, 2001, 20)]
        rings = coverage_of([('a', [[(0, 0)] + border + [(0, 2000)]]),
                             ('b', [border + [(2000, 2000), (2000, 0)]])], tolerance=12)
        a, b = directed_edges(rings['a']), directed_edges(rings['b'])
        shared = [edge for edge in a if edge[::-1] in b]
        self.assertGreater(len(shared), 0)
        self.assertLess(len(shared), len(border) / 2)
        self.assertEqual(sum(abs(q[1] - p[1]) for p, q in shared), 2000)
        self.assertEqual(area(rings['a']) + area(rings['b']), 4000000)

    def test_no_dropped_point_is_farther_than_the_tolerance(self):
        source = random.Random(9)
        line = [(x, source.randint(-30, 30)) for x in range(0, 1000, 10)]
        thinned = arcs.thin(line, 15, 1.0)
        self.assertLess(len(thinned), len(line))
        self.assertEqual((thinned[0], thinned[-1]), (line[0], line[-1]))
        for point in line:
            self.assertLessEqual(min(geometry.foot(point, a, b)[1]
                                     for a, b in zip(thinned, thinned[1:])), 15)

    def test_a_small_ring_stays_a_ring(self):
        ring = [(0, 0), (5, 0), (5, 5), (0, 5), (0, 0)]
        thinned = arcs.thin(ring, 100, 1.0)
        self.assertGreaterEqual(len(set(thinned)), 3)
        self.assertEqual(thinned[0], thinned[-1])

    def test_lines_that_would_cross_keep_points(self):
        # Straightened, the bulge's line would run through the tip of the other.
        bulge = ([(0, 0), (50, 10), (100, 0)], 'a', None)
        tip = ([(40, 20), (50, 5), (60, 20)], 'b', None)
        tip_below = ([(40, -20), (50, 5), (60, -20)], 'b', None)
        self.assertEqual(arcs.simplify_arcs([bulge], 12)[0][0], [(0, 0), (100, 0)])
        self.assertEqual(arcs.simplify_arcs([bulge, tip_below], 12)[0][0], bulge[0])
        crossing = arcs.crossing_arcs([bulge[0], tip[0]])
        self.assertEqual(crossing, {0, 1})


class Splitting(unittest.TestCase):

    def test_cells_follow_the_nearest_town(self):
        towns = [(100, 100), (900, 150), (500, 800)]
        cells = catalogue.cells(towns, [[(0, 0), (1000, 0), (1000, 1000), (0, 1000)]])
        source = random.Random(2)
        for _ in range(1000):
            point = (source.uniform(0, 1000), source.uniform(0, 1000))
            distances = sorted((math.dist(point, town), i) for i, town in enumerate(towns))
            if distances[1][0] - distances[0][0] > 3:
                inside = [i for i, cell in enumerate(cells) if geometry.contains([cell], *point)]
                self.assertEqual(inside, [distances[0][1]])


class Tables(unittest.TestCase):

    def test_codes_letters_and_splits(self):
        provinces = tables.provinces()
        self.assertEqual(len(provinces), 34)
        codes = {city.code for province in provinces for city in province.cities}
        for province in provinces:
            for city in province.cities:
                self.assertEqual(city.code[:2], province.code)
        for towns in tables.splits().values():
            self.assertLessEqual({city for _, city in towns}, codes)


class Text(unittest.TestCase):
    """The committed text: its boundaries are a coverage."""

    @classmethod
    def setUpClass(cls):
        with open(DATA / 'cities.txt', encoding='utf-8') as text:
            cls.cities = [place for place in build_catalogue.parse(text) if place.rings]
        cls.sides = defaultdict(list)
        for city in cls.cities:
            for ring in city.rings:
                points = [(round(float(x) * 10000), round(float(y) * 10000)) for x, y in ring]
                for a, b in zip(points, points[1:] + points[:1]):
                    cls.sides[min(a, b), max(a, b)].append((a < b, city.id))

    def test_size(self):
        self.assertLess((DATA / 'cities.txt').stat().st_size, 3_000_000)

    def test_every_edge_has_one_side_or_two_facing_each_other(self):
        for edge, sides in self.sides.items():
            self.assertLessEqual(len(sides), 2, edge)
            if len(sides) == 2:
                (one, first), (two, second) = sides
                self.assertNotEqual(one, two, edge)
                self.assertNotEqual(first, second, edge)

    def test_edges_meet_in_ends_only(self):
        self.assertEqual(arcs.crossing_arcs([list(edge) for edge in self.sides]), set())

    def test_most_edges_are_shared(self):
        shared = sum(len(sides) == 2 for sides in self.sides.values())
        self.assertGreater(shared, 0.8 * len(self.sides))

    def test_the_mainland_is_one_piece_without_gaps(self):
        # What has one side only is the outer border: chained, it must not lie within the land.
        ends = defaultdict(list)
        for (a, b), sides in self.sides.items():
            if len(sides) == 1:
                start, end = (a, b) if sides[0][0] else (b, a)
                ends[start].append(end)
        areas = []
        while ends:
            start = here = next(iter(ends))
            ring = []
            while True:
                ring.append(here)
                following = ends[here].pop()
                if not ends[here]:
                    del ends[here]
                here = following
                if here == start:
                    break
            areas.append(geometry.area2(ring) / 2)
        self.assertEqual([a for a in areas if a < 0], [])
        self.assertGreater(max(areas), 0.99 * sum(areas))


if __name__ == '__main__':
    unittest.main()
