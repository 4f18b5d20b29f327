// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/GridDrawing.h"
#include "app/TerrainCanvas.h"
#include "terrain/EarthworkGrid.h"
#include "terrain/ElevationModel.h"
#include "terrain/TerrainView.h"

#include <QWidget>

#include <optional>

class ViewButtons;

/// A terrain from above, on which earthwork is measured. The mouse moves it and the wheel zooms at
/// the cursor. A grid that is laid on it is dragged with the mouse and, while Alt is held, turned;
/// the cursor's shape tells which. On the keyboard the arrows move it by a quarter of a cell, or
/// turn it while Alt is held. Once sampled, the grid stays where it is.
///
///     connect(dialog, &CRkVolumeWgt::signalGridGenerate, panel, &TerrainPanel::layGrid);
///     connect(dialog, &CRkVolumeWgt::signalGridComplete, panel, &TerrainPanel::sampleGrid);
///     connect(panel, &TerrainPanel::gridSampled, dialog, &CRkVolumeWgt::slotGridPt);
class TerrainPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TerrainPanel(const ElevationModel& model, QWidget* parent = nullptr);

    const ElevationModel& model() const { return m_model; }
    const TerrainView& view() const { return m_view; }
    /// The view's middle stays on the terrain.
    void setView(const TerrainView& view);

    /// So many pixels at the right edge are covered by another window; grids are laid beside them.
    void setCoveredWidth(int pixels) { m_coveredWidth = pixels; }

    /// Nothing while there is none.
    const std::optional<EarthworkGrid>& grid() const { return m_grid; }
    bool isGridMovable() const { return m_grid && !m_isSampled; }

    /// What the corner says of the place under the cursor; empty when the cursor is elsewhere.
    QString placeText() const;
    /// What the panel says to the user; empty when nothing. It is the accessible description, too.
    QString note() const;

public Q_SLOTS:
    /// Lays a movable grid over the middle of what is shown, instead of the one before. There is
    /// none when the cells would be too large, and a note says so.
    /// @param side of a cell, metres
    void layGrid(double side);
    /// Fixes the grid and emits `gridSampled`; without a grid a note asks for one.
    void sampleGrid();
    /// Colours the cells by the map from their names to cut and fill, cubic metres.
    void showVolumes(const QVariant& volumes);
    void removeGrid();

    void zoomIn();
    void zoomOut();
    void showWhole();

Q_SIGNALS:
    /// The user wants to measure earthwork.
    void earthworkWanted();
    /// See GridSamples.
    void gridSampled(const QVariantMap& points, const QVariantMap& cells);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class Drag { None, View, Move, Turn };
    enum class Note { None, Movable, TooLarge, NoGrid };

    void retranslate();
    void zoom(double factor, const QPointF& fixed);
    void setGrid(const EarthworkGrid& grid);
    void setNote(Note note);
    Drag dragAt(const QPointF& position, Qt::KeyboardModifiers modifiers) const;
    void drag(const QPointF& position);
    void letGo();
    void updateCursor(Qt::KeyboardModifiers modifiers);
    bool moveByKey(QKeyEvent* event);
    double freeWidth() const;
    QRect cornerRect() const;
    void drawNote(QPainter& painter) const;

    const ElevationModel m_model;
    ViewButtons* const m_buttons;
    TerrainCanvas m_canvas;
    TerrainView m_view;
    bool m_isPlaced = false; ///< Whether somebody chose the view.
    int m_coveredWidth = 0;

    std::optional<EarthworkGrid> m_grid;
    bool m_isSampled = false;
    GridDrawing m_drawing;
    Note m_note = Note::None;

    Drag m_drag = Drag::None;
    QPointF m_grip; ///< Where the mouse took hold, on the panel.
    TerrainView m_gripView;
    EarthworkGrid m_gripGrid;
    std::optional<QPointF> m_cursorPlace; ///< On the panel.
};
