// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkNoflyApplyUpload.h>

#include "support/Brackets.h"
#include "support/MessageLog.h"
#include "support/PostServer.h"
#include "support/ProcessCounts.h"

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkAlgorthm/RkAlgorthm.h>
#include <RkProjectDbOperator/ReferenceSettings.h>

#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace {

const QString failed = QStringLiteral("UpLoad File Failed.");
const QByteArray json = R"({"name":"a&b=%41+"})";

QString prompt(const QWidget& window)
{
    return window.findChild<QLabel*>("m_pPromptLabel")->text();
}

QPushButton* retryButton(const QWidget& window)
{
    return window.findChild<QPushButton*>("m_pBtnRetry");
}

QPushButton* cancelButton(const QWidget& window)
{
    return window.findChild<QPushButton*>("m_pBtnCancel");
}

QProgressBar* bar(const QWidget& window)
{
    return window.findChild<QProgressBar*>("m_pProgressBar");
}

bool isRetryOffered(const QWidget& window)
{
    return !retryButton(window)->isHidden();
}

QByteArray answerOf(int status)
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Text\r\nContent-Length: 4\r\n\r\nbody";
}

/// Every state that `inState` knows.
constexpr std::array<const char*, 9> states = {
    "fresh",  "begun",         "body half sent", "answer awaited",  "finished",
    "failed", "not logged in", "retry begun",    "retry under way",
};

/// Lets everything arrive that is already on its way between the threads of this process.
void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

class tst_CRkNoflyApplyUpload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void construction();
    void metaObject();
    void textsAreOfTheClassContext();
    void nothingToStart();

    void sendsTheDocument();
    void tokenIsLatin1();
    void acceptsWithAnyReply_data();
    void acceptsWithAnyReply();
    void execReturnsWhenFinished();
    void showsProgress();
    void failures_data();
    void failures();
    void serviceThatIsNotThere();
    void serviceThatStandsStill();
    void userThatIsNotLoggedIn_data();
    void userThatIsNotLoggedIn();
    void beginWhileTheThreadRuns_data();
    void beginWhileTheThreadRuns();
    void beginAfterAFailure();
    void beginWhenAccepted();
    void beginAfterAStop_data();
    void beginAfterAStop();

    void setUpLoadRet();
    void setUpLoadRetEndsARequest();
    void ownTexts();

    void retries();
    void retryBeforeTheFirstStart();
    void retryTwiceAtOnce();
    void retryWhileARequestIsUnderWay();
    void retrySendsNoSignal();
    void fiftyRetries_data();
    void fiftyRetries();

    void closedInEveryState_data();
    void closedInEveryState();
    void destroyedInEveryState_data();
    void destroyedInEveryState();
    void answerAfterClosingAccepts();
    void deletesItselfOnClose();

private:
    /// A window that has come into the state of the current row.
    std::unique_ptr<CRkNoflyApplyUpload> inState(const QString& state);
    int threadsOfUploads() const { return ProcessCounts::threads() - m_threads; }

    std::unique_ptr<PostServer> m_server;
    int m_threads = 0;
    MessageLog m_log;
};

/// The toolkit opens some files and threads for the first window and at the first request.
void tst_CRkNoflyApplyUpload::initTestCase()
{
    const PostServer server;
    SetServerIP(server.address());
    CRkNoflyApplyUpload first(nullptr);
    first.BeginUpload(json);
    QCOMPARE(first.exec(true), int(QDialog::Accepted));
}

void tst_CRkNoflyApplyUpload::init()
{
    m_log.start();
    m_server = std::make_unique<PostServer>();
    SetServerIP(m_server->address());
    SetCurUserInfo({"secret", "1", "Wang"});
    m_threads = ProcessCounts::threads();
}

void tst_CRkNoflyApplyUpload::cleanup()
{
    SetUploadTimeout(60000);
    m_server.reset();
    QCOMPARE(m_log.stop(), QStringList());
}

