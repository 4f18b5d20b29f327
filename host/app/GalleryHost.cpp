// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"
#include "app/HostWindow.h"
#include "app/MapPanel.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QTreeWidget>

#include <cmath>
#include <memory>

namespace {

using GalleryParts::Window;

int count(const QWidget& page, const char* label)
{
    return page.findChild<QLabel*>(QLatin1String(label))->text().toInt();
}

/// The page of the project with most blocks, and among these with most flights.
std::unique_ptr<CRkBlockManagerWidget> fullestProject()
{
    std::unique_ptr<CRkBlockManagerWidget> best;
    int most = -1;
    const QStringList files = GalleryParts::projectFiles();
    for (const QString& file : files) {
        auto page = std::make_unique<CRkBlockManagerWidget>();
        if (!page->LoadExistBlocks(file))
            continue;
        const int worth =
            1000 * count(*page, "labelTotalBlockCount") + count(*page, "labelTotalFlightCount");
        if (worth > most) {
            most = worth;
            best = std::move(page);
        }
    }
    return best;
}

/// As when the user opens the project's first block in the dialog.
Window openedWindow()
{
    auto window = std::make_unique<HostWindow>();
    const std::unique_ptr<CRkBlockManagerWidget> page = fullestProject();
    QObject::connect(page.get(), &CRkBlockManagerWidget::blockOpened, window.get(),
                     [&](const QString& blockId) {
                         page->OpenBlock(blockId);
                         window->showBlock(page->getOpenedProjectInfo(), blockId);
                     });
    auto* blocks = page->findChild<QTreeWidget*>(QStringLiteral("treeWidgetBlocks"));
    emit blocks->itemDoubleClicked(blocks->topLevelItem(0), 0);
    return window;
}

Window newWindow()
{
    return std::make_unique<HostWindow>();
}

MapPanel& mapOf(QWidget& window)
{
    return *static_cast<HostWindow&>(window).map();
}

void pointAtBlock(QWidget& window)
{
    MapPanel& map = mapOf(window);
    const QPoint at = map.rect().center() + QPoint(6, 4);
    QMouseEvent move(QEvent::MouseMove, at, map.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&map, &move);
}

void showProvince(QWidget& window)
{
    MapPanel& map = mapOf(window);
    const MapView view = map.view();
    map.setView(view.zoomed(256 * std::pow(2.0, 6.4) / view.scale, map.rect().center()));
}

/// And waits until the map has come to rest.
void showCountry(QWidget& window)
{
    MapPanel& map = mapOf(window);
    map.showCountry();
    const QDeadlineTimer deadline(2000);
    while (map.isMoving() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

} // namespace

QVector<Gallery::Entry> galleryHost()
{
    return {
        {QStringLiteral("host"), openedWindow, pointAtBlock},
        {QStringLiteral("host-province"), openedWindow, showProvince},
        {QStringLiteral("host-country"), openedWindow, showCountry},
        {QStringLiteral("host-empty"), newWindow, {}},
    };
}
