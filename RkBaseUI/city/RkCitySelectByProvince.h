// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QWidget>

#include <memory>

namespace Ui {
class RkCitySelectByProvince;
}

/// A page of the city picker: a province, which can be picked itself, with a button for each of its
/// cities.
///
///     auto* page = new RkCitySelectByProvince(list);
///     page->SetProvinceLetter("S");
///     page->SetProvinceName(province);
///     page->SetProvinceCities(RkCityCategory::instance().provinceToCities().value(province));
class RKBASEUI_EXPORT RkCitySelectByProvince : public QWidget
{
    Q_OBJECT

public:
    explicit RkCitySelectByProvince(QWidget* parent = nullptr);
    ~RkCitySelectByProvince() override;

    /// The letter in front of the province; a blank where an earlier page shows it already.
    void SetProvinceLetter(const QString& letter);
    void SetProvinceName(const QString& province);
    /// Appends a button for each city, in their order.
    void SetProvinceCities(const QStringList& cities);

public Q_SLOTS:
    /// Emits the text of the button that was clicked, that of the province included.
    void slotCityButtonClicked();

Q_SIGNALS:
    /// The user picked the province or one of its cities.
    void signalCitySelected(const QString& place);

private:
    const std::unique_ptr<Ui::RkCitySelectByProvince> m_ui;
};
