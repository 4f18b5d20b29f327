// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QVector>

#include <memory>

/// A web service on 127.0.0.1 that takes posts and gives each the same answer. It needs the event
/// loop of its thread.
///
///     PostServer server;
///     SetServerIP(server.address());
class PostServer : public QObject
{
public:
    enum Behaviour { Answers, KeepsSilent, HangsUp, StopsReading };

    struct Request
    {
        QByteArray head; ///< request line and headers
        QByteArray body;
    };

    PostServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, &PostServer::accept);
    }

    QByteArray address() const
    {
        return "http://127.0.0.1:" + QByteArray::number(m_server.serverPort());
    }

    QByteArray url(const QByteArray& path = "/upload") const { return address() + path; }

    Behaviour behaviour = Answers;
    QByteArray answer = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok";
    QVector<Request> requests;
    int connections = 0;

    /// Connections that nobody has closed. Not for one who stops reading, who hears of no end.
    int openConnections() const { return m_server.findChildren<QTcpSocket*>().size(); }

private:
    void accept()
    {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            ++connections;
            if (behaviour == StopsReading) {
                socket->setReadBufferSize(1);
                continue;
            }
            auto received = std::make_shared<QByteArray>();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, received] {
                received->append(socket->readAll());
                takeRequest(socket, *received);
            });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    }

    void takeRequest(QTcpSocket* socket, QByteArray& received)
    {
        const int headEnd = received.indexOf("\r\n\r\n");
        if (headEnd < 0)
            return;
        const QByteArray head = received.left(headEnd);
        const int lengthAt = head.toLower().indexOf("content-length: ");
        const int length = lengthAt < 0 ? 0 : head.mid(lengthAt + 16).split('\r').first().toInt();
        if (received.size() < headEnd + 4 + length)
            return;
        requests.append({head, received.mid(headEnd + 4, length)});
        received.remove(0, headEnd + 4 + length);
        if (behaviour == Answers)
            socket->write(answer);
        else if (behaviour == HangsUp)
            socket->disconnectFromHost();
    }

    QTcpServer m_server;
};
