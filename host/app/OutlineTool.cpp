// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/OutlineTool.h"

#include "app/OutlinePlate.h"
#include "map/MapProjection.h"

#include <QApplication>
#include <QEvent>

#include <cmath>

namespace {

constexpr double clickTolerance = 4; // Pixels.

QPolygonF toDegrees(const QPolygonF& plane)
{
    QPolygonF degrees;
    for (const QPointF& point : plane)
        degrees.append(MapProjection::toDegrees(point));
    return degrees;
}

} // namespace

OutlineTool::OutlineTool(QWidget* map)
    : QObject(map)
    , m_plate(new OutlinePlate(map))
{
    m_plate->hide();
    m_plate->installEventFilter(this);
    connect(m_plate, &OutlinePlate::checkClicked, this, &OutlineTool::check);
    connect(m_plate, &OutlinePlate::segmentClicked, this, &OutlineTool::segment);
    connect(m_plate, &OutlinePlate::leaveClicked, this, &OutlineTool::leave);
    connect(m_plate, &OutlinePlate::largestPartChanged, this, &OutlineTool::checkAgain);
}

void OutlineTool::start()
{
    m_isActive = true;
    m_drawing = {};
    outlineChanged();
    m_plate->show();
    emit activeChanged(true);
}

void OutlineTool::leave()
{
    m_isActive = false;
    m_drawing = {};
    outlineChanged();
    m_plate->hide();
    emit activeChanged(false);
}

void OutlineTool::addVertex(const QPointF& place, double tolerance)
{
    if (!isDrawing())
        return;
    if (!m_drawing.vertices.isEmpty()) {
        const QPointF way = place - m_drawing.vertices.last();
        if (std::hypot(way.x(), way.y()) < tolerance)
            return;
    }
    m_drawing.vertices.append(place);
    outlineChanged();
}

void OutlineTool::close()
{
    if (!isDrawing())
        return;
    if (m_drawing.vertices.size() < 3) {
        setState(State::TooFew);
        return;
    }
    m_drawing.isClosed = true;
    outlineChanged();
}

void OutlineTool::removeLast()
{
    if (m_drawing.vertices.isEmpty())
        return;
    m_drawing.vertices.removeLast();
    m_drawing.isClosed = false;
    outlineChanged();
}

bool OutlineTool::handleKey(int key, const MapView& view)
{
    if (!m_isActive)
        return false;
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        close();
        return true;
    case Qt::Key_Backspace:
        removeLast();
        return true;
    case Qt::Key_Escape:
        leave();
        return true;
    case Qt::Key_Space:
        addVertex(view.centre, clickTolerance / view.scale);
        return true;
    default:
        return false;
    }
}

void OutlineTool::check()
{
    if (!m_drawing.isClosed)
        return;
    m_drawing.parts.clear();
    m_check = SurveyOutline::check(toDegrees(m_drawing.vertices), m_plate->largestPart());
    if (m_check)
        m_drawing.mood = OutlineTexts::mood(*m_check);
    setState(m_check ? State::Checked : State::OutOfReach);
}

void OutlineTool::segment()
{
    check();
    if (!m_check || m_check->splitting != SurveyOutline::Splitting::Possible)
        return; // The check says why.
    m_parts = SurveyOutline::split(toDegrees(m_drawing.vertices), m_plate->largestPart());
    for (const QPolygonF& part : qAsConst(m_parts.outlines))
        m_drawing.parts.append(MapProjection::toPlane(part));
    setState(State::Split);
}

/// For another size of the parts.
void OutlineTool::checkAgain()
{
    if (m_check)
        check();
}

/// What was found out holds no longer.
void OutlineTool::outlineChanged()
{
    m_check.reset();
    m_drawing.mood.reset();
    m_drawing.parts.clear();
    setState(State::Hint);
}

void OutlineTool::setState(State state)
{
    m_state = state;
    // Buttons that are about to be disabled would hand the keys on to others.
    if (!m_drawing.isClosed && QApplication::focusWidget()
        && m_plate->isAncestorOf(QApplication::focusWidget()))
        m_plate->parentWidget()->setFocus();
    m_plate->setVertices(m_drawing.vertices.size());
    m_plate->setClosed(m_drawing.isClosed);
    m_plate->showLines(lines());
    emit changed();
}

QVector<OutlineTexts::Line> OutlineTool::lines() const
{
    using Mood = OutlineTexts::Mood;
    switch (m_state) {
    case State::Hint:
        if (m_drawing.isClosed)
            return {{Mood::Plain, tr("The outline is closed. Check it, or split it into parts.")}};
        return {{Mood::Plain, tr("Click on the map to add a vertex; Backspace takes it back.")},
                {Mood::Plain, tr("A double click or Enter closes the outline, Esc removes it.")}};
    case State::TooFew:
        return {{Mood::Bad, tr("An outline needs at least three vertices.")}};
    case State::OutOfReach:
        return {{Mood::Bad, tr("The outline lies too far north or south to be measured.")}};
    case State::Checked:
        return OutlineTexts::lines(*m_check, m_plate->largestPart());
    case State::Split:
        break;
    }
    QVector<OutlineTexts::Line> all = OutlineTexts::lines(*m_check, m_plate->largestPart());
    all.last() = OutlineTexts::partsLine(m_parts);
    return all;
}

/// The lines are written anew in another language.
bool OutlineTool::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_plate->showLines(lines());
    return QObject::eventFilter(watched, event);
}
