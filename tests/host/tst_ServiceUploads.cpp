// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "ServiceRequests.h"
#include "support/LocalService.h"
#include "support/MessageLog.h"
#include "support/ProcessCounts.h"
#include "support/TestSupport.h"

#include <RkProjectDbOperator/CRkUpLoadObject.h>
#include <RkProjectDbOperator/ReferenceSettings.h>

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

namespace {

/// An upload object on a thread of its own, and its outcomes as the GUI thread sees them.
class Upload : public QObject
{
public:
    explicit Upload(const QByteArray& address)
        : object(std::make_unique<CRkUpLoadObject>())
    {
        connect(object.get(), &CRkUpLoadObject::upLoadFinished, this,
                [this](const QByteArray& body) {
                    outcomes.append("finished");
                    reply = body;
                });
        connect(object.get(), &CRkUpLoadObject::NetWorkError, this,
                [this] { outcomes.append("error"); });
        connect(object.get(), &CRkUpLoadObject::NoLogin, this,
                [this] { outcomes.append("login"); });
        connect(
            object.get(), &CRkUpLoadObject::uploadProgress, this,
            [this](qint64 sent, qint64 total) { isSent = isSent || (sent > 0 && sent == total); });
        object->SetUrl(address + "/noflyzone/uploadLift");
        object->setRawHeader("token", "secret");
        object->moveToThread(&thread);
        thread.start();
    }

    ~Upload() override { stop(); }

    void post(const QByteArray& body = "data=" + applicationJson())
    {
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
    QByteArray reply;
    bool isSent = false; ///< the whole body is with the system
};

} // namespace

/// Uploads to the service of this application, as good and as bad as it can be.
class tst_ServiceUploads : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void outcomes_data();
    void outcomes();
    void refusals_data();
    void refusals();
    void documentArrivesWhole_data();
    void documentArrivesWhole();
    void serviceThatStandsStill_data();
    void serviceThatStandsStill();
    void serviceDiesBeforeTheBody();
    void serviceDiesDuringTheBody();
    void serviceDiesAfterTheBody();
    void deletedInEveryFault_data();
    void deletedInEveryFault();
    void fiftyRetriesLeaveNothing_data();
    void fiftyRetriesLeaveNothing();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_store;
    MessageLog m_log;
};

void tst_ServiceUploads::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_store = m_dir->filePath("service.db");
    m_log.start();
}

void tst_ServiceUploads::cleanup()
{
    SetUploadTimeout(60000);
    QCOMPARE(m_log.stop(), QStringList());
}

void tst_ServiceUploads::outcomes_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("none") << ""
                          << "finished";
    QTest::newRow("delay") << "delay:200"
                           << "finished";
    QTest::newRow("trickle") << "trickle:2"
                             << "finished";
    QTest::newRow("garbage, which is not looked at") << "garbage"
                                                     << "finished";
    QTest::newRow("stall that ends") << "stall:200"
                                     << "error";
    QTest::newRow("cut in the answer") << "cut"
                                       << "error";
    QTest::newRow("500") << "500"
                         << "error";
    QTest::newRow("401") << "401"
                         << "login";
}

void tst_ServiceUploads::outcomes()
{
    QFETCH(QString, fault);
    QFETCH(QString, outcome);
    WebServiceServer server(LocalService::options(m_store, fault));
    QVERIFY(server.start());
    Upload upload(server.address());
    upload.post();
    QTRY_VERIFY(!upload.outcomes.isEmpty());
    upload.settle();
    QCOMPARE(upload.outcomes, QStringList(outcome));
}

void tst_ServiceUploads::refusals_data()
{
    QTest::addColumn<QByteArray>("token");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("outcome");
    const QByteArray path = "/noflyzone/uploadLift";
    const QByteArray body = "data=" + applicationJson();
    QTest::newRow("wrong token") << QByteArray("other") << path << body << "login";
    QTest::newRow("empty token") << QByteArray("") << path << body << "login";
    QTest::newRow("no application")
        << QByteArray("secret") << path << QByteArray("data=") << "error";
    QTest::newRow("wrong path") << QByteArray("secret") << QByteArray("/noflyzone") << body
                                << "error";
}

void tst_ServiceUploads::refusals()
{
    QFETCH(QByteArray, token);
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, body);
    QFETCH(QString, outcome);
    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    Upload upload(server.address());
    upload.object->SetUrl(server.address() + path);
    upload.object->setRawHeader("token", token);
    upload.post(body);
    QTRY_COMPARE(upload.outcomes, QStringList(outcome));
    QCOMPARE(readSql(m_store, "SELECT count(*) FROM lift_application"), QStringList("0"));
}

void tst_ServiceUploads::documentArrivesWhole_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("4 bytes") << 4;
    QTest::newRow("20 MB") << 20 * 1024 * 1024;
}

