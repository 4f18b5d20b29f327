// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkTask.h"

CRkTask::CRkTask(const QString& taskId)
    : m_taskId(taskId)
{
}

QString CRkTask::GetTaskID() const
{
    return m_taskId;
}
