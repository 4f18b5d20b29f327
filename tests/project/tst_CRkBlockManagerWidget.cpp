// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBlockManagerWidget.h>

#include "BlockFixture.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkBlockManagerTable.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>

#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

/// The page as a test sees it.
class Page : public CRkBlockManagerWidget
{
public:
    QString label(const QString& name) const { return findChild<QLabel*>(name)->text(); }
    QTreeWidget& tree() const { return *findChild<QTreeWidget*>("treeWidgetBlocks"); }
    QPushButton& button(const QString& name) const { return *findChild<QPushButton*>(name); }
    QLineEdit& searchText() const { return *findChild<QLineEdit*>("lineEditSearch"); }

    /// Blocks, tasks and flights.
    QString totals() const
    {
        return label("labelTotalBlockCount") + ' ' + label("labelTotalMissionCount") + ' '
            + label("labelTotalFlightCount");
    }
    QString names() const
    {
        QStringList names;
        for (int i = 0; i < tree().topLevelItemCount(); ++i)
            names.append(tree().topLevelItem(i)->text(0));
        return names.join(',');
    }
    QString row(int number) const
    {
        QStringList texts;
        for (int column = 0; column < 5; ++column)
            texts.append(tree().topLevelItem(number)->text(column));
        return texts.join(',');
    }
    void search(const QString& text)
    {
        searchText().setText(text);
        button("pushButtonSearch").click();
    }
};

int messages = 0;

void countMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    ++messages;
    fprintf(stdout, "printed: %s\n", qPrintable(text));
}

/// Loads, and verifies that nothing is printed.
bool loadSilently(Page& page, const QString& file)
{
    messages = 0;
    const QtMessageHandler handler = qInstallMessageHandler(countMessage);
    const bool loaded = page.LoadExistBlocks(file);
    qInstallMessageHandler(handler);
    return loaded && messages == 0;
}

BlockFixture hill()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "south", {{"t1", 2}, {"t2", 0}}, "VTOL Light", "Multispectral"},
                      {"b2", "north", {{"t3", 5}}},
                      {"b3", "bare"},
                      {"b4", "North", {{"t4", 1}}}};
    return fixture;
}

} // namespace

class tst_CRkBlockManagerWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void form();
    void layoutOrder_data();
    void layoutOrder();
    void texts_data();
    void texts();
    void styles();
    void labelsOfTheStatusBarAreDark();
    void load();
    void loadedBlocksStayInTheManager();
    void projectInfo();
    void projectNameIsPlainText();
    void modifiedTimeIsPlainText();
    void projectWithoutBlocks();
    void projectOfAnotherUser();
    void projectNameStaysWithoutAProject();
    void fileThatCannotBeOpened_data();
    void fileThatCannotBeOpened();
    void fileThatIsNoDatabase();
    void missingFlightFile();
    void flightFileThatIsNone();
    void secondLoadAppendsToTheSearch();
    void loadForgetsTheLastSearch();
    void blocksOfACopyShareOneId();
    void blockWhoseIdHoldsAQuote();
    void search_data();
    void search();
    void sameSearchTwice();
    void emptySearchAfterALoad();
    void searchLeavesSizeAndTime();
    void searchRunsOnTheClickAlone();
    void openBlock();
    void backAndOpenAreRelayed();
    void fileReplacedWhileOpen();
    void fileRemovedWhileOpen();
    void damagedFiles();
    void fiftyThousandBlocks();

private:
    const QString& root() const { return m_root; }

    std::unique_ptr<TestHome> m_home;
    QString m_root;
};

/// In a language that does not sort by code units.
void tst_CRkBlockManagerWidget::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English));
}

void tst_CRkBlockManagerWidget::init()
{
    ClearBlocks();
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
}

