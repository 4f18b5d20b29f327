// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/WebServiceServer.h"
#include "support/ProcessCounts.h"
#include "support/RawServer.h"

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/WebService.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Places = QMap<QString, QString>;

const char* const centreReply = R"({"status":1,"data":{"center":[116.39,39.91]}})";
const char* const placesReply = R"({"status":1,"data":[{"name":"a","location":"1,2"}]})";
constexpr int locationLimit = 3000; // ms
constexpr int searchLimit = 5000; // ms

QStringList messages;

void collectMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    messages.append(text);
}

/// A timer of the program that goes on while a call waits, and how late the machine is at most.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_sinceStart.start();
        QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
        m_timer.start(period);
    }

    int beats() const { return m_beats; }
    qint64 elapsed() const { return m_sinceStart.elapsed(); }
    qint64 largestGap() const { return qMax(m_largestGap, elapsed() - m_lastBeat); }

    static constexpr int period = 20; // ms

private:
    void beat()
    {
        ++m_beats;
        m_largestGap = qMax(m_largestGap, elapsed() - m_lastBeat);
        m_lastBeat = elapsed();
    }

    QTimer m_timer;
    QElapsedTimer m_sinceStart;
    qint64 m_lastBeat = 0;
    qint64 m_largestGap = 0;
    int m_beats = 0;
};

bool findsCentre()
{
    PointLatLng position(1, 2);
    const bool isFound = GetCurLatLng(position);
    if (!isFound && (position.Lat() != 1 || position.Lng() != 2))
        QTest::qFail("The position has changed.", __FILE__, __LINE__);
    return isFound;
}

} // namespace

class tst_WebService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void locationOfTheService();
    void placesOfTheService_data();
    void placesOfTheService();
    void requestLines_data();
    void requestLines();
    void keywordsThatAreTooLong();
    void locationReply();
    void placesReplyOfServer();
    void onlyTheJsonDecides_data();
    void onlyTheJsonDecides();
    void answersThatAreNone_data();
    void answersThatAreNone();
    void serversThatAreNone_data();
    void serversThatAreNone();
    void locationTakesAtMostThreeSeconds_data();
    void locationTakesAtMostThreeSeconds();
    void searchTakesAtMostFiveSeconds_data();
    void searchTakesAtMostFiveSeconds();
    void answersWithoutEndAreNotKept();
    void faultsOfTheService_data();
    void faultsOfTheService();
    void callsMayBeNested();
    void quittingTheProgramEndsTheCall();
    void nothingIsLeftBehind();

private:
    QByteArray startService(const QString& fault);

    QTemporaryDir m_dir;
    std::unique_ptr<WebServiceServer> m_service;
    QtMessageHandler m_previousHandler = nullptr;
};

void tst_WebService::initTestCase()
{
    RawServer server; // The toolkit opens some files and threads at the first request only.
    server.answer = httpAnswer(200, centreReply);
    SetServerIP(server.address());
    QVERIFY(findsCentre());
}

void tst_WebService::init()
{
    messages.clear();
    m_previousHandler = qInstallMessageHandler(collectMessage);
}

void tst_WebService::cleanup()
{
    qInstallMessageHandler(m_previousHandler);
    SetServerIP(QByteArray());
    m_service.reset();
    QCOMPARE(messages, QStringList());
}

/// Starts the service of the host application and makes it that of this program.
QByteArray tst_WebService::startService(const QString& fault)
{
    ServiceOptions options;
    options.storeFile = m_dir.filePath("service.db");
    options.location = {30.66, 104.06};
    options.fault = parseServiceFault(fault).value_or(ServiceFault());
    m_service = std::make_unique<WebServiceServer>(options);
    if (!m_service->start())
        return {};
    SetServerIP(m_service->address());
    return m_service->address();
}

void tst_WebService::locationOfTheService()
{
    QVERIFY(!startService(QString()).isEmpty());
    PointLatLng position;
    QVERIFY(GetCurLatLng(position));
    QCOMPARE(position.Lat(), 30.66);
    QCOMPARE(position.Lng(), 104.06);
}

