// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/WebReply.h"

#include <RkAlgorthm/PointLatLng.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace WebReply {

namespace {

/// "data" of an answer that counts; undefined otherwise.
QJsonValue dataOf(const QByteArray& reply)
{
    const QJsonDocument document = QJsonDocument::fromJson(reply);
    if (document.isEmpty())
        return QJsonValue::Undefined;
    const QJsonObject top = document.object();
    const int status = top.value(QLatin1String("status")).toInt();
    if (status != 0 && status != 1)
        return QJsonValue::Undefined;
    return top.value(QLatin1String("data"));
}

} // namespace

bool readCentre(const QByteArray& reply, PointLatLng& position)
{
    const QJsonArray centre = dataOf(reply).toObject().value(QLatin1String("center")).toArray();
    const QJsonValue longitude = centre.at(0);
    const QJsonValue latitude = centre.at(1);
    if (!longitude.isDouble() || !latitude.isDouble())
        return false;
    position.SetLat(latitude.toDouble());
    position.SetLng(longitude.toDouble());
    return true;
}

QMap<QString, QString> readPlaces(const QByteArray& reply)
{
    QMap<QString, QString> locationByName;
    const QJsonArray places = dataOf(reply).toArray();
    for (const QJsonValue& place : places) {
        locationByName.insert(place[QLatin1String("name")].toString(),
                              place[QLatin1String("location")].toString());
    }
    return locationByName;
}

} // namespace WebReply
