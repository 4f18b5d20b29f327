// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/Constants.h>

#include <QString>
#include <QStringList>

/// Every SQL statement that the project manager sends to a project file. The texts are the store's
/// interface: other programs write and read the same files. Values go between single quotes as they
/// are, neither escaped nor bound; a statement that a value breaks fails and changes nothing.
namespace ProjectStoreSql {

/// The row of a new project. Times are in `DateTimeSFormat`.
struct NewProject
{
    QString name;
    QString id;
    QString userId;
    QString now;
};

/// The identifiers that a copy gets. All its survey areas share one, and all its missions another.
struct CopyIdentifiers
{
    QString project;
    QString surveyArea;
    QString mission;
};

/// Whether a value stays between the quotes of a statement. Behind a quote without a partner it
/// would be a part of the statement, which could then change anything, or never end.
bool staysQuoted(QString value);

/// The tables of a new project file, in the order of their making.
QStringList createTables();

QString insertProject(const NewProject& project);

/// Gives a row when one of the tables is a view or a virtual table, or has a generated column. Such
/// a file, however small, can answer with rows without end or values of any size.
QString selectComputedTables(const QStringList& tables = {ProjectTableName, SurveyAreaTableName});

/// The project row of a user. Read by name: project_name, updated_at, id, software_version,
/// image_data.
QString selectProject(const QString& userId);

/// One outline a row (see OutlineText.h).
QString selectOutlines(const QString& projectId);

/// survey_area_guid, survey_area_name and camera_type of each survey area.
QString selectBlocks(const QString& projectId);

/// Gives the project, that is every row of it, another name.
QString updateName(const QString& newName);

/// Makes a copied file a project of its own, in the order of sending. Every row of a table is
/// rewritten.
QStringList rewriteIdentifiers(const QString& newName, const CopyIdentifiers& identifiers);

/// The version counter, a number stored as text.
QString selectVersion();

/// What a rename writes, in the order of sending. `version` is empty when the project has no row.
QStringList updateRenamed(const QString& newName, const QString& version, const QString& now);

} // namespace ProjectStoreSql
