// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/SurveyOutline.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/// What is said of an outline, in plain words.
class OutlineTexts
{
    Q_DECLARE_TR_FUNCTIONS(OutlineTexts)

public:
    enum class Mood { Good, Doubtful, Bad, Plain };

    struct Line
    {
        Mood mood = Mood::Plain;
        QString text;
    };

    /// The mood of the outline as a whole: good when it is convex, doubtful when it is not, bad
    /// when it crosses itself.
    static Mood mood(const SurveyOutline::Check& check);

    /// The shape, the measures, and whether it can be split into parts of at most `largestPart`
    /// square metres.
    static QVector<Line> lines(const SurveyOutline::Check& check, double largestPart);

    /// How many there are and how large they are; why not, when there are none.
    static Line partsLine(const SurveyOutline::Parts& parts);

    /// "8500 m²" below a tenth of a square kilometre, "3.42 km²" from there on.
    static QString area(double squareMetres);
    /// "812 m" below a kilometre, "7.81 km" from there on.
    static QString length(double metres);
};
