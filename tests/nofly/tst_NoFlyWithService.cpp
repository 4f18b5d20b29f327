// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/LocalService.h"
#include "support/MessageLog.h"
#include "support/ProcessCounts.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkNoflyApplyUpload.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>
#include <RkData/RkData.h>
#include <RkProjectDbOperator/ReferenceSettings.h>

#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

/// How an upload looks from outside.
QString stateOf(const CRkNoflyApplyUpload& window)
{
    if (window.result() == QDialog::Accepted)
        return "finished";
    const QString prompt = window.findChild<QLabel*>("m_pPromptLabel")->text();
    const bool isRetryOffered = !window.findChild<QPushButton*>("m_pBtnRetry")->isHidden();
    if (prompt == "UpLoad File Failed." && isRetryOffered)
        return "failed";
    if (prompt == "No Login!" && !isRetryOffered)
        return "not logged in";
    return "under way";
}

bool isSent(const CRkNoflyApplyUpload& window)
{
    const auto* bar = window.findChild<QProgressBar*>();
    return bar->value() > 0 && bar->value() == bar->maximum();
}

void setText(const QWidget& form, const char* field, const QString& text)
{
    form.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
}

/// A form that the check accepts.
std::unique_ptr<CRkNoflyApplyWgt> filledForm(const QString& document)
{
    auto block = std::make_unique<CRkBlock>();
    block->SetBlockID("block");
    block->SetAnchor({{30.5, 104}, {30.6, 105}});
    CRkBlockManager::instance().AddBlock(block.release());
    auto form = std::make_unique<CRkNoflyApplyWgt>("block", QStringList{"510100", "510200"});
    setText(*form, "m_pEdtDocPath", document);
    setText(*form, "m_pEdtAuthName", "王琳");
    setText(*form, "m_pEdtContact", "+86 138 0000 0000");
    setText(*form, "m_pEdtCompany", "Survey & Co = 100%");
    form->findChild<QDateTimeEdit*>("m_pDateStart")->setDateTime({{2026, 5, 1}, {8, 0, 0}});
    form->findChild<QDateTimeEdit*>("m_pDateEnd")->setDateTime({{2026, 5, 2}, {18, 0, 0}});
    form->findChild<QPlainTextEdit*>()->setPlainText("a \"dam\"\nof 120 m");
    return form;
}

} // namespace

/// From the form to the store of the service, whatever the service does.
class tst_NoFlyWithService : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void applicationArrives();
    void documentOf100MBArrives();
    void outcomes_data();
    void outcomes();
    void wrongToken();
    void nothingFilledInIsRefused();
    void serviceThatStandsStill_data();
    void serviceThatStandsStill();
    void serviceDiesBeforeTheBody();
    void serviceDiesDuringTheBody();
    void serviceDiesAfterTheBody();
    void retryWhenTheServiceIsBack();
    void destroyedInEveryFault_data();
    void destroyedInEveryFault();
    void fiftyRetriesLeaveNothing_data();
    void fiftyRetriesLeaveNothing();

private:
    void startProgram(QProcess& program, const QStringList& arguments = {}) const;
    QStringList stored(const QString& column) const
    {
        return readSql(m_store, "SELECT " + column + " FROM lift_application");
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_store;
    QByteArray m_json;
    MessageLog m_log;
};

void tst_NoFlyWithService::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_store = m_dir->filePath("service.db");
    const QString document = m_dir->filePath("permit.pdf");
    QVERIFY(writeFile(document, QByteArray("\0text\xff", 6)));
    m_json = filledForm(document)->ComboUploadData();
    SetCurUserInfo({"secret", "1", "Wang"});
    m_log.start();
}

void tst_NoFlyWithService::cleanup()
{
    SetUploadTimeout(60000);
    QCOMPARE(m_log.stop(), QStringList());
}

/// Starts the service as a program that can be killed, and makes it the service of this process.
void tst_NoFlyWithService::startProgram(QProcess& program, const QStringList& arguments) const
{
    const QByteArray address = LocalService::start(program, m_store, arguments);
    QVERIFY(!address.isEmpty());
    SetServerIP(address);
}

