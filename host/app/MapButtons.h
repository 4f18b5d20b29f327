// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QVector>
#include <QWidget>

class QToolButton;

/// The column of buttons on a map.
class MapButtons : public QWidget
{
    Q_OBJECT

public:
    explicit MapButtons(QWidget* parent = nullptr);

    void setBlockEnabled(bool isEnabled);
    void setProjectEnabled(bool isEnabled);
    /// Whether an outline is being drawn.
    void setOutlineChecked(bool isChecked);

Q_SIGNALS:
    void zoomInClicked();
    void zoomOutClicked();
    void blockClicked();
    void projectClicked();
    void countryClicked();
    void locateClicked();
    void outlineClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    QVector<QToolButton*> m_buttons; ///< In the order of the signals.
};
