// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkAlgorthm/CurrentUser.h>
#include <RkAlgorthm/ReferenceSettings.h>

#include <QtTest>

#include <memory>

class tst_CurrentUser : public QObject
{
    Q_OBJECT

private slots:
    void eachHomeHasSettingsOfItsOwn();
    void comesFromTheSettingsUntilSet();
};

void tst_CurrentUser::eachHomeHasSettingsOfItsOwn()
{
    auto home = std::make_unique<TestHome>();
    QCOMPARE(GetCurUserInfo().strUserId, QString());
    home->setCurrentUserId(QStringLiteral("user-1"));
    QCOMPARE(GetCurUserInfo().strUserId, QStringLiteral("user-1"));

    home = std::make_unique<TestHome>(); // The new one is there before the old one goes.
    QCOMPARE(GetCurUserInfo().strUserId, QString());
    home->setCurrentUserId(QStringLiteral("user-2"));
    QCOMPARE(GetCurUserInfo().strUserId, QStringLiteral("user-2"));
#ifdef Q_OS_WIN
    home.reset();
    QVERIFY(GetCurUserInfo().strUserId != QStringLiteral("user-2")); // Never the user's own.
#endif
}

void tst_CurrentUser::comesFromTheSettingsUntilSet()
{
    TestHome home;
    QCOMPARE(GetCurUserInfo().strUserId, QString());

    home.setCurrentUserId(QStringLiteral("user-1"));
    QCOMPARE(GetCurUserInfo().strUserId, QStringLiteral("user-1"));
    QCOMPARE(GetCurUserInfo().strToken, QString());
    QCOMPARE(GetCurUserInfo().strUserName, QString());

    SetCurUserInfo({QStringLiteral("token"), QStringLiteral("user-2"), QStringLiteral("Ann")});
    QCOMPARE(GetCurUserInfo().strToken, QStringLiteral("token"));
    QCOMPARE(GetCurUserInfo().strUserId, QStringLiteral("user-2"));
    QCOMPARE(GetCurUserInfo().strUserName, QStringLiteral("Ann"));

    // Nobody logged in is a choice too.
    SetCurUserInfo(SRkUserInfo());
    QCOMPARE(GetCurUserInfo().strUserId, QString());
}

QTEST_GUILESS_MAIN(tst_CurrentUser)
#include "tst_CurrentUser.moc"
