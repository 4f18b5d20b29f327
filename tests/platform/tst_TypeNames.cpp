// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/TypeNames.h>

#include <QtTest>

class tst_TypeNames : public QObject
{
    Q_OBJECT

private slots:
    void everyCameraHasANameOfItsOwn();
    void everyPlaneHasANameOfItsOwn();
    void unknownText_data();
    void unknownText();
    void unknownType();
};

void tst_TypeNames::everyCameraHasANameOfItsOwn()
{
    QSet<QString> names;
    for (int type = CameraTypeSingleLens24; type <= CameraTypeLaserScanner; ++type) {
        const QString name = GetCameraStringByType(ECameraType(type));
        QVERIFY(!name.isEmpty() && name != QLatin1String("N/A"));
        QVERIFY(!names.contains(name));
        names.insert(name);
        QCOMPARE(int(GetCameraTypeByString(name)), type);
    }
}

void tst_TypeNames::everyPlaneHasANameOfItsOwn()
{
    QSet<QString> names;
    for (int type = PlaneTypeFixedWingLight; type <= PlaneTypeHexarotor; ++type) {
        const QString name = GetPlaneStringByType(EPlaneType(type));
        QVERIFY(!name.isEmpty() && name != QLatin1String("N/A"));
        QVERIFY(!names.contains(name));
        names.insert(name);
        QCOMPARE(int(GetPlaneTypeByString(name)), type);
    }
    QCOMPARE(int(PlaneTypeQuadrotor), 4);
    QCOMPARE(int(PlaneTypeHexarotor), 6);
}

void tst_TypeNames::unknownText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("another word") << QStringLiteral("Balloon");
    QTest::newRow("other case") << QStringLiteral("quadrotor");
    QTest::newRow("not available") << QStringLiteral("N/A");
}

void tst_TypeNames::unknownText()
{
    QFETCH(QString, text);
    QCOMPARE(int(GetCameraTypeByString(text)), 0);
    QCOMPARE(int(GetPlaneTypeByString(text)), 0);
}

void tst_TypeNames::unknownType()
{
    QCOMPARE(GetCameraStringByType(ECameraType(99)), QStringLiteral("Camera 99"));
    QCOMPARE(GetPlaneStringByType(EPlaneType(99)), QStringLiteral("Aircraft 99"));
    QCOMPARE(GetCameraStringByType(CameraTypeUnknown), QString());
    QCOMPARE(GetPlaneStringByType(EPlaneType(-1)), QString());
}

QTEST_GUILESS_MAIN(tst_TypeNames)
#include "tst_TypeNames.moc"
