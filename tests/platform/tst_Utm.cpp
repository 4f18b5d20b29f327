// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/Utm.h>

#include <QtTest>

#include <cmath>

using Points = std::vector<CRkPoint2D>;

namespace {

constexpr double degree = 3.14159265358979323846 / 180;

/// UTM by another way than the one under test: the series of L. Krueger (1912) to the fourth order
/// in the third flattening, from the conformal latitude. `zone` 1 to 60.
CRkPoint2D bySeries(double lat, double lng, int zone, bool north)
{
    const double a = 6378137;
    const double f = 1 / 298.257223563;
    const double n = f / (2 - f);
    const double n2 = n * n;
    const double n3 = n2 * n;
    const double n4 = n3 * n;
    const double radius = a / (1 + n) * (1 + n2 / 4 + n4 / 64);
    const double alpha[] = {n / 2 - 2 * n2 / 3 + 5 * n3 / 16 + 41 * n4 / 180,
                            13 * n2 / 48 - 3 * n3 / 5 + 557 * n4 / 1440,
                            61 * n3 / 240 - 103 * n4 / 140, 49561 * n4 / 161280};
    const double e = std::sqrt(f * (2 - f));
    const double phi = lat * degree;
    const double lambda = (lng - (6 * zone - 183)) * degree;
    const double t = std::sinh(std::atanh(std::sin(phi)) - e * std::atanh(e * std::sin(phi)));
    const double xi = std::atan2(t, std::cos(lambda));
    const double eta = std::asinh(std::sin(lambda) / std::hypot(t, std::cos(lambda)));
    double x = eta;
    double y = xi;
    for (int j = 1; j <= 4; ++j) {
        x += alpha[j - 1] * std::cos(2 * j * xi) * std::sinh(2 * j * eta);
        y += alpha[j - 1] * std::sin(2 * j * xi) * std::cosh(2 * j * eta);
    }
    return CRkPoint2D(500000 + 0.9996 * radius * x, (north ? 0 : 10000000) + 0.9996 * radius * y);
}

bool isNear(const CRkPoint2D& a, const CRkPoint2D& b, double tolerance)
{
    return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
}

} // namespace

class tst_Utm : public QObject
{
    Q_OBJECT

private slots:
    void knownValues();
    void zones_data();
    void zones();
    void oneZoneForAll();
    void acrossTheEquator();
    void sameList();
    void refused_data();
    void refused();
    void pointAtInfinity();
};

void tst_Utm::knownValues()
{
    // The example of GeographicLib's UTM conversion: Baghdad, 38n 444140.54 3684706.36.
    Points out;
    QVERIFY(LatLng2UTM({{33.3, 44.4}}, out));
    QCOMPARE(int(out.size()), 1);
    QVERIFY(isNear(out[0], CRkPoint2D(444140.54, 3684706.36), 0.005));
    QVERIFY(isNear(out[0], bySeries(33.3, 44.4, 38, true), 1e-4));
    // On the central meridian at the equator.
    QVERIFY(LatLng2UTM({{0, 3}}, out));
    QVERIFY(isNear(out[0], CRkPoint2D(500000, 0), 1e-9));
}

void tst_Utm::zones_data()
{
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lng");
    QTest::addColumn<int>("zone");
    QTest::newRow("Chengdu") << 30.66 << 104.06 << 48;
    QTest::newRow("first zone") << 10.0 << -180.0 << 1;
    QTest::newRow("180 is -180") << 10.0 << 180.0 << 1;
    QTest::newRow("last zone") << 10.0 << 179.9 << 60;
    QTest::newRow("western border of a zone") << 45.0 << 6.0 << 32;
    QTest::newRow("just west of it") << 45.0 << 5.9999 << 31;
    QTest::newRow("equator") << 0.0 << 104.0 << 48;
    QTest::newRow("south") << -33.87 << 151.21 << 56;
    QTest::newRow("just south of the equator") << -1e-9 << 104.0 << 48;
    QTest::newRow("southern limit") << -80.0 << 20.0 << 34;
    QTest::newRow("northern limit") << 84.0 << 50.0 << 39;
    QTest::newRow("Bergen, exception for Norway") << 60.39 << 5.32 << 32;
    QTest::newRow("Longyearbyen, exception for Svalbard") << 78.22 << 15.65 << 33;
}

