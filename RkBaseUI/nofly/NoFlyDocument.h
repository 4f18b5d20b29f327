// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QStringList>
#include <QVector>

/// What the web service gets to read of an application for lifting a no-fly zone.
namespace NoFlyDocument {

/// An application as the user filled it in.
struct Application
{
    QString documentPath; ///< of the authorisation document, with "/" between folders
    QByteArray document; ///< its bytes
    QVector<QStringList> area; ///< the cells of each corner's row
    QDateTime begin;
    QDateTime end;
    QStringList localIds;
    QImage picture; ///< of the map; may be null
    QString name;
    QString contact;
    QString company;
    QString explanation;
};

/// The table row of each corner: longitude and latitude with six decimals, and "N/A" for the
/// altitude. A corner is x latitude, y longitude, in degrees.
QVector<QStringList> coordinateRows(const QList<QPointF>& outline);

/// The rows as one text: "," between cells and "|" between rows.
QString areaText(const QVector<QStringList>& rows);

/// Whether the first time is earlier, in the whole seconds that are shown and sent.
bool isEarlier(const QDateTime& begin, const QDateTime& end);

/// The application as a compact JSON object whose values are all texts; bytes are in Base64.
/// Document and result must fit into a byte array, see `largestDocument`.
QByteArray json(const Application& application);

/// The body of the request that carries the JSON, which goes into it as it is.
QByteArray requestBody(const QByteArray& json);

/// The largest document, in bytes, that leaves room for the rest of the JSON in a byte array.
constexpr qint64 largestDocument = 1'500'000'000;

} // namespace NoFlyDocument
