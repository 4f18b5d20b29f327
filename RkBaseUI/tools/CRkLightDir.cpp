// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/CRkLightDir.h"

#include "tools/FlatLightView.h"
#include "tools/LightSolids.h"

#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QVBoxLayout>

#include <GL/glu.h>

namespace {

constexpr float sphereRadius = 5;
constexpr int sphereSlices = 30;
constexpr int sphereStacks = 30;

/// One that has the fixed pipeline.
QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    format.setVersion(2, 1);
    return format;
}

/// A context that has the fixed pipeline, and the buffers that the toolkit composes a window from.
bool canMakeContext()
{
    QOpenGLContext context;
    context.setFormat(surfaceFormat());
    if (!context.create() || context.isOpenGLES())
        return false;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    return context.makeCurrent(&surface) && QOpenGLFramebufferObject::hasOpenGLFramebufferObjects();
}

/// Leaves the caller's context current.
bool findOutAboutOpenGL()
{
    QOpenGLContext* callers = QOpenGLContext::currentContext();
    QSurface* surface = callers ? callers->surface() : nullptr;
    const bool can = canMakeContext();
    if (callers)
        callers->makeCurrent(surface);
    return can;
}

bool hasOpenGL()
{
    static const bool has = findOutAboutOpenGL();
    return has;
}

/// Blue is no fraction as the others are: it saturates, which gives the sphere its colour.
void setSphereColor(float alpha)
{
    glColor4f(200.0F / 255, 191.0F / 255, 231.0F, alpha);
}

} // namespace

// A window that holds a QOpenGLWidget is put together by OpenGL and shows nothing without it. A
// window of its own does not tell that to the window around it.
CRkLightDir::CRkLightDir(QWidget* parent)
    : QOpenGLWidget(parent, hasOpenGL() ? Qt::Widget : Qt::Window)
{
    setFormat(surfaceFormat());
    // Blending lowers the alpha of what is opaque, and the toolkit would let the ground through.
    setTextureFormat(GL_RGB);
    if (hasOpenGL())
        return;
    overrideWindowFlags(Qt::Widget);
    if (parent && !parent->isVisible())
        show(); // Together with the parent, as any child made before its parent is shown.
    m_flatView = new FlatLightView(sphereRadius, this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_flatView);
}

CRkLightDir::~CRkLightDir() = default;

void CRkLightDir::slotUpdateAngle(float fAzimuth, float fElevation)
{
    _setAngles({fAzimuth, fElevation});
}

void CRkLightDir::initializeGL()
{
    initializeOpenGLFunctions();
    glClearColor(0.2F, 0.2F, 0.2F, 1.0F);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_LIGHT0);
    glEnable(GL_LIGHTING);
    glEnable(GL_COLOR_MATERIAL);
    // In another window the view gets a new context and keeps its size, which calls nothing.
    resizeGL(width(), height());
}

void CRkLightDir::resizeGL(int width, int height)
{
    const qreal ratio = devicePixelRatioF();
    glViewport(0, 0, qRound(width * ratio), qRound(height * ratio));
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(45, static_cast<float>(width) / static_cast<float>(height), 0.01, 100);
}

void CRkLightDir::paintGL()
{
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    gluLookAt(0, 0, 15, 0, 0, 0, 0, 1, 0);

    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    setSphereColor(1.0F);
    LightSolids::sphere(1.0, sphereSlices, sphereStacks);
    setSphereColor(0.1F);
    LightSolids::sphere(sphereRadius, sphereSlices, sphereStacks);

    // The scene's z points up, OpenGL's to the viewer. The spheres above keep the light of the
    // frame before.
    const QVector3D point = rk::lightMarker(m_angles, sphereRadius);
    m_lightPosition = {point.x(), point.z(), -point.y(), 0};
    glLightfv(GL_LIGHT0, GL_POSITION, m_lightPosition.data());

    glDisable(GL_DEPTH_TEST);
    glEnable(GL_LINE_SMOOTH);
    glHint(GL_LINE_SMOOTH_HINT, GL_FASTEST);
    glColor4f(1, 1, 1, 1);
    glLineWidth(2.0F);
    glBegin(GL_LINES);
    glVertex3f(0, 0, 0);
    glVertex3fv(m_lightPosition.data());
    glEnd();

    glEnable(GL_DEPTH_TEST);
    glTranslatef(m_lightPosition[0], m_lightPosition[1], m_lightPosition[2]);
    glColor4f(1, 0, 0, 1);
    LightSolids::cube(0.5);
    glDisable(GL_BLEND);
}

void CRkLightDir::mousePressEvent(QMouseEvent* event)
{
    m_lastPosition = event->pos();
}

void CRkLightDir::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_lastPosition = QPoint();
}

void CRkLightDir::mouseMoveEvent(QMouseEvent* event)
{
    if (m_lastPosition.isNull())
        return;
    const QPoint moved = event->pos() - m_lastPosition;
    rk::LightAngles angles = m_angles;
    angles.azimuth -= static_cast<float>(moved.x());
    angles.elevation -= static_cast<float>(moved.y());
    if (angles.azimuth < 0)
        angles.azimuth += 360;
    else if (angles.azimuth > 360)
        angles.azimuth -= 360;
    if (angles.elevation > 180)
        angles.elevation -= 360;
    else if (angles.elevation < -180)
        angles.elevation += 360;
    _setAngles(angles);
    emit signalUpdateAngle(angles.azimuth, angles.elevation);
    m_lastPosition = event->pos();
}

void CRkLightDir::_setAngles(rk::LightAngles angles)
{
    m_angles = angles;
    update();
    if (m_flatView)
        m_flatView->setAngles(angles);
}
