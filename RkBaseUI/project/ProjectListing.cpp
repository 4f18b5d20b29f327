// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectListing.h"

#include "project/OutlineText.h"
#include "project/ProjectStoreSql.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkData/RkData.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSet>
#include <QSettings>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <array>
#include <memory>

namespace ProjectListing {

namespace {

/// Cities and their provinces in the order in which points fall into them, each once.
class PlaceList
{
public:
    void addPlaceOf(const PointLatLng& point)
    {
        const RkCityCategory& catalogue = RkCityCategory::instance();
        const QString city = catalogue.GetCityName(point);
        if (m_cities.contains(city))
            return;
        m_cities.insert(city);
        append(city);
        const QMap<QString, QStringList>& provinces = catalogue.provinceToCities();
        const auto province =
            std::find_if(provinces.begin(), provinces.end(),
                         [&](const QStringList& cities) { return cities.contains(city); });
        if (province != provinces.end())
            append(province.key());
    }

    const QStringList& places() const { return m_places; }

private:
    void append(const QString& place)
    {
        if (!m_places.contains(place))
            m_places.append(place);
    }

    QSet<QString> m_cities;
    QStringList m_places;
};

/// Whether the file's tables are plain ones, which give no more than the file holds.
bool hasPlainTables(CRkDataBase& database)
{
    return !database.exec(ProjectStoreSql::selectComputedTables()).next();
}

/// An identifier out of a file goes into a statement as it is, so one with a quote could make it
/// another statement, without end perhaps.
bool isPlainIdentifier(const QString& id)
{
    return !id.contains(QLatin1Char('\''));
}

QStringList placesOfOutlines(CRkDataBase& database, const QString& projectId)
{
    if (!isPlainIdentifier(projectId))
        return {};
    PlaceList list;
    QSqlQuery outlines = database.exec(ProjectStoreSql::selectOutlines(projectId));
    while (outlines.next()) {
        const CRkVector3D centre =
            GetLatLngGravityByLatLng(parseOutline(outlines.value(0).toString()));
        list.addPlaceOf(PointLatLng(centre.x(), centre.y()));
    }
    return list.places();
}

/// Fills the record from the open database; false when it has no project of the user.
bool readRow(CRkDataBase& database, const QString& userId, ProjectRecord& project)
{
    if (!hasPlainTables(database))
        return false;
    QSqlQuery query = database.exec(ProjectStoreSql::selectProject(userId));
    if (!query.next())
        return false;

    const QSqlRecord columns = query.record();
    const std::array<int, 5> index = {columns.indexOf(QStringLiteral("project_name")),
                                      columns.indexOf(QStringLiteral("updated_at")),
                                      columns.indexOf(QStringLiteral("id")),
                                      columns.indexOf(QStringLiteral("software_version")),
                                      columns.indexOf(QStringLiteral("image_data"))};
    if (std::find(index.begin(), index.end(), -1) != index.end())
        return false;
    project.name = query.value(index[0]).toString();
    project.modified = query.value(index[1]).toString();
    project.id = query.value(index[2]).toString();
    project.softwareVersion = query.value(index[3]).toString();
    project.imageData = query.value(index[4]).toByteArray();
    return true;
}

void makeProject(CRkDataBase& database, const QString& name, const QString& userId)
{
    const QStringList tables = ProjectStoreSql::createTables();
    for (const QString& statement : tables)
        database.exec(statement);
    const QString id = GetUidVariant(QUuid::createUuid().toString());
    const QString now = QLocale::c().toString(QDateTime::currentDateTime(), DateTimeSFormat);
    database.exec(ProjectStoreSql::insertProject({name, id, userId, now}));
}

std::optional<ProjectRecord> load(const QFileInfo& file, const QString& userId, bool isNew)
{
    ProjectRecord project;
    project.filePath = file.filePath();
    project.name = file.completeBaseName();
    project.size = getHumanReadableFileSize(file.size());

    CRkDataBase database(project.filePath);
    if (!database.open())
        return std::nullopt;
    if (isNew)
        makeProject(database, project.name, userId);
    const bool isThere = readRow(database, userId, project);
    if (isThere)
        project.places = placesOfOutlines(database, project.id);
    database.close();
    return isThere ? std::make_optional(project) : std::nullopt;
}

} // namespace

QString currentUserId()
{
    QSettings settings(OrganizationName, CloundApplicationName);
    settings.beginGroup(UserInfoGroupName);
    return settings.value(UserInfoUserID, QString()).toString();
}

QStringList projectFiles(const QString& root)
{
    QStringList files;
    const QDir rootFolder(root);
    const QStringList folders =
        rootFolder.entryList(QDir::AllDirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString& name : folders) {
        const QDir folder(rootFolder.filePath(name));
        const QStringList projects =
            folder.entryList({QStringLiteral("*.proj")}, QDir::Files, QDir::Unsorted);
        for (const QString& project : projects)
            files.append(folder.filePath(project));
    }
    return files;
}

std::optional<ProjectRecord> read(const QString& file, const QString& userId)
{
    const QFileInfo info(file);
    return info.size() == 0 ? std::nullopt : load(info, userId, false);
}

std::optional<ProjectRecord> create(const QString& file, const QString& userId)
{
    return load(QFileInfo(file), userId, true);
}

std::optional<BlockPlaces> loadBlocks(const QString& file, const QString& projectId,
                                      const QString& softwareVersion)
{
    CRkDataBase database(file);
    if (!database.open() || !hasPlainTables(database) || !isPlainIdentifier(projectId))
        return std::nullopt;
    PlaceList list;
    QList<PointLatLng> centres;
    QSqlQuery rows = database.exec(ProjectStoreSql::selectBlocks(projectId));
    while (rows.next()) {
        auto block = std::make_unique<CRkBlock>();
        block->SetBlockID(rows.value(0).toString());
        if (!block->Load(SurveyAreaTableName, projectId, softwareVersion, &database))
            continue;
        const PointLatLng centre = block->GetGravityPoint();
        CRkBlockManager::instance().AddBlock(block.release());
        list.addPlaceOf(centre);
        centres.append(centre);
    }
    database.close();
    return BlockPlaces{centres, list.places()};
}

} // namespace ProjectListing