void tst_NoFlyWithService::applicationArrives()
{
    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    SetServerIP(server.address());
    const auto form = filledForm(m_dir->filePath("permit.pdf"));
    QImage picture(90, 70, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    form->SetScreenShotsImage(picture);
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(form->ComboUploadData());
    QCOMPARE(window.exec(true), int(QDialog::Accepted));

    QCOMPARE(stored("file_name"), QStringList("permit.pdf"));
    QCOMPARE(stored("hex(document)"), QStringList("0074657874FF"));
    QCOMPARE(stored("area"), QStringList("104.000000,30.500000,N/A|105.000000,30.600000,N/A"));
    QCOMPARE(stored("name"), QStringList("王琳"));
    QCOMPARE(stored("company"), QStringList("Survey & Co = 100%"));
    QCOMPARE(stored("contact"), QStringList("+86 138 0000 0000"));
    const QByteArray png = QByteArray::fromHex(stored("hex(picture)").value(0).toLatin1());
    QCOMPARE(QImage::fromData(png).convertToFormat(QImage::Format_RGB32), picture);
}

void tst_NoFlyWithService::documentOf100MBArrives()
{
    QByteArray content(100'000'000, Qt::Uninitialized);
    for (int i = 0; i < content.size(); ++i)
        content[i] = char(i % 251 + i / 65536);
    const QString document = m_dir->filePath("large.pdf");
    QVERIFY(writeFile(document, content));
    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    SetServerIP(server.address());
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(filledForm(document)->ComboUploadData());
    QTRY_VERIFY_WITH_TIMEOUT(stateOf(window) != "under way", 120000);
    QCOMPARE(stateOf(window), QString("finished"));
    QCOMPARE(stored("length(document)"), QStringList("100000000"));
    for (int offset : {0, 33'333'333, 99'999'000}) {
        const QString part =
            stored(QString("hex(substr(document, %1, 1000))").arg(offset + 1)).value(0);
        QVERIFY(QByteArray::fromHex(part.toLatin1()) == content.mid(offset, 1000));
    }
}

void tst_NoFlyWithService::outcomes_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("state");
    QTest::newRow("none") << ""
                          << "finished";
    QTest::newRow("delay") << "delay:200"
                           << "finished";
    QTest::newRow("trickle") << "trickle:2"
                             << "finished";
    QTest::newRow("garbage, which is not looked at") << "garbage"
                                                     << "finished";
    QTest::newRow("stall that ends") << "stall:200"
                                     << "failed";
    QTest::newRow("cut in the answer") << "cut"
                                       << "failed";
    QTest::newRow("500") << "500"
                         << "failed";
    QTest::newRow("401") << "401"
                         << "not logged in";
}

void tst_NoFlyWithService::outcomes()
{
    QFETCH(QString, fault);
    QFETCH(QString, state);
    WebServiceServer server(LocalService::options(m_store, fault));
    QVERIFY(server.start());
    SetServerIP(server.address());
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(m_json);
    QTRY_COMPARE(stateOf(window), state);
}

void tst_NoFlyWithService::wrongToken()
{
    SetCurUserInfo({"other", "1", "Wang"});
    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    SetServerIP(server.address());
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(m_json);
    QTRY_COMPARE(stateOf(window), QString("not logged in"));
    QCOMPARE(stored("count(*)"), QStringList("0"));
}

void tst_NoFlyWithService::nothingFilledInIsRefused()
{
    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    SetServerIP(server.address());
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(CRkNoflyApplyWgt({}, {}, nullptr).ComboUploadData());
    QTRY_COMPARE(stateOf(window), QString("failed"));
}

void tst_NoFlyWithService::serviceThatStandsStill_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("before the answer") << "stall";
    QTest::newRow("in the answer") << "trickle:60000";
}

void tst_NoFlyWithService::serviceThatStandsStill()
{
    QFETCH(QString, fault);
    SetUploadTimeout(300);
    WebServiceServer server(LocalService::options(m_store, fault));
    QVERIFY(server.start());
    SetServerIP(server.address());
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(m_json);
    QTRY_COMPARE(stateOf(window), QString("failed"));
}

