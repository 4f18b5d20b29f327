// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkControl.h"

#include "ReferenceSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cmath>

namespace {

QString& chosenProjectDir()
{
    static QString path;
    return path;
}

constexpr double pi = 3.14159265358979323846;

struct Offset
{
    double lat;
    double lng;
};

/// The public GCJ-02 offset of a WGS84 position, in degrees.
Offset gcj02Offset(double lat, double lng)
{
    // The formula's own ellipsoid (Krasovsky 1940) and the corner from which it counts.
    constexpr double semiMajorAxis = 6378245.0;
    constexpr double eccentricitySquared = 0.00669342162296594323;
    const double x = lng - 105.0;
    const double y = lat - 35.0;

    const double ripple = 20.0 * std::sin(6.0 * x * pi) + 20.0 * std::sin(2.0 * x * pi);
    const double north = -100.0 + 2.0 * x + 3.0 * y + 0.2 * y * y + 0.1 * x * y
        + 0.2 * std::sqrt(std::abs(x))
        + (ripple + 20.0 * std::sin(y * pi) + 40.0 * std::sin(y / 3.0 * pi)
           + 160.0 * std::sin(y / 12.0 * pi) + 320.0 * std::sin(y * pi / 30.0))
            * 2.0 / 3.0;
    const double east = 300.0 + x + 2.0 * y + 0.1 * x * x + 0.1 * x * y
        + 0.1 * std::sqrt(std::abs(x))
        + (ripple + 20.0 * std::sin(x * pi) + 40.0 * std::sin(x / 3.0 * pi)
           + 150.0 * std::sin(x / 12.0 * pi) + 300.0 * std::sin(x / 30.0 * pi))
            * 2.0 / 3.0;

    const double latRadians = lat / 180.0 * pi;
    const double flattening =
        1.0 - eccentricitySquared * std::sin(latRadians) * std::sin(latRadians);
    const double meridianRadius =
        semiMajorAxis * (1.0 - eccentricitySquared) / (flattening * std::sqrt(flattening));
    const double parallelRadius = semiMajorAxis / std::sqrt(flattening) * std::cos(latRadians);
    return {north * 180.0 / (meridianRadius * pi), east * 180.0 / (parallelRadius * pi)};
}

bool hasGcj02Offset(double lat, double lng)
{
    return lat >= 0.8293 && lat <= 55.8271 && lng >= 72.004 && lng <= 137.8347;
}

} // namespace

CRkControl* CRkControl::GetInstance()
{
    static CRkControl control;
    return &control;
}

QString CRkControl::GetProjectDirPath()
{
    QString path = chosenProjectDir();
    if (path.isEmpty())
        path = qEnvironmentVariable("RK_PROJECT_DIR");
    if (path.isEmpty()) {
        path = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
            + QStringLiteral("/RkProjects");
    }
    path = QDir::fromNativeSeparators(path);
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

QString CRkControl::GetFlightMissionFilePath(const QString& projectFile)
{
    const QString path = QDir::fromNativeSeparators(projectFile);
    return path.left(path.lastIndexOf(QLatin1Char('/')) + 1) + QFileInfo(path).completeBaseName()
        + QStringLiteral("_flight.db");
}

void CRkControl::ResetToWGS84(double lat, double lng, double* outLat, double* outLng)
{
    *outLat = lat;
    *outLng = lng;
    if (!hasGcj02Offset(lat, lng))
        return;
    // The offset changes by less than a fiftieth of the way between two positions, so each step
    // wins more than one digit.
    constexpr int steps = 10;
    for (int i = 0; i < steps; ++i) {
        const Offset offset = gcj02Offset(*outLat, *outLng);
        *outLat = lat - offset.lat;
        *outLng = lng - offset.lng;
    }
}

void SetProjectDirPath(const QString& path)
{
    chosenProjectDir() = path;
}
