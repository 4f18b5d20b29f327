// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

/// Which projects a filter lets pass. The conditions are the display texts of the filter bar; each
/// is parsed once here, so that one filter serves any number of projects.
///
///     const ProjectFilter filter({city, date, keyword}, words);
///     if (filter.passes({baseName, modified, places})) ...
class ProjectFilter
{
public:
    /// What the filter bar shows. City and date may be placeholders, which filter nothing.
    struct Conditions
    {
        QString city;
        QString date;
        QString keyword;
    };

    /// The words of the filter bar in the user's language. The English words are understood beside
    /// them.
    struct Words
    {
        QString date = QStringLiteral("date");
        QString to = QStringLiteral("to");
        QString city = QStringLiteral("city");
        QString all = QStringLiteral("all");
    };

    /// What a filter looks at: the file's complete base name, the modification time as text in
    /// `DateTimeSFormat`, and the provinces and cities of its survey areas.
    struct Project
    {
        QString baseName;
        QString modified;
        QStringList places;
    };

    ProjectFilter(const Conditions& conditions, const Words& words);

    /// Whether the name contains the keyword in any letter case, the modification day lies in the
    /// date condition, both ends included, and one place contains the city. A time that cannot be
    /// parsed is 0 days away from every other and so lies in every range of two parts.
    bool passes(const Project& project) const;

private:
    enum class DateRule { Any, Range, Nothing };

    void parseDate(const QString& text, const Words& words);
    bool passesDate(const QString& modified) const;
    bool passesCity(const QStringList& places) const;

    QString m_keyword;
    QString m_city; ///< Empty: any.
    DateRule m_dateRule = DateRule::Any;
    QDateTime m_from;
    QDateTime m_to;
};
