// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BlockPanel.h"
#include "app/ElidedLabel.h"
#include "app/HostSettings.h"
#include "app/ProjectContent.h"
#include "samples/SampleFile.h"
#include "support/TestSupport.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <memory>

namespace {

const QString user = QStringLiteral("user-1");

/// A project with an area that was flown and a strip without tasks.
SampleContent riverProject()
{
    const QDateTime day(QDate(2026, 3, 1), QTime(9, 30));
    SampleContent content;
    content.id = QStringLiteral("river");
    content.name = QStringLiteral("River Survey");
    content.userId = user;
    content.created = day;
    content.modified = day;
    content.mapScale = 2000;
    content.centre = PointLatLng(30.66, 104.06);
    SampleBlock area;
    area.id = QStringLiteral("north's"); // With a quote.
    area.name = QStringLiteral("North");
    area.cameraType = CameraTypeSingleLens42;
    area.planeType = PlaneTypeQuadrotor;
    area.type = BlockTypeArea;
    area.outline = QStringLiteral("30.1,104.1;30.2,104.1;30.2,104.2");
    area.tasks = {{QStringLiteral("t1"), QStringLiteral("North-01"), {day.addDays(2), day}},
                  {QStringLiteral("t2"), QString(), {}}};
    SampleBlock strip = area;
    strip.id = QStringLiteral("south");
    strip.name = QStringLiteral("South");
    strip.type = BlockTypeStrip;
    strip.tasks.clear();
    content.blocks = {area, strip};
    return content;
}

QStringList textsOf(const QTreeWidget& tree)
{
    QStringList texts;
    for (QTreeWidgetItemIterator item(const_cast<QTreeWidget*>(&tree)); *item; ++item)
        texts.append((*item)->text(0) + QLatin1Char('|') + (*item)->text(1));
    return texts;
}

} // namespace

/// The panel beside the map and what it is filled from.
class tst_BlockPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void contentOfAProject();
    void tasksAndFlights();
    void unknownBlockHasNoTasks();
    void missingFilesAreNotMade();
    void viewsAreNotAsked();
    void startsWithNothing();
    void showsWhatIsOpened();
    void showsNothingAgain();
    void longTextsAreCut();
    void textsAreNoMarkup();
    void languageChanges();

private:
    /// Writes the project and loads its blocks.
    CRkOpenedProjectInfo open(const SampleContent& content);
    static QString shown(const BlockPanel& panel, const QString& title);

    std::unique_ptr<TestHome> m_home;
};

void tst_BlockPanel::init()
{
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId(user);
    ClearBlocks();
}

CRkOpenedProjectInfo tst_BlockPanel::open(const SampleContent& content)
{
    const QString file = m_home->path() + QStringLiteral("/River.proj");
    CRkBlockManagerWidget page;
    if (!writeSampleFiles(file, content) || !page.LoadExistBlocks(file))
        return {};
    for (const SampleBlock& block : content.blocks)
        page.OpenBlock(block.id);
    return page.getOpenedProjectInfo();
}

/// The text beside a title.
QString tst_BlockPanel::shown(const BlockPanel& panel, const QString& title)
{
    for (const QLabel* label : panel.findChildren<QLabel*>()) {
        const auto* value = qobject_cast<ElidedLabel*>(label->buddy());
        if (value && label->text() == title)
            return value->wholeText();
    }
    return QStringLiteral("no such title");
}

void tst_BlockPanel::contentOfAProject()
{
    const CRkOpenedProjectInfo project = open(riverProject());
    const ProjectContent content = readProjectContent(project, QStringLiteral("south"));
    QCOMPARE(content.blocks.size(), 2);
    QCOMPARE(content.blocks[0].id, QStringLiteral("north's"));
    QCOMPARE(content.blocks[0].name, QStringLiteral("North"));
    QCOMPARE(content.blocks[0].outline, QPolygonF({{30.1, 104.1}, {30.2, 104.1}, {30.2, 104.2}}));
    QVERIFY(!content.blocks[0].isStrip);
    QVERIFY(content.blocks[1].isStrip);
    QVERIFY(content.tasks.isEmpty());
    QCOMPARE(content.aircraft, GetPlaneStringByType(PlaneTypeQuadrotor));
    QCOMPARE(content.camera, GetCameraStringByType(CameraTypeSingleLens42));
}

void tst_BlockPanel::tasksAndFlights()
{
    SampleContent river = riverProject();
    river.blocks[0].id = QStringLiteral("north");
    const ProjectContent content = readProjectContent(open(river), QStringLiteral("north"));
    QCOMPARE(content.tasks.size(), 2);
    QCOMPARE(content.tasks[0].name, QStringLiteral("North-01"));
    QCOMPARE(content.tasks[0].flightCount, 2);
    QCOMPARE(content.tasks[0].flights,
             (QStringList{QStringLiteral("2026-03-01 09:30:00"),
                          QStringLiteral("2026-03-03 09:30:00")}));
    QCOMPARE(content.tasks[1].name, QStringLiteral("t2"));
    QCOMPARE(content.tasks[1].flightCount, 0);
    QVERIFY(content.tasks[1].flights.isEmpty());
}

void tst_BlockPanel::unknownBlockHasNoTasks()
{
    const ProjectContent content = readProjectContent(open(riverProject()), QStringLiteral("x"));
    QCOMPARE(content.blocks.size(), 2);
    QVERIFY(content.tasks.isEmpty());
    QVERIFY(content.aircraft.isEmpty());
}

