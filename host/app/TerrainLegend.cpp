// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/TerrainLegend.h"

#include "app/PlateStyle.h"
#include "terrain/CutAndFill.h"
#include "terrain/ElevationModel.h"
#include "terrain/Relief.h"

#include <QPainter>

#include <cmath>
#include <functional>

namespace {

constexpr double barHeight = 8;
constexpr double inset = 12;

const QColor ink(44, 60, 90);
const QColor faint(84, 106, 146);

struct Scale
{
    QString title;
    QStringList texts; ///< At the left end, in the middle and at the right end.
    std::function<QColor(double)> colour; ///< Of a share of the way, 0 to 1.
};

void drawScale(QPainter& painter, const QRectF& plate, const Scale& scale)
{
    PlateStyle::draw(painter, plate);
    painter.save();
    const QRectF room = plate.adjusted(inset, 7, -inset, -7);
    QFont font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop, scale.title);

    const QRectF bar(room.left(), room.top() + 21, room.width(), barHeight);
    constexpr int stops = 24;
    QLinearGradient colours(bar.topLeft(), bar.topRight());
    for (int i = 0; i <= stops; ++i)
        colours.setColorAt(double(i) / stops, scale.colour(double(i) / stops));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours);
    painter.drawRoundedRect(bar, 2, 2);

    font.setPixelSize(11);
    painter.setFont(font);
    painter.setPen(faint);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom, scale.texts[0]);
    painter.drawText(room, Qt::AlignHCenter | Qt::AlignBottom, scale.texts[1]);
    painter.drawText(room, Qt::AlignRight | Qt::AlignBottom, scale.texts[2]);
    painter.restore();
}

} // namespace

QSizeF TerrainLegend::size()
{
    return {236, 62};
}

void TerrainLegend::drawHeights(QPainter& painter, const QRectF& plate, const ElevationModel& model)
{
    const auto text = [](double metres) { return tr("%1 m").arg(metres, 0, 'f', 0); };
    drawScale(painter, plate,
              {tr("Elevation"),
               {text(model.lowest()), text((model.lowest() + model.highest()) / 2),
                text(model.highest())},
               Relief::elevationColour});
}

void TerrainLegend::drawVolumes(QPainter& painter, const QRectF& plate, double largest)
{
    const auto colour = [](double share) {
        QColor opaque = volumeColour(2 * share - 1, 1);
        opaque.setAlpha(255);
        return opaque;
    };
    drawScale(painter, plate,
              {tr("Fill and cut of a cell, m\u00b3"),
               {volumeText(-largest), QStringLiteral("0"), volumeText(largest)},
               colour});
}
