// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkData/CRkControl.h>
#include <RkData/ReferenceSettings.h>

#include "support/TestSupport.h"

#include <QRandomGenerator>
#include <QStandardPaths>
#include <QtTest>

#include <cmath>

namespace {

/// WGS84 to GCJ-02 in the usual public form, written down apart from the code under test.
QPointF toGcj02(double lat, double lng)
{
    if (lng < 72.004 || lng > 137.8347 || lat < 0.8293 || lat > 55.8271)
        return QPointF(lat, lng);
    const double a = 6378245.0;
    const double ee = 0.00669342162296594323;
    const double x = lng - 105.0;
    const double y = lat - 35.0;
    double dLat =
        -100.0 + 2.0 * x + 3.0 * y + 0.2 * y * y + 0.1 * x * y + 0.2 * std::sqrt(std::fabs(x));
    dLat += (20.0 * std::sin(6.0 * x * M_PI) + 20.0 * std::sin(2.0 * x * M_PI)) * 2.0 / 3.0;
    dLat += (20.0 * std::sin(y * M_PI) + 40.0 * std::sin(y / 3.0 * M_PI)) * 2.0 / 3.0;
    dLat += (160.0 * std::sin(y / 12.0 * M_PI) + 320.0 * std::sin(y * M_PI / 30.0)) * 2.0 / 3.0;
    double dLng = 300.0 + x + 2.0 * y + 0.1 * x * x + 0.1 * x * y + 0.1 * std::sqrt(std::fabs(x));
    dLng += (20.0 * std::sin(6.0 * x * M_PI) + 20.0 * std::sin(2.0 * x * M_PI)) * 2.0 / 3.0;
    dLng += (20.0 * std::sin(x * M_PI) + 40.0 * std::sin(x / 3.0 * M_PI)) * 2.0 / 3.0;
    dLng += (150.0 * std::sin(x / 12.0 * M_PI) + 300.0 * std::sin(x / 30.0 * M_PI)) * 2.0 / 3.0;
    const double radLat = lat / 180.0 * M_PI;
    double magic = std::sin(radLat);
    magic = 1 - ee * magic * magic;
    const double sqrtMagic = std::sqrt(magic);
    dLat = (dLat * 180.0) / ((a * (1 - ee)) / (magic * sqrtMagic) * M_PI);
    dLng = (dLng * 180.0) / (a / sqrtMagic * std::cos(radLat) * M_PI);
    return QPointF(lat + dLat, lng + dLng);
}

QPointF toWgs84(double lat, double lng)
{
    QPointF result;
    CRkControl::ResetToWGS84(lat, lng, &result.rx(), &result.ry());
    return result;
}

double distance(const QPointF& a, const QPointF& b)
{
    return std::max(std::abs(a.x() - b.x()), std::abs(a.y() - b.y()));
}

} // namespace

class tst_CRkControl : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void bothCallForms();
    void projectDirByDefault();
    void projectDirFromEnvironment_data();
    void projectDirFromEnvironment();
    void chosenProjectDirOverEnvironment();
    void flightFile_data();
    void flightFile();
    void knownPlaces_data();
    void knownPlaces();
    void offsetFormulaGivesThePositionAgain();
    void outsideStays_data();
    void outsideStays();
};

void tst_CRkControl::cleanup()
{
    SetProjectDirPath(QString());
    qunsetenv("RK_PROJECT_DIR");
}

void tst_CRkControl::bothCallForms()
{
    QVERIFY(CRkControl::GetInstance());
    QCOMPARE(CRkControl::GetInstance(), CRkControl::GetInstance());
    QCOMPARE(CRkControl::GetInstance()->GetProjectDirPath(), CRkControl::GetProjectDirPath());
}

void tst_CRkControl::projectDirByDefault()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QCOMPARE(CRkControl::GetProjectDirPath(), documents + "/RkProjects/");
}

void tst_CRkControl::projectDirFromEnvironment_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no trailing slash") << "/tmp/p"
                                       << "/tmp/p/";
    QTest::newRow("trailing slash") << "/tmp/p/"
                                    << "/tmp/p/";
    QTest::newRow("the root") << "/"
                              << "/";
#ifdef Q_OS_WIN
    QTest::newRow("backslashes") << "C:\\Survey data\\p"
                                 << "C:/Survey data/p/";
    QTest::newRow("trailing backslash") << "D:\\p\\"
                                        << "D:/p/";
    QTest::newRow("both separators") << "D:/a\\b"
                                     << "D:/a/b/";
    QTest::newRow("root of a drive") << "E:\\"
                                     << "E:/";
    QTest::newRow("share") << "\\\\server\\surveys"
                           << "//server/surveys/";
#else
    QTest::newRow("backslash in a name") << "/tmp/a\\b"
                                         << "/tmp/a\\b/";
#endif
    QTest::newRow("blanks and other letters")
        << QStringLiteral("/tmp/a b/\u9879\u76ee") << QStringLiteral("/tmp/a b/\u9879\u76ee/");
}

