// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"
#include "app/HostWindow.h"
#include "app/LightPanel.h"
#include "app/SurveyTools.h"
#include "app/TerrainPanel.h"

#include <RkBaseUI/CRkLightWgt.h>
#include <RkBaseUI/CRkVolumeWgt.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace {

using GalleryParts::Window;

Window hostWindow()
{
    return std::make_unique<HostWindow>();
}

HostWindow& hostOf(QWidget& window)
{
    return static_cast<HostWindow&>(window);
}

TerrainPanel& terrainOf(QWidget& window)
{
    return *hostOf(window).terrain();
}

void press(const QWidget& dialog, const char* button)
{
    dialog.findChild<QPushButton*>(QLatin1String(button))->click();
}

void sendMouse(QWidget& widget, QEvent::Type type, const QPointF& at, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at.toPoint()), button, buttons, modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}

void drag(QWidget& widget, const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, modifiers);
    sendMouse(widget, QEvent::MouseMove, to, Qt::LeftButton, modifiers);
    sendMouse(widget, QEvent::MouseButtonRelease, to, Qt::NoButton, modifiers);
}

void showTerrain(QWidget& window)
{
    hostOf(window).showPage(HostWindow::Page::Terrain);
    QCoreApplication::processEvents();
    const QPoint at(700, 320);
    sendMouse(terrainOf(window), QEvent::MouseMove, at, Qt::NoButton, Qt::NoModifier);
}

void generate(QWidget& window, double side)
{
    hostOf(window).openEarthwork();
    const QWidget& dialog = *hostOf(window).tools()->earthwork();
    dialog.findChild<QDoubleSpinBox*>(QStringLiteral("doubleSpinBox_grid"))->setValue(side);
    press(dialog, "btn_grid_generate");
}

/// Over the flank of the pit, by the mouse.
void generateAndTurn(QWidget& window, double side)
{
    generate(window, side);
    TerrainPanel& terrain = terrainOf(window);
    const QPointF from = terrain.view().toScreen(terrain.grid()->centre);
    drag(terrain, from, from + QPointF(110, 30), Qt::NoModifier);
    const QPointF centre = terrain.view().toScreen(terrain.grid()->centre);
    drag(terrain, centre + QPointF(120, 0), centre + QPointF(112, -46), Qt::AltModifier);
}

/// Between the legend and the tool.
void zoomToGrid(TerrainPanel& terrain)
{
    const QPointF middle(516, 352);
    TerrainView view = terrain.view();
    view.scale = 1.1 * view.scale;
    terrain.setView(view.moved(middle - view.toScreen(terrain.grid()->centre)));
}

void compute(QWidget& window)
{
    generateAndTurn(window, 40);
    const QWidget& dialog = *hostOf(window).tools()->earthwork();
    press(dialog, "btn_grid_ensure");
    press(dialog, "btn_design_computer");
    zoomToGrid(terrainOf(window));
}

void showScene(QWidget& window)
{
    hostOf(window).showPage(HostWindow::Page::Scene);
    QCoreApplication::processEvents();
}

void setLight(QWidget& window, const QVariantList& record)
{
    showScene(window);
    hostOf(window).scene()->setLight(record, LightPanel::lightName());
    hostOf(window).openLight();
}

void eveningLight(QWidget& window)
{
    setLight(window,
             {-900.0, 500.0, 1050.0, 0.16, 0.95, 0.25, QColor(255, 192, 140), QColor(255, 214, 170),
              16.0, 0.9});
}

void morningLight(QWidget& window)
{
    setLight(window,
             {1000.0, 300.0, 1000.0, 0.26, 0.85, 0.35, QColor(206, 224, 255), QColor(Qt::white),
              40.0, 0.45});
}

/// The window with the window of the tool that is open, as they lie on the screen.
QImage withTool(QWidget& window)
{
    QCoreApplication::processEvents();
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const SurveyTools& tools = *hostOf(window).tools();
    for (QWidget* tool : std::initializer_list<QWidget*>{tools.earthwork(), tools.light()}) {
        if (tool)
            painter.drawPixmap(window.mapFromGlobal(tool->pos()), tool->grab());
    }
    painter.end();
    return picture.toImage();
}

/// Runs what shows a dialog, fills fields of it and accepts it.
void runAndAccept(const std::function<void()>& run, const QVector<QPair<QString, QString>>& texts)
{
    QTimer::singleShot(0, qApp, [&texts] {
        const QWidget* dialog = QApplication::activeModalWidget();
        for (const auto& [field, text] : texts)
            dialog->findChild<QLineEdit*>(field)->setText(text);
        press(*dialog, "m_pBtnOK");
    });
    run();
}

void showHeight(QWidget& window)
{
    runAndAccept([&] { hostOf(window).tools()->computeAntennaHeight(); },
                 {{QStringLiteral("m_pEdtL_Value2"), QStringLiteral("1.482")}});
}

void showCoordinates(QWidget& window)
{
    runAndAccept([&] { hostOf(window).tools()->convertCoordinates(); },
                 {{QStringLiteral("m_pEdtCoordLat"), QStringLiteral("30.57281490")},
                  {QStringLiteral("m_pEdtCoordLng"), QStringLiteral("104.06680123")}});
}

QImage withToolsMenu(QWidget& window)
{
    auto* button = window.findChild<QToolButton*>(QStringLiteral("tools"));
    QMenu* menu = button->menu();
    menu->ensurePolished();
    menu->resize(menu->sizeHint());
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.drawPixmap(button->mapTo(&window, button->rect().bottomLeft()), menu->grab());
    painter.end();
    return picture.toImage();
}

} // namespace

QVector<Gallery::Entry> gallerySurvey()
{
    return {
        {QStringLiteral("host-tools"), hostWindow, {}, withToolsMenu},
        {QStringLiteral("host-height"), hostWindow, showHeight},
        {QStringLiteral("host-coordinates"), hostWindow, showCoordinates},
        {QStringLiteral("terrain"), hostWindow, showTerrain},
        {QStringLiteral("terrain-grid"), hostWindow, [](QWidget& window) { generate(window, 20); },
         withTool},
        {QStringLiteral("terrain-grid-turned"), hostWindow,
         [](QWidget& window) { generateAndTurn(window, 20); }, withTool},
        {QStringLiteral("terrain-volumes"), hostWindow, compute, withTool},
        {QStringLiteral("scene"), hostWindow, showScene},
        {QStringLiteral("scene-morning"), hostWindow, morningLight, withTool},
        {QStringLiteral("scene-evening"), hostWindow, eveningLight, withTool},
    };
}
