// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "samples/SampleGeometry.h"

#include <QByteArray>
#include <QImage>
#include <QPolygonF>
#include <QVector>

/// Draws the small map of a project.
namespace SampleThumbnail {

/// Twice the size at which a tile shows it.
constexpr int width = 380;
constexpr int height = 286;

/// What the map shows, in metres on the plane of the project.
struct Scene
{
    QVector<SampleGeometry::Area> areas; ///< At least one.
    QVector<QPointF> markers;
    QPolygonF cityBoundary;
    quint32 seed = 0; ///< Of landscape and colours.
};

/// The survey areas with their flight lines on an invented landscape, the city's boundary where it
/// passes, and a small map of the whole city in the corner. Needs no display.
QImage draw(const Scene& scene);

enum class Format {
    Jpeg,
    Png ///< With a palette.
};

/// The picture as an image file in base64.
QByteArray toBase64(const QImage& image, Format format);

} // namespace SampleThumbnail
