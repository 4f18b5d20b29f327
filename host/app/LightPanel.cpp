// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/LightPanel.h"

#include "app/FlatTerrainView.h"
#include "app/GlTerrainView.h"
#include "app/PlateStyle.h"
#include "app/ViewButtons.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int border = 12; // Pixels between the panel's edge and what lies on it.
constexpr double zoomStep = 1.4; // Of a button or a key.
constexpr double notch = 120; // Of a wheel, in the units of its events.
constexpr double keyStep = 5; // Degrees.
constexpr double degreesPerPixel = 0.4;
constexpr int plainStep = 2; // Posts; without OpenGL every face costs.

/// From the west at half height: the one direction that the dialog sends back as it is given.
QVariantList firstLight()
{
    return {-1000.0, 0.0, 1000.0, 0.34, 0.78, 0.12, QColor(255, 246, 230), QColor(255, 255, 255),
            24.0,    1.0};
}

} // namespace

LightPanel::LightPanel(const ElevationModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_buttons(new ViewButtons(HostIcons::Shape::Light, this))
    , m_caption(new QLabel(this))
{
    setLight(firstLight(), lightName());
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(360, 240);
    letGo();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(border, border, border, border);
    layout->addWidget(m_buttons, 0, Qt::AlignLeft | Qt::AlignTop);
    connect(m_buttons, &ViewButtons::toolClicked, this, &LightPanel::lightWanted);
    connect(m_buttons, &ViewButtons::zoomInClicked, this, &LightPanel::zoomIn);
    connect(m_buttons, &ViewButtons::zoomOutClicked, this, &LightPanel::zoomOut);
    connect(m_buttons, &ViewButtons::wholeClicked, this, &LightPanel::showWhole);
    m_caption->setStyleSheet(QString::fromLatin1(PlateStyle::styleSheet));
    m_caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    retranslate();
}

QString LightPanel::lightName()
{
    return QStringLiteral("terrain");
}

void LightPanel::retranslate()
{
    setAccessibleName(tr("3-D view"));
    m_buttons->setToolText(tr("Light"), tr("Set the light of the 3-D view"));
    QString text =
        tr("Drag to turn, wheel to zoom. Heights \u00d7 %1").arg(TerrainMesh::heightFactor);
    if (m_view && !m_hasOpenGL)
        text = tr("There is no OpenGL on this machine, so the terrain is drawn plainly.")
            + QLatin1Char('\n') + text;
    m_caption->setText(text);
    placeCaption();
}

void LightPanel::placeCaption()
{
    m_caption->adjustSize();
    m_caption->move(border, height() - border - m_caption->height());
}

/// Only now: to find out takes a while, and a window in which OpenGL is drawn is put together by
/// OpenGL from then on.
void LightPanel::makeView()
{
    m_hasOpenGL = GlTerrainView::isPossible();
    m_terrain.mesh = terrainMesh(m_model, m_hasOpenGL ? 1 : plainStep);
    if (m_hasOpenGL)
        m_view = new GlTerrainView(m_terrain, this);
    else
        m_view = new FlatTerrainView(m_terrain, this);
    m_view->setGeometry(rect());
    m_view->lower();
    m_view->show();
    retranslate();
}

void LightPanel::setLight(const QVariant& record, const QString& name)
{
    if (name != lightName())
        return;
    m_light = record.toList();
    m_terrain.light = readLight(m_light);
    renew();
}

void LightPanel::setCamera(const OrbitCamera& camera)
{
    m_terrain.camera = camera;
    renew();
}

void LightPanel::setCoveredWidth(int pixels)
{
    m_terrain.covered = pixels;
    renew();
}

void LightPanel::renew()
{
    if (m_view)
        m_view->update();
}

void LightPanel::zoomIn()
{
    setCamera(camera().zoomed(zoomStep));
}

void LightPanel::zoomOut()
{
    setCamera(camera().zoomed(1 / zoomStep));
}

void LightPanel::showWhole()
{
    setCamera({});
}

void LightPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_view)
        m_view->setGeometry(rect());
    placeCaption();
}

void LightPanel::showEvent(QShowEvent* event)
{
    if (!m_view)
        makeView();
    QWidget::showEvent(event);
}

void LightPanel::wheelEvent(QWheelEvent* event)
{
    setCamera(camera().zoomed(std::pow(zoomStep, event->angleDelta().y() / notch / 2)));
    event->accept();
}

void LightPanel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_grip = event->localPos();
    setCursor(Qt::ClosedHandCursor);
}

void LightPanel::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        letGo(); // A dialog may have kept the release of the button.
    if (!m_grip)
        return;
    const QPointF way = event->localPos() - *m_grip;
    m_grip = event->localPos();
    setCamera(camera().turned(way.x() * degreesPerPixel, way.y() * degreesPerPixel));
}

void LightPanel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        letGo();
}

void LightPanel::letGo()
{
    m_grip.reset();
    setCursor(Qt::OpenHandCursor);
}

void LightPanel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // The same key, without Shift.
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return showWhole();
    case Qt::Key_Left:
        return setCamera(camera().turned(-keyStep, 0));
    case Qt::Key_Right:
        return setCamera(camera().turned(keyStep, 0));
    case Qt::Key_Up:
        return setCamera(camera().turned(0, keyStep));
    case Qt::Key_Down:
        return setCamera(camera().turned(0, -keyStep));
    default:
        QWidget::keyPressEvent(event);
    }
}

void LightPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
