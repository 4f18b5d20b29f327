// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryWindows.h"

#include "app/HostWindow.h"

#include <RkBaseUI/CRkBaseDialog.h>
#include <RkBaseUI/CRkBaseWidget.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFormLayout>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMouseEvent>
#include <QPushButton>
#include <QTextCursor>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Window = std::unique_ptr<QWidget>;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

/// The view alone, four tiles wide, on the surface that it has in the host.
Window viewPage()
{
    auto page = std::make_unique<QWidget>();
    page->setObjectName(QStringLiteral("page"));
    page->setStyleSheet(HostWindow::pageStyle());
    page->resize(904, 640);
    auto* layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(0, 16, 0, 0);
    layout->addWidget(new CRkProjectManagerView(page.get()));
    return page;
}

CRkProjectManagerView& viewOf(QWidget& window)
{
    return *window.findChild<CRkProjectManagerView*>();
}

QList<CRkGraphicsProjectRectItem*> tilesOf(QWidget& window)
{
    QList<CRkGraphicsProjectRectItem*> tiles;
    const QList<QGraphicsItem*> items = viewOf(window).scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item))
            tiles.append(tile);
    }
    return tiles;
}

/// The tile in the corner where reading begins.
CRkGraphicsProjectRectItem& firstTile(QWidget& window)
{
    const QList<CRkGraphicsProjectRectItem*> tiles = tilesOf(window);
    Q_ASSERT(!tiles.isEmpty());
    return **std::min_element(tiles.cbegin(), tiles.cend(), [](const auto* a, const auto* b) {
        return a->y() < b->y() || (a->y() == b->y() && a->x() < b->x());
    });
}

void selectFirst(QWidget& window)
{
    firstTile(window).setSelected(true);
}

void editFirstCaption(QWidget& window)
{
    selectFirst(window);
    viewOf(window).setFocus();
    CRkGraphicsProjectTextItem* caption = firstTile(window).GetTextItem();
    caption->setFocus();
    QTextCursor cursor = caption->textCursor();
    cursor.select(QTextCursor::Document);
    caption->setTextCursor(cursor);
}

void filterByKeyword(QWidget& window)
{
    const QString name = firstTile(window).GetProjectName();
    viewOf(window).slotFilterConditionChanged(QString(), QString(), QString(), name.left(2));
}

/// The place with most projects.
void filterByCity(QWidget& window)
{
    QMap<QString, int> counts;
    for (const CRkGraphicsProjectRectItem* tile : tilesOf(window)) {
        for (const QString& place : tile->GetProvinceCityList())
            ++counts[place];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    viewOf(window).slotFilterConditionChanged(most.key(), QString(), QString(), QString());
}

Window hostWindow()
{
    return std::make_unique<HostWindow>();
}

void search(QWidget& window, const QString& keyword)
{
    static_cast<HostWindow&>(window).setKeyword(keyword);
    // The button that clears the keyword comes up slowly.
    const auto* clearButton = window.findChild<QLineEdit*>()->findChild<QToolButton*>();
    const QDeadlineTimer deadline(1000);
    while (clearButton->property("opacity").toReal() < 1 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void searchHost(QWidget& window)
{
    search(window, QStringLiteral("2026"));
}

void searchHostForNothing(QWidget& window)
{
    search(window, QStringLiteral("no such name"));
}

void openFirst(QWidget& window)
{
    selectFirst(window);
    emit viewOf(window).projectOpened(firstTile(window).GetProjectFilePath());
}

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

/// Lets a button look as it does under the mouse, wherever the pointer is.
void hover(QWidget& window, const char* button)
{
    auto* widget = window.findChild<QPushButton*>(QLatin1String(button));
    widget->setAttribute(Qt::WA_UnderMouse);
    QMouseEvent move(QEvent::MouseMove, widget->rect().center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
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

} // namespace

QVector<Gallery::Entry> galleryWindows()
{
    return {
        {QStringLiteral("view-tiles"), viewPage, {}},
        {QStringLiteral("view-selected"), viewPage, selectFirst},
        {QStringLiteral("view-editing"), viewPage, editFirstCaption},
        {QStringLiteral("view-keyword"), viewPage, filterByKeyword},
        {QStringLiteral("view-city"), viewPage, filterByCity},
        {QStringLiteral("host"), hostWindow, {}},
        {QStringLiteral("host-opened"), hostWindow, openFirst},
        {QStringLiteral("host-keyword"), hostWindow, searchHost},
        {QStringLiteral("host-empty"), hostWindow, searchHostForNothing},
        {QStringLiteral("base-dialog"), baseDialog, {}},
        {QStringLiteral("base-dialog-ok-hover"), baseDialog, hoverOk},
        {QStringLiteral("base-dialog-ok-pressed"), baseDialog, pressOk},
        {QStringLiteral("base-dialog-ok-disabled"), baseDialog, disableOk},
        {QStringLiteral("base-dialog-close-hover"), baseDialog, hoverClose},
        {QStringLiteral("base-dialog-without-frame"), baseDialogWithoutFrame, {}},
        {QStringLiteral("base-widget"), baseWidget, {}},
    };
}
