// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "service/ServiceEndpoints.h"
#include "service/ServiceFault.h"

#include <httplib.h>

#include <condition_variable>
#include <functional>
#include <mutex>

/// A wait that can be ended for good, for all threads at once.
class Pause
{
public:
    /// Waits; false when the pause has been ended.
    bool wait(int milliseconds);
    void end();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isEnded = false;
};

/// Does the work of a request and puts its reply into the answer, with the fault on the way.
/// `pause` lives until the answer has been sent.
void answer(httplib::Response& response, const ServiceFault& fault, Pause& pause,
            const std::function<ServiceReply()>& work);
