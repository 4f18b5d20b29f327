// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

#include <QByteArray>

#include <memory>

class CRkUpLoadObject;
class QLabel;
class QProgressBar;
class QTreeView;
class QVBoxLayout;

/// Window that shows the document of a project before it sends it to the web service, and how that
/// goes. A failed upload can be tried again; closing the window ends one that is under way.
///
///     UploadDialog dialog(project.projectName, GetUploadArray(project.projectFilePath));
///     dialog.exec();
///     if (dialog.state() == UploadDialog::State::Done) ...
class UploadDialog : public CRkBaseDialog
{
    Q_OBJECT

public:
    enum class State {
        Empty, ///< There is nothing to send.
        Ready,
        Running,
        Done,
        Failed, ///< The service is not there, stood still or did not take the project.
        NotLoggedIn ///< The service did not accept the user.
    };

    /// The document is a JSON object.
    UploadDialog(const QString& projectName, const QByteArray& document);
    ~UploadDialog() override;

    State state() const { return m_state; }

public Q_SLOTS:
    /// An upload is under way and has come so far, in bytes.
    void showProgress(qint64 sent, qint64 total);
    /// The answer of the service decides between done and failed: it must be JSON whose "status" is
    /// 0 or 1.
    void takeAnswer(const QByteArray& reply);
    void fail();
    void refuseUser();

protected Q_SLOTS:
    /// Sends the document.
    void slotBtnAcceptClicked() override;

private:
    void addHead(QVBoxLayout& layout, const QString& projectName);
    void addTree(QVBoxLayout& layout);
    void addFoot(QVBoxLayout& layout);
    void setState(State state);
    QString stateText() const;

    const QByteArray m_document;
    State m_state = State::Empty;
    std::unique_ptr<CRkUpLoadObject> m_upload; ///< Null before the first try.
    QTreeView* m_tree = nullptr;
    QLabel* m_status = nullptr;
    QProgressBar* m_bar = nullptr;
};
