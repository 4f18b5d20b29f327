// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryWindows.h"

#include "app/GalleryParts.h"
#include "app/HostWindow.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGraphicsScene>
#include <QLineEdit>
#include <QMap>
#include <QTextCursor>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using GalleryParts::firstTile;
using GalleryParts::tilesOf;
using GalleryParts::viewOf;
using GalleryParts::viewPage;
using GalleryParts::Window;

void selectFirst(QWidget& window)
{
    firstTile(window).setSelected(true);
}

void editFirstCaption(QWidget& window)
{
    selectFirst(window);
    viewOf(window).setFocus();
    CRkGraphicsProjectTextItem* caption = firstTile(window).GetTextItem();
    caption->setFocus();
    QTextCursor cursor = caption->textCursor();
    cursor.select(QTextCursor::Document);
    caption->setTextCursor(cursor);
}

void filterByKeyword(QWidget& window)
{
    const QString name = firstTile(window).GetProjectName();
    viewOf(window).slotFilterConditionChanged(QString(), QString(), QString(), name.left(2));
}

/// The place with most projects.
void filterByCity(QWidget& window)
{
    QMap<QString, int> counts;
    for (const CRkGraphicsProjectRectItem* tile : tilesOf(window)) {
        for (const QString& place : tile->GetProvinceCityList())
            ++counts[place];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    viewOf(window).slotFilterConditionChanged(most.key(), QString(), QString(), QString());
}

Window hostWindow()
{
    return std::make_unique<HostWindow>();
}

void search(QWidget& window, const QString& keyword)
{
    static_cast<HostWindow&>(window).setKeyword(keyword);
    // The button that clears the keyword comes up slowly.
    const auto* clearButton = window.findChild<QLineEdit*>()->findChild<QToolButton*>();
    const QDeadlineTimer deadline(1000);
    while (clearButton->property("opacity").toReal() < 1 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void searchHost(QWidget& window)
{
    search(window, QStringLiteral("2026"));
}

void searchHostForNothing(QWidget& window)
{
    search(window, QStringLiteral("no such name"));
}

void openFirst(QWidget& window)
{
    selectFirst(window);
    emit viewOf(window).projectOpened(firstTile(window).GetProjectFilePath());
}

} // namespace

QVector<Gallery::Entry> galleryWindows()
{
    const QVector<Gallery::Entry> pages = {
        {QStringLiteral("view-tiles"), viewPage, {}},
        {QStringLiteral("view-selected"), viewPage, selectFirst},
        {QStringLiteral("view-editing"), viewPage, editFirstCaption},
        {QStringLiteral("view-keyword"), viewPage, filterByKeyword},
        {QStringLiteral("view-city"), viewPage, filterByCity},
        {QStringLiteral("host"), hostWindow, {}},
        {QStringLiteral("host-opened"), hostWindow, openFirst},
        {QStringLiteral("host-keyword"), hostWindow, searchHost},
        {QStringLiteral("host-empty"), hostWindow, searchHostForNothing},
    };
    return pages + galleryBlocks() + galleryDialogs() + galleryControls() + galleryPictures()
        + galleryMessages();
}
