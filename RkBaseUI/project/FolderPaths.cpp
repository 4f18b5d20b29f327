// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/FolderPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace FolderPaths {

QString below(const QString& root, const QString& path)
{
    if (path.isEmpty())
        return {};
    QString start = QDir::cleanPath(QFileInfo(root).absoluteFilePath());
    if (!start.endsWith(QLatin1Char('/'))) // The root of a drive ends so.
        start += QLatin1Char('/');
    const QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return clean.startsWith(start) ? clean.mid(start.size()) : QString();
}

bool areWindowsFolders(const QString& path)
{
    static const QRegularExpression forbidden(QStringLiteral(R"([<>:"|?*\x{00}-\x{1f}])"));
    // A device is meant with anything behind a dot, too.
    static const QRegularExpression noFolder(
        QStringLiteral(R"([. ](?:[/\\]|$)|(?:^|[/\\])(?:(?:CON|PRN|AUX|NUL|CONIN\$|CONOUT\$|)"
                       R"((?:COM|LPT)[0-9\x{b9}\x{b2}\x{b3}]) *(?:\.[^/\\]*)?)(?:[/\\]|$))"),
        QRegularExpression::CaseInsensitiveOption);
    return !forbidden.match(path).hasMatch() && !noFolder.match(path).hasMatch();
}

} // namespace FolderPaths
