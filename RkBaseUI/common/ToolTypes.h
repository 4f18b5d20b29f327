// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// Tools of the host application and the kinds they belong to, as plain numbers:
///
/// | kind | tools |
/// |---|---|
/// | 1 | 1, 2, 15, 24, 29 |
/// | 2 | 3 to 14, 16, 17, 31 |
/// | 3 | 19, 20 |
/// | 4 | 21, 22, 23 |
/// | 5 | 25 |
/// | 0 | all others |
///
/// Both types are complete here; a host that wants names for the values defines the enumerators
/// itself:
///
///     enum EToolKind : int { NoKind = 0, DrawKind = 1 };
enum EToolType : int;
enum EToolKind : int;
