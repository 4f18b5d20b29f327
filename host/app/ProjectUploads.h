// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QObject>

#include <functional>
#include <optional>

class BlockPanel;
class MapPanel;
class QDialog;

/// Sends what is opened to the web service: the project as a whole, and applications for lifting
/// the no-fly zone over its block. Each runs its dialogs over the window. When the window goes
/// meanwhile, they close and nothing more is sent.
///
///     auto* uploads = new ProjectUploads(map, blockPanel, window);
///     connect(uploads, &ProjectUploads::reported, ...);
class ProjectUploads : public QObject
{
    Q_OBJECT

public:
    /// The panels stand in the window, which owns the object.
    ProjectUploads(MapPanel* map, BlockPanel* panel, QWidget* window);

public Q_SLOTS:
    /// Shows the document of the opened project and sends it when the user says so.
    void uploadProject();
    /// Lets the user fill in an application for the opened block, and sends it with a picture of
    /// the map, which is brought back to the block where it has gone elsewhere.
    void applyForLift();

Q_SIGNALS:
    /// What came of it, in the language of the time when it is asked. Not when the user sent
    /// nothing.
    void reported(const std::function<QString()>& outcome);

private:
    /// What the dialog returned; nothing when this object went meanwhile.
    std::optional<int> runOverWindow(QDialog& dialog) const;

    MapPanel* const m_map;
    BlockPanel* const m_panel;
    QWidget* const m_window;
};
