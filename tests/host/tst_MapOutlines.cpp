// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/Clipping.h"
#include "map/MapOutlines.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

double surface(const QPolygonF& ring)
{
    double twice = 0;
    for (int i = 0; i < ring.size(); ++i) {
        const QPointF& a = ring[i];
        const QPointF& b = ring[(i + 1) % ring.size()];
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(twice) / 2;
}

double length(const QPolygonF& line)
{
    double sum = 0;
    for (int i = 1; i < line.size(); ++i)
        sum += std::hypot(line[i].x() - line[i - 1].x(), line[i].y() - line[i - 1].y());
    return sum;
}

QPolygonF segment(const QPointF& a, const QPointF& b)
{
    return QVector<QPointF>{a, b};
}

double away(const QPointF& point, const QPolygonF& line)
{
    double least = 1e300;
    for (int i = 1; i < line.size(); ++i) {
        const QPointF d = line[i] - line[i - 1];
        const double square = QPointF::dotProduct(d, d);
        const double share =
            square > 0 ? qBound(0.0, QPointF::dotProduct(point - line[i - 1], d) / square, 1.0) : 0;
        const QPointF rest = point - line[i - 1] - share * d;
        least = std::min(least, std::hypot(rest.x(), rest.y()));
    }
    return least;
}

/// Douglas and Peucker as it is written in books.
void simplify(const QPolygonF& line, int first, int last, double tolerance, QPolygonF& kept)
{
    double farthest = -1;
    int middle = first;
    for (int i = first + 1; i < last; ++i) {
        const double distance = away(line[i], segment(line[first], line[last]));
        if (distance > farthest) {
            farthest = distance;
            middle = i;
        }
    }
    if (farthest >= tolerance) {
        simplify(line, first, middle, tolerance, kept);
        simplify(line, middle, last, tolerance, kept);
    } else {
        kept.append(line[last]);
    }
}

/// Two cities beside each other in one province, and a third of another province below both.
QVector<MapOutlines::City> threeCities()
{
    return {{QPolygonF({{0, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}}), 0},
            {QPolygonF({{2, 0}, {4, 0}, {4, 2}, {3, 2}, {2, 2}, {2, 1}}), 0},
            {QPolygonF({{0, 2}, {1, 2}, {2, 2}, {3, 2}, {4, 2}, {4, 3}, {0, 3}, {0, 2}}), 1}};
}

QPolygonF randomLine(QRandomGenerator& random, int points)
{
    QPolygonF line;
    for (int i = 0; i < points; ++i)
        line.append(QPointF(i, random.bounded(20.0)));
    return line;
}

} // namespace

/// The outlines that the map draws: shared, simplified and cut to what is seen.
class tst_MapOutlines : public QObject
{
    Q_OBJECT

private slots:
    void nothingHasNoExtent();
    void ringsComeBack();
    void sharedBordersAreThereOnce();
    void enclaveSharesItsRing();
    void cutsBetweenRingsAreNoBorders();
    void brokenRingsAreLeftOut();
    void onlyWhatTouchesIsFound();
    void straightBordersAreFound();
    void prominenceIsTheSimplification();
    void neighboursStayNeighbours();
    void lineIsClipped_data();
    void lineIsClipped();
    void clippedLinesLieInside();
    void ringIsClipped_data();
    void ringIsClipped();
};

void tst_MapOutlines::nothingHasNoExtent()
{
    const MapOutlines outlines;
    QVERIFY(outlines.extent().isEmpty());
    QVERIFY(outlines.citiesIn(QRectF(0, 0, 1, 1)).isEmpty());
    QVERIFY(outlines.bordersIn(QRectF(0, 0, 1, 1)).isEmpty());
}

void tst_MapOutlines::ringsComeBack()
{
    const QVector<MapOutlines::City> cities = threeCities();
    const MapOutlines outlines(cities);
    QCOMPARE(outlines.extent(), QRectF(0, 0, 4, 3));
    for (int i = 0; i < cities.size(); ++i) {
        const QPolygonF ring = outlines.city(i, 0);
        QCOMPARE(ring.first(), ring.last());
        QCOMPARE(surface(ring), surface(cities[i].ring));
        for (const QPointF& point : cities[i].ring)
            QVERIFY(ring.contains(point));
        QCOMPARE(outlines.province(i), cities[i].province);
    }
}

