// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/SurveyEnums.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVector>
#include <QWidget>

#include <memory>
#include <vector>

class QTreeWidgetItem;

namespace Ui {
class CRkBlockManagerTable;
}

/// Survey blocks in rows below a row of header buttons. Two of the buttons sort: "Airplane Type"
/// and "Camera Type". Blocks without tasks stand at the end and cannot be opened.
///
///     table->Clear();
///     table->AddItem(guid, name, PlaneTypeQuadrotor, CameraTypeThermal, 3, 12);
///     table->FinishLoad();
class RKBASEUI_EXPORT CRkBlockManagerTable : public QWidget
{
    Q_OBJECT

public:
    /// What a row shows; it is opened by its id.
    struct Block
    {
        QString id;
        QString name;
        EPlaneType planeType = PlaneTypeUnknown;
        ECameraType cameraType = CameraTypeUnknown;
        int taskCount = 0;
        int flightCount = 0;
    };

    explicit CRkBlockManagerTable(QWidget* parent = nullptr);
    ~CRkBlockManagerTable() override;

    /// Removes all rows.
    void Clear();

    /// Appends a row. A block without tasks shows "N/A" for all but its name.
    void AddItem(const QString& id, const QString& name, EPlaneType planeType,
                 ECameraType cameraType, int taskCount, int flightCount);

    /// Appends a row for each block; faster than one by one.
    void AddItems(const QVector<Block>& blocks);

    /// Ends the adding: centres the texts, sorts the rows by name, and moves the blocks
    /// without tasks to the end and disables them.
    void FinishLoad();

Q_SIGNALS:
    void signalBlockOpened(const QString& blockId);

public Q_SLOTS:
    /// Opens the block of the row unless the row is disabled.
    void slotItemDoubleClicked(QTreeWidgetItem* item, int column);

    /// Sorts by the column of the header button that sends the signal; other buttons do nothing.
    void slotHeaderClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    static QString _notAvailable();
    static QStringList _textsOf(const Block& block);
    void _sortByType(int column);
    void _setRows(const QList<QTreeWidgetItem*>& rows, const std::vector<int>& order);

    const std::unique_ptr<Ui::CRkBlockManagerTable> m_ui;
    QMap<QTreeWidgetItem*, QString> m_idOfItem;
    /// Rows at the end, which take no part in sorting.
    QList<QTreeWidgetItem*> m_disabledItems;
};
