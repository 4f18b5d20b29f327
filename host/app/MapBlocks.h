// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapView.h"

#include <QPolygonF>
#include <QString>
#include <QVector>

class QPainter;

/// The survey blocks of a project as they lie on the map.
class MapBlocks
{
public:
    struct Block
    {
        QString name;
        QPolygonF outline; ///< Degrees, x latitude, y longitude: a ring, or the line of a strip.
        bool isStrip = false;
        bool isOpened = false; ///< Highlighted and above the others.
    };

    MapBlocks() = default;
    explicit MapBlocks(const QVector<Block>& blocks);

    bool isEmpty() const { return m_blocks.isEmpty(); }
    /// On the plane; of the opened block, of all blocks. Empty when there are none.
    QRectF openedExtent() const { return m_openedExtent; }
    QRectF extent() const { return m_extent; }

    void draw(QPainter& painter, const MapView& view) const;

private:
    static void drawShape(QPainter& painter, const MapView& view, const Block& block);
    static void drawName(QPainter& painter, const MapView& view, const Block& block);

    QVector<Block> m_blocks; ///< With outlines on the plane; the opened one last.
    QRectF m_openedExtent;
    QRectF m_extent;
};
