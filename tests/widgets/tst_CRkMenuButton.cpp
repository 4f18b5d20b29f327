// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Render.h"
#include "SendMouse.h"

#include <RkBaseUI/CRkActionView.h>
#include <RkBaseUI/CRkMenuButton.h>

#include "support/WindowWaits.h"
#include "widgets/AtScale.h"

#include <QCursor>
#include <QListWidget>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString trianglePath =
    QStringLiteral(":/images/Normal/Tarnplan/tool_Right_Triangle_but_nor.png");

QStringList messages;

void recordMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    messages.append(text);
}

EToolType tool(int number)
{
    return EToolType(number);
}

/// The list of the only menu button there is.
CRkActionView* actionView()
{
    CRkActionView* found = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* view = qobject_cast<CRkActionView*>(widget))
            found = view;
    }
    return found;
}

QListWidget* actionList()
{
    return actionView()->findChild<QListWidget*>();
}

/// A button of 100 x 40 on the screen with two tools, whose signals are noted in their order.
class Button : public CRkMenuButton
{
public:
    explicit Button(int actions = 2)
        : CRkMenuButton(nullptr)
    {
        setObjectName("m_pBtnDraw");
        setFixedSize(100, 40);
        move(300, 200);
        for (int i = 0; i < actions; ++i)
            AddAction(QString("Tool %1").arg(i), QString(":/tool2_%1_nor.png").arg(i), tool(i));
        connect(this, &QPushButton::pressed, this, [this] { heard.append("pressed"); });
        connect(this, &QPushButton::released, this, [this] { heard.append("released"); });
        connect(this, &QPushButton::clicked, this, [this] { heard.append("clicked"); });
        connect(this, &QPushButton::toggled, this,
                [this](bool on) { heard.append(on ? "toggled on" : "toggled off"); });
        connect(this, &CRkMenuButton::TrangleClicked, this, [this] { heard.append("triangle"); });
        show();
    }

    QStringList heard;
};

/// What the button's style sheet is to be.
QString sheet(const QString& name, const QString& prefix)
{
    return "QPushButton#" + name + "{\t\tbackground-color:transparent;\t\tbackground-image:url("
        + prefix
        + "nor.png);\t\tbackground-repeat:none;\t\tbackground-position:center;\t\t}\t\t"
          "QPushButton#"
        + name + "::hover{\t\tbackground-image:url(" + prefix + "hov.png);\t}\t\tQPushButton#"
        + name + "::pressed{\t\tbackground-image:url(" + prefix + "pre.png);\t}\t\tQPushButton#"
        + name + "::checked{\t\tbackground-image:url(" + prefix + "pre.png);\t}";
}

/// Writes the pictures of a tool's states, each of one colour; gives what their names begin with.
QString writePictures(const QTemporaryDir& folder)
{
    const QString prefix = folder.filePath("tool_line_");
    for (const auto& [state, color] :
         {std::pair("nor", Qt::green), std::pair("hov", Qt::yellow), std::pair("pre", Qt::blue)}) {
        QImage image(30, 30, QImage::Format_RGB32);
        image.fill(color);
        if (!image.save(prefix + state + ".png"))
            return {};
    }
    return prefix;
}

} // namespace

class tst_CRkMenuButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void metaObject();
    void listGoesWithTheButton();
    void release_data();
    void release();
    void cornerOfOtherSizes_data();
    void cornerOfOtherSizes();
    void otherButtonIsPassedOn();
    void withoutActions();
    void pressDraggedOff();
    void keyboard_data();
    void keyboard();

    void listOpensAtTheMouseAndCloses();
    void listOpensWithNothingSelected();
    void pressOnOpenList_data();
    void pressOnOpenList();
    void pressInListOverTheCorner();
    void keysInTheList();

    void styleSheet_data();
    void styleSheet();
    void pickInTheList();
    void setBtnState();
    void setBtnStateOfUnknownTool();
    void orderOfAPick_data();
    void orderOfAPick();
    void picturesOfThePick();
    void styleSheetPrintsNothing();
    void missingPictures();

    void plainWithoutActions();
    void triangle_data();
    void triangle();
    void manyActions();
    void oddTexts_data();
    void oddTexts();
    void description();

