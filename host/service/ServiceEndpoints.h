// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "service/PlaceSearch.h"
#include "service/ServiceStore.h"

/// Where the service says that everybody is, in degrees.
struct ServiceLocation
{
    double latitude = 39.91;
    double longitude = 116.40;
};

/// An answer of the web service.
struct ServiceReply
{
    int status = 200;
    QByteArray type;
    QByteArray body;
};

/// What the web service knows and does, apart from HTTP. May be called from any thread.
///
/// JSON answers carry "status": 1 with "data", or 2 with a "message" why there is none.
class ServiceEndpoints
{
public:
    /// `token` is what users must send; when it is empty, any that is not empty will do.
    ServiceEndpoints(const QString& storeFile, const QByteArray& token,
                     const ServiceLocation& location);

    /// Makes the store. False when that fails.
    bool prepare();

    /// "data": {"center": [longitude, latitude]}
    ServiceReply location() const;

    /// "data": [{"name": ..., "location": "longitude,latitude"}]
    ServiceReply search(const QString& keyword) const;

    /// Stores an application, "data=" and its JSON. 401 for a wrong token, 400 for anything that is
    /// no application.
    ServiceReply uploadLift(const QByteArray& token, const QByteArray& body);

    /// Stores the upload document of a project, with or without "data=" before it. 401 for a wrong
    /// token, 400 for anything that is no JSON object.
    ServiceReply uploadProject(const QByteArray& token, const QByteArray& body);

    /// The list of all applications as a page.
    ServiceReply applicationsPage();
    /// The list of all uploaded projects as a page.
    ServiceReply documentsPage();

private:
    bool isKnown(const QByteArray& token) const;

    PlaceSearch m_places;
    ServiceStore m_store;
    QByteArray m_token;
    ServiceLocation m_location;
};
