// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Render.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/RkHoveredPushButton.h>

#include <QCursor>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

const QColor ground(232, 237, 246);

/// Shown at a place of its own, with a colour for its hover state. The mouse is elsewhere.
class Window : public QWidget
{
public:
    Window()
    {
        resize(200, 100);
        move(300, 200);
        button.setGeometry(50, 30, 80, 40);
        button.setStyleSheet(button.styleSheet()
                             + "RkHoveredPushButton:hover{background-color:rgb(232,237,246);}");
        QCursor::setPos(10, 10);
        show();
    }

    /// Puts the mouse there while the button hears nothing of it.
    void moveMouseUnnoticed(QPoint at)
    {
        button.setAttribute(Qt::WA_TransparentForMouseEvents);
        QCursor::setPos(button.mapToGlobal(at));
        QCoreApplication::processEvents();
    }

    RkHoveredPushButton button{this};
};

} // namespace

class tst_RkHoveredPushButton : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void look_data() { addScales(); }
    void look();
    void edges_data();
    void edges();
    void hoverEventIsNotNeeded();
    void paintsAsThePlainButton();
    void disabledIsNotHovered();
    void longTexts_data();
    void longTexts();
};

void tst_RkHoveredPushButton::construction()
{
    QWidget parent;
    const auto* plain = new RkHoveredPushButton(&parent);
    const auto* named = new RkHoveredPushButton("text", &parent);
    QCOMPARE(plain->parentWidget(), &parent);
    QCOMPARE(plain->text(), QString());
    QCOMPARE(named->parentWidget(), &parent);
    QCOMPARE(named->text(), QString("text"));
    QCOMPARE(plain->minimumHeight(), 25);
    QCOMPARE(named->minimumHeight(), 25);
    QCOMPARE(named->styleSheet(), plain->styleSheet());
}

// No border and no plate: the ground is seen everywhere but in the text, which is blue.
void tst_RkHoveredPushButton::look()
{
    QFETCH(int, scale);
    QWidget parent;
    parent.resize(120, 60);
    RkHoveredPushButton button("\u2588\u2588\u2588", &parent);
    button.setGeometry(10, 10, 100, 40);
    QFont font = button.font();
    font.setPixelSize(20);
    button.setFont(font);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::yellow);
    parent.setPalette(palette);
    const QImage image = rendered(parent, scale);
    for (const QPoint at : {QPoint(10, 10), QPoint(60, 10), QPoint(109, 49), QPoint(10, 30),
                            QPoint(15, 15), QPoint(109, 30)})
        QCOMPARE(colorAt(image, at), QColor(Qt::yellow));
    QCOMPARE(colorAt(image, {60, 30}), QColor(58, 136, 244));
}

void tst_RkHoveredPushButton::edges_data()
{
    QTest::addColumn<QPoint>("mouse");
    QTest::addColumn<bool>("hovered");
    QTest::newRow("first pixel") << QPoint(0, 0) << true;
    QTest::newRow("last pixel") << QPoint(79, 39) << true;
    QTest::newRow("left of it") << QPoint(-1, 20) << false;
    QTest::newRow("above") << QPoint(40, -1) << false;
    QTest::newRow("right of it") << QPoint(80, 20) << false;
    QTest::newRow("below") << QPoint(40, 40) << false;
}

void tst_RkHoveredPushButton::edges()
{
    QFETCH(QPoint, mouse);
    QFETCH(bool, hovered);
    Window window;
    QVERIFY(comesOnScreen(&window));
    window.moveMouseUnnoticed(mouse);
    for (const int scale : {1, 2})
        QCOMPARE(colorAt(rendered(window.button, scale), {40, 5}) == ground, hovered);
}

void tst_RkHoveredPushButton::hoverEventIsNotNeeded()
{
    Window window;
    QVERIFY(comesOnScreen(&window));
    QVERIFY(colorAt(rendered(window.button, 1), {40, 5}) != ground);
    window.moveMouseUnnoticed({40, 20});
    QVERIFY(!window.button.underMouse());
    QCOMPARE(colorAt(rendered(window.button, 1), {40, 5}), ground);

    QPushButton plain(&window);
    plain.setGeometry(window.button.geometry());
    plain.setAttribute(Qt::WA_TransparentForMouseEvents);
    plain.setStyleSheet("QPushButton{border:none;}"
                        "QPushButton:hover{background-color:rgb(232,237,246);}");
    plain.show();
    QVERIFY(colorAt(rendered(plain, 1), {40, 5}) != ground);
}

void tst_RkHoveredPushButton::paintsAsThePlainButton()
{
    QCursor::setPos(10, 10);
    RkHoveredPushButton button("text", nullptr);
    QPushButton plain("text");
    for (QPushButton* one : {static_cast<QPushButton*>(&button), &plain}) {
        one->setStyleSheet(QString());
        one->resize(80, 40);
        one->move(300, 300);
        one->setCheckable(true);
    }
    const auto same = [&] {
        return rendered(button, 1) == rendered(plain, 1)
            && rendered(button, 2) == rendered(plain, 2);
    };
    QVERIFY(same());
    plain.setText("other");
    QVERIFY(!same());
    plain.setText("text");
    button.setChecked(true);
    plain.setChecked(true);
    QVERIFY(same());
    button.setDown(true);
    plain.setDown(true);
    QVERIFY(same());
    button.setEnabled(false);
    plain.setEnabled(false);
    QVERIFY(same());
}

void tst_RkHoveredPushButton::disabledIsNotHovered()
{
    Window window;
    QVERIFY(comesOnScreen(&window));
    window.moveMouseUnnoticed({40, 20});
    window.button.setEnabled(false);
    QVERIFY(colorAt(rendered(window.button, 1), {40, 5}) != ground);
}

void tst_RkHoveredPushButton::longTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("100,000 characters") << QString(100000, QLatin1Char('8'));
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1\u05d2");
}

void tst_RkHoveredPushButton::longTexts()
{
    QFETCH(QString, text);
    RkHoveredPushButton button(text, nullptr);
    button.resize(80, 40);
    const QImage drawn = rendered(button, 1);
    button.setText(QString());
    QVERIFY(difference(drawn, rendered(button, 1)).width() > 5);
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_RkHoveredPushButton)
#include "tst_RkHoveredPushButton.moc"
