// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// Every SQL statement that the upload document is read with. Ids go between single quotes as they
/// are; a statement that one breaks gives no rows.
namespace UploadArraySql {

/// Gives a row when one of the tables below computes what it answers (see TableSql).
QString selectComputedTables();

QString selectProject();

/// The survey areas of a project.
QString selectBlocks(const QString& projectId);

/// The flight tasks of a survey area.
QString selectTasks(const QString& blockId);

/// The marker points of a project.
QString selectPoints(const QString& projectId);

} // namespace UploadArraySql