void tst_WebService::placesOfTheService_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QStringList>("names");
    const QString chengdu = QString::fromUtf8("Chengdu 成都市");
    QTest::newRow("Latin") << "chengdu" << QStringList(chengdu);
    QTest::newRow("Chinese") << QString::fromUtf8("成都") << QStringList(chengdu);
    QTest::newRow("both, with a space")
        << QString::fromUtf8("CHENGDU 成都市") << QStringList(chengdu);
    QTest::newRow("nowhere") << "Atlantis" << QStringList();
    QTest::newRow("quote") << "'" << QStringList();
    QTest::newRow("double quote") << "\"" << QStringList();
    QTest::newRow("percent is no wildcard") << "%" << QStringList();
    QTest::newRow("underscore is no wildcard") << "_" << QStringList();
    QTest::newRow("what follows & is lost") << "chengdu&x" << QStringList(chengdu);
    QTest::newRow("what follows # is lost") << "chengdu#x" << QStringList(chengdu);
    QTest::newRow("empty") << "" << QStringList();
}

void tst_WebService::placesOfTheService()
{
    QFETCH(QString, keyword);
    QFETCH(QStringList, names);
    QVERIFY(!startService(QString()).isEmpty());
    const Places places = GetSearchRet(keyword);
    QCOMPARE(QStringList(places.keys()), names);
    if (!names.isEmpty())
        QCOMPARE(places.first(), QString("104.0600,30.6600"));
}

void tst_WebService::requestLines_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("word") << "abc" << QByteArray("abc");
    QTest::newRow("empty") << "" << QByteArray();
    QTest::newRow("space") << "a b" << QByteArray("a%20b");
    QTest::newRow("ampersand") << "a&b=c" << QByteArray("a&b=c");
    QTest::newRow("hash") << "a#b" << QByteArray("a");
    QTest::newRow("percent") << "100%" << QByteArray("100%25");
    QTest::newRow("percent with digits") << "%E6%88%90" << QByteArray("%E6%88%90");
    QTest::newRow("plus") << "a+b" << QByteArray("a+b");
    QTest::newRow("question mark and slash") << "a?/b" << QByteArray("a?/b");
    QTest::newRow("quotes") << "'\"" << QByteArray("'%22");
    QTest::newRow("Chinese") << QString::fromUtf8("成都") << QByteArray("%E6%88%90%E9%83%BD");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("𠮷") << QByteArray("%F0%A0%AE%B7");
    QTest::newRow("line break") << "a\r\nb" << QByteArray("a%0D%0Ab");
    QTest::newRow("10,000 letters") << QString(10000, 'x') << QByteArray(10000, 'x');
    QTest::newRow("10,000 Chinese")
        << QString(10000, QChar(0x6210)) << QByteArray("%E6%88%90").repeated(10000);
}

void tst_WebService::requestLines()
{
    QFETCH(QString, keyword);
    QFETCH(QByteArray, sent);
    RawServer server;
    server.answer = httpAnswer(200, placesReply);
    SetServerIP(server.address());
    QCOMPARE(GetSearchRet(keyword), Places({{"a", "1,2"}}));
    QCOMPARE(server.requestLines,
             QVector<QByteArray>{"GET /bing/fuzzysearch?keyword=" + sent + " HTTP/1.1"});
}

void tst_WebService::keywordsThatAreTooLong()
{
    QVERIFY(!startService(QString()).isEmpty());
    QCOMPARE(GetSearchRet(QString(10000, 'x')), Places());
    QCOMPARE(GetSearchRet(QString(10000, QChar(0x6210))), Places());
    QCOMPARE(GetSearchRet("chengdu").size(), 1);
}

void tst_WebService::locationReply()
{
    RawServer server;
    server.answer = httpAnswer(200, centreReply);
    SetServerIP(server.address());
    PointLatLng position;
    QVERIFY(GetCurLatLng(position));
    QCOMPARE(position.Lat(), 39.91);
    QCOMPARE(position.Lng(), 116.39);
    QCOMPARE(server.requestLines, QVector<QByteArray>{"GET /bing/location HTTP/1.1"});
}

