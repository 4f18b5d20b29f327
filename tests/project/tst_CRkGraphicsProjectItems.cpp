// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkGraphicsBlockItem.h>
#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QColor ground(10, 120, 40);
const QString longName =
    QStringLiteral("A survey of every hill and dale between the river and the northern border");

/// The scene around the origin, 10 pixels beyond 200 x 180 on every side.
class Picture
{
public:
    explicit Picture(QGraphicsScene& scene)
        : m_image(220, 200, QImage::Format_RGB32)
    {
        m_image.fill(ground);
        QPainter painter(&m_image);
        scene.render(&painter, QRectF(0, 0, 220, 200), QRectF(-10, -10, 220, 200));
    }

    QColor at(int x, int y) const { return m_image.pixelColor(x + 10, y + 10); }
    const QImage& image() const { return m_image; }

    /// Bounding rectangle of the pixels that are not one of these.
    QRect extentOfAllBut(const QList<QColor>& colours) const
    {
        QRect extent;
        for (int y = -10; y < 190; ++y) {
            for (int x = -10; x < 210; ++x) {
                if (!colours.contains(at(x, y)))
                    extent |= QRect(x, y, 1, 1);
            }
        }
        return extent;
    }

private:
    QImage m_image;
};

/// A caption alone in a view that has the keyboard.
struct Editor
{
    explicit Editor(const QString& name)
        : view(&scene)
        , caption(new CRkGraphicsProjectTextItem)
    {
        scene.addItem(caption);
        caption->setTextWidth(190);
        caption->SetPrjName(name);
        caption->SetPrjSize("3MB");
        caption->SetPrjModifiedDateTime("2026-05-03 12:00:00");
        caption->buildDisplayAndToolTip();
        view.show();
        QApplication::setActiveWindow(&view);
        view.setFocus();
    }

    bool edit()
    {
        caption->setFocus();
        return caption->hasFocus();
    }

    void type(const QString& text) { QTest::keyClicks(view.viewport(), text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(view.viewport(), key, modifiers);
    }
    void replaceBy(const QString& text)
    {
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }

    QGraphicsScene scene;
    QGraphicsView view;
    CRkGraphicsProjectTextItem* caption;
};

} // namespace

class tst_CRkGraphicsProjectItems : public QObject
{
    Q_OBJECT

private slots:
    void tileBeginsEmpty();
    void tileKeepsWhatItIsGiven();
    void tileColours();
    void tileHasNoBorder();
    void thumbnailProperties();
    void thumbnailShowsNoSelection();
    void blockItem();
    void blockNameIsCentred();
    void itemsGoWithDeleteLater();

    void captionProperties();
    void captionBoundingRect();
    void displayAndToolTip_data();
    void displayAndToolTip();
    void onlyTheBeginOfANameIsMeasured();
    void captionAtRestIsCentredAndElided();
    void captionSelectedHasWhiteOutline();
    void captionFocusedHasWhiteOutline();
    void setPlainText();

    void focusShowsTheWholeName();
    void typing();
    void returnWithoutChange_data();
    void returnWithoutChange();
    void editedName_data();
    void editedName();
    void leavingEndsEditing();
    void displayWaitsForTheListener();
};

void tst_CRkGraphicsProjectItems::tileBeginsEmpty()
{
    const CRkGraphicsProjectRectItem tile;
    QVERIFY(tile.acceptHoverEvents());
    QVERIFY(tile.acceptTouchEvents());
    QVERIFY(tile.GetProjectFilePath().isEmpty());
    QVERIFY(tile.GetProjectName().isEmpty());
    QVERIFY(tile.GetProvinceCityList().isEmpty());
    QVERIFY(tile.GetGravityList().isEmpty());
    QVERIFY(!tile.GetImageItem());
    QVERIFY(!tile.GetTextItem());
}

