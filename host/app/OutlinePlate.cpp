// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/OutlinePlate.h"

#include "app/HostIcons.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QResizeEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr double squareKilometre = 1e6; // Square metres.

const char* const plateStyle = R"(
OutlinePlate {
    background-color: rgba(255, 255, 255, 245); border: 1px solid rgb(200, 210, 224);
    border-radius: 4px;
}
QLabel { color: rgb(44, 60, 90); font-size: 13px; }
QLabel#title { color: rgb(9, 2, 38); font-size: 14px; font-weight: 600; }
QLabel#count { color: rgb(96, 114, 148); font-size: 12px; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 4px; }
QToolButton:hover { background-color: rgb(232, 239, 250); }
QToolButton:focus { border: 2px solid rgb(58, 136, 244); }
QDoubleSpinBox {
    color: rgb(26, 38, 62); background-color: white; font-size: 13px;
    border: 1px solid rgb(200, 210, 224); border-radius: 4px; padding: 0 8px;
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QDoubleSpinBox:focus { border: 2px solid rgb(58, 136, 244); padding: 0 7px; }
QPushButton {
    color: white; background-color: rgb(45, 120, 228); border: 1px solid rgb(45, 120, 228);
    border-radius: 4px; font-size: 13px; font-weight: 600; padding: 0 10px;
}
QPushButton:hover { background-color: rgb(70, 141, 242); }
QPushButton:pressed { background-color: rgb(38, 108, 208); }
QPushButton:focus { border: 2px solid rgb(4, 21, 46); }
QPushButton#check { color: rgb(38, 108, 208); background-color: white; }
QPushButton#check:hover { background-color: rgb(236, 244, 255); }
QPushButton#check:pressed { background-color: rgb(214, 229, 252); }
QPushButton#check:disabled, QPushButton#segment:disabled {
    color: rgb(132, 148, 176); background-color: rgb(236, 240, 246);
    border-color: rgb(218, 225, 235);
}
)";

QString colourName(OutlineTexts::Mood mood)
{
    switch (mood) {
    case OutlineTexts::Mood::Good:
        return QStringLiteral("#1c945c");
    case OutlineTexts::Mood::Doubtful:
        return QStringLiteral("#d68010");
    case OutlineTexts::Mood::Bad:
        return QStringLiteral("#d63038");
    case OutlineTexts::Mood::Plain:
        break;
    }
    return QStringLiteral("#9aaac4");
}

} // namespace

