// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleProjects.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkData/RkData.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPolygonF>
#include <QProcess>
#include <QSet>
#include <QSqlQuery>
#include <QTest>
#include <QtMath>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

struct Block
{
    QString id;
    bool isStrip = false;
    QPolygonF points; ///< x latitude, y longitude.
};

QVector<Block> readBlocks(const QString& file)
{
    QVector<Block> blocks;
    CRkDataBase database(file);
    if (!database.open())
        return {};
    QSqlQuery query = database.exec(QStringLiteral("select * from ") + SurveyAreaTableName);
    while (query.next()) {
        Block block;
        block.id = query.value(QStringLiteral("survey_area_guid")).toString();
        block.isStrip = query.value(QStringLiteral("block_type")).toInt() == BlockTypeStrip;
        const QString text =
            query.value(QStringLiteral("survey_area_coordinate_points")).toString();
        for (const QString& point : text.split(QLatin1Char(';'))) {
            const QStringList numbers = point.split(QLatin1Char(','));
            block.points << QPointF(numbers.value(0).toDouble(), numbers.value(1).toDouble());
        }
        blocks.append(block);
    }
    return blocks;
}

QPolygonF boundaryOf(const QString& city)
{
    for (const auto& [boundary, name] : RkCityCategory::instance().cityBoundaries()) {
        if (name == city)
            return boundary;
    }
    return {};
}

QString cityAtCentreOf(const QPolygonF& points)
{
    std::vector<CRkVector3D> outline;
    for (const QPointF& point : points)
        outline.emplace_back(point.x(), point.y(), 0);
    const CRkVector3D centre = GetLatLngGravityByLatLng(outline);
    return RkCityCategory::instance().GetCityName(PointLatLng(centre.x(), centre.y()));
}

/// Whether the boundary contains the edges at 50 places each.
bool containsEdges(const QPolygonF& boundary, const Block& block)
{
    const int edges = block.isStrip ? block.points.size() - 1 : block.points.size();
    for (int i = 0; i < edges; ++i) {
        const QPointF& from = block.points[i];
        const QPointF& to = block.points[(i + 1) % block.points.size()];
        for (int step = 0; step <= 50; ++step) {
            if (!boundary.containsPoint(from + (to - from) * (step / 50.0), Qt::OddEvenFill))
                return false;
        }
    }
    return true;
}

/// Square kilometres, on a sphere.
double squareKilometres(const QPolygonF& ring)
{
    const double perLat = 111.2;
    const double perLng = 111.2 * std::cos(qDegreesToRadians(ring.first().x()));
    double twice = 0;
    for (int i = 0; i < ring.size(); ++i) {
        const QPointF a = ring[i] - ring[0];
        const QPointF b = ring[(i + 1) % ring.size()] - ring[0];
        twice += a.x() * b.y() - a.y() * b.x();
    }
    return std::abs(twice) / 2 * perLat * perLng;
}

QVariant readValue(const QString& file, const QString& column)
{
    CRkDataBase database(file);
    if (!database.open())
        return {};
    QSqlQuery query =
        database.exec(QStringLiteral("select %1 from %2").arg(column, ProjectTableName));
    return query.next() ? query.value(0) : QVariant();
}

QByteArray readPicture(const QString& file)
{
    return QByteArray::fromBase64(readValue(file, QStringLiteral("image_data")).toByteArray());
}

bool holdsProject(const SampleProject& project)
{
    return project.kind != SampleKind::EmptyFile && project.kind != SampleKind::NotADatabase;
}

} // namespace

class tst_SampleProjects : public QObject
{
    Q_OBJECT

private slots:
    void everyKindIsPlanned();
    void namesAreUniqueAndAllowed();
    void filesAreThoseOfThePlan();
    void specialFilesAreWhatTheyAreCalled();
    void projectsBelongToTheirUsers();
    void timesLieInTheYearBefore();
    void blocksAndTasksLoad();
    void flightsBelongToTasks();
    void indexesOfTheWritersAreThere();
    void outlinesLieInsideTheirCity();
    void areasHaveSurveyableSizes();
    void thumbnailsAreDistinctPictures();
    void manyProjectsShareThumbnails();
    void sameSeedGivesTheSameFiles();
    void fewAreTheBeginningOfMany();
    void filesThatAreThereAreReplaced();
    void folderThatCannotBeMade();
    void withoutSpecialCasesAllAreSound();
    void programListsAndWrites();
    void programRefusesBadOptions_data();
    void programRefusesBadOptions();

private:
    SampleOptions options(const QString& folder, int count = 24) const;

