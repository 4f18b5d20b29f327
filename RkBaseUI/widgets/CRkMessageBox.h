// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

/// Message with an icon, in the frame of the base dialog.
///
///     CRkMessageBox box(nullptr);
///     box.SetMsgText(tr("Delete the project?"));
///     if (box.exec() == 1) ...
///
/// Give no parent: with one, the box is embedded in it, see CRkBaseDialog.
class RKBASEUI_EXPORT CRkMessageBox : public CRkBaseDialog
{
    Q_OBJECT

public:
    /// The icon is the product's mark until another is set, the text is empty.
    explicit CRkMessageBox(QWidget* parent = nullptr);
    ~CRkMessageBox() override;

    /// Shows the picture, a file or a resource, in its own size. A path that holds no picture takes
    /// the icon away.
    void SetIcon(const QString& path);

    /// Shows the text, plain or rich, with its lines wrapped, and fits the size of the box to it.
    void SetMsgText(const QString& text);

    /// Whether a click on a link of the text opens it in the system's browser. Either way the text
    /// reacts to nothing but the mouse on its links from then on.
    void SetOpenExteranlLinks(bool open);

    /// Whether the box was ever closed by a close event: by the title bar's close button or
    /// `close()`, and not by OK, Cancel or the Escape key.
    bool isClosed() const { return m_isClosed; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* const m_icon;
    QLabel* const m_text;
    bool m_isClosed = false;
};
