// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QGraphicsPixmapItem>
#include <QObject>
#include <QPixmap>
#include <QString>

/// Button of a graphics scene that shows one pixmap for each of its states.
///
///     auto* item = new CRkGraphicsPixmapItem;
///     item->SetNormalPixmap(QPixmap(":/host/pin_nor.png"));
///     item->SetCheckedPixmap(QPixmap(":/host/pin_chk.png"));
///
/// The pixmap for highlight goes before the one for disabled, that before the one for checked, and
/// that before the normal one. A state without a pixmap shows nothing, but without a pixmap for
/// hover or press the one before stays. A click never changes the checked state.
class RKBASEUI_EXPORT CRkGraphicsPixmapItem : public QObject, public QGraphicsPixmapItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit CRkGraphicsPixmapItem(QGraphicsItem* parent = nullptr);

    /// Also shows the pixmap, whatever the state.
    void SetNormalPixmap(const QPixmap& pixmap);

    /// These take effect with the next change of state.
    void SetHoverPixmap(const QPixmap& pixmap) { m_hoverPixmap = pixmap; }
    void SetPressPixmap(const QPixmap& pixmap) { m_pressPixmap = pixmap; }
    void SetCheckedPixmap(const QPixmap& pixmap) { m_checkedPixmap = pixmap; }
    void SetDisabledPixmap(const QPixmap& pixmap) { m_disabledPixmap = pixmap; }
    void SetHighlightPixmap(const QPixmap& pixmap) { m_highlightPixmap = pixmap; }

    /// A name for the host's use, empty at first.
    QString GetName() const { return m_name; }
    void SetName(const QString& name);

    /// For the host's use, false at first: it bears on no other operation.
    bool IsCheckable() const { return m_checkable; }
    void SetCheckable(bool checkable) { m_checkable = checkable; }

    bool IsChecked() const { return m_checked; }
    void SetChecked(bool checked);

    /// Whether the item answers hover and press; true at first. Not that of `QGraphicsItem`.
    bool IsEnabled() const { return m_enabled; }
    void SetEnabled(bool enabled);

    /// A highlighted item answers neither hover nor press.
    bool IsHighlight() const { return m_highlight; }
    void SetHighlight(bool highlight);

    /// Emits `pixmapItemClicked`.
    void itemClicked();

    /// The bounding rectangle, so that the transparent parts of the pixmap count.
    QPainterPath shape() const override;

Q_SIGNALS:
    /// The mouse was released after a press that the item answered, wherever it is by then.
    void pixmapItemClicked();

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    void showState();

    QString m_name;
    bool m_checkable = false;
    bool m_checked = false;
    bool m_enabled = true;
    bool m_pressed = false;
    bool m_highlight = false;
    QPixmap m_normalPixmap;
    QPixmap m_hoverPixmap;
    QPixmap m_pressPixmap;
    QPixmap m_checkedPixmap;
    QPixmap m_disabledPixmap;
    QPixmap m_highlightPixmap;
};