    TestHome m_home;
    QStringList m_files; ///< Of 24 projects, made by the first test that needs them.
    QVector<SampleProject> m_plan; ///< The same.

    void need24();
    QString first(SampleKind kind);
};

SampleOptions tst_SampleProjects::options(const QString& folder, int count) const
{
    SampleOptions options;
    options.root = m_home.path() + QLatin1Char('/') + folder;
    options.userId = QStringLiteral("surveyor");
    options.count = count;
    options.seed = 7;
    options.now = QDateTime(QDate(2026, 3, 14), QTime(15, 9, 26));
    return options;
}

void tst_SampleProjects::need24()
{
    if (!m_files.isEmpty())
        return;
    m_plan = planSampleProjects(options(QStringLiteral("all")));
    m_files = writeSampleProjects(options(QStringLiteral("all")));
    QCOMPARE(m_plan.size(), 24);
    QCOMPARE(m_files.size(), 24);
}

QString tst_SampleProjects::first(SampleKind kind)
{
    need24();
    for (int i = 0; i < m_plan.size(); ++i) {
        if (m_plan[i].kind == kind)
            return m_files.value(i);
    }
    return {};
}

void tst_SampleProjects::everyKindIsPlanned()
{
    need24();
    QMap<SampleKind, int> counts;
    QSet<QString> cities;
    for (const SampleProject& project : qAsConst(m_plan)) {
        ++counts[project.kind];
        if (holdsProject(project)) {
            QVERIFY2(!boundaryOf(project.city).isEmpty(), qPrintable(project.city));
            cities.insert(project.city);
        }
    }
    QCOMPARE(counts.value(SampleKind::Sound), 18);
    QCOMPARE(counts.value(SampleKind::OtherUser), 2);
    for (const SampleKind kind : {SampleKind::NoThumbnail, SampleKind::DamagedThumbnail,
                                  SampleKind::EmptyFile, SampleKind::NotADatabase})
        QCOMPARE(counts.value(kind), 1);
    QVERIFY(cities.size() >= 10);
}

void tst_SampleProjects::namesAreUniqueAndAllowed()
{
    QSet<QString> names;
    int chinese = 0;
    int longest = 0;
    const QVector<SampleProject> plan = planSampleProjects(options(QStringLiteral("names"), 3000));
    QCOMPARE(plan.size(), 3000);
    for (const SampleProject& project : plan) {
        QVERIFY2(!FileNameContainsNotAllowChar(project.name), qPrintable(project.name));
        QCOMPARE(project.name, project.name.trimmed());
        QVERIFY2(project.name.toUtf8().size() < 200, "fits a file name with its suffix");
        names.insert(project.name.toLower());
        chinese += project.name.at(0).script() == QChar::Script_Han ? 1 : 0;
        longest = std::max(longest, project.name.size());
    }
    QCOMPARE(names.size(), 3000);
    QVERIFY(chinese > 1000 && chinese < 2000);
    QVERIFY(longest > 80);
}

void tst_SampleProjects::filesAreThoseOfThePlan()
{
    need24();
    for (int i = 0; i < m_files.size(); ++i) {
        const QString expected =
            QStringLiteral("%1/all/%2/%2.proj").arg(m_home.path(), m_plan[i].name);
        QCOMPARE(m_files[i], expected);
        QVERIFY(QFileInfo(m_files[i]).isFile());
    }
}

void tst_SampleProjects::specialFilesAreWhatTheyAreCalled()
{
    QCOMPARE(QFileInfo(first(SampleKind::EmptyFile)).size(), qint64(0));
    const QByteArray text = readFile(first(SampleKind::NotADatabase));
    QVERIFY(!text.isEmpty() && !text.startsWith("SQLite format 3"));
    QVERIFY(readPicture(first(SampleKind::NoThumbnail)).isEmpty());
    QVERIFY(!readPicture(first(SampleKind::DamagedThumbnail)).isEmpty());
    QVERIFY(QImage::fromData(readPicture(first(SampleKind::DamagedThumbnail))).isNull());
    QVERIFY(!QImage::fromData(readPicture(first(SampleKind::OtherUser))).isNull());
}

