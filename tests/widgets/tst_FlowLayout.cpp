// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/FlowLayout.h>

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QVBoxLayout>

#include <climits>
#include <memory>

namespace {

/// A style whose answers about spacings and margins are those given.
class Style : public QProxyStyle
{
public:
    int horizontal = -1;
    int vertical = -1;
    int betweenButtonsAcross = -1;
    int betweenButtonsDown = -1;
    int margin = 0;

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        switch (metric) {
        case PM_LayoutHorizontalSpacing:
            return horizontal;
        case PM_LayoutVerticalSpacing:
            return vertical;
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return margin;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
    int layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, const QStyleOption*,
                      const QWidget*) const override
    {
        if (first != QSizePolicy::PushButton || second != QSizePolicy::PushButton)
            return 99;
        return orientation == Qt::Horizontal ? betweenButtonsAcross : betweenButtonsDown;
    }
};

/// A widget of exactly that size in every layout.
QWidget* block(QSize size)
{
    auto* widget = new QWidget;
    widget->setFixedSize(size);
    return widget;
}

QSize sizeOf(const QString& text)
{
    const QStringList sides = text.split('x');
    return {sides.value(0).toInt(), sides.value(1).toInt()};
}

/// Adds a widget for each of the texts "40x20".
void fill(QLayout& layout, const QStringList& sizes)
{
    for (const QString& size : sizes)
        layout.addWidget(block(sizeOf(size)));
}

QVector<QRect> geometries(const QLayout& layout)
{
    QVector<QRect> rects;
    for (int i = 0; i < layout.count(); ++i)
        rects.append(layout.itemAt(i)->geometry());
    return rects;
}

/// A layout item that counts how many of its kind exist.
class CountedItem : public QSpacerItem
{
public:
    explicit CountedItem(int& alive)
        : QSpacerItem(10, 10)
        , m_alive(alive)
    {
        ++m_alive;
    }
    ~CountedItem() override { --m_alive; }
    Q_DISABLE_COPY(CountedItem)

private:
    int& m_alive;
};

} // namespace

class tst_FlowLayout : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void linesFollowTheirRuleOnRandomItems();
    void marginsAndOrigin();
    void rightToLeft();
    void hiddenWidgetsTakeNoRoom();
    void nestedLayoutWithoutWidgetsTakesNoRoom();
    void widgetsWithoutSizeHintShrink();
    void spacersTakeRoom();
    void itemsHaveTheirSizeHint();
    void heightForWidth_data();
    void heightForWidth();
    void heightForWidthPlacesNothing();

    void givenSpacings();
    void spacingOfTopLevelLayout();
    void spacingOfNestedLayout_data();
    void spacingOfNestedLayout();
    void spacingOfFlowLayoutInFlowLayout_data();
    void spacingOfFlowLayoutInFlowLayout();
    void spacingBetweenPushButtons();
    void spacingThatNobodyKnows();
    void spacingWithoutWidget();
    void margin_data();
    void margin();

    void defaults();
    void items();
    void nullItem();
    void addedItemsAreSetOutAtOnce();
    void itemsAreFreed();
    void takenItemIsTheCallers();
    void destroyedWidgetLeaves();
    void nestedLayout();
    void nestedLayoutTakenOut();
    void layoutThatHasAPlace();
    void minimumSize();
    void asLayoutOfAWidget();

    void longText();
    void manyItems();
    void enormousSpacers();
};

