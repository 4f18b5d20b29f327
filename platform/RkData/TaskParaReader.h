// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <memory>

class CRkTaskPara;
class QSqlQuery;
class QSqlRecord;

/// The task parameters in the current row of a survey-area table. Null when the row has no
/// `relative_fly_height`; without an extended part when it has no `task_type`. Any other column
/// that is missing, empty or no finite number leaves its parameter at the default. `columns` is the
/// record of the query.
std::unique_ptr<CRkTaskPara> readTaskPara(const QSqlQuery& row, const QSqlRecord& columns);
