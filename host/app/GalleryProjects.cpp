// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QToolButton>

namespace {

using GalleryParts::Window;

Window projects()
{
    auto dialog = std::make_unique<CRkProjectManagerDialog>();
    dialog->getProjectManagerWidget()->loadDefaultContiditions();
    return dialog;
}

void selectFirst(QWidget& dialog)
{
    GalleryParts::firstTile(dialog).setSelected(true);
    GalleryParts::hover(dialog, "m_pCopyProjectBtn");
}

void search(QWidget& dialog)
{
    const CRkProjectManagerWidget* page =
        static_cast<CRkProjectManagerDialog&>(dialog).getProjectManagerWidget();
    auto* field = page->findChild<QLineEdit*>(QStringLiteral("lineEditSearch"));
    field->setText(QStringLiteral("2026"));
    // The button that clears the keyword comes up slowly.
    const auto* clearButton = field->findChild<QToolButton*>();
    const QDeadlineTimer deadline(1000);
    while (clearButton->property("opacity").toReal() < 1 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void hoverTitle(QWidget& dialog)
{
    GalleryParts::hover(dialog, "pushButtonMaxWindow");
}

void openFirst(QWidget& dialog)
{
    GalleryParts::firstTile(dialog).setSelected(true);
    GalleryParts::viewOf(dialog).slotOpenProject();
}

} // namespace

QVector<Gallery::Entry> galleryProjects()
{
    return {
        {QStringLiteral("projects"), projects, {}},
        {QStringLiteral("projects-selected"), projects, selectFirst},
        {QStringLiteral("projects-searched"), projects, search},
        {QStringLiteral("projects-title-hover"), projects, hoverTitle},
        {QStringLiteral("projects-blocks"), projects, openFirst},
    };
}
