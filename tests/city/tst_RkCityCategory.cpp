// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/RkCityCategory.h>

#include "support/ProgramCopy.h"
#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const char* const fileName = "ChinaAdminiDstrict.db";

QString shippedFile()
{
    return QCoreApplication::applicationDirPath() + '/' + fileName;
}

/// A folder with a catalogue, or something in its place, beside a copy of the probe.
class ProbedFolder
{
public:
    ProbedFolder()
        : m_probe(ProgramCopy::make("city_probe", m_dir.path()))
    {
    }

    QString path(const QString& name) const { return m_dir.filePath(name); }
    QString file() const { return path(fileName); }
    QStringList entries() const
    {
        return QDir(m_dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    }

    /// What the probe prints; an empty object when it fails or says anything beside.
    QJsonObject probe(const QStringList& questions = {}) const
    {
        QProcess process;
        process.setProcessEnvironment(ProgramCopy::environment());
        process.start(m_probe, questions);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit
            || process.exitCode() != 0) {
            qWarning() << "the probe failed:" << process.errorString()
                       << process.readAllStandardError();
            return {};
        }
        const QByteArray complaint = process.readAllStandardError();
        if (!complaint.isEmpty()) {
            qWarning() << "the probe was not silent:" << complaint;
            return {};
        }
        return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    }

    QJsonArray ask(const QStringList& questions) const
    {
        return probe(questions).value("answers").toArray();
    }

private:
    QTemporaryDir m_dir;
    QString m_probe;
};

const char* const createTable =
    "create table city (id, name, letter, parent_id, level, lat, lng, polyline)";

const QString southSquare = "'10,-4;14,-4;bad;14,x;7;14,0;10,0'";

/// Guangdong and Gansu share a letter, and Guangdong comes first in the file. Gansu has no city.
const QStringList smallCatalogue = {
    createTable,
    "insert into city values (1, 'Country', 'Z', 0, 0, 35, 105, '')",
    "insert into city values (20, 'Guangdong', 'G', 1, 1, 23.1, 113.2, '')",
    "insert into city values (10, 'Fujian', 'F', 1, 1, 26.1, 119.3, '')",
    "insert into city values (30, 'Gansu', 'G', 1, 1, 36.1, 103.8, '')",
    "insert into city values (21, 'Square', 'S', 20, 2, 2, 12, '10,0;14,0;14,4;10,4')",
    "insert into city values (11, 'Overlap', 'O', 10, 2, 2, 14, '12,0;16,0;16,4;12,4;')",
    "insert into city values (22, 'south_square', 'S', 20, 2, -2, 12, " + southSquare + ")",
    "insert into city values (12, 'Outlineless', 'O', 10, 3, 1, 2, '50,50;51,50;51,51')",
};

QJsonArray list(const QStringList& texts)
{
    return QJsonArray::fromStringList(texts);
}

/// Every member of an empty catalogue, and its answers to `questionsOfEmpty`.
bool isEmptyCatalogue(const QJsonObject& report)
{
    if (report.size() != 12)
        return false;
    const QJsonArray answers = {"N/A", QJsonArray(), QJsonArray{"0 0", "100000"}};
    for (auto member = report.begin(); member != report.end(); ++member) {
        const bool empty = member.value().isArray() ? member.value().toArray().isEmpty()
                                                    : member.value().toObject().isEmpty();
        if (member.key() == "answers" ? member.value().toArray() != answers : !empty)
            return false;
    }
    return true;
}

const QStringList questionsOfEmpty = {"point", "2", "12", "keyword", "a", "name", "Square"};

/// Gives "N/A" a translation, in the context of the catalogue alone.
class NowhereTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, "RkCityCategory") == 0 && qstrcmp(source, "N/A") == 0 ? "nowhere"
                                                                                      : QString();
    }
    bool isEmpty() const override { return false; }
};

QString literalCityName(const RkCityCategory& catalogue, const QPointF& point)
{
    for (const auto& [polygon, name] : catalogue.cityBoundaries()) {
        if (polygon.containsPoint(point, Qt::OddEvenFill))
            return name;
    }
    return "N/A";
}

} // namespace

