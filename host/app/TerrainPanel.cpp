// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/TerrainPanel.h"

#include "app/HostIcons.h"
#include "app/MapLegend.h"
#include "app/PlateStyle.h"
#include "app/TerrainLegend.h"
#include "app/ViewButtons.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr int border = 12; // Pixels between the panel's edge and what lies on it.
constexpr double zoomStep = 2; // Of a button or a key.
constexpr double notch = 120; // Of a wheel, in the units of its events.
constexpr double keyStep = 80; // Pixels.
constexpr double gridShare = 0.46; // Of a new grid, of the shorter side of what is shown.
constexpr double wholeMargin = 24; // Pixels.
constexpr double mostCovered = 0.6; // Of the width; with more there would be no room for a grid.

const QCursor& turnCursor()
{
    static const QCursor cursor(HostIcons::cursor(HostIcons::Shape::Turn));
    return cursor;
}

/// Counter-clockwise from the east as seen on the screen, degrees.
double bearing(const QPointF& centre, const QPointF& position)
{
    return qRadiansToDegrees(std::atan2(centre.y() - position.y(), position.x() - centre.x()));
}

} // namespace

TerrainPanel::TerrainPanel(const ElevationModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_buttons(new ViewButtons(HostIcons::Shape::Earthwork, this))
    , m_canvas(model)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::OpenHandCursor);
    setMinimumSize(360, 240);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(border, border, border, border);
    layout->addWidget(m_buttons, 0, Qt::AlignLeft | Qt::AlignTop);
    connect(m_buttons, &ViewButtons::toolClicked, this, &TerrainPanel::earthworkWanted);
    connect(m_buttons, &ViewButtons::zoomInClicked, this, &TerrainPanel::zoomIn);
    connect(m_buttons, &ViewButtons::zoomOutClicked, this, &TerrainPanel::zoomOut);
    connect(m_buttons, &ViewButtons::wholeClicked, this, &TerrainPanel::showWhole);
    retranslate();
}

void TerrainPanel::retranslate()
{
    setAccessibleName(tr("Terrain"));
    m_buttons->setToolText(tr("Earthwork"), tr("Measure cut and fill over a grid of squares"));
    setNote(m_note);
}

void TerrainPanel::setView(const TerrainView& view)
{
    TerrainView sized = view;
    sized.size = size();
    m_view = sized.within(m_model.extent());
    m_isPlaced = true;
    update();
}

void TerrainPanel::zoom(double factor, const QPointF& fixed)
{
    letGo(); // Or the next move of the mouse would bring the old view back.
    setView(m_view.zoomed(factor, fixed));
}

void TerrainPanel::zoomIn()
{
    zoom(zoomStep, QRectF(rect()).center());
}

void TerrainPanel::zoomOut()
{
    zoom(1 / zoomStep, QRectF(rect()).center());
}

void TerrainPanel::showWhole()
{
    letGo();
    setView(m_view.showing(m_model.extent(), wholeMargin));
}

void TerrainPanel::layGrid(double side)
{
    letGo();
    m_isSampled = false;
    m_drawing.clear();
    const QRectF free(0, 0, freeWidth(), height());
    const double pixels = gridShare * std::min(free.width(), free.height());
    m_grid = EarthworkGrid::laid(side, pixels / m_view.scale, m_view.toTerrain(free.center()),
                                 m_model.extent());
    setNote(m_grid ? Note::Movable : Note::TooLarge);
    updateCursor(Qt::NoModifier);
}

void TerrainPanel::sampleGrid()
{
    if (!m_grid) {
        setNote(Note::NoGrid);
        return;
    }
    letGo();
    m_isSampled = true;
    setNote(Note::None);
    updateCursor(Qt::NoModifier);
    const GridSamples samples = sampled(*m_grid, m_model);
    emit gridSampled(samples.points, samples.cells);
}

void TerrainPanel::showVolumes(const QVariant& volumes)
{
    if (!m_grid)
        return;
    m_drawing.setVolumes(*m_grid, readVolumes(volumes));
    update();
}

void TerrainPanel::removeGrid()
{
    letGo();
    m_grid.reset();
    m_isSampled = false;
    m_drawing.clear();
    setNote(Note::None);
    updateCursor(Qt::NoModifier);
}

void TerrainPanel::setGrid(const EarthworkGrid& grid)
{
    m_grid = grid.within(m_model.extent());
    update();
}

void TerrainPanel::setNote(Note note)
{
    m_note = note;
    setAccessibleDescription(this->note());
    update();
}

double TerrainPanel::freeWidth() const
{
    return width() - std::min<double>(m_coveredWidth, mostCovered * width());
}

QString TerrainPanel::note() const
{
    switch (m_note) {
    case Note::None:
        return {};
    case Note::Movable:
        return tr("Move the grid with the mouse or the arrow keys. Hold Alt to turn it.");
    case Note::TooLarge:
        return tr("Such cells are too large for the terrain.");
    case Note::NoGrid:
        return tr("Generate a grid first.");
    }
    return {};
}

QString TerrainPanel::placeText() const
{
    if (!m_cursorPlace || !QRectF(rect()).contains(*m_cursorPlace))
        return {};
    const QPointF place = m_view.toTerrain(*m_cursorPlace);
    if (!m_model.extent().contains(place))
        return {};
    if (const auto cell = m_grid ? m_grid->cellAt(place) : std::nullopt) {
        if (const auto volume = m_drawing.volume(*cell))
            return tr("%1: cut %2, fill %3 m\u00b3")
                .arg(m_grid->cellName(cell->x(), cell->y()), volumeText(volume->cut),
                     volumeText(volume->fill));
    }
    return tr("E %1  N %2  H %3 m")
        .arg(place.x(), 0, 'f', 1)
        .arg(place.y(), 0, 'f', 1)
        .arg(m_model.elevation(place), 0, 'f', 2);
}

