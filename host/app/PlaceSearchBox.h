// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/FoundPlaces.h"

#include <QWidget>

class BusyRing;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QToolButton;

/// A field for the name of a place, and under it what became of the search: the places to pick
/// from, with the mouse or with the arrows and Enter, or a line that says why there are none. It
/// asks nobody itself.
///
///     auto* box = new PlaceSearchBox(this);
///     connect(box, &PlaceSearchBox::searchWanted, this, &Map::search);
///     connect(box, &PlaceSearchBox::placePicked, this, &Map::showPlace);
class PlaceSearchBox : public QWidget
{
    Q_OBJECT

public:
    enum class Note { None, Searching, Locating, NoneFound, NoSearch, NoLocation };

    explicit PlaceSearchBox(QWidget* parent = nullptr);

    /// Of the places that the list shows; a place is shown by its half in the language of now.
    const QVector<FoundPlace>& places() const { return m_places; }
    Note note() const { return m_note; }
    /// What the line under the field says; empty when there is none.
    QString noteText() const;

    void setKeyword(const QString& keyword);
    /// What the search for the keyword has found; a note where that is nothing. It takes the place
    /// of what was shown before, as does a note.
    void showPlaces(const QString& keyword, const QVector<FoundPlace>& places);
    void showNote(Note note);

Q_SIGNALS:
    /// By Enter or the button; never empty.
    void searchWanted(const QString& keyword);
    void placePicked(const FoundPlace& place);
    /// The field has been emptied.
    void cleared();
    /// By Escape: nothing is waited for any more.
    void dismissed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeField();
    void makeNote();
    void makeList();
    void retranslate();
    void fillList();
    void search();
    void pick(int row);
    void leave();

    QLineEdit* m_field = nullptr;
    QToolButton* m_button = nullptr;
    QFrame* m_notePlate = nullptr;
    BusyRing* m_ring = nullptr;
    QLabel* m_noteLabel = nullptr;
    QListWidget* m_list = nullptr;
    QVector<FoundPlace> m_places;
    Note m_note = Note::None;
    QString m_keyword; ///< Of the last search that found nothing.
};
