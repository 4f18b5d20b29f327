// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QSet>
#include <QString>

class QRandomGenerator;

enum class SampleLanguage { English, Chinese };

/// Invents names of projects as surveyors write them: a place, what is surveyed there, and the
/// product. Each is given once, without regard to letter case, and is allowed as a file name.
class SampleNames
{
public:
    /// @param year the year that some names carry
    explicit SampleNames(int year);

    /// @param city a name of the city catalogue, "Chengdu" or its Chinese form or both with a blank
    /// between
    QString make(const QString& city, SampleLanguage language, bool isCorridor,
                 QRandomGenerator& random);

private:
    QString uniqueName(const QString& name, SampleLanguage language);

    int m_year;
    QSet<QString> m_taken;
};

/// The name of a survey area: number counts from 0.
QString sampleBlockName(int number, bool isStrip, SampleLanguage language);
