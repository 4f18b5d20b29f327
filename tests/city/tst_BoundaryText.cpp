// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/BoundaryText.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QtTest>

#include <cstring>

namespace {

/// The format by its definition, step by step.
QPolygonF literalBoundary(const QString& text)
{
    QPolygonF boundary;
    for (const QString& part : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList fields = part.split(QLatin1Char(','), Qt::SkipEmptyParts);
        if (fields.size() < 2)
            continue;
        bool xValid = false;
        bool yValid = false;
        const double x = fields.at(1).toDouble(&xValid);
        const double y = fields.at(0).toDouble(&yValid);
        if (xValid && yValid)
            boundary.append(QPointF(x, y));
    }
    return boundary;
}

/// Compares bits, so that not-a-number equals itself and minus zero differs from zero.
bool sameBits(const QPolygonF& a, const QPolygonF& b)
{
    return a.size() == b.size()
        && (a.isEmpty()
            || std::memcmp(a.constData(), b.constData(), sizeof(QPointF) * std::size_t(a.size()))
                == 0);
}

const QStringList hostileFields = {"",
                                   " ",
                                   "\t",
                                   "0",
                                   "-0",
                                   "-0.0",
                                   "+1",
                                   "1.",
                                   ".5",
                                   "-.5",
                                   "-",
                                   "+",
                                   ".",
                                   "-.",
                                   "--1",
                                   "1-",
                                   "1.2.3",
                                   "1e5",
                                   "1E5",
                                   "1e",
                                   "1e+",
                                   "1e-3",
                                   "1e999",
                                   "-1e999",
                                   "1e-999",
                                   "0e999",
                                   "nan",
                                   "NaN",
                                   "+nan",
                                   "-nan",
                                   "inf",
                                   "-inf",
                                   "+inf",
                                   "INF",
                                   "infinity",
                                   "0x10",
                                   "010",
                                   "007.250",
                                   "1_000",
                                   "1 000",
                                   " 1.5",
                                   "1.5 ",
                                   "\n1.5\r\n",
                                   "1.5x",
                                   "x1.5",
                                   "116.3",
                                   "39.9",
                                   "-116.30000",
                                   "123456789012345",
                                   "1234567890123456",
                                   "0.123456789012345",
                                   "0.1234567890123456789",
                                   "9007199254740993",
                                   "99999999999999999999",
                                   "18446744073709551616",
                                   "18446744073709551617.5",
                                   "000000000000000000000001.5",
                                   "0.0000000000000000000000015",
                                   "4.9e-324",
                                   "2e-324",
                                   "1.7976931348623157e308",
                                   "179769313486231580000",
                                   "\u0661\u0662",
                                   "\uff11\uff12",
                                   "1\u00a05",
                                   "\u00a01.5\u3000",
                                   "\u22121",
                                   "1,5",
                                   "%1",
                                   "'",
                                   "\"1\"",
                                   "abc",
                                   "1d",
                                   "1f",
                                   "0b1",
                                   "1L",
                                   "\u4eac"};

QPolygonF polygonOf(const QVector<QPointF>& points)
{
    return QPolygonF(points);
}

QString repeated(const QString& text, int times)
{
    return text.repeated(times);
}

} // namespace

class tst_BoundaryText : public QObject
{
    Q_OBJECT

private slots:
    void readsPoints_data();
    void readsPoints();
    void readsAnyFieldAsToDouble_data();
    void readsAnyFieldAsToDouble();
    void readsFieldWithZeroCharacter();
    void readsFieldWithByteOrderMark();
    void readsRandomTextsLiterally();
    void readsRandomNumbersExactly();
    void readsHugeText();
};

void tst_BoundaryText::readsPoints_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPolygonF>("expected");

    const QPolygonF triangle = polygonOf({{39.9, 116.3}, {39.9, 116.5}, {40.1, 116.5}});
    const QPolygonF point = polygonOf({{39.9, 116.3}});
    QTest::newRow("latitude becomes x") << "116.3,39.9;116.5,39.9;116.5,40.1" << triangle;
    QTest::newRow("empty") << "" << QPolygonF();
    QTest::newRow("separators alone") << ";,;;,,;" << QPolygonF();
    QTest::newRow("empty parts dropped") << ";;116.3,39.9;;116.5,39.9;116.5,40.1;" << triangle;
    QTest::newRow("empty fields dropped") << ",116.3,,39.9,;116.5,39.9;116.5,40.1" << triangle;
    QTest::newRow("further fields ignored")
        << "116.3,39.9,5;116.5,39.9,x,y;116.5,40.1,," << triangle;
    QTest::newRow("lone field skipped")
        << "116.3;116.3,39.9;39.9,;116.5,39.9;116.5,40.1" << triangle;
    QTest::newRow("bad numbers skipped")
        << "116.3,39.9;a,39.9;116.5,39.9;116.5,b;116.5,40.1" << triangle;
    QTest::newRow("blanks around numbers") << " 116.3 , 39.9 ;116.5,39.9; 116.5,40.1 " << triangle;
    QTest::newRow("blank field is a bad number") << "116.3, ,39.9;116.3,39.9" << point;
    QTest::newRow("blank point") << " ;116.3,39.9" << point;
    QTest::newRow("exponents and signs") << "+1.163e2,-399e-1" << polygonOf({{-39.9, 116.3}});
    QTest::newRow("repeated points kept") << "1,2;1,2" << polygonOf({{2, 1}, {2, 1}});
}