void tst_CRkControl::projectDirFromEnvironment()
{
    QFETCH(QString, value);
    setEnvironment("RK_PROJECT_DIR", value);
    QTEST(CRkControl::GetProjectDirPath(), "expected");
}

void tst_CRkControl::chosenProjectDirOverEnvironment()
{
    qputenv("RK_PROJECT_DIR", "/tmp/environment");
    SetProjectDirPath(QStringLiteral("/tmp/chosen"));
    QCOMPARE(CRkControl::GetProjectDirPath(), QStringLiteral("/tmp/chosen/"));
    SetProjectDirPath(QString());
    QCOMPARE(CRkControl::GetProjectDirPath(), QStringLiteral("/tmp/environment/"));
}

void tst_CRkControl::flightFile_data()
{
    QTest::addColumn<QString>("projectFile");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << "/p/Hill/Hill.proj"
                           << "/p/Hill/Hill_flight.db";
    QTest::newRow("dots in the name") << "/p/a.b/a.b.proj"
                                      << "/p/a.b/a.b_flight.db";
    QTest::newRow("dot in the folder alone") << "/p/a.b/Hill"
                                             << "/p/a.b/Hill_flight.db";
    QTest::newRow("blanks") << "/p/ a b /a b .proj"
                            << "/p/ a b /a b _flight.db";
    QTest::newRow("double slash") << "/p//Hill/Hill.proj"
                                  << "/p//Hill/Hill_flight.db";
    QTest::newRow("in the root") << "/Hill.proj"
                                 << "/Hill_flight.db";
    QTest::newRow("no folder") << "Hill.proj"
                               << "Hill_flight.db";
#ifdef Q_OS_WIN
    QTest::newRow("backslashes") << "C:\\p\\Hill\\Hill.proj"
                                 << "C:/p/Hill/Hill_flight.db";
    QTest::newRow("share") << "\\\\server\\p\\Hill.proj"
                           << "//server/p/Hill_flight.db";
#else
    QTest::newRow("backslash in a name") << "/p/a\\b.proj"
                                         << "/p/a\\b_flight.db";
#endif
}

void tst_CRkControl::flightFile()
{
    QFETCH(QString, projectFile);
    QTEST(CRkControl::GetFlightMissionFilePath(projectFile), "expected");
}

void tst_CRkControl::knownPlaces_data()
{
    QTest::addColumn<QPointF>("gcj02");
    QTest::addColumn<QPointF>("wgs84");
    QTest::newRow("Shanghai") << QPointF(31.17530398364597, 121.531541859215)
                              << QPointF(31.1774276, 121.5272106);
    QTest::newRow("Shenzhen") << QPointF(22.540796131694766, 113.9171764808363)
                              << QPointF(22.543847, 113.912316);
    QTest::newRow("Beijing") << QPointF(39.91334545536069, 116.38404722455657)
                             << QPointF(39.911954, 116.377817);
}

void tst_CRkControl::knownPlaces()
{
    QFETCH(QPointF, gcj02);
    QFETCH(QPointF, wgs84);
    QVERIFY(distance(toWgs84(gcj02.x(), gcj02.y()), wgs84) < 1e-9);
}

void tst_CRkControl::offsetFormulaGivesThePositionAgain()
{
    QRandomGenerator random(20260101);
    QVector<QPointF> places = {{35, 105},     {35, 100},     {30, 105},
                               {18.2, 109.5}, {53.5, 122.3}, {39.5, 73.6}};
    for (int i = 0; i < 20000; ++i)
        places.append(QPointF(3 + random.generateDouble() * 51, 73 + random.generateDouble() * 64));
    for (const QPointF& place : qAsConst(places)) {
        const QPointF wgs84 = toWgs84(place.x(), place.y());
        QVERIFY(distance(wgs84, place) > 1e-5); // It has been moved at all,
        QVERIFY(distance(toGcj02(wgs84.x(), wgs84.y()), place) < 1e-9); // and to the right spot.
    }
}

void tst_CRkControl::outsideStays_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::newRow("Sydney") << QPointF(-33.87, 151.21);
    QTest::newRow("Berlin") << QPointF(52.52, 13.4);
    QTest::newRow("zero") << QPointF(0, 0);
    QTest::newRow("west of it") << QPointF(30, 72.003);
    QTest::newRow("east of it") << QPointF(30, 137.835);
    QTest::newRow("south of it") << QPointF(0.829, 105);
    QTest::newRow("north of it") << QPointF(55.828, 105);
    QTest::newRow("no latitude") << QPointF(qInf(), 105);
}

void tst_CRkControl::outsideStays()
{
    QFETCH(QPointF, place);
    const QPointF result = toWgs84(place.x(), place.y());
    QVERIFY(result.x() == place.x() && result.y() == place.y());
    QVERIFY(std::isnan(toWgs84(qQNaN(), 105).x()));
}

QTEST_GUILESS_MAIN(tst_CRkControl)
#include "tst_CRkControl.moc"
