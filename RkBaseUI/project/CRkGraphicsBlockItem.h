// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QGraphicsPixmapItem>
#include <QObject>
#include <QString>

/// A picture of one block (survey area) with the block's name over the middle of it.
///
///     auto* item = new CRkGraphicsBlockItem;
///     item->SetBlockID(id);
///     item->SetBlockName(name);
class RKBASEUI_EXPORT CRkGraphicsBlockItem : public QObject, public QGraphicsPixmapItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit CRkGraphicsBlockItem(QGraphicsItem* parent = nullptr);

    QString GetBlockID() const { return m_blockId; }
    void SetBlockID(const QString& id) { m_blockId = id; }

    QString GetBlockName() const { return m_blockName; }

    /// The item is painted anew.
    void SetBlockName(const QString& name);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QString m_blockId;
    QString m_blockName;
};
