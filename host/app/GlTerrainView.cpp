// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GlTerrainView.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>

#include <array>

namespace {

constexpr int samples = 4;

using Components = std::array<float, 4>;

/// One that has the fixed pipeline.
QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    format.setVersion(2, 1);
    format.setDepthBufferSize(24);
    format.setSamples(samples);
    return format;
}

bool canMakeContext()
{
    QOpenGLContext context;
    context.setFormat(surfaceFormat());
    if (!context.create())
        return false;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    return !context.isOpenGLES() && context.makeCurrent(&surface);
}

Components times(const QColor& colour, float factor)
{
    const QVector3D part = components(colour) * factor;
    return {part.x(), part.y(), part.z(), 1};
}

void setColour(const QColor& colour)
{
    glColor3f(float(colour.redF()), float(colour.greenF()), float(colour.blueF()));
}

} // namespace

bool GlTerrainView::isPossible()
{
    static const bool can = canMakeContext();
    return can;
}

GlTerrainView::GlTerrainView(const LitTerrain& terrain, QWidget* parent)
    : QOpenGLWidget(parent)
    , m_terrain(terrain)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFormat(surfaceFormat());
    setTextureFormat(GL_RGB); // Or what lies below could show through.
}

void GlTerrainView::initializeGL()
{
    glEnable(GL_LIGHT0);
    glEnable(GL_CULL_FACE);
    glEnable(GL_COLOR_MATERIAL);
    glColorMaterial(GL_FRONT, GL_AMBIENT_AND_DIFFUSE);
    glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, GL_TRUE);
    const Components dark = {0, 0, 0, 1};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, dark.data());
}

void GlTerrainView::paintGL()
{
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    drawSky();
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixf(m_terrain.camera.projection(size(), m_terrain.covered).constData());
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixf(m_terrain.camera.view().constData());
    setLight();
    drawMesh();
}

void GlTerrainView::drawSky() const
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glDisable(GL_LIGHTING);
    glDisable(GL_DEPTH_TEST);
    glBegin(GL_QUADS);
    setColour(skyBottom);
    glVertex2f(-1, -1);
    glVertex2f(1, -1);
    setColour(skyTop);
    glVertex2f(1, 1);
    glVertex2f(-1, 1);
    glEnd();
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_LIGHTING);
}

void GlTerrainView::setLight() const
{
    const TerrainLight& light = m_terrain.light;
    // Light from nowhere brightens nothing but by its ambient part.
    const float isThere = light.direction.isNull() ? 0 : 1;
    const Components position = {light.direction.x(), light.direction.y(), light.direction.z(), 0};
    const Components toAll = {0, 0, 1, 0};
    glLightfv(GL_LIGHT0, GL_POSITION, (isThere > 0 ? position : toAll).data());
    glLightfv(GL_LIGHT0, GL_AMBIENT, times(light.colour, light.ambient).data());
    glLightfv(GL_LIGHT0, GL_DIFFUSE, times(light.colour, light.diffuse * isThere).data());
    glLightfv(GL_LIGHT0, GL_SPECULAR, times(light.specularColour, light.specular * isThere).data());
    const Components full = {1, 1, 1, 1};
    glMaterialfv(GL_FRONT, GL_SPECULAR, full.data());
    glMaterialf(GL_FRONT, GL_SHININESS, light.shininess);
}

void GlTerrainView::drawMesh()
{
    const TerrainMesh& mesh = m_terrain.mesh;
    if (m_blend != m_terrain.light.blend) {
        m_blend = m_terrain.light.blend;
        m_colours = groundColours(mesh, m_blend);
    }
    static_assert(sizeof(QVector3D) == 3 * sizeof(float), "vectors are read as three floats");
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glVertexPointer(3, GL_FLOAT, 0, mesh.corners.constData());
    glNormalPointer(GL_FLOAT, 0, mesh.normals.constData());
    glColorPointer(3, GL_FLOAT, 0, m_colours.constData());
    glDrawElements(GL_QUADS, mesh.faces.size(), GL_UNSIGNED_INT, mesh.faces.constData());
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
}
