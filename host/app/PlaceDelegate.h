// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

/// Draws a place in a list: its name and, below it, its coordinates.
class PlaceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int CoordinatesRole = Qt::UserRole;
    static constexpr int rowHeight = 46;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
