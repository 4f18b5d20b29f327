// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BlockPanel.h"
#include "app/MapPlaces.h"
#include "app/ProjectUploads.h"
#include "support/DialogSteps.h"
#include "UploadFixture.h"

#include <RkBaseUI/CRkNoflyApplyUpload.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>

#include <QDateTimeEdit>
#include <QLineEdit>

namespace {

void type(const QWidget& form, const char* field, const QString& text)
{
    auto* edit = form.findChild<QLineEdit*>(QLatin1String(field));
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keyClicks(edit, text);
}

/// Fills the form in so that it can be sent, and accepts it.
void sendForm(QDialog& form, const QString& document)
{
    type(form, "m_pEdtDocPath", document);
    type(form, "m_pEdtAuthName", QStringLiteral("Wang"));
    auto* end = form.findChild<QDateTimeEdit*>(QStringLiteral("m_pDateEnd"));
    end->setFocus();
    end->setCurrentSection(QDateTimeEdit::YearSection);
    QTest::keyClick(end, Qt::Key_Up);
    click(form, "m_pBtnOK");
}

} // namespace

/// From the button of the block's page to the store of the service.
class tst_NoFlyLift : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_fixture.begin(); }
    void cleanup() { m_fixture.end(); }

    void applicationArrives();
    void pictureIsOfTheMapAlone();
    void pictureShowsTheBlock();
    void dismissedFormSendsNothing();
    void liftOutcomes_data();
    void liftOutcomes();
    void liftIsRetried();
    void blockMayBeClosedMeanwhile();
    void windowMayGoMeanwhile_data();
    void windowMayGoMeanwhile();

private:
    UploadFixture m_fixture;
    QString m_document; ///< The authorisation, a file.
};

void tst_NoFlyLift::initTestCase()
{
    QVERIFY(m_fixture.makeProjects());
    m_document = m_fixture.home.path() + "/permit.pdf";
    QVERIFY(writeFile(m_document, "permit"));
}

void tst_NoFlyLift::applicationArrives()
{
    m_fixture.openBlock();
    m_fixture.startService();
    bool isOver = false;
    const DialogSteps steps({[&](QDialog& form) {
                                 QVERIFY(qobject_cast<CRkNoflyApplyWgt*>(&form));
                                 isOver = m_fixture.window->frameGeometry().contains(
                                     form.geometry().center());
                                 sendForm(form, m_document);
                                 QVERIFY(!form.isVisible());
                             },
                             [](QDialog& upload) {
                                 QVERIFY(qobject_cast<CRkNoflyApplyUpload*>(&upload));
                                 QTRY_VERIFY(!upload.isVisible());
                             }});
    click(*m_fixture.window, "applyForLift");
    QVERIFY(isOver);
    QCOMPARE(m_fixture.stored("local_ids FROM lift_application"), QStringList(m_fixture.blockId));
    QCOMPARE(m_fixture.stored("name FROM lift_application"), QStringList("Wang"));
    QCOMPARE(m_fixture.stored("document FROM lift_application"), QStringList("permit"));
    const int corners = CRkBlockManager::instance().GetBlock(m_fixture.blockId)->GetAnchor().size();
    QVERIFY(corners > 0);
    QCOMPARE(m_fixture.stored("area FROM lift_application").value(0).count('|'), corners - 1);
    QCOMPARE(m_fixture.result(),
             QString("No-fly lift: the application for %1 has been submitted.")
                 .arg(m_fixture.blockName));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(m_fixture.result(),
                 QString::fromUtf8("禁飞区解禁：测区“%1”的申请已提交。").arg(m_fixture.blockName));
}

void tst_NoFlyLift::pictureIsOfTheMapAlone()
{
    m_fixture.openBlock();
    m_fixture.startService();
    m_fixture.window->map()->showCountry(); // Not the picture of a map that is on its way.
    const QList<QWidget*> controls =
        m_fixture.window->map()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    const auto shown = [this] {
        return m_fixture.window->map()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    QImage whole;
    QImage bare;
    const DialogSteps steps({[&](QDialog& form) {
                                 whole = shown();
                                 for (QWidget* control : controls)
                                     control->hide();
                                 bare = shown();
                                 sendForm(form, m_document);
                             },
                             [](QDialog& upload) { QTRY_VERIFY(!upload.isVisible()); }});
    click(*m_fixture.window, "applyForLift");
    const QString hex = m_fixture.stored("hex(picture) FROM lift_application").value(0);
    const QImage picture =
        QImage::fromData(QByteArray::fromHex(hex.toLatin1())).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(picture.size(), whole.size());
    QVERIFY(whole != bare);
    QVERIFY(picture == bare);
}

void tst_NoFlyLift::pictureShowsTheBlock()
{
    m_fixture.openBlock();
    MapPanel& map = *m_fixture.window->map();
    const QImage ofTheBlock = map.picture();
    map.places()->showHere(QPointF(-33.9, 18.4));
    QTRY_VERIFY(!map.isMoving());
    QImage sent;
    const DialogSteps steps({[&](QDialog& form) {
        sent = map.picture();
        QTest::keyClick(&form, Qt::Key_Escape);
    }});
    click(*m_fixture.window, "applyForLift");
    QCOMPARE(steps.left(), 0);
    QVERIFY(sent == ofTheBlock);
}

void tst_NoFlyLift::dismissedFormSendsNothing()
{
    m_fixture.openBlock();
    m_fixture.startService();
    const DialogSteps steps({[](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); }});
    click(*m_fixture.window, "applyForLift");
    QCOMPARE(steps.left(), 0);
    QVERIFY(m_fixture.result().isEmpty());
    QCOMPARE(m_fixture.stored("count(*) FROM lift_application"), QStringList("0"));
}

