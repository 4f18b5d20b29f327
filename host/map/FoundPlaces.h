// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QMap>
#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

/// A place that a search has found.
struct FoundPlace
{
    QString name;
    QPointF degrees; ///< x latitude, y longitude.
};

/// "116.4,39.91", longitude first, as degrees with x latitude and y longitude. Nothing for any
/// other text and for what is no place on the earth.
std::optional<QPointF> parseLocation(const QString& text);

/// The places of a search, location text by name, in the order of their names; without those whose
/// location cannot be read.
QVector<FoundPlace> readPlaces(const QMap<QString, QString>& locations);