void tst_ServiceUploads::documentArrivesWhole()
{
    QFETCH(int, size);
    QByteArray document(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        document[i] = char(i * 31 + i / 251);
    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    Upload upload(server.address());
    upload.post("data=" + applicationJson("江").replace("dGV4dA==", document.toBase64()));
    QTRY_COMPARE_WITH_TIMEOUT(upload.outcomes, QStringList("finished"), 60000);
    QCOMPARE(upload.reply, QByteArray(R"({"data":{"number":1},"status":1})"));
    QVERIFY(upload.isSent);
    QCOMPARE(readSql(m_store, "SELECT name FROM lift_application"),
             QStringList(QString::fromUtf8("江")));
    const QStringList hex = readSql(m_store, "SELECT hex(document) FROM lift_application");
    QVERIFY(QByteArray::fromHex(hex.value(0).toLatin1()) == document);
}

void tst_ServiceUploads::serviceThatStandsStill_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("before the answer") << "stall";
    QTest::newRow("in the answer") << "trickle:60000";
}

void tst_ServiceUploads::serviceThatStandsStill()
{
    QFETCH(QString, fault);
    SetUploadTimeout(300);
    WebServiceServer server(LocalService::options(m_store, fault));
    QVERIFY(server.start());
    Upload upload(server.address());
    upload.post();
    QTRY_COMPARE(upload.outcomes, QStringList("error"));
    upload.settle();
    QCOMPARE(upload.outcomes.size(), 1);
}

void tst_ServiceUploads::serviceDiesBeforeTheBody()
{
    QProcess program;
    const QByteArray address = LocalService::start(program, m_store);
    program.kill();
    QVERIFY(program.waitForFinished());
    Upload upload(address);
    upload.post();
    QTRY_COMPARE(upload.outcomes, QStringList("error"));
}

void tst_ServiceUploads::serviceDiesDuringTheBody()
{
    QProcess program;
    const QByteArray address = LocalService::start(program, m_store);
    // While it is stopped, the system takes the connection and as much of the body as it buffers.
    QVERIFY(LocalService::suspend(program));
    Upload upload(address);
    QSignalSpy progress(upload.object.get(), &CRkUpLoadObject::uploadProgress);
    upload.post(QByteArray(64 * 1024 * 1024, 'x'));
    QTRY_VERIFY(!progress.isEmpty());
    QVERIFY(!upload.isSent);
    program.kill();
    QVERIFY(program.waitForFinished());
    QTRY_COMPARE(upload.outcomes, QStringList("error"));
    upload.settle();
    QCOMPARE(upload.outcomes.size(), 1);
}

void tst_ServiceUploads::serviceDiesAfterTheBody()
{
    QProcess program;
    const QByteArray address = LocalService::start(program, m_store, {"--fault", "stall"});
    Upload upload(address);
    upload.post();
    QTRY_VERIFY(upload.isSent);
    program.kill();
    QVERIFY(program.waitForFinished());
    QTRY_COMPARE(upload.outcomes, QStringList("error"));
}

void tst_ServiceUploads::deletedInEveryFault_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("none") << "";
    QTest::newRow("delay") << "delay:60000";
    QTest::newRow("stall") << "stall";
    QTest::newRow("cut") << "cut";
    QTest::newRow("500") << "500";
    QTest::newRow("401") << "401";
    QTest::newRow("garbage") << "garbage";
    QTest::newRow("trickle") << "trickle:60000";
}

void tst_ServiceUploads::deletedInEveryFault()
{
    QFETCH(QString, fault);
    WebServiceServer server(LocalService::options(m_store, fault));
    QVERIFY(server.start());
    Upload upload(server.address());
    upload.post();
    QTRY_VERIFY(upload.isSent);
    upload.stop();
    upload.object.reset();
    QCoreApplication::processEvents();
    QCOMPARE(upload.outcomes.size(), 1);
}

void tst_ServiceUploads::fiftyRetriesLeaveNothing_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("none") << "";
    QTest::newRow("stall") << "stall";
    QTest::newRow("cut") << "cut";
}

void tst_ServiceUploads::fiftyRetriesLeaveNothing()
{
    QFETCH(QString, fault);
    QProcess program;
    const QByteArray address = LocalService::start(
        program, m_store, fault.isEmpty() ? QStringList() : QStringList{"--fault", fault});
    QVERIFY(!address.isEmpty());
    {
        Upload first(address); // The toolkit opens some files at the first request only.
        first.post();
        QTRY_VERIFY(first.isSent);
    }
    const int filesBefore = ProcessCounts::files();
    const int threadsBefore = ProcessCounts::threads();
    for (int i = 0; i < 50; ++i) {
        Upload upload(address);
        upload.post();
        QTRY_VERIFY(upload.isSent);
        upload.stop();
        upload.object.reset();
        QCoreApplication::processEvents();
        QCOMPARE(upload.outcomes.size(), 1);
    }
    // Fewer when something of the first upload was still on its way out.
    QTRY_VERIFY(ProcessCounts::files() <= filesBefore);
    QTRY_VERIFY(ProcessCounts::threads() <= threadsBefore);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_ServiceUploads)
#include "tst_ServiceUploads.moc"
