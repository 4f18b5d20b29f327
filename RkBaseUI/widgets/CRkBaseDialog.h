// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QDialog>

#include <memory>

class QLabel;
class QLayout;
class QPushButton;

namespace Ui {
class CRkBaseDialog;
}

/// Frame that every dialog shares: a dark title bar with logo, title and close button, a white
/// content area, and a row with OK and Cancel. The window has no frame of its own and is dragged by
/// the title bar.
///
///     CRkBaseDialog dialog(nullptr);
///     dialog.SetWindowTitle(tr("Copy Project"));
///     dialog.AddLayout(formLayout);
///     if (dialog.exec() == 1) ...
///
/// OK has the focus at first; a dialog with a field to fill in gives it to that:
/// `edit->setFocus()`. The white of the content area goes to the widgets in it as well.
///
/// Without a parent the dialog is a window that stays on top. With a parent it is embedded in the
/// parent like any child widget; a derived dialog that wants a parent and a window sets window
/// flags itself. The object name stays "CRkBaseDialog" in derived dialogs, because the frame's
/// colour selects by it.
class RKBASEUI_EXPORT CRkBaseDialog : public QDialog
{
    Q_OBJECT

public:
    /// The title is "Vantrell", translated.
    explicit CRkBaseDialog(QWidget* parent = nullptr);
    ~CRkBaseDialog() override;

    /// Puts the layout into the content area, which has no margins and takes ownership. Null is
    /// ignored. There is one place: a second layout would lie over the first.
    void AddLayout(QLayout* layout);

    /// The buttons' pictures have room for some 70 pixels of text and do not grow with it.
    void SetBtnOKText(const QString& text);
    void SetBtnCancelText(const QString& text);

    /// Hides the buttons whose flag is true and shows the others.
    void SetBtnHidden(bool okHidden, bool cancelHidden, bool closeHidden);

    /// Hides or shows the whole title bar.
    void SetFrameHidden(bool hidden);

    /// Sets the title in the title bar and the title of the window.
    void SetWindowTitle(const QString& title);

    /// Runs the dialog modally. Returns 1 after OK, 0 after Cancel and -1 after the title bar's
    /// close button. Any other end, such as the Escape key, returns what the last of these buttons
    /// left, in an earlier run as well, and 0 when none was ever pressed: so does a
    /// direct call of `accept()`, before which a derived dialog sets the result itself. Not the
    /// same as `QDialog::result()`.
    int exec() override;

protected Q_SLOTS:
    /// The close button: stores -1 and closes the window.
    virtual void slotCloseClicked();
    /// The OK button: stores 1 and accepts.
    virtual void slotBtnAcceptClicked();
    /// The Cancel button: stores 0 and rejects.
    void slotBtnBtn2Clicked();

protected:
    /// The value that `exec` returns.
    int execResult() const { return m_execResult; }
    void setExecResult(int result) { m_execResult = result; }

    /// Parts of the frame, for dialogs that look different. Owned by the dialog, never null.
    QWidget* titleBar() const;
    QLabel* titleLabel() const;
    QPushButton* closeButton() const;
    QPushButton* okButton() const;
    QPushButton* cancelButton() const;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const std::unique_ptr<Ui::CRkBaseDialog> m_ui;
    QPoint m_dragOffset;
    int m_execResult = 0;
    bool m_dragging = false;
};
