// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/RkCitySelectByProvince.h"

#include "city/PlaceButton.h"
#include "ui_RkCitySelectByProvince.h"

RkCitySelectByProvince::RkCitySelectByProvince(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::RkCitySelectByProvince>())
{
    m_ui->setupUi(this);
    m_ui->pushButtonProvinceName->setTextColour(QColor(9, 2, 38));
    preparePlaceList(*m_ui->widgetCityList);
    connect(m_ui->pushButtonProvinceName, &QPushButton::clicked, this,
            &RkCitySelectByProvince::slotCityButtonClicked);
}

RkCitySelectByProvince::~RkCitySelectByProvince() = default;

void RkCitySelectByProvince::SetProvinceLetter(const QString& letter)
{
    m_ui->labelProvinceLetter->setText(letter);
}

void RkCitySelectByProvince::SetProvinceName(const QString& province)
{
    m_ui->pushButtonProvinceName->setText(province);
}

void RkCitySelectByProvince::SetProvinceCities(const QStringList& cities)
{
    addPlaceButtons(*m_ui->widgetCityList, cities, *this);
}

void RkCitySelectByProvince::slotCityButtonClicked()
{
    if (const auto* button = qobject_cast<QPushButton*>(sender()))
        emit signalCitySelected(button->text());
}