private:
    QtMessageHandler m_handlerBefore = nullptr;
};

void tst_CRkMenuButton::init()
{
    QCursor::setPos(10, 10);
    messages.clear();
    m_handlerBefore = qInstallMessageHandler(recordMessage);
}

// The style sheets here name pictures that do not exist, and names that are none. That alone may be
// told.
void tst_CRkMenuButton::cleanup()
{
    qInstallMessageHandler(m_handlerBefore);
    for (const QString& message : messages) {
        QVERIFY2(message.startsWith("Could not create pixmap")
                     || message.startsWith("Could not parse stylesheet"),
                 qPrintable(message));
    }
}

void tst_CRkMenuButton::construction()
{
    QWidget parent;
    const auto* button = new CRkMenuButton(&parent);
    QCOMPARE(button->parentWidget(), &parent);
    QVERIFY(!button->property("ToolType").isValid());
    QCOMPARE(button->styleSheet(), QString());
    const CRkActionView* view = actionView();
    QVERIFY(view);
    QCOMPARE(view->parentWidget(), nullptr);
    QCOMPARE(int(view->windowFlags()), 0x809);
    QVERIFY(!view->isVisible());
    QCOMPARE(view->GetItemCount(), 0);
}

void tst_CRkMenuButton::metaObject()
{
    const QMetaObject& meta = CRkMenuButton::staticMetaObject;
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(meta.method(i).methodSignature());
    QCOMPARE(
        methods,
        QStringList({"TrangleClicked()", "slotShowPopMenu()", "slotActionClicked(int,QString)"}));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void tst_CRkMenuButton::listGoesWithTheButton()
{
    QPointer<CRkActionView> view;
    {
        Button button;
        view = actionView();
        button.slotShowPopMenu();
        QVERIFY(view->isVisible());
    }
    QVERIFY(!view);
}

// Of 100 x 40, the corner begins at int(99 * 0.7) and int(40 * 0.7).
void tst_CRkMenuButton::release_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QStringList>("heard");
    const QStringList click = {"pressed", "released", "clicked"};
    const QStringList triangle = {"pressed", "triangle"};
    QTest::newRow("left in the middle") << Qt::LeftButton << QPoint(50, 20) << click;
    QTest::newRow("left on the corner's first pixel")
        << Qt::LeftButton << QPoint(69, 28) << triangle;
    QTest::newRow("left on the button's last pixel")
        << Qt::LeftButton << QPoint(99, 39) << triangle;
    QTest::newRow("left of the corner") << Qt::LeftButton << QPoint(68, 28) << click;
    QTest::newRow("above the corner") << Qt::LeftButton << QPoint(69, 27) << click;
    QTest::newRow("left beyond the button") << Qt::LeftButton << QPoint(110, 35) << QStringList{};
    QTest::newRow("right in the middle")
        << Qt::RightButton << QPoint(50, 20) << QStringList{"triangle"};
    QTest::newRow("right in the corner")
        << Qt::RightButton << QPoint(90, 35) << QStringList{"triangle"};
    QTest::newRow("middle button") << Qt::MiddleButton << QPoint(90, 35) << QStringList{};
}

void tst_CRkMenuButton::release()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, at);
    QFETCH(QStringList, heard);
    Button menu;
    sendMouse(menu, QEvent::MouseButtonPress, at, button, button);
    sendMouse(menu, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    QCOMPARE(menu.heard, heard);
    QVERIFY(!menu.isDown());
    QVERIFY(!menu.isChecked());
    QCOMPARE(actionView()->isVisible(), heard.contains("triangle"));
}

void tst_CRkMenuButton::cornerOfOtherSizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("first");
    QTest::newRow("square") << QSize(32, 32) << QPoint(21, 22);
    QTest::newRow("upright") << QSize(41, 83) << QPoint(28, 58);
    QTest::newRow("one pixel") << QSize(1, 1) << QPoint(0, 0);
}

