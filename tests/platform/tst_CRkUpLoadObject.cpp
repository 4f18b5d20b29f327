// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/PostServer.h"
#include "support/RawServer.h"

#include <RkProjectDbOperator/CRkUpLoadObject.h>
#include <RkProjectDbOperator/ReferenceSettings.h>

#include <QThread>
#include <QtTest>

#include <atomic>
#include <memory>

namespace {

QStringList messages;

void collectMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    messages.append(text);
}

/// An upload object on a thread of its own, and what it has signalled, as the GUI thread sees it.
class Upload : public QObject
{
public:
    explicit Upload(bool start = true)
        : object(std::make_unique<CRkUpLoadObject>())
    {
        connect(object.get(), &CRkUpLoadObject::upLoadFinished, this,
                [this](const QByteArray& reply) {
                    outcomes.append("finished");
                    replies.append(reply);
                });
        connect(object.get(), &CRkUpLoadObject::NetWorkError, this,
                [this] { outcomes.append("error"); });
        connect(object.get(), &CRkUpLoadObject::NoLogin, this,
                [this] { outcomes.append("login"); });
        connect(object.get(), &CRkUpLoadObject::uploadProgress, this,
                [this](qint64 sent, qint64 total) {
                    progress.append({sent, total});
                });
        object->moveToThread(&thread);
        if (start)
            thread.start();
    }

    ~Upload() override { stop(); }

    void post(const QByteArray& url, const QByteArray& body)
    {
        object->SetUrl(url);
        object->SetFilePathArray(body);
        object->PostNetWorkReplyMessage();
    }

    void stop()
    {
        thread.quit();
        thread.wait();
    }

    /// Waits until all that the object's thread has begun is done and has arrived here.
    void settle()
    {
        QMetaObject::invokeMethod(
            object.get(), [] {}, Qt::BlockingQueuedConnection);
        QCoreApplication::processEvents();
    }

    QThread thread;
    std::unique_ptr<CRkUpLoadObject> object;
    QStringList outcomes;
    QVector<QByteArray> replies;
    QVector<QPair<qint64, qint64>> progress;
};

QByteArray answerOf(int status, const QByteArray& headers = QByteArray())
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Text\r\n" + headers
        + "Content-Length: 4\r\n\r\nbody";
}

} // namespace

class tst_CRkUpLoadObject : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sendsThePost();
    void contentTypeCanBeSet();
    void outcomeFollowsTheStatus_data();
    void outcomeFollowsTheStatus();
    void failures_data();
    void failures();
    void serviceThatIsNotThere();
    void serviceThatHangsUp();
    void serviceThatSpeaksNoHttp();
    void serviceThatStandsStill();
    void answerWithoutEnd();
    void answerThatIsPacked();
    void withoutLimitOfTime_data();
    void withoutLimitOfTime();
    void signalsComeFromTheObjectsThread();
    void nothingIsSignalledDuringTheCall();
    void worksWithoutAThread();
    void everyPostHasItsOwnOutcome();
    void postBeforeTheThreadStarts();
    void progressReachesTheEnd();
    void stoppingTheThreadFailsThePost();
    void deletedWithAPostUnderWay_data();
    void deletedWithAPostUnderWay();
    void deletedBeforeThePostBegan();
    void newObjectOnTheSameThread();

private:
    QtMessageHandler m_previousHandler = nullptr;
};

void tst_CRkUpLoadObject::init()
{
    messages.clear();
    m_previousHandler = qInstallMessageHandler(collectMessage);
}

void tst_CRkUpLoadObject::cleanup()
{
    qInstallMessageHandler(m_previousHandler);
    SetUploadTimeout(60000);
    QCOMPARE(messages, QStringList());
}

