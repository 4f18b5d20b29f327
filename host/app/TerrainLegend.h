// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QRectF>

class ElevationModel;
class QPainter;

/// What the colours of the terrain panel mean.
class TerrainLegend
{
    Q_DECLARE_TR_FUNCTIONS(TerrainLegend)

public:
    static QSizeF size();

    /// A plate with the heights of the terrain.
    static void drawHeights(QPainter& painter, const QRectF& plate, const ElevationModel& model);
    /// A plate with the net volumes of cells, from the most fill to the most cut.
    static void drawVolumes(QPainter& painter, const QRectF& plate, double largest);
};
