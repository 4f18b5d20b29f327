// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/Gallery.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QSet>
#include <QTest>
#include <QTextStream>
#include <QWidget>

namespace {

/// An image of that many grey pixels, each of another shade.
QImage shades(int count)
{
    QImage image(count, 2, QImage::Format_RGB32);
    for (int x = 0; x < count; ++x) {
        for (int y = 0; y < 2; ++y)
            image.setPixel(x, y, qRgb(x, x, x));
    }
    return image;
}

std::unique_ptr<QWidget> emptyWindow()
{
    auto window = std::make_unique<QWidget>();
    window->resize(120, 80);
    return window;
}

std::unique_ptr<QWidget> labelWindow()
{
    // Letters have too few colours where they are not smoothed.
    auto label = std::make_unique<QLabel>();
    label->setPixmap(QPixmap::fromImage(shades(2 * Gallery::fewestColours)));
    return label;
}

struct Run
{
    int exitCode = -1;
    QStringList files;
    QString errors;
};

/// The host with a home of its own.
Run runHost(const QStringList& arguments, const QString& home)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/config"));
    environment.insert(QStringLiteral("RK_PROJECT_DIR"), home + QStringLiteral("/own-projects"));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(RK_SURVEY_HOST), arguments);
    Run run;
    if (!program.waitForFinished(240'000) || program.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = program.exitCode();
    run.files = QString::fromUtf8(program.readAllStandardOutput())
                    .remove(QLatin1Char('\r'))
                    .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    run.errors = QString::fromUtf8(program.readAllStandardError());
    return run;
}

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private slots:
    void blankness_data();
    void blankness();
    void blankWindowFails();
    void shownWindowPasses();
    void windowIsPreparedWhileItIsActive();
    void folderThatCannotBeMade();
    void programShowsEveryWindow_data();
    void programShowsEveryWindow();
    void languagesDiffer();
    void twiceTheScaleIsTwiceThePixels();
    void programRefusesBadOptions_data();
    void programRefusesBadOptions();
    void helpNamesTheOptions();

private:
    const Run& gallery(const QString& language, int scale);
    QString file(const QString& name, const QString& language, int scale) const;

    TestHome m_home;
    QMap<QString, Run> m_runs; ///< By language and scale, so that each picture is made once.
};

const Run& tst_Gallery::gallery(const QString& language, int scale)
{
    const QString key = language + QString::number(scale);
    if (!m_runs.contains(key)) {
        m_runs[key] = runHost({QStringLiteral("--gallery"),
                               m_home.path() + QStringLiteral("/gallery"), QStringLiteral("--lang"),
                               language, QStringLiteral("--scale"), QString::number(scale)},
                              m_home.path());
    }
    return m_runs[key];
}

QString tst_Gallery::file(const QString& name, const QString& language, int scale) const
{
    return QStringLiteral("%1/gallery/%2_%3_%4x.png").arg(m_home.path(), name, language).arg(scale);
}

void tst_Gallery::blankness_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<bool>("expected");
    QImage noise(50, 50, QImage::Format_RGB32);
    noise.fill(Qt::blue);
    QTest::newRow("no pixels") << QImage() << true;
    QTest::newRow("one colour") << noise << true;
    noise.setPixel(25, 25, qRgb(255, 0, 0));
    QTest::newRow("one spot") << noise << true;
    QTest::newRow("a colour too few") << shades(Gallery::fewestColours - 1) << true;
    QTest::newRow("just enough") << shades(Gallery::fewestColours) << false;
}

void tst_Gallery::blankness()
{
    QFETCH(QImage, image);
    QFETCH(bool, expected);
    QCOMPARE(Gallery::isBlank(image), expected);
}

void tst_Gallery::blankWindowFails()
{
    QString out;
    QString errors;
    QTextStream outStream(&out);
    QTextStream errorStream(&errors);
    const QString folder = m_home.path() + QStringLiteral("/blank");
    const QVector<Gallery::Entry> entries = {{QStringLiteral("label"), labelWindow, {}},
                                             {QStringLiteral("empty"), emptyWindow, {}},
                                             {QStringLiteral("label2"), labelWindow, {}}};
    QVERIFY(!Gallery::render(entries, folder, QStringLiteral("en"), outStream, errorStream));
    QCOMPARE(errors, QStringLiteral("Blank: %1/empty_en_1x.png\n").arg(folder));
    QVERIFY2(QFileInfo::exists(folder + QStringLiteral("/label2_en_1x.png")),
             "the others are written as well");
}

