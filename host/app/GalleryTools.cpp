// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkVolumeWgt.h>

#include <QComboBox>
#include <QPolygonF>
#include <QPushButton>
#include <QTableWidget>

#include <cmath>

namespace {

using GalleryParts::Window;

constexpr int cellsAcross = 8;
constexpr double cellSide = 20.0;

/// A knoll with a gully beside it, in metres above the sea.
double terrainAt(double x, double y)
{
    const double knoll = 9.0 * std::exp(-(std::pow(x - 60, 2) + std::pow(y - 70, 2)) / 2400);
    const double gully = 6.5 * std::exp(-std::pow(x - 120 + 0.3 * y, 2) / 500);
    return 486.0 + 0.02 * x + knoll - gully;
}

/// Names whose order is row by row.
QString nodeName(const char* kind, int row, int column)
{
    return QStringLiteral("%1%2%3")
        .arg(QLatin1String(kind))
        .arg(row + 1, 2, 10, QLatin1Char('0'))
        .arg(column + 1, 2, 10, QLatin1Char('0'));
}

void handGridOver(CRkVolumeWgt& window)
{
    QMap<QString, QVariant> points;
    QMap<QString, QVariant> cells;
    for (int row = 0; row <= cellsAcross; ++row) {
        for (int column = 0; column <= cellsAcross; ++column) {
            const QPointF at(column * cellSide, row * cellSide);
            points.insert(nodeName("P", row, column),
                          QVariantList{at.x(), at.y(), terrainAt(at.x(), at.y())});
            if (row < cellsAcross && column < cellsAcross)
                cells.insert(nodeName("C", row, column),
                             QPolygonF(QRectF(at, QSizeF(cellSide, cellSide))));
        }
    }
    window.slotGridPt(points, cells);
}

Window earthwork()
{
    auto window = std::make_unique<CRkVolumeWgt>();
    window->InitWgt();
    return window;
}

Window earthworkWithGrid()
{
    Window window = earthwork();
    handGridOver(static_cast<CRkVolumeWgt&>(*window));
    return window;
}

void choose(QWidget& window, int design)
{
    window.findChild<QComboBox*>(QStringLiteral("comboBox_design"))->setCurrentIndex(design);
}

void compute(QWidget& window)
{
    window.findChild<QPushButton*>(QStringLiteral("btn_design_computer"))->click();
}

void computeAboveMinimum(QWidget& window)
{
    choose(window, 1);
    compute(window);
}

/// Opens the editor of a design elevation; without a translation that mode changes nothing.
void editDesign(QWidget& window)
{
    choose(window, 2);
    auto* table = window.findChild<QTableWidget*>();
    table->setCurrentCell(3, 3);
    if (table->item(3, 3)->flags() & Qt::ItemIsEditable)
        table->editItem(table->item(3, 3));
}

} // namespace

QVector<Gallery::Entry> galleryTools()
{
    return {
        {QStringLiteral("earthwork-empty"), earthwork, {}},
        {QStringLiteral("earthwork-average"), earthworkWithGrid, {}},
        {QStringLiteral("earthwork-minimum"), earthworkWithGrid,
         [](QWidget& window) { choose(window, 1); }},
        {QStringLiteral("earthwork-custom"), earthworkWithGrid, editDesign},
        {QStringLiteral("earthwork-computed"), earthworkWithGrid, compute},
        {QStringLiteral("earthwork-minimum-computed"), earthworkWithGrid, computeAboveMinimum},
    };
}
