// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkData/RkDataExport.h>

#include <QString>

#include <map>
#include <memory>

class CRkBlock;

/// The blocks that have been loaded, by their id, for the whole process. GUI thread only.
///
///     if (!CRkBlockManager::instance().GetBlock(guid))
///         CRkBlockManager::instance().AddBlock(loadedBlock);
class RKDATA_EXPORT CRkBlockManager
{
public:
    static CRkBlockManager& instance();
    Q_DISABLE_COPY(CRkBlockManager)

    /// The block of that id, which stays with the manager; null when there is none.
    CRkBlock* GetBlock(const QString& id) const;

    /// Takes ownership of the block, whose id must not change from here on. Another block of that
    /// id is freed; null and a block that is here already are ignored.
    void AddBlock(CRkBlock* block);

private:
    CRkBlockManager();
    ~CRkBlockManager();

    friend struct BlockClearing;

    std::map<QString, std::unique_ptr<CRkBlock>> m_blocks;
};
