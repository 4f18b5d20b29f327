// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/CRkDateSelectWidget.h"

#include "city/DateRanges.h"
#include "ui_CRkDateSelectWidget.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QCloseEvent>
#include <QLocale>
#include <QRegExpValidator>
#include <QTextCharFormat>

namespace {

const QString passiveStyle =
    QStringLiteral("border-width:0px; border-style:solid;\tborder-color:rgb(0,0,0);");
const QString activeStyle =
    QStringLiteral("border-width:1px; border-style:solid;\tborder-color:rgb(58,136,244);");

} // namespace

CRkDateSelectWidget::CRkDateSelectWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CRkDateSelectWidget>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    _connectButtons();
    installEventFilter(this);
    _setUpEdits();
    _setUpCalendar();
}

CRkDateSelectWidget::~CRkDateSelectWidget() = default;

void CRkDateSelectWidget::SetActiveCalendarEdit(QLineEdit* edit)
{
    m_activeEdit = edit;
    if (edit && edit != m_ui->lineEditDateFrom && edit != m_ui->lineEditDateTo)
        return;
    m_ui->lineEditDateFrom->setStyleSheet(passiveStyle);
    m_ui->lineEditDateTo->setStyleSheet(passiveStyle);
    if (edit)
        edit->setStyleSheet(activeStyle);
}

bool CRkDateSelectWidget::eventFilter(QObject* object, QEvent* event)
{
    if (object == this && event->type() == QEvent::Hide)
        SetActiveCalendarEdit(nullptr);

    if (event->type() == QEvent::MouseButtonPress) {
        for (QLineEdit* edit : {m_ui->lineEditDateFrom, m_ui->lineEditDateTo}) {
            if (object != edit)
                continue;
            SetActiveCalendarEdit(edit);
            if (!edit->text().isEmpty()) {
                m_ui->m_pCalendarWidget->setSelectedDate(
                    QDate::fromString(edit->text(), DateFormat));
            }
        }
    }
    return QWidget::eventFilter(object, event);
}

void CRkDateSelectWidget::slotButtonAllClicked()
{
    emit signalDateSelected(tr("Date"));
}

void CRkDateSelectWidget::slotButtonTodayClicked()
{
    emit signalDateSelected(DateRanges::daysAgo(QDateTime::currentDateTime(), 0));
}

void CRkDateSelectWidget::slotButtonYesterdayClicked()
{
    emit signalDateSelected(DateRanges::daysAgo(QDateTime::currentDateTime(), 1));
}

void CRkDateSelectWidget::slotButtonLastWeekClicked()
{
    _selectLastDays(7);
}

void CRkDateSelectWidget::slotButtonLastTwoWeekClicked()
{
    _selectLastDays(14);
}

void CRkDateSelectWidget::slotButtonLastThreeWeekClicked()
{
    _selectLastDays(21);
}

void CRkDateSelectWidget::slotButtonLastMonthClicked()
{
    _selectLastDays(30);
}

void CRkDateSelectWidget::slotButtonDateRangeOkClicked()
{
    const QString first = m_ui->lineEditDateFrom->text();
    const QString last = m_ui->lineEditDateTo->text();
    if (!first.isEmpty() && !last.isEmpty())
        _selectRange(first, last);
}

void CRkDateSelectWidget::slotCalenderClicked(const QDate& date)
{
    if (m_activeEdit)
        m_activeEdit->setText(QLocale::c().toString(date, DateFormat));
}

void CRkDateSelectWidget::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    emit signalWidgetClosed();
}

void CRkDateSelectWidget::_connectButtons()
{
    using Page = CRkDateSelectWidget;
    connect(m_ui->pushButtonAll, &QPushButton::clicked, this, &Page::slotButtonAllClicked);
    connect(m_ui->pushButtonToday, &QPushButton::clicked, this, &Page::slotButtonTodayClicked);
    connect(m_ui->pushButtonYesterday, &QPushButton::clicked, this,
            &Page::slotButtonYesterdayClicked);
    connect(m_ui->pushButtonLastWeek, &QPushButton::clicked, this,
            &Page::slotButtonLastWeekClicked);
    connect(m_ui->pushButtonLastTwoWeek, &QPushButton::clicked, this,
            &Page::slotButtonLastTwoWeekClicked);
    connect(m_ui->pushButtonLastThreeWeek, &QPushButton::clicked, this,
            &Page::slotButtonLastThreeWeekClicked);
    connect(m_ui->pushButtonLastMonth, &QPushButton::clicked, this,
            &Page::slotButtonLastMonthClicked);
    connect(m_ui->pushButtonDateRangeOk, &QPushButton::clicked, this,
            &Page::slotButtonDateRangeOkClicked);
}

void CRkDateSelectWidget::_setUpEdits()
{
    auto* validator =
        new QRegExpValidator(QRegExp(QStringLiteral("20\\d{2}-\\d{1,2}-\\d{1,2}")), this);
    for (QLineEdit* edit : {m_ui->lineEditDateFrom, m_ui->lineEditDateTo}) {
        edit->installEventFilter(this);
        edit->setValidator(validator);
        edit->setEnabled(false); // Filled from the calendar alone.
    }
}

void CRkDateSelectWidget::_setUpCalendar()
{
    QCalendarWidget* calendar = m_ui->m_pCalendarWidget;
    QTextCharFormat header;
    header.setForeground(QColor(110, 118, 130));
    header.setBackground(QColor(245, 247, 251));
    calendar->setHeaderTextFormat(header);
    QTextCharFormat weekend;
    weekend.setForeground(QColor(200, 62, 54));
    calendar->setWeekdayTextFormat(Qt::Saturday, weekend);
    calendar->setWeekdayTextFormat(Qt::Sunday, weekend);
    connect(calendar, &QCalendarWidget::clicked, this, &CRkDateSelectWidget::slotCalenderClicked);
}

void CRkDateSelectWidget::_selectRange(const QString& first, const QString& last)
{
    emit signalDateSelected(tr("%1 to %2").arg(first, last));
}

void CRkDateSelectWidget::_selectLastDays(int days)
{
    const DateRanges::Range range = DateRanges::lastDays(QDateTime::currentDateTime(), days);
    _selectRange(range.first, range.last);
}
