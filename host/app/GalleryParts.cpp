// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkData/CRkControl.h>

#include <QDirIterator>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace GalleryParts {

namespace {

const char* const pageStyle = R"(
#page { background-color: rgb(240, 240, 240); }
#page CRkProjectManagerView { background-color: rgb(240, 240, 240); border: none; }
#page QScrollBar { background: transparent; width: 10px; margin: 0; }
#page QScrollBar::handle {
    background: rgb(198, 205, 216); border-radius: 4px; min-height: 40px; margin: 1px;
}
#page QScrollBar::add-line, #page QScrollBar::sub-line { height: 0; }
#page QScrollBar::add-page, #page QScrollBar::sub-page { background: transparent; }
)";

} // namespace

void hover(QWidget& widget)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    QMouseEvent move(QEvent::MouseMove, widget.rect().center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void hover(QWidget& window, const char* button)
{
    hover(*window.findChild<QPushButton*>(QLatin1String(button)));
}

Window viewPage()
{
    auto page = std::make_unique<QWidget>();
    page->setObjectName(QStringLiteral("page"));
    page->setStyleSheet(QString::fromLatin1(pageStyle));
    page->resize(904, 640);
    auto* layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(0, 16, 0, 0);
    layout->addWidget(new CRkProjectManagerView(page.get()));
    return page;
}

QStringList projectFiles()
{
    QStringList files;
    QDirIterator projects(CRkControl::GetProjectDirPath(), {QStringLiteral("*.proj")}, QDir::Files,
                          QDirIterator::Subdirectories);
    while (projects.hasNext())
        files.append(projects.next());
    files.sort();
    return files;
}

CRkProjectManagerView& viewOf(QWidget& window)
{
    return *window.findChild<CRkProjectManagerView*>();
}

QList<CRkGraphicsProjectRectItem*> tilesOf(QWidget& window)
{
    QList<CRkGraphicsProjectRectItem*> tiles;
    const QList<QGraphicsItem*> items = viewOf(window).scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item))
            tiles.append(tile);
    }
    return tiles;
}

CRkGraphicsProjectRectItem& firstTile(QWidget& window)
{
    const QList<CRkGraphicsProjectRectItem*> tiles = tilesOf(window);
    Q_ASSERT(!tiles.isEmpty());
    return **std::min_element(tiles.cbegin(), tiles.cend(), [](const auto* a, const auto* b) {
        return a->y() < b->y() || (a->y() == b->y() && a->x() < b->x());
    });
}

} // namespace GalleryParts
