// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/ScreenPicture.h"

#include <QFileInfo>
#include <QGuiApplication>

QPixmap screenPicture(const QString& path)
{
    const QFileInfo file(path);
    const QString twin = file.path() + QLatin1Char('/') + file.completeBaseName()
        + QStringLiteral("@2x.") + file.suffix();
    if (qGuiApp->devicePixelRatio() <= 1.0 || !QFileInfo::exists(twin))
        return QPixmap(path);
    QPixmap picture(twin);
    // The toolkit does not see the mark of a twin whose name has further dots.
    picture.setDevicePixelRatio(2.0);
    return picture;
}
