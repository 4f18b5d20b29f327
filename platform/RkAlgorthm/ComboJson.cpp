// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "ComboJson.h"

#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <cmath>

namespace {

bool isListKey(const QString& key)
{
    return key == QLatin1String("blocks") || key == QLatin1String("tasks")
        || key == QLatin1String("points");
}

QJsonValue jsonOf(const QVariant& value)
{
    switch (value.type()) {
    case QVariant::Int:
    case QVariant::LongLong:
        return value.toLongLong();
    case QVariant::Double: {
        const double number = value.toDouble();
        // JSON has no infinite numbers.
        return std::isfinite(number) ? QJsonValue(number) : QJsonValue(value.toString());
    }
    default:
        return value.toString();
    }
}

QJsonObject rowObject(const QSqlQuery* query)
{
    if (!query || !query->isValid())
        return {};
    const QSqlRecord row = query->record();
    if (row.value(QStringLiteral("id")).toString().isEmpty())
        return {};
    QJsonObject object;
    for (int i = 0; i < row.count(); ++i) {
        const QString key = row.fieldName(i);
        if (!row.isNull(i) && !isListKey(key))
            object.insert(key, jsonOf(row.value(i)));
    }
    return object;
}

} // namespace

QJsonObject ProjectComboJsonInfo(QSqlQuery* query)
{
    return rowObject(query);
}

QJsonObject SurveyBlockComboJsonInfo(QSqlQuery* query)
{
    return rowObject(query);
}

QJsonObject FlightTaskComboJsonInfo(QSqlQuery* query)
{
    return rowObject(query);
}

QJsonObject ProjectPointComboJsonInfo(QSqlQuery* query)
{
    return rowObject(query);
}