void tst_FlowLayout::lines_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("sizes");
    QTest::addColumn<QVector<QRect>>("places"); // spacings 5 across and 3 down
    using Rects = QVector<QRect>;

    QTest::newRow("no items") << 100 << QStringList() << Rects();
    QTest::newRow("one line") << 100 << QStringList({"40x20", "30x20"})
                              << Rects({{0, 0, 40, 20}, {45, 0, 30, 20}});
    QTest::newRow("ends at the edge")
        << 100 << QStringList({"40x20", "55x20"}) << Rects({{0, 0, 40, 20}, {45, 0, 55, 20}});
    QTest::newRow("passes the edge by one pixel")
        << 100 << QStringList({"40x20", "56x20"}) << Rects({{0, 0, 40, 20}, {0, 23, 56, 20}});
    QTest::newRow("spacing alone passes the edge")
        << 100 << QStringList({"98x20", "10x20"}) << Rects({{0, 0, 98, 20}, {0, 23, 10, 20}});
    QTest::newRow("tallest item makes the line")
        << 100 << QStringList({"40x10", "40x30", "10x20", "50x20"})
        << Rects({{0, 0, 40, 10}, {45, 0, 40, 30}, {90, 0, 10, 20}, {0, 33, 50, 20}});
    QTest::newRow("height counts anew in each line")
        << 50 << QStringList({"50x30", "50x10", "50x20"})
        << Rects({{0, 0, 50, 30}, {0, 33, 50, 10}, {0, 46, 50, 20}});
    QTest::newRow("too wide as first item of all")
        << 100 << QStringList({"150x20", "10x20"}) << Rects({{0, 0, 150, 20}, {0, 23, 10, 20}});
    QTest::newRow("too wide after others")
        << 100 << QStringList({"10x20", "150x20", "10x20"})
        << Rects({{0, 0, 10, 20}, {0, 23, 150, 20}, {0, 46, 10, 20}});
    QTest::newRow("flat first item is still the first")
        << 100 << QStringList({"90x0", "90x20"}) << Rects({{0, 0, 90, 0}, {0, 3, 90, 20}});
    QTest::newRow("no width at all")
        << 0 << QStringList({"10x20", "10x20"}) << Rects({{0, 0, 10, 20}, {0, 23, 10, 20}});
}

void tst_FlowLayout::lines()
{
    QFETCH(int, width);
    QFETCH(QStringList, sizes);
    QFETCH(QVector<QRect>, places);
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    fill(*layout, sizes);
    layout->setGeometry({0, 0, width, 500});
    QCOMPARE(geometries(*layout), places);
    int bottom = 0;
    for (const QRect& place : places)
        bottom = qMax(bottom, place.y() + place.height());
    QCOMPARE(layout->heightForWidth(width), bottom);
}

/// The rule said the other way round: what must be true of any two neighbours.
void tst_FlowLayout::linesFollowTheirRuleOnRandomItems()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 50; ++round) {
        QWidget page;
        auto* layout = new FlowLayout(&page, 0, 4, 6);
        for (int i = 0; i < 40; ++i)
            layout->addItem(new QSpacerItem(random.bounded(1, 120), random.bounded(1, 40)));
        const QRect area(random.bounded(50), random.bounded(50), random.bounded(20, 300), 100);
        layout->setGeometry(area);
        const QVector<QRect> places = geometries(*layout);
        QCOMPARE(places.first().topLeft(), area.topLeft());
        int lineBottom = places.first().bottom();
        for (int i = 1; i < places.size(); ++i) {
            const QRect& before = places.at(i - 1);
            const QRect& place = places.at(i);
            const int next = before.x() + before.width() + 4;
            if (place.y() == before.y()) {
                QCOMPARE(place.x(), next);
                QVERIFY(place.right() <= area.right());
            } else {
                QVERIFY(next + place.width() - 1 > area.right());
                QCOMPARE(place.topLeft(), QPoint(area.x(), lineBottom + 1 + 6));
                lineBottom = 0;
            }
            lineBottom = qMax(lineBottom, place.bottom());
        }
        QCOMPARE(layout->heightForWidth(area.width()), lineBottom + 1 - area.y());
    }
}

void tst_FlowLayout::marginsAndOrigin()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    layout->setContentsMargins(7, 11, 13, 17);
    fill(*layout, {"40x20", "35x20", "36x20"});
    layout->setGeometry({100, 200, 100, 500});
    QCOMPARE(geometries(*layout),
             QVector<QRect>({{107, 211, 40, 20}, {152, 211, 35, 20}, {107, 234, 36, 20}}));
    QCOMPARE(layout->heightForWidth(100), 11 + 20 + 3 + 20 + 17);
    QCOMPARE(layout->geometry(), QRect(100, 200, 100, 500));
}

