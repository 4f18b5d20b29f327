// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkLightDir.h>

#include "support/WindowWaits.h"
#include "widgets/AtScale.h"
#include "widgets/Render.h"
#include "widgets/SendMouse.h"

#include <QApplication>
#include <QMetaMethod>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <cmath>
#include <dlfcn.h>
#include <limits>
#include <memory>

#include <GL/freeglut.h>
#include <GL/glu.h>

namespace {

/// A shape with the state of OpenGL that it was drawn in.
struct Shape
{
    QString name;
    double size; ///< Radius of a sphere, side of a cube, width of a line.
    int slices;
    int stacks;
    std::array<float, 4> color;
    std::array<float, 3> place; ///< Relative to the camera.
    std::array<float, 4> light; ///< Where it comes from.
    bool isBlended;
    bool isDepthTested;
};

QVector<Shape> shapes;
int initialisations = 0;
int argumentCount = 0;
int quadrics = 0;

template <std::size_t size>
std::array<float, size> floats(GLenum name)
{
    std::array<float, size> values = {};
    glGetFloatv(name, values.data());
    return values;
}

Shape shapeNow(const QString& name, double size, int slices, int stacks)
{
    Shape shape = {name, size, slices, stacks, {}, {}, {}, false, false};
    shape.color = floats<4>(GL_CURRENT_COLOR);
    const auto modelView = floats<16>(GL_MODELVIEW_MATRIX);
    shape.place = {modelView[12], modelView[13], modelView[14]};
    glGetLightfv(GL_LIGHT0, GL_POSITION, shape.light.data());
    shape.isBlended = glIsEnabled(GL_BLEND);
    shape.isDepthTested = glIsEnabled(GL_DEPTH_TEST);
    return shape;
}

template <typename Function>
Function* original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// The library calls these instead of those of the libraries behind them, which they go on to.

void glutInit(int* count, char** arguments)
{
    ++initialisations;
    argumentCount = *count;
    original<void(int*, char**)>("glutInit")(count, arguments);
}

void glutSolidSphere(double radius, GLint slices, GLint stacks)
{
    shapes.append(shapeNow(QStringLiteral("sphere"), radius, slices, stacks));
    original<void(double, GLint, GLint)>("glutSolidSphere")(radius, slices, stacks);
}

void glutSolidCube(double side)
{
    shapes.append(shapeNow(QStringLiteral("cube"), side, 0, 0));
    original<void(double)>("glutSolidCube")(side);
}

void glBegin(GLenum mode)
{
    if (mode == GL_LINES)
        shapes.append(shapeNow(QStringLiteral("line"), floats<1>(GL_LINE_WIDTH)[0], 0, 0));
    original<void(GLenum)>("glBegin")(mode);
}

GLUquadric* gluNewQuadric()
{
    ++quadrics;
    return original<GLUquadric*()>("gluNewQuadric")();
}

namespace {

/// The view, with the state of its context open to the test.
class View : public CRkLightDir
{
public:
    using CRkLightDir::CRkLightDir;
    using CRkLightDir::resizeGL;

    int paints = 0;

protected:
    void paintGL() override
    {
        ++paints;
        CRkLightDir::paintGL();
    }
};

/// A shown view that is painted once.
std::unique_ptr<View> shownView(QSize size = {200, 200})
{
    auto view = std::make_unique<View>();
    view->resize(size);
    view->show();
    if (!comesOnScreen(view.get()) || !view->isValid())
        return nullptr;
    view->makeCurrent();
    return view;
}

/// Where the marker is in the view's scene, and in the picture.
QVector3D inScene(float azimuth, float elevation)
{
    const QVector3D marker = rk::lightMarker({azimuth, elevation}, 5);
    return {marker.x(), marker.z(), -marker.y()};
}

QPoint inPicture(const QVector3D& point, QSize size)
{
    const double scale = size.height() / 2.0 / std::tan(M_PI / 8) / (15 - double(point.z()));
    return {qRound(size.width() / 2.0 + double(point.x()) * scale),
            qRound(size.height() / 2.0 - double(point.y()) * scale)};
}

bool isRed(const QColor& color)
{
    return color.red() > 90 && color.green() < 20 && color.blue() < 20;
}

} // namespace

class tst_CRkLightDir : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void metaObject();
    void accessesFixedPipeline();
    void initialState();
    void viewport_data();
    void viewport();
    void projection();
    void shapesOfAFrame();
    void stateAfterAFrame();
    void solidsShareOneInitialisation();
    void pictureOfDirections_data();
    void pictureOfDirections();
    void pictureIsOpaque();
    void sharpOnDensePixels();

