// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QGraphicsTextItem>
#include <QString>

/// The caption of a project tile, in which the user edits the project's name. It paints the name
/// elided; while it has the focus, the whole name stands in it for editing. Size and time are in
/// the tooltip. Renaming the project is up to whoever is connected to editFinished().
///
///     auto* caption = new CRkGraphicsProjectTextItem(tile);
///     caption->SetPrjName(name);
///     caption->buildDisplayAndToolTip();
class RKBASEUI_EXPORT CRkGraphicsProjectTextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    explicit CRkGraphicsProjectTextItem(QGraphicsItem* parent = nullptr);

    /// The whole name. A new one is shown from the next buildDisplayAndToolTip() on.
    QString GetPrjName() const { return m_name; }
    void SetPrjName(const QString& name) { m_name = name; }

    /// The size as it is to be read, for example "3MB".
    void SetPrjSize(const QString& size) { m_size = size; }

    /// The modification time as text, in `DateTimeSFormat` when it comes from a project file.
    QString GetPrjModifiedDateTime() const { return m_modified; }
    void SetPrjModifiedDateTime(const QString& modified) { m_modified = modified; }

    /// Sets the item's text and, with it, the name.
    void SetPlainText(const QString& text);

    /// Makes the name elided to 140 pixels the item's text, and puts name, size and modification
    /// time into the tooltip. What is painted while nobody edits is the name elided to 180 pixels.
    void buildDisplayAndToolTip();

    /// At least 190 x 32.
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    /// Editing ended with another name, without blanks at its end. It may be empty or no file name.
    void editFinished(const QString& newName);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_name;
    QString m_size;
    QString m_modified;
    /// As they were when editing began.
    QString m_nameBeforeEditing;
    QString m_toolTipBeforeEditing;
};