void tst_MapOutlines::sharedBordersAreThereOnce()
{
    const MapOutlines outlines(threeCities());
    double lengths[3] = {0, 0, 0};
    for (int border : outlines.bordersIn(outlines.extent()))
        lengths[int(outlines.borderKind(border))] += length(outlines.border(border, 0));
    QCOMPARE(lengths[int(BorderKind::City)], 2.0);
    QCOMPARE(lengths[int(BorderKind::Province)], 4.0);
    QCOMPARE(lengths[int(BorderKind::Outer)], 14.0);
}

void tst_MapOutlines::enclaveSharesItsRing()
{
    const QPolygonF hole({{1, 1}, {2, 1}, {2, 2}, {1, 2}});
    QPolygonF turned({{2, 2}, {2, 1}, {1, 1}, {1, 2}}); // From elsewhere, the other way round.
    const MapOutlines outlines({{hole, 0}, {turned, 1}});
    const QVector<int> borders = outlines.bordersIn(outlines.extent());
    QCOMPARE(borders.size(), 1);
    QCOMPARE(outlines.borderKind(borders.first()), BorderKind::Province);
    QCOMPARE(surface(outlines.city(1, 0)), 1.0);
}

/// A city with a hole, written as one line that runs to the hole and back.
void tst_MapOutlines::cutsBetweenRingsAreNoBorders()
{
    const QPolygonF ring(
        {{0, 0}, {1, 1}, {1, 2}, {2, 2}, {2, 1}, {1, 1}, {0, 0}, {4, 0}, {4, 4}, {0, 4}});
    const MapOutlines outlines({{ring, 0}});
    double sum = 0;
    for (int border : outlines.bordersIn(outlines.extent()))
        sum += length(outlines.border(border, 0));
    QCOMPARE(sum, 16.0 + 4.0);
    const QPolygonF back = outlines.city(0, 0);
    QVERIFY(!back.containsPoint(QPointF(1.5, 1.5), Qt::OddEvenFill));
    QVERIFY(back.containsPoint(QPointF(3, 1.5), Qt::OddEvenFill));
}

void tst_MapOutlines::brokenRingsAreLeftOut()
{
    const MapOutlines outlines({{QPolygonF(), 0},
                                {QPolygonF({{1, 1}}), 0},
                                {QPolygonF({{1, 1}, {1, 1}, {2, 2}, {1, 1}}), 0},
                                {QPolygonF({{0, 0}, {1, 0}, {0, 1}}), 0}});
    QCOMPARE(outlines.cityCount(), 4);
    QCOMPARE(outlines.citiesIn(QRectF(-9, -9, 99, 99)), QVector<int>{3});
    QVERIFY(outlines.city(0, 0).isEmpty());
}

void tst_MapOutlines::onlyWhatTouchesIsFound()
{
    const MapOutlines outlines(threeCities());
    QCOMPARE(outlines.citiesIn(QRectF(0.5, 0.5, 0.1, 0.1)), QVector<int>{0});
    QCOMPARE(outlines.citiesIn(QRectF(1.5, 0.5, 1, 0.1)), (QVector<int>{0, 1}));
    QVERIFY(outlines.citiesIn(QRectF(9, 9, 1, 1)).isEmpty());
    QVERIFY(outlines.bordersIn(QRectF(9, 9, 1, 1)).isEmpty());
}

void tst_MapOutlines::straightBordersAreFound()
{
    const MapOutlines outlines(threeCities());
    const QVector<int> found = outlines.bordersIn(QRectF(1.9, 0.5, 0.2, 0.2));
    QVERIFY(std::any_of(found.begin(), found.end(), [&](int border) {
        return outlines.borderKind(border) == BorderKind::City;
    }));
}

void tst_MapOutlines::prominenceIsTheSimplification()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 50; ++round) {
        const QPolygonF line = randomLine(random, 2 + round);
        const std::vector<float> prominent = prominences(line);
        QVERIFY(std::isinf(prominent.front()) && std::isinf(prominent.back()));
        for (const double tolerance : {0.0, 0.5, 3.0, 9.0, 100.0}) {
            QPolygonF expected({line.first()});
            simplify(line, 0, int(line.size()) - 1, tolerance, expected);
            QPolygonF kept;
            for (int i = 0; i < line.size(); ++i) {
                if (prominent[size_t(i)] >= tolerance)
                    kept.append(line[i]);
            }
            QCOMPARE(kept, expected);
        }
    }
}

