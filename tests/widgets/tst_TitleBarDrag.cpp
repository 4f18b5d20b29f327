// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseDialog.h>
#include <RkBaseUI/CRkProgressWgt.h>

#include "support/WindowWaits.h"
#include "widgets/AtScale.h"
#include "widgets/SendMouse.h"
#include "widgets/VerifyDrag.h"

#include <QTest>

#include <memory>

namespace {

/// Counts the mouse events that the dialog in it passes on.
class Parent : public QWidget
{
public:
    int presses = 0;
    int moves = 0;
    int releases = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void mouseMoveEvent(QMouseEvent*) override { ++moves; }
    void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
};

using Make = std::unique_ptr<QDialog> (*)(QWidget* parent);

std::unique_ptr<QDialog> baseDialog(QWidget* parent)
{
    return std::make_unique<CRkBaseDialog>(parent);
}

std::unique_ptr<QDialog> progressWidget(QWidget* parent)
{
    return std::make_unique<CRkProgressWgt>(QStringLiteral("Upload"), parent);
}

struct Kind
{
    const char* name;
    Make make;
};

/// Every window that is dragged by its title bar.
constexpr Kind kinds[] = {{"base dialog", baseDialog}, {"progress widget", progressWidget}};

void addKinds()
{
    QTest::addColumn<Make>("make");
    for (const Kind& kind : kinds)
        QTest::newRow(kind.name) << kind.make;
}

struct Place
{
    const char* name;
    QPoint at;
};

void addKindsAndPlaces(std::initializer_list<Place> places)
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QPoint>("at");
    for (const Kind& kind : kinds) {
        for (const Place& place : places)
            QTest::addRow("%s, %s", kind.name, place.name) << kind.make << place.at;
    }
}

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_TitleBarDrag : public QObject
{
    Q_OBJECT

private slots:
    void dragByTitleBar_data();
    void dragByTitleBar();
    void dragAtDoubleScale_data() { addKinds(); }
    void dragAtDoubleScale();
    void pressOffTitleBarDoesNotDrag_data();
    void pressOffTitleBarDoesNotDrag();
    void rightButtonDoesNotDrag_data() { addKinds(); }
    void rightButtonDoesNotDrag();
    void leftAmongHeldButtonsDrags_data() { addKinds(); }
    void leftAmongHeldButtonsDrags();
    void releaseEndsDrag_data();
    void releaseEndsDrag();
    void titleBarRectangleCountsWhileHidden_data() { addKinds(); }
    void titleBarRectangleCountsWhileHidden();
    void embeddedDialogKeepsPressesAndMoves_data() { addKinds(); }
    void embeddedDialogKeepsPressesAndMoves();
};

void tst_TitleBarDrag::dragByTitleBar_data()
{
    addKindsAndPlaces({{"free space", {150, 16}},
                       {"top left corner", {1, 0}},
                       {"last line", {150, 31}},
                       {"first mark or letter", {20, 16}},
                       {"title", {50, 16}}});
}

void tst_TitleBarDrag::dragByTitleBar()
{
    QFETCH(Make, make);
    QFETCH(QPoint, at);
    const std::unique_ptr<QDialog> dialog = make(nullptr);
    verifyDrag(*dialog, at);
}

void tst_TitleBarDrag::dragAtDoubleScale()
{
    QFETCH(Make, make);
    if (!isAtScale(2))
        return;
    const std::unique_ptr<QDialog> dialog = make(nullptr);
    verifyDrag(*dialog, {150, 16});
    QCOMPARE(qRound(dialog->windowHandle()->devicePixelRatio()), 2);
}

void tst_TitleBarDrag::pressOffTitleBarDoesNotDrag_data()
{
    addKindsAndPlaces({{"first line of the content", {150, 32}},
                       {"content", {150, 50}},
                       {"button row", {20, 80}}});
}

void tst_TitleBarDrag::pressOffTitleBarDoesNotDrag()
{
    QFETCH(Make, make);
    QFETCH(QPoint, at);
    const std::unique_ptr<QDialog> owner = make(nullptr);
    QDialog& dialog = *owner;
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::LeftButton, {}, at);
    QTest::mouseMove(window, at + QPoint(30, 10));
    QTest::mouseMove(window, QPoint(150, 16));
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at);
}

