// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/WebServiceServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

namespace {

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "The web service of the survey application, on 127.0.0.1. Prints its address "
        "and serves until its input ends."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("store"), QStringLiteral("SQLite file for what is uploaded."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("port"), QStringLiteral("Port; a free one unless given."),
                      QStringLiteral("N"), QStringLiteral("0")});
    parser.addOption({QStringLiteral("token"),
                      QStringLiteral("The only token that may upload; any unless given."),
                      QStringLiteral("TEXT")});
    parser.addOption({QStringLiteral("location"), QStringLiteral("Where the user is."),
                      QStringLiteral("LAT,LNG"), QStringLiteral("39.91,116.40")});
    parser.addOption(
        {QStringLiteral("fault"),
         QStringLiteral("Go wrong with every request: delay[:MS], stall[:MS], cut, 500, "
                        "401, garbage or trickle[:MS]."),
         QStringLiteral("FAULT")});
}

/// Reads the command line into `options`. False when it makes no sense.
bool readOptions(const QCommandLineParser& parser, ServiceOptions& options)
{
    bool isPort = false;
    options.port = parser.value(QStringLiteral("port")).toInt(&isPort);
    options.storeFile = parser.value(QStringLiteral("store"));
    options.token = parser.value(QStringLiteral("token")).toUtf8();

    const QString location = parser.value(QStringLiteral("location"));
    bool isLatitude = false;
    bool isLongitude = false;
    options.location.latitude = location.section(QLatin1Char(','), 0, 0).toDouble(&isLatitude);
    options.location.longitude = location.section(QLatin1Char(','), 1).toDouble(&isLongitude);

    bool isFault = true;
    if (parser.isSet(QStringLiteral("fault"))) {
        const auto fault = parseServiceFault(parser.value(QStringLiteral("fault")));
        isFault = fault.has_value();
        options.fault = fault.value_or(ServiceFault());
    }
    return isPort && options.port >= 0 && options.port <= 65535 && !options.storeFile.isEmpty()
        && isLatitude && isLongitude && isFault && parser.positionalArguments().isEmpty();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    ServiceOptions options;
    if (!readOptions(parser, options)) {
        QTextStream(stderr) << parser.helpText();
        return 2;
    }
    WebServiceServer server(options);
    if (!server.start()) {
        QTextStream(stderr) << "Cannot write to " << options.storeFile << " or listen on port "
                            << options.port << ".\n";
        return 1;
    }
    QTextStream(stdout) << server.address() << Qt::endl;
    // Whoever started the service holds the other end, which closes however that program ends.
    while (std::getchar() != EOF)
        continue;
    return 0;
}
