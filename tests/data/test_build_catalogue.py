#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Tests of the builder of the city catalogue, data/build_catalogue.py."""

import contextlib
import io
import sqlite3
import sys
import tempfile
import unittest
from pathlib import Path

DATA = Path(__file__).resolve().parents[2] / 'data'
sys.path.insert(0, str(DATA))

import build_catalogue  # noqa: E402

SAMPLE = '''\
# A comment.

province\t110000\tB\tBeijing\t北京\t39.9\t116.4
city\t110100\tB\tBeijing City\t北京市\t39.91\t116.41
ring
  116.0,39.0 117.0,39.0 117.0,40.0
  116.0,40.0
ring
  118.0,39.0 118.5,39.0 118.5,39.5
province\t130000\tH\tHebei\t河北\t38.5\t115.3
city\t130100\tS\tShijiazhuang\t石家庄市\t38.04\t114.51
ring
  114.0,38.0 115.0,38.0 115.0,39.0
'''


def parse(text):
    return build_catalogue.parse(text.splitlines(keepends=True))


def odd_even(points, x, y):
    """Whether a closed line's odd-even filling holds the point."""
    inside = False
    for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
        if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
            inside = not inside
    return inside


class Parsing(unittest.TestCase):

    def test_sample(self):
        places = parse(SAMPLE)
        self.assertEqual([place.id for place in places], [110000, 110100, 130000, 130100])
        self.assertEqual([place.parent_id for place in places], [1, 110000, 1, 130000])
        self.assertEqual([len(place.rings) for place in places], [0, 2, 0, 1])
        self.assertEqual(len(places[1].rings[0]), 4)

    def test_malformed(self):
        def changed(old, new):
            self.assertIn(old, SAMPLE)
            return SAMPLE.replace(old, new, 1)

        cases = {
            'empty text': ('', 'no province'),
            'unknown word': (changed('city\t130100', 'town\t130100'), 'line 11: "town'),
            'too few fields': (changed('\t39.9\t116.4\n', '\t39.9\n'), 'line 3: 5 fields'),
            'too many fields': (changed('\t116.4\n', '\t116.4\tx\n'), 'line 3: 7 fields'),
            'short code': (changed('110100', '1101'), 'line 4: "1101" is not a six-digit code'),
            'code of the parent': (changed('110100', '1'), 'line 4: "1" is not'),
            'code twice': (changed('130100', '110100'), 'line 11: code 110100'),
            'small letter': (changed('\tS\t', '\ts\t'), 'line 11: "s" is not a letter'),
            'two letters': (changed('\tS\t', '\tSH\t'), 'line 11: "SH" is not a letter'),
            'quote in a name': (changed('Hebei', "He'bei"), 'line 10: "He\'bei" is not a Latin'),
            'blank at a name': (changed('Hebei', 'Hebei '), 'line 10: "Hebei "'),
            'no Chinese name': (changed('河北', ''), 'line 10: "" is not a Chinese name'),
            'latin name twice': (changed('Shijiazhuang', 'Hebei'), 'the name "Hebei" is already'),
            'chinese name twice': (changed('石家庄市', '北京'), 'the name "北京" is already'),
            'latitude no number': (changed('38.04', 'north'), 'line 11: "north"'),
            'latitude not finite': (changed('38.04', 'nan'), 'line 11: "nan"'),
            'latitude out of range': (changed('38.04', '91'), 'line 11: "91"'),
            'longitude out of range': (changed('114.51', '180.5'), 'line 11: "180.5"'),
            'point of one number': (changed('114.0,38.0', '114.0'), 'line 13: "114.0"'),
            'point of three numbers': (changed('114.0,38.0', '1,2,3'), 'line 13: "1,2,3"'),
            'point no number': (changed('114.0,38.0', '114.0,x'), 'line 13: "x"'),
            'ring of two points': (changed(' 115.0,39.0', ''), 'line 11: a ring of fewer'),
            'ring of one place': (changed('115.0,38.0 115.0,39.0', '114.0,38.0 114.0,38.0'),
                                  'line 11: a ring of fewer'),
            'city without ring': (SAMPLE[:SAMPLE.rindex('ring')], 'line 11: a city without a ring'),
            'points without ring': (changed('ring\n  116', '  116'), 'line 5: points without'),
            'ring of a province': (changed('\t116.4\n', '\t116.4\nring\n'), 'line 4: a ring'),
            'city first': (SAMPLE[SAMPLE.index('city'):], 'line 1: a city before'),
        }
        for name, (text, message) in cases.items():
            with self.subTest(name):
                with self.assertRaises(build_catalogue.TextError) as caught:
                    parse(text)
                self.assertIn(message, str(caught.exception))


