// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/ServiceEndpoints.h"

#include "service/ServicePages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace {

const char* const bodyPrefix = "data=";

ServiceReply jsonReply(int status, const QJsonObject& object)
{
    return {status, QByteArrayLiteral("application/json; charset=utf-8"),
            QJsonDocument(object).toJson(QJsonDocument::Compact)};
}

ServiceReply success(const QJsonValue& data)
{
    return jsonReply(200, {{QStringLiteral("status"), 1}, {QStringLiteral("data"), data}});
}

ServiceReply refusal(int status, const QString& message)
{
    return jsonReply(status, {{QStringLiteral("status"), 2}, {QStringLiteral("message"), message}});
}

ServiceReply storedReply(int number)
{
    if (number == 0)
        return refusal(500, QStringLiteral("The service cannot store anything."));
    return success(QJsonObject{{QStringLiteral("number"), number}});
}

ServiceReply unknownUser()
{
    return refusal(401, QStringLiteral("The token is not that of a user."));
}

ServiceReply page(const QByteArray& html)
{
    return {200, QByteArrayLiteral("text/html; charset=utf-8"), html};
}

/// The texts of an application; nothing when one is missing.
class Texts
{
public:
    explicit Texts(const QJsonObject& object)
        : m_object(object)
    {
    }

    QString take(const char* key)
    {
        const QJsonValue value = m_object.value(QLatin1String(key));
        m_isComplete = m_isComplete && value.isString();
        return value.toString();
    }

    QByteArray takeBase64(const char* key)
    {
        const auto result = QByteArray::fromBase64Encoding(take(key).toLatin1(),
                                                           QByteArray::AbortOnBase64DecodingErrors);
        m_isComplete = m_isComplete && bool(result);
        return result.decoded;
    }

    bool isComplete() const { return m_isComplete; }

private:
    QJsonObject m_object;
    bool m_isComplete = true;
};

std::optional<LiftApplication> parseApplication(const QByteArray& json)
{
    Texts texts(QJsonDocument::fromJson(json).object());
    LiftApplication application;
    application.fileName = texts.take("filename");
    application.document = texts.takeBase64("data");
    application.area = texts.take("area");
    application.begin = texts.take("beginat");
    application.end = texts.take("expiredat");
    application.localIds = texts.take("localids");
    application.picture = texts.takeBase64("pic");
    application.name = texts.take("name");
    application.contact = texts.take("contact");
    application.company = texts.take("strCompany");
    application.explanation = texts.take("explain");
    if (!texts.isComplete())
        return std::nullopt;
    return application;
}

ProjectDocument describeProject(const QJsonObject& project, const QByteArray& json)
{
    ProjectDocument document;
    document.projectId = project.value(QLatin1String("id")).toString();
    document.projectName = project.value(QLatin1String("project_name")).toString();
    const QJsonArray blocks = project.value(QLatin1String("blocks")).toArray();
    document.blocks = blocks.size();
    for (const QJsonValue& block : blocks)
        document.tasks += block[QLatin1String("tasks")].toArray().size();
    document.points = project.value(QLatin1String("points")).toArray().size();
    document.json = json;
    return document;
}

} // namespace

ServiceEndpoints::ServiceEndpoints(const QString& storeFile, const QByteArray& token,
                                   const ServiceLocation& location)
    : m_store(storeFile)
    , m_token(token)
    , m_location(location)
{
}

bool ServiceEndpoints::prepare()
{
    return m_store.prepare();
}

ServiceReply ServiceEndpoints::location() const
{
    const QJsonArray centre = {m_location.longitude, m_location.latitude};
    return success(QJsonObject{{QStringLiteral("center"), centre}});
}

ServiceReply ServiceEndpoints::search(const QString& keyword) const
{
    QJsonArray found;
    const QVector<Place> places = m_places.find(keyword);
    for (const Place& place : places) {
        const QString location = QString::number(place.longitude, 'f', 4) + QLatin1Char(',')
            + QString::number(place.latitude, 'f', 4);
        found.append(QJsonObject{{QStringLiteral("name"), place.name},
                                 {QStringLiteral("location"), location}});
    }
    return success(found);
}

ServiceReply ServiceEndpoints::uploadLift(const QByteArray& token, const QByteArray& body)
{
    if (!isKnown(token))
        return unknownUser();
    const QByteArray prefix(bodyPrefix);
    const auto application =
        body.startsWith(prefix) ? parseApplication(body.mid(prefix.size())) : std::nullopt;
    if (!application)
        return refusal(400, QStringLiteral("This is no application."));
    return storedReply(m_store.add(*application));
}

ServiceReply ServiceEndpoints::uploadProject(const QByteArray& token, const QByteArray& body)
{
    if (!isKnown(token))
        return unknownUser();
    const QByteArray prefix(bodyPrefix);
    const QByteArray json = body.startsWith(prefix) ? body.mid(prefix.size()) : body;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return refusal(400, QStringLiteral("This is no project."));
    return storedReply(m_store.add(describeProject(document.object(), json)));
}

ServiceReply ServiceEndpoints::applicationsPage()
{
    return page(ServicePages::applications(m_store.applications()));
}

ServiceReply ServiceEndpoints::documentsPage()
{
    return page(ServicePages::documents(m_store.documents()));
}

bool ServiceEndpoints::isKnown(const QByteArray& token) const
{
    return m_token.isEmpty() ? !token.isEmpty() : token == m_token;
}
