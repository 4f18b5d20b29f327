// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "CRkUpLoadObject.h"

#include "ReferenceSettings.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QThread>
#include <QUrl>

#include <algorithm>

namespace {

constexpr qint64 largestReply = qint64(32) * 1024 * 1024;

int& uploadTimeout()
{
    static int milliseconds = 60000;
    return milliseconds;
}

} // namespace

CRkUpLoadObject::CRkUpLoadObject(QObject* parent)
    : QObject(parent)
{
    m_request.setHeader(QNetworkRequest::ContentTypeHeader,
                        QStringLiteral("application/x-www-form-urlencoded"));
    m_request.setRawHeader("Accept-Encoding", "identity"); // A packed reply could be of any size.
}

CRkUpLoadObject::~CRkUpLoadObject() = default;

void CRkUpLoadObject::SetUrl(const QByteArray& url)
{
    m_request.setUrl(QUrl(QString::fromUtf8(url)));
}

void CRkUpLoadObject::setRawHeader(const QByteArray& name, const QByteArray& value)
{
    m_request.setRawHeader(name, value);
}

void CRkUpLoadObject::SetFilePathArray(const QByteArray& body)
{
    m_body = body;
}

void CRkUpLoadObject::PostNetWorkReplyMessage()
{
    QNetworkRequest request = m_request;
    request.setTransferTimeout(uploadTimeout());
    QMetaObject::invokeMethod(
        this, [this, request, body = m_body] { _post(request, body); }, Qt::QueuedConnection);
}

void CRkUpLoadObject::_post(const QNetworkRequest& request, const QByteArray& body)
{
    if (!m_manager) {
        m_manager = new QNetworkAccessManager(this);
        // Its timers and sockets can be stopped only by the thread that they belong to.
        connect(thread(), &QThread::finished, m_manager, &QObject::deleteLater);
    }
    QNetworkReply* reply = m_manager->post(request, body);
    connect(reply, &QNetworkReply::uploadProgress, this, &CRkUpLoadObject::uploadProgress);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received) {
        if (received > largestReply)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { _reportOutcome(reply); });
    connect(thread(), &QThread::finished, reply, [reply] {
        if (reply->error() == QNetworkReply::NoError) // Else it has ended, and only not said so.
            reply->abort();
    });
}

void CRkUpLoadObject::_reportOutcome(QNetworkReply* reply)
{
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 401 || status == 403)
        emit NoLogin();
    else if (reply->error() != QNetworkReply::NoError || status < 200 || status > 299)
        emit NetWorkError();
    else
        emit upLoadFinished(reply->readAll());
}

void SetUploadTimeout(int milliseconds)
{
    uploadTimeout() = std::max(milliseconds, 0);
}
