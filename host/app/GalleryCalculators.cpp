// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkCoordFormat.h>
#include <RkBaseUI/CRkVerHighCalculator.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

using GalleryParts::Window;

Window heightCalculator()
{
    return std::make_unique<CRkVerHighCalculator>(nullptr);
}

Window coordinateFormat()
{
    return std::make_unique<CRkCoordFormat>(nullptr);
}

void setText(QWidget& window, const char* field, const QString& text)
{
    window.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
}

void setSlantHeight(QWidget& window)
{
    setText(window, "m_pEdtL_Value2", QStringLiteral("1.482"));
}

void setCoordinates(QWidget& window, const QString& latitude, const QString& longitude)
{
    setText(window, "m_pEdtCoordLat", latitude);
    setText(window, "m_pEdtCoordLng", longitude);
}

void setPlace(QWidget& window)
{
    setCoordinates(window, QStringLiteral("30.57281490"), QStringLiteral("104.06680123"));
}

void chooseDms(QWidget& window)
{
    window.findChild<QRadioButton*>(QStringLiteral("m_pRdoDms"))->click();
}

void setPlaceInDms(QWidget& window)
{
    chooseDms(window);
    setCoordinates(window, QStringLiteral("30.3422"), QStringLiteral("104.0400"));
}

QImage refused(QWidget& window)
{
    return GalleryParts::withMessage(
        window, [&window] { window.findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->click(); });
}

QImage shortSlantHeight(QWidget& window)
{
    setText(window, "m_pEdtL_Value2", QStringLiteral("0.1"));
    return refused(window);
}

QImage placeOutOfRange(QWidget& window)
{
    setCoordinates(window, QStringLiteral("90.000001"), QStringLiteral("104.06680123"));
    return refused(window);
}

} // namespace

QVector<Gallery::Entry> galleryCalculators()
{
    return {
        {QStringLiteral("height"), heightCalculator, {}},
        {QStringLiteral("height-filled"), heightCalculator, setSlantHeight},
        {QStringLiteral("height-refused"), heightCalculator, {}, shortSlantHeight},
        {QStringLiteral("coordinates"), coordinateFormat, {}},
        {QStringLiteral("coordinates-filled"), coordinateFormat, setPlace},
        {QStringLiteral("coordinates-dms"), coordinateFormat, chooseDms},
        {QStringLiteral("coordinates-dms-filled"), coordinateFormat, setPlaceInDms},
        {QStringLiteral("coordinates-missing"), coordinateFormat, {}, refused},
        {QStringLiteral("coordinates-refused"), coordinateFormat, {}, placeOutOfRange},
    };
}
