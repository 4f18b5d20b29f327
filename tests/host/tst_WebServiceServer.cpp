// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "ServiceRequests.h"
#include "support/LocalService.h"
#include "support/TestSupport.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <vector>

class tst_WebServiceServer : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void faultNames_data();
    void faultNames();

    void location();
    void places_data();
    void places();
    void unknownPaths();
    void otherHostsAreRefused();
    void onlyOnTheLoopbackAddress();

    void tokens_data();
    void tokens();
    void applicationIsStored();
    void bodiesThatAreNoApplication_data();
    void bodiesThatAreNoApplication();
    void applicationsPage();
    void projectIsStored_data();
    void projectIsStored();
    void bodiesThatAreNoProject_data();
    void bodiesThatAreNoProject();
    void largeBody();
    void storeThatIsGone();

    void faultyAnswers_data();
    void faultyAnswers();
    void cutAnswer();
    void trickledAnswer();
    void faultsBeforeTheWorkStoreNothing_data();
    void faultsBeforeTheWorkStoreNothing();

    void manyAtATime();
    void startsOnlyWhereItCan();
    void storeOutlivesTheServer();
    void stopDoesNotWaitForStalledRequests();

    void programServesUntilItsInputEnds();
    void programRefusesBadOptions_data();
    void programRefusesBadOptions();
    void programUsesItsOptions();

private:
    ServiceOptions options(const QString& fault = QString()) const
    {
        return LocalService::options(m_store, fault);
    }
    QStringList stored(const QString& what) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_store;
};

namespace {

QJsonObject jsonOf(const Answer& answer)
{
    return QJsonDocument::fromJson(answer.body).object();
}

} // namespace

void tst_WebServiceServer::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_store = m_dir->filePath("service.db");
}

QStringList tst_WebServiceServer::stored(const QString& what) const
{
    return readSql(m_store, "SELECT " + what);
}

void tst_WebServiceServer::faultNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("delay") << "delay" << int(ServiceFault::Delay) << 1000;
    QTest::newRow("delay with a time") << "delay:20" << int(ServiceFault::Delay) << 20;
    QTest::newRow("no delay") << "delay:0" << int(ServiceFault::Delay) << 0;
    QTest::newRow("stall") << "stall" << int(ServiceFault::Stall) << 60000;
    QTest::newRow("cut") << "cut" << int(ServiceFault::Cut) << 0;
    QTest::newRow("500") << "500" << int(ServiceFault::ServerError) << 0;
    QTest::newRow("401") << "401" << int(ServiceFault::Unauthorized) << 0;
    QTest::newRow("garbage") << "garbage" << int(ServiceFault::Garbage) << 0;
    QTest::newRow("trickle") << "trickle:7" << int(ServiceFault::Trickle) << 7;
    QTest::newRow("unknown") << "flood" << -1 << 0;
    QTest::newRow("empty") << "" << -1 << 0;
    QTest::newRow("time of a fault without one") << "cut:5" << -1 << 0;
    QTest::newRow("negative time") << "delay:-5" << -1 << 0;
    QTest::newRow("no time") << "delay:" << -1 << 0;
    QTest::newRow("two times") << "delay:1:2" << -1 << 0;
}

void tst_WebServiceServer::faultNames()
{
    QFETCH(QString, text);
    QFETCH(int, kind);
    QFETCH(int, milliseconds);
    const auto fault = parseServiceFault(text);
    QCOMPARE(fault.has_value(), kind >= 0);
    if (fault) {
        QCOMPARE(int(fault->kind), kind);
        QCOMPARE(fault->milliseconds, milliseconds);
    }
}

void tst_WebServiceServer::location()
{
    ServiceOptions there = options();
    there.location = {30.66, 104.06};
    WebServiceServer server(there);
    QCOMPARE(server.address(), QByteArray());
    QVERIFY(server.start());
    const Answer answer = get(server.address(), "/bing/location");
    QCOMPARE(answer.status, 200);
    QVERIFY(answer.head.contains("Content-Type: application/json"));
    QCOMPARE(answer.body, QByteArray(R"({"data":{"center":[104.06,30.66]},"status":1})"));
}

