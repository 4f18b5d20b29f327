// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleProjects.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace {

QString kindText(SampleKind kind)
{
    switch (kind) {
    case SampleKind::Sound:
        return QStringLiteral("sound");
    case SampleKind::NoThumbnail:
        return QStringLiteral("no thumbnail");
    case SampleKind::DamagedThumbnail:
        return QStringLiteral("damaged thumbnail");
    case SampleKind::OtherUser:
        return QStringLiteral("other user");
    case SampleKind::EmptyFile:
        return QStringLiteral("empty file");
    case SampleKind::NotADatabase:
        return QStringLiteral("not a database");
    }
    return {};
}

int list(const SampleOptions& options, QTextStream& out)
{
    const QVector<SampleProject> projects = planSampleProjects(options);
    for (const SampleProject& project : projects)
        out << kindText(project.kind) << '\t' << project.userId << '\t' << project.city << '\t'
            << project.name << '\n';
    return projects.size() == options.count ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes sample survey projects."));
    parser.addHelpOption();
    const QCommandLineOption outOption(QStringLiteral("out"), QStringLiteral("Folder to write to."),
                                       QStringLiteral("DIR"));
    const QCommandLineOption countOption(QStringLiteral("count"), QStringLiteral("Files to write."),
                                         QStringLiteral("N"), QStringLiteral("24"));
    const QCommandLineOption seedOption(QStringLiteral("seed"),
                                        QStringLiteral("The same gives the same."),
                                        QStringLiteral("S"), QStringLiteral("1"));
    const QCommandLineOption listOption(
        QStringLiteral("list"), QStringLiteral("Print kind, user, city and name; write nothing."));
    parser.addOptions({outOption, countOption, seedOption, listOption});
    parser.process(application);

    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    bool isCount = false;
    bool isSeed = false;
    SampleOptions options;
    options.root = parser.value(outOption);
    options.userId = sampleUserId();
    options.count = parser.value(countOption).toInt(&isCount);
    options.seed = parser.value(seedOption).toUInt(&isSeed);
    options.now = QDateTime::currentDateTime();
    if (!isCount || options.count < 0 || !isSeed
        || (options.root.isEmpty() && !parser.isSet(listOption))) {
        err << parser.helpText();
        return 2;
    }
    if (parser.isSet(listOption))
        return list(options, out);
    const QStringList files = writeSampleProjects(options);
    if (files.size() != options.count) {
        err << "Cannot write to " << options.root << ", or the city catalogue is missing.\n";
        return 1;
    }
    out << files.size() << " sample projects in " << options.root << '\n';
    return 0;
}
