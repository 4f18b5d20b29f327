// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkGraphicsPixmapItem.h>

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

/// The pixmap a state shows, told apart by width.
enum Shown {
    Nothing = 0,
    Normal = 20,
    Hover = 21,
    Press = 22,
    Checked = 23,
    Disabled = 24,
    Highlight = 25
};

QPixmap picture(int width)
{
    QPixmap pixmap(width, 20);
    pixmap.fill(QColor::fromHsv(width * 7 % 360, 255, 255));
    return pixmap;
}

enum Flag { None = 0, IsDisabled = 1, IsChecked = 2, IsHighlight = 4 };

/// An item with all pixmaps in a scene that can send it events.
class Stage
{
public:
    explicit Stage(int flags = None)
    {
        item->SetNormalPixmap(picture(Normal));
        item->SetHoverPixmap(picture(Hover));
        item->SetPressPixmap(picture(Press));
        item->SetCheckedPixmap(picture(Checked));
        item->SetDisabledPixmap(picture(Disabled));
        item->SetHighlightPixmap(picture(Highlight));
        set(flags);
        scene.addItem(item);
    }

    void set(int flags)
    {
        item->SetEnabled(!(flags & IsDisabled));
        item->SetChecked(flags & IsChecked);
        item->SetHighlight(flags & IsHighlight);
    }
    int shown() const { return item->pixmap().width(); }

    /// Sends the event as a view would, through the scene.
    void mouse(QEvent::Type type, Qt::MouseButton button = Qt::LeftButton,
               QPointF at = QPointF(5, 5))
    {
        QGraphicsSceneMouseEvent event(type);
        event.setScenePos(at);
        event.setButton(button);
        event.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton
                                                                   : Qt::MouseButtons(button));
        event.setButtonDownScenePos(button, at);
        event.setAccepted(false);
        QCoreApplication::sendEvent(&scene, &event);
    }
    void press(Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::GraphicsSceneMousePress, button);
    }
    void release() { mouse(QEvent::GraphicsSceneMouseRelease); }
    void move(QPointF at) { mouse(QEvent::GraphicsSceneMouseMove, Qt::NoButton, at); }

    QGraphicsScene scene{0, 0, 200, 200};
    CRkGraphicsPixmapItem* item = new CRkGraphicsPixmapItem; // The scene owns it.
};

} // namespace

class tst_CRkGraphicsPixmapItem : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void metaObject();
    void normalPixmapIsShownInAnyState();
    void otherPixmapsWaitForTheNextChange();
    void states_data();
    void states();
    void stateWithoutPixmap();
    void name();
    void checkable();
    void graphicsItemStaysEnabled();

    void hover_data();
    void hover();
    void hoverWithoutHoverPixmap();
    void press_data();
    void press();
    void pressWithoutPressPixmap();
    void otherButtonsPass_data();
    void otherButtonsPass();
    void release_data();
    void release();
    void releaseOutside();
    void releaseWithoutPress();
    void doubleClick();
    void clickDoesNotCheck();
    void stateIsShownWhenTheClickIsTold();
    void pressPassesToTheItemBelow();
    void itemClicked();

    void shape();
    void transparentPartsCount();
    void painting();
};

void tst_CRkGraphicsPixmapItem::construction()
{
    QGraphicsPixmapItem parent;
    const auto* item = new CRkGraphicsPixmapItem(&parent);
    QCOMPARE(item->parentItem(), &parent);
    QVERIFY(!item->IsCheckable());
    QVERIFY(!item->IsChecked());
    QVERIFY(item->IsEnabled());
    QVERIFY(!item->IsHighlight());
    QCOMPARE(item->GetName(), QString());
    QVERIFY(item->pixmap().isNull());
    QVERIFY(item->acceptHoverEvents());
    QVERIFY(item->acceptTouchEvents());
}