void tst_FlowLayout::rightToLeft()
{
    QWidget page;
    page.setLayoutDirection(Qt::RightToLeft);
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    layout->setContentsMargins(7, 0, 13, 0);
    fill(*layout, {"40x20", "30x20", "50x20"});
    layout->addItem(new QSpacerItem(150, 20));
    layout->setGeometry({0, 0, 120, 500});
    // The area is 100 wide and ends at 107.
    QCOMPARE(
        geometries(*layout),
        QVector<QRect>({{67, 0, 40, 20}, {32, 0, 30, 20}, {57, 23, 50, 20}, {-43, 46, 150, 20}}));
    QCOMPARE(layout->heightForWidth(120), 66);

    page.setLayoutDirection(Qt::LeftToRight);
    layout->setGeometry({0, 0, 120, 500});
    QCOMPARE(geometries(*layout).first(), QRect(7, 0, 40, 20));
}

void tst_FlowLayout::hiddenWidgetsTakeNoRoom()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    fill(*layout, {"40x20", "30x60", "20x20"});
    layout->itemAt(1)->widget()->hide();
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(layout->itemAt(2)->geometry(), QRect(45, 0, 20, 20));
    QCOMPARE(layout->heightForWidth(100), 20);

    layout->itemAt(1)->widget()->show();
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(layout->itemAt(2)->geometry(), QRect(80, 0, 20, 20));
    QCOMPARE(layout->heightForWidth(100), 60);

    // One that keeps its room is set out like the others.
    QWidget* keeper = layout->itemAt(1)->widget();
    QSizePolicy policy = keeper->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    keeper->setSizePolicy(policy);
    keeper->hide();
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(layout->itemAt(2)->geometry(), QRect(80, 0, 20, 20));
    QCOMPARE(layout->heightForWidth(100), 60);
}

void tst_FlowLayout::nestedLayoutWithoutWidgetsTakesNoRoom()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    auto* empty = new QHBoxLayout;
    empty->setContentsMargins(9, 9, 9, 9);
    layout->addItem(empty);
    fill(*layout, {"40x20"});
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(layout->itemAt(1)->geometry(), QRect(0, 0, 40, 20));
}

/// Such a widget would otherwise keep the size it was made with.
void tst_FlowLayout::widgetsWithoutSizeHintShrink()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    layout->addWidget(new QWidget);
    fill(*layout, {"40x20"});
    page.resize(100, 100);
    page.show();
    QCOMPARE(layout->itemAt(0)->widget()->size(), QSize(0, 0));
    QCOMPARE(layout->itemAt(1)->geometry(), QRect(5, 0, 40, 20));
}

void tst_FlowLayout::spacersTakeRoom()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    layout->addItem(new QSpacerItem(60, 10));
    fill(*layout, {"30x20", "20x20"});
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(geometries(*layout),
             QVector<QRect>({{0, 0, 60, 10}, {65, 0, 30, 20}, {0, 23, 20, 20}}));

    // Neither size nor company makes a spacer a hidden item.
    auto* other = new FlowLayout(new QWidget(&page), 0, 5, 3);
    other->addItem(new QSpacerItem(0, 0));
    other->addItem(new QSpacerItem(30, 10));
    other->addItem(new QHBoxLayout);
    fill(*other, {"30x20"});
    other->setGeometry({0, 0, 100, 500});
    QCOMPARE(other->itemAt(1)->geometry(), QRect(5, 0, 30, 10));
    QCOMPARE(other->itemAt(3)->geometry(), QRect(40, 0, 30, 20));
}

void tst_FlowLayout::itemsHaveTheirSizeHint()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    auto* button = new QPushButton("Chengdu");
    layout->addWidget(button);
    page.resize(600, 400);
    page.show();
    QCOMPARE(button->geometry(), QRect(QPoint(0, 0), button->sizeHint()));
    QVERIFY(button->width() > 20);

    button->setText("Chengdu Shi, Sichuan Sheng");
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(button->geometry(), QRect(QPoint(0, 0), button->sizeHint()));
}

