// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Render.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/CRkTipPushButton.h>

#include <QPainter>
#include <QTest>

namespace {

/// Counts how often it is painted.
class TipButton : public CRkTipPushButton
{
public:
    using CRkTipPushButton::CRkTipPushButton;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        CRkTipPushButton::paintEvent(event);
    }
};

QImage plainButton(const CRkTipPushButton& like, int scale)
{
    QPushButton plain(like.text());
    plain.resize(like.size());
    plain.setEnabled(like.isEnabled());
    plain.setLayoutDirection(like.layoutDirection());
    return rendered(plain, scale);
}

/// The plain button with the tip as it is to be, drawn on its own.
QImage expected(const CRkTipPushButton& button, int scale, const QRect& tip, const QColor& color,
                const QString& text)
{
    QImage image = plainButton(button, scale);
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto); // That of the text itself.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(tip);
    painter.setPen(button.palette().color(button.foregroundRole()));
    painter.setFont(button.font());
    if (!tip.isEmpty())
        painter.drawText(tip, 132, text);
    return image;
}

} // namespace

class tst_CRkTipPushButton : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void withoutTip_data() { addScales(); }
    void withoutTip();
    void dot_data() { addScales(); }
    void dot();
    void tip_data();
    void tip();
    void tipOfDisabledButton();
    void tipKeepsUpWithTheButton();
    void textColorOfTheActiveWindow();
    void turned();
    void visibilityRepaintsAtOnce();
    void changesAreShown();
    void clicksAsAnyButton();
};

void tst_CRkTipPushButton::construction()
{
    QWidget parent;
    const auto* button = new CRkTipPushButton(&parent);
    QCOMPARE(button->parentWidget(), &parent);
    QVERIFY(!button->TipVisible());
    QCOMPARE(button->text(), QString());
    QCOMPARE(CRkTipPushButton::staticMetaObject.superClass(), &QPushButton::staticMetaObject);
}

void tst_CRkTipPushButton::withoutTip()
{
    QFETCH(int, scale);
    CRkTipPushButton button(nullptr);
    button.resize(80, 30);
    button.setText("text");
    button.SetTipText("7");
    QCOMPARE(rendered(button, scale), plainButton(button, scale));
    button.SetTipVisible(true);
    QVERIFY(rendered(button, scale) != plainButton(button, scale));
    button.SetTipVisible(false);
    QCOMPARE(rendered(button, scale), plainButton(button, scale));
}

// Right edge 79, less the margin and the width: the dot begins at 59.
void tst_CRkTipPushButton::dot()
{
    QFETCH(int, scale);
    CRkTipPushButton button(nullptr);
    button.resize(80, 30);
    button.SetTipVisible(true);
    const QImage image = rendered(button, scale);
    const QImage plain = plainButton(button, scale);
    QCOMPARE(difference(image, plain), QRect(59 * scale, 10 * scale, 10 * scale, 10 * scale));
    QCOMPARE(colorAt(image, {64, 15}), QColor(255, 0, 0));
    QCOMPARE(colorAt(image, {60, 15}), QColor(255, 0, 0));
    QCOMPARE(colorAt(image, {59, 10}), colorAt(plain, {59, 10}));
    QCOMPARE(colorAt(image, {68, 19}), colorAt(plain, {68, 19}));
    // The rim is smooth: one of its pixels lies between red and the button.
    bool between = false;
    for (int x = 59 * scale; x < 69 * scale; ++x) {
        const QColor rim = image.pixelColor(x, 10 * scale);
        between = between
            || (rim.green() > 10 && rim.green() < plain.pixelColor(x, 10 * scale).green() - 10);
    }
    QVERIFY(between);
}

