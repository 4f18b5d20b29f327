// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkDataBase.h"

#include <atomic>

namespace {

QString nextConnectionName()
{
    static std::atomic<quint64> count{0};
    return QStringLiteral("CRkDataBase-") + QString::number(++count);
}

} // namespace

CRkDataBase::CRkDataBase(const QString& path)
    : m_path(path)
{
}

CRkDataBase::~CRkDataBase()
{
    close();
}

bool CRkDataBase::open()
{
    if (m_connection.isOpen())
        return true;
    if (m_path.isEmpty()) // SQLite would take this for a temporary database.
        return false;
    m_connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nextConnectionName());
    m_connection.setDatabaseName(m_path);
    m_connection.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=200"));
    if (!m_connection.open()) {
        close();
        return false;
    }
    exec(QStringLiteral("PRAGMA trusted_schema=OFF"));
    exec(QStringLiteral("PRAGMA cell_size_check=ON"));
    return true;
}

QSqlQuery CRkDataBase::exec(const QString& sql)
{
    if (sql.isEmpty() || !m_connection.isOpen()) {
        QSqlResult* const nothing = nullptr;
        return QSqlQuery(nothing); // Without it, the query would belong to the default connection.
    }
    QSqlQuery query(m_connection);
    query.setForwardOnly(true);
    query.exec(sql);
    return query;
}

void CRkDataBase::close()
{
    if (!m_connection.isValid())
        return;
    const QString name = m_connection.connectionName();
    // Closing ends the statements of queries that still live, so that none keeps the file open.
    m_connection.close();
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}
