// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/WebService.h"

#include "common/UploadArraySql.h"
#include "common/WebReply.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/RkData.h>

#include <QEventLoop>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTimer>
#include <QUrl>
#include <QVariant>

namespace {

constexpr int locationLimit = 3000; // ms
constexpr int searchLimit = 5000; // ms
/// A reply without end is not read any further, and so reaches the limit of time.
constexpr qint64 largestReply = qint64(32) * 1024 * 1024;

/// What the service has sent when the reply ends or the limit, in milliseconds, has passed.
QByteArray get(const QString& path, int limit)
{
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer); // A coarse one may be early by a twentieth.
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(QString::fromUtf8(GetServerIP()) + path, QUrl::TolerantMode));
    request.setRawHeader("Accept-Encoding", "identity"); // A packed reply unpacks without a limit.
    QNetworkReply* reply = manager.get(request); // The manager's child; it goes with it.
    reply->setReadBufferSize(largestReply);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    timer.start(limit);
    loop.exec();
    return reply->readAll();
}

/// Whether the file is a database whose tables hold what they answer. One with tables that compute
/// their rows might never end to answer.
bool isSound(CRkDataBase& database)
{
    QSqlQuery query =
        database.exec("select exists(" + UploadArraySql::selectComputedTables() + ")");
    return query.next() && !query.value(0).toBool();
}

/// A column of the current row, or empty when there is no such column.
QString textOf(const QSqlQuery& query, const QString& column)
{
    const int index = query.record().indexOf(column);
    return index < 0 ? QString() : query.value(index).toString();
}

void insertUnlessEmpty(QJsonObject& object, const char* key, const QJsonArray& list)
{
    if (!list.isEmpty())
        object.insert(QLatin1String(key), list);
}

/// The rows of a query as objects, without the empty ones.
QJsonArray rowsOf(QSqlQuery query, QJsonObject (*rowObject)(QSqlQuery*))
{
    QJsonArray rows;
    while (query.next()) {
        const QJsonObject object = rowObject(&query);
        if (!object.isEmpty())
            rows.append(object);
    }
    return rows;
}

QJsonArray blocksOf(const QString& projectId, CRkDataBase& database)
{
    QJsonArray blocks;
    QSqlQuery query = database.exec(UploadArraySql::selectBlocks(projectId));
    while (query.next()) {
        QJsonObject block = SurveyBlockComboJsonInfo(&query);
        if (block.isEmpty())
            continue; // Its tasks go with it.
        const QString blockId = textOf(query, QStringLiteral("survey_area_guid"));
        insertUnlessEmpty(
            block, "tasks",
            rowsOf(database.exec(UploadArraySql::selectTasks(blockId)), FlightTaskComboJsonInfo));
        blocks.append(block);
    }
    return blocks;
}

QJsonObject projectOf(CRkDataBase& database)
{
    QString projectId;
    QJsonObject project;
    QSqlQuery query = database.exec(UploadArraySql::selectProject());
    while (query.next()) {
        projectId = textOf(query, QStringLiteral("id"));
        project = ProjectComboJsonInfo(&query);
    }
    insertUnlessEmpty(project, "blocks", blocksOf(projectId, database));
    insertUnlessEmpty(
        project, "points",
        rowsOf(database.exec(UploadArraySql::selectPoints(projectId)), ProjectPointComboJsonInfo));
    return project;
}

} // namespace

bool GetCurLatLng(PointLatLng& pos)
{
    return WebReply::readCentre(get(QStringLiteral("/bing/location"), locationLimit), pos);
}

QMap<QString, QString> GetSearchRet(const QString& keyword)
{
    return WebReply::readPlaces(
        get(QStringLiteral("/bing/fuzzysearch?keyword=") + keyword, searchLimit));
}

QByteArray GetUploadArray(const QString& dbPath)
{
    QJsonObject project;
    CRkDataBase database(dbPath);
    if (QFileInfo::exists(dbPath) && database.open() && isSound(database))
        project = projectOf(database);
    database.close();
    return QJsonDocument(project).toJson(QJsonDocument::Compact);
}
