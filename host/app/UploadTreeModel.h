// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QAbstractItemModel>
#include <QJsonObject>

#include <memory>

/// The document of a project as a tree of readable names and values. What lies below an entry is
/// made when a view opens the entry, so that the largest project is shown at once.
///
///     tree->setModel(new UploadTreeModel(document, tree));
///     tree->expand(tree->model()->index(0, 0));
class UploadTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn };

    explicit UploadTreeModel(const QJsonObject& document, QObject* parent = nullptr);
    ~UploadTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Node;
    Node& nodeOf(const QModelIndex& index) const;

    const std::unique_ptr<Node> m_root; ///< The document; none of the rows.
};
