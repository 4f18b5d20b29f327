// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBlockManagerTable.h>
#include <RkBaseUI/CRkOpenedProjectInfo.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QString>
#include <QVector>
#include <QWidget>

#include <memory>

namespace Ui {
class CRkBlockManagerWidget;
}

/// The page with the survey blocks of one project: a tool bar with the project's name and a search
/// by name, a table of the blocks, and a status bar with size, time and totals. One page serves any
/// number of projects, one after the other.
///
///     auto* page = new CRkBlockManagerWidget(dialog);
///     connect(page, &CRkBlockManagerWidget::blockOpened, this, &Dialog::openBlock);
///     page->LoadExistBlocks(projectFile);
class RKBASEUI_EXPORT CRkBlockManagerWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CRkBlockManagerWidget(QWidget* parent = nullptr);
    ~CRkBlockManagerWidget() override;

    /// Shows the blocks of the current user's project in the file, which are in CRkBlockManager
    /// afterwards. False, with an empty table and the labels as they were, when the file is missing
    /// or cannot be opened. A file without a project of the user shows the blocks of no project,
    /// and leaves the label with the project's name as it was.
    bool LoadExistBlocks(const QString& projectFile);

    /// Counts the flights of the block's tasks anew and writes them into the tasks. False when the
    /// block is not in CRkBlockManager; true also when the flights cannot be read, which leaves the
    /// counts as they were.
    bool OpenBlock(const QString& blockId);

    /// The project of the last load; empty before, and when that load found none.
    CRkOpenedProjectInfo getOpenedProjectInfo() const { return m_projectInfo; }

Q_SIGNALS:
    /// The user double-clicked a block that has tasks.
    void blockOpened(const QString& blockId);
    void backToProjectView();

private Q_SLOTS:
    /// Shows the blocks whose name holds the search text, unless it did so last.
    void slotButtonSearchClicked();

private:
    using Blocks = QVector<CRkBlockManagerTable::Block>;

    /// Shows the blocks in the empty table, and their totals.
    void _showBlocks(const Blocks& blocks);

    const std::unique_ptr<Ui::CRkBlockManagerWidget> m_ui;
    CRkOpenedProjectInfo m_projectInfo;
    /// Of every load of this page, in their order: a search looks at all of them.
    Blocks m_blocks;
    QString m_lastSearchText;
};
