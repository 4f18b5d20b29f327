// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "map/OutlineTexts.h"

#include <QFrame>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QToolButton;

/// The plate beside an outline on the map: how to draw it or what was found out about it, the size
/// of its parts, and what can be done with it.
class OutlinePlate : public QFrame
{
    Q_OBJECT

public:
    explicit OutlinePlate(QWidget* parent = nullptr);

    /// Square metres.
    double largestPart() const;
    void setLargestPart(double squareMetres);

    void setVertices(int count);
    /// Once it is closed it can be checked and split.
    void setClosed(bool isClosed);
    void showLines(const QVector<OutlineTexts::Line>& lines);

    /// What the plate says, a line of it on each line.
    QString text() const;

Q_SIGNALS:
    void checkClicked();
    void segmentClicked();
    void leaveClicked();
    void largestPartChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeLayout();
    void fitLines();
    void retranslate();

    QLabel* m_title;
    QLabel* m_count;
    QToolButton* m_leave;
    QLabel* m_lines;
    QLabel* m_partTitle;
    QDoubleSpinBox* m_part;
    QPushButton* m_check;
    QPushButton* m_segment;
    QVector<OutlineTexts::Line> m_shown;
    int m_vertices = 0;
};
