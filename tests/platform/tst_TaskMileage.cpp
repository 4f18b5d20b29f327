// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/Numbers.h>
#include <RkAlgorthm/TaskMileage.h>

#include <QtTest>

#include <limits>

class tst_TaskMileage : public QObject
{
    Q_OBJECT

private slots:
    void mileage_data();
    void mileage();
    void neverNegative();
    void rounding_data();
    void rounding();
};

void tst_TaskMileage::mileage_data()
{
    QTest::addColumn<int>("plane");
    QTest::addColumn<int>("camera");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("metres");
    QTest::newRow("unknown") << 0 << 1 << 0 << 0 << 0.0;
    QTest::newRow("fixed wing, light") << 1 << 1 << 0 << 0 << 60000.0;
    QTest::newRow("fixed wing, long range") << 2 << 1 << 0 << 0 << 150000.0;
    QTest::newRow("VTOL, light") << 3 << 1 << 0 << 0 << 45000.0;
    QTest::newRow("quadrotor") << 4 << 1 << 0 << 0 << 15000.0;
    QTest::newRow("VTOL, long range") << 5 << 1 << 0 << 0 << 100000.0;
    QTest::newRow("hexarotor") << 6 << 1 << 0 << 0 << 12000.0;
    QTest::newRow("not in the table") << 7 << 1 << 0 << 0 << 0.0;
    QTest::newRow("unknown camera") << 1 << 0 << 0 << 0 << 60000.0;
    QTest::newRow("five lenses") << 1 << 4 << 0 << 0 << 51000.0;
    QTest::newRow("laser scanner") << 1 << 7 << 0 << 0 << 45000.0;
    QTest::newRow("following the terrain") << 1 << 1 << 1 << 0 << 54000.0;
    QTest::newRow("another mode") << 1 << 1 << 2 << 0 << 60000.0;
    QTest::newRow("height") << 1 << 1 << 0 << 300 << 57000.0;
    QTest::newRow("height below 0") << 1 << 1 << 0 << -300 << 60000.0;
    QTest::newRow("all of it") << 4 << 4 << 1 << 100 << 15000 * 0.85 * 0.9 - 1000;
}

void tst_TaskMileage::mileage()
{
    QFETCH(int, plane);
    QFETCH(int, camera);
    QFETCH(int, mode);
    QFETCH(int, height);
    QTEST(GetSingleTaskMileage(EPlaneType(plane), ECameraType(camera), mode, height), "metres");
}

void tst_TaskMileage::neverNegative()
{
    for (const int height : {1500, 1501, std::numeric_limits<int>::max()})
        QCOMPARE(GetSingleTaskMileage(PlaneTypeQuadrotor, CameraTypeUnknown, 0, height), 0.0);
}

void tst_TaskMileage::rounding_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    QTest::newRow("below the half") << 2.4 << 2;
    QTest::newRow("half") << 2.5 << 3;
    QTest::newRow("above the half") << 2.6 << 3;
    QTest::newRow("negative") << -2.6 << -3;
    QTest::newRow("zero") << -0.0 << 0;
    QTest::newRow("largest") << double(largest) << largest;
    QTest::newRow("smallest") << double(smallest) << smallest;
    QTest::newRow("too large") << 1e300 << largest;
    QTest::newRow("too small") << -qInf() << smallest;
    QTest::newRow("not a number") << qQNaN() << 0;
}

void tst_TaskMileage::rounding()
{
    QFETCH(double, value);
    QTEST(qrealToIntNumber(value), "expected");
}

QTEST_GUILESS_MAIN(tst_TaskMileage)
#include "tst_TaskMileage.moc"
