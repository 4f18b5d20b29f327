// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QGuiApplication>
#include <QProcess>
#include <QTest>

/// Whether this process draws at `scale` pixels per unit, which is fixed when it starts. Where it
/// does not, runs the current row of the current test in a process that does, and the test fails
/// with it.
inline bool isAtScale(int scale)
{
    if (qRound(qApp->devicePixelRatio()) == scale)
        return true;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString mark = QStringLiteral("RK_TEST_INNER");
    if (environment.contains(mark)) {
        QTest::qFail("The inner process has another scale.", __FILE__, __LINE__);
        return false;
    }
    environment.insert(mark, QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale));
    QProcess inner;
    inner.setProcessEnvironment(environment);
    const QString row =
        QStringLiteral("%1:%2").arg(QTest::currentTestFunction(), QTest::currentDataTag());
    inner.start(QCoreApplication::applicationFilePath(), {row});
    const bool passed = inner.waitForFinished() && inner.exitStatus() == QProcess::NormalExit
        && inner.exitCode() == 0;
    if (!passed)
        QTest::qFail(inner.readAllStandardOutput().constData(), __FILE__, __LINE__);
    return false;
}