void tst_CRkGraphicsProjectItems::tileKeepsWhatItIsGiven()
{
    CRkGraphicsProjectRectItem tile;
    auto* thumbnail = new CRkGraphicsProjectImageItem(&tile);
    auto* caption = new CRkGraphicsProjectTextItem(&tile);
    tile.SetProjectFilePath("/p/Hill/Hill.proj");
    tile.SetProjectName("Hill");
    tile.SetProvinceCityList({"Chengdu", "Sichuan"});
    tile.SetProjectID("id-1");
    tile.SetSoftwareVersion("1.0.0");
    tile.SetImageItem(thumbnail);
    tile.SetTextItem(caption);
    tile.SetGravityList({PointLatLng(30.5, 104.1)});
    QCOMPARE(tile.GetProjectFilePath(), QString("/p/Hill/Hill.proj"));
    QCOMPARE(tile.GetProjectName(), QString("Hill"));
    QCOMPARE(tile.GetProvinceCityList(), QStringList({"Chengdu", "Sichuan"}));
    QCOMPARE(tile.GetProjectID(), QString("id-1"));
    QCOMPARE(tile.GetSoftwareVersion(), QString("1.0.0"));
    QCOMPARE(tile.GetImageItem(), thumbnail);
    QCOMPARE(tile.GetTextItem(), caption);
    QCOMPARE(tile.GetGravityList().size(), 1);
    QCOMPARE(tile.GetGravityList().first().Lat(), 30.5);
    QCOMPARE(tile.GetGravityList().first().Lng(), 104.1);
}

void tst_CRkGraphicsProjectItems::tileColours()
{
    Editor window(QStringLiteral("elsewhere"));
    window.caption->setPos(0, 500);
    auto* tile = new CRkGraphicsProjectRectItem;
    tile->setRect(0, 0, 200, 180);
    tile->setFlag(QGraphicsItem::ItemIsSelectable);
    tile->setFlag(QGraphicsItem::ItemIsFocusable);
    tile->setBrush(Qt::red);
    window.scene.addItem(tile);

    QCOMPARE(Picture(window.scene).at(100, 90), QColor(Qt::white));
    tile->setFocus();
    QVERIFY(tile->hasFocus());
    QCOMPARE(Picture(window.scene).at(100, 90), QColor(0, 243, 254));
    tile->setSelected(true);
    QCOMPARE(Picture(window.scene).at(100, 90), QColor(196, 219, 252));
    tile->clearFocus();
    QCOMPARE(Picture(window.scene).at(100, 90), QColor(196, 219, 252));
    tile->setSelected(false);
    QCOMPARE(Picture(window.scene).at(100, 90), QColor(Qt::white));
}

void tst_CRkGraphicsProjectItems::tileHasNoBorder()
{
    QGraphicsScene scene;
    auto* tile = new CRkGraphicsProjectRectItem;
    tile->setRect(0, 0, 200, 180);
    tile->setFlag(QGraphicsItem::ItemIsSelectable);
    scene.addItem(tile);
    tile->setSelected(true);
    const QColor blue(196, 219, 252);
    const Picture picture(scene);
    QCOMPARE(picture.extentOfAllBut({ground}), QRect(0, 0, 200, 180));
    QCOMPARE(picture.extentOfAllBut({ground, blue}), QRect());
}

void tst_CRkGraphicsProjectItems::thumbnailProperties()
{
    CRkGraphicsProjectRectItem tile;
    const auto* thumbnail = new CRkGraphicsProjectImageItem(&tile);
    QVERIFY(thumbnail->acceptHoverEvents());
    QVERIFY(thumbnail->acceptTouchEvents());
    QVERIFY(!(thumbnail->flags() & QGraphicsItem::ItemIsMovable));
    QVERIFY(!thumbnail->GetProjectItem());
    QVERIFY(thumbnail->GetName().isEmpty());
    QCOMPARE(thumbnail->parentItem(), &tile);
}

void tst_CRkGraphicsProjectItems::thumbnailShowsNoSelection()
{
    QGraphicsScene scene;
    auto* thumbnail = new CRkGraphicsProjectImageItem;
    QPixmap pixmap(190, 143);
    pixmap.fill(Qt::yellow);
    thumbnail->setPixmap(pixmap);
    thumbnail->setFlag(QGraphicsItem::ItemIsSelectable);
    scene.addItem(thumbnail);
    const QImage before = Picture(scene).image();
    thumbnail->setSelected(true);
    QVERIFY(thumbnail->isSelected());
    QCOMPARE(Picture(scene).image(), before);
    QCOMPARE(Picture(scene).extentOfAllBut({ground}), QRect(0, 0, 190, 143));
}