void tst_WebServiceServer::places_data()
{
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<QStringList>("names");
    const QString chengdu = QString::fromUtf8("Chengdu 成都市");
    const QString chengde = QString::fromUtf8("Chengde 承德市");
    QTest::newRow("Latin") << QByteArray("chengd") << QStringList{chengde, chengdu};
    QTest::newRow("Chinese") << QByteArray("%E6%88%90%E9%83%BD") << QStringList{chengdu};
    QTest::newRow("one word in each")
        << QByteArray("%E6%88%90%E9%83%BD+DU") << QStringList{chengdu};
    QTest::newRow("province and city")
        << QByteArray("beijing")
        << QStringList{QString::fromUtf8("Beijing City 北京市"), QString::fromUtf8("Beijing 北京")};
    QTest::newRow("nowhere") << QByteArray("Atlantis") << QStringList();
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("blanks") << QByteArray("%20%09") << QStringList();
    QTest::newRow("percent") << QByteArray("%25") << QStringList();
    QTest::newRow("quote") << QByteArray("'") << QStringList();
    QTest::newRow("invalid UTF-8") << QByteArray("%FF%FE") << QStringList();
}

void tst_WebServiceServer::places()
{
    QFETCH(QByteArray, keyword);
    QFETCH(QStringList, names);
    WebServiceServer server(options());
    QVERIFY(server.start());
    const Answer answer = get(server.address(), "/bing/fuzzysearch?keyword=" + keyword);
    QCOMPARE(answer.status, 200);
    QCOMPARE(jsonOf(answer)["status"].toInt(), 1);
    QStringList found;
    const QJsonArray data = jsonOf(answer)["data"].toArray();
    for (const QJsonValue& place : data)
        found.append(place["name"].toString());
    QCOMPARE(found, names);
    if (found.contains(QString::fromUtf8("Chengdu 成都市")))
        QCOMPARE(data.last()["location"].toString(), QString("104.0600,30.6600"));
}

void tst_WebServiceServer::unknownPaths()
{
    WebServiceServer server(options());
    QVERIFY(server.start());
    QCOMPARE(get(server.address(), "/elsewhere").status, 404);
    QCOMPARE(get(server.address(), "/noflyzone/uploadLift").status, 404);
    QCOMPARE(post(server.address(), "/bing/location", "secret", "").status, 404);
    const Answer root = get(server.address(), "/");
    QCOMPARE(root.status, 302);
    QVERIFY(root.head.contains("Location: /noflyzone/applications"));
    QCOMPARE(ask(server.address(), "nonsense\r\n\r\n").status, 400);
}

void tst_WebServiceServer::otherHostsAreRefused()
{
    WebServiceServer server(options());
    QVERIFY(server.start());
    const QByteArray request = "GET /noflyzone/applications HTTP/1.1\r\n";
    QCOMPARE(ask(server.address(), request + "Host: evil.example\r\n\r\n").status, 403);
    QCOMPARE(ask(server.address(), request + "\r\n").status, 403);
    QCOMPARE(ask(server.address(), request + "Host: localhost:80\r\n\r\n").status, 200);
}

void tst_WebServiceServer::onlyOnTheLoopbackAddress()
{
    WebServiceServer server(options());
    QVERIFY(server.start());
    QVERIFY(server.address().startsWith("http://127.0.0.1:"));
    QTcpSocket socket;
    socket.connectToHost("127.0.0.2", quint16(QUrl(server.address()).port()));
    QVERIFY(!socket.waitForConnected(1000));
}

void tst_WebServiceServer::tokens_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<int>("status");
    QTest::newRow("right") << QByteArray("secret") << QByteArray("secret") << 200;
    QTest::newRow("wrong") << QByteArray("secret") << QByteArray("Secret") << 401;
    QTest::newRow("none") << QByteArray("secret") << QByteArray() << 401;
    QTest::newRow("any") << QByteArray() << QByteArray("x") << 200;
    QTest::newRow("none where any will do") << QByteArray() << QByteArray() << 401;
}

