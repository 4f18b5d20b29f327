// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkMessageBox.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <functional>

/// What a message box showed.
struct ShownBox
{
    QString title;
    QString text;
    Qt::TextFormat textFormat;
    QImage icon;
    bool isCancelHidden;
    bool isModalWindow;
};

/// Presses a button of every message box that comes up while the object lives, and notes the box.
class BoxAnswerer : public QObject
{
public:
    BoxAnswerer() { qApp->installEventFilter(this); }

    /// Of the boxes so far.
    QStringList texts() const
    {
        QStringList texts;
        for (const ShownBox& box : boxes)
            texts.append(box.text);
        return texts;
    }

    QList<ShownBox> boxes;
    QString button = QStringLiteral("m_pBtnOK");
    /// What happens while the box is up; nothing when empty.
    std::function<void()> beforeAnswer;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<CRkMessageBox*>(watched);
        if (box && event->type() == QEvent::Show)
            QTimer::singleShot(0, box, [this, box] { answer(*box); });
        return false;
    }

private:
    void answer(CRkMessageBox& box)
    {
        const auto* text = box.findChild<QLabel*>(QStringLiteral("TextMsg"));
        boxes.append(
            {box.windowTitle(), text->text(), text->textFormat(),
             box.findChild<QLabel*>(QStringLiteral("Icon"))->pixmap(Qt::ReturnByValue).toImage(),
             box.findChild<QWidget*>(QStringLiteral("m_pBtnCancel"))->isHidden(),
             box.isWindow() && !box.parent() && box.isModal()});
        if (const auto act = beforeAnswer) // It may set another, or none, for the next box.
            act();
        box.findChild<QPushButton*>(button)->click();
    }
};
