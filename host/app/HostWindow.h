// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkOpenedProjectInfo.h>

#include <QMainWindow>
#include <QPointer>

class BlockPanel;
class CRkProjectManagerDialog;
class MapPanel;
class QAction;
class QActionGroup;
class QLabel;
class QToolBar;
class QToolButton;
class UserBox;

/// The main window of the survey application: a tool bar, the map, and beside it what is opened.
/// Projects and blocks are chosen in the dialog of projects.
///
///     HostSettings::setCurrentUser(userId);
///     HostWindow window;
///     window.show();
///     window.openProjects();
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HostWindow(QWidget* parent = nullptr);
    ~HostWindow() override;

    /// The dialog of projects; null while it is not open.
    CRkProjectManagerDialog* projectsDialog() const;
    MapPanel* map() const { return m_map; }
    BlockPanel* blockPanel() const { return m_block; }

    /// Shows a block of a project whose blocks are loaded, and goes there on the map.
    void showBlock(const CRkOpenedProjectInfo& project, const QString& blockId);

public Q_SLOTS:
    /// Shows the dialog of projects until the user opens a block there or closes it.
    void openProjects();

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeToolBar();
    void addGap();
    void makeLanguageMenu();
    void makeDock();
    void retranslate();
    void openBlock(const QString& blockId);
    void closeBlock();

    QToolBar* m_tools = nullptr;
    QLabel* m_brand = nullptr;
    QAction* m_openProjects = nullptr;
    QLabel* m_userTitle = nullptr;
    UserBox* m_user = nullptr;
    QToolButton* m_language = nullptr;
    QActionGroup* m_languages = nullptr;
    MapPanel* m_map = nullptr;
    BlockPanel* m_block = nullptr;
    QPointer<CRkProjectManagerDialog> m_projects;
    QString m_openedName; ///< Of the project; empty while none is opened.
};
