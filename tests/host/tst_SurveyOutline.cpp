// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/OutlineTexts.h"
#include "map/SurveyOutline.h"

#include <RkAlgorthm/Utm.h>

#include <QtTest>

#include <cmath>

using SurveyOutline::Splitting;
Q_DECLARE_METATYPE(Splitting)
Q_DECLARE_METATYPE(SurveyOutline::Check)

namespace {

constexpr double metresPerDegree = 111'320; // Of longitude on the equator, nearly.

/// Degrees of places so many metres east and north of Chengdu, nearly.
QPolygonF atChengdu(const QVector<QPointF>& metres)
{
    QPolygonF degrees;
    for (const QPointF& point : metres) {
        degrees.append(
            QPointF(30.66 + point.y() / 110'860,
                    104.06 + point.x() / (metresPerDegree * std::cos(qDegreesToRadians(30.66)))));
    }
    return degrees;
}

QPolygonF square(double side)
{
    return atChengdu({{0, 0}, {side, 0}, {side, side}, {0, side}});
}

std::vector<CRkPoint2D> utm(const QPolygonF& degrees)
{
    std::vector<CRkPoint2D> points;
    for (const QPointF& point : degrees)
        points.emplace_back(point.x(), point.y());
    LatLng2UTM(points, points);
    return points;
}

double areaOf(const std::vector<CRkPoint2D>& ring)
{
    double twice = 0;
    for (size_t i = 0; i < ring.size(); ++i) {
        const CRkPoint2D& next = ring[(i + 1) % ring.size()];
        twice += (ring[i].x() - ring[0].x()) * (next.y() - ring[0].y())
            - (next.x() - ring[0].x()) * (ring[i].y() - ring[0].y());
    }
    return std::abs(twice) / 2;
}

} // namespace

class tst_SurveyOutline : public QObject
{
    Q_OBJECT

private slots:
    void measuresAreInMetres();
    void shapeIsTold_data();
    void shapeIsTold();
    void whatCannotBeMeasured_data();
    void whatCannotBeMeasured();
    void partsCoverTheOutline_data();
    void partsCoverTheOutline();
    void whatCannotBeSplitHasNoParts_data();
    void whatCannotBeSplitHasNoParts();
    void areaText_data();
    void areaText();
    void lengthText_data();
    void lengthText();
    void linesSayWhatWasFound_data();
    void linesSayWhatWasFound();
    void partsLineCounts();
};

void tst_SurveyOutline::measuresAreInMetres()
{
    const auto check = SurveyOutline::check(square(2000), 1e6);
    QVERIFY(check);
    QVERIFY2(std::abs(check->area / 4e6 - 1) < 0.005, qPrintable(QString::number(check->area)));
    QVERIFY2(std::abs(check->perimeter / 8000 - 1) < 0.005,
             qPrintable(QString::number(check->perimeter)));
    QCOMPARE(check->area, areaOf(utm(square(2000))));
}

void tst_SurveyOutline::shapeIsTold_data()
{
    QTest::addColumn<QPolygonF>("outline");
    QTest::addColumn<bool>("isConvex");
    QTest::addColumn<bool>("crossesItself");
    QTest::addColumn<Splitting>("splitting");
    const auto row = [](const char* name, const QPolygonF& outline, bool isConvex, bool crosses,
                        Splitting splitting) {
        QTest::newRow(name) << outline << isConvex << crosses << splitting;
    };
    row("square", square(2000), true, false, Splitting::Possible);
    row("triangle", atChengdu({{0, 0}, {3000, 0}, {0, 3000}}), true, false, Splitting::Possible);
    row("bent", atChengdu({{0, 0}, {3000, 0}, {3000, 3000}, {1500, 400}}), false, false,
        Splitting::Possible);
    row("bow tie", atChengdu({{0, 0}, {3000, 3000}, {3000, 0}, {0, 3000}}), false, true,
        Splitting::Crossing);
    // All turns of a pentagram have one sense.
    row("pentagram", atChengdu({{0, 1000}, {588, -809}, {-951, 309}, {951, 309}, {-588, -809}}),
        true, true, Splitting::Crossing);
    row("touching itself", atChengdu({{0, 0}, {4000, 0}, {4000, 3000}, {2000, -1}, {0, 3000}}),
        false, true, Splitting::Crossing);
    row("no larger than a part", square(900), true, false, Splitting::SmallEnough);
    // On the middle meridian of a zone, which is straight on its plane.
    row("there and back", QPolygonF({{30, 105}, {30.1, 105}, {30.05, 105}}), true, false,
        Splitting::Overlapping);
}

