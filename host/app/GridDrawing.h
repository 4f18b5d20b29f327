// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/CutAndFill.h"
#include "terrain/EarthworkGrid.h"
#include "terrain/TerrainView.h"

#include <QImage>
#include <QStringList>
#include <QVector>

class QPainter;

/// An earthwork grid as the terrain panel shows it. Its cells are coloured once, when they get
/// their volumes.
class GridDrawing
{
public:
    /// None until then.
    void setVolumes(const EarthworkGrid& grid, const QHash<QString, CutAndFill>& volumes);
    void clear();

    bool hasVolumes() const { return !m_colours.isNull(); }
    double largest() const { return m_largest; }
    /// Of the cell in a column and row; nothing where none is known.
    std::optional<CutAndFill> volume(const QPoint& cell) const;

    void draw(QPainter& painter, const EarthworkGrid& grid, const TerrainView& view,
              bool isMovable) const;

private:
    void addCell(const std::optional<CutAndFill>& volume);
    void drawTexts(QPainter& painter, const EarthworkGrid& grid, const TerrainView& view) const;

    QImage m_colours; ///< One pixel for each cell.
    QVector<std::optional<CutAndFill>> m_volumes; ///< Row by row.
    QVector<QStringList> m_texts; ///< Of the volumes.
    int m_columns = 0;
    double m_largest = 0;
    QString m_longestText; ///< Of a volume.
    int m_mostLines = 0; ///< Of a cell's text.
};
