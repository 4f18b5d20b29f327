// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostWindow.h"

#include "app/BlockPanel.h"
#include "app/HostIcons.h"
#include "app/HostSettings.h"
#include "app/MapPanel.h"
#include "app/ProjectContent.h"
#include "app/UserBox.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>

#include <QActionGroup>
#include <QDockWidget>
#include <QEvent>
#include <QLabel>
#include <QMenu>
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
    border: 1px solid rgb(52, 78, 118); padding: 4px;
}
QMenu::item { padding: 7px 28px 7px 14px; border-radius: 3px; }
QMenu::item:selected { background-color: rgb(31, 58, 100); }
QMenu::item:checked { color: white; background-color: rgb(58, 136, 244); }
QMenu::indicator { width: 0; }
)";

} // namespace

HostWindow::HostWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_map(new MapPanel(this))
{
    setStyleSheet(QString::fromLatin1(windowStyle));
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(m_map);
    makeToolBar();
    makeDock();
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

void HostWindow::makeToolBar()
{
    m_tools = addToolBar(QString());
    m_tools->setMovable(false);
    m_tools->setIconSize(toolIconSize);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_brand = new QLabel(m_tools);
    m_brand->setObjectName(QStringLiteral("brand"));
    m_tools->addWidget(m_brand);
    m_openProjects = m_tools->addAction(HostIcons::icon(HostIcons::Shape::Projects, Qt::white),
                                        QString(), this, &HostWindow::openProjects);
    m_openProjects->setShortcut(QKeySequence::Open);
    QWidget* open = m_tools->widgetForAction(m_openProjects);
    open->setObjectName(QStringLiteral("openProjects"));
    open->setFixedHeight(controlHeight);
    open->setFocusPolicy(Qt::TabFocus);
    open->setCursor(Qt::PointingHandCursor);
    addGap();
    m_userTitle = new QLabel(m_tools);
    m_user = new UserBox(m_tools);
    m_user->setFixedSize(190, controlHeight);
    m_userTitle->setBuddy(m_user);
    connect(m_user, &UserBox::userChanged, this, &HostWindow::closeBlock);
    m_tools->addWidget(m_userTitle);
    m_tools->addWidget(m_user);
    makeLanguageMenu();
}

/// What follows in the tool bar stands at its right end.
void HostWindow::addGap()
{
    auto* gap = new QWidget(m_tools);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_tools->addWidget(gap);
}

void HostWindow::makeLanguageMenu()
{
    m_language = new QToolButton(m_tools);
    m_language->setIcon(HostIcons::icon(HostIcons::Shape::Language, lightInk));
    m_language->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_language->setPopupMode(QToolButton::InstantPopup);
    m_language->setFixedHeight(controlHeight);
    m_language->setFocusPolicy(Qt::TabFocus);
    m_language->setCursor(Qt::PointingHandCursor);
    auto* menu = new QMenu(m_language);
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
    m_language->setMenu(menu);
    m_tools->addWidget(m_language);
}

void HostWindow::makeDock()
{
    m_block = new BlockPanel(this);
    m_block->setFixedWidth(panelWidth);
    connect(m_block, &BlockPanel::projectsWanted, this, &HostWindow::openProjects);
    auto* dock = new QDockWidget(this);
    dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    dock->setTitleBarWidget(new QWidget(dock)); // The panel says itself what it is.
    dock->setWidget(m_block);
    addDockWidget(Qt::RightDockWidgetArea, dock);
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
    m_userTitle->setText(tr("Current user"));
    const QString language = m_languages->checkedAction()->text();
    m_language->setText(language);
    m_language->setToolTip(tr("Language"));
    m_language->setAccessibleName(tr("Language: %1").arg(language));
}

void HostWindow::openProjects()
{
    if (m_projects)
        return;
    if (m_user->hasFocus())
        m_map->setFocus(); // Who is being typed there becomes the user.
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
