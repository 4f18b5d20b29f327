// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostWindow.h"

#include "app/BlockPanel.h"
#include "app/HostIcons.h"
#include "app/HostSettings.h"
#include "app/LightPanel.h"
#include "app/MapPanel.h"
#include "app/ProjectContent.h"
#include "app/ProjectUploads.h"
#include "app/SurveyTools.h"
#include "app/SystemPage.h"
#include "app/TerrainPanel.h"
#include "app/UserBox.h"
#include "terrain/SampleTerrain.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>

#include <QActionGroup>
#include <QDockWidget>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr QSize windowSize(1280, 800);
constexpr int panelWidth = 340;
constexpr int controlHeight = 34;
constexpr QSize toolIconSize(20, 20);

const QColor lightInk(230, 238, 250);

const char* const windowStyle = R"(
QMainWindow { background-color: rgb(226, 232, 240); }
QMainWindow::separator { background-color: rgb(214, 221, 232); width: 1px; height: 1px; }
QToolBar {
    background-color: rgb(9, 2, 38); border: none; spacing: 8px; padding: 9px 16px;
}
QToolBar QLabel { color: rgb(164, 182, 212); font-size: 13px; }
QToolBar QLabel#brand {
    color: white; font-size: 17px; font-weight: 600; padding-right: 14px;
}
QToolBar QToolButton {
    color: rgb(230, 238, 250); background-color: transparent; font-size: 13px;
    border: 1px solid transparent; border-radius: 4px; padding: 6px 10px;
}
QToolBar QToolButton:hover { background-color: rgb(19, 41, 74); }
QToolBar QToolButton:pressed, QToolBar QToolButton:open { background-color: rgb(31, 58, 100); }
QToolBar QToolButton:checked { color: white; background-color: rgb(31, 58, 100); }
QToolBar QToolButton:focus { border-color: rgb(150, 195, 255); }
QToolBar QToolButton::menu-indicator { image: none; width: 0; }
QToolBar QToolButton#openProjects {
    color: white; background-color: rgb(58, 136, 244); font-weight: 600; padding: 6px 8px 6px 12px;
}
QToolBar QToolButton#openProjects:hover { background-color: rgb(92, 158, 250); }
QToolBar QToolButton#openProjects:pressed { background-color: rgb(38, 108, 208); }
QToolBar QToolButton#openProjects:focus { border-color: white; }
QToolBar QComboBox {
    color: rgb(230, 238, 250); background-color: rgb(4, 21, 46); font-size: 13px;
    border: 1px solid rgb(52, 78, 118); border-radius: 4px; padding: 0 4px 0 8px;
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QToolBar QComboBox:focus { border-color: rgb(58, 136, 244); }
QToolBar QComboBox::drop-down { border: none; width: 26px; }
QToolBar QComboBox::down-arrow {
    image: url(:/images/Normal/eng_search_arrow_nor.png); width: 21px; height: 21px;
}
QToolBar QComboBox QAbstractItemView {
    color: rgb(230, 238, 250); background-color: rgb(4, 21, 46);
    border: 1px solid rgb(52, 78, 118); outline: none;
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QMenu {
    color: rgb(230, 238, 250); background-color: rgb(4, 21, 46); font-size: 13px;
    border: 1px solid rgb(52, 78, 118); padding: 4px; icon-size: 20px;
}
QMenu::item { padding: 7px 28px 7px 14px; border-radius: 3px; }
QMenu::item:selected { background-color: rgb(31, 58, 100); }
QMenu::item:checked { color: white; background-color: rgb(58, 136, 244); }
QMenu::indicator { width: 0; }
QMenu::icon { padding-left: 10px; }
QStatusBar { background-color: white; border-top: 1px solid rgb(214, 221, 232); }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: rgb(38, 52, 78); font-size: 13px; padding: 5px 14px; }
)";

/// A control of the tool bar.
void prepare(QWidget& button)
{
    button.setFixedHeight(controlHeight);
    button.setFocusPolicy(Qt::TabFocus);
    button.setCursor(Qt::PointingHandCursor);
}

} // namespace

