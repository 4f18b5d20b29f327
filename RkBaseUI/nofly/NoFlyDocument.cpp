// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "nofly/NoFlyDocument.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

namespace NoFlyDocument {

namespace {

QString degrees(double value)
{
    return QString::number(value, 'f', 6);
}

QString timeText(const QDateTime& time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

/// Empty when there is no picture.
QString pngText(const QImage& picture)
{
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    picture.save(&png, "PNG");
    return QString::fromLatin1(png.data().toBase64());
}

/// Fills the empty text of a key in compact JSON with Base64. A large document would otherwise be
/// in memory several times more, as text and as JSON.
void fillIn(QByteArray& json, const QByteArray& key, const QByteArray& base64)
{
    // Quotes inside texts are escaped, so this is the key and nothing in a text.
    const QByteArray empty = '"' + key + "\":\"\"";
    json.insert(json.indexOf(empty) + empty.size() - 1, base64);
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
    QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    fillIn(text, "data", application.document.toBase64());
    return text;
}

QByteArray requestBody(const QByteArray& json)
{
    return "data=" + json;
}

} // namespace NoFlyDocument
