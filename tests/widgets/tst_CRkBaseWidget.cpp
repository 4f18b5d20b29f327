// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseWidget.h>

#include "support/WindowWaits.h"
#include "widgets/SendMouse.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

namespace {

/// Lets the test call the handlers.
class Widget : public CRkBaseWidget
{
public:
    using CRkBaseWidget::CRkBaseWidget;
    using CRkBaseWidget::mouseMoveEvent;
    using CRkBaseWidget::mousePressEvent;
    using CRkBaseWidget::mouseReleaseEvent;
    using CRkBaseWidget::showEvent;
};

} // namespace

class tst_CRkBaseWidget : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void dragAnywhere_data();
    void dragAnywhere();
    void rightButtonDoesNotDrag();
    void leftAmongHeldButtonsDrags();
    void releaseEndsDrag_data();
    void releaseEndsDrag();
    void disabledMovingStartsNoDrag();
    void disablingStopsDragAtOnce();
    void eventsReachTheBaseHandler();
    void everyShowSetsMapped();
    void showingAgainStartsWithoutADrag();
};

void tst_CRkBaseWidget::construction()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    const QIcon before = QApplication::windowIcon();
    QApplication::setWindowIcon(QIcon(picture));
    QWidget parent;
    const CRkBaseWidget widget(&parent);
    const CRkBaseWidget parentless(nullptr);
    const qint64 iconKey = QApplication::windowIcon().cacheKey();
    QApplication::setWindowIcon(before);

    QCOMPARE(widget.windowIcon().cacheKey(), iconKey);
    QCOMPARE(int(widget.windowFlags()), 0x801);
    QCOMPARE(int(parentless.windowFlags()), 0x801);
    QVERIFY(widget.isWindow());
    QCOMPARE(widget.parentWidget(), &parent);
    QCOMPARE(widget.metaObject(), &QWidget::staticMetaObject);
}

void tst_CRkBaseWidget::dragAnywhere_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("top left corner") << QPoint(1, 0);
    QTest::newRow("middle") << QPoint(100, 75);
    QTest::newRow("lower right") << QPoint(150, 100);
    QTest::newRow("on a label") << QPoint(25, 25);
}

void tst_CRkBaseWidget::dragAnywhere()
{
    QFETCH(QPoint, at);
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    QLabel label("text", &widget);
    label.setGeometry(20, 20, 30, 20);
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    QWindow* window = widget.windowHandle();

    QTest::mousePress(window, Qt::LeftButton, {}, at);
    QCOMPARE(widget.pos(), QPoint(100, 120));
    QTest::mouseMove(window, at + QPoint(30, 20));
    QCOMPARE(widget.pos(), QPoint(130, 140));
    QTest::mouseMove(window, at + QPoint(0, 7));
    QCOMPARE(widget.pos(), QPoint(130, 147));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at);
    QTest::mouseMove(window, at + QPoint(40, 40));
    QCOMPARE(widget.pos(), QPoint(130, 147));
}

void tst_CRkBaseWidget::rightButtonDoesNotDrag()
{
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    QWindow* window = widget.windowHandle();

    QTest::mousePress(window, Qt::RightButton, {}, QPoint(50, 50));
    QTest::mouseMove(window, QPoint(90, 60));
    QCOMPARE(widget.pos(), QPoint(100, 120));
    // A left button that comes later without a press of its own changes nothing.
    sendMouse(widget, QEvent::MouseMove, {95, 65}, Qt::NoButton, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(widget.pos(), QPoint(100, 120));
    QTest::mouseRelease(window, Qt::RightButton, {}, QPoint(90, 60));
}

void tst_CRkBaseWidget::leftAmongHeldButtonsDrags()
{
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
    sendMouse(widget, QEvent::MouseButtonPress, {50, 50}, Qt::RightButton, both);
    sendMouse(widget, QEvent::MouseMove, {60, 55}, Qt::NoButton, both);
    QCOMPARE(widget.pos(), QPoint(110, 125));
    sendMouse(widget, QEvent::MouseMove, {60, 55}, Qt::NoButton, Qt::RightButton);
    sendMouse(widget, QEvent::MouseMove, {60, 55}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(widget.pos(), QPoint(110, 125));
}

void tst_CRkBaseWidget::releaseEndsDrag_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void tst_CRkBaseWidget::releaseEndsDrag()
{
    QFETCH(Qt::MouseButton, button);
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    sendMouse(widget, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseMove, {51, 50}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(101, 120));
    sendMouse(widget, QEvent::MouseButtonRelease, {50, 50}, button, Qt::NoButton);
    sendMouse(widget, QEvent::MouseMove, {80, 80}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(101, 120));
}

void tst_CRkBaseWidget::disabledMovingStartsNoDrag()
{
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    widget.EnableMove(false);
    sendMouse(widget, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    widget.EnableMove(true);
    sendMouse(widget, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(100, 120));
    sendMouse(widget, QEvent::MouseButtonRelease, {60, 60}, Qt::LeftButton, Qt::NoButton);

    sendMouse(widget, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(110, 130));
}

void tst_CRkBaseWidget::disablingStopsDragAtOnce()
{
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    sendMouse(widget, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(110, 130));
    widget.EnableMove(false);
    sendMouse(widget, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(110, 130));
    // The drag itself goes on until the release, so it takes up again.
    widget.EnableMove(true);
    sendMouse(widget, QEvent::MouseMove, {55, 52}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), QPoint(115, 132));
}

void tst_CRkBaseWidget::eventsReachTheBaseHandler()
{
    // The base handlers refuse every mouse event, so that Qt looks for somebody else.
    Widget widget(nullptr);
    const auto refused = [&widget](QEvent::Type type, void (Widget::*handler)(QMouseEvent*)) {
        QMouseEvent event(type, {5, 5}, {5, 5}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        event.accept();
        (widget.*handler)(&event);
        return !event.isAccepted();
    };
    QVERIFY(refused(QEvent::MouseButtonPress, &Widget::mousePressEvent));
    QVERIFY(refused(QEvent::MouseMove, &Widget::mouseMoveEvent));
    QVERIFY(refused(QEvent::MouseButtonRelease, &Widget::mouseReleaseEvent));
}

void tst_CRkBaseWidget::everyShowSetsMapped()
{
    Widget widget(nullptr);
    for (int i = 0; i < 2; ++i) {
        widget.setAttribute(Qt::WA_Mapped, false);
        QShowEvent show;
        widget.showEvent(&show);
        QVERIFY(widget.testAttribute(Qt::WA_Mapped));
    }
}

void tst_CRkBaseWidget::showingAgainStartsWithoutADrag()
{
    CRkBaseWidget widget(nullptr);
    widget.setGeometry(100, 120, 200, 150);
    widget.show();
    sendMouse(widget, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    widget.hide(); // The release goes elsewhere.
    widget.show();
    const QPoint before = widget.pos();
    sendMouse(widget, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(widget.pos(), before);
}

QTEST_MAIN(tst_CRkBaseWidget)
#include "tst_CRkBaseWidget.moc"
