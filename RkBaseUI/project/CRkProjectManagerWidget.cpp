// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkProjectManagerWidget.h"

#include "project/CRkProjectManagerView.h"
#include "ui_CRkProjectManagerWidget.h"

CRkProjectManagerWidget::CRkProjectManagerWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CRkProjectManagerWidget>())
{
    m_ui->setupUi(this);
    m_view = m_ui->graphicsView;

    connect(m_ui->pushButtonNewProject, &QPushButton::clicked, m_view,
            &CRkProjectManagerView::slotNewProject);
    connect(m_ui->m_pCopyProjectBtn, &QPushButton::clicked, m_view,
            &CRkProjectManagerView::slotCopyProject);
    connect(m_ui->m_pDeleteProjectBtn, &QPushButton::clicked, m_view,
            &CRkProjectManagerView::slotDeleteProject);

    connect(m_ui->lineEditSearch, &QLineEdit::textChanged, this,
            &CRkProjectManagerWidget::slotConditionChanged);
    connect(m_ui->m_pCityDateSelectWidget, &CRkCityDateFilterWidget::CityConditionChanged, this,
            &CRkProjectManagerWidget::slotConditionChanged);
    connect(m_ui->m_pCityDateSelectWidget, &CRkCityDateFilterWidget::DateConditionChanged, this,
            &CRkProjectManagerWidget::slotConditionChanged);

    connect(m_view, &CRkProjectManagerView::projectCopied, this,
            &CRkProjectManagerWidget::slotProjectListChanged);
    connect(m_view, &CRkProjectManagerView::projectOpened, this,
            &CRkProjectManagerWidget::soltGetProjectName);
    connect(m_view, &CRkProjectManagerView::projectOpened, this,
            &CRkProjectManagerWidget::projectOpened);
    connect(this, &CRkProjectManagerWidget::filterConditionChanged, m_view,
            &CRkProjectManagerView::slotFilterConditionChanged);
}

CRkProjectManagerWidget::~CRkProjectManagerWidget() = default;

CRkProjectManagerView* CRkProjectManagerWidget::getProjectManagerView() const
{
    return m_view;
}

void CRkProjectManagerWidget::SetNewProjectButtonVisible(bool visible)
{
    m_ui->pushButtonNewProject->setVisible(visible);
}

void CRkProjectManagerWidget::SetCopyProjectBtnVisible(bool visible)
{
    m_ui->m_pCopyProjectBtn->setVisible(visible);
}

void CRkProjectManagerWidget::SetDeleteProjectBtnVisible(bool visible)
{
    m_ui->m_pDeleteProjectBtn->setVisible(visible);
}

void CRkProjectManagerWidget::SetProjectName(const QString& name)
{
    m_selectedProjectName = name;
}

void CRkProjectManagerWidget::OpenSpecifiedProject(const QString& /*project*/)
{
}

void CRkProjectManagerWidget::loadDefaultContiditions()
{
    m_ui->m_pCityDateSelectWidget->LoadDefaultContiditions();
    slotConditionChanged();
}

void CRkProjectManagerWidget::slotConditionChanged()
{
    m_cityCondition = m_ui->m_pCityDateSelectWidget->GetCurCity();
    m_dateCondition = m_ui->m_pCityDateSelectWidget->GetCurDate();
    m_sourceCondition.clear();
    m_keywordCondition = m_ui->lineEditSearch->text();
    slotProjectListChanged();
}

void CRkProjectManagerWidget::slotProjectListChanged()
{
    emit filterConditionChanged(m_cityCondition, m_dateCondition, m_sourceCondition,
                                m_keywordCondition);
}

void CRkProjectManagerWidget::soltGetProjectName(const QString& name)
{
    SetProjectName(name);
}

void CRkProjectManagerWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    // A focus proxy would cut the buttons off from the tab order.
    m_ui->lineEditSearch->setFocus();
}
