// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/PciNames.h"

#include "sysinfo/SystemText.h"

#include <string>
#include <string_view>

namespace PciNames {

namespace {

QByteArray digits(quint16 id)
{
    return QByteArray::number(id, 16).rightJustified(4, '0');
}

/// Where a line with the start begins in [from, to); -1 when there is none. The begin of a line is
/// sought first, for which text views have the quickest search.
int findLine(const QByteArray& text, const QByteArray& start, int from, int to)
{
    if (from == 0 && text.startsWith(start))
        return 0;
    const std::string pattern = '\n' + start.toStdString();
    const int before = qMax(0, from - 1);
    const auto at =
        std::string_view(text.constData() + before, std::size_t(to - before)).find(pattern);
    return at == std::string_view::npos ? -1 : before + int(at) + 1;
}

int endOfLine(const QByteArray& text, int from)
{
    const int end = text.indexOf('\n', from);
    return end < 0 ? text.size() : end;
}

/// Behind the vendor's devices: where a line begins that is neither indented, a comment nor empty.
int endOfVendor(const QByteArray& text, int line)
{
    for (int next = endOfLine(text, line) + 1; next < text.size();
         next = endOfLine(text, next) + 1) {
        const char first = text.at(next);
        if (first != '\t' && first != '#' && first != '\n' && first != '\r')
            return next;
    }
    return text.size();
}

QString restOfLine(const QByteArray& text, int from)
{
    return SystemText::clean(text.mid(from, endOfLine(text, from) - from));
}

} // namespace

QString name(const QByteArray& database, quint16 vendor, quint16 device)
{
    const QByteArray vendorStart = digits(vendor) + ' ';
    const QByteArray deviceStart = '\t' + digits(device) + ' ';
    const int vendorLine = findLine(database, vendorStart, 0, database.size());
    if (vendorLine < 0) {
        return QStringLiteral("Device %1:%2")
            .arg(QLatin1String(digits(vendor)), QLatin1String(digits(device)));
    }
    const QString vendorName = restOfLine(database, vendorLine + vendorStart.size());
    const int end = endOfVendor(database, vendorLine);
    const int deviceLine = findLine(database, deviceStart, vendorLine + 1, end);
    if (deviceLine < 0)
        return QStringLiteral("%1 Device %2").arg(vendorName, QLatin1String(digits(device)));
    return vendorName + QLatin1Char(' ') + restOfLine(database, deviceLine + deviceStart.size());
}

} // namespace PciNames
