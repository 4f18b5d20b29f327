// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectFilter.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <algorithm>

namespace {

bool isAnyOf(const QString& text, const QStringList& placeholders)
{
    return placeholders.contains(text, Qt::CaseInsensitive);
}

/// Whether the text is "yyyy-MM-dd hh:mm:ss" in ASCII digits.
bool hasUsualShape(const QString& text)
{
    const QLatin1String shape("0000-00-00 00:00:00");
    if (text.size() != shape.size())
        return false;
    for (int i = 0; i < shape.size(); ++i) {
        const ushort character = text[i].unicode();
        const bool fits = shape[i] == QLatin1Char('0') ? character >= u'0' && character <= u'9'
                                                       : text[i] == shape[i];
        if (!fits)
            return false;
    }
    return true;
}

/// QDateTime::fromString(text, DateTimeSFormat). That call takes its format apart each time, which
/// for thousands of projects at every keystroke can be felt; the usual form is therefore read
/// directly.
QDateTime parseModified(const QString& text)
{
    static const bool usualFormat = DateTimeSFormat == QLatin1String("yyyy-MM-dd hh:mm:ss");
    if (usualFormat && hasUsualShape(text)) {
        const auto number = [&text](int start, int length) {
            return text.midRef(start, length).toInt();
        };
        const QDate day(number(0, 4), number(5, 2), number(8, 2));
        const QTime timeOfDay(number(11, 2), number(14, 2), number(17, 2));
        QDateTime time(day, timeOfDay);
        if (timeOfDay.isValid() && time.isValid())
            return time;
    }
    return QDateTime::fromString(text, DateTimeSFormat);
}

QDateTime parseDay(const QString& text)
{
    return QDateTime::fromString(text, DateFormat);
}

} // namespace

ProjectFilter::ProjectFilter(const Conditions& conditions, const Words& words)
    : m_keyword(conditions.keyword)
{
    const QStringList noCity = {words.city, words.all, QStringLiteral("city"),
                                QStringLiteral("all")};
    if (!isAnyOf(conditions.city, noCity))
        m_city = conditions.city;

    const QStringList noDate = {words.date, QStringLiteral("date")};
    if (!conditions.date.isEmpty() && !isAnyOf(conditions.date, noDate))
        parseDate(conditions.date, words);
}

bool ProjectFilter::passes(const Project& project) const
{
    return project.baseName.contains(m_keyword, Qt::CaseInsensitive) && passesDate(project.modified)
        && passesCity(project.places);
}

void ProjectFilter::parseDate(const QString& text, const Words& words)
{
    m_dateRule = DateRule::Range;
    const QString plainTo = QStringLiteral("to");
    if (!text.contains(words.to) && !text.contains(plainTo)) {
        m_from = parseDay(text);
        m_to = m_from;
        return;
    }

    QStringList ends = text.split(text.contains(words.to) ? words.to : plainTo);
    if (ends.size() != 2) {
        m_dateRule = DateRule::Nothing;
        return;
    }
    m_from = parseDay(ends[0].remove(QLatin1Char(' ')));
    m_to = parseDay(ends[1].remove(QLatin1Char(' ')));
}

bool ProjectFilter::passesDate(const QString& modified) const
{
    if (m_dateRule != DateRule::Range)
        return m_dateRule == DateRule::Any;
    const QDateTime time = parseModified(modified);
    return time.daysTo(m_from) <= 0 && time.daysTo(m_to) >= 0;
}

bool ProjectFilter::passesCity(const QStringList& places) const
{
    if (m_city.isEmpty())
        return true;
    return std::any_of(places.begin(), places.end(),
                       [this](const QString& place) { return place.contains(m_city); });
}
