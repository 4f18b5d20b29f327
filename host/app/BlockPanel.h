// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/ProjectContent.h"

#include <RkBaseUI/CRkOpenedProjectInfo.h>

#include <QWidget>

class ElidedLabel;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

/// What is opened, beside the map: the project, the block, and the block's tasks with the flights
/// of each. With nothing opened it says how to open something.
///
///     panel->showBlock(dialog->getOpenedProjectInfo(), blockId, content);
class BlockPanel : public QWidget
{
    Q_OBJECT

public:
    explicit BlockPanel(QWidget* parent = nullptr);

    void showBlock(const CRkOpenedProjectInfo& project, const QString& blockId,
                   const ProjectContent& content);
    void showNothing();

    /// What was shown last.
    const CRkOpenedProjectInfo& project() const { return m_project; }
    const QString& blockId() const { return m_blockId; }
    /// Its id where the project does not tell a name.
    QString blockName() const;

Q_SIGNALS:
    /// The user wants to choose a project.
    void projectsWanted();
    /// The user wants to send the project to the web service.
    void uploadWanted();
    /// The user wants to fly the block inside a no-fly zone.
    void liftWanted();

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeEmptyPage();
    QWidget* makeBlockPage();
    QHBoxLayout* makeActions(QWidget* page);
    void addRow(QFormLayout* form);
    void retranslate();
    void fillTasks();

    CRkOpenedProjectInfo m_project;
    QString m_blockId;
    ProjectContent m_content;

    QStackedWidget* m_pages = nullptr;
    QLabel* m_emptyTitle = nullptr;
    QLabel* m_emptyText = nullptr;
    QPushButton* m_open = nullptr;
    QLabel* m_projectHeading = nullptr;
    QLabel* m_projectName = nullptr;
    QLabel* m_blockHeading = nullptr;
    QLabel* m_blockName = nullptr;
    QLabel* m_tasksHeading = nullptr;
    QLabel* m_totals = nullptr;
    QVector<QLabel*> m_rowTitles;
    QVector<ElidedLabel*> m_rowValues;
    QTreeWidget* m_tasks = nullptr;
    QPushButton* m_lift = nullptr;
    QPushButton* m_upload = nullptr;
};
