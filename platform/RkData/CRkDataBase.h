// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkData/RkDataExport.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

/// One SQLite file. The file may come from anywhere: its schema is not trusted, a lock is not
/// waited for long, and no call prints or throws. What a statement computes has no limit, though:
/// where a table is expected, such a file may hold a view that never ends, so ask sqlite_master
/// first. An object stays on the thread that opened it.
///
///     CRkDataBase database(file);
///     if (database.open()) {
///         QSqlQuery names = database.exec("select project_name from project");
///         while (names.next()) ...
///     }
///
/// Several objects may be open on one file, and queries of one object may be nested.
class RKDATA_EXPORT CRkDataBase
{
public:
    /// Binds the object to the file without touching it.
    explicit CRkDataBase(const QString& path);
    /// Closes.
    ~CRkDataBase();
    Q_DISABLE_COPY(CRkDataBase)

    /// Opens the file; a missing one is made, empty, where its folder exists. False when the file
    /// cannot be opened. What the file holds is not looked at before the first statement. Opening
    /// again an open object does nothing.
    bool open();

    /// Runs one statement and returns its query, forward only and before the first row. When the
    /// statement fails, is empty or holds more than one, or the object is not open, the query's
    /// next() is false.
    QSqlQuery exec(const QString& sql);

    /// Releases the file at once. Queries of the object that still live give no more rows, less the
    /// first one if it has not been asked for yet, and must be asked for nothing else.
    void close();

private:
    QString m_path;
    QSqlDatabase m_connection;
};
