// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "common/SharedHelpers.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

constexpr QChar notAllowedChars[] = {u'\\', u'/', u':', u'*', u'?', u'"', u'<', u'>', u'|'};

} // namespace

QTranslator* CreateTranslator(const QString& fileName)
{
    auto translator = std::make_unique<QTranslator>();
    translator->load(QCoreApplication::applicationDirPath() + QStringLiteral("/lang/") + fileName);
    return translator.release();
}

bool FileNameContainsNotAllowChar(const QString& name)
{
    return name.isEmpty()
        || std::any_of(std::begin(notAllowedChars), std::end(notAllowedChars),
                       [&name](QChar c) { return name.contains(c); });
}

QString getHumanReadableFileSize(qint64 bytes)
{
    // U+0000 as the unit from 2^60 bytes on is kept on purpose: programs expect these texts.
    constexpr QChar units[] = {u'K', u'M', u'G', u'T', u'P', u'\0'};
    constexpr int lastUnit = int(std::size(units)) - 1;

    qint64 value = bytes;
    int unit = -1;
    while (value >= 1024 && unit < lastUnit) {
        value /= 1024;
        ++unit;
    }
    const QString unitText = unit < 0 ? QString() : QString(units[unit]);
    return QStringLiteral("%1%2B").arg(value).arg(unitText);
}

QString UidToString(const QString& uid)
{
    QString text = uid;
    return text.remove(QLatin1Char('{')).remove(QLatin1Char('}')).remove(QLatin1Char('-'));
}

EToolKind GetToolKind(EToolType type)
{
    const int value = type;
    switch (value) {
    case 1:
    case 2:
    case 15:
    case 24:
    case 29:
        return EToolKind(1);
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
    case 11:
    case 12:
    case 13:
    case 14:
    case 16:
    case 17:
    case 31:
        return EToolKind(2);
    case 19:
    case 20:
        return EToolKind(3);
    case 21:
    case 22:
    case 23:
        return EToolKind(4);
    case 25:
        return EToolKind(5);
    default:
        return EToolKind(0);
    }
}
