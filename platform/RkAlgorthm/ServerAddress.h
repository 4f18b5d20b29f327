// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QByteArray>

/// Base address of the web service: scheme, host and port without a trailing slash. The environment
/// variable RK_SERVER_IP stands in for the default, http://127.0.0.1:8080.
RKALGORTHM_EXPORT QByteArray GetServerIP();
