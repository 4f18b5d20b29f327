// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockOrder.h"

#include <QRandomGenerator>
#include <QtTest>

using BlockOrder::Row;

namespace {

using Rows = std::vector<Row>;

/// A list of rows that are taken out and put in one at a time, as the rules are told.
class RowList
{
public:
    explicit RowList(const Rows& rows)
        : m_rows(rows)
    {
        for (int i = 0; i < int(rows.size()); ++i)
            m_list.append(i);
    }

    /// Sorts the rows from `begin` to `end` by neighbours that change places.
    template <typename IsBefore>
    void sort(int begin, int end, const IsBefore& isBefore)
    {
        for (int last = end - 1; last > begin; --last) {
            for (int i = begin; i < last; ++i) {
                if (isBefore(row(i + 1), row(i)))
                    m_list.swapItemsAt(i, i + 1);
            }
        }
    }

    int moveDisabledToTheEnd(const QString& notAvailable)
    {
        QList<int> disabled;
        for (int i = 0; i < m_list.size(); ++i) {
            if (row(i).type == notAvailable)
                disabled.append(m_list[i]);
        }
        for (const int index : qAsConst(disabled)) {
            m_list.removeOne(index);
            m_list.append(index);
        }
        return disabled.size();
    }

    int moveToTheFront(const QString& type)
    {
        int count = 0;
        for (int i = 0; i < m_list.size(); ++i) {
            if (row(i).type == type)
                m_list.move(i, count++);
        }
        return count;
    }

    std::vector<int> order() const { return {m_list.cbegin(), m_list.cend()}; }

private:
    const Row& row(int position) const { return m_rows[std::size_t(m_list[position])]; }

    const Rows& m_rows;
    QList<int> m_list;
};

BlockOrder::LoadedOrder literalAfterLoad(const Rows& rows, const QString& notAvailable)
{
    RowList list(rows);
    list.sort(0, int(rows.size()), [](const Row& left, const Row& right) {
        return QString::localeAwareCompare(left.name, right.name) < 0;
    });
    const int disabledCount = list.moveDisabledToTheEnd(notAvailable);
    return {list.order(), disabledCount};
}

std::vector<int> literalByType(const Rows& rows, const std::optional<QString>& chosen)
{
    RowList list(rows);
    const int count = chosen ? list.moveToTheFront(*chosen) : 0;
    list.sort(0, count, [](const Row& left, const Row& right) { return left.name < right.name; });
    list.sort(count, int(rows.size()),
              [](const Row& left, const Row& right) { return left.type < right.type; });
    return list.order();
}

const QStringList names = {"",       "a",   "A",          "B10",    "B2", "Ä", "a ",
                           "\u5317", "北a", "\U0001F681", "\uFF5A", "b",  "Z", "aa"};
const QStringList types = {"N/A", "Quadrotor", "VTOL Light", "", "n/a", "\U0001F681", "\uFF21"};

Rows randomRows(QRandomGenerator& random)
{
    Rows rows;
    const int count = random.bounded(30);
    for (int i = 0; i < count; ++i)
        rows.push_back({names[random.bounded(names.size())], types[random.bounded(types.size())]});
    return rows;
}

} // namespace

class tst_BlockOrder : public QObject
{
    Q_OBJECT

private slots:
    void afterLoad();
    void byType();
    void byTypeOfTheChosen();
    void ofNothing();
    void codeUnitsDecideInAType();
    void asByTheLiteralRules();
};

void tst_BlockOrder::afterLoad()
{
    const auto loaded = BlockOrder::afterLoad(
        {{"c", "X"}, {"b", "N/A"}, {"a", "X"}, {"a", "N/A"}, {"b", "Y"}, {"d", "n/a"}}, "N/A");
    QCOMPARE(loaded.order, std::vector<int>({2, 4, 0, 5, 3, 1}));
    QCOMPARE(loaded.disabledCount, 2);
}

void tst_BlockOrder::byType()
{
    QCOMPARE(BlockOrder::byType({{"c", "Y"}, {"b", "X"}, {"a", "Y"}, {"d", "X"}}, std::nullopt),
             std::vector<int>({1, 3, 0, 2}));
}

void tst_BlockOrder::byTypeOfTheChosen()
{
    const Rows rows = {{"c", "Y"}, {"b", "X"}, {"a", "Y"}, {"d", "X"}, {"e", "W"}};
    QCOMPARE(BlockOrder::byType(rows, QString("Y")), std::vector<int>({2, 0, 4, 1, 3}));
    QCOMPARE(BlockOrder::byType(rows, QString("y")), std::vector<int>({4, 1, 3, 0, 2}));
}

void tst_BlockOrder::ofNothing()
{
    QCOMPARE(BlockOrder::afterLoad({}, "N/A").order, std::vector<int>());
    QCOMPARE(BlockOrder::afterLoad({}, "N/A").disabledCount, 0);
    QCOMPARE(BlockOrder::byType({}, std::nullopt), std::vector<int>());
    QCOMPARE(BlockOrder::byType({}, QString("X")), std::vector<int>());
}

void tst_BlockOrder::codeUnitsDecideInAType()
{
    // Capitals before small letters, digits one by one, and a surrogate before U+FF5A.
    const Rows rows = {{"\uFF5A", "X"}, {"\U0001F681", "X"}, {"a", "X"},
                       {"B", "X"},      {"B10", "X"},        {"B2", "X"}};
    QCOMPARE(BlockOrder::byType(rows, QString("X")), std::vector<int>({3, 4, 5, 2, 1, 0}));
}

void tst_BlockOrder::asByTheLiteralRules()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 3000; ++i) {
        const Rows rows = randomRows(random);
        const auto loaded = BlockOrder::afterLoad(rows, "N/A");
        const auto expected = literalAfterLoad(rows, "N/A");
        QCOMPARE(loaded.order, expected.order);
        QCOMPARE(loaded.disabledCount, expected.disabledCount);

        std::optional<QString> chosen;
        if (random.bounded(4) != 0)
            chosen = types[random.bounded(types.size())];
        QCOMPARE(BlockOrder::byType(rows, chosen), literalByType(rows, chosen));
    }
}

QTEST_GUILESS_MAIN(tst_BlockOrder)
#include "tst_BlockOrder.moc"