void tst_NoFlyLift::liftOutcomes_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("none") << "" << true;
    QTest::newRow("delay") << "delay:100" << true;
    QTest::newRow("trickle") << "trickle:1" << true;
    QTest::newRow("garbage, which is not looked at") << "garbage" << true;
    QTest::newRow("500") << "500" << false;
    QTest::newRow("cut") << "cut" << false;
    QTest::newRow("stall") << "stall" << false;
    QTest::newRow("absent") << "absent" << false;
    QTest::newRow("401") << "401" << false;
}

void tst_NoFlyLift::liftOutcomes()
{
    QFETCH(QString, fault);
    QFETCH(bool, isTaken);
    m_fixture.openBlock();
    m_fixture.startService(fault);
    if (fault == "stall") // The others are to end by themselves, however slow the machine is.
        SetUploadTimeout(standstillLimit);
    const DialogSteps steps({[this](QDialog& form) { sendForm(form, m_document); },
                             [isTaken](QDialog& upload) {
                                 const auto hasEnded = [&upload] {
                                     return !upload.isVisible()
                                         || button(upload, "m_pBtnRetry").isVisible()
                                         || labelText(upload, "m_pPromptLabel") == "No Login!";
                                 };
                                 QTRY_VERIFY(hasEnded());
                                 QCOMPARE(!upload.isVisible(), isTaken);
                                 if (!isTaken)
                                     click(upload, "m_pBtnCancel");
                             }});
    click(*m_fixture.window, "applyForLift");
    QCOMPARE(steps.left(), 0);
    QCOMPARE(m_fixture.result(),
             (isTaken ? QString("No-fly lift: the application for %1 has been submitted.")
                      : QString("No-fly lift: the service has not confirmed the application for "
                                "%1."))
                 .arg(m_fixture.blockName));
}

void tst_NoFlyLift::liftIsRetried()
{
    m_fixture.openBlock();
    m_fixture.startService("absent");
    const DialogSteps steps({[this](QDialog& form) { sendForm(form, m_document); },
                             [this](QDialog& upload) {
                                 QTRY_VERIFY(button(upload, "m_pBtnRetry").isVisible());
                                 SetServerIP(m_fixture.server->address());
                                 click(upload, "m_pBtnRetry");
                                 QTRY_VERIFY(!upload.isVisible());
                             }});
    click(*m_fixture.window, "applyForLift");
    QCOMPARE(m_fixture.stored("count(*) FROM lift_application"), QStringList("1"));
    QVERIFY(m_fixture.result().endsWith("submitted."));
}

void tst_NoFlyLift::blockMayBeClosedMeanwhile()
{
    m_fixture.openBlock();
    m_fixture.startService();
    const DialogSteps steps({[this](QDialog& form) {
                                 m_fixture.window->blockPanel()->showBlock({}, "other", {});
                                 m_fixture.window->blockPanel()->showNothing();
                                 ClearBlocks();
                                 sendForm(form, m_document);
                             },
                             [](QDialog& upload) { QTRY_VERIFY(!upload.isVisible()); }});
    click(*m_fixture.window, "applyForLift");
    QCOMPARE(m_fixture.stored("local_ids FROM lift_application"), QStringList(m_fixture.blockId));
    QVERIFY(!m_fixture.stored("area FROM lift_application").value(0).isEmpty());
    QVERIFY(m_fixture.result().contains(m_fixture.blockName));
}

void tst_NoFlyLift::windowMayGoMeanwhile_data()
{
    QTest::addColumn<bool>("isRunning");
    QTest::newRow("open") << false;
    QTest::newRow("under way") << true;
}

void tst_NoFlyLift::windowMayGoMeanwhile()
{
    QFETCH(bool, isRunning);
    m_fixture.openBlock();
    m_fixture.startService("stall");
    QVector<DialogSteps::Step> list = {[this](QDialog& dialog) {
        m_fixture.window.reset();
        QVERIFY2(!dialog.isVisible(), "the dialog goes with it");
    }};
    if (isRunning)
        list.prepend([this](QDialog& form) { sendForm(form, m_document); });
    const DialogSteps steps(list);
    click(*m_fixture.window, "applyForLift");
    QCOMPARE(steps.left(), 0);
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(tst_NoFlyLift)
#include "tst_NoFlyLift.moc"