class Joining(unittest.TestCase):

    SQUARE = [('0', '0'), ('10', '0'), ('10', '10'), ('0', '10')]
    HOLE = [('3', '3'), ('6', '3'), ('6', '6'), ('3', '6')]
    ISLAND = [('13', '2'), ('19', '4'), ('14', '9')]

    def test_one_ring_is_closed(self):
        self.assertEqual(build_catalogue.join_rings([self.SQUARE]), self.SQUARE + self.SQUARE[:1])

    def test_the_odd_even_filling_stays(self):
        rings = [self.SQUARE, self.HOLE, self.ISLAND]
        joined = [(float(x), float(y)) for x, y in build_catalogue.join_rings(rings)]
        self.assertEqual(joined[0], joined[-1])
        inside = 0
        for i in range(-10, 210):
            for j in range(-10, 110):
                x, y = i / 10 + 0.013, j / 10 + 0.017
                expected = False
                for ring in rings:
                    expected ^= odd_even([(float(a), float(b)) for a, b in ring], x, y)
                inside += expected
                self.assertEqual(odd_even(joined, x, y), expected, (x, y))
        self.assertGreater(inside, 5000)


class Building(unittest.TestCase):

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.database = self.folder / 'city.db'

    def build(self, text, *options):
        """The exit status and what was said about it."""
        source = self.folder / 'cities.txt'
        source.write_bytes(text if isinstance(text, bytes) else text.encode('utf-8'))
        said = io.StringIO()
        with contextlib.redirect_stderr(said):
            status = build_catalogue.main([str(source), str(self.database), *options])
        return status, said.getvalue()

    def rows(self, sql):
        connection = sqlite3.connect(self.database)
        self.addCleanup(connection.close)
        return connection.execute(sql).fetchall()

    def test_rows(self):
        self.assertEqual(self.build(SAMPLE), (0, ''))
        self.assertEqual(self.rows('select * from city order by id'), [
            (110000, 'Beijing 北京', 'B', 1, 1, 39.9, 116.4, ''),
            (110100, 'Beijing City 北京市', 'B', 110000, 2, 39.91, 116.41,
             '116.0,39.0;117.0,39.0;117.0,40.0;116.0,40.0;116.0,39.0;'
             '118.0,39.0;118.5,39.0;118.5,39.5;118.0,39.0;116.0,39.0'),
            (130000, 'Hebei 河北', 'H', 1, 1, 38.5, 115.3, ''),
            (130100, 'Shijiazhuang 石家庄市', 'S', 130000, 2, 38.04, 114.51,
             '114.0,38.0;115.0,38.0;115.0,39.0;114.0,38.0')])

    def test_names(self):
        for names, expected in (
                ('bilingual', ['Beijing 北京', 'Beijing City 北京市', 'Hebei 河北',
                               'Shijiazhuang 石家庄市']),
                ('latin', ['Beijing', 'Beijing City', 'Hebei', 'Shijiazhuang']),
                ('chinese', ['北京', '北京市', '河北', '石家庄市'])):
            with self.subTest(names):
                self.assertEqual(self.build(SAMPLE, '--names', names)[0], 0)
                rows = self.rows('select name from city order by id')
                self.assertEqual([row[0] for row in rows], expected)

    def test_a_malformed_text_leaves_the_old_file(self):
        self.database.write_bytes(b'old')
        status, said = self.build(SAMPLE.replace('38.04', 'north'))
        self.assertEqual(status, 1)
        self.assertIn('line 11: "north"', said)
        self.assertEqual(self.database.read_bytes(), b'old')
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         ['cities.txt', 'city.db'])

    def test_an_old_file_is_replaced(self):
        self.database.write_bytes(b'old')
        self.assertEqual(self.build(SAMPLE)[0], 0)
        self.assertEqual(len(self.rows('select * from city')), 4)
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         ['cities.txt', 'city.db'])

    def test_failures_have_a_message(self):
        self.assertEqual(self.build(b'province\xff')[0], 1)
        said = io.StringIO()
        with contextlib.redirect_stderr(said):
            self.assertEqual(build_catalogue.main(['/nonexistent/cities.txt', 'x.db']), 1)
            self.assertEqual(build_catalogue.main(
                [str(DATA / 'cities.txt'), str(self.folder / 'missing' / 'city.db')]), 1)
        self.assertEqual(len(said.getvalue().splitlines()), 2)

    def test_the_same_text_gives_the_same_file(self):
        for names in build_catalogue.NAMES:
            with self.subTest(names):
                text = (DATA / 'cities.txt').read_text(encoding='utf-8')
                self.assertEqual(self.build(text, '--names', names), (0, ''))
                first = self.database.read_bytes()
                self.assertEqual(self.build(text, '--names', names), (0, ''))
                self.assertEqual(self.database.read_bytes(), first)


if __name__ == '__main__':
    unittest.main()
