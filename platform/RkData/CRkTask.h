// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkData/RkDataExport.h>

#include <QString>

/// One flight task of a block.
class RKDATA_EXPORT CRkTask
{
public:
    explicit CRkTask(const QString& taskId);

    /// The task's `flight_task_guid`.
    QString GetTaskID() const;

    /// Recorded flights, as counted last by whoever shows the task.
    int m_nFlightCount = 0;

private:
    QString m_taskId;
};