void tst_CRkMenuButton::cornerOfOtherSizes()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, first);
    Button menu;
    menu.setFixedSize(size);
    // Thousands of lists on the screen take minutes on some systems.
    disconnect(&menu, &CRkMenuButton::TrangleClicked, &menu, &CRkMenuButton::slotShowPopMenu);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            menu.heard.clear();
            sendMouse(menu, QEvent::MouseButtonPress, {x, y}, Qt::LeftButton, Qt::LeftButton);
            sendMouse(menu, QEvent::MouseButtonRelease, {x, y}, Qt::LeftButton, Qt::NoButton);
            QCOMPARE(menu.heard.contains("triangle"), x >= first.x() && y >= first.y());
            QCOMPARE(menu.heard.contains("clicked"), x < first.x() || y < first.y());
        }
    }
}

void tst_CRkMenuButton::otherButtonIsPassedOn()
{
    Button menu;
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(50, 20), Qt::MiddleButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&menu, &event);
    QVERIFY(!event.isAccepted());
}

void tst_CRkMenuButton::withoutActions()
{
    Button menu(0);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        sendMouse(menu, QEvent::MouseButtonPress, {90, 35}, button, button);
        sendMouse(menu, QEvent::MouseButtonRelease, {90, 35}, button, Qt::NoButton);
    }
    QTest::keyClick(&menu, Qt::Key_Menu);
    QCOMPARE(menu.heard, QStringList({"pressed", "released", "clicked"}));
    menu.slotShowPopMenu();
    QVERIFY(!actionView()->isVisible());
}

// The button let go elsewhere is no click, as with any button; nor is one let go in the corner.
void tst_CRkMenuButton::pressDraggedOff()
{
    Button menu;
    menu.setCheckable(true);
    QTest::mousePress(&menu, Qt::LeftButton, {}, QPoint(50, 20));
    QVERIFY(menu.isDown());
    sendMouse(menu, QEvent::MouseMove, {90, 35}, Qt::NoButton, Qt::LeftButton);
    sendMouse(menu, QEvent::MouseButtonRelease, {90, 35}, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(menu.heard, QStringList({"pressed", "triangle"}));
    QVERIFY(!menu.isDown());
    QVERIFY(!menu.isChecked());
    actionView()->hide();

    // The press is over: a move with a button held is none of its own.
    sendMouse(menu, QEvent::MouseMove, {50, 20}, Qt::NoButton, Qt::LeftButton);
    QVERIFY(!menu.isDown());

    menu.heard.clear();
    QTest::mousePress(&menu, Qt::LeftButton, {}, QPoint(90, 35));
    sendMouse(menu, QEvent::MouseMove, {190, 35}, Qt::NoButton, Qt::LeftButton);
    sendMouse(menu, QEvent::MouseButtonRelease, {190, 35}, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(menu.heard, QStringList({"pressed", "released"}));
}

void tst_CRkMenuButton::keyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QStringList>("heard");
    QTest::newRow("menu") << int(Qt::Key_Menu) << int(Qt::NoModifier) << QStringList{"triangle"};
    QTest::newRow("alt and down") << int(Qt::Key_Down) << int(Qt::AltModifier)
                                  << QStringList{"triangle"};
    QTest::newRow("down") << int(Qt::Key_Down) << int(Qt::NoModifier) << QStringList{};
    QTest::newRow("space") << int(Qt::Key_Space) << int(Qt::NoModifier)
                           << QStringList{"pressed", "released", "clicked"};
}

void tst_CRkMenuButton::keyboard()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QStringList, heard);
    Button menu;
    QTest::keyPress(&menu, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    if (!actionView()->isVisible())
        QTest::keyRelease(&menu, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(menu.heard, heard);
    QCOMPARE(actionView()->isVisible(), heard.contains("triangle"));
}

void tst_CRkMenuButton::listOpensAtTheMouseAndCloses()
{
    Button menu;
    QVERIFY(comesOnScreen(&menu));
    QCursor::setPos(411, 322);
    menu.slotShowPopMenu();
    QVERIFY(actionView()->isVisible());
    QCOMPARE(actionView()->pos(), QPoint(411, 322));
    menu.slotShowPopMenu();
    QVERIFY(!actionView()->isVisible());
    QCursor::setPos(500, 400);
    Q_EMIT menu.TrangleClicked();
    QVERIFY(actionView()->isVisible());
    QCOMPARE(actionView()->pos(), QPoint(500, 400));
    Q_EMIT menu.TrangleClicked();
    QVERIFY(!actionView()->isVisible());
}

void tst_CRkMenuButton::listOpensWithNothingSelected()
{
    Button menu;
    menu.SetBtnState(tool(1));
    QCOMPARE(actionList()->selectedItems().size(), 1);
    menu.slotShowPopMenu();
    QVERIFY(actionList()->selectedItems().isEmpty());
    actionList()->setCurrentRow(0);
    menu.slotShowPopMenu();
    QVERIFY(actionList()->selectedItems().isEmpty());
}

void tst_CRkMenuButton::pressOnOpenList_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("at"); // On the button, which the list lies beside.
    QTest::addColumn<bool>("openAfterPress");
    QTest::addColumn<QStringList>("heard");
    QTest::newRow("left on the corner")
        << Qt::LeftButton << QPoint(90, 35) << true << QStringList{"triangle"};
    QTest::newRow("right on the button")
        << Qt::RightButton << QPoint(20, 20) << true << QStringList{"triangle"};
    QTest::newRow("left on the rest of the button")
        << Qt::LeftButton << QPoint(20, 20) << false << QStringList{};
    QTest::newRow("right beside the button")
        << Qt::RightButton << QPoint(20, -20) << false << QStringList{};
}

