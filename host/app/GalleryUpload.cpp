// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BlockPanel.h"
#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"
#include "app/HostWindow.h"
#include "app/UploadDialog.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/WebService.h>

#include <QApplication>
#include <QDateTimeEdit>
#include <QJsonDocument>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>

namespace {

using GalleryParts::Texts;
using GalleryParts::Window;

/// The first of the sample projects that has a block, with that block opened.
Window openedWindow()
{
    auto window = std::make_unique<HostWindow>();
    const QStringList files = GalleryParts::projectFiles();
    for (const QString& file : files) {
        CRkBlockManagerWidget page;
        if (!page.LoadExistBlocks(file))
            continue;
        QObject::connect(&page, &CRkBlockManagerWidget::blockOpened, window.get(),
                         [&](const QString& blockId) {
                             page.OpenBlock(blockId);
                             window->showBlock(page.getOpenedProjectInfo(), blockId);
                         });
        auto* blocks = page.findChild<QTreeWidget*>(QStringLiteral("treeWidgetBlocks"));
        if (blocks->topLevelItemCount() == 0)
            continue;
        emit blocks->itemDoubleClicked(blocks->topLevelItem(0), 0);
        break;
    }
    return window;
}

void fillIn(const QWidget& form)
{
    const auto setText = [&form](const char* field, const QString& text) {
        form.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
    };
    setText("m_pEdtDocPath", QStringLiteral("/surveys/2026/airspace-permit.pdf"));
    setText("m_pEdtAuthName", Texts::tr("Wang Lin"));
    setText("m_pEdtContact", QStringLiteral("+86 138 0000 0000"));
    setText("m_pEdtCompany", Texts::tr("Eastern River Survey Institute"));
    const auto setTime = [&form](const char* field, QDate day, QTime time) {
        form.findChild<QDateTimeEdit*>(QLatin1String(field))->setDateTime({day, time});
    };
    setTime("m_pDateStart", {2026, 5, 11}, {8, 0});
    setTime("m_pDateEnd", {2026, 5, 22}, {18, 0});
    form.findChild<QPlainTextEdit*>()->setPlainText(
        Texts::tr("Survey of the embankment after the flood. Flights by daylight only, below 120 m "
                  "above the ground, in agreement with the tower."));
}

/// What the button of the block brings up, over the window. The action prepares it.
QImage withDialog(QWidget& window, const char* button, void (*prepare)(QWidget& dialog))
{
    QPixmap picture = window.grab();
    QTimer::singleShot(0, &window, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        prepare(*dialog);
        QCoreApplication::processEvents();
        QPainter painter(&picture);
        painter.drawPixmap(window.mapFromGlobal(dialog->pos()), dialog->grab());
        painter.end();
        dialog->close();
    });
    const auto& panel = *static_cast<HostWindow&>(window).blockPanel();
    panel.findChild<QPushButton*>(QLatin1String(button))->click();
    return picture.toImage();
}

QImage withForm(QWidget& window)
{
    return withDialog(window, "applyForLift", [](QWidget& form) { fillIn(form); });
}

/// The blocks and the tasks of the first are open.
void openTree(QWidget& dialog)
{
    auto* tree = dialog.findChild<QTreeView*>();
    const QAbstractItemModel& model = *tree->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex list = model.index(row, 0);
        if (!model.hasChildren(list))
            continue;
        tree->expand(list);
        const QModelIndex element = model.index(0, 0, list);
        tree->expand(element);
        tree->setCurrentIndex(element);
        tree->scrollTo(list, QAbstractItemView::PositionAtTop);
        return;
    }
}

QImage withTree(QWidget& window)
{
    return withDialog(window, "uploadProject", openTree);
}

Window uploadDialog()
{
    const QStringList files = GalleryParts::projectFiles();
    QByteArray document;
    for (const QString& file : files) {
        document = GetUploadArray(file);
        if (document.contains("\"tasks\""))
            break;
    }
    const QString name =
        QJsonDocument::fromJson(document)[QLatin1String("project_name")].toString();
    return std::make_unique<UploadDialog>(name, document);
}

UploadDialog& dialogOf(QWidget& window)
{
    return static_cast<UploadDialog&>(window);
}

Window emptyDialog()
{
    return std::make_unique<UploadDialog>(Texts::tr("River Embankment Inspection"), "{}");
}

void send(QWidget& window)
{
    dialogOf(window).showProgress(1'600, 2'400);
}

void finish(QWidget& window)
{
    send(window);
    dialogOf(window).takeAnswer(R"({"status":1})");
}

void fail(QWidget& window)
{
    send(window);
    dialogOf(window).fail();
}

void refuseUser(QWidget& window)
{
    send(window);
    dialogOf(window).refuseUser();
}

} // namespace

QVector<Gallery::Entry> galleryUpload()
{
    return {
        {QStringLiteral("host-lift"), openedWindow, {}, withForm},
        {QStringLiteral("host-upload"), openedWindow, {}, withTree},
        {QStringLiteral("upload-ready"), uploadDialog, {}},
        {QStringLiteral("upload-tree"), uploadDialog, openTree},
        {QStringLiteral("upload-empty"), emptyDialog, {}},
        {QStringLiteral("upload-running"), uploadDialog, send},
        {QStringLiteral("upload-done"), uploadDialog, finish},
        {QStringLiteral("upload-failed"), uploadDialog, fail},
        {QStringLiteral("upload-no-login"), uploadDialog, refuseUser},
    };
}
