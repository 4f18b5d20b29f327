// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Render.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/CRkActionView.h>

#include <QGridLayout>
#include <QListWidget>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace {

QListWidget* listOf(const QWidget& view)
{
    return view.findChild<QListWidget*>();
}

EToolType tool(int number)
{
    return EToolType(number);
}

QString iconPath(const QTemporaryDir& folder)
{
    const QString path = folder.filePath("tool2_line_nor.png");
    QImage image(48, 48, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return image.save(path) ? path : QString();
}

QList<int> selectedRows(const QWidget& view)
{
    QList<int> rows;
    for (const QListWidgetItem* item : listOf(view)->selectedItems())
        rows.append(listOf(view)->row(item));
    return rows;
}

} // namespace

class tst_CRkActionView : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void list();
    void metaObject();
    void addItem();
    void minimumSizeIsThatOfAnItem();
    void pickWithTheMouse();
    void prefix_data();
    void prefix();
    void hiddenAfterThePickIsTold();
    void nullItem();
    void setItemClicked_data();
    void setItemClicked();
    void unSelectAll();
    void keys();
    void keysOfAnEmptyList();

    void hoveredItemIsRed();
    void listLetsTheGroundThrough_data() { addScales(); }
    void listLetsTheGroundThrough();
    void iconSize();
    void manyItems();
    void oddTexts_data();
    void oddTexts();
};

void tst_CRkActionView::construction()
{
    const CRkActionView view(nullptr);
    // Qt adds the bit of a window to whatever has no parent.
    QCOMPARE(int(view.windowFlags()) & ~int(Qt::Window), 0x800);
    QCOMPARE(view.size(), QSize(94, 87));
    QVERIFY(!view.isVisible());
    QCOMPARE(view.GetItemCount(), 0);

    const auto* grid = qobject_cast<QGridLayout*>(view.layout());
    QVERIFY(grid);
    QCOMPARE(grid->horizontalSpacing(), 6);
    QCOMPARE(grid->verticalSpacing(), 6);
    QCOMPARE(grid->contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(grid->count(), 1);
    QCOMPARE(grid->itemAt(0)->widget(), listOf(view));
}

void tst_CRkActionView::list()
{
    const CRkActionView view(nullptr);
    const QListWidget* list = listOf(view);
    QCOMPARE(list->iconSize(), QSize(48, 48));
    QCOMPARE(list->focusPolicy(), Qt::NoFocus);
    QCOMPARE(list->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(list->accessibleName(), QString("Tools"));
    QCOMPARE(list->selectionMode(), QListWidget::SingleSelection);
}

void tst_CRkActionView::metaObject()
{
    const QMetaObject& meta = CRkActionView::staticMetaObject;
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), QByteArray("ActionClicked(int,QString)"));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("slotItemClicked(QListWidgetItem*)"));
}

void tst_CRkActionView::addItem()
{
    const QTemporaryDir folder;
    const QString path = iconPath(folder);
    CRkActionView view(nullptr);
    view.AddItem("Line", path, tool(3));
    view.AddItem("Area", ":/no/such/picture_nor.png", tool(-7));
    QCOMPARE(view.GetItemCount(), 2);
    const QListWidgetItem* line = listOf(view)->item(0);
    QCOMPARE(line->text(), QString("Line"));
    QCOMPARE(line->sizeHint(), QSize(60, 40));
    QCOMPARE(line->data(Qt::UserRole), QVariant(3));
    QCOMPARE(line->data(Qt::UserRole + 1), QVariant(path));
    QCOMPARE(line->icon().pixmap(48, 48).toImage().pixelColor(20, 20), QColor(Qt::blue));
    const QListWidgetItem* area = listOf(view)->item(1);
    QCOMPARE(area->text(), QString("Area"));
    QCOMPARE(area->data(Qt::UserRole), QVariant(-7));
    QVERIFY(area->icon().pixmap(48, 48).isNull());
}

void tst_CRkActionView::minimumSizeIsThatOfAnItem()
{
    CRkActionView view(nullptr);
    QCOMPARE(listOf(view)->minimumSize(), QSize(0, 0));
    for (int i = 0; i < 3; ++i) {
        listOf(view)->setMinimumSize(1, 1);
        view.AddItem("text", QString(), tool(i));
        QCOMPARE(listOf(view)->minimumSize(), QSize(120, 40));
    }
}

void tst_CRkActionView::pickWithTheMouse()
{
    CRkActionView view(nullptr);
    view.AddItem("Line", ":/tool2_line_nor.png", tool(3));
    view.AddItem("Area", ":/tool2_area_nor.png", tool(4));
    view.resize(150, 120);
    view.show();
    QVERIFY(comesOnScreen(&view));
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    QWidget* viewport = listOf(view)->viewport();
    const auto middle = [&view](int row) {
        return listOf(view)->visualItemRect(listOf(view)->item(row)).center();
    };
    QTest::mouseClick(viewport, Qt::RightButton, {}, middle(1));
    QTest::mouseClick(viewport, Qt::LeftButton, {}, QPoint(60, viewport->height() - 3));
    QCOMPARE(picked.count(), 0);
    QVERIFY(view.isVisible());

    QTest::mouseClick(viewport, Qt::LeftButton, {}, middle(1));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first(), QVariantList({4, ":/tool_area_"}));
    QVERIFY(!view.isVisible());
}