void tst_Gallery::shownWindowPasses()
{
    QString out;
    QString errors;
    QTextStream outStream(&out);
    QTextStream errorStream(&errors);
    const QString folder = m_home.path() + QStringLiteral("/deep/folder");
    QVERIFY(Gallery::render({{QStringLiteral("label"), labelWindow, {}}}, folder,
                            QStringLiteral("en"), outStream, errorStream));
    QCOMPARE(out, QStringLiteral("%1/label_en_1x.png\n").arg(folder));
    QVERIFY(errors.isEmpty());
    QVERIFY(!QImage(out.trimmed()).isNull());
}

void tst_Gallery::windowIsPreparedWhileItIsActive()
{
    QString text;
    QTextStream stream(&text);
    bool wasActive = false;
    const auto prepare = [&](QWidget& window) {
        wasActive = window.isVisible() && window.isActiveWindow();
        static_cast<QLabel&>(window).setPixmap(
            QPixmap::fromImage(shades(2 * Gallery::fewestColours).mirrored(true, false)));
    };
    const QString folder = m_home.path() + QStringLiteral("/prepared");
    QVERIFY(Gallery::render({{QStringLiteral("before"), labelWindow, {}},
                             {QStringLiteral("after"), labelWindow, prepare}},
                            folder, QStringLiteral("en"), stream, stream));
    QVERIFY(wasActive);
    QVERIFY(readFile(folder + QStringLiteral("/before_en_1x.png"))
            != readFile(folder + QStringLiteral("/after_en_1x.png")));
}

void tst_Gallery::folderThatCannotBeMade()
{
    QString text;
    QTextStream stream(&text);
    QVERIFY(writeFile(m_home.path() + QStringLiteral("/file"), "x"));
    QVERIFY(!Gallery::render({{QStringLiteral("label"), labelWindow, {}}},
                             m_home.path() + QStringLiteral("/file/below"), QStringLiteral("en"),
                             stream, stream));
}

void tst_Gallery::programShowsEveryWindow_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("scale");
    QTest::newRow("English") << QStringLiteral("en") << 1;
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << 1;
    QTest::newRow("English, twice the scale") << QStringLiteral("en") << 2;
}

void tst_Gallery::programShowsEveryWindow()
{
    QFETCH(QString, language);
    QFETCH(int, scale);
    const Run& run = gallery(language, scale);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    for (const char* name : {"view-tiles",
                             "view-selected",
                             "view-editing",
                             "view-keyword",
                             "view-city",
                             "host",
                             "host-province",
                             "host-country",
                             "host-empty",
                             "map-search",
                             "map-search-none",
                             "map-search-no-service",
                             "map-place",
                             "map-located",
                             "map-outline-drawing",
                             "map-outline-convex",
                             "map-outline-bent",
                             "map-outline-crossing",
                             "map-outline-segmented",
                             "host-tools",
                             "host-height",
                             "host-coordinates",
                             "terrain",
                             "terrain-grid",
                             "terrain-grid-turned",
                             "terrain-volumes",
                             "scene",
                             "scene-morning",
                             "scene-evening",
                             "projects",
                             "projects-selected",
                             "projects-searched",
                             "projects-blocks",
                             "city-provinces",
                             "city-cities",
                             "city-searched-twice",
                             "city-jump-province",
                             "city-jump-city",
                             "date-picker",
                             "date-picker-from",
                             "date-picker-to",
                             "filter-bar",
                             "filter-bar-city",
                             "filter-bar-date",
                             "block-page",
                             "block-page-searched",
                             "block-page-sorted",
                             "block-page-disabled",
                             "block-page-empty",
                             "base-dialog",
                             "base-dialog-ok-hover",
                             "base-widget",
                             "height-filled",
                             "height-refused",
                             "coordinates-filled",
                             "coordinates-refused",
                             "earthwork-empty",
                             "earthwork-custom",
                             "earthwork-computed",
                             "nofly",
                             "nofly-empty",
                             "nofly-no-document",
                             "nofly-no-name",
                             "nofly-no-duration",
                             "nofly-upload-start",
                             "nofly-upload",
                             "nofly-upload-failed",
                             "nofly-upload-retry",
                             "nofly-upload-no-login",
                             "nofly-upload-finished",
                             "host-lift",
                             "host-upload",
                             "upload-ready",
                             "upload-tree",
                             "upload-empty",
                             "upload-running",
                             "upload-done",
                             "upload-failed",
                             "upload-no-login",
                             "system",
                             "system-copied",
                             "system-not-found",
                             "host-system"})
        QVERIFY2(run.files.contains(file(QLatin1String(name), language, scale)), name);
    QSet<QByteArray> contents;
    for (const QString& path : run.files) {
        const QImage image(path);
        QVERIFY2(!image.isNull(), qPrintable(path));
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        }
        QVERIFY2(colours.size() >= Gallery::fewestColours, qPrintable(path));
        contents.insert(readFile(path));
    }
    QCOMPARE(contents.size(), run.files.size()); // Every state looks different.
    QVERIFY2(!QDir(m_home.path() + QStringLiteral("/config")).exists(),
             "the person's settings are left alone");
    QVERIFY2(!QDir(m_home.path() + QStringLiteral("/own-projects")).exists(),
             "and the projects too");
}

