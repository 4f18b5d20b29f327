// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkData/ReferenceSettings.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

namespace HostSettings {

void setProjectRoot(const QString& folder)
{
    SetProjectDirPath(folder);
}

void setCurrentUser(const QString& userId)
{
    QSettings settings(OrganizationName, CloundApplicationName);
    settings.beginGroup(UserInfoGroupName);
    settings.setValue(UserInfoUserID, userId);
}

bool canUseFolder()
{
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
    return false;
#else
    return true;
#endif
}

void useFolder(const QString& folder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

void installLanguage(const QString& language)
{
    if (!language.startsWith(QLatin1String("zh")))
        return;
    QCoreApplication* application = QCoreApplication::instance();
    // Menus of text fields and the like; not every system brings them.
    auto* toolkit = new QTranslator(application);
    if (toolkit->load(QStringLiteral("qtbase_zh_CN"),
                      QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(toolkit);
    for (const char* name : {"RkBaseUI_zh_CN", "RkSurveyHost_zh_CN"}) {
        QTranslator* translator = CreateTranslator(QString::fromLatin1(name));
        translator->setParent(application);
        QCoreApplication::installTranslator(translator);
    }
}

} // namespace HostSettings
