// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/CRkVolumeWgt.h"

#include "ui_CRkVolumeWgt.h"

#include <RkBaseUI/CRkTableDelegate.h>

#include <QHeaderView>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

enum Column {
    IndexColumn,
    TerrainColumn,
    LevellingColumn,
    DesignColumn,
    ConstructionColumn,
    Columns
};

constexpr int columnWidth = 80;

QString numberText(double number)
{
    return QString::number(number, 'f', 2);
}

/// The number at a position of a point's list; not-a-number when there is none.
double numberAt(const QVariantList& point, int position)
{
    bool isNumber = false;
    const double number = point.value(position).toDouble(&isNumber);
    return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

std::vector<rk::GridPoint> pointsOf(const QMap<QString, QVariant>& mapPt)
{
    std::vector<rk::GridPoint> points;
    points.reserve(std::size_t(mapPt.size()));
    for (auto it = mapPt.cbegin(); it != mapPt.cend(); ++it) {
        const QVariantList list = it.value().toList();
        points.push_back({it.key(), numberAt(list, 0), numberAt(list, 1), numberAt(list, 2)});
    }
    return points;
}

std::vector<rk::GridCell> cellsOf(const QMap<QString, QVariant>& mapGrid)
{
    std::vector<rk::GridCell> cells;
    cells.reserve(std::size_t(mapGrid.size()));
    for (auto it = mapGrid.cbegin(); it != mapGrid.cend(); ++it)
        cells.push_back({it.key(), it.value().value<QPolygonF>()});
    return cells;
}

QTableWidgetItem* newCell()
{
    auto* item = new QTableWidgetItem;
    item->setTextAlignment(Qt::AlignCenter);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    return item;
}

/// What the chosen mode writes into the rows.
struct Design
{
    enum Mode { None, Plane, Custom };

    Mode mode = None;
    double elevation = 0.0; ///< Of the plane.
    QString elevationText;
    QString levellingText;
};

/// @param modes texts of the average plane, the minimum plane and the custom design
Design chosenDesign(const QString& mode, const QStringList& modes, double average, double lowest)
{
    Design design;
    design.levellingText = numberText(average);
    switch (modes.indexOf(mode)) {
    case 0:
        design.mode = Design::Plane;
        design.elevation = average;
        break;
    case 1:
        design.mode = Design::Plane;
        design.elevation = lowest;
        break;
    case 2:
        design.mode = Design::Custom;
        break;
    default:
        break;
    }
    design.elevationText = numberText(design.elevation);
    return design;
}

using Row = std::array<QTableWidgetItem*, Columns>;

/// Writes the design into the cells of a row.
/// @return the height of the terrain over the plane; 0 without a plane
double writeDesign(const Design& design, int row, const Row& cells)
{
    const bool isCustom = design.mode == Design::Custom;
    cells[LevellingColumn]->setText(design.levellingText);
    QTableWidgetItem* designCell = cells[DesignColumn];
    const Qt::ItemFlags flags = designCell->flags().setFlag(Qt::ItemIsEditable, isCustom);
    if (flags != designCell->flags())
        designCell->setFlags(flags);
    if (isCustom) {
        designCell->setData(Qt::UserRole, QStringList{QString()}); // Asks for a numeric editor.
        designCell->setStatusTip(QStringLiteral("%1|%2").arg(row).arg(int(DesignColumn)));
    }
    if (design.mode != Design::Plane)
        return 0.0;
    const double height = cells[TerrainColumn]->text().toDouble() - design.elevation;
    designCell->setText(design.elevationText);
    cells[ConstructionColumn]->setText(numberText(height));
    return height;
}

/// Sorts the names in ascending order, each once.
void sortDistinct(std::vector<const QString*>& names)
{
    const auto isLess = [](const QString* a, const QString* b) { return *a < *b; };
    const auto isNotLess = [&](const QString* a, const QString* b) { return !isLess(a, b); };
    // The last point of a cell comes first in the map, so this is all that most cells need.
    std::reverse(names.begin(), names.end());
    if (std::adjacent_find(names.cbegin(), names.cend(), isNotLess) == names.cend())
        return;
    std::sort(names.begin(), names.end(), isLess);
    names.erase(std::unique(names.begin(), names.end(), isNotLess), names.end());
}

/// Lets the titles of narrow columns take two lines.
void wrapHeader(QHeaderView& header)
{
    header.setDefaultAlignment(Qt::Alignment(QFlag(Qt::AlignCenter | Qt::TextWordWrap)));
    header.setTextElideMode(Qt::ElideNone);
    header.setMinimumHeight(2 * header.fontMetrics().lineSpacing() + 8);
}

} // namespace

