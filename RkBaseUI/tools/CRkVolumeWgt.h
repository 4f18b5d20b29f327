// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>
#include <RkBaseUI/SquareGridVolume.h>

#include <QHash>
#include <QMap>
#include <QMultiMap>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

class CRkTableDelegate;

namespace Ui {
class CRkVolumeWgt;
}

/// Window that measures earthwork over a grid of squares by the square-grid method (see
/// SquareGridVolume.h). The host lays the grid on its map, samples the terrain and hands points and
/// cells over; the window finds the levelling elevation, lets the user choose the design plane, and
/// computes excavation and fill. Metres, square metres, cubic metres.
///
///     auto* window = new CRkVolumeWgt(mainWindow);
///     connect(window, &CRkVolumeWgt::signalGridGenerate, map, &Map::layGrid);
///     connect(window, &CRkVolumeWgt::signalGridComplete, map, &Map::sampleGrid);
///     connect(map, &Map::gridSampled, window, &CRkVolumeWgt::slotGridPt);
///     connect(window, &CRkVolumeWgt::signalVolumeComplete, map, &Map::colourCells);
///     connect(window, &QDialog::finished, map, &Map::removeGrid);
///     window->InitWgt();
///     window->show();
///
/// The ascending order of the names of a cell's four points is taken as row by row: the first two
/// and the last two lie on opposite sides. Points of 10 and more rows or columns need names with
/// leading zeros.
class RKBASEUI_EXPORT CRkVolumeWgt : public CRkBaseDialog
{
    Q_OBJECT

public:
    /// With a parent this is a window before it.
    explicit CRkVolumeWgt(QWidget* parent = nullptr);
    ~CRkVolumeWgt() override;

    /// Connects the controls of the form; the constructor has done it. A second call would let each
    /// click count twice.
    void ConnectEvent();

    /// Starts anew with the stage in which the grid is laid: empties table and result. Lowest
    /// elevation, heights and cells of earlier grids stay.
    void InitWgt();

Q_SIGNALS:
    /// The host is to lay a movable grid on its map, of squares with this side.
    void signalGridGenerate(double dGrid);
    /// The window is closed by its close button: the host is to remove the grid.
    void signalClearVolume();
    /// The grid has its place: the host is to call `slotGridPt`.
    void signalGridComplete();
    /// After each computation: a map from cell name to the list of two numbers, excavation and
    /// fill, of which the fill is zero or negative.
    void signalVolumeComplete(const QVariant& volumes);

public Q_SLOTS:
    /// The boxes show the stage and start nothing when clicked, and neither does "Cancel".
    void slotClickGroupBoxGrid(bool checked);
    void slotClickGroupBoxDesign(bool checked);
    void slotClickGridGenerate();
    void slotClickGridEnsure();
    void slotCurrentDesignChanged(const QString& design);
    /// Computes the cells of every grid so far, and shows and reports the volumes. A cell of which
    /// not exactly four points are known counts with its area alone.
    void slotClickDesignComputer();
    void slotClickDesignCancel();
    void slotCloseClicked() override;

    /// Takes a grid over and goes to the stage in which it is designed. Further grids add to those
    /// before.
    ///
    /// @param mapPt from the point's name to the list of its x, y and elevation. A number that is
    ///        missing is taken as not-a-number. A point with such a number, or an infinite one, is
    ///        shown and belongs to no cell.
    /// @param mapGrid from the cell's name to a QPolygonF with its four corners first
    void slotGridPt(const QMap<QString, QVariant>& mapPt, const QMap<QString, QVariant>& mapGrid);

    /// The user entered a design elevation. `cell` is the row in the table, "|" and anything not
    /// empty; without both, or with a row that is not there, nothing happens. Each number counts at
    /// once, also when the editor is then left with Escape.
    void slotSpinBoxChanged(double valueTemp, const QString& cell);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double GenerateAvgElevation(const std::vector<rk::GridPoint>& points,
                                const std::vector<rk::GridCell>& cells);
    rk::CellVolume GetMeasurement(const std::vector<const QString*>& names, double side) const;
    void ResetTableWgt();

    void _appendRows(const std::vector<rk::GridPoint>& points);

    const std::unique_ptr<Ui::CRkVolumeWgt> m_form;
    std::unique_ptr<CRkTableDelegate> m_pTableDelegate;
    /// Texts of the design planes in the language of `InitWgt`, which the user still sees after the
    /// application has changed its own.
    QStringList m_modes;
    /// Of all grids so far. Terrain above the start never gets here.
    double m_dMinElevation = 10000.0;
    double m_dAvgElevation = 0.0;
    /// From point name to construction height.
    QHash<QString, double> m_mapPtHeight;
    /// From cell name to the names of the points on its corners.
    QMultiMap<QString, QString> m_mapGridPts;
};