void tst_CRkBlockManagerWidget::form()
{
    const Page page;
    QCOMPARE(page.windowTitle(), QString("CRkBlockManagerWidget"));
    for (const char* name : {"widgetBlockManagerToolBar", "widgetBlockTable", "widgetStatusBar"})
        QVERIFY2(page.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly), name);
    QVERIFY(page.findChild<CRkBlockManagerTable*>("widgetBlockTable"));
    QCOMPARE(page.findChild<QFrame*>("line_2")->frameShape(), QFrame::VLine);
    const QPushButton& back = page.button("pushButtonBackToProjectManager");
    QCOMPARE(back.minimumSize(), QSize(72, 33));
    QCOMPARE(back.maximumSize(), QSize(72, 33));
    QVERIFY(!back.accessibleName().isEmpty());
    QVERIFY(!page.searchText().accessibleName().isEmpty());
    for (const QPushButton* button : page.findChildren<QPushButton*>())
        QVERIFY2(!button->autoDefault(), qPrintable(button->objectName()));
    QCOMPARE(page.getOpenedProjectInfo().mapScale, 0);
    QVERIFY(page.getOpenedProjectInfo().projectFilePath.isEmpty());
}

void tst_CRkBlockManagerWidget::layoutOrder_data()
{
    QTest::addColumn<QString>("names");
    QTest::newRow("CRkBlockManagerWidget")
        << "widgetBlockManagerToolBar widgetBlockTable widgetStatusBar";
    QTest::newRow("widgetBlockManagerToolBar")
        << "pushButtonBackToProjectManager labelProjectNameOpeningBlocks lineEditSearch "
           "pushButtonSearch";
    QTest::newRow("widgetStatusBar")
        << "label_7 labelSize label_6 labelModifiedTime line_2 label_3 labelTotalBlockCount "
           "label_4 labelTotalMissionCount label_5 labelTotalFlightCount";
}

void tst_CRkBlockManagerWidget::layoutOrder()
{
    const Page page;
    const auto* parent = page.findChild<QWidget*>(QTest::currentDataTag());
    const QLayout& layout = *(parent ? parent : &page)->layout();
    QStringList names;
    for (int i = 0; i < layout.count(); ++i) {
        if (const QWidget* widget = layout.itemAt(i)->widget())
            names.append(widget->objectName());
    }
    QTEST(names.join(' '), "names");
}

void tst_CRkBlockManagerWidget::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("label_7") << "Size : ";
    QTest::newRow("labelSize") << "";
    QTest::newRow("label_6") << "Modified Time : ";
    QTest::newRow("labelModifiedTime") << "";
    QTest::newRow("label_3") << "Block ount:";
    QTest::newRow("labelTotalBlockCount") << "0";
    QTest::newRow("label_4") << "Task count:";
    QTest::newRow("labelTotalMissionCount") << "0";
    QTest::newRow("label_5") << "Flight count:";
    QTest::newRow("labelTotalFlightCount") << "0";
}

void tst_CRkBlockManagerWidget::texts()
{
    QFETCH(QString, text);
    const Page page;
    QCOMPARE(page.label(QTest::currentDataTag()), text);
    QCOMPARE(page.findChild<QLabel*>(QTest::currentDataTag())->styleSheet(),
             QString("font-size:8pt;"));
}

void tst_CRkBlockManagerWidget::styles()
{
    const Page page;
    QCOMPARE(page.findChild<QLabel*>("labelProjectNameOpeningBlocks")->styleSheet(),
             QString("color: rgb(255, 255, 255);"));
    QCOMPARE(page.findChild<QWidget*>("widgetStatusBar")->styleSheet(),
             QString("background-color:rgb(255,255,255);"));
    QCOMPARE(page.button("pushButtonSearch").text(), QString("Search"));
    QVERIFY(page.button("pushButtonBackToProjectManager").text().isEmpty());
}

/// The status bar is white whatever the colours of the system.
void tst_CRkBlockManagerWidget::labelsOfTheStatusBarAreDark()
{
    const auto restore =
        qScopeGuard([palette = QApplication::palette()] { QApplication::setPalette(palette); });
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    const Page page;
    QCOMPARE(page.palette().color(QPalette::WindowText), QColor(Qt::white));
    const QList<QLabel*> labels =
        page.findChild<QWidget*>("widgetStatusBar")->findChildren<QLabel*>();
    QCOMPARE(labels.size(), 10);
    for (const QLabel* label : labels) {
        label->ensurePolished();
        QVERIFY2(label->palette().color(label->foregroundRole()).lightness() < 100,
                 qPrintable(label->objectName()));
    }
}

