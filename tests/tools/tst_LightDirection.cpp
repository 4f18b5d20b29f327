// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/LightDirection.h>

#include <QTest>
#include <QtMath>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(rk::LightAngles)

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QString fourDecimals(float value)
{
    return QString::number(static_cast<double>(value), 'f', 4);
}

/// `(x, y, z)` turned about the x axis and then about the z axis, written out.
QVector3D turnedByHand(double x, double y, double z, rk::LightAngles angles)
{
    const double el = qDegreesToRadians(static_cast<double>(angles.elevation));
    const double az = qDegreesToRadians(static_cast<double>(angles.azimuth));
    const double y1 = y * std::cos(el) - z * std::sin(el);
    const double z1 = y * std::sin(el) + z * std::cos(el);
    return QVector3D(static_cast<float>(x * std::cos(az) - y1 * std::sin(az)),
                     static_cast<float>(x * std::sin(az) + y1 * std::cos(az)),
                     static_cast<float>(z1));
}

void compareNear(const QVector3D& actual, const QVector3D& expected, float tolerance)
{
    const QVector3D off = actual - expected;
    QVERIFY2(off.length() <= tolerance,
             qPrintable(QString("(%1, %2, %3) instead of (%4, %5, %6)")
                            .arg(actual.x())
                            .arg(actual.y())
                            .arg(actual.z())
                            .arg(expected.x())
                            .arg(expected.y())
                            .arg(expected.z())));
}

} // namespace

class tst_LightDirection : public QObject
{
    Q_OBJECT

private slots:
    void distance_data();
    void distance();
    void angles_data();
    void angles();
    void anglesAreOfSinglePrecision();
    void anglesOfNoDirection_data();
    void anglesOfNoDirection();
    void scaleDoesNotMatter_data();
    void scaleDoesNotMatter();
    void position_data();
    void position();
    void marker_data();
    void marker();
    void turnsFarAndWide();
    void pointsOfNoAngles();
    void markerLiesTowardsTheLight();
};

void tst_LightDirection::distance_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::addColumn<float>("expected");
    QTest::newRow("origin") << 0.0 << 0.0 << 0.0 << 0.0F;
    QTest::newRow("whole numbers") << 2.0 << -3.0 << 6.0 << 7.0F;
    QTest::newRow("rounded to a float") << 0.1 << 0.0 << 0.0 << 0.1F;
    QTest::newRow("squares beyond a float") << 3e30 << 4e30 << 0.0 << 5e30F;
    QTest::newRow("squares below a float") << 3e-30 << 0.0 << -4e-30 << 5e-30F;
    QTest::newRow("infinite") << 1.0 << -infinity << 0.0 << std::numeric_limits<float>::infinity();
}

void tst_LightDirection::distance()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    QFETCH(float, expected);
    QCOMPARE(rk::lightDistance(x, y, z), expected);
}

void tst_LightDirection::angles_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::addColumn<QString>("azimuth");
    QTest::addColumn<QString>("elevation");
    QTest::newRow("straight up") << 0.0 << 0.0 << 5.0 << "0.0000"
                                 << "90.0066";
    QTest::newRow("straight down") << 0.0 << 0.0 << -5.0 << "0.0000"
                                   << "-90.0066";
    QTest::newRow("north") << 0.0 << 3.0 << 0.0 << "0.0000"
                           << "0.0000";
    QTest::newRow("east") << 3.0 << 0.0 << 0.0 << "90.0066"
                          << "0.0000";
    QTest::newRow("south") << 0.0 << -3.0 << 0.0 << "180.0000"
                           << "0.0000";
    QTest::newRow("west") << -3.0 << 0.0 << 0.0 << "269.9934"
                          << "0.0000";
    QTest::newRow("north-east") << 1.0 << 1.0 << 0.0 << "45.0033"
                                << "0.0000";
    QTest::newRow("south-east") << 1.0 << -1.0 << 0.0 << "134.9967"
                                << "0.0000";
    QTest::newRow("south-west") << -1.0 << -1.0 << 0.0 << "225.0033"
                                << "0.0000";
    QTest::newRow("north-west") << -1.0 << 1.0 << 0.0 << "314.9967"
                                << "0.0000";
    QTest::newRow("half up") << 0.0 << 1.0 << 1.0 << "0.0000"
                             << "45.0033";
    QTest::newRow("half down") << 0.0 << -1.0 << -1.0 << "180.0000"
                               << "-45.0033";
    QTest::newRow("a third up") << 2.0 << 2.0 << 1.0 << "45.0033"
                                << "19.4727";
}

