// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Render.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/CRkSlider.h>

#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <QTest>

#include <memory>

namespace {

/// Counts how often it is painted and tells the style option.
class Slider : public CRkSlider
{
public:
    using CRkSlider::CRkSlider;
    using CRkSlider::initStyleOption;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        CRkSlider::paintEvent(event);
    }
};

QImage plainSlider(const CRkSlider& like, int scale)
{
    QSlider plain(like.orientation());
    plain.setStyle(like.style());
    plain.resize(like.size());
    plain.setValue(like.value());
    plain.setEnabled(like.isEnabled());
    plain.setTickPosition(like.tickPosition());
    plain.setLayoutDirection(like.layoutDirection());
    return rendered(plain, scale);
}

/// A font that is the same on images and on the screen.
QFont fontOf(int pixelSize)
{
    QFont font;
    font.setPixelSize(pixelSize);
    return font;
}

/// The plate behind the text.
QRect plateOf(const Slider& slider, const QFont& font, const QString& text)
{
    QStyleOptionSlider option;
    slider.initStyleOption(&option);
    QRect plate = slider.style()->subControlRect(QStyle::CC_Slider, &option,
                                                 QStyle::SC_SliderHandle, &slider);
    plate.setWidth(QFontMetrics(font).horizontalAdvance(text));
    return plate;
}

/// A plain slider with plate and text as they are to be, drawn on their own.
QImage expected(const Slider& slider, int scale, const QFont& font, const QString& text)
{
    QImage image = plainSlider(slider, scale);
    const QRect plate = plateOf(slider, font, text);
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto); // That of the text itself.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(27, 27, 27));
    painter.drawRoundedRect(plate, 5, 5);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(plate, Qt::AlignCenter, text);
    return image;
}

int brightest(const QImage& image, const QRect& area)
{
    int value = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            value = qMax(value, image.pixelColor(x, y).value());
    }
    return value;
}

} // namespace

class tst_CRkSlider : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void notLoading_data() { addScales(); }
    void notLoading();
    void plate_data() { addScales(); }
    void plate();
    void loading_data();
    void loading();
    void plateKeepsUpWithTheSlider();
    void fontOfTheSlider();
    void ticksAreNotDrawnWhileLoading();
    void otherStyles();
    void textRepaintsAtOnce();
    void changesAreShown();
};

void tst_CRkSlider::construction()
{
    QWidget parent;
    const auto* slider = new CRkSlider(&parent);
    QCOMPARE(slider->parentWidget(), &parent);
    QCOMPARE(slider->orientation(), QSlider(nullptr).orientation());
    QCOMPARE(slider->value(), 0);
    QCOMPARE(CRkSlider::staticMetaObject.superClass(), &QSlider::staticMetaObject);
}

void tst_CRkSlider::notLoading()
{
    QFETCH(int, scale);
    Slider slider(nullptr);
    slider.setOrientation(Qt::Horizontal);
    slider.resize(120, 30);
    slider.setValue(40);
    slider.SetHandleTextPattern("45%");
    QCOMPARE(rendered(slider, scale), plainSlider(slider, scale));
    slider.SetLoading(true);
    QVERIFY(rendered(slider, scale) != plainSlider(slider, scale));
    slider.SetLoading(false);
    QCOMPARE(rendered(slider, scale), plainSlider(slider, scale));
}

void tst_CRkSlider::plate()
{
    QFETCH(int, scale);
    Slider slider(nullptr);
    slider.setOrientation(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setValue(40);
    const QFont font = fontOf(9);
    slider.SetHandleFont(font);
    const QString text = "loading 45%";
    slider.SetHandleTextPattern(text);
    slider.SetLoading(true);
    const QImage image = rendered(slider, scale);
    const QImage plain = plainSlider(slider, scale);
    const QRect rect = plateOf(slider, font, text);
    QVERIFY(rect.width() > 30);
    QCOMPARE(difference(image, plain), QRect(rect.topLeft() * scale, rect.size() * scale));
    QCOMPARE(colorAt(image, {rect.left() + 6, rect.bottom()}), QColor(27, 27, 27));
    QCOMPARE(colorAt(image, {rect.center().x(), rect.top()}), QColor(27, 27, 27));
    // A round corner leaves what lies below it.
    QCOMPARE(colorAt(image, rect.topRight()), colorAt(plain, rect.topRight()));
    const QRect pixels(rect.topLeft() * scale, rect.size() * scale);
    QVERIFY(brightest(image, pixels.adjusted(6 * scale, 0, -6 * scale, 0)) > 180);
}

void tst_CRkSlider::loading_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("at the begin") << "0%" << 0 << 10 << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("in the middle") << "50%" << 50 << 10 << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("cut at the end")
        << "100 per cent" << 99 << 10 << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("large font") << "50%" << 50 << 40 << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("no text") << "" << 50 << 10 << Qt::Horizontal << Qt::LeftToRight;
    QTest::newRow("upright") << "50%" << 50 << 10 << Qt::Vertical << Qt::LeftToRight;
    QTest::newRow("right to left")
        << QString::fromUtf8("\u05d0\u05d1 50%") << 50 << 10 << Qt::Horizontal << Qt::RightToLeft;
    QTest::newRow("100,000 characters")
        << QString(100000, QLatin1Char('8')) << 10 << 10 << Qt::Horizontal << Qt::LeftToRight;
}

