// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/UniqueProjectName.h"

#include <QFileInfo>
#include <QSet>

namespace UniqueProjectName {

QString make(const QString& base, const QStringList& projectFiles, const FileExists& fileExists)
{
    QSet<QString> taken;
    for (const QString& file : projectFiles) {
        if (!fileExists(file))
            break;
        taken.insert(QFileInfo(file).completeBaseName());
    }

    const QString pattern = base + QStringLiteral("_%1");
    QString candidate = base;
    for (int number = 1; taken.contains(candidate); ++number)
        candidate = QString(pattern).replace(QLatin1String("%1"), QString::number(number));
    return candidate;
}

bool isTaken(const QString& name, const QStringList& projectFiles, const FileExists& fileExists)
{
    for (const QString& file : projectFiles) {
        if (!fileExists(file))
            return false;
        if (QFileInfo(file).completeBaseName() == name)
            return true;
    }
    return false;
}

} // namespace UniqueProjectName
