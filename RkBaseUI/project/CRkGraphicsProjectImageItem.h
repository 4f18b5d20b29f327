// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QGraphicsPixmapItem>
#include <QObject>
#include <QString>

class CRkGraphicsProjectRectItem;

/// The thumbnail of a project tile. It never shows a selection frame; the tile shows the selection.
///
///     auto* thumbnail = new CRkGraphicsProjectImageItem(tile);
///     thumbnail->setPixmap(pixmap);
///     tile->SetImageItem(thumbnail);
class RKBASEUI_EXPORT CRkGraphicsProjectImageItem : public QObject, public QGraphicsPixmapItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit CRkGraphicsProjectImageItem(QGraphicsItem* parent = nullptr);

    /// A name for the picture; empty until set.
    QString GetName() const { return m_name; }
    void SetName(const QString& name) { m_name = name; }

    /// The tile that the picture was given to; null until set. Not owned.
    CRkGraphicsProjectRectItem* GetProjectItem() const { return m_projectItem; }
    void SetProjectItem(CRkGraphicsProjectRectItem* item) { m_projectItem = item; }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QString m_name;
    CRkGraphicsProjectRectItem* m_projectItem = nullptr;
};
