// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What a person does with the project manager, from the first look at the projects to the block
// that the host receives, with mouse and keyboard alone.

#include <RkBaseUI/CRkProjectManagerDialog.h>

#include "BlockFixture.h"
#include "ProjectFixture.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkMessageBox.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <RkBaseUI/SharedHelpers.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QCursor>
#include <QDirIterator>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

using Tile = CRkGraphicsProjectRectItem;

void click(const QWidget& widget, QPoint at)
{
    const QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, at));
}

void click(const QWidget& widget)
{
    click(widget, widget.rect().center());
}

void doubleClick(const QWidget& widget, QPoint at)
{
    const QWidget* window = widget.window();
    const QPoint place = widget.mapTo(window, at);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, place);
}

void clickButton(const QWidget& widget, const QString& text)
{
    const QList<QPushButton*> buttons = widget.findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&text](const auto* button) { return button->text() == text; });
    QVERIFY2(found != buttons.end(), qPrintable(text));
    click(**found);
}

/// The content of every file below a folder, by its path there.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator file(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString path = file.next();
        files.insert(path.mid(folder.size()), readFile(path));
    }
    return files;
}

/// Clicks a button of every message that comes up while the object lives, and notes its texts.
class Answerer : public QObject
{
public:
    Answerer() { qApp->installEventFilter(this); }

    QStringList messages;
    QString button = QStringLiteral("m_pBtnOK");

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<CRkMessageBox*>(watched);
        if (box && event->type() == QEvent::Show)
            QTimer::singleShot(0, box, [this, box] { answer(*box); });
        return false;
    }

private:
    void answer(CRkMessageBox& box)
    {
        messages.append(box.windowTitle() + ": " + box.findChild<QLabel*>("TextMsg")->text());
        if (comesOnScreen(&box))
            click(*box.findChild<QPushButton*>(button));
        else
            box.reject();
    }
};

/// The dialog as a person has it before himself.
class Dialog : public CRkProjectManagerDialog
{
public:
    template <typename T>
    T& part(const char* name) const
    {
        return *findChild<T*>(QString::fromLatin1(name));
    }
    void press(const char* button) const { click(part<QPushButton>(button)); }
    QString label(const char* name) const { return part<QLabel>(name).text(); }
    QString page() const
    {
        return part<QStackedWidget>("stackedWidget").currentWidget()->objectName();
    }

    /// Keys go to what has the focus.
    void type(const char* text) const
    {
        for (; *text; ++text)
            QTest::keyClick(windowHandle(), *text);
    }
    void type(Qt::Key key) const { QTest::keyClick(windowHandle(), key); }
    void selectAllText() const { QTest::keyClick(windowHandle(), Qt::Key_A, Qt::ControlModifier); }

    CRkProjectManagerView& view() const
    {
        return *getProjectManagerWidget()->getProjectManagerView();
    }
    Tile* tile(const QString& name) const
    {
        for (QGraphicsItem* item : view().scene()->items()) {
            auto* tile = dynamic_cast<Tile*>(item);
            if (tile && tile->GetProjectName() == name)
                return tile;
        }
        return nullptr;
    }
    QPoint placeOf(const QString& name, QPointF inTile) const
    {
        return view().mapFromScene(tile(name)->mapToScene(inTile));
    }
    void clickThumbnail(const QString& name) const
    {
        click(*view().viewport(), placeOf(name, {60, 60}));
    }
    void clickCaption(const QString& name) const
    {
        click(*view().viewport(), placeOf(name, {100, 160}));
    }
    QImage caption(const QString& name) const
    {
        return view().viewport()->grab(QRect(placeOf(name, {5, 148}), QSize(190, 32))).toImage();
    }
    void openProject(const QString& name) const
    {
        doubleClick(*view().viewport(), placeOf(name, {60, 60}));
    }

    QTreeWidget& blocks() const { return part<QTreeWidget>("treeWidgetBlocks"); }
    void openBlock(int row) const
    {
        doubleClick(*blocks().viewport(),
                    blocks().visualItemRect(blocks().topLevelItem(row)).center());
    }
    QString blockNames() const
    {
        QStringList names;
        for (int i = 0; i < blocks().topLevelItemCount(); ++i)
            names.append(blocks().topLevelItem(i)->text(0));
        return names.join(' ');
    }
    /// The name of the block in a row, as it is painted.
    QImage blockPicture(int row) const
    {
        QRect area = blocks().visualItemRect(blocks().topLevelItem(row));
        area.setWidth(blocks().columnWidth(0));
        return blocks().viewport()->grab(area).toImage();
    }