void tst_WebServiceServer::tokens()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, sent);
    QFETCH(int, status);
    ServiceOptions asked = options();
    asked.token = expected;
    WebServiceServer server(asked);
    QVERIFY(server.start());
    QCOMPARE(
        post(server.address(), "/noflyzone/uploadLift", sent, "data=" + applicationJson()).status,
        status);
    QCOMPARE(post(server.address(), "/project/upload", sent, "data={}").status, status);
    const QString count = status == 200 ? "1" : "0";
    QCOMPARE(stored("count(*) FROM lift_application"), QStringList(count));
    QCOMPARE(stored("count(*) FROM project_document"), QStringList(count));
}

void tst_WebServiceServer::applicationIsStored()
{
    WebServiceServer server(options());
    QVERIFY(server.start());
    const Answer answer =
        post(server.address(), "/noflyzone/uploadLift", "secret", "data=" + applicationJson("王"));
    QCOMPARE(answer.status, 200);
    QCOMPARE(answer.body, QByteArray(R"({"data":{"number":1},"status":1})"));
    const QString columns =
        "file_name || '/' || document || '/' || area || '/' || begin_at || '/' "
        "|| end_at || '/' || local_ids || '/' || length(picture) || '/' || name "
        "|| '/' || contact || '/' || company || '/' || explanation";
    QCOMPARE(
        stored(columns + " FROM lift_application"),
        QStringList(QString::fromUtf8(
            "permit.pdf/text/104,30.5,N/A|105,30.6,N/A/2026-05-01 08:00:00/2026-05-02 18:00:00/"
            "a,b/0/王/13800000000/Survey & Co/100% + \"urgent\"")));
}

void tst_WebServiceServer::bodiesThatAreNoApplication_data()
{
    QTest::addColumn<QByteArray>("body");
    const QByteArray json = applicationJson();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("prefix alone") << QByteArray("data=");
    QTest::newRow("without the prefix") << json;
    QTest::newRow("another prefix") << "body=" + json;
    QTest::newRow("cut JSON") << "data=" + json.chopped(1);
    QTest::newRow("list") << "data=[" + json + "]";
    QTest::newRow("key missing") << "data=" + QByteArray(json).replace("\"contact\"", "\"phone\"");
    QTest::newRow("number for a text")
        << "data=" + QByteArray(json).replace("\"13800000000\"", "13800000000");
    QTest::newRow("document is no Base64") << "data=" + QByteArray(json).replace("dGV4dA==", "***");
    QTest::newRow("invalid UTF-8") << "data=" + applicationJson("\xff");
}

void tst_WebServiceServer::bodiesThatAreNoApplication()
{
    QFETCH(QByteArray, body);
    WebServiceServer server(options());
    QVERIFY(server.start());
    const Answer answer = post(server.address(), "/noflyzone/uploadLift", "secret", body);
    QCOMPARE(answer.status, 400);
    QCOMPARE(jsonOf(answer)["status"].toInt(), 2);
    QVERIFY(!jsonOf(answer)["message"].toString().isEmpty());
    QCOMPARE(stored("count(*) FROM lift_application"), QStringList("0"));
}

void tst_WebServiceServer::applicationsPage()
{
    WebServiceServer server(options());
    QVERIFY(server.start());
    QVERIFY(get(server.address(), "/noflyzone/applications").body.contains("None yet."));
    post(server.address(), "/noflyzone/uploadLift", "secret",
         "data=" + applicationJson("First %1"));
    post(server.address(), "/noflyzone/uploadLift", "secret",
         "data=" + applicationJson("<script>alert(1)</script>"));
    const Answer answer = get(server.address(), "/noflyzone/applications");
    QCOMPARE(answer.status, 200);
    QVERIFY(answer.head.contains("Content-Type: text/html; charset=utf-8"));
    QVERIFY(!answer.body.contains("<script>"));
    const int latest = answer.body.indexOf("&lt;script&gt;");
    QVERIFY(latest > 0);
    QVERIFY(answer.body.indexOf("<td>First %1</td>") > latest);
    QVERIFY(answer.body.contains("<td>Survey &amp; Co</td>"));
    QVERIFY(answer.body.contains("<td>104,30.5,N/A\n105,30.6,N/A</td>"));
    QVERIFY(answer.body.contains("<td>4 bytes</td>"));
}

