// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleProjects.h"

#include "samples/SampleFile.h"
#include "samples/SampleGeometry.h"
#include "samples/SampleNames.h"
#include "samples/SampleThumbnail.h"

#include <RkBaseUI/RkCityCategory.h>
#include <RkData/RkData.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QUuid>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int pictures = 64;
constexpr int blocksWithTasks = 2; // The block after them is not divided into tasks yet.
constexpr double smallestCity = 20e6; // Square metres; below, a survey hardly finds room.

/// Where a project may lie.
struct City
{
    QString name;
    QPointF centre; ///< x latitude, y longitude, degrees.
    QPolygonF boundary; ///< The same.
};

/// A project of the plan with what its content needs.
struct PlannedProject
{
    SampleProject project;
    SampleLanguage language = SampleLanguage::English;
    bool isCorridor = false;
    City city;
};

QVector<City> surveyableCities()
{
    QVector<City> cities;
    const RkCityCategory& catalogue = RkCityCategory::instance();
    for (const auto& [boundary, name] : catalogue.cityBoundaries()) {
        const PointLatLng centre = catalogue.getLatLng(name);
        const City city = {name, QPointF(centre.Lat(), centre.Lng()), boundary};
        const SampleGeometry::LocalPlane plane(city.centre);
        if (boundary.containsPoint(city.centre, Qt::OddEvenFill)
            && SampleGeometry::surface(plane.toMetres(boundary)) > smallestCity)
            cities.append(city);
    }
    return cities;
}

/// Special cases stand between the sound projects, so that few projects show many kinds.
SampleKind kindOf(int index)
{
    switch (index % 24) {
    case 3:
        return SampleKind::NoThumbnail;
    case 7:
        return SampleKind::OtherUser;
    case 11:
        return SampleKind::DamagedThumbnail;
    case 15:
        return SampleKind::EmptyFile;
    case 18:
        return SampleKind::OtherUser;
    case 21:
        return SampleKind::NotADatabase;
    default:
        return SampleKind::Sound;
    }
}

bool holdsProject(SampleKind kind)
{
    return kind != SampleKind::EmptyFile && kind != SampleKind::NotADatabase;
}

constexpr int otherUsers = 5;

QString otherUserId(int index)
{
    return QStringLiteral("u-%1").arg(100300 + index % otherUsers);
}

QVector<PlannedProject> plan(const SampleOptions& options)
{
    const QVector<City> cities = surveyableCities();
    if (cities.isEmpty())
        return {};
    QRandomGenerator random(options.seed);
    const auto anyCity = [&] { return cities[random.bounded(int(cities.size()))]; };
    const QVector<City> usualCities = {anyCity(), anyCity(), anyCity()};
    SampleNames names(options.now.date().year());

    QVector<PlannedProject> projects;
    projects.reserve(options.count);
    for (int i = 0; i < options.count; ++i) {
        PlannedProject planned;
        planned.city = random.bounded(3) == 0 ? usualCities[random.bounded(3)] : anyCity();
        planned.language =
            random.bounded(2) == 0 ? SampleLanguage::English : SampleLanguage::Chinese;
        planned.isCorridor = random.bounded(10) < 3;
        SampleProject& project = planned.project;
        project.kind = options.withSpecialCases ? kindOf(i) : SampleKind::Sound;
        project.name = names.make(planned.city.name, planned.language, planned.isCorridor, random);
        if (holdsProject(project.kind)) {
            project.city = planned.city.name;
            project.userId =
                project.kind == SampleKind::OtherUser ? otherUserId(i) : options.userId;
        }
        projects.append(planned);
    }
    return projects;
}

QString makeId(QRandomGenerator& random)
{
    const quint32 a = random.generate();
    const quint32 b = random.generate();
    const quint32 c = random.generate();
    const quint32 d = random.generate();
    const auto byte = [](quint32 value, int shift) { return uchar((value >> shift) & 0xffU); };
    const QUuid uuid(a, ushort(b >> 16U), ushort((b & 0x0fffU) | 0x4000U),
                     uchar((byte(c, 24) & 0x3fU) | 0x80U), byte(c, 16), byte(c, 8), byte(c, 0),
                     byte(d, 24), byte(d, 16), byte(d, 8), byte(d, 0));
    return GetUidVariant(uuid.toString());
}

