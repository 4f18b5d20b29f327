// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/PlaceSearchBox.h"

#include "app/BusyRing.h"
#include "app/HostIcons.h"
#include "app/HostSettings.h"
#include "app/PageStyle.h"
#include "app/PlaceDelegate.h"
#include "app/PlateStyle.h"
#include "map/PlaceNames.h"
#include "map/ScaleBar.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int controlHeight = 34;
constexpr int mostRows = 6; // Shown at once.
constexpr int listEdge = 4; // Pixels around the rows.
constexpr int longestKeyword = 200; // Characters.
constexpr int longestQuote = 40; // Characters of a keyword in the note.

const char* const boxStyle = R"(
QLineEdit {
    color: rgb(26, 38, 62); background-color: rgba(255, 255, 255, 245); font-size: 13px;
    border: 1px solid rgb(200, 210, 224); border-radius: 4px; padding: 0 6px 0 9px;
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QLineEdit:focus { border: 2px solid rgb(58, 136, 244); padding: 0 5px 0 8px; }
QLineEdit QToolButton { background: transparent; border: none; }
QFrame#note {
    background-color: rgba(255, 255, 255, 245); border: 1px solid rgb(200, 210, 224);
    border-radius: 4px;
}
QFrame#note QLabel {
    color: rgb(44, 60, 90); font-size: 13px; background: transparent; border: none; padding: 0;
}
QListWidget {
    background-color: rgba(255, 255, 255, 250); border: 1px solid rgb(200, 210, 224);
    border-radius: 4px; outline: none; padding: 3px;
}
QListWidget:focus { border-color: rgb(58, 136, 244); }
)";

QString shownName(const FoundPlace& place)
{
    return nameInLanguage(place.name, HostSettings::language().startsWith(QLatin1String("zh")));
}

} // namespace

PlaceSearchBox::PlaceSearchBox(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_NoMousePropagation); // What lies below is not meant.
    setCursor(Qt::ArrowCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setStyleSheet(QString::fromLatin1(PlateStyle::styleSheet) + QString::fromLatin1(boxStyle)
                  + QString::fromLatin1(PageStyle::scrollBar));
    makeField();
    makeNote();
    makeList();
    auto* top = new QHBoxLayout;
    top->setSpacing(6);
    top->addWidget(m_field);
    top->addWidget(m_button);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addLayout(top);
    layout->addWidget(m_notePlate);
    layout->addWidget(m_list);
    setFocusProxy(m_field);
    retranslate();
}

void PlaceSearchBox::makeField()
{
    m_field = new QLineEdit(this);
    m_field->setObjectName(QStringLiteral("keyword"));
    m_field->setFixedHeight(controlHeight);
    m_field->setMaxLength(longestKeyword);
    m_field->setClearButtonEnabled(true);
    m_button = new QToolButton(this);
    m_button->setObjectName(QStringLiteral("search"));
    m_button->setIcon(HostIcons::icon(HostIcons::Shape::Search, QColor(44, 60, 90)));
    m_button->setIconSize(QSize(20, 20));
    m_button->setFixedSize(controlHeight, controlHeight);
    m_button->setCursor(Qt::PointingHandCursor);
    connect(m_field, &QLineEdit::returnPressed, this, &PlaceSearchBox::search);
    connect(m_button, &QToolButton::clicked, this, &PlaceSearchBox::search);
    connect(m_field, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            emit cleared();
    });
}

void PlaceSearchBox::makeNote()
{
    m_notePlate = new QFrame(this);
    m_notePlate->setObjectName(QStringLiteral("note"));
    m_ring = new BusyRing(m_notePlate);
    m_noteLabel = new QLabel(m_notePlate);
    m_noteLabel->setTextFormat(Qt::PlainText);
    m_noteLabel->setWordWrap(true);
    auto* layout = new QHBoxLayout(m_notePlate);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->setSpacing(9);
    layout->addWidget(m_ring, 0, Qt::AlignTop);
    layout->addWidget(m_noteLabel, 1);
    m_notePlate->hide();
}

