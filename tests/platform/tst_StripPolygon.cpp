// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/CRkCreateAirline.h>
#include <RkAlgorthm/StripPolygon.h>

#include <QtTest>

#include <cmath>
#include <random>

using Points = std::vector<CRkPoint2D>;

Q_DECLARE_METATYPE(Points)

namespace {

bool areNear(const Points& a, const Points& b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::hypot(a[i].x() - b[i].x(), a[i].y() - b[i].y()) > 1e-9)
            return false;
    }
    return true;
}

} // namespace

class tst_StripPolygon : public QObject
{
    Q_OBJECT

private slots:
    void outline_data();
    void outline();
    void folds_data();
    void folds();
    void outlineWithoutProblemsIsSimple();
    void refused_data();
    void refused();
    void orderOfOffsets();
};

void tst_StripPolygon::outline_data()
{
    QTest::addColumn<Points>("line");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<Points>("expected");
    const double slope = std::sqrt(0.5);
    QTest::newRow("eastwards") << Points({{0, 0}, {10, 0}}) << -1.0 << 2.0
                               << Points({{0, 1}, {10, 1}, {10, -2}, {0, -2}});
    QTest::newRow("northwards") << Points({{0, 0}, {0, 10}}) << -1.0 << 2.0
                                << Points({{-1, 0}, {-1, 10}, {2, 10}, {2, 0}});
    QTest::newRow("both to the left")
        << Points({{0, 0}, {10, 0}}) << -3.0 << -1.0 << Points({{0, 3}, {10, 3}, {10, 1}, {0, 1}});
    QTest::newRow("both to the right") << Points({{0, 0}, {10, 0}}) << 1.0 << 3.0
                                       << Points({{0, -1}, {10, -1}, {10, -3}, {0, -3}});
    QTest::newRow("straight vertex")
        << Points({{0, 0}, {5, 0}, {10, 0}}) << -1.0 << 1.0
        << Points({{0, 1}, {5, 1}, {10, 1}, {10, -1}, {5, -1}, {0, -1}});
    QTest::newRow("repeated points") << Points({{0, 0}, {0, 0}, {10, 0}, {10, 0}}) << -1.0 << 1.0
                                     << Points({{0, 1}, {10, 1}, {10, -1}, {0, -1}});
    QTest::newRow("left turn, mitred")
        << Points({{0, 0}, {10, 0}, {10, 10}}) << -1.0 << 2.0
        << Points({{0, 1}, {9, 1}, {9, 10}, {12, 10}, {12, -2}, {0, -2}});
    QTest::newRow("right turn, mitred")
        << Points({{0, 0}, {10, 0}, {10, -10}}) << -1.0 << 2.0
        << Points({{0, 1}, {11, 1}, {11, -10}, {8, -10}, {8, -2}, {0, -2}});
    // Left by 135 degrees: bevelled outside, the inner corner is 1 + sqrt(2) from the vertex along
    // each side.
    QTest::newRow("sharp left turn, bevelled") << Points({{0, 0}, {10, 0}, {0, 10}}) << -1.0 << 1.0
                                               << Points({{0, 1},
                                                          {10 - 1 - std::sqrt(2), 1},
                                                          {-slope, 10 - slope},
                                                          {slope, 10 + slope},
                                                          {10 + slope, slope},
                                                          {10, -1},
                                                          {0, -1}});
}

void tst_StripPolygon::outline()
{
    QFETCH(Points, line);
    QFETCH(double, left);
    QFETCH(double, right);
    QFETCH(Points, expected);
    Points outline = {{7, 7}};
    QList<int> problems = {7};
    QVERIFY(CreateStripPolygon(line, left, right, outline, problems));
    QVERIFY(areNear(outline, expected));
    QCOMPARE(problems, QList<int>());
}

