// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

class PointLatLng;

/// What the web service answered. An answer counts when it is JSON with the "status" 0 or 1; a
/// status that is missing or no whole number reads as 0.
namespace WebReply {

/// Reads {"data": {"center": [longitude, latitude]}}, degrees, into `position`. False, and
/// `position` unchanged, when the answer does not count or lacks the two numbers.
bool readCentre(const QByteArray& reply, PointLatLng& position);

/// The "location" of each {"data": [{"name", "location"}]} by its "name"; of places with one name
/// the last. Empty when the answer does not count.
QMap<QString, QString> readPlaces(const QByteArray& reply);

} // namespace WebReply
