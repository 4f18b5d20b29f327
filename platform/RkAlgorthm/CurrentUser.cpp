// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CurrentUser.h"

#include "Constants.h"
#include "ReferenceSettings.h"

#include <QSettings>

#include <optional>

namespace {

std::optional<SRkUserInfo>& chosenUser()
{
    static std::optional<SRkUserInfo> user;
    return user;
}

} // namespace

SRkUserInfo GetCurUserInfo()
{
    if (chosenUser())
        return *chosenUser();
    QSettings settings(OrganizationName, CloundApplicationName);
    settings.beginGroup(UserInfoGroupName);
    SRkUserInfo user;
    user.strUserId = settings.value(UserInfoUserID).toString();
    return user;
}

void SetCurUserInfo(const SRkUserInfo& user)
{
    chosenUser() = user;
}