void tst_LightDirection::angles()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    const rk::LightAngles angles = rk::lightAngles(x, y, z);
    QTEST(fourDecimals(angles.azimuth), "azimuth");
    QTEST(fourDecimals(angles.elevation), "elevation");
}

/// The arc sine of the single-precision ratio, to the last bit.
void tst_LightDirection::anglesAreOfSinglePrecision()
{
    const auto degrees = [](float sine) { return static_cast<float>(std::asin(sine) * 57.3); };
    const rk::LightAngles angles = rk::lightAngles(0.1, 0.7, 0.3);
    const float r = static_cast<float>(std::sqrt(0.1 * 0.1 + 0.7 * 0.7 + 0.3 * 0.3));
    const float l = static_cast<float>(std::sqrt(0.1 * 0.1 + 0.7 * 0.7));
    QVERIFY(angles.elevation == degrees(static_cast<float>(0.3 / r)));
    QVERIFY(angles.azimuth == degrees(static_cast<float>(0.1 / l)));

    // A distance rounded down does not make a sine above one.
    QCOMPARE(fourDecimals(rk::lightAngles(0, 0, 0.7).elevation), QString("90.0066"));
    QCOMPARE(fourDecimals(rk::lightAngles(0.7, 0, 0).azimuth), QString("90.0066"));
}

void tst_LightDirection::anglesOfNoDirection_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::addColumn<bool>("hasAzimuth");
    QTest::addColumn<bool>("hasElevation");
    QTest::newRow("origin") << 0.0 << 0.0 << 0.0 << true << false;
    QTest::newRow("below a float") << 1e-60 << 1e-60 << 1e-60 << true << false;
    QTest::newRow("x is no number") << notANumber << 1.0 << 1.0 << true << false;
    QTest::newRow("y is no number") << 1.0 << notANumber << 1.0 << true << false;
    QTest::newRow("z is no number") << 1.0 << 1.0 << notANumber << true << false;
    QTest::newRow("x is infinite") << infinity << 1.0 << 1.0 << false << true;
    QTest::newRow("y is infinite") << 1.0 << -infinity << 1.0 << true << true;
    QTest::newRow("z is infinite") << 1.0 << 1.0 << infinity << true << false;
}

void tst_LightDirection::anglesOfNoDirection()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    QFETCH(bool, hasAzimuth);
    QFETCH(bool, hasElevation);
    const rk::LightAngles angles = rk::lightAngles(x, y, z);
    QCOMPARE(!std::isnan(angles.azimuth), hasAzimuth);
    QCOMPARE(!std::isnan(angles.elevation), hasElevation);
}

void tst_LightDirection::scaleDoesNotMatter_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("tiny") << 1e-30;
    QTest::newRow("metres") << 1000.0;
    QTest::newRow("huge") << 1e30;
}

void tst_LightDirection::scaleDoesNotMatter()
{
    QFETCH(double, scale);
    const rk::LightAngles angles = rk::lightAngles(-3 * scale, -4 * scale, 12 * scale);
    QCOMPARE(angles.azimuth, rk::lightAngles(-3, -4, 12).azimuth);
    QCOMPARE(angles.elevation, rk::lightAngles(-3, -4, 12).elevation);
}

