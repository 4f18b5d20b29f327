// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/CRkVerHighCalculator.h"

#include "tools/AntennaHeight.h"
#include "tools/NumberInput.h"
#include "ui_CRkVerHighCalculator.h"
#include "widgets/WarningBox.h"

#include <QPushButton>

namespace {

constexpr double noHeight = -9999.0;

} // namespace

CRkVerHighCalculator::CRkVerHighCalculator(QWidget* parent)
    : CRkBaseDialog(parent)
    , m_form(std::make_unique<Ui::CRkVerHighCalculator>())
{
    auto* form = new QWidget(this);
    m_form->setupUi(form);
    auto* layout = new QVBoxLayout;
    layout->addWidget(form);
    AddLayout(layout);
    SetWindowTitle(tr("Vertical Hight Calculator"));
    for (QLineEdit* edit : {m_form->m_pEdtP_Value2, m_form->m_pEdtL_Value2, m_form->m_pEdtG_Value2})
        NumberInput::accept(*edit);

    // The frame was there before the fields; the keyboard still goes through these first.
    setTabOrder(m_form->m_pEdtL_Value2, okButton());
    setTabOrder(okButton(), cancelButton());
    // The slant height is what the user came to type. An embedded dialog leaves the focus of its
    // window alone.
    if (isWindow())
        m_form->m_pEdtL_Value2->setFocus();
}

CRkVerHighCalculator::~CRkVerHighCalculator() = default;

double CRkVerHighCalculator::GetVerticalHeight()
{
    const QString p = m_form->m_pEdtP_Value2->text();
    const QString g = m_form->m_pEdtG_Value2->text();
    const QString l = m_form->m_pEdtL_Value2->text();
    if (p.isEmpty() || g.isEmpty() || l.isEmpty()) {
        WarningBox::show(tr("Vertical Hight Calculator"),
                         tr("Please input all base station parameter."));
        return noHeight;
    }
    return rk::antennaHeight(l.toDouble(), p.toDouble(), g.toDouble()).value_or(noHeight);
}

void CRkVerHighCalculator::slotBtnAcceptClicked()
{
    if (GetVerticalHeight() == noHeight) {
        // After the message about an empty field this is the second one: what is missing, and what
        // follows from it.
        WarningBox::show(tr("Vertical Hight Calculator"),
                         tr("Invalid value, please check base station parameter."));
        return;
    }
    CRkBaseDialog::slotBtnAcceptClicked();
}
