// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QLayout>

#include <memory>
#include <vector>

/// Layout that sets its items side by side and begins a new line where the next one would pass the
/// right edge, as words in a text.
///
///     auto* flow = new FlowLayout(page);
///     for (const QString& city : cities)
///         flow->addWidget(new QPushButton(city));
///
/// Every item has the size of its size hint, even where that is wider than the layout. Hidden
/// widgets take no room. In a right-to-left widget the lines run from the right.
class RKBASEUI_EXPORT FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// The layout of the parent. Margin (on all sides) and spacings are in pixels; -1 takes them
    /// from the style.
    explicit FlowLayout(QWidget* parent, int margin = -1, int hSpacing = -1, int vSpacing = -1);
    /// A layout that is still to be given to a widget or another layout.
    explicit FlowLayout(int margin = -1, int hSpacing = -1, int vSpacing = -1);
    ~FlowLayout() override;

    /// Pixels between two items of a line and between two lines. A spacing of -1 is the style's
    /// layout spacing in the layout of a widget, the spacing of the outer layout in a nested one,
    /// and where these say nothing, the style's distance between two push buttons.
    int horizontalSpacing() const;
    int verticalSpacing() const;

    /// Appends the item, which the layout owns from now on. Null is ignored, and so is a layout
    /// that already has a place: it stays with its owner.
    void addItem(QLayoutItem* item) override;

    int count() const override;
    /// Null where there is no such item.
    QLayoutItem* itemAt(int index) const override;
    /// Takes the item out and hands it to the caller. Null where there is no such item.
    QLayoutItem* takeAt(int index) override;

    /// None: room that is left over stays empty.
    Qt::Orientations expandingDirections() const override;

    bool hasHeightForWidth() const override;
    /// The height in pixels, margins included, that all lines need in a layout of that width.
    int heightForWidth(int width) const override;

    /// Room for the largest item, margins included.
    QSize minimumSize() const override;
    /// The minimum size.
    QSize sizeHint() const override;

    void setGeometry(const QRect& rect) override;

private:
    enum class Placing { measureOnly, placeItems };

    /// Runs through the lines in `rect`, margins included, and gives the height they need.
    int arrange(const QRect& rect, Placing placing) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    const int m_hSpacing;
    const int m_vSpacing;
};
