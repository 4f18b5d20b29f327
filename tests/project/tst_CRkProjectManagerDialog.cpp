// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProjectManagerDialog.h>

#include "BlockFixture.h"
#include "support/BoxAnswerer.h"
#include "support/Brackets.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/ExecAnd.h"
#include "widgets/SendMouse.h"
#include "widgets/VerifyDrag.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkCityDateFilterWidget.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <RkData/RkData.h>

#include <QDesktopServices>
#include <QFile>
#include <QGraphicsScene>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace {

/// The dialog as a test sees it.
class Dialog : public CRkProjectManagerDialog
{
public:
    using CRkProjectManagerDialog::CRkProjectManagerDialog;

    template <typename T>
    T& part(const char* name) const
    {
        return *findChild<T*>(QString::fromLatin1(name));
    }
    QPushButton& button(const char* name) const { return part<QPushButton>(name); }
    QString page() const
    {
        return part<QStackedWidget>("stackedWidget").currentWidget()->objectName();
    }
    CRkProjectManagerView& view() const
    {
        return *getProjectManagerWidget()->getProjectManagerView();
    }
    CRkGraphicsProjectRectItem& tile() const
    {
        const QList<QGraphicsItem*> items = view().scene()->items(Qt::AscendingOrder);
        return dynamic_cast<CRkGraphicsProjectRectItem&>(*items.first());
    }
    /// Opens the one project of the view, as a double click does.
    void openProject() const
    {
        tile().setSelected(true);
        view().slotOpenProject();
    }
    QTreeWidget& blocks() const { return part<QTreeWidget>("treeWidgetBlocks"); }
};

const QString projectPage = QStringLiteral("pageProjectManager");
const QString blockPage = QStringLiteral("pageBlockManager");

BlockFixture hill()
{
    BlockFixture fixture{"Hill"};
    fixture.blocks = {{"b1", "south", {{"t1", 2}}}, {"b2", "north", {{"t2", 5}}}};
    return fixture;
}

/// Catches the pages that the desktop is asked to open.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }

    QList<QUrl> pages;

public slots:
    void open(const QUrl& page) { pages.append(page); }
};

/// What a person does with the dialog that ends a rename.
using EndRename = void (*)(const Dialog&);

} // namespace

Q_DECLARE_METATYPE(EndRename)

class tst_CRkProjectManagerDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void window();
    void titleIsTranslated();
    void formObjects();
    void titleBar();
    void titleButtons_data();
    void titleButtons();
    void icon();
    void searchFieldHasTheFocusFirst();
    void returnKeyPressesNoButton();
    void toolBarLabelsShowTheirGround();
    void longConditionsKeepTheToolBar();

    void pages();
    void buttonVisibility();
    void fullScreen();
    void closeButton();
    void help();

    void openedProjectShowsItsBlocks();
    void hostActsFirst();
    void hostThatLoadsByItself();
    void hostThatLoadsWithoutSwitching();
    void hostThatLoadsAnotherProject();
    void projectThatCannotBeOpened();
    void projectOfAnotherUser();
    void back();
    void blockOpened();
    void projectName();

    void drag_data();
    void drag();
    void pressElsewhereDoesNotDrag_data();
    void pressElsewhereDoesNotDrag();
    void otherButtonDoesNotDrag();
    void secondButtonKeepsTheDrag();
    void mouseIsGrabbedDuringADrag();
    void dragEndsWithTheDialog();

    void closedDuringARename();
    void deletedDuringARename();
    void closedDuringAMessage();
    void deletedOnCloseDuringAMessage();
    void deletedOnCloseDuringTheMessageOfARename_data();
    void deletedOnCloseDuringTheMessageOfARename();
    void closedWhileAPopupIsOpen_data();
    void closedWhileAPopupIsOpen();

private:
    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<BoxAnswerer> m_answers;
    QString m_root;
};

void tst_CRkProjectManagerDialog::init()
{
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
    m_answers = std::make_unique<BoxAnswerer>();
}

void tst_CRkProjectManagerDialog::cleanup()
{
    m_answers.reset();
    m_home.reset();
}

