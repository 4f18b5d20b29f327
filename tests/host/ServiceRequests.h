// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QTcpSocket>
#include <QUrl>

/// An HTTP answer, byte for byte.
struct Answer
{
    int status = 0; ///< 0 without an answer
    QByteArray head;
    QByteArray body;
};

inline Answer answerOf(const QByteArray& bytes)
{
    Answer answer;
    const int headEnd = bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return answer;
    answer.head = bytes.left(headEnd);
    answer.body = bytes.mid(headEnd + 4);
    answer.status = answer.head.split(' ').value(1).toInt();
    return answer;
}

/// Sends a request to a server at "http://host:port" and waits until it hangs up. The server must
/// not need the event loop of this thread.
inline Answer ask(const QByteArray& address, const QByteArray& request)
{
    const QUrl url(QString::fromUtf8(address));
    QTcpSocket socket;
    socket.connectToHost(url.host(), quint16(url.port()));
    socket.write(request);
    while (socket.waitForReadyRead(10000))
        continue;
    return answerOf(socket.readAll());
}

inline Answer get(const QByteArray& address, const QByteArray& path)
{
    return ask(address, "GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
}

inline Answer post(const QByteArray& address, const QByteArray& path, const QByteArray& token,
                   const QByteArray& body)
{
    return ask(address,
               "POST " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\ntoken: " + token
                   + "\r\nContent-Type: application/x-www-form-urlencoded\r\nContent-Length: "
                   + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

/// The JSON of a sound application, whose document holds "text".
inline QByteArray applicationJson(const QByteArray& name = "Wang")
{
    return R"({"filename":"permit.pdf","data":"dGV4dA==","area":"104,30.5,N/A|105,30.6,N/A",)"
           R"("beginat":"2026-05-01 08:00:00","expiredat":"2026-05-02 18:00:00",)"
           R"("localids":"a,b","pic":"","contact":"13800000000","strCompany":"Survey & Co",)"
           R"("explain":"100% + \"urgent\"","name":")"
        + name + "\"}";
}
