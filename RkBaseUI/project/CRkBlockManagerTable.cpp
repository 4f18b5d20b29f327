// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkBlockManagerTable.h"

#include "project/BlockOrder.h"
#include "ui_CRkBlockManagerTable.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QScrollBar>

#include <optional>
#include <vector>

namespace {

enum Column { NameColumn, PlaneColumn, CameraColumn, TaskCountColumn, FlightCountColumn, Columns };

std::vector<BlockOrder::Row> orderedTexts(const QList<QTreeWidgetItem*>& items, int column)
{
    std::vector<BlockOrder::Row> rows;
    rows.reserve(std::size_t(items.size()));
    for (const QTreeWidgetItem* item : items)
        rows.push_back({item->text(NameColumn), item->text(column)});
    return rows;
}

} // namespace

CRkBlockManagerTable::CRkBlockManagerTable(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CRkBlockManagerTable>())
{
    m_ui->setupUi(this);

    for (QPushButton* button :
         {m_ui->pushButtonBlockName, m_ui->pushButtonAirplaneType, m_ui->pushButtonCameraType,
          m_ui->pushButtonTaskCount, m_ui->pushButtonFlightCount})
        connect(button, &QPushButton::clicked, this, &CRkBlockManagerTable::slotHeaderClicked);
    connect(m_ui->treeWidgetBlocks, &QTreeWidget::itemDoubleClicked, this,
            &CRkBlockManagerTable::slotItemDoubleClicked);
    // Beside a vertical scroll bar there is less room than the columns take; scrolled aside they
    // would not stand below their header buttons.
    QScrollBar* sideways = m_ui->treeWidgetBlocks->horizontalScrollBar();
    connect(sideways, &QScrollBar::valueChanged, this, [sideways] { sideways->setValue(0); });
}

CRkBlockManagerTable::~CRkBlockManagerTable() = default;

void CRkBlockManagerTable::Clear()
{
    m_ui->treeWidgetBlocks->clear();
    m_ui->treeWidgetBlocks->scrollToTop();
    m_disabledItems.clear();
    m_idOfItem.clear();
}

void CRkBlockManagerTable::AddItem(const QString& id, const QString& name, EPlaneType planeType,
                                   ECameraType cameraType, int taskCount, int flightCount)
{
    AddItems({{id, name, planeType, cameraType, taskCount, flightCount}});
}

void CRkBlockManagerTable::AddItems(const QVector<Block>& blocks)
{
    QList<QTreeWidgetItem*> items;
    items.reserve(blocks.size());
    for (const Block& block : blocks) {
        items.append(new QTreeWidgetItem(_textsOf(block)));
        m_idOfItem.insert(items.last(), block.id);
    }
    m_ui->treeWidgetBlocks->addTopLevelItems(items);
}

void CRkBlockManagerTable::FinishLoad()
{
    const QList<QTreeWidgetItem*> items =
        m_ui->treeWidgetBlocks->invisibleRootItem()->takeChildren();
    for (QTreeWidgetItem* item : items) {
        for (int column = 0; column < Columns; ++column)
            item->setTextAlignment(column, Qt::AlignCenter);
    }
    const BlockOrder::LoadedOrder loaded =
        BlockOrder::afterLoad(orderedTexts(items, PlaneColumn), _notAvailable());
    m_disabledItems.clear();
    for (auto row = loaded.order.end() - loaded.disabledCount; row != loaded.order.end(); ++row) {
        items[*row]->setDisabled(true);
        m_disabledItems.append(items[*row]);
    }
    _setRows(items, loaded.order);
}

void CRkBlockManagerTable::slotItemDoubleClicked(QTreeWidgetItem* item, int /*column*/)
{
    if (item && !item->isDisabled())
        emit signalBlockOpened(m_idOfItem.value(item));
}

void CRkBlockManagerTable::slotHeaderClicked()
{
    if (sender() == m_ui->pushButtonAirplaneType)
        _sortByType(PlaneColumn);
    else if (sender() == m_ui->pushButtonCameraType)
        _sortByType(CameraColumn);
}

void CRkBlockManagerTable::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int columnWidth = width() / Columns;
    for (QPushButton* button : {m_ui->pushButtonBlockName, m_ui->pushButtonAirplaneType,
                                m_ui->pushButtonCameraType, m_ui->pushButtonTaskCount})
        button->setFixedWidth(columnWidth);
    m_ui->pushButtonFlightCount->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (int column = 0; column < Columns; ++column)
        m_ui->treeWidgetBlocks->setColumnWidth(column, columnWidth);
}

/// What a block without tasks shows, and is known by.
QString CRkBlockManagerTable::_notAvailable()
{
    return tr("N/A");
}

QStringList CRkBlockManagerTable::_textsOf(const Block& block)
{
    if (block.taskCount < 1)
        return {block.name, _notAvailable(), _notAvailable(), _notAvailable(), _notAvailable()};
    return {block.name, GetPlaneStringByType(block.planeType),
            GetCameraStringByType(block.cameraType), QString::number(block.taskCount),
            QString::number(block.flightCount)};
}

/// Puts the blocks of the selected one's type first. The selection stays.
void CRkBlockManagerTable::_sortByType(int column)
{
    QTreeWidget* tree = m_ui->treeWidgetBlocks;
    const QList<QTreeWidgetItem*> selected = tree->selectedItems();
    QTreeWidgetItem* const current = tree->currentItem();
    std::optional<QString> type;
    if (!selected.isEmpty())
        type = selected.first()->text(column);

    const QList<QTreeWidgetItem*> items = tree->invisibleRootItem()->takeChildren();
    const QList<QTreeWidgetItem*> sortable = items.mid(0, items.size() - m_disabledItems.size());
    _setRows(sortable, BlockOrder::byType(orderedTexts(sortable, column), type));
    tree->addTopLevelItems(items.mid(sortable.size()));

    tree->setCurrentItem(current, 0, QItemSelectionModel::NoUpdate);
    for (QTreeWidgetItem* item : selected)
        item->setSelected(true);
}

void CRkBlockManagerTable::_setRows(const QList<QTreeWidgetItem*>& rows,
                                    const std::vector<int>& order)
{
    QList<QTreeWidgetItem*> ordered;
    ordered.reserve(rows.size());
    for (const int row : order)
        ordered.append(rows[row]);
    m_ui->treeWidgetBlocks->addTopLevelItems(ordered);
}
