// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/FlowLayout.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace {

/// Neither a widget nor a line can be larger. Spacers and spacings can, so that their sums need
/// more than an int.
constexpr int farthest = QWIDGETSIZE_MAX;

/// What a spacing of -1 stands for in this layout, in pixels.
int spacingOfSurroundings(const QLayout& layout, QStyle::PixelMetric metric,
                          Qt::Orientation orientation)
{
    const QWidget* widget = layout.parentWidget();
    const QStyle* style = widget ? widget->style() : QApplication::style();

    int spacing = -1;
    // The base class knows nothing of the two spacings of a flow layout.
    if (const auto* flow = qobject_cast<const FlowLayout*>(layout.parent())) {
        spacing =
            orientation == Qt::Horizontal ? flow->horizontalSpacing() : flow->verticalSpacing();
    } else if (const auto* outer = qobject_cast<const QLayout*>(layout.parent())) {
        spacing = outer->spacing();
    } else if (widget) {
        spacing = style->pixelMetric(metric, nullptr, widget);
    }
    if (spacing < 0) {
        spacing = style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton,
                                       orientation, nullptr, widget);
    }
    return qMax(0, spacing);
}

/// Whether the item is a hidden widget or a layout of nothing else. A spacer counts as empty too,
/// though it is there for its room.
bool isHidden(QLayoutItem& item)
{
    return item.isEmpty() && !item.spacerItem();
}

} // namespace

FlowLayout::FlowLayout(QWidget* parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent)
    , m_hSpacing(hSpacing)
    , m_vSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing)
    : FlowLayout(nullptr, margin, hSpacing, vSpacing)
{
}

FlowLayout::~FlowLayout()
{
    // A nested layout that goes asks this one to forget it, so each is taken out first.
    while (!m_items.empty()) {
        const std::unique_ptr<QLayoutItem> last = std::move(m_items.back());
        m_items.pop_back();
    }
}

int FlowLayout::horizontalSpacing() const
{
    return m_hSpacing >= 0
        ? m_hSpacing
        : spacingOfSurroundings(*this, QStyle::PM_LayoutHorizontalSpacing, Qt::Horizontal);
}

int FlowLayout::verticalSpacing() const
{
    return m_vSpacing >= 0
        ? m_vSpacing
        : spacingOfSurroundings(*this, QStyle::PM_LayoutVerticalSpacing, Qt::Vertical);
}

void FlowLayout::addItem(QLayoutItem* item)
{
    if (!item)
        return;
    if (QLayout* nested = item->layout(); nested && !adoptLayout(nested))
        return;
    m_items.emplace_back(item);
    invalidate();
}

int FlowLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[std::size_t(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    const auto position = m_items.begin() + index;
    QLayoutItem* item = position->release();
    m_items.erase(position);
    if (QLayout* nested = item->layout(); nested && nested->parent() == this)
        nested->setParent(nullptr);
    invalidate();
    return item;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), Placing::measureOnly);
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto& item : m_items) {
        if (!isHidden(*item))
            size = size.expandedTo(item->minimumSize().boundedTo({farthest, farthest}));
    }
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, Placing::placeItems);
}

int FlowLayout::arrange(const QRect& rect, Placing placing) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    const int hSpacing = horizontalSpacing();
    const int vSpacing = verticalSpacing();
    const QWidget* widget = parentWidget();
    const bool isMirrored = widget ? widget->isRightToLeft() : QApplication::isRightToLeft();
    // Spares most items the question whether they are hidden, which takes a good part of a pass:
    // of the hidden ones only a layout has a size, that of its margins.
    const bool hasLayouts = !children().isEmpty();

    const qint64 edge = qint64(area.left()) + area.width();
    qint64 x = area.left();
    qint64 y = area.top();
    int lineHeight = 0;
    bool lineIsEmpty = true;
    for (const auto& item : m_items) {
        const QSize size = item->sizeHint().boundedTo({farthest, farthest});
        if ((size.isNull() || hasLayouts) && isHidden(*item))
            continue;
        if (!lineIsEmpty && x + size.width() > edge) {
            x = area.left();
            y += qint64(lineHeight) + vSpacing;
            lineHeight = 0;
        }
        if (placing == Placing::placeItems) {
            const QRect place({int(x), int(qMin<qint64>(y, farthest))}, size);
            item->setGeometry(isMirrored ? QStyle::visualRect(Qt::RightToLeft, area, place)
                                         : place);
        }
        x += qint64(size.width()) + hSpacing;
        lineHeight = qMax(lineHeight, size.height());
        lineIsEmpty = false;
    }
    return int(qMin<qint64>(y + lineHeight - rect.top() + margins.bottom(), farthest));
}
