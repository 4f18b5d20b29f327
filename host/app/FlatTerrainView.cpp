// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/FlatTerrainView.h"

#include <QPainter>

FlatTerrainView::FlatTerrainView(const LitTerrain& terrain, QWidget* parent)
    : QWidget(parent)
    , m_terrain(terrain)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void FlatTerrainView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawLitTerrain(painter, m_terrain, size());
}