void tst_WebService::placesReplyOfServer()
{
    RawServer server;
    server.answer = httpAnswer(200, R"({"status":0,"data":[{"name":"b","location":"1"},
        {"name":"a","location":"2"},{"name":"b","location":"3"}]})");
    SetServerIP(server.address());
    QCOMPARE(GetSearchRet("x"), Places({{"a", "2"}, {"b", "3"}}));
}

void tst_WebService::onlyTheJsonDecides_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("404") << httpAnswer(404, centreReply);
    QTest::newRow("500") << httpAnswer(500, centreReply);
    QTest::newRow("302") << httpAnswer(302, centreReply, -1, "Location: /elsewhere\r\n");
    QTest::newRow("cut after the JSON") << httpAnswer(200, centreReply, 1000);
    QTest::newRow("without length") << QByteArray("HTTP/1.1 200 OK\r\n\r\n") + centreReply;
    QTest::newRow("page") << httpAnswer(200, centreReply, -1, "Content-Type: text/html\r\n");
}

void tst_WebService::onlyTheJsonDecides()
{
    QFETCH(QByteArray, answer);
    RawServer server;
    server.answer = answer;
    SetServerIP(server.address());
    QVERIFY(findsCentre());
    // Redirections are not followed. On a busy machine the toolkit may ask twice where the answer
    // ends with its connection.
    const QByteArray asked = "GET /bing/location HTTP/1.1";
    QCOMPARE(server.requestLines.count(asked), server.requestLines.size());
}

void tst_WebService::answersThatAreNone_data()
{
    QTest::addColumn<QByteArray>("answer");
    const QByteArray deep = QByteArray(100000, '[') + QByteArray(100000, ']');
    QTest::newRow("hangs up") << QByteArray();
    QTest::newRow("no HTTP") << QByteArray("hello\r\n\r\n");
    QTest::newRow("cut in the head") << QByteArray("HTTP/1.1 200 OK\r\nContent-Le");
    QTest::newRow("cut in the body") << httpAnswer(200, R"({"status":1,"data":)", 100);
    QTest::newRow("204") << QByteArray("HTTP/1.1 204 No Content\r\n\r\n");
    QTest::newRow("302") << httpAnswer(302, "", -1, "Location: /bing/location\r\n");
    QTest::newRow("401 that asks for a password")
        << httpAnswer(401, "", -1, "WWW-Authenticate: Basic realm=\"x\"\r\n");
    QTest::newRow("404") << httpAnswer(404, "not found");
    QTest::newRow("500") << httpAnswer(500, "broken");
    QTest::newRow("10 MB of zeros") << httpAnswer(200, QByteArray(10 * 1024 * 1024, '\0'));
    QTest::newRow("10 MB of blanks") << httpAnswer(200, QByteArray(10 * 1024 * 1024, ' '));
    QTest::newRow("list") << httpAnswer(200, "[1,2]");
    QTest::newRow("deep nesting") << httpAnswer(200, "{\"status\":1,\"data\":" + deep + "}");
    QTest::newRow("invalid UTF-8") << httpAnswer(200, "{\"status\":1,\"data\":[\"\xff\"]}");
    QTest::newRow("numbers as texts")
        << httpAnswer(200, R"({"status":1,"data":{"center":["116.39","39.91"]}})");
    QTest::newRow("status 2") << httpAnswer(200,
                                            R"({"status":2,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("status -1") << httpAnswer(200,
                                             R"({"status":-1,"data":{"center":[116.39,39.91]}})");
    QTest::newRow("compressed rubbish")
        << httpAnswer(200, "rubbish", -1, "Content-Encoding: gzip\r\n");
    // However small, it could be of any size when it is unpacked.
    QTest::newRow("compressed, though not asked for")
        << httpAnswer(200, qCompress(centreReply).mid(4), -1, "Content-Encoding: deflate\r\n");
}