void tst_CRkProjectManagerDialog::window()
{
    const Dialog dialog(nullptr);
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QCOMPARE(dialog.windowTitle(), QString("Open Project"));
    QCOMPARE(dialog.size(), QSize(960, 600));
    QCOMPARE(dialog.minimumSize(), QSize(960, 600));
    QCOMPARE(dialog.maximumSize(), QSize(960, 600));
    QCOMPARE(dialog.styleSheet(), QString("background-color:rgb(255,255,255);"));
    QCOMPARE(dialog.page(), projectPage);

    QWidget parent;
    QVERIFY(Dialog(&parent).isWindow());
}

void tst_CRkProjectManagerDialog::titleIsTranslated()
{
    Brackets brackets("CRkProjectManagerDialog");
    QCoreApplication::installTranslator(&brackets);
    const Dialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("[Open Project]"));
    QCOMPARE(dialog.part<QLabel>("labelTitle").text(), QString("[Open Project]"));
}

void tst_CRkProjectManagerDialog::formObjects()
{
    const Dialog dialog(nullptr);
    const auto inOrder = [](const QObject& parent) {
        QStringList names;
        for (const QObject* child : parent.children())
            names.append(child->objectName());
        return names.join(' ');
    };
    QCOMPARE(inOrder(dialog), QString("verticalLayout_2 widgetTop stackedWidget"));
    QCOMPARE(inOrder(dialog.part<QWidget>("widgetTop")), QString("verticalLayout widgetTitleBar"));
    QCOMPARE(
        inOrder(dialog.part<QWidget>("widgetTitleBar")),
        QString(
            "horizontalLayout_2 labelIcon labelTitle pushButtonMaxWindow pushButtonCloseWindow"));
    QCOMPARE(dialog.getProjectManagerWidget()->objectName(), projectPage);
    QCOMPARE(dialog.getBlockManagerWidget()->objectName(), blockPage);
    QCOMPARE(dialog.part<QStackedWidget>("stackedWidget").widget(0),
             dialog.getProjectManagerWidget());
}

void tst_CRkProjectManagerDialog::titleBar()
{
    const Dialog dialog(nullptr);
    const QWidget& top = dialog.part<QWidget>("widgetTop");
    const QWidget& bar = dialog.part<QWidget>("widgetTitleBar");
    QCOMPARE(top.styleSheet(), QString("background-color: rgb(9, 2, 38);"));
    for (const QWidget* widget : {&top, &bar}) {
        QCOMPARE(widget->minimumHeight(), 32);
        QCOMPARE(widget->maximumHeight(), 32);
    }
    QCOMPARE(dialog.part<QLabel>("labelTitle").styleSheet(), QString("color: rgb(255, 255, 255);"));
    QCOMPARE(dialog.part<QLabel>("labelIcon").minimumSize(), QSize(24, 24));
    QCOMPARE(dialog.part<QLabel>("labelIcon").maximumSize(), QSize(24, 24));
}

void tst_CRkProjectManagerDialog::titleButtons_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QStringList>("families");
    QTest::newRow("pushButtonMaxWindow") << true << QStringList{"eng_max_but", "eng_win_but"};
    QTest::newRow("pushButtonCloseWindow") << false << QStringList{"eng_close_but"};
}

void tst_CRkProjectManagerDialog::titleButtons()
{
    QFETCH(QStringList, families);
    const Dialog dialog(nullptr);
    const QPushButton& button = dialog.button(QTest::currentDataTag());
    QTEST(button.isCheckable(), "checkable");
    QVERIFY(!button.isChecked());
    QCOMPARE(button.minimumSize(), QSize(30, 30));
    QCOMPARE(button.maximumSize(), QSize(30, 30));
    QVERIFY(!button.accessibleName().isEmpty());
    for (const QString& family : families) {
        // In this order, for a later rule wins over an earlier one.
        const QRegularExpression rules(
            QString(R"(QPushButton%2 \{[^}]*url\(:/images/Normal/%1_nor\.png\)[^}]*\}\s*)"
                    R"(QPushButton%2:hover[^{]*\{[^}]*url\(:/images/Normal/%1_hov\.png\)[^}]*\}\s*)"
                    R"(QPushButton%2:pressed \{[^}]*url\(:/images/Normal/%1_per\.png\))")
                .arg(family, family == "eng_win_but" ? QString(":checked") : QString()));
        QVERIFY2(rules.match(button.styleSheet()).hasMatch(), qPrintable(family));
    }
}