void tst_WebServiceServer::projectIsStored_data()
{
    QTest::addColumn<QByteArray>("prefix");
    QTest::newRow("as a form") << QByteArray("data=");
    QTest::newRow("as it is") << QByteArray();
}

void tst_WebServiceServer::projectIsStored()
{
    QFETCH(QByteArray, prefix);
    const QByteArray json = R"({"id":"p","project_name":"River","blocks":[{"tasks":[{},{}]},{},)"
                            R"({"tasks":[{}]}],"points":[{},{}]})";
    WebServiceServer server(options());
    QVERIFY(server.start());
    const Answer answer = post(server.address(), "/project/upload", "secret", prefix + json);
    QCOMPARE(answer.status, 200);
    QCOMPARE(jsonOf(answer).value("data")["number"].toInt(), 1);
    QCOMPARE(stored("project_id || '/' || project_name || '/' || blocks || '/' || tasks || '/' || "
                    "points || '/' || json FROM project_document"),
             QStringList("p/River/3/3/2/" + QString::fromUtf8(json)));
    const QByteArray page = get(server.address(), "/project/documents").body;
    QVERIFY(page.contains("<td>River</td><td>p</td><td>3</td><td>3</td><td>2</td>"));
}

void tst_WebServiceServer::bodiesThatAreNoProject_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("prefix alone") << QByteArray("data=");
    QTest::newRow("list") << QByteArray("[]");
    QTest::newRow("cut") << QByteArray("{\"id\":");
}

void tst_WebServiceServer::bodiesThatAreNoProject()
{
    QFETCH(QByteArray, body);
    WebServiceServer server(options());
    QVERIFY(server.start());
    QCOMPARE(post(server.address(), "/project/upload", "secret", body).status, 400);
    QCOMPARE(stored("count(*) FROM project_document"), QStringList("0"));
}

void tst_WebServiceServer::largeBody()
{
    const QByteArray document = QByteArray(15 * 1024 * 1024, 'x');
    const QByteArray json = applicationJson().replace("dGV4dA==", document.toBase64());
    WebServiceServer server(options());
    QVERIFY(server.start());
    QCOMPARE(post(server.address(), "/noflyzone/uploadLift", "secret", "data=" + json).status, 200);
    QCOMPARE(stored("length(document) FROM lift_application"),
             QStringList(QString::number(document.size())));
}

void tst_WebServiceServer::storeThatIsGone()
{
    WebServiceServer server(options());
    QVERIFY(server.start());
    QVERIFY(QFile::remove(m_store));
    QVERIFY(writeFile(m_store, QByteArray(8192, 'x')));
    QCOMPARE(post(server.address(), "/noflyzone/uploadLift", "secret", "data=" + applicationJson())
                 .status,
             500);
    QCOMPARE(post(server.address(), "/project/upload", "secret", "{}").status, 500);
}

void tst_WebServiceServer::faultyAnswers_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isJson");
    QTest::addColumn<int>("atLeast");
    QTest::newRow("none") << "" << 200 << true << 0;
    QTest::newRow("delay") << "delay:300" << 200 << true << 300;
    QTest::newRow("stall") << "stall:300" << 503 << false << 300;
    QTest::newRow("500") << "500" << 500 << false << 0;
    QTest::newRow("401") << "401" << 401 << false << 0;
    QTest::newRow("garbage") << "garbage" << 200 << false << 0;
}

