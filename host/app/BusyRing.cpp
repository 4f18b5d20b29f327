// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BusyRing.h"

#include <QPainter>
#include <QTimerEvent>

namespace {

constexpr int side = 18;
constexpr int interval = 30; // Milliseconds.
constexpr int step = 12; // Degrees.

} // namespace

BusyRing::BusyRing(QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(side, side);
}

void BusyRing::paintEvent(QPaintEvent* /*event*/)
{
    const QRectF ring(2, 2, side - 4, side - 4);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(206, 216, 230), 2.4));
    painter.drawEllipse(ring);
    painter.setPen(QPen(QColor(58, 136, 244), 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, m_degrees * 16, -100 * 16);
}

void BusyRing::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_degrees = (m_degrees + 360 - step) % 360;
    update();
}

void BusyRing::showEvent(QShowEvent* event)
{
    m_timer.start(interval, this);
    QWidget::showEvent(event);
}

void BusyRing::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}
