// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

#include <QImage>
#include <QStringList>
#include <QVector>

#include <memory>

namespace Ui {
class CRkNoflyApplyWgt;
}

/// Form in which a user applies for lifting a no-fly zone over a block: the authorisation document,
/// who applies, for which time and why, with the outline of the block and a picture of the map.
///
///     CRkNoflyApplyWgt form(blockId, localIds, nullptr);
///     form.SetScreenShotsImage(map->grab().toImage());
///     if (form.exec() == 1)
///         upload.BeginUpload(form.ComboUploadData());
///
/// CRkNoflyApplyUpload sends what the form holds.
class RKBASEUI_EXPORT CRkNoflyApplyWgt : public CRkBaseDialog
{
    Q_OBJECT

public:
    /// Shows the outline of the block that CRkBlockManager knows by this id; without one the table
    /// stays empty. The local ids are sent as they are. Both times are the current one.
    explicit CRkNoflyApplyWgt(const QString& blockId, const QStringList& localIds,
                              QWidget* parent = nullptr);
    ~CRkNoflyApplyWgt() override;

    /// The filled form as compact JSON for the web service, document and picture in Base64. Empty
    /// without a document path; a document that cannot be read, or has more than 1.5 GB, goes as an
    /// empty one. Takes some 2.4 times the document's memory while it works.
    QByteArray ComboUploadData() const;

    /// The picture of the map, shown in the form and sent whole. A null image takes it away.
    void SetScreenShotsImage(const QImage& image);

protected Q_SLOTS:
    /// Accepts when there are a document path, a name, and a start before the end; otherwise says
    /// what is missing first and stays open.
    void slotBtnAcceptClicked() override;

private Q_SLOTS:
    /// Lets the user choose the document. Cancelling empties the path.
    void ClickedSelect();

private:
    void showOutline(const QString& blockId);
    /// The cells of the coordinate table, row by row.
    QVector<QStringList> coordinates() const;
    /// The whole content of a file; empty when it cannot be read.
    static QByteArray GetUploadArray(const QString& path);

    const std::unique_ptr<Ui::CRkNoflyApplyWgt> m_form;
    const QStringList m_localIds;
    QImage m_screenShot;
};
