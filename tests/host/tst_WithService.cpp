// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "ServiceRequests.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

/// The script that gives the application its web service.
class tst_WithService : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void serviceLivesWithTheProgram();
    void programIsKilled();
    void scriptIsInterrupted_data();
    void scriptIsInterrupted();
    void scriptIsKilled();
    void programFails();
    void serviceDoesNotStart();
    void serviceEndsAtOnce();
    void serviceDiesFirst();
    void anotherServiceIsUsed();
    void optionsReachTheService();

private:
    void start(QProcess& script, const QString& shellCommand) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QProcessEnvironment m_environment;
};

namespace {

bool answers(const QByteArray& address)
{
    return get(address, "/bing/location").status == 200;
}

/// What the program inside prints first: the address of its service and its own id.
const char* const printAndWait = "echo $RK_SERVER_IP; echo $$; exec sleep 600";

QByteArray readLine(QProcess& script)
{
    while (!script.canReadLine() && script.waitForReadyRead())
        continue;
    return script.readLine().trimmed();
}

bool isAlive(pid_t process)
{
    return ::kill(process, 0) == 0;
}

} // namespace

void tst_WithService::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.remove("RK_SERVER_IP");
    m_environment.remove("RK_SERVICE_OPTIONS");
}

void tst_WithService::start(QProcess& script, const QString& shellCommand) const
{
    script.setProcessEnvironment(m_environment);
    script.start(RK_WITH_SERVICE,
                 {RK_SERVICE, m_dir->filePath("service.db"), "bash", "-c", shellCommand});
}

void tst_WithService::serviceLivesWithTheProgram()
{
    QProcess script;
    start(script, "echo $RK_SERVER_IP; read -r line < '" + m_dir->filePath("go") + "'");
    QCOMPARE(QProcess::execute("mkfifo", {m_dir->filePath("go")}), 0);
    const QByteArray address = readLine(script);
    QVERIFY(address.startsWith("http://127.0.0.1:"));
    QVERIFY(answers(address));
    QVERIFY(QFileInfo::exists(m_dir->filePath("service.db")));
    QFile go(m_dir->filePath("go"));
    QVERIFY(go.open(QIODevice::WriteOnly) && go.write("go\n") > 0);
    go.close();
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.exitCode(), 0);
    QVERIFY(!answers(address));
}

void tst_WithService::programIsKilled()
{
    QProcess script;
    start(script, printAndWait);
    const QByteArray address = readLine(script);
    const pid_t program = readLine(script).toInt();
    QVERIFY(answers(address));
    QCOMPARE(::kill(program, SIGKILL), 0);
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.exitCode(), 128 + SIGKILL);
    QVERIFY(!answers(address));
}

void tst_WithService::scriptIsInterrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("Ctrl+C") << SIGINT;
    QTest::newRow("terminated") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

void tst_WithService::scriptIsInterrupted()
{
    QFETCH(int, signal);
    QProcess script;
    start(script, printAndWait);
    const QByteArray address = readLine(script);
    const pid_t program = readLine(script).toInt();
    QVERIFY(answers(address));
    QCOMPARE(::kill(pid_t(script.processId()), signal), 0);
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.exitCode(), 128 + SIGTERM);
    QVERIFY(!isAlive(program));
    QVERIFY(!answers(address));
}

void tst_WithService::scriptIsKilled()
{
    QProcess script;
    start(script, printAndWait);
    const QByteArray address = readLine(script);
    const pid_t program = readLine(script).toInt();
    QVERIFY(answers(address));
    script.kill();
    QTRY_VERIFY(!answers(address)); // Though the program still runs.
    QVERIFY(isAlive(program));
    QCOMPARE(::kill(program, SIGKILL), 0);
    script.waitForFinished();
}

void tst_WithService::programFails()
{
    QProcess script;
    start(script, "exit 7");
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.exitCode(), 7);
}

void tst_WithService::serviceDoesNotStart()
{
    QProcess script;
    m_environment.insert("RK_SERVICE_OPTIONS", "--fault flood");
    start(script, "echo started");
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.exitCode(), 1);
    QCOMPARE(script.readAllStandardOutput(), QByteArray());
    QVERIFY(script.readAllStandardError().contains("The web service did not start."));
}

void tst_WithService::serviceEndsAtOnce()
{
    // Whether the script's shell has noticed the end when it reads the address is chance.
    for (int i = 0; i < 150; ++i) {
        QProcess script;
        script.setProcessEnvironment(m_environment);
        script.start(RK_WITH_SERVICE, {"false", m_dir->filePath("service.db"), "echo", "started"});
        QVERIFY(script.waitForFinished());
        QCOMPARE(script.exitCode(), 1);
        QCOMPARE(script.readAllStandardOutput(), QByteArray());
        QCOMPARE(script.readAllStandardError(), QByteArray("The web service did not start.\n"));
    }
}

void tst_WithService::serviceDiesFirst()
{
    QProcess script;
    m_environment.insert("RK_SERVICE_OPTIONS", "--token mine");
    start(script, "kill -9 $(pgrep -P $PPID -x rk-service); echo on; exit 3");
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.readAllStandardOutput(), QByteArray("on\n"));
    QCOMPARE(script.exitCode(), 3);
}

void tst_WithService::anotherServiceIsUsed()
{
    QProcess script;
    m_environment.insert("RK_SERVER_IP", "http://192.0.2.1:8080");
    start(script, "echo $RK_SERVER_IP");
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.readAllStandardOutput(), QByteArray("http://192.0.2.1:8080\n"));
    QVERIFY(!QFileInfo::exists(m_dir->filePath("service.db")));
}

void tst_WithService::optionsReachTheService()
{
    QProcess script;
    m_environment.insert("RK_SERVICE_OPTIONS", "--fault 500 --token mine");
    start(script, printAndWait);
    const QByteArray address = readLine(script);
    QCOMPARE(get(address, "/bing/location").status, 500);
    script.terminate();
    QVERIFY(script.waitForFinished());
}

QTEST_GUILESS_MAIN(tst_WithService)
#include "tst_WithService.moc"
