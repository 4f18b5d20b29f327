// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/HostIcons.h"

#include <QWidget>

class QToolButton;

/// The column of buttons on a view of the terrain: the tool that works with it, and the zoom.
class ViewButtons : public QWidget
{
    Q_OBJECT

public:
    explicit ViewButtons(HostIcons::Shape tool, QWidget* parent = nullptr);

    /// The name and the tip of the tool.
    void setToolText(const QString& text, const QString& tip);

Q_SIGNALS:
    void toolClicked();
    void zoomInClicked();
    void zoomOutClicked();
    void wholeClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolButton* makeButton(HostIcons::Shape shape, void (ViewButtons::*clicked)());
    void retranslate();

    QToolButton* const m_tool;
    QToolButton* const m_zoomIn;
    QToolButton* const m_zoomOut;
    QToolButton* const m_whole;
};