void tst_CRkMenuButton::pressOnOpenList()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, at);
    QFETCH(bool, openAfterPress);
    QFETCH(QStringList, heard);
    Button menu;
    QVERIFY(comesOnScreen(&menu));
    QCursor::setPos(600, 500);
    menu.slotShowPopMenu();
    CRkActionView* view = actionView();
    QVERIFY(comesOnScreen(view));
    // An open popup is sent all that the mouse does.
    const QPoint inView = view->mapFromGlobal(menu.mapToGlobal(at));
    sendMouse(*view, QEvent::MouseButtonPress, inView, button, button);
    QCOMPARE(view->isVisible(), openAfterPress);
    if (openAfterPress)
        sendMouse(*view, QEvent::MouseButtonRelease, inView, button, Qt::NoButton);
    QVERIFY(!view->isVisible());
    QCOMPARE(menu.heard, heard);
}

// The list opens at the mouse and so covers most of the corner. What lies below is not meant then.
void tst_CRkMenuButton::pressInListOverTheCorner()
{
    Button menu;
    QVERIFY(comesOnScreen(&menu));
    QCursor::setPos(menu.mapToGlobal({80, 30}));
    menu.slotShowPopMenu();
    CRkActionView* view = actionView();
    QVERIFY(comesOnScreen(view));
    const QPoint inView(3, 3);
    QVERIFY(menu.rect().contains(menu.mapFromGlobal(view->mapToGlobal(inView))));
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        sendMouse(*view, QEvent::MouseButtonPress, inView, button, button);
        sendMouse(*view, QEvent::MouseButtonRelease, inView, button, Qt::NoButton);
    }
    QVERIFY(view->isVisible());
    QCOMPARE(menu.heard, QStringList());
}

void tst_CRkMenuButton::keysInTheList()
{
    Button menu;
    menu.slotShowPopMenu();
    QVERIFY(comesOnScreen(actionView()));
    QTest::keyClick(actionView(), Qt::Key_Escape);
    QVERIFY(!actionView()->isVisible());
    QVERIFY(!menu.property("ToolType").isValid());

    menu.slotShowPopMenu();
    QTest::keyClick(actionView(), Qt::Key_Down);
    QTest::keyClick(actionView(), Qt::Key_Down);
    QTest::keyClick(actionView(), Qt::Key_Return);
    QVERIFY(!actionView()->isVisible());
    QCOMPARE(menu.property("ToolType"), QVariant(1));
}

void tst_CRkMenuButton::styleSheet_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("plain") << "m_pBtnDraw"
                           << ":/images/Normal/tool_line_";
    QTest::newRow("markers in the prefix") << "m_pBtnDraw"
                                           << ":/%0%1%2%3%4%5%6%7%8%99_";
    QTest::newRow("markers in the name") << "%1%5%9"
                                         << ":/tool_";
    QTest::newRow("empty prefix") << "m_pBtnDraw"
                                  << "";
    QTest::newRow("no name") << ""
                             << ":/tool_";
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0") << QString::fromUtf8(":/\u05d1_");
    QTest::newRow("100,000 characters") << "m_pBtnDraw" << QString(100000, 'x');
}