void tst_NoFlyWithService::serviceDiesBeforeTheBody()
{
    QProcess program;
    startProgram(program);
    program.kill();
    QVERIFY(program.waitForFinished());
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(m_json);
    QTRY_COMPARE(stateOf(window), QString("failed"));
}

void tst_NoFlyWithService::serviceDiesDuringTheBody()
{
    QProcess program;
    startProgram(program);
    // While it is stopped, the system takes the connection and as much of the body as it buffers.
    QVERIFY(LocalService::suspend(program));
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(QByteArray(64 * 1024 * 1024, 'x'));
    QTRY_VERIFY(window.findChild<QProgressBar*>()->value() > 0);
    QVERIFY(!isSent(window));
    program.kill();
    QVERIFY(program.waitForFinished());
    QTRY_COMPARE(stateOf(window), QString("failed"));
}

void tst_NoFlyWithService::serviceDiesAfterTheBody()
{
    QProcess program;
    startProgram(program, {"--fault", "stall"});
    CRkNoflyApplyUpload window(nullptr);
    window.BeginUpload(m_json);
    QTRY_VERIFY(isSent(window));
    program.kill();
    QVERIFY(program.waitForFinished());
    QTRY_COMPARE(stateOf(window), QString("failed"));
}

void tst_NoFlyWithService::retryWhenTheServiceIsBack()
{
    CRkNoflyApplyUpload window(nullptr);
    {
        WebServiceServer server(LocalService::options(m_store, "cut"));
        QVERIFY(server.start());
        SetServerIP(server.address());
        window.BeginUpload(m_json);
        QTRY_COMPARE(stateOf(window), QString("failed"));
    }
    window.slotBtnRetryClicked();
    QTRY_COMPARE(stateOf(window), QString("failed"));
    QVERIFY(QFile::remove(m_store));

    WebServiceServer server(LocalService::options(m_store));
    QVERIFY(server.start());
    SetServerIP(server.address());
    window.slotBtnRetryClicked();
    QTRY_COMPARE(stateOf(window), QString("finished"));
    QCOMPARE(stored("name"), QStringList("王琳"));
}

void tst_NoFlyWithService::destroyedInEveryFault_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("none") << "";
    for (const char* fault :
         {"delay:60000", "stall", "cut", "500", "401", "garbage", "trickle:60000"})
        QTest::newRow(fault) << fault;
}

void tst_NoFlyWithService::destroyedInEveryFault()
{
    QFETCH(QString, fault);
    QProcess program;
    startProgram(program, fault.isEmpty() ? QStringList() : QStringList{"--fault", fault});
    const int threadsBefore = ProcessCounts::threads();
    auto window = std::make_unique<CRkNoflyApplyUpload>(nullptr);
    window->BeginUpload(m_json);
    QTRY_VERIFY(isSent(*window));
    window.reset();
    QTRY_VERIFY(ProcessCounts::threads() <= threadsBefore);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
}

void tst_NoFlyWithService::fiftyRetriesLeaveNothing_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("stall") << "stall";
    QTest::newRow("cut") << "cut";
    QTest::newRow("500") << "500";
}

void tst_NoFlyWithService::fiftyRetriesLeaveNothing()
{
    QFETCH(QString, fault);
    QProcess program;
    startProgram(program, {"--fault", fault});
    {
        CRkNoflyApplyUpload first(nullptr); // The toolkit opens some files at the first request.
        first.BeginUpload(m_json);
        QTRY_VERIFY(isSent(first));
    }
    const int filesBefore = ProcessCounts::files();
    const int threadsBefore = ProcessCounts::threads();
    {
        CRkNoflyApplyUpload window(nullptr);
        window.BeginUpload(m_json);
        for (int i = 0; i < 50; ++i) {
            QTRY_VERIFY(isSent(window));
            window.findChild<QProgressBar*>()->reset();
            window.slotBtnRetryClicked();
        }
        QTRY_VERIFY(isSent(window));
    }
    QTRY_VERIFY(ProcessCounts::files() <= filesBefore);
    QTRY_VERIFY(ProcessCounts::threads() <= threadsBefore);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
}

QTEST_MAIN(tst_NoFlyWithService)
#include "tst_NoFlyWithService.moc"
