// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkLightDir.h>
#include <RkBaseUI/CRkLightWgt.h>

#include <QColorDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

using GalleryParts::Window;

Window light(const QVariantList& record)
{
    auto dialog = std::make_unique<CRkLightWgt>(nullptr);
    dialog->InitWgt(record, QStringLiteral("terrain"));
    return dialog;
}

Window freshLight()
{
    return std::make_unique<CRkLightWgt>(nullptr);
}

Window morningLight()
{
    return light({80.0, -60.0, 45.0, 0.25, 0.8, 0.3, QColor(255, 236, 200), QColor(255, 250, 240),
                  32.0, 0.6});
}

Window noonLight()
{
    return light(
        {0.0, 0.0, 120.0, 0.4, 1.0, 0.5, QColor(Qt::white), QColor(Qt::white), 128.0, 1.0});
}

Window eveningLight()
{
    return light(
        {-90.0, -20.0, 12.0, 0.1, 0.9, 0.15, QColor(255, 148, 66), QColor(255, 96, 32), 8.0, 0.35});
}

Window moonLight()
{
    return light({-40.0, 70.0, 60.0, 0.05, 0.35, 0.9, QColor(120, 150, 210),
                  QColor(176, 200, 255, 160), 1000.0, 0.0});
}

/// The colour dialog of the light, which lies where the dialog puts it, beside the window.
QImage withColorDialog(QWidget& window)
{
    window.findChild<QPushButton*>(QStringLiteral("btn_color_light"))->click();
    const QPixmap left = window.grab();
    const QPixmap right = window.findChild<QColorDialog*>()->grab();
    constexpr int gap = 16;
    const qreal ratio = left.devicePixelRatio();
    QImage image(left.width() + right.width() + qRound(gap * ratio),
                 qMax(left.height(), right.height()), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, left);
    painter.drawPixmap(QPointF(left.width() / ratio + gap, 0), right);
    return image;
}

/// The same sphere with the light from eight sides.
Window lightDirections()
{
    auto sheet = std::make_unique<QWidget>();
    auto* grid = new QGridLayout(sheet.get());
    constexpr int columns = 4;
    for (int i = 0; i < 2 * columns; ++i) {
        const float azimuth = static_cast<float>(i % columns) * 90 + 30;
        const float elevation = i < columns ? 20 : -45;
        auto* view = new CRkLightDir(sheet.get());
        view->setFixedSize(180, 180);
        view->slotUpdateAngle(azimuth, elevation);
        auto* caption = new QLabel(QStringLiteral("%1° / %2°").arg(azimuth).arg(elevation));
        caption->setAlignment(Qt::AlignCenter);
        grid->addWidget(view, i / columns * 2, i % columns);
        grid->addWidget(caption, i / columns * 2 + 1, i % columns);
    }
    return sheet;
}

} // namespace

QVector<Gallery::Entry> galleryLight()
{
    return {
        {QStringLiteral("light"), morningLight, {}},
        {QStringLiteral("light-fresh"), freshLight, {}},
        {QStringLiteral("light-noon"), noonLight, {}},
        {QStringLiteral("light-evening"), eveningLight, {}},
        {QStringLiteral("light-moon"), moonLight, {}},
        {QStringLiteral("light-color"), morningLight, {}, withColorDialog},
        {QStringLiteral("light-directions"), lightDirections, {}},
    };
}
