// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

using GalleryParts::Window;

int countOn(const QWidget& page, const char* label)
{
    return page.findChild<QLabel*>(QLatin1String(label))->text().toInt();
}

QTreeWidget& blocksOn(const QWidget& page)
{
    return *page.findChild<QTreeWidget*>(QStringLiteral("treeWidgetBlocks"));
}

/// The block page in the size that it has in a dialog, with the project that is worth most.
template <typename Worth>
Window blockPage(Worth worth)
{
    auto page = std::make_unique<CRkBlockManagerWidget>();
    page->resize(960, 568);
    const QStringList files = GalleryParts::projectFiles();
    const auto most =
        std::max_element(files.cbegin(), files.cend(), [&](const auto& a, const auto& b) {
            const auto worthOf = [&](const QString& file) {
                CRkBlockManagerWidget candidate;
                return candidate.LoadExistBlocks(file) ? worth(candidate) : -1;
            };
            return worthOf(a) < worthOf(b);
        });
    page->LoadExistBlocks(*most);
    return page;
}

Window flownBlocks()
{
    return blockPage([](const CRkBlockManagerWidget& page) {
        return 1000 * countOn(page, "labelTotalBlockCount")
            + countOn(page, "labelTotalFlightCount");
    });
}

Window blocksWithoutFlightFile()
{
    return blockPage([](const CRkBlockManagerWidget& page) {
        return countOn(page, "labelTotalMissionCount") == 0 ? countOn(page, "labelTotalBlockCount")
                                                            : 0;
    });
}

/// The project of somebody else.
Window noBlocks()
{
    return blockPage([](const CRkBlockManagerWidget& page) {
        return page.getOpenedProjectInfo().projectId.isEmpty() ? 1 : 0;
    });
}

void searchBlocks(QWidget& page)
{
    page.findChild<QLineEdit*>(QStringLiteral("lineEditSearch"))
        ->setText(blocksOn(page).topLevelItem(1)->text(0));
    page.findChild<QPushButton*>(QStringLiteral("pushButtonSearch"))->click();
}

void sortBlocksOfTheSecond(QWidget& page)
{
    blocksOn(page).setCurrentItem(blocksOn(page).topLevelItem(1));
    page.findChild<QPushButton*>(QStringLiteral("pushButtonAirplaneType"))->click();
}

} // namespace

QVector<Gallery::Entry> galleryBlocks()
{
    return {
        {QStringLiteral("block-page"), flownBlocks, {}},
        {QStringLiteral("block-page-searched"), flownBlocks, searchBlocks},
        {QStringLiteral("block-page-sorted"), flownBlocks, sortBlocksOfTheSecond},
        {QStringLiteral("block-page-disabled"), blocksWithoutFlightFile, {}},
        {QStringLiteral("block-page-empty"), noBlocks, {}},
    };
}
