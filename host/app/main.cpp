// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryWindows.h"
#include "app/HostSettings.h"
#include "app/HostWindow.h"
#include "app/PrivateSettings.h"
#include "samples/SampleProjects.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFont>
#include <QLocale>
#include <QScreen>
#include <QStyle>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

const char* const scaleVariable = "QT_SCALE_FACTOR";

struct Options
{
    QString projects;
    QString settings;
    QString userId;
    QString gallery;
    QString language;
};

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral("Plans and manages aerial surveys."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("projects"), QStringLiteral("Folder of the projects."),
                      QStringLiteral("DIR")});
    parser.addOption({QStringLiteral("settings"),
                      QStringLiteral("Folder of the settings, instead of the person's own."),
                      QStringLiteral("DIR")});
    parser.addOption({QStringLiteral("user"),
                      QStringLiteral("Show the projects of this user from now on."),
                      QStringLiteral("ID")});
    parser.addOption(
        {QStringLiteral("gallery"),
         QStringLiteral("Write a picture of every window into a folder and exit. Sample projects "
                        "and settings of its own are used."),
         QStringLiteral("DIR")});
    parser.addOption({QStringLiteral("scale"),
                      QStringLiteral("Scale of the user interface, 0.5 to 4."),
                      QStringLiteral("FACTOR")});
    parser.addOption({QStringLiteral("lang"),
                      QStringLiteral("zh_CN or en; that of the system unless given."),
                      QStringLiteral("LANGUAGE")});
}

QStringList argumentList(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

/// Chinese in the Chinese forms of the characters, whatever the system's language is.
QFont applicationFont()
{
    QFont font = QApplication::font();
    font.setFamilies(
        {font.family(), QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Microsoft YaHei")});
    return font;
}

QString systemLanguage()
{
    return QLocale::system().language() == QLocale::Chinese ? QStringLiteral("zh_CN")
                                                            : QStringLiteral("en");
}

int runGallery(const Options& options)
{
    QTextStream out(stdout);
    QTextStream errors(stderr);
    out.setCodec("UTF-8");
    errors.setCodec("UTF-8");
    const QTemporaryDir home;
    const PrivateSettings settings(home.path());
    if (!settings.isValid() || !home.isValid()) {
        errors << "This system has no place for settings of the gallery's own." << Qt::endl;
        return 1;
    }
    HostSettings::setCurrentUser(sampleUserId());
    SampleOptions samples;
    samples.root = home.filePath(QStringLiteral("projects"));
    samples.userId = sampleUserId();
    samples.now = QDateTime(QDate(2026, 6, 15), QTime(10, 0)); // The same pictures on every day.
    HostSettings::setProjectRoot(samples.root);
    if (writeSampleProjects(samples).isEmpty()) {
        errors << "Cannot write sample projects." << Qt::endl;
        return 1;
    }
    QApplication::setCursorFlashTime(0);
    return Gallery::render(galleryWindows(), options.gallery, options.language, out, errors) ? 0
                                                                                             : 1;
}

/// In the middle of the screen, and told so to the window manager: the first dialog stands over the
/// window before a place of the manager's choice would be known.
void placeOnScreen(HostWindow& window)
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                           window.size().boundedTo(available.size()), available));
}

int runWindow(const Options& options)
{
    if (!options.settings.isEmpty()) {
        if (!HostSettings::canUseFolder()) {
            QTextStream(stderr) << "This system does not keep settings in a folder." << Qt::endl;
            return 1;
        }
        HostSettings::useFolder(QDir(options.settings).absolutePath());
    }
    if (!options.projects.isEmpty())
        HostSettings::setProjectRoot(options.projects);
    QString userId = options.userId.isEmpty() ? HostSettings::currentUser() : options.userId;
    if (userId.isEmpty())
        userId = sampleUserId();
    HostSettings::setCurrentUser(userId); // The last run's too: he is not logged in yet.
    HostWindow window;
    placeOnScreen(window);
    window.show();
    window.openProjects();
    return QApplication::exec();
}

/// What is wrong with the command line; empty when nothing is. Puts the scale where the application
/// will look for it.
QString complaint(QCommandLineParser& parser, const QStringList& arguments)
{
    if (!parser.parse(arguments))
        return parser.errorText();
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("Unknown argument \"%1\".")
            .arg(parser.positionalArguments().constFirst());
    const QString language = parser.value(QStringLiteral("lang"));
    if (parser.isSet(QStringLiteral("lang")) && language != QLatin1String("zh_CN")
        && language != QLatin1String("en"))
        return QStringLiteral("Unknown language \"%1\".").arg(language);
    if (!parser.isSet(QStringLiteral("scale")))
        return {};
    const QString text = parser.value(QStringLiteral("scale"));
    const double scale = text.toDouble(); // 0 when it is no number.
    if (!(scale >= 0.5 && scale <= 4))
        return QStringLiteral("No scale from 0.5 to 4: \"%1\".").arg(text);
    qputenv(scaleVariable, QByteArray::number(scale));
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QCommandLineParser parser;
    addOptions(parser);
    const QString wrong = complaint(parser, argumentList(argc, argv));
    if (!wrong.isEmpty() || parser.isSet(QStringLiteral("help"))
        || parser.isSet(QStringLiteral("help-all"))) {
        const QCoreApplication application(argc, argv); // Help needs no display.
        if (wrong.isEmpty())
            QTextStream(stdout) << parser.helpText();
        else
            QTextStream(stderr) << wrong << "\n\n" << parser.helpText();
        return wrong.isEmpty() ? 0 : 2;
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);

    Options options;
    options.projects = parser.value(QStringLiteral("projects"));
    options.settings = parser.value(QStringLiteral("settings"));
    options.userId = parser.value(QStringLiteral("user"));
    options.gallery = parser.value(QStringLiteral("gallery"));
    options.language = parser.isSet(QStringLiteral("lang")) ? parser.value(QStringLiteral("lang"))
                                                            : systemLanguage();
    QApplication::setFont(applicationFont());
    HostSettings::installLanguage(options.language);
    return options.gallery.isEmpty() ? runWindow(options) : runGallery(options);
}