HostWindow::HostWindow(QWidget* parent, const std::function<SystemValues()>& gather)
    : QMainWindow(parent)
{
    setStyleSheet(QString::fromLatin1(windowStyle));
    setContextMenuPolicy(Qt::NoContextMenu);
    makePages(gather);
    makeToolBar();
    makeDock();
    makeStatusBar();
    retranslate();
    resize(windowSize);
    m_map->setFocus();
}

HostWindow::~HostWindow()
{
    hide(); // Who is being typed becomes the user while there still is a window to hear of it.
}

CRkProjectManagerDialog* HostWindow::projectsDialog() const
{
    return m_projects;
}

void HostWindow::makePages(const std::function<SystemValues()>& gather)
{
    const ElevationModel model = sampleTerrain();
    m_pages = new QStackedWidget(this);
    m_map = new MapPanel(m_pages);
    m_terrain = new TerrainPanel(model, m_pages);
    m_scene = new LightPanel(model, m_pages);
    m_system = new SystemPage(m_pages, gather);
    for (QWidget* page : std::initializer_list<QWidget*>{m_map, m_terrain, m_scene, m_system})
        m_pages->addWidget(page);
    setCentralWidget(m_pages);
    m_surveyTools = new SurveyTools(m_map, m_terrain, m_scene, this);
    connect(m_surveyTools, &SurveyTools::terrainWanted, this, [this] {
        showPage(Page::Terrain);
        activateWindow();
    });
    connect(m_terrain, &TerrainPanel::earthworkWanted, this, &HostWindow::openEarthwork);
    connect(m_scene, &LightPanel::lightWanted, this, &HostWindow::openLight);
}

void HostWindow::makeToolBar()
{
    m_tools = addToolBar(QString());
    m_tools->setMovable(false);
    m_tools->setIconSize(toolIconSize);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_brand = new QLabel(m_tools);
    m_brand->setObjectName(QStringLiteral("brand"));
    m_tools->addWidget(m_brand);
    makeProjectsButton();
    makePageButtons();
    makeToolsMenu();
    addGap();
    makeUserBox();
    makeLanguageMenu();
}

void HostWindow::makeProjectsButton()
{
    m_openProjects = m_tools->addAction(HostIcons::icon(HostIcons::Shape::Projects, Qt::white),
                                        QString(), this, &HostWindow::openProjects);
    m_openProjects->setShortcut(QKeySequence::Open);
    QWidget* open = m_tools->widgetForAction(m_openProjects);
    open->setObjectName(QStringLiteral("openProjects"));
    prepare(*open);
}

void HostWindow::makePageButtons()
{
    using HostIcons::Shape;
    m_pageActions = new QActionGroup(this);
    const QVector<QPair<Shape, Qt::Key>> pages = {{Shape::Map, Qt::Key_1},
                                                  {Shape::Terrain, Qt::Key_2},
                                                  {Shape::Scene, Qt::Key_3},
                                                  {Shape::Computer, Qt::Key_4}};
    for (const auto& [shape, key] : pages) {
        QAction* action = m_pageActions->addAction(HostIcons::icon(shape, lightInk), QString());
        action->setCheckable(true);
        action->setShortcut(QKeySequence(int(Qt::CTRL) + int(key)));
        const auto page = Page(m_pageActions->actions().size() - 1);
        connect(action, &QAction::triggered, this, [this, page] { showPage(page); });
        m_tools->addAction(action);
        prepare(*m_tools->widgetForAction(action));
    }
    m_pageActions->actions().constFirst()->setChecked(true);
}