void tst_CRkBlockManagerWidget::load()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.names(), QString("north,North,south,bare"));
    QCOMPARE(page.row(1), QString("North,Quadrotor,Thermal,1,1"));
    QCOMPARE(page.row(2), QString("south,VTOL Light,Multispectral,2,2"));
    QCOMPARE(page.row(3), QString("bare,N/A,N/A,N/A,N/A"));
    QVERIFY(page.tree().topLevelItem(3)->isDisabled());
    QCOMPARE(page.totals(), QString("4 4 8"));
    QCOMPARE(page.label("labelProjectNameOpeningBlocks"), QString("Hill"));
    QCOMPARE(page.label("labelSize"), getHumanReadableFileSize(QFileInfo(file).size()));
    QCOMPARE(page.label("labelModifiedTime"), QString("2026/05/03 12:34"));
}

void tst_CRkBlockManagerWidget::loadedBlocksStayInTheManager()
{
    {
        Page page;
        QVERIFY(page.LoadExistBlocks(hill().write(root())));
    }
    const CRkBlock* block = CRkBlockManager::instance().GetBlock("b1");
    QVERIFY(block);
    QCOMPARE(block->GetMissionList()[0]->m_nFlightCount, 2);
}

void tst_CRkBlockManagerWidget::projectInfo()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    const CRkOpenedProjectInfo info = page.getOpenedProjectInfo();
    QCOMPARE(info.projectName, QString("Hill"));
    QCOMPARE(info.mapScale, 2000);
    QCOMPARE(info.centerLat, 30.66);
    QCOMPARE(info.centerLng, 104.06);
    QCOMPARE(info.projectFilePath, file);
    QCOMPARE(info.projectId, QString("id-of-Hill"));
    QCOMPARE(info.softwareVersion, QString("1.0.0"));

    QVERIFY(!page.LoadExistBlocks(root() + "none.proj"));
    QVERIFY2(page.getOpenedProjectInfo().projectFilePath.isEmpty(), "each load starts empty");
    QCOMPARE(page.getOpenedProjectInfo().mapScale, 0);
}

void tst_CRkBlockManagerWidget::projectNameIsPlainText()
{
    const QString file = hill().write(root());
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET project_name='<b>Hill</b>'"}));
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.findChild<QLabel*>("labelProjectNameOpeningBlocks")->textFormat(), Qt::PlainText);
    QVERIFY(runSql(
        file, {"UPDATE " + ProjectTableName + " SET project_name='" + QString(5000, 'W') + "'"}));
    page.show();
    QVERIFY(comesOnScreen(&page));
    QVERIFY(page.LoadExistBlocks(file));
    QCoreApplication::processEvents();
    QVERIFY2(page.minimumSizeHint().width() < 960, "a long name does not widen the page");
}

void tst_CRkBlockManagerWidget::modifiedTimeIsPlainText()
{
    const QString file = hill().write(root());
    Page page;
    page.resize(960, 568);
    page.show();
    QVERIFY(comesOnScreen(&page));
    QVERIFY(page.LoadExistBlocks(file));
    QCoreApplication::processEvents();
    const QSize smallest = page.minimumSizeHint();
    for (const QString& modified :
         {QString("<h1>big</h1>"), QString(5000, 'W'), QString("a\nb\nc")}) {
        QVERIFY(
            runSql(file, {"UPDATE " + ProjectTableName + " SET updated_at='" + modified + "'"}));
        QVERIFY(page.LoadExistBlocks(file));
        QCoreApplication::processEvents();
        QCOMPARE(page.label("labelModifiedTime"), modified);
        QCOMPARE(page.minimumSizeHint().height(), smallest.height());
        QCOMPARE(page.size(), QSize(960, 568));
    }
    QCOMPARE(page.findChild<QLabel*>("labelModifiedTime")->textFormat(), Qt::PlainText);
}