void tst_CRkTipPushButton::tip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("margin"); // right, top
    QTest::addColumn<QColor>("color");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("rect");
    const QColor red = Qt::red;
    QTest::newRow("as at first") << "" << QSize(10, 10) << QSize(10, 10) << red << Qt::LeftToRight
                                 << QRect(69, 10, 10, 10);
    QTest::newRow("digit") << "7" << QSize(16, 14) << QSize(2, 3) << red << Qt::LeftToRight
                           << QRect(71, 3, 16, 14);
    QTest::newRow("own colour") << "12" << QSize(20, 20) << QSize(0, 0) << QColor(0, 120, 60)
                                << Qt::LeftToRight << QRect(69, 0, 20, 20);
    QTest::newRow("translucent colour")
        << "" << QSize(20, 20) << QSize(0, 0) << QColor(0, 0, 255, 99) << Qt::LeftToRight
        << QRect(69, 0, 20, 20);
    QTest::newRow("partly outside") << "x" << QSize(20, 20) << QSize(-10, -10) << red
                                    << Qt::LeftToRight << QRect(79, -10, 20, 20);
    QTest::newRow("larger than the button")
        << QString(20, QLatin1Char('8')) << QSize(200, 100) << QSize(0, -35) << red
        << Qt::LeftToRight << QRect(-111, -35, 200, 100);
    QTest::newRow("empty") << "x" << QSize(0, 0) << QSize(10, 10) << red << Qt::LeftToRight
                           << QRect(79, 10, 0, 0);
    QTest::newRow("two lines") << "1\n2" << QSize(30, 28) << QSize(0, 0) << red << Qt::LeftToRight
                               << QRect(59, 0, 30, 28);
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1") << QSize(30, 20)
                                   << QSize(5, 5) << red << Qt::RightToLeft << QRect(54, 5, 30, 20);
    QTest::newRow("ampersand") << "&A" << QSize(30, 20) << QSize(5, 5) << red << Qt::LeftToRight
                               << QRect(54, 5, 30, 20);
    QTest::newRow("100,000 characters")
        << QString(100000, QLatin1Char('8')) << QSize(20, 20) << QSize(0, 0) << red
        << Qt::LeftToRight << QRect(69, 0, 20, 20);
}

void tst_CRkTipPushButton::tip()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QFETCH(QSize, margin);
    QFETCH(QColor, color);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, rect);
    CRkTipPushButton button(nullptr);
    button.resize(90, 30);
    button.setLayoutDirection(direction);
    QFont font = button.font();
    font.setPixelSize(11); // The same on images and on the screen.
    button.setFont(font);
    button.SetTipText(text);
    button.SetTipSize(size);
    button.SetTipMargin(margin.height(), margin.width());
    button.SetTipBackgroundColor(color);
    button.SetTipVisible(true);
    for (const int scale : {1, 2}) {
        const QImage image = rendered(button, scale);
        QVERIFY(alike(image, expected(button, scale, rect, color, text)));
        const QRect pixels(rect.topLeft() * scale, rect.size() * scale);
        const QRect drawn = difference(image, plainButton(button, scale));
        QCOMPARE(drawn.isEmpty(), rect.isEmpty());
        QVERIFY(drawn.isEmpty() || pixels.contains(drawn));
    }
    const bool textIsSeen =
        !alike(rendered(button, 1), expected(button, 1, rect, color, QString()));
    QCOMPARE(textIsSeen, !text.isEmpty() && !rect.isEmpty());
}

void tst_CRkTipPushButton::tipOfDisabledButton()
{
    CRkTipPushButton button(nullptr);
    button.resize(90, 30);
    button.setEnabled(false);
    button.SetTipVisible(true);
    QVERIFY(
        alike(rendered(button, 1), expected(button, 1, QRect(69, 10, 10, 10), Qt::red, QString())));
}

