// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The light dialog on machines that lack a display, OpenGL or freeglut's part of it. Each row is a
// process of its own, because all of these are found out once in a process.

#include "support/TestSupport.h"

#include <QImage>
#include <QProcess>
#include <QTest>

#include <cstdlib>
#include <functional>

namespace {

/// How the direction is shown.
enum class Look { OpenGL, Drawn };

int count(const QImage& image, const std::function<bool(const QColor&)>& matches)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += matches(image.pixelColor(x, y)) ? 1 : 0;
    }
    return found;
}

int count(const QImage& image, const QColor& color)
{
    return count(image, [color](const QColor& pixel) { return pixel == color; });
}

} // namespace

Q_DECLARE_METATYPE(Look)

class tst_LightWithoutOpenGL : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void directionIsShown_data();
    void directionIsShown();
    void solidsAreThoseOfFreeglut();
    void memoryThatIsOutEndsTheProcess();
    void memoryIsNotAskedForWithFreeglut();

private:
    struct Run
    {
        bool isNormalExit = false;
        int exitCode = -1;
        QByteArray output;
        QByteArray errors;
    };
    static Run probe(const QStringList& arguments, const QStringList& environment);
    static void compareLook(const QString& file, Look look);

    TestHome m_home;
    QProcess m_server;
    QByteArray m_serverDisplay; ///< Of an X server without GLX.
};

void tst_LightWithoutOpenGL::initTestCase()
{
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("800x700x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp"), QStringLiteral("-extension"), QStringLiteral("GLX")});
    QTRY_VERIFY(m_server.canReadLine());
    m_serverDisplay = ':' + m_server.readLine().trimmed();
}

void tst_LightWithoutOpenGL::cleanupTestCase()
{
    m_server.terminate();
    QVERIFY(m_server.waitForFinished());
}

/// Runs the probe with variables of the form "NAME=value", or "NAME" for one that is taken away.
tst_LightWithoutOpenGL::Run tst_LightWithoutOpenGL::probe(const QStringList& arguments,
                                                          const QStringList& environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.remove(QStringLiteral("QT_XCB_GL_INTEGRATION"));
    for (const QString& variable : environment) {
        const int at = variable.indexOf(QLatin1Char('='));
        if (at < 0)
            variables.remove(variable);
        else
            variables.insert(variable.left(at), variable.mid(at + 1));
    }
    QProcess process;
    process.setProcessEnvironment(variables);
    process.start(QStringLiteral(RK_LIGHT_PROBE), arguments);
    if (!process.waitForFinished(60'000))
        return {};
    return {process.exitStatus() == QProcess::NormalExit, process.exitCode(),
            process.readAllStandardOutput(), process.readAllStandardError()};
}

/// The red marker, and a filled sphere in the middle, of one colour only where it is drawn.
void tst_LightWithoutOpenGL::compareLook(const QString& file, Look look)
{
    const QImage view(file);
    QVERIFY2(count(view, QColor(51, 51, 51)) > 5000, qPrintable(file));
    const int red = count(view, [](const QColor& color) {
        return color.red() > 90 && color.green() < 20 && color.blue() < 20;
    });
    QVERIFY2(red > 20 && red < 400, qPrintable(QString::number(red)));
    const int core =
        count(view, [](const QColor& color) { return color.blue() > 200 && color.red() < 250; });
    QVERIFY2(core > 300 && core < 2000, qPrintable(QString::number(core)));
    const int flat = count(view, QColor(200, 191, 255));
    QVERIFY2((look == Look::Drawn) == (flat > core * 3 / 4), qPrintable(QString::number(flat)));
}

void tst_LightWithoutOpenGL::directionIsShown_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<bool>("hasScreen");
    QTest::addColumn<Look>("look");
    const QStringList none;
    const QString noDriver = QStringLiteral("LIBGL_DRIVERS_PATH=/nonexistent");
    const QString withoutGlx = QStringLiteral("DISPLAY=") + QString::fromLatin1(m_serverDisplay);
    const QString offscreen = QStringLiteral("QT_QPA_PLATFORM=offscreen");
    const QString minimal = QStringLiteral("QT_QPA_PLATFORM=minimal");
    const QString noDisplay = QStringLiteral("DISPLAY");

    QTest::newRow("everything there") << none << none << true << Look::OpenGL;
    QTest::newRow("software OpenGL")
        << none << QStringList("LIBGL_ALWAYS_SOFTWARE=1") << true << Look::OpenGL;
    QTest::newRow("no second connection to the display")
        << QStringList("--display-lost") << none << true << Look::OpenGL;
    QTest::newRow("OpenGL through EGL")
        << none << QStringList("QT_XCB_GL_INTEGRATION=xcb_egl") << true << Look::OpenGL;
    QTest::newRow("core profile by default")
        << QStringList("--core-profile") << none << true << Look::OpenGL;
    QTest::newRow("display without GLX") << none << QStringList(withoutGlx) << true << Look::OpenGL;
    QTest::newRow("no OpenGL in the toolkit")
        << none << QStringList("QT_XCB_GL_INTEGRATION=none") << true << Look::Drawn;
    QTest::newRow("no OpenGL but that for embedded systems")
        << QStringList("--embedded") << none << true << Look::Drawn;
    QTest::newRow("no OpenGL with buffers for frames")
        << QStringList("--no-framebuffers") << none << true << Look::Drawn;
    QTest::newRow("no driver") << none << QStringList(noDriver) << true << Look::Drawn;
    QTest::newRow("no driver, display without GLX")
        << none << QStringList({noDriver, withoutGlx}) << true << Look::Drawn;
    QTest::newRow("no display") << none << QStringList({offscreen, noDisplay}) << false
                                << Look::Drawn;
    QTest::newRow("no display that answers")
        << none << QStringList({offscreen, QStringLiteral("DISPLAY=:9999")}) << false
        << Look::Drawn;
    QTest::newRow("no fonts, no display")
        << none << QStringList({minimal, noDisplay}) << false << Look::Drawn;
    QTest::newRow("window that is not shown")
        << none << QStringList({offscreen}) << false << Look::OpenGL;
}

void tst_LightWithoutOpenGL::directionIsShown()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, environment);
    QFETCH(bool, hasScreen);
    QFETCH(Look, look);
    const QString picture = m_home.path() + QStringLiteral("/picture.png");
    const QString screen = m_home.path() + QStringLiteral("/screen.png");
    arguments += {QStringLiteral("--picture"), picture};
    if (hasScreen)
        arguments += {QStringLiteral("--screen"), screen};
    const Run run = probe(arguments, environment);
    QVERIFY2(run.isNormalExit && run.exitCode == 0, (run.output + run.errors).constData());
    QCOMPARE(run.output, QByteArray("alive\n"));
    compareLook(picture, look);
    if (hasScreen)
        compareLook(screen, look);
}

