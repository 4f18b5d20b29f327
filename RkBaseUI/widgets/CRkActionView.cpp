// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkActionView.h"

#include "ui_CRkActionView.h"

#include <QKeyEvent>

namespace {

constexpr int toolTypeRole = Qt::UserRole;
constexpr int iconPathRole = Qt::UserRole + 1;

} // namespace

CRkActionView::CRkActionView(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CRkActionView>())
{
    setWindowFlags(Qt::FramelessWindowHint);
    m_ui->setupUi(this);
    connect(m_ui->m_pListWidget, &QListWidget::itemClicked, this, &CRkActionView::slotItemClicked);
}

CRkActionView::~CRkActionView() = default;

void CRkActionView::AddItem(const QString& text, const QString& iconPath, EToolType toolType)
{
    auto item = std::make_unique<QListWidgetItem>(QIcon(iconPath), text);
    const QSize size(60, 40);
    item->setSizeHint(size);
    item->setData(toolTypeRole, int(toolType));
    item->setData(iconPathRole, iconPath);
    m_ui->m_pListWidget->addItem(item.release());
    m_ui->m_pListWidget->setMinimumSize(size.width() + 60, size.height());
}

int CRkActionView::GetItemCount() const
{
    return m_ui->m_pListWidget->count();
}

void CRkActionView::SetItemClicked(EToolType toolType)
{
    UnSelectAll();
    for (int row = 0; row < GetItemCount(); ++row) {
        QListWidgetItem* item = m_ui->m_pListWidget->item(row);
        if (item->data(toolTypeRole).toInt() == int(toolType)) {
            item->setSelected(true);
            slotItemClicked(item);
            return;
        }
    }
}

void CRkActionView::UnSelectAll()
{
    m_ui->m_pListWidget->clearSelection();
}

void CRkActionView::slotItemClicked(QListWidgetItem* item)
{
    if (!item)
        return;
    const int toolType = item->data(toolTypeRole).toInt();
    QString prefix = item->data(iconPathRole).toString();
    prefix.replace(QLatin1String("tool2"), QLatin1String("tool"));
    prefix.chop(int(qstrlen("nor.png")));
    emit ActionClicked(toolType, prefix);
    hide();
}

// The list itself takes no focus, so its keys arrive here.
void CRkActionView::keyPressEvent(QKeyEvent* event)
{
    QListWidget* list = m_ui->m_pListWidget;
    const int last = list->count() - 1;
    const QList<QListWidgetItem*> selected = list->selectedItems();
    const int row = selected.isEmpty() ? -1 : list->row(selected.first());
    switch (event->key()) {
    case Qt::Key_Down:
        list->setCurrentRow(qMin(row + 1, last));
        break;
    case Qt::Key_Up:
        list->setCurrentRow(row < 0 ? last : qMax(row - 1, 0));
        break;
    case Qt::Key_Home:
        list->setCurrentRow(0);
        break;
    case Qt::Key_End:
        list->setCurrentRow(last);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        slotItemClicked(selected.value(0));
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