void tst_SampleProjects::projectsBelongToTheirUsers()
{
    need24();
    for (int i = 0; i < m_files.size(); ++i) {
        if (!holdsProject(m_plan[i]))
            continue;
        QCOMPARE(readValue(m_files[i], QStringLiteral("user_id")).toString(), m_plan[i].userId);
        QCOMPARE(readValue(m_files[i], QStringLiteral("project_name")).toString(), m_plan[i].name);
        QCOMPARE(m_plan[i].userId == QLatin1String("surveyor"),
                 m_plan[i].kind != SampleKind::OtherUser);
    }
}

void tst_SampleProjects::timesLieInTheYearBefore()
{
    need24();
    const QDateTime now = options(QString()).now;
    int lastMonth = 0;
    int older = 0;
    for (int i = 0; i < m_files.size(); ++i) {
        if (!holdsProject(m_plan[i]))
            continue;
        const auto time = [&](const char* column) {
            return QDateTime::fromString(readValue(m_files[i], QLatin1String(column)).toString(),
                                         DateTimeSFormat);
        };
        const QDateTime modified = time("updated_at");
        QVERIFY(modified.isValid() && modified <= now && modified > now.addDays(-366));
        QVERIFY(time("created_at").isValid() && time("created_at") < modified);
        (modified.daysTo(now) <= 30 ? lastMonth : older) += 1;
    }
    QVERIFY(lastMonth >= 3 && older >= 3);
    QCOMPARE(readValue(m_files.first(), QStringLiteral("updated_at")).toString().left(10),
             now.toString(QStringLiteral("yyyy-MM-dd")));
}

void tst_SampleProjects::blocksAndTasksLoad()
{
    need24();
    int strips = 0;
    int areas = 0;
    int withoutTasks = 0;
    for (int i = 0; i < m_files.size(); ++i) {
        if (!holdsProject(m_plan[i]))
            continue;
        const QString id = readValue(m_files[i], QStringLiteral("id")).toString();
        const QVector<Block> blocks = readBlocks(m_files[i]);
        QVERIFY(!blocks.isEmpty());
        for (const Block& expected : blocks) {
            CRkDataBase database(m_files[i]);
            QVERIFY(database.open());
            CRkBlock block;
            block.SetBlockID(expected.id);
            QVERIFY(block.Load(SurveyAreaTableName, id, VANTRELL_VERSION, &database));
            QCOMPARE(block.GetAnchor().size(), expected.points.size());
            withoutTasks += block.GetMissionList().isEmpty() ? 1 : 0;
            (block.GetBlockType() == BlockTypeStrip ? strips : areas) += 1;
        }
    }
    QVERIFY(strips >= 3);
    QVERIFY(areas >= 15);
    QVERIFY2(withoutTasks >= 3 && withoutTasks < areas / 2, "most blocks have tasks, some do not");
}

void tst_SampleProjects::flightsBelongToTasks()
{
    need24();
    int flown = 0;
    for (const QString& file : qAsConst(m_files)) {
        const QString companion = CRkControl::GetFlightMissionFilePath(file);
        if (!QFileInfo::exists(companion))
            continue;
        ++flown;
        const QStringList tasks =
            readSql(file, QStringLiteral("select flight_task_guid from ") + MissionTableName);
        const QStringList flights = readSql(
            companion, QStringLiteral("select flight_task_id from ") + FlightMissionTableName);
        QVERIFY(!flights.isEmpty());
        for (const QString& task : flights)
            QVERIFY(tasks.contains(task));
    }
    QVERIFY2(flown >= 8 && flown < 22, "some projects were flown and some were not");
}

