// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QPointer>
#include <QWidget>

#include <memory>

class QDate;
class QLineEdit;

namespace Ui {
class CRkDateSelectWidget;
}

/// The page on which a date condition is picked: one day, a range up to today, or a range of two
/// days from the calendar. Each pick is one text.
///
///     auto* page = new CRkDateSelectWidget(nullptr);
///     page->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
///     connect(page, &CRkDateSelectWidget::signalDateSelected, label, &QLabel::setText);
///
/// The text is the translation of "Date" for no condition, a day in `DateFormat`, or the
/// translation of "%1 to %2" with two of them. The page stays open after a pick and keeps what the
/// two fields show. Nobody checks that a range starts before it ends. The calendar names months and
/// days in the language of the widget's locale.
class RKBASEUI_EXPORT CRkDateSelectWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CRkDateSelectWidget(QWidget* parent = nullptr);
    ~CRkDateSelectWidget() override;

    /// The field that takes the next click on the calendar, and shows so by its frame: one of the
    /// two, or null for none, as whenever the page hides. Not owned.
    void SetActiveCalendarEdit(QLineEdit* edit);

    /// Makes a field active that is pressed, and ends that when the page hides.
    bool eventFilter(QObject* object, QEvent* event) override;

public Q_SLOTS:
    void slotButtonAllClicked();
    void slotButtonTodayClicked();
    void slotButtonYesterdayClicked();
    /// The last 7 days and today; those below 14, 21 and 30 days.
    void slotButtonLastWeekClicked();
    void slotButtonLastTwoWeekClicked();
    void slotButtonLastThreeWeekClicked();
    void slotButtonLastMonthClicked();
    /// Picks the range of the two fields; nothing while one is empty.
    void slotButtonDateRangeOkClicked();
    /// Writes the date into the active field, if there is one.
    void slotCalenderClicked(const QDate& date);

Q_SIGNALS:
    void signalDateSelected(const QString& date);
    /// The page was closed, which is not the same as hidden.
    void signalWidgetClosed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void _connectButtons();
    void _setUpEdits();
    void _setUpCalendar();
    void _selectRange(const QString& first, const QString& last);
    void _selectLastDays(int days);

    const std::unique_ptr<Ui::CRkDateSelectWidget> m_ui;
    QPointer<QLineEdit> m_activeEdit; ///< Not owned.
};
