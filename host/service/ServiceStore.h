// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QVector>

#include <functional>

class QSqlDatabase;

/// An application for lifting a no-fly zone. Texts as the applicant sent them.
struct LiftApplication
{
    QString fileName;
    QByteArray document;
    QString area; ///< "lng,lat,altitude" of each corner, with "|" between
    QString begin;
    QString end;
    QString localIds;
    QByteArray picture; ///< PNG, or empty
    QString name;
    QString contact;
    QString company;
    QString explanation;

    // Set by the store.
    int number = 0;
    QString receivedAt; ///< local time, yyyy-MM-dd hh:mm:ss
    qint64 documentSize = 0; ///< bytes
};

/// An uploaded project.
struct ProjectDocument
{
    QString projectId;
    QString projectName;
    int blocks = 0;
    int tasks = 0;
    int points = 0;
    QByteArray json;

    // Set by the store.
    int number = 0;
    QString receivedAt;
    qint64 size = 0; ///< bytes
};

/// What the web service has received, in one SQLite file. May be used from any thread; connections
/// to the file live inside each call.
class ServiceStore
{
public:
    explicit ServiceStore(const QString& file);

    /// Makes file and tables where they are missing. False when that fails.
    bool prepare();

    /// Its number, from 1 on; 0 when it could not be stored.
    int add(const LiftApplication& application);
    int add(const ProjectDocument& document);

    /// All, the latest first, without document and picture.
    QVector<LiftApplication> applications();
    /// All, the latest first, without the JSON.
    QVector<ProjectDocument> documents();

private:
    bool withConnection(const std::function<bool(QSqlDatabase&)>& work);

    QMutex m_mutex;
    QString m_file;
};