class tst_RkCityCategory : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryMember();
    void namesTheCityOfAPoint_data();
    void namesTheCityOfAPoint();
    void givesCentreAndRadius();
    void searchesByKeyword_data();
    void searchesByKeyword();
    void keepsCitiesOfAProvinceWithAQuoteEmpty();
    void listsCitiesOfTheProvinceNotOfItsNamesake();
    void firstLetterBlankIsNoFirstProvince();
    void staysEmptyWithoutUsableFile_data();
    void staysEmptyWithoutUsableFile();
    void survivesDamagedCopies();
    void survivesOddValues();
    void holdsTenThousandPlaces();
    void leavesTheFileAlone();

    void shippedListsAreThoseOfTheFile();
    void shippedBoundariesAreThoseOfTheFile();
    void shippedPointsAreNamedAsByTheLiteralScan();
    void nowhereIsTranslatedAtEachCall();
    void shippedSearchFindsWhatTheFileHolds();
    void neverLoadsASecondTime();
};

void tst_RkCityCategory::readsEveryMember()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(), smallCatalogue));
    const QJsonObject report = folder.probe();
    QCOMPARE(report.value("provinceNames").toArray(), list({"Fujian", "Guangdong", "Gansu"}));
    QCOMPARE(report.value("firstProvincePerLetter").toArray(), list({"Fujian", "Guangdong"}));
    QCOMPARE(report.value("provinceLetters").toArray(), list({"F", "G"}));
    QCOMPARE(report.value("allLetters").toArray(), list({"F", "G", "O", "S", "Z"}));
    QCOMPARE(report.value("provinceToLetter").toObject(),
             (QJsonObject{{"Fujian", "F"}, {"Guangdong", "G"}, {"Gansu", "G"}}));
    QCOMPARE(report.value("letterToFirstProvince").toObject(),
             (QJsonObject{{"F", "Fujian"}, {"G", "Guangdong"}}));
    QCOMPARE(report.value("provinceToCities").toObject(),
             (QJsonObject{{"Fujian", list({"Overlap", "Outlineless"})},
                          {"Guangdong", list({"Square", "south_square"})},
                          {"Gansu", QJsonArray()}}));
    QCOMPARE(report.value("letterToCities").toObject(),
             (QJsonObject{{"F", QJsonArray()},
                          {"G", QJsonArray()},
                          {"O", list({"Overlap", "Outlineless"})},
                          {"S", list({"Square", "south_square"})},
                          {"Z", list({"Country"})}}));
    QCOMPARE(report.value("radiusByName").toObject(),
             (QJsonObject{{"Country", "300"},
                          {"Fujian", "800"},
                          {"Guangdong", "800"},
                          {"Gansu", "800"},
                          {"Square", "300"},
                          {"Overlap", "300"},
                          {"south_square", "300"},
                          {"Outlineless", "300"}}));
    QCOMPARE(report.value("centreByName").toObject().size(), 8);
    QCOMPARE(report.value("centreByName").toObject().value("south_square").toString(),
             QString("-2 12"));
    QCOMPARE(report.value("cityBoundaries").toArray(),
             (QJsonArray{QJsonArray{"Square", "0 10;0 14;4 14;4 10"},
                         QJsonArray{"Overlap", "0 12;0 16;4 16;4 12"},
                         QJsonArray{"south_square", "-4 10;-4 14;0 14;0 10"}}));
}

void tst_RkCityCategory::namesTheCityOfAPoint_data()
{
    QTest::addColumn<QString>("latitude");
    QTest::addColumn<QString>("longitude");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* latitude, const char* longitude,
                        const char* expected) {
        QTest::newRow(name) << QString(latitude) << QString(longitude) << QString(expected);
    };
    row("inside one", "2", "11", "Square");
    row("inside two, loaded first", "2", "13", "Square");
    row("inside the second alone", "2", "15", "Overlap");
    row("outside every boundary", "2", "17", "N/A");
    row("latitude and longitude not exchanged", "11", "2", "N/A");
    row("inside an outline of another level", "50.5", "50.6", "N/A");
    row("bad points left out of the boundary", "-2", "12", "south_square");
    row("not a number", "nan", "12", "N/A");
    row("infinite", "2", "inf", "N/A");
}

