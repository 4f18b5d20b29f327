// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/UploadNames.h"
#include "app/UploadTreeModel.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(QJsonValue)

namespace {

QJsonObject json(const char* text)
{
    return QJsonDocument::fromJson(text).object();
}

const char* const riverSurvey = R"({
    "id": "p1", "project_name": "River", "zz_new": true, "map_scale": 2000, "points": [],
    "blocks": [
        {"id": "b1", "survey_area_name": "North",
         "tasks": [{"id": "t1", "flight_task_name": "North-01"}, {"id": "t2"}]},
        {"id": "b2"}]})";

/// The rows below an index, as "name|value".
QStringList rowsOf(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row)
        rows.append(model.index(row, 0, parent).data().toString() + QLatin1Char('|')
                    + model.index(row, 1, parent).data().toString());
    return rows;
}

} // namespace

class tst_UploadTree : public QObject
{
    Q_OBJECT

private slots:
    void everyColumnHasAName_data();
    void everyColumnHasAName();
    void unknownKeyStays();
    void values_data();
    void values();
    void elementNames_data();
    void elementNames();
    void sizes_data();
    void sizes();
    void summaryCounts();
    void documentIsATree();
    void nothingIsMadeBeforeItIsOpened();
    void emptyDocument();
    void tipIsNoMarkup();
    void isASoundModel();
    void namesAreTranslated();

private:
    TestHome m_home;
};

void tst_UploadTree::everyColumnHasAName_data()
{
    QTest::addColumn<QString>("contents");
    QTest::newRow("project") << GetProjectTableContents();
    QTest::newRow("block") << GetSurveyAreaTableContents();
    QTest::newRow("task") << GetMissionTableContents();
    QTest::newRow("point") << GetMarkerPointTableContents();
}

void tst_UploadTree::everyColumnHasAName()
{
    QFETCH(QString, contents);
    auto column =
        QRegularExpression(QStringLiteral("(\\w+) (TEXT|INTEGER|REAL)")).globalMatch(contents);
    int columns = 0;
    while (column.hasNext()) {
        const QString key = column.next().captured(1);
        QVERIFY2(UploadNames::nameOf(key) != key, qPrintable(key));
        ++columns;
    }
    QVERIFY(columns >= 4);
}

void tst_UploadTree::unknownKeyStays()
{
    QCOMPARE(UploadNames::nameOf(QStringLiteral("zz_new")), QStringLiteral("zz_new"));
    QCOMPARE(UploadNames::nameOf(QString()), QString());
}

void tst_UploadTree::values_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("text") << QJsonValue("North bank") << "North bank";
    QTest::newRow("lines") << QJsonValue("a\nb") << "a b";
    QTest::newRow("number") << QJsonValue(120) << "120";
    QTest::newRow("fraction") << QJsonValue(0.25) << "0.25";
    QTest::newRow("true") << QJsonValue(true) << "true";
    QTest::newRow("null") << QJsonValue() << "";
    QTest::newRow("list") << QJsonValue(QJsonArray{1, 2, 3}) << "3";
    QTest::newRow("object") << QJsonValue(QJsonObject{{"a", 1}}) << "";
    QTest::newRow("block with tasks") << QJsonValue(json(R"({"tasks":[{},{}]})")) << "Tasks: 2";
    QTest::newRow("longest text shown whole") << QJsonValue(QString(160, 'x')) << QString(160, 'x');
    QTest::newRow("long text") << QJsonValue(QString(12345, 'x'))
                               << QString(24, 'x') + QString::fromUtf8("… (12,345 characters)");
}

void tst_UploadTree::values()
{
    QFETCH(QJsonValue, value);
    QTEST(UploadNames::valueText(value), "expected");
}

void tst_UploadTree::elementNames_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("expected");
    QTest::newRow("block") << "blocks"
                           << R"({"survey_area_name":"North"})"
                           << "North";
    QTest::newRow("task") << "tasks"
                          << R"({"flight_task_name":"N-01"})"
                          << "N-01";
    QTest::newRow("point") << "points"
                           << R"({"name":"Tower"})"
                           << "Tower";
    QTest::newRow("block without a name") << "blocks"
                                          << R"({"survey_area_name":""})"
                                          << "Block 7";
    QTest::newRow("task without a name") << "tasks"
                                         << "{}"
                                         << "Task 7";
    QTest::newRow("point without a name") << "points"
                                          << "{}"
                                          << "Point 7";
    QTest::newRow("other list") << "zz_new"
                                << "{}"
                                << "7";
}

