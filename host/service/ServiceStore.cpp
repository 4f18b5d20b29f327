// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/ServiceStore.h"

#include <QDateTime>
#include <QLocale>
#include <QMutexLocker>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

namespace {

namespace sql {

const char* const createApplications =
    "CREATE TABLE IF NOT EXISTS lift_application (number INTEGER PRIMARY KEY, received_at TEXT, "
    "file_name TEXT, document BLOB, area TEXT, begin_at TEXT, end_at TEXT, local_ids TEXT, "
    "picture BLOB, name TEXT, contact TEXT, company TEXT, explanation TEXT)";
const char* const createDocuments =
    "CREATE TABLE IF NOT EXISTS project_document (number INTEGER PRIMARY KEY, received_at TEXT, "
    "project_id TEXT, project_name TEXT, blocks INTEGER, tasks INTEGER, points INTEGER, json BLOB)";
const char* const insertApplication =
    "INSERT INTO lift_application (received_at, file_name, document, area, begin_at, end_at, "
    "local_ids, picture, name, contact, company, explanation) "
    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
const char* const insertDocument =
    "INSERT INTO project_document (received_at, project_id, project_name, blocks, tasks, points, "
    "json) VALUES (?, ?, ?, ?, ?, ?, ?)";
const char* const selectApplications =
    "SELECT number, received_at, file_name, length(document), area, begin_at, end_at, local_ids, "
    "name, contact, company, explanation FROM lift_application ORDER BY number DESC";
const char* const selectDocuments =
    "SELECT number, received_at, project_id, project_name, blocks, tasks, points, length(json) "
    "FROM project_document ORDER BY number DESC";

} // namespace sql

QString now()
{
    return QLocale::c().toString(QDateTime::currentDateTime(),
                                 QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

bool run(const QSqlDatabase& database, const char* statement)
{
    return QSqlQuery(database).exec(QString::fromLatin1(statement));
}

/// The number of the new row, 0 on failure.
int insert(const QSqlDatabase& database, const char* statement, const QVariantList& values)
{
    QSqlQuery query(database);
    if (!query.prepare(QString::fromLatin1(statement)))
        return 0;
    for (const QVariant& value : values)
        query.addBindValue(value);
    return query.exec() ? query.lastInsertId().toInt() : 0;
}

LiftApplication applicationOf(const QSqlQuery& row)
{
    LiftApplication application;
    application.number = row.value(0).toInt();
    application.receivedAt = row.value(1).toString();
    application.fileName = row.value(2).toString();
    application.documentSize = row.value(3).toLongLong();
    application.area = row.value(4).toString();
    application.begin = row.value(5).toString();
    application.end = row.value(6).toString();
    application.localIds = row.value(7).toString();
    application.name = row.value(8).toString();
    application.contact = row.value(9).toString();
    application.company = row.value(10).toString();
    application.explanation = row.value(11).toString();
    return application;
}

ProjectDocument documentOf(const QSqlQuery& row)
{
    ProjectDocument document;
    document.number = row.value(0).toInt();
    document.receivedAt = row.value(1).toString();
    document.projectId = row.value(2).toString();
    document.projectName = row.value(3).toString();
    document.blocks = row.value(4).toInt();
    document.tasks = row.value(5).toInt();
    document.points = row.value(6).toInt();
    document.size = row.value(7).toLongLong();
    return document;
}

} // namespace

ServiceStore::ServiceStore(const QString& file)
    : m_file(file)
{
}

bool ServiceStore::prepare()
{
    return withConnection([](const QSqlDatabase& database) {
        return run(database, sql::createApplications) && run(database, sql::createDocuments);
    });
}

int ServiceStore::add(const LiftApplication& application)
{
    int number = 0;
    withConnection([&](const QSqlDatabase& database) {
        number = insert(database, sql::insertApplication,
                        {now(), application.fileName, application.document, application.area,
                         application.begin, application.end, application.localIds,
                         application.picture, application.name, application.contact,
                         application.company, application.explanation});
        return number > 0;
    });
    return number;
}

int ServiceStore::add(const ProjectDocument& document)
{
    int number = 0;
    withConnection([&](const QSqlDatabase& database) {
        number = insert(database, sql::insertDocument,
                        {now(), document.projectId, document.projectName, document.blocks,
                         document.tasks, document.points, document.json});
        return number > 0;
    });
    return number;
}

QVector<LiftApplication> ServiceStore::applications()
{
    QVector<LiftApplication> found;
    withConnection([&found](const QSqlDatabase& database) {
        QSqlQuery query(QString::fromLatin1(sql::selectApplications), database);
        while (query.next())
            found.append(applicationOf(query));
        return true;
    });
    return found;
}

QVector<ProjectDocument> ServiceStore::documents()
{
    QVector<ProjectDocument> found;
    withConnection([&found](const QSqlDatabase& database) {
        QSqlQuery query(QString::fromLatin1(sql::selectDocuments), database);
        while (query.next())
            found.append(documentOf(query));
        return true;
    });
    return found;
}

bool ServiceStore::withConnection(const std::function<bool(QSqlDatabase&)>& work)
{
    const QMutexLocker locker(&m_mutex);
    const QString name = QUuid::createUuid().toString();
    bool isDone = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(m_file);
        isDone = !m_file.isEmpty() && database.open() && work(database);
    }
    QSqlDatabase::removeDatabase(name);
    return isDone;
}
