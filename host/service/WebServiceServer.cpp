// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/WebServiceServer.h"

#include "service/FaultyAnswer.h"

#include <string>
#include <thread>

namespace {

const char* const loopback = "127.0.0.1";
constexpr size_t largestBody = size_t(256) * 1024 * 1024;
constexpr size_t requestsAtATime = 64; // Stalled ones included.

/// Without the option to share a port, which the library sets: another program's port is taken.
void setSocketOptions(socket_t socket)
{
    const int yes = 1;
#ifdef _WIN32
    setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&yes),
               sizeof yes);
#else
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
#endif
}

httplib::Server::HandlerResponse refuseOtherHosts(const httplib::Request& request,
                                                  httplib::Response& response)
{
    const std::string host = request.get_header_value("Host");
    const std::string name = host.substr(0, host.find(':'));
    if (name == loopback || name == "localhost")
        return httplib::Server::HandlerResponse::Unhandled;
    response.status = 403;
    return httplib::Server::HandlerResponse::Handled;
}

QByteArray tokenOf(const httplib::Request& request)
{
    return QByteArray::fromStdString(request.get_header_value("token"));
}

} // namespace

struct WebServiceServer::Private
{
    using Upload = ServiceReply (ServiceEndpoints::*)(const QByteArray& token,
                                                      const QByteArray& body);
    using Work = std::function<ServiceReply(const httplib::Request& request)>;

    explicit Private(const ServiceOptions& serviceOptions);

    void addRoutes();
    void get(const std::string& path, const Work& work);
    void post(const std::string& path, Upload upload);

    ServiceOptions options;
    ServiceEndpoints endpoints;
    Pause pause;
    httplib::Server server;
    std::thread thread;
    int port = 0;
};

WebServiceServer::Private::Private(const ServiceOptions& serviceOptions)
    : options(serviceOptions)
    , endpoints(options.storeFile, options.token, options.location)
{
    server.new_task_queue = [] {
        return new httplib::ThreadPool(requestsAtATime); // The server frees it.
    };
    server.set_socket_options(setSocketOptions);
    server.set_keep_alive_max_count(1); // An idle connection would hold up the stop.
    server.set_payload_max_length(largestBody);
    server.set_tcp_nodelay(true);
    server.set_pre_routing_handler(refuseOtherHosts);
    addRoutes();
}

void WebServiceServer::Private::addRoutes()
{
    get("/bing/location", [this](const httplib::Request&) { return endpoints.location(); });
    get("/bing/fuzzysearch", [this](const httplib::Request& request) {
        return endpoints.search(QString::fromStdString(request.get_param_value("keyword")));
    });
    get("/noflyzone/applications",
        [this](const httplib::Request&) { return endpoints.applicationsPage(); });
    get("/project/documents",
        [this](const httplib::Request&) { return endpoints.documentsPage(); });
    post("/noflyzone/uploadLift", &ServiceEndpoints::uploadLift);
    post("/project/upload", &ServiceEndpoints::uploadProject);
    server.Get("/", [](const httplib::Request&, httplib::Response& response) {
        response.set_redirect("/noflyzone/applications");
    });
}

void WebServiceServer::Private::get(const std::string& path, const Work& work)
{
    server.Get(path, [this, work](const httplib::Request& request, httplib::Response& response) {
        answer(response, options.fault, pause, [&] { return work(request); });
    });
}

void WebServiceServer::Private::post(const std::string& path, Upload upload)
{
    // A plain handler would refuse forms of more than 8 kB.
    server.Post(path,
                [this, upload](const httplib::Request& request, httplib::Response& response,
                               const httplib::ContentReader& read) {
                    QByteArray body;
                    const bool isWhole = read([&body](const char* data, size_t size) {
                        body.append(data, int(size));
                        return true;
                    });
                    if (!isWhole)
                        return; // The library has set the status.
                    answer(response, options.fault, pause,
                           [&] { return (endpoints.*upload)(tokenOf(request), body); });
                });
}

WebServiceServer::WebServiceServer(const ServiceOptions& options)
    : d(std::make_unique<Private>(options))
{
}

WebServiceServer::~WebServiceServer()
{
    stop();
}

bool WebServiceServer::start()
{
    if (!d->endpoints.prepare())
        return false;
    if (d->options.port == 0)
        d->port = d->server.bind_to_any_port(loopback);
    else if (d->server.bind_to_port(loopback, d->options.port))
        d->port = d->options.port;
    if (d->port <= 0)
        return false;
    d->thread = std::thread([this] { d->server.listen_after_bind(); });
    while (!d->server.is_running()) // Before that a stop would be lost.
        std::this_thread::yield();
    return true;
}

void WebServiceServer::stop()
{
    if (!d->thread.joinable())
        return;
    d->pause.end();
    d->server.stop();
    d->thread.join();
}

QByteArray WebServiceServer::address() const
{
    if (d->port <= 0)
        return {};
    return QByteArrayLiteral("http://127.0.0.1:") + QByteArray::number(d->port);
}
