// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QWidget>

/// Window without a frame that is dragged anywhere on its surface; the base of tool windows and
/// popups. It is a window with a parent too, unlike `CRkBaseDialog`, and has no meta-object of its
/// own.
///
///     auto* window = new CRkBaseWidget(nullptr);
///     window->EnableMove(false);
///     window->show();
class RKBASEUI_EXPORT CRkBaseWidget : public QWidget
{
public:
    explicit CRkBaseWidget(QWidget* parent = nullptr);

    /// Whether the mouse moves the window, as it does at first. Switching it off stops a drag at
    /// once.
    void EnableMove(bool enabled);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QPoint m_dragOffset;
    bool m_dragging = false;
    bool m_moveEnabled = true;
};