void HostWindow::makeToolsMenu()
{
    using HostIcons::Shape;
    m_toolsButton = makeMenuButton();
    m_toolsButton->setObjectName(QStringLiteral("tools"));
    m_toolsButton->setIcon(HostIcons::icon(Shape::Tools, lightInk));
    QMenu* menu = m_toolsButton->menu();
    const auto add = [&](Shape shape, Qt::Key key, auto* receiver, auto slot) {
        QAction* action = menu->addAction(HostIcons::icon(shape, lightInk), QString());
        action->setShortcut(QKeySequence(int(Qt::CTRL) + int(key)));
        connect(action, &QAction::triggered, receiver, slot);
        m_toolActions.append(action);
    };
    add(Shape::Earthwork, Qt::Key_E, this, &HostWindow::openEarthwork);
    add(Shape::Light, Qt::Key_L, this, &HostWindow::openLight);
    add(Shape::Antenna, Qt::Key_H, m_surveyTools, &SurveyTools::computeAntennaHeight);
    add(Shape::Coordinates, Qt::Key_D, m_surveyTools, &SurveyTools::convertCoordinates);
    m_tools->addWidget(m_toolsButton);
}

/// What follows in the tool bar stands at its right end.
void HostWindow::addGap()
{
    auto* gap = new QWidget(m_tools);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_tools->addWidget(gap);
}

void HostWindow::makeUserBox()
{
    m_userTitle = new QLabel(m_tools);
    m_user = new UserBox(m_tools);
    m_user->setFixedSize(190, controlHeight);
    m_userTitle->setBuddy(m_user);
    connect(m_user, &UserBox::userChanged, this, &HostWindow::closeBlock);
    m_tools->addWidget(m_userTitle);
    m_tools->addWidget(m_user);
}

QToolButton* HostWindow::makeMenuButton()
{
    auto* button = new QToolButton(m_tools);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    prepare(*button);
    button->setMenu(new QMenu(button));
    return button;
}

void HostWindow::makeLanguageMenu()
{
    m_language = makeMenuButton();
    m_language->setObjectName(QStringLiteral("language"));
    m_language->setIcon(HostIcons::icon(HostIcons::Shape::Language, lightInk));
    QMenu* menu = m_language->menu();
    m_languages = new QActionGroup(menu);
    // Each in itself, so that whoever is lost finds his own.
    const QVector<QPair<QString, QString>> languages = {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("zh_CN"), QStringLiteral("\u7b80\u4f53\u4e2d\u6587")},
    };
    for (const auto& [id, name] : languages) {
        QAction* action = menu->addAction(name);
        action->setCheckable(true);
        action->setData(id);
        action->setChecked(id == HostSettings::language());
        m_languages->addAction(action);
    }
    connect(m_languages, &QActionGroup::triggered, this, [](const QAction* action) {
        HostSettings::installLanguage(action->data().toString());
    });
    m_tools->addWidget(m_language);
}

void HostWindow::makeDock()
{
    m_block = new BlockPanel(this);
    m_block->setFixedWidth(panelWidth);
    connect(m_block, &BlockPanel::projectsWanted, this, &HostWindow::openProjects);
    auto* uploads = new ProjectUploads(m_map, m_block, this);
    connect(uploads, &ProjectUploads::reported, m_surveyTools, &SurveyTools::setResult);
    m_dock = new QDockWidget(this);
    m_dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    m_dock->setTitleBarWidget(new QWidget(m_dock)); // The panel says itself what it is.
    m_dock->setWidget(m_block);
    addDockWidget(Qt::RightDockWidgetArea, m_dock);
}

/// Hidden until there is a result.
void HostWindow::makeStatusBar()
{
    m_result = new QLabel(this);
    m_result->setObjectName(QStringLiteral("result"));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_result, 1);
    statusBar()->hide();
    connect(m_surveyTools, &SurveyTools::resultChanged, this, &HostWindow::showResult);
}

void HostWindow::showResult()
{
    m_result->setText(m_surveyTools->result());
    statusBar()->setHidden(m_result->text().isEmpty());
}

