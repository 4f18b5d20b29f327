// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QLabel>

/// A text on one line that is cut in its middle where it finds no room; a tip shows it whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// The whole text; text() is what is shown.
    QString wholeText() const { return m_wholeText; }
    void setWholeText(const QString& text);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString m_wholeText;
};