void tst_CRkBlockManagerWidget::projectWithoutBlocks()
{
    Page page;
    QVERIFY(page.LoadExistBlocks(BlockFixture{"Hill"}.write(root())));
    QCOMPARE(page.tree().topLevelItemCount(), 0);
    QCOMPARE(page.totals(), QString("0 0 0"));
}

void tst_CRkBlockManagerWidget::projectOfAnotherUser()
{
    BlockFixture other = hill();
    other.userId = "user-2";
    Page page;
    QVERIFY(page.LoadExistBlocks(other.write(root())));
    QCOMPARE(page.totals(), QString("0 0 0"));
    QVERIFY(page.getOpenedProjectInfo().projectFilePath.isEmpty());
    QVERIFY(page.getOpenedProjectInfo().projectId.isEmpty());

    // Blocks of no project are those of a project without an id; without its path, no task counts.
    QVERIFY(runSql(other.file(root()), {"UPDATE " + SurveyAreaTableName + " SET project_id=''"}));
    QVERIFY(page.LoadExistBlocks(other.file(root())));
    QCOMPARE(page.totals(), QString("4 0 0"));
    QVERIFY(page.tree().topLevelItem(0)->isDisabled());
}

void tst_CRkBlockManagerWidget::projectNameStaysWithoutAProject()
{
    BlockFixture other{"Dale"};
    other.userId = "user-2";
    const QString file = other.write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.label("labelProjectNameOpeningBlocks"), QString());
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    QVERIFY(page.LoadExistBlocks(file));
    QVERIFY2(page.label("labelProjectNameOpeningBlocks") == "Hill", "only a project sets the name");
    QVERIFY(page.getOpenedProjectInfo().projectName.isEmpty());
    QCOMPARE(page.label("labelSize"), getHumanReadableFileSize(QFileInfo(file).size()));
    QCOMPARE(page.label("labelModifiedTime"), QString());
    QCOMPARE(page.totals(), QString("0 0 0"));

    QVERIFY(
        runSql(file, {"UPDATE " + ProjectTableName + " SET user_id='user-1', project_name=NULL"}));
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.label("labelProjectNameOpeningBlocks"), QString());
}

void tst_CRkBlockManagerWidget::fileThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "Hill/none.proj";
    QTest::newRow("in no folder") << "none/none.proj";
    QTest::newRow("a folder") << "Hill";
    QTest::newRow("no name") << "";
}

void tst_CRkBlockManagerWidget::fileThatCannotBeOpened()
{
    QFETCH(QString, name);
    Page page;
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    const QString size = page.label("labelSize");
    QVERIFY(!page.LoadExistBlocks(name.isEmpty() ? QString() : root() + name));
    QCOMPARE(page.tree().topLevelItemCount(), 0);
    QVERIFY2(page.totals() == "4 4 8", "the labels stay");
    QCOMPARE(page.label("labelSize"), size);
    QCOMPARE(page.label("labelModifiedTime"), QString("2026/05/03 12:34"));
    QCOMPARE(page.label("labelProjectNameOpeningBlocks"), QString("Hill"));
    QVERIFY2(!QFileInfo(root() + name).isFile(), "nothing is made");
}

void tst_CRkBlockManagerWidget::fileThatIsNoDatabase()
{
    QVERIFY(writeFile(root() + "list.proj", QByteArray(2048, 'x')));
    Page page;
    QVERIFY(loadSilently(page, root() + "list.proj"));
    QCOMPARE(page.totals(), QString("0 0 0"));
    QCOMPARE(page.label("labelSize"), QString("2KB"));
    QCOMPARE(page.label("labelModifiedTime"), QString());
    QVERIFY(writeFile(root() + "empty.proj", QByteArray()));
    QVERIFY(loadSilently(page, root() + "empty.proj"));
    QCOMPARE(page.totals(), QString("0 0 0"));
    QCOMPARE(page.label("labelSize"), QString("0B"));
}