void tst_StripPolygon::folds_data()
{
    QTest::addColumn<Points>("line");
    QTest::addColumn<QList<int>>("problems");
    using Indices = QList<int>;
    QTest::newRow("there and back") << Points({{0, 0}, {100, 0}, {0, 0}}) << Indices({0, 1, 2});
    QTest::newRow("hairpin") << Points({{0, 0}, {100, 0}, {0, 1}}) << Indices({0, 1, 2});
    QTest::newRow("hairpin with room in its bend")
        << Points({{0, 0}, {100, 0}, {100, 21}, {0, 21}}) << Indices();
    QTest::newRow("hairpin without room in its bend")
        << Points({{0, 0}, {100, 0}, {100, 19}, {0, 19}}) << Indices({0, 1, 2, 3});
    QTest::newRow("step shorter than the strip is wide")
        << Points({{0, 0}, {100, 0}, {100, 5}, {200, 5}}) << Indices();
    QTest::newRow("bend tighter than the strip, far from its ends")
        << Points({{0, 0}, {100, 0}, {105, 2}, {105, 7}, {100, 100}}) << Indices({0, 1, 2, 3, 4});
    QTest::newRow("crosses itself")
        << Points({{0, 0}, {200, 0}, {200, 100}, {100, 100}, {100, -100}}) << Indices({0, 1, 3, 4});
    QTest::newRow("comes back beside itself")
        << Points({{0, 0}, {200, 0}, {200, 100}, {0, 15}}) << Indices({0, 1, 2, 3});
    QTest::newRow("ends in the bevel of a sharp corner")
        << Points({{0, 0}, {100, 0}, {0, 100}, {0, 200}, {300, 200}, {300, -6}, {101, -6}})
        << Indices({0, 1, 5, 6});
    QTest::newRow("ends beside the bevel of a sharp corner")
        << Points({{0, 0}, {100, 0}, {0, 100}, {0, 200}, {300, 200}, {300, -6}, {109, -6}})
        << Indices();
    QTest::newRow("repeated points keep their numbers")
        << Points({{-500, 0}, {-500, 0}, {0, 0}, {0, 0}, {100, 0}, {100, 19}, {0, 19}})
        << Indices({2, 4, 5, 6});
}

void tst_StripPolygon::folds()
{
    QFETCH(Points, line);
    Points outline;
    QList<int> problems;
    QVERIFY(CreateStripPolygon(line, -10, 10, outline, problems));
    QVERIFY(outline.size() >= 4);
    QTEST(problems, "problems");
}

void tst_StripPolygon::outlineWithoutProblemsIsSimple()
{
    std::mt19937 engine(6);
    const auto random = [&engine](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine);
    };
    constexpr int count = 15000;
    int folded = 0;
    for (int i = 0; i < count; ++i) {
        Points line = {{0, 0}};
        for (int segments = int(random(1, 9)); segments > 0; --segments) {
            const double angle = random(0, 6.283185307179586);
            const double length = std::pow(10, random(1.3, 2.2));
            line.emplace_back(line.back().x() + length * std::cos(angle),
                              line.back().y() + length * std::sin(angle));
        }
        const double left = random(-20, -1);
        const double right = random(1, 20);
        Points outline;
        QList<int> problems;
        QVERIFY(CreateStripPolygon(line, left, right, outline, problems));
        folded += problems.isEmpty() ? 0 : 1;
        // What can be split is simple.
        QVERIFY(!problems.isEmpty() || IsBlockPloyCanSegment(outline, 1e-3));
    }
    QVERIFY(folded > count / 10 && folded < count * 9 / 10);
}

void tst_StripPolygon::refused_data()
{
    QTest::addColumn<Points>("line");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    const Points line = {{0, 0}, {10, 0}};
    QTest::newRow("no points") << Points() << -1.0 << 1.0;
    QTest::newRow("one point") << Points({{1, 1}}) << -1.0 << 1.0;
    QTest::newRow("one place") << Points({{1, 1}, {1, 1}}) << -1.0 << 1.0;
    QTest::newRow("no width") << line << 1.0 << 1.0;
    QTest::newRow("offset not a number") << line << qQNaN() << 1.0;
    QTest::newRow("offset infinite") << line << -1.0 << qInf();
    QTest::newRow("point not a number") << Points({{0, 0}, {10, qQNaN()}}) << -1.0 << 1.0;
}

void tst_StripPolygon::refused()
{
    QFETCH(Points, line);
    QFETCH(double, left);
    QFETCH(double, right);
    Points outline = {{7, 7}};
    QList<int> problems = {7};
    QVERIFY(!CreateStripPolygon(line, left, right, outline, problems));
    QVERIFY(outline.empty());
    QVERIFY(problems.isEmpty());
}

void tst_StripPolygon::orderOfOffsets()
{
    const Points line = {{0, 0}, {10, 0}, {20, 10}};
    Points outline;
    Points swapped;
    QList<int> problems;
    QVERIFY(CreateStripPolygon(line, -1, 2, outline, problems));
    QVERIFY(CreateStripPolygon(line, 2, -1, swapped, problems));
    QVERIFY(outline == swapped);
}

QTEST_GUILESS_MAIN(tst_StripPolygon)
#include "tst_StripPolygon.moc"
