// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseWidget.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QString>
#include <QVector>

#include <memory>

class RkCitySelectByCity;
class RkCitySelectByProvince;

namespace Ui {
class CRkCitySelectWidget;
}

/// The popup in which the user picks a city or province of RkCityCategory: from the frequent
/// cities, by province, by index letter or by keyword. It is made once and shown as often as
/// needed, keeps the pick in between, and can put it into the settings as the default city.
///
///     auto* picker = new CRkCitySelectWidget(nullptr);
///     picker->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
///     connect(picker, &CRkCitySelectWidget::signalCitySelected, this, &Bar::setCity);
class RKBASEUI_EXPORT CRkCitySelectWidget : public CRkBaseWidget
{
    Q_OBJECT

public:
    explicit CRkCitySelectWidget(QWidget* parent = nullptr);
    ~CRkCitySelectWidget() override;

    /// Shows the provinces, with the focus on the keyword; to be called before each showing.
    void InitWidget();

    /// The current pick: at first the default city of the settings as it stands there, known to the
    /// catalogue or not; the translated "All" where there is none.
    QString getDefaultSelection() const;

public Q_SLOTS:
    /// Show the provinces, or the cities by index letter, and say so in the empty search field.
    void slotButtonGroupCityByProvinceClicked();
    void slotButtonGroupCityByLetterClicked();

    /// Appends the places with the keyword in their names to the results of the earlier searches
    /// and shows them all. Nothing when the keyword is blank. The rules for keywords are those of
    /// RkCityCategory::searchByKeyword.
    void slotButtonSearchCityClicked();

    /// Scroll to the first page of the letter on the button that was clicked, as far as the list
    /// goes.
    void slotButtonByProvinceLetterClicked();
    void slotButtonByCityLetterClicked();

    /// Emits the text of the frequent city or search result that was clicked.
    void slotListedCityClicked();
    /// Makes the place the current pick; emits nothing.
    void slotCitySelected(const QString& city);
    /// Writes the current pick into the settings, for the widgets made from then on.
    void slotButtonSetDefaultCityClicked();

Q_SIGNALS:
    /// The user picked a place, or the translated "All". It is the current pick already.
    void signalCitySelected(const QString& city);
    /// The window was closed, also by a click beside the popup; not when it is only hidden.
    void signalWidgetClosed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void _addLetters();
    void _addProvincePages();
    void _addCityPages();
    void _addFrequentCities();
    void _connectButtons();
    void _setTabOrder();

    const std::unique_ptr<Ui::CRkCitySelectWidget> m_ui;
    /// In the order of the catalogue's province names.
    QVector<RkCitySelectByProvince*> m_provincePages;
    /// In the order of all letters of the catalogue.
    QVector<RkCitySelectByCity*> m_cityPages;
};