    /// The names of the projects in reading order, each found on the screen by the colour of its
    /// thumbnail: the left half of the picture at the tile's place. "?" for any other colour.
    QStringList seen(const QMap<QRgb, QString>& nameOfColour) const
    {
        const QImage screen = view().viewport()->grab().toImage();
        QStringList names;
        while (true) {
            const int index = names.size();
            const QPoint at =
                view().mapFromScene(45 + index % 4 * 210, 70 + index / 4 * 220); // Four in a row.
            if (!screen.rect().contains(at) || screen.pixel(at) == qRgb(240, 240, 240))
                return names;
            names.append(nameOfColour.value(screen.pixel(at), QStringLiteral("?")));
        }
    }
};

constexpr QRgb red = qRgb(200, 40, 40);
constexpr QRgb green = qRgb(40, 160, 60);
constexpr QRgb blue = qRgb(50, 80, 200);
constexpr QRgb yellow = qRgb(220, 200, 30);

} // namespace

class tst_MainFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup();

    void wholeFlow();

private:
    void filterByCity();
    void filterByDate();
    void filterByDateRange();
    void filterByKeyword();
    void createProject();
    void renameProject();
    void copyProject();
    void deleteProject();
    void openProject();
    void searchBlocks();
    void sortBlocks();
    void goBack();
    void openBlock();

    /// A text of the library in the language of the row.
    static QString text(const char* context, const char* source)
    {
        return QCoreApplication::translate(context, source);
    }
    QString file(const QString& name) const { return m_root + name + '/' + name + ProjectSuffix; }
    QString newName() const { return text("CRkProjectManagerView", "New Project"); }
    QString copyName() const { return text("CRkProjectManagerView", "copy of ") + "River"; }
    QString all() const { return text("CRkCityDateFilterWidget", "All"); }
    QString noDate() const { return text("CRkCityDateFilterWidget", "Date"); }

    void writeProjects() const;
    void show();
    void listenTo(Dialog& dialog);
    void bringToFront() const;
    QWidget* openPopup(const char* button) const;
    static void clickDay(const QWidget& page, QDate day);

    QStringList seen() const { return m_dialog->seen(m_names); }
    QStringList seenSorted() const
    {
        QStringList names = seen();
        names.sort();
        return names;
    }
    /// What was told since the last call, in order.
    QStringList takeTold() { return std::exchange(m_told, {}); }
    static QString filtered(const QString& city, const QString& date, const QString& keyword)
    {
        return QStringList{"filtered", city, date, QString(), keyword}.join('|');
    }
    /// Whether no file has changed since the last step that changes any.
    bool filesAreUntouched() const { return filesBelow(m_root) == m_files; }

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<Answerer> m_answers;
    std::unique_ptr<Dialog> m_dialog;
    const QMap<QRgb, QString> m_names = {
        {red, "Hill"}, {green, "River"}, {blue, "Port"}, {yellow, "Field"}};
    const QStringList m_everything = {"Field", "Hill", "Port", "River"};
    QString m_root;
    QDateTime m_now;
    QStringList m_told;
    QMap<QString, QByteArray> m_files;
    QVector<QImage> m_blockPictures;
    CRkOpenedProjectInfo m_received;
};

void tst_MainFlow::initTestCase_data()
{
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("title");
    QTest::newRow("English") << QString() << "Open Project";
    QTest::newRow("Chinese") << QStringLiteral("RkBaseUI_zh_CN")
                             << QStringLiteral("\u6253\u5f00\u9879\u76ee");
}

void tst_MainFlow::init()
{
    QFETCH_GLOBAL(QString, translation);
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
    m_now = QDateTime::currentDateTime();
    if (!translation.isEmpty()) {
        m_translator.reset(CreateTranslator(translation));
        QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
    }
    m_answers = std::make_unique<Answerer>();
    writeProjects();
    m_files = filesBelow(m_root);
    show();
}

void tst_MainFlow::cleanup()
{
    m_dialog.reset();
    m_answers.reset();
    m_translator.reset();
    m_home.reset();
}

