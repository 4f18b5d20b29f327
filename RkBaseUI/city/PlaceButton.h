// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "widgets/RkHoveredPushButton.h"

#include <QColor>
#include <QLayout>
#include <QStringList>

/// The button of a place or of an index letter in the city picker. Its text stands at the left, a
/// light plate shows the mouse.
///
/// It has the look of its base class without a style sheet or a palette: the picker has many
/// hundreds of these buttons, and either takes longer to make than the button itself.
class PlaceButton : public RkHoveredPushButton
{
public:
    explicit PlaceButton(QWidget* parent);
    PlaceButton(const QString& name, QWidget* parent);

    void setTextColour(const QColor& colour);

    /// Just as wide as the text, unless there is a minimum.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void drawButton(QStylePainter& painter, QStyleOptionButton& option) override;

private:
    QSize sizeOfText() const;

    QColor m_textColour{58, 136, 244}; ///< As in the style sheet of the base class.
};

/// Makes the widget a list of places: lines of buttons, in the application's font at 8 points,
/// which they inherit.
void preparePlaceList(QWidget& list);

/// Appends a button for each name to the list, whose click calls the page's
/// `slotCityButtonClicked`.
template <typename Page>
void addPlaceButtons(QWidget& list, const QStringList& names, const Page& page)
{
    for (const QString& name : names) {
        auto* button = new PlaceButton(name, &list);
        QObject::connect(button, &QPushButton::clicked, &page, &Page::slotCityButtonClicked);
        list.layout()->addWidget(button);
    }
}