void tst_CRkUpLoadObject::sendsThePost()
{
    PostServer service;
    service.answer =
        QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n") + QByteArray("a\0b&c", 5);
    QByteArray body("data={\"a\":\"x&y=%41+\xe9\xa1\xb9\"}\r\n");
    body.append('\0').append('\xff');
    Upload upload;
    upload.object->setRawHeader("token", "first");
    upload.object->setRawHeader("token", "secret");
    upload.object->setRawHeader("X-Other", "1");
    upload.post(service.url("/noflyzone/uploadLift"), body);
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
    QCOMPARE(upload.replies.first(), QByteArray("a\0b&c", 5));

    QCOMPARE(service.requests.size(), 1);
    const PostServer::Request& request = service.requests.first();
    QCOMPARE(request.body, body);
    const QList<QByteArray> lines = request.head.split('\n');
    QCOMPARE(lines.first().trimmed(), QByteArray("POST /noflyzone/uploadLift HTTP/1.1"));
    QCOMPARE(lines.count("token: secret\r"), 1);
    QVERIFY(!request.head.contains("first"));
    QVERIFY(request.head.contains("X-Other: 1"));
    QVERIFY(request.head.contains("Content-Type: application/x-www-form-urlencoded\r\n"));
}

void tst_CRkUpLoadObject::contentTypeCanBeSet()
{
    PostServer service;
    Upload upload;
    upload.object->setRawHeader("Content-Type", "application/json");
    upload.post(service.url(), "{}");
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
    QVERIFY(service.requests.first().head.contains("Content-Type: application/json"));
    QVERIFY(!service.requests.first().head.contains("urlencoded"));
}

void tst_CRkUpLoadObject::outcomeFollowsTheStatus_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("200") << answerOf(200) << "finished";
    QTest::newRow("201") << answerOf(201) << "finished";
    QTest::newRow("204 without body")
        << QByteArray("HTTP/1.1 204 No Content\r\n\r\n") << "finished";
    QTest::newRow("302") << answerOf(302, "Location: /login\r\n") << "error";
    QTest::newRow("304") << QByteArray("HTTP/1.1 304 Not Modified\r\n\r\n") << "error";
    QTest::newRow("400") << answerOf(400) << "error";
    QTest::newRow("401") << answerOf(401) << "login";
    QTest::newRow("401 that asks for a password")
        << answerOf(401, "WWW-Authenticate: Basic realm=\"x\"\r\n") << "login";
    QTest::newRow("403") << answerOf(403) << "login";
    QTest::newRow("404") << answerOf(404) << "error";
    QTest::newRow("407") << answerOf(407) << "error";
    QTest::newRow("500") << answerOf(500) << "error";
    QTest::newRow("503") << answerOf(503) << "error";
    QTest::newRow("chunks") << QByteArray(
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nab\r\n0\r\n\r\n")
                            << "finished";
}

void tst_CRkUpLoadObject::outcomeFollowsTheStatus()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, outcome);
    PostServer service;
    service.answer = answer;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_VERIFY(!upload.outcomes.isEmpty());
    upload.settle();
    QCOMPARE(upload.outcomes, QStringList(outcome));
    QCOMPARE(service.requests.size(), 1);
}

void tst_CRkUpLoadObject::failures_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no scheme") << QByteArray("127.0.0.1/upload");
    QTest::newRow("unknown scheme") << QByteArray("gopher://127.0.0.1/");
    QTest::newRow("no host") << QByteArray("http://");
    QTest::newRow("impossible port") << QByteArray("http://127.0.0.1:99999/");
}

void tst_CRkUpLoadObject::failures()
{
    QFETCH(QByteArray, url);
    Upload upload;
    upload.post(url, "data=x");
    QTRY_VERIFY(!upload.outcomes.isEmpty());
    upload.settle();
    QCOMPARE(upload.outcomes, QStringList("error"));
}

void tst_CRkUpLoadObject::serviceThatIsNotThere()
{
    const QByteArray url = PostServer().url(); // Its port is free again.
    Upload upload;
    upload.post(url, "data=x");
    QTRY_COMPARE(upload.outcomes, QStringList("error"));
}

