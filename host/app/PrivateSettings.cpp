// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/PrivateSettings.h"

#include "app/HostSettings.h"

#ifdef Q_OS_WIN

#include <QUuid>

#include <windows.h>

PrivateSettings::PrivateSettings(const QString& /*folder*/)
    : m_keyName(QStringLiteral("Software\\RkSurveyHost") + QUuid::createUuid().toString())
{
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, m_keyName.toStdWString().c_str(), 0, nullptr, 0,
                        KEY_ALL_ACCESS, nullptr, &key, nullptr)
        != ERROR_SUCCESS)
        return;
    m_key = key;
    m_isValid = RegOverridePredefKey(HKEY_CURRENT_USER, key) == ERROR_SUCCESS;
}

PrivateSettings::~PrivateSettings()
{
    if (!m_key)
        return;
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(static_cast<HKEY>(m_key));
    RegDeleteTreeW(HKEY_CURRENT_USER, m_keyName.toStdWString().c_str());
}

#else

PrivateSettings::PrivateSettings(const QString& folder)
    : m_isValid(HostSettings::canUseFolder())
{
    if (m_isValid)
        HostSettings::useFolder(folder);
}

PrivateSettings::~PrivateSettings() = default;

#endif
