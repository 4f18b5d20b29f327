// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkMessageBox.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

namespace {

using GalleryParts::firstTile;
using GalleryParts::viewOf;

/// Calls a function for every message box that comes up while the object lives.
class BoxWatch : public QObject
{
public:
    explicit BoxWatch(std::function<void(CRkMessageBox&)> onBox)
        : m_onBox(std::move(onBox))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<CRkMessageBox*>(watched);
        if (box && event->type() == QEvent::Show)
            QTimer::singleShot(0, box, [this, box] { m_onBox(*box); });
        return false;
    }

private:
    const std::function<void(CRkMessageBox&)> m_onBox;
};

/// The window with the last message box that the action brings up over its middle. Questions are
/// answered with `answer`.
QImage withMessage(QWidget& window, const std::function<void()>& action,
                   const char* answer = "m_pBtnCancel")
{
    QPixmap picture;
    const BoxWatch watch([&](CRkMessageBox& box) {
        picture = window.grab();
        const QPoint middle = window.rect().center() - box.rect().center();
        QPainter(&picture).drawPixmap(middle, box.grab());
        const auto* cancel = box.findChild<QPushButton*>(QStringLiteral("m_pBtnCancel"));
        box.findChild<QPushButton*>(cancel->isHidden() ? QStringLiteral("m_pBtnOK")
                                                       : QLatin1String(answer))
            ->click();
    });
    action();
    return picture.toImage();
}

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
