# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Puts the package's outlines and the hand-made tables together into the text of the catalogue."""

from . import arcs, coverage, datum, geometry, package, snapping, tables

# Coordinates are counted in ten-thousandths of a degree, about 11 m.
UNITS_PER_DEGREE = 10000
# Most vertices lie on a grid of 0.011 x 0.0055 degrees, and borders drawn twice differ by
# up to half of that in most places.
MERGE_DISTANCE = 25
SNAP_DISTANCE = 60
# An inlet at most this wide and long between two units is land that the package leaves out.
INLET_WIDTH = 200
INLET_LENGTH = 30000
SIMPLIFY_TOLERANCE = 20
# An area in square units; at 30 degrees north 1 km2 is about 9,400 of them.
SPECK = 20_000

# Its outline comes from another source than those of its neighbour, which covers Kinmen too.
TAIWAN = '710100'
TAIWAN_PROVINCE = TAIWAN[:2]

HEADER = '''\
# Provinces and cities with their boundaries, made by data/renew; data/README.md names origin,
# licence and format. Change the tables in data/renewal and run data/renew rather than this file.
'''


class CatalogueError(Exception):
    """The tables and the package do not fit together."""


def to_grid(lng, lat):
    return round(lng * UNITS_PER_DEGREE), round(lat * UNITS_PER_DEGREE)


def from_gcj02(ring):
    return [to_grid(*datum.gcj02_to_wgs84(*point)) for point in ring]


def gather(source, provinces):
    """[(package code, rings)] in grid units and WGS84, and {package code: city code}."""
    outlines = []
    city_of = {}
    country = package.provinces(source)
    split_codes = tables.splits().keys()
    for province in provinces:
        units = {code: (name, rings) for code, name, _, rings in
                 package.units(source, province.file_name)}
        claimed = set()
        for city in province.cities:
            if city.code == TAIWAN:
                # The two squares that stand for islets in the open sea are marks, not outlines.
                rings = [[to_grid(*point) for point in ring]
                         for ring in country[province.code][1] if len(ring) > 4]
                outlines.append((city.code, rings))
                city_of[city.code] = city.code
                claimed |= units.keys()
            elif city.whole_province:
                for code in sorted(units):
                    city_of[code] = city.code
                claimed |= units.keys()
            elif city.package_code:
                if city.package_code not in units:
                    raise CatalogueError('the package has no unit %s' % city.package_code)
                if units[city.package_code][0] != city.package_name:
                    raise CatalogueError('unit %s is called %s, not %s' % (
                        city.package_code, units[city.package_code][0], city.package_name))
                city_of[city.package_code] = city.code
                claimed.add(city.package_code)
        unclaimed = units.keys() - claimed - split_codes
        if unclaimed:
            raise CatalogueError('no city takes %s' % ', '.join(sorted(unclaimed)))
        if province.code != TAIWAN_PROVINCE:
            outlines += [(code, [from_gcj02(ring) for ring in rings])
                         for code, (_, rings) in sorted(units.items())]
    return outlines, city_of


def cells(towns, rings):
    """The area around each town that is nearer to it than to the others, as convex open rings."""
    xs = [x for ring in rings for x, _ in ring]
    ys = [y for ring in rings for _, y in ring]
    box = [(min(xs) - 1000, min(ys) - 1000), (max(xs) + 1000, min(ys) - 1000),
           (max(xs) + 1000, max(ys) + 1000), (min(xs) - 1000, max(ys) + 1000)]
    result = []
    for town in towns:
        cell = box
        for other in towns:
            if other != town:
                cell = _nearer_half(cell, town, other)
        result.append([(round(x), round(y)) for x, y in cell])
    return result


def _nearer_half(ring, town, other):
    """The part of a convex ring that lies nearer to town than to other."""
    def excess(point):
        return ((point[0] - town[0]) ** 2 + (point[1] - town[1]) ** 2
                - (point[0] - other[0]) ** 2 - (point[1] - other[1]) ** 2)

    kept = []
    for i in range(len(ring)):
        a, b = ring[i - 1], ring[i]
        at_a, at_b = excess(a), excess(b)
        if (at_a > 0) != (at_b > 0):
            t = at_a / (at_a - at_b)
            kept.append((a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])))
        if at_b <= 0:
            kept.append(b)
    return kept


