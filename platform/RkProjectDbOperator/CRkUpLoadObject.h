// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkProjectDbOperator/RkProjectDbOperatorExport.h>

#include <QByteArray>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>

class QNetworkAccessManager;
class QNetworkReply;

/// Sends a document to the web service by HTTP POST, on a thread of its own if it has been moved to
/// one.
///
///     upload->moveToThread(&worker);
///     upload->SetUrl(GetServerIP() + "/noflyzone/uploadLift");
///     upload->SetFilePathArray("data=" + json);
///     upload->PostNetWorkReplyMessage();
///
/// The operations are called from the thread that made the object. Each post ends with exactly one
/// of upLoadFinished(), NetWorkError() and NoLogin(), which come from the object's thread and never
/// while the call still runs. When that thread stops, posts under way fail, and those not yet begun
/// wait until it starts again; once it has stopped the object may be deleted from anywhere. A
/// deleted object sends nothing more.
class RKPROJECTDBOPERATOR_EXPORT CRkUpLoadObject : public QObject
{
    Q_OBJECT

public:
    explicit CRkUpLoadObject(QObject* parent = nullptr);
    ~CRkUpLoadObject() override;

    /// The address as UTF-8. Characters that a URL cannot hold are encoded.
    void SetUrl(const QByteArray& url);

    /// A header of the request; a later value for one name takes the place of an earlier one. The
    /// content type is application/x-www-form-urlencoded unless it is set here.
    void setRawHeader(const QByteArray& name, const QByteArray& value);

    /// The body, sent unchanged.
    void SetFilePathArray(const QByteArray& body);

    /// Posts address, headers and body as they are now and returns at once.
    void PostNetWorkReplyMessage();

Q_SIGNALS:
    /// Bytes of the body sent so far, and all of them.
    void uploadProgress(qint64 sent, qint64 total);
    /// The service took the document (a status from 200 to 299); the body of its answer.
    void upLoadFinished(QByteArray reply);
    /// The service could not be reached, stood still too long, answered more than 32 MB or refused
    /// the document. Redirections are not followed and count as a refusal.
    void NetWorkError();
    /// The service did not accept the user (status 401 or 403).
    void NoLogin();

private:
    void _post(const QNetworkRequest& request, const QByteArray& body);
    void _reportOutcome(QNetworkReply* reply);

    QNetworkRequest m_request;
    QByteArray m_body;
    QPointer<QNetworkAccessManager> m_manager;
};
