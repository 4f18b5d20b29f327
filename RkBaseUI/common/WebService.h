// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QByteArray>
#include <QMap>
#include <QString>

class PointLatLng;

// Requests to the web service at GetServerIP(), and the document that it takes for a project.
//
//     PointLatLng here;
//     if (GetCurLatLng(here))
//         map->centreOn(here);
//     const QMap<QString, QString> places = GetSearchRet(keyword);
//
// The two requests wait for the answer in an event loop of their own: the calling thread, in
// practice the GUI thread, goes on with its events, so whatever they can delete must not be used
// across the call. A call from such an event is answered before the one that it interrupted
// returns. Only the JSON of the answer decides, not the HTTP status, and of an answer beyond 32 MB
// no more is read; nothing says why a call failed.

/// Where the service takes the user to be, in degrees (WGS84). False, and `pos` unchanged, when it
/// gives no position within 3 seconds.
RKBASEUI_EXPORT bool GetCurLatLng(PointLatLng& pos);

/// The places that match the keyword: location text by name; of places with one name the last.
/// Empty when the service gives none within 5 seconds. The keyword becomes part of a URL as it
/// stands: "&" and "#" end it, and "%41" is an "A".
RKBASEUI_EXPORT QMap<QString, QString> GetSearchRet(const QString& keyword);

/// The project in an SQLite file as compact JSON: the project's row with its survey areas under
/// "blocks", each with its flight tasks under "tasks", and the marker points under "points"; an
/// empty list is left out. "{}" for a file that is missing, no database or without a project, and
/// for one where such a table is a view, a virtual table or has a generated column. The file is not
/// changed, and not made when it is missing.
RKBASEUI_EXPORT QByteArray GetUploadArray(const QString& dbPath);
