# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""The offset between WGS84 and GCJ-02, the shifted datum of public maps of mainland China.

The forward formula is the publicly known approximation (an elliptic scale of Krasovsky 1940 on a
sum of sines); it has no closed inverse, so the inverse iterates. Degrees everywhere.
"""

import math

SEMI_MAJOR_AXIS = 6378245.0
ECCENTRICITY_SQUARED = 0.00669342162296594323


def _waves(x, y):
    return (20.0 * math.sin(6.0 * x * math.pi) + 20.0 * math.sin(2.0 * x * math.pi)) * 2.0 / 3.0


def _northing(x, y):
    metres = -100.0 + 2.0 * x + 3.0 * y + 0.2 * y * y + 0.1 * x * y + 0.2 * math.sqrt(abs(x))
    metres += _waves(x, y)
    metres += (20.0 * math.sin(y * math.pi) + 40.0 * math.sin(y / 3.0 * math.pi)) * 2.0 / 3.0
    metres += (160.0 * math.sin(y / 12.0 * math.pi)
               + 320.0 * math.sin(y * math.pi / 30.0)) * 2.0 / 3.0
    return metres


def _easting(x, y):
    metres = 300.0 + x + 2.0 * y + 0.1 * x * x + 0.1 * x * y + 0.1 * math.sqrt(abs(x))
    metres += _waves(x, y)
    metres += (20.0 * math.sin(x * math.pi) + 40.0 * math.sin(x / 3.0 * math.pi)) * 2.0 / 3.0
    metres += (150.0 * math.sin(x / 12.0 * math.pi)
               + 300.0 * math.sin(x / 30.0 * math.pi)) * 2.0 / 3.0
    return metres


def wgs84_to_gcj02(lng, lat):
    """The GCJ-02 position of a WGS84 position."""
    x, y = lng - 105.0, lat - 35.0
    phi = math.radians(lat)
    shape = 1.0 - ECCENTRICITY_SQUARED * math.sin(phi) ** 2
    meridian = SEMI_MAJOR_AXIS * (1.0 - ECCENTRICITY_SQUARED) / (shape * math.sqrt(shape))
    parallel = SEMI_MAJOR_AXIS / math.sqrt(shape) * math.cos(phi)
    return (lng + math.degrees(_easting(x, y) / parallel),
            lat + math.degrees(_northing(x, y) / meridian))


def gcj02_to_wgs84(lng, lat):
    """The WGS84 position of a GCJ-02 position, to better than 1e-9 degrees."""
    guess_lng, guess_lat = lng, lat
    for _ in range(20):
        shifted_lng, shifted_lat = wgs84_to_gcj02(guess_lng, guess_lat)
        error_lng, error_lat = shifted_lng - lng, shifted_lat - lat
        guess_lng -= error_lng
        guess_lat -= error_lat
        if abs(error_lng) < 1e-10 and abs(error_lat) < 1e-10:
            break
    return guess_lng, guess_lat
