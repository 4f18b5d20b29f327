// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/TileGrid.h"

#include <QtTest>

class tst_TileGrid : public QObject
{
    Q_OBJECT

private slots:
    void columns_data();
    void columns();
    void position_data();
    void position();
    void everyTileHasAPlaceOfItsOwn();
    void sceneReachesBelowEveryTile();
};

void tst_TileGrid::columns_data()
{
    QTest::addColumn<int>("viewWidth");
    QTest::addColumn<int>("columns");
    QTest::newRow("no width") << 0 << 1;
    QTest::newRow("negative width") << -500 << 1;
    QTest::newRow("just too narrow for one") << 209 << 1;
    QTest::newRow("exactly one") << 210 << 1;
    QTest::newRow("just too narrow for two") << 419 << 1;
    QTest::newRow("exactly two") << 420 << 2;
    QTest::newRow("640 wide") << 640 << 3;
    QTest::newRow("the dialog's 960") << 960 << 4;
}

void tst_TileGrid::columns()
{
    QFETCH(int, viewWidth);
    QTEST(TileGrid::columns(viewWidth), "columns");
}

void tst_TileGrid::position_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("viewWidth");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<int>("sceneHeight");
    QTest::newRow("first") << 0 << 640 << QPoint(32, 0) << 363;
    QTest::newRow("second") << 1 << 640 << QPoint(242, 0) << 363;
    QTest::newRow("last of the row") << 2 << 640 << QPoint(452, 0) << 363;
    QTest::newRow("fourth of three columns") << 3 << 640 << QPoint(32, 220) << 583;
    QTest::newRow("sixth of three columns") << 5 << 640 << QPoint(452, 220) << 583;
    QTest::newRow("narrow view, one column") << 2 << 100 << QPoint(32, 440) << 803;
    QTest::newRow("far down") << 4999 << 640 << QPoint(242, 366520) << 366883;
}

void tst_TileGrid::position()
{
    QFETCH(int, index);
    QFETCH(int, viewWidth);
    QTEST(TileGrid::position(index, viewWidth), "position");
    QTEST(TileGrid::sceneHeight(index, viewWidth), "sceneHeight");
}

void tst_TileGrid::everyTileHasAPlaceOfItsOwn()
{
    for (const int width : {0, 210, 640, 1919}) {
        QRect previous;
        for (int index = 0; index < 200; ++index) {
            const QRect tile(TileGrid::position(index, width), QSize(200, 180));
            QVERIFY(!tile.intersects(previous));
            QVERIFY(index == 0 || tile.y() > previous.y() || tile.x() > previous.x());
            previous = tile;
        }
    }
}

void tst_TileGrid::sceneReachesBelowEveryTile()
{
    for (int index = 0; index < 50; ++index)
        QVERIFY(TileGrid::sceneHeight(index, 640) >= TileGrid::position(index, 640).y() + 180);
}

QTEST_GUILESS_MAIN(tst_TileGrid)
#include "tst_TileGrid.moc"
