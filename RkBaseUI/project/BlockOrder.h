// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

#include <optional>
#include <vector>

/// The orders of the block table, as computation on the texts of its rows. Rows of equal texts keep
/// their order. An order is given as the present rows' indices in their new sequence.
namespace BlockOrder {

/// What of a row the orders look at.
struct Row
{
    QString name;
    QString type; ///< The text of the column in question.
};

struct LoadedOrder
{
    std::vector<int> order;
    int disabledCount = 0; ///< Rows at the end that are disabled.
};

/// By name as the user's language has it, like items of a tree; then those whose type is the text
/// for "none", which are disabled.
LoadedOrder afterLoad(const std::vector<Row>& rows, const QString& notAvailable);

/// The rows of the chosen type by name, then the others by type. Without one, all by type.
std::vector<int> byType(const std::vector<Row>& rows, const std::optional<QString>& chosen);

} // namespace BlockOrder
