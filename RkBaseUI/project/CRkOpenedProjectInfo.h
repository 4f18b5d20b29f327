// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>

/// The project that the user opened. A plain value, empty when no project is open.
struct CRkOpenedProjectInfo
{
    QString projectName;
    int mapScale = 0; ///< The denominator: 1000 for 1 : 1000.
    double centerLat = 0; ///< Degrees, WGS84.
    double centerLng = 0; ///< Degrees, WGS84.
    QString projectFilePath;
    QString projectId;
    QString softwareVersion; ///< Of the application that wrote the project.
};