def cover(outlines, city_of, split_table):
    """{city code: closed rings} of a coverage without gaps and overlaps, and a report."""
    outlines = snapping.snap(outlines, MERGE_DISTANCE, SNAP_DISTANCE)
    edges, city_of_cell = labelled_edges(outlines, split_table)

    def claims(labels):
        owners = set()
        for code, part in labels:
            if part == 'unit' and code not in split_table:
                owners.add(city_of[code])
            elif part != 'unit' and (code, 'unit') in labels:
                owners.add(city_of_cell[code, part])
        return {TAIWAN} if TAIWAN in owners else owners

    edges = coverage.node(edges)
    mouths = coverage.bridges(coverage.Coverage(edges), claims, INLET_WIDTH, INLET_LENGTH)
    for a, b in mouths:
        edge = (min(a, b), max(a, b))
        edges[edge] = edges.get(edge, frozenset()) | {coverage.BRIDGE}
    faces = coverage.Coverage(coverage.node(edges))
    final = coverage.settle(faces, claims, SPECK)
    lines = arcs.arcs_of(arcs.borders(faces, final))
    thinned = arcs.simplify_arcs(lines, SIMPLIFY_TOLERANCE)
    report = '%d inlets closed, %d arcs, %d points thinned to %d' % (
        len(mouths), len(lines), sum(len(line[0]) for line in lines),
        sum(len(line[0]) for line in thinned))
    return arcs.rings_of(thinned), report


def labelled_edges(outlines, split_table):
    """{edge: labels} of all outlines, and {label: city code} of the cells of the units to be split.

    A unit's outline has the label (package code, 'unit'), the cell of its town number n the label
    (package code, n).
    """
    edges = {}
    city_of_cell = {}

    def add(label, ring):
        for i in range(len(ring)):
            a, b = ring[i - 1], ring[i]
            if a != b:
                edge = (min(a, b), max(a, b))
                edges[edge] = edges.get(edge, frozenset()) ^ {label}

    for code, rings in outlines:
        for ring in rings:
            add((code, 'unit'), ring)
        if code in split_table:
            towns = [to_grid(lng, lat) for (lat, lng), _ in split_table[code]]
            for number, cell in enumerate(cells(towns, rings)):
                city_of_cell[code, number] = split_table[code][number][1]
                add((code, number), cell)
    return edges, city_of_cell


def centre_of(city, rings):
    """The seat as (lat, lng) when it lies inside the rings, else a point inside them."""
    lat, lng = city.seat
    if geometry.contains(rings, lng * UNITS_PER_DEGREE, lat * UNITS_PER_DEGREE):
        return lat, lng, True
    x, y = geometry.inner_point(rings)
    return y / UNITS_PER_DEGREE, x / UNITS_PER_DEGREE, False


def make(source):
    """The text of the catalogue from an unpacked package, and a report of a few lines."""
    provinces = tables.provinces()
    outlines, city_of = gather(source, provinces)
    boundaries, report = cover(outlines, city_of, tables.splits())
    country = package.provinces(source)
    lines = [HEADER]
    moved = []
    for province in provinces:
        own = [ring for city in province.cities for ring in boundaries[city.code]]
        lng, lat = country[province.code][0]
        if not geometry.contains(own, lng * UNITS_PER_DEGREE, lat * UNITS_PER_DEGREE):
            moved.append(province.latin)
            x, y = geometry.inner_point(own)
            lng, lat = x / UNITS_PER_DEGREE, y / UNITS_PER_DEGREE
        lines.append('\nprovince\t%s0000\t%s\t%s\t%s\t%.4f\t%.4f\n' % (
            province.code, province.letter, province.latin, province.chinese, lat, lng))
        for city in province.cities:
            rings = boundaries[city.code]
            lat, lng, is_seat = centre_of(city, rings)
            if not is_seat:
                moved.append(city.latin)
            lines.append('city\t%s\t%s\t%s\t%s\t%.4f\t%.4f\n' % (
                city.code, city.letter, city.latin, city.chinese, lat, lng))
            for ring in rings:
                lines.append(ring_text(ring))
    if moved:
        report += '\ncentre not at the seat or label: ' + ', '.join(moved)
    return ''.join(lines), report


def ring_text(ring):
    """A ring's lines: the word, then its points lng,lat, eight a line; none is repeated."""
    points = ['%.4f,%.4f' % (x / UNITS_PER_DEGREE, y / UNITS_PER_DEGREE) for x, y in ring[:-1]]
    lines = ['ring\n']
    for start in range(0, len(points), 8):
        lines.append('  ' + ' '.join(points[start:start + 8]) + '\n')
    return ''.join(lines)