void tst_WebServiceServer::faultyAnswers()
{
    QFETCH(QString, fault);
    QFETCH(int, status);
    QFETCH(bool, isJson);
    QFETCH(int, atLeast);
    WebServiceServer server(options(fault));
    QVERIFY(server.start());
    for (bool isUpload : {false, true}) {
        QElapsedTimer timer;
        timer.start();
        const Answer answer = isUpload
            ? post(server.address(), "/noflyzone/uploadLift", "secret", "data=" + applicationJson())
            : get(server.address(), "/bing/location");
        QVERIFY(timer.elapsed() >= atLeast);
        QCOMPARE(answer.status, status);
        QCOMPARE(!jsonOf(answer).isEmpty(), isJson);
        QVERIFY(!answer.body.isEmpty());
    }
}

void tst_WebServiceServer::cutAnswer()
{
    WebServiceServer server(options("cut"));
    QVERIFY(server.start());
    const Answer answer = get(server.address(), "/bing/location");
    QCOMPARE(answer.status, 200);
    const QByteArray whole = R"({"data":{"center":[116.4,39.91]},"status":1})";
    QVERIFY(answer.head.contains("Content-Length: " + QByteArray::number(whole.size())));
    QCOMPARE(answer.body, whole.left(whole.size() / 2));
}

void tst_WebServiceServer::trickledAnswer()
{
    WebServiceServer server(options("trickle:5"));
    QVERIFY(server.start());
    QTcpSocket socket;
    socket.connectToHost("127.0.0.1", quint16(QUrl(server.address()).port()));
    socket.write("GET /bing/location HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
    QByteArray received;
    int portions = 0;
    while (socket.waitForReadyRead(10000)) {
        received += socket.readAll();
        ++portions;
    }
    QCOMPARE(answerOf(received).body,
             QByteArray(R"({"data":{"center":[116.4,39.91]},"status":1})"));
    QVERIFY2(portions > 5, qPrintable(QString::number(portions)));
}

void tst_WebServiceServer::faultsBeforeTheWorkStoreNothing_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("count");
    QTest::newRow("stall") << "stall:1"
                           << "0";
    QTest::newRow("500") << "500"
                         << "0";
    QTest::newRow("401") << "401"
                         << "0";
    QTest::newRow("cut") << "cut"
                         << "1";
    QTest::newRow("garbage") << "garbage"
                             << "1";
    QTest::newRow("trickle") << "trickle:1"
                             << "1";
    QTest::newRow("delay") << "delay:1"
                           << "1";
}

void tst_WebServiceServer::faultsBeforeTheWorkStoreNothing()
{
    QFETCH(QString, fault);
    QFETCH(QString, count);
    WebServiceServer server(options(fault));
    QVERIFY(server.start());
    post(server.address(), "/noflyzone/uploadLift", "secret", "data=" + applicationJson());
    QCOMPARE(stored("count(*) FROM lift_application"), QStringList(count));
}

void tst_WebServiceServer::manyAtATime()
{
    WebServiceServer server(options("delay:100"));
    QVERIFY(server.start());
    const quint16 port = quint16(QUrl(server.address()).port());
    std::vector<std::unique_ptr<QTcpSocket>> sockets;
    const QByteArray body = "data=" + applicationJson();
    for (int i = 0; i < 40; ++i) {
        sockets.push_back(std::make_unique<QTcpSocket>());
        sockets.back()->connectToHost("127.0.0.1", port);
        sockets.back()->write("POST /noflyzone/uploadLift HTTP/1.1\r\nHost: 127.0.0.1\r\n"
                              "token: secret\r\nContent-Length: "
                              + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }
    for (const auto& socket : sockets) {
        QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QAbstractSocket::UnconnectedState, 30000);
        QCOMPARE(answerOf(socket->readAll()).status, 200);
    }
    QCOMPARE(stored("count(DISTINCT number) FROM lift_application"), QStringList("40"));
}

