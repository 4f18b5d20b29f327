// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "TypeNames.h"

#include <QStringList>

namespace {

/// Names from type 1 on.
const QStringList& cameraNames()
{
    static const QStringList names = {
        QStringLiteral("Single Lens 24 MP"), QStringLiteral("Single Lens 42 MP"),
        QStringLiteral("Single Lens 61 MP"), QStringLiteral("Five Lens 120 MP"),
        QStringLiteral("Multispectral"),     QStringLiteral("Thermal"),
        QStringLiteral("Laser Scanner"),
    };
    return names;
}

const QStringList& planeNames()
{
    static const QStringList names = {
        QStringLiteral("Fixed Wing Light"), QStringLiteral("Fixed Wing Long Range"),
        QStringLiteral("VTOL Light"),       QStringLiteral("Quadrotor"),
        QStringLiteral("VTOL Long Range"),  QStringLiteral("Hexarotor"),
    };
    return names;
}

QString nameOf(int type, const QStringList& names, const QString& kind)
{
    if (type < 1)
        return QString();
    return type <= names.size() ? names[type - 1] : kind + QLatin1Char(' ') + QString::number(type);
}

} // namespace

ECameraType GetCameraTypeByString(const QString& name)
{
    return ECameraType(cameraNames().indexOf(name) + 1);
}

EPlaneType GetPlaneTypeByString(const QString& name)
{
    return EPlaneType(planeNames().indexOf(name) + 1);
}

QString GetCameraStringByType(ECameraType type)
{
    return nameOf(type, cameraNames(), QStringLiteral("Camera"));
}

QString GetPlaneStringByType(EPlaneType type)
{
    return nameOf(type, planeNames(), QStringLiteral("Aircraft"));
}