void tst_CRkActionView::prefix_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("second family") << ":/images/Normal/tool2_line_nor.png"
                                   << ":/images/Normal/tool_line_";
    QTest::newRow("first family") << ":/images/tool_line_nor.png"
                                  << ":/images/tool_line_";
    QTest::newRow("no tool") << ":/images/line_nor.png"
                             << ":/images/line_";
    QTest::newRow("in folder and name") << ":/tool2/tool2_nor.png"
                                        << ":/tool/tool_";
    QTest::newRow("other case") << ":/Tool2_TOOL2_nor.png"
                                << ":/Tool2_TOOL2_";
    QTest::newRow("tool22") << ":/tool22_nor.png"
                            << ":/tool2_";
    QTest::newRow("other ending") << ":/tool2_line.jpeg"
                                  << ":/tool_li";
    QTest::newRow("seven characters") << "nor.png"
                                      << "";
    QTest::newRow("shorter than the ending") << "a.png"
                                             << "";
    QTest::newRow("shorter once replaced") << "tool2nor"
                                           << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("100,000 characters") << QString(100000, 'x') + "nor.png" << QString(100000, 'x');
}

void tst_CRkActionView::prefix()
{
    QFETCH(QString, path);
    QFETCH(QString, prefix);
    CRkActionView view(nullptr);
    view.AddItem("text", path, tool(9));
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    view.slotItemClicked(listOf(view)->item(0));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first(), QVariantList({9, prefix}));
}

void tst_CRkActionView::hiddenAfterThePickIsTold()
{
    CRkActionView view(nullptr);
    view.AddItem("text", "nor.png", tool(1));
    view.show();
    bool visible = false;
    connect(&view, &CRkActionView::ActionClicked, this, [&] { visible = view.isVisible(); });
    view.slotItemClicked(listOf(view)->item(0));
    QVERIFY(visible);
    QVERIFY(!view.isVisible());
}

void tst_CRkActionView::nullItem()
{
    CRkActionView view(nullptr);
    view.show();
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    view.slotItemClicked(nullptr);
    QCOMPARE(picked.count(), 0);
    QVERIFY(view.isVisible());
}

void tst_CRkActionView::setItemClicked_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QList<QVariantList>>("picks");
    QTest::newRow("there") << 5 << QList<int>{1} << QList<QVariantList>{{5, "b"}};
    QTest::newRow("twice there") << 6 << QList<int>{2} << QList<QVariantList>{{6, "c"}};
    QTest::newRow("zero") << 0 << QList<int>{4} << QList<QVariantList>{{0, "e"}};
    QTest::newRow("not there") << 7 << QList<int>{} << QList<QVariantList>{};
}

void tst_CRkActionView::setItemClicked()
{
    QFETCH(int, type);
    QFETCH(QList<int>, rows);
    QFETCH(QList<QVariantList>, picks);
    CRkActionView view(nullptr);
    view.AddItem("first", "anor.png", tool(4));
    view.AddItem("second", "bnor.png", tool(5));
    view.AddItem("third", "cnor.png", tool(6));
    view.AddItem("fourth", "dnor.png", tool(6));
    view.AddItem("fifth", "enor.png", tool(0));
    listOf(view)->setCurrentRow(0);
    view.show();
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    QList<int> selectedAtPick;
    connect(&view, &CRkActionView::ActionClicked, this,
            [&] { selectedAtPick = selectedRows(view); });
    view.SetItemClicked(tool(type));
    QCOMPARE(QList<QVariantList>(picked), picks);
    QCOMPARE(selectedAtPick, rows);
    QCOMPARE(selectedRows(view), rows);
    QCOMPARE(view.isVisible(), picks.isEmpty());
}

void tst_CRkActionView::unSelectAll()
{
    CRkActionView view(nullptr);
    view.UnSelectAll();
    view.AddItem("text", "nor.png", tool(1));
    listOf(view)->setCurrentRow(0);
    QCOMPARE(selectedRows(view), QList<int>{0});
    view.UnSelectAll();
    QCOMPARE(selectedRows(view), QList<int>{});
}

