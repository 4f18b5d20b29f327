// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthmExport.h>

#include <QString>

/// The user who is logged in.
struct SRkUserInfo
{
    QString strToken; ///< of the login at the web service; empty without one
    QString strUserId;
    QString strUserName;
};

/// The current user. Unless the host has set one, the id is the one in the settings (see
/// UserInfoUserID) and the rest is empty.
RKALGORTHM_EXPORT SRkUserInfo GetCurUserInfo();
