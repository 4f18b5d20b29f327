// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkProgressWgt.h"

#include "ui_CRkProgressWgt.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>

CRkProgressWgt::CRkProgressWgt(const QString& title, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CRkProgressWgt>())
{
    m_ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    // The flags replace the dialog type, as in the base dialog.
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setWindowIcon(QApplication::windowIcon());
    SetCurrTitle(title);
    ConnectEvent();
}

CRkProgressWgt::~CRkProgressWgt() = default;

void CRkProgressWgt::ConnectEvent()
{
    connect(m_ui->m_pBtnClose, &QPushButton::clicked, this, &CRkProgressWgt::slotCloseClicked);
    connect(m_ui->m_pBtnCancel, &QPushButton::clicked, this, &CRkProgressWgt::slotBtnCannelClicked);
    connect(m_ui->m_pBtnRetry, &QPushButton::clicked, this, &CRkProgressWgt::slotBtnRetryClicked);
}

void CRkProgressWgt::SetCurrTitle(const QString& title)
{
    m_ui->m_pLalTitle->setText(title);
}

void CRkProgressWgt::SetCurrentText(const QString& text)
{
    m_ui->m_pPromptLabel->setText(text);
    growToText();
}

void CRkProgressWgt::SetBtnCannelTxt(const QString& text)
{
    m_ui->m_pBtnCancel->setText(text);
}

void CRkProgressWgt::SetCurrentValue(int value)
{
    m_ui->m_pProgressBar->setValue(value);
}

void CRkProgressWgt::SetMaxValue(int maximum)
{
    // A negative maximum, as it comes from a count that was cut off, takes the minimum with it; the
    // next one brings the minimum back.
    if (maximum != m_ui->m_pProgressBar->maximum())
        m_ui->m_pProgressBar->setRange(qMin(0, maximum), maximum);
}

void CRkProgressWgt::VisibleBtnClose(bool visible)
{
    m_ui->m_pBtnClose->setVisible(visible);
}

void CRkProgressWgt::VisibleBtnRetry(bool visible)
{
    m_ui->m_pBtnRetry->setVisible(visible);
}

void CRkProgressWgt::VisibleBtnCannel(bool visible)
{
    m_ui->m_pBtnCancel->setVisible(visible);
}

void CRkProgressWgt::VisibleText(bool visible)
{
    m_ui->m_pPromptLabel->setVisible(visible);
    growToText();
}

int CRkProgressWgt::exec(bool modal)
{
    if (modal)
        return exec();
    show();
    return 0;
}

void CRkProgressWgt::slotCloseClicked()
{
    close();
}

void CRkProgressWgt::slotBtnOkClicked()
{
    accept();
}

void CRkProgressWgt::slotBtnCannelClicked()
{
    reject();
}

void CRkProgressWgt::slotBtnRetryClicked()
{
    emit signalBtnRetryClicked();
}

void CRkProgressWgt::slotLoadProcess(int nCurrent, int nCount)
{
    if (nCount == 0)
        return;
    SetMaxValue(nCount);
    SetCurrentValue(nCurrent);
}

void CRkProgressWgt::slotLoadProcess(qint64 nCurrent, qint64 nCount)
{
    slotLoadProcess(static_cast<int>(nCurrent), static_cast<int>(nCount));
}

void CRkProgressWgt::slotLoadProcess(const QString& text)
{
    const bool isLast = takeStep();
    SetCurrentText(text);
    if (isLast) {
        showCompleted();
        accept();
    }
}

void CRkProgressWgt::slotLoadProcess()
{
    // Unlike the overload with a text, this one leaves the window open for the user to close.
    if (takeStep())
        showCompleted();
}

bool CRkProgressWgt::takeStep()
{
    ++m_step;
    SetCurrentValue(m_step);
    return m_step == m_ui->m_pProgressBar->maximum();
}

void CRkProgressWgt::showCompleted()
{
    SetCurrentText(tr("loading completed !"));
}

void CRkProgressWgt::growToText()
{
    layout()->activate();
    const int needed = layout()->totalHeightForWidth(width());
    if (needed > height())
        resize(width(), needed);
}

void CRkProgressWgt::mousePressEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_ui->widget_2->rect().contains(event->pos()))
        m_dragOffset = event->globalPos() - pos();
}

void CRkProgressWgt::mouseReleaseEvent(QMouseEvent* event)
{
    QDialog::mouseReleaseEvent(event);
    m_dragOffset.reset();
}

void CRkProgressWgt::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_dragOffset)
        move(event->globalPos() - *m_dragOffset);
}
