// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "ServerAddress.h"

#include "ReferenceSettings.h"

namespace {

QByteArray& chosenAddress()
{
    static QByteArray address;
    return address;
}

QByteArray withoutTrailingSlashes(QByteArray address)
{
    while (address.endsWith('/'))
        address.chop(1);
    return address;
}

} // namespace

QByteArray GetServerIP()
{
    if (!chosenAddress().isEmpty())
        return chosenAddress();
    const QByteArray fromEnvironment = withoutTrailingSlashes(qgetenv("RK_SERVER_IP").trimmed());
    return fromEnvironment.isEmpty() ? QByteArrayLiteral("http://127.0.0.1:8080") : fromEnvironment;
}

void SetServerIP(const QByteArray& address)
{
    chosenAddress() = withoutTrailingSlashes(address.trimmed());
}
