// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// One frame of the view of a light's direction against the bare calls of OpenGL, GLU and freeglut
// that it consists of, in a view of the same size and format. The direction changes with every
// frame; a frame counts when OpenGL is done with it.

#include "Bench.h"

#include <RkBaseUI/CRkLightDir.h>

#include <QApplication>
#include <QOpenGLWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

#include <GL/freeglut.h>
#include <GL/glu.h>

namespace {

constexpr int runs = 41;
constexpr int frames = 20;
constexpr int side = 240;
constexpr double limit = 1.2;
constexpr float degree = 3.1415927F / 180;

class OurView : public CRkLightDir
{
public:
    using CRkLightDir::CRkLightDir;

    void frame(float azimuth, float elevation)
    {
        slotUpdateAngle(azimuth, elevation);
        paintGL();
    }
};

class BareView : public QOpenGLWidget
{
public:
    using QOpenGLWidget::QOpenGLWidget;

    void frame(float azimuth, float elevation)
    {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        gluLookAt(0, 0, 15, 0, 0, 0, 0, 1, 0);
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        glColor4f(200.0F / 255, 191.0F / 255, 231.0F, 1.0F);
        glutSolidSphere(1, 30, 30);
        glColor4f(200.0F / 255, 191.0F / 255, 231.0F, 0.1F);
        glutSolidSphere(5, 30, 30);
        const float level = 5 * std::cos(elevation * degree);
        const std::array<float, 4> light = {-level * std::sin(azimuth * degree),
                                            5 * std::sin(elevation * degree),
                                            -level * std::cos(azimuth * degree), 0};
        glLightfv(GL_LIGHT0, GL_POSITION, light.data());
        glDisable(GL_DEPTH_TEST);
        glEnable(GL_LINE_SMOOTH);
        glHint(GL_LINE_SMOOTH_HINT, GL_FASTEST);
        glColor4f(1, 1, 1, 1);
        glLineWidth(2);
        glBegin(GL_LINES);
        glVertex3f(0, 0, 0);
        glVertex3fv(light.data());
        glEnd();
        glEnable(GL_DEPTH_TEST);
        glTranslatef(light[0], light[1], light[2]);
        glColor4f(1, 0, 0, 1);
        glutSolidCube(0.5);
        glDisable(GL_BLEND);
    }

protected:
    void initializeGL() override
    {
        glClearColor(0.2F, 0.2F, 0.2F, 1);
        for (const GLenum capability : {GL_DEPTH_TEST, GL_LIGHT0, GL_LIGHTING, GL_COLOR_MATERIAL})
            glEnable(capability);
    }
    void resizeGL(int width, int height) override
    {
        glViewport(0, 0, width, height);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        gluPerspective(45, static_cast<float>(width) / static_cast<float>(height), 0.01, 100);
    }
    void paintGL() override { frame(180, 20); }
};

template <typename View>
void show(View& view)
{
    view.resize(side, side);
    view.show();
    view.grabFramebuffer();
    if (!view.isValid())
        std::abort();
}

/// Seconds of one frame.
template <typename View>
double secondsOfAFrame(View& view)
{
    view.makeCurrent();
    const double seconds = bench::medianSeconds(1, [&view] {
        for (int i = 0; i < frames; ++i) {
            view.frame(static_cast<float>(i * 360 / frames), static_cast<float>(i));
            glFinish();
        }
    });
    view.doneCurrent();
    return seconds / frames;
}

double middle(std::vector<double>& values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    OurView ours;
    show(ours);
    BareView bare;
    bare.setFormat(ours.format());
    bare.setTextureFormat(ours.textureFormat());
    show(bare);
    // In turn, so that whatever else the machine does strikes both alike.
    std::vector<double> oursSeconds;
    std::vector<double> bareSeconds;
    for (int run = 0; run < runs; ++run) {
        oursSeconds.push_back(secondsOfAFrame(ours));
        bareSeconds.push_back(secondsOfAFrame(bare));
    }
    return bench::report("CRkLightDir, one frame / bare OpenGL calls", side, middle(oursSeconds),
                         middle(bareSeconds), limit)
        ? 0
        : 1;
}
