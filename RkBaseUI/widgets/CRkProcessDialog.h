// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QDialog>

#include <memory>

namespace Ui {
class CRkProcessDialog;
}

/// Window that says the application is busy: a spinning ring, a line of text, and how many of how
/// many items are done.
///
///     CRkProcessDialog process(nullptr);
///     process.setSumNum(files.size());
///     process.StartMoive();
///     process.show();
///     ... process.addCurNum() for every file, then process.StopMoive()
///
/// It has no frame and no buttons. Give no parent: with one, the dialog is embedded in it.
class RKBASEUI_EXPORT CRkProcessDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CRkProcessDialog(QWidget* parent = nullptr);
    ~CRkProcessDialog() override;

    /// Sets how many items there are.
    void setSumNum(int sum);
    /// One item more is done.
    void addCurNum();
    /// Begins to count from 0.
    void StartMoive();
    /// Closes the dialog one second later, so that the user can read the last count, which stays on
    /// the screen; the next begins from 0.
    void StopMoive();
    /// Sets the line of text.
    void SetProcessState(const QString& state);
    /// Keeps the text of the running job, "0%" at first; the dialog does not show it.
    void setCurrentProcess(const QString& process);
    /// Does nothing: the dialog has no OK button.
    void SetOkBtnHidden(bool hidden);

private:
    void showMovie();
    void showCount();

    const std::unique_ptr<Ui::CRkProcessDialog> m_ui;
    QString m_currentProcess = QStringLiteral("0%");
    int m_sum = 0;
    int m_current = 0;
};