OutlinePlate::OutlinePlate(QWidget* parent)
    : QFrame(parent)
    , m_title(new QLabel(this))
    , m_count(new QLabel(this))
    , m_leave(new QToolButton(this))
    , m_lines(new QLabel(this))
    , m_partTitle(new QLabel(this))
    , m_part(new QDoubleSpinBox(this))
    , m_check(new QPushButton(this))
    , m_segment(new QPushButton(this))
{
    setAttribute(Qt::WA_NoMousePropagation); // What lies below is not meant.
    setCursor(Qt::ArrowCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setStyleSheet(QString::fromLatin1(plateStyle));
    m_title->setObjectName(QStringLiteral("title"));
    m_count->setObjectName(QStringLiteral("count"));
    m_leave->setObjectName(QStringLiteral("leave"));
    m_leave->setIcon(HostIcons::icon(HostIcons::Shape::Close, QColor(84, 106, 146)));
    m_leave->setFixedSize(26, 26);
    m_lines->setObjectName(QStringLiteral("lines"));
    m_lines->setTextFormat(Qt::RichText);
    m_lines->setWordWrap(true);
    m_part->setObjectName(QStringLiteral("largestPart"));
    m_part->setLocale(QLocale::c());
    m_part->setRange(0.01, 1e6);
    m_part->setDecimals(2);
    m_part->setValue(1);
    m_part->setSuffix(QStringLiteral(" km\u00b2"));
    m_part->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_part->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    m_part->setKeyboardTracking(false);
    m_partTitle->setBuddy(m_part);
    m_check->setObjectName(QStringLiteral("check"));
    m_segment->setObjectName(QStringLiteral("segment"));
    makeLayout();
    connect(m_leave, &QToolButton::clicked, this, &OutlinePlate::leaveClicked);
    connect(m_check, &QPushButton::clicked, this, &OutlinePlate::checkClicked);
    connect(m_segment, &QPushButton::clicked, this, &OutlinePlate::segmentClicked);
    connect(m_part, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &OutlinePlate::largestPartChanged);
    setClosed(false);
    retranslate();
}

void OutlinePlate::makeLayout()
{
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(m_title);
    head->addWidget(m_count, 1);
    head->addWidget(m_leave);
    auto* size = new QHBoxLayout;
    size->addWidget(m_partTitle, 1);
    m_part->setFixedSize(126, 30);
    size->addWidget(m_part);
    auto* actions = new QHBoxLayout;
    actions->setSpacing(8);
    for (QPushButton* button : {m_check, m_segment}) {
        button->setFixedHeight(32);
        button->setCursor(Qt::PointingHandCursor);
        actions->addWidget(button, 1);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 9, 12, 13);
    layout->setSpacing(10);
    layout->addLayout(head);
    layout->addWidget(m_lines);
    layout->addLayout(size);
    layout->addLayout(actions);
}

double OutlinePlate::largestPart() const
{
    return m_part->value() * squareKilometre;
}

void OutlinePlate::setLargestPart(double squareMetres)
{
    m_part->setValue(squareMetres / squareKilometre);
}

void OutlinePlate::setVertices(int count)
{
    m_vertices = count;
    m_count->setText(tr("Vertices: %1").arg(count));
}

void OutlinePlate::setClosed(bool isClosed)
{
    m_check->setEnabled(isClosed);
    m_segment->setEnabled(isClosed);
}

/// A dot in the colour of its mood stands before each line.
void OutlinePlate::showLines(const QVector<OutlineTexts::Line>& lines)
{
    m_shown = lines;
    QString html = QStringLiteral("<table cellspacing='0' cellpadding='1'>");
    for (const OutlineTexts::Line& line : lines) {
        html += QStringLiteral("<tr><td style='color:%1; padding-right:7px'>\u25cf</td>"
                               "<td>%2</td></tr>")
                    .arg(colourName(line.mood), line.text.toHtmlEscaped());
    }
    m_lines->setText(html + QStringLiteral("</table>"));
    fitLines();
    m_lines->setAccessibleName(text());
}

/// The plate takes the height of its lines at once; the layout around follows it.
void OutlinePlate::fitLines()
{
    const QMargins margins = layout()->contentsMargins();
    const int free = width() - margins.left() - margins.right() - 2 * frameWidth();
    m_lines->setMinimumHeight(0); // The label never asks for less than that.
    m_lines->setFixedHeight(std::max(0, m_lines->heightForWidth(free)));
    layout()->invalidate();
    setFixedHeight(layout()->totalHeightForWidth(width()));
}

void OutlinePlate::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    if (event->oldSize().width() != width())
        fitLines();
}

QString OutlinePlate::text() const
{
    QStringList texts;
    for (const OutlineTexts::Line& line : m_shown)
        texts.append(line.text);
    return texts.join(QLatin1Char('\n'));
}

void OutlinePlate::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void OutlinePlate::retranslate()
{
    setAccessibleName(tr("Outline"));
    m_title->setText(tr("Outline"));
    m_leave->setToolTip(tr("Remove the outline (Esc)"));
    m_leave->setAccessibleName(tr("Remove the outline"));
    m_partTitle->setText(tr("Largest part"));
    m_part->setAccessibleName(tr("Largest part, square kilometres"));
    m_check->setText(tr("Check outline"));
    m_segment->setText(tr("Segment"));
    setVertices(m_vertices);
}
