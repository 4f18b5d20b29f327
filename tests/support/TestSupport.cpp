// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

#ifdef Q_OS_WIN
#include <windows.h>

#include <string>
#endif

namespace {

// Settings names of the reference platform; written out because the support library knows no
// platform.
const char* const organizationName = "RkOrganization";
const char* const cloudApplicationName = "RkCloud";

/// A connection that goes with the object.
class Connection
{
public:
    explicit Connection(const QString& file)
        : m_name(QUuid::createUuid().toString())
    {
        m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        m_database.setDatabaseName(file);
        m_database.open();
        QSqlQuery(m_database)
            .exec(QStringLiteral("PRAGMA synchronous=OFF")); // Nothing here must survive.
    }
    ~Connection()
    {
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY(Connection)

    const QSqlDatabase& database() const { return m_database; }

private:
    QString m_name;
    QSqlDatabase m_database;
};

} // namespace

#ifdef Q_OS_WIN
/// Settings of this process's own while it lives, empty at first, in the place of the user's. The
/// newest counts; the next may be made before the last is gone.
class TestHome::Registry
{
public:
    Registry()
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        if (RegCreateKeyExW(HKEY_CURRENT_USER, m_name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                            nullptr, &m_key, nullptr)
                != ERROR_SUCCESS
            || RegOverridePredefKey(HKEY_CURRENT_USER, m_key) != ERROR_SUCCESS)
            qFatal("The settings of the person who runs this would change.");
        newest = m_key;
    }
    ~Registry()
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, m_name.c_str());
        RegCloseKey(m_key);
        if (newest == m_key)
            newest = nullptr;
        RegOverridePredefKey(HKEY_CURRENT_USER, newest);
    }
    Q_DISABLE_COPY(Registry)

private:
    static inline HKEY newest = nullptr;

    const std::wstring m_name =
        L"Software\\RkTests" + QUuid::createUuid().toString().toStdWString();
    HKEY m_key = nullptr;
};
#else
class TestHome::Registry
{
};
#endif

TestHome::TestHome()
    : m_registry(std::make_unique<Registry>())
{
    Q_ASSERT(m_dir.isValid());
    QDir().mkpath(projectRoot());
    const QString config = path() + QStringLiteral("/config");
    setEnvironment("HOME", path());
    setEnvironment("XDG_CONFIG_HOME", config);
    setEnvironment("XDG_DATA_HOME", path() + QStringLiteral("/data"));
    setEnvironment("RK_PROJECT_DIR", projectRoot());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config);
}

TestHome::~TestHome() = default;

QString TestHome::path() const
{
    return m_dir.path();
}

QString TestHome::projectRoot() const
{
    return m_dir.path() + QStringLiteral("/projects/");
}

void TestHome::setCurrentUserId(const QString& userId)
{
    QSettings settings(QString::fromLatin1(organizationName),
                       QString::fromLatin1(cloudApplicationName));
    settings.setValue(QStringLiteral("UserInfo/UserID"), userId);
}

void setEnvironment(const char* name, const QString& value)
{
#ifdef Q_OS_WIN
    // The toolkit's own function takes the letters of one code page only.
    _wputenv_s(QString::fromLatin1(name).toStdWString().c_str(), value.toStdWString().c_str());
#else
    qputenv(name, QFile::encodeName(value));
#endif
}

bool runSql(const QString& file, const QStringList& statements)
{
    if (!QDir().mkpath(QFileInfo(file).absolutePath()))
        return false;
    const Connection connection(file);
    for (const QString& statement : statements) {
        if (!QSqlQuery(connection.database()).exec(statement))
            return false;
    }
    return true;
}

QStringList readSql(const QString& file, const QString& statement)
{
    QStringList values;
    const Connection connection(file);
    QSqlQuery query(connection.database());
    query.exec(statement);
    while (query.next())
        values.append(query.value(0).toString());
    return values;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}
