// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/LightDirection.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QPoint>

#include <array>

class FlatLightView;

/// View of a light's direction: a line from the centre of a sphere to a red marker, turned by
/// dragging with the mouse, one degree a pixel.
///
///     auto* view = new CRkLightDir(page);
///     connect(view, &CRkLightDir::signalUpdateAngle, this, &Page::showAngles);
///     view->slotUpdateAngle(225, 45);
///
/// Drawn with OpenGL 1.x, whatever the application's default surface format. On a machine where no
/// context for that can be made, a plain drawing shows the same and the mouse works as well; then
/// give the view its parent when it is made, or the parent's window stays empty.
///
/// The solids are freeglut's. The first frame initialises freeglut unless the application has done
/// so; an application that uses it too must be first, because a second glutInit ends the process.
class RKBASEUI_EXPORT CRkLightDir : public QOpenGLWidget, private QOpenGLFunctions
{
    Q_OBJECT

public:
    explicit CRkLightDir(QWidget* parent = nullptr);
    ~CRkLightDir() override;

Q_SIGNALS:
    /// The user turned the direction: degrees, azimuth within 0 to 360 and elevation within -180 to
    /// 180 unless one move of the mouse goes further than a whole turn.
    void signalUpdateAngle(float fAzimuth, float fElevation);

public Q_SLOTS:
    /// Shows that direction, degrees, and emits nothing.
    void slotUpdateAngle(float fAzimuth, float fElevation);

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void _setAngles(rk::LightAngles angles);

    FlatLightView* m_flatView = nullptr; ///< Owned by Qt; null where there is OpenGL.
    rk::LightAngles m_angles;
    /// Where the last event of a drag was. (0, 0) stands for no drag.
    QPoint m_lastPosition;
    std::array<float, 4> m_lightPosition = {};
};
