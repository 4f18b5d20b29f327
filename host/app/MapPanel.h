// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/MapBlocks.h"
#include "app/MapCanvas.h"
#include "map/MapView.h"

#include <QImage>
#include <QVariantAnimation>
#include <QWidget>

#include <optional>

class MapButtons;
class MapPlaces;
class OutlineTool;

/// A map of the country's cities and of the blocks of a project. The mouse moves it, the wheel
/// zooms at the cursor; on the keyboard the arrows move it, + and - zoom and Home goes back to the
/// block. The corner shows the scale and the coordinates under the cursor. Places are searched for
/// by name or by where the user is, and outlines are drawn on it.
///
///     auto* map = new MapPanel(this);
///     map->setBlocks(blocks);
///     map->showBlock();
class MapPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MapPanel(QWidget* parent = nullptr);

    /// Shows these blocks instead of those before; the view stays.
    void setBlocks(const QVector<MapBlocks::Block>& blocks);

    const MapView& view() const { return m_view; }
    /// At once. The map's middle stays within the country and the project.
    void setView(const MapView& view);

    /// Whether the map is on its way to another view.
    bool isMoving() const { return m_glide.state() == QAbstractAnimation::Running; }

    /// What the corner says of the place under the cursor; empty when the cursor is elsewhere.
    QString coordinates() const;

    /// At once, with the map at rest: the opened block with its surroundings, unless the whole of
    /// it is in sight already.
    void bringBlockIntoSight();

    /// What the map shows, in the pixels of the screen, without what lies on it to be pressed.
    QImage picture();

    MapPlaces* places() const { return m_places; }
    OutlineTool* outline() const { return m_outline; }

public Q_SLOTS:
    /// Each goes there smoothly. The opened block with its surroundings; all blocks of the project;
    /// the country. The first two show the country when nothing is opened.
    void showBlock();
    void showProject();
    void showCountry();
    /// The marked place in the middle, no smaller than a city.
    void showMarker();
    void zoomIn();
    void zoomOut();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectTools();
    void retranslate();
    void toggleOutline();
    void glideTo(const MapView& goal);
    void zoom(double factor, const QPointF& fixed);
    MapView viewOf(const QRectF& area, double margin) const;
    MapView blockView() const;
    MapView allowed(const MapView& view) const;
    /// The view that the map will have when it comes to rest.
    const MapView& goal() const;
    void letGo();
    /// Whether the mouse has moved too little for a drag, where a click has a meaning of its own.
    bool isClick(const QPointF& place) const;
    void setCursorPlace(const std::optional<QPointF>& place);
    QRect cornerRect() const;

    MapPlaces* const m_places;
    OutlineTool* const m_outline;
    MapButtons* const m_buttons;
    MapCanvas m_canvas;
    MapBlocks m_blocks;
    MapView m_view;
    QVariantAnimation m_glide;
    MapView m_glideStart;
    MapView m_glideGoal;
    std::optional<QPointF> m_grip; ///< Where the mouse holds the map.
    MapView m_gripView;
    bool m_isDragged = false; ///< Since the mouse took hold.
    std::optional<QPointF> m_cursorPlace; ///< On the panel.
    bool m_isPlaced = false; ///< Whether the view was ever fitted to the panel.
};
