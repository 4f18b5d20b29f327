// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "service/ServiceEndpoints.h"
#include "service/ServiceFault.h"

#include <QByteArray>
#include <QString>

#include <memory>

struct ServiceOptions
{
    int port = 0; ///< 0 takes a free one
    QString storeFile;
    QByteArray token; ///< the only one that is accepted; any that is not empty, when this is
    ServiceLocation location;
    ServiceFault fault;
};

/// The web service on 127.0.0.1, on threads of its own. It closes each connection after one answer.
///
///     WebServiceServer server(options);
///     if (server.start())
///         SetServerIP(server.address());
///
/// | request | answer |
/// |---|---|
/// | GET /bing/location | where the user is |
/// | GET /bing/fuzzysearch?keyword= | places of the city catalogue |
/// | POST /noflyzone/uploadLift, header "token" | stores an application |
/// | GET /noflyzone/applications | the list of them, a page |
/// | POST /project/upload, header "token" | stores the document of a project |
/// | GET /project/documents | the list of them, a page |
///
/// ServiceEndpoints.h describes them. Requests to a host that is neither 127.0.0.1 nor localhost
/// get 403, so that no page of a browser can reach the lists under a name of its own.
class WebServiceServer
{
public:
    /// Needs an application object.
    explicit WebServiceServer(const ServiceOptions& options);
    /// Stops.
    ~WebServiceServer();
    Q_DISABLE_COPY(WebServiceServer)

    /// Makes the store and listens. False when either fails; the object is of no use then. Once
    /// only.
    bool start();

    /// Ends requests under way, and returns when all threads have ended. Later calls do nothing.
    void stop();

    /// "http://127.0.0.1:40123" from the start on, empty before.
    QByteArray address() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
