// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The web service's helpers. The floor of the upload document is a plain loop with the SQLite C API
// that runs the same statements and builds the same JSON with the toolkit. The floor of an upload
// is curl, which sends the same body to the same service, its start-up included.

#include "Bench.h"
#include "PlainDatabase.h"

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkNoflyApplyUpload.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>
#include <RkBaseUI/WebService.h>
#include <RkProjectDbOperator/CRkUpLoadObject.h>

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sqlite3.h>

#include <cstdlib>

namespace {

constexpr int runs = 7;
constexpr int blockCount = 1000;
constexpr int tasksOfABlock = 20;
constexpr int documentBytes = 20 * 1000 * 1000;

class Database : public bench::PlainDatabase
{
public:
    using PlainDatabase::PlainDatabase;

    /// Calls `take` with the object of each row.
    template <typename Take>
    void forEachRow(const QString& sql, Take&& take) const
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle(), sql.toUtf8().constData(), -1, &statement, nullptr)
            != SQLITE_OK)
            std::abort();
        while (sqlite3_step(statement) == SQLITE_ROW)
            take(rowOf(statement));
        sqlite3_finalize(statement);
    }

private:
    static QJsonObject rowOf(sqlite3_stmt* statement)
    {
        QJsonObject object;
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            const QString key = QString::fromUtf8(sqlite3_column_name(statement, i));
            switch (sqlite3_column_type(statement, i)) {
            case SQLITE_NULL:
                break;
            case SQLITE_INTEGER:
                object.insert(key, qint64(sqlite3_column_int64(statement, i)));
                break;
            case SQLITE_FLOAT:
                object.insert(key, sqlite3_column_double(statement, i));
                break;
            default:
                object.insert(key,
                              QString::fromUtf8(
                                  reinterpret_cast<const char*>(sqlite3_column_text(statement, i)),
                                  sqlite3_column_bytes(statement, i)));
            }
        }
        return object;
    }
};

QString makeProject(const QString& file, bool isIndexed)
{
    const Database project(file);
    project.run("PRAGMA synchronous=OFF; BEGIN");
    project.run("CREATE TABLE " + ProjectTableName + GetProjectTableContents());
    project.run("CREATE TABLE " + SurveyAreaTableName + GetSurveyAreaTableContents());
    project.run("CREATE TABLE " + MissionTableName + GetMissionTableContents());
    project.run("CREATE TABLE " + MarkerPointTableName + GetMarkerPointTableContents());
    project.run("INSERT INTO " + ProjectTableName
                + " (id, project_name, map_scale, center_position_lat) VALUES "
                  "('6f9619ff-8b86-d011-b42d-00c04fc964ff', 'River', 500, 30.65)");
    for (int i = 0; i < blockCount; ++i) {
        const QString block = QString("b42d-00c04fc964ff-%1").arg(i);
        project.run("INSERT INTO " + SurveyAreaTableName
                    + " (id, survey_area_guid, project_id, survey_area_name, block_type,"
                      " survey_area_coordinate_points) VALUES ('"
                    + block + "','" + block
                    + "','6f9619ff-8b86-d011-b42d-00c04fc964ff','Block',1,'30.6512345,104.0612345;"
                      "30.6512345,104.0712345;30.6612345,104.0712345')");
        for (int j = 0; j < tasksOfABlock; ++j) {
            const QString task = block + "-task-" + QString::number(j);
            project.run("INSERT INTO " + MissionTableName + " VALUES ('" + task + "','" + task
                        + "','" + block + "','Task')");
        }
    }
    if (isIndexed)
        project.run("CREATE INDEX task_block ON " + MissionTableName + " (survey_block_id)");
    project.run("COMMIT");
    return file;
}

QByteArray plainDocument(const QString& file)
{
    const Database database(file);
    QJsonObject project;
    database.forEachRow("select * from project", [&](const QJsonObject& row) { project = row; });
    const QString where = " where project_id = '" + project.value("id").toString() + "'";
    QJsonArray blocks;
    database.forEachRow("select * from survey_area" + where, [&](QJsonObject block) {
        QJsonArray tasks;
        database.forEachRow("select * from flight_task where survey_block_id = '"
                                + block.value("survey_area_guid").toString() + "'",
                            [&](const QJsonObject& task) { tasks.append(task); });
        block.insert("tasks", tasks);
        blocks.append(block);
    });
    project.insert("blocks", blocks);
    QJsonArray points;
    database.forEachRow("select * from marker_point" + where,
                        [&](const QJsonObject& point) { points.append(point); });
    if (!points.isEmpty())
        project.insert("points", points);
    return QJsonDocument(project).toJson(QJsonDocument::Compact);
}

bool benchDocument(const char* name, const QString& file)
{
    if (GetUploadArray(file) != plainDocument(file))
        std::abort();
    const double ours = bench::medianSeconds(runs, [&] { GetUploadArray(file); });
    const double floor = bench::medianSeconds(runs, [&] { plainDocument(file); });
    return bench::report(name, blockCount, ours, floor, 1.5);
}

