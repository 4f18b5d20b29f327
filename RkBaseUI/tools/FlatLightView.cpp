// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/FlatLightView.h"

#include <QPainter>
#include <QtMath>

#include <cmath>

namespace {

constexpr double cameraDistance = 15;
constexpr double fieldOfView = 45; // Degrees, over the height.
constexpr double coreRadius = 1;
constexpr double markerSide = 0.5;

/// The 3-D view's camera for a picture of this height.
class Camera
{
public:
    explicit Camera(int height)
        : m_focalLength(height / 2.0 / qTan(qDegreesToRadians(fieldOfView / 2)))
    {
    }

    /// Pixels of one scene unit that far towards the camera.
    double scale(double towards) const { return m_focalLength / (cameraDistance - towards); }

    /// Pixels of the outline of a sphere about the origin.
    double outline(double radius) const
    {
        return m_focalLength * radius
            / std::sqrt(cameraDistance * cameraDistance - radius * radius);
    }

private:
    double m_focalLength;
};

} // namespace

FlatLightView::FlatLightView(float radius, QWidget* parent)
    : QWidget(parent)
    , m_radius(radius)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void FlatLightView::setAngles(rk::LightAngles angles)
{
    m_angles = angles;
    update();
}

void FlatLightView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(51, 51, 51));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const Camera camera(height());

    painter.setPen(QColor(200, 191, 255, 96));
    painter.setBrush(QColor(200, 191, 255, 26));
    const double outline = camera.outline(m_radius);
    painter.drawEllipse(QPointF(), outline, outline);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 191, 255));
    const double core = camera.outline(coreRadius);
    painter.drawEllipse(QPointF(), core, core);

    const QVector3D point = rk::lightMarker(m_angles, m_radius);
    if (!std::isfinite(point.x()) || !std::isfinite(point.y()) || !std::isfinite(point.z()))
        return;
    const double scale = camera.scale(-point.y()); // The camera looks along the y axis.
    const QPointF marker(point.x() * scale, -point.z() * scale);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawLine(QPointF(), marker);
    const double side = markerSide * scale;
    QRectF square(0, 0, side, side);
    square.moveCenter(marker);
    const bool isBehind = point.y() > 0;
    painter.fillRect(square, isBehind ? QColor(160, 0, 0) : QColor(255, 0, 0));
}
