// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "nofly/CRkNoflyApplyWgt.h"

#include "nofly/NoFlyDocument.h"
#include "ui_CRkNoflyApplyWgt.h"
#include "widgets/WarningBox.h"

#include <RkData/CRkBlock.h>
#include <RkData/CRkBlockManager.h>

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

CRkNoflyApplyWgt::CRkNoflyApplyWgt(const QString& blockId, const QStringList& localIds,
                                   QWidget* parent)
    : CRkBaseDialog(parent)
    , m_form(std::make_unique<Ui::CRkNoflyApplyWgt>())
    , m_localIds(localIds)
{
    auto* form = new QWidget(this);
    m_form->setupUi(form);
    auto* layout = new QVBoxLayout;
    layout->addWidget(form);
    AddLayout(layout);
    SetWindowTitle(tr("Application Information"));
    m_form->m_pTblWgtCoord->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);

    showOutline(blockId);
    const QDateTime now = QDateTime::currentDateTime();
    m_form->m_pDateStart->setDateTime(now);
    m_form->m_pDateEnd->setDateTime(now);
    connect(m_form->m_pBtnDocSele, &QPushButton::clicked, this, &CRkNoflyApplyWgt::ClickedSelect);

    // The frame was there before the fields; the keyboard still goes through these first.
    setTabOrder(m_form->plainTextEdit, okButton());
    setTabOrder(okButton(), cancelButton());
    if (isWindow())
        m_form->m_pEdtDocPath->setFocus();
}

CRkNoflyApplyWgt::~CRkNoflyApplyWgt() = default;

QByteArray CRkNoflyApplyWgt::ComboUploadData() const
{
    const QString path = m_form->m_pEdtDocPath->text();
    if (path.isEmpty())
        return {};
    return NoFlyDocument::json({path, GetUploadArray(path), coordinates(),
                                m_form->m_pDateStart->dateTime(), m_form->m_pDateEnd->dateTime(),
                                m_localIds, m_screenShot, m_form->m_pEdtAuthName->text(),
                                m_form->m_pEdtContact->text(), m_form->m_pEdtCompany->text(),
                                m_form->plainTextEdit->toPlainText()});
}

void CRkNoflyApplyWgt::SetScreenShotsImage(const QImage& image)
{
    m_screenShot = image;
    if (image.isNull()) {
        m_form->label_pic->clear();
        return;
    }
    const qreal density = devicePixelRatioF();
    QPixmap picture =
        QPixmap::fromImage(image.scaled(m_form->label_pic->size() * density, Qt::KeepAspectRatio));
    picture.setDevicePixelRatio(density);
    m_form->label_pic->setPixmap(picture);
}

void CRkNoflyApplyWgt::slotBtnAcceptClicked()
{
    QString problem;
    if (m_form->m_pEdtDocPath->text().isEmpty())
        problem = tr("Please select the application document.");
    else if (m_form->m_pEdtAuthName->text().isEmpty())
        problem = tr("Please input the Authorization Name.");
    else if (!NoFlyDocument::isEarlier(m_form->m_pDateStart->dateTime(),
                                       m_form->m_pDateEnd->dateTime()))
        problem = tr("Please input the invalid date time.");

    if (problem.isEmpty())
        CRkBaseDialog::slotBtnAcceptClicked();
    else
        WarningBox::show(tr("Application Information"), problem);
}

void CRkNoflyApplyWgt::ClickedSelect()
{
    m_form->m_pEdtDocPath->setText(QFileDialog::getOpenFileName(
        this, tr("Apply file"), QString(),
        tr("doc file(*.doc *.docx);;pdf file(*.pdf);;image file(*.jpg *.png *.bmp *.jpeg)")));
}

void CRkNoflyApplyWgt::showOutline(const QString& blockId)
{
    const CRkBlock* block = CRkBlockManager::instance().GetBlock(blockId);
    if (!block)
        return;
    QTableWidget* table = m_form->m_pTblWgtCoord;
    const QVector<QStringList> rows = NoFlyDocument::coordinateRows(block->GetAnchor());
    table->verticalHeader()->setStretchLastSection(false);
    table->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        table->setRowHeight(row, 30);
        for (int column = 0; column < rows.at(row).size(); ++column)
            table->setItem(row, column, new QTableWidgetItem(rows.at(row).at(column)));
    }
}

QVector<QStringList> CRkNoflyApplyWgt::coordinates() const
{
    const QTableWidget* table = m_form->m_pTblWgtCoord;
    QVector<QStringList> rows(table->rowCount());
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem* item = table->item(row, column);
            rows[row].append(item ? item->text() : QString());
        }
    }
    return rows;
}

QByteArray CRkNoflyApplyWgt::GetUploadArray(const QString& path)
{
    QFile file(path);
    // A pipe or a device might have no end.
    const bool isReadable = QFileInfo(path).isFile()
        && file.size() <= NoFlyDocument::largestDocument && file.open(QIODevice::ReadOnly);
    return isReadable ? file.readAll() : QByteArray();
}
