// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkProgressWgt.h>

#include <QByteArray>

#include <memory>

class CRkUpLoadObject;
class QThread;

/// Window that sends an application for lifting a no-fly zone to the web service and shows how far
/// that is. It accepts when the service has answered, and offers Retry when that failed.
///
///     CRkNoflyApplyUpload upload(nullptr);
///     upload.BeginUpload(form.ComboUploadData());
///     if (upload.exec(true) == QDialog::Accepted) ...
///
/// Cancel and the Escape key close the window and let the request run on; an answer that comes then
/// still accepts. Destroying the window ends the request. Neither waits for the service.
class RKBASEUI_EXPORT CRkNoflyApplyUpload : public CRkProgressWgt
{
    Q_OBJECT

public:
    explicit CRkNoflyApplyUpload(QWidget* parent = nullptr);
    ~CRkNoflyApplyUpload() override;

    /// Sends the JSON of an application to the service at GetServerIP() with the token of the
    /// current user. Returns at once. While a request is under way, and after the service did not
    /// accept the user, the data are kept for a retry only.
    void BeginUpload(const QByteArray& document);

    /// Shows how a transfer ended that the host made itself: Cancel becomes OK, or Retry appears
    /// and a request under way ends.
    void SetUpLoadRet(bool ok);

    /// Whether the user has retried.
    bool isRetrying() const { return m_isRetrying; }

public Q_SLOTS:
    /// Posts the data, from the thread's start.
    void slotStartUpload();
    /// Accepts, whatever the reply says.
    void slotUpLoadFinished(const QByteArray& reply);
    /// Says that it failed and offers Retry.
    void slotUploadNetWorkError();
    /// Says that the service did not accept the user.
    void slotNoLogin();
    /// Shows a text.
    void slotStartCurrentDownLoadProcess(const QString& text);
    /// For hosts that connect their update here; does nothing.
    void slotUpgradeRet(bool ok);
    /// Gives up what is under way and sends the data again.
    void slotBtnRetryClicked() override;

private:
    void makeUpload();
    /// Ends the request under way, if any.
    void stopWorker();
    /// Needs a stopped worker.
    void discardUpload();

    QByteArray m_document;
    bool m_isRetrying = false;
    const std::unique_ptr<QThread> m_worker; ///< only the upload's network events run in it
    std::unique_ptr<CRkUpLoadObject> m_upload; ///< lives in the worker; null before the first start
    /// Takes the signals of one upload in. What of them is still on its way goes with it, so an
    /// upload that was given up cannot speak for the next.
    std::unique_ptr<QObject> m_attempt;
};
