// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QWidget>

#include <memory>

namespace Ui {
class RkCitySelectByCity;
}

/// A page of the city picker: an index letter and, in lines as long as the page, a button for each
/// of its cities.
///
///     auto* page = new RkCitySelectByCity(list);
///     page->SetLetter("C");
///     page->SetCities(RkCityCategory::instance().letterToCities().value("C"));
class RKBASEUI_EXPORT RkCitySelectByCity : public QWidget
{
    Q_OBJECT

public:
    explicit RkCitySelectByCity(QWidget* parent = nullptr);
    ~RkCitySelectByCity() override;

    void SetLetter(const QString& letter);
    /// Appends a button for each city, in their order.
    void SetCities(const QStringList& cities);

public Q_SLOTS:
    /// Emits the text of the button that was clicked.
    void slotCityButtonClicked();

Q_SIGNALS:
    /// The user picked a city of the page.
    void signalCitySelected(const QString& city);

private:
    const std::unique_ptr<Ui::RkCitySelectByCity> m_ui;
};
