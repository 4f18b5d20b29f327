// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkBlockManagerWidget.h"

#include "project/BlockStore.h"
#include "project/ProjectListing.h"
#include "ui_CRkBlockManagerWidget.h"

#include <RkBaseUI/SharedHelpers.h>
#include <RkData/RkData.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

CRkBlockManagerWidget::CRkBlockManagerWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CRkBlockManagerWidget>())
{
    m_ui->setupUi(this);
    connect(m_ui->pushButtonBackToProjectManager, &QPushButton::clicked, this,
            &CRkBlockManagerWidget::backToProjectView);
    connect(m_ui->pushButtonSearch, &QPushButton::clicked, this,
            &CRkBlockManagerWidget::slotButtonSearchClicked);
    connect(m_ui->widgetBlockTable, &CRkBlockManagerTable::signalBlockOpened, this,
            &CRkBlockManagerWidget::blockOpened);
}

CRkBlockManagerWidget::~CRkBlockManagerWidget() = default;

bool CRkBlockManagerWidget::LoadExistBlocks(const QString& projectFile)
{
    m_projectInfo = {};
    m_lastSearchText.clear();
    m_ui->widgetBlockTable->Clear();
    const std::optional<BlockStore::Project> project =
        BlockStore::load(projectFile, ProjectListing::currentUserId());
    if (!project)
        return false;
    m_projectInfo = project->info;
    if (!m_projectInfo.projectFilePath.isEmpty())
        m_ui->labelProjectNameOpeningBlocks->setText(m_projectInfo.projectName);

    const QHash<QString, BlockStore::BlockCounts> counts =
        BlockStore::count(m_projectInfo.projectFilePath, project->blocks);
    Blocks blocks;
    for (const BlockStore::Block& block : project->blocks) {
        const BlockStore::BlockCounts count = counts.value(block.id);
        blocks.append(
            {block.id, block.name, block.planeType, block.cameraType, count.tasks, count.flights});
    }
    m_blocks += blocks;
    _showBlocks(blocks);
    m_ui->labelSize->setText(getHumanReadableFileSize(QFileInfo(projectFile).size()));
    m_ui->labelModifiedTime->setText(project->modified);
    return true;
}

bool CRkBlockManagerWidget::OpenBlock(const QString& blockId)
{
    const CRkBlock* block = CRkBlockManager::instance().GetBlock(blockId);
    if (!block)
        return false;
    BlockStore::recountFlights(m_projectInfo.projectFilePath, *block);
    return true;
}

void CRkBlockManagerWidget::slotButtonSearchClicked()
{
    const QString text = m_ui->lineEditSearch->text();
    if (text == m_lastSearchText)
        return;
    m_lastSearchText = text;
    Blocks found;
    std::copy_if(m_blocks.cbegin(), m_blocks.cend(), std::back_inserter(found),
                 [&](const auto& block) { return block.name.contains(text); });
    m_ui->widgetBlockTable->Clear();
    _showBlocks(found);
}

void CRkBlockManagerWidget::_showBlocks(const Blocks& blocks)
{
    m_ui->widgetBlockTable->AddItems(blocks);
    m_ui->widgetBlockTable->FinishLoad();
    int tasks = 0;
    int flights = 0;
    for (const CRkBlockManagerTable::Block& block : blocks) {
        tasks += block.taskCount;
        flights += block.flightCount;
    }
    m_ui->labelTotalBlockCount->setText(QString::number(blocks.size()));
    m_ui->labelTotalMissionCount->setText(QString::number(tasks));
    m_ui->labelTotalFlightCount->setText(QString::number(flights));
}