void tst_CRkActionView::keys()
{
    CRkActionView view(nullptr);
    for (int i = 0; i < 3; ++i)
        view.AddItem("text", "nor.png", tool(i));
    view.show();
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    const auto press = [&view](Qt::Key key) {
        QTest::keyClick(&view, key);
        return selectedRows(view);
    };
    QCOMPARE(press(Qt::Key_Return), QList<int>{});
    QCOMPARE(picked.count(), 0);
    QVERIFY(view.isVisible());
    QCOMPARE(press(Qt::Key_Down), QList<int>{0});
    QCOMPARE(press(Qt::Key_Up), QList<int>{0});
    QCOMPARE(press(Qt::Key_Down), QList<int>{1});
    QCOMPARE(press(Qt::Key_End), QList<int>{2});
    QCOMPARE(press(Qt::Key_Down), QList<int>{2});
    QCOMPARE(press(Qt::Key_Up), QList<int>{1});
    QCOMPARE(press(Qt::Key_Home), QList<int>{0});
    view.UnSelectAll();
    QCOMPARE(press(Qt::Key_Down), QList<int>{0});
    view.UnSelectAll();
    QCOMPARE(press(Qt::Key_Up), QList<int>{2});
    QCOMPARE(picked.count(), 0);
    press(Qt::Key_Enter);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first(), QVariant(2));
    QVERIFY(!view.isVisible());
}

void tst_CRkActionView::keysOfAnEmptyList()
{
    CRkActionView view(nullptr);
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(&view, key);
    QCOMPARE(picked.count(), 0);
}

void tst_CRkActionView::hoveredItemIsRed()
{
    CRkActionView view(nullptr);
    view.AddItem("i", QString(), tool(1));
    view.AddItem("i", QString(), tool(2));
    view.resize(150, 120);
    view.show();
    QVERIFY(comesOnScreen(&view));
    QWidget* viewport = listOf(view)->viewport();
    const QPoint first = listOf(view)->visualItemRect(listOf(view)->item(0)).center();
    const QPoint second = listOf(view)->visualItemRect(listOf(view)->item(1)).center();
    QTest::mouseMove(view.windowHandle(), QPoint(1, 1));
    QTest::mouseMove(view.windowHandle(), viewport->mapTo(&view, second));
    for (const int scale : {1, 2}) {
        const QImage image = rendered(*viewport, scale);
        QCOMPARE(colorAt(image, second), QColor(255, 0, 0));
        QVERIFY(colorAt(image, first) != QColor(255, 0, 0));
    }
}

void tst_CRkActionView::listLetsTheGroundThrough()
{
    QFETCH(int, scale);
    CRkActionView view(nullptr);
    QPalette palette = view.palette();
    palette.setColor(QPalette::Window, Qt::green);
    view.setPalette(palette);
    view.resize(150, 120);
    const QImage image = rendered(view, scale);
    QImage ground(image);
    ground.fill(Qt::green);
    QCOMPARE(image, ground);
}

void tst_CRkActionView::iconSize()
{
    const QTemporaryDir folder;
    CRkActionView view(nullptr);
    view.AddItem(QString(), iconPath(folder), tool(1));
    view.resize(150, 120);
    view.show();
    QVERIFY(comesOnScreen(&view));
    const QImage image = rendered(*listOf(view)->viewport(), 1);
    QRect blue;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::blue))
                blue |= QRect(x, y, 1, 1);
        }
    }
    QCOMPARE(blue.width(), 48);
    QVERIFY(blue.height() >= 40); // The item is less high than its picture.
}

void tst_CRkActionView::manyItems()
{
    CRkActionView view(nullptr);
    constexpr int count = 10000;
    for (int i = 0; i < count; ++i)
        view.AddItem(QString::number(i), ":/tool2_line_nor.png", tool(i));
    QCOMPARE(view.GetItemCount(), count);
    view.show();
    QVERIFY(comesOnScreen(&view));
    QVERIFY(view.height() < 200);
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    view.SetItemClicked(tool(count - 1));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first(), QVariantList({count - 1, ":/tool_line_"}));
    QCOMPARE(selectedRows(view), QList<int>{count - 1});
}

void tst_CRkActionView::oddTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("100,000 characters") << QString(100000, QLatin1Char('8'));
    QTest::newRow("100,000 lines") << QString(100000, QLatin1Char('\n'));
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1\u05d2");
}

void tst_CRkActionView::oddTexts()
{
    QFETCH(QString, text);
    CRkActionView view(nullptr);
    view.setLayoutDirection(Qt::RightToLeft);
    view.AddItem(text, QString(), tool(1));
    view.show();
    QVERIFY(comesOnScreen(&view));
    const QListWidgetItem* item = listOf(view)->item(0);
    QCOMPARE(item->text(), text);
    QCOMPARE(listOf(view)->visualItemRect(item).height(), 40);
    QVERIFY(view.width() < 300);
    QSignalSpy picked(&view, &CRkActionView::ActionClicked);
    QTest::mouseClick(listOf(view)->viewport(), Qt::LeftButton, {},
                      listOf(view)->visualItemRect(item).center());
    QCOMPARE(picked.count(), 1);
}

QTEST_MAIN(tst_CRkActionView)
#include "tst_CRkActionView.moc"
