// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

/// Every SQL statement that the block page sends to a project file and to its companion with the
/// flights. As in ProjectStoreSql, values go between single quotes as they are; a statement that a
/// value breaks gives no rows. No statement changes a file: tables are made in the connection's
/// temporary database alone.
namespace BlockStoreSql {

/// survey_area_guid, survey_area_name, camera_type and plane_type of each survey area.
QString selectBlocks(const QString& projectId);

/// One row a task.
QString selectTasks(const QString& blockId);

/// The number of flights of a task in the one column FlightTimes.
QString countFlights(const QString& taskId);

/// A row where a table of the file compares texts in a way of its own, which a copy would not.
QString selectCollations();

/// Puts copies of the survey areas and tasks, which are indexed by what a block asks for, before
/// the tables of the file. Without them loading every block would read the whole file for each.
QStringList makeIndexedCopies();

/// Whether an id may break a statement that holds other ids as well: it has a quote, a NUL or a
/// surrogate, of which half a one swallows what follows it.
bool mustStandAlone(const QString& id);

/// Makes a table of ids, numbered by their place in the list, for the two questions below. Ids that
/// must stand alone have no value there. An id is compared as it is in a statement of its own.
QStringList makeIdTable(const QStringList& ids);

/// The number of each block in the id table that has a task, and 1.
QString selectBlocksWithTasks();

/// The number of each task in the id table that has flights, and how many.
QString countFlightsOfTasks();

} // namespace BlockStoreSql
