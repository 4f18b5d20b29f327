// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/MapView.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVector>

#include <functional>

/// The name of a place and where it goes.
struct PlaceName
{
    QString text;
    QPointF place; ///< On the plane.
    double extent = 0; ///< Width of the place on the plane.
    bool isProvince = false;
};

/// Chooses the names that a map shows at a scale, so that none covers another: provinces first,
/// then the larger places; and none on a place that is much smaller than its name. What is chosen
/// does not depend on the part of the map that is seen, so that names do not come and go while the
/// map moves.
///
/// @param sizeOf the size of a name on the screen
/// @return indices of `names`, in the order in which they were chosen
QVector<int> chooseNames(const QVector<PlaceName>& names, double scale,
                         const std::function<QSizeF(const PlaceName&)>& sizeOf);

/// Where a name of that size stands on the screen: in the middle above its place.
QRectF nameRect(const PlaceName& name, const QSizeF& size, const QPointF& place);

/// Of a name in two languages, "Chengdu 成都市", the half in the language; a name in one only as it
/// is.
QString nameInLanguage(const QString& name, bool isChinese);
