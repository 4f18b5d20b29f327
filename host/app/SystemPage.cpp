// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/SystemPage.h"

#include "app/PageStyle.h"

#include <QClipboard>
#include <QEvent>
#include <QFormLayout>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int margin = 24;
constexpr QSize pageSize(600, 760);
constexpr int columnWidth = 720; // Of what is read; lines across a whole screen are not.

/// In the order on the page, with the number of their rows.
enum SectionId { ProcessorSection, StorageSection, DisplaySection, MemorySection, SystemSection };
constexpr int rowCounts[] = {4, 2, 3, 2, 1};

const char* const pageStyle = R"(
SystemPage, QScrollArea, QScrollArea > QWidget > QWidget { background-color: white; }
QScrollArea { border: none; }
QLabel { color: rgb(38, 52, 78); font-size: 13px; }
QLabel[role="heading"] { color: rgb(58, 136, 244); font-size: 11px; font-weight: 600; }
QLabel[role="name"] { color: rgb(9, 2, 38); font-size: 17px; font-weight: 600; }
QLabel[role="title"] { color: rgb(104, 120, 148); }
QLabel[role="note"] { color: rgb(104, 120, 148); }
QLabel[role="value"] {
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QFrame[role="line"] { background-color: rgb(226, 232, 240); border: none; }
QPushButton {
    color: white; background-color: rgb(58, 136, 244); border: none; border-radius: 4px;
    padding: 9px 18px; font-size: 13px; font-weight: 600;
}
QPushButton:hover { background-color: rgb(92, 158, 250); }
QPushButton:pressed { background-color: rgb(38, 108, 208); }
QPushButton:focus { border: 2px solid rgb(4, 21, 46); padding: 7px 16px; }
QPushButton:disabled { color: rgb(104, 120, 148); background-color: rgb(226, 232, 240); }
)";

QLabel* makeValue(QWidget* parent)
{
    QLabel* label = PageStyle::makeLabel("value", parent);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setCursor(Qt::IBeamCursor);
    return label;
}

QWidget* makeLine(QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setProperty("role", QStringLiteral("line"));
    line->setFixedHeight(1);
    return line;
}

} // namespace

SystemPage::SystemPage(QWidget* parent, const Gather& gather)
    : QWidget(parent)
    , m_gather(gather)
{
    setStyleSheet(QString::fromLatin1(pageStyle) + QString::fromLatin1(PageStyle::scrollBar));
    setAttribute(Qt::WA_StyledBackground);
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setAlignment(Qt::AlignHCenter);
    setFocusProxy(scroll); // Its keys scroll the page.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* headRow = new QHBoxLayout;
    headRow->addStretch();
    headRow->addWidget(makeHead(), 1);
    headRow->addStretch();
    layout->addLayout(headRow);
    layout->addWidget(makeLine(this));
    layout->addWidget(scroll, 1);
    scroll->setWidget(makeBody());
    retranslate();
    resize(pageSize);
}

SystemPage::~SystemPage()
{
    if (m_gathering)
        m_gathering->wait();
}

QWidget* SystemPage::makeHead()
{
    auto* head = new QWidget(this);
    head->setMaximumWidth(columnWidth);
    m_title = PageStyle::makeLabel("name", head);
    m_note = PageStyle::makeLabel("note", head);
    m_note->setWordWrap(true);
    m_copy = new QPushButton(head);
    m_copy->setCursor(Qt::PointingHandCursor);
    connect(m_copy, &QPushButton::clicked, this, &SystemPage::copy);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(m_title);
    texts->addWidget(m_note);
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(margin, margin - 6, margin, margin - 6);
    layout->setSpacing(16);
    layout->addLayout(texts, 1);
    layout->addWidget(m_copy, 0, Qt::AlignVCenter);
    return head;
}

QWidget* SystemPage::makeBody()
{
    auto* body = new QWidget(this);
    body->setMaximumWidth(columnWidth);
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(margin, margin - 6, margin, margin);
    layout->setSpacing(10);
    for (const int rowCount : rowCounts) {
        if (!m_sections.isEmpty()) {
            layout->addSpacing(6);
            layout->addWidget(makeLine(body));
            layout->addSpacing(6);
        }
        addSection(layout, rowCount);
    }
    layout->addStretch();
    return body;
}

void SystemPage::addSection(QBoxLayout* layout, int rowCount)
{
    QWidget* body = layout->parentWidget();
    Section section;
    section.heading = PageStyle::makeLabel("heading", body);
    layout->addWidget(section.heading);
    auto* form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(20);
    form->setVerticalSpacing(8);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (int i = 0; i < rowCount; ++i) {
        const Row row{PageStyle::makeLabel("title", body), makeValue(body)};
        row.title->setAlignment(Qt::AlignLeft | Qt::AlignTop); // Beside the first of several lines.
        row.title->setBuddy(row.value);
        form->addRow(row.title, row.value);
        section.rows.append(row);
    }
    layout->addLayout(form);
    m_sections.append(section);
}

