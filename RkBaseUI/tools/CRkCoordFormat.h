// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

#include <QStringList>

#include <memory>

namespace Ui {
class CRkCoordFormat;
}

/// Dialog that asks for a latitude and a longitude and splits them into degrees, minutes and
/// seconds. <RkBaseUI/CoordinateFormat.h> has the computation.
///
///     CRkCoordFormat dialog(nullptr);
///     QStringList lat, lng;
///     if (dialog.exec() == 1)
///         dialog.ConvertToDMSCoord(lat, lng);
class RKBASEUI_EXPORT CRkCoordFormat : public CRkBaseDialog
{
    Q_OBJECT

public:
    /// Starts in the format of decimal degrees, with empty fields.
    explicit CRkCoordFormat(QWidget* parent = nullptr);
    ~CRkCoordFormat() override;

    /// Appends degrees, minutes and seconds of both coordinates as texts, see `rk::toTexts`; text
    /// that is no number counts as 0. Appends nothing while a field is empty. The numbers count as
    /// decimal degrees in both formats.
    void ConvertToDMSCoord(QStringList& lat, QStringList& lng) const;

private Q_SLOTS:
    /// Empties the fields and takes over the format of the button that sent `checked`.
    void slotFormatTypeChanged(bool checked);

protected Q_SLOTS:
    /// Accepts when the fields hold numbers from -90 to 90 and from -180 to 180; otherwise says
    /// what is wrong and stays open.
    void slotBtnAcceptClicked() override;

private:
    const std::unique_ptr<Ui::CRkCoordFormat> m_form;
    int m_formatType = 0; ///< 1 decimal degrees, 2 degrees, minutes and seconds.
};
