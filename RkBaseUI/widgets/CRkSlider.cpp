// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkSlider.h"

#include "widgets/PaintOnce.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionSlider>

#include <utility>

CRkSlider::CRkSlider(QWidget* parent)
    : QSlider(parent)
{
}

void CRkSlider::SetLoading(bool loading)
{
    m_loading = loading;
    handleChanged();
}

void CRkSlider::SetHandleFont(QFont font)
{
    m_handleFont = std::move(font);
    handleChanged();
}

void CRkSlider::SetHandleTextPattern(QString text)
{
    m_handleText = std::move(text);
    handleChanged();
    repaint();
}

void CRkSlider::handleChanged()
{
    m_handleTextWidth = QFontMetrics(wholeHandleFont()).horizontalAdvance(m_handleText);
    m_platePicture = QPixmap();
    update();
}

QFont CRkSlider::wholeHandleFont() const
{
    QFont whole = m_handleFont.resolve(font());
    whole.resolve(QFont::AllPropertiesResolved);
    return whole;
}

void CRkSlider::changeEvent(QEvent* event)
{
    QSlider::changeEvent(event);
    handleChanged();
}

void CRkSlider::paintEvent(QPaintEvent* event)
{
    if (!m_loading) {
        QSlider::paintEvent(event);
        return;
    }

    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);

    QRect plate =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    plate.setWidth(m_handleTextWidth);
    paintOnce(painter, *this, plate, m_platePicture,
              [this, &plate](QPainter& platePainter) { paintPlate(platePainter, plate); });
}

void CRkSlider::paintPlate(QPainter& painter, const QRect& plate) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(27, 27, 27));
    painter.drawRoundedRect(plate, 5, 5);
    painter.setPen(Qt::white);
    painter.setFont(wholeHandleFont());
    painter.drawText(plate, Qt::AlignCenter, m_handleText);
}
