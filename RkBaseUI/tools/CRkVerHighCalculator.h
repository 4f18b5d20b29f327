// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

#include <memory>

namespace Ui {
class CRkVerHighCalculator;
}

/// Dialog that turns the slant height measured to the antenna of a GNSS base station into its
/// vertical height. A picture shows which length is which; <RkBaseUI/AntennaHeight.h> has the
/// computation.
///
///     CRkVerHighCalculator dialog(nullptr);
///     if (dialog.exec() == 1)
///         station.setAntennaHeight(dialog.GetVerticalHeight());
class RKBASEUI_EXPORT CRkVerHighCalculator : public CRkBaseDialog
{
    Q_OBJECT

public:
    /// The offsets are those of the usual antenna, P 0.0942 m and G 0.3 m; the slant height L is
    /// empty.
    explicit CRkVerHighCalculator(QWidget* parent = nullptr);
    ~CRkVerHighCalculator() override;

    /// The height of the antenna's phase centre above the mark, in metres, from what the fields
    /// hold; text that is no number counts as 0. -9999.0 when the slant height is shorter than the
    /// antenna's radius, and when a field is empty, which a message tells the user first.
    double GetVerticalHeight();

protected Q_SLOTS:
    /// Accepts when there is a height; otherwise says so and stays open.
    void slotBtnAcceptClicked() override;

private:
    const std::unique_ptr<Ui::CRkVerHighCalculator> m_form;
};
