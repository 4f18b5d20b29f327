// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkParameterEditPage.h"

#include "ui_CRkParameterEditPage.h"

#include <QPushButton>

CRkParameterEditPage::CRkParameterEditPage(QWidget* parent)
    : CRkBaseDialog(parent)
    , m_form(std::make_unique<Ui::CRkParameterEditPage>())
{
    auto* form = new QWidget(this);
    m_form->setupUi(form);
    auto* layout = new QVBoxLayout;
    layout->addWidget(form);
    AddLayout(layout);

    // The frame was there before the fields; the keyboard still goes through these first.
    setTabOrder(m_form->m_pEdtElement4, okButton());
    setTabOrder(okButton(), cancelButton());
    // Otherwise OK would have the focus first, and the user a way to go to the first field. An
    // embedded page leaves the focus of its window alone.
    if (isWindow())
        m_form->m_pEdtElement1->setFocus();
}

CRkParameterEditPage::~CRkParameterEditPage() = default;

void CRkParameterEditPage::SetDialogInfo(const QString& title)
{
    SetWindowTitle(title);
}

void CRkParameterEditPage::SetElementName(const QString& name1, const QString& name2)
{
    m_form->m_pLblElement1->setText(name1);
    m_form->m_pLblElement2->setText(name2);
}

void CRkParameterEditPage::SetElement1Value(const QString& value, bool readOnly)
{
    elements()[0].setValue(value, readOnly);
}

void CRkParameterEditPage::SetElement2Value(const QString& value, bool readOnly)
{
    elements()[1].setValue(value, readOnly);
}

QString CRkParameterEditPage::GetElement1Value() const
{
    return m_form->m_pEdtElement1->text();
}

QString CRkParameterEditPage::GetElement2Value() const
{
    return m_form->m_pEdtElement2->text();
}

void CRkParameterEditPage::SetElementParas(const QStringList& names, const QStringList& values,
                                           const QList<bool>& readOnly)
{
    int i = 0;
    for (const Element& element : elements()) {
        element.label->setText(names.value(i));
        element.setValue(values.value(i), readOnly.value(i));
        ++i;
    }
}

QStringList CRkParameterEditPage::GetElementValues() const
{
    QStringList values;
    for (const Element& element : elements())
        values.append(element.edit->text());
    return values;
}

void CRkParameterEditPage::SetGroupHidden(bool hidden1, bool hidden2, bool hidden3, bool hidden4)
{
    m_form->m_pGroupElement1->setHidden(hidden1);
    m_form->m_pGroupElement2->setHidden(hidden2);
    m_form->m_pGroupElement3->setHidden(hidden3);
    m_form->m_pGroupElement4->setHidden(hidden4);
}

void CRkParameterEditPage::SetOKCancelBtnVisible(bool okVisible, bool cancelVisible)
{
    okButton()->setVisible(okVisible);
    cancelButton()->setVisible(cancelVisible);
}

void CRkParameterEditPage::Element::setValue(const QString& value, bool readOnly) const
{
    edit->setText(value);
    edit->setReadOnly(readOnly);
}

std::array<CRkParameterEditPage::Element, 4> CRkParameterEditPage::elements() const
{
    return {{{m_form->m_pGroupElement1, m_form->m_pLblElement1, m_form->m_pEdtElement1},
             {m_form->m_pGroupElement2, m_form->m_pLblElement2, m_form->m_pEdtElement2},
             {m_form->m_pGroupElement3, m_form->m_pLblElement3, m_form->m_pEdtElement3},
             {m_form->m_pGroupElement4, m_form->m_pLblElement4, m_form->m_pEdtElement4}}};
}
