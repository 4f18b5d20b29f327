// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkCitySelectWidget.h>

#include <QCursor>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

namespace {

using GalleryParts::hover;
using GalleryParts::Window;

/// In the height in which a filter bar shows it.
Window cityPicker()
{
    // The places ask for the mouse themselves, which a picture must not show.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    auto picker = std::make_unique<CRkCitySelectWidget>();
    picker->setFixedHeight(600);
    picker->InitWidget();
    return picker;
}

void click(const QWidget& window, const char* button)
{
    window.findChild<QPushButton*>(QLatin1String(button))->click();
}

/// Clicks the button with that text.
void click(const QWidget& window, const char* parent, const QString& text)
{
    const auto buttons =
        window.findChild<QWidget*>(QLatin1String(parent))->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->text() == text)
            button->click();
    }
}

void showCities(QWidget& window)
{
    click(window, "pushButtonGroupCityByLetter");
}

void showKeywords(QWidget& window)
{
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(2);
}

void search(const QWidget& window, const QString& keyword)
{
    window.findChild<QLineEdit*>(QStringLiteral("lineEditSearchCity"))->setText(keyword);
    click(window, "pushButtonSearchCity");
}

void searchTwice(QWidget& window)
{
    search(window, QStringLiteral("jiang"));
    search(window, QStringLiteral("zhou"));
}

void jumpToProvinces(QWidget& window)
{
    click(window, "widgetByProvinceLetters", QStringLiteral("H"));
}

void jumpToCities(QWidget& window)
{
    showCities(window);
    click(window, "widgetByCityLetters", QStringLiteral("H"));
}

void hoverPlace(QWidget& window)
{
    const auto* provinces =
        window.findChild<QWidget*>(QStringLiteral("scrollAreaWidgetContentsByProvince"));
    hover(*provinces->findChild<QWidget*>(QStringLiteral("widgetCityList"))
               ->findChild<QPushButton*>());
}

void pickPlace(QWidget& window)
{
    const auto* cities = window.findChild<QWidget*>(QStringLiteral("widgetFrequentCities"));
    const QList<QPushButton*> buttons = cities->findChildren<QPushButton*>();
    buttons[5]->click();
    hover(*buttons[5]);
}

} // namespace

QVector<Gallery::Entry> galleryCity()
{
    return {
        {QStringLiteral("city-provinces"), cityPicker, {}},
        {QStringLiteral("city-cities"), cityPicker, showCities},
        {QStringLiteral("city-keywords"), cityPicker, showKeywords},
        {QStringLiteral("city-searched-twice"), cityPicker, searchTwice},
        {QStringLiteral("city-jump-province"), cityPicker, jumpToProvinces},
        {QStringLiteral("city-jump-city"), cityPicker, jumpToCities},
        {QStringLiteral("city-hover"), cityPicker, hoverPlace},
        {QStringLiteral("city-picked"), cityPicker, pickPlace},
    };
}