void tst_CRkSlider::loading()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    QFETCH(int, pixelSize);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    Slider slider(nullptr);
    slider.setOrientation(orientation);
    slider.setLayoutDirection(direction);
    slider.resize(orientation == Qt::Horizontal ? QSize(120, 30) : QSize(60, 120));
    slider.setValue(value);
    const QFont font = fontOf(pixelSize);
    slider.SetHandleFont(font);
    slider.SetHandleTextPattern(text);
    slider.SetLoading(true);
    for (const int scale : {1, 2})
        QVERIFY(alike(rendered(slider, scale), expected(slider, scale, font, text)));
    QCOMPARE(rendered(slider, 1) == plainSlider(slider, 1), text.isEmpty());
}

void tst_CRkSlider::plateKeepsUpWithTheSlider()
{
    Slider slider(nullptr);
    slider.setOrientation(Qt::Horizontal);
    slider.resize(200, 30);
    slider.SetHandleFont(fontOf(10));
    slider.SetLoading(true);
    const auto right = [&slider](int pixelSize, const QString& text) {
        return alike(rendered(slider, 1), expected(slider, 1, fontOf(pixelSize), text));
    };
    slider.SetHandleTextPattern("11%");
    QVERIFY(right(10, "11%"));
    slider.SetHandleTextPattern("12%");
    QVERIFY(right(10, "12%"));
    slider.setValue(50);
    QVERIFY(right(10, "12%"));
    slider.SetHandleFont(fontOf(9));
    QVERIFY(right(9, "12%"));
    slider.SetHandleTextPattern(QString::fromUtf8("\u05d0 12%!"));
    QVERIFY(right(9, QString::fromUtf8("\u05d0 12%!")));
    slider.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(right(9, QString::fromUtf8("\u05d0 12%!")));
}

// What is not set on the handle's font comes from the slider's.
void tst_CRkSlider::fontOfTheSlider()
{
    Slider slider(nullptr);
    slider.setOrientation(Qt::Horizontal);
    slider.resize(200, 30);
    slider.SetHandleTextPattern("12%");
    slider.SetLoading(true);
    for (const int pixelSize : {10, 14}) {
        slider.setFont(fontOf(pixelSize));
        QVERIFY(alike(rendered(slider, 1), expected(slider, 1, fontOf(pixelSize), "12%")));
    }
    slider.SetHandleFont(fontOf(8));
    QVERIFY(alike(rendered(slider, 1), expected(slider, 1, fontOf(8), "12%")));
}

void tst_CRkSlider::ticksAreNotDrawnWhileLoading()
{
    Slider slider(nullptr);
    slider.setOrientation(Qt::Horizontal);
    slider.resize(120, 40);
    slider.setTickPosition(QSlider::TicksBelow);
    slider.setTickInterval(10);
    const QImage withTicks = rendered(slider, 1);
    slider.SetLoading(true);
    const QImage image = rendered(slider, 1);
    QVERIFY(image != withTicks);

    QImage expectedImage(image);
    expectedImage.fill(Qt::white);
    QStyleOptionSlider option;
    slider.initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    QPainter painter(&expectedImage);
    painter.fillRect(slider.rect(), slider.palette().window());
    slider.style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, &slider);
    painter.end();
    QCOMPARE(image, expectedImage);
}

void tst_CRkSlider::otherStyles()
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create("windows"));
    QVERIFY(style);
    Slider slider(nullptr);
    slider.setStyle(style.get());
    slider.setOrientation(Qt::Horizontal);
    slider.resize(120, 30);
    slider.setValue(30);
    const QFont font = fontOf(10);
    slider.SetHandleFont(font);
    slider.SetHandleTextPattern("30%");
    slider.SetLoading(true);
    QVERIFY(alike(rendered(slider, 1), expected(slider, 1, font, "30%")));

    slider.setStyleSheet("QSlider::handle{width:20px;background:rgb(1,2,3);}"
                         "QSlider::groove{background:rgb(9,8,7);height:12px;}");
    slider.SetHandleTextPattern(QString());
    const QImage image = rendered(slider, 1);
    QCOMPARE(colorAt(image, plateOf(slider, font, "x").center()), QColor(1, 2, 3));
    QCOMPARE(colorAt(image, {100, 15}), QColor(9, 8, 7));
}

void tst_CRkSlider::textRepaintsAtOnce()
{
    Slider slider(nullptr);
    slider.show();
    QVERIFY(comesOnScreen(&slider));
    const int before = slider.paints;
    slider.SetHandleTextPattern("1%");
    QCOMPARE(slider.paints, before + 1);
    slider.SetHandleTextPattern("1%");
    QCOMPARE(slider.paints, before + 2);
}

void tst_CRkSlider::changesAreShown()
{
    Slider slider(nullptr);
    slider.show();
    QVERIFY(comesOnScreen(&slider));
    QCoreApplication::processEvents();
    int before = slider.paints;
    slider.SetLoading(true);
    QTRY_VERIFY(slider.paints > before);
    before = slider.paints;
    slider.SetHandleFont(QFont("DejaVu Sans", 20));
    QTRY_VERIFY(slider.paints > before);
}

QTEST_MAIN(tst_CRkSlider)
#include "tst_CRkSlider.moc"
