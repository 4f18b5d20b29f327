// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BlockPanel.h"

#include "app/ElidedLabel.h"
#include "app/PageStyle.h"
#include "map/ScaleBar.h"

#include <QDir>
#include <QEvent>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int margin = 20;

/// The rows of the two forms, in the order of their labels.
enum Row { ScaleRow, CentreRow, FileRow, VersionRow, AircraftRow, CameraRow };

const char* const panelStyle = R"(
BlockPanel, QStackedWidget > QWidget { background-color: white; }
QLabel { color: rgb(38, 52, 78); font-size: 13px; }
QLabel[role="heading"] { color: rgb(58, 136, 244); font-size: 11px; font-weight: 600; }
QLabel[role="name"] { color: rgb(9, 2, 38); font-size: 17px; font-weight: 600; }
QLabel[role="title"] { color: rgb(104, 120, 148); }
QLabel[role="note"] { color: rgb(104, 120, 148); }
QFrame[role="line"] { background-color: rgb(226, 232, 240); border: none; }
QPushButton {
    color: white; background-color: rgb(58, 136, 244); border: none; border-radius: 4px;
    padding: 9px 18px; font-size: 13px; font-weight: 600;
}
QPushButton:hover { background-color: rgb(92, 158, 250); }
QPushButton:pressed { background-color: rgb(38, 108, 208); }
QPushButton:focus { border: 2px solid rgb(4, 21, 46); padding: 7px 16px; }
QPushButton[role="secondary"] {
    color: rgb(38, 98, 192); background-color: white; border: 1px solid rgb(178, 200, 234);
    padding: 8px 10px; font-size: 12px;
}
QPushButton[role="secondary"]:hover { background-color: rgb(238, 245, 255); }
QPushButton[role="secondary"]:pressed { background-color: rgb(222, 234, 252); }
QPushButton[role="secondary"]:focus {
    border: 2px solid rgb(58, 136, 244); padding: 7px 9px;
}
QTreeWidget {
    background-color: white; alternate-background-color: rgb(247, 249, 252);
    border: 1px solid rgb(226, 232, 240); border-radius: 4px; font-size: 13px;
    color: rgb(38, 52, 78); outline: none;
    selection-background-color: rgb(222, 234, 252); selection-color: rgb(9, 2, 38);
}
QTreeWidget:focus { border-color: rgb(58, 136, 244); }
QTreeWidget::item { height: 30px; border: none; padding-right: 8px; }
QTreeWidget::item:selected { background-color: rgb(222, 234, 252); color: rgb(9, 2, 38); }
QHeaderView::section {
    background-color: rgb(240, 243, 248); color: rgb(84, 100, 130); border: none;
    border-bottom: 1px solid rgb(226, 232, 240); padding: 7px 8px; font-size: 12px;
}
)";

QLabel* makeLabel(const char* role, QWidget* parent)
{
    QLabel* label = PageStyle::makeLabel(role, parent);
    label->setWordWrap(true);
    return label;
}

QPushButton* makeSecondary(QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setProperty("role", QStringLiteral("secondary"));
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QWidget* makeLine(QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setProperty("role", QStringLiteral("line"));
    line->setFixedHeight(1);
    return line;
}

QFormLayout* makeForm()
{
    auto* form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

} // namespace

BlockPanel::BlockPanel(QWidget* parent)
    : QWidget(parent)
    , m_pages(new QStackedWidget(this))
{
    setStyleSheet(QString::fromLatin1(panelStyle) + QString::fromLatin1(PageStyle::scrollBar));
    setAttribute(Qt::WA_StyledBackground);
    m_pages->addWidget(makeEmptyPage());
    m_pages->addWidget(makeBlockPage());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pages);
    retranslate();
}

