// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkBlockManager.h"

#include "CRkBlock.h"
#include "CRkTask.h"
#include "ReferenceSettings.h"

CRkBlockManager::CRkBlockManager() = default;

CRkBlockManager::~CRkBlockManager() = default;

CRkBlockManager& CRkBlockManager::instance()
{
    static CRkBlockManager manager;
    return manager;
}

CRkBlock* CRkBlockManager::GetBlock(const QString& id) const
{
    const auto found = m_blocks.find(id);
    return found == m_blocks.end() ? nullptr : found->second.get();
}

void CRkBlockManager::AddBlock(CRkBlock* block)
{
    if (block && GetBlock(block->GetBlockID()) != block)
        m_blocks[block->GetBlockID()].reset(block);
}

struct BlockClearing
{
    static void clear() { CRkBlockManager::instance().m_blocks.clear(); }
};

void ClearBlocks()
{
    BlockClearing::clear();
}
