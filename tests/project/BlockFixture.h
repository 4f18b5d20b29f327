// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A project file with blocks for a test, and its companion file with the flights.
struct BlockFixture
{
    struct Task
    {
        QString id;
        int flights = 0;
    };
    struct Block
    {
        QString id;
        QString name;
        QList<Task> tasks = {};
        QString planeType = QStringLiteral("Quadrotor");
        QString cameraType = QStringLiteral("Thermal");
    };

    QString name;
    QList<Block> blocks = {};
    QString userId = QStringLiteral("user-1");
    QString modified = QStringLiteral("2026-05-03 12:34:56");
    QString softwareVersion = QStringLiteral("1.0.0");
    QString id = QStringLiteral("id-of-") + name;

    QString file(const QString& root) const { return root + name + '/' + name + ".proj"; }

    /// Writes both files and gives the path of the project; empty when it cannot.
    QString write(const QString& root) const;
};

/// The text between single quotes, safe for any text.
QString sqlText(QString text);

/// The file with the flights of a project file.
QString flightsOf(const QString& projectFile);