    void slotUpdateAngle();
    void anglesThatAreNoNumbers_data();
    void anglesThatAreNoNumbers();
    void drag_data();
    void drag();
    void dragGoesOnFromTheLastEvent();
    void releaseEndsADrag();
    void pressInTheCornerStartsNoDrag();
    void moveThroughTheCornerEndsADrag();
    void moveWithoutPress();

    void sizes_data();
    void sizes();
    void manyViews();
    void reparented();
};

void tst_CRkLightDir::initTestCase()
{
    qRegisterMetaType<Qt::MouseButton>();

    // The first view of a process finds out about OpenGL while its maker uses a context.
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QVERIFY(context.create() && context.makeCurrent(&surface));
    const View first;
    QCOMPARE(QOpenGLContext::currentContext(), &context);
    context.doneCurrent();

    QVERIFY2(shownView(), "The display has OpenGL.");
}

void tst_CRkLightDir::init()
{
    shapes.clear();
}

void tst_CRkLightDir::metaObject()
{
    const QMetaObject& meta = CRkLightDir::staticMetaObject;
    QCOMPARE(meta.superClass(), &QOpenGLWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), QByteArray("signalUpdateAngle(float,float)"));
    QCOMPARE(signal.parameterNames(), QList<QByteArray>({"fAzimuth", "fElevation"}));
    const QMetaMethod slot = meta.method(meta.methodOffset() + 1);
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.methodSignature(), QByteArray("slotUpdateAngle(float,float)"));
}

void tst_CRkLightDir::accessesFixedPipeline()
{
    const CRkLightDir view;
    QCOMPARE(view.format().profile(), QSurfaceFormat::CompatibilityProfile);
    QCOMPARE(view.format().renderableType(), QSurfaceFormat::OpenGL);
}

void tst_CRkLightDir::initialState()
{
    const auto view = shownView();
    const std::array<float, 4> ground = {0.2F, 0.2F, 0.2F, 1.0F};
    QCOMPARE(floats<4>(GL_COLOR_CLEAR_VALUE), ground);
    for (const GLenum capability : {GL_DEPTH_TEST, GL_LIGHT0, GL_LIGHTING, GL_COLOR_MATERIAL})
        QVERIFY(glIsEnabled(capability));
    QCOMPARE(glGetError(), GLenum(GL_NO_ERROR));
}

void tst_CRkLightDir::viewport_data()
{
    addScales();
}

void tst_CRkLightDir::viewport()
{
    QFETCH(int, scale);
    if (!isAtScale(scale))
        return;
    const auto view = shownView({300, 120});
    view->resizeGL(300, 120); // Before a frame the toolkit sets one of its own.
    std::array<GLint, 4> viewport = {};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    const std::array<GLint, 4> expected = {0, 0, 300 * scale, 120 * scale};
    QCOMPARE(viewport, expected);
}

void tst_CRkLightDir::projection()
{
    const auto view = shownView({300, 120});
    const auto actual = floats<16>(GL_PROJECTION_MATRIX);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(45, 300.0F / 120.0F, 0.01, 100);
    QCOMPARE(actual, floats<16>(GL_PROJECTION_MATRIX));
    GLint mode = 0;
    view->grabFramebuffer();
    view->makeCurrent();
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    QCOMPARE(mode, GL_MODELVIEW);
}

