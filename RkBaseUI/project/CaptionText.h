// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

class QFont;

/// Names as captions show and take them.
namespace CaptionText {

/// Logical pixels that a name takes at most in a caption that is not being edited.
constexpr qreal displayedWidth = 140;

/// The name cut at its right end to the width, in logical pixels.
QString elided(const QString& name, const QFont& font, qreal width = displayedWidth);

/// The text without the blanks (U+0020) at its end.
QString withoutTrailingBlanks(QString text);

} // namespace CaptionText
