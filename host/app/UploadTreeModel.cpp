// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/UploadTreeModel.h"

#include "app/UploadNames.h"

#include <QJsonArray>

#include <vector>

struct UploadTreeModel::Node
{
    Node(Node* above, int place, const QString& key, const QString& shownName,
         const QJsonValue& content)
        : parent(above)
        , row(place)
        , listKey(key)
        , name(shownName)
        , value(content)
    {
    }

    int sizeOfValue() const
    {
        return value.isArray() ? value.toArray().size() : value.toObject().size();
    }

    void add(const QString& key, const QString& childName, const QJsonValue& content)
    {
        children.push_back(
            std::make_unique<Node>(this, int(children.size()), key, childName, content));
    }

    void makeChildren()
    {
        if (value.isArray()) {
            const QJsonArray list = value.toArray();
            for (const QJsonValue& element : list)
                add({}, UploadNames::elementName(listKey, element, int(children.size()) + 1),
                    element);
            return;
        }
        const QJsonObject object = value.toObject();
        const QStringList keys = UploadNames::orderedKeys(object);
        for (const QString& key : keys)
            add(key, UploadNames::nameOf(key), object.value(key));
    }

    Node* parent;
    int row;
    QString listKey; ///< Of an entry of an object.
    QString name;
    QJsonValue value;
    std::vector<std::unique_ptr<Node>> children; ///< None, or all of them.
};

UploadTreeModel::UploadTreeModel(const QJsonObject& document, QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Node>(nullptr, 0, QString(), QString(), document))
{
    m_root->makeChildren();
}

UploadTreeModel::~UploadTreeModel() = default;

UploadTreeModel::Node& UploadTreeModel::nodeOf(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<Node*>(index.internalPointer()) : *m_root;
}

QModelIndex UploadTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeOf(parent).children[size_t(row)].get());
}

QModelIndex UploadTreeModel::parent(const QModelIndex& child) const
{
    Node* above = child.isValid() ? nodeOf(child).parent : nullptr;
    if (!above || above == m_root.get())
        return {};
    return createIndex(above->row, NameColumn, above);
}

int UploadTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > NameColumn ? 0 : int(nodeOf(parent).children.size());
}

int UploadTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 2;
}

bool UploadTreeModel::hasChildren(const QModelIndex& parent) const
{
    return parent.column() <= NameColumn && nodeOf(parent).sizeOfValue() > 0;
}

bool UploadTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return hasChildren(parent) && nodeOf(parent).children.empty();
}

void UploadTreeModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    beginInsertRows(parent, 0, nodeOf(parent).sizeOfValue() - 1);
    nodeOf(parent).makeChildren();
    endInsertRows();
}

QVariant UploadTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const Node& node = nodeOf(index);
    const QString text =
        index.column() == NameColumn ? node.name : UploadNames::valueText(node.value);
    // A tip with the look of markup would be taken for it.
    return role == Qt::ToolTipRole ? text.toHtmlEscaped().prepend(QStringLiteral("<qt>")) : text;
}

QVariant UploadTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == NameColumn ? tr("Entry") : tr("Value");
}
