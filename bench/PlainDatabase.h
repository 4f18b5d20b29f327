// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QFile>
#include <QString>

#include <sqlite3.h>

#include <cstdlib>

namespace bench {

/// An SQLite file for the floors, without the toolkit between.
class PlainDatabase
{
public:
    explicit PlainDatabase(const QString& file)
    {
        sqlite3_open_v2(QFile::encodeName(file).constData(), &m_handle,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    }
    ~PlainDatabase() { sqlite3_close(m_handle); }
    Q_DISABLE_COPY(PlainDatabase)

    void run(const QString& sql) const
    {
        if (sqlite3_exec(m_handle, sql.toUtf8().constData(), nullptr, nullptr, nullptr)
            != SQLITE_OK)
            std::abort();
    }

    sqlite3* handle() const { return m_handle; }

private:
    sqlite3* m_handle = nullptr;
};

} // namespace bench
