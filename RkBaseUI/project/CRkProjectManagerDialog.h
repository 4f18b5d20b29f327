// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkOpenedProjectInfo.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QDialog>
#include <QPoint>
#include <QString>
#include <QUrl>

#include <memory>

class CRkBlockManagerWidget;
class CRkProjectManagerWidget;

namespace Ui {
class CRkProjectManagerDialog;
}

/// The project manager: the page with the projects, and behind it the page with the blocks of the
/// project that the user opens. The host gets the block that the user opens there.
///
///     CRkProjectManagerDialog dialog(window);
///     connect(&dialog, &CRkProjectManagerDialog::blockOpened, &dialog, &QDialog::accept);
///     dialog.getProjectManagerWidget()->loadDefaultContiditions();
///     if (dialog.exec() == QDialog::Accepted)
///         window->showProject(dialog.getOpenedProjectInfo());
///
/// The window has no frame of its own and is dragged by its title bar.
class RKBASEUI_EXPORT CRkProjectManagerDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CRkProjectManagerDialog(QWidget* parent = nullptr);
    ~CRkProjectManagerDialog() override;

    /// Shows the page with the projects, or the one with the blocks of the opened project.
    void switchPage(bool projectPage);

    /// Shows the picture, of 24 by 24, at the left of the title bar.
    /// @param path of a file or resource, without parentheses
    void SetIcon(QString path);

    void SetNewProjectButtonVisible(bool visible);
    void SetCopyProjectBtnVisible(bool visible);
    void SetDeleteProjectBtnVisible(bool visible);

    /// The page of the online manual that slotHelp() opens. The address that a dialog starts with
    /// leads nowhere: the manual is the host's.
    void SetHelpUrl(const QUrl& url);

    /// The name of the project that was opened last; empty before, and without a view.
    QString GetProjectName() const;
    /// The project whose blocks the dialog shows; empty when no project was opened.
    CRkOpenedProjectInfo getOpenedProjectInfo() const;

    /// The pages. The dialog owns them.
    CRkProjectManagerWidget* getProjectManagerWidget() const;
    CRkBlockManagerWidget* getBlockManagerWidget() const;

Q_SIGNALS:
    /// The user opens a project, given by its file. Once all slots have been called, the dialog
    /// loads the blocks of the project and shows them, unless a slot has done both.
    void projectOpened(const QString& projectFilePath);
    /// The user opens a block, given by its id.
    void blockOpened(const QString& blockId);
    /// The user goes back to the projects.
    void backToProjectView();

public Q_SLOTS:
    /// Switches between full screen and normal size.
    void slotMaxSwitch();
    /// Opens the manual in the browser.
    void slotHelp();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void _endDrag();
    bool _showsBlocksOf(const QString& projectFile) const;
    void _showBlocks(const QString& projectFile);

    const std::unique_ptr<Ui::CRkProjectManagerDialog> m_ui;
    QUrl m_helpUrl;
    QPoint m_dragOffset;
    bool m_dragging = false;
};