void SystemPage::refresh()
{
    if (m_gathering)
        return;
    m_gathering.reset(QThread::create([this] { m_arriving = m_gather(); }));
    connect(m_gathering.get(), &QThread::finished, this, &SystemPage::takeOver);
    m_gathering->start();
}

void SystemPage::takeOver()
{
    m_gathering->wait();
    m_gathering.reset();
    m_values = m_arriving;
    m_isGathered = true;
    m_isCopied = false;
    retranslate();
}

QString SystemPage::plainText() const
{
    if (!m_isGathered)
        return {};
    QString text = m_title->text() + QLatin1Char('\n');
    for (const Section& section : m_sections) {
        text += QLatin1Char('\n') + section.heading->text() + QLatin1Char('\n');
        for (const Row& row : section.rows) {
            const QStringList lines = row.value->text().split(QLatin1Char('\n'));
            for (const QString& line : lines)
                text += tr("%1: %2").arg(row.title->text(), line) + QLatin1Char('\n');
        }
    }
    return text;
}

void SystemPage::copy()
{
    if (!m_isGathered)
        return;
    QGuiApplication::clipboard()->setText(plainText());
    m_isCopied = true;
    retranslate();
}

void SystemPage::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        refresh();
    QWidget::showEvent(event);
}

void SystemPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_isCopied = false; // In the other language.
        retranslate();
    }
    QWidget::changeEvent(event);
}

void SystemPage::retranslate()
{
    setWindowTitle(tr("System"));
    m_title->setText(tr("System"));
    m_copy->setText(tr("Copy as text"));
    m_copy->setEnabled(m_isGathered);
    if (!m_isGathered)
        m_note->setText(tr("Asking the system…"));
    else
        m_note->setText(m_isCopied ? tr("Copied to the clipboard.")
                                   : tr("About this computer, for questions to support."));
    retranslateTitles();
    fillValues();
}

void SystemPage::retranslateTitles()
{
    const QStringList headings = {tr("PROCESSOR"), tr("STORAGE"), tr("DISPLAY"), tr("MEMORY"),
                                  tr("OPERATING SYSTEM")};
    const QVector<QStringList> titles = {
        {tr("Name"), tr("Identifier"), tr("Logical processors"), tr("Clock")},
        {tr("Disks"), tr("Storage devices of all kinds")},
        {tr("Display adapters"), tr("Number of adapters"), tr("Graphics memory")},
        {tr("Physical memory"), tr("Address space")},
        {tr("Version")},
    };
    int widest = 0;
    for (int i = 0; i < m_sections.size(); ++i) {
        const Section& section = m_sections.at(i);
        section.heading->setText(headings.at(i));
        for (int j = 0; j < section.rows.size(); ++j) {
            QLabel* title = section.rows.at(j).title;
            title->setText(titles.at(i).at(j));
            title->setMinimumWidth(0);
            widest = std::max(widest, title->sizeHint().width());
        }
    }
    for (const Section& section : qAsConst(m_sections)) { // One column of all forms.
        for (const Row& row : section.rows)
            row.title->setMinimumWidth(widest);
    }
}

void SystemPage::fillValues()
{
    if (!m_isGathered)
        return;
    const QString processors =
        m_values.processorCount > 0 ? QString::number(m_values.processorCount) : QString();
    const QString mhz =
        m_values.processorMhz.isEmpty() ? QString() : tr("%1 MHz").arg(m_values.processorMhz);
    setValues(ProcessorSection,
              {m_values.processorName, m_values.processorIdentifier, processors, mhz});
    setValues(StorageSection,
              {m_values.diskNames.join(QLatin1Char('\n')), QString::number(m_values.storageCount)});
    setValues(DisplaySection,
              {m_values.displayNames.join(QLatin1Char('\n')),
               QString::number(m_values.displayCount), m_values.graphicsMemory});
    setValues(MemorySection, {megabytes(m_values.memory), megabytes(m_values.addressSpace)});
    setValues(SystemSection, {m_values.operatingSystem.trimmed()});
}

void SystemPage::setValues(int section, const QStringList& texts)
{
    const QVector<Row>& rows = m_sections.at(section).rows;
    for (int i = 0; i < rows.size(); ++i)
        rows.at(i).value->setText(orNotFound(texts.at(i)));
}

/// Of several lines, too, each may be empty.
QString SystemPage::orNotFound(const QString& text) const
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        if (line.trimmed().isEmpty())
            line = tr("not found");
    }
    return lines.join(QLatin1Char('\n'));
}

/// With separators of thousands and the unit; empty for nothing.
QString SystemPage::megabytes(const QString& mebibytes) const
{
    const qulonglong number = mebibytes.toULongLong();
    return number == 0 ? QString() : tr("%1 MiB").arg(QLocale(QLocale::English).toString(number));
}
