// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/MapPanel.h"

#include "app/HostSettings.h"
#include "app/MapButtons.h"
#include "app/MapLegend.h"
#include "app/MapPlaces.h"
#include "app/OutlinePlate.h"
#include "app/OutlineTool.h"
#include "app/PlaceSearchBox.h"
#include "map/MapProjection.h"
#include "map/ScaleBar.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int glideTime = 220; // Milliseconds.
constexpr double zoomStep = 2; // Of a button or a key.
constexpr double notch = 120; // Of a wheel, in the units of its events.
constexpr double keyStep = 80; // Pixels.
constexpr double countryMargin = 56; // Pixels.
constexpr int border = 12; // Pixels between the panel's edge and what lies on it.
constexpr int plateWidth = 300; // Pixels.
constexpr double placeScale = 1 << 20; // Of a map that shows a city, pixels to a unit of the plane.
constexpr double sameVertex = 4; // Pixels within which two clicks are at one place.

} // namespace

MapPanel::MapPanel(QWidget* parent)
    : QWidget(parent)
    , m_places(new MapPlaces(this))
    , m_outline(new OutlineTool(this))
    , m_buttons(new MapButtons(this))
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    letGo();
    setMinimumSize(360, 240);
    m_glide.setDuration(glideTime);
    m_glide.setStartValue(0.0);
    m_glide.setEndValue(1.0);
    m_glide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_glide, &QVariantAnimation::valueChanged, this, [this](const QVariant& progress) {
        m_view = m_glideStart.towards(m_glideGoal, progress.toDouble());
        update();
    });
    connect(&m_glide, &QVariantAnimation::finished, this, qOverload<>(&MapPanel::update));
    auto* plates = new QVBoxLayout;
    plates->setSpacing(6);
    plates->addWidget(m_places->box());
    plates->addWidget(m_outline->plate());
    plates->addStretch();
    for (QWidget* plate : std::initializer_list<QWidget*>{m_places->box(), m_outline->plate()})
        plate->setFixedWidth(plateWidth);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(border, border, border, border);
    layout->setSpacing(0);
    layout->addLayout(plates);
    layout->addStretch();
    layout->addWidget(m_buttons, 0, Qt::AlignTop);
    connectTools();
    setBlocks({});
    retranslate();
}

void MapPanel::connectTools()
{
    connect(m_buttons, &MapButtons::zoomInClicked, this, &MapPanel::zoomIn);
    connect(m_buttons, &MapButtons::zoomOutClicked, this, &MapPanel::zoomOut);
    connect(m_buttons, &MapButtons::blockClicked, this, &MapPanel::showBlock);
    connect(m_buttons, &MapButtons::projectClicked, this, &MapPanel::showProject);
    connect(m_buttons, &MapButtons::countryClicked, this, &MapPanel::showCountry);
    connect(m_buttons, &MapButtons::locateClicked, m_places, &MapPlaces::locate);
    connect(m_buttons, &MapButtons::outlineClicked, this, &MapPanel::toggleOutline);
    connect(m_places->box(), &PlaceSearchBox::placePicked, this,
            [this] { setFocus(); }); // To go on from there.
    connect(m_places, &MapPlaces::placeChosen, this, &MapPanel::showMarker);
    connect(m_places, &MapPlaces::markerChanged, this, [this] {
        const auto marker = m_places->marker();
        m_canvas.leaveFree(marker ? std::make_optional(marker->place) : std::nullopt);
        update();
    });
    connect(m_outline, &OutlineTool::changed, this, qOverload<>(&MapPanel::update));
    connect(m_outline, &OutlineTool::changed, this, &MapPanel::letGo);
    connect(m_outline, &OutlineTool::activeChanged, m_buttons, &MapButtons::setOutlineChecked);
}

void MapPanel::toggleOutline()
{
    if (m_outline->isActive())
        m_outline->leave();
    else
        m_outline->start();
    setFocus(); // Its keys are the map's.
}

void MapPanel::retranslate()
{
    setAccessibleName(tr("Map"));
    m_canvas.renewNames(HostSettings::language().startsWith(QLatin1String("zh")), font());
    update();
}

void MapPanel::setBlocks(const QVector<MapBlocks::Block>& blocks)
{
    m_blocks = MapBlocks(blocks);
    m_buttons->setBlockEnabled(!m_blocks.openedExtent().isNull());
    m_buttons->setProjectEnabled(!m_blocks.isEmpty());
    update();
}

void MapPanel::setView(const MapView& view)
{
    m_glide.stop();
    m_isPlaced = true;
    m_view = allowed(view);
    update();
}

MapView MapPanel::allowed(const MapView& view) const
{
    MapView sized = view;
    sized.size = size();
    QRectF area = m_canvas.extent().united(m_blocks.extent());
    if (const auto marker = m_places->marker()) {
        // Not empty, or it would not count.
        constexpr double little = 1e-9;
        area |= QRectF(marker->place, QSizeF(little, little));
    }
    return sized.within(area);
}

const MapView& MapPanel::goal() const
{
    return isMoving() ? m_glideGoal : m_view;
}

void MapPanel::glideTo(const MapView& view)
{
    letGo(); // Or the next move of the mouse would bring the old view back.
    if (!isVisible() || !style()->styleHint(QStyle::SH_Widget_Animate, nullptr, this)) {
        setView(view);
        return;
    }
    m_glide.stop();
    m_isPlaced = true;
    m_glideStart = m_view;
    m_glideGoal = allowed(view);
    m_glide.start();
}

MapView MapPanel::viewOf(const QRectF& area, double margin) const
{
    MapView view = m_view;
    view.size = size();
    return view.showing(area.isNull() ? m_canvas.extent() : area,
                        area.isNull() ? countryMargin : margin);
}

