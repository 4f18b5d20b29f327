// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/SharedHelpers.h>
#include <RkData/ReferenceSettings.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <memory>

namespace HostSettings {

namespace {

const QString translatorName = QStringLiteral("hostTranslator");
const char* const languageProperty = "hostLanguage";

} // namespace

void setProjectRoot(const QString& folder)
{
    SetProjectDirPath(folder);
}

void setCurrentUser(const QString& userId)
{
    QSettings settings(OrganizationName, CloundApplicationName);
    settings.beginGroup(UserInfoGroupName);
    settings.setValue(UserInfoUserID, userId);
    SetCurUserInfo({qEnvironmentVariable("RK_SERVER_TOKEN", userId), userId, QString()});
}

QString currentUser()
{
    QSettings settings(OrganizationName, CloundApplicationName);
    settings.beginGroup(UserInfoGroupName);
    return settings.value(UserInfoUserID).toString();
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
    QCoreApplication* application = QCoreApplication::instance();
    const auto old = application->findChildren<QTranslator*>(translatorName);
    qDeleteAll(old); // Each takes itself out of the application.
    application->setProperty(languageProperty, language);
    QLocale::setDefault(QLocale(language)); // The names of months and days.
    if (!language.startsWith(QLatin1String("zh")))
        return;
    const auto install = [application](QTranslator* translator) {
        translator->setObjectName(translatorName);
        translator->setParent(application);
        QCoreApplication::installTranslator(translator);
    };
    // Menus of text fields and the like; not every system brings them.
    auto toolkit = std::make_unique<QTranslator>();
    if (toolkit->load(QStringLiteral("qtbase_zh_CN"),
                      QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        install(toolkit.release());
    for (const char* name : {"RkBaseUI_zh_CN", "RkSurveyHost_zh_CN"})
        install(CreateTranslator(QString::fromLatin1(name)));
}

QString language()
{
    const QString installed = QCoreApplication::instance()->property(languageProperty).toString();
    return installed.isEmpty() ? QStringLiteral("en") : installed;
}

} // namespace HostSettings