CRkVolumeWgt::CRkVolumeWgt(QWidget* parent)
    : CRkBaseDialog(parent)
    , m_form(std::make_unique<Ui::CRkVolumeWgt>())
{
    auto* form = new QWidget(this);
    m_form->setupUi(form);
    const QSize formSize = form->size();
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    auto* layout = new QVBoxLayout;
    layout->addWidget(form);
    AddLayout(layout);
    SetBtnHidden(true, true, false);
    titleBar()->setStyleSheet(QStringLiteral(
        "background-color: rgba(57, 53, 92,125);\ncolor:rgb(255, 255, 255);\nborder:0px;"));
    SetWindowTitle(tr("Earthwork measurement"));
    wrapHeader(*m_form->tableWidget->horizontalHeader());
    resize(formSize + QSize(0, sizeHint().height() - form->sizeHint().height()));
    m_form->doubleSpinBox_grid->setFocus();

    ConnectEvent();
}

CRkVolumeWgt::~CRkVolumeWgt() = default;

void CRkVolumeWgt::ConnectEvent()
{
    connect(m_form->groupBox_grid, &QGroupBox::clicked, this, &CRkVolumeWgt::slotClickGroupBoxGrid);
    connect(m_form->groupBox_design, &QGroupBox::clicked, this,
            &CRkVolumeWgt::slotClickGroupBoxDesign);
    connect(m_form->btn_grid_generate, &QPushButton::clicked, this,
            &CRkVolumeWgt::slotClickGridGenerate);
    connect(m_form->btn_grid_ensure, &QPushButton::clicked, this,
            &CRkVolumeWgt::slotClickGridEnsure);
    connect(
        m_form->comboBox_design, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        [this](int index) { slotCurrentDesignChanged(m_form->comboBox_design->itemText(index)); });
    connect(m_form->btn_design_computer, &QPushButton::clicked, this,
            &CRkVolumeWgt::slotClickDesignComputer);
    connect(m_form->btn_design_cancel, &QPushButton::clicked, this,
            &CRkVolumeWgt::slotClickDesignCancel);
}

void CRkVolumeWgt::InitWgt()
{
    m_form->doubleSpinBox_grid->setValue(20.0);

    {
        // The heights of earlier grids stay as they are.
        const QSignalBlocker blocker(m_form->comboBox_design);
        m_form->comboBox_design->clear();
        m_modes = QStringList{tr("Average Plane"), tr("Minimum Plane"), tr("Custom")};
        // The blank at the end tells the entry from the mode "Custom": without a translation, which
        // gives both the same text, choosing it leaves the table alone.
        m_form->comboBox_design->addItems(
            {tr("Average Plane"), tr("Minimum Plane"), tr("Custom ")});
    }

    QTableWidget* table = m_form->tableWidget;
    table->clear();
    table->setRowCount(0);
    table->setColumnCount(Columns);
    table->setHorizontalHeaderLabels({tr("Index"), tr("Terrain Elevation"),
                                      tr("Leveling Elevation"), tr("Design Elevation"),
                                      tr("Construction Elevation")});
    for (int column = 0; column < Columns; ++column)
        table->setColumnWidth(column, columnWidth);
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);

    m_form->groupBox_grid->setEnabled(true);
    m_form->groupBox_grid->setChecked(true);
    m_form->groupBox_design->setEnabled(false);
    m_form->groupBox_design->setChecked(false);

    if (!m_pTableDelegate) {
        m_pTableDelegate = std::make_unique<CRkTableDelegate>();
        connect(m_pTableDelegate.get(), &CRkTableDelegate::signalSpinBoxChanged, this,
                &CRkVolumeWgt::slotSpinBoxChanged);
        table->setItemDelegate(m_pTableDelegate.get());
    }
    m_form->textEdit->clear();
}

