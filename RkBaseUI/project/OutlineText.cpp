// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/OutlineText.h"

#include <QString>
#include <QVector>

#include <cmath>

std::vector<CRkVector3D> parseOutline(const QString& text)
{
    std::vector<CRkVector3D> points;
    const QVector<QStringRef> pieces = text.splitRef(QLatin1Char(';'));
    for (const QStringRef& piece : pieces) {
        const QVector<QStringRef> parts = piece.split(QLatin1Char(','));
        if (parts.size() != 2)
            continue;
        bool latitudeOk = false;
        bool longitudeOk = false;
        const double latitude = parts[0].toDouble(&latitudeOk);
        const double longitude = parts[1].toDouble(&longitudeOk);
        if (latitudeOk && longitudeOk && std::isfinite(latitude) && std::isfinite(longitude))
            points.emplace_back(latitude, longitude, 0.0);
    }
    return points;
}
