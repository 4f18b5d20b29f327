// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/LitTerrain.h"
#include "terrain/SampleTerrain.h"
#include "terrain/TerrainView.h"

#include <QPainter>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr QSize pictureSize(400, 300);

QVariantList record(const QVector3D& position)
{
    return {position.x(), position.y(),      position.z(),      0.2,  0.9,
            0.0,          QColor(Qt::white), QColor(Qt::white), 20.0, 0.0};
}

/// Two level posts would do; this is a knoll in a plain.
ElevationModel knoll()
{
    return {21, 50, [](double x, double y) {
                return 40 * std::exp(-(std::pow(x - 500, 2) + std::pow(y - 500, 2)) / 40'000);
            }};
}

LitTerrain litTerrain(const QVariantList& light)
{
    LitTerrain terrain;
    terrain.mesh = terrainMesh(knoll(), 1);
    terrain.light = readLight(light);
    return terrain;
}

QImage picture(const LitTerrain& terrain)
{
    QImage image(pictureSize, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    drawLitTerrain(painter, terrain, pictureSize);
    return image;
}

/// Where a place on the level plain is in the picture.
QPoint inPicture(const LitTerrain& terrain, const QVector3D& place)
{
    const QMatrix4x4 matrix =
        terrain.camera.projection(pictureSize, terrain.covered) * terrain.camera.view();
    const QVector3D at = matrix.map(place);
    return {qRound((double(at.x()) + 1) * pictureSize.width() / 2),
            qRound((1 - double(at.y())) * pictureSize.height() / 2)};
}

bool alike(const QVector3D& a, const QVector3D& b)
{
    return (a - b).length() < 1e-4F;
}

} // namespace

class tst_LitTerrain : public QObject
{
    Q_OBJECT

private slots:
    void viewGoesThereAndBack();
    void viewZoomsAtAPoint();
    void viewFillsAndShows();
    void recordIsRead();
    void badRecords_data();
    void badRecords();
    void lightOfEachElement_data();
    void lightOfEachElement();
    void meshIsClosed();
    void meshFacesOutwards();
    void cameraLooksAtTheMiddle();
    void cameraKeepsItsLimits();
    void coveredPartIsKeptFree();
    void somethingIsSeenHoweverMuchIsCovered();
    void pictureFollowsTheLight();
    void nearGroundHidesFarGround();
    void blendGoesToTheTerrainsColours();
};

void tst_LitTerrain::viewGoesThereAndBack()
{
    const TerrainView view = {{300, 200}, 2, {800, 600}};
    QCOMPARE(view.toScreen({300, 200}), QPointF(400, 300));
    QCOMPARE(view.toScreen({310, 220}), QPointF(420, 260)); // North is up.
    QCOMPARE(view.toTerrain(view.toScreen({123, 456})), QPointF(123, 456));
    QCOMPARE(view.moved({20, 10}).toScreen({300, 200}), QPointF(420, 310));
}

void tst_LitTerrain::viewZoomsAtAPoint()
{
    const TerrainView view = {{300, 200}, 2, {800, 600}};
    const QPointF fixed(100, 500);
    const TerrainView nearer = view.zoomed(4, fixed);
    QCOMPARE(nearer.scale, 8.0);
    QCOMPARE(nearer.toTerrain(fixed), view.toTerrain(fixed));
    QCOMPARE(view.zoomed(1e9, fixed).scale, TerrainView::largestScale);
    QCOMPARE(view.zoomed(1e-9, fixed).scale, TerrainView::smallestScale);
}

void tst_LitTerrain::viewFillsAndShows()
{
    const QRectF area(0, 0, 1000, 1000);
    const TerrainView view = {{}, 1, {800, 400}};
    QCOMPARE(view.filledBy(area).scale, 0.8);
    QCOMPARE(view.filledBy(area).centre, QPointF(500, 500));
    QCOMPARE(view.showing(area, 50).scale, 0.3);
    QCOMPARE(view.moved({9000, 0}).within(area).centre, QPointF(0, 0));
}

void tst_LitTerrain::recordIsRead()
{
    const TerrainLight light = readLight(
        {3.0F, 0.0F, 4.0F, 0.1, 0.2, 0.3, QColor(10, 20, 30), QColor(40, 50, 60), 700.0, 0.5});
    QVERIFY(alike(light.direction, {0.6F, 0, 0.8F}));
    QCOMPARE(light.ambient, 0.1F);
    QCOMPARE(light.diffuse, 0.2F);
    QCOMPARE(light.specular, 0.3F);
    QCOMPARE(light.colour, QColor(10, 20, 30));
    QCOMPARE(light.specularColour, QColor(40, 50, 60));
    QCOMPARE(light.shininess, 128.0F); // As far as OpenGL goes.
    QCOMPARE(light.blend, 0.5F);
}

void tst_LitTerrain::badRecords_data()
{
    QTest::addColumn<QVariantList>("record");
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("empty") << QVariantList();
    QTest::newRow("short") << QVariantList{0.0, 0.0, 1.0};
    QTest::newRow("texts") << QVariantList{"x", "y", "z", "a", "d", "s", "l", "c", "h", "b"};
    QTest::newRow("origin") << record({0, 0, 0});
    QTest::newRow("not a number") << QVariantList{
        notANumber, 0.0, 1.0, notANumber, 2.0, -1.0, QColor(), QColor(), notANumber, notANumber};
    QTest::newRow("infinite") << QVariantList{infinity, 0.0,      1.0,      infinity, 2.0,
                                              -1.0,     QColor(), QColor(), infinity, infinity};
}

void tst_LitTerrain::badRecords()
{
    QFETCH(QVariantList, record);
    const TerrainLight light = readLight(record);
    const float length = light.direction.length();
    QVERIFY(length == 0 || std::abs(length - 1) < 1e-4F);
    for (const float value : {light.ambient, light.diffuse, light.specular, light.blend})
        QVERIFY(value >= 0 && value <= 1);
    QVERIFY(light.shininess >= 0 && light.shininess <= 128);
    const QVector3D lit = litColour(light, {0, 0, 1}, {0, 0, 1}, {1, 1, 1});
    for (const float value : {lit.x(), lit.y(), lit.z()})
        QVERIFY(value >= 0 && value <= 1);
    QVERIFY(!picture(litTerrain(record)).isNull());
}

void tst_LitTerrain::lightOfEachElement_data()
{
    QTest::addColumn<QVariantList>("record");
    QTest::addColumn<QVector3D>("lit"); ///< Of ground of (0.5, 1, 0.5), looked at from above.
    const QColor red(255, 0, 0);
    const QColor white(Qt::white);
    QTest::newRow("ambient alone") << QVariantList{0, 0, -1, 0.4, 1.0, 1.0, white, white, 10, 0}
                                   << QVector3D(0.2F, 0.4F, 0.2F);
    QTest::newRow("diffuse from above") << QVariantList{0, 0, 7, 0.0, 0.5, 0.0, white, white, 10, 0}
                                        << QVector3D(0.25F, 0.5F, 0.25F);
    QTest::newRow("diffuse from the side")
        << QVariantList{3, 0, 4, 0.0, 0.5, 0.0, white, white, 10, 0} << QVector3D(0.2F, 0.4F, 0.2F);
    QTest::newRow("colour of the light")
        << QVariantList{0, 0, 1, 0.2, 0.5, 0.0, red, white, 10, 0} << QVector3D(0.35F, 0, 0);
    QTest::newRow("specular has its colour alone")
        << QVariantList{0, 0, 1, 0.0, 0.0, 0.5, white, red, 10, 0} << QVector3D(0.5F, 0, 0);
    // Half way between straight up and the light is at 45 degrees from neither: cos² of 22.5.
    QTest::newRow("shininess") << QVariantList{1, 0, 1, 0.0, 0.0, 1.0, white, red, 2, 0}
                               << QVector3D(0.853553F, 0, 0);
}

void tst_LitTerrain::lightOfEachElement()
{
    QFETCH(QVariantList, record);
    QFETCH(QVector3D, lit);
    const QVector3D got = litColour(readLight(record), {0, 0, 1}, {0, 0, 1}, {0.5F, 1, 0.5F});
    QVERIFY2(alike(got, lit),
             qPrintable(QStringLiteral("%1 %2 %3")
                            .arg(double(got.x()))
                            .arg(double(got.y()))
                            .arg(double(got.z()))));
}

void tst_LitTerrain::meshIsClosed()
{
    for (const int step : {1, 2, 3, 7}) {
        const TerrainMesh mesh = terrainMesh(sampleTerrain(), step);
        const int posts = (198 + step) / step + 1;
        QCOMPARE(mesh.surfaceCorners, posts * posts);
        QCOMPARE(mesh.corners.size(), posts * posts + 8 * posts);
        QCOMPARE(mesh.normals.size(), mesh.corners.size());
        QCOMPARE(mesh.colours.size(), mesh.corners.size());
        QCOMPARE(mesh.faces.size(), 4 * ((posts - 1) * (posts - 1) + 4 * (posts - 1)));
        for (const quint32 corner : mesh.faces)
            QVERIFY(int(corner) < mesh.corners.size());
        QCOMPARE(mesh.corners.first().x(), -497.5F);
        QCOMPARE(mesh.corners[mesh.surfaceCorners - 1].y(), 497.5F);
    }
}

/// The order of each face's corners agrees with their normals.
void tst_LitTerrain::meshFacesOutwards()
{
    const TerrainMesh mesh = terrainMesh(sampleTerrain(), 4);
    for (int i = 0; i < mesh.faces.size(); i += 4) {
        const auto at = [&](int k) { return mesh.corners[int(mesh.faces[i + k])]; };
        const QVector3D outwards = QVector3D::crossProduct(at(2) - at(0), at(3) - at(1));
        const QVector3D normal = mesh.normals[int(mesh.faces[i])];
        QVERIFY(QVector3D::dotProduct(outwards, normal) > 0);
        QVERIFY(std::abs(normal.length() - 1) < 1e-4F);
    }
}

void tst_LitTerrain::cameraLooksAtTheMiddle()
{
    OrbitCamera camera;
    camera.azimuth = 90;
    camera.tilt = 30;
    camera.distance = 1000;
    QVERIFY(alike(camera.eye() / 1000, {std::sqrt(0.75F), 0, 0.5F}));
    const QVector3D middle = camera.view().map(QVector3D(0, 0, 0));
    QVERIFY(std::abs(middle.x()) < 1e-3F && std::abs(middle.y()) < 1e-3F);
    QVERIFY(std::abs(middle.z() + 1000) < 1e-2F);
}

void tst_LitTerrain::cameraKeepsItsLimits()
{
    const OrbitCamera camera;
    QCOMPARE(camera.turned(0, 500).tilt, OrbitCamera::steepest);
    QCOMPARE(camera.turned(0, -500).tilt, OrbitCamera::lowest);
    QCOMPARE(camera.zoomed(1e6).distance, OrbitCamera::nearest);
    QCOMPARE(camera.zoomed(1e-6).distance, OrbitCamera::farthest);
    QVERIFY(std::abs(camera.turned(360, 0).azimuth - std::remainder(camera.azimuth, 360)) < 1e-9);
}

void tst_LitTerrain::coveredPartIsKeptFree()
{
    LitTerrain terrain = litTerrain(record({0, 0, 1}));
    QCOMPARE(inPicture(terrain, {0, 0, 0}).x(), 200);
    terrain.covered = 160;
    QCOMPARE(inPicture(terrain, {0, 0, 0}).x(), 120);
    for (const double azimuth : {0.0, 45.0, 120.0}) {
        terrain.camera.azimuth = azimuth;
        for (const float x : {-500.0F, 500.0F}) {
            for (const float y : {-500.0F, 500.0F}) {
                const QPoint at = inPicture(terrain, {x, y, 0});
                QVERIFY2(QRect(0, 0, 240, 300).contains(at),
                         qPrintable(QStringLiteral("%1, %2").arg(at.x()).arg(at.y())));
            }
        }
    }
}

void tst_LitTerrain::somethingIsSeenHoweverMuchIsCovered()
{
    LitTerrain terrain = litTerrain(record({0, 0, 1}));
    for (const double covered : {240.0, 390.0, 400.0, 900.0}) {
        terrain.covered = covered;
        QCOMPARE(inPicture(terrain, {0, 0, 0}).x(), 80);
        QVERIFY(inPicture(terrain, {500, 0, 0}).x() > 110);
    }
}

/// The slope of the knoll that faces the light is brighter.
void tst_LitTerrain::pictureFollowsTheLight()
{
    LitTerrain terrain = litTerrain(record({1, 0, 1}));
    terrain.camera = {180, 60, 1500};
    const QVector3D west(-140, 0, 0);
    const QVector3D east(140, 0, 0);
    const auto brightness = [&](const QVector3D& place) {
        return picture(terrain).pixelColor(inPicture(terrain, place)).lightness();
    };
    QVERIFY(brightness(east) > brightness(west) + 10);
    terrain.light = readLight(record({-1, 0, 1}));
    QVERIFY(brightness(west) > brightness(east) + 10);
    const QImage image = picture(terrain);
    const QColor sky = image.pixelColor(2, 0);
    QVERIFY(std::abs(sky.red() - skyTop.red()) < 3 && std::abs(sky.blue() - skyTop.blue()) < 3);
    for (int x = 0; x < image.width(); ++x)
        QVERIFY(image.pixelColor(x, 299) != QColor(Qt::magenta));
}

/// The bright slope of a steep hill stands before the dim plain behind it.
void tst_LitTerrain::nearGroundHidesFarGround()
{
    const ElevationModel hill(41, 25, [](double x, double y) {
        return 100 * std::exp(-(std::pow(x - 500, 2) + std::pow(y - 500, 2)) / 10'000);
    });
    LitTerrain terrain = litTerrain(record({0, -1, 0.1F}));
    terrain.mesh = terrainMesh(hill, 1);
    terrain.camera = {180, OrbitCamera::lowest, 1500};
    const float level = float(TerrainMesh::heightFactor * 50);
    const float height = float(TerrainMesh::heightFactor * 100 * std::exp(-1));
    const QImage image = picture(terrain);
    const QColor slope = image.pixelColor(inPicture(terrain, {0, -100, height - level}));
    const QColor plain = image.pixelColor(inPicture(terrain, {-300, -300, -level}));
    QVERIFY2(slope.lightness() > plain.lightness() + 30,
             qPrintable(QStringLiteral("%1 %2").arg(slope.lightness()).arg(plain.lightness())));
}

void tst_LitTerrain::blendGoesToTheTerrainsColours()
{
    const TerrainMesh mesh = terrainMesh(sampleTerrain(), 10);
    const QVector<QVector3D> plain = groundColours(mesh, 0);
    for (int i = 1; i < mesh.surfaceCorners; ++i)
        QCOMPARE(plain[i], plain[0]);
    QCOMPARE(groundColours(mesh, 1), mesh.colours);
    const QVector<QVector3D> half = groundColours(mesh, 0.5F);
    QVERIFY(alike(half[7], (plain[7] + mesh.colours[7]) / 2));
}

QTEST_GUILESS_MAIN(tst_LitTerrain)
#include "tst_LitTerrain.moc"