QString outlineText(const QPolygonF& degrees)
{
    QStringList points;
    points.reserve(degrees.size());
    for (const QPointF& point : degrees) {
        points.append(QString::number(point.x(), 'f', 7) + QLatin1Char(',')
                      + QString::number(point.y(), 'f', 7));
    }
    return points.join(QLatin1Char(';'));
}

/// The first project was modified just now; most others lately, some up to a year ago, by day.
QDateTime modificationTime(int index, const QDateTime& now, QRandomGenerator& random)
{
    if (index == 0)
        return now.addSecs(-1200);
    const double share = random.generateDouble();
    const QDate day = now.date().addDays(-1 - int(363 * share * share));
    return QDateTime(day, QTime(8, 0).addSecs(random.bounded(11 * 3600)));
}

/// Makes the content of one project after the other.
class ContentMaker
{
public:
    explicit ContentMaker(const SampleOptions& options)
        : m_options(options)
    {
    }

    SampleContent make(const PlannedProject& planned, int index)
    {
        // Of its own, so that a project is the same however many there are.
        const std::array<quint32, 2> seeds = {m_options.seed, quint32(index)};
        QRandomGenerator random(seeds.data(), qsizetype(seeds.size()));
        const SampleGeometry::LocalPlane plane(planned.city.centre);
        SampleThumbnail::Scene scene;
        scene.cityBoundary = plane.toMetres(planned.city.boundary);
        scene.areas = SampleGeometry::placeAreas(random.bounded(1, 5), planned.isCorridor,
                                                 scene.cityBoundary, random);
        scene.seed = random.generate();

        SampleContent content;
        content.id = makeId(random);
        content.name = planned.project.name;
        content.userId = planned.project.userId;
        content.modified = modificationTime(index, m_options.now, random);
        content.created =
            content.modified.addDays(-random.bounded(3, 160)).addSecs(-random.bounded(7200));
        content.version = random.bounded(1, 9);
        content.mapScale = std::array<int, 4>{500, 1000, 2000, 5000}[random.bounded(4U)];
        addBlocks(content, scene, plane, planned.language, random);
        addMarkers(content, scene, plane, planned.language, random);
        if (planned.project.kind != SampleKind::NoThumbnail && !scene.areas.isEmpty())
            content.imageData = picture(scene, m_pictureCount++);
        if (planned.project.kind == SampleKind::DamagedThumbnail)
            content.imageData.truncate(32);
        return content;
    }

private:
    static void addBlocks(SampleContent& content, const SampleThumbnail::Scene& scene,
                          const SampleGeometry::LocalPlane& plane, SampleLanguage language,
                          QRandomGenerator& random)
    {
        const int camera = random.bounded(1, 4);
        const int aircraft = random.bounded(1, 6);
        const bool wasFlown = random.bounded(10) < 7;
        QPointF sum;
        for (const SampleGeometry::Area& area : scene.areas) {
            SampleBlock block;
            const int number = int(content.blocks.size());
            block.id = makeId(random);
            block.name = sampleBlockName(number, area.isStrip(), language);
            // Two cameras on two aircraft share the work.
            block.cameraType = static_cast<ECameraType>(camera + number % 2);
            block.planeType = static_cast<EPlaneType>(number % 3 == 0 ? aircraft : aircraft + 1);
            block.type = area.isStrip() ? BlockTypeStrip : BlockTypeArea;
            block.outline = outlineText(plane.toDegrees(area.anchor()));
            if (number != blocksWithTasks)
                addTasks(block, SampleGeometry::surface(area.outline), wasFlown, content, random);
            content.blocks.append(block);
            sum += area.outline.boundingRect().center();
        }
        const QPointF centre = plane.toDegrees(sum / std::max(1, int(scene.areas.size())));
        content.centre = PointLatLng(centre.x(), centre.y());
    }

