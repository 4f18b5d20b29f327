// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkData/RkDataExport.h>

#include <QString>

/// Places of projects on disk, and the datum of old ones. All members are static; the instance is
/// there for code that asks for one.
///
///     const QString root = CRkControl::GetInstance()->GetProjectDirPath();
///     double lat, lng;
///     CRkControl::ResetToWGS84(30.66, 104.06, &lat, &lng);
class RKDATA_EXPORT CRkControl
{
public:
    /// Never null; the object belongs to the library.
    static CRkControl* GetInstance();

    /// The folder of all projects, always ending with "/": <Documents>/RkProjects/ or what the
    /// environment variable RK_PROJECT_DIR names. It need not exist.
    static QString GetProjectDirPath();

    /// The companion file with the flights of a project file: "<folder>/<complete base
    /// name>_flight.db". Nothing is looked up on disk.
    static QString GetFlightMissionFilePath(const QString& projectFile);

    /// Takes a position from GCJ-02, the datum with an offset of some hundred metres that maps of
    /// China use, to WGS84; degrees. Applying the public offset formula to the result gives the
    /// position again to less than 1e-6 degree. Positions outside the rectangle in which the
    /// formula holds (latitude 0.8293 to 55.8271, longitude 72.004 to 137.8347) come back
    /// unchanged. The pointers must not be null.
    static void ResetToWGS84(double lat, double lng, double* outLat, double* outLng);

private:
    CRkControl() = default;
};