/// Memory of this process at its highest since the last call, in bytes.
double peakMemory()
{
    QFile status("/proc/self/status");
    double peak = 0;
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("VmHWM:"))
                peak = line.simplified().split(' ').value(1).toDouble() * 1024;
        }
    }
    QFile reset("/proc/self/clear_refs");
    if (reset.open(QIODevice::WriteOnly))
        reset.write("5");
    return peak;
}

void upload(const QByteArray& url, const QByteArray& body)
{
    QThread thread;
    CRkUpLoadObject object;
    QEventLoop loop;
    QObject::connect(&object, &CRkUpLoadObject::upLoadFinished, &loop, &QEventLoop::quit);
    QObject::connect(&object, &CRkUpLoadObject::NetWorkError, &loop, [] { std::abort(); });
    QObject::connect(&object, &CRkUpLoadObject::NoLogin, &loop, [] { std::abort(); });
    object.moveToThread(&thread);
    thread.start();
    object.SetUrl(url);
    object.setRawHeader("token", "bench");
    object.SetFilePathArray(body);
    object.PostNetWorkReplyMessage();
    loop.exec();
    thread.quit();
    thread.wait();
}

void uploadInWindow(const QByteArray& application)
{
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(application);
    if (window.exec(true) != QDialog::Accepted)
        std::abort();
}

QString write(const QString& file, const QByteArray& content)
{
    QFile output(file);
    if (!output.open(QIODevice::WriteOnly) || output.write(content) != content.size())
        std::abort();
    return file;
}

/// Sends the body of a request with `send`, which holds the document, and with curl.
template <typename Send>
bool benchUpload(const char* name, const QByteArray& url, const QByteArray& body,
                 const QTemporaryDir& folder, Send&& send)
{
    const QString file = write(folder.filePath("body"), body);
    send(); // What the toolkit loads for its first window and its first request stays.
    peakMemory();
    const double before = peakMemory();
    const double ours = bench::medianSeconds(runs, send);
    const double growth = peakMemory() - before;
    const double floor = bench::medianSeconds(runs, [&] {
        if (QProcess::execute("curl",
                              {"-sf", "-o", "/dev/null", "-H", "token: bench", "--data-binary",
                               "@" + file, QString::fromLatin1(url)})
            != 0)
            std::abort();
    });
    const bool isQuick = bench::report(name, body.size(), ours, floor, 1.3);
    // The document itself, which the caller holds, is the first of the three.
    const double ratio = 1 + growth / body.size();
    const bool isSmall = ratio <= 3;
    std::printf("%-44s %9d %11.1f MB %11.1f MB %8.3f (<= 3) %s\n", "  memory of it, in documents",
                body.size(), ratio * body.size() / 1e6, body.size() / 1e6, ratio,
                isSmall ? "ok" : "MISSED");
    return isQuick && isSmall;
}

/// Uploads the document of a project, and from its window an application of the same size.
bool benchUploads(const QTemporaryDir& folder)
{
    QProcess service;
    service.start(QCoreApplication::applicationDirPath() + "/rk-service",
                  {"--store", folder.filePath("service.db")});
    if (!service.waitForReadyRead())
        std::abort();
    const QByteArray address = service.readLine().trimmed();
    SetServerIP(address);
    SetCurUserInfo({"bench", {}, {}});

    const QByteArray project = "data={\"id\":\"" + QByteArray(documentBytes, 'x') + "\"}";
    const QByteArray projectUrl = address + "/project/upload";
    bool met = benchUpload("upload of a project, against curl", projectUrl, project, folder,
                           [&] { upload(projectUrl, project); });

    const QString permit =
        write(folder.filePath("permit.pdf"), QByteArray(documentBytes / 4 * 3, '\xa5'));
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    form.findChild<QLineEdit*>("m_pEdtDocPath")->setText(permit);
    const QByteArray application = form.ComboUploadData();
    met = benchUpload("upload of an application, against curl", address + "/noflyzone/uploadLift",
                      "data=" + application, folder, [&] { uploadInWindow(application); })
        && met;
    service.closeWriteChannel();
    service.waitForFinished();
    return met;
}

/// Against reading the file and its Base64 alone.
bool benchApplication(const QTemporaryDir& folder)
{
    const QString permit = write(folder.filePath("permit.pdf"), QByteArray(documentBytes, '\xa5'));
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    form.findChild<QLineEdit*>("m_pEdtDocPath")->setText(permit);
    const double ours = bench::medianSeconds(runs, [&] { form.ComboUploadData(); });
    const double floor = bench::medianSeconds(runs, [&] {
        QFile file(permit);
        if (!file.open(QIODevice::ReadOnly) || file.readAll().toBase64().isEmpty())
            std::abort();
    });
    return bench::report("application from a file, against its Base64", documentBytes, ours, floor,
                         3);
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    bool met = benchDocument("upload document, 20 tasks a block, indexed",
                             makeProject(folder.filePath("indexed.proj"), true));
    met = benchDocument("upload document, 20 tasks a block, no index",
                        makeProject(folder.filePath("plain.proj"), false))
        && met;
    met = benchApplication(folder) && met;
    met = benchUploads(folder) && met;
    return met ? 0 : 1;
}
