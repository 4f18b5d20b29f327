// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QString>

/// Copies of programs that lie beside this one, to be run from other folders.
namespace ProgramCopy {

/// The file name of a program.
inline QString fileName(const QString& name)
{
#ifdef Q_OS_WIN
    return name + QStringLiteral(".exe");
#else
    return name;
#endif
}

/// Copies the program into the folder. Gives the path of the copy; empty when it cannot.
inline QString make(const QString& name, const QString& folder)
{
    const QString copy = folder + QLatin1Char('/') + fileName(name);
    return QFile::copy(QCoreApplication::applicationDirPath() + QLatin1Char('/') + fileName(name),
                       copy)
        ? copy
        : QString();
}

/// In which copies find their libraries and plugins also where these lie beside the programs.
inline QProcessEnvironment environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
#ifdef Q_OS_WIN
    const QString folder = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    environment.insert(QStringLiteral("PATH"),
                       folder + QLatin1Char(';') + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), folder);
#endif
    return environment;
}

} // namespace ProgramCopy
