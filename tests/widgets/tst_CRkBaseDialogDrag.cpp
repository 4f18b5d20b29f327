// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseDialog.h>

#include "widgets/SendMouse.h"

#include <QTest>

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

} // namespace

class tst_CRkBaseDialogDrag : public QObject
{
    Q_OBJECT

private slots:
    void dragByTitleBar_data();
    void dragByTitleBar();
    void pressOffTitleBarDoesNotDrag_data();
    void pressOffTitleBarDoesNotDrag();
    void rightButtonDoesNotDrag();
    void leftAmongHeldButtonsDrags();
    void releaseEndsDrag_data();
    void releaseEndsDrag();
    void titleBarRectangleCountsWhileHidden();
    void embeddedDialogKeepsPressesAndMoves();
};

void tst_CRkBaseDialogDrag::dragByTitleBar_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("free space") << QPoint(150, 16);
    QTest::newRow("top left corner") << QPoint(1, 0);
    QTest::newRow("last line") << QPoint(150, 31);
    QTest::newRow("logo") << QPoint(20, 16);
    QTest::newRow("title") << QPoint(50, 16);
}

void tst_CRkBaseDialogDrag::dragByTitleBar()
{
    QFETCH(QPoint, at);
    CRkBaseDialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::LeftButton, {}, at);
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseMove(window, at + QPoint(30, 20));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
    QTest::mouseMove(window, at + QPoint(0, 7));
    QCOMPARE(dialog.pos(), QPoint(130, 147));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at);
    QTest::mouseMove(window, at + QPoint(40, 40));
    QCOMPARE(dialog.pos(), QPoint(130, 147));
}

void tst_CRkBaseDialogDrag::pressOffTitleBarDoesNotDrag_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("first line of the content") << QPoint(150, 32);
    QTest::newRow("content") << QPoint(150, 50);
    QTest::newRow("button row") << QPoint(20, 80);
}

void tst_CRkBaseDialogDrag::pressOffTitleBarDoesNotDrag()
{
    QFETCH(QPoint, at);
    CRkBaseDialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::LeftButton, {}, at);
    QTest::mouseMove(window, at + QPoint(30, 10));
    QTest::mouseMove(window, QPoint(150, 16));
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at);
}

void tst_CRkBaseDialogDrag::rightButtonDoesNotDrag()
{
    CRkBaseDialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QWindow* window = dialog.windowHandle();

    QTest::mousePress(window, Qt::RightButton, {}, QPoint(150, 16));
    QTest::mouseMove(window, QPoint(180, 20));
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    // A left button that comes later without a press of its own on the title bar changes nothing.
    sendMouse(dialog, QEvent::MouseMove, {190, 30}, Qt::NoButton, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(dialog.pos(), QPoint(100, 120));
    QTest::mouseRelease(window, Qt::RightButton, {}, QPoint(180, 20));
}

void tst_CRkBaseDialogDrag::leftAmongHeldButtonsDrags()
{
    CRkBaseDialog dialog(nullptr);
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

void tst_CRkBaseDialogDrag::releaseEndsDrag_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("at");
    QTest::newRow("left on the title bar") << Qt::LeftButton << QPoint(50, 10);
    QTest::newRow("left on the content") << Qt::LeftButton << QPoint(50, 60);
    QTest::newRow("left outside") << Qt::LeftButton << QPoint(-50, 900);
    QTest::newRow("right") << Qt::RightButton << QPoint(50, 10);
}

void tst_CRkBaseDialogDrag::releaseEndsDrag()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, at);
    CRkBaseDialog dialog(nullptr);
    dialog.move(100, 120);
    sendMouse(dialog, QEvent::MouseButtonPress, {50, 10}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(dialog, QEvent::MouseMove, {55, 10}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
    sendMouse(dialog, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    sendMouse(dialog, QEvent::MouseMove, {90, 40}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
}

void tst_CRkBaseDialogDrag::titleBarRectangleCountsWhileHidden()
{
    CRkBaseDialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.SetFrameHidden(true);
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

void tst_CRkBaseDialogDrag::embeddedDialogKeepsPressesAndMoves()
{
    Parent parent;
    parent.resize(600, 400);
    CRkBaseDialog dialog(&parent);
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

QTEST_MAIN(tst_CRkBaseDialogDrag)
#include "tst_CRkBaseDialogDrag.moc"
