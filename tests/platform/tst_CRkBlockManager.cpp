// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkData/CRkBlock.h>
#include <RkData/CRkBlockManager.h>
#include <RkData/CRkTask.h>
#include <RkData/ReferenceSettings.h>

#include <QtTest>

namespace {

/// A block that the manager is to own.
CRkBlock* newBlock(const QString& id)
{
    auto block = std::make_unique<CRkBlock>();
    block->SetBlockID(id);
    return block.release();
}

} // namespace

class tst_CRkBlockManager : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void unknownBlockIsNull();
    void keepsBlocksById();
    void laterBlockReplaces();
    void sameBlockTwice();
    void nullIsIgnored();
    void clearBlocks();
};

void tst_CRkBlockManager::cleanup()
{
    ClearBlocks();
}

void tst_CRkBlockManager::unknownBlockIsNull()
{
    QCOMPARE(CRkBlockManager::instance().GetBlock("a"), nullptr);
    QCOMPARE(CRkBlockManager::instance().GetBlock(QString()), nullptr);
    QCOMPARE(&CRkBlockManager::instance(), &CRkBlockManager::instance());
}

void tst_CRkBlockManager::keepsBlocksById()
{
    CRkBlock* a = newBlock("a");
    CRkBlock* b = newBlock("b");
    CRkBlockManager::instance().AddBlock(a);
    CRkBlockManager::instance().AddBlock(b);
    QCOMPARE(CRkBlockManager::instance().GetBlock("a"), a);
    QCOMPARE(CRkBlockManager::instance().GetBlock("b"), b);
    QCOMPARE(CRkBlockManager::instance().GetBlock("A"), nullptr);
}

void tst_CRkBlockManager::laterBlockReplaces()
{
    CRkBlock* other = newBlock("b");
    CRkBlock* later = newBlock("a");
    CRkBlockManager::instance().AddBlock(newBlock("a"));
    CRkBlockManager::instance().AddBlock(other);
    CRkBlockManager::instance().AddBlock(later);
    QCOMPARE(CRkBlockManager::instance().GetBlock("a"), later);
    QCOMPARE(CRkBlockManager::instance().GetBlock("b"), other);
}

void tst_CRkBlockManager::sameBlockTwice()
{
    CRkBlock* block = newBlock("a");
    CRkBlockManager::instance().AddBlock(block);
    CRkBlockManager::instance().AddBlock(block);
    QCOMPARE(CRkBlockManager::instance().GetBlock("a"), block);
    QCOMPARE(block->GetBlockID(), QString("a"));
}

void tst_CRkBlockManager::nullIsIgnored()
{
    CRkBlockManager::instance().AddBlock(nullptr);
    QCOMPARE(CRkBlockManager::instance().GetBlock(QString()), nullptr);
}

void tst_CRkBlockManager::clearBlocks()
{
    CRkBlockManager::instance().AddBlock(newBlock("a"));
    ClearBlocks();
    QCOMPARE(CRkBlockManager::instance().GetBlock("a"), nullptr);
}

QTEST_GUILESS_MAIN(tst_CRkBlockManager)
#include "tst_CRkBlockManager.moc"
