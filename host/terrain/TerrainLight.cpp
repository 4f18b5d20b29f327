// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/TerrainLight.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float mostShininess = 128;

float number(const QVariantList& record, int index, float most)
{
    const float value = record.value(index).toFloat();
    return value > 0 ? std::min(value, most) : 0; // Not a number becomes 0.
}

QVector3D direction(const QVariantList& record)
{
    const double x = record.value(0).toDouble();
    const double y = record.value(1).toDouble();
    const double z = record.value(2).toDouble();
    const double length = std::hypot(std::hypot(x, y), z);
    if (!(length > 0) || !std::isfinite(length))
        return {};
    return {float(x / length), float(y / length), float(z / length)};
}

float limited(float value)
{
    return qBound(0.0F, value, 1.0F);
}

} // namespace

QVector3D components(const QColor& colour)
{
    return {float(colour.redF()), float(colour.greenF()), float(colour.blueF())};
}

TerrainLight readLight(const QVariantList& record)
{
    TerrainLight light;
    light.direction = direction(record);
    light.ambient = number(record, 3, 1);
    light.diffuse = number(record, 4, 1);
    light.specular = number(record, 5, 1);
    light.colour = record.value(6).value<QColor>();
    light.specularColour = record.value(7).value<QColor>();
    light.shininess = number(record, 8, mostShininess);
    light.blend = number(record, 9, 1);
    return light;
}

QVector3D litColour(const TerrainLight& light, const QVector3D& normal, const QVector3D& toEye,
                    const QVector3D& ground)
{
    const QVector3D colour = components(light.colour);
    QVector3D lit = ground * colour * light.ambient;
    const float towards = QVector3D::dotProduct(normal, light.direction);
    if (towards > 0) {
        lit += ground * colour * (light.diffuse * towards);
        const QVector3D half = (light.direction + toEye).normalized();
        const float glance = std::max(0.0F, QVector3D::dotProduct(normal, half));
        lit +=
            components(light.specularColour) * (light.specular * std::pow(glance, light.shininess));
    }
    return {limited(lit.x()), limited(lit.y()), limited(lit.z())};
}
