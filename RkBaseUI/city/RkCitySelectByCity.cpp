// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/RkCitySelectByCity.h"

#include "city/PlaceButton.h"
#include "ui_RkCitySelectByCity.h"

RkCitySelectByCity::RkCitySelectByCity(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::RkCitySelectByCity>())
{
    m_ui->setupUi(this);
    preparePlaceList(*m_ui->widgetCityList);
}

RkCitySelectByCity::~RkCitySelectByCity() = default;

void RkCitySelectByCity::SetLetter(const QString& letter)
{
    m_ui->labelCityLetter->setText(letter);
}

void RkCitySelectByCity::SetCities(const QStringList& cities)
{
    addPlaceButtons(*m_ui->widgetCityList, cities, *this);
}

void RkCitySelectByCity::slotCityButtonClicked()
{
    if (const auto* button = qobject_cast<QPushButton*>(sender()))
        emit signalCitySelected(button->text());
}
