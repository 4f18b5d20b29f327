// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkDataBase.h"

#include <QDir>

#include <atomic>

#ifdef Q_OS_WIN
#include <windows.h>

#include <string>
#endif

namespace {

QString nextConnectionName()
{
    static std::atomic<quint64> count{0};
    return QStringLiteral("CRkDataBase-") + QString::number(++count);
}

/// The name by which SQLite opens the file. Windows takes a long one from it only in a form that
/// says so.
QString databaseName(const QString& file)
{
#ifdef Q_OS_WIN
    const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
    std::wstring whole(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(GetFullPathNameW(path.c_str(), DWORD(whole.size()), whole.data(), nullptr));
    constexpr std::size_t longest = MAX_PATH - 12; // Behind the name may follow "-journal".
    if (whole.size() > longest) {
        const QString name = QString::fromStdWString(whole);
        return name.startsWith(QLatin1String(R"(\\)")) ? QLatin1String(R"(\\?\UNC)") + name.mid(1)
                                                       : QLatin1String(R"(\\?\)") + name;
    }
#endif
    return file;
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
    m_connection.setDatabaseName(databaseName(m_path));
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
