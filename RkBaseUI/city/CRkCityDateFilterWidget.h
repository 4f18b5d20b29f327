// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QWidget>

#include <memory>

class CRkCitySelectWidget;
class CRkDateSelectWidget;
class QPushButton;

namespace Ui {
class CRkCityDateFilterWidget;
}

/// The part of a tool bar that holds the city and the date by which projects are filtered. Beside
/// each a button opens the popup in which another is picked. White text, for a dark ground.
///
///     auto* bar = new CRkCityDateFilterWidget(toolBar);
///     connect(bar, &CRkCityDateFilterWidget::DateConditionChanged, page, &Page::filter);
///     bar->LoadDefaultContiditions();
///
/// What the labels show is the condition, ready for
/// `CRkProjectManagerView::slotFilterConditionChanged`. The bar owns its popups; they close when
/// it hides.
class RKBASEUI_EXPORT CRkCityDateFilterWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CRkCityDateFilterWidget(QWidget* parent = nullptr);
    ~CRkCityDateFilterWidget() override;

    /// Takes the default city of the city popup, without a signal. The date stays.
    void LoadDefaultContiditions();

    /// A place, or the translation of "City" or "All", which are none.
    QString GetCurCity() const;

    /// What the date popup gave last, or the translation of "Date", which is no condition.
    QString GetCurDate() const;

public Q_SLOTS:
    /// Open the popup centred under its button when checked; nothing otherwise.
    void slotCityBtnToggled(bool checked);
    void slotDateBtnToggled(bool checked);
    /// Show the text as the condition, hide the popup and tell.
    void slotCitySelected(const QString& city);
    void slotDateSelected(const QString& date);
    /// Release the button of the popup. The condition stays.
    void slotCityWidgetClosed();
    void slotDateWidgetClosed();

Q_SIGNALS:
    /// The user picked a condition, perhaps the same again. GetCurCity() or GetCurDate() has it.
    void CityConditionChanged();
    void DateConditionChanged();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void _setUpPopup(QWidget& popup);
    void _moveBelow(QWidget& popup, const QPushButton& button) const;

    const std::unique_ptr<Ui::CRkCityDateFilterWidget> m_ui;
    const std::unique_ptr<CRkCitySelectWidget> m_cityPopup;
    const std::unique_ptr<CRkDateSelectWidget> m_datePopup;
};
