// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// How far volumes by the square-grid method are from the volumes of bodies whose closed forms are
// known, for cells of halved sides. Prints the table of docs/earthwork.md, and draws its plot into
// the file that the first argument names.
//
//     QT_QPA_PLATFORM=offscreen accuracy_volume docs/pictures/earthwork-accuracy.png

#include <RkBaseUI/SquareGridVolume.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QVector>

#include <cmath>
#include <cstdio>
#include <functional>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double field = 128.0; ///< Side of the surveyed square, around the origin.
constexpr int shifts = 8; ///< Positions of the body against the grid, in each direction.
constexpr double sides[] = {16, 8, 4, 2, 1, 0.5};
constexpr std::size_t sideCount = std::size(sides);

struct Volumes
{
    double excavation = 0.0;
    double fill = 0.0;
};

/// The terrain above a design plane: the field from -64 to 64 m, moved by (u, v) against the grid.
struct Body
{
    const char* name;
    std::function<double(double x, double y)> terrain;
    /// Design elevation, c + s x + t y.
    double c;
    double s;
    double t;
    /// Exact volumes over the field whose middle is at (u, v).
    std::function<Volumes(double u, double v)> exact;

    double height(double x, double y) const { return terrain(x, y) - c - s * x - t * y; }
};

/// Volumes of a body that stands on level ground at 0, all of it within the field, and is cut by a
/// plane that is above the ground everywhere in the field.
Volumes mound(const Body& body, double volume, double top, double u, double v)
{
    const double plane = (body.c + body.s * u + body.t * v) * field * field;
    return {top, volume - plane - top};
}

/// Terrain 100 + 0.07 x + 0.02 y. Its height over the plane below is k = 0.1 x + 0.03 y - 0.7,
/// which is zero on a line from the upper to the lower edge of the field; integrating k^2 / 2 / 0.1
/// along the right edge gives (k1^3 - k0^3) / (6 x 0.1 x 0.03).
Body tiltedPlane()
{
    Body body{"tilted plane", [](double x, double y) { return 100 + 0.07 * x + 0.02 * y; },
              100.7,          -0.03,
              -0.01,          {}};
    body.exact = [](double u, double v) {
        const auto k = [](double x, double y) { return 0.1 * x + 0.03 * y - 0.7; };
        const double half = field / 2;
        const double above =
            (std::pow(k(u + half, v + half), 3) - std::pow(k(u + half, v - half), 3))
            / (6 * 0.1 * 0.03);
        return Volumes{above, k(u, v) * field * field - above};
    };
    return body;
}

/// Height 20, radius 50. The plane cuts an oblique cone with an elliptic base off the top: a third
/// of the ellipse's area in plan times the height of the apex over the plane. In plan the ellipse
/// has a focus below the apex.
Body cone()
{
    const double height = 20;
    const double radius = 50;
    Body body{"cone",
              [=](double x, double y) {
                  return std::max(0.0, height * (1 - std::hypot(x, y) / radius)); },
              10.0,
              0.08,
              0.05,
              {}};
    const double slope = height / radius;
    const double eccentricity = std::hypot(body.s, body.t) / slope;
    const double parameter = (height - body.c) / slope;
    const double area = pi * parameter * parameter / std::pow(1 - eccentricity * eccentricity, 1.5);
    const double top = area * (height - body.c) / 3;
    body.exact = [=](double u, double v) {
        return mound(body, pi * radius * radius * height / 3, top, u, v);
    };
    return body;
}

/// Radius 40. The plane cuts a spherical cap off: pi (r - d)^2 (2 r + d) / 3, at the distance d
/// from the centre.
Body hemisphere()
{
    const double radius = 40;
    Body body{"hemisphere",
              [=](double x, double y) {
                  return std::sqrt(std::max(0.0, radius * radius - x * x - y * y));
              },
              16.0,
              0.1,
              0.06,
              {}};
    const double distance = body.c / std::sqrt(1 + body.s * body.s + body.t * body.t);
    const double top = pi * (radius - distance) * (radius - distance) * (2 * radius + distance) / 3;
    body.exact = [=](double u, double v) {
        return mound(body, 2 * pi * std::pow(radius, 3) / 3, top, u, v);
    };
    return body;
}

