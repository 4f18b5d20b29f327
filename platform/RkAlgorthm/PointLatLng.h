// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// A place on the ground: latitude and longitude in degrees, WGS84. Any values are kept as they
/// are.
///
///     PointLatLng chengdu(30.67, 104.06);
///     chengdu.SetLat(30.66);
///     const double latitude = chengdu.Lat();
class PointLatLng
{
public:
    constexpr PointLatLng() = default;
    constexpr PointLatLng(double lat, double lng)
        : m_lat(lat)
        , m_lng(lng)
    {
    }

    constexpr double Lat() const { return m_lat; }
    constexpr double Lng() const { return m_lng; }
    void SetLat(const double& lat) { m_lat = lat; }
    void SetLng(const double& lng) { m_lng = lng; }

private:
    double m_lat = 0;
    double m_lng = 0;
};
