// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/ProjectUploads.h"

#include "app/BlockPanel.h"
#include "app/MapPanel.h"
#include "app/OverWindow.h"
#include "app/UploadDialog.h"

#include <RkBaseUI/CRkNoflyApplyUpload.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>
#include <RkBaseUI/WebService.h>

#include <QGuiApplication>
#include <QPointer>

namespace {

QByteArray documentOf(const QString& projectFile)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QByteArray document = GetUploadArray(projectFile);
    QGuiApplication::restoreOverrideCursor();
    return document;
}

} // namespace

ProjectUploads::ProjectUploads(MapPanel* map, BlockPanel* panel, QWidget* window)
    : QObject(window)
    , m_map(map)
    , m_panel(panel)
    , m_window(window)
{
    connect(panel, &BlockPanel::uploadWanted, this, &ProjectUploads::uploadProject);
    connect(panel, &BlockPanel::liftWanted, this, &ProjectUploads::applyForLift);
}

std::optional<int> ProjectUploads::runOverWindow(QDialog& dialog) const
{
    const QPointer<const ProjectUploads> alive(this);
    // It stands on the stack of whoever runs it, without a parent that would take it along.
    connect(this, &QObject::destroyed, &dialog, &QDialog::reject);
    placeOverWindow(dialog, *m_window);
    const int result = dialog.exec();
    return alive ? std::optional<int>(result) : std::nullopt;
}

void ProjectUploads::uploadProject()
{
    const CRkOpenedProjectInfo project = m_panel->project();
    UploadDialog dialog(project.projectName, documentOf(project.projectFilePath));
    if (!runOverWindow(dialog))
        return;
    using State = UploadDialog::State;
    const State state = dialog.state();
    if (state == State::Empty || state == State::Ready)
        return;
    emit reported([name = project.projectName, state] {
        if (state == State::Done)
            return tr("Upload: project %1 has been uploaded.").arg(name);
        if (state == State::Running)
            return tr("Upload: project %1 was cancelled.").arg(name);
        return tr("Upload: project %1 failed.").arg(name);
    });
}

void ProjectUploads::applyForLift()
{
    const QString blockId = m_panel->blockId();
    const QString name = m_panel->blockName();
    CRkNoflyApplyWgt form(blockId, {blockId}, nullptr);
    m_map->bringBlockIntoSight(); // The application is about nothing else.
    form.SetScreenShotsImage(m_map->picture());
    if (runOverWindow(form) != 1)
        return;
    CRkNoflyApplyUpload upload(nullptr);
    upload.BeginUpload(form.ComboUploadData());
    const std::optional<int> result = runOverWindow(upload);
    if (!result)
        return;
    emit reported([name, isTaken = *result == QDialog::Accepted] {
        // A request that was cancelled may have arrived all the same.
        return isTaken
            ? tr("No-fly lift: the application for %1 has been submitted.").arg(name)
            : tr("No-fly lift: the service has not confirmed the application for %1.").arg(name);
    });
}
