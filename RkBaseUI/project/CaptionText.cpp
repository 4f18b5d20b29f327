// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CaptionText.h"

#include <QFontMetricsF>

namespace CaptionText {

namespace {

/// Characters; far more than fit into the caption.
constexpr int measuredName = 1000;

} // namespace

QString elided(const QString& name, const QFont& font, qreal width)
{
    // The name of a damaged file may be megabytes, which would take seconds at every painting.
    return QFontMetricsF(font).elidedText(name.left(measuredName), Qt::ElideRight, width);
}

QString withoutTrailingBlanks(QString text)
{
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

} // namespace CaptionText