void tst_CRkBlockManagerWidget::missingFlightFile()
{
    const QString file = hill().write(root());
    QVERIFY(QFile::remove(flightsOf(file)));
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.totals(), QString("4 0 0"));
    QCOMPARE(page.names(), QString("bare,north,North,south"));
    for (int row = 0; row < 4; ++row) {
        QVERIFY(page.row(row).endsWith(",N/A,N/A,N/A,N/A"));
        QVERIFY(page.tree().topLevelItem(row)->isDisabled());
    }
    QVERIFY(!QFileInfo::exists(flightsOf(file)));
}

void tst_CRkBlockManagerWidget::flightFileThatIsNone()
{
    const QString file = hill().write(root());
    QVERIFY(writeFile(flightsOf(file), "Backup list of the field office, kept here by mistake."));
    Page page;
    QVERIFY(loadSilently(page, file));
    QCOMPARE(page.totals(), QString("4 4 0"));
    QCOMPARE(page.row(1), QString("North,Quadrotor,Thermal,1,0"));
}

void tst_CRkBlockManagerWidget::secondLoadAppendsToTheSearch()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QVERIFY(page.LoadExistBlocks(file));
    QVERIFY2(page.totals() == "4 4 8", "the table shows the last load");
    page.search("north");
    QVERIFY2(page.names() == "north,north", "a search looks at both");
    QCOMPARE(page.totals(), QString("2 2 10"));
}

void tst_CRkBlockManagerWidget::loadForgetsTheLastSearch()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    page.search("south");
    QCOMPARE(page.names(), QString("south"));
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.names(), QString("north,North,south,bare"));
    page.button("pushButtonSearch").click();
    QCOMPARE(page.names(), QString("south,south"));
}

void tst_CRkBlockManagerWidget::blocksOfACopyShareOneId()
{
    BlockFixture copy = hill();
    for (BlockFixture::Block& block : copy.blocks)
        block.id = "S";
    Page page;
    QVERIFY(page.LoadExistBlocks(copy.write(root())));
    QCOMPARE(page.totals(), QString("4 16 32"));
    QCOMPARE(page.row(2), QString("North,Quadrotor,Thermal,4,8"));
    QVERIFY2(page.row(0) == "bare,Quadrotor,Thermal,4,8", "each row counts what bears its id");
}

void tst_CRkBlockManagerWidget::blockWhoseIdHoldsAQuote()
{
    // The block itself is found, but the question for its tasks is broken by the quote. A task's
    // quote breaks the question for its flights alone.
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"it's", "block", {{"t1", 2}}}, {"b2", "task", {{"it's", 3}, {"t2", 4}}}};
    Page page;
    QVERIFY(page.LoadExistBlocks(fixture.write(root())));
    QCOMPARE(page.row(0), QString("task,Quadrotor,Thermal,2,4"));
    QCOMPARE(page.row(1), QString("block,N/A,N/A,N/A,N/A"));
    QCOMPARE(page.totals(), QString("2 2 4"));
    QVERIFY(page.OpenBlock("it's"));
}

void tst_CRkBlockManagerWidget::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("totals");
    QTest::newRow("a part of two names") << "th"
                                         << "north,North,south"
                                         << "3 4 8";
    QTest::newRow("capital letter") << "North"
                                    << "North"
                                    << "1 1 1";
    QTest::newRow("small letter") << "north"
                                  << "north"
                                  << "1 1 5";
    QTest::newRow("block without tasks") << "bar"
                                         << "bare"
                                         << "1 0 0";
    QTest::newRow("none") << "west"
                          << ""
                          << "0 0 0";
    QTest::newRow("blank counts") << "north "
                                  << ""
                                  << "0 0 0";
    QTest::newRow("no pattern") << "n.*"
                                << ""
                                << "0 0 0";
}

