// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapCanvas.h"

#include "map/Clipping.h"
#include "map/MapGrid.h"
#include "map/MapProjection.h"

#include <RkBaseUI/RkCityCategory.h>

#include <QFontMetricsF>
#include <QHash>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const QColor water(219, 228, 240);
/// Of the provinces, so that each stands out a little from its neighbours.
const std::array<QColor, 5> lands = {QColor(250, 250, 248), QColor(244, 248, 252),
                                     QColor(248, 250, 244), QColor(252, 249, 243),
                                     QColor(247, 246, 252)};
const QColor gridColour(58, 96, 150, 26);
const QColor cityBorder(205, 213, 225);
const QColor provinceBorder(150, 166, 192);
const QColor outerBorder(112, 134, 170);
const QColor provinceName(92, 108, 138);
const QColor cityName(58, 72, 98);

/// Pixels by which a simplified line may be off.
constexpr double fineTolerance = 0.4;
constexpr double draftTolerance = 1.2;
constexpr double halo = 1.5; // Pixels around a name.
constexpr double freeRadius = 40; // Pixels without the name of a place.
constexpr double overhang = 8; // Pixels that lines reach over what is drawn.

/// The way from one view to another in whole pixels of the screen; nothing when there is none.
std::optional<QPoint> shift(const MapView& from, const MapView& to, double pixelRatio)
{
    if (from.scale != to.scale || from.size != to.size)
        return std::nullopt;
    const QPointF exact = (from.centre - to.centre) * from.scale * pixelRatio;
    const QPoint whole = exact.toPoint();
    const QPointF rest = exact - whole;
    if (std::abs(rest.x()) > 0.01 || std::abs(rest.y()) > 0.01)
        return std::nullopt;
    return whole;
}

QPolygonF onScreen(QPolygonF polygon, const MapView& view)
{
    for (QPointF& point : polygon)
        point = view.toScreen(point);
    return polygon;
}

QVector<PlaceName> catalogueNames(const RkCityCategory& catalogue)
{
    QVector<PlaceName> names;
    const auto place = [&](const QString& name) {
        const PointLatLng centre = catalogue.getLatLng(name);
        return MapProjection::toPlane(QPointF(centre.Lat(), centre.Lng()));
    };
    QHash<QString, QRectF> extents;
    for (const auto& [boundary, name] : catalogue.cityBoundaries()) {
        extents[name] = MapProjection::toPlane(boundary).boundingRect();
        names.append({name, place(name), extents[name].width(), false});
    }
    for (const QString& province : catalogue.provinceNames()) {
        QRectF extent;
        const QStringList cities = catalogue.provinceToCities().value(province);
        for (const QString& city : cities)
            extent |= extents.value(city);
        names.append({province, place(province), extent.width(), true});
    }
    return names;
}

QVector<MapOutlines::City> catalogueCities(const RkCityCategory& catalogue)
{
    QHash<QString, int> provinceOf;
    for (int i = 0; i < catalogue.provinceNames().size(); ++i) {
        const QStringList cities =
            catalogue.provinceToCities().value(catalogue.provinceNames().at(i));
        for (const QString& city : cities)
            provinceOf.insert(city, i);
    }
    QVector<MapOutlines::City> cities;
    for (const auto& [boundary, name] : catalogue.cityBoundaries())
        cities.append({MapProjection::toPlane(boundary), provinceOf.value(name, -1)});
    return cities;
}

} // namespace

MapCanvas::MapCanvas()
    : m_outlines(catalogueCities(RkCityCategory::instance()))
    , m_catalogueNames(catalogueNames(RkCityCategory::instance()))
{
}

QRectF MapCanvas::extent() const
{
    return m_outlines.extent().isEmpty() ? QRectF(0, 0, 1, 1) : m_outlines.extent();
}

void MapCanvas::renewNames(bool isChinese, const QFont& font)
{
    m_names = m_catalogueNames;
    m_font = font;
    m_plates.clear();
    for (PlaceName& name : m_names) {
        name.text = nameInLanguage(name.text, isChinese);
        m_plates.append({QFontMetricsF(fontOf(name)).size(Qt::TextSingleLine, name.text), {}});
    }
    m_picture = {};
}

void MapCanvas::leaveFree(const std::optional<QPointF>& place)
{
    m_free = place;
    m_picture = {};
}

/// On the plane.
double MapCanvas::tolerance() const
{
    return (m_quality == Quality::Fine ? fineTolerance : draftTolerance) / m_view.scale;
}

const QPixmap& MapCanvas::picture(const MapView& view, double pixelRatio, Quality quality)
{
    const QSize pixels = (view.size * pixelRatio).toSize();
    const bool isKept = m_picture.size() == pixels && m_picture.devicePixelRatio() == pixelRatio;
    const std::optional<QPoint> way =
        isKept && quality == m_quality ? shift(m_view, view, pixelRatio) : std::nullopt;
    if (way && way->isNull())
        return m_picture;
    if (m_view.scale != view.scale || m_picture.isNull()) {
        const auto sizeOf = [this](const PlaceName& name) {
            return m_plates.at(int(&name - m_names.constData())).size;
        };
        m_chosen = chooseNames(m_names, view.scale, sizeOf);
    }
    m_view = view;
    m_quality = quality;
    QRegion exposed(QRect(QPoint(0, 0), pixels));
    if (way) {
        exposed = {};
        m_picture.scroll(way->x(), way->y(), m_picture.rect(), &exposed);
    } else if (!isKept) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(pixelRatio);
    }
    for (const QRect& rectangle : exposed)
        draw(rectangle);
    return m_picture;
}