void tst_CRkProjectManagerDialog::icon()
{
    const QString style = "\t\tQLabel\t\t{\t\t\tbackground-image: url(%1);\t\t\tborder:0;\t\t}";
    Dialog dialog(nullptr);
    const auto& label = dialog.part<QLabel>("labelIcon");
    QCOMPARE(label.styleSheet(), style.arg(":/images/Normal/Tarnplan_ic_24.png"));
    dialog.SetIcon(":/images/Normal/Thumbnails.png");
    QCOMPARE(label.styleSheet(), style.arg(":/images/Normal/Thumbnails.png"));
}

void tst_CRkProjectManagerDialog::searchFieldHasTheFocusFirst()
{
    Dialog dialog(nullptr);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(comesToFront(&dialog));
    QCOMPARE(dialog.focusWidget()->objectName(), QString("lineEditSearch"));
}

void tst_CRkProjectManagerDialog::toolBarLabelsShowTheirGround()
{
    // White labels must not take the dialog's white for their ground.
    hill().write(m_root);
    Dialog dialog(nullptr);
    const auto ground = [&dialog](const char* label) {
        const QWidget& widget = dialog.part<QWidget>(label);
        return dialog.grab().toImage().pixelColor(widget.mapTo(&dialog, QPoint(1, 1)));
    };
    dialog.show();
    const QColor navy(20, 16, 52);
    QCOMPARE(ground("m_pLblCity"), navy);
    QCOMPARE(ground("m_pLblDate"), navy);
    dialog.openProject();
    QCOMPARE(ground("labelProjectNameOpeningBlocks"), navy);
}

void tst_CRkProjectManagerDialog::longConditionsKeepTheToolBar()
{
    Dialog dialog(nullptr);
    dialog.show();
    auto& bar = dialog.part<CRkCityDateFilterWidget>("m_pCityDateSelectWidget");
    const auto places = [&] {
        QCoreApplication::processEvents();
        QList<QRect> areas;
        for (const char* const name :
             {"pushButtonNewProject", "m_pCopyProjectBtn", "m_pDeleteProjectBtn",
              "m_pCityDateSelectWidget", "lineEditSearch", "pushButtonSearch", "m_pBtnDateSelect"})
            areas.append(dialog.getProjectManagerWidget()->findChild<QWidget*>(name)->geometry());
        return areas;
    };
    const QList<QRect> before = places();
    bar.slotCitySelected(QString(5000, 'n'));
    bar.slotDateSelected("2026-06-01 to 2026-06-15");
    QCOMPARE(places(), before);
    QCOMPARE(dialog.size(), QSize(960, 600));
    // The place alone gives way.
    const auto& city = dialog.part<QLabel>("m_pLblCity");
    const auto& date = dialog.part<QLabel>("m_pLblDate");
    QVERIFY(date.width() >= date.sizeHint().width());
    QVERIFY(city.geometry().right() < dialog.button("m_pBtnCitySelect").x());
}