void tst_CRkLightDir::shapesOfAFrame()
{
    const auto view = shownView();
    view->slotUpdateAngle(100, -20);
    view->grabFramebuffer();
    view->slotUpdateAngle(225, 30);
    shapes.clear();
    view->grabFramebuffer();
    QCOMPARE(shapes.size(), 4);

    const std::array<float, 3> centre = {0, 0, -15};
    const std::array<float, 4> opaque = {200.0F / 255, 191.0F / 255, 231.0F, 1.0F};
    QCOMPARE(shapes[0].name, QString("sphere"));
    QCOMPARE(shapes[0].size, 1.0);
    QCOMPARE(shapes[0].color, opaque);
    QCOMPARE(shapes[0].place, centre);

    const std::array<float, 4> faint = {200.0F / 255, 191.0F / 255, 231.0F, 0.1F};
    QCOMPARE(shapes[1].name, QString("sphere"));
    QCOMPARE(shapes[1].size, 5.0);
    QCOMPARE(shapes[1].color, faint);
    QCOMPARE(shapes[1].place, centre);
    const QVector3D before = inScene(100, -20);
    const std::array<float, 4> lightBefore = {before.x(), before.y(), before.z(), 0};
    for (const Shape& sphere : {shapes[0], shapes[1]}) {
        QCOMPARE(sphere.slices, 30);
        QCOMPARE(sphere.stacks, 30);
        QCOMPARE(sphere.light, lightBefore);
        QVERIFY(sphere.isDepthTested);
    }

    const std::array<float, 4> white = {1, 1, 1, 1};
    QCOMPARE(shapes[2].name, QString("line"));
    QCOMPARE(shapes[2].size, 2.0);
    QCOMPARE(shapes[2].color, white);
    QCOMPARE(shapes[2].place, centre);
    QVERIFY(!shapes[2].isDepthTested);

    const QVector3D marker = inScene(225, 30);
    const std::array<float, 3> place = {marker.x(), marker.y(), marker.z() - 15};
    const std::array<float, 4> red = {1, 0, 0, 1};
    QCOMPARE(shapes[3].name, QString("cube"));
    QCOMPARE(shapes[3].size, 0.5);
    QCOMPARE(shapes[3].color, red);
    QCOMPARE(shapes[3].place, place);
    QVERIFY(shapes[3].isDepthTested);

    const std::array<float, 4> light = {marker.x(), marker.y(), marker.z(), 0};
    QCOMPARE(shapes[2].light, light);
    QCOMPARE(shapes[3].light, light);
    for (const Shape& shape : qAsConst(shapes))
        QVERIFY(shape.isBlended);
}

void tst_CRkLightDir::stateAfterAFrame()
{
    const auto view = shownView();
    view->slotUpdateAngle(225, 30);
    view->grabFramebuffer();
    view->makeCurrent();
    const QVector3D marker = inScene(225, 30);
    std::array<float, 4> light = {};
    glGetLightfv(GL_LIGHT0, GL_POSITION, light.data());
    const std::array<float, 4> expected = {marker.x(), marker.y(), marker.z(), 0};
    QCOMPARE(light, expected);
    QVERIFY(!glIsEnabled(GL_BLEND));
    QVERIFY(glIsEnabled(GL_DEPTH_TEST));
    QVERIFY(glIsEnabled(GL_LINE_SMOOTH));
    GLint number = 0;
    glGetIntegerv(GL_LINE_SMOOTH_HINT, &number);
    QCOMPARE(GLenum(number), GLenum(GL_FASTEST));
    glGetIntegerv(GL_BLEND_SRC, &number);
    QCOMPARE(GLenum(number), GLenum(GL_SRC_ALPHA));
    glGetIntegerv(GL_BLEND_DST, &number);
    QCOMPARE(GLenum(number), GLenum(GL_ONE_MINUS_SRC_ALPHA));
    QCOMPARE(floats<1>(GL_LINE_WIDTH)[0], 2.0F);
    QCOMPARE(glGetError(), GLenum(GL_NO_ERROR));
}

void tst_CRkLightDir::solidsShareOneInitialisation()
{
    for (int i = 0; i < 3; ++i)
        QVERIFY(shownView());
    QCOMPARE(initialisations, 1);
    QCOMPARE(argumentCount, 1);
    QCOMPARE(quadrics, 0); // Of the solids without freeglut.
}