void tst_SurveyOutline::shapeIsTold()
{
    QFETCH(QPolygonF, outline);
    const auto check = SurveyOutline::check(outline, 1e6);
    QVERIFY(check);
    QTEST(check->isConvex, "isConvex");
    QTEST(check->crossesItself, "crossesItself");
    QTEST(check->splitting, "splitting");
}

void tst_SurveyOutline::whatCannotBeMeasured_data()
{
    QTest::addColumn<QPolygonF>("outline");
    QTest::newRow("nothing") << QPolygonF();
    QTest::newRow("a line") << QPolygonF(QVector<QPointF>{{30, 104}, {31, 104}});
    QTest::newRow("at the pole") << QPolygonF({{85, 104}, {85, 105}, {84.5, 105}});
    QTest::newRow("not a number") << QPolygonF({{30, 104}, {qQNaN(), 105}, {31, 105}});
}

void tst_SurveyOutline::whatCannotBeMeasured()
{
    QFETCH(QPolygonF, outline);
    QVERIFY(!SurveyOutline::check(outline, 1e6));
    QVERIFY(SurveyOutline::split(outline, 1e6).outlines.isEmpty());
}

void tst_SurveyOutline::partsCoverTheOutline_data()
{
    QTest::addColumn<QPolygonF>("outline");
    QTest::addColumn<double>("largest");
    QTest::newRow("square") << square(2000) << 1e6;
    QTest::newRow("bent") << atChengdu({{0, 0}, {5000, 500}, {6000, 4000}, {2500, 1500}}) << 7e5;
    QTest::newRow("a hundred kilometres") << square(1e5) << 2e9;
    QTest::newRow("southern") << QPolygonF({{-33, 151}, {-33, 151.1}, {-33.1, 151.1}}) << 1e7;
    QTest::newRow("high in the north") << QPolygonF({{82, 10}, {82, 13}, {82.2, 11}}) << 1e8;
    QTest::newRow("across two zones") << QPolygonF({{30, 107.9}, {30, 108.1}, {30.1, 108}}) << 2e7;
}

void tst_SurveyOutline::partsCoverTheOutline()
{
    QFETCH(QPolygonF, outline);
    QFETCH(double, largest);
    const SurveyOutline::Parts parts = SurveyOutline::split(outline, largest);
    const double whole = areaOf(utm(outline));
    QVERIFY(parts.outlines.size() >= int(std::ceil(whole / largest)));
    double sum = 0;
    double largestFound = 0;
    for (const QPolygonF& part : parts.outlines) {
        // In the zone of the whole.
        std::vector<CRkPoint2D> points = utm(QPolygonF(QVector<QPointF>{outline.first()} + part));
        points.erase(points.begin());
        const double area = areaOf(points);
        QVERIFY(area <= largest * (1 + 1e-6));
        largestFound = std::max(largestFound, area);
        sum += area;
    }
    QVERIFY2(std::abs(sum / whole - 1) < 1e-6, qPrintable(QString::number(sum / whole - 1)));
    QVERIFY(std::abs(parts.largest / largestFound - 1) < 1e-6);
}

void tst_SurveyOutline::whatCannotBeSplitHasNoParts_data()
{
    QTest::addColumn<QPolygonF>("outline");
    QTest::addColumn<double>("largest");
    QTest::newRow("crossing") << atChengdu({{0, 0}, {3000, 3000}, {3000, 0}, {0, 3000}}) << 1e6;
    QTest::newRow("small") << square(500) << 1e6;
    QTest::newRow("too many parts") << square(1e5) << 1e4;
    QTest::newRow("parts of nothing") << square(2000) << 0.0;
}

void tst_SurveyOutline::whatCannotBeSplitHasNoParts()
{
    QFETCH(QPolygonF, outline);
    QFETCH(double, largest);
    QVERIFY(SurveyOutline::split(outline, largest).outlines.isEmpty());
}