void tst_CRkProjectManagerDialog::returnKeyPressesNoButton()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    QSignalSpy clicked(&dialog.button("pushButtonNewProject"), &QPushButton::clicked);
    dialog.show();
    for (const QPushButton* button : dialog.findChildren<QPushButton*>())
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    QTest::keyClick(dialog.getProjectManagerWidget()->findChild<QLineEdit*>("lineEditSearch"),
                    Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QCOMPARE(clicked.size(), 0);
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_CRkProjectManagerDialog::pages()
{
    Dialog dialog(nullptr);
    dialog.switchPage(false);
    QCOMPARE(dialog.page(), blockPage);
    dialog.switchPage(false);
    QCOMPARE(dialog.page(), blockPage);
    dialog.switchPage(true);
    QCOMPARE(dialog.page(), projectPage);
}

void tst_CRkProjectManagerDialog::buttonVisibility()
{
    Dialog dialog(nullptr);
    dialog.SetNewProjectButtonVisible(false);
    QVERIFY(dialog.button("pushButtonNewProject").isHidden());
    QVERIFY(!dialog.button("m_pCopyProjectBtn").isHidden());
    dialog.SetCopyProjectBtnVisible(false);
    QVERIFY(dialog.button("m_pCopyProjectBtn").isHidden());
    QVERIFY(!dialog.button("m_pDeleteProjectBtn").isHidden());
    dialog.SetDeleteProjectBtnVisible(false);
    QVERIFY(dialog.button("m_pDeleteProjectBtn").isHidden());
    dialog.SetNewProjectButtonVisible(true);
    dialog.SetCopyProjectBtnVisible(true);
    dialog.SetDeleteProjectBtnVisible(true);
    for (const char* const name :
         {"pushButtonNewProject", "m_pCopyProjectBtn", "m_pDeleteProjectBtn"})
        QVERIFY2(!dialog.button(name).isHidden(), name);
}

void tst_CRkProjectManagerDialog::fullScreen()
{
    Dialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QPushButton& button = dialog.button("pushButtonMaxWindow");
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(dialog.isFullScreen());
    QVERIFY(button.isChecked());
    QCOMPARE(dialog.maximumSize(), QSize(960, 600));
    // Not every window system keeps to the limit here.
    QVERIFY(dialog.size() == QSize(960, 600) || dialog.size() == dialog.screen()->size());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!dialog.isFullScreen());
    QTRY_COMPARE(dialog.size(), QSize(960, 600));
    QVERIFY(dialog.isVisible());
    QVERIFY(!button.isChecked());
    dialog.slotMaxSwitch(); // As a host may.
    QVERIFY(button.isChecked());
    dialog.slotMaxSwitch();
    QVERIFY(!button.isChecked());
}

void tst_CRkProjectManagerDialog::closeButton()
{
    Dialog dialog(nullptr);
    const int result = execAnd(dialog, [&dialog] {
        QTest::mouseClick(&dialog.button("pushButtonCloseWindow"), Qt::LeftButton);
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(!dialog.isVisible());
}

void tst_CRkProjectManagerDialog::help()
{
    const Browser browser;
    Dialog dialog(nullptr);
    dialog.slotHelp();
    QCOMPARE(browser.pages.size(), 1);
    QVERIFY(browser.pages.first().isValid());
    dialog.SetHelpUrl(QUrl("https://127.0.0.1/manual#projects"));
    dialog.slotHelp();
    QCOMPARE(browser.pages.value(1), QUrl("https://127.0.0.1/manual#projects"));
}

void tst_CRkProjectManagerDialog::openedProjectShowsItsBlocks()
{
    const QString file = hill().write(m_root);
    Dialog dialog(nullptr);
    QCOMPARE(dialog.getOpenedProjectInfo().projectFilePath, QString());
    QSignalSpy opened(&dialog, &CRkProjectManagerDialog::projectOpened);
    dialog.openProject();
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first(), QVariantList{file});
    QCOMPARE(dialog.page(), blockPage);
    QCOMPARE(dialog.blocks().topLevelItemCount(), 2);
    const CRkOpenedProjectInfo info = dialog.getOpenedProjectInfo();
    QCOMPARE(info.projectFilePath, file);
    QCOMPARE(info.projectName, QString("Hill"));
    QCOMPARE(info.projectId, QString("id-of-Hill"));
}

void tst_CRkProjectManagerDialog::hostActsFirst()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    QString page;
    int blocks = -1;
    connect(&dialog, &CRkProjectManagerDialog::projectOpened, this, [&] {
        page = dialog.page();
        blocks = dialog.blocks().topLevelItemCount();
    });
    dialog.openProject();
    QCOMPARE(page, projectPage);
    QCOMPARE(blocks, 0);
    QCOMPARE(dialog.page(), blockPage);
}

