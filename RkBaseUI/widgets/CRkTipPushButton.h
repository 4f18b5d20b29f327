// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QColor>
#include <QPen>
#include <QPixmap>
#include <QPushButton>
#include <QSize>
#include <QString>

/// Push button with a round badge, the tip, near its upper right corner: a dot, or a dot with a
/// short text such as a count.
///
///     auto* button = new CRkTipPushButton(this);
///     button->SetTipText("3");
///     button->SetTipVisible(true);
class RKBASEUI_EXPORT CRkTipPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CRkTipPushButton(QWidget* parent = nullptr);

    bool TipVisible() const { return m_tipVisible; }

    /// Shows or hides the tip, which is hidden at first, and repaints at once.
    void SetTipVisible(bool visible);

    /// Text in the middle of the dot, in the button's own font and text colour; what lies outside
    /// the tip's rectangle is not drawn. Empty at first: the dot alone.
    void SetTipText(const QString& text);

    /// Size of the dot in pixels, 10 x 10 at first.
    void SetTipSize(const QSize& size);

    /// Distances of the dot from the button's upper and right edges in pixels, 10 at first.
    void SetTipMargin(int top, int right);

    /// Colour of the dot, red at first.
    void SetTipBackgroundColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void tipChanged();
    void paintTip(QPainter& painter, const QRect& tip) const;

    bool m_tipVisible = false;
    int m_tipMarginTop = 10;
    int m_tipMarginRight = 10;
    QSize m_tipSize = {10, 10};
    QColor m_tipBackgroundColor = Qt::red;
    QString m_tipText;
    QPen m_tipTextPen;
    QPixmap m_tipPicture; ///< What was painted last; null when it is out of date.
};
