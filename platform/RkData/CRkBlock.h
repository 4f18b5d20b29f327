// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/PointLatLng.h>
#include <RkAlgorthm/SurveyEnums.h>
#include <RkData/RkDataExport.h>

#include <QList>
#include <QPointF>
#include <QString>

#include <memory>
#include <vector>

class CRkDataBase;
class CRkTask;
class CRkTaskPara;

/// One survey area of a project with its flight tasks.
///
///     auto block = std::make_unique<CRkBlock>();
///     block->SetBlockID(guid);
///     if (block->Load(SurveyAreaTableName, projectId, softwareVersion, &database))
///         CRkBlockManager::instance().AddBlock(block.release());
class RKDATA_EXPORT CRkBlock
{
public:
    CRkBlock();
    ~CRkBlock();
    Q_DISABLE_COPY(CRkBlock)

    /// The `survey_area_guid`.
    QString GetBlockID() const;
    void SetBlockID(const QString& id);

    /// Reads the first row of the table that belongs to the project and bears the block's id, with
    /// its task parameters, and the block's tasks. `softwareVersion` is that of the project:
    /// outlines of an old one are taken to WGS84. Pieces of the outline that are no pair of numbers
    /// are left out; a missing column leaves its value empty. False, with the block as it was, when
    /// there is no such row. The caller keeps a block that failed to load, and always the database.
    bool Load(const QString& tableName, const QString& projectId, const QString& softwareVersion,
              CRkDataBase* database);

    /// The tasks in the order of their table. They belong to the block and go with it or with the
    /// next Load.
    QList<CRkTask*> GetMissionList() const;
    /// Appends a task; null is ignored.
    void AddTask(std::unique_ptr<CRkTask> task);

    /// How the block is to be flown; null without parameters. They belong to the block and go with
    /// it or with the next Load, which leaves none when the row has no `relative_fly_height`, and
    /// none with an extended part when it has no `task_type`.
    CRkTaskPara* GetTaskPara() const;
    void SetTaskPara(std::unique_ptr<CRkTaskPara> parameters);

    /// The centroid of the outline, see GetLatLngGravityByLatLng; (0, 0) without one.
    PointLatLng GetGravityPoint() const;

    /// The outline: x latitude, y longitude in degrees. An area's ring is open, so its first point
    /// is not repeated at the end; a strip's outline is its centre line.
    QList<QPointF> GetAnchor() const;
    void SetAnchor(const QList<QPointF>& outline);

    EBlockType GetBlockType() const;
    void SetBlockType(EBlockType type);

private:
    QString m_blockId;
    EBlockType m_type = BlockTypeNone;
    QList<QPointF> m_outline;
    std::unique_ptr<CRkTaskPara> m_parameters;
    std::vector<std::unique_ptr<CRkTask>> m_tasks;
};