void tst_LightDirection::position_data()
{
    QTest::addColumn<rk::LightAngles>("angles");
    QTest::addColumn<float>("distance");
    QTest::addColumn<QVector3D>("expected");
    using Angles = rk::LightAngles;
    QTest::newRow("no turn") << Angles{0, 0} << 7.0F << QVector3D(0, 0, 7);
    QTest::newRow("azimuth alone") << Angles{90, 0} << 7.0F << QVector3D(0, 0, 7);
    QTest::newRow("level to the south") << Angles{0, 90} << 7.0F << QVector3D(0, -7, 0);
    QTest::newRow("level to the north") << Angles{0, -90} << 7.0F << QVector3D(0, 7, 0);
    QTest::newRow("elevation before azimuth") << Angles{90, 90} << 7.0F << QVector3D(7, 0, 0);
    QTest::newRow("upside down") << Angles{0, 180} << 7.0F << QVector3D(0, 0, -7);
    QTest::newRow("no distance") << Angles{30, 40} << 0.0F << QVector3D(0, 0, 0);
}

void tst_LightDirection::position()
{
    QFETCH(rk::LightAngles, angles);
    QFETCH(float, distance);
    QFETCH(QVector3D, expected);
    compareNear(rk::lightPosition(angles, distance), expected, 1e-5F);
}

void tst_LightDirection::marker_data()
{
    QTest::addColumn<rk::LightAngles>("angles");
    QTest::addColumn<QVector3D>("expected");
    using Angles = rk::LightAngles;
    QTest::newRow("no turn") << Angles{0, 0} << QVector3D(0, 5, 0);
    QTest::newRow("azimuth alone") << Angles{90, 0} << QVector3D(-5, 0, 0);
    QTest::newRow("overhead") << Angles{0, 90} << QVector3D(0, 0, 5);
    QTest::newRow("overhead, whatever the azimuth") << Angles{77, 90} << QVector3D(0, 0, 5);
    QTest::newRow("below") << Angles{0, -90} << QVector3D(0, 0, -5);
    QTest::newRow("south") << Angles{180, 0} << QVector3D(0, -5, 0);
}

void tst_LightDirection::marker()
{
    QFETCH(rk::LightAngles, angles);
    QFETCH(QVector3D, expected);
    compareNear(rk::lightMarker(angles, 5), expected, 1e-5F);
}

/// All directions that a dialog can send, and beyond.
void tst_LightDirection::turnsFarAndWide()
{
    for (float azimuth = -400; azimuth <= 760; azimuth += 7.25F) {
        for (float elevation = -400; elevation <= 400; elevation += 11.5F) {
            const rk::LightAngles angles = {azimuth, elevation};
            compareNear(rk::lightPosition(angles, 3), turnedByHand(0, 0, 3, angles), 1e-5F);
            compareNear(rk::lightMarker(angles, 5), turnedByHand(0, 5, 0, angles), 1e-5F);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void tst_LightDirection::pointsOfNoAngles()
{
    const auto isFinite = [](const QVector3D& point) {
        return std::isfinite(point.x()) && std::isfinite(point.y()) && std::isfinite(point.z());
    };
    const float infinite = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    QVERIFY(!isFinite(rk::lightPosition({none, 0}, 1)));
    QVERIFY(!isFinite(rk::lightPosition({0, infinite}, 1)));
    QVERIFY(!isFinite(rk::lightPosition({10, 10}, infinite)));
    QVERIFY(!isFinite(rk::lightMarker({0, none}, 5)));
    QVERIFY(!isFinite(rk::lightMarker({-infinite, 0}, 5)));
}

/// The mark stands as high as the light, whose position does not: the conventions differ.
void tst_LightDirection::markerLiesTowardsTheLight()
{
    const rk::LightAngles angles = rk::lightAngles(0, 3, 4);
    const QVector3D mark = rk::lightMarker(angles, 5);
    compareNear(mark, QVector3D(0, 3, 4), 1e-3F);
    compareNear(rk::lightPosition(angles, 5), QVector3D(0, -4, 3), 1e-3F);
}

QTEST_GUILESS_MAIN(tst_LightDirection)
#include "tst_LightDirection.moc"
