// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectFilter.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QRandomGenerator>
#include <QtTest>

namespace {

const ProjectFilter::Words english;
const ProjectFilter::Words chinese = {QStringLiteral("日期"), QStringLiteral("至"),
                                      QStringLiteral("城市"), QStringLiteral("全部")};

/// The rule word for word, with everything parsed anew for every project.
bool literalPasses(const ProjectFilter::Conditions& conditions, const ProjectFilter::Words& words,
                   const ProjectFilter::Project& project)
{
    if (!project.baseName.contains(conditions.keyword, Qt::CaseInsensitive))
        return false;

    const QString& date = conditions.date;
    if (!date.isEmpty() && date.compare(words.date, Qt::CaseInsensitive) != 0
        && date.compare("date", Qt::CaseInsensitive) != 0) {
        const QDateTime modified = QDateTime::fromString(project.modified, DateTimeSFormat);
        if (!date.contains(words.to) && !date.contains("to")) {
            if (modified.daysTo(QDateTime::fromString(date, DateFormat)) != 0)
                return false;
        } else {
            const QStringList ends = date.split(date.contains(words.to) ? words.to : QString("to"));
            if (ends.size() != 2)
                return false;
            const QDateTime from = QDateTime::fromString(QString(ends[0]).remove(' '), DateFormat);
            const QDateTime to = QDateTime::fromString(QString(ends[1]).remove(' '), DateFormat);
            if (modified.daysTo(from) > 0 || modified.daysTo(to) < 0)
                return false;
        }
    }

    const QString& city = conditions.city;
    if (!city.isEmpty() && city.compare(words.city, Qt::CaseInsensitive) != 0
        && city.compare(words.all, Qt::CaseInsensitive) != 0
        && city.compare("city", Qt::CaseInsensitive) != 0
        && city.compare("all", Qt::CaseInsensitive) != 0) {
        for (const QString& place : project.places) {
            if (place.contains(city, Qt::CaseSensitive))
                return true;
        }
        return false;
    }
    return true;
}

} // namespace

class tst_ProjectFilter : public QObject
{
    Q_OBJECT

private slots:
    void keyword_data();
    void keyword();
    void date_data();
    void date();
    void city_data();
    void city();
    void everyConditionMustHold();
    void sameAsTheLiteralRule();
    void everyTimeTextIsParsedAsQtDoes();
};

void tst_ProjectFilter::keyword_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("baseName");
    QTest::addColumn<bool>("passes");
    QTest::newRow("empty") << ""
                           << "xABy" << true;
    QTest::newRow("other letter case") << "ab"
                                       << "xABy" << true;
    QTest::newRow("the whole name") << "xaby"
                                    << "xABy" << true;
    QTest::newRow("not in it") << "abc"
                               << "xABy" << false;
    QTest::newRow("a blank is searched for") << " "
                                             << "xABy" << false;
    QTest::newRow("no pattern") << "x.*y"
                                << "xABy" << false;
    QTest::newRow("Chinese") << QStringLiteral("水库") << QStringLiteral("北山水库") << true;
}

void tst_ProjectFilter::keyword()
{
    QFETCH(QString, keyword);
    QFETCH(QString, baseName);
    QTEST(ProjectFilter({"", "", keyword}, english).passes({baseName, "2026-05-03 12:00:00", {}}),
          "passes");
}