void tst_CRkUpLoadObject::serviceThatHangsUp()
{
    PostServer service;
    service.behaviour = PostServer::HangsUp;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_VERIFY(!upload.outcomes.isEmpty());
    upload.settle();
    QCOMPARE(upload.outcomes, QStringList("error"));
}

void tst_CRkUpLoadObject::serviceThatSpeaksNoHttp()
{
    PostServer service;
    service.answer = "hello\r\n\r\n";
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_VERIFY(!upload.outcomes.isEmpty());
    upload.settle();
    QCOMPARE(upload.outcomes, QStringList("error"));
}

void tst_CRkUpLoadObject::serviceThatStandsStill()
{
    SetUploadTimeout(50);
    PostServer service;
    service.behaviour = PostServer::KeepsSilent;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(upload.outcomes, QStringList("error"));
    upload.settle();
    QCOMPARE(upload.outcomes.size(), 1);
}

void tst_CRkUpLoadObject::answerWithoutEnd()
{
    RawServer service;
    service.answer = "HTTP/1.1 200 OK\r\n\r\n";
    service.refrain = QByteArray(1024 * 1024, ' ');
    Upload upload;
    upload.post(service.address() + "/", "data=x");
    QTRY_VERIFY(!upload.outcomes.isEmpty());
    upload.settle();
    QCOMPARE(upload.outcomes, QStringList("error"));
    // The buffers on its way, the toolkit's and the system's, hold as much again and more.
    constexpr qint64 most = 128 * 1024 * 1024;
    QVERIFY2(service.refrainsTaken < most, qPrintable(QString::number(service.refrainsTaken)));
}

/// It stays packed: however small, it could be of any size.
void tst_CRkUpLoadObject::answerThatIsPacked()
{
    PostServer service;
    const QByteArray packed = qCompress("body").mid(4);
    service.answer = "HTTP/1.1 200 OK\r\nContent-Encoding: deflate\r\nContent-Length: "
        + QByteArray::number(packed.size()) + "\r\n\r\n" + packed;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
    QCOMPARE(upload.replies.first(), packed);
    QVERIFY(service.requests.first().head.contains("Accept-Encoding: identity"));
}

void tst_CRkUpLoadObject::withoutLimitOfTime_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("0") << 0;
    QTest::newRow("below 0") << -1;
}

void tst_CRkUpLoadObject::withoutLimitOfTime()
{
    QFETCH(int, milliseconds);
    SetUploadTimeout(milliseconds);
    PostServer service;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
}

void tst_CRkUpLoadObject::signalsComeFromTheObjectsThread()
{
    PostServer service;
    Upload upload;
    std::atomic<QThread*> sender{nullptr};
    connect(
        upload.object.get(), &CRkUpLoadObject::upLoadFinished, upload.object.get(),
        [&sender] { sender = QThread::currentThread(); }, Qt::DirectConnection);
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
    QCOMPARE(sender.load(), &upload.thread);
}

void tst_CRkUpLoadObject::nothingIsSignalledDuringTheCall()
{
    CRkUpLoadObject object;
    QSignalSpy failed(&object, &CRkUpLoadObject::NetWorkError);
    object.PostNetWorkReplyMessage();
    QCOMPARE(failed.count(), 0);
    QTRY_COMPARE(failed.count(), 1);
}

void tst_CRkUpLoadObject::worksWithoutAThread()
{
    PostServer service;
    CRkUpLoadObject object;
    QSignalSpy finished(&object, &CRkUpLoadObject::upLoadFinished);
    object.SetUrl(service.url());
    object.SetFilePathArray("data=x");
    object.PostNetWorkReplyMessage();
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toByteArray(), QByteArray("ok"));
}

