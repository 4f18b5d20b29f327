// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/FaultyAnswer.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>

namespace {

void send(httplib::Response& response, const ServiceReply& reply)
{
    response.status = reply.status;
    response.set_content(reply.body.toStdString(), reply.type.toStdString());
}

/// Sends half of the body that it announces, then closes the connection.
void sendHalf(httplib::Response& response, const ServiceReply& reply)
{
    const auto body = std::make_shared<std::string>(reply.body.toStdString());
    response.status = reply.status;
    response.set_content_provider(
        body->size(), reply.type.toStdString(),
        [body](size_t /*offset*/, size_t /*length*/, httplib::DataSink& sink) {
            sink.write(body->data(), body->size() / 2);
            return false;
        });
}

void sendByteByByte(httplib::Response& response, const ServiceReply& reply, int milliseconds,
                    Pause& pause)
{
    const auto body = std::make_shared<std::string>(reply.body.toStdString());
    response.status = reply.status;
    response.set_content_provider(
        body->size(), reply.type.toStdString(),
        [body, milliseconds, &pause](size_t offset, size_t /*length*/, httplib::DataSink& sink) {
            return sink.is_writable() && sink.write(body->data() + offset, 1)
                && pause.wait(milliseconds);
        });
}

} // namespace

bool Pause::wait(int milliseconds)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return !m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                               [this] { return m_isEnded; });
}

void Pause::end()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isEnded = true;
    m_changed.notify_all();
}

void answer(httplib::Response& response, const ServiceFault& fault, Pause& pause,
            const std::function<ServiceReply()>& work)
{
    const QByteArray plain = QByteArrayLiteral("text/plain");
    switch (fault.kind) {
    case ServiceFault::None:
        send(response, work());
        break;
    case ServiceFault::Delay:
        pause.wait(fault.milliseconds);
        send(response, work());
        break;
    case ServiceFault::Stall:
        pause.wait(fault.milliseconds);
        send(response, {503, plain, QByteArrayLiteral("stalled")});
        break;
    case ServiceFault::Cut:
        sendHalf(response, work());
        break;
    case ServiceFault::ServerError:
        send(response, {500, plain, QByteArrayLiteral("broken")});
        break;
    case ServiceFault::Unauthorized:
        send(response, {401, plain, QByteArrayLiteral("who are you")});
        break;
    case ServiceFault::Garbage:
        work();
        send(response, {200, plain, QByteArrayLiteral("\x00\xff{\"status\": \x01]")});
        break;
    case ServiceFault::Trickle:
        sendByteByByte(response, work(), fault.milliseconds, pause);
        break;
    }
}
