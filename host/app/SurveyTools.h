// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class CRkBaseDialog;
class CRkLightWgt;
class CRkVolumeWgt;
class LightPanel;
class MapPanel;
class TerrainPanel;

/// Brings the library's survey tools together with the views that they work on.
class SurveyTools : public QObject
{
    Q_OBJECT

public:
    /// The views stand in the window and outlive the tools.
    SurveyTools(MapPanel* map, TerrainPanel* terrain, LightPanel* light, QWidget* window);

    /// Null while they are not open.
    CRkVolumeWgt* earthwork() const;
    CRkLightWgt* light() const;

    /// What the last of the small dialogs computed, in the language of now; empty before.
    QString result() const { return m_result ? m_result() : QString(); }

public Q_SLOTS:
    /// Shows the window beside the terrain, which must be visible.
    void openEarthwork();
    /// Shows the window beside the 3-D view, which must be visible.
    void openLight();
    /// Asks for a slant height.
    void computeAntennaHeight();
    /// Asks for a place, beginning with the middle of the map.
    void convertCoordinates();
    /// Another tool of the window has a result.
    void setResult(std::function<QString()> result);

Q_SIGNALS:
    /// A grid is about to be laid, which the user then moves: the terrain is to be seen and to get
    /// the keys.
    void terrainWanted();
    /// There is a new result.
    void resultChanged();

private:
    int runOverWindow(CRkBaseDialog& dialog) const;

    MapPanel* const m_map;
    TerrainPanel* const m_terrain;
    LightPanel* const m_lightPanel;
    QWidget* const m_window;
    QPointer<CRkVolumeWgt> m_earthwork;
    QPointer<CRkLightWgt> m_light;
    std::function<QString()> m_result;
};