MapView MapPanel::blockView() const
{
    return viewOf(m_blocks.openedExtent(), std::min(width(), height()) * 0.28);
}

void MapPanel::showBlock()
{
    glideTo(blockView());
}

void MapPanel::bringBlockIntoSight()
{
    const QRectF block = m_blocks.openedExtent();
    const bool isInSight = block.isNull() || goal().extent().contains(block);
    setView(isInSight ? goal() : blockView());
}

void MapPanel::showProject()
{
    glideTo(viewOf(m_blocks.extent(), std::min(width(), height()) * 0.16));
}

void MapPanel::showCountry()
{
    glideTo(viewOf({}, 0));
}

void MapPanel::showMarker()
{
    const auto marker = m_places->marker();
    if (!marker)
        return;
    MapView view = goal();
    view.centre = marker->place;
    view.scale = std::max(view.scale, placeScale);
    glideTo(view);
}

void MapPanel::zoom(double factor, const QPointF& fixed)
{
    glideTo(goal().zoomed(factor, fixed));
}

void MapPanel::zoomIn()
{
    zoom(zoomStep, QRectF(rect()).center());
}

void MapPanel::zoomOut()
{
    zoom(1 / zoomStep, QRectF(rect()).center());
}

QString MapPanel::coordinates() const
{
    if (!m_cursorPlace)
        return {};
    const QPointF degrees = MapProjection::toDegrees(m_view.toPlane(*m_cursorPlace));
    return coordinateText(degrees.x(), degrees.y());
}

QImage MapPanel::picture()
{
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    render(&picture, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return picture.toImage();
}

void MapPanel::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const bool isZooming = isMoving() && m_glideStart.scale != m_glideGoal.scale;
    painter.drawPixmap(
        0, 0,
        m_canvas.picture(m_view, devicePixelRatioF(),
                         isZooming ? MapCanvas::Quality::Draft : MapCanvas::Quality::Fine));
    m_blocks.draw(painter, m_view);
    if (m_outline->isActive())
        m_outline->drawing().draw(painter, m_view, m_cursorPlace);
    if (const auto marker = m_places->marker())
        marker->draw(painter, m_view);
    const QWidget* lowest = m_outline->isActive() ? static_cast<QWidget*>(m_outline->plate())
                                                  : m_places->box();
    const QRect covered(QPoint(0, 0), lowest->geometry().bottomRight());
    MapLegend::drawGridTexts(painter, m_view, covered, cornerRect().top());
    MapLegend::draw(painter, cornerRect(), m_view, coordinates());
}

QRect MapPanel::cornerRect() const
{
    const QSize size = MapLegend::size();
    return {QPoint(border, height() - border - size.height()), size};
}

void MapPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_isPlaced) {
        setView(goal());
        return;
    }
    setView(viewOf({}, 0));
    m_isPlaced = false; // Until somebody chooses a view, the country fills the panel.
}

void MapPanel::wheelEvent(QWheelEvent* event)
{
    zoom(std::pow(zoomStep, event->angleDelta().y() / notch / 2), event->position());
    event->accept();
}

void MapPanel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    setView(m_view); // A map that is held does not glide.
    m_grip = event->localPos();
    m_gripView = m_view;
    m_isDragged = false;
    if (!m_outline->isDrawing())
        setCursor(Qt::ClosedHandCursor);
}

void MapPanel::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grip && !(event->buttons() & Qt::LeftButton))
        letGo(); // A dialog may have kept the release of the button.
    if (m_grip && !isClick(event->localPos())) {
        m_isDragged = true;
        // By whole pixels of the screen, so that the picture can be moved instead of drawn.
        const double ratio = devicePixelRatioF();
        const QPoint pixels = ((event->localPos() - *m_grip) * ratio).toPoint();
        setView(m_gripView.moved(QPointF(pixels) / ratio));
    }
    setCursorPlace(event->localPos());
}

void MapPanel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_grip && isClick(event->localPos()))
        m_outline->addVertex(m_view.toPlane(*m_grip), sameVertex / m_view.scale);
    letGo();
}

bool MapPanel::isClick(const QPointF& place) const
{
    return m_outline->isDrawing() && !m_isDragged
        && (place - *m_grip).manhattanLength() < QApplication::startDragDistance();
}

void MapPanel::letGo()
{
    m_grip.reset();
    setCursor(m_outline->isDrawing() ? Qt::CrossCursor : Qt::OpenHandCursor);
}

void MapPanel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_outline->isActive())
        m_outline->close();
    else
        zoom(zoomStep, event->localPos());
}

void MapPanel::leaveEvent(QEvent* event)
{
    setCursorPlace(std::nullopt);
    QWidget::leaveEvent(event);
}

void MapPanel::setCursorPlace(const std::optional<QPointF>& place)
{
    m_cursorPlace = place;
    if (m_outline->isDrawing())
        update(); // The line to the cursor.
    else
        update(cornerRect());
}

void MapPanel::keyPressEvent(QKeyEvent* event)
{
    if (m_outline->handleKey(event->key(), m_view))
        return;
    const auto move = [this](double x, double y) { glideTo(goal().moved(QPointF(x, y))); };
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // The same key, without Shift.
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return showBlock();
    case Qt::Key_Left:
        return move(keyStep, 0);
    case Qt::Key_Right:
        return move(-keyStep, 0);
    case Qt::Key_Up:
        return move(0, keyStep);
    case Qt::Key_Down:
        return move(0, -keyStep);
    default:
        QWidget::keyPressEvent(event);
    }
}

void MapPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
