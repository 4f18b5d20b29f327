// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/BlockOrder.h"

#include <algorithm>
#include <numeric>

namespace BlockOrder {

namespace {

using Position = std::vector<int>::iterator;

void sortBy(QString Row::*text, const std::vector<Row>& rows, Position begin, Position end)
{
    std::stable_sort(begin, end, [&](int left, int right) {
        return rows[std::size_t(left)].*text < rows[std::size_t(right)].*text;
    });
}

std::vector<int> indicesOf(const std::vector<Row>& rows)
{
    std::vector<int> indices(rows.size());
    std::iota(indices.begin(), indices.end(), 0);
    return indices;
}

} // namespace

LoadedOrder afterLoad(const std::vector<Row>& rows, const QString& notAvailable)
{
    std::vector<int> order = indicesOf(rows);
    std::stable_sort(order.begin(), order.end(), [&](int left, int right) {
        return rows[std::size_t(left)].name.localeAwareCompare(rows[std::size_t(right)].name) < 0;
    });
    const auto firstDisabled = std::stable_partition(order.begin(), order.end(), [&](int row) {
        return rows[std::size_t(row)].type != notAvailable;
    });
    const auto disabledCount = int(order.end() - firstDisabled);
    return {std::move(order), disabledCount};
}

std::vector<int> byType(const std::vector<Row>& rows, const std::optional<QString>& chosen)
{
    std::vector<int> order = indicesOf(rows);
    auto others = order.begin();
    if (chosen) {
        others = std::stable_partition(order.begin(), order.end(), [&](int row) {
            return rows[std::size_t(row)].type == *chosen;
        });
    }
    sortBy(&Row::name, rows, order.begin(), others);
    sortBy(&Row::type, rows, others, order.end());
    return order;
}

} // namespace BlockOrder
