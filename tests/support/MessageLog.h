// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

/// Keeps what is said in warnings and the like instead of printing it; one log at a time.
///
///     log.start();
///     ...
///     QCOMPARE(log.stop(), QStringList());
class MessageLog
{
public:
    void start()
    {
        s_texts.clear();
        m_previous = qInstallMessageHandler(keep);
    }

    /// Everything said since the start, by any thread.
    QStringList stop()
    {
        qInstallMessageHandler(m_previous);
        const QMutexLocker locker(&s_mutex);
        return s_texts;
    }

private:
    /// All but what the window system says of a display without a window manager.
    static void keep(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
    {
        const QMutexLocker locker(&s_mutex);
        if (qstrcmp(context.category, "qt.qpa.xcb") != 0)
            s_texts.append(text);
    }

    inline static QMutex s_mutex;
    inline static QStringList s_texts;
    QtMessageHandler m_previous = nullptr;
};
