// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "nofly/CRkNoflyApplyUpload.h"

#include "nofly/NoFlyDocument.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkProjectDbOperator/CRkUpLoadObject.h>

#include <QThread>

CRkNoflyApplyUpload::CRkNoflyApplyUpload(QWidget* parent)
    : CRkProgressWgt(QString(), parent)
    , m_worker(std::make_unique<QThread>())
{
    VisibleBtnClose(false);
    VisibleBtnRetry(false);
    SetCurrTitle(tr("UpLoad Apply File"));
    SetCurrentText(tr("UpLoading ......"));
}

CRkNoflyApplyUpload::~CRkNoflyApplyUpload()
{
    stopWorker();
    discardUpload();
}

void CRkNoflyApplyUpload::BeginUpload(const QByteArray& document)
{
    m_document = document;
    // What a stopped upload has left on its way, a start or an end, is not this one's.
    if (!m_worker->isRunning())
        discardUpload();
    if (!m_upload)
        makeUpload();
    m_worker->start();
}

void CRkNoflyApplyUpload::makeUpload()
{
    m_upload = std::make_unique<CRkUpLoadObject>();
    m_attempt = std::make_unique<QObject>();
    connect(m_upload.get(), &CRkUpLoadObject::uploadProgress, m_attempt.get(),
            [this](qint64 sent, qint64 total) { slotLoadProcess(sent, total); });
    connect(m_upload.get(), &CRkUpLoadObject::upLoadFinished, m_attempt.get(),
            [this](const QByteArray& reply) { slotUpLoadFinished(reply); });
    connect(m_upload.get(), &CRkUpLoadObject::NetWorkError, m_attempt.get(),
            [this] { slotUploadNetWorkError(); });
    connect(m_upload.get(), &CRkUpLoadObject::NoLogin, m_attempt.get(), [this] { slotNoLogin(); });
    connect(m_worker.get(), &QThread::started, m_attempt.get(), [this] { slotStartUpload(); });
    m_upload->moveToThread(m_worker.get());
}

void CRkNoflyApplyUpload::SetUpLoadRet(bool ok)
{
    VisibleBtnRetry(!ok);
    if (ok) {
        SetCurrentText(tr("UpLoad File Finished."));
        SetBtnCannelTxt(tr("OK"));
    } else {
        SetCurrentText(tr("UpLoad File Failed."));
        stopWorker();
    }
}

void CRkNoflyApplyUpload::slotStartUpload()
{
    if (!m_upload)
        return;
    m_upload->SetUrl(GetServerIP() + "/noflyzone/uploadLift");
    m_upload->setRawHeader("token", GetCurUserInfo().strToken.toLatin1());
    m_upload->SetFilePathArray(NoFlyDocument::requestBody(m_document));
    m_upload->PostNetWorkReplyMessage();
}

void CRkNoflyApplyUpload::slotUpLoadFinished(const QByteArray& /*reply*/)
{
    stopWorker();
    accept();
}

void CRkNoflyApplyUpload::slotUploadNetWorkError()
{
    VisibleBtnRetry(true);
    SetCurrentText(tr("UpLoad File Failed."));
    stopWorker();
}

void CRkNoflyApplyUpload::slotNoLogin()
{
    SetCurrentText(tr("No Login!"));
}

void CRkNoflyApplyUpload::slotStartCurrentDownLoadProcess(const QString& text)
{
    SetCurrentText(text);
}

void CRkNoflyApplyUpload::slotUpgradeRet(bool /*ok*/)
{
}

void CRkNoflyApplyUpload::slotBtnRetryClicked()
{
    stopWorker();
    discardUpload();
    m_isRetrying = true;
    VisibleBtnRetry(false);
    SetCurrentText(tr("Retry..."));
    BeginUpload(m_document);
}

void CRkNoflyApplyUpload::stopWorker()
{
    m_worker->quit();
    m_worker->wait();
}

void CRkNoflyApplyUpload::discardUpload()
{
    m_attempt.reset();
    m_upload.reset();
}