void PlaceSearchBox::makeList()
{
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("places"));
    m_list->setItemDelegate(new PlaceDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setMouseTracking(true);
    m_list->hide();
    connect(m_list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { pick(m_list->row(item)); });
    connect(m_list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { pick(m_list->row(item)); });
}

void PlaceSearchBox::setKeyword(const QString& keyword)
{
    m_field->setText(keyword);
}

void PlaceSearchBox::showPlaces(const QString& keyword, const QVector<FoundPlace>& places)
{
    if (places.isEmpty()) {
        m_keyword = keyword;
        showNote(Note::NoneFound);
        return;
    }
    showNote(Note::None);
    m_places = places;
    fillList();
    m_list->setFixedHeight(std::min(places.size(), mostRows) * PlaceDelegate::rowHeight
                           + 2 * listEdge);
    m_list->scrollToTop();
    m_list->show();
}

void PlaceSearchBox::fillList()
{
    const int row = std::max(0, m_list->currentRow());
    m_list->clear();
    for (const FoundPlace& place : qAsConst(m_places)) {
        auto* item = new QListWidgetItem(shownName(place), m_list);
        const QString where = coordinateText(place.degrees.x(), place.degrees.y());
        item->setData(PlaceDelegate::CoordinatesRole, where);
        item->setData(Qt::AccessibleDescriptionRole, where);
    }
    m_list->setCurrentRow(row);
}

void PlaceSearchBox::showNote(Note note)
{
    const bool isListLeft = m_list->hasFocus();
    m_note = note;
    m_places.clear();
    m_list->clear();
    m_list->hide();
    m_ring->setVisible(note == Note::Searching || note == Note::Locating);
    m_noteLabel->setText(noteText());
    m_notePlate->setHidden(note == Note::None);
    if (isListLeft)
        m_field->setFocus();
}

QString PlaceSearchBox::noteText() const
{
    switch (m_note) {
    case Note::None:
        return {};
    case Note::Searching:
        return tr("Searching\u2026");
    case Note::Locating:
        return tr("Finding your location\u2026");
    case Note::NoneFound:
        return tr("No place found for \"%1\"")
            .arg(m_keyword.size() > longestQuote ? m_keyword.left(longestQuote) + QChar(0x2026)
                                                 : m_keyword);
    case Note::NoSearch:
        return tr("The web service does not answer");
    case Note::NoLocation:
        return tr("Your location is not known: the web service does not answer");
    }
    return {};
}

void PlaceSearchBox::search()
{
    const QString keyword = m_field->text().simplified();
    if (keyword.isEmpty()) {
        m_field->setFocus();
        return;
    }
    emit searchWanted(keyword);
}

void PlaceSearchBox::pick(int row)
{
    if (row < 0 || row >= m_places.size())
        return;
    const FoundPlace place = m_places[row];
    showNote(Note::None);
    setKeyword(shownName(place));
    emit placePicked(place);
}

/// Back to the field, and from there to what the box lies on.
void PlaceSearchBox::leave()
{
    const bool isEmpty = m_note == Note::None && m_places.isEmpty();
    showNote(Note::None);
    emit dismissed();
    if (isEmpty && parentWidget())
        parentWidget()->setFocus();
}

/// No key goes on to what the box lies on.
void PlaceSearchBox::keyPressEvent(QKeyEvent* event)
{
    const bool isListShown = !m_places.isEmpty();
    if (event->key() == Qt::Key_Escape)
        leave();
    else if (event->key() == Qt::Key_Down && isListShown && !m_list->hasFocus())
        m_list->setFocus();
    else if (event->key() == Qt::Key_Up && m_list->hasFocus())
        m_field->setFocus(); // The list had no use for the key on its first row.
    event->accept();
}

void PlaceSearchBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PlaceSearchBox::retranslate()
{
    m_field->setPlaceholderText(tr("Search for a place"));
    m_field->setAccessibleName(tr("Search for a place"));
    m_button->setToolTip(tr("Search"));
    m_button->setAccessibleName(tr("Search"));
    m_field->findChild<QToolButton*>()->setAccessibleName(tr("Clear")); // Its only button.
    m_list->setAccessibleName(tr("Places found"));
    m_noteLabel->setText(noteText());
    fillList();
}
