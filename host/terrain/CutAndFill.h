// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QVariant>

/// Earth that is moved in a cell, cubic metres.
struct CutAndFill
{
    double cut = 0; ///< Taken away.
    double fill = 0; ///< Brought; zero or negative.

    double net() const { return cut + fill; }
};

/// Volumes by the names of their cells. What is no list of two numbers is left out.
///
/// @param volumes a map from name to the list of cut and fill
QHash<QString, CutAndFill> readVolumes(const QVariant& volumes);

/// The largest net volume, without its sign; 0 for none.
double largestNet(const QHash<QString, CutAndFill>& volumes);

/// Warm where more is taken away and cool where more is brought, the fuller the more of `largest`,
/// which is above 0. Half transparent.
QColor volumeColour(double net, double largest);

/// With its sign and, below 10, one decimal: "+128", "−4.5", "0".
QString volumeText(double volume);
