// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QVector>

// Cutting of lines and rings to what a screen can show, so that the painter never meets the
// coordinates of what lies far outside.

/// The parts of an open line that lie inside the rectangle.
QVector<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& rectangle);

/// The part of a ring inside the rectangle. Where the ring leaves and comes back, the piece follows
/// the rectangle's edge; filled, it looks the same as the whole ring.
QPolygonF clippedRing(const QPolygonF& ring, const QRectF& rectangle);
