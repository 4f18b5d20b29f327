// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a sample project file is made to show.
enum class SampleKind {
    Sound, ///< A project of the main user.
    NoThumbnail, ///< Of the main user, without a picture.
    DamagedThumbnail, ///< Of the main user, with a picture that breaks off in its header.
    OtherUser, ///< A sound project of another user.
    EmptyFile, ///< A file of size 0.
    NotADatabase ///< A file of text.
};

/// Which sample projects to make.
struct SampleOptions
{
    QString root; ///< Folder of the projects; made when it is missing.
    QString userId; ///< The main user.
    int count = 24; ///< Files to write.
    quint32 seed = 1; ///< The same seed gives the same projects.
    QDateTime now; ///< Modification times lie in the year before this one.
    bool withSpecialCases = true; ///< Else all are `SampleKind::Sound`.
};

/// One file of the plan.
struct SampleProject
{
    QString name; ///< Unique without regard to letter case, allowed as a file name.
    QString city; ///< As the city catalogue writes it; empty where the file holds no project.
    QString userId; ///< Empty where the file holds no project.
    SampleKind kind = SampleKind::Sound;
};

/// The user whose projects the samples are, unless told otherwise.
QString sampleUserId();

/// The users that the samples may belong to: the main user of sample projects, then the others.
QStringList sampleUserIds();

/// What `writeSampleProjects` would write, in its order. Needs the city catalogue beside the
/// executable; empty without it.
QVector<SampleProject> planSampleProjects(const SampleOptions& options);

/// Writes `<root>/<name>/<name>.proj` for every project of the plan and, for those that were flown,
/// the companion file of the flights. Files of those names that are there are replaced. The content
/// depends on the options alone.
///
/// Up to 64 projects have a picture of their own blocks each; beyond that they share those 64, so
/// that thousands are written quickly.
///
/// @return the project files in the order of the plan; empty when the catalogue is missing or a
/// file cannot be written
QStringList writeSampleProjects(const SampleOptions& options);
