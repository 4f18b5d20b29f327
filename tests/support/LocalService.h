// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "service/WebServiceServer.h"

#include <QProcess>

#ifdef Q_OS_UNIX
#include <csignal>
#else
#include <windows.h>
#endif

/// The web service of this application for tests that break it. The file is where it stores what
/// it receives.
namespace LocalService {

/// For a service in this process that knows the token "secret" alone and does wrong what the fault
/// names; nothing when that is empty.
inline ServiceOptions options(const QString& storeFile, const QString& fault = QString())
{
    ServiceOptions options;
    options.storeFile = storeFile;
    options.token = "secret";
    if (!fault.isEmpty())
        options.fault = parseServiceFault(fault).value();
    return options;
}

/// Starts the service as a program, which can be killed. Its address; empty when it does not start.
inline QByteArray start(QProcess& program, const QString& storeFile,
                        const QStringList& arguments = QStringList())
{
    program.start(RK_SERVICE, QStringList{"--store", storeFile} + arguments);
    return program.waitForReadyRead() ? program.readLine().trimmed() : QByteArray();
}

/// Makes the program stand still. Whether that worked.
inline bool suspend(const QProcess& program)
{
#ifdef Q_OS_UNIX
    return ::kill(pid_t(program.processId()), SIGSTOP) == 0;
#else
    return DebugActiveProcess(DWORD(program.processId())) != 0;
#endif
}

} // namespace LocalService