void tst_Utm::zones()
{
    QFETCH(double, lat);
    QFETCH(double, lng);
    QFETCH(int, zone);
    Points out;
    QVERIFY(LatLng2UTM({{lat, lng}}, out));
    const double sameSide = lng == 180 ? -180 : lng;
    QVERIFY(isNear(out[0], bySeries(lat, sameSide, zone, lat >= 0), 1e-4));
}

void tst_Utm::oneZoneForAll()
{
    // 108 degrees is the border of zones 48 and 49.
    const Points in = {{30.0, 107.9}, {30.1, 108.2}, {30.2, 107.8}};
    Points out;
    QVERIFY(LatLng2UTM(in, out));
    QCOMPARE(out.size(), in.size());
    for (std::size_t i = 0; i < in.size(); ++i)
        QVERIFY(isNear(out[i], bySeries(in[i].x(), in[i].y(), 48, true), 1e-4));
    QVERIFY(LatLng2UTM({in[1], in[0]}, out));
    QVERIFY(isNear(out[0], bySeries(in[1].x(), in[1].y(), 49, true), 1e-4));
    QVERIFY(isNear(out[1], bySeries(in[0].x(), in[0].y(), 49, true), 1e-4));
}

void tst_Utm::acrossTheEquator()
{
    Points out;
    QVERIFY(LatLng2UTM({{0.01, 104}, {-0.01, 104}}, out));
    QVERIFY(isNear(out[1], bySeries(-0.01, 104, 48, true), 1e-4));
    QVERIFY(out[1].y() < 0);
    QVERIFY(LatLng2UTM({{-0.01, 104}, {0.01, 104}}, out));
    QVERIFY(isNear(out[1], bySeries(0.01, 104, 48, false), 1e-4));
    QVERIFY(out[1].y() > 10000000);
}

void tst_Utm::sameList()
{
    Points points = {{30.66, 104.06}, {30.67, 104.07}};
    Points out;
    QVERIFY(LatLng2UTM(points, out));
    QVERIFY(LatLng2UTM(points, points));
    QVERIFY(points == out);
}

void tst_Utm::refused_data()
{
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lng");
    QTest::newRow("latitude not a number") << qQNaN() << 104.0;
    QTest::newRow("longitude not a number") << 30.0 << qQNaN();
    QTest::newRow("latitude infinite") << qInf() << 104.0;
    QTest::newRow("longitude infinite") << 30.0 << -qInf();
    QTest::newRow("too far south") << std::nextafter(-80.0, -90.0) << 104.0;
    QTest::newRow("too far north") << std::nextafter(84.0, 90.0) << 104.0;
    QTest::newRow("too far west") << 30.0 << std::nextafter(-180.0, -190.0);
    QTest::newRow("too far east") << 30.0 << std::nextafter(180.0, 190.0);
}

void tst_Utm::refused()
{
    QFETCH(double, lat);
    QFETCH(double, lng);
    const Points before = {{1, 2}};
    Points out = before;
    QVERIFY(!LatLng2UTM({{lat, lng}}, out));
    QVERIFY(!LatLng2UTM({{30, 104}, {lat, lng}}, out));
    QVERIFY(!LatLng2UTM({}, out));
    QVERIFY(out == before);
}

void tst_Utm::pointAtInfinity()
{
    const Points before = {{1, 2}};
    for (const double lng : {93.0, -87.0}) { // a quarter of the equator from 3 degrees
        Points out = before;
        QVERIFY(!LatLng2UTM({{0, 3}, {0, lng}}, out));
        QVERIFY(out == before);
    }
}

QTEST_GUILESS_MAIN(tst_Utm)
#include "tst_Utm.moc"
