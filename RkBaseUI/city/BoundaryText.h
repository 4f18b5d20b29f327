// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPolygonF>
#include <QStringView>

/// Reads a boundary as the city catalogue stores it: points separated by ";", each
/// "longitude,latitude" in degrees. The polygon has x = latitude and y = longitude, in the order of
/// the text.
///
/// Empty points and empty fields are passed over and fields after the second ignored; a point with
/// fewer than two fields, or with one that `QString::toDouble` refuses, is left out. The numbers
/// are those of `QString::toDouble`, bit for bit.
QPolygonF parseBoundary(QStringView text);