void tst_CRkProjectManagerDialog::hostThatLoadsByItself()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    connect(&dialog, &CRkProjectManagerDialog::projectOpened, this, [&](const QString& file) {
        QVERIFY(dialog.getBlockManagerWidget()->LoadExistBlocks(file));
        dialog.switchPage(false);
        QVERIFY(QFile::remove(file)); // A second load would find nothing.
    });
    dialog.openProject();
    QCOMPARE(dialog.page(), blockPage);
    QCOMPARE(dialog.blocks().topLevelItemCount(), 2);
    QCOMPARE(dialog.getOpenedProjectInfo().projectName, QString("Hill"));
}

void tst_CRkProjectManagerDialog::hostThatLoadsWithoutSwitching()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    connect(&dialog, &CRkProjectManagerDialog::projectOpened, this, [&](const QString& file) {
        QVERIFY(dialog.getBlockManagerWidget()->LoadExistBlocks(file));
    });
    dialog.openProject();
    QCOMPARE(dialog.page(), blockPage);
    QCOMPARE(dialog.blocks().topLevelItemCount(), 2);
}

void tst_CRkProjectManagerDialog::hostThatLoadsAnotherProject()
{
    const QString file = hill().write(m_root);
    BlockFixture other{"Dale"};
    other.userId = "user-2"; // So that the view shows one project.
    const QString otherFile = other.write(m_root);
    Dialog dialog(nullptr);
    connect(&dialog, &CRkProjectManagerDialog::projectOpened, this, [&] {
        QVERIFY(dialog.getBlockManagerWidget()->LoadExistBlocks(otherFile));
        dialog.switchPage(false);
    });
    dialog.openProject();
    QCOMPARE(dialog.page(), blockPage);
    QCOMPARE(dialog.getOpenedProjectInfo().projectFilePath, file);
}

void tst_CRkProjectManagerDialog::projectThatCannotBeOpened()
{
    const QString file = hill().write(m_root);
    Dialog dialog(nullptr);
    QSignalSpy opened(&dialog, &CRkProjectManagerDialog::projectOpened);
    QVERIFY(QFile::remove(file));
    dialog.openProject();
    QCOMPARE(opened.size(), 1);
    QCOMPARE(dialog.page(), projectPage);
    QCOMPARE(dialog.getOpenedProjectInfo().projectFilePath, QString());
    QVERIFY(!QFile::exists(file));
}

void tst_CRkProjectManagerDialog::projectOfAnotherUser()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    m_home->setCurrentUserId("user-2");
    dialog.openProject();
    QCOMPARE(dialog.page(), blockPage);
    QCOMPARE(dialog.blocks().topLevelItemCount(), 0);
    QCOMPARE(dialog.getOpenedProjectInfo().projectFilePath, QString());
}

void tst_CRkProjectManagerDialog::back()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    dialog.openProject();
    QString page;
    int signalCount = 0;
    connect(&dialog, &CRkProjectManagerDialog::backToProjectView, this, [&] {
        page = dialog.page();
        ++signalCount;
    });
    dialog.button("pushButtonBackToProjectManager").click();
    QCOMPARE(signalCount, 1);
    QCOMPARE(page, blockPage);
    QCOMPARE(dialog.page(), projectPage);
    dialog.openProject();
    QCOMPARE(dialog.page(), blockPage);
    QCOMPARE(dialog.blocks().topLevelItemCount(), 2);
}

void tst_CRkProjectManagerDialog::blockOpened()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    QSignalSpy opened(&dialog, &CRkProjectManagerDialog::blockOpened);
    dialog.show();
    dialog.openProject();
    QTreeWidget& blocks = dialog.blocks();
    QCoreApplication::sendPostedEvents();
    const QPoint at = blocks.visualItemRect(blocks.topLevelItem(0)).center();
    QTest::mouseClick(blocks.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(blocks.viewport(), Qt::LeftButton, {}, at);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first(), QVariantList{"b2"}); // "north" comes first.
    QCOMPARE(dialog.page(), blockPage);
    QVERIFY(dialog.isVisible());
}

void tst_CRkProjectManagerDialog::projectName()
{
    hill().write(m_root);
    Dialog dialog(nullptr);
    QCOMPARE(dialog.GetProjectName(), QString());
    dialog.openProject();
    QCOMPARE(dialog.GetProjectName(), QString("Hill"));
    delete &dialog.view();
    QCOMPARE(dialog.GetProjectName(), QString());
}

