// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/PlaceButton.h"

#include <RkBaseUI/FlowLayout.h>

#include <QApplication>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int marginBesideText = 6;
constexpr int cornerRadius = 3;

QColor plateColour(const QStyleOptionButton& option)
{
    return {58, 136, 244, option.state & QStyle::State_Sunken ? 90 : 45};
}

} // namespace

PlaceButton::PlaceButton(QWidget* parent)
    : PlaceButton(QString(), parent)
{
}

PlaceButton::PlaceButton(const QString& name, QWidget* parent)
    : RkHoveredPushButton(name, QString(), parent)
{
    setFlat(true);
}

void PlaceButton::setTextColour(const QColor& colour)
{
    m_textColour = colour;
    update();
}

QSize PlaceButton::sizeHint() const
{
    return sizeOfText().expandedTo(minimumSize());
}

QSize PlaceButton::minimumSizeHint() const
{
    return sizeHint();
}

QSize PlaceButton::sizeOfText() const
{
    const QSize size = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {size.width() + 2 * marginBesideText, size.height()};
}

void PlaceButton::drawButton(QStylePainter& painter, QStyleOptionButton& option)
{
    if ((option.state & QStyle::State_MouseOver) && (option.state & QStyle::State_Enabled)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(plateColour(option));
        painter.drawRoundedRect(rect(), cornerRadius, cornerRadius);
    }
    option.palette.setColor(QPalette::ButtonText, m_textColour);
    // Styles set the text in the middle, and lay a plate of their own under it when pressed.
    option.rect.setWidth(qMin(width(), sizeOfText().width()));
    option.rect = QStyle::visualRect(layoutDirection(), rect(), option.rect);
    option.state &= ~QStyle::State_Sunken;
    RkHoveredPushButton::drawButton(painter, option);
}

void preparePlaceList(QWidget& list)
{
    // The application's own, with whatever stands in for characters that it lacks. The families are
    // set although they are there: otherwise the list takes those of the window.
    QFont font = QApplication::font();
    font.setFamily(font.family());
    font.setFamilies(font.families());
    font.setPointSize(8);
    font.setWeight(QFont::Normal);
    font.setItalic(false);
    list.setFont(font);
    new FlowLayout(&list, 0, 4, 2);
}