void tst_BoundaryText::readsPoints()
{
    QFETCH(QString, text);
    QFETCH(QPolygonF, expected);
    QVERIFY(sameBits(parseBoundary(text), expected));
    QVERIFY(sameBits(literalBoundary(text), expected));
}

void tst_BoundaryText::readsAnyFieldAsToDouble_data()
{
    QTest::addColumn<QString>("field");
    for (const QString& field : hostileFields)
        QTest::newRow(qPrintable('[' + field.toUtf8().toPercentEncoding() + ']')) << field;
}

void tst_BoundaryText::readsAnyFieldAsToDouble()
{
    QFETCH(QString, field);
    for (const char* pattern : {"%1,2.5", "2.5,%1", "1,2;%1,%1;3,4", "1,2,%1", "%1", "%1,%1,"}) {
        const QString text = QString(pattern).arg(field);
        QVERIFY2(sameBits(parseBoundary(text), literalBoundary(text)), qPrintable(text));
    }
}

void tst_BoundaryText::readsFieldWithZeroCharacter()
{
    for (const char* field : {"1|5", "1|", "|1", "|"}) {
        const QString text = QString("1,2;" + QString(field) + ",3;4,5").replace('|', QChar(0));
        QVERIFY(sameBits(parseBoundary(text), literalBoundary(text)));
    }
}

/// A byte order mark is a character like any other. Obeyed, the first kind would vanish from its
/// number, and the second turn the foreign letter behind it into "1".
void tst_BoundaryText::readsFieldWithByteOrderMark()
{
    for (const char16_t mark : {u'\xfeff', u'\xfffe'}) {
        for (const char* field : {"|1.5", "1.5|", "|", "|\u3100"}) {
            const QString text =
                QString("1,2;" + QString(field) + ",3;4,5").replace('|', QChar(mark));
            QCOMPARE(literalBoundary(text), polygonOf({{2, 1}, {5, 4}}));
            QVERIFY2(sameBits(parseBoundary(text), literalBoundary(text)), qPrintable(text));
        }
    }
}

void tst_BoundaryText::readsRandomTextsLiterally()
{
    QRandomGenerator random(1);
    int points = 0;
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (int i = random.bounded(12); i >= 0; --i) {
            text += random.bounded(3) == 0
                ? hostileFields.at(random.bounded(hostileFields.size()))
                : QString::number(random.bounded(180.0), 'f', random.bounded(18));
            text += QString(",;,;,;,;,, .-+e;")[random.bounded(16)];
        }
        const QPolygonF expected = literalBoundary(text);
        points += expected.size();
        QVERIFY2(sameBits(parseBoundary(text), expected), qPrintable(text));
    }
    QVERIFY(points > 5000);
}

void tst_BoundaryText::readsRandomNumbersExactly()
{
    QRandomGenerator random(2);
    for (int round = 0; round < 200000; ++round) {
        const QString number = QString::number(random.generate64() % 2000000000000000ULL)
                                   .insert(random.bounded(1, 4), '.');
        const QPolygonF expected = polygonOf({{-number.toDouble(), number.toDouble()}});
        QVERIFY2(sameBits(parseBoundary(QString(number + ",-" + number)), expected),
                 qPrintable(number));
    }
}

void tst_BoundaryText::readsHugeText()
{
    QCOMPARE(parseBoundary(repeated("116.3,39.9;", 1000000)).size(), 1000000);
    QCOMPARE(parseBoundary(repeated("7", 5000000)).size(), 0);
    const QString longNumber = "0." + repeated("3", 100000);
    QVERIFY(
        sameBits(parseBoundary(QString(longNumber + ",1")), literalBoundary(longNumber + ",1")));
    QCOMPARE(parseBoundary(repeated(",", 5000000)).size(), 0);
}

QTEST_GUILESS_MAIN(tst_BoundaryText)
#include "tst_BoundaryText.moc"
