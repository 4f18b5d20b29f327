// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkBlock.h"

#include "CRkControl.h"
#include "CRkDataBase.h"
#include "CRkTask.h"
#include "CRkTaskPara.h"
#include "TaskParaReader.h"

#include <RkAlgorthm/Constants.h>
#include <RkAlgorthm/Gravity.h>
#include <RkAlgorthm/SoftwareVersion.h>

#include <QSqlRecord>
#include <QStringList>
#include <QVariant>

#include <cmath>
#include <utility>

namespace {

QString quoted(QString value)
{
    value.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}

QList<QPointF> parseOutline(const QString& text)
{
    QList<QPointF> outline;
    const QStringList pieces = text.split(QLatin1Char(';'));
    for (const QString& piece : pieces) {
        const QStringList numbers = piece.split(QLatin1Char(','));
        if (numbers.size() != 2)
            continue;
        bool latIsNumber = false;
        bool lngIsNumber = false;
        const QPointF point(numbers[0].toDouble(&latIsNumber), numbers[1].toDouble(&lngIsNumber));
        if (latIsNumber && lngIsNumber && std::isfinite(point.x()) && std::isfinite(point.y()))
            outline.append(point);
    }
    return outline;
}

void takeToWgs84(QList<QPointF>& outline)
{
    for (QPointF& point : outline)
        CRkControl::ResetToWGS84(point.x(), point.y(), &point.rx(), &point.ry());
}

EBlockType blockType(int number)
{
    return number == BlockTypeArea || number == BlockTypeStrip ? EBlockType(number) : BlockTypeNone;
}

} // namespace

CRkBlock::CRkBlock() = default;

CRkBlock::~CRkBlock() = default;

QString CRkBlock::GetBlockID() const
{
    return m_blockId;
}

void CRkBlock::SetBlockID(const QString& id)
{
    m_blockId = id;
}

bool CRkBlock::Load(const QString& tableName, const QString& projectId,
                    const QString& softwareVersion, CRkDataBase* database)
{
    if (!database)
        return false;
    QSqlQuery area =
        database->exec("select * from " + tableName + " where project_id=" + quoted(projectId)
                       + " and survey_area_guid=" + quoted(m_blockId));
    const QSqlRecord columns = area.record();
    if (!area.next())
        return false;
    const auto value = [&](const QString& column) {
        const int index = columns.indexOf(column);
        return index < 0 ? QVariant() : area.value(index);
    };

    m_type = blockType(value(QStringLiteral("block_type")).toInt());
    QList<QPointF> outline =
        parseOutline(value(QStringLiteral("survey_area_coordinate_points")).toString());
    if (SoftwareVersionIsOld(softwareVersion))
        takeToWgs84(outline);
    SetAnchor(outline);
    m_parameters = readTaskPara(area, columns);

    m_tasks.clear();
    QSqlQuery tasks = database->exec("select flight_task_guid from " + MissionTableName
                                     + " where survey_block_id=" + quoted(m_blockId));
    while (tasks.next())
        m_tasks.push_back(std::make_unique<CRkTask>(tasks.value(0).toString()));
    return true;
}

QList<CRkTask*> CRkBlock::GetMissionList() const
{
    QList<CRkTask*> tasks;
    for (const std::unique_ptr<CRkTask>& task : m_tasks)
        tasks.append(task.get());
    return tasks;
}

void CRkBlock::AddTask(std::unique_ptr<CRkTask> task)
{
    if (task)
        m_tasks.push_back(std::move(task));
}

CRkTaskPara* CRkBlock::GetTaskPara() const
{
    return m_parameters.get();
}

void CRkBlock::SetTaskPara(std::unique_ptr<CRkTaskPara> parameters)
{
    m_parameters = std::move(parameters);
}

PointLatLng CRkBlock::GetGravityPoint() const
{
    std::vector<CRkVector3D> points;
    for (const QPointF& point : m_outline)
        points.emplace_back(point.x(), point.y(), 0);
    const CRkVector3D centre = GetLatLngGravityByLatLng(points);
    return PointLatLng(centre.x(), centre.y());
}

QList<QPointF> CRkBlock::GetAnchor() const
{
    QList<QPointF> outline = m_outline;
    // A centre line that ends where it begins is no closed ring.
    if (m_type != BlockTypeStrip && outline.size() > 1 && outline.first() == outline.last())
        outline.removeLast();
    return outline;
}

void CRkBlock::SetAnchor(const QList<QPointF>& outline)
{
    m_outline = outline;
}

EBlockType CRkBlock::GetBlockType() const
{
    return m_type;
}

void CRkBlock::SetBlockType(EBlockType type)
{
    m_type = type;
}