void tst_CRkUpLoadObject::everyPostHasItsOwnOutcome()
{
    PostServer service;
    Upload upload;
    for (int i = 0; i < 10; ++i)
        upload.post(service.url("/" + QByteArray::number(i)), "data=" + QByteArray::number(i));
    QTRY_COMPARE(upload.outcomes.size(), 10);
    upload.settle();
    QCOMPARE(upload.outcomes.count("finished"), 10);
    QCOMPARE(service.requests.size(), 10);
    for (const PostServer::Request& request : qAsConst(service.requests))
        QVERIFY(request.head.startsWith("POST /" + request.body.mid(5)
                                        + " ")); // Address and body of one call.
}

void tst_CRkUpLoadObject::postBeforeTheThreadStarts()
{
    PostServer service;
    Upload upload(false);
    upload.post(service.url(), "data=x");
    QCoreApplication::processEvents();
    QCOMPARE(service.connections, 0);
    upload.thread.start();
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
}

void tst_CRkUpLoadObject::progressReachesTheEnd()
{
    PostServer service;
    const QByteArray body(3 * 1024 * 1024, 'x');
    Upload upload;
    upload.post(service.url(), body);
    QTRY_COMPARE(upload.outcomes, QStringList("finished"));
    QCOMPARE(service.requests.first().body, body);
    QVERIFY(upload.progress.contains({body.size(), body.size()}));
}

void tst_CRkUpLoadObject::stoppingTheThreadFailsThePost()
{
    PostServer service;
    service.behaviour = PostServer::KeepsSilent;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(service.requests.size(), 1);
    upload.stop();
    QTRY_COMPARE(upload.outcomes, QStringList("error"));

    // Started again the thread serves the object again.
    service.behaviour = PostServer::Answers;
    upload.thread.start();
    upload.post(service.url(), "data=y");
    QTRY_COMPARE(upload.outcomes, QStringList({"error", "finished"}));
}

void tst_CRkUpLoadObject::deletedWithAPostUnderWay_data()
{
    QTest::addColumn<int>("behaviour");
    QTest::newRow("answer awaited") << int(PostServer::KeepsSilent);
    QTest::newRow("body half sent") << int(PostServer::StopsReading);
}

void tst_CRkUpLoadObject::deletedWithAPostUnderWay()
{
    QFETCH(int, behaviour);
    PostServer service;
    service.behaviour = PostServer::Behaviour(behaviour);
    Upload upload;
    const bool isWhole = service.behaviour == PostServer::KeepsSilent;
    upload.post(service.url(), QByteArray(isWhole ? 1024 : 32 * 1024 * 1024, 'x'));
    if (isWhole)
        QTRY_COMPARE(service.requests.size(), 1);
    else
        QTRY_COMPARE(service.connections, 1);
    upload.stop();
    upload.object.reset();
    QCoreApplication::processEvents();
    QCOMPARE(upload.outcomes, QStringList("error"));
}

void tst_CRkUpLoadObject::deletedBeforeThePostBegan()
{
    PostServer service;
    Upload upload(false);
    upload.post(service.url(), "data=x");
    upload.object.reset();
    upload.thread.start();
    upload.stop();
    QCoreApplication::processEvents();
    QCOMPARE(upload.outcomes, QStringList());
    QCOMPARE(service.connections, 0);
}

void tst_CRkUpLoadObject::newObjectOnTheSameThread()
{
    PostServer service;
    service.behaviour = PostServer::HangsUp;
    Upload upload;
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(upload.outcomes, QStringList("error"));

    upload.stop();
    upload.object = std::make_unique<CRkUpLoadObject>();
    int answers = 0;
    connect(upload.object.get(), &CRkUpLoadObject::upLoadFinished, this, [&answers] { ++answers; });
    upload.object->moveToThread(&upload.thread);
    service.behaviour = PostServer::Answers;
    upload.thread.start();
    upload.post(service.url(), "data=x");
    QTRY_COMPARE(answers, 1);
}

QTEST_GUILESS_MAIN(tst_CRkUpLoadObject)
#include "tst_CRkUpLoadObject.moc"
