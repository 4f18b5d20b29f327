// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/CRkPoint2D.h>
#include <RkAlgorthm/CRkVector3D.h>
#include <RkAlgorthm/PointLatLng.h>

#include <QtTest>

class tst_Points : public QObject
{
    Q_OBJECT

private slots:
    void latLng();
    void plane();
    void space();
};

void tst_Points::latLng()
{
    PointLatLng point;
    QCOMPARE(point.Lat(), 0.0);
    QCOMPARE(point.Lng(), 0.0);
    point.SetLat(30.5);
    point.SetLng(-104.25);
    QCOMPARE(point.Lat(), 30.5);
    QCOMPARE(point.Lng(), -104.25);
    const PointLatLng other(91, 361); // Nothing is clamped.
    QCOMPARE(other.Lat(), 91.0);
    QCOMPARE(other.Lng(), 361.0);
}

void tst_Points::plane()
{
    CRkPoint2D point;
    QVERIFY(point == CRkPoint2D(0, 0));
    point.setX(1.5);
    QVERIFY(point != CRkPoint2D(0, 0));
    point.setY(-2.5);
    QCOMPARE(point.x(), 1.5);
    QCOMPARE(point.y(), -2.5);
    const CRkPoint2D copy = point;
    QVERIFY(copy == point);
    QVERIFY(copy != CRkPoint2D(1.5, 2.5));
}

void tst_Points::space()
{
    CRkVector3D vector;
    QVERIFY(vector == CRkVector3D(0, 0, 0));
    vector.setX(1.5);
    vector.setY(-2.5);
    vector.setZ(3.5);
    QCOMPARE(vector.x(), 1.5);
    QCOMPARE(vector.y(), -2.5);
    QCOMPARE(vector.z(), 3.5);
    const CRkVector3D copy = vector;
    QVERIFY(copy == vector);
    QVERIFY(copy != CRkVector3D(1.5, -2.5, 0));
}

QTEST_GUILESS_MAIN(tst_Points)
#include "tst_Points.moc"
