// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/OutlineDrawing.h"
#include "map/SurveyOutline.h"

#include <QObject>

class OutlinePlate;

/// Draws an outline on a map, checks it and splits it into parts. The map hands on clicks and keys
/// while the tool is active, and draws what it draws.
///
///     m_outline->addVertex(m_view.toPlane(click), 4 / m_view.scale);
///     m_outline->close();
///     m_outline->check();
class OutlineTool : public QObject
{
    Q_OBJECT

public:
    /// Makes the plate on the map, hidden until the tool is active.
    explicit OutlineTool(QWidget* map);

    OutlinePlate* plate() const { return m_plate; }
    bool isActive() const { return m_isActive; }
    /// Whether vertices can be added.
    bool isDrawing() const { return m_isActive && !m_drawing.isClosed; }

    const OutlineDrawing& drawing() const { return m_drawing; }
    /// Of the last check; nothing when the outline has changed since.
    const std::optional<SurveyOutline::Check>& lastCheck() const { return m_check; }

    /// Adds a vertex unless it is the last one again.
    ///
    /// @param place on the plane
    /// @param tolerance how near on the plane counts as the same place
    void addVertex(const QPointF& place, double tolerance);

    /// Enter closes the outline, Backspace takes its last vertex away, Escape leaves, Space adds a
    /// vertex in the middle of the view. False for any other key.
    bool handleKey(int key, const MapView& view);

public Q_SLOTS:
    void start();
    /// Takes the outline away.
    void leave();
    /// With at least 3 vertices; says so otherwise.
    void close();
    /// Opens a closed outline again.
    void removeLast();
    void check();
    void segment();

Q_SIGNALS:
    void changed();
    void activeChanged(bool isActive);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State { Hint, TooFew, OutOfReach, Checked, Split };

    void setState(State state);
    QVector<OutlineTexts::Line> lines() const;
    void outlineChanged();
    void checkAgain();

    OutlinePlate* const m_plate;
    bool m_isActive = false;
    State m_state = State::Hint;
    OutlineDrawing m_drawing;
    std::optional<SurveyOutline::Check> m_check;
    SurveyOutline::Parts m_parts;
};
