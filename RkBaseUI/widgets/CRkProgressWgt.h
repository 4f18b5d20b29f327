// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class CRkProgressWgt;
}

/// Window that shows how far a job is: a title bar, a bar, a line of text, Retry and Cancel. It
/// blocks the other windows of the application and is dragged by its title bar.
///
///     CRkProgressWgt progress(tr("Upload"), nullptr);
///     connect(job, &Job::progress, &progress,
///             qOverload<qint64, qint64>(&CRkProgressWgt::slotLoadProcess));
///     progress.exec(true);
///
/// One widget serves one run: the steps that `slotLoadProcess()` and `slotLoadProcess(QString)`
/// count together are never set back. Give no parent: with one, the widget is embedded in it.
class RKBASEUI_EXPORT CRkProgressWgt : public QDialog
{
    Q_OBJECT

public:
    explicit CRkProgressWgt(const QString& title, QWidget* parent = nullptr);
    ~CRkProgressWgt() override;

    /// Connects the three buttons to their slots. The constructor has done it; a second call makes
    /// every click count twice.
    void ConnectEvent();

    void SetCurrTitle(const QString& title);
    /// Sets the line of text. A long one is wrapped, and the window grows as high as that needs.
    void SetCurrentText(const QString& text);
    void SetBtnCannelTxt(const QString& text);

    /// Sets the bar. A value outside 0 to the maximum is ignored.
    void SetCurrentValue(int value);
    /// Sets the bar's maximum, 100 at first. With 0 the bar shows that something is going on, not
    /// how far it is.
    void SetMaxValue(int maximum);

    void VisibleBtnClose(bool visible);
    void VisibleBtnRetry(bool visible);
    void VisibleBtnCannel(bool visible);
    /// Shows or hides the line of text.
    void VisibleText(bool visible);

    using QDialog::exec;
    /// Modal: runs until the window is closed and returns QDialog::Accepted or QDialog::Rejected.
    /// Not modal: shows the window and returns 0 at once.
    int exec(bool modal);

Q_SIGNALS:
    void signalBtnRetryClicked();

public Q_SLOTS:
    /// Closes the window.
    void slotCloseClicked();
    /// Accepts.
    void slotBtnOkClicked();
    /// Rejects.
    virtual void slotBtnCannelClicked();
    /// Emits signalBtnRetryClicked().
    virtual void slotBtnRetryClicked();

    /// Sets the bar to `nCurrent` of `nCount`. A count of 0 changes nothing.
    void slotLoadProcess(int nCurrent, int nCount);
    /// The same for byte counts of network transfers, of which the lower 32 bits are taken.
    void slotLoadProcess(qint64 nCurrent, qint64 nCount);
    /// One step more, shown with the text. The last step, which reaches the maximum, says so and
    /// accepts.
    void slotLoadProcess(const QString& text);
    /// One step more. The last step, which reaches the maximum, says so; the window stays open.
    void slotLoadProcess();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    /// Counts a step, shows it, and returns whether it was the last.
    bool takeStep();
    void showCompleted();
    /// Makes the window as high as its wrapped text needs, which a window does not do by itself.
    void growToText();

    const std::unique_ptr<Ui::CRkProgressWgt> m_ui;
    /// From the window's position to the mouse, while it is dragged.
    std::optional<QPoint> m_dragOffset;
    int m_step = 0;
};
