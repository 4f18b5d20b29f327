// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/CRkProjectManagerView.h"

#include "project/CaptionText.h"
#include "project/CRkGraphicsProjectImageItem.h"
#include "project/CRkGraphicsProjectRectItem.h"
#include "project/CRkGraphicsProjectTextItem.h"
#include "project/ProjectFiles.h"
#include "project/ProjectFilter.h"
#include "project/ProjectListing.h"
#include "project/Thumbnail.h"
#include "project/ThumbnailQueue.h"
#include "project/TileGrid.h"
#include "project/UniqueProjectName.h"
#include "widgets/ScreenPicture.h"
#include "widgets/WarningBox.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/RkData.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPointer>
#include <QScopeGuard>
#include <QScrollBar>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr qreal tileWidth = 200;
constexpr qreal tileHeight = 180;
constexpr QPointF thumbnailPosition(5, 5);
constexpr QPointF captionPosition(5, 148);
constexpr qreal captionWidth = 190;
constexpr qreal captionZ = 2;

QString defaultThumbnail()
{
    return QStringLiteral(":/images/Normal/Thumbnails.png");
}

QString baseName(const CRkGraphicsProjectRectItem* tile)
{
    return QFileInfo(tile->GetProjectFilePath()).completeBaseName();
}

/// Keeps a scene until it is deleted itself.
class SceneKeeper : public QObject
{
public:
    explicit SceneKeeper(std::shared_ptr<QGraphicsScene> scene)
        : m_scene(std::move(scene))
    {
    }

private:
    const std::shared_ptr<QGraphicsScene> m_scene;
};

} // namespace

CRkProjectManagerView::CRkProjectManagerView(QWidget* parent)
    : QGraphicsView(parent)
    , m_scene(std::make_shared<QGraphicsScene>())
{
    // The tiles grow far beyond the scene rectangle, where an index tree has no leaves of its own.
    m_scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    connect(m_scene.get(), &QGraphicsScene::selectionChanged, this,
            &CRkProjectManagerView::_keepOneSelected);

    setAccessibleName(tr("Projects"));
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMouseTracking(true);
    setScene(m_scene.get());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    verticalScrollBar()->setObjectName(QStringLiteral("verticalScrollBarProjectManagerView"));

    if (parent)
        resize(parent->size());
    m_scene->setSceneRect(rect());

    LoadExistProjects();
}

CRkProjectManagerView::~CRkProjectManagerView()
{
    // A scene that goes with a selected tile still tells of the change.
    disconnect(m_scene.get(), nullptr, this, nullptr);
}

void CRkProjectManagerView::ResetItemPos()
{
    if (m_visibleTiles.isEmpty()) {
        setSceneRect(0, 0, m_scene->sceneRect().width(), 0); // Nothing to scroll to.
        return;
    }
    // When all is to be painted anew, tiles need not tell what they leave and what they cover.
    m_scene->update();
    const int last = m_visibleTiles.size() - 1;
    for (int i = 0; i < last; ++i)
        m_visibleTiles[i]->setPos(TileGrid::position(i, rect().width()));
    // Scene and scroll bar follow the last tile alone: a shorter scene in between would take the
    // scroll bar away and, with it, lay out everything once more.
    m_visibleTiles[last]->setPos(_calculateProjectItemPos(last));
}

void CRkProjectManagerView::slotNewProject()
{
    const QString file = ProjectFiles::prepare(_getUniqueProjcetName(QString()));
    AddProjectItem(defaultThumbnail(), file, true);
}