void tst_CRkGraphicsPixmapItem::metaObject()
{
    const QMetaObject& meta = CRkGraphicsPixmapItem::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("pixmapItemClicked()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    CRkGraphicsPixmapItem item;
    QCOMPARE(qobject_cast<QGraphicsItem*>(&item), static_cast<QGraphicsItem*>(&item));
}

void tst_CRkGraphicsPixmapItem::normalPixmapIsShownInAnyState()
{
    Stage stage(IsHighlight);
    QCOMPARE(stage.shown(), int(Highlight));
    stage.item->SetNormalPixmap(picture(Normal));
    QCOMPARE(stage.shown(), int(Normal));
}

void tst_CRkGraphicsPixmapItem::otherPixmapsWaitForTheNextChange()
{
    Stage stage(IsChecked);
    stage.item->SetCheckedPixmap(picture(40));
    QCOMPARE(stage.shown(), int(Checked));
    stage.item->SetChecked(true);
    QCOMPARE(stage.shown(), 40);
}

void tst_CRkGraphicsPixmapItem::states_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("shown");
    QTest::newRow("normal") << int(None) << int(Normal);
    QTest::newRow("disabled") << int(IsDisabled) << int(Disabled);
    QTest::newRow("checked") << int(IsChecked) << int(Checked);
    QTest::newRow("checked and disabled") << (IsChecked | IsDisabled) << int(Disabled);
    QTest::newRow("highlight") << int(IsHighlight) << int(Highlight);
    QTest::newRow("highlight and disabled") << (IsHighlight | IsDisabled) << int(Highlight);
    QTest::newRow("highlight and checked") << (IsHighlight | IsChecked) << int(Highlight);
    QTest::newRow("all") << (IsHighlight | IsChecked | IsDisabled) << int(Highlight);
}

void tst_CRkGraphicsPixmapItem::states()
{
    QFETCH(int, flags);
    QFETCH(int, shown);
    Stage stage;
    for (const bool lastIsEnabled : {true, false}) {
        stage.set(None);
        QCOMPARE(stage.shown(), int(Normal));
        if (lastIsEnabled) {
            stage.item->SetHighlight(flags & IsHighlight);
            stage.item->SetChecked(flags & IsChecked);
            stage.item->SetEnabled(!(flags & IsDisabled));
        } else {
            stage.set(flags);
        }
        QCOMPARE(stage.shown(), shown);
    }
    QCOMPARE(stage.item->IsEnabled(), !(flags & IsDisabled));
    QCOMPARE(stage.item->IsChecked(), bool(flags & IsChecked));
    QCOMPARE(stage.item->IsHighlight(), bool(flags & IsHighlight));
}

void tst_CRkGraphicsPixmapItem::stateWithoutPixmap()
{
    Stage stage;
    stage.item->SetCheckedPixmap(QPixmap());
    stage.item->SetDisabledPixmap(QPixmap());
    stage.item->SetHighlightPixmap(QPixmap(":/no/such/picture.png"));
    for (const int flags : {IsDisabled, IsChecked, IsHighlight}) {
        stage.set(flags);
        QCOMPARE(stage.shown(), int(Nothing));
        stage.set(None);
        QCOMPARE(stage.shown(), int(Normal));
    }
}

void tst_CRkGraphicsPixmapItem::name()
{
    Stage stage;
    QSignalSpy changed(&stage.scene, &QGraphicsScene::changed);
    QTRY_VERIFY(changed.count() > 0);
    QCoreApplication::processEvents();
    changed.clear();
    const QString longName(100000, QChar(0x5d0));
    stage.item->SetName(longName);
    QCOMPARE(stage.item->GetName(), longName);
    QTRY_VERIFY(changed.count() > 0);
}

void tst_CRkGraphicsPixmapItem::checkable()
{
    Stage stage;
    stage.item->SetCheckable(true);
    QVERIFY(stage.item->IsCheckable());
    QCOMPARE(stage.shown(), int(Normal));
    stage.item->SetChecked(true);
    stage.item->SetCheckable(false);
    QVERIFY(!stage.item->IsCheckable());
    QVERIFY(stage.item->IsChecked());
    QCOMPARE(stage.shown(), int(Checked));
}

void tst_CRkGraphicsPixmapItem::graphicsItemStaysEnabled()
{
    Stage stage(IsDisabled);
    QVERIFY(!stage.item->IsEnabled());
    QVERIFY(stage.item->isEnabled());
}

void tst_CRkGraphicsPixmapItem::hover_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("inside");
    QTest::addColumn<int>("after");
    QTest::newRow("normal") << int(None) << int(Hover) << int(Normal);
    QTest::newRow("disabled") << int(IsDisabled) << int(Disabled) << int(Disabled);
    QTest::newRow("checked") << int(IsChecked) << int(Checked) << int(Checked);
    QTest::newRow("highlight") << int(IsHighlight) << int(Highlight) << int(Highlight);
}