void tst_WebService::answersThatAreNone()
{
    QFETCH(QByteArray, answer);
    RawServer server;
    server.answer = answer;
    SetServerIP(server.address());
    const Heartbeat heartbeat;
    QVERIFY(!findsCentre());
    QCOMPARE(GetSearchRet("x"), Places());
    QVERIFY2(heartbeat.elapsed() < locationLimit, "waited for the limit");
}

void tst_WebService::serversThatAreNone_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("nobody listens") << RawServer().address(); // Its port is free again.
    QTest::newRow("no scheme") << QByteArray("127.0.0.1:80");
    QTest::newRow("no host") << QByteArray("http://");
    QTest::newRow("unknown scheme") << QByteArray("gopher://127.0.0.1");
    QTest::newRow("impossible port") << QByteArray("http://127.0.0.1:99999");
}

void tst_WebService::serversThatAreNone()
{
    QFETCH(QByteArray, address);
    SetServerIP(address);
    const Heartbeat heartbeat;
    QVERIFY(!findsCentre());
    QCOMPARE(GetSearchRet("x"), Places());
    QVERIFY2(heartbeat.elapsed() < locationLimit, "waited for the limit");
}

void tst_WebService::locationTakesAtMostThreeSeconds_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("says nothing") << QByteArray() << 0 << false;
    QTest::newRow("a byte a second") << httpAnswer(200, centreReply) << 1000 << false;
    QTest::newRow("stops in the body") << httpAnswer(200, R"({"status":1,)", 100) << 0 << false;
    // What has come by then is looked at.
    QTest::newRow("does not end") << httpAnswer(200, centreReply, 1000) << 0 << true;
}

void tst_WebService::locationTakesAtMostThreeSeconds()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, interval);
    QFETCH(bool, isFound);
    RawServer server;
    server.answer = answer;
    server.interval = interval;
    server.closes = false;
    SetServerIP(server.address());
    const Heartbeat heartbeat;
    QCOMPARE(findsCentre(), isFound);
    const qint64 elapsed = heartbeat.elapsed();
    QVERIFY2(elapsed >= locationLimit, qPrintable(QString::number(elapsed)));
    QVERIFY2(elapsed <= locationLimit + 200 + heartbeat.largestGap(),
             qPrintable(QString::number(elapsed)));
    QVERIFY(heartbeat.beats() > 10);
    QTRY_COMPARE(server.openConnections(), 0);
}

void tst_WebService::searchTakesAtMostFiveSeconds_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("interval");
    QTest::newRow("says nothing") << QByteArray() << 0;
    QTest::newRow("a byte a second") << httpAnswer(200, placesReply) << 1000;
}

void tst_WebService::searchTakesAtMostFiveSeconds()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, interval);
    RawServer server;
    server.answer = answer;
    server.interval = interval;
    server.closes = false;
    SetServerIP(server.address());
    const Heartbeat heartbeat;
    QCOMPARE(GetSearchRet("x"), Places());
    const qint64 elapsed = heartbeat.elapsed();
    QVERIFY2(elapsed >= searchLimit, qPrintable(QString::number(elapsed)));
    QVERIFY2(elapsed <= searchLimit + 200 + heartbeat.largestGap(),
             qPrintable(QString::number(elapsed)));
    QVERIFY(heartbeat.beats() > 10);
    QTRY_COMPARE(server.openConnections(), 0);
}

void tst_WebService::answersWithoutEndAreNotKept()
{
    RawServer server;
    server.answer = "HTTP/1.1 200 OK\r\n\r\n";
    server.refrain = QByteArray(1024 * 1024, ' ');
    SetServerIP(server.address());
    const Heartbeat heartbeat;
    QVERIFY(!findsCentre());
    const qint64 elapsed = heartbeat.elapsed();
    QVERIFY2(elapsed <= locationLimit + 200 + heartbeat.largestGap(),
             qPrintable(QString::number(elapsed)));
    QVERIFY(server.refrainsTaken > 0);
    // The buffers on its way, the toolkit's and the system's, hold as much again and more.
    constexpr qint64 most = 128 * 1024 * 1024;
    QVERIFY2(server.refrainsTaken < most, qPrintable(QString::number(server.refrainsTaken)));
    QTRY_COMPARE(server.openConnections(), 0);
}

