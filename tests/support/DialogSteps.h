// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <functional>

/// Acts, one step each, on the modal dialogs that come up one after the other while this lives,
/// for tests of what does not return before they are closed. A dialog that a step leaves open is
/// rejected.
///
///     DialogSteps steps({[](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }});
///     QTest::mouseClick(button, Qt::LeftButton);
///     QCOMPARE(steps.left(), 0);
class DialogSteps : public QObject
{
public:
    using Step = std::function<void(QDialog&)>;

    explicit DialogSteps(const QVector<Step>& steps)
        : m_steps(steps)
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogSteps::look);
        m_timer.start(1);
    }

    int left() const { return m_steps.size(); }

private:
    void look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (m_isBusy || m_steps.isEmpty() || !dialog || dialog == m_last || !dialog->isVisible())
            return;
        m_isBusy = true;
        m_last = dialog;
        m_steps.takeFirst()(*dialog);
        if (m_last && m_last->isVisible())
            m_last->reject();
        m_isBusy = false;
    }

    QVector<Step> m_steps;
    QTimer m_timer;
    QPointer<QDialog> m_last;
    bool m_isBusy = false;
};