void tst_CRkMenuButton::styleSheet()
{
    QFETCH(QString, name);
    QFETCH(QString, prefix);
    CRkMenuButton button(nullptr);
    button.setObjectName(name);
    button.slotActionClicked(77, prefix);
    QCOMPARE(button.styleSheet(), sheet(name, prefix));
    QCOMPARE(button.property("ToolType"), QVariant(77));
}

void tst_CRkMenuButton::pickInTheList()
{
    Button menu(0);
    menu.setCheckable(true);
    menu.AddAction("Line", ":/images/Normal/tool2_line_nor.png", tool(12));
    menu.slotShowPopMenu();
    QVERIFY(comesOnScreen(actionView()));
    QTest::mouseClick(actionList()->viewport(), Qt::LeftButton, {},
                      actionList()->visualItemRect(actionList()->item(0)).center());
    QCOMPARE(menu.property("ToolType"), QVariant(12));
    QCOMPARE(menu.styleSheet(), sheet("m_pBtnDraw", ":/images/Normal/tool_line_"));
    QVERIFY(menu.isChecked());
    QVERIFY(!actionView()->isVisible());
}

void tst_CRkMenuButton::setBtnState()
{
    Button menu;
    menu.SetBtnState(tool(1));
    QCOMPARE(menu.property("ToolType"), QVariant(1));
    QCOMPARE(menu.styleSheet(), sheet("m_pBtnDraw", ":/tool_1_"));
    QCOMPARE(menu.heard, QStringList{"toggled on"});
}

void tst_CRkMenuButton::setBtnStateOfUnknownTool()
{
    Button menu;
    menu.SetBtnState(tool(2));
    QVERIFY(!menu.property("ToolType").isValid());
    QCOMPARE(menu.styleSheet(), QString());
    QCOMPARE(menu.heard, QStringList());
}

void tst_CRkMenuButton::orderOfAPick_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<int>("toggles");
    QTest::newRow("cannot be checked") << false << false << 1;
    QTest::newRow("becomes checked") << true << false << 2;
    QTest::newRow("was checked") << true << true << 1;
}

void tst_CRkMenuButton::orderOfAPick()
{
    QFETCH(bool, checkable);
    QFETCH(bool, checked);
    QFETCH(int, toggles);
    Button menu;
    menu.setCheckable(checkable);
    menu.setChecked(checked);
    menu.heard.clear();
    int seen = 0;
    connect(&menu, &QPushButton::toggled, this, [&](bool on) {
        ++seen;
        QVERIFY(on);
        QCOMPARE(menu.isChecked(), checkable);
        QCOMPARE(menu.property("ToolType"), QVariant(1));
        QCOMPARE(menu.styleSheet(), sheet("m_pBtnDraw", ":/tool_1_"));
    });
    menu.SetBtnState(tool(1));
    QCOMPARE(seen, toggles);
    QCOMPARE(menu.isChecked(), checkable);
    QCOMPARE(menu.heard.size(), toggles);
}

void tst_CRkMenuButton::picturesOfThePick()
{
    const QTemporaryDir folder;
    const QString prefix = writePictures(folder);
    Button menu(0);
    menu.setCheckable(true);
    menu.setFocusPolicy(Qt::NoFocus);
    menu.slotActionClicked(1, prefix);
    const auto middle = [&menu] { return colorAt(rendered(menu, 1), {50, 20}); };
    QCOMPARE(middle(), QColor(Qt::blue));
    menu.setChecked(false);
    QCOMPARE(middle(), QColor(Qt::green));
    menu.setDown(true);
    QCOMPARE(middle(), QColor(Qt::blue));
    menu.setDown(false);
    QVERIFY(comesOnScreen(&menu));
    QTest::mouseMove(&menu, QPoint(1, 1));
    QTest::mouseMove(&menu, QPoint(50, 20));
    QTRY_COMPARE(middle(), QColor(Qt::yellow));
}

