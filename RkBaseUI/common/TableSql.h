// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

/// Questions about the tables of a project file that came from elsewhere.
namespace TableSql {

/// Gives a row when one of the tables is a view or a virtual table, or has a generated column. Such
/// a file, however small, can answer with rows without end or values of any size.
QString selectComputedTables(const QStringList& tables);

} // namespace TableSql
