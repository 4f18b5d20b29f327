// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QBasicTimer>
#include <QWidget>

/// A small ring that turns as long as it is shown: something is being waited for.
class BusyRing : public QWidget
{
    Q_OBJECT

public:
    explicit BusyRing(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QBasicTimer m_timer;
    int m_degrees = 90; ///< Where the bright part begins, counter-clockwise from the right.
};