void tst_SampleProjects::indexesOfTheWritersAreThere()
{
    const auto indexed = [](const QString& file) {
        QStringList tables =
            readSql(file, QStringLiteral("select tbl_name from sqlite_master where type='index'"));
        tables.sort();
        return tables;
    };
    const QString file = first(SampleKind::Sound);
    QStringList expected = {MissionTableName, SurveyAreaTableName};
    expected.sort();
    QCOMPARE(indexed(file), expected);
    const auto flown = std::find_if(m_files.cbegin(), m_files.cend(), [](const QString& project) {
        return QFileInfo::exists(CRkControl::GetFlightMissionFilePath(project));
    });
    QVERIFY(flown != m_files.cend());
    QCOMPARE(indexed(CRkControl::GetFlightMissionFilePath(*flown)),
             QStringList(FlightMissionTableName));
}

void tst_SampleProjects::outlinesLieInsideTheirCity()
{
    SampleOptions many = options(QStringLiteral("many"), 300);
    many.withSpecialCases = false;
    const QVector<SampleProject> plan = planSampleProjects(many);
    const QStringList files = writeSampleProjects(many);
    QCOMPARE(files.size(), 300);
    for (int i = 0; i < files.size(); ++i) {
        const QPolygonF boundary = boundaryOf(plan[i].city);
        const QVector<Block> blocks = readBlocks(files[i]);
        QVERIFY2(!blocks.isEmpty(), qPrintable(plan[i].city));
        for (const Block& block : blocks) {
            QVERIFY(block.points.size() >= (block.isStrip ? 2 : 3));
            QVERIFY2(containsEdges(boundary, block), qPrintable(files[i]));
            QCOMPARE(cityAtCentreOf(block.points), plan[i].city);
        }
    }
    QVERIFY(QDir(many.root).removeRecursively());
}

void tst_SampleProjects::areasHaveSurveyableSizes()
{
    need24();
    double smallest = 1e9;
    double largest = 0;
    for (int i = 0; i < m_files.size(); ++i) {
        if (!holdsProject(m_plan[i]))
            continue;
        for (const Block& block : readBlocks(m_files[i])) {
            if (block.isStrip)
                continue;
            const double size = squareKilometres(block.points);
            QVERIFY2(size > 0.49 && size < 30.5, qPrintable(QString::number(size)));
            smallest = std::min(smallest, size);
            largest = std::max(largest, size);
        }
    }
    QVERIFY(smallest < 3 && largest > 10);
}

void tst_SampleProjects::thumbnailsAreDistinctPictures()
{
    need24();
    QMap<QByteArray, int> formats;
    QSet<QByteArray> pictures;
    for (int i = 0; i < m_files.size(); ++i) {
        if (m_plan[i].kind != SampleKind::Sound)
            continue;
        QByteArray file = readPicture(m_files[i]);
        QBuffer buffer(&file);
        QImageReader reader(&buffer);
        ++formats[reader.format()];
        const QImage image = reader.read().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(image.size(), QSize(380, 286));
        QSet<QRgb> colours;
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, image.height() / 2));
        QVERIFY2(colours.size() > 20, "a map, not a flat colour");
        pictures.insert(file);
    }
    QCOMPARE(pictures.size(), 18);
    QVERIFY(formats.value("jpeg") >= 6 && formats.value("png") >= 6);
    QCOMPARE(formats.size(), 2);
}

void tst_SampleProjects::manyProjectsShareThumbnails()
{
    SampleOptions many = options(QStringLiteral("shared"), 70);
    many.withSpecialCases = false;
    QSet<QByteArray> pictures;
    for (const QString& file : writeSampleProjects(many))
        pictures.insert(readPicture(file));
    QCOMPARE(pictures.size(), 64);
}

void tst_SampleProjects::sameSeedGivesTheSameFiles()
{
    const QStringList once = writeSampleProjects(options(QStringLiteral("once"), 12));
    const QStringList again = writeSampleProjects(options(QStringLiteral("again"), 12));
    SampleOptions other = options(QStringLiteral("other"), 12);
    other.seed = 8;
    const QStringList different = writeSampleProjects(other);
    QCOMPARE(once.size(), 12);
    QCOMPARE(again.size(), 12);
    QCOMPARE(different.size(), 12);
    for (int i = 0; i < once.size(); ++i) {
        QCOMPARE(QFileInfo(once[i]).fileName(), QFileInfo(again[i]).fileName());
        QCOMPARE(readFile(once[i]), readFile(again[i]));
        QCOMPARE(readFile(CRkControl::GetFlightMissionFilePath(once[i])),
                 readFile(CRkControl::GetFlightMissionFilePath(again[i])));
    }
    QVERIFY(readFile(once.first()) != readFile(different.first()));
}

