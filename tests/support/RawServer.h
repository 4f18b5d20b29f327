// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

/// A server on 127.0.0.1 that sends bytes of the test's choice, good HTTP or not, for each request.
/// It needs the event loop of its thread.
///
///     RawServer server;
///     server.answer = httpAnswer(200, "{}");
class RawServer : public QObject
{
public:
    RawServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, &RawServer::accept);
    }

    QByteArray address() const
    {
        return "http://127.0.0.1:" + QByteArray::number(m_server.serverPort());
    }

    /// What is sent, whole or, where `interval` is set, byte by byte in that distance (ms).
    QByteArray answer;
    int interval = 0;
    /// Hangs up after the answer.
    bool closes = true;
    /// Sent after the answer, over and over, as fast as it is taken.
    QByteArray refrain;
    qint64 refrainsTaken = 0; ///< bytes
    /// The first line of each request so far.
    QVector<QByteArray> requestLines;
    /// Called for each request before its answer is sent.
    std::function<void()> onRequest = [] {};

    int openConnections() const { return m_openConnections; }

    /// Sends to all who wait for an answer, and hangs up.
    void release(const QByteArray& bytes)
    {
        const QVector<QTcpSocket*> sockets = m_waiting;
        m_waiting.clear();
        for (QTcpSocket* socket : sockets) {
            socket->write(bytes);
            socket->disconnectFromHost();
        }
    }

private:
    void accept()
    {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            ++m_openConnections;
            auto received = std::make_shared<QByteArray>();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, received] {
                received->append(socket->readAll());
                if (!received->contains("\r\n\r\n"))
                    return;
                requestLines.append(received->left(received->indexOf("\r\n")));
                received->clear();
                onRequest();
                send(socket);
            });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                --m_openConnections;
                m_waiting.removeAll(socket);
                socket->deleteLater();
            });
        }
    }

    void send(QTcpSocket* socket)
    {
        if (answer.isEmpty() && !closes) {
            m_waiting.append(socket);
            return;
        }
        if (interval > 0) {
            trickle(socket);
            return;
        }
        socket->write(answer);
        if (!refrain.isEmpty())
            repeat(socket);
        else if (closes)
            socket->disconnectFromHost();
    }

    void repeat(QTcpSocket* socket)
    {
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket](qint64 bytes) {
            refrainsTaken += bytes;
            if (socket->bytesToWrite() == 0)
                socket->write(refrain);
        });
    }

    void trickle(QTcpSocket* socket)
    {
        auto* timer = new QTimer(socket);
        auto sent = std::make_shared<int>(0);
        connect(timer, &QTimer::timeout, socket, [this, socket, sent] {
            if (*sent < answer.size())
                socket->write(answer.mid((*sent)++, 1));
        });
        timer->start(interval);
    }

    QVector<QTcpSocket*> m_waiting;
    int m_openConnections = 0;
    QTcpServer m_server; // The last: closing its connections changes the above.
};

/// An answer with its head. `announced` is the length that the head claims; that of the body when
/// it is negative.
inline QByteArray httpAnswer(int status, const QByteArray& body, int announced = -1,
                             const QByteArray& headers = QByteArray())
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Text\r\n" + headers + "Content-Length: "
        + QByteArray::number(announced < 0 ? body.size() : announced) + "\r\n\r\n" + body;
}