/// The simplified outlines of neighbours still cover what lies between them exactly once.
void tst_MapOutlines::neighboursStayNeighbours()
{
    QRandomGenerator random(11);
    QPolygonF between = randomLine(random, 60);
    QPolygonF above = between;
    above << QPointF(59, 60) << QPointF(0, 60);
    QPolygonF below = between;
    below << QPointF(59, -40) << QPointF(0, -40);
    std::reverse(below.begin(), below.end());
    const MapOutlines outlines({{above, 0}, {below, 0}});
    for (const double tolerance : {0.0, 2.0, 8.0}) {
        const double sum =
            surface(outlines.city(0, tolerance)) + surface(outlines.city(1, tolerance));
        QVERIFY(std::abs(sum - 59 * 100) < 1e-6);
    }
    QVERIFY(outlines.city(0, 8).size() < outlines.city(0, 0).size());
}

void tst_MapOutlines::lineIsClipped_data()
{
    QTest::addColumn<QPolygonF>("line");
    QTest::addColumn<QVector<QPolygonF>>("expected");
    const QPolygonF inside({{1, 1}, {2, 2}, {3, 1}});
    QTest::newRow("inside") << inside << QVector<QPolygonF>{inside};
    QTest::newRow("outside") << segment(QPointF(20, 1), QPointF(20, 9)) << QVector<QPolygonF>{};
    QTest::newRow("around a corner")
        << QPolygonF({{-5, 1}, {-5, -5}, {5, -5}}) << QVector<QPolygonF>{};
    QTest::newRow("across") << segment(QPointF(-5, 5), QPointF(15, 5))
                            << QVector<QPolygonF>{segment(QPointF(0, 5), QPointF(10, 5))};
    QTest::newRow("out and in again") << QPolygonF({{5, 5}, {15, 5}, {15, 8}, {5, 8}})
                                      << QVector<QPolygonF>{segment(QPointF(5, 5), QPointF(10, 5)),
                                                            segment(QPointF(10, 8), QPointF(5, 8))};
    QTest::newRow("no points") << QPolygonF() << QVector<QPolygonF>{};
}

void tst_MapOutlines::lineIsClipped()
{
    QFETCH(QPolygonF, line);
    QTEST(clippedLine(line, QRectF(0, 0, 10, 10)), "expected");
}

void tst_MapOutlines::clippedLinesLieInside()
{
    QRandomGenerator random(3);
    const QRectF area(0, 0, 10, 10);
    for (int round = 0; round < 200; ++round) {
        QPolygonF line;
        for (int i = 0; i < 12; ++i)
            line.append(QPointF(random.bounded(40.0) - 15, random.bounded(40.0) - 15));
        QPolygonF all;
        for (const QPolygonF& part : clippedLine(line, area))
            all += part;
        for (const QPointF& point : all) {
            QVERIFY(area.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(point));
            QVERIFY(away(point, line) < 1e-9);
        }
    }
}

void tst_MapOutlines::ringIsClipped_data()
{
    QTest::addColumn<QPolygonF>("ring");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << QPolygonF({{1, 1}, {3, 1}, {3, 3}, {1, 3}}) << 4.0;
    QTest::newRow("around") << QPolygonF({{-9, -9}, {99, -9}, {99, 99}, {-9, 99}}) << 100.0;
    QTest::newRow("half") << QPolygonF({{5, -9}, {99, -9}, {99, 99}, {5, 99}}) << 50.0;
    QTest::newRow("outside") << QPolygonF({{11, 0}, {12, 0}, {12, 9}}) << 0.0;
    QTest::newRow("no points") << QPolygonF() << 0.0;
}

void tst_MapOutlines::ringIsClipped()
{
    QFETCH(QPolygonF, ring);
    const QPolygonF clipped = clippedRing(ring, QRectF(0, 0, 10, 10));
    QTEST(surface(clipped), "expected");
    QVERIFY(clipped.isEmpty() || QRectF(0, 0, 10, 10).contains(clipped.boundingRect()));
}

QTEST_GUILESS_MAIN(tst_MapOutlines)
#include "tst_MapOutlines.moc"