void tst_CRkNoflyApplyUpload::construction()
{
    const CRkNoflyApplyUpload window(nullptr);
    QCOMPARE(window.findChild<QLabel*>("m_pLalTitle")->text(), QString("UpLoad Apply File"));
    QCOMPARE(prompt(window), QString("UpLoading ......"));
    QVERIFY(!isRetryOffered(window));
    QVERIFY(window.findChild<QPushButton*>("m_pBtnClose")->isHidden());
    QVERIFY(!cancelButton(window)->isHidden());
    QCOMPARE(cancelButton(window)->text(), QString("Cancel"));
    QCOMPARE(bar(window)->value(), 0);
    QVERIFY(!window.isRetrying());
    QVERIFY(window.isWindow());
    QCOMPARE(window.windowModality(), Qt::ApplicationModal);
    QCOMPARE(int(window.windowFlags()), 0x40801); // The part of a window comes by itself.
    QTRY_VERIFY(threadsOfUploads() <= 0);
    QWidget parent;
    QCOMPARE(CRkNoflyApplyUpload(&parent).parentWidget(), &parent);
}

void tst_CRkNoflyApplyUpload::metaObject()
{
    const QMetaObject& meta = CRkNoflyApplyUpload::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkProgressWgt::staticMetaObject);
    QList<QByteArray> signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        signatures.append(meta.method(i).methodSignature());
    }
    QCOMPARE(signatures,
             QList<QByteArray>({"slotStartUpload()", "slotUpLoadFinished(QByteArray)",
                                "slotUploadNetWorkError()", "slotNoLogin()",
                                "slotStartCurrentDownLoadProcess(QString)", "slotUpgradeRet(bool)",
                                "slotBtnRetryClicked()"}));
}

void tst_CRkNoflyApplyUpload::textsAreOfTheClassContext()
{
    Brackets brackets("CRkNoflyApplyUpload");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    CRkNoflyApplyUpload window(nullptr);
    QCOMPARE(window.findChild<QLabel*>("m_pLalTitle")->text(), QString("[UpLoad Apply File]"));
    QCOMPARE(prompt(window), QString("[UpLoading ......]"));
    window.slotUploadNetWorkError();
    QCOMPARE(prompt(window), '[' + failed + ']');
    window.slotNoLogin();
    QCOMPARE(prompt(window), QString("[No Login!]"));
    window.SetUpLoadRet(false);
    QCOMPARE(prompt(window), '[' + failed + ']');
    window.SetUpLoadRet(true);
    QCOMPARE(prompt(window), QString("[UpLoad File Finished.]"));
    QCOMPARE(cancelButton(window)->text(), QString("[OK]"));
    window.slotBtnRetryClicked();
    QCOMPARE(prompt(window), QString("[Retry...]"));
}

void tst_CRkNoflyApplyUpload::nothingToStart()
{
    CRkNoflyApplyUpload window(nullptr);
    window.slotStartUpload();
    settle();
    QCOMPARE(m_server->connections, 0);
}

void tst_CRkNoflyApplyUpload::sendsTheDocument()
{
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.BeginUpload(json);
    QTRY_COMPARE(accepted.count(), 1);
    QCOMPARE(m_server->requests.size(), 1);
    const PostServer::Request request = m_server->requests.first();
    const QList<QByteArray> lines = request.head.split('\n');
    QCOMPARE(lines.first().trimmed(), QByteArray("POST /noflyzone/uploadLift HTTP/1.1"));
    QCOMPARE(lines.count("token: secret\r"), 1);
    QCOMPARE(request.body, "data=" + json);
    QCOMPARE(window.result(), int(QDialog::Accepted));
    QTRY_VERIFY(threadsOfUploads() <= 0);
    QVERIFY(!window.isRetrying());
}

void tst_CRkNoflyApplyUpload::tokenIsLatin1()
{
    SetCurUserInfo({QString::fromUtf8("t\xc3\xb6ken"), "1", "Wang"});
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.BeginUpload(json);
    QTRY_COMPARE(accepted.count(), 1);
    QVERIFY(m_server->requests.first().head.contains("token: t\xf6ken\r\n"));
}

void tst_CRkNoflyApplyUpload::acceptsWithAnyReply_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("text") << answerOf(200);
    QTest::newRow("empty") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
    QTest::newRow("no content") << QByteArray("HTTP/1.1 204 No Content\r\n\r\n");
    QTest::newRow("JSON of a refusal")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 12\r\n\r\n{\"status\":2}");
}

void tst_CRkNoflyApplyUpload::acceptsWithAnyReply()
{
    QFETCH(QByteArray, answer);
    m_server->answer = answer;
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.BeginUpload(json);
    QTRY_COMPARE(accepted.count(), 1);
    QVERIFY(!isRetryOffered(window));
}

