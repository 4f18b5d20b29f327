// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostWindow.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/RkCityCategory.h>

#include <QComboBox>
#include <QDate>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize windowSize(1120, 760);
constexpr int headerHeight = 60;
constexpr int controlHeight = 34;

const char* const headerStyle = R"(
#header { background-color: rgb(4, 21, 46); }
#header QLabel { color: white; font-size: 17px; font-weight: 600; }
#header QLineEdit {
    background-color: rgb(19, 41, 74); padding-left: 8px;
    border: 1px solid rgb(52, 78, 118); border-radius: 3px;
    selection-background-color: rgb(58, 136, 244);
}
#header QComboBox {
    color: rgb(230, 238, 250); background-color: rgb(19, 41, 74); padding-left: 8px;
    border: 1px solid rgb(52, 78, 118); border-radius: 3px;
}
#header QComboBox::drop-down { border: none; width: 26px; }
#header QComboBox::down-arrow {
    image: url(:/images/Normal/eng_search_arrow_nor.png); width: 21px; height: 21px;
}
#header QLineEdit:focus, #header QComboBox:focus { border-color: rgb(58, 136, 244); }
#header QPushButton {
    color: white; background-color: rgb(58, 136, 244); border: none; border-radius: 3px;
    padding: 0 14px; font-weight: 600;
}
#header QPushButton:hover { background-color: rgb(92, 158, 250); }
#header QPushButton:pressed { background-color: rgb(38, 108, 208); }
#header QPushButton:focus { border: 2px solid rgb(150, 195, 255); }
)";

const char* const pageStyleText = R"(
#page { background-color: rgb(240, 240, 240); }
#page CRkProjectManagerView { background-color: rgb(240, 240, 240); border: none; }
#page QLabel { color: rgb(110, 120, 136); font-size: 16px; }
#page QScrollBar { background: transparent; width: 10px; margin: 0; }
#page QScrollBar::handle {
    background: rgb(198, 205, 216); border-radius: 4px; min-height: 40px; margin: 1px;
}
#page QScrollBar::handle:hover { background: rgb(160, 170, 186); }
#page QScrollBar::add-line, #page QScrollBar::sub-line { height: 0; }
#page QScrollBar::add-page, #page QScrollBar::sub-page { background: transparent; }
)";

const char* const statusStyle = R"(
QStatusBar { background-color: white; border-top: 1px solid rgb(214, 220, 230); }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: rgb(70, 84, 104); padding: 3px 12px; }
)";

/// Colours of the lists in the header, which stands dark above a light page.
QPalette darkPalette()
{
    const QColor field(19, 41, 74);
    const QColor text(230, 238, 250);
    QPalette palette;
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, field);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::PlaceholderText, QColor(140, 162, 194));
    palette.setColor(QPalette::Highlight, QColor(58, 136, 244));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// A range of days as the project view reads it. The English word is understood in every language.
QString lastDays(int days)
{
    const QDate today = QDate::currentDate();
    return QStringLiteral("%1 to %2")
        .arg(today.addDays(-days).toString(DateFormat), today.toString(DateFormat));
}

} // namespace

HostWindow::HostWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(tr("Vantrell"));
    resize(windowSize);

    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader());
    layout->addWidget(makePage(), 1);
    m_blocks = new CRkBlockManagerWidget(this);
    m_pages = new QStackedWidget(this);
    m_pages->addWidget(content);
    m_pages->addWidget(m_blocks);
    setCentralWidget(m_pages);
    makeStatusBar();

    connect(m_place, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &HostWindow::applyFilter);
    connect(m_date, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &HostWindow::applyFilter);
    connect(m_keyword, &QLineEdit::textChanged, this, &HostWindow::applyFilter);
    connect(m_view, &CRkProjectManagerView::projectOpened, this, &HostWindow::openProject);
    connect(m_view, &CRkProjectManagerView::projectCopied, this, &HostWindow::applyFilter);
    connect(m_view, &CRkProjectManagerView::projectRenamed, this, &HostWindow::applyFilter);
    connect(m_blocks, &CRkBlockManagerWidget::backToProjectView, this, &HostWindow::showProjects);
    connect(m_blocks, &CRkBlockManagerWidget::blockOpened, this, &HostWindow::openBlock);
    m_view->setFocus();
    updateCount();
}

QString HostWindow::pageStyle()
{
    return QString::fromLatin1(pageStyleText);
}

void HostWindow::setKeyword(const QString& keyword)
{
    m_keyword->setText(keyword);
}

