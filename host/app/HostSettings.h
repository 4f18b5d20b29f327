// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// What the host tells the library before it makes the first window.
namespace HostSettings {

/// The folder that holds the projects.
void setProjectRoot(const QString& folder);

/// Whose projects are shown, and who sends something to the web service. Written to the settings,
/// where the library reads it. The token of his login is what RK_SERVER_TOKEN has in the
/// environment; without that his id, because this application has no login of its own.
void setCurrentUser(const QString& userId);

/// Empty when there is none.
QString currentUser();

/// Whether this system keeps native settings in files, so that `useFolder` works.
bool canUseFolder();

/// Keeps all settings of this process in files below the folder, away from those of the person who
/// runs it. Call before the first settings are read.
void useFolder(const QString& folder);

/// Installs the texts of library, host and toolkit in a language, "zh_CN" or "en", instead of those
/// installed before. Windows hear of it by QEvent::LanguageChange.
void installLanguage(const QString& language);

/// The language installed last; "en" before.
QString language();

} // namespace HostSettings
