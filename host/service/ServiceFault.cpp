// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/ServiceFault.h"

#include <algorithm>
#include <iterator>

namespace {

struct NamedFault
{
    const char* name;
    ServiceFault fault;
};

const NamedFault namedFaults[] = {
    {"delay", {ServiceFault::Delay, 1000}},
    {"stall", {ServiceFault::Stall, 60000}},
    {"cut", {ServiceFault::Cut, 0}},
    {"500", {ServiceFault::ServerError, 0}},
    {"401", {ServiceFault::Unauthorized, 0}},
    {"garbage", {ServiceFault::Garbage, 0}},
    {"trickle", {ServiceFault::Trickle, 1000}},
};

} // namespace

std::optional<ServiceFault> parseServiceFault(const QString& text)
{
    const QString name = text.section(QLatin1Char(':'), 0, 0);
    const auto found = std::find_if(
        std::begin(namedFaults), std::end(namedFaults),
        [&name](const NamedFault& named) { return name == QLatin1String(named.name); });
    if (found == std::end(namedFaults))
        return std::nullopt;
    ServiceFault fault = found->fault;
    if (!text.contains(QLatin1Char(':')))
        return fault;
    bool isNumber = false;
    const bool hasTime = fault.milliseconds > 0;
    fault.milliseconds = text.section(QLatin1Char(':'), 1).toInt(&isNumber);
    if (!hasTime || !isNumber || fault.milliseconds < 0)
        return std::nullopt;
    return fault;
}
