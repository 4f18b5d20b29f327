// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

class CRkProjectManagerView;

namespace Ui {
class CRkProjectManagerWidget;
}

/// The page with the projects of the current user: a tool bar that makes, copies and deletes
/// projects and filters them by city, date and name, and the view of their tiles below.
///
///     auto* page = new CRkProjectManagerWidget(dialog);
///     connect(page, &CRkProjectManagerWidget::projectOpened, this, &Dialog::openProject);
///     page->loadDefaultContiditions();
class RKBASEUI_EXPORT CRkProjectManagerWidget : public QWidget
{
    Q_OBJECT

public:
    /// Lists the projects, see CRkProjectManagerView. The filter bar is without conditions, also
    /// where the settings hold a default city, until loadDefaultContiditions().
    explicit CRkProjectManagerWidget(QWidget* parent = nullptr);
    ~CRkProjectManagerWidget() override;

    /// The tiles; null once a host has deleted the view. The page owns it.
    CRkProjectManagerView* getProjectManagerView() const;

    void SetNewProjectButtonVisible(bool visible);
    void SetCopyProjectBtnVisible(bool visible);
    void SetDeleteProjectBtnVisible(bool visible);

    void SetProjectName(const QString& name);
    /// The text of the last SetProjectName() or soltGetProjectName(): after a project was opened,
    /// the path of its file.
    QString GetSelectProjectName() const { return m_selectedProjectName; }

    /// Does nothing: projects are opened in the view.
    void OpenSpecifiedProject(const QString& project);

    /// Takes the default city of the settings as the city condition and filters.
    void loadDefaultContiditions();

Q_SIGNALS:
    /// The conditions as the filter bar shows them, and the text of the search field. The third
    /// one is always empty.
    void filterConditionChanged(const QString& cityCondition, const QString& dateCondition,
                                const QString& sourceCondition, const QString& keywordCondition);
    /// The user opens a project, given by its file.
    void projectOpened(const QString& projectFilePath);

public Q_SLOTS:
    /// Reads the conditions and filters by them.
    void slotConditionChanged();
    /// Filters by the conditions of the last time anew.
    void slotProjectListChanged();
    void soltGetProjectName(const QString& name);

protected:
    /// Gives the focus to the search field.
    void focusInEvent(QFocusEvent* event) override;

private:
    const std::unique_ptr<Ui::CRkProjectManagerWidget> m_ui;
    QPointer<CRkProjectManagerView> m_view;
    QString m_cityCondition;
    QString m_dateCondition;
    QString m_sourceCondition;
    QString m_keywordCondition;
    QString m_selectedProjectName;
};