void tst_ProjectFilter::date_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("modified");
    QTest::addColumn<bool>("translated");
    QTest::addColumn<bool>("passes");
    const QString noon = QStringLiteral("2026-05-03 12:00:00");

    QTest::newRow("empty") << "" << noon << false << true;
    QTest::newRow("placeholder") << "Date" << noon << false << true;
    QTest::newRow("placeholder, other letter case") << "dATE" << noon << false << true;
    QTest::newRow("translated placeholder") << QStringLiteral("日期") << noon << true << true;
    QTest::newRow("English placeholder of a translated bar") << "Date" << noon << true << true;

    QTest::newRow("the day") << "2026-05-03" << noon << false << true;
    QTest::newRow("the day, first second") << "2026-05-03"
                                           << "2026-05-03 00:00:00" << false << true;
    QTest::newRow("the day, last second") << "2026-05-03"
                                          << "2026-05-03 23:59:59" << false << true;
    QTest::newRow("the day before") << "2026-05-02" << noon << false << false;
    QTest::newRow("the day after") << "2026-05-04" << noon << false << false;
    QTest::newRow("blanks in a single day make it no date")
        << " 2026-05-02 " << noon << false << true;
    QTest::newRow("no date, 0 days away") << "yesterday" << noon << false << true;

    QTest::newRow("range around") << "2026-05-01 to 2026-05-31" << noon << false << true;
    QTest::newRow("range of that day") << "2026-05-03 to 2026-05-03" << noon << false << true;
    QTest::newRow("begins that day") << "2026-05-03 to 2026-05-31"
                                     << "2026-05-03 00:00:00" << false << true;
    QTest::newRow("ends that day") << "2026-05-01 to 2026-05-03"
                                   << "2026-05-03 23:59:59" << false << true;
    QTest::newRow("begins a day later") << "2026-05-04 to 2026-05-31" << noon << false << false;
    QTest::newRow("ends a day earlier") << "2026-05-01 to 2026-05-02" << noon << false << false;
    QTest::newRow("the wrong way round") << "2026-05-31 to 2026-05-01" << noon << false << false;
    QTest::newRow("no blanks") << "2026-05-01to2026-05-31" << noon << false << true;
    QTest::newRow("blanks within") << "2026 - 05-01  to 2026-05 -31 " << noon << false << true;
    QTest::newRow("a tabulator is no blank")
        << "2026-05-04\t to 2026-05-31" << noon << false << true;
    QTest::newRow("translated range")
        << QStringLiteral("2026-05-01 至 2026-05-31") << noon << true << true;
    QTest::newRow("translated range, outside")
        << QStringLiteral("2026-05-04 至 2026-05-31") << noon << true << false;
    QTest::newRow("English range of a translated bar")
        << "2026-05-04 to 2026-05-31" << noon << true << false;
    QTest::newRow("both words: the translated one splits")
        << QStringLiteral("2026-05-04 至 to") << noon << true << false;

    QTest::newRow("the word twice")
        << "2026-05-01 to 2026-05-31 to 2026-06-01" << noon << false << false;
    QTest::newRow("the word alone: two empty ends") << "to" << noon << false << true;
    QTest::newRow("capitals are not the word")
        << "2026-05-04 TO 2026-05-31" << noon << false << true;
    QTest::newRow("only the begin is a date, later")
        << "2026-05-04 to soon" << noon << false << false;
    QTest::newRow("only the begin is a date, earlier")
        << "2026-05-02 to soon" << noon << false << true;
    QTest::newRow("only the end is a date, earlier")
        << "once to 2026-05-02" << noon << false << false;

    QTest::newRow("no time, day") << "2026-05-02"
                                  << "" << false << true;
    QTest::newRow("no time, range") << "2026-05-01 to 2026-05-02"
                                    << "unknown" << false << true;
    QTest::newRow("no time, the word twice") << "a to b to c"
                                             << "" << false << false;
    QTest::newRow("an impossible time") << "2026-05-02"
                                        << "2026-02-30 12:00:00" << false << true;
    QTest::newRow("a time in another form") << "2026-05-02"
                                            << "2026-05-03T12:00:00" << false << true;
}

void tst_ProjectFilter::date()
{
    QFETCH(QString, condition);
    QFETCH(QString, modified);
    QFETCH(bool, translated);
    const ProjectFilter filter({"", condition, ""}, translated ? chinese : english);
    QTEST(filter.passes({"Hill", modified, {}}), "passes");
}

void tst_ProjectFilter::city_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QStringList>("places");
    QTest::addColumn<bool>("translated");
    QTest::addColumn<bool>("passes");
    const QStringList places = {QStringLiteral("Chengdu 成都市"), QStringLiteral("Sichuan 四川省")};

    QTest::newRow("empty") << "" << QStringList() << false << true;
    QTest::newRow("placeholder") << "City" << QStringList() << false << true;
    QTest::newRow("all") << "All" << QStringList() << false << true;
    QTest::newRow("other letter case") << "cITY" << QStringList() << false << true;
    QTest::newRow("translated placeholder")
        << QStringLiteral("城市") << QStringList() << true << true;
    QTest::newRow("translated all") << QStringLiteral("全部") << QStringList() << true << true;
    QTest::newRow("English all of a translated bar") << "All" << QStringList() << true << true;
    QTest::newRow("a translated placeholder is a place elsewhere")
        << QStringLiteral("全部") << places << false << false;
    QTest::newRow("the city") << QStringLiteral("Chengdu 成都市") << places << false << true;
    QTest::newRow("the province") << QStringLiteral("Sichuan 四川省") << places << false << true;
    QTest::newRow("part of a name") << "cheng" << QStringList({"Acheng"}) << false << true;
    QTest::newRow("letter case matters") << "chengdu" << places << false << false;
    QTest::newRow("another city") << "Xiamen" << places << false << false;
    QTest::newRow("a place against none") << "Chengdu" << QStringList() << false << false;
}

