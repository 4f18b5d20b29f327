// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/Contours.h"
#include "terrain/ElevationModel.h"
#include "terrain/TerrainView.h"

#include <QImage>
#include <QPixmap>

/// The ground of the terrain panel: shaded relief with contours. The picture is kept until the view
/// changes.
class TerrainCanvas
{
public:
    explicit TerrainCanvas(const ElevationModel& model);

    const QPixmap& picture(const TerrainView& view, double pixelRatio);

private:
    void drawContours(QPainter& painter, double pixelRatio) const;

    ElevationModel m_model;
    QImage m_relief; ///< Null until a picture is wanted.
    QVector<Contour> m_contours;
    TerrainView m_view;
    QPixmap m_picture; ///< Of `m_view`.
};
