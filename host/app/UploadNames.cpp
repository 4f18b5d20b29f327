// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/UploadNames.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QLocale>
#include <QVector>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace UploadNames {

namespace {

/// The texts of this file.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(UploadNames)
};

struct Name
{
    const char* key;
    const char* text;
};

/// In the order in which they are read.
const Name names[] = {
    {"project_name", QT_TRANSLATE_NOOP("UploadNames", "Project name")},
    {"survey_area_name", QT_TRANSLATE_NOOP("UploadNames", "Block name")},
    {"flight_task_name", QT_TRANSLATE_NOOP("UploadNames", "Task name")},
    {"name", QT_TRANSLATE_NOOP("UploadNames", "Name")},
    {"lat", QT_TRANSLATE_NOOP("UploadNames", "Latitude (°)")},
    {"lng", QT_TRANSLATE_NOOP("UploadNames", "Longitude (°)")},
    {"user_id", QT_TRANSLATE_NOOP("UploadNames", "User")},
    {"created_at", QT_TRANSLATE_NOOP("UploadNames", "Created")},
    {"updated_at", QT_TRANSLATE_NOOP("UploadNames", "Changed")},
    {"map_scale", QT_TRANSLATE_NOOP("UploadNames", "Map scale 1 :")},
    {"center_position_lat", QT_TRANSLATE_NOOP("UploadNames", "Latitude of the centre (°)")},
    {"center_position_lng", QT_TRANSLATE_NOOP("UploadNames", "Longitude of the centre (°)")},
    {"software_version", QT_TRANSLATE_NOOP("UploadNames", "Software version")},
    {"version", QT_TRANSLATE_NOOP("UploadNames", "File version")},
    {"plane_type", QT_TRANSLATE_NOOP("UploadNames", "Aircraft")},
    {"camera_type", QT_TRANSLATE_NOOP("UploadNames", "Camera")},
    {"block_type", QT_TRANSLATE_NOOP("UploadNames", "Kind of block")},
    {"task_type", QT_TRANSLATE_NOOP("UploadNames", "Kind of task")},
    {"survey_area_coordinate_points", QT_TRANSLATE_NOOP("UploadNames", "Outline (lat,lng)")},
    {"relative_fly_height", QT_TRANSLATE_NOOP("UploadNames", "Flight height above ground (m)")},
    {"default_airspeed", QT_TRANSLATE_NOOP("UploadNames", "Airspeed (m/s)")},
    {"air_line_angle", QT_TRANSLATE_NOOP("UploadNames", "Direction of flight lines (°)")},
    {"banding_offset_left", QT_TRANSLATE_NOOP("UploadNames", "Strip width to the left (m)")},
    {"banding_offset_right", QT_TRANSLATE_NOOP("UploadNames", "Strip width to the right (m)")},
    {"return_route", QT_TRANSLATE_NOOP("UploadNames", "Routes there and back")},
    {"expected_route_count", QT_TRANSLATE_NOOP("UploadNames", "Expected routes")},
    {"expected_mission_count", QT_TRANSLATE_NOOP("UploadNames", "Expected missions")},
    {"including_transfer_points", QT_TRANSLATE_NOOP("UploadNames", "With transfer points")},
    {"generate_frame_route", QT_TRANSLATE_NOOP("UploadNames", "With frame routes")},
    {"longitudinal_outline_number",
     QT_TRANSLATE_NOOP("UploadNames", "Photographs beyond the block")},
    {"lateral_outline_number", QT_TRANSLATE_NOOP("UploadNames", "Routes beyond the block")},
    {"connect_route", QT_TRANSLATE_NOOP("UploadNames", "Routes joined")},
    {"direction_of_flight", QT_TRANSLATE_NOOP("UploadNames", "Flight direction")},
    {"single_task_mileage", QT_TRANSLATE_NOOP("UploadNames", "Distance of one task (km)")},
    {"surround_margin", QT_TRANSLATE_NOOP("UploadNames", "Margin around the block (m)")},
    {"pitch_mode_of_tilt", QT_TRANSLATE_NOOP("UploadNames", "Tilt mode")},
    {"pitch_angle_of_tilt", QT_TRANSLATE_NOOP("UploadNames", "Tilt of the camera (°)")},
    {"route_generate_mode", QT_TRANSLATE_NOOP("UploadNames", "Height mode of the routes")},
    {"camera_orientation", QT_TRANSLATE_NOOP("UploadNames", "Camera orientation")},
    {"photograph_mode", QT_TRANSLATE_NOOP("UploadNames", "Trigger mode")},
    {"margin_between_route_area_edge",
     QT_TRANSLATE_NOOP("UploadNames", "Outermost route to edge (m)")},
    {"flying_mode", QT_TRANSLATE_NOOP("UploadNames", "Terrain mode")},
    {"route_min_height", QT_TRANSLATE_NOOP("UploadNames", "Lowest route height (m)")},
    {"object_height", QT_TRANSLATE_NOOP("UploadNames", "Object height (m)")},
    {"image_data", QT_TRANSLATE_NOOP("UploadNames", "Picture")},
    {"id", QT_TRANSLATE_NOOP("UploadNames", "Id")},
    {"survey_area_guid", QT_TRANSLATE_NOOP("UploadNames", "Block id")},
    {"flight_task_guid", QT_TRANSLATE_NOOP("UploadNames", "Task id")},
    {"project_id", QT_TRANSLATE_NOOP("UploadNames", "Id of the project")},
    {"survey_block_id", QT_TRANSLATE_NOOP("UploadNames", "Id of the block")},
    {"blocks", QT_TRANSLATE_NOOP("UploadNames", "Blocks")},
    {"tasks", QT_TRANSLATE_NOOP("UploadNames", "Tasks")},
    {"points", QT_TRANSLATE_NOOP("UploadNames", "Marker points")},
};

