// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkProjectManagerDialog.h"

#include "project/CRkProjectManagerView.h"
#include "ui_CRkProjectManagerDialog.h"

#include <QDesktopServices>
#include <QMouseEvent>

namespace {

const char* const defaultHelpUrl = "https://manual.example.com/project-manager";

} // namespace

CRkProjectManagerDialog::CRkProjectManagerDialog(QWidget* parent)
    : QDialog(parent, Qt::FramelessWindowHint)
    , m_ui(std::make_unique<Ui::CRkProjectManagerDialog>())
    , m_helpUrl(QString::fromLatin1(defaultHelpUrl))
{
    m_ui->setupUi(this);
    SetIcon(QStringLiteral(":/images/Normal/Tarnplan_ic_24.png"));
    switchPage(true);
    m_ui->pageProjectManager->setFocus();

    connect(m_ui->pushButtonMaxWindow, &QPushButton::clicked, this,
            &CRkProjectManagerDialog::slotMaxSwitch);
    connect(m_ui->pushButtonCloseWindow, &QPushButton::clicked, this,
            &CRkProjectManagerDialog::close);

    connect(m_ui->pageProjectManager, &CRkProjectManagerWidget::projectOpened, this,
            &CRkProjectManagerDialog::projectOpened);
    connect(m_ui->pageBlockManager, &CRkBlockManagerWidget::blockOpened, this,
            &CRkProjectManagerDialog::blockOpened);
    connect(m_ui->pageBlockManager, &CRkBlockManagerWidget::backToProjectView, this,
            &CRkProjectManagerDialog::backToProjectView);
    // After the relays, so that the host can act first.
    connect(m_ui->pageProjectManager, &CRkProjectManagerWidget::projectOpened, this,
            &CRkProjectManagerDialog::_showBlocks);
    connect(m_ui->pageBlockManager, &CRkBlockManagerWidget::backToProjectView, this,
            [this] { switchPage(true); });
}

CRkProjectManagerDialog::~CRkProjectManagerDialog() = default;

void CRkProjectManagerDialog::switchPage(bool projectPage)
{
    if (projectPage)
        m_ui->stackedWidget->setCurrentWidget(m_ui->pageProjectManager);
    else
        m_ui->stackedWidget->setCurrentWidget(m_ui->pageBlockManager);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts are built against the value.
void CRkProjectManagerDialog::SetIcon(QString path)
{
    m_ui->labelIcon->setStyleSheet(
        QStringLiteral("\t\tQLabel\t\t{\t\t\tbackground-image: url(%1);\t\t\tborder:0;\t\t}")
            .arg(path));
}

void CRkProjectManagerDialog::SetNewProjectButtonVisible(bool visible)
{
    m_ui->pageProjectManager->SetNewProjectButtonVisible(visible);
}

void CRkProjectManagerDialog::SetCopyProjectBtnVisible(bool visible)
{
    m_ui->pageProjectManager->SetCopyProjectBtnVisible(visible);
}

void CRkProjectManagerDialog::SetDeleteProjectBtnVisible(bool visible)
{
    m_ui->pageProjectManager->SetDeleteProjectBtnVisible(visible);
}

void CRkProjectManagerDialog::SetHelpUrl(const QUrl& url)
{
    m_helpUrl = url;
}

QString CRkProjectManagerDialog::GetProjectName() const
{
    const CRkProjectManagerView* view = m_ui->pageProjectManager->getProjectManagerView();
    return view ? view->GetProjectName() : QString();
}

CRkOpenedProjectInfo CRkProjectManagerDialog::getOpenedProjectInfo() const
{
    return m_ui->pageBlockManager->getOpenedProjectInfo();
}

CRkProjectManagerWidget* CRkProjectManagerDialog::getProjectManagerWidget() const
{
    return m_ui->pageProjectManager;
}

CRkBlockManagerWidget* CRkProjectManagerDialog::getBlockManagerWidget() const
{
    return m_ui->pageBlockManager;
}

void CRkProjectManagerDialog::slotMaxSwitch()
{
    if (isFullScreen())
        showNormal();
    else
        showFullScreen();
    m_ui->pushButtonMaxWindow->setChecked(isFullScreen()); // Also when the host has called.
}

void CRkProjectManagerDialog::slotHelp()
{
    QDesktopServices::openUrl(m_helpUrl);
}

void CRkProjectManagerDialog::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_ui->widgetTitleBar->rect().contains(event->pos()))
        return;
    m_dragging = true;
    m_dragOffset = event->globalPos() - pos();
    grabMouse();
}

void CRkProjectManagerDialog::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_dragging)
        move(event->globalPos() - m_dragOffset);
}

void CRkProjectManagerDialog::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    _endDrag();
}

void CRkProjectManagerDialog::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    _endDrag(); // A hidden window would keep the mouse.
}

void CRkProjectManagerDialog::_endDrag()
{
    m_dragging = false;
    releaseMouse();
}

bool CRkProjectManagerDialog::_showsBlocksOf(const QString& projectFile) const
{
    return m_ui->stackedWidget->currentWidget() == m_ui->pageBlockManager
        && getOpenedProjectInfo().projectFilePath == projectFile;
}

void CRkProjectManagerDialog::_showBlocks(const QString& projectFile)
{
    if (_showsBlocksOf(projectFile))
        return;
    if (m_ui->pageBlockManager->LoadExistBlocks(projectFile))
        switchPage(false);
}