void tst_CRkMenuButton::styleSheetPrintsNothing()
{
    const QTemporaryDir folder;
    const QString prefix = writePictures(folder);
    Button menu;
    menu.setCheckable(true);
    menu.slotActionClicked(1, prefix);
    rendered(menu, 1);
    menu.setChecked(false);
    rendered(menu, 1);
    menu.setDown(true);
    rendered(menu, 1);
    menu.slotShowPopMenu();
    rendered(*actionView(), 1);
    QVERIFY2(messages.isEmpty(), qPrintable(messages.join(QLatin1Char('\n'))));
}

void tst_CRkMenuButton::missingPictures()
{
    Button menu(0);
    menu.setText("text");
    menu.AddAction("Line", "x.png", tool(1));
    menu.SetBtnState(tool(1));
    QCOMPARE(menu.styleSheet(), sheet("m_pBtnDraw", QString()));
    QVERIFY(!rendered(menu, 1).isNull());
}

void tst_CRkMenuButton::plainWithoutActions()
{
    CRkMenuButton menu(nullptr);
    QPushButton plain;
    for (QPushButton* button : {static_cast<QPushButton*>(&menu), &plain}) {
        button->setText("text");
        button->resize(100, 40);
    }
    for (const int scale : {1, 2})
        QCOMPARE(rendered(menu, scale), rendered(plain, scale));
}

void tst_CRkMenuButton::triangle_data()
{
    addScales();
}

// The picture of each scale is loaded by a process of its own.
void tst_CRkMenuButton::triangle()
{
    QFETCH(int, scale);
    if (!isAtScale(scale))
        return;

    CRkMenuButton menu(nullptr);
    menu.setText("text");
    menu.resize(100, 60);
    const QImage before = rendered(menu, scale);
    menu.AddAction("Line", QString(), tool(1));
    QImage expected = before;
    QImage picture(scale == 2 ? trianglePath.chopped(4) + "@2x.png" : trianglePath);
    QVERIFY(!picture.isNull());
    picture.setDevicePixelRatio(scale);
    QPainter(&expected).drawImage(QPoint(-1, -1), picture);
    QVERIFY(expected != before);
    QCOMPARE(rendered(menu, scale), expected);
}

void tst_CRkMenuButton::manyActions()
{
    Button menu(10000);
    QCOMPARE(actionView()->GetItemCount(), 10000);
    menu.slotShowPopMenu();
    QVERIFY(comesOnScreen(actionView()));
    QVERIFY(actionView()->height() < 200);
    menu.slotShowPopMenu();
    menu.SetBtnState(tool(9999));
    QCOMPARE(menu.property("ToolType"), QVariant(9999));
    QCOMPARE(menu.styleSheet(), sheet("m_pBtnDraw", ":/tool_9999_"));
}

void tst_CRkMenuButton::oddTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("100,000 characters") << QString(100000, QLatin1Char('8'));
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1\u05d2");
}

void tst_CRkMenuButton::oddTexts()
{
    QFETCH(QString, text);
    Button menu(0);
    menu.setLayoutDirection(Qt::RightToLeft);
    menu.setText(text);
    menu.AddAction(text, QString(), tool(5));
    QVERIFY(!rendered(menu, 2).isNull());
    // The corner is at the right in either direction of writing.
    sendMouse(menu, QEvent::MouseButtonPress, {5, 35}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(menu, QEvent::MouseButtonRelease, {5, 35}, Qt::LeftButton, Qt::NoButton);
    QVERIFY(!menu.heard.contains("triangle"));
    sendMouse(menu, QEvent::MouseButtonPress, {95, 35}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(menu, QEvent::MouseButtonRelease, {95, 35}, Qt::LeftButton, Qt::NoButton);
    QVERIFY(actionView()->isVisible());
    QCOMPARE(actionList()->item(0)->text(), text);
}

void tst_CRkMenuButton::description()
{
    CRkMenuButton menu(nullptr);
    QCOMPARE(menu.accessibleDescription(), QString());
    menu.AddAction("Line", QString(), tool(1));
    QCOMPARE(menu.accessibleDescription(), QString("Alt+Down opens the list of tools"));
    menu.setAccessibleDescription("the host's own");
    menu.AddAction("Area", QString(), tool(2));
    QCOMPARE(menu.accessibleDescription(), QString("the host's own"));
}

QTEST_MAIN(tst_CRkMenuButton)
#include "tst_CRkMenuButton.moc"