constexpr int longestText = 160; // Characters.
constexpr int shownOfLong = 24; // Of a longer text.

/// Place in the table; behind all of it for an unknown key.
int rankOf(const QString& key)
{
    static const QHash<QString, int> ranks = [] {
        QHash<QString, int> result;
        for (const Name& name : names)
            result.insert(QLatin1String(name.key), result.size());
        return result;
    }();
    return ranks.value(key, int(std::size(names)));
}

QString countText(int count)
{
    return QLocale(QLocale::English).toString(count);
}

int sizeOf(const QJsonValue& object, const char* list)
{
    return object[QLatin1String(list)].toArray().size();
}

QString objectText(const QJsonValue& object)
{
    const int tasks = sizeOf(object, "tasks");
    return tasks > 0 ? Texts::tr("Tasks: %1").arg(countText(tasks)) : QString();
}

} // namespace

QString nameOf(const QString& key)
{
    const int rank = rankOf(key);
    return rank < int(std::size(names)) ? Texts::tr(names[rank].text) : key;
}

QStringList orderedKeys(const QJsonObject& object)
{
    struct Ranked
    {
        bool isList;
        int rank;
        QString key;
        bool operator<(const Ranked& other) const
        {
            return std::tie(isList, rank, key) < std::tie(other.isList, other.rank, other.key);
        }
    };
    QVector<Ranked> ranked;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        ranked.append({entry->isArray(), rankOf(entry.key()), entry.key()});
    std::sort(ranked.begin(), ranked.end());
    QStringList keys;
    for (const Ranked& entry : qAsConst(ranked))
        keys.append(entry.key);
    return keys;
}

QString elementName(const QString& listKey, const QJsonValue& element, int number)
{
    for (const char* key : {"survey_area_name", "flight_task_name", "name"}) {
        QString name = element[QLatin1String(key)].toString();
        if (!name.isEmpty())
            return name;
    }
    if (listKey == QLatin1String("blocks"))
        return Texts::tr("Block %1").arg(number);
    if (listKey == QLatin1String("tasks"))
        return Texts::tr("Task %1").arg(number);
    if (listKey == QLatin1String("points"))
        return Texts::tr("Point %1").arg(number);
    return QString::number(number);
}

QString valueText(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Array:
        return countText(value.toArray().size());
    case QJsonValue::Object:
        return objectText(value);
    case QJsonValue::String:
        break;
    default:
        return value.toVariant().toString();
    }
    const QString text = value.toString();
    if (text.size() <= longestText)
        return text.simplified();
    return Texts::tr("%1… (%2 characters)")
        .arg(text.left(shownOfLong).simplified(), countText(text.size()));
}

QString summary(const QJsonObject& project, qint64 bytes)
{
    const QJsonArray blocks = project.value(QLatin1String("blocks")).toArray();
    int tasks = 0;
    for (const QJsonValue& block : blocks)
        tasks += sizeOf(block, "tasks");
    return Texts::tr("Blocks: %1, tasks: %2, marker points: %3. Size: %4.")
        .arg(countText(blocks.size()), countText(tasks), countText(sizeOf(project, "points")),
             sizeText(bytes));
}

QString sizeText(qint64 bytes)
{
    return QLocale(QLocale::English)
        .formattedDataSize(bytes, bytes < 1000 ? 0 : 1, QLocale::DataSizeSIFormat);
}

} // namespace UploadNames