void tst_CRkGraphicsPixmapItem::hover()
{
    QFETCH(int, flags);
    QFETCH(int, inside);
    QFETCH(int, after);
    Stage stage(flags);
    stage.move({100, 100});
    stage.move({5, 5});
    QCOMPARE(stage.shown(), inside);
    stage.move({100, 100});
    QCOMPARE(stage.shown(), after);
}

void tst_CRkGraphicsPixmapItem::hoverWithoutHoverPixmap()
{
    Stage stage;
    stage.item->SetHoverPixmap(QPixmap());
    stage.item->setPixmap(picture(40));
    stage.move({5, 5});
    QCOMPARE(stage.shown(), int(Normal));
    stage.move({100, 100});
    QCOMPARE(stage.shown(), int(Normal));
}

void tst_CRkGraphicsPixmapItem::press_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("pressed");
    QTest::addColumn<int>("released");
    QTest::addColumn<int>("clicks");
    QTest::newRow("normal") << int(None) << int(Press) << int(Normal) << 1;
    QTest::newRow("checked") << int(IsChecked) << int(Press) << int(Checked) << 1;
    QTest::newRow("disabled") << int(IsDisabled) << int(Disabled) << int(Disabled) << 0;
    QTest::newRow("highlight") << int(IsHighlight) << int(Highlight) << int(Highlight) << 0;
}

void tst_CRkGraphicsPixmapItem::press()
{
    QFETCH(int, flags);
    QFETCH(int, pressed);
    QFETCH(int, released);
    QFETCH(int, clicks);
    Stage stage(flags);
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press();
    QCOMPARE(stage.shown(), pressed);
    QCOMPARE(clicked.count(), 0);
    stage.release();
    QCOMPARE(stage.shown(), released);
    QCOMPARE(clicked.count(), clicks);
    stage.item->grabMouse();
    stage.release();
    QCOMPARE(clicked.count(), clicks);
}

void tst_CRkGraphicsPixmapItem::pressWithoutPressPixmap()
{
    Stage stage;
    stage.item->SetPressPixmap(QPixmap());
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.move({5, 5});
    stage.press();
    QCOMPARE(stage.shown(), int(Hover));
    stage.release();
    QCOMPARE(stage.shown(), int(Normal));
    QCOMPARE(clicked.count(), 1);
}

void tst_CRkGraphicsPixmapItem::otherButtonsPass_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void tst_CRkGraphicsPixmapItem::otherButtonsPass()
{
    QFETCH(int, button);
    Stage stage;
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press(Qt::MouseButton(button));
    QCOMPARE(stage.shown(), int(Hover));
    QCOMPARE(stage.scene.mouseGrabberItem(), nullptr);
    stage.mouse(QEvent::GraphicsSceneMouseRelease, Qt::MouseButton(button));
    QCOMPARE(clicked.count(), 0);
}

void tst_CRkGraphicsPixmapItem::release_data()
{
    QTest::addColumn<int>("flags"); // Set between press and release.
    QTest::addColumn<int>("shown");
    QTest::newRow("highlighted meanwhile") << int(IsHighlight) << int(Highlight);
    QTest::newRow("disabled meanwhile") << int(IsDisabled) << int(Disabled);
    QTest::newRow("checked meanwhile") << int(IsChecked) << int(Checked);
    QTest::newRow("all meanwhile") << (IsChecked | IsDisabled | IsHighlight) << int(Highlight);
}

void tst_CRkGraphicsPixmapItem::release()
{
    QFETCH(int, flags);
    QFETCH(int, shown);
    Stage stage;
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press();
    stage.set(flags);
    stage.item->setPixmap(picture(40));
    stage.release();
    QCOMPARE(stage.shown(), shown);
    QCOMPARE(clicked.count(), 1);
}

void tst_CRkGraphicsPixmapItem::releaseOutside()
{
    Stage stage;
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press();
    stage.mouse(QEvent::GraphicsSceneMouseRelease, Qt::LeftButton, {150, 150});
    QCOMPARE(stage.shown(), int(Normal));
    QCOMPARE(clicked.count(), 1);
}