void tst_CRkGraphicsProjectItems::blockItem()
{
    CRkGraphicsBlockItem block;
    QVERIFY(block.acceptHoverEvents());
    QVERIFY(block.acceptTouchEvents());
    QVERIFY(!(block.flags() & QGraphicsItem::ItemIsMovable));
    QVERIFY(block.GetBlockName().isEmpty());
    block.SetBlockID("b-1");
    block.SetBlockName("North");
    QCOMPARE(block.GetBlockID(), QString("b-1"));
    QCOMPARE(block.GetBlockName(), QString("North"));
}

void tst_CRkGraphicsProjectItems::blockNameIsCentred()
{
    QGraphicsScene scene;
    auto* block = new CRkGraphicsBlockItem;
    QPixmap pixmap(190, 143);
    pixmap.fill(Qt::yellow);
    block->setPixmap(pixmap);
    block->setFlag(QGraphicsItem::ItemIsSelectable);
    scene.addItem(block);
    const QList<QColor> plain = {ground, Qt::yellow};
    QCOMPARE(Picture(scene).extentOfAllBut(plain), QRect());

    block->SetBlockName("HHHH");
    const QRect text = Picture(scene).extentOfAllBut(plain);
    QVERIFY(!text.isEmpty());
    const QPoint off = text.center() - QPoint(95, 71);
    QVERIFY2(qAbs(off.x()) <= 3 && qAbs(off.y()) <= 4,
             qPrintable(QString("%1, %2").arg(off.x()).arg(off.y())));

    const QImage before = Picture(scene).image();
    block->setSelected(true);
    QCOMPARE(Picture(scene).image(), before);
}

void tst_CRkGraphicsProjectItems::itemsGoWithDeleteLater()
{
    QGraphicsScene scene;
    auto* tile = new CRkGraphicsProjectRectItem;
    auto* thumbnail = new CRkGraphicsProjectImageItem(tile);
    auto* caption = new CRkGraphicsProjectTextItem(tile);
    auto* block = new CRkGraphicsBlockItem;
    scene.addItem(tile);
    scene.addItem(block);
    const QList<QPointer<QObject>> objects = {tile, thumbnail, caption, block};
    tile->deleteLater();
    block->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QPointer<QObject>& object : objects)
        QVERIFY(object.isNull());
    QVERIFY(scene.items().isEmpty());
}

void tst_CRkGraphicsProjectItems::captionProperties()
{
    const CRkGraphicsProjectTextItem caption;
    QCOMPARE(caption.font(), QApplication::font());
    QCOMPARE(caption.defaultTextColor(), QColor(Qt::black));
    QCOMPARE(caption.textInteractionFlags(),
             Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard | Qt::TextEditable);
    QVERIFY(caption.GetPrjName().isEmpty());
    QVERIFY(caption.GetPrjModifiedDateTime().isEmpty());
}

void tst_CRkGraphicsProjectItems::captionBoundingRect()
{
    CRkGraphicsProjectTextItem caption;
    QCOMPARE(caption.boundingRect(), QRectF(0, 0, 190, 32));
    caption.setPlainText(longName + longName);
    QVERIFY(caption.boundingRect().width() > 190);
    QCOMPARE(caption.boundingRect().height(), 32.0);
    caption.setTextWidth(190);
    QCOMPARE(caption.boundingRect().width(), 190.0);
    QVERIFY(caption.boundingRect().height() > 32);
}

void tst_CRkGraphicsProjectItems::displayAndToolTip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isElided");
    QTest::newRow("short") << "Hill" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("long") << longName << true;
    QTest::newRow("Chinese") << QStringLiteral("北山水库") << false;
    QTest::newRow("with markers") << "%1 %2 %3" << false;
}

void tst_CRkGraphicsProjectItems::displayAndToolTip()
{
    QFETCH(QString, name);
    QFETCH(bool, isElided);
    CRkGraphicsProjectTextItem caption;
    caption.SetPrjName(name);
    caption.SetPrjSize("3MB");
    caption.SetPrjModifiedDateTime("2026-05-03 12:00:00");
    caption.buildDisplayAndToolTip();
    QCOMPARE(caption.toolTip(),
             "Name:" + name + "\n Size:3MB\n Modification time:2026-05-03 12:00:00");
    QCOMPARE(caption.GetPrjName(), name);
    const QString shown = caption.toPlainText();
    QCOMPARE(shown, QFontMetricsF(caption.font()).elidedText(name, Qt::ElideRight, 140));
    QCOMPARE(shown != name, isElided);
    if (isElided) {
        QVERIFY(shown.endsWith(QChar(0x2026)));
        QVERIFY(name.startsWith(shown.chopped(1)));
    }
}