void tst_FlowLayout::heightForWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    // Three blocks of 40 x 20 with margin 10.
    QTest::newRow("all in a line") << 150 << 40;
    QTest::newRow("two lines") << 149 << 63;
    QTest::newRow("two lines, just") << 105 << 63;
    QTest::newRow("three lines") << 104 << 86;
    QTest::newRow("narrower than an item") << 30 << 86;
    QTest::newRow("narrower than the margins") << 5 << 86;
    QTest::newRow("no width") << 0 << 86;
    QTest::newRow("negative width") << -100 << 86;
    QTest::newRow("widest of all") << INT_MAX << 40;
}

void tst_FlowLayout::heightForWidth()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QWidget page;
    auto* layout = new FlowLayout(&page, 10, 5, 3);
    fill(*layout, {"40x20", "40x20", "40x20"});
    QVERIFY(layout->hasHeightForWidth());
    QCOMPARE(layout->heightForWidth(width), height);
}

void tst_FlowLayout::heightForWidthPlacesNothing()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    fill(*layout, {"40x20", "40x20"});
    layout->setGeometry({0, 0, 100, 500});
    const QVector<QRect> before = geometries(*layout);
    QCOMPARE(layout->heightForWidth(50), 43);
    QCOMPARE(geometries(*layout), before);
    QCOMPARE(layout->geometry(), QRect(0, 0, 100, 500));
}

void tst_FlowLayout::givenSpacings()
{
    Style style;
    style.horizontal = 21;
    style.vertical = 22;
    QWidget page;
    page.setStyle(&style);
    const auto* layout = new FlowLayout(&page, -1, 0, 4);
    QCOMPARE(layout->horizontalSpacing(), 0);
    QCOMPARE(layout->verticalSpacing(), 4);
}

void tst_FlowLayout::spacingOfTopLevelLayout()
{
    Style style;
    style.horizontal = 21;
    style.vertical = 0;
    style.betweenButtonsAcross = 31;
    style.betweenButtonsDown = 32;
    QWidget page;
    page.setStyle(&style);
    auto* layout = new FlowLayout(&page);
    QCOMPARE(layout->horizontalSpacing(), 21);
    QCOMPARE(layout->verticalSpacing(), 0);

    layout->setContentsMargins(0, 0, 0, 0);
    fill(*layout, {"40x20", "40x20", "40x20"});
    layout->setGeometry({0, 0, 101, 500});
    QCOMPARE(geometries(*layout),
             QVector<QRect>({{0, 0, 40, 20}, {61, 0, 40, 20}, {0, 20, 40, 20}}));
}

void tst_FlowLayout::spacingOfNestedLayout_data()
{
    QTest::addColumn<int>("across"); // spacings of the outer grid
    QTest::addColumn<int>("down");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("the outer layout's") << 17 << 17 << QSize(17, 17);
    QTest::newRow("zero") << 0 << 0 << QSize(0, 0);
    QTest::newRow("outer layout without one") << 17 << 18 << QSize(31, 32);
}

void tst_FlowLayout::spacingOfNestedLayout()
{
    QFETCH(int, across);
    QFETCH(int, down);
    QFETCH(QSize, expected);
    Style style;
    style.horizontal = 21;
    style.vertical = 22;
    style.betweenButtonsAcross = 31;
    style.betweenButtonsDown = 32;
    QWidget page;
    page.setStyle(&style);
    auto* outer = new QGridLayout(&page);
    outer->setHorizontalSpacing(across);
    outer->setVerticalSpacing(down);
    auto* layout = new FlowLayout;
    outer->addLayout(layout, 0, 0);
    QCOMPARE(QSize(layout->horizontalSpacing(), layout->verticalSpacing()), expected);
}

void tst_FlowLayout::spacingOfFlowLayoutInFlowLayout_data()
{
    QTest::addColumn<QSize>("outer");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("given") << QSize(5, 3) << QSize(5, 3);
    QTest::newRow("zero") << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("the style's") << QSize(-1, -1) << QSize(21, 22);
}