void tst_CRkBlockManagerWidget::search()
{
    QFETCH(QString, text);
    Page page;
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    page.search(text);
    QTEST(page.names(), "names");
    QTEST(page.totals(), "totals");
    page.search("");
    QCOMPARE(page.names(), QString("north,North,south,bare"));
    QCOMPARE(page.totals(), QString("4 4 8"));
    QVERIFY(page.tree().topLevelItem(3)->isDisabled());
}

void tst_CRkBlockManagerWidget::sameSearchTwice()
{
    Page page;
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    page.search("th");
    const QTreeWidgetItem* row = page.tree().topLevelItem(0);
    page.search("th");
    QCOMPARE(page.tree().topLevelItem(0), row);
}

void tst_CRkBlockManagerWidget::emptySearchAfterALoad()
{
    Page page;
    page.button("pushButtonSearch").click();
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    const QTreeWidgetItem* row = page.tree().topLevelItem(0);
    page.button("pushButtonSearch").click();
    QCOMPARE(page.tree().topLevelItem(0), row);
}

void tst_CRkBlockManagerWidget::searchLeavesSizeAndTime()
{
    Page page;
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    const QString size = page.label("labelSize");
    page.search("west");
    QCOMPARE(page.label("labelSize"), size);
    QCOMPARE(page.label("labelModifiedTime"), QString("2026/05/03 12:34"));
}

void tst_CRkBlockManagerWidget::searchRunsOnTheClickAlone()
{
    Page page;
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    page.show();
    QVERIFY(comesOnScreen(&page));
    QTest::keyClicks(&page.searchText(), "south");
    QTest::keyClick(&page.searchText(), Qt::Key_Return);
    QCOMPARE(page.tree().topLevelItemCount(), 4);
    QTest::mouseClick(&page.button("pushButtonSearch"), Qt::LeftButton);
    QCOMPARE(page.names(), QString("south"));
}

void tst_CRkBlockManagerWidget::openBlock()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(!page.OpenBlock("b1"));
    QVERIFY(page.LoadExistBlocks(file));
    QVERIFY(!page.OpenBlock("unknown"));
    const CRkTask* task = CRkBlockManager::instance().GetBlock("b1")->GetMissionList()[1];
    QVERIFY(runSql(
        flightsOf(file),
        {"INSERT INTO " + FlightMissionTableName + " (id, flight_task_id) VALUES ('f', 't2')"}));
    QVERIFY(page.OpenBlock("b1"));
    QCOMPARE(task->m_nFlightCount, 1);
    QVERIFY2(page.totals() == "4 4 8", "the page shows what it loaded");

    QVERIFY(QFile::remove(flightsOf(file)));
    QVERIFY(page.OpenBlock("b1"));
    QCOMPARE(task->m_nFlightCount, 1);
    QVERIFY(!QFileInfo::exists(flightsOf(file)));
}

void tst_CRkBlockManagerWidget::backAndOpenAreRelayed()
{
    Page page;
    QVERIFY(page.LoadExistBlocks(hill().write(root())));
    QSignalSpy back(&page, &CRkBlockManagerWidget::backToProjectView);
    QSignalSpy opened(&page, &CRkBlockManagerWidget::blockOpened);
    page.button("pushButtonBackToProjectManager").click();
    QCOMPARE(back.size(), 1);
    emit page.tree().itemDoubleClicked(page.tree().topLevelItem(2), 1);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened[0][0].toString(), QString("b1"));
    emit page.tree().itemDoubleClicked(page.tree().topLevelItem(3), 1);
    QCOMPARE(opened.size(), 1);
}

void tst_CRkBlockManagerWidget::fileReplacedWhileOpen()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QVERIFY(QFile::remove(file));
    QVERIFY(QFile::remove(flightsOf(file)));
    BlockFixture other = hill();
    other.id = "another id";
    other.blocks = {{"n1", "new", {{"m1", 1}}}};
    QCOMPARE(other.write(root()), file);

    page.search("th");
    QVERIFY2(page.names() == "north,North,south", "a search needs no file");
    QVERIFY(page.OpenBlock("b1"));
    QCOMPARE(CRkBlockManager::instance().GetBlock("b1")->GetMissionList()[0]->m_nFlightCount, 0);
    QVERIFY(page.LoadExistBlocks(file));
    QCOMPARE(page.names(), QString("new"));
    QCOMPARE(page.getOpenedProjectInfo().projectId, QString("another id"));
}

