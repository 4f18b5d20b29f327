// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

class QPainter;
class QRectF;

/// The light plates that lie on maps and other views.
namespace PlateStyle {

/// For buttons.
extern const char* const styleSheet;

/// The plate alone; pen, brush and font of the painter stay.
void draw(QPainter& painter, const QRectF& rectangle);

} // namespace PlateStyle
