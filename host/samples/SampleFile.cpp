// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleFile.h"

#include <RkData/RkData.h>

#include <QLocale>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace {

/// A new SQLite file that is written in one transaction. The first failure is remembered; what
/// follows it is left out.
class Writer
{
public:
    explicit Writer(const QString& file)
        : m_name(QUuid::createUuid().toString())
        , m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
    {
        m_database.setDatabaseName(file);
        m_isSound = m_database.open();
        // Whoever pulls the plug makes the samples anew.
        run(QStringLiteral("PRAGMA synchronous = OFF"));
        run(QStringLiteral("PRAGMA journal_mode = MEMORY"));
        m_isSound = m_isSound && m_database.transaction();
    }
    ~Writer()
    {
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY(Writer)

    void createTable(const QString& table, const QString& contents)
    {
        run(QStringLiteral("CREATE TABLE %1 %2").arg(table, contents));
    }

    void createIndex(const QString& table, const QString& column)
    {
        run(QStringLiteral("CREATE INDEX %1_%2 ON %1 (%2)").arg(table, column));
    }

    void insert(const QString& table, const QStringList& columns, const QVariantList& values)
    {
        const QString places =
            QStringList(QVector<QString>(columns.size(), QStringLiteral("?")).toList())
                .join(QLatin1Char(','));
        QSqlQuery query(m_database);
        m_isSound = m_isSound
            && query.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                 .arg(table, columns.join(QLatin1Char(',')), places));
        for (const QVariant& value : values)
            query.addBindValue(value);
        m_isSound = m_isSound && query.exec();
    }

    bool commit()
    {
        m_isSound = m_isSound && m_database.commit();
        m_database.close();
        return m_isSound;
    }

private:
    void run(const QString& statement)
    {
        QSqlQuery query(m_database);
        m_isSound = m_isSound && query.exec(statement);
    }

    QString m_name;
    QSqlDatabase m_database;
    bool m_isSound = false;
};

void insertProject(Writer& writer, const SampleContent& content)
{
    const QStringList columns = {QStringLiteral("id"),
                                 QStringLiteral("project_name"),
                                 QStringLiteral("user_id"),
                                 QStringLiteral("created_at"),
                                 QStringLiteral("updated_at"),
                                 QStringLiteral("version"),
                                 QStringLiteral("map_scale"),
                                 QStringLiteral("software_version"),
                                 QStringLiteral("center_position_lat"),
                                 QStringLiteral("center_position_lng"),
                                 QStringLiteral("image_data")};
    const QVariant image = content.imageData.isEmpty()
        ? QVariant(QVariant::String)
        : QVariant(QString::fromLatin1(content.imageData));
    writer.insert(ProjectTableName, columns,
                  {content.id, content.name, content.userId,
                   QLocale::c().toString(content.created, DateTimeSFormat),
                   QLocale::c().toString(content.modified, DateTimeSFormat),
                   QString::number(content.version), content.mapScale, VANTRELL_VERSION,
                   content.centre.Lat(), content.centre.Lng(), image});
}

void insertBlock(Writer& writer, const QString& projectId, const SampleBlock& block)
{
    writer.insert(SurveyAreaTableName,
                  {QStringLiteral("id"), QStringLiteral("survey_area_guid"),
                   QStringLiteral("project_id"), QStringLiteral("survey_area_name"),
                   QStringLiteral("camera_type"), QStringLiteral("plane_type"),
                   QStringLiteral("block_type"), QStringLiteral("survey_area_coordinate_points")},
                  {block.id, block.id, projectId, block.name,
                   GetCameraStringByType(block.cameraType), GetPlaneStringByType(block.planeType),
                   int(block.type), block.outline});
    for (const SampleTask& task : block.tasks) {
        writer.insert(MissionTableName,
                      {QStringLiteral("id"), QStringLiteral("flight_task_guid"),
                       QStringLiteral("survey_block_id"), QStringLiteral("flight_task_name")},
                      {task.id, task.id, block.id, task.name});
    }
}

bool writeProject(const QString& file, const SampleContent& content)
{
    Writer writer(file);
    writer.createTable(ProjectTableName, GetProjectTableContents());
    writer.createTable(SurveyAreaTableName, GetSurveyAreaTableContents());
    writer.createTable(MissionTableName, GetMissionTableContents());
    writer.createTable(MarkerPointTableName, GetMarkerPointTableContents());
    writer.createIndex(SurveyAreaTableName, QStringLiteral("project_id"));
    writer.createIndex(MissionTableName, QStringLiteral("survey_block_id"));
    insertProject(writer, content);
    for (const SampleBlock& block : content.blocks)
        insertBlock(writer, content.id, block);
    for (int i = 0; i < content.markers.size(); ++i) {
        const SampleMarker& marker = content.markers[i];
        writer.insert(MarkerPointTableName,
                      {QStringLiteral("id"), QStringLiteral("project_id"), QStringLiteral("name"),
                       QStringLiteral("lat"), QStringLiteral("lng")},
                      {QString::number(i + 1), content.id, marker.name, marker.place.Lat(),
                       marker.place.Lng()});
    }
    return writer.commit();
}

bool writeFlights(const QString& file, const QVector<SampleBlock>& blocks)
{
    Writer writer(file);
    writer.createTable(FlightMissionTableName, GetFlightMissionTableContents());
    writer.createIndex(FlightMissionTableName, QStringLiteral("flight_task_id"));
    int number = 0;
    for (const SampleBlock& block : blocks) {
        for (const SampleTask& task : block.tasks) {
            for (const QDateTime& flight : task.flights) {
                writer.insert(FlightMissionTableName,
                              {QStringLiteral("id"), QStringLiteral("flight_task_id"),
                               QStringLiteral("flown_at")},
                              {QString::number(++number), task.id,
                               QLocale::c().toString(flight, DateTimeSFormat)});
            }
        }
    }
    return writer.commit();
}

bool wasFlown(const SampleBlock& block)
{
    return std::any_of(block.tasks.cbegin(), block.tasks.cend(),
                       [](const SampleTask& task) { return !task.flights.isEmpty(); });
}

} // namespace

bool writeSampleFiles(const QString& projectFile, const SampleContent& content)
{
    return writeProject(projectFile, content)
        && (std::none_of(content.blocks.cbegin(), content.blocks.cend(), wasFlown)
            || writeFlights(CRkControl::GetFlightMissionFilePath(projectFile), content.blocks));
}