void tst_CRkProjectManagerDialog::drag_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("free space") << QPoint(500, 16);
    QTest::newRow("top left corner") << QPoint(1, 0);
    QTest::newRow("last line") << QPoint(500, 31);
    QTest::newRow("icon") << QPoint(20, 16);
    QTest::newRow("title") << QPoint(60, 16);
}

void tst_CRkProjectManagerDialog::drag()
{
    QFETCH(QPoint, at);
    Dialog dialog(nullptr);
    verifyDrag(dialog, at);
}

void tst_CRkProjectManagerDialog::pressElsewhereDoesNotDrag_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("first line of the page") << QPoint(500, 32);
    QTest::newRow("tool bar") << QPoint(230, 40);
    QTest::newRow("tiles") << QPoint(500, 500);
    QTest::newRow("close button") << QPoint(945, 16);
}

void tst_CRkProjectManagerDialog::pressElsewhereDoesNotDrag()
{
    QFETCH(QPoint, at);
    Dialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, at);
    QTest::mouseMove(window, QPoint(480, 16));
    QTest::mouseMove(window, QPoint(500, 20));
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(500, 20));
    QVERIFY(dialog.isVisible());
}

void tst_CRkProjectManagerDialog::otherButtonDoesNotDrag()
{
    Dialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();
    QTest::mousePress(window, Qt::RightButton, {}, QPoint(500, 16));
    QTest::mouseMove(window, QPoint(530, 26));
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QTest::mouseRelease(window, Qt::RightButton, {}, QPoint(530, 26));
}

void tst_CRkProjectManagerDialog::secondButtonKeepsTheDrag()
{
    Dialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(500, 16));
    QTest::mousePress(window, Qt::RightButton, {}, QPoint(500, 16));
    QTest::mouseMove(window, QPoint(530, 36));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
    QTest::mouseRelease(window, Qt::RightButton, {}, QPoint(500, 16));
    QTest::mouseMove(window, QPoint(540, 46)); // Any release ends it.
    QCOMPARE(dialog.pos(), QPoint(130, 140));
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(500, 16));
}

void tst_CRkProjectManagerDialog::mouseIsGrabbedDuringADrag()
{
    Dialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(500, 16));
    QCOMPARE(QWidget::mouseGrabber(), &dialog);
    const QPoint before = dialog.pos();
    sendMouse(dialog, QEvent::MouseMove, {530, 36}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(dialog.pos(), before); // Without the button nothing moves.
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(500, 16));
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
}

void tst_CRkProjectManagerDialog::dragEndsWithTheDialog()
{
    Dialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QTest::mousePress(dialog.windowHandle(), Qt::LeftButton, {}, QPoint(500, 16));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
}

void tst_CRkProjectManagerDialog::closedDuringARename()
{
    const QString file = hill().write(m_root);
    Dialog dialog(nullptr);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(comesToFront(&dialog));
    CRkGraphicsProjectTextItem* caption = dialog.tile().GetTextItem();
    dialog.view().setFocus();
    caption->setFocus();
    QTRY_VERIFY(caption->hasFocus());
    caption->setPlainText("Dale");
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QVERIFY(m_answers->boxes.isEmpty());
    // What was typed counts, as everywhere when a caption loses the focus.
    QTRY_VERIFY(QFile::exists(m_root + "Dale/Dale.proj"));
    QVERIFY(!QFile::exists(file));
}

void tst_CRkProjectManagerDialog::deletedDuringARename()
{
    const QString file = hill().write(m_root);
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->show();
    dialog->activateWindow();
    QVERIFY(comesToFront(dialog.get()));
    CRkGraphicsProjectTextItem* caption = dialog->tile().GetTextItem();
    dialog->view().setFocus();
    caption->setFocus();
    QTRY_VERIFY(caption->hasFocus());
    caption->setPlainText("Dale");
    dialog.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_answers->boxes.isEmpty());
    // Under one of both names, and whole.
    const QString renamed = m_root + "Dale/Dale.proj";
    QVERIFY(QFile::exists(file) != QFile::exists(renamed));
}

