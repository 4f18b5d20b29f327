// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/AntennaHeight.h>

#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The nearest number of single precision to the root of `square`, found without taking a root:
/// the squares of both its midpoints to its neighbours are exact in double precision.
bool isNearestRoot(float root, float square)
{
    const double below = (double(root) + double(std::nextafter(root, 0.0F))) / 2;
    const double above = (double(root) + double(std::nextafter(root, 1e30F))) / 2;
    return below * below <= double(square) && double(square) <= above * above;
}

} // namespace

class tst_AntennaHeight : public QObject
{
    Q_OBJECT

private slots:
    void radius();
    void height_data();
    void height();
    void tooShort_data();
    void tooShort();
    void rootIsTheNearestOfSinglePrecision();
    void rootDiffersFromThatOfDoublePrecision();
    void offsetsAreAddedFirst();
    void extremes();
};

void tst_AntennaHeight::radius()
{
    QCOMPARE(rk::antennaRadius, 0.13);
}

void tst_AntennaHeight::height_data()
{
    QTest::addColumn<double>("slantHeight");
    QTest::addColumn<double>("offsetP");
    QTest::addColumn<double>("offsetG");
    QTest::addColumn<double>("edgeHeight");
    QTest::addColumn<double>("height");
    QTest::newRow("one metre") << 1.0 << 0.0942 << 0.3 << 0x1.fba7b8p-1 << 1.3857139675140382;
    QTest::newRow("usual") << 1.482 << 0.0942 << 0.3 << 0x1.79edf6p+0 << 1.8704872457504274;
    QTest::newRow("two metres") << 2.0 << 0.0942 << 0.3 << 0x1.feeadp+0 << 2.3899704544067384;
    QTest::newRow("a million metres") << 1e6 << 0.0942 << 0.3 << 1e6 << 1000000.3942;
    QTest::newRow("the radius") << 0.13 << 0.0942 << 0.3 << 0.0 << 0.3 + 0.0942;
    QTest::newRow("the number after the radius")
        << 0.13000000000000003 << 0.0942 << 0.3 << 0x1.6a09e6p-29 << 0.394200002634178;
    QTest::newRow("negative") << -1.0 << 0.0942 << 0.3 << 0x1.fba7b8p-1 << 1.3857139675140382;
    QTest::newRow("minus the radius") << -0.13 << 0.0942 << 0.3 << 0.0 << 0.3 + 0.0942;
    QTest::newRow("no offsets") << 1.0 << 0.0 << 0.0 << 0x1.fba7b8p-1 << 0x1.fba7b8p-1;
    QTest::newRow("offsets below the edge")
        << 1.0 << -0.5 << -2.0 << 0x1.fba7b8p-1 << 0x1.fba7b8p-1 - 2.5;
}

void tst_AntennaHeight::height()
{
    QFETCH(double, slantHeight);
    QFETCH(double, offsetP);
    QFETCH(double, offsetG);
    QFETCH(double, edgeHeight);
    QFETCH(double, height);
    // To the last bit, so not with the tolerance of QCOMPARE.
    const auto edge = rk::antennaEdgeHeight(slantHeight);
    QVERIFY(edge && *edge == edgeHeight);
    const auto computed = rk::antennaHeight(slantHeight, offsetP, offsetG);
    QVERIFY2(computed && *computed == height,
             qPrintable(QString::number(computed.value_or(0), 'g', 17)));
}

void tst_AntennaHeight::tooShort_data()
{
    QTest::addColumn<double>("slantHeight");
    QTest::newRow("ten centimetres") << 0.1;
    QTest::newRow("minus ten centimetres") << -0.1;
    QTest::newRow("zero") << 0.0;
    QTest::newRow("minus zero") << -0.0;
    QTest::newRow("the number before the radius") << std::nextafter(0.13, 0.0);
}

void tst_AntennaHeight::tooShort()
{
    QFETCH(double, slantHeight);
    QVERIFY(!rk::antennaEdgeHeight(slantHeight));
    QVERIFY(!rk::antennaHeight(slantHeight, 0.0942, 0.3));
}

void tst_AntennaHeight::rootIsTheNearestOfSinglePrecision()
{
    const double squaredRadius = 0.016900000000000002;
    for (int i = 0; i <= 100000; ++i) {
        const double slantHeight = 0.131 + i * 1e-4;
        const auto square = float(slantHeight * slantHeight - squaredRadius);
        const double root = *rk::antennaEdgeHeight(slantHeight);
        QVERIFY2(double(float(root)) == root, qPrintable(QString::number(slantHeight)));
        QVERIFY2(isNearestRoot(float(root), square), qPrintable(QString::number(slantHeight)));
    }
}

void tst_AntennaHeight::rootDiffersFromThatOfDoublePrecision()
{
    const double inDouble = std::sqrt(1.0 - 0.016900000000000002) + 0.3942;
    const double difference = std::abs(*rk::antennaHeight(1.0, 0.0942, 0.3) - inDouble);
    QVERIFY(difference > 1e-8);
    QVERIFY(difference < 1e-7);
}

void tst_AntennaHeight::offsetsAreAddedFirst()
{
    QCOMPARE(*rk::antennaHeight(1.0, -1e16, 1e16), 0x1.fba7b8p-1);
}

void tst_AntennaHeight::extremes()
{
    QCOMPARE(*rk::antennaEdgeHeight(infinity), infinity);
    QCOMPARE(*rk::antennaEdgeHeight(-infinity), infinity);
    QCOMPARE(*rk::antennaHeight(1.0, infinity, 0.3), infinity);
    QVERIFY(std::isnan(*rk::antennaEdgeHeight(std::nan(""))));
    QVERIFY(std::isnan(*rk::antennaHeight(1.0, infinity, -infinity)));
}

QTEST_GUILESS_MAIN(tst_AntennaHeight)
#include "tst_AntennaHeight.moc"
