// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkProjectDbOperator/RkProjectDbOperatorExport.h>

// What a host's settings page or a test adjusts in this implementation. Not thread-safe: call from
// the GUI thread.

/// How long an upload may stand still before it fails, in milliseconds; for the posts from here on.
/// One minute at first. 0 or less waits without limit.
RKPROJECTDBOPERATOR_EXPORT void SetUploadTimeout(int milliseconds);
