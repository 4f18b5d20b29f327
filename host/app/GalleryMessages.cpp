// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QFile>

namespace {

using GalleryParts::firstTile;
using GalleryParts::viewOf;
using GalleryParts::withMessage;

QImage copyWithoutSelection(QWidget& window)
{
    return withMessage(window, [&window] { viewOf(window).slotCopyProject(); });
}

QImage deleteWithoutSelection(QWidget& window)
{
    return withMessage(window, [&window] { viewOf(window).slotDeleteProject(); });
}

QImage deleteAsks(QWidget& window)
{
    firstTile(window).setSelected(true);
    return withMessage(window, [&window] { viewOf(window).slotDeleteProject(); });
}

QImage renameToNothing(QWidget& window)
{
    return withMessage(window, [&window] {
        emit firstTile(window).GetTextItem()->editFinished(QStringLiteral(" "));
    });
}

QImage renameOntoItself(QWidget& window)
{
    CRkGraphicsProjectRectItem& tile = firstTile(window);
    return withMessage(window,
                       [&tile] { emit tile.GetTextItem()->editFinished(tile.GetProjectName()); });
}

QImage deleteFails(QWidget& window)
{
    CRkGraphicsProjectRectItem& tile = firstTile(window);
    tile.setSelected(true);
    QFile::remove(tile.GetProjectFilePath()); // Before the view does.
    return withMessage(
        window, [&window] { viewOf(window).slotDeleteProject(); }, "m_pBtnOK");
}

} // namespace

QVector<Gallery::Entry> galleryMessages()
{
    return {
        {QStringLiteral("view-copy-nothing"), GalleryParts::viewPage, {}, copyWithoutSelection},
        {QStringLiteral("view-delete-nothing"), GalleryParts::viewPage, {}, deleteWithoutSelection},
        {QStringLiteral("view-delete-question"), GalleryParts::viewPage, {}, deleteAsks},
        {QStringLiteral("view-rename-nothing"), GalleryParts::viewPage, {}, renameToNothing},
        {QStringLiteral("view-rename-fails"), GalleryParts::viewPage, {}, renameOntoItself},
        {QStringLiteral("view-delete-fails"), GalleryParts::viewPage, {}, deleteFails},
    };
}