void tst_CRkLightDir::pictureOfDirections_data()
{
    QTest::addColumn<float>("azimuth");
    QTest::addColumn<float>("elevation");
    QTest::addColumn<bool>("isMarkerInSight"); // Or behind the sphere.
    QTest::newRow("towards the viewer") << 180.0F << 20.0F << true;
    QTest::newRow("left front") << 120.0F << 10.0F << true;
    QTest::newRow("right front, from below") << 240.0F << -40.0F << true;
    QTest::newRow("front, from above") << 180.0F << 60.0F << true;
    QTest::newRow("behind") << 20.0F << 30.0F << false;
}

void tst_CRkLightDir::pictureOfDirections()
{
    QFETCH(float, azimuth);
    QFETCH(float, elevation);
    QFETCH(bool, isMarkerInSight);
    const QSize size(300, 240);
    const auto view = shownView(size);
    view->slotUpdateAngle(azimuth, elevation);
    view->grabFramebuffer(); // The spheres are lit by the light of the frame before.
    const QImage picture = view->grabFramebuffer();
    QCOMPARE(picture.pixelColor(3, 3), QColor(51, 51, 51));
    const QPoint marker = inPicture(inScene(azimuth, elevation), size);
    QCOMPARE(isRed(picture.pixelColor(marker)), isMarkerInSight);

    // The line is over everything.
    QImage without;
    {
        view->slotUpdateAngle(azimuth, std::numeric_limits<float>::quiet_NaN());
        without = view->grabFramebuffer();
    }
    const QPoint half = inPicture(inScene(azimuth, elevation) / 2, size);
    const QRect around(half - QPoint(2, 2), QSize(5, 5));
    QVERIFY(difference(picture.copy(around), without.copy(around)).isValid());
    const QColor core = picture.pixelColor(inPicture(QVector3D(-0.6F, 0.5F, 0), size));
    QVERIFY2(core.blue() > 200, qPrintable(core.name())); // The raw blue saturates.
}

/// The picture of the widget shows no ground through the spheres.
void tst_CRkLightDir::pictureIsOpaque()
{
    const auto view = shownView();
    const QImage frame = view->grabFramebuffer();
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x)
            QCOMPARE(qAlpha(frame.pixel(x, y)), 255);
    }
    QVERIFY(alike(view->grab().toImage(), frame));
}

void tst_CRkLightDir::sharpOnDensePixels()
{
    if (!isAtScale(2))
        return;
    const auto view = shownView({150, 120});
    view->slotUpdateAngle(120, 10);
    const QImage picture = view->grabFramebuffer();
    QCOMPARE(picture.size(), QSize(300, 240));
    QVERIFY(isRed(picture.pixelColor(inPicture(inScene(120, 10), picture.size()))));
    QCOMPARE(picture.pixelColor(298, 238), QColor(51, 51, 51));
}

void tst_CRkLightDir::slotUpdateAngle()
{
    const auto view = shownView();
    view->slotUpdateAngle(100, 20);
    const QSignalSpy sent(view.get(), &CRkLightDir::signalUpdateAngle);
    const int before = view->paints;
    view->slotUpdateAngle(200, -20);
    QTRY_VERIFY(view->paints > before);
    QVERIFY(sent.isEmpty());
    QCOMPARE(shapes.last().place[0], inScene(200, -20).x());
}

void tst_CRkLightDir::anglesThatAreNoNumbers_data()
{
    const float infinite = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    QTest::addColumn<float>("azimuth");
    QTest::addColumn<float>("elevation");
    QTest::newRow("no elevation") << 0.0F << none;
    QTest::newRow("neither") << none << none;
    QTest::newRow("infinite") << infinite << -infinite;
    QTest::newRow("huge") << 3e38F << -3e38F;
}

