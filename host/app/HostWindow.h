// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/SystemValues.h"

#include <RkBaseUI/CRkOpenedProjectInfo.h>

#include <QList>
#include <QMainWindow>
#include <QPointer>

#include <functional>

class BlockPanel;
class CRkProjectManagerDialog;
class LightPanel;
class MapPanel;
class QAction;
class QActionGroup;
class QDockWidget;
class QLabel;
class QStackedWidget;
class QToolBar;
class QToolButton;
class SurveyTools;
class SystemPage;
class TerrainPanel;
class UserBox;

/// The main window of the survey application: a tool bar, and one of four pages: the map and
/// beside it what is opened, a terrain from above, the same terrain in three dimensions, and what
/// this computer is.
/// Projects and blocks are chosen in the dialog of projects. The survey tools work on the pages;
/// what they compute appears in the status bar.
///
///     HostSettings::setCurrentUser(userId);
///     HostWindow window;
///     window.show();
///     window.openProjects();
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    enum class Page { Map, Terrain, Scene, System };

    /// `gather` tells what this computer is, on a thread of its own.
    explicit HostWindow(QWidget* parent = nullptr,
                        const std::function<SystemValues()>& gather = gatherSystemValues);
    ~HostWindow() override;

    /// The dialog of projects; null while it is not open.
    CRkProjectManagerDialog* projectsDialog() const;
    MapPanel* map() const { return m_map; }
    TerrainPanel* terrain() const { return m_terrain; }
    LightPanel* scene() const { return m_scene; }
    SystemPage* systemPage() const { return m_system; }
    BlockPanel* blockPanel() const { return m_block; }
    SurveyTools* tools() const { return m_surveyTools; }

    Page page() const;

    /// Shows a block of a project whose blocks are loaded, and goes there on the page of the map.
    void showBlock(const CRkOpenedProjectInfo& project, const QString& blockId);

public Q_SLOTS:
    /// Shows the dialog of projects until the user opens a block there or closes it.
    void openProjects();
    void showPage(HostWindow::Page page);
    /// Each brings its page to the front and its tool beside it.
    void openEarthwork();
    void openLight();

protected:
    void changeEvent(QEvent* event) override;

private:
    void makePages(const std::function<SystemValues()>& gather);
    void makeToolBar();
    void makeProjectsButton();
    void makePageButtons();
    void makeToolsMenu();
    void addGap();
    void makeUserBox();
    void makeLanguageMenu();
    QToolButton* makeMenuButton();
    void makeDock();
    void makeStatusBar();
    void showResult();
    void retranslate();
    void retranslatePages();
    void retranslateTools();
    void openBlock(const QString& blockId);
    void closeBlock();

    QToolBar* m_tools = nullptr;
    QLabel* m_brand = nullptr;
    QAction* m_openProjects = nullptr;
    QActionGroup* m_pageActions = nullptr; ///< In the order of the pages.
    QToolButton* m_toolsButton = nullptr;
    QList<QAction*> m_toolActions; ///< Earthwork, light, antenna height, coordinates.
    QLabel* m_userTitle = nullptr;
    UserBox* m_user = nullptr;
    QToolButton* m_language = nullptr;
    QActionGroup* m_languages = nullptr;
    QStackedWidget* m_pages = nullptr;
    MapPanel* m_map = nullptr;
    TerrainPanel* m_terrain = nullptr;
    LightPanel* m_scene = nullptr;
    SystemPage* m_system = nullptr;
    SurveyTools* m_surveyTools = nullptr;
    QDockWidget* m_dock = nullptr;
    BlockPanel* m_block = nullptr;
    QLabel* m_result = nullptr;
    QPointer<CRkProjectManagerDialog> m_projects;
    QString m_openedName; ///< Of the project; empty while none is opened.
};
