// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// Settings of this process alone while it lives, empty at first and away from those of the person
/// who runs it: in files below a folder or, where settings lie in a registry, under a key that goes
/// with the object. Make it before the first settings are read.
class PrivateSettings
{
public:
    explicit PrivateSettings(const QString& folder);
    ~PrivateSettings();
    Q_DISABLE_COPY(PrivateSettings)

    /// Whether the system lets itself be told.
    bool isValid() const { return m_isValid; }

private:
    bool m_isValid = false;
#ifdef Q_OS_WIN
    QString m_keyName;
    void* m_key = nullptr;
#endif
};