void HostWindow::retranslate()
{
    const QString application = tr("Vantrell");
    setWindowTitle(m_openedName.isEmpty() ? application
                                          : tr("%1 - %2").arg(m_openedName, application));
    m_tools->setWindowTitle(tr("Tools"));
    m_brand->setText(application);
    m_openProjects->setText(tr("Projects"));
    m_openProjects->setToolTip(
        tr("Open a project and one of its blocks (%1)")
            .arg(m_openProjects->shortcut().toString(QKeySequence::NativeText)));
    retranslatePages();
    retranslateTools();
    showResult();
    m_userTitle->setText(tr("Current user"));
    const QString language = m_languages->checkedAction()->text();
    m_language->setText(language);
    m_language->setToolTip(tr("Language"));
    m_language->setAccessibleName(tr("Language: %1").arg(language));
}

void HostWindow::retranslatePages()
{
    struct Texts
    {
        QString name;
        QString tip;
    };
    const QVector<Texts> pages = {
        {tr("Map"), tr("The map with the blocks of the project (%1)")},
        {tr("Terrain"), tr("The terrain from above, for measuring earthwork (%1)")},
        {tr("3-D view"), tr("The terrain in three dimensions, under a light (%1)")},
        {tr("System"),
         tr("Processor, disks, display, memory and operating system of this computer (%1)")}};
    for (int i = 0; i < pages.size(); ++i) {
        QAction* action = m_pageActions->actions().at(i);
        action->setText(pages[i].name);
        action->setToolTip(pages[i].tip.arg(action->shortcut().toString(QKeySequence::NativeText)));
    }
}

void HostWindow::retranslateTools()
{
    m_toolsButton->setText(tr("Survey tools"));
    const QStringList tools = {tr("Earthwork"), tr("Light"), tr("Antenna height"),
                               tr("Coordinates")};
    for (int i = 0; i < tools.size(); ++i)
        m_toolActions[i]->setText(tools[i]);
}

HostWindow::Page HostWindow::page() const
{
    return Page(m_pages->currentIndex());
}

void HostWindow::showPage(Page page)
{
    m_pageActions->actions().at(int(page))->setChecked(true);
    m_pages->setCurrentIndex(int(page));
    m_pages->currentWidget()->setFocus();
    m_dock->setVisible(page == Page::Map); // The block is none of the terrain's.
    layout()->activate(); // At once: a tool that is opened next stands at the page's edge.
}

void HostWindow::openEarthwork()
{
    showPage(Page::Terrain);
    m_surveyTools->openEarthwork();
}

void HostWindow::openLight()
{
    showPage(Page::Scene);
    m_surveyTools->openLight();
}

void HostWindow::openProjects()
{
    if (m_projects)
        return;
    if (m_user->hasFocus())
        m_pages->currentWidget()->setFocus(); // Who is being typed there becomes the user.
    // A new one each time: it lists the projects that are there now, of who is the user now.
    m_projects = new CRkProjectManagerDialog(this);
    m_projects->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_projects, &CRkProjectManagerDialog::blockOpened, this, &HostWindow::openBlock);
    m_projects->getProjectManagerWidget()->loadDefaultContiditions();
    m_projects->open();
}

void HostWindow::openBlock(const QString& blockId)
{
    if (!m_projects->getBlockManagerWidget()->OpenBlock(blockId))
        return;
    showBlock(m_projects->getOpenedProjectInfo(), blockId);
    m_projects->close();
}

void HostWindow::showBlock(const CRkOpenedProjectInfo& project, const QString& blockId)
{
    const ProjectContent content = readProjectContent(project, blockId);
    QVector<MapBlocks::Block> blocks;
    for (const ProjectContent::Block& block : content.blocks)
        blocks.append({block.name, block.outline, block.isStrip, block.id == blockId});
    showPage(Page::Map);
    m_block->showBlock(project, blockId, content);
    m_map->setBlocks(blocks);
    m_map->showBlock();
    m_openedName = project.projectName;
    retranslate();
}

void HostWindow::closeBlock()
{
    m_block->showNothing();
    m_map->setBlocks({});
    m_map->showCountry();
    m_openedName.clear();
    retranslate();
}

void HostWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}