void tst_CRkGraphicsPixmapItem::releaseWithoutPress()
{
    Stage stage;
    stage.move({5, 5});
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.item->grabMouse();
    stage.release();
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(stage.shown(), int(Hover));
}

void tst_CRkGraphicsPixmapItem::doubleClick()
{
    Stage stage;
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press();
    stage.release();
    stage.mouse(QEvent::GraphicsSceneMouseDoubleClick);
    QCOMPARE(stage.shown(), int(Press));
    stage.release();
    QCOMPARE(clicked.count(), 2);
}

void tst_CRkGraphicsPixmapItem::clickDoesNotCheck()
{
    Stage stage;
    stage.item->SetCheckable(true);
    for (const bool checked : {false, true}) {
        stage.item->SetChecked(checked);
        stage.press();
        stage.release();
        QCOMPARE(stage.item->IsChecked(), checked);
    }
}

void tst_CRkGraphicsPixmapItem::stateIsShownWhenTheClickIsTold()
{
    Stage stage;
    int shown = Nothing;
    connect(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked, this, [&stage, &shown] {
        shown = stage.shown();
        stage.item->SetChecked(true);
    });
    stage.press();
    stage.release();
    QCOMPARE(shown, int(Normal));
    QCOMPARE(stage.shown(), int(Checked));
}

void tst_CRkGraphicsPixmapItem::pressPassesToTheItemBelow()
{
    Stage stage;
    auto* above = new CRkGraphicsPixmapItem;
    above->SetNormalPixmap(picture(Normal));
    stage.scene.addItem(above);
    QSignalSpy below(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    QSignalSpy atop(above, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press();
    stage.release();
    QCOMPARE(atop.count(), 1);
    above->SetEnabled(false);
    above->SetDisabledPixmap(picture(Disabled));
    above->SetEnabled(false);
    stage.press();
    stage.release();
    QCOMPARE(atop.count(), 1);
    QCOMPARE(below.count(), 1);
}

void tst_CRkGraphicsPixmapItem::itemClicked()
{
    Stage stage(IsDisabled);
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.item->itemClicked();
    QCOMPARE(clicked.count(), 1);
}

void tst_CRkGraphicsPixmapItem::shape()
{
    CRkGraphicsPixmapItem item;
    QVERIFY(item.shape().boundingRect().isEmpty());
    item.SetNormalPixmap(picture(Normal));
    item.setOffset(-3, -4);
    QPainterPath rectangle;
    rectangle.addRect(-3, -4, 20, 20);
    QCOMPARE(item.shape(), rectangle);
    QCOMPARE(item.boundingRect(), QRectF(-3, -4, 20, 20));
}

void tst_CRkGraphicsPixmapItem::transparentPartsCount()
{
    Stage stage;
    QPixmap empty(20, 20);
    empty.fill(Qt::transparent);
    stage.item->SetNormalPixmap(empty);
    QSignalSpy clicked(stage.item, &CRkGraphicsPixmapItem::pixmapItemClicked);
    stage.press();
    stage.release();
    QCOMPARE(clicked.count(), 1);
}

// A pixmap for double density takes the same room and shows all of its pixels.
void tst_CRkGraphicsPixmapItem::painting()
{
    for (const int scale : {1, 2}) {
        QImage source(20 * scale, 20 * scale, QImage::Format_ARGB32_Premultiplied);
        source.fill(Qt::blue);
        source.setPixelColor(0, 0, Qt::red);
        source.setPixelColor(20 * scale - 1, 20 * scale - 1, Qt::green);
        source.setDevicePixelRatio(scale);
        CRkGraphicsPixmapItem* item = new CRkGraphicsPixmapItem;
        item->SetNormalPixmap(QPixmap::fromImage(source));
        QGraphicsScene scene(0, 0, 20, 20);
        scene.addItem(item);
        QImage image(source.size(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        QPainter painter(&image);
        scene.render(&painter, QRectF(0, 0, 20, 20));
        painter.end();
        QCOMPARE(item->boundingRect(), QRectF(0, 0, 20, 20));
        QCOMPARE(image, source);
    }
}

QTEST_MAIN(tst_CRkGraphicsPixmapItem)
#include "tst_CRkGraphicsPixmapItem.moc"