QWidget* BlockPanel::makeEmptyPage()
{
    auto* page = new QWidget(this);
    m_emptyTitle = makeLabel("name", page);
    m_emptyTitle->setAlignment(Qt::AlignCenter);
    m_emptyText = makeLabel("note", page);
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_open = new QPushButton(page);
    m_open->setObjectName(QStringLiteral("openProject"));
    m_open->setCursor(Qt::PointingHandCursor);
    connect(m_open, &QPushButton::clicked, this, &BlockPanel::projectsWanted);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(10);
    layout->addStretch(2);
    layout->addWidget(m_emptyTitle);
    layout->addWidget(m_emptyText);
    layout->addSpacing(10);
    layout->addWidget(m_open, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    return page;
}

QWidget* BlockPanel::makeBlockPage()
{
    auto* page = new QWidget(this);
    m_projectHeading = makeLabel("heading", page);
    m_projectName = makeLabel("name", page);
    m_blockHeading = makeLabel("heading", page);
    m_blockName = makeLabel("name", page);
    m_tasksHeading = makeLabel("heading", page);
    m_totals = makeLabel("note", page);
    m_tasks = new QTreeWidget(page);
    m_tasks->setColumnCount(2);
    m_tasks->setAlternatingRowColors(true);
    m_tasks->setUniformRowHeights(true);
    m_tasks->setIndentation(18);
    m_tasks->header()->setStretchLastSection(false);
    m_tasks->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tasks->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(6);
    layout->addWidget(m_projectHeading);
    layout->addWidget(m_projectName);
    layout->addSpacing(6);
    QFormLayout* project = makeForm();
    for (int row = ScaleRow; row <= VersionRow; ++row)
        addRow(project);
    layout->addLayout(project);
    layout->addSpacing(12);
    layout->addWidget(makeLine(page));
    layout->addSpacing(12);
    layout->addWidget(m_blockHeading);
    layout->addWidget(m_blockName);
    layout->addSpacing(6);
    QFormLayout* block = makeForm();
    for (int row = AircraftRow; row <= CameraRow; ++row)
        addRow(block);
    layout->addLayout(block);
    layout->addSpacing(12);
    layout->addWidget(makeLine(page));
    layout->addSpacing(12);
    layout->addWidget(m_tasksHeading);
    layout->addWidget(m_totals);
    layout->addSpacing(4);
    layout->addWidget(m_tasks, 1);
    layout->addSpacing(8);
    layout->addLayout(makeActions(page));
    return page;
}

QHBoxLayout* BlockPanel::makeActions(QWidget* page)
{
    m_lift = makeSecondary(page);
    m_upload = makeSecondary(page);
    m_lift->setObjectName(QStringLiteral("applyForLift"));
    m_upload->setObjectName(QStringLiteral("uploadProject"));
    connect(m_lift, &QPushButton::clicked, this, &BlockPanel::liftWanted);
    connect(m_upload, &QPushButton::clicked, this, &BlockPanel::uploadWanted);
    auto* layout = new QHBoxLayout;
    layout->setSpacing(8);
    layout->addWidget(m_lift, 1);
    layout->addWidget(m_upload, 1);
    return layout;
}

void BlockPanel::addRow(QFormLayout* form)
{
    m_rowTitles.append(makeLabel("title", this));
    m_rowTitles.last()->setWordWrap(false);
    m_rowValues.append(new ElidedLabel(this));
    m_rowTitles.last()->setBuddy(m_rowValues.last());
    form->addRow(m_rowTitles.last(), m_rowValues.last());
}

void BlockPanel::showBlock(const CRkOpenedProjectInfo& project, const QString& blockId,
                           const ProjectContent& content)
{
    m_project = project;
    m_blockId = blockId;
    m_content = content;
    m_pages->setCurrentIndex(1);
    retranslate();
}

void BlockPanel::showNothing()
{
    m_pages->setCurrentIndex(0);
}

QString BlockPanel::blockName() const
{
    const auto isOpened = [this](const auto& block) { return block.id == m_blockId; };
    const auto found = std::find_if(m_content.blocks.cbegin(), m_content.blocks.cend(), isOpened);
    return found == m_content.blocks.cend() ? m_blockId : found->name;
}

void BlockPanel::retranslate()
{
    m_emptyTitle->setText(tr("Nothing opened yet"));
    m_emptyText->setText(tr("Choose a project and one of its blocks to see it on the map."));
    m_open->setText(tr("Open a project"));
    m_projectHeading->setText(tr("PROJECT"));
    m_blockHeading->setText(tr("BLOCK"));
    m_tasksHeading->setText(tr("TASKS AND FLIGHTS"));
    const QStringList titles = {tr("Scale"),    tr("Centre"), tr("File"), tr("Software version"),
                                tr("Aircraft"), tr("Camera")};
    int widest = 0;
    for (int row = 0; row < titles.size(); ++row) {
        m_rowTitles[row]->setText(titles[row]);
        widest = std::max(widest, m_rowTitles[row]->sizeHint().width());
    }
    for (QLabel* title : qAsConst(m_rowTitles)) // One column, although there are two forms.
        title->setMinimumWidth(widest);

    m_projectName->setText(m_project.projectName);
    m_blockName->setText(blockName());
    m_rowValues[ScaleRow]->setWholeText(
        QStringLiteral("1 : %1").arg(QLocale(QLocale::English).toString(m_project.mapScale)));
    m_rowValues[CentreRow]->setWholeText(coordinateText(m_project.centerLat, m_project.centerLng));
    m_rowValues[FileRow]->setWholeText(QDir::toNativeSeparators(m_project.projectFilePath));
    m_rowValues[VersionRow]->setWholeText(m_project.softwareVersion);
    m_rowValues[AircraftRow]->setWholeText(m_content.aircraft);
    m_rowValues[CameraRow]->setWholeText(m_content.camera);
    m_tasks->setAccessibleName(tr("Tasks and flights"));
    m_tasks->setHeaderLabels({tr("Task"), tr("Flights")});
    m_tasks->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    m_lift->setText(tr("Apply for no-fly lift"));
    m_lift->setToolTip(tr("Apply to fly the block inside a no-fly zone"));
    m_upload->setText(tr("Upload project"));
    m_upload->setToolTip(tr("Look at the whole project and send it to the web service"));
    fillTasks();
}

void BlockPanel::fillTasks()
{
    m_tasks->clear();
    int flights = 0;
    for (const ProjectContent::Task& task : qAsConst(m_content.tasks)) {
        flights += task.flightCount;
        auto* item = new QTreeWidgetItem(m_tasks, {task.name, QString::number(task.flightCount)});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(0, task.name);
        for (const QString& flight : task.flights)
            new QTreeWidgetItem(item, {flight});
        item->setExpanded(true);
    }
    m_totals->setText(tr("Tasks: %1, flights: %2").arg(m_content.tasks.size()).arg(flights));
}

void BlockPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
