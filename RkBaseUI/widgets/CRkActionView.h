// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>
#include <RkBaseUI/ToolTypes.h>

#include <QWidget>

#include <memory>

class QListWidgetItem;

namespace Ui {
class CRkActionView;
}

/// List of tools, each with picture and text, of which the user picks one. `CRkMenuButton` shows it
/// as its drop-down list.
///
///     CRkActionView view(nullptr);
///     view.AddItem(tr("Line"), ":/host/tool2_line_nor.png", lineTool);
///     connect(&view, &CRkActionView::ActionClicked, this, &Page::useTool);
///
/// The window has no frame. A pick hides it. From the keyboard, the arrow keys, Home and End select
/// and Enter picks.
class RKBASEUI_EXPORT CRkActionView : public QWidget
{
    Q_OBJECT

public:
    explicit CRkActionView(QWidget* parent = nullptr);
    ~CRkActionView() override;

    /// Appends a tool. `iconPath` is the picture in its normal state; its name ends with "nor.png".
    /// An item whose picture is missing shows its text alone.
    void AddItem(const QString& text, const QString& iconPath, EToolType toolType);

    int GetItemCount() const;

    /// Picks the first tool of the type as if the user had clicked it. Without such a tool nothing
    /// is selected and nothing emitted.
    void SetItemClicked(EToolType toolType);

    void UnSelectAll();

Q_SIGNALS:
    /// A tool was picked. `iconPrefix` is what the pictures of a button for the tool have in
    /// common: the path of the item's picture with "tool2" replaced by "tool" and without its last
    /// seven characters; empty when the path has no more than these.
    void ActionClicked(int toolType, const QString& iconPrefix);

public Q_SLOTS:
    /// Emits `ActionClicked` for the item and hides the window. Null is ignored.
    void slotItemClicked(QListWidgetItem* item);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    const std::unique_ptr<Ui::CRkActionView> m_ui;
};
