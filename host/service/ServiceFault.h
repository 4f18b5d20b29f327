// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

#include <optional>

/// What the web service does wrong on purpose, with every request.
struct ServiceFault
{
    enum Kind {
        None,
        Delay, ///< does and answers everything later, by `milliseconds`
        Stall, ///< does nothing and says nothing for `milliseconds`, then 503
        Cut, ///< closes the connection after half of the answer's body
        ServerError, ///< does nothing and answers 500
        Unauthorized, ///< does nothing and answers 401
        Garbage, ///< answers 200 with bytes that are no JSON
        Trickle, ///< sends the answer's body byte by byte, `milliseconds` apart
    };

    Kind kind = None;
    int milliseconds = 0;
};

/// A fault from its name, "delay", "stall", "cut", "500", "401", "garbage" or "trickle". The time
/// of the first two and the last may follow, as in "delay:1500"; it is 1 s, 1 min and 1 s
/// otherwise. Nothing for any other text.
std::optional<ServiceFault> parseServiceFault(const QString& text);
