// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/CurrentUser.h>
#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QByteArray>

// What a host's settings page or a test adjusts in this implementation. A value set here wins over
// the environment, and that over the default. Not thread-safe: call from the GUI thread.

/// Base address of the web service; trailing slashes are dropped. An empty address takes the value
/// back.
RKALGORTHM_EXPORT void SetServerIP(const QByteArray& address);

/// The current user, until the process ends. The settings are not written.
RKALGORTHM_EXPORT void SetCurUserInfo(const SRkUserInfo& user);