void CRkVolumeWgt::slotClickGroupBoxGrid(bool)
{
}

void CRkVolumeWgt::slotClickGroupBoxDesign(bool)
{
}

void CRkVolumeWgt::slotClickGridGenerate()
{
    emit signalGridGenerate(m_form->doubleSpinBox_grid->value());
}

void CRkVolumeWgt::slotClickGridEnsure()
{
    emit signalGridComplete();
}

void CRkVolumeWgt::slotCurrentDesignChanged(const QString&)
{
    ResetTableWgt();
}

void CRkVolumeWgt::slotClickDesignComputer()
{
    const double side = m_form->doubleSpinBox_grid->value();
    rk::VolumeTotals totals;
    QVariantMap volumes;
    std::vector<const QString*> names;
    for (auto it = m_mapGridPts.cbegin(); it != m_mapGridPts.cend();) {
        const QString& cell = it.key();
        names.clear();
        for (; it != m_mapGridPts.cend() && it.key() == cell; ++it)
            names.push_back(&it.value());
        sortDistinct(names);
        const rk::CellVolume volume = GetMeasurement(names, side);
        rk::addCell(totals, volume, side);
        volumes.insert(volumes.constEnd(), cell, QVariantList{volume.excavation, volume.fill});
    }
    m_form->textEdit->setPlainText(
        QStringList{tr("Area:") + numberText(totals.area) + QLatin1String("m^2"),
                    tr("Excavation:") + numberText(totals.excavation) + QLatin1String("m^3"),
                    tr("Fill:") + numberText(totals.fill) + QLatin1String("m^3")}
            .join(QLatin1Char('\n')));
    emit signalVolumeComplete(volumes);
}

void CRkVolumeWgt::slotClickDesignCancel()
{
}

void CRkVolumeWgt::slotCloseClicked()
{
    emit signalClearVolume();
    CRkBaseDialog::slotCloseClicked();
}

void CRkVolumeWgt::slotGridPt(const QMap<QString, QVariant>& mapPt,
                              const QMap<QString, QVariant>& mapGrid)
{
    const std::vector<rk::GridPoint> points = pointsOf(mapPt);
    for (const rk::GridPoint& point : points) {
        if (std::isfinite(point.elevation) && point.elevation < m_dMinElevation)
            m_dMinElevation = point.elevation;
    }
    m_dAvgElevation = GenerateAvgElevation(points, cellsOf(mapGrid));
    ResetTableWgt();
    _appendRows(points);

    m_form->groupBox_grid->setEnabled(false);
    m_form->groupBox_grid->setChecked(false);
    m_form->groupBox_design->setEnabled(true);
    m_form->groupBox_design->setChecked(true);
    m_form->comboBox_design->setEnabled(true);
}

void CRkVolumeWgt::slotSpinBoxChanged(double valueTemp, const QString& cell)
{
    const QVector<QStringRef> parts = cell.splitRef(QLatin1Char('|'), Qt::SkipEmptyParts);
    if (parts.size() < 2)
        return;
    bool isNumber = false;
    const int row = parts.first().toInt(&isNumber);
    const QTableWidget* table = m_form->tableWidget;
    if (!isNumber || row < 0 || row >= table->rowCount())
        return;
    const double height = table->item(row, TerrainColumn)->text().toDouble() - valueTemp;
    table->item(row, ConstructionColumn)->setText(numberText(height));
    m_mapPtHeight.insert(table->item(row, IndexColumn)->text(), height);
}