void CRkProjectManagerView::slotCopyProject()
{
    const CRkGraphicsProjectRectItem* tile = _getSelectedProjectItem();
    if (!tile) {
        WarningBox::show(tr("Copy Project"), tr("Please select a project to copy."));
        return;
    }
    const QString name = _getUniqueProjcetName(tr("copy of ") + tile->GetProjectName());
    const QString copy = ProjectFiles::copy(tile->GetProjectFilePath(), name);
    if (copy.isEmpty())
        return;
    AddProjectItem(defaultThumbnail(), copy, false);
    const QPointer<CRkProjectManagerView> alive(this);
    emit projectCopied();
    if (alive) // A host may close the page now, or while a message is up that this brings about.
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void CRkProjectManagerView::slotDeleteProject()
{
    const QPointer<CRkProjectManagerView> alive(this);
    // Otherwise the question would take the focus from an open caption and let it rename meanwhile.
    _endEditing();
    if (!alive)
        return;
    CRkGraphicsProjectRectItem* tile = _getSelectedProjectItem();
    if (!tile) {
        WarningBox::show(tr("Delete Project"), tr("Please select a project to delete."));
        return;
    }
    if (!m_tiles.contains(tile))
        return;
    if (!WarningBox::confirm(tr("Delete Project"),
                             tr("confirm delete \"") + tile->GetProjectName() + tr("\"?"))
        || !alive || !m_tiles.contains(tile)) // The host may have deleted it meanwhile.
        return;
    if (!QFile::remove(tile->GetProjectFilePath())) {
        WarningBox::show(tr("File In Use"),
                         tr("The action can't be completed because the file is open in other "
                            "application.Close the file and try again."));
        return;
    }
    if (tile->scene()) // A filter set meanwhile may have hidden it.
        m_scene->removeItem(tile);
    m_tiles.removeOne(tile);
    m_visibleTiles.removeOne(tile);
    tile->deleteLater();
    ResetItemPos();
}

void CRkProjectManagerView::slotFilterConditionChanged(const QString& cityCondition,
                                                       const QString& dateCondition,
                                                       const QString& /*sourceCondition*/,
                                                       const QString& keywordCondition)
{
    const QPointer<CRkProjectManagerView> alive(this);
    _endEditing(); // Before the tiles are touched.
    if (!alive)
        return;

    const ProjectFilter filter({cityCondition, dateCondition, keywordCondition},
                               {tr("date"), tr("to"), tr("city"), tr("all")});
    m_visibleTiles.clear();
    for (CRkGraphicsProjectRectItem* tile : qAsConst(m_tiles)) {
        if (isConditionPassed(tile, filter))
            m_visibleTiles.append(tile);
        else
            tile->setSelected(false);
    }

    for (CRkGraphicsProjectRectItem* tile : qAsConst(m_tiles)) {
        if (tile->scene())
            m_scene->removeItem(tile);
    }
    for (CRkGraphicsProjectRectItem* tile : qAsConst(m_visibleTiles))
        m_scene->addItem(tile);

    verticalScrollBar()->setValue(0);
    ResetItemPos();
}

void CRkProjectManagerView::slotOpenProject()
{
    if (const CRkGraphicsProjectRectItem* tile = _getSelectedProjectItem())
        _open(tile);
}

void CRkProjectManagerView::slotRenameProjectItem(const QString& newName)
{
    auto* caption = qobject_cast<CRkGraphicsProjectTextItem*>(sender());
    auto* tile =
        caption ? dynamic_cast<CRkGraphicsProjectRectItem*>(caption->parentItem()) : nullptr;
    if (!tile)
        return;

    // The view or the tile may go while a message is up. The scene must not before the event is
    // over that took the focus from the caption.
    const QPointer<CRkProjectManagerView> alive(this);
    const QPointer<CRkGraphicsProjectRectItem> tileAlive(tile);
    const auto keepScene = qScopeGuard([scene = m_scene, &alive] {
        if (!alive)
            (new SceneKeeper(scene))->deleteLater();
    });
    if (QString(newName).remove(QLatin1Char(' ')).isEmpty()) {
        WarningBox::show(tr("Rename Project"), tr("You must type a project name."));
        if (!alive || !tileAlive)
            return;
        const QString formerName = baseName(tile);
        tile->setToolTip(formerName);
        caption->SetPlainText(CaptionText::elided(formerName, caption->font()));
        return;
    }
    if (!m_tiles.contains(tile) || !QFileInfo::exists(tile->GetProjectFilePath()))
        return;

    const QString name = CaptionText::withoutTrailingBlanks(newName);
    const QString file = ProjectFiles::rename(tile->GetProjectFilePath(), name, [] {
        WarningBox::show(tr("Rename Project"),
                         tr("The action can't be completed because the file is open in other "
                            "application or project name has been exist."));
    });
    if (!alive || !tileAlive)
        return;
    if (file.isEmpty()) {
        caption->SetPrjName(tile->GetProjectName());
        caption->buildDisplayAndToolTip();
        return;
    }
    tile->SetProjectName(name);
    tile->SetProjectFilePath(file);
    caption->SetPlainText(name);
    caption->buildDisplayAndToolTip();
    tile->GetImageItem()->setToolTip(name);
    emit projectRenamed();
}

void CRkProjectManagerView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    ResetItemPos();
    verticalScrollBar()->setValue(0);
}

