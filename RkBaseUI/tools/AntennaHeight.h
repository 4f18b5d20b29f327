// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <optional>

/// The height of a GNSS antenna on a tripod, from the slant height that the surveyor measures with
/// a tape between the mark on the ground and the edge of the antenna.
///
///                   _ _ phase centre
///                    P
///                   _|_
///                    G
///     edge +---------+  _ _
///           \ radius |
///          L \       | edge height
///             \      |
///              \_____|  _ _ mark
///
/// Edge, axis and mark make a right triangle with L as its longest side, so that the edge is
/// sqrt(L² - radius²) above the mark; the phase centre is higher by the offsets G and P. All
/// lengths are in metres. The functions keep no state and may be called from any thread.
namespace rk {

/// From the antenna's axis to its edge, in metres.
constexpr double antennaRadius = 0.13;

/// How far the edge of the antenna is above the mark, in metres, with the precision of a float.
/// Nothing when the slant height is shorter than the radius. Its sign does not matter; infinity
/// gives infinity and not-a-number itself.
RKBASEUI_EXPORT std::optional<double> antennaEdgeHeight(double slantHeight);

/// How far the phase centre is above the mark, in metres: the edge height and both offsets, which
/// may be of any size and sign. Nothing when there is no edge height.
RKBASEUI_EXPORT std::optional<double> antennaHeight(double slantHeight, double offsetP,
                                                    double offsetG);

} // namespace rk
