// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>

#include <QFont>
#include <QPixmap>
#include <QSlider>
#include <QString>

/// Slider that prints a text on its handle while something is loading.
///
///     auto* slider = new CRkSlider(this);
///     slider->SetLoading(true);
///     slider->SetHandleTextPattern("45%");
///
/// The plate behind the text begins where the handle does and is as wide as the text.
class RKBASEUI_EXPORT CRkSlider : public QSlider
{
    Q_OBJECT

public:
    explicit CRkSlider(QWidget* parent = nullptr);

    /// Whether the text is shown; not at first. Otherwise this looks as any slider.
    void SetLoading(bool loading);

    /// Font of the text. What is not set on it comes from the slider's own font.
    void SetHandleFont(QFont font);

    /// The text as it is shown. Repaints at once.
    void SetHandleTextPattern(QString text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void handleChanged();
    QFont wholeHandleFont() const;
    void paintPlate(QPainter& painter, const QRect& plate) const;

    bool m_loading = false;
    QFont m_handleFont;
    QString m_handleText;
    int m_handleTextWidth = 0;
    QPixmap m_platePicture; ///< What was painted last; null when it is out of date.
};