void tst_FlowLayout::spacingOfFlowLayoutInFlowLayout()
{
    QFETCH(QSize, outer);
    QFETCH(QSize, expected);
    Style style;
    style.horizontal = 21;
    style.vertical = 22;
    QWidget page;
    page.setStyle(&style);
    auto* layout = new FlowLayout(&page, 0, outer.width(), outer.height());
    auto* nested = new FlowLayout;
    layout->addItem(nested);
    auto* innermost = new FlowLayout;
    nested->addItem(innermost);
    QCOMPARE(QSize(nested->horizontalSpacing(), nested->verticalSpacing()), expected);
    QCOMPARE(QSize(innermost->horizontalSpacing(), innermost->verticalSpacing()), expected);
}

void tst_FlowLayout::spacingBetweenPushButtons()
{
    Style style;
    style.betweenButtonsAcross = 31;
    style.betweenButtonsDown = 32;
    QWidget page;
    page.setStyle(&style);
    auto* layout = new FlowLayout(&page, 0);
    QCOMPARE(layout->horizontalSpacing(), 31);
    QCOMPARE(layout->verticalSpacing(), 32);

    // The items need not be widgets for that.
    layout->addItem(new QSpacerItem(10, 10));
    layout->addItem(new QSpacerItem(10, 10));
    layout->setGeometry({0, 0, 100, 100});
    QCOMPARE(geometries(*layout).last(), QRect(41, 0, 10, 10));
}

void tst_FlowLayout::spacingThatNobodyKnows()
{
    Style style;
    QWidget page;
    page.setStyle(&style);
    const auto* layout = new FlowLayout(&page);
    QCOMPARE(layout->horizontalSpacing(), 0);
    QCOMPARE(layout->verticalSpacing(), 0);
}

void tst_FlowLayout::spacingWithoutWidget()
{
    const FlowLayout layout;
    const QStyle* style = QApplication::style();
    const auto between = [style](Qt::Orientation orientation) {
        return qMax(
            0, style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation));
    };
    QCOMPARE(layout.horizontalSpacing(), between(Qt::Horizontal));
    QCOMPARE(layout.verticalSpacing(), between(Qt::Vertical));
}

void tst_FlowLayout::margin_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("expected");
    QTest::newRow("the style's") << -1 << 23;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("given") << 4 << 4;
}

void tst_FlowLayout::margin()
{
    QFETCH(int, margin);
    QFETCH(int, expected);
    const QMargins margins(expected, expected, expected, expected);
    Style style;
    style.margin = 23;
    QWidget page;
    page.setStyle(&style);
    QCOMPARE((new FlowLayout(&page, margin))->contentsMargins(), margins);

    QWidget later;
    later.setStyle(&style);
    auto* layout = new FlowLayout(margin);
    later.setLayout(layout);
    QCOMPARE(layout->contentsMargins(), margins);
}

void tst_FlowLayout::defaults()
{
    QWidget page;
    const auto* layout = new FlowLayout(&page);
    QCOMPARE(page.layout(), layout);
    QCOMPARE(layout->metaObject()->className(), "FlowLayout");
    QCOMPARE(layout->metaObject()->superClass(), &QLayout::staticMetaObject);
    QCOMPARE(layout->expandingDirections(), Qt::Orientations());
    QCOMPARE(layout->count(), 0);

    const FlowLayout loose;
    QVERIFY(!loose.parent());
    const FlowLayout noParent(nullptr);
    QVERIFY(!noParent.parent());
}

void tst_FlowLayout::items()
{
    QWidget page;
    FlowLayout& layout = *new FlowLayout(&page);
    fill(layout, {"1x1", "2x2", "3x3"});
    QCOMPARE(layout.count(), 3);
    QVERIFY(!layout.itemAt(-1));
    QVERIFY(!layout.itemAt(3));
    QCOMPARE(layout.itemAt(2)->widget()->width(), 3);
    QCOMPARE(layout.itemAt(2)->widget()->parentWidget(), &page);

    QVERIFY(!layout.takeAt(-1));
    QVERIFY(!layout.takeAt(3));
    const std::unique_ptr<QLayoutItem> taken(layout.takeAt(1));
    QCOMPARE(taken->widget()->width(), 2);
    QCOMPARE(layout.count(), 2);
    QCOMPARE(layout.itemAt(0)->widget()->width(), 1);
    QCOMPARE(layout.itemAt(1)->widget()->width(), 3);

    layout.removeWidget(layout.itemAt(0)->widget());
    QCOMPARE(layout.count(), 1);
    QCOMPARE(layout.indexOf(layout.itemAt(0)->widget()), 0);
}

