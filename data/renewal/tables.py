# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Reads the hand-made tables units.txt and splits.txt beside this file."""

from dataclasses import dataclass, field
from pathlib import Path

HERE = Path(__file__).resolve().parent


@dataclass
class City:
    code: str
    letter: str
    latin: str
    chinese: str
    seat: tuple                 # (lat, lng) as typed
    package_code: str = ''      # the unit that the package has its outline under; '' with a split
    package_name: str = ''
    whole_province: bool = False


@dataclass
class Province:
    code: str
    letter: str
    latin: str
    chinese: str
    file_name: str
    cities: list = field(default_factory=list)


def _lines(name):
    for number, line in enumerate((HERE / name).read_text(encoding='utf-8').splitlines(), 1):
        if line.strip() and not line.startswith('#'):
            yield number, line


def _position(text):
    lat, lng = text.split(',')
    return float(lat), float(lng)


def provinces():
    """The provinces with their cities, in the order of the table."""
    result = []
    for _, line in _lines('units.txt'):
        fields = [part.strip() for part in line.split('|')]
        if not line.startswith(' '):
            result.append(Province(*fields))
            continue
        city = City(*fields[:4], _position(fields[4]), fields[0].removesuffix('00'), fields[3])
        remark = fields[5] if len(fields) > 5 else ''
        if remark == 'whole province':
            city.whole_province = True
        elif remark == 'split off':
            city.package_code = ''
        elif remark:
            city.package_code, city.package_name = remark.split(' ')[:2]
        result[-1].cities.append(city)
    return result


def splits():
    """{package code: [((lat, lng), code of the city it belongs to)]}"""
    result = {}
    code = ''
    for _, line in _lines('splits.txt'):
        if line.startswith(' '):
            position, city, _ = (part.strip() for part in line.split('|'))
            result[code].append((_position(position), city))
        else:
            code = line.split(' ')[0]
            result[code] = []
    return result
