// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QPolygonF>
#include <QString>
#include <QStringList>
#include <QVector>

struct CRkOpenedProjectInfo;

/// What the host shows of an opened project besides what the project page tells it.
struct ProjectContent
{
    struct Task
    {
        QString name; ///< Its id when it has no name.
        int flightCount = 0; ///< As the block page counted them.
        QStringList flights; ///< When each took place, "yyyy-MM-dd hh:mm:ss", the earliest first.
    };
    struct Block
    {
        QString id;
        QString name;
        QPolygonF outline; ///< Degrees, x latitude, y longitude: a ring, or the line of a strip.
        bool isStrip = false;
    };

    QVector<Block> blocks; ///< Of the project, as far as they are loaded.
    QString aircraft; ///< Of the opened block.
    QString camera; ///< The same.
    QVector<Task> tasks; ///< The same.
};

/// Reads the content of a project whose blocks are loaded. What a file does not tell, or tells
/// wrongly, stays empty; files are not changed and missing ones not made.
ProjectContent readProjectContent(const CRkOpenedProjectInfo& project, const QString& blockId);