/// Height 20, radius 50. Over the plane it is a paraboloid again, of the same curvature and of the
/// height k: pi k^2 / 2 / curvature.
Body paraboloid()
{
    const double height = 20;
    const double radius = 50;
    const double curvature = height / (radius * radius);
    Body body{
        "paraboloid",
        [=](double x, double y) { return std::max(0.0, height - curvature * (x * x + y * y)); },
        9.0,
        0.08,
        0.05,
        {}};
    const double k = height - body.c + (body.s * body.s + body.t * body.t) / (4 * curvature);
    const double top = pi * k * k / (2 * curvature);
    body.exact = [=](double u, double v) {
        return mound(body, pi * radius * radius * height / 2, top, u, v);
    };
    return body;
}

/// By the square-grid method, over the field whose middle is at (u, v).
Volumes measured(const Body& body, double side, double u, double v)
{
    const int cells = int(std::lround(field / side));
    rk::VolumeTotals totals;
    for (int row = 0; row < cells; ++row) {
        for (int column = 0; column < cells; ++column) {
            const double x = u - field / 2 + column * side;
            const double y = v - field / 2 + row * side;
            rk::addCell(totals,
                        rk::cellVolume({body.height(x, y), body.height(x + side, y),
                                        body.height(x, y + side), body.height(x + side, y + side)},
                                       side),
                        side);
        }
    }
    return {totals.excavation, totals.fill};
}

/// Relative errors, root mean square over positions of the body within a cell: a single position
/// may hit by luck.
Volumes relativeErrors(const Body& body, double side)
{
    Volumes squares;
    for (int row = 0; row < shifts; ++row) {
        for (int column = 0; column < shifts; ++column) {
            const double u = side * ((column + 0.37) / shifts - 0.5);
            const double v = side * ((row + 0.61) / shifts - 0.5);
            const Volumes grid = measured(body, side, u, v);
            const Volumes exact = body.exact(u, v);
            squares.excavation += std::pow(grid.excavation / exact.excavation - 1, 2);
            squares.fill += std::pow(grid.fill / exact.fill - 1, 2);
        }
    }
    return {std::sqrt(squares.excavation) / shifts, std::sqrt(squares.fill) / shifts};
}

struct Series
{
    QString name;
    QVector<double> errors; ///< By side.
    Qt::PenStyle line;
    QColor colour;
};

QVector<Series> measureAll()
{
    const Body bodies[] = {tiltedPlane(), cone(), hemisphere(), paraboloid()};
    const QColor colours[] = {QColor(58, 136, 244), QColor(214, 96, 38), QColor(46, 139, 87),
                              QColor(128, 72, 168)};
    QVector<Series> all;
    for (std::size_t i = 0; i < std::size(bodies); ++i) {
        const QString name = QString::fromLatin1(bodies[i].name);
        Series excavation{name + ", excavation", {}, Qt::SolidLine, colours[i]};
        Series fill{name + ", fill", {}, Qt::DashLine, colours[i]};
        for (const double side : sides) {
            const Volumes errors = relativeErrors(bodies[i], side);
            excavation.errors.append(errors.excavation);
            fill.errors.append(errors.fill);
        }
        all.append(excavation);
        all.append(fill);
    }
    return all;
}

/// The order p of an error that goes with side^p, between two sides one of which is half the other.
double orderOf(double coarse, double fine)
{
    return std::log2(coarse / fine);
}

void print(const QVector<Series>& all)
{
    std::printf("| body, volume |");
    for (const double side : sides)
        std::printf(" %g m |", side);
    std::printf(" order |\n|---|");
    for (std::size_t i = 0; i <= sideCount; ++i)
        std::printf("---|");
    std::printf("\n");
    for (const Series& series : all) {
        std::printf("| %s |", qPrintable(series.name));
        for (const double error : series.errors)
            std::printf(" %.2g %% |", 100 * error);
        std::printf(" %.2f |\n",
                    orderOf(series.errors.first(), series.errors.last()) / double(sideCount - 1));
    }
}