void tst_UploadTree::elementNames()
{
    QFETCH(QString, list);
    QFETCH(QString, element);
    QTEST(UploadNames::elementName(list, json(element.toUtf8()), 7), "expected");
}

void tst_UploadTree::sizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << qint64(0) << "0 bytes";
    QTest::newRow("below a kilobyte") << qint64(999) << "999 bytes";
    QTest::newRow("kilobytes") << qint64(12'345) << "12.3 kB";
    QTest::newRow("megabytes") << qint64(20'000'000) << "20.0 MB";
}

void tst_UploadTree::sizes()
{
    QFETCH(qint64, bytes);
    QTEST(UploadNames::sizeText(bytes), "expected");
}

void tst_UploadTree::summaryCounts()
{
    QCOMPARE(UploadNames::summary(json(riverSurvey), 1234),
             QStringLiteral("Blocks: 2, tasks: 2, marker points: 0. Size: 1.2 kB."));
}

/// Names first, ids late, lists last.
void tst_UploadTree::documentIsATree()
{
    UploadTreeModel model(json(riverSurvey));
    QCOMPARE(rowsOf(model),
             QStringList({"Project name|River", "Map scale 1 :|2000", "Id|p1", "zz_new|true",
                          "Blocks|2", "Marker points|0"}));
    const QModelIndex blocks = model.index(4, 0);
    model.fetchMore(blocks);
    QCOMPARE(rowsOf(model, blocks), QStringList({"North|Tasks: 2", "Block 2|"}));
    const QModelIndex north = model.index(0, 0, blocks);
    model.fetchMore(north);
    QCOMPARE(rowsOf(model, north), QStringList({"Block name|North", "Id|b1", "Tasks|2"}));
    const QModelIndex tasks = model.index(2, 0, north);
    model.fetchMore(tasks);
    QCOMPARE(rowsOf(model, tasks), QStringList({"North-01|", "Task 2|"}));
    QCOMPARE(model.parent(model.index(1, 1, tasks)), tasks);
    QVERIFY(!model.hasChildren(model.index(5, 0)));
    QVERIFY(!model.hasChildren(model.index(0, 0)));
}

void tst_UploadTree::nothingIsMadeBeforeItIsOpened()
{
    UploadTreeModel model(json(riverSurvey));
    const QModelIndex blocks = model.index(4, 0);
    QVERIFY(model.hasChildren(blocks));
    QVERIFY(model.canFetchMore(blocks));
    QCOMPARE(model.rowCount(blocks), 0);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    model.fetchMore(blocks);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(model.rowCount(blocks), 2);
    QVERIFY(!model.canFetchMore(blocks));
    model.fetchMore(blocks);
    QCOMPARE(model.rowCount(blocks), 2);
    QCOMPARE(model.rowCount(model.index(0, 0, blocks)), 0);
}

void tst_UploadTree::emptyDocument()
{
    const UploadTreeModel model((QJsonObject()));
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.hasChildren());
}

void tst_UploadTree::tipIsNoMarkup()
{
    const UploadTreeModel model(json(R"({"project_name":"<b>&"})"));
    QCOMPARE(model.index(0, 1).data().toString(), QStringLiteral("<b>&"));
    QCOMPARE(model.index(0, 1).data(Qt::ToolTipRole).toString(),
             QStringLiteral("<qt>&lt;b&gt;&amp;"));
}

void tst_UploadTree::isASoundModel()
{
    UploadTreeModel model(json(riverSurvey));
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.fetchMore(model.index(4, 0));
    model.fetchMore(model.index(0, 0, model.index(4, 0)));
}

void tst_UploadTree::namesAreTranslated()
{
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QCOMPARE(UploadNames::nameOf(QStringLiteral("blocks")), QString::fromUtf8("测区"));
    HostSettings::installLanguage(QStringLiteral("en"));
    QCOMPARE(UploadNames::nameOf(QStringLiteral("blocks")), QStringLiteral("Blocks"));
}

QTEST_MAIN(tst_UploadTree)
#include "tst_UploadTree.moc"