void tst_SurveyOutline::areaText_data()
{
    QTest::addColumn<double>("squareMetres");
    QTest::addColumn<QString>("text");
    QTest::newRow("garden") << 412.4 << QStringLiteral("412 m\u00b2");
    QTest::newRow("below the limit") << 99'999.4 << QStringLiteral("99999 m\u00b2");
    QTest::newRow("rounded to the limit") << 99'999.6 << QStringLiteral("0.10 km\u00b2");
    QTest::newRow("block") << 3'416'000.0 << QStringLiteral("3.42 km\u00b2");
    QTest::newRow("town") << 34'160'000.0 << QStringLiteral("34.2 km\u00b2");
    QTest::newRow("county") << 3'416'400'000.0 << QStringLiteral("3416 km\u00b2");
}

void tst_SurveyOutline::areaText()
{
    QFETCH(double, squareMetres);
    QTEST(OutlineTexts::area(squareMetres), "text");
}

void tst_SurveyOutline::lengthText_data()
{
    QTest::addColumn<double>("metres");
    QTest::addColumn<QString>("text");
    QTest::newRow("fence") << 812.2 << QStringLiteral("812 m");
    QTest::newRow("rounded to a kilometre") << 999.7 << QStringLiteral("1.00 km");
    QTest::newRow("block") << 7812.0 << QStringLiteral("7.81 km");
    QTest::newRow("county") << 781'200.0 << QStringLiteral("781 km");
}

void tst_SurveyOutline::lengthText()
{
    QFETCH(double, metres);
    QTEST(OutlineTexts::length(metres), "text");
}

void tst_SurveyOutline::linesSayWhatWasFound_data()
{
    QTest::addColumn<SurveyOutline::Check>("check");
    QTest::addColumn<int>("mood");
    QTest::addColumn<QStringList>("texts");
    using Mood = OutlineTexts::Mood;
    const QString measures = QStringLiteral("Area 4.00 km\u00b2, perimeter 8.00 km");
    QTest::newRow("convex") << SurveyOutline::Check{true, false, 4e6, 8000, Splitting::Possible}
                            << int(Mood::Good)
                            << QStringList{"Convex", "Does not cross itself", measures,
                                           "Can be split into parts up to 1.00 km\u00b2"};
    QTest::newRow("bent and small")
        << SurveyOutline::Check{false, false, 4e6, 8000, Splitting::SmallEnough}
        << int(Mood::Doubtful)
        << QStringList{"Not convex", "Does not cross itself", measures,
                       "Need not be split: no larger than one part of 1.00 km\u00b2"};
    QTest::newRow("crossing, though all turns have one sense")
        << SurveyOutline::Check{true, true, 4e6, 8000, Splitting::Crossing} << int(Mood::Bad)
        << QStringList{"Crosses itself", "Perimeter 8.00 km",
                       "Cannot be split while it crosses itself"};
    QTest::newRow("flat") << SurveyOutline::Check{true, false, 4e6, 8000, Splitting::Overlapping}
                          << int(Mood::Good)
                          << QStringList{"Convex", "Does not cross itself", measures,
                                         "Cannot be split: edges lie on one another"};
}

void tst_SurveyOutline::linesSayWhatWasFound()
{
    QFETCH(SurveyOutline::Check, check);
    QStringList texts;
    for (const OutlineTexts::Line& line : OutlineTexts::lines(check, 1e6))
        texts.append(line.text);
    QTEST(texts, "texts");
    QTEST(int(OutlineTexts::mood(check)), "mood");
}

void tst_SurveyOutline::partsLineCounts()
{
    const OutlineTexts::Line line = OutlineTexts::partsLine({QVector<QPolygonF>(7), 857'000});
    QCOMPARE(line.text, QStringLiteral("7 parts, the largest 0.86 km\u00b2"));
    QVERIFY(line.mood == OutlineTexts::Mood::Good);
    const OutlineTexts::Line none = OutlineTexts::partsLine({});
    QCOMPARE(none.text, QStringLiteral("Cannot be split into parts as small as that"));
    QVERIFY(none.mood == OutlineTexts::Mood::Bad);
}

QTEST_GUILESS_MAIN(tst_SurveyOutline)
#include "tst_SurveyOutline.moc"
