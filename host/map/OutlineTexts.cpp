// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "map/OutlineTexts.h"

#include <QLocale>

#include <cmath>

namespace {

/// The same in every language, as the rest of the map.
QString number(double value, int decimals)
{
    return QLocale::c().toString(value, 'f', decimals);
}

/// Three digits that count, or more before the point.
int decimalsOf(double value)
{
    return value < 10 ? 2 : value < 100 ? 1 : 0;
}

} // namespace

QString OutlineTexts::area(double squareMetres)
{
    if (std::round(squareMetres) < 1e5)
        return QStringLiteral("%1 m\u00b2").arg(number(squareMetres, 0));
    const double kilometres = squareMetres / 1e6;
    return QStringLiteral("%1 km\u00b2").arg(number(kilometres, decimalsOf(kilometres)));
}

QString OutlineTexts::length(double metres)
{
    if (std::round(metres) < 1000)
        return QStringLiteral("%1 m").arg(number(metres, 0));
    const double kilometres = metres / 1000;
    return QStringLiteral("%1 km").arg(number(kilometres, decimalsOf(kilometres)));
}

OutlineTexts::Mood OutlineTexts::mood(const SurveyOutline::Check& check)
{
    if (check.crossesItself)
        return Mood::Bad;
    return check.isConvex ? Mood::Good : Mood::Doubtful;
}

QVector<OutlineTexts::Line> OutlineTexts::lines(const SurveyOutline::Check& check,
                                                double largestPart)
{
    QVector<Line> lines;
    if (check.crossesItself) {
        lines.append({Mood::Bad, tr("Crosses itself")});
        lines.append({Mood::Plain, tr("Perimeter %1").arg(length(check.perimeter))});
    } else {
        lines.append(check.isConvex ? Line{Mood::Good, tr("Convex")}
                                    : Line{Mood::Doubtful, tr("Not convex")});
        lines.append({Mood::Good, tr("Does not cross itself")});
        lines.append({Mood::Plain,
                      tr("Area %1, perimeter %2").arg(area(check.area), length(check.perimeter))});
    }
    switch (check.splitting) {
    case SurveyOutline::Splitting::Possible:
        lines.append({Mood::Good, tr("Can be split into parts up to %1").arg(area(largestPart))});
        break;
    case SurveyOutline::Splitting::Crossing:
        lines.append({Mood::Bad, tr("Cannot be split while it crosses itself")});
        break;
    case SurveyOutline::Splitting::SmallEnough:
        lines.append(
            {Mood::Plain,
             tr("Need not be split: no larger than one part of %1").arg(area(largestPart))});
        break;
    case SurveyOutline::Splitting::Overlapping:
        lines.append({Mood::Bad, tr("Cannot be split: edges lie on one another")});
        break;
    }
    return lines;
}

OutlineTexts::Line OutlineTexts::partsLine(const SurveyOutline::Parts& parts)
{
    if (parts.outlines.isEmpty())
        return {Mood::Bad, tr("Cannot be split into parts as small as that")};
    return {Mood::Good,
            tr("%1 parts, the largest %2").arg(parts.outlines.size()).arg(area(parts.largest))};
}
