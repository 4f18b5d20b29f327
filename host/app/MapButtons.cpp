// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapButtons.h"

#include "app/HostIcons.h"
#include "app/PlateStyle.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

MapButtons::MapButtons(QWidget* parent)
    : QWidget(parent)
{
    using HostIcons::Shape;
    struct Button
    {
        Shape shape;
        void (MapButtons::*clicked)();
    };
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    for (const Button& made : {Button{Shape::Plus, &MapButtons::zoomInClicked},
                               Button{Shape::Minus, &MapButtons::zoomOutClicked},
                               Button{Shape::Block, &MapButtons::blockClicked},
                               Button{Shape::Project, &MapButtons::projectClicked},
                               Button{Shape::Country, &MapButtons::countryClicked},
                               Button{Shape::Locate, &MapButtons::locateClicked},
                               Button{Shape::Outline, &MapButtons::outlineClicked}}) {
        auto* button = new QToolButton(this);
        button->setIcon(HostIcons::icon(made.shape, QColor(44, 60, 90)));
        button->setIconSize(QSize(20, 20));
        button->setFixedSize(34, 34);
        button->setCursor(Qt::PointingHandCursor);
        connect(button, &QToolButton::clicked, this, made.clicked);
        layout->addWidget(button);
        m_buttons.append(button);
    }
    layout->insertSpacing(6, 8); // Between the places and what is drawn.
    layout->insertSpacing(2, 8); // Between the zoom and the places to go to.
    m_buttons[5]->setObjectName(QStringLiteral("locate"));
    m_buttons[6]->setObjectName(QStringLiteral("outline"));
    m_buttons[6]->setCheckable(true);
    setStyleSheet(QString::fromLatin1(PlateStyle::styleSheet));
    retranslate();
}

void MapButtons::setBlockEnabled(bool isEnabled)
{
    m_buttons[2]->setEnabled(isEnabled);
}

void MapButtons::setProjectEnabled(bool isEnabled)
{
    m_buttons[3]->setEnabled(isEnabled);
}

void MapButtons::setOutlineChecked(bool isChecked)
{
    m_buttons[6]->setChecked(isChecked);
}

void MapButtons::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void MapButtons::retranslate()
{
    const QStringList texts = {tr("Zoom in"), tr("Zoom out"), tr("Show the block"),
                               tr("Show all blocks of the project"), tr("Show the whole country"),
                               tr("Show where I am"), tr("Draw an outline")};
    for (int i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setToolTip(texts[i]);
        m_buttons[i]->setAccessibleName(texts[i]);
    }
}
