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
/// below the project root, when it is made, and to list them anew a new view is made. One tile at
/// most is selected, and a filter hides the tiles that do not meet its conditions. The tiles are
/// the CRkGraphicsProjectRectItem among the items of the scene.
///
///     auto* view = new CRkProjectManagerView(page);
///     connect(view, &CRkProjectManagerView::projectOpened, this, &Page::openProject);
///     view->slotFilterConditionChanged("Chengdu", "2026-05-01 to 2026-05-31", {}, "river");
class RKBASEUI_EXPORT CRkProjectManagerView : public QGraphicsView
{
    Q_OBJECT

public:
    /// Takes the size of the parent and lists the projects; returns when every tile has its
    /// picture. The current user is the one of the settings (see `UserInfoUserID`).
    explicit CRkProjectManagerView(QWidget* parent);
    ~CRkProjectManagerView() override;

    /// The name of the project that was opened last; empty before.
    QString GetProjectName() const { return m_openedProjectName; }

    /// Puts every visible tile in its place for the present width.
    void ResetItemPos();

Q_SIGNALS:
    /// A project bears another name, and so do its file and folder.
    void projectRenamed();
    /// A project was copied; the copy has its tile.
    void projectCopied();
    /// For the page's connections; the view itself does not emit it.
    void projectDeleted();
    /// The user opens a project, given by its file, with a double click on its thumbnail.
    void projectOpened(const QString& projectFilePath);
    /// For the page's connections; the view itself does not emit it.
    void blockOpened(const QString& blockId);

public Q_SLOTS:
    /// Makes a project with a name that is free, and its tile. Nothing happens when its file cannot
    /// be written.
    void slotNewProject();
    /// Copies the selected project as "copy of" it, with the first such name that is free.
    void slotCopyProject();
    /// Removes the selected project's file, once the user has confirmed it. Its folder and the file
    /// of its flights stay.
    void slotDeleteProject();

    /// Shows the projects that meet all conditions, given as the filter bar shows them.
    /// @param cityCondition a part of a place's name in its letter case, or a placeholder ("City",
    /// "All") or empty for any
    /// @param dateCondition the day of the last modification in `DateFormat`, two days with "to"
    /// between, both included, or "Date" or empty for any; a day that cannot be read lets all pass
    /// @param sourceCondition not used
    /// @param keywordCondition a part of the project's name in any letter case; empty for any
    void slotFilterConditionChanged(const QString& cityCondition, const QString& dateCondition,
                                    const QString& sourceCondition,
                                    const QString& keywordCondition);
    /// Emits projectOpened() for the selected project.
    void slotOpenProject();
    /// Renames the project of the caption that sends the signal, without the blanks at the name's
    /// end. When that fails, the user is told, and files and caption are as before.
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

    void _addTile(CRkGraphicsProjectRectItem* tile, const ProjectRecord& project,
                  const QPixmap& pixmap);
    QPoint _calculateProjectItemPos(int index);
    void _open(const CRkGraphicsProjectRectItem* tile);
    /// A caption that is being edited renames its project.
    void _endEditing();
    // NOLINTNEXTLINE(bugprone-reserved-identifier): private names begin with an underscore here.
    void _UnSelectOtherItem(CRkGraphicsProjectRectItem* tile);
    CRkGraphicsProjectRectItem* _getSelectedProjectItem() const;
    void _keepOneSelected();
    CRkGraphicsProjectRectItem* _tileOfThumbnailAt(const QPoint& position) const;
    QStringList _projectFiles() const;
    bool _existName(const QString& name) const;
    QString _getUniqueProjcetName(const QString& base) const;

    std::shared_ptr<QGraphicsScene> m_scene; ///< Shared with events that outlive the view.
    /// All tiles in the order of their making.
    QList<CRkGraphicsProjectRectItem*> m_tiles;
    /// Those that passed the last filter, and newer ones.
    QList<CRkGraphicsProjectRectItem*> m_visibleTiles;
    QString m_openedProjectName;
    /// Only to be compared: it may be gone.
    const QGraphicsItem* m_lastSelected = nullptr;
};
