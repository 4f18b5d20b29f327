// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryWindows.h"

#include "app/GalleryParts.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QGraphicsScene>
#include <QMap>
#include <QTextCursor>

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

} // namespace

QVector<Gallery::Entry> galleryWindows()
{
    const QVector<Gallery::Entry> pages = {
        {QStringLiteral("view-tiles"), viewPage, {}},
        {QStringLiteral("view-selected"), viewPage, selectFirst},
        {QStringLiteral("view-editing"), viewPage, editFirstCaption},
        {QStringLiteral("view-keyword"), viewPage, filterByKeyword},
        {QStringLiteral("view-city"), viewPage, filterByCity},
    };
    return pages + galleryHost() + galleryService() + galleryUpload() + gallerySurvey()
        + galleryProjects() + galleryCity() + galleryDates() + galleryBlocks()
        + galleryCalculators() + galleryTools() + gallerySystem() + galleryLight() + galleryNoFly()
        + galleryDialogs() + galleryControls() + galleryPictures() + galleryMessages();
}