void tst_WebServiceServer::startsOnlyWhereItCan()
{
    WebServiceServer first(options());
    QVERIFY(first.start());
    ServiceOptions taken = options();
    taken.port = QUrl(first.address()).port();
    WebServiceServer second(taken);
    QVERIFY(!second.start());
    QCOMPARE(second.address(), QByteArray());

    ServiceOptions unwritable = options();
    unwritable.storeFile = m_dir->filePath("missing/service.db");
    QVERIFY(!WebServiceServer(unwritable).start());
    unwritable.storeFile.clear();
    QVERIFY(!WebServiceServer(unwritable).start());

    first.stop();
    first.stop();
    WebServiceServer third(taken);
    QVERIFY(third.start());
    QCOMPARE(get(third.address(), "/bing/location").status, 200);
}

void tst_WebServiceServer::storeOutlivesTheServer()
{
    {
        WebServiceServer server(options());
        QVERIFY(server.start());
        post(server.address(), "/noflyzone/uploadLift", "secret", "data=" + applicationJson());
    }
    WebServiceServer server(options());
    QVERIFY(server.start());
    QVERIFY(get(server.address(), "/noflyzone/applications").body.contains("<td>Wang</td>"));
}

void tst_WebServiceServer::stopDoesNotWaitForStalledRequests()
{
    WebServiceServer server(options("stall:3600000"));
    QVERIFY(server.start());
    QTcpSocket socket;
    socket.connectToHost("127.0.0.1", quint16(QUrl(server.address()).port()));
    socket.write("GET /bing/location HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
    QVERIFY(socket.waitForBytesWritten());
    QVERIFY(!socket.waitForReadyRead(100));
    server.stop();
    QVERIFY(socket.state() == QAbstractSocket::UnconnectedState || socket.waitForDisconnected());
}

void tst_WebServiceServer::programServesUntilItsInputEnds()
{
    QProcess program;
    const QByteArray address = LocalService::start(program, m_store);
    QVERIFY(address.startsWith("http://127.0.0.1:"));
    QCOMPARE(get(address, "/bing/location").status, 200);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAll(), QByteArray());
    QCOMPARE(get(address, "/bing/location").status, 0);
}

void tst_WebServiceServer::programRefusesBadOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("no store") << QStringList() << 2;
    QTest::newRow("port that is no number") << QStringList{"--store", "%1", "--port", "x"} << 2;
    QTest::newRow("port that is too large") << QStringList{"--store", "%1", "--port", "65536"} << 2;
    QTest::newRow("negative port") << QStringList{"--store", "%1", "--port=-1"} << 2;
    QTest::newRow("unknown fault") << QStringList{"--store", "%1", "--fault", "flood"} << 2;
    QTest::newRow("half a location") << QStringList{"--store", "%1", "--location", "30"} << 2;
    QTest::newRow("further argument") << QStringList{"--store", "%1", "x"} << 2;
    QTest::newRow("unknown option") << QStringList{"--store", "%1", "--x"} << 1;
    QTest::newRow("store that cannot be made") << QStringList{"--store", "%1/x/y"} << 1;
}

void tst_WebServiceServer::programRefusesBadOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    arguments.replaceInStrings("%1", m_store);
    QProcess program;
    program.start(RK_SERVICE, arguments);
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), exitCode);
    QVERIFY(!program.readAllStandardError().isEmpty());
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
}

void tst_WebServiceServer::programUsesItsOptions()
{
    QProcess program;
    const QByteArray address = LocalService::start(
        program, m_store, {"--token", "mine", "--location", "-33.9,18.4", "--fault", "delay:1"});
    QCOMPARE(jsonOf(get(address, "/bing/location")).value("data")["center"].toArray(),
             QJsonArray({18.4, -33.9}));
    QCOMPARE(post(address, "/project/upload", "other", "{}").status, 401);
    QCOMPARE(post(address, "/project/upload", "mine", "{}").status, 200);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
}

QTEST_GUILESS_MAIN(tst_WebServiceServer)
#include "tst_WebServiceServer.moc"