void tst_MainFlow::writeProjects() const
{
    const auto daysAgo = [this](int days) {
        return m_now.addDays(-days).toString(DateTimeSFormat);
    };
    ProjectFixture hill{"Hill"};
    hill.imageData = thumbnailText(red);
    hill.modified = daysAgo(50);
    ProjectFixture river{"River"};
    river.imageData = thumbnailText(green);
    river.modified = daysAgo(20);
    river.outlines.append(squareAround(30.66, 104.06)); // Chengdu.
    ProjectFixture port{"Port"};
    port.imageData = thumbnailText(blue);
    port.modified = daysAgo(0);
    port.outlines.append(squareAround(39.9, 116.4)); // Beijing.
    for (const ProjectFixture& project : {hill, river, port})
        QVERIFY(!project.write(m_root).isEmpty());

    BlockFixture field{"Field"};
    field.modified = daysAgo(200);
    field.blocks = {{"b1", "south", {{"t1", 2}}},
                    {"b2", "north", {{"t2", 5}, {"t3", 0}}, "VTOL Light"}};
    const QString file = field.write(m_root);
    QVERIFY(runSql(file,
                   {"UPDATE " + ProjectTableName + " SET image_data='"
                    + QString::fromLatin1(thumbnailText(yellow)) + '\''}));
}

void tst_MainFlow::show()
{
    m_dialog = std::make_unique<Dialog>();
    listenTo(*m_dialog);
    m_dialog->getProjectManagerWidget()->loadDefaultContiditions();
    m_dialog->move(100, 100);
    m_dialog->show();
    bringToFront();
}

/// As a window manager does after a popup or a message.
void tst_MainFlow::bringToFront() const
{
    QCursor::pos(); // Asks the display, which tells before it answers where the focus has gone.
    QCoreApplication::processEvents();
    m_dialog->activateWindow();
    QVERIFY(comesToFront(m_dialog.get()));
}

void tst_MainFlow::listenTo(Dialog& dialog)
{
    m_told.clear();
    m_received = {};
    const CRkProjectManagerWidget* page = dialog.getProjectManagerWidget();
    connect(page, &CRkProjectManagerWidget::filterConditionChanged, this,
            [this](const QString& city, const QString& date, const QString& source,
                   const QString& keyword) {
                m_told.append(QStringList{"filtered", city, date, source, keyword}.join('|'));
            });
    connect(&dialog.view(), &CRkProjectManagerView::projectRenamed, this,
            [this] { m_told.append("renamed"); });
    connect(&dialog.view(), &CRkProjectManagerView::projectCopied, this,
            [this] { m_told.append("copied"); });
    connect(&dialog, &CRkProjectManagerDialog::projectOpened, this,
            [this](const QString& project) { m_told.append("project " + project); });
    connect(&dialog, &CRkProjectManagerDialog::backToProjectView, this,
            [this] { m_told.append("back"); });
    // As a host does.
    connect(&dialog, &CRkProjectManagerDialog::blockOpened, this,
            [this, &dialog](const QString& block) {
                m_told.append("block " + block);
                m_received = dialog.getOpenedProjectInfo();
                dialog.accept();
            });
}

QWidget* tst_MainFlow::openPopup(const char* button) const
{
    m_dialog->press(button);
    QWidget* popup = QApplication::activePopupWidget();
    return popup && comesOnScreen(popup) ? popup : nullptr;
}

/// Turns the pages of the date popup's calendar to the day and clicks on it.
void tst_MainFlow::clickDay(const QWidget& page, QDate day)
{
    const auto* calendar = page.findChild<QCalendarWidget*>("m_pCalendarWidget");
    const auto shown = [calendar] {
        return QDate(calendar->yearShown(), calendar->monthShown(), 1);
    };
    const QDate month(day.year(), day.month(), 1);
    for (int turns = 0; shown() != month && turns < 4; ++turns) {
        click(*page.findChild<QToolButton*>(shown() > month ? "qt_calendar_prevmonth"
                                                            : "qt_calendar_nextmonth"));
    }
    QCOMPARE(shown(), month);
    const auto* days = calendar->findChild<QTableView*>();
    const QAbstractItemModel& model = *days->model();
    bool inMonth = false; // From the first 1 on; before it stand days of the month before.
    for (int row = 1; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            const int number = index.data().toInt();
            inMonth = inMonth || number == 1;
            if (inMonth && number == day.day()) {
                click(*days->viewport(), days->visualRect(index).center());
                return;
            }
        }
    }
    QFAIL("The calendar does not show that day.");
}

