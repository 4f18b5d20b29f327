// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CoordinateFormat.h>

#include <QLocale>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

QStringList split(double decimalDegrees)
{
    return rk::toTexts(rk::toDegreesMinutesSeconds(decimalDegrees));
}

} // namespace

class tst_CoordinateFormat : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void textsInOtherLocales();
    void partsAreNotRounded();
    void partsAddUp();
    void partsOfWhatIsNoNumber();
    void isGeographic_data();
    void isGeographic();
};

void tst_CoordinateFormat::texts_data()
{
    QTest::addColumn<double>("decimalDegrees");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("zero") << 0.0 << QStringList({"0", "0", "0"});
    QTest::newRow("whole degrees") << 180.0 << QStringList({"180", "0", "0"});
    QTest::newRow("half a degree") << 39.5 << QStringList({"39", "30", "0"});
    QTest::newRow("six decimals") << 116.391234 << QStringList({"116", "23", "28.4424"});
    QTest::newRow("below a degree") << 0.35 << QStringList({"0", "21", "0"});
    QTest::newRow("negative half") << -39.5 << QStringList({"-39", "-30", "0"});
    QTest::newRow("negative") << -116.391234 << QStringList({"-116", "-23", "-28.4424"});
    QTest::newRow("negative below a degree") << -0.5 << QStringList({"0", "-30", "0"});
    QTest::newRow("minus zero") << -0.0 << QStringList({"0", "0", "0"});
    QTest::newRow("looks like degrees, minutes and seconds")
        << 30.3422 << QStringList({"30", "20", "31.92"});
    QTest::newRow("small seconds") << 1e-7 << QStringList({"0", "0", "0.00036"});
    QTest::newRow("seconds with an exponent") << 1e-8 << QStringList({"0", "0", "3.6e-05"});
    QTest::newRow("rest of the binary number") << 8.05 << QStringList({"8", "3", "2.55795e-12"});
    QTest::newRow("almost a minute") << 1.0166666666666666 << QStringList({"1", "0", "60"});
    QTest::newRow("almost a degree") << 39.99999999999 << QStringList({"39", "59", "60"});
    QTest::newRow("beyond 32 bits") << 1e10 + 0.5 << QStringList({"10000000000", "30", "0"});
    QTest::newRow("beyond 64 bits") << 1e22 << QStringList({"10000000000000000000000", "0", "0"});
}

void tst_CoordinateFormat::texts()
{
    QFETCH(double, decimalDegrees);
    QFETCH(QStringList, expected);
    QCOMPARE(split(decimalDegrees), expected);
}

void tst_CoordinateFormat::textsInOtherLocales()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QStringList texts = split(1116.391234);
    QLocale::setDefault(before);
    QCOMPARE(texts, QStringList({"1116", "23", "28.4424"}));
}

void tst_CoordinateFormat::partsAreNotRounded()
{
    const rk::DegreesMinutesSeconds angle = rk::toDegreesMinutesSeconds(1.0166666666666666);
    QCOMPARE(angle.degrees, 1.0);
    QCOMPARE(angle.minutes, 0.0);
    QVERIFY(angle.seconds > 59.999 && angle.seconds < 60);
}

void tst_CoordinateFormat::partsAddUp()
{
    for (int i = -1800; i <= 1800; ++i) {
        const double whole = i * 0.1000123;
        const rk::DegreesMinutesSeconds angle = rk::toDegreesMinutesSeconds(whole);
        QVERIFY(angle.degrees == std::trunc(angle.degrees));
        QVERIFY(angle.minutes == std::trunc(angle.minutes));
        QVERIFY(std::abs(angle.minutes) < 60);
        QVERIFY(std::abs(angle.seconds) < 60);
        for (const double part : {angle.degrees, angle.minutes, angle.seconds})
            QVERIFY(part * i >= 0);
        const double sum = angle.degrees + angle.minutes / 60 + angle.seconds / 3600;
        QVERIFY(std::abs(sum - whole) < 1e-12);
    }
}

void tst_CoordinateFormat::partsOfWhatIsNoNumber()
{
    QCOMPARE(split(infinity), QStringList({"inf", "nan", "nan"}));
    QCOMPARE(split(-infinity), QStringList({"-inf", "nan", "nan"}));
    QCOMPARE(split(std::nan("")), QStringList({"nan", "nan", "nan"}));
    QCOMPARE(split(std::numeric_limits<double>::max()).first().size(), 309);
}

void tst_CoordinateFormat::isGeographic_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<bool>("expected");
    QTest::newRow("origin") << 0.0 << 0.0 << true;
    QTest::newRow("upper bounds") << 90.0 << 180.0 << true;
    QTest::newRow("lower bounds") << -90.0 << -180.0 << true;
    QTest::newRow("north pole and date line") << 90.0 << -180.0 << true;
    QTest::newRow("latitude too large") << 90.000001 << 0.0 << false;
    QTest::newRow("latitude too small") << -90.000001 << 0.0 << false;
    QTest::newRow("longitude too large") << 0.0 << 180.000001 << false;
    QTest::newRow("longitude too small") << 0.0 << -180.000001 << false;
    QTest::newRow("swapped") << 104.0 << 30.0 << false;
    QTest::newRow("infinite latitude") << infinity << 0.0 << false;
    QTest::newRow("infinite longitude") << 0.0 << -infinity << false;
    QTest::newRow("latitude is no number") << std::nan("") << 0.0 << false;
    QTest::newRow("longitude is no number") << 0.0 << std::nan("") << false;
}

void tst_CoordinateFormat::isGeographic()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(bool, expected);
    QCOMPARE(rk::isGeographic(latitude, longitude), expected);
}

QTEST_GUILESS_MAIN(tst_CoordinateFormat)
#include "tst_CoordinateFormat.moc"
