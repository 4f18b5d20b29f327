// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>
#include <RkBaseUI/ToolTypes.h>

#include <QPixmap>
#include <QPushButton>

#include <memory>

class CRkActionView;

/// Push button with a drop-down list of tools. A triangle in its lower right corner opens and
/// closes the list; the tool picked last is the one that the button shows.
///
///     auto* button = new CRkMenuButton(this);
///     button->setObjectName("m_pBtnDraw"); // the style sheet selects by it
///     button->AddAction(tr("Line"), ":/host/tool2_line_nor.png", lineTool);
///
/// Besides a left click on the corner, a right click anywhere on the button, the menu key and
/// Alt+Down open the list, which appears where the mouse is. Without tools this is a plain button.
class RKBASEUI_EXPORT CRkMenuButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CRkMenuButton(QWidget* parent = nullptr);
    ~CRkMenuButton() override;

    /// Appends a tool to the list; see `CRkActionView::AddItem`.
    void AddAction(const QString& text, const QString& iconPath, EToolType toolType);

    /// Picks the first tool of the type as if the user had clicked it; nothing when there is none.
    void SetBtnState(EToolType toolType);

Q_SIGNALS:
    /// The user asks for the list, or for its end.
    void TrangleClicked();

public Q_SLOTS:
    /// Shows the list at the mouse with nothing selected; hides it when it is shown. Nothing
    /// happens without tools.
    void slotShowPopMenu();

    /// Gives the button the tool's pictures, whose names are the prefix followed by "nor.png",
    /// "hov.png" and "pre.png", sets the property "ToolType", checks the button where it is
    /// checkable, and emits `toggled(true)` in any case.
    void slotActionClicked(int toolType, const QString& iconPrefix);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool hasActions() const;
    bool isInCorner(QPoint at) const;

    QPixmap m_triangle;
    const std::unique_ptr<CRkActionView> m_actionView;
};