void tst_CRkNoflyApplyUpload::execReturnsWhenFinished()
{
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(json);
    QCOMPARE(window.exec(true), int(QDialog::Accepted));
    QVERIFY(!window.isVisible());
}

void tst_CRkNoflyApplyUpload::showsProgress()
{
    const QByteArray document(8 * 1024 * 1024, 'x');
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    QSignalSpy values(bar(window), &QProgressBar::valueChanged);
    window.BeginUpload(document);
    QTRY_COMPARE_WITH_TIMEOUT(accepted.count(), 1, 30000);
    QCOMPARE(bar(window)->maximum(), document.size() + 5);
    QCOMPARE(bar(window)->value(), document.size() + 5);
    int last = 0;
    for (const QList<QVariant>& value : values) {
        QVERIFY(value.first().toInt() >= last);
        last = value.first().toInt();
    }
}

void tst_CRkNoflyApplyUpload::failures_data()
{
    QTest::addColumn<int>("behaviour");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("hangs up") << int(PostServer::HangsUp) << QByteArray();
    QTest::newRow("400") << int(PostServer::Answers) << answerOf(400);
    QTest::newRow("404") << int(PostServer::Answers) << answerOf(404);
    QTest::newRow("500") << int(PostServer::Answers) << answerOf(500);
    QTest::newRow("no HTTP") << int(PostServer::Answers) << QByteArray("hello\r\n\r\n");
}

void tst_CRkNoflyApplyUpload::failures()
{
    QFETCH(int, behaviour);
    QFETCH(QByteArray, answer);
    m_server->behaviour = PostServer::Behaviour(behaviour);
    m_server->answer = answer;
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy ended(&window, &QDialog::finished);
    window.exec(false);
    window.BeginUpload(json);
    QTRY_COMPARE(prompt(window), failed);
    QVERIFY(isRetryOffered(window));
    QVERIFY(window.isVisible());
    QCOMPARE(ended.count(), 0);
    QTRY_VERIFY(threadsOfUploads() <= 0);
}

void tst_CRkNoflyApplyUpload::serviceThatIsNotThere()
{
    SetServerIP(PostServer().address()); // Its port is free again.
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(json);
    QTRY_COMPARE(prompt(window), failed);
    QVERIFY(isRetryOffered(window));
}

void tst_CRkNoflyApplyUpload::serviceThatStandsStill()
{
    SetUploadTimeout(50);
    m_server->behaviour = PostServer::KeepsSilent;
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(json);
    QTRY_COMPARE(prompt(window), failed);
    QVERIFY(isRetryOffered(window));
}

void tst_CRkNoflyApplyUpload::userThatIsNotLoggedIn_data()
{
    QTest::addColumn<int>("status");
    QTest::newRow("401") << 401;
    QTest::newRow("403") << 403;
}

void tst_CRkNoflyApplyUpload::userThatIsNotLoggedIn()
{
    QFETCH(int, status);
    m_server->answer = answerOf(status);
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy ended(&window, &QDialog::finished);
    window.exec(false);
    window.BeginUpload(json);
    QTRY_COMPARE(prompt(window), QString("No Login!"));
    QVERIFY(!isRetryOffered(window));
    QVERIFY(window.isVisible());
    QCOMPARE(ended.count(), 0);
}

void tst_CRkNoflyApplyUpload::beginWhileTheThreadRuns_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("request under way") << "answer awaited";
    QTest::newRow("user not logged in") << "not logged in";
}

/// The later document is the one that a retry sends.
void tst_CRkNoflyApplyUpload::beginWhileTheThreadRuns()
{
    QFETCH(QString, state);
    const auto window = inState(state);
    QVERIFY(window);
    m_server->behaviour = PostServer::Answers;
    m_server->answer = answerOf(200);
    window->BeginUpload("{}");
    // Whatever it sent would be there before what another sends after it.
    CRkNoflyApplyUpload another(nullptr);
    const QSignalSpy anotherAccepted(&another, &QDialog::accepted);
    another.BeginUpload("another");
    QTRY_COMPARE(anotherAccepted.count(), 1);
    QCOMPARE(m_server->requests.size(), 2);

    const QSignalSpy accepted(window.get(), &QDialog::accepted);
    window->slotBtnRetryClicked();
    QTRY_COMPARE(accepted.count(), 1);
    QCOMPARE(m_server->requests.size(), 3);
    QCOMPARE(m_server->requests.last().body, QByteArray("data={}"));
}

