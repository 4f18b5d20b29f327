// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkBaseDialog.h"

#include "ui_CRkBaseDialog.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPointer>

CRkBaseDialog::CRkBaseDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CRkBaseDialog>())
{
    // The flags replace the dialog type, which hosts rely on: with a parent this is an embedded
    // widget.
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_ui->setupUi(this);
    m_ui->m_pBtnOK->setDefault(true);

    connect(m_ui->m_pBtnOK, &QPushButton::clicked, this, &CRkBaseDialog::slotBtnAcceptClicked);
    connect(m_ui->m_pBtnClose, &QPushButton::clicked, this, &CRkBaseDialog::slotCloseClicked);
    connect(m_ui->m_pBtnCancel, &QPushButton::clicked, this, &CRkBaseDialog::slotBtnBtn2Clicked);

    SetWindowTitle(tr("Vantrell"));
    setWindowIcon(QApplication::windowIcon());
}

CRkBaseDialog::~CRkBaseDialog() = default;

void CRkBaseDialog::AddLayout(QLayout* layout)
{
    if (layout)
        m_ui->m_pContainsLayout->addLayout(layout, 1, 0, 1, 1);
}

void CRkBaseDialog::SetBtnOKText(const QString& text)
{
    m_ui->m_pBtnOK->setText(text);
}

void CRkBaseDialog::SetBtnCancelText(const QString& text)
{
    m_ui->m_pBtnCancel->setText(text);
}

void CRkBaseDialog::SetBtnHidden(bool okHidden, bool cancelHidden, bool closeHidden)
{
    m_ui->m_pBtnOK->setVisible(!okHidden);
    m_ui->m_pBtnCancel->setVisible(!cancelHidden);
    m_ui->m_pBtnClose->setVisible(!closeHidden);
}

void CRkBaseDialog::SetFrameHidden(bool hidden)
{
    titleBar()->setHidden(hidden);
}

void CRkBaseDialog::SetWindowTitle(const QString& title)
{
    m_ui->m_pLalTitle->setText(title);
    setWindowTitle(title);
}

int CRkBaseDialog::exec()
{
    // The base class would delete a delete-on-close dialog before its result can be read.
    const bool deleteOnClose = testAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_DeleteOnClose, false);

    const QPointer<CRkBaseDialog> alive(this);
    QDialog::exec();
    if (!alive)
        return 0;

    if (deleteOnClose)
        deleteLater();
    return m_execResult;
}

void CRkBaseDialog::slotCloseClicked()
{
    m_execResult = -1;
    close();
}

void CRkBaseDialog::slotBtnAcceptClicked()
{
    m_execResult = 1;
    accept();
}

void CRkBaseDialog::slotBtnBtn2Clicked()
{
    m_execResult = 0;
    reject();
}

QWidget* CRkBaseDialog::titleBar() const
{
    return m_ui->widget_2;
}

QLabel* CRkBaseDialog::titleLabel() const
{
    return m_ui->m_pLalTitle;
}

QPushButton* CRkBaseDialog::closeButton() const
{
    return m_ui->m_pBtnClose;
}

QPushButton* CRkBaseDialog::okButton() const
{
    return m_ui->m_pBtnOK;
}

QPushButton* CRkBaseDialog::cancelButton() const
{
    return m_ui->m_pBtnCancel;
}

void CRkBaseDialog::mousePressEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && titleBar()->rect().contains(event->pos())) {
        m_dragOffset = event->globalPos() - pos();
        m_dragging = true;
    }
}

void CRkBaseDialog::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    m_dragging = false;
}

void CRkBaseDialog::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_dragging)
        move(event->globalPos() - m_dragOffset);
}

void CRkBaseDialog::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
}
