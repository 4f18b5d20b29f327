// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "nofly/NoFlyDocument.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

namespace NoFlyDocument {

namespace {

QString degrees(double value)
{
    return QString::number(value, 'f', 6);
}

/// With the digits 0 to 9 wherever the user lives, unlike QDateTime::toString.
QString timeText(const QDateTime& time)
{
    return QLocale::c().toString(time, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

/// Empty when there is no picture.
QString pngText(const QImage& picture)
{
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    picture.save(&png, "PNG");
    return QString::fromLatin1(png.data().toBase64());
}

/// Compact JSON with the Base64 of the bytes for the empty text of a key. A large document would
/// otherwise be in memory several times more, as Base64, as text and as JSON.
QByteArray filledIn(const QByteArray& json, const QByteArray& key, const QByteArray& bytes)
{
    // Quotes inside texts are escaped, so this is the key and nothing in a text.
    const QByteArray empty = '"' + key + "\":\"\"";
    const int textAt = json.indexOf(empty) + empty.size() - 1;
    constexpr int step = 3 << 16; // Pieces of whole groups, which need no padding between them.

    QByteArray filled;
    filled.reserve(json.size() + (bytes.size() + 2) / 3 * 4);
    filled.append(json.constData(), textAt);
    for (int at = 0; at < bytes.size(); at += step) {
        const int size = std::min(step, bytes.size() - at);
        filled.append(QByteArray::fromRawData(bytes.constData() + at, size).toBase64());
    }
    filled.append(json.constData() + textAt, json.size() - textAt);
    return filled;
}

} // namespace

QVector<QStringList> coordinateRows(const QList<QPointF>& outline)
{
    QVector<QStringList> rows;
    rows.reserve(outline.size());
    for (const QPointF& corner : outline) {
        // The altitude is part of what is sent, so it is the same in every language.
        rows.append({degrees(corner.y()), degrees(corner.x()), QStringLiteral("N/A")});
    }
    return rows;
}

QString areaText(const QVector<QStringList>& rows)
{
    QStringList texts;
    texts.reserve(rows.size());
    for (const QStringList& cells : rows)
        texts.append(cells.join(QLatin1Char(',')));
    return texts.join(QLatin1Char('|'));
}

bool isEarlier(const QDateTime& begin, const QDateTime& end)
{
    return begin.toSecsSinceEpoch() < end.toSecsSinceEpoch();
}

QByteArray json(const Application& application)
{
    const QJsonObject object{
        {QStringLiteral("filename"), application.documentPath.section(QLatin1Char('/'), -1)},
        {QStringLiteral("data"), QString(QLatin1String(""))},
        {QStringLiteral("area"), areaText(application.area)},
        {QStringLiteral("beginat"), timeText(application.begin)},
        {QStringLiteral("expiredat"), timeText(application.end)},
        {QStringLiteral("localids"), application.localIds.join(QLatin1Char(','))},
        {QStringLiteral("pic"), pngText(application.picture)},
        {QStringLiteral("name"), application.name},
        {QStringLiteral("contact"), application.contact},
        {QStringLiteral("strCompany"), application.company},
        {QStringLiteral("explain"), application.explanation},
    };
    return filledIn(QJsonDocument(object).toJson(QJsonDocument::Compact), "data",
                    application.document);
}

QByteArray requestBody(const QByteArray& json)
{
    return "data=" + json;
}

} // namespace NoFlyDocument