void tst_CRkTipPushButton::tipKeepsUpWithTheButton()
{
    CRkTipPushButton button(nullptr);
    button.resize(90, 40);
    QFont font = button.font();
    font.setPixelSize(11);
    button.setFont(font);
    button.SetTipSize({30, 20});
    button.SetTipText("1");
    button.SetTipVisible(true);
    const auto right = [&button](const QRect& tip, const QColor& color, const QString& text) {
        return alike(rendered(button, 1), expected(button, 1, tip, color, text));
    };
    QVERIFY(right({49, 10, 30, 20}, Qt::red, "1"));
    button.SetTipText("2");
    QVERIFY(right({49, 10, 30, 20}, Qt::red, "2"));
    button.SetTipBackgroundColor(Qt::cyan);
    QVERIFY(right({49, 10, 30, 20}, Qt::cyan, "2"));
    button.SetTipSize({20, 20});
    QVERIFY(right({59, 10, 20, 20}, Qt::cyan, "2"));
    button.SetTipMargin(3, 4);
    QVERIFY(right({65, 3, 20, 20}, Qt::cyan, "2"));
    button.resize(100, 30);
    QVERIFY(right({75, 3, 20, 20}, Qt::cyan, "2"));
    font.setPixelSize(16);
    button.setFont(font);
    QVERIFY(right({75, 3, 20, 20}, Qt::cyan, "2"));
    const QImage before = rendered(button, 1);
    QPalette palette = button.palette();
    palette.setColor(QPalette::ButtonText, Qt::white);
    button.setPalette(palette);
    QVERIFY(right({75, 3, 20, 20}, Qt::cyan, "2"));
    QVERIFY(!alike(rendered(button, 1), before));
}

// The button hears nothing of it when the palette has two colours for its text.
void tst_CRkTipPushButton::textColorOfTheActiveWindow()
{
    QWidget window;
    window.resize(120, 60);
    CRkTipPushButton button(&window);
    button.resize(100, 40);
    QPalette palette = button.palette();
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::blue);
    palette.setColor(QPalette::Inactive, QPalette::ButtonText, Qt::green);
    button.setPalette(palette);
    button.SetTipSize({30, 30});
    button.SetTipMargin(2, 2);
    button.SetTipText("\u2588");
    button.SetTipVisible(true);
    const auto middle = [&button] { return colorAt(rendered(button, 1), {82, 17}); };
    window.show();
    window.activateWindow();
    QVERIFY(comesToFront(&window));
    QCOMPARE(middle(), QColor(Qt::blue));
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(comesToFront(&other));
    QCOMPARE(middle(), QColor(Qt::green));
}

// Where the button is painted turned, as in a graphics scene, the tip is as sharp as ever.
void tst_CRkTipPushButton::turned()
{
    CRkTipPushButton button(nullptr);
    button.resize(60, 40);
    button.SetTipVisible(true);
    QImage image(40, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(40, 0);
    painter.rotate(90);
    button.render(&painter);
    painter.end();
    // The dot at (39, 10) of 10 x 10 lies at (20, 39) once turned.
    QCOMPARE(image.pixelColor(25, 44), QColor(255, 0, 0));
    QVERIFY(image.pixelColor(15, 44) != QColor(255, 0, 0));
}

void tst_CRkTipPushButton::visibilityRepaintsAtOnce()
{
    TipButton button(nullptr);
    button.resize(80, 30);
    button.show();
    QVERIFY(comesOnScreen(&button));
    const int before = button.paints;
    button.SetTipVisible(true);
    QCOMPARE(button.paints, before + 1);
    QVERIFY(button.TipVisible());
    button.SetTipVisible(false);
    QCOMPARE(button.paints, before + 2);
    QVERIFY(!button.TipVisible());
}

void tst_CRkTipPushButton::changesAreShown()
{
    TipButton button(nullptr);
    button.resize(80, 30);
    button.SetTipVisible(true);
    button.show();
    QVERIFY(comesOnScreen(&button));
    const auto painted = [&button](const auto& change) {
        QCoreApplication::processEvents();
        const int before = button.paints;
        change();
        return QTest::qWaitFor([&button, before] { return button.paints > before; });
    };
    QVERIFY(painted([&button] { button.SetTipText("1"); }));
    QVERIFY(painted([&button] { button.SetTipSize({12, 12}); }));
    QVERIFY(painted([&button] { button.SetTipMargin(1, 2); }));
    QVERIFY(painted([&button] { button.SetTipBackgroundColor(Qt::blue); }));
}

void tst_CRkTipPushButton::clicksAsAnyButton()
{
    CRkTipPushButton button(nullptr);
    button.resize(80, 30);
    button.SetTipVisible(true);
    int clicks = 0;
    connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(64, 15));
    QCOMPARE(clicks, 1);
}

QTEST_MAIN(tst_CRkTipPushButton)
#include "tst_CRkTipPushButton.moc"
