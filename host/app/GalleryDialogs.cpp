// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkBaseDialog.h>
#include <RkBaseUI/CRkBaseWidget.h>
#include <RkBaseUI/CRkMessageBox.h>
#include <RkBaseUI/CRkProcessDialog.h>
#include <RkBaseUI/CRkProgressWgt.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using GalleryParts::hover;
using GalleryParts::Texts;
using GalleryParts::Window;

Window baseDialog()
{
    auto dialog = std::make_unique<CRkBaseDialog>(nullptr);
    dialog->SetWindowTitle(Texts::tr("Save Project As"));
    auto* name = new QLineEdit(Texts::tr("River Embankment Inspection"));
    auto* copyFlights = new QCheckBox(Texts::tr("Take the flights along"));
    copyFlights->setChecked(true);
    auto* form = new QFormLayout;
    form->setContentsMargins(24, 20, 24, 20);
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(12);
    form->addRow(Texts::tr("Name"), name);
    form->addRow(Texts::tr("Scale"), new QLineEdit(QStringLiteral("1 : 1000")));
    form->addRow(QString(), copyFlights);
    dialog->AddLayout(form);
    dialog->resize(440, 240);
    return dialog;
}

Window baseDialogWithoutFrame()
{
    Window dialog = baseDialog();
    static_cast<CRkBaseDialog&>(*dialog).SetFrameHidden(true);
    return dialog;
}

void hoverOk(QWidget& window)
{
    hover(window, "m_pBtnOK");
}

void hoverClose(QWidget& window)
{
    hover(window, "m_pBtnClose");
}

void pressOk(QWidget& window)
{
    hoverOk(window);
    window.findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->setDown(true);
}

void disableOk(QWidget& window)
{
    window.findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->setEnabled(false);
}

Window baseWidget()
{
    auto widget = std::make_unique<CRkBaseWidget>(nullptr);
    auto* layout = new QVBoxLayout(widget.get());
    layout->setContentsMargins(24, 20, 24, 20);
    layout->addWidget(new QLabel(Texts::tr("A tool window without a frame. Drag it anywhere.")));
    return widget;
}

QString longName()
{
    return Texts::tr(
        "Embankment of the eastern river arm between the second and the third lock, before "
        "and after the flood of last summer");
}

Window message(const QString& icon, const QString& title, const QString& text, bool isCancelHidden)
{
    auto box = std::make_unique<CRkMessageBox>(nullptr);
    if (!icon.isEmpty())
        box->SetIcon(icon);
    box->SetWindowTitle(title);
    box->SetBtnHidden(false, isCancelHidden, false);
    box->SetMsgText(text);
    return box;
}

Window plainMessage()
{
    return message({}, Texts::tr("Survey Host"), Texts::tr("The project is saved."), true);
}

Window warning()
{
    return message(QStringLiteral(":/images/Normal/Exclamation_mark.png"),
                   Texts::tr("Save Project As"),
                   Texts::tr("A project of this name is already there."), true);
}

Window question()
{
    return message(QStringLiteral(":/images/Normal/Exclamation_mark.png"), Texts::tr("Survey Host"),
                   Texts::tr("Discard the changes to \"%1\"?").arg(longName()), false);
}

Window linkMessage()
{
    Window box = message(
        {}, Texts::tr("Survey Host"),
        Texts::tr("More about it in the <a href=\"https://example.org\">manual</a>."), true);
    static_cast<CRkMessageBox&>(*box).SetOpenExteranlLinks(true);
    return box;
}

/// With "Retry" only where something went wrong, as hosts show it.
std::unique_ptr<CRkProgressWgt> progress(int value, const QString& text)
{
    auto widget = std::make_unique<CRkProgressWgt>(Texts::tr("Upload"), nullptr);
    widget->SetCurrentText(text);
    widget->SetCurrentValue(value);
    widget->VisibleBtnRetry(false);
    return widget;
}

Window progressAtStart()
{
    return progress(0, Texts::tr("Waiting for the server"));
}

Window progressUnderWay()
{
    return progress(40, Texts::tr("%1 of %2 files").arg(16).arg(40));
}

Window progressAtEnd()
{
    auto widget = progress(0, {});
    widget->SetMaxValue(1);
    widget->slotLoadProcess();
    return widget;
}

Window progressWithRetry()
{
    auto widget = progress(40, Texts::tr("The server does not answer."));
    widget->VisibleBtnRetry(true);
    return widget;
}

Window progressWithLongTexts()
{
    auto widget = progress(40, longName());
    widget->SetCurrTitle(longName());
    return widget;
}

Window progressWithDisabledButton()
{
    auto widget = progress(100, Texts::tr("Writing the last file"));
    widget->findChild<QPushButton*>(QStringLiteral("m_pBtnCancel"))->setEnabled(false);
    return widget;
}

/// A moment of the movie, the same in every gallery.
void pauseMovie(QWidget& window)
{
    QMovie* movie = window.findChild<QLabel*>(QStringLiteral("label_movie"))->movie();
    movie->setPaused(true);
    movie->jumpToFrame(0);
}

Window process()
{
    auto dialog = std::make_unique<CRkProcessDialog>(nullptr);
    dialog->setSumNum(10);
    for (int i = 0; i < 3; ++i)
        dialog->addCurNum();
    dialog->SetProcessState(Texts::tr("Reading blocks"));
    return dialog;
}

Window freshProcess()
{
    return std::make_unique<CRkProcessDialog>(nullptr);
}

} // namespace

QVector<Gallery::Entry> galleryDialogs()
{
    return {
        {QStringLiteral("base-dialog"), baseDialog, {}},
        {QStringLiteral("base-dialog-ok-hover"), baseDialog, hoverOk},
        {QStringLiteral("base-dialog-ok-pressed"), baseDialog, pressOk},
        {QStringLiteral("base-dialog-ok-disabled"), baseDialog, disableOk},
        {QStringLiteral("base-dialog-close-hover"), baseDialog, hoverClose},
        {QStringLiteral("base-dialog-without-frame"), baseDialogWithoutFrame, {}},
        {QStringLiteral("base-widget"), baseWidget, {}},
        {QStringLiteral("message"), plainMessage, {}},
        {QStringLiteral("message-warning"), warning, {}},
        {QStringLiteral("message-question-long"), question, {}},
        {QStringLiteral("message-link"), linkMessage, {}},
        {QStringLiteral("progress-0"), progressAtStart, {}},
        {QStringLiteral("progress-40"), progressUnderWay, {}},
        {QStringLiteral("progress-100"), progressAtEnd, {}},
        {QStringLiteral("progress-retry"), progressWithRetry, {}},
        {QStringLiteral("progress-long"), progressWithLongTexts, {}},
        {QStringLiteral("progress-disabled"), progressWithDisabledButton, {}},
        {QStringLiteral("process"), process, pauseMovie},
        {QStringLiteral("process-fresh"), freshProcess, pauseMovie},
    };
}
