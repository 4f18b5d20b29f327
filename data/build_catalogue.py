#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Builds the city catalogue, an SQLite file, from cities.txt.

    build_catalogue.py TEXT DB [--names bilingual|latin|chinese]

README.md describes the text. The file appears complete or not at all; the same text gives the same
rows in the same order. A malformed text is refused with the line at fault and exit status 1.
"""

import argparse
import os
import re
import sqlite3
import sys
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

# What marks a province: its parent is this number, which is no row of the table itself.
PROVINCE_PARENT = 1
PROVINCE_LEVEL = 1
CITY_LEVEL = 2

SCHEMA = '''
create table city (
    id integer primary key,
    name text not null,
    letter text not null,
    parent_id integer not null,
    level integer not null,
    lat real not null,
    lng real not null,
    polyline text not null
);
create index city_name on city (name);
create index city_level on city (level);
'''

NAMES = {
    'bilingual': lambda place: '%s %s' % (place.latin, place.chinese),
    'latin': lambda place: place.latin,
    'chinese': lambda place: place.chinese,
}

NUMBER = re.compile(r'-?[0-9]+(\.[0-9]+)?')


class TextError(Exception):
    """The text is not a catalogue; says where and why."""


@dataclass
class Place:
    """A province (no rings) or a city; rings are lists of ('lng', 'lat') texts as written."""

    line: int
    id: int
    letter: str
    latin: str
    chinese: str
    lat: float
    lng: float
    parent_id: int
    rings: list = field(default_factory=list)


def _degrees(text, limit):
    if not NUMBER.fullmatch(text) or abs(float(text)) > limit:
        raise TextError('"%s" is not a number of degrees up to %d' % (text, limit))
    return float(text)


def _place(line, fields, parent_id):
    if len(fields) != 6:
        raise TextError('%d fields where 6 belong' % len(fields))
    code, letter, latin, chinese, lat, lng = fields
    if not re.fullmatch('[1-9][0-9]{5}', code):
        raise TextError('"%s" is not a six-digit code' % code)
    if not re.fullmatch('[A-Z]', letter):
        raise TextError('"%s" is not a letter A to Z' % letter)
    # The catalogue's readers put names between single quotes in their SQL.
    if not re.fullmatch(r'[A-Za-z() ]+', latin) or latin != latin.strip():
        raise TextError('"%s" is not a Latin name' % latin)
    if not re.fullmatch('[\u4e00-\u9fff]+', chinese):
        raise TextError('"%s" is not a Chinese name' % chinese)
    return Place(line, int(code), letter, latin, chinese, _degrees(lat, 90), _degrees(lng, 180),
                 parent_id)


def _points(text):
    points = []
    for pair in text.split():
        parts = pair.split(',')
        if len(parts) != 2:
            raise TextError('"%s" is not a point' % pair)
        _degrees(parts[0], 180)
        _degrees(parts[1], 90)
        points.append((parts[0], parts[1]))
    return points


def parse(lines):
    """The places of a text, each province followed by its cities."""
    places = []
    province = None
    for number, line in enumerate(lines, 1):
        line = line.rstrip('\n')
        if not line.strip() or line.startswith('#'):
            continue
        try:
            word, *fields = line.split('\t')
            if word == 'province':
                province = _place(number, fields, PROVINCE_PARENT)
                places.append(province)
            elif word == 'city':
                if province is None:
                    raise TextError('a city before the first province')
                places.append(_place(number, fields, province.id))
            elif word == 'ring' and not fields:
                if not places or places[-1] is province:
                    raise TextError('a ring without a city')
                places[-1].rings.append([])
            elif line.startswith('  '):
                if not places or not places[-1].rings:
                    raise TextError('points without a ring')
                places[-1].rings[-1].extend(_points(line))
            else:
                raise TextError('"%s" is no line of a catalogue' % line[:40])
        except TextError as error:
            raise TextError('line %d: %s' % (number, error)) from None
    _check(places)
    return places


def _check(places):
    if not places:
        raise TextError('no province')
    ids = {}
    names = {kind: {} for kind in NAMES}
    for place in places:
        where = 'line %d: ' % place.line
        if place.id in ids:
            raise TextError(where + 'code %d is already on line %d' % (place.id, ids[place.id]))
        ids[place.id] = place.line
        for kind, name_of in NAMES.items():
            name = name_of(place)
            if name in names[kind]:
                raise TextError(where + 'the name "%s" is already on line %d'
                                % (name, names[kind][name]))
            names[kind][name] = place.line
        if place.parent_id != PROVINCE_PARENT and not place.rings:
            raise TextError(where + 'a city without a ring')
        for ring in place.rings:
            if len(set(ring)) < 3:
                raise TextError(where + 'a ring of fewer than three points')


def join_rings(rings):
    """One closed line through all rings (open, as written) that the odd-even rule fills alike.

    Every ring after the first is reached from the first point of the first ring, the anchor, and
    left back to it, so that each connecting line is run there and back and cancels itself out.
    """
    anchor = rings[0][0]
    line = rings[0] + [anchor]
    for ring in rings[1:]:
        line = line + ring + [ring[0], anchor]
    return line


def polyline(place):
    if not place.rings:
        return ''
    return ';'.join('%s,%s' % point for point in join_rings(place.rings))


def write(places, path, names):
    """Writes the database beside `path` under a temporary name, then puts it in its place."""
    path = Path(path)
    handle, temporary = tempfile.mkstemp(prefix=path.name + '.', dir=path.parent)
    os.close(handle)
    try:
        connection = sqlite3.connect(temporary)
        try:
            connection.executescript(SCHEMA)
            connection.executemany(
                'insert into city values (?, ?, ?, ?, ?, ?, ?, ?)',
                [(place.id, NAMES[names](place), place.letter, place.parent_id,
                  PROVINCE_LEVEL if place.parent_id == PROVINCE_PARENT else CITY_LEVEL,
                  place.lat, place.lng, polyline(place)) for place in places])
            connection.commit()
        finally:
            connection.close()
        os.chmod(temporary, 0o644)
        os.replace(temporary, path)
    except BaseException:
        os.unlink(temporary)
        raise


def main(arguments=None):
    parser = argparse.ArgumentParser(description='Builds the city catalogue from its text.')
    parser.add_argument('text', metavar='TEXT')
    parser.add_argument('database', metavar='DB')
    parser.add_argument('--names', choices=sorted(NAMES), default='bilingual')
    options = parser.parse_args(arguments)
    try:
        with open(options.text, encoding='utf-8') as text:
            places = parse(text)
        write(places, options.database, options.names)
    except (TextError, UnicodeDecodeError, OSError, sqlite3.Error) as error:
        print('%s: %s' % (options.text, error), file=sys.stderr)
        return 1
    return 0


if __name__ == '__main__':
    sys.exit(main())