void tst_ProjectFilter::city()
{
    QFETCH(QString, condition);
    QFETCH(QStringList, places);
    QFETCH(bool, translated);
    const ProjectFilter filter({condition, "", ""}, translated ? chinese : english);
    QTEST(filter.passes({"Hill", "2026-05-03 12:00:00", places}), "passes");
}

void tst_ProjectFilter::everyConditionMustHold()
{
    const ProjectFilter filter({"Chengdu", "2026-05-03", "hill"}, english);
    const QString day = QStringLiteral("2026-05-03 12:00:00");
    QVERIFY(filter.passes({"Green Hill", day, {"Chengdu"}}));
    QVERIFY(!filter.passes({"Green Dale", day, {"Chengdu"}}));
    QVERIFY(!filter.passes({"Green Hill", "2026-05-04 12:00:00", {"Chengdu"}}));
    QVERIFY(!filter.passes({"Green Hill", day, {"Xiamen"}}));
}

void tst_ProjectFilter::sameAsTheLiteralRule()
{
    const QStringList keywords = {"", "a", "AB", "x"};
    const QStringList cities = {"",
                                "City",
                                "all",
                                "ALL",
                                "Cheng",
                                "cheng",
                                "Sichuan",
                                QStringLiteral("城市"),
                                QStringLiteral("全部")};
    const QStringList dates = {"",
                               "date",
                               "Date",
                               QStringLiteral("日期"),
                               "2026-05-03",
                               "2026-5-3",
                               "to",
                               "2026-05-02 to 2026-05-04",
                               "2026-05-04 to 2026-05-02",
                               " to 2026-05-02",
                               "2026-05-04 to ",
                               "a to b to c",
                               QStringLiteral("2026-05-02至2026-05-04"),
                               QStringLiteral("2026-05-02 to 至 2026-05-04"),
                               "tomorrow",
                               "26-05-03"};
    const QStringList times = {
        "",           "2026-05-02 23:59:59",  "2026-05-03 00:00:00", "2026-05-04 08:30:00",
        "2026-05-03", "2026-05-03 00:00:00 ", "2026-13-01 00:00:00"};
    const QList<QStringList> places = {{}, {"Chengdu", "Sichuan"}, {"N/A"}};
    for (const ProjectFilter::Words& words : {english, chinese}) {
        for (const QString& keyword : keywords)
            for (const QString& city : cities)
                for (const QString& date : dates) {
                    const ProjectFilter::Conditions conditions = {city, date, keyword};
                    const ProjectFilter filter(conditions, words);
                    for (const QString& time : times)
                        for (const QStringList& list : places) {
                            const ProjectFilter::Project project = {"xaBy", time, list};
                            QVERIFY2(filter.passes(project)
                                         == literalPasses(conditions, words, project),
                                     qPrintable(keyword + '|' + city + '|' + date + '|' + time));
                        }
                }
    }
}

void tst_ProjectFilter::everyTimeTextIsParsedAsQtDoes()
{
    QRandomGenerator random(7);
    const auto agrees = [](const QString& text) {
        // Ranges on both sides of the day tell the day apart from every other one, and from none at
        // all.
        const QDate day = QDateTime::fromString(text, DateTimeSFormat).date();
        const QDate other = day.isValid() ? day : QDate(2026, 5, 3);
        for (const int shift : {-1, 0, 1}) {
            const ProjectFilter::Conditions conditions = {
                "", other.addDays(shift).toString(DateFormat), ""};
            const ProjectFilter::Project project = {"", text, {}};
            if (ProjectFilter(conditions, english).passes(project)
                != literalPasses(conditions, english, project))
                return false;
        }
        return true;
    };

    const QString characters = QStringLiteral("0123456789-: +٣T");
    for (int round = 0; round < 4000; ++round) {
        const QDateTime time(QDate(1900, 1, 1).addDays(random.bounded(80000)),
                             QTime(0, 0).addSecs(random.bounded(86400)));
        QString text = time.toString("yyyy-MM-dd hh:mm:ss");
        if (round % 2)
            text[random.bounded(text.size())] = characters[random.bounded(characters.size())];
        QVERIFY2(agrees(text), qPrintable(text));
    }
    for (const char* text : {"1986-05-04 02:30:00", "1941-03-15 00:30:00", "0000-01-01 00:00:00",
                             "0001-01-01 00:00:00", "2026-05-03 24:00:00", "2026-05-03 23:59:60",
                             "2024-02-29 00:00:00", "2023-02-29 00:00:00", "9999-12-31 23:59:59"})
        QVERIFY2(agrees(text), text);
}

QTEST_GUILESS_MAIN(tst_ProjectFilter)
#include "tst_ProjectFilter.moc"
