// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/RkAlgorthm.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

/// What a project file and its companion hold, as plain records.
struct SampleTask
{
    QString id;
    QString name;
    QVector<QDateTime> flights;
};

struct SampleBlock
{
    QString id;
    QString name;
    ECameraType cameraType;
    EPlaneType planeType;
    EBlockType type;
    QString outline; ///< "lat,lng;lat,lng;..." in degrees.
    QVector<SampleTask> tasks;
};

struct SampleMarker
{
    QString name;
    PointLatLng place;
};

struct SampleContent
{
    QString id;
    QString name;
    QString userId;
    QDateTime created;
    QDateTime modified;
    int version = 1;
    int mapScale = 1000;
    PointLatLng centre;
    QByteArray imageData; ///< Base64; empty for none.
    QVector<SampleBlock> blocks;
    QVector<SampleMarker> markers;
};

/// Writes the project file and, when there are flights, the companion file beside it, each in one
/// transaction. The folder must be there and the files must not. False when that fails.
bool writeSampleFiles(const QString& projectFile, const SampleContent& content);