void tst_MainFlow::wholeFlow()
{
    QFETCH_GLOBAL(QString, title);
    QCOMPARE(m_dialog->windowTitle(), title);
    QCOMPARE(m_dialog->label("labelTitle"), title);
    QCOMPARE(m_dialog->label("m_pLblCity"), all());
    QCOMPARE(m_dialog->label("m_pLblDate"), noDate());
    QCOMPARE(takeTold(), QStringList{filtered(all(), noDate(), "")});
    QCOMPARE(seenSorted(), m_everything);
    QVERIFY(filesAreUntouched());

    using Flow = tst_MainFlow;
    for (const auto step :
         {&Flow::filterByCity, &Flow::filterByDate, &Flow::filterByDateRange,
          &Flow::filterByKeyword, &Flow::createProject, &Flow::renameProject, &Flow::copyProject,
          &Flow::deleteProject, &Flow::openProject, &Flow::searchBlocks, &Flow::sortBlocks,
          &Flow::goBack, &Flow::openBlock}) {
        bringToFront();
        (this->*step)();
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_MainFlow::filterByCity()
{
    const QString chengdu = text("CRkCitySelectWidget", "Chengdu");
    const QWidget* cities = openPopup("m_pBtnCitySelect");
    QVERIFY(cities);
    clickButton(*cities, chengdu);
    QVERIFY(!cities->isVisible());
    QVERIFY(!m_dialog->part<QPushButton>("m_pBtnCitySelect").isChecked());
    QCOMPARE(m_dialog->label("m_pLblCity"), chengdu);
    QCOMPARE(takeTold(), QStringList{filtered(chengdu, noDate(), "")});
    QCOMPARE(seen(), QStringList{"River"});
    QVERIFY(filesAreUntouched());

    QVERIFY(openPopup("m_pBtnCitySelect"));
    clickButton(*cities, text("CRkCitySelectWidget", "All"));
    QCOMPARE(takeTold(), QStringList{filtered(all(), noDate(), "")});
    QCOMPARE(seenSorted(), m_everything);
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::filterByDate()
{
    const QWidget* dates = openPopup("m_pBtnDateSelect");
    QVERIFY(dates);
    click(*dates->findChild<QPushButton*>("pushButtonLastWeek"));
    QVERIFY(!dates->isVisible());
    QVERIFY(!m_dialog->part<QPushButton>("m_pBtnDateSelect").isChecked());
    const QString week = m_dialog->label("m_pLblDate");
    const QDate last = QDate::fromString(week.right(10), DateFormat);
    QVERIFY(last == m_now.date() || last == QDate::currentDate());
    QCOMPARE(week,
             text("CRkDateSelectWidget", "%1 to %2")
                 .arg(last.addDays(-7).toString(DateFormat), last.toString(DateFormat)));
    QCOMPARE(takeTold(), QStringList{filtered(all(), week, "")});
    QCOMPARE(seen(), QStringList{"Port"});
    QVERIFY(filesAreUntouched());

    QVERIFY(openPopup("m_pBtnDateSelect"));
    click(*dates->findChild<QPushButton*>("pushButtonAll"));
    QCOMPARE(m_dialog->label("m_pLblDate"), noDate());
    QCOMPARE(takeTold(), QStringList{filtered(all(), noDate(), "")});
    QCOMPARE(seenSorted(), m_everything);
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::filterByDateRange()
{
    const QDate hillDay = m_now.date().addDays(-50);
    const QDate riverDay = m_now.date().addDays(-20);
    const QWidget* dates = openPopup("m_pBtnDateSelect");
    QVERIFY(dates);
    const auto* from = dates->findChild<QLineEdit*>("lineEditDateFrom");
    const auto* to = dates->findChild<QLineEdit*>("lineEditDateTo");
    click(*from);
    clickDay(*dates, hillDay);
    QCOMPARE(from->text(), hillDay.toString(DateFormat));
    click(*to);
    clickDay(*dates, riverDay);
    QCOMPARE(to->text(), riverDay.toString(DateFormat));
    QCOMPARE(takeTold(), QStringList());
    click(*dates->findChild<QPushButton*>("pushButtonDateRangeOk"));
    QVERIFY(!dates->isVisible());
    const QString range = text("CRkDateSelectWidget", "%1 to %2").arg(from->text(), to->text());
    QCOMPARE(m_dialog->label("m_pLblDate"), range);
    QCOMPARE(takeTold(), QStringList{filtered(all(), range, "")});
    QCOMPARE(seenSorted(), QStringList({"Hill", "River"}));
    QVERIFY(filesAreUntouched());

    QVERIFY(openPopup("m_pBtnDateSelect"));
    click(*dates->findChild<QPushButton*>("pushButtonAll"));
    QCOMPARE(takeTold(), QStringList{filtered(all(), noDate(), "")});
    QCOMPARE(seenSorted(), m_everything);
}

void tst_MainFlow::filterByKeyword()
{
    click(*m_dialog->getProjectManagerWidget()->findChild<QLineEdit*>("lineEditSearch"));
    m_dialog->type("R");
    QCOMPARE(takeTold(), QStringList{filtered(all(), noDate(), "R")});
    QCOMPARE(seenSorted(), QStringList({"Port", "River"}));
    m_dialog->type("i");
    QCOMPARE(takeTold(), QStringList{filtered(all(), noDate(), "Ri")});
    QCOMPARE(seen(), QStringList{"River"});
    m_dialog->type("'%");
    QCOMPARE(takeTold(),
             QStringList({filtered(all(), noDate(), "Ri'"), filtered(all(), noDate(), "Ri'%")}));
    QCOMPARE(seen(), QStringList());
    for (int i = 0; i < 4; ++i)
        m_dialog->type(Qt::Key_Backspace);
    QCOMPARE(takeTold().size(), 4);
    QCOMPARE(seenSorted(), m_everything);
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::createProject()
{
    m_dialog->press("pushButtonNewProject");
    QVERIFY(m_dialog->tile(newName()));
    QCOMPARE(seen().mid(4), QStringList{"?"}); // The picture of projects without one.
    QCOMPARE(takeTold(), QStringList());
    QVERIFY(m_answers->messages.isEmpty());
    QCOMPARE(readSql(file(newName()), "select project_name from " + ProjectTableName),
             QStringList{newName()});
    QMap<QString, QByteArray> others = filesBelow(m_root);
    QCOMPARE(others.remove(file(newName()).mid(m_root.size())), 1);
    QCOMPARE(others, m_files);
    m_files = filesBelow(m_root);
}

void tst_MainFlow::renameProject()
{
    const QImage caption = m_dialog->caption(newName());
    m_dialog->clickCaption(newName());
    m_dialog->selectAllText();
    m_dialog->type("Dale 2");
    QVERIFY(filesAreUntouched()); // Not before the end.
    m_dialog->type(Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_dialog->tile("Dale 2"));
    QVERIFY(!m_dialog->tile(newName()));
    QVERIFY(m_dialog->caption("Dale 2") != caption);
    QCOMPARE(seen().mid(4), QStringList{"?"});
    QCOMPARE(takeTold(), QStringList{"renamed"});
    QVERIFY(m_answers->messages.isEmpty());
    QCOMPARE(readSql(file("Dale 2"), "select project_name from " + ProjectTableName),
             QStringList{"Dale 2"});
    QMap<QString, QByteArray> others = filesBelow(m_root);
    QCOMPARE(others.remove(file("Dale 2").mid(m_root.size())), 1);
    QCOMPARE(m_files.remove(file(newName()).mid(m_root.size())), 1);
    QCOMPARE(others, m_files);
    m_files = filesBelow(m_root);
}

void tst_MainFlow::copyProject()
{
    m_dialog->clickThumbnail("River");
    QVERIFY(m_dialog->tile("River")->isSelected());
    m_dialog->press("m_pCopyProjectBtn");
    // The page, which filters then, is told of the copy before this test.
    QCOMPARE(takeTold(), QStringList({filtered(all(), noDate(), ""), "copied"}));
    QVERIFY(m_answers->messages.isEmpty());
    QVERIFY(m_dialog->tile(copyName()));
    QCOMPARE(seen().mid(4), QStringList({"?", "River"}));
    QCOMPARE(seen().count("River"), 2);
    QCOMPARE(readSql(file(copyName()), "select project_name from " + ProjectTableName),
             QStringList{copyName()});
    QMap<QString, QByteArray> others = filesBelow(m_root);
    QCOMPARE(others.remove(file(copyName()).mid(m_root.size())), 1);
    QCOMPARE(others, m_files);
    m_files = filesBelow(m_root);
}

void tst_MainFlow::deleteProject()
{
    const QString title = text("CRkProjectManagerView", "Delete Project");
    const QString question = title + ": " + text("CRkProjectManagerView", "confirm delete \"")
        + "Hill" + text("CRkProjectManagerView", "\"?");
    m_dialog->clickThumbnail("Hill");
    m_answers->button = "m_pBtnCancel";
    m_dialog->press("m_pDeleteProjectBtn");
    QCOMPARE(m_answers->messages, QStringList{question});
    QVERIFY(seen().contains("Hill"));
    QVERIFY(filesAreUntouched());

    m_answers->button = "m_pBtnOK";
    m_dialog->press("m_pDeleteProjectBtn");
    QCOMPARE(m_answers->messages, QStringList({question, question}));
    QCOMPARE(takeTold(), QStringList());
    QVERIFY(!m_dialog->tile("Hill"));
    QCOMPARE(seenSorted(), QStringList({"?", "Field", "Port", "River", "River"}));
    QCOMPARE(m_files.remove(file("Hill").mid(m_root.size())), 1);
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::openProject()
{
    m_dialog->openProject("Field");
    QCOMPARE(takeTold(), QStringList{"project " + file("Field")});
    QCOMPARE(m_dialog->page(), QString("pageBlockManager"));
    QCOMPARE(m_dialog->GetProjectName(), QString("Field"));
    QCOMPARE(m_dialog->getOpenedProjectInfo().projectFilePath, file("Field"));
    QCOMPARE(m_dialog->label("labelProjectNameOpeningBlocks"), QString("Field"));
    QCOMPARE(m_dialog->blocks().headerItem()->text(0), text("CRkBlockManagerTable", "Block Name"));
    QCOMPARE(m_dialog->blockNames(), QString("north south"));
    QCOMPARE(m_dialog->label("labelTotalBlockCount"), QString("2"));
    QCOMPARE(m_dialog->label("labelTotalMissionCount"), QString("3"));
    QCOMPARE(m_dialog->label("labelTotalFlightCount"), QString("7"));
    m_blockPictures = {m_dialog->blockPicture(0), m_dialog->blockPicture(1)};
    QVERIFY(m_blockPictures[0] != m_blockPictures[1]);
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::searchBlocks()
{
    const auto* page = m_dialog->findChild<QWidget*>("pageBlockManager");
    const auto& keyword = *page->findChild<QLineEdit*>("lineEditSearch");
    const auto& search = *page->findChild<QPushButton*>("pushButtonSearch");
    click(keyword);
    m_dialog->type("sou");
    click(search);
    QCOMPARE(m_dialog->blockNames(), QString("south"));
    QCOMPARE(m_dialog->blockPicture(0), m_blockPictures[1]);
    click(keyword);
    m_dialog->selectAllText();
    m_dialog->type(Qt::Key_Delete);
    click(search);
    QCOMPARE(m_dialog->blockNames(), QString("north south"));
    QCOMPARE(m_dialog->blockPicture(0), m_blockPictures[0]);
    QCOMPARE(m_dialog->blockPicture(1), m_blockPictures[1]);
    QCOMPARE(takeTold(), QStringList());
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::sortBlocks()
{
    m_dialog->press("pushButtonAirplaneType");
    QCOMPARE(m_dialog->blockNames(), QString("south north"));
    QCOMPARE(m_dialog->blockPicture(0), m_blockPictures[1]);
    QCOMPARE(m_dialog->blockPicture(1), m_blockPictures[0]);
    QCOMPARE(takeTold(), QStringList());
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::goBack()
{
    m_dialog->press("pushButtonBackToProjectManager");
    QCOMPARE(takeTold(), QStringList{"back"});
    QCOMPARE(m_dialog->page(), QString("pageProjectManager"));
    QCOMPARE(seenSorted(), QStringList({"?", "Field", "Port", "River", "River"}));
    QVERIFY(filesAreUntouched());
}

void tst_MainFlow::openBlock()
{
    m_dialog->openProject("Field");
    QCOMPARE(takeTold(), QStringList{"project " + file("Field")});
    QCOMPARE(m_dialog->page(), QString("pageBlockManager"));
    const QString first = m_dialog->blockNames().section(' ', 0, 0);
    m_dialog->openBlock(0);
    QCOMPARE(takeTold(), QStringList{first == "north" ? "block b2" : "block b1"});
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_received.projectName, QString("Field"));
    QCOMPARE(m_received.projectFilePath, file("Field"));
    QCOMPARE(m_received.projectId, QString("id-of-Field"));
    QCOMPARE(m_received.softwareVersion, QString("1.0.0"));
    QCOMPARE(m_received.mapScale, 2000);
    QCOMPARE(m_received.centerLat, 30.66);
    QCOMPARE(m_received.centerLng, 104.06);
    QVERIFY(filesAreUntouched());
}

QTEST_MAIN(tst_MainFlow)
#include "tst_MainFlow.moc"