/// The same picture with and without it, but for edges and the shades of other triangles.
void tst_LightWithoutOpenGL::solidsAreThoseOfFreeglut()
{
    const QString with = m_home.path() + QStringLiteral("/with.png");
    const QString without = m_home.path() + QStringLiteral("/without.png");
    QCOMPARE(probe({QStringLiteral("--picture"), with}, {}).exitCode, 0);
    const QStringList arguments = {QStringLiteral("--display-lost"), QStringLiteral("--picture"),
                                   without};
    QCOMPARE(probe(arguments, {}).exitCode, 0);
    const QImage a(with);
    const QImage b(without);
    QVERIFY(!a.isNull());
    QCOMPARE(a.size(), b.size());
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            const int off = qMax(qAbs(p.red() - q.red()), qAbs(p.green() - q.green()));
            different += qMax(off, qAbs(p.blue() - q.blue())) > 8 ? 1 : 0;
        }
    }
    QVERIFY2(different < 180, qPrintable(QString::number(different)));
}

void tst_LightWithoutOpenGL::memoryThatIsOutEndsTheProcess()
{
    const Run run = probe({QStringLiteral("--display-lost"), QStringLiteral("--no-memory")}, {});
    QVERIFY2(run.isNormalExit, run.errors.constData());
    QCOMPARE(run.exitCode, EXIT_FAILURE);
    QCOMPARE(run.output, QByteArray());
    QVERIFY2(run.errors.endsWith("out of memory.\n"), run.errors.constData());
}

void tst_LightWithoutOpenGL::memoryIsNotAskedForWithFreeglut()
{
    const Run run = probe({QStringLiteral("--no-memory")}, {});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QByteArray("alive\n"));
}

QTEST_GUILESS_MAIN(tst_LightWithoutOpenGL)
#include "tst_LightWithoutOpenGL.moc"
