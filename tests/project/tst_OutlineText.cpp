// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/OutlineText.h"

#include <QtTest>

using Points = QVector<QPointF>;

class tst_OutlineText : public QObject
{
    Q_OBJECT

private slots:
    void parse_data();
    void parse();
    void heightIsZero();
};

void tst_OutlineText::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Points>("points");
    const Points triangle = {{30.5, 104.1}, {30.6, 104.1}, {30.6, 104.2}};
    QTest::newRow("latitude first") << "30.5,104.1;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("separator at the end") << "30.5,104.1;30.6,104.1;30.6,104.2;" << triangle;
    QTest::newRow("empty pieces") << ";;30.5,104.1;;30.6,104.1;30.6,104.2;;" << triangle;
    QTest::newRow("a piece of one part") << "30.5,104.1;30.55;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("a piece of three parts") << "30.5,104.1;1,2,3;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("an empty part counts as a part")
        << "30.5,104.1;1,2,;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("a part that is missing")
        << "30.5,104.1;1,;,2;,;30.6,104.1;30.6,104.2" << triangle;
    QTest::newRow("words for numbers")
        << "30.5,104.1;north,east;30.6,104.1;30.6,x;30.6,104.2" << triangle;
    QTest::newRow("not finite") << "nan,1;30.5,104.1;inf,2;30.6,104.1;3,-inf;1e999,2;30.6,104.2"
                                << triangle;
    QTest::newRow("blanks around numbers") << " 30.5 , 104.1 ;30.6, 104.1;30.6,104.2 " << triangle;
    QTest::newRow("exponents and signs") << "-3.05e1,+104.1" << Points({{-30.5, 104.1}});
    QTest::newRow("one point") << "30.5,104.1" << Points({{30.5, 104.1}});
    QTest::newRow("empty") << QString() << Points();
    QTest::newRow("no outline at all") << "a project is no outline" << Points();
    QTest::newRow("a comma of another script") << QStringLiteral("30.5\uFF0C104.1") << Points();
}

void tst_OutlineText::parse()
{
    QFETCH(QString, text);
    Points points;
    for (const CRkVector3D& point : parseOutline(text))
        points.append(QPointF(point.x(), point.y()));
    QTEST(points, "points");
}

void tst_OutlineText::heightIsZero()
{
    const std::vector<CRkVector3D> points = parseOutline(QStringLiteral("30.5,104.1;1,2"));
    QCOMPARE(int(points.size()), 2);
    for (const CRkVector3D& point : points)
        QCOMPARE(point.z(), 0.0);
}

QTEST_GUILESS_MAIN(tst_OutlineText)
#include "tst_OutlineText.moc"