void tst_CRkNoflyApplyUpload::beginAfterAFailure()
{
    m_server->behaviour = PostServer::HangsUp;
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(json);
    QTRY_COMPARE(prompt(window), failed);
    m_server->behaviour = PostServer::Answers;
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.BeginUpload("{}");
    QTRY_COMPARE(accepted.count(), 1);
    QCOMPARE(m_server->requests.last().body, QByteArray("data={}"));
    QVERIFY(!window.isRetrying());
}

/// The thread has stopped by then, so that the next document goes out at once.
void tst_CRkNoflyApplyUpload::beginWhenAccepted()
{
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    connect(&window, &QDialog::accepted, &window, [&] {
        if (accepted.count() == 1)
            window.BeginUpload("{}");
    });
    window.BeginUpload(json);
    QTRY_COMPARE(accepted.count(), 2);
    QCOMPARE(m_server->requests.size(), 2);
    QCOMPARE(m_server->requests.last().body, QByteArray("data={}"));
}

void tst_CRkNoflyApplyUpload::beginAfterAStop_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("requestsBefore");
    QTest::newRow("start on its way") << "begun" << 0;
    QTest::newRow("request under way") << "answer awaited" << 1;
}

/// What the stopped upload has still to say is not taken for the next one's.
void tst_CRkNoflyApplyUpload::beginAfterAStop()
{
    QFETCH(QString, state);
    QFETCH(int, requestsBefore);
    const auto window = inState(state);
    QVERIFY(window);
    m_server->behaviour = PostServer::Answers;
    const QSignalSpy accepted(window.get(), &QDialog::accepted);
    window->SetUpLoadRet(false);
    window->BeginUpload("{}");
    QTRY_COMPARE(accepted.count(), 1);
    QCOMPARE(m_server->requests.last().body, QByteArray("data={}"));
    // Whatever else it sent would be there before what another sends after it.
    CRkNoflyApplyUpload another(nullptr);
    const QSignalSpy anotherAccepted(&another, &QDialog::accepted);
    another.BeginUpload("another");
    QTRY_COMPARE(anotherAccepted.count(), 1);
    QCOMPARE(m_server->requests.size(), requestsBefore + 2);
    QCOMPARE(accepted.count(), 1);
}

void tst_CRkNoflyApplyUpload::setUpLoadRet()
{
    CRkNoflyApplyUpload window(nullptr);
    window.exec(false);
    window.SetUpLoadRet(false);
    QVERIFY(isRetryOffered(window));
    QCOMPARE(prompt(window), failed);
    QCOMPARE(cancelButton(window)->text(), QString("Cancel"));
    window.SetUpLoadRet(true);
    QVERIFY(!isRetryOffered(window));
    QCOMPARE(prompt(window), QString("UpLoad File Finished."));
    QCOMPARE(cancelButton(window)->text(), QString("OK"));
    QVERIFY(window.isVisible());
}

void tst_CRkNoflyApplyUpload::setUpLoadRetEndsARequest()
{
    m_server->behaviour = PostServer::KeepsSilent;
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(json);
    QTRY_COMPARE(m_server->requests.size(), 1);
    window.SetUpLoadRet(true);
    QVERIFY(threadsOfUploads() > 0); // Goes on.
    window.SetUpLoadRet(false);
    QTRY_COMPARE(m_server->openConnections(), 0);
    QTRY_VERIFY(threadsOfUploads() <= 0);
    QVERIFY(isRetryOffered(window));
    QCOMPARE(prompt(window), failed);
}

void tst_CRkNoflyApplyUpload::ownTexts()
{
    CRkNoflyApplyUpload window(nullptr);
    window.slotStartCurrentDownLoadProcess("1 of 2");
    QCOMPARE(prompt(window), QString("1 of 2"));
    const QSignalSpy ended(&window, &QDialog::finished);
    for (bool ok : {true, false}) {
        window.slotUpgradeRet(ok);
        QCOMPARE(prompt(window), QString("1 of 2"));
        QVERIFY(!isRetryOffered(window));
        QCOMPARE(ended.count(), 0);
    }
}

