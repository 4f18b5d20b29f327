// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// The style sheets of the host's frame.
namespace HostStyle {

/// Of the main window: tool bar and docks.
QString window();

} // namespace HostStyle