    static void addTasks(SampleBlock& block, double squareMetres, bool wasFlown,
                         const SampleContent& content, QRandomGenerator& random)
    {
        const int tasks = std::clamp(int(std::ceil(squareMetres / 4e6)), 1, 6);
        const int days = int(content.created.daysTo(content.modified));
        for (int i = 0; i < tasks; ++i) {
            SampleTask task;
            task.id = makeId(random);
            task.name = QStringLiteral("%1-%2").arg(block.name).arg(i + 1, 2, 10, QLatin1Char('0'));
            const int flights = wasFlown ? random.bounded(0, 4) : 0;
            for (int flight = 0; flight < flights; ++flight)
                task.flights.append(
                    content.created.addDays(random.bounded(days)).addSecs(random.bounded(3600)));
            std::sort(task.flights.begin(), task.flights.end());
            block.tasks.append(task);
        }
    }

    static void addMarkers(SampleContent& content, SampleThumbnail::Scene& scene,
                           const SampleGeometry::LocalPlane& plane, SampleLanguage language,
                           QRandomGenerator& random)
    {
        const QString pattern = language == SampleLanguage::English ? QStringLiteral("GCP%1")
                                                                    : QStringLiteral("像控点%1");
        for (const SampleGeometry::Area& area : scene.areas) {
            const int oneIn = area.isStrip() ? 8 : 3;
            for (const QPointF& corner : area.outline) {
                if (random.bounded(oneIn) != 0)
                    continue;
                scene.markers.append(corner);
                const QPointF place = plane.toDegrees(corner);
                content.markers.append({pattern.arg(scene.markers.size(), 2, 10, QLatin1Char('0')),
                                        PointLatLng(place.x(), place.y())});
            }
        }
    }

    QByteArray picture(const SampleThumbnail::Scene& scene, int number)
    {
        if (m_pictures.size() < pictures) {
            const auto format =
                number % 2 == 0 ? SampleThumbnail::Format::Jpeg : SampleThumbnail::Format::Png;
            m_pictures.append(SampleThumbnail::toBase64(SampleThumbnail::draw(scene), format));
        }
        return m_pictures[number % pictures];
    }

    SampleOptions m_options;
    QVector<QByteArray> m_pictures;
    int m_pictureCount = 0;
};

bool writeText(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool writeProject(const QString& file, const PlannedProject& planned, int index,
                  ContentMaker& maker)
{
    switch (planned.project.kind) {
    case SampleKind::EmptyFile:
        return writeText(file, {});
    case SampleKind::NotADatabase:
        return writeText(
            file, QByteArrayLiteral("Backup list of the field office, kept here by mistake.\n"));
    default:
        return writeSampleFiles(file, maker.make(planned, index));
    }
}

} // namespace

QString sampleUserId()
{
    return QStringLiteral("u-100217");
}

QStringList sampleUserIds()
{
    QStringList ids = {sampleUserId()};
    for (int i = 0; i < otherUsers; ++i)
        ids.append(otherUserId(i));
    return ids;
}

QVector<SampleProject> planSampleProjects(const SampleOptions& options)
{
    QVector<SampleProject> projects;
    for (const PlannedProject& planned : plan(options))
        projects.append(planned.project);
    return projects;
}

QStringList writeSampleProjects(const SampleOptions& options)
{
    QStringList files;
    ContentMaker maker(options);
    int index = 0;
    for (const PlannedProject& planned : plan(options)) {
        const QString folder =
            QStringLiteral("%1/%2").arg(QDir::cleanPath(options.root), planned.project.name);
        const QString file = QStringLiteral("%1/%2.proj").arg(folder, planned.project.name);
        if (!QDir().mkpath(folder))
            return {};
        QFile::remove(file);
        QFile::remove(CRkControl::GetFlightMissionFilePath(file));
        if (!writeProject(file, planned, index++, maker))
            return {};
        files.append(file);
    }
    return files;
}
