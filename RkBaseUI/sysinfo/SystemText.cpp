// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/SystemText.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace SystemText {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// What follows "key : " at the begin of a line from `from` on; -1 when there is no such line.
int findValue(const QByteArray& text, const QByteArray& key, int from)
{
    for (int at = text.indexOf(key, from); at >= 0; at = text.indexOf(key, at + 1)) {
        int colon = at + key.size();
        while (colon < text.size() && isBlank(text.at(colon)))
            ++colon;
        const bool isAtStart = at == 0 || text.at(at - 1) == '\n';
        if (isAtStart && colon < text.size() && text.at(colon) == ':')
            return colon + 1;
    }
    return -1;
}

/// Of the first line with that key.
QByteArray value(const QByteArray& text, const QByteArray& key)
{
    const int from = findValue(text, key, 0);
    if (from < 0)
        return {};
    const int end = text.indexOf('\n', from);
    return text.mid(from, end < 0 ? -1 : end - from).trimmed();
}

/// Of the first key that has one.
QByteArray value(const QByteArray& text, std::initializer_list<const char*> keys)
{
    for (const char* key : keys) {
        QByteArray found = value(text, QByteArray(key));
        if (!found.isEmpty())
            return found;
    }
    return {};
}

int countProcessors(const QByteArray& cpuInfo)
{
    const QByteArray key("processor");
    int count = 0;
    for (int at = findValue(cpuInfo, key, 0); at >= 0; at = findValue(cpuInfo, key, at))
        ++count;
    return count;
}

/// What Windows calls the architecture of a processor of that vendor.
QString x86Architecture(const QByteArray& vendor, bool is64Bit)
{
    if (!is64Bit)
        return QStringLiteral("x86");
    if (vendor == "GenuineIntel")
        return QStringLiteral("Intel64");
    return vendor == "CentaurHauls" ? QStringLiteral("VIA64") : QStringLiteral("AMD64");
}

QString x86Identifier(const QByteArray& cpuInfo)
{
    bool isFamily = false;
    bool isModel = false;
    bool isStepping = false;
    const uint family = value(cpuInfo, "cpu family").toUInt(&isFamily);
    const uint model = value(cpuInfo, "model").toUInt(&isModel);
    const uint stepping = value(cpuInfo, "stepping").toUInt(&isStepping);
    if (!isFamily || !isModel || !isStepping)
        return {};
    const bool is64Bit = (' ' + value(cpuInfo, "flags") + ' ').contains(" lm ");
    return QStringLiteral("%1 Family %2 Model %3 Stepping %4")
        .arg(x86Architecture(value(cpuInfo, "vendor_id"), is64Bit))
        .arg(family)
        .arg(model)
        .arg(stepping);
}

/// As Windows writes it: the architecture as the family, the part as the model, and variant and
/// revision as one number, the last two in hexadecimal digits.
QString armIdentifier(const QByteArray& cpuInfo)
{
    const QByteArray architecture = value(cpuInfo, "CPU architecture");
    bool isNumber = false;
    bool isRevision = false;
    const uint number = architecture == "AArch64" ? 8 : architecture.left(1).toUInt(&isNumber);
    const qint64 part = hexNumber(value(cpuInfo, "CPU part"));
    const qint64 variant = hexNumber(value(cpuInfo, "CPU variant"));
    const uint revision = value(cpuInfo, "CPU revision").toUInt(&isRevision);
    if (number == 0 || part < 0 || variant < 0 || !isRevision)
        return {};
    return QStringLiteral("ARMv%1 (%2-bit) Family %1 Model %3 Revision %4")
        .arg(QString::number(number), QString::number(number >= 8 ? 64 : 32),
             QString::number(part, 16).toUpper(),
             QString::number(variant << 8 | revision, 16).toUpper());
}

/// Of a text such as "2099.998", or "2099.998MHz".
QString wholeMegahertz(QByteArray text)
{
    if (text.endsWith("MHz"))
        text.chop(3);
    const double megahertz = text.toDouble();
    return megahertz >= 1 && megahertz < 1e6 ? QString::number(std::lround(megahertz)) : QString();
}

} // namespace

QString clean(const QByteArray& text)
{
    QString result = QString::fromUtf8(QByteArray(text).replace('\0', ' '));
    std::replace_if(
        result.begin(), result.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        QLatin1Char(' '));
    return result.simplified();
}

Processor processor(const QByteArray& cpuInfo)
{
    Processor result;
    result.count = countProcessors(cpuInfo);
    if (result.count == 0)
        return result;
    result.name = clean(value(cpuInfo, {"model name", "Model Name", "Processor", "cpu"}));
    const bool isArm = !value(cpuInfo, "CPU implementer").isEmpty();
    result.identifier = isArm ? armIdentifier(cpuInfo) : x86Identifier(cpuInfo);
    result.mhz = wholeMegahertz(value(cpuInfo, {"cpu MHz", "CPU MHz", "clock"}));
    return result;
}

quint64 totalMemory(const QByteArray& memInfo)
{
    QByteArray total = value(memInfo, "MemTotal");
    if (!total.endsWith(" kB"))
        return 0;
    total.chop(3);
    return total.toULongLong() >> 10;
}

quint64 addressSpace(quint64 highAddress, quint64 pageSize, quint64 limit)
{
    quint64 end = 1;
    while (end <= highAddress && end < quint64(1) << 63)
        end <<= 1;
    return std::min(end - std::min(end, pageSize), limit) >> 20;
}

qint64 hexNumber(const QByteArray& text)
{
    bool isNumber = false;
    const uint number = text.trimmed().toUInt(&isNumber, 16);
    return isNumber ? qint64(number) : -1;
}

} // namespace SystemText