void tst_RkCityCategory::namesTheCityOfAPoint()
{
    QFETCH(QString, latitude);
    QFETCH(QString, longitude);
    QFETCH(QString, expected);
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(), smallCatalogue));
    QCOMPARE(folder.ask({"point", latitude, longitude}), QJsonArray{expected});
}

void tst_RkCityCategory::givesCentreAndRadius()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(), smallCatalogue));
    const QJsonArray answers = folder.ask(
        {"name", "Gansu", "name", "Square", "name", "gansu", "name", "", "name", "Nowhere"});
    const QJsonArray unknown = {"0 0", "100000"};
    QCOMPARE(answers,
             (QJsonArray{QJsonArray{"36.100000000000001 103.8", "800"}, QJsonArray{"2 12", "300"},
                         unknown, unknown, unknown}));
}

void tst_RkCityCategory::searchesByKeyword_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QStringList>("expected");
    const QStringList all = {"Country", "Guangdong",    "Fujian",      "Gansu",      "Square",
                             "Overlap", "south_square", "Outlineless", "100% %1 %L1"};
    QTest::newRow("part of a name in any case")
        << "SQUARE" << QStringList{"Square", "south_square"};
    QTest::newRow("empty finds all") << "" << all;
    QTest::newRow("percent is a wildcard") << "g%n" << QStringList{"Guangdong", "Gansu"};
    QTest::newRow("underscore is a wildcard") << "_quare" << QStringList{"Square", "south_square"};
    QTest::newRow("place marker stands for itself") << "%1" << QStringList{"100% %1 %L1"};
    QTest::newRow("localised place marker stands for itself")
        << "% %L1" << QStringList{"100% %1 %L1"};
    QTest::newRow("blanks are kept") << " Square" << QStringList();
    QTest::newRow("unknown") << "Atlantis" << QStringList();
    QTest::newRow("quote breaks the query") << "Square'" << QStringList();
    QTest::newRow("two statements") << "'; drop table city; --" << QStringList();
    QTest::newRow("pattern closed by the keyword") << "' or name='Gansu" << all;
    QTest::newRow("query changed by the keyword")
        << "x' or name='Gansu' --" << QStringList{"Gansu"};
    QTest::newRow("very long") << QString(60000, 'x') << QStringList();
}

void tst_RkCityCategory::searchesByKeyword()
{
    QFETCH(QString, keyword);
    QFETCH(QStringList, expected);
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(), smallCatalogue));
    QVERIFY(runSql(folder.file(), {"insert into city (id, name) values (99, '100% %1 %L1')"}));
    QCOMPARE(folder.ask({"keyword", keyword}), QJsonArray{list(expected)});
}

void tst_RkCityCategory::keepsCitiesOfAProvinceWithAQuoteEmpty()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(),
                   {createTable, "insert into city values (2, 'Xi''an', '''', 1, 1, 1, 2, '')",
                    "insert into city values (3, 'Child', 'C', 2, 2, 1, 2, '')"}));
    const QJsonObject report = folder.probe();
    QCOMPARE(report.value("provinceToCities").toObject(), (QJsonObject{{"Xi'an", QJsonArray()}}));
    QCOMPARE(report.value("letterToCities").toObject(),
             (QJsonObject{{"'", QJsonArray()}, {"C", list({"Child"})}}));
}

void tst_RkCityCategory::listsCitiesOfTheProvinceNotOfItsNamesake()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(),
                   {createTable, "insert into city values (5, 'Twin', 'T', 6, 2, 1, 2, '')",
                    "insert into city values (6, 'Twin', 'T', 1, 1, 3, 4, '')",
                    "insert into city values (7, 'Child', 'C', 6, 2, 1, 2, '')"}));
    const QJsonObject report = folder.probe();
    QCOMPARE(report.value("provinceToCities").toObject(),
             (QJsonObject{{"Twin", list({"Twin", "Child"})}}));
    QCOMPARE(report.value("radiusByName").toObject(),
             (QJsonObject{{"Twin", "800"}, {"Child", "300"}}));
}

