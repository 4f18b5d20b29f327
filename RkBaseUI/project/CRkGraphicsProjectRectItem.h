// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/PointLatLng.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QGraphicsRectItem>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class CRkGraphicsProjectImageItem;
class CRkGraphicsProjectTextItem;

/// The tile of one project: a rectangle that carries the project's data and shows whether it is
/// selected or has the focus. Thumbnail and caption are its children.
///
///     auto* tile = new CRkGraphicsProjectRectItem;
///     tile->setRect(0, 0, 200, 180);
///     scene->addItem(tile);
class RKBASEUI_EXPORT CRkGraphicsProjectRectItem : public QObject, public QGraphicsRectItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit CRkGraphicsProjectRectItem(QGraphicsItem* parent = nullptr);

    /// The project file.
    QString GetProjectFilePath() const { return m_projectFilePath; }
    void SetProjectFilePath(const QString& path) { m_projectFilePath = path; }

    QString GetProjectName() const { return m_projectName; }
    void SetProjectName(const QString& name) { m_projectName = name; }

    /// Provinces and cities of the survey areas, each once.
    QStringList GetProvinceCityList() const { return m_provinceCityList; }
    void SetProvinceCityList(const QStringList& places) { m_provinceCityList = places; }

    QString GetProjectID() const { return m_projectId; }
    void SetProjectID(const QString& id) { m_projectId = id; }

    /// The version of the application that made the project.
    QString GetSoftwareVersion() const { return m_softwareVersion; }
    void SetSoftwareVersion(const QString& version) { m_softwareVersion = version; }

    /// The thumbnail; null until set. A child of the tile, not owned otherwise.
    CRkGraphicsProjectImageItem* GetImageItem() const { return m_imageItem; }
    void SetImageItem(CRkGraphicsProjectImageItem* item) { m_imageItem = item; }

    /// The caption; null until set. A child of the tile, not owned otherwise.
    CRkGraphicsProjectTextItem* GetTextItem() const { return m_textItem; }
    void SetTextItem(CRkGraphicsProjectTextItem* item) { m_textItem = item; }

    /// Centres of the project's blocks; empty until the blocks are loaded.
    QList<PointLatLng> GetGravityList() const { return m_gravityList; }
    void SetGravityList(const QList<PointLatLng>& centres) { m_gravityList = centres; }

    /// Fills the bounding rectangle; pen and brush of the item are not used.
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QString m_projectFilePath;
    QString m_projectName;
    QStringList m_provinceCityList;
    QString m_projectId;
    QString m_softwareVersion;
    CRkGraphicsProjectImageItem* m_imageItem = nullptr;
    CRkGraphicsProjectTextItem* m_textItem = nullptr;
    QList<PointLatLng> m_gravityList;
};
