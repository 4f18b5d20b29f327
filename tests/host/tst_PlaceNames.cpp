// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/PlaceNames.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr double provinceScale = 256.0 * 32; // Provinces and cities.
constexpr double cityScale = 256.0 * 256; // Cities alone.

QSizeF sizeOf(const PlaceName& name)
{
    return {name.text.size() * 10.0, 14.0};
}

QStringList chosen(const QVector<PlaceName>& names, double scale)
{
    QStringList texts;
    for (int i : chooseNames(names, scale, sizeOf))
        texts.append(names[i].text);
    return texts;
}

} // namespace

/// Which names the map shows, and how they are written.
class tst_PlaceNames : public QObject
{
    Q_OBJECT

private slots:
    void largerPlacesWin();
    void provincesWinAndGo();
    void placesTooSmallForTheirName();
    void namesNeverCover();
    void manyPlacesFindRoom();
    void namesInLanguages_data();
    void namesInLanguages();
};

void tst_PlaceNames::largerPlacesWin()
{
    const QPointF place(0.5, 0.5);
    QCOMPARE(chosen({{"small", place, 0.01, false}, {"large", place, 0.02, false}}, cityScale),
             QStringList{"large"});
}

void tst_PlaceNames::provincesWinAndGo()
{
    const QVector<PlaceName> names = {{"city", QPointF(0.5, 0.5), 0.5, false},
                                      {"province", QPointF(0.5, 0.5), 0.02, true}};
    QCOMPARE(chosen(names, 256), QStringList{"province"});
    QCOMPARE(chosen(names, provinceScale).first(), QStringLiteral("province"));
    QCOMPARE(chosen(names, cityScale), QStringList{"city"});
}

void tst_PlaceNames::placesTooSmallForTheirName()
{
    const QVector<PlaceName> names = {{"city", QPointF(0.5, 0.5), 30 / cityScale, false}};
    QVERIFY(chosen(names, cityScale).isEmpty());
    QCOMPARE(chosen(names, cityScale * 2), QStringList{"city"});
}

void tst_PlaceNames::namesNeverCover()
{
    QRandomGenerator random(5);
    QVector<PlaceName> names;
    for (int i = 0; i < 400; ++i) {
        names.append({QStringLiteral("place %1").arg(i),
                      QPointF(0.5 + random.bounded(0.02), 0.5 + random.bounded(0.02)), 1, false});
    }
    QVector<QRectF> taken;
    const QVector<int> shown = chooseNames(names, cityScale, sizeOf);
    QVERIFY(shown.size() > 20);
    for (int i : shown) {
        const QRectF rect = nameRect(names[i], sizeOf(names[i]), names[i].place * cityScale);
        for (const QRectF& other : qAsConst(taken))
            QVERIFY(!rect.intersects(other));
        taken.append(rect);
    }
}

void tst_PlaceNames::manyPlacesFindRoom()
{
    QVector<PlaceName> names;
    QRandomGenerator random(6);
    for (int i = 0; i < 10'000; ++i)
        names.append(
            {QStringLiteral("place"), QPointF(random.bounded(1.0), random.bounded(1.0)), 1, false});
    const QVector<int> shown = chooseNames(names, cityScale, sizeOf);
    QVERIFY(shown.size() > 9'000); // Nearly all find room on a map of this size.
}

void tst_PlaceNames::namesInLanguages_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("chinese");
    const auto row = [](const char* tag, const char* name, const char* english,
                        const char* chinese) {
        QTest::newRow(tag) << QString::fromUtf8(name) << QString::fromUtf8(english)
                           << QString::fromUtf8(chinese);
    };
    row("both", "Chengdu 成都市", "Chengdu", "成都市");
    row("several words", "Inner Mongolia 内蒙古", "Inner Mongolia", "内蒙古");
    row("with a province", "Suzhou (Anhui) 宿州市", "Suzhou (Anhui)", "宿州市");
    row("Latin only", "Chengdu", "Chengdu", "Chengdu");
    row("Chinese only", "成都市", "成都市", "成都市");
    row("two Latin words", "Hong Kong", "Hong Kong", "Hong Kong");
    row("empty", "", "", "");
}

void tst_PlaceNames::namesInLanguages()
{
    QFETCH(QString, name);
    QTEST(nameInLanguage(name, false), "english");
    QTEST(nameInLanguage(name, true), "chinese");
}

QTEST_GUILESS_MAIN(tst_PlaceNames)
#include "tst_PlaceNames.moc"