void tst_RkCityCategory::firstLetterBlankIsNoFirstProvince()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(),
                   {createTable, "insert into city values (2, 'Blank', ' ', 1, 1, 1, 2, '')",
                    "insert into city values (3, 'Anhui', 'A', 1, 1, 1, 2, '')"}));
    const QJsonObject report = folder.probe();
    QCOMPARE(report.value("provinceNames").toArray(), list({"Blank", "Anhui"}));
    QCOMPARE(report.value("firstProvincePerLetter").toArray(), list({"Anhui"}));
    QCOMPARE(report.value("letterToFirstProvince").toObject(), (QJsonObject{{"A", "Anhui"}}));
    QCOMPARE(report.value("provinceLetters").toArray(), list({" ", "A"}));
}

void tst_RkCityCategory::staysEmptyWithoutUsableFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<bool>("folderInItsPlace");
    QTest::newRow("missing") << QByteArray() << QStringList() << false;
    QTest::newRow("folder in its place") << QByteArray() << QStringList() << true;
    QTest::newRow("not a database")
        << QByteArray("no database, ").repeated(500) << QStringList() << false;
    QTest::newRow("one byte") << QByteArray("S") << QStringList() << false;
    QTest::newRow("header alone") << QByteArray("SQLite format 3\0", 16) << QStringList() << false;
    QTest::newRow("without the table")
        << QByteArray() << QStringList{"create table town (name)"} << false;
    QTest::newRow("empty table") << QByteArray() << QStringList{createTable} << false;
    QTest::newRow("without the columns")
        << QByteArray() << QStringList{"create table city (a, b)", "insert into city values (1, 2)"}
        << false;
}

void tst_RkCityCategory::staysEmptyWithoutUsableFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, statements);
    QFETCH(bool, folderInItsPlace);
    const ProbedFolder folder;
    if (!content.isEmpty())
        QVERIFY(writeFile(folder.file(), content));
    if (!statements.isEmpty())
        QVERIFY(runSql(folder.file(), statements));
    if (folderInItsPlace)
        QVERIFY(QDir().mkpath(folder.file()));
    const QStringList before = folder.entries();
    QVERIFY(isEmptyCatalogue(folder.probe(questionsOfEmpty)));
    QCOMPARE(folder.entries(), before);
    if (!folderInItsPlace)
        QCOMPARE(readFile(folder.file()).startsWith(content), true);
}

void tst_RkCityCategory::survivesDamagedCopies()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(), smallCatalogue));
    QVERIFY(
        runSql(folder.file(),
               {"create index by_name on city (name)", "create index by_level on city (level)"}));
    const QByteArray sound = readFile(folder.file());
    QVERIFY(sound.size() > 4096);
    QRandomGenerator random(3);
    for (int round = 0; round < 40; ++round) {
        QByteArray damaged = sound;
        if (round % 2 == 0) {
            damaged.truncate(random.bounded(sound.size()));
        } else {
            for (int i = 0; i < 100; ++i)
                damaged[random.bounded(sound.size())] = static_cast<char>(random.bounded(256));
        }
        QVERIFY(writeFile(folder.file(), damaged));
        QCOMPARE(folder.probe(questionsOfEmpty).size(), 12);
        QCOMPARE(readFile(folder.file()), damaged);
    }
}