void tst_WebService::faultsOfTheService_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<bool>("isFound");
    QTest::addColumn<bool>("reachesTheLimit");
    QTest::newRow("none") << "" << true << false;
    QTest::newRow("short delay") << "delay:200" << true << false;
    QTest::newRow("long delay") << "delay:60000" << false << true;
    QTest::newRow("stall") << "stall" << false << true;
    QTest::newRow("short stall") << "stall:100" << false << false;
    QTest::newRow("cut") << "cut" << false << false;
    QTest::newRow("500") << "500" << false << false;
    QTest::newRow("401") << "401" << false << false;
    QTest::newRow("garbage") << "garbage" << false << false;
    QTest::newRow("fast trickle") << "trickle:1" << true << false;
    QTest::newRow("slow trickle") << "trickle" << false << true;
}

void tst_WebService::faultsOfTheService()
{
    QFETCH(QString, fault);
    QFETCH(bool, isFound);
    QFETCH(bool, reachesTheLimit);
    QVERIFY(!startService(fault).isEmpty());
    const Heartbeat heartbeat;
    QCOMPARE(findsCentre(), isFound);
    QCOMPARE(heartbeat.elapsed() >= locationLimit, reachesTheLimit);
    if (!reachesTheLimit)
        QCOMPARE(GetSearchRet("chengdu").size(), isFound ? 1 : 0);
}

void tst_WebService::callsMayBeNested()
{
    RawServer searchServer;
    searchServer.closes = false; // Says nothing until it is released.
    RawServer locationServer;
    locationServer.answer = httpAnswer(200, centreReply);
    bool isInnerFound = false;
    int inners = 0;
    // From the event loop, as a timer of the program would.
    searchServer.onRequest = [&] {
        QTimer::singleShot(0, &searchServer, [&] {
            SetServerIP(locationServer.address());
            isInnerFound = findsCentre() && findsCentre();
            ++inners;
            searchServer.release(httpAnswer(200, placesReply));
        });
    };
    SetServerIP(searchServer.address());
    QCOMPARE(GetSearchRet("x"), Places({{"a", "1,2"}}));
    QCOMPARE(inners, 1);
    QVERIFY(isInnerFound);
}

void tst_WebService::quittingTheProgramEndsTheCall()
{
    RawServer server;
    server.closes = false;
    server.onRequest = [] { QCoreApplication::quit(); };
    SetServerIP(server.address());
    const Heartbeat heartbeat;
    Places found = {{"not", "asked"}};
    QTimer::singleShot(0, &server, [&found] { found = GetSearchRet("x"); });
    QCoreApplication::exec();
    QCOMPARE(found, Places());
    QVERIFY(heartbeat.elapsed() < searchLimit);
}

void tst_WebService::nothingIsLeftBehind()
{
    RawServer server;
    SetServerIP(server.address());
    const int filesBefore = ProcessCounts::files();
    const int threadsBefore = ProcessCounts::threads();
    const QVector<QByteArray> answers = {httpAnswer(200, centreReply), httpAnswer(500, ""),
                                         QByteArray(), httpAnswer(200, "{", 100)};
    for (int i = 0; i < 100; ++i) {
        server.answer = answers[i % answers.size()];
        QCOMPARE(findsCentre(), i % answers.size() == 0);
    }
    QTRY_COMPARE(server.openConnections(), 0);
    // Fewer when something of an earlier call was still on its way out.
    QTRY_VERIFY(ProcessCounts::files() <= filesBefore);
    QTRY_VERIFY(ProcessCounts::threads() <= threadsBefore);
}

QTEST_GUILESS_MAIN(tst_WebService)
#include "tst_WebService.moc"