void tst_CRkGraphicsProjectItems::onlyTheBeginOfANameIsMeasured()
{
    // Characters without width never reach an end of the caption.
    CRkGraphicsProjectTextItem caption;
    caption.SetPrjName(QString(100'000, QChar(0x200B)));
    caption.buildDisplayAndToolTip();
    QCOMPARE(caption.toPlainText().size(), 1000);
    QCOMPARE(caption.GetPrjName().size(), 100'000);
    QVERIFY(caption.toolTip().size() > 100'000);
}

void tst_CRkGraphicsProjectItems::captionAtRestIsCentredAndElided()
{
    QGraphicsScene scene;
    auto* caption = new CRkGraphicsProjectTextItem;
    caption->setTextWidth(190);
    scene.addItem(caption);
    caption->SetPrjName("HHHH");
    caption->buildDisplayAndToolTip();
    const QRect centred = Picture(scene).extentOfAllBut({ground});
    QVERIFY(!centred.isEmpty());
    QVERIFY(qAbs(centred.center().x() - 95) <= 3);
    QVERIFY(qAbs(centred.center().y() - 16) <= 4);

    caption->SetPrjName(longName);
    caption->buildDisplayAndToolTip();
    const QRect elided = Picture(scene).extentOfAllBut({ground});
    QVERIFY2(elided.width() > 140 && elided.width() <= 182,
             "elided to 180, not to the 140 of the text");
    QVERIFY(qAbs(elided.center().x() - 95) <= 8);

    // Only the name: what the text item itself holds is not painted.
    caption->SetPrjName(QString());
    QCOMPARE(Picture(scene).extentOfAllBut({ground}), QRect());
}

void tst_CRkGraphicsProjectItems::captionSelectedHasWhiteOutline()
{
    QGraphicsScene scene;
    auto* caption = new CRkGraphicsProjectTextItem;
    caption->setTextWidth(190);
    caption->setFlag(QGraphicsItem::ItemIsSelectable);
    scene.addItem(caption);
    caption->SetPrjName("Hill");
    caption->buildDisplayAndToolTip();
    QCOMPARE(Picture(scene).at(0, 0), ground);
    caption->setSelected(true);

    const Picture picture(scene);
    QCOMPARE(caption->boundingRect(), QRectF(0, 0, 190, 32));
    for (int x = 0; x < 190; ++x) {
        QCOMPARE(picture.at(x, 0), QColor(Qt::white));
        QCOMPARE(picture.at(x, 31), QColor(Qt::white));
    }
    for (int y = 0; y < 32; ++y) {
        QCOMPARE(picture.at(0, y), QColor(Qt::white));
        QCOMPARE(picture.at(189, y), QColor(Qt::white));
    }
    QCOMPARE(picture.extentOfAllBut({ground}), QRect(0, 0, 190, 32));
    // The text item's own painting begins at the left.
    const QRect text = picture.extentOfAllBut({ground, Qt::white});
    QVERIFY(!text.isEmpty() && text.left() < 60);
}

void tst_CRkGraphicsProjectItems::captionFocusedHasWhiteOutline()
{
    Editor editor(QStringLiteral("Hill"));
    QCOMPARE(Picture(editor.scene).at(0, 0), ground);
    QVERIFY(editor.edit());
    const Picture picture(editor.scene);
    QCOMPARE(picture.at(0, 0), QColor(Qt::white));
    QCOMPARE(picture.at(95, 0), QColor(Qt::white));
    QCOMPARE(picture.at(189, 31), QColor(Qt::white));
    editor.caption->clearFocus();
    QCOMPARE(Picture(editor.scene).at(95, 0), ground);
}

void tst_CRkGraphicsProjectItems::setPlainText()
{
    CRkGraphicsProjectTextItem caption;
    caption.setToolTip("tip");
    caption.SetPlainText("Dale");
    QCOMPARE(caption.toPlainText(), QString("Dale"));
    QCOMPARE(caption.GetPrjName(), QString("Dale"));
    QCOMPARE(caption.toolTip(), QString("tip"));
}

void tst_CRkGraphicsProjectItems::focusShowsTheWholeName()
{
    Editor editor(longName);
    QVERIFY(editor.caption->toPlainText() != longName);
    QVERIFY(editor.edit());
    QCOMPARE(editor.caption->toPlainText(), longName);
    editor.caption->clearFocus();
    QVERIFY(editor.caption->toPlainText() != longName);
}

void tst_CRkGraphicsProjectItems::typing()
{
    Editor editor(QStringLiteral("Hill"));
    QVERIFY(editor.edit());
    editor.press(Qt::Key_End);
    editor.type("tops");
    QCOMPARE(editor.caption->toPlainText(), QString("Hilltops"));
    editor.press(Qt::Key_Backspace);
    QCOMPARE(editor.caption->toPlainText(), QString("Hilltop"));
    editor.press(Qt::Key_Left);
    editor.press(Qt::Key_Delete);
    QCOMPARE(editor.caption->toPlainText(), QString("Hillto"));
    editor.press(Qt::Key_Home);
    editor.type("Up ");
    QCOMPARE(editor.caption->toPlainText(), QString("Up Hillto"));
    editor.press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(editor.caption->toPlainText() != QString("Up Hillto"));
}

void tst_CRkGraphicsProjectItems::returnWithoutChange_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void tst_CRkGraphicsProjectItems::returnWithoutChange()
{
    QFETCH(int, key);
    Editor editor(longName);
    QSignalSpy finished(editor.caption, &CRkGraphicsProjectTextItem::editFinished);
    QVERIFY(editor.edit());
    editor.press(Qt::Key(key));
    QVERIFY(!editor.caption->hasFocus());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(editor.caption->GetPrjName(), longName);
    QVERIFY(editor.caption->toPlainText().endsWith(QChar(0x2026)));
}

void tst_CRkGraphicsProjectItems::editedName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("another name") << "Dale"
                                  << "Dale";
    QTest::newRow("blanks at the end") << "Dale   "
                                       << "Dale";
    QTest::newRow("blanks at the beginning stay") << "  Dale  "
                                                  << "  Dale";
    QTest::newRow("blanks within stay") << "Da  le"
                                        << "Da  le";
    QTest::newRow("a tabulator is no blank") << "Dale\t"
                                             << "Dale\t";
    QTest::newRow("only blanks") << "   "
                                 << "";
    QTest::newRow("the same with blanks") << "Hill  " << QString();
    QTest::newRow("other letter case") << "hill"
                                       << "hill";
}

void tst_CRkGraphicsProjectItems::editedName()
{
    QFETCH(QString, typed);
    QFETCH(QString, emitted);
    Editor editor(QStringLiteral("Hill"));
    QSignalSpy finished(editor.caption, &CRkGraphicsProjectTextItem::editFinished);
    QVERIFY(editor.edit());
    editor.replaceBy(typed);
    editor.press(Qt::Key_Return);
    QVERIFY(!editor.caption->hasFocus());
    if (emitted.isNull()) {
        QCOMPARE(finished.count(), 0);
        QCOMPARE(editor.caption->GetPrjName(), QString("Hill"));
        return;
    }
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished[0][0].toString(), emitted);
    QCOMPARE(editor.caption->GetPrjName(), emitted);
}

void tst_CRkGraphicsProjectItems::leavingEndsEditing()
{
    Editor editor(QStringLiteral("Hill"));
    QSignalSpy finished(editor.caption, &CRkGraphicsProjectTextItem::editFinished);
    QVERIFY(editor.edit());
    editor.replaceBy("Dale");
    QCOMPARE(finished.count(), 0);
    editor.scene.setFocusItem(nullptr);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished[0][0].toString(), QString("Dale"));
}

void tst_CRkGraphicsProjectItems::displayWaitsForTheListener()
{
    Editor editor(QStringLiteral("Hill"));
    QString shownAtSignal;
    connect(editor.caption, &CRkGraphicsProjectTextItem::editFinished, editor.caption, [&] {
        shownAtSignal = editor.caption->toPlainText();
        editor.caption->SetPlainText("Hill");
        editor.caption->buildDisplayAndToolTip();
    });
    QVERIFY(editor.edit());
    editor.replaceBy("Dale");
    editor.press(Qt::Key_Return);
    QCOMPARE(shownAtSignal, QString("Hill"));
    QCOMPARE(editor.caption->GetPrjName(), QString("Hill"));
    QVERIFY(editor.caption->toolTip().startsWith("Name:Hill\n"));
}

QTEST_MAIN(tst_CRkGraphicsProjectItems)
#include "tst_CRkGraphicsProjectItems.moc"
