// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QPushButton>

class QStyleOptionButton;
class QStylePainter;

/// Flat push button with blue text. It is painted as hovered whenever the mouse lies over it, also
/// where no hover event came, as after a popup or a scrolling view moved away from under the mouse.
///
///     auto* button = new RkHoveredPushButton(tr("All"), this);
///     button->setStyleSheet("RkHoveredPushButton:hover{background-color:rgb(232,237,246);}");
class RKBASEUI_EXPORT RkHoveredPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit RkHoveredPushButton(QWidget* parent = nullptr);
    explicit RkHoveredPushButton(const QString& text, QWidget* parent = nullptr);

protected:
    /// With another style sheet than that of the class; none when empty.
    RkHoveredPushButton(const QString& text, const QString& styleSheet, QWidget* parent);

    void paintEvent(QPaintEvent* event) override;

    /// Draws the button in the state that the option says.
    virtual void drawButton(QStylePainter& painter, QStyleOptionButton& option);
};
