// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

using GalleryParts::Window;

constexpr int columns = 6;

/// The still pictures of the library.
QStringList picturePaths()
{
    QStringList paths;
    QDirIterator entry(QStringLiteral(":/images/Normal"), {QStringLiteral("*.png")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (entry.hasNext()) {
        const QString path = entry.next();
        if (!path.contains(QLatin1String("@2x")))
            paths.append(path);
    }
    paths.sort(Qt::CaseInsensitive);
    return paths;
}

/// All pictures on one ground, each above its name.
QWidget* sheet(const QString& ground, const QString& ink)
{
    auto* sheet = new QWidget;
    sheet->setObjectName(QStringLiteral("sheet"));
    sheet->setStyleSheet(
        QStringLiteral("#sheet { background: %1; } QLabel { color: %2; font-size: 7pt; }")
            .arg(ground, ink));
    auto* grid = new QGridLayout(sheet);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(12);
    const QStringList paths = picturePaths();
    for (int i = 0; i < paths.size(); ++i) {
        QString path = paths.at(i);
        auto* name = new QLabel(QFileInfo(path).completeBaseName());
        if (qApp->devicePixelRatio() > 1)
            path.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x"));
        auto* picture = new QLabel;
        picture->setPixmap(QPixmap(path));
        const int row = i / columns * 2;
        grid->addWidget(picture, row, i % columns, Qt::AlignCenter);
        grid->addWidget(name, row + 1, i % columns, Qt::AlignHCenter | Qt::AlignTop);
    }
    return sheet;
}

Window contactSheet()
{
    auto page = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(
        sheet(QStringLiteral("rgb(4, 21, 46)"), QStringLiteral("rgb(169, 187, 216)")));
    layout->addWidget(sheet(QStringLiteral("white"), QStringLiteral("rgb(110, 118, 130)")));
    return page;
}

} // namespace

QVector<Gallery::Entry> galleryPictures()
{
    return {{QStringLiteral("pictures"), contactSheet, {}}};
}
