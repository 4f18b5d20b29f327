// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/WarningBox.h"

#include "widgets/CRkMessageBox.h"

#include <QLabel>

namespace WarningBox {

namespace {

/// Gives the result of the box.
int run(const QString& title, const QString& text, bool isCancelHidden)
{
    // Without a parent, because a box with one is embedded in it.
    CRkMessageBox box(nullptr);
    box.SetIcon(QStringLiteral(":/images/Normal/Exclamation_mark.png"));
    box.SetWindowTitle(title);
    box.SetBtnHidden(false, isCancelHidden, false);
    // A name in the text may look like markup, and the user must see it as it is.
    box.findChild<QLabel*>(QStringLiteral("TextMsg"))->setTextFormat(Qt::PlainText);
    box.SetMsgText(text);
    return box.exec();
}

} // namespace

void show(const QString& title, const QString& text)
{
    run(title, text, true);
}

bool confirm(const QString& title, const QString& text)
{
    return run(title, text, false) == 1;
}

} // namespace WarningBox