void CRkProjectManagerView::mouseReleaseEvent(QMouseEvent* event)
{
    if (CRkGraphicsProjectRectItem* tile = _tileOfThumbnailAt(event->pos()))
        _UnSelectOtherItem(tile);
    QGraphicsView::mouseReleaseEvent(event);
}

void CRkProjectManagerView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!itemAt(event->pos())) {
        // Beside the tiles a double click is no more than a movement.
        QGraphicsView::mouseMoveEvent(event);
        return;
    }
    const CRkGraphicsProjectRectItem* tile = _tileOfThumbnailAt(event->pos());
    if (!tile) {
        QGraphicsView::mouseDoubleClickEvent(event);
        return;
    }
    _open(tile);
}

void CRkProjectManagerView::LoadExistProjects()
{
    const QString root = CRkControl::GetInstance()->GetProjectDirPath();
    if (!QDir(root).exists())
        return;

    const QString userId = ProjectListing::currentUserId();
    ThumbnailQueue thumbnails;
    std::vector<ProjectRecord> projects;
    const QStringList files = ProjectListing::projectFiles(root);
    for (const QString& file : files) {
        if (std::optional<ProjectRecord> project = ProjectListing::read(file, userId)) {
            thumbnails.add(project->imageData);
            project->imageData.clear();
            projects.push_back(std::move(*project));
        }
    }

    // Made one after another they lie side by side in memory, and move several times faster.
    std::vector<CRkGraphicsProjectRectItem*> tiles(projects.size());
    std::generate(tiles.begin(), tiles.end(), [] { return new CRkGraphicsProjectRectItem; });
    const QPixmap noThumbnail = screenPicture(defaultThumbnail());
    for (std::size_t i = 0; i < tiles.size(); ++i)
        _addTile(tiles[i], projects[i], noThumbnail);

    const std::deque<QImage> images = thumbnails.takeImages();
    for (int i = 0; i < m_tiles.size(); ++i) {
        const QImage& image = images[std::size_t(i)];
        if (!image.isNull())
            m_tiles[i]->GetImageItem()->setPixmap(QPixmap::fromImage(image));
    }
}

CRkGraphicsProjectRectItem* CRkProjectManagerView::AddProjectItem(const QString& defaultImage,
                                                                  const QString& projectFile,
                                                                  bool isNew)
{
    const QString userId = ProjectListing::currentUserId();
    const std::optional<ProjectRecord> project = isNew ? ProjectListing::create(projectFile, userId)
                                                       : ProjectListing::read(projectFile, userId);
    if (!project)
        return nullptr;
    const QImage image = Thumbnail::decode(project->imageData);
    auto* tile = new CRkGraphicsProjectRectItem;
    _addTile(tile, *project,
             image.isNull() ? screenPicture(defaultImage) : QPixmap::fromImage(image));
    return tile;
}

void CRkProjectManagerView::LoadBlockGravityListForProject(CRkGraphicsProjectRectItem* tile)
{
    const std::optional<BlockPlaces> blocks = ProjectListing::loadBlocks(
        tile->GetProjectFilePath(), tile->GetProjectID(), tile->GetSoftwareVersion());
    if (!blocks)
        return;
    tile->SetGravityList(tile->GetGravityList() + blocks->centres);
    tile->SetProvinceCityList(blocks->places);
}

bool CRkProjectManagerView::isConditionPassed(const CRkGraphicsProjectRectItem* tile,
                                              const ProjectFilter& filter) const
{
    return filter.passes({baseName(tile), tile->GetTextItem()->GetPrjModifiedDateTime(),
                          tile->GetProvinceCityList()});
}

