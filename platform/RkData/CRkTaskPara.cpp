// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkTaskPara.h"

#include <utility>

CRkTaskPara::CRkTaskPara() = default;

CRkTaskPara::~CRkTaskPara() = default;

void CRkTaskPara::GetBandingOffset(double& left, double& right) const
{
    left = m_bandingOffsetLeft;
    right = m_bandingOffsetRight;
}

void CRkTaskPara::SetBandingOffset(double left, double right)
{
    m_bandingOffsetLeft = left;
    m_bandingOffsetRight = right;
}

void CRkTaskPara::SetExtendedTaskParam(std::unique_ptr<CRkExtendedTaskParam> extended)
{
    m_extended = std::move(extended);
}
