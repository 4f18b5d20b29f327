// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/CRkCoordFormat.h"

#include "tools/CoordinateFormat.h"
#include "tools/NumberInput.h"
#include "ui_CRkCoordFormat.h"
#include "widgets/WarningBox.h"

#include <QPushButton>

namespace {

constexpr int decimalType = 1;
constexpr int dmsType = 2;

QStringList split(const QString& decimalDegrees)
{
    return rk::toTexts(rk::toDegreesMinutesSeconds(decimalDegrees.toDouble()));
}

} // namespace

CRkCoordFormat::CRkCoordFormat(QWidget* parent)
    : CRkBaseDialog(parent)
    , m_form(std::make_unique<Ui::CRkCoordFormat>())
{
    auto* form = new QWidget(this);
    m_form->setupUi(form);
    auto* layout = new QVBoxLayout;
    layout->addWidget(form);
    AddLayout(layout);
    SetWindowTitle(tr("Coordinate Format"));
    NumberInput::accept(*m_form->m_pEdtCoordLat);
    NumberInput::accept(*m_form->m_pEdtCoordLng);
    connect(m_form->m_pRdoDec, &QRadioButton::toggled, this,
            &CRkCoordFormat::slotFormatTypeChanged);
    connect(m_form->m_pRdoDms, &QRadioButton::toggled, this,
            &CRkCoordFormat::slotFormatTypeChanged);
    m_form->m_pRdoDec->setChecked(true);

    // The frame was there before the fields; the keyboard still goes through these first.
    setTabOrder(m_form->m_pEdtCoordLng, okButton());
    setTabOrder(okButton(), cancelButton());
    // An embedded dialog leaves the focus of its window alone.
    if (isWindow())
        m_form->m_pEdtCoordLat->setFocus();
}

CRkCoordFormat::~CRkCoordFormat() = default;

void CRkCoordFormat::ConvertToDMSCoord(QStringList& lat, QStringList& lng) const
{
    const QString latitude = m_form->m_pEdtCoordLat->text();
    const QString longitude = m_form->m_pEdtCoordLng->text();
    if (latitude.isEmpty() || longitude.isEmpty())
        return;
    // Numbers in the layout of degrees, minutes and seconds are split as if they were decimal
    // degrees: hosts read them so.
    if (m_formatType != decimalType && m_formatType != dmsType)
        return;
    lat += split(latitude);
    lng += split(longitude);
}

void CRkCoordFormat::slotFormatTypeChanged(bool checked)
{
    if (!checked)
        return;
    m_form->m_pEdtCoordLat->clear();
    m_form->m_pEdtCoordLng->clear();
    if (sender() == m_form->m_pRdoDec) {
        m_formatType = decimalType;
        m_form->m_pEdtCoordLat->setPlaceholderText(QStringLiteral("00.00000000"));
        m_form->m_pEdtCoordLng->setPlaceholderText(QStringLiteral("000.00000000"));
    } else if (sender() == m_form->m_pRdoDms) {
        m_formatType = dmsType;
        m_form->m_pEdtCoordLat->setPlaceholderText(tr("dd.mmssss"));
        m_form->m_pEdtCoordLng->setPlaceholderText(tr("ddd.mmssss"));
    }
}

void CRkCoordFormat::slotBtnAcceptClicked()
{
    const QString latitude = m_form->m_pEdtCoordLat->text();
    const QString longitude = m_form->m_pEdtCoordLng->text();
    if (latitude.isEmpty() || longitude.isEmpty())
        WarningBox::show(tr("Coordinate Format"), tr("Please input parameter."));
    else if (rk::isGeographic(latitude.toDouble(), longitude.toDouble()))
        CRkBaseDialog::slotBtnAcceptClicked();
    else
        WarningBox::show(tr("Coordinate Format"), tr("Invalid parameter."));
}
