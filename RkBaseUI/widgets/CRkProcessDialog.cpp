// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkProcessDialog.h"

#include "ui_CRkProcessDialog.h"

#include <QApplication>
#include <QMovie>
#include <QTimer>

namespace {

constexpr QSize movieSize(150, 150);
constexpr int closingDelay = 1000; // Milliseconds.

} // namespace

CRkProcessDialog::CRkProcessDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CRkProcessDialog>())
{
    m_ui->setupUi(this);
    setWindowFlags(Qt::FramelessWindowHint);
    setWindowTitle(tr("Vantrell"));
    showMovie();
}

CRkProcessDialog::~CRkProcessDialog() = default;

void CRkProcessDialog::setSumNum(int sum)
{
    m_sum = sum;
    showCount();
}

void CRkProcessDialog::addCurNum()
{
    ++m_current;
    showCount();
}

void CRkProcessDialog::StartMoive()
{
    m_current = 0;
    showCount();
}

void CRkProcessDialog::StopMoive()
{
    m_current = 0;
    QTimer::singleShot(closingDelay, this, &QDialog::close);
}

void CRkProcessDialog::SetProcessState(const QString& state)
{
    m_ui->label_cur->setText(state);
}

void CRkProcessDialog::setCurrentProcess(const QString& process)
{
    m_currentProcess = process;
}

void CRkProcessDialog::SetOkBtnHidden(bool /*hidden*/)
{
}

void CRkProcessDialog::showMovie()
{
    // The "@2x" name is the same movie, whose frames the toolkit then takes for a dense screen.
    const bool isDense = qApp->devicePixelRatio() > 1.0;
    auto* movie = new QMovie(isDense ? QStringLiteral(":/images/Normal/loading@2x.gif")
                                     : QStringLiteral(":/images/Normal/loading.gif"),
                             {}, this);
    movie->setScaledSize(isDense ? 2 * movieSize : movieSize);
    // Scaled once and not anew in every turn.
    movie->setCacheMode(QMovie::CacheAll);
    movie->start();
    m_ui->label_movie->setMovie(movie);
}

void CRkProcessDialog::showCount()
{
    m_ui->label_sum->setText(QStringLiteral("%1/%2").arg(m_current).arg(m_sum));
}