/// The title bar lets half of what is below it through. On the pale dialog its white title would be
/// hard to read, so that the dark of other title bars is laid there.
void CRkVolumeWgt::paintEvent(QPaintEvent* event)
{
    CRkBaseDialog::paintEvent(event);
    QPainter(this).fillRect(titleBar()->geometry(), QColor(4, 21, 46));
}

/// The levelling elevation of the grid, whose cells join those before.
double CRkVolumeWgt::GenerateAvgElevation(const std::vector<rk::GridPoint>& points,
                                          const std::vector<rk::GridCell>& cells)
{
    rk::Levelling levelling = rk::levelGrid(points, cells);
    if (m_mapGridPts.isEmpty())
        m_mapGridPts.swap(levelling.pointsOfCells);
    else
        m_mapGridPts.unite(levelling.pointsOfCells);
    return levelling.elevation;
}

/// The volumes of a cell whose corners are the points of these names; of none without four.
rk::CellVolume CRkVolumeWgt::GetMeasurement(const std::vector<const QString*>& names,
                                            double side) const
{
    rk::CornerHeights heights;
    if (names.size() != heights.size())
        return {};
    std::transform(names.cbegin(), names.cend(), heights.begin(),
                   [this](const QString* name) { return m_mapPtHeight.value(*name); });
    // A point can lose its elevation when a further grid brings its name again.
    if (!std::all_of(heights.cbegin(), heights.cend(), [](double h) { return std::isfinite(h); }))
        return {};
    return rk::cellVolume(heights, side);
}

/// Writes the chosen design plane into the table, and the heights above it.
void CRkVolumeWgt::ResetTableWgt()
{
    QTableWidget* table = m_form->tableWidget;
    const int rows = table->rowCount();
    if (rows == 0)
        return;
    {
        // One message for all cells: each alone would cost more than its change.
        const QSignalBlocker blocker(table->model());
        const Design design = chosenDesign(m_form->comboBox_design->currentText(), m_modes,
                                           m_dAvgElevation, m_dMinElevation);
        for (int row = 0; row < rows; ++row) {
            const double height =
                writeDesign(design, row,
                            {table->item(row, 0), table->item(row, 1), table->item(row, 2),
                             table->item(row, 3), table->item(row, 4)});
            if (design.mode == Design::Plane)
                m_mapPtHeight.insert(table->item(row, IndexColumn)->text(), height);
        }
    }
    emit table->model()->dataChanged(table->model()->index(0, LevellingColumn),
                                     table->model()->index(rows - 1, ConstructionColumn));
}

/// Appends a row for each point. The cells get their texts before they come into the table, which
/// then has nothing to do for each.
void CRkVolumeWgt::_appendRows(const std::vector<rk::GridPoint>& points)
{
    QTableWidget* table = m_form->tableWidget;
    int row = table->rowCount();
    table->setRowCount(row + int(points.size()));
    std::vector<double> heights;
    heights.reserve(points.size());
    const QSignalBlocker blocker(table->model());
    const Design design = chosenDesign(m_form->comboBox_design->currentText(), m_modes,
                                       m_dAvgElevation, m_dMinElevation);
    for (const rk::GridPoint& point : points) {
        const Row cells = {newCell(), newCell(), newCell(), newCell(), newCell()};
        cells[IndexColumn]->setText(point.name);
        cells[TerrainColumn]->setText(numberText(point.elevation));
        heights.push_back(writeDesign(design, row, cells));
        for (int column = 0; column < Columns; ++column)
            table->setItem(row, column, cells[std::size_t(column)]);
        ++row;
    }

    if (design.mode != Design::Plane)
        return;
    // All at once, so that they lie together in memory when the volumes are computed.
    m_mapPtHeight.reserve(m_mapPtHeight.size() + int(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i)
        m_mapPtHeight.insert(points[i].name, heights[i]);
}