void tst_RkCityCategory::survivesOddValues()
{
    const ProbedFolder folder;
    const QString bytesOfSquare = "x'302c303b342c303b342c343b302c34'";
    const QString notFinite = "'inf,1;nan,2;1e999,3'";
    QVERIFY(runSql(
        folder.file(),
        {createTable, "insert into city values ('x', 'Texts', 7, '1', 'two', 'north', '1e2', 5)",
         "insert into city values (null, null, null, 1, 2, null, null, null)",
         "insert into city values (3, x'4142', 'B', 1, 2, x'33', 4, " + bytesOfSquare + ")",
         "insert into city values (4, 'Infinite', 'I', 9, 2, 9e999, -9e999, " + notFinite + ")"}));
    const QJsonObject report =
        folder.probe({"point", "1", "2", "name", "Infinite", "name", "Texts"});
    QCOMPARE(report.value("provinceNames").toArray(), list({"", "AB"}));
    QCOMPARE(report.value("cityBoundaries").toArray(),
             (QJsonArray{QJsonArray{"", ""}, QJsonArray{"AB", "0 0;0 4;4 4;4 0"},
                         QJsonArray{"Infinite", "1 inf;2 nan"}}));
    QCOMPARE(report.value("centreByName").toObject().value("AB").toString(), QString("3 4"));
    QCOMPARE(report.value("answers").toArray(),
             (QJsonArray{"AB", QJsonArray{"inf -inf", "300"}, QJsonArray{"0 100", "300"}}));
}

void tst_RkCityCategory::holdsTenThousandPlaces()
{
    const ProbedFolder folder;
    const QString rows =
        "insert into city with recursive n(i) as "
        "(select 1 union all select i + 1 from n where i < 10000) "
        "select i + 1, 'Place ' || i, char(65 + i % 26), iif(i <= 40, 1, 2 + i % 40), "
        "iif(i <= 40, 1, 2), 0.01 * i, 100, "
        "'100,' || (0.01 * i) || ';101,' || (0.01 * i) || ';101,' || (0.01 * i + 0.02) || "
        "';100,' || (0.01 * i + 0.02) from n";
    const QString huge = "insert into city values (20000, 'Huge', 'H', 2, 2, 0, 0, "
                         "replace(hex(zeroblob(1000000)), '00', '120.123456,30.654321;'))";
    QVERIFY(runSql(folder.file(), {createTable, rows, huge}));
    const QJsonObject report =
        folder.probe({"point", "60.005", "100.5", "point", "60.015", "100.5"});
    QCOMPARE(report.value("provinceNames").toArray().size(), 40);
    QCOMPARE(report.value("centreByName").toObject().size(), 10001);
    QCOMPARE(report.value("cityBoundaries").toArray().size(), 9961);
    QCOMPARE(report.value("answers").toArray(), list({"Place 5999", "Place 6000"}));
}

void tst_RkCityCategory::leavesTheFileAlone()
{
    const ProbedFolder folder;
    QVERIFY(runSql(folder.file(), smallCatalogue));
    const QByteArray before = readFile(folder.file());
    const QStringList entries = folder.entries();
    QCOMPARE(folder.ask({"keyword", "x'; delete from city; --"}), QJsonArray{QJsonArray()});
    QCOMPARE(readFile(folder.file()), before);
    QCOMPARE(folder.entries(), entries);
}

void tst_RkCityCategory::shippedListsAreThoseOfTheFile()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QCOMPARE(&catalogue, &RkCityCategory::instance());
    const QString file = shippedFile();
    QVERIFY(catalogue.provinceNames().size() > 30);
    QCOMPARE(catalogue.provinceNames(),
             readSql(file, "select name from city where parent_id = 1 order by letter"));
    QCOMPARE(
        catalogue.provinceLetters(),
        readSql(file,
                "select letter from city where parent_id = 1 group by letter order by letter"));
    QCOMPARE(catalogue.allLetters(),
             readSql(file, "select letter from city group by letter order by letter"));
    QCOMPARE(catalogue.firstProvincePerLetter().size(), catalogue.provinceLetters().size());
    for (const QString& province : catalogue.firstProvincePerLetter()) {
        const QString letter = catalogue.provinceToLetter().value(province);
        QCOMPARE(catalogue.letterToFirstProvince().value(letter), province);
    }
    int children = 0;
    for (const QStringList& cities : catalogue.provinceToCities())
        children += cities.size();
    QCOMPARE(QString::number(children),
             readSql(file,
                     "select count(*) from city where parent_id in "
                     "(select id from city where parent_id = 1)")
                 .value(0));
    int listed = 0;
    for (const QStringList& cities : catalogue.letterToCities())
        listed += cities.size();
    QCOMPARE(QString::number(listed),
             readSql(file, "select count(*) from city where parent_id <> 1").value(0));
    QCOMPARE(QString::number(catalogue.centreByName().size()),
             readSql(file, "select count(distinct name) from city").value(0));
    QCOMPARE(catalogue.radiusByName().keys(), catalogue.centreByName().keys());
}

