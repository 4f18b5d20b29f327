// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QStringList>

/// Degrees, minutes and seconds as one text, "30° 34′ 22.1336″ N".
///
/// @param parts three numbers as texts; one below zero makes the whole negative
/// @param positive,negative letter of the half of the earth
QString angleText(const QStringList& parts, QChar positive, QChar negative);