void tst_BlockPanel::missingFilesAreNotMade()
{
    CRkOpenedProjectInfo project = open(riverProject());
    const QString companion = CRkControl::GetFlightMissionFilePath(project.projectFilePath);
    QVERIFY(QFile::remove(companion));
    ProjectContent content = readProjectContent(project, QStringLiteral("north's"));
    QCOMPARE(content.tasks.size(), 2);
    QVERIFY(content.tasks[0].flights.isEmpty());
    QVERIFY(!QFile::exists(companion));
    project.projectFilePath = m_home->path() + QStringLiteral("/none.proj");
    content = readProjectContent(project, QStringLiteral("north's"));
    QVERIFY(content.blocks.isEmpty());
    QVERIFY(!QFile::exists(project.projectFilePath));
}

/// A view may stand where a table is expected, and never end.
void tst_BlockPanel::viewsAreNotAsked()
{
    const CRkOpenedProjectInfo project = open(riverProject());
    QVERIFY(runSql(project.projectFilePath,
                   {QStringLiteral("alter table survey_area rename to elsewhere"),
                    QStringLiteral("create view survey_area as select * from elsewhere")}));
    QVERIFY(readProjectContent(project, QStringLiteral("south")).blocks.isEmpty());
}

void tst_BlockPanel::startsWithNothing()
{
    BlockPanel panel;
    panel.show();
    QSignalSpy wanted(&panel, &BlockPanel::projectsWanted);
    QVERIFY(!panel.findChild<QTreeWidget*>()->isVisible());
    auto* open = panel.findChild<QPushButton*>(QStringLiteral("openProject"));
    QVERIFY(open->isVisible());
    open->click();
    QCOMPARE(wanted.size(), 1);
}

void tst_BlockPanel::showsWhatIsOpened()
{
    SampleContent river = riverProject();
    river.blocks[0].id = QStringLiteral("north");
    const CRkOpenedProjectInfo project = open(river);
    BlockPanel panel;
    panel.show();
    panel.showBlock(project, QStringLiteral("north"),
                    readProjectContent(project, QStringLiteral("north")));
    QStringList texts;
    for (const QLabel* label : panel.findChildren<QLabel*>())
        texts.append(label->text());
    QVERIFY(texts.contains(QStringLiteral("River Survey")));
    QVERIFY(texts.contains(QStringLiteral("North")));
    QVERIFY(texts.contains(QStringLiteral("Tasks: 2, flights: 2")));
    QCOMPARE(shown(panel, QStringLiteral("Scale")), QStringLiteral("1 : 2,000"));
    QCOMPARE(shown(panel, QStringLiteral("Centre")),
             QString::fromUtf8("30.66000° N  104.06000° E"));
    QCOMPARE(shown(panel, QStringLiteral("File")),
             QDir::toNativeSeparators(project.projectFilePath));
    QCOMPARE(shown(panel, QStringLiteral("Software version")), VANTRELL_VERSION);
    QCOMPARE(shown(panel, QStringLiteral("Aircraft")), GetPlaneStringByType(PlaneTypeQuadrotor));
    const auto* tree = panel.findChild<QTreeWidget*>();
    QVERIFY(tree->isVisible());
    QCOMPARE(textsOf(*tree),
             (QStringList{QStringLiteral("North-01|2"), QStringLiteral("2026-03-01 09:30:00|"),
                          QStringLiteral("2026-03-03 09:30:00|"), QStringLiteral("t2|0")}));
    QVERIFY(tree->topLevelItem(0)->isExpanded());
}

void tst_BlockPanel::showsNothingAgain()
{
    BlockPanel panel;
    panel.show();
    panel.showBlock({}, QStringLiteral("gone"), {});
    QVERIFY(panel.findChild<QTreeWidget*>()->isVisible());
    const QList<QLabel*> labels = panel.findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text() == QLatin1String("gone");
    }));
    panel.showNothing();
    QVERIFY(!panel.findChild<QTreeWidget*>()->isVisible());
}

void tst_BlockPanel::longTextsAreCut()
{
    BlockPanel panel;
    panel.setFixedWidth(340);
    panel.show();
    CRkOpenedProjectInfo project;
    project.projectFilePath = QStringLiteral("/") + QString(400, QLatin1Char('p'));
    project.projectName = QString(400, QLatin1Char('n'));
    panel.showBlock(project, {}, {});
    const QString path = QDir::toNativeSeparators(project.projectFilePath);
    for (const ElidedLabel* label : panel.findChildren<ElidedLabel*>()) {
        if (label->wholeText() != path)
            continue;
        QTRY_VERIFY(label->text().contains(QChar(0x2026)));
        QCOMPARE(label->toolTip(), path);
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
        return;
    }
    QFAIL("The file is not shown.");
}

void tst_BlockPanel::textsAreNoMarkup()
{
    BlockPanel panel;
    CRkOpenedProjectInfo project;
    project.projectName = QStringLiteral("<b>bold</b>");
    panel.showBlock(project, {}, {});
    for (const QLabel* label : panel.findChildren<QLabel*>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

void tst_BlockPanel::languageChanges()
{
    BlockPanel panel;
    CRkOpenedProjectInfo project;
    project.mapScale = 500;
    panel.showBlock(project, {}, {});
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(shown(panel, QString::fromUtf8("比例尺")), QStringLiteral("1 : 500"));
    HostSettings::installLanguage(QStringLiteral("en"));
    QTRY_COMPARE(shown(panel, QStringLiteral("Scale")), QStringLiteral("1 : 500"));
}

QTEST_MAIN(tst_BlockPanel)
#include "tst_BlockPanel.moc"
