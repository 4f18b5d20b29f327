// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectFiles.h"

#include "project/FolderPaths.h"
#include "project/ProjectStoreSql.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/RkData.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

#ifdef Q_OS_WIN
#include <windows.h>

#include <string>
#endif

namespace ProjectFiles {

namespace {

QString root()
{
    return CRkControl::GetInstance()->GetProjectDirPath();
}

/// Where a project is to be. Joining the parts is left to the caller, because copies have a second
/// separator behind the root.
struct Place
{
    QString folder;
    QString file;
};

Place placeBelow(const QString& start, const QString& name, const QString& suffix)
{
    const QString folder = start + name + QLatin1Char('/');
    return {folder, folder + name + suffix};
}

bool isBelowRoot(const QString& path)
{
    const QString behindRoot = FolderPaths::below(root(), path);
#ifdef Q_OS_WIN
    return !behindRoot.isEmpty() && FolderPaths::areWindowsFolders(behindRoot);
#else
    return !behindRoot.isEmpty();
#endif
}

/// The name stands twice in the path of the file, so that the file may lead out of the root where
/// the folder does not.
bool isBelowRoot(const Place& place)
{
    return isBelowRoot(place.folder) && isBelowRoot(place.file);
}

void makeFolder(const QString& folder)
{
    if (!QDir(folder).exists())
        QDir().mkpath(folder);
}

/// Removes the folder, and those around it up to the root, as far as they are empty.
void removeEmptyFolders(const QString& folder)
{
    QString path = QDir::cleanPath(folder);
    while (isBelowRoot(path) && QDir().rmdir(path))
        path = QFileInfo(path).path();
}

/// Lets SQLite end what a crash has left half done. Of a copy, or under another name, it would not
/// find the journal, which holds what was there before or what has not been taken over yet.
void settle(const QString& file)
{
    if (!QFileInfo::exists(file)
        || !(QFileInfo::exists(file + QStringLiteral("-journal"))
             || QFileInfo::exists(file + QStringLiteral("-wal"))))
        return;
    CRkDataBase database(file);
    if (database.open())
        database.exec(QStringLiteral("select 1 from sqlite_master"));
}

QString newIdentifier()
{
    return GetUidVariant(QUuid::createUuid().toString());
}

/// The statements without the one for the name when the name would break out of it.
QStringList harmless(QStringList statements, const QString& newName)
{
    if (!ProjectStoreSql::staysQuoted(newName))
        statements.removeOne(ProjectStoreSql::updateName(newName));
    return statements;
}

/// The name by which SQLite opens the file. Windows takes a long one from it only in a form that
/// says so.
QString databaseName(const QString& file)
{
#ifdef Q_OS_WIN
    const std::wstring path = QDir::toNativeSeparators(file).toStdWString();
    std::wstring whole(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(GetFullPathNameW(path.c_str(), DWORD(whole.size()), whole.data(), nullptr));
    constexpr std::size_t longest = MAX_PATH - 12; // Behind the name may follow "-journal".
    if (whole.size() > longest) {
        const QString name = QString::fromStdWString(whole);
        return name.startsWith(QLatin1String(R"(\\)")) ? QLatin1String(R"(\\?\UNC)") + name.mid(1)
                                                       : QLatin1String(R"(\\?\)") + name;
    }
#endif
    return file;
}

bool rewriteIdentifiers(const QString& file, const QString& newName)
{
    // The connection is closed in the end and stays in the toolkit's list under a name that no
    // other connection will ever have.
    QSqlDatabase database =
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QUuid::createUuid().toString());
    database.setDatabaseName(databaseName(file));
    if (!database.open())
        return false;
    // In one transaction, so that a copy is never half another project.
    database.transaction();
    QSqlQuery query(database);
    const ProjectStoreSql::CopyIdentifiers identifiers = {newIdentifier(), newIdentifier(),
                                                          newIdentifier()};
    const QStringList statements =
        harmless(ProjectStoreSql::rewriteIdentifiers(newName, identifiers), newName);
    for (const QString& statement : statements)
        query.exec(statement);
    query.clear();
    database.commit();
    database.close();
    return true;
}

void writeNewName(const QString& file, const QString& newName)
{
    CRkDataBase database(file);
    if (!database.open())
        return;
    QSqlQuery query = database.exec(ProjectStoreSql::selectVersion());
    const QString version =
        query.next() ? QString::number(qint64(query.value(0).toInt()) + 1) : QString();
    query.finish();
    const QString now = QLocale::c().toString(QDateTime::currentDateTime(), DateTimeSFormat);
    const QStringList statements =
        harmless(ProjectStoreSql::updateRenamed(newName, version, now), newName);
    for (const QString& statement : statements)
        database.exec(statement);
    database.close();
}

} // namespace

QString prepare(const QString& name)
{
    const Place place = placeBelow(root(), name, ProjectSuffix);
    makeFolder(place.folder);
    return place.file;
}

QString copy(const QString& projectFile, const QString& newName)
{
    const Place place = placeBelow(root() + QLatin1Char('/'), newName, QStringLiteral(".proj"));
    if (!isBelowRoot(place))
        return {};
    makeFolder(place.folder);
    settle(projectFile);
    if (!QFile::copy(projectFile, place.file)) {
        removeEmptyFolders(place.folder);
        return {};
    }
    return rewriteIdentifiers(place.file, newName) ? place.file : QString();
}

QString rename(const QString& projectFile, const QString& newName,
               const std::function<void()>& onFailure)
{
    const Place place = placeBelow(root(), newName, QStringLiteral(".proj"));
    if (!isBelowRoot(place)) {
        onFailure();
        return {};
    }
    makeFolder(place.folder);
    settle(projectFile);
    if (!QFile::rename(projectFile, place.file)) {
        onFailure();
        removeEmptyFolders(place.folder);
        return {};
    }

    CRkControl* const control = CRkControl::GetInstance();
    const QString companion = control->GetFlightMissionFilePath(projectFile);
    settle(companion);
    if (QFileInfo::exists(companion)
        && !QFile::rename(companion, control->GetFlightMissionFilePath(place.file))) {
        onFailure();
        QFile::rename(place.file, projectFile);
        removeEmptyFolders(place.folder);
        return {};
    }

    writeNewName(place.file, newName);
    removeEmptyFolders(QFileInfo(projectFile).path());
    return place.file;
}

} // namespace ProjectFiles