void tst_CRkNoflyApplyUpload::retries()
{
    m_server->behaviour = PostServer::HangsUp;
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.exec(false);
    window.BeginUpload(json);
    QTRY_VERIFY(isRetryOffered(window));
    QVERIFY(!window.isRetrying());
    m_server->behaviour = PostServer::Answers;
    QTest::mouseClick(retryButton(window), Qt::LeftButton);
    QCOMPARE(prompt(window), QString("Retry..."));
    QVERIFY(!isRetryOffered(window));
    QVERIFY(window.isRetrying());
    QTRY_COMPARE(accepted.count(), 1);
    QCOMPARE(m_server->requests.last().body, "data=" + json);
    QCOMPARE(m_server->requests.last().head.count("token: secret"), 1);
}

void tst_CRkNoflyApplyUpload::retryBeforeTheFirstStart()
{
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.slotBtnRetryClicked();
    QTRY_COMPARE(accepted.count(), 1);
    QCOMPARE(m_server->requests.size(), 1);
    QCOMPARE(m_server->requests.first().body, QByteArray("data="));
}

/// The threads of both have started before either start has been heard of.
void tst_CRkNoflyApplyUpload::retryTwiceAtOnce()
{
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.BeginUpload(json);
    window.slotBtnRetryClicked();
    window.slotBtnRetryClicked();
    QTRY_COMPARE(accepted.count(), 1);
    settle();
    QCOMPARE(m_server->requests.size(), 1);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(prompt(window), QString("Retry..."));
}

void tst_CRkNoflyApplyUpload::retryWhileARequestIsUnderWay()
{
    m_server->behaviour = PostServer::KeepsSilent;
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(json);
    for (int i = 1; i <= 3; ++i) {
        QTRY_COMPARE(m_server->requests.size(), i);
        window.slotBtnRetryClicked();
        // The end of the one before says nothing of this one.
        settle();
        QCOMPARE(prompt(window), QString("Retry..."));
        QVERIFY(!isRetryOffered(window));
    }
    QTRY_COMPARE(m_server->requests.size(), 4);
    QTRY_COMPARE(m_server->openConnections(), 1);
    QCOMPARE(prompt(window), QString("Retry..."));
}

/// Unlike the base class: whoever listens would send a second time.
void tst_CRkNoflyApplyUpload::retrySendsNoSignal()
{
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy clicked(&window, &CRkProgressWgt::signalBtnRetryClicked);
    window.slotUploadNetWorkError();
    retryButton(window)->click();
    QCOMPARE(clicked.count(), 0);
}

void tst_CRkNoflyApplyUpload::fiftyRetries_data()
{
    QTest::addColumn<int>("behaviour");
    QTest::addColumn<int>("requests");
    QTest::newRow("each fails") << int(PostServer::Answers) << 51;
    QTest::newRow("each without an answer") << int(PostServer::KeepsSilent) << 51;
    QTest::newRow("none waited for") << int(PostServer::Answers) << 1;
}

void tst_CRkNoflyApplyUpload::fiftyRetries()
{
    QFETCH(int, behaviour);
    QFETCH(int, requests);
    m_server->behaviour = PostServer::Behaviour(behaviour);
    m_server->answer = answerOf(500);
    const int filesBefore = ProcessCounts::files();
    {
        CRkNoflyApplyUpload window(nullptr);
        window.BeginUpload(json);
        for (int i = 1; i <= 50; ++i) {
            if (requests > 1)
                QTRY_COMPARE(m_server->requests.size(), i);
            if (requests > 1 && behaviour == PostServer::Answers)
                QTRY_VERIFY(isRetryOffered(window));
            window.slotBtnRetryClicked();
        }
        QTRY_COMPARE(m_server->requests.size(), requests);
        QVERIFY(threadsOfUploads() <= 2); // The worker, and the toolkit's of its requests.
    }
    QTRY_COMPARE(m_server->openConnections(), 0);
    QTRY_VERIFY(ProcessCounts::files() <= filesBefore);
    QTRY_VERIFY(threadsOfUploads() <= 0);
}

