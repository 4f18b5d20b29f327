// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/SurveyTools.h"

#include "app/AngleText.h"
#include "app/LightPanel.h"
#include "app/MapPanel.h"
#include "app/OverWindow.h"
#include "app/TerrainPanel.h"
#include "map/MapProjection.h"
#include "map/ScaleBar.h"

#include <RkBaseUI/CRkCoordFormat.h>
#include <RkBaseUI/CRkLightWgt.h>
#include <RkBaseUI/CRkVerHighCalculator.h>
#include <RkBaseUI/CRkVolumeWgt.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr int gap = 16; // Pixels between a tool's window and the edges of the view.

/// At the upper right of the view, on the screen.
void placeBeside(QWidget& window, const QWidget& view)
{
    window.resize(window.size().expandedTo(window.minimumSizeHint()));
    const int left = std::max(0, view.width() - window.width() - gap);
    window.move(view.mapToGlobal(QPoint(left, gap)));
}

int coveredWidth(const QWidget& window)
{
    return window.width() + 2 * gap;
}

// The tool's form keeps the names of its fields.
const QString latitudeField = QStringLiteral("m_pEdtCoordLat");
const QString longitudeField = QStringLiteral("m_pEdtCoordLng");

void setField(const QWidget& dialog, const QString& name, double degrees)
{
    dialog.findChild<QLineEdit*>(name)->setText(QString::number(degrees, 'f', 8));
}

QString field(const QWidget& dialog, const QString& name)
{
    return dialog.findChild<QLineEdit*>(name)->text();
}

} // namespace

SurveyTools::SurveyTools(MapPanel* map, TerrainPanel* terrain, LightPanel* light, QWidget* window)
    : QObject(window)
    , m_map(map)
    , m_terrain(terrain)
    , m_lightPanel(light)
    , m_window(window)
{
}

CRkVolumeWgt* SurveyTools::earthwork() const
{
    return m_earthwork;
}

CRkLightWgt* SurveyTools::light() const
{
    return m_light;
}

void SurveyTools::openEarthwork()
{
    if (m_earthwork) {
        m_earthwork->raise();
        m_earthwork->activateWindow();
        return;
    }
    // A new one each time: it knows nothing of earlier grids.
    m_earthwork = new CRkVolumeWgt(m_window);
    CRkVolumeWgt* dialog = m_earthwork;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &CRkVolumeWgt::signalGridGenerate, this, [this](double side) {
        emit terrainWanted();
        m_terrain->layGrid(side);
    });
    connect(dialog, &CRkVolumeWgt::signalGridComplete, m_terrain, &TerrainPanel::sampleGrid);
    connect(m_terrain, &TerrainPanel::gridSampled, dialog,
            [this, dialog](const QVariantMap& points, const QVariantMap& cells) {
                // The volumes are those of the grid that was laid, whatever was entered since.
                dialog->findChild<QDoubleSpinBox*>(QStringLiteral("doubleSpinBox_grid"))
                    ->setValue(m_terrain->grid()->side);
                dialog->slotGridPt(points, cells);
            });
    connect(dialog, &CRkVolumeWgt::signalVolumeComplete, m_terrain, &TerrainPanel::showVolumes);
    connect(dialog, &CRkVolumeWgt::signalClearVolume, m_terrain, &TerrainPanel::removeGrid);
    // Not every way to close it emits that signal.
    connect(dialog, &QObject::destroyed, m_terrain, [terrain = m_terrain] {
        terrain->removeGrid();
        terrain->setCoveredWidth(0);
    });
    connect(dialog, &QDialog::finished, m_terrain, &TerrainPanel::removeGrid);
    dialog->InitWgt();
    placeBeside(*dialog, *m_terrain);
    m_terrain->setCoveredWidth(coveredWidth(*dialog));
    dialog->show();
}

void SurveyTools::openLight()
{
    if (m_light) {
        m_light->raise();
        m_light->activateWindow();
        return;
    }
    m_light = new CRkLightWgt(m_window);
    CRkLightWgt* dialog = m_light;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &CRkLightWgt::signalLightPara, m_lightPanel, &LightPanel::setLight);
    connect(dialog, &QObject::destroyed, m_lightPanel,
            [panel = m_lightPanel] { panel->setCoveredWidth(0); });
    dialog->InitWgt(m_lightPanel->light(), LightPanel::lightName());
    placeBeside(*dialog, *m_lightPanel);
    m_lightPanel->setCoveredWidth(coveredWidth(*dialog));
    dialog->show();
}

/// The dialogs that run are windows of their own, without a parent to stand over.
int SurveyTools::runOverWindow(CRkBaseDialog& dialog) const
{
    placeOverWindow(dialog, *m_window);
    return dialog.exec();
}

void SurveyTools::computeAntennaHeight()
{
    CRkVerHighCalculator dialog;
    if (runOverWindow(dialog) != 1)
        return;
    const double height = dialog.GetVerticalHeight();
    setResult([height] { return tr("Vertical height: %1 m").arg(height, 0, 'f', 4); });
}

void SurveyTools::convertCoordinates()
{
    CRkCoordFormat dialog;
    const QPointF middle = MapProjection::toDegrees(m_map->view().centre);
    setField(dialog, latitudeField, middle.x());
    setField(dialog, longitudeField, middle.y());
    if (runOverWindow(dialog) != 1)
        return;
    QStringList latitude;
    QStringList longitude;
    dialog.ConvertToDMSCoord(latitude, longitude);
    QString place = angleText(latitude, QLatin1Char('N'), QLatin1Char('S')) + QStringLiteral("  ")
        + angleText(longitude, QLatin1Char('E'), QLatin1Char('W'));
    if (dialog.findChild<QRadioButton*>(QStringLiteral("m_pRdoDec"))->isChecked())
        place.prepend(coordinateText(field(dialog, latitudeField).toDouble(),
                                     field(dialog, longitudeField).toDouble())
                      + QStringLiteral("  =  "));
    setResult([place] { return tr("Coordinates: %1").arg(place); });
}

void SurveyTools::setResult(std::function<QString()> result)
{
    m_result = std::move(result);
    emit resultChanged();
}
