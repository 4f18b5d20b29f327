// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/FlatLightView.h"

#include "widgets/Render.h"

#include <QTest>
#include <QtMath>

#include <cmath>
#include <limits>

namespace {

constexpr float radius = 5;
const QSize size(300, 240);
const QColor ground(51, 51, 51);

/// Pixels from the centre of the picture for that much of the camera's height over its depth.
double pixels(double heightOverDepth)
{
    return heightOverDepth * size.height() / 2 / std::tan(M_PI / 8);
}

QImage picture(float azimuth, float elevation)
{
    FlatLightView view(radius, nullptr);
    view.resize(size);
    view.setAngles({azimuth, elevation});
    return rendered(view, 1);
}

QColor fromCentre(const QImage& image, double right, double up)
{
    return image.pixelColor(qRound(size.width() / 2.0 + right), qRound(size.height() / 2.0 - up));
}

} // namespace

class tst_FlatLightView : public QObject
{
    Q_OBJECT

private slots:
    void spheres();
    void direction_data();
    void direction();
    void anglesThatAreNoNumbers_data();
    void anglesThatAreNoNumbers();
};

/// Their outlines are those that a camera at a distance of 15 sees.
void tst_FlatLightView::spheres()
{
    const QImage image = picture(180, 90);
    for (const double sphere : {1.0, double(radius)}) {
        const double outline = pixels(sphere / std::sqrt(15.0 * 15.0 - sphere * sphere));
        for (const double side : {-1.0, 1.0}) {
            const QColor inside = fromCentre(image, side * (outline - 3), 0);
            const QColor outside = fromCentre(image, side * (outline + 3), 0);
            QVERIFY(inside.blue() > outside.blue());
            QCOMPARE(outside == ground, sphere > 1);
        }
    }
}

void tst_FlatLightView::direction_data()
{
    QTest::addColumn<float>("azimuth");
    QTest::addColumn<float>("elevation");
    QTest::addColumn<QVector3D>("place"); // To the right, up, towards the camera.
    QTest::addColumn<QColor>("marker");
    const float half = radius * std::sqrt(0.5F);
    const QColor inFront(255, 0, 0);
    const QColor behind(160, 0, 0);
    QTest::newRow("towards the viewer") << 180.0F << 0.0F << QVector3D(0, 0, radius) << inFront;
    QTest::newRow("away from the viewer") << 0.0F << 0.0F << QVector3D(0, 0, -radius) << behind;
    QTest::newRow("left front") << 135.0F << 0.0F << QVector3D(-half, 0, half) << inFront;
    QTest::newRow("right front") << 225.0F << 0.0F << QVector3D(half, 0, half) << inFront;
    QTest::newRow("left behind") << 45.0F << 0.0F << QVector3D(-half, 0, -half) << behind;
    QTest::newRow("front, from above") << 180.0F << 45.0F << QVector3D(0, half, half) << inFront;
    QTest::newRow("front, from below") << 180.0F << -45.0F << QVector3D(0, -half, half) << inFront;
    QTest::newRow("behind, from below") << 0.0F << -45.0F << QVector3D(0, -half, -half) << behind;
}

/// A line from the centre to a marker, both seen by the camera.
void tst_FlatLightView::direction()
{
    QFETCH(float, azimuth);
    QFETCH(float, elevation);
    QFETCH(QVector3D, place);
    QFETCH(QColor, marker);
    const QImage image = picture(azimuth, elevation);
    const double depth = 15.0 - double(place.z());
    const double right = pixels(double(place.x()) / depth);
    const double up = pixels(double(place.y()) / depth);
    QCOMPARE(fromCentre(image, right, up), marker);
    const double side = pixels(0.5 / depth);
    QCOMPARE(fromCentre(image, right + side / 2 - 2, up + side / 2 - 2), marker);
    QVERIFY(fromCentre(image, right + side / 2 + 2, up + side / 2 + 2) != marker);
    if (std::hypot(right, up) > side)
        QVERIFY(fromCentre(image, right / 2, up / 2).red() > 250);
}

void tst_FlatLightView::anglesThatAreNoNumbers_data()
{
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    QTest::addColumn<float>("azimuth");
    QTest::addColumn<float>("elevation");
    QTest::newRow("no elevation") << 0.0F << none;
    QTest::newRow("no azimuth") << none << 0.0F;
    QTest::newRow("infinite") << infinite << -infinite;
}

/// The spheres alone.
void tst_FlatLightView::anglesThatAreNoNumbers()
{
    QFETCH(float, azimuth);
    QFETCH(float, elevation);
    const QImage image = picture(azimuth, elevation);
    QVERIFY(image.pixelColor(size.width() / 2, size.height() / 2).blue() > 200);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            QVERIFY(color != QColor(Qt::white) && color.red() <= color.blue());
        }
    }
}

QTEST_MAIN(tst_FlatLightView)
#include "tst_FlatLightView.moc"
