// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// Tools of the host application and the kinds they belong to, as plain numbers. Both types are
/// complete here; a host that wants names for the values defines the enumerators itself:
///
///     enum EToolKind : int { NoKind = 0, DrawKind = 1 };
enum EToolType : int;
enum EToolKind : int;
