// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkCityDateFilterWidget.h>
#include <RkBaseUI/CRkDateSelectWidget.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QDate>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using GalleryParts::Window;

/// Fills in a range of days as the user does it.
void fill(CRkDateSelectWidget& page)
{
    page.SetActiveCalendarEdit(page.findChild<QLineEdit*>(QStringLiteral("lineEditDateFrom")));
    page.slotCalenderClicked(QDate(2026, 6, 1));
    page.SetActiveCalendarEdit(page.findChild<QLineEdit*>(QStringLiteral("lineEditDateTo")));
    page.slotCalenderClicked(QDate(2026, 6, 15));
    page.SetActiveCalendarEdit(nullptr);
    page.findChild<QCalendarWidget*>()->setSelectedDate(QDate(2026, 6, 15));
}

Window datePicker()
{
    auto page = std::make_unique<CRkDateSelectWidget>();
    fill(*page);
    return page;
}

void activate(QWidget& page, const char* edit, QDate date)
{
    static_cast<CRkDateSelectWidget&>(page).SetActiveCalendarEdit(
        page.findChild<QLineEdit*>(QLatin1String(edit)));
    page.findChild<QCalendarWidget*>()->setSelectedDate(date);
}

void activateFrom(QWidget& page)
{
    activate(page, "lineEditDateFrom", QDate(2026, 6, 1));
}

void activateTo(QWidget& page)
{
    activate(page, "lineEditDateTo", QDate(2026, 6, 15));
}

void hoverToday(QWidget& page)
{
    GalleryParts::hover(page, "pushButtonToday");
}

/// The bar on the ground of a title bar.
Window filterBar()
{
    auto strip = std::make_unique<QWidget>();
    strip->setObjectName(QStringLiteral("strip"));
    strip->setStyleSheet(QStringLiteral("#strip { background-color: rgb(4,21,46); }"));
    strip->setGeometry(200, 60, 720, 43);
    auto* layout = new QVBoxLayout(strip.get());
    layout->setContentsMargins(0, 5, 0, 5);
    layout->addWidget(new CRkCityDateFilterWidget(strip.get()));
    return strip;
}

/// Clicks on the button and gives the popup that opens.
QWidget& openPopup(QWidget& strip, const char* button)
{
    strip.findChild<QPushButton*>(QLatin1String(button))->click();
    return *QApplication::activePopupWidget();
}

void openCity(QWidget& strip)
{
    openPopup(strip, "m_pBtnCitySelect");
}

void openDate(QWidget& strip)
{
    fill(static_cast<CRkDateSelectWidget&>(openPopup(strip, "m_pBtnDateSelect")));
}

void choose(QWidget& strip)
{
    strip.findChild<CRkCityDateFilterWidget*>()->slotCitySelected(
        GalleryParts::Texts::tr("Chengdu"));
    auto& dates = static_cast<CRkDateSelectWidget&>(openPopup(strip, "m_pBtnDateSelect"));
    fill(dates);
    dates.slotButtonDateRangeOkClicked();
    GalleryParts::hover(strip, "m_pBtnDateSelect");
}

/// The bar and the popup where it hangs.
QImage withPopup(QWidget& strip)
{
    QWidget* popup = QApplication::activePopupWidget();
    QApplication::processEvents();
    const QRect area = strip.geometry().united(popup->geometry());
    const qreal scale = strip.devicePixelRatioF();
    QImage image(area.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(QColor(240, 240, 240));
    QPainter painter(&image);
    for (QWidget* window : {&strip, popup})
        painter.drawPixmap(window->pos() - area.topLeft(), window->grab());
    return image;
}

} // namespace

QVector<Gallery::Entry> galleryDates()
{
    return {
        {QStringLiteral("date-picker"), datePicker, {}},
        {QStringLiteral("date-picker-from"), datePicker, activateFrom},
        {QStringLiteral("date-picker-to"), datePicker, activateTo},
        {QStringLiteral("date-picker-hover"), datePicker, hoverToday},
        {QStringLiteral("filter-bar"), filterBar, {}},
        {QStringLiteral("filter-bar-chosen"), filterBar, choose},
        {QStringLiteral("filter-bar-city"), filterBar, openCity, withPopup},
        {QStringLiteral("filter-bar-date"), filterBar, openDate, withPopup},
    };
}