/// @param rectangle in pixels of the picture
void MapCanvas::draw(const QRect& rectangle)
{
    const double ratio = m_picture.devicePixelRatio();
    const QRectF part(QPointF(rectangle.topLeft()) / ratio, QSizeF(rectangle.size()) / ratio);
    QPainter painter(&m_picture);
    painter.setClipRect(part);
    painter.fillRect(part, water);
    drawLand(painter, part);
    drawGrid(painter);
    drawBorders(painter, part);
    drawNames(painter, part);
}

void MapCanvas::drawLand(QPainter& painter, const QRectF& rectangle) const
{
    const QRectF reach = rectangle.adjusted(-overhang, -overhang, overhang, overhang);
    const QRectF area(m_view.toPlane(reach.topLeft()), reach.size() / m_view.scale);
    // Without smoothing, so that neighbours close up; the borders are drawn over the steps.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    for (int city : m_outlines.citiesIn(area)) {
        painter.setBrush(lands[size_t(m_outlines.province(city) + 1) % lands.size()]);
        const QPolygonF ring = onScreen(m_outlines.city(city, tolerance()), m_view);
        painter.drawPolygon(clippedRing(ring, reach), Qt::OddEvenFill);
    }
}

void MapCanvas::drawGrid(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(gridColour, 1));
    for (const GridLine& line : gridLines(m_view)) {
        const QPointF at = m_view.toScreen(QPointF(line.position, line.position));
        if (line.isMeridian)
            painter.drawLine(QLineF(at.x(), 0, at.x(), m_view.size.height()));
        else
            painter.drawLine(QLineF(0, at.y(), m_view.size.width(), at.y()));
    }
}

void MapCanvas::drawBorders(QPainter& painter, const QRectF& rectangle) const
{
    const QRectF reach = rectangle.adjusted(-overhang, -overhang, overhang, overhang);
    const QRectF area(m_view.toPlane(reach.topLeft()), reach.size() / m_view.scale);
    // By kind, so that the weightier lines lie above the others.
    std::array<QVector<QPolygonF>, 3> lines;
    for (int border : m_outlines.bordersIn(area)) {
        const QPolygonF line = onScreen(m_outlines.border(border, tolerance()), m_view);
        lines[size_t(m_outlines.borderKind(border))] += clippedLine(line, reach);
    }
    const bool isFine = m_quality == Quality::Fine;
    painter.setRenderHint(QPainter::Antialiasing, isFine);
    painter.setBrush(Qt::NoBrush);
    const std::array<QPen, 3> pens = {QPen(cityBorder, 1), QPen(provinceBorder, 1.2),
                                      QPen(outerBorder, 1.4)};
    for (size_t kind = 0; kind < pens.size(); ++kind) {
        QPen pen = pens[kind];
        if (!isFine)
            pen.setWidth(0); // One pixel of the screen.
        pen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(pen);
        for (const QPolygonF& line : lines[kind])
            painter.drawPolyline(line);
    }
}

QFont MapCanvas::fontOf(const PlaceName& name) const
{
    QFont font = m_font;
    font.setPixelSize(name.isProvince ? 14 : 12);
    font.setWeight(name.isProvince ? QFont::DemiBold : QFont::Normal);
    return font;
}

/// The name in its colour with a light seam, so that it can be read on lines.
const QPixmap& MapCanvas::plate(int name)
{
    Plate& plate = m_plates[name];
    if (!plate.picture.isNull())
        return plate.picture;
    const double ratio = m_picture.devicePixelRatio();
    const QFont font = fontOf(m_names[name]);
    const QSizeF size = plate.size + QSizeF(2 * halo, 2 * halo);
    plate.picture = QPixmap((size * ratio).toSize());
    plate.picture.setDevicePixelRatio(ratio);
    plate.picture.fill(Qt::transparent);
    QPainterPath path;
    path.addText(QPointF(halo, halo + QFontMetricsF(font).ascent()), font, m_names[name].text);
    QPainter painter(&plate.picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(
        path,
        QPen(QColor(255, 255, 255, 220), 2 * halo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setFont(font);
    painter.setPen(m_names[name].isProvince ? provinceName : cityName);
    painter.drawText(QPointF(halo, halo + QFontMetricsF(font).ascent()), m_names[name].text);
    return plate.picture;
}

void MapCanvas::drawNames(QPainter& painter, const QRectF& rectangle)
{
    constexpr double dot = 2; // Radius of a city's dot, pixels.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(cityName);
    for (int i : qAsConst(m_chosen)) {
        const QPointF place = m_view.toScreen(m_names[i].place);
        if (m_free && QLineF(place, m_view.toScreen(*m_free)).length() < freeRadius)
            continue;
        const QRectF name = nameRect(m_names[i], m_plates[i].size, place);
        if (!name.adjusted(-overhang, -overhang, overhang, overhang).intersects(rectangle))
            continue;
        if (!m_names[i].isProvince)
            painter.drawEllipse(place, dot, dot);
        const double ratio = m_picture.devicePixelRatio();
        // On whole pixels, or the text would be blurred.
        const QPointF corner = (name.topLeft() - QPointF(halo, halo)) * ratio;
        painter.drawPixmap(QPointF(corner.toPoint()) / ratio, plate(i));
    }
}
