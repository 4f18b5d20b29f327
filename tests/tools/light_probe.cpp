// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// light_probe [--display-lost] [--no-memory] [--core-profile] [--embedded] [--no-framebuffers]
//             [--picture FILE] [--screen FILE]
//
// Shows the light dialog with the light from the right front, turns it once, and prints "alive".
// The pictures are those that the dialog makes of itself and that the screen shows.
//
// --display-lost: no further connection to the display can be made, as where there is OpenGL but no
// X server. --no-memory: there is none for a quadric. --core-profile: the application's default
// format is one without the fixed pipeline. --embedded: all that can be had is OpenGL ES.
// --no-framebuffers: all that can be had is too old to compose a window with.

#include <RkBaseUI/CRkLightDir.h>
#include <RkBaseUI/CRkLightWgt.h>

#include "support/WindowWaits.h"
#include "widgets/SendMouse.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDoubleSpinBox>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QScreen>
#include <QSurfaceFormat>
#include <QTest>

#include <cstdio>
#include <dlfcn.h>

#include <GL/glu.h>

namespace {

bool isMemoryOut = false;
bool isEmbedded = false;
bool lacksFramebuffers = false;

template <typename Function>
Function* original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// The library calls these.

GLUquadric* gluNewQuadric()
{
    return isMemoryOut ? nullptr : original<GLUquadric*()>("gluNewQuadric")();
}

bool QOpenGLContext::isOpenGLES() const
{
    return isEmbedded
        || original<bool(const QOpenGLContext*)>("_ZNK14QOpenGLContext10isOpenGLESEv")(this);
}

bool QOpenGLFramebufferObject::hasOpenGLFramebufferObjects()
{
    return !lacksFramebuffers
        && original<bool()>("_ZN24QOpenGLFramebufferObject27hasOpenGLFramebufferObjectsEv")();
}

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (arguments.contains(QStringLiteral("--core-profile"))) {
        QSurfaceFormat format;
        format.setVersion(3, 3);
        format.setProfile(QSurfaceFormat::CoreProfile);
        QSurfaceFormat::setDefaultFormat(format);
    }
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("display-lost"), {}},
                       {QStringLiteral("no-memory"), {}},
                       {QStringLiteral("core-profile"), {}},
                       {QStringLiteral("embedded"), {}},
                       {QStringLiteral("no-framebuffers"), {}},
                       {QStringLiteral("picture"), {}, QStringLiteral("file")},
                       {QStringLiteral("screen"), {}, QStringLiteral("file")}});
    parser.process(arguments);
    if (parser.isSet(QStringLiteral("display-lost")))
        qunsetenv("DISPLAY");
    isMemoryOut = parser.isSet(QStringLiteral("no-memory"));
    isEmbedded = parser.isSet(QStringLiteral("embedded"));
    lacksFramebuffers = parser.isSet(QStringLiteral("no-framebuffers"));

    CRkLightWgt dialog(nullptr);
    dialog.InitWgt({-60, -60, 40, 0.2, 0.8, 0.5, QColor(Qt::white), QColor(Qt::white), 64, 0.5},
                   QStringLiteral("probe"));
    dialog.move(0, 0);
    dialog.show();
    if (!comesOnScreen(&dialog))
        return 2;
    auto* view = dialog.findChild<CRkLightDir*>();
    QWidget* target = dialog.childAt(view->mapTo(&dialog, QPoint(50, 50)));
    sendMouse(*target, QEvent::MouseButtonPress, QPoint(50, 50), Qt::LeftButton, Qt::LeftButton);
    sendMouse(*target, QEvent::MouseMove, QPoint(51, 50), Qt::NoButton, Qt::LeftButton);
    sendMouse(*target, QEvent::MouseButtonRelease, QPoint(51, 50), Qt::LeftButton, Qt::NoButton);
    QCoreApplication::processEvents();
    if (dialog.findChild<QDoubleSpinBox*>(QStringLiteral("doubleSpinBox_Azimuth"))->value() != 224)
        return 3;
    const QRect part(view->mapTo(&dialog, {0, 0}), view->size());
    if (parser.isSet(QStringLiteral("picture"))
        && !dialog.grab(part).save(parser.value(QStringLiteral("picture"))))
        return 4;
    if (parser.isSet(QStringLiteral("screen"))
        && !dialog.screen()
                ->grabWindow(0, part.x(), part.y(), part.width(), part.height())
                .save(parser.value(QStringLiteral("screen"))))
        return 5;
    std::puts("alive");
    return 0;
}