void tst_CRkLightDir::anglesThatAreNoNumbers()
{
    QFETCH(float, azimuth);
    QFETCH(float, elevation);
    const auto view = shownView();
    view->slotUpdateAngle(azimuth, elevation);
    QCOMPARE(view->grabFramebuffer().pixelColor(3, 3), QColor(51, 51, 51));
    sendMouse(*view, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(*view, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
    QVERIFY(!view->grabFramebuffer().isNull());

    view->slotUpdateAngle(180, 20); // And it recovers.
    QVERIFY(isRed(view->grabFramebuffer().pixelColor(inPicture(inScene(180, 20), {200, 200}))));
}

void tst_CRkLightDir::drag_data()
{
    QTest::addColumn<float>("azimuth");
    QTest::addColumn<float>("elevation");
    QTest::addColumn<QPoint>("moved");
    QTest::addColumn<float>("expectedAzimuth");
    QTest::addColumn<float>("expectedElevation");
    QTest::newRow("right lowers the azimuth") << 100.0F << 10.0F << QPoint(10, 0) << 90.0F << 10.0F;
    QTest::newRow("left raises it") << 100.0F << 10.0F << QPoint(-10, 0) << 110.0F << 10.0F;
    QTest::newRow("down lowers the elevation") << 100.0F << 10.0F << QPoint(0, 4) << 100.0F << 6.0F;
    QTest::newRow("up raises it") << 100.0F << 10.0F << QPoint(0, -4) << 100.0F << 14.0F;
    QTest::newRow("across 0") << 5.0F << 0.0F << QPoint(10, 0) << 355.0F << 0.0F;
    QTest::newRow("to 0") << 10.0F << 0.0F << QPoint(10, 0) << 0.0F << 0.0F;
    QTest::newRow("across 360") << 355.5F << 0.0F << QPoint(-10, 0) << 5.5F << 0.0F;
    QTest::newRow("to 360") << 350.0F << 0.0F << QPoint(-10, 0) << 360.0F << 0.0F;
    QTest::newRow("elevation to 181") << 0.0F << 180.0F << QPoint(0, -1) << 0.0F << -179.0F;
    QTest::newRow("elevation to 180") << 0.0F << 179.0F << QPoint(0, -1) << 0.0F << 180.0F;
    QTest::newRow("elevation to -181") << 0.0F << -180.0F << QPoint(0, 1) << 0.0F << 179.0F;
    QTest::newRow("elevation to -180") << 0.0F << -179.0F << QPoint(0, 1) << 0.0F << -180.0F;
    QTest::newRow("more than a turn at once")
        << 0.0F << 0.0F << QPoint(800, -800) << -440.0F << 440.0F;
    QTest::newRow("nowhere") << 42.0F << 7.0F << QPoint(0, 0) << 42.0F << 7.0F;
}

void tst_CRkLightDir::drag()
{
    QFETCH(float, azimuth);
    QFETCH(float, elevation);
    QFETCH(QPoint, moved);
    const auto view = shownView();
    view->slotUpdateAngle(azimuth, elevation);
    QSignalSpy sent(view.get(), &CRkLightDir::signalUpdateAngle);
    const QPoint start(80, 90);
    sendMouse(*view, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    QVERIFY(sent.isEmpty());
    const int before = view->paints;
    sendMouse(*view, QEvent::MouseMove, start + moved, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(sent.size(), 1);
    QTEST(sent.first().at(0).toFloat(), "expectedAzimuth");
    QTEST(sent.first().at(1).toFloat(), "expectedElevation");
    QTRY_VERIFY(view->paints > before);
    const QVector3D marker = inScene(sent.first().at(0).toFloat(), sent.first().at(1).toFloat());
    QCOMPARE(shapes.last().place[0], marker.x());
    QCOMPARE(shapes.last().place[1], marker.y());
}

void tst_CRkLightDir::dragGoesOnFromTheLastEvent()
{
    View view;
    view.slotUpdateAngle(100, 0);
    QSignalSpy sent(&view, &CRkLightDir::signalUpdateAngle);
    sendMouse(view, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {53, 50}, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {53, 55}, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {50, 50}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(sent.size(), 3);
    QCOMPARE(sent[0], QVariantList({97.0F, 0.0F}));
    QCOMPARE(sent[1], QVariantList({97.0F, -5.0F}));
    QCOMPARE(sent[2], QVariantList({100.0F, 0.0F}));
}

void tst_CRkLightDir::releaseEndsADrag()
{
    View view;
    view.slotUpdateAngle(100, 0);
    const QSignalSpy sent(&view, &CRkLightDir::signalUpdateAngle);
    sendMouse(view, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, {50, 50}, Qt::LeftButton, Qt::NoButton);
    sendMouse(view, QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::NoButton);
    QVERIFY(sent.isEmpty());
}

void tst_CRkLightDir::pressInTheCornerStartsNoDrag()
{
    View view;
    const QSignalSpy sent(&view, &CRkLightDir::signalUpdateAngle);
    sendMouse(view, QEvent::MouseButtonPress, {0, 0}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {10, 10}, Qt::NoButton, Qt::LeftButton);
    QVERIFY(sent.isEmpty());
    sendMouse(view, QEvent::MouseButtonPress, {0, 1}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {10, 10}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(sent.size(), 1);
}

void tst_CRkLightDir::moveThroughTheCornerEndsADrag()
{
    View view;
    const QSignalSpy sent(&view, &CRkLightDir::signalUpdateAngle);
    sendMouse(view, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {0, 0}, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {5, 5}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(sent.size(), 1);
}

void tst_CRkLightDir::moveWithoutPress()
{
    View view;
    const QSignalSpy sent(&view, &CRkLightDir::signalUpdateAngle);
    sendMouse(view, QEvent::MouseMove, {10, 10}, Qt::NoButton, Qt::LeftButton);
    QVERIFY(sent.isEmpty());
}

void tst_CRkLightDir::sizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("flat") << QSize(400, 1);
    QTest::newRow("tall") << QSize(1, 400);
    QTest::newRow("empty, then large") << QSize(0, 0);
}

void tst_CRkLightDir::sizes()
{
    QFETCH(QSize, size);
    QWidget window;
    window.resize(500, 500);
    View view(&window);
    view.slotUpdateAngle(180, 20);
    view.resize(size);
    window.show();
    QVERIFY(comesOnScreen(&window));
    window.grab();
    view.resize(200, 200);
    QVERIFY(isRed(view.grabFramebuffer().pixelColor(inPicture(inScene(180, 20), {200, 200}))));
}

void tst_CRkLightDir::manyViews()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QVector<View*> views;
    for (int i = 0; i < 4; ++i) {
        views.append(new View(&window));
        views.last()->slotUpdateAngle(180.0F, 20.0F * float(i));
        views.last()->setFixedSize(100, 100);
        layout->addWidget(views.last());
    }
    window.show();
    QVERIFY(comesOnScreen(&window));
    delete views.takeAt(1);
    const QImage picture = window.grab().toImage();
    QCOMPARE(picture.pixelColor(views[0]->mapTo(&window, {2, 2})), QColor(51, 51, 51));
    for (const int i : {0, 2, 3}) {
        const View* view = views[i > 1 ? i - 1 : i];
        const QPoint marker = inPicture(inScene(180, 20.0F * float(i)), view->size());
        QVERIFY(isRed(picture.pixelColor(view->mapTo(&window, marker))));
    }
}

/// Another window means another context: everything is made anew.
void tst_CRkLightDir::reparented()
{
    QWidget first;
    QWidget second;
    for (QWidget* window : {&first, &second}) {
        window->resize(200, 200);
        window->show();
        QVERIFY(comesOnScreen(window));
    }
    auto* view = new View(&first);
    view->slotUpdateAngle(180, 20);
    view->resize(200, 200);
    view->show();
    QTRY_VERIFY(view->paints > 0);
    view->setParent(&second);
    view->show();
    const QImage picture = view->grabFramebuffer();
    QCOMPARE(picture.pixelColor(3, 3), QColor(51, 51, 51));
    QVERIFY(isRed(picture.pixelColor(inPicture(inScene(180, 20), {200, 200}))));
}

QTEST_MAIN(tst_CRkLightDir)
#include "tst_CRkLightDir.moc"
