// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/SurveyEnums.h>
#include <RkBaseUI/CRkOpenedProjectInfo.h>

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class CRkBlock;

/// Reads the blocks of project files into plain records and into the block manager. Files that are
/// missing count as files that cannot be opened, and are not made.
namespace BlockStore {

struct Block
{
    QString id;
    QString name;
    ECameraType cameraType;
    EPlaneType planeType;
};

struct Project
{
    CRkOpenedProjectInfo info; ///< Empty when the file holds no project of the user.
    QString modified; ///< Readable; empty when the file names no time.
    QList<Block> blocks; ///< In the order of the file, less those that could not be loaded.
};

struct BlockCounts
{
    int tasks = 0;
    int flights = 0;
};

/// The project of that user and its blocks, which are in the block manager afterwards. Nothing when
/// the file cannot be opened.
std::optional<Project> load(const QString& projectFile, const QString& userId);

/// The counts by block id, for those blocks that are in the block manager and have a task in the
/// file. Writes the flight count of each task into the task. Tasks and flights are 0 when the
/// companion file with the flights cannot be opened.
QHash<QString, BlockCounts> count(const QString& projectFile, const QList<Block>& blocks);

/// Counts the flights of each task of the block again, unless the companion file with the flights
/// cannot be opened.
void recountFlights(const QString& projectFile, const CRkBlock& block);

} // namespace BlockStore