void tst_Gallery::languagesDiffer()
{
    QCOMPARE(gallery(QStringLiteral("en"), 1).exitCode, 0);
    QCOMPARE(gallery(QStringLiteral("zh_CN"), 1).exitCode, 0);
    for (const char* name : {"host", "terrain-volumes", "scene", "base-dialog", "base-widget"}) {
        QVERIFY2(QImage(file(QLatin1String(name), QStringLiteral("en"), 1))
                     != QImage(file(QLatin1String(name), QStringLiteral("zh_CN"), 1)),
                 name);
    }
}

void tst_Gallery::twiceTheScaleIsTwiceThePixels()
{
    QCOMPARE(gallery(QStringLiteral("en"), 1).exitCode, 0);
    QCOMPARE(gallery(QStringLiteral("en"), 2).exitCode, 0);
    for (const char* name : {"view-tiles", "host", "base-dialog"}) {
        const QImage once(file(QLatin1String(name), QStringLiteral("en"), 1));
        const QImage twice(file(QLatin1String(name), QStringLiteral("en"), 2));
        QVERIFY(!once.isNull());
        QCOMPARE(twice.size(), once.size() * 2);
    }
}

void tst_Gallery::programRefusesBadOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("scale is no number") << QStringList{"--scale", "big"} << "\"big\"";
    QTest::newRow("scale of nothing") << QStringList{"--scale", "0"} << "\"0\"";
    QTest::newRow("scale too large") << QStringList{"--scale", "9"} << "\"9\"";
    QTest::newRow("unknown option") << QStringList{"--nothing"} << "nothing";
    QTest::newRow("unknown language") << QStringList{"--lang", "xx"} << "\"xx\"";
    QTest::newRow("stray word") << QStringList{"word"} << "\"word\"";
}

void tst_Gallery::programRefusesBadOptions()
{
    QFETCH(QStringList, arguments);
    const QString folder = m_home.path() + QStringLiteral("/refused");
    const Run run =
        runHost(arguments + QStringList{QStringLiteral("--gallery"), folder}, m_home.path());
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.errors.contains(QLatin1String("--gallery")));
    QFETCH(QString, named);
    QVERIFY2(run.errors.contains(named), qPrintable(run.errors));
    QVERIFY(!QFileInfo::exists(folder));
}

void tst_Gallery::helpNamesTheOptions()
{
    const Run run = runHost({QStringLiteral("--help")}, m_home.path());
    QCOMPARE(run.exitCode, 0);
    const QString help = run.files.join(QLatin1Char('\n'));
    for (const char* option :
         {"--projects", "--settings", "--user", "--gallery", "--scale", "--lang"})
        QVERIFY2(help.contains(QLatin1String(option)), option);
}

QTEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
