// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>

/// A project file for a test, with values that are easy to tell apart.
struct ProjectFixture
{
    QString name;
    QString userId = QStringLiteral("user-1");
    QString modified = QStringLiteral("2026-05-03 12:00:00");
    QStringList outlines = {};
    QByteArray imageData = {};
    QString id = QStringLiteral("id-of-") + name;

    /// Writes <root><name>/<name>.proj and gives its path; empty when it cannot.
    QString write(const QString& root) const;
};

/// An image file of one colour with a darker right half, in base64.
QByteArray thumbnailText(const QColor& colour, const QSize& size = {380, 286},
                         const char* format = "png");

/// A square of 0.01 degree to each side of a point.
QString squareAround(double latitude, double longitude);
