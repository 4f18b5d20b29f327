// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QGraphicsView>
#include <QList>
#include <QString>

#include <memory>

class CRkGraphicsProjectImageItem;
class CRkGraphicsProjectRectItem;
class ProjectFilter;
class QGraphicsScene;
struct ProjectRecord;

/// The projects of the current user as tiles in rows. It is filled once, from the project files
/// below the project root, when it is made; one tile at most is selected, and a filter hides the
/// tiles that do not meet its conditions.
///
///     auto* view = new CRkProjectManagerView(page);
///     connect(view, &CRkProjectManagerView::projectOpened, this, &Page::openProject);
///     view->slotFilterConditionChanged("Chengdu", "2026-05-01 to 2026-05-31", {}, "river");
class RKBASEUI_EXPORT CRkProjectManagerView : public QGraphicsView
{
    Q_OBJECT

public:
    /// Takes the size of the parent and lists the projects.
    explicit CRkProjectManagerView(QWidget* parent);
    ~CRkProjectManagerView() override;

    /// The name of the project that was opened last; empty before.
    QString GetProjectName() const { return m_openedProjectName; }

    /// Puts every visible tile in its place for the present width.
    void ResetItemPos();

signals:
    /// A project bears another name, and so do its file and folder.
    void projectRenamed();
    /// A project was copied; the copy has its tile.
    void projectCopied();
    /// For the page's connections; the view itself does not emit it.
    void projectDeleted();
    /// The user opens a project, given by its file.
    void projectOpened(const QString& projectFilePath);
    /// For the page's connections; the view itself does not emit it.
    void blockOpened(const QString& blockId);

public slots:
    /// Makes a project with a name that is free, and its tile.
    void slotNewProject();
    void slotCopyProject();
    void slotDeleteProject();

    /// Shows the projects that meet all conditions, given as the filter bar shows them.
    /// @param cityCondition a part of a place's name, or a placeholder ("City", "All") or empty for
    /// any
    /// @param dateCondition a day in `DateFormat`, two days with "to" between, or "Date" or empty
    /// for any
    /// @param sourceCondition not used
    /// @param keywordCondition a part of the project's name in any letter case; empty for any
    void slotFilterConditionChanged(const QString& cityCondition, const QString& dateCondition,
                                    const QString& sourceCondition,
                                    const QString& keywordCondition);
    void slotOpenProject();
    void slotRenameProjectItem(const QString& newName);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void LoadExistProjects();
    CRkGraphicsProjectRectItem* AddProjectItem(const QString& defaultImage,
                                               const QString& projectFile, bool isNew);
    void LoadBlockGravityListForProject(CRkGraphicsProjectRectItem* tile);
    bool isConditionPassed(const CRkGraphicsProjectRectItem* tile,
                           const ProjectFilter& filter) const;

    CRkGraphicsProjectRectItem* _addTile(const ProjectRecord& project, const QPixmap& pixmap);
    QPoint _calculateProjectItemPos(int index);
    // NOLINTNEXTLINE(bugprone-reserved-identifier): private names begin with an underscore here.
    void _UnSelectOtherItem(CRkGraphicsProjectRectItem* tile);
    CRkGraphicsProjectRectItem* _getSelectedProjectItem() const;
    void _keepOneSelected();
    CRkGraphicsProjectRectItem* _tileOfThumbnailAt(const QPoint& position) const;
    QStringList _projectFiles() const;
    bool _existName(const QString& name) const;
    QString _getUniqueProjcetName(const QString& base) const;

    std::unique_ptr<QGraphicsScene> m_scene;
    /// All tiles in the order of their making.
    QList<CRkGraphicsProjectRectItem*> m_tiles;
    /// Those that passed the last filter, and newer ones.
    QList<CRkGraphicsProjectRectItem*> m_visibleTiles;
    QString m_openedProjectName;
    /// Only to be compared: it may be gone.
    const QGraphicsItem* m_lastSelected = nullptr;
};