void tst_SampleProjects::fewAreTheBeginningOfMany()
{
    need24();
    const QStringList few = writeSampleProjects(options(QStringLiteral("few"), 5));
    QCOMPARE(few.size(), 5);
    for (int i = 0; i < few.size(); ++i)
        QCOMPARE(readFile(few[i]), readFile(m_files[i]));
}

void tst_SampleProjects::filesThatAreThereAreReplaced()
{
    const SampleOptions one = options(QStringLiteral("replaced"), 1);
    const QString file = writeSampleProjects(one).value(0);
    const QByteArray content = readFile(file);
    QVERIFY(writeFile(file, "something else"));
    QCOMPARE(writeSampleProjects(one), QStringList(file));
    QCOMPARE(readFile(file), content);
}

void tst_SampleProjects::folderThatCannotBeMade()
{
    QVERIFY(writeFile(m_home.path() + QStringLiteral("/file"), "x"));
    QVERIFY(writeSampleProjects(options(QStringLiteral("file/below"), 1)).isEmpty());
}

void tst_SampleProjects::withoutSpecialCasesAllAreSound()
{
    SampleOptions sound = options(QStringLiteral("sound"), 48);
    sound.withSpecialCases = false;
    const QVector<SampleProject> plan = planSampleProjects(sound);
    QCOMPARE(plan.size(), 48);
    for (const SampleProject& project : plan) {
        QVERIFY(project.kind == SampleKind::Sound);
        QCOMPARE(project.userId, QStringLiteral("surveyor"));
    }
}

void tst_SampleProjects::programListsAndWrites()
{
    const QString root = m_home.path() + QStringLiteral("/program");
    QProcess program;
    program.start(QStringLiteral(RK_SAMPLES),
                  {QStringLiteral("--list"), QStringLiteral("--count"), QStringLiteral("6"),
                   QStringLiteral("--seed"), QStringLiteral("3")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QStringList lines = QString::fromUtf8(program.readAllStandardOutput())
                                  .remove(QLatin1Char('\r'))
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 6);

    program.start(QStringLiteral(RK_SAMPLES),
                  {QStringLiteral("--out"), root, QStringLiteral("--count"), QStringLiteral("6"),
                   QStringLiteral("--seed"), QStringLiteral("3")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    QStringList listed;
    for (const QString& line : lines)
        listed.append(line.section(QLatin1Char('\t'), 3));
    listed.sort();
    QStringList written = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    written.sort();
    QCOMPARE(written, listed);
}

void tst_SampleProjects::programRefusesBadOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("expected");
    const QString out = QStringLiteral("--out");
    const QString folder = m_home.path() + QStringLiteral("/refused");
    QTest::newRow("no folder") << QStringList() << 2;
    QTest::newRow("count is no number")
        << QStringList{out, folder, QStringLiteral("--count"), QStringLiteral("x")} << 2;
    QTest::newRow("negative count")
        << QStringList{out, folder, QStringLiteral("--count"), QStringLiteral("-1")} << 2;
    QTest::newRow("seed is no number")
        << QStringList{out, folder, QStringLiteral("--seed"), QStringLiteral("x")} << 2;
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--nothing")} << 1;
    QTest::newRow("folder below a file")
        << QStringList{out, QStringLiteral(RK_SAMPLES "/below")} << 1;
}

void tst_SampleProjects::programRefusesBadOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, expected);
    QProcess program;
    program.start(QStringLiteral(RK_SAMPLES), arguments);
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), expected);
    QVERIFY(!program.readAllStandardError().isEmpty());
    QVERIFY(!QFileInfo::exists(m_home.path() + QStringLiteral("/refused")));
}

QTEST_GUILESS_MAIN(tst_SampleProjects)
#include "tst_SampleProjects.moc"
