// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/LightSolids.h"

#include <QtGlobal>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

#if defined(Q_OS_WIN)
#include <windows.h> // Before the headers of OpenGL, which need its types.
#endif
#include <GL/freeglut.h>
#include <GL/glu.h>
#if defined(Q_OS_UNIX)
#include <GL/glx.h>
#endif

namespace {

/// Whether glutInit would find what it needs.
bool canInitGlut()
{
#if defined(Q_OS_UNIX)
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    int errorBase = 0;
    int eventBase = 0;
    return display && glXQueryExtension(display.get(), &errorBase, &eventBase);
#else
    return true;
#endif
}

/// Initialises freeglut unless the host did. Gives true so that one attempt can be kept.
bool initGlut()
{
    if (!glutGet(GLUT_INIT_STATE) && canInitGlut()) {
        std::array<char, 9> name = {"RkBaseUI"};
        std::array<char*, 2> arguments = {name.data(), nullptr};
        int count = 1;
        glutInit(&count, arguments.data());
    }
    return true;
}

/// Asked anew for each solid, because the host may take freeglut down.
bool isGlutReady()
{
    [[maybe_unused]] static const bool tried = initGlut();
    return glutGet(GLUT_INIT_STATE) != 0;
}

using Quadric = std::unique_ptr<GLUquadric, void (*)(GLUquadric*)>;

Quadric newQuadric()
{
    Quadric quadric(gluNewQuadric(), gluDeleteQuadric);
    if (!quadric) {
        std::fputs("out of memory.\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    gluQuadricDrawStyle(quadric.get(), GLU_FILL);
    gluQuadricNormals(quadric.get(), GLU_SMOOTH);
    return quadric;
}

/// Keeps the current normal, as freeglut's solids do, which are drawn from arrays.
class CurrentAttributes
{
public:
    CurrentAttributes() { glPushAttrib(GL_CURRENT_BIT); }
    ~CurrentAttributes() { glPopAttrib(); }
    Q_DISABLE_COPY(CurrentAttributes)
};

void plainSphere(double radius, int slices, int stacks)
{
    static const Quadric quadric = newQuadric();
    const CurrentAttributes kept;
    gluSphere(quadric.get(), radius, slices, stacks);
}

/// The face of the cube that looks along the axis (0 to 2) in the direction of `sign`.
void plainFace(double half, std::size_t axis, int sign)
{
    const std::size_t second = (axis + 1) % 3;
    const std::size_t third = (axis + 2) % 3;
    std::array<double, 3> normal = {};
    normal[axis] = sign;
    glNormal3dv(normal.data());
    // Counter-clockwise seen from outside.
    static constexpr std::array<std::array<int, 2>, 4> corners = {
        {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}};
    for (const auto& corner : corners) {
        std::array<double, 3> vertex = {};
        vertex[axis] = sign * half;
        vertex[second] = sign * corner[0] * half;
        vertex[third] = corner[1] * half;
        glVertex3dv(vertex.data());
    }
}

void plainCube(double side)
{
    const CurrentAttributes kept;
    glBegin(GL_QUADS);
    for (const std::size_t axis : {0U, 1U, 2U}) {
        plainFace(side / 2, axis, -1);
        plainFace(side / 2, axis, 1);
    }
    glEnd();
}

} // namespace

namespace LightSolids {

void sphere(double radius, int slices, int stacks)
{
    if (isGlutReady())
        glutSolidSphere(radius, slices, stacks);
    else
        plainSphere(radius, slices, stacks);
}

void cube(double side)
{
    if (isGlutReady())
        glutSolidCube(side);
    else
        plainCube(side);
}

} // namespace LightSolids