void tst_TitleBarDrag::rightButtonDoesNotDrag()
{
    QFETCH(Make, make);
    const std::unique_ptr<QDialog> owner = make(nullptr);
    QDialog& dialog = *owner;
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::RightButton, {}, QPoint(150, 16));
    QTest::mouseMove(window, QPoint(180, 20));
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    // A left button that comes later without a press of its own on the title bar changes nothing.
    sendMouse(dialog, QEvent::MouseMove, {190, 30}, Qt::NoButton, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseRelease(window, Qt::RightButton, {}, QPoint(180, 20));
}

void tst_TitleBarDrag::leftAmongHeldButtonsDrags()
{
    QFETCH(Make, make);
    const std::unique_ptr<QDialog> owner = make(nullptr);
    QDialog& dialog = *owner;
    dialog.move(100, 120);
    const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
    sendMouse(dialog, QEvent::MouseButtonPress, {50, 10}, Qt::RightButton, both);
    sendMouse(dialog, QEvent::MouseMove, {60, 15}, Qt::NoButton, both);
    QCOMPARE(dialog.pos(), QPoint(110, 125));
    sendMouse(dialog, QEvent::MouseMove, {60, 15}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(dialog.pos(), QPoint(110, 125));
    sendMouse(dialog, QEvent::MouseMove, {60, 15}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(dialog.pos(), QPoint(110, 125));
    sendMouse(dialog, QEvent::MouseMove, {51, 10}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(111, 125));
}

void tst_TitleBarDrag::releaseEndsDrag_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("at");
    for (const Kind& kind : kinds) {
        const auto row = [&kind](const char* name) -> QTestData& {
            return QTest::addRow("%s, %s", kind.name, name) << kind.make;
        };
        row("left on the title bar") << Qt::LeftButton << QPoint(50, 10);
        row("left on the content") << Qt::LeftButton << QPoint(50, 60);
        row("left outside") << Qt::LeftButton << QPoint(-50, 900);
        row("right") << Qt::RightButton << QPoint(50, 10);
    }
}

void tst_TitleBarDrag::releaseEndsDrag()
{
    QFETCH(Make, make);
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, at);
    const std::unique_ptr<QDialog> owner = make(nullptr);
    QDialog& dialog = *owner;
    dialog.move(100, 120);
    sendMouse(dialog, QEvent::MouseButtonPress, {50, 10}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(dialog, QEvent::MouseMove, {55, 10}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
    sendMouse(dialog, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    sendMouse(dialog, QEvent::MouseMove, {90, 40}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
}

void tst_TitleBarDrag::titleBarRectangleCountsWhileHidden()
{
    QFETCH(Make, make);
    const std::unique_ptr<QDialog> owner = make(nullptr);
    QDialog& dialog = *owner;
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    dialog.findChild<QWidget*>(QStringLiteral("widget_2"))->hide();
    QCoreApplication::sendPostedEvents();
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(150, 16));
    QTest::mouseMove(window, QPoint(160, 26));
    QCOMPARE(dialog.pos(), QPoint(110, 130));
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(150, 16));

    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(150, 40));
    QTest::mouseMove(window, QPoint(160, 50));
    QCOMPARE(dialog.pos(), QPoint(110, 130));
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(150, 40));
}

void tst_TitleBarDrag::embeddedDialogKeepsPressesAndMoves()
{
    QFETCH(Make, make);
    Parent parent;
    parent.resize(600, 400);
    const std::unique_ptr<QDialog> owner = make(&parent);
    QDialog& dialog = *owner;
    dialog.move(40, 50);
    parent.move(20, 30);
    parent.show();
    dialog.show();
    sendMouse(dialog, QEvent::MouseButtonPress, {50, 10}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(dialog, QEvent::MouseMove, {65, 30}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(55, 70));
    sendMouse(dialog, QEvent::MouseButtonRelease, {50, 10}, Qt::LeftButton, Qt::NoButton);
    sendMouse(dialog, QEvent::MouseButtonPress, {50, 60}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(dialog, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(parent.presses, 0);
    QCOMPARE(parent.moves, 0);
    QCOMPARE(parent.releases, 1);
}

QTEST_MAIN(tst_TitleBarDrag)
#include "tst_TitleBarDrag.moc"
