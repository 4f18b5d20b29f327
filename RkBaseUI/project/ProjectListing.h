// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/PointLatLng.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What a tile shows of one project file.
struct ProjectRecord
{
    QString filePath;
    QString name;
    QString size; ///< Readable, for example "3MB".
    QString modified; ///< In `DateTimeSFormat`, as the file holds it.
    QString id;
    QString softwareVersion;
    QByteArray imageData; ///< See Thumbnail.h.
    QStringList places; ///< Cities of the survey areas and their provinces, each once.
};

/// Where the blocks of a project lie.
struct BlockPlaces
{
    QList<PointLatLng> centres;
    QStringList places;
};

/// Reads project files into plain records.
namespace ProjectListing {

/// The identifier of the current user from the settings; empty when there is none.
QString currentUserId();

/// The project files in the folders of the root, in the order of the file system.
QStringList projectFiles(const QString& root);

/// The project of that user in the file. Nothing when the file is empty, cannot be opened or holds
/// no project of the user. The file is not changed.
std::optional<ProjectRecord> read(const QString& file, const QString& userId);

/// Makes the file a project of the user, named as the file, and reads it.
std::optional<ProjectRecord> create(const QString& file, const QString& userId);

/// Loads the blocks of a project, puts them into the block manager and gives where they lie.
/// Nothing when the file cannot be opened, or when the file or the identifier could make a
/// statement run without end.
std::optional<BlockPlaces> loadBlocks(const QString& file, const QString& projectId,
                                      const QString& softwareVersion);

} // namespace ProjectListing