std::unique_ptr<CRkNoflyApplyUpload> tst_CRkNoflyApplyUpload::inState(const QString& state)
{
    auto window = std::make_unique<CRkNoflyApplyUpload>(nullptr);
    window->exec(false);
    if (state == "fresh")
        return window;
    if (state == "body half sent")
        m_server->behaviour = PostServer::StopsReading;
    else if (state == "answer awaited")
        m_server->behaviour = PostServer::KeepsSilent;
    else if (state == "failed" || state.startsWith("retry"))
        m_server->answer = answerOf(500);
    else if (state == "not logged in")
        m_server->answer = answerOf(401);
    const QSignalSpy accepted(window.get(), &QDialog::accepted);
    window->BeginUpload(state == "body half sent" ? QByteArray(64'000'000, 'x') : json);

    // Each state comes with events of the network, in vain waited for after five seconds;
    // QTRY_VERIFY cannot leave a function of a window.
    bool isThere = true;
    if (state == "body half sent")
        isThere = QTest::qWaitFor([&] { return bar(*window)->value() > 0; });
    else if (state == "answer awaited")
        isThere = QTest::qWaitFor([&] { return m_server->requests.size() == 1; });
    else if (state == "finished")
        isThere = QTest::qWaitFor([&] { return accepted.count() == 1; });
    else if (state == "not logged in")
        isThere = QTest::qWaitFor([&] { return prompt(*window) == "No Login!"; });
    else if (state != "begun")
        isThere = QTest::qWaitFor([&] { return isRetryOffered(*window); });
    if (state.startsWith("retry")) {
        m_server->behaviour = PostServer::KeepsSilent;
        window->slotBtnRetryClicked();
        if (state == "retry under way")
            isThere = QTest::qWaitFor([&] { return m_server->requests.size() == 2; });
    }
    if (!isThere)
        window.reset();
    return window;
}

void tst_CRkNoflyApplyUpload::closedInEveryState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("way");
    for (const char* state : states) {
        for (const char* way : {"Cancel", "Escape", "by the window system"})
            QTest::addRow("%s, %s", state, way) << state << way;
    }
}

/// The window goes, and what is under way may go on behind it until the window is destroyed.
void tst_CRkNoflyApplyUpload::closedInEveryState()
{
    QFETCH(QString, state);
    QFETCH(QString, way);
    const auto window = inState(state);
    QVERIFY(window);
    QCOMPARE(window->isVisible(), state != "finished");
    window->show();
    if (way == "Cancel")
        cancelButton(*window)->click();
    else if (way == "Escape")
        QTest::keyClick(window.get(), Qt::Key_Escape);
    else
        QVERIFY(window->close());
    QVERIFY(!window->isVisible());
    QCOMPARE(window->result(), int(QDialog::Rejected));
}

void tst_CRkNoflyApplyUpload::destroyedInEveryState_data()
{
    QTest::addColumn<QString>("state");
    for (const char* state : states)
        QTest::newRow(state) << state;
}

void tst_CRkNoflyApplyUpload::destroyedInEveryState()
{
    QFETCH(QString, state);
    const int filesBefore = ProcessCounts::files();
    auto window = inState(state);
    QVERIFY(window);
    window.reset();
    settle();
    const bool isHeardOf = state != "body half sent";
    if (isHeardOf)
        QTRY_COMPARE(m_server->openConnections(), 0);
    QTRY_VERIFY(threadsOfUploads() <= 0);
    // The server's end of a connection whose end it does not hear of stays.
    QTRY_VERIFY(ProcessCounts::files() <= filesBefore + (isHeardOf ? 0 : 1));
}

void tst_CRkNoflyApplyUpload::answerAfterClosingAccepts()
{
    m_server->behaviour = PostServer::Answers;
    CRkNoflyApplyUpload window(nullptr);
    const QSignalSpy accepted(&window, &QDialog::accepted);
    window.exec(false);
    window.BeginUpload(json);
    cancelButton(window)->click();
    QCOMPARE(accepted.count(), 0);
    QTRY_COMPARE(accepted.count(), 1);
    QVERIFY(!window.isVisible());
    QTRY_VERIFY(threadsOfUploads() <= 0);
}

void tst_CRkNoflyApplyUpload::deletesItselfOnClose()
{
    m_server->behaviour = PostServer::KeepsSilent;
    const QPointer<CRkNoflyApplyUpload> window(new CRkNoflyApplyUpload(nullptr));
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->exec(false);
    window->BeginUpload(json);
    QTRY_COMPARE(m_server->requests.size(), 1);
    window->close();
    QTRY_VERIFY(!window);
    QTRY_COMPARE(m_server->openConnections(), 0);
    QTRY_VERIFY(threadsOfUploads() <= 0);
}

QTEST_MAIN(tst_CRkNoflyApplyUpload)
#include "tst_CRkNoflyApplyUpload.moc"