void tst_FlowLayout::nullItem()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0);
    layout->addItem(nullptr);
    QCOMPARE(layout->count(), 0);
    layout->setGeometry({0, 0, 10, 10});
    QCOMPARE(layout->heightForWidth(10), 0);
}

void tst_FlowLayout::addedItemsAreSetOutAtOnce()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    fill(*layout, {"40x20"});
    page.resize(100, 100);
    page.show();
    QWidget* second = block({30, 20});
    layout->addWidget(second);
    QTRY_COMPARE(second->geometry(), QRect(45, 0, 30, 20));
    QTRY_VERIFY(second->isVisible());

    const std::unique_ptr<QLayoutItem> first(layout->takeAt(0));
    QTRY_COMPARE(second->geometry(), QRect(0, 0, 30, 20));
}

void tst_FlowLayout::itemsAreFreed()
{
    int alive = 0;
    {
        FlowLayout layout;
        for (int i = 0; i < 5; ++i)
            layout.addItem(new CountedItem(alive));
        QCOMPARE(alive, 5);
    }
    QCOMPARE(alive, 0);
    {
        QWidget page;
        auto* layout = new FlowLayout(&page);
        layout->addItem(new CountedItem(alive));
        QCOMPARE(alive, 1);
    }
    QCOMPARE(alive, 0);

    // The widgets stay: they are the page's.
    QWidget page;
    auto layout = std::make_unique<FlowLayout>(&page);
    const QPointer<QWidget> widget(block({1, 1}));
    layout->addWidget(widget);
    layout.reset();
    QVERIFY(widget);
    QVERIFY(!page.layout());
}

void tst_FlowLayout::takenItemIsTheCallers()
{
    int alive = 0;
    std::unique_ptr<QLayoutItem> taken;
    {
        FlowLayout layout;
        layout.addItem(new CountedItem(alive));
        layout.addItem(new CountedItem(alive));
        taken.reset(layout.takeAt(0));
    }
    QCOMPARE(alive, 1);
    taken.reset();
    QCOMPARE(alive, 0);
}

void tst_FlowLayout::destroyedWidgetLeaves()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    fill(*layout, {"40x20", "30x20"});
    const std::unique_ptr<QWidget> first(layout->itemAt(0)->widget());
    first->setParent(nullptr);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget()->width(), 30);
}

void tst_FlowLayout::nestedLayout()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    const QPointer<QHBoxLayout> pair(new QHBoxLayout);
    pair->setSpacing(1);
    fill(*pair, {"40x20", "30x20"});
    fill(*layout, {"40x10"});
    layout->addItem(pair);
    QCOMPARE(pair->parent(), layout);
    QCOMPARE(pair->itemAt(0)->widget()->parentWidget(), &page);
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(pair->geometry(), QRect(0, 13, 71, 20));
    QCOMPARE(pair->itemAt(1)->geometry(), QRect(41, 13, 30, 20));

    auto other = std::make_unique<QHBoxLayout>();
    layout->addItem(other.get());
    QCOMPARE(layout->count(), 3);
    other.reset();
    QCOMPARE(layout->count(), 2);

    auto outer = std::unique_ptr<QLayout>(layout);
    outer.reset();
    QVERIFY(!pair);
}

void tst_FlowLayout::nestedLayoutTakenOut()
{
    QWidget page;
    auto* layout = new FlowLayout(&page);
    layout->addItem(new QHBoxLayout);
    const std::unique_ptr<QLayoutItem> taken(layout->takeAt(0));
    QVERIFY(taken->layout());
    QVERIFY(!taken->layout()->parent());
}