void tst_RkCityCategory::shippedBoundariesAreThoseOfTheFile()
{
    const auto& boundaries = RkCityCategory::instance().cityBoundaries();
    const QStringList names = readSql(shippedFile(), "select name from city where level = 2");
    const QStringList texts = readSql(shippedFile(), "select polyline from city where level = 2");
    QVERIFY(boundaries.size() > 300);
    QCOMPARE(boundaries.size(), names.size());
    for (int i = 0; i < boundaries.size(); ++i) {
        QCOMPARE(boundaries.at(i).second, names.at(i));
        QPolygonF expected;
        for (const QString& point : texts.at(i).split(';', Qt::SkipEmptyParts))
            expected.append(
                {point.section(',', 1, 1).toDouble(), point.section(',', 0, 0).toDouble()});
        QVERIFY(expected.size() > 2);
        QVERIFY2(boundaries.at(i).first == expected, qPrintable(names.at(i)));
    }
}

void tst_RkCityCategory::shippedPointsAreNamedAsByTheLiteralScan()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QRandomGenerator random(4);
    QVector<QPointF> points;
    for (int i = 0; i < 1000; ++i)
        points.append({18 + random.bounded(36.0), 73 + random.bounded(62.0)});
    for (const auto& [polygon, name] : catalogue.cityBoundaries()) {
        QVERIFY2(!polygon.isEmpty(), qPrintable(name));
        for (int i = 0; i < 3; ++i) {
            const int corner = random.bounded(polygon.size());
            const QPointF next = polygon.at((corner + 1) % polygon.size());
            const QPointF& here = polygon.at(corner);
            points << here << (here + next) / 2 << here + 0.3 * (next - here)
                   << QPointF(std::nextafter(here.x(), 90), std::nextafter(here.y(), 0));
        }
    }
    int inside = 0;
    for (const QPointF& point : qAsConst(points)) {
        const QString expected = literalCityName(catalogue, point);
        QCOMPARE(catalogue.GetCityName(PointLatLng(point.x(), point.y())), expected);
        inside += expected != "N/A";
    }
    QVERIFY(inside > 1000);
}

void tst_RkCityCategory::nowhereIsTranslatedAtEachCall()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    const PointLatLng pacific(0, -150);
    QCOMPARE(catalogue.GetCityName(pacific), QString("N/A"));
    NowhereTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(catalogue.GetCityName(pacific), QString("nowhere"));
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(catalogue.GetCityName(pacific), QString("N/A"));
}

void tst_RkCityCategory::shippedSearchFindsWhatTheFileHolds()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QCOMPARE(catalogue.searchByKeyword(""),
             readSql(shippedFile(), "select name, polyline from city"));
    const QString city = catalogue.cityBoundaries().constFirst().second;
    QVERIFY(catalogue.searchByKeyword(city.left(4)).contains(city));
    QCOMPARE(catalogue.searchByKeyword("'"), QStringList());
}

void tst_RkCityCategory::neverLoadsASecondTime()
{
    RkCityCategory& catalogue = RkCityCategory::instance();
    const QStringList provinces = catalogue.provinceNames();
    const QStringList connections = QSqlDatabase::connectionNames();
    const int boundaries = catalogue.cityBoundaries().size();
    QVERIFY(!provinces.isEmpty() && !connections.isEmpty() && boundaries > 0);
    catalogue.loadFromFile();
    QCOMPARE(catalogue.provinceNames(), provinces);
    QCOMPARE(QSqlDatabase::connectionNames(), connections);
    QCOMPARE(catalogue.cityBoundaries().size(), boundaries);
}

QTEST_GUILESS_MAIN(tst_RkCityCategory)
#include "tst_RkCityCategory.moc"