QWidget* HostWindow::makeHeader()
{
    auto* header = new QWidget(this);
    header->setObjectName(QStringLiteral("header"));
    header->setStyleSheet(QString::fromLatin1(headerStyle));
    header->setFixedHeight(headerHeight);

    auto* newProject = makeAction(tr("New project"), &CRkProjectManagerView::slotNewProject);
    auto* copyProject = makeAction(tr("Copy"), &CRkProjectManagerView::slotCopyProject);
    auto* deleteProject = makeAction(tr("Delete"), &CRkProjectManagerView::slotDeleteProject);
    m_place = new QComboBox(header);
    m_place->setAccessibleName(tr("Place"));
    m_place->setFixedWidth(170);
    fillPlaces();
    m_date = new QComboBox(header);
    m_date->setAccessibleName(tr("Modified"));
    m_date->setFixedWidth(140);
    fillDates();
    m_keyword = new QLineEdit(header);
    m_keyword->setAccessibleName(tr("Keyword"));
    m_keyword->setPlaceholderText(tr("Search projects"));
    m_keyword->setClearButtonEnabled(true);
    m_keyword->setFixedWidth(190);

    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(32, 0, 48, 0); // The edges of five tiles in a row.
    layout->setSpacing(12);
    layout->addWidget(new QLabel(tr("Survey projects"), header));
    layout->addStretch(1);
    const QList<QWidget*> controls = {m_place,    m_date,      m_keyword,
                                      newProject, copyProject, deleteProject};
    for (QWidget* control : controls) {
        control->setFixedHeight(controlHeight);
        control->setPalette(darkPalette());
        layout->addWidget(control);
    }
    return header;
}

QPushButton* HostWindow::makeAction(const QString& text, void (CRkProjectManagerView::*slot)())
{
    auto* button = new QPushButton(text, this);
    button->setCursor(Qt::PointingHandCursor);
    connect(button, &QPushButton::clicked, this, [this, slot] {
        (m_view->*slot)();
        updateCount();
    });
    return button;
}

QWidget* HostWindow::makePage()
{
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("page"));
    page->setStyleSheet(pageStyle());
    page->resize(windowSize); // The view takes its first size from here.
    m_view = new CRkProjectManagerView(page);
    m_noProjects = new QLabel(tr("No projects to show"), page);
    m_noProjects->setAlignment(Qt::AlignCenter);
    m_noProjects->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* layout = new QGridLayout(page);
    layout->setContentsMargins(0, 20, 0, 0);
    layout->addWidget(m_view, 0, 0);
    layout->addWidget(m_noProjects, 0, 0);
    return page;
}

void HostWindow::makeStatusBar()
{
    statusBar()->setStyleSheet(QString::fromLatin1(statusStyle));
    statusBar()->setSizeGripEnabled(false);
    statusBar()->setContentsMargins(15, 0, 33, 0);
    m_count = new QLabel(this);
    m_opened = new QLabel(this);
    statusBar()->addWidget(m_count);
    statusBar()->addPermanentWidget(m_opened);
}

void HostWindow::fillPlaces()
{
    m_place->addItem(tr("All places"), QString());
    for (const QString& province : RkCityCategory::instance().provinceNames())
        m_place->addItem(province, province);
}

void HostWindow::fillDates()
{
    m_date->addItem(tr("Any time"), QString());
    m_date->addItem(tr("Today"), lastDays(0));
    m_date->addItem(tr("Last week"), lastDays(7));
    m_date->addItem(tr("Last month"), lastDays(30));
    m_date->addItem(tr("Last half year"), lastDays(182));
}

void HostWindow::applyFilter()
{
    m_view->slotFilterConditionChanged(m_place->currentData().toString(),
                                       m_date->currentData().toString(), QString(),
                                       m_keyword->text());
    updateCount();
}

void HostWindow::updateCount()
{
    const QList<QGraphicsItem*> items = m_view->scene()->items();
    const auto shown = std::count_if(items.cbegin(), items.cend(), [](QGraphicsItem* item) {
        return dynamic_cast<CRkGraphicsProjectRectItem*>(item) != nullptr;
    });
    m_count->setText(shown == 1 ? tr("1 project") : tr("%1 projects").arg(shown));
    m_noProjects->setVisible(shown == 0);
}

void HostWindow::openProject(const QString& projectFile)
{
    if (!m_blocks->LoadExistBlocks(projectFile))
        return;
    m_pages->setCurrentWidget(m_blocks);
    statusBar()->hide(); // The page has one of its own.
    m_opened->setText(tr("Opened: %1").arg(QFileInfo(projectFile).completeBaseName()));
}

void HostWindow::showProjects()
{
    m_pages->setCurrentIndex(0);
    statusBar()->show();
}

void HostWindow::openBlock(const QString& blockId)
{
    m_blocks->OpenBlock(blockId);
    showProjects();
    m_opened->setText(tr("Opened: %1").arg(m_blocks->getOpenedProjectInfo().projectName));
}