/// With two owners it would be freed twice.
void tst_FlowLayout::layoutThatHasAPlace()
{
    QWidget page;
    auto* owner = new QHBoxLayout(&page);
    auto* nested = new QHBoxLayout;
    owner->addLayout(nested);

    QWidget other;
    auto* layout = new FlowLayout(&other);
    for (QLayout* placed : {static_cast<QLayout*>(nested), static_cast<QLayout*>(layout)}) {
        const QByteArray warning = "QLayout::addChildLayout: layout \"\" already has a parent";
        QTest::ignoreMessage(QtWarningMsg, warning);
        layout->addItem(placed);
        QCOMPARE(layout->count(), 0);
    }
    QCOMPARE(nested->parent(), owner);
    QCOMPARE(owner->count(), 1);
}

void tst_FlowLayout::minimumSize()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    layout->setContentsMargins(1, 2, 4, 8);
    QCOMPARE(layout->minimumSize(), QSize(5, 10));
    fill(*layout, {"40x10", "30x20"});
    QCOMPARE(layout->minimumSize(), QSize(45, 30));
    QCOMPARE(layout->sizeHint(), QSize(45, 30));

    layout->itemAt(0)->widget()->hide();
    QCOMPARE(layout->minimumSize(), QSize(35, 30));

    auto* empty = new QHBoxLayout;
    empty->setContentsMargins(50, 50, 50, 50);
    layout->addItem(empty);
    QCOMPARE(layout->minimumSize(), QSize(35, 30));
    layout->addItem(new QSpacerItem(60, 40));
    QCOMPARE(layout->minimumSize(), QSize(65, 50));
}

/// What a page in a scroll area relies on: the outer layout gives the height that the width needs.
void tst_FlowLayout::asLayoutOfAWidget()
{
    QWidget page;
    auto* outer = new QVBoxLayout(&page);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* list = new QWidget;
    outer->addWidget(list);
    outer->addStretch(1);
    fill(*new FlowLayout(list, 0, 5, 3), {"40x20", "40x20", "40x20", "40x20"});
    page.resize(90, 400);
    page.show();
    QCOMPARE(list->height(), 43);
    page.resize(60, 400);
    QTRY_COMPARE(list->height(), 89);
    page.resize(200, 400);
    QTRY_COMPARE(list->height(), 20);
}

void tst_FlowLayout::longText()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    auto* button = new QPushButton(QString(100000, 'm'));
    fill(*layout, {"40x20", "30x20"});
    layout->addWidget(button);
    fill(*layout, {"40x20"});
    layout->setGeometry({0, 0, 100, 500});
    QCOMPARE(button->geometry(), QRect(QPoint(0, 23), button->sizeHint()));
    QVERIFY(button->width() > 100000);
    QCOMPARE(layout->itemAt(3)->geometry(), QRect(0, 26 + button->height(), 40, 20));
}

void tst_FlowLayout::manyItems()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 0, 0);
    for (int i = 0; i < 10000; ++i)
        layout->addItem(new QSpacerItem(10, 10));
    QCOMPARE(layout->heightForWidth(1000), 1000);
    layout->setGeometry({0, 0, 1000, 1000});
    QCOMPARE(layout->itemAt(9999)->geometry(), QRect(990, 990, 10, 10));
}

void tst_FlowLayout::enormousSpacers()
{
    QWidget page;
    auto* layout = new FlowLayout(&page, 0, 5, 3);
    for (int i = 0; i < 5; ++i)
        layout->addItem(new QSpacerItem(INT_MAX, INT_MAX));
    QCOMPARE(layout->heightForWidth(100), QWIDGETSIZE_MAX);
    QCOMPARE(layout->heightForWidth(INT_MAX), QWIDGETSIZE_MAX);
    layout->setGeometry({0, 0, 100, 100});
    QCOMPARE(layout->itemAt(0)->geometry().topLeft(), QPoint(0, 0));
    QVERIFY(layout->itemAt(4)->geometry().top() > 100);

    layout->setContentsMargins(1, 2, 4, 8);
    QCOMPARE(layout->minimumSize(), QSize(QWIDGETSIZE_MAX + 5, QWIDGETSIZE_MAX + 10));
}

QTEST_MAIN(tst_FlowLayout)
#include "tst_FlowLayout.moc"