void CRkProjectManagerView::_addTile(CRkGraphicsProjectRectItem* tile, const ProjectRecord& project,
                                     const QPixmap& pixmap)
{
    // A tile that a filter keeps out of the scene must go with it all the same.
    tile->setParent(m_scene.get());
    tile->setRect(0, 0, tileWidth, tileHeight);
    tile->setFlag(QGraphicsItem::ItemIsSelectable);
    tile->setPos(_calculateProjectItemPos(m_visibleTiles.size()));
    m_scene->addItem(tile);

    auto* thumbnail = new CRkGraphicsProjectImageItem(tile);
    thumbnail->setObjectName(QStringLiteral("PrjImage"));
    thumbnail->setPos(thumbnailPosition);
    thumbnail->setPixmap(pixmap);
    thumbnail->setToolTip(project.name);

    auto* caption = new CRkGraphicsProjectTextItem(tile);
    caption->setObjectName(QStringLiteral("PrjText"));
    caption->setTextWidth(captionWidth);
    caption->setZValue(captionZ);
    caption->setPos(captionPosition);
    caption->SetPrjName(project.name);
    caption->SetPrjSize(project.size);
    caption->SetPrjModifiedDateTime(project.modified);
    caption->buildDisplayAndToolTip();
    connect(caption, &CRkGraphicsProjectTextItem::editFinished, this,
            &CRkProjectManagerView::slotRenameProjectItem, Qt::UniqueConnection);

    tile->SetProjectFilePath(project.filePath);
    tile->SetProjectName(project.name);
    tile->SetProjectID(project.id);
    tile->SetSoftwareVersion(project.softwareVersion);
    tile->SetImageItem(thumbnail);
    tile->SetTextItem(caption);
    tile->SetProvinceCityList(project.places);

    m_tiles.append(tile);
    m_visibleTiles.append(tile);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

QPoint CRkProjectManagerView::_calculateProjectItemPos(int index)
{
    const int height = TileGrid::sceneHeight(index, rect().width());
    setSceneRect(0, 0, m_scene->sceneRect().width(), height);
    verticalScrollBar()->setValue(height);
    return TileGrid::position(index, rect().width());
}

void CRkProjectManagerView::_open(const CRkGraphicsProjectRectItem* tile)
{
    m_openedProjectName = baseName(tile);
    emit projectOpened(tile->GetProjectFilePath());
}

void CRkProjectManagerView::_endEditing()
{
    const std::shared_ptr<QGraphicsScene> scene = m_scene; // A message of the rename may end both.
    scene->setFocusItem(nullptr);
}

void CRkProjectManagerView::_UnSelectOtherItem(CRkGraphicsProjectRectItem* tile)
{
    for (CRkGraphicsProjectRectItem* visible : qAsConst(m_visibleTiles))
        visible->setSelected(visible == tile);
}

CRkGraphicsProjectRectItem* CRkProjectManagerView::_getSelectedProjectItem() const
{
    const QList<QGraphicsItem*> selected = m_scene->selectedItems();
    return selected.isEmpty() ? nullptr
                              : dynamic_cast<CRkGraphicsProjectRectItem*>(selected.first());
}

void CRkProjectManagerView::_keepOneSelected()
{
    // A click with the control key would otherwise add a second tile to the selection.
    const QList<QGraphicsItem*> selected = m_scene->selectedItems();
    const auto isNew = [this](const QGraphicsItem* item) { return item != m_lastSelected; };
    const auto newest = std::find_if(selected.begin(), selected.end(), isNew);
    m_lastSelected = newest != selected.end() ? *newest : selected.value(0);
    for (QGraphicsItem* item : selected) {
        if (item != m_lastSelected)
            item->setSelected(false);
    }
}

CRkGraphicsProjectRectItem* CRkProjectManagerView::_tileOfThumbnailAt(const QPoint& position) const
{
    const auto* thumbnail = dynamic_cast<CRkGraphicsProjectImageItem*>(itemAt(position));
    return thumbnail ? dynamic_cast<CRkGraphicsProjectRectItem*>(thumbnail->parentItem()) : nullptr;
}

QStringList CRkProjectManagerView::_projectFiles() const
{
    QStringList files;
    for (const CRkGraphicsProjectRectItem* tile : m_tiles)
        files.append(tile->GetProjectFilePath());
    return files;
}

bool CRkProjectManagerView::_existName(const QString& name) const
{
    return UniqueProjectName::isTaken(name, _projectFiles(),
                                      qOverload<const QString&>(&QFileInfo::exists));
}

QString CRkProjectManagerView::_getUniqueProjcetName(const QString& base) const
{
    return UniqueProjectName::make(base.isEmpty() ? tr("New Project") : base, _projectFiles(),
                                   qOverload<const QString&>(&QFileInfo::exists));
}
