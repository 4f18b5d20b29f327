// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QJsonObject>

class QSqlQuery;

// The current row of a query as a JSON object, one key a column: numbers as numbers, everything
// else as text, NULL left out. The keys "blocks", "tasks" and "points" are never there, because the
// upload document puts its lists under them. Without a query or a row, and when the column `id` is
// missing, NULL or empty, the object is empty. The query is not moved.

/// A row of the project table.
RKALGORTHM_EXPORT QJsonObject ProjectComboJsonInfo(QSqlQuery* query);

/// A row of the survey area table.
RKALGORTHM_EXPORT QJsonObject SurveyBlockComboJsonInfo(QSqlQuery* query);

/// A row of the flight task table.
RKALGORTHM_EXPORT QJsonObject FlightTaskComboJsonInfo(QSqlQuery* query);

/// A row of the marker point table.
RKALGORTHM_EXPORT QJsonObject ProjectPointComboJsonInfo(QSqlQuery* query);
