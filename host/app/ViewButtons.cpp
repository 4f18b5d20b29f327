// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/ViewButtons.h"

#include "app/PlateStyle.h"

#include <QEvent>
#include <QToolButton>
#include <QVariant>
#include <QVBoxLayout>

namespace {

constexpr int buttonSide = 34;

} // namespace

ViewButtons::ViewButtons(HostIcons::Shape tool, QWidget* parent)
    : QWidget(parent)
    , m_tool(makeButton(tool, &ViewButtons::toolClicked))
    , m_zoomIn(makeButton(HostIcons::Shape::Plus, &ViewButtons::zoomInClicked))
    , m_zoomOut(makeButton(HostIcons::Shape::Minus, &ViewButtons::zoomOutClicked))
    , m_whole(makeButton(HostIcons::Shape::Whole, &ViewButtons::wholeClicked))
{
    m_tool->setObjectName(QStringLiteral("tool"));
    m_tool->setProperty("role", QStringLiteral("named"));
    m_tool->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_tool->setMaximumWidth(QWIDGETSIZE_MAX);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    for (QToolButton* button : {m_tool, m_zoomIn, m_zoomOut, m_whole})
        layout->addWidget(button, 0, Qt::AlignLeft);
    layout->insertSpacing(1, 8); // Between the tool and the zoom.
    setStyleSheet(QString::fromLatin1(PlateStyle::styleSheet));
    retranslate();
}

QToolButton* ViewButtons::makeButton(HostIcons::Shape shape, void (ViewButtons::*clicked)())
{
    auto* button = new QToolButton(this);
    button->setIcon(HostIcons::icon(shape, QColor(44, 60, 90)));
    button->setIconSize(QSize(20, 20));
    button->setMinimumWidth(buttonSide);
    button->setMaximumWidth(buttonSide);
    button->setFixedHeight(buttonSide);
    button->setCursor(Qt::PointingHandCursor);
    connect(button, &QToolButton::clicked, this, clicked);
    return button;
}

void ViewButtons::setToolText(const QString& text, const QString& tip)
{
    m_tool->setText(text);
    m_tool->setToolTip(tip);
}

void ViewButtons::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ViewButtons::retranslate()
{
    const auto name = [](QToolButton* button, const QString& text) {
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    name(m_zoomIn, tr("Zoom in"));
    name(m_zoomOut, tr("Zoom out"));
    name(m_whole, tr("Show the whole terrain"));
}