QRect TerrainPanel::cornerRect() const
{
    const QSize size = MapLegend::size();
    return {QPoint(border, height() - border - size.height()), size};
}

void TerrainPanel::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, m_canvas.picture(m_view, devicePixelRatioF()));
    if (m_grid)
        m_drawing.draw(painter, *m_grid, m_view, isGridMovable());
    const QRect corner = cornerRect();
    QRectF plate(QPointF(), TerrainLegend::size());
    plate.moveBottomLeft(QPointF(border, corner.top() - 6));
    TerrainLegend::drawHeights(painter, plate, m_model);
    if (m_drawing.hasVolumes()) {
        plate.moveBottomLeft(plate.topLeft() - QPointF(0, 6));
        TerrainLegend::drawVolumes(painter, plate, m_drawing.largest());
    }
    MapLegend::drawScale(painter, corner, 1 / m_view.scale, placeText());
    drawNote(painter);
}

void TerrainPanel::drawNote(QPainter& painter) const
{
    const QString text = note();
    if (text.isEmpty())
        return;
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(13);
    painter.setFont(font);
    QRectF plate(0, 0, painter.fontMetrics().horizontalAdvance(text) + 28, 34);
    plate.moveCenter(QPointF(freeWidth() / 2, border + 17));
    const double beside = m_buttons->geometry().right() + border;
    if (plate.left() < beside)
        plate.moveLeft(beside);
    PlateStyle::draw(painter, plate);
    painter.setPen(QColor(44, 60, 90));
    painter.drawText(plate, Qt::AlignCenter, text);
    painter.restore();
}

void TerrainPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_isPlaced) {
        setView(m_view);
        return;
    }
    TerrainView view = m_view;
    view.size = size();
    setView(view.filledBy(m_model.extent()));
    m_isPlaced = false; // Until somebody chooses a view, the terrain fills the panel.
}

void TerrainPanel::wheelEvent(QWheelEvent* event)
{
    // With Alt held, the toolkit takes the wheel for one that is turned sideways.
    const QPoint turned = event->angleDelta();
    zoom(std::pow(zoomStep, (turned.x() + turned.y()) / notch / 2), event->position());
    event->accept();
}

TerrainPanel::Drag TerrainPanel::dragAt(const QPointF& position,
                                        Qt::KeyboardModifiers modifiers) const
{
    if (!isGridMovable() || !m_grid->contains(m_view.toTerrain(position)))
        return Drag::View;
    return modifiers & Qt::AltModifier ? Drag::Turn : Drag::Move;
}

void TerrainPanel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_drag = dragAt(event->localPos(), event->modifiers());
    m_grip = event->localPos();
    m_gripView = m_view;
    if (m_grid)
        m_gripGrid = *m_grid;
    updateCursor(event->modifiers());
}

void TerrainPanel::drag(const QPointF& position)
{
    switch (m_drag) {
    case Drag::None:
        return;
    case Drag::View:
        setView(m_gripView.moved(position - m_grip));
        return;
    case Drag::Move:
        setGrid(m_gripGrid.moved(m_view.toTerrain(position) - m_view.toTerrain(m_grip)));
        return;
    case Drag::Turn:
        const QPointF centre = m_view.toScreen(m_gripGrid.centre);
        setGrid(m_gripGrid.turned(bearing(centre, position) - bearing(centre, m_grip)));
        return;
    }
}

void TerrainPanel::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        letGo(); // A dialog may have kept the release of the button.
    m_cursorPlace = event->localPos();
    drag(event->localPos());
    updateCursor(event->modifiers());
    update(cornerRect());
}

void TerrainPanel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    letGo();
    updateCursor(event->modifiers());
}

void TerrainPanel::letGo()
{
    m_drag = Drag::None;
}

void TerrainPanel::leaveEvent(QEvent* event)
{
    m_cursorPlace.reset();
    update(cornerRect());
    QWidget::leaveEvent(event);
}

void TerrainPanel::updateCursor(Qt::KeyboardModifiers modifiers)
{
    const bool isHeld = m_drag != Drag::None;
    const Drag kind = isHeld ? m_drag
        : m_cursorPlace      ? dragAt(*m_cursorPlace, modifiers)
                             : Drag::View;
    if (kind == Drag::Turn)
        setCursor(turnCursor());
    else if (kind == Drag::Move)
        setCursor(Qt::SizeAllCursor);
    else
        setCursor(isHeld ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

/// Arrows: the grid while it can be moved, else the view.
bool TerrainPanel::moveByKey(QKeyEvent* event)
{
    const int key = event->key();
    const QPointF way(key == Qt::Key_Right      ? 1
                          : key == Qt::Key_Left ? -1
                                                : 0,
                      key == Qt::Key_Up         ? 1
                          : key == Qt::Key_Down ? -1
                                                : 0);
    if (way.isNull())
        return false;
    letGo();
    if (!isGridMovable())
        setView(m_view.moved(QPointF(-way.x(), way.y()) * keyStep));
    else if (event->modifiers() & Qt::AltModifier)
        setGrid(m_grid->turned(way.y() - way.x()));
    else
        setGrid(m_grid->moved(way * m_grid->side / 4));
    return true;
}

void TerrainPanel::keyPressEvent(QKeyEvent* event)
{
    if (moveByKey(event))
        return;
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // The same key, without Shift.
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return showWhole();
    case Qt::Key_Alt:
        return updateCursor(Qt::AltModifier);
    default:
        QWidget::keyPressEvent(event);
    }
}

void TerrainPanel::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Alt)
        updateCursor(Qt::NoModifier);
    else
        QWidget::keyReleaseEvent(event);
}

void TerrainPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