void tst_CRkProjectManagerDialog::closedDuringAMessage()
{
    const QString file = hill().write(m_root);
    Dialog dialog(nullptr);
    m_answers->beforeAnswer = [&dialog] { dialog.close(); };
    const int result = execAnd(dialog, [&dialog] {
        dialog.tile().setSelected(true);
        dialog.button("m_pDeleteProjectBtn").click();
    });
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(!QFile::exists(file)); // The user did confirm.
}

void tst_CRkProjectManagerDialog::deletedOnCloseDuringAMessage()
{
    const QString file = hill().write(m_root);
    const QPointer<Dialog> dialog = new Dialog(nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    m_answers->beforeAnswer = [&dialog] {
        dialog->close();
        QTRY_VERIFY(!dialog);
    };
    dialog->tile().setSelected(true);
    dialog->button("m_pDeleteProjectBtn").click();
    QCOMPARE(m_answers->boxes.size(), 1);
    QVERIFY(QFile::exists(file));
}

void tst_CRkProjectManagerDialog::deletedOnCloseDuringTheMessageOfARename_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<EndRename>("end");
    const EndRename returnKey = [](const Dialog& dialog) {
        QTest::keyPress(&dialog.view(), Qt::Key_Return); // Nobody is there for the release.
    };
    QTest::newRow("blank name, Return") << " " << returnKey;
    QTest::newRow("taken name, Return") << "Dale" << returnKey;
    QTest::newRow("blank name, Delete button")
        << " "
        << EndRename([](const Dialog& dialog) { dialog.button("m_pDeleteProjectBtn").click(); });
    QTest::newRow("blank name, filter") << " " << EndRename([](const Dialog& dialog) {
        dialog.getProjectManagerWidget()->slotConditionChanged();
    });
}

void tst_CRkProjectManagerDialog::deletedOnCloseDuringTheMessageOfARename()
{
    QFETCH(QString, typed);
    QFETCH(EndRename, end);
    const QString file = hill().write(m_root);
    const QString taken = m_root + "Dale/Dale.proj";
    QVERIFY(writeFile(taken, "not of this user"));
    const QPointer<Dialog> dialog = new Dialog(nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->activateWindow();
    QVERIFY(comesToFront(dialog.data()));
    CRkGraphicsProjectTextItem* caption = dialog->tile().GetTextItem();
    const QPointer<QGraphicsScene> scene = caption->scene();
    dialog->view().setFocus();
    caption->setFocus();
    QTRY_VERIFY(caption->hasFocus());
    caption->setPlainText(typed);
    m_answers->beforeAnswer = [&dialog] {
        dialog->close();
        QTRY_VERIFY(!dialog);
    };
    end(*dialog);
    QVERIFY(!dialog);
    QTRY_VERIFY(!scene);
    QCOMPARE(m_answers->boxes.size(), 1);
    QVERIFY(QFile::exists(file));
    QCOMPARE(readFile(taken), QByteArray("not of this user"));
}

void tst_CRkProjectManagerDialog::closedWhileAPopupIsOpen_data()
{
    QTest::addColumn<bool>("deleted");
    for (const char* const button : {"m_pBtnCitySelect", "m_pBtnDateSelect"}) {
        QTest::addRow("%s, closed", button) << false;
        QTest::addRow("%s, deleted", button) << true;
    }
}

void tst_CRkProjectManagerDialog::closedWhileAPopupIsOpen()
{
    QFETCH(bool, deleted);
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->show();
    QVERIFY(comesOnScreen(dialog.get()));
    const QByteArray button = QByteArray(QTest::currentDataTag()).split(',').first();
    dialog->button(button.constData()).click();
    const QPointer<QWidget> popup = QApplication::activePopupWidget();
    QVERIFY(popup);
    if (deleted) {
        dialog.reset();
        QVERIFY(!popup);
    } else {
        dialog->close();
        QVERIFY(!popup->isVisible());
        QVERIFY(!dialog->button(button.constData()).isChecked());
    }
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
}

QTEST_MAIN(tst_CRkProjectManagerDialog)
#include "tst_CRkProjectManagerDialog.moc"