/// Both axes logarithmic, so that an order is a slope.
class Plot
{
public:
    explicit Plot(const QVector<Series>& all)
        : m_all(all)
    {
    }

    QImage drawn() const;

private:
    static constexpr double lowest = 1e-6;
    static constexpr double highest = 1.0;
    static constexpr QRectF area = {78, 30, 470, 400};

    static QPointF at(double side, double error)
    {
        const double across =
            std::log2(side / sides[sideCount - 1]) / std::log2(sides[0] / sides[sideCount - 1]);
        const double up = std::log10(error / lowest) / std::log10(highest / lowest);
        return {area.left() + 16 + across * (area.width() - 32),
                area.bottom() - up * area.height()};
    }
    void drawAxes(QPainter& painter) const;
    void drawGuide(QPainter& painter) const;
    void drawSeries(QPainter& painter) const;

    const QVector<Series>& m_all;
};

QImage Plot::drawn() const
{
    constexpr int scale = 2;
    QImage image(800 * scale, 490 * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    QFont font = painter.font();
    font.setPixelSize(13);
    painter.setFont(font);
    drawAxes(painter);
    drawGuide(painter);
    drawSeries(painter);
    return image;
}

void Plot::drawAxes(QPainter& painter) const
{
    const QColor ink(37, 44, 50);
    const QColor pale(220, 227, 238);
    for (int exponent = -6; exponent <= 0; ++exponent) {
        const double y = at(1, std::pow(10, exponent)).y();
        painter.setPen(pale);
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(ink);
        painter.drawText(QRectF(0, y - 10, area.left() - 8, 20), Qt::AlignRight | Qt::AlignVCenter,
                         QStringLiteral("%1 %").arg(100 * std::pow(10, exponent)));
    }
    for (const double side : sides) {
        const double x = at(side, 1).x();
        painter.setPen(pale);
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.setPen(ink);
        painter.drawText(QRectF(x - 30, area.bottom() + 4, 60, 20), Qt::AlignCenter,
                         QStringLiteral("%1 m").arg(side));
    }
    painter.setPen(QColor(140, 150, 166));
    painter.drawRect(area);
    painter.setPen(ink);
    painter.drawText(QRectF(area.left(), area.bottom() + 26, area.width(), 22), Qt::AlignCenter,
                     QStringLiteral("side of the cells"));
    painter.drawText(QRectF(area.left(), 4, area.width(), 22), Qt::AlignCenter,
                     QStringLiteral("relative error of the square-grid method"));
}

/// The slope of an error that goes with the square of the side.
void Plot::drawGuide(QPainter& painter) const
{
    const double error = 4e-6;
    painter.setPen(QPen(QColor(110, 120, 138), 1.2, Qt::DotLine));
    const QPointF start = at(1, error);
    const QPointF end = at(8, 64 * error);
    painter.drawLine(start, end);
    painter.drawText(QRectF(end.x() - 20, end.y() + 6, 120, 20), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("second order"));
}

void Plot::drawSeries(QPainter& painter) const
{
    double y = area.top() + 8;
    for (const Series& series : m_all) {
        QPolygonF line;
        for (std::size_t i = 0; i < sideCount; ++i)
            line.append(at(sides[i], series.errors[int(i)]));
        painter.setPen(QPen(series.colour, 2, series.line));
        painter.drawPolyline(line);
        painter.drawLine(QPointF(area.right() + 18, y + 10), QPointF(area.right() + 52, y + 10));
        painter.setPen(QPen(series.colour, 2));
        painter.setBrush(series.line == Qt::SolidLine ? series.colour : QColor(Qt::white));
        for (const QPointF& point : line)
            painter.drawEllipse(point, 3, 3);
        painter.setPen(QColor(37, 44, 50));
        painter.drawText(QRectF(area.right() + 60, y, 190, 20), Qt::AlignLeft | Qt::AlignVCenter,
                         series.name);
        y += 24;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QVector<Series> all = measureAll();
    print(all);
    if (argc < 2)
        return 0;
    if (!Plot(all).drawn().save(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "Cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