void tst_CRkBlockManagerWidget::fileRemovedWhileOpen()
{
    const QString file = hill().write(root());
    Page page;
    QVERIFY(page.LoadExistBlocks(file));
    QVERIFY(QDir(root() + "Hill").removeRecursively());
    QVERIFY(page.OpenBlock("b1"));
    page.search("th");
    QCOMPARE(page.names(), QString("north,North,south"));
    QVERIFY(!page.LoadExistBlocks(file));
    QCOMPARE(page.tree().topLevelItemCount(), 0);
    QVERIFY(!QFileInfo::exists(root() + "Hill"));
    page.button("pushButtonSearch").click();
    QVERIFY2(page.names() == "north,North,south", "a load that fails forgets the search, too");
    page.search("south");
    QVERIFY2(page.names() == "south", "what was loaded before is still found");
}

void tst_CRkBlockManagerWidget::damagedFiles()
{
    const QString file = hill().write(root());
    const QByteArray project = readFile(file);
    const QByteArray flights = readFile(flightsOf(file));
    QRandomGenerator random(20261121);
    const auto damaged = [&](QByteArray content) {
        for (int flips = 1 << random.bounded(9); flips > 0; --flips)
            content[random.bounded(content.size())] = char(random.bounded(256));
        if (random.bounded(4) == 0)
            content.truncate(random.bounded(content.size()));
        return content;
    };
    Page page;
    int sound = 0;
    for (int i = 0; i < 500; ++i) {
        ClearBlocks();
        QVERIFY(writeFile(file, i % 3 == 0 ? project : damaged(project)));
        QVERIFY(writeFile(flightsOf(file), i % 3 == 1 ? flights : damaged(flights)));
        QVERIFY(loadSilently(page, file));
        QCOMPARE(page.tree().topLevelItemCount(), page.label("labelTotalBlockCount").toInt());
        for (const char* id : {"b1", "b2", "b3", "b4"})
            QCOMPARE(page.OpenBlock(id), CRkBlockManager::instance().GetBlock(id) != nullptr);
        sound += page.tree().topLevelItemCount() == 4 ? 1 : 0;
    }
    QVERIFY(sound > 100 && sound < 500);
}

void tst_CRkBlockManagerWidget::fiftyThousandBlocks()
{
    constexpr int count = 50000;
    const QString file = BlockFixture{"large"}.write(root());
    const QString numbers = " WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n LIMIT "
        + QString::number(count) + ") SELECT ";
    QVERIFY(runSql(file,
                   {"INSERT INTO " + SurveyAreaTableName
                        + " (survey_area_guid, project_id, survey_area_name, plane_type)" + numbers
                        + "'b' || i, 'id-of-large', 'block ' || i, 'Hexarotor' FROM n",
                    // Every other block points to a task of another file.
                    "INSERT INTO " + MissionTableName + " (flight_task_guid, survey_block_id)"
                        + numbers + "'t' || i, 'b' || (i * 2) FROM n"}));
    Page page;
    QVERIFY(loadSilently(page, file));
    QCOMPARE(page.totals(), QString("50000 25000 0"));
    QCOMPARE(page.row(0), QString("block 10,Hexarotor,Single Lens 24 MP,1,0"));
    QCOMPARE(page.row(count - 1), QString("block 9999,N/A,N/A,N/A,N/A"));
    page.button("pushButtonAirplaneType").click();
    QCOMPARE(page.tree().topLevelItemCount(), count);
    page.search("12345");
    QCOMPARE(page.names(), QString("block 12345"));
}

QTEST_MAIN(tst_CRkBlockManagerWidget)
#include "tst_CRkBlockManagerWidget.moc"
