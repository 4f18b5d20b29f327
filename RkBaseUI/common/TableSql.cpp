// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/TableSql.h"

namespace TableSql {

QString selectComputedTables(const QStringList& tables)
{
    QStringList names;
    QString columns;
    for (const QString& table : tables) {
        const QString name = QLatin1Char('\'') + table + QLatin1Char('\'');
        names.append(name);
        columns += " union all select 1 from pragma_table_xinfo(" + name + ") where hidden>1";
    }
    return "select 1 from sqlite_master where name collate nocase in (" + names.join(',')
        + ") and rootpage=0 and type<>'trigger'" + columns;
}

} // namespace TableSql
