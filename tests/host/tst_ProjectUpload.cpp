// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/BlockPanel.h"
#include "app/UploadDialog.h"
#include "support/DialogSteps.h"
#include "support/WindowWaits.h"
#include "UploadFixture.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/WebService.h>

#include <QAbstractItemView>
#include <QProgressBar>
#include <QTreeView>

namespace {

using State = UploadDialog::State;

UploadDialog& uploadOf(QDialog& dialog)
{
    return static_cast<UploadDialog&>(dialog);
}

} // namespace

/// From the button of the block's page to the store of the service.
class tst_ProjectUpload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_fixture.makeProjects()); }
    void init() { m_fixture.begin(); }
    void cleanup() { m_fixture.end(); }

    void buttonsAreThereForAnOpenedBlock();
    void buttonsAreReachedByKeys();
    void userHasAToken();
    void projectIsShownBeforeItIsSent();
    void projectArrives();
    void projectIsSentByKeysAlone();
    void dismissedDialogSendsNothing_data();
    void dismissedDialogSendsNothing();
    void uploadOutcomes_data();
    void uploadOutcomes();
    void uploadIsRetried();
    void uploadIsCancelled();
    void progressIsShown();
    void projectThatCannotBeRead();
    void entriesOpenByKeys();
    void windowMayGoMeanwhile_data();
    void windowMayGoMeanwhile();

private:
    UploadFixture m_fixture;
};

void tst_ProjectUpload::buttonsAreThereForAnOpenedBlock()
{
    for (const char* name : {"applyForLift", "uploadProject"}) {
        QVERIFY(!button(*m_fixture.window, name).isVisible());
        QVERIFY(!button(*m_fixture.window, name).toolTip().isEmpty());
    }
    m_fixture.openBlock();
    QVERIFY(button(*m_fixture.window, "applyForLift").isVisible());
    QVERIFY(button(*m_fixture.window, "uploadProject").isVisible());
    QCOMPARE(button(*m_fixture.window, "applyForLift").text(), QString("Apply for no-fly lift"));
    for (const char* language : {"en", "zh_CN"}) {
        HostSettings::installLanguage(language);
        QCoreApplication::processEvents();
        for (const char* name : {"applyForLift", "uploadProject"}) {
            const QPushButton& one = button(*m_fixture.window, name);
            QVERIFY2(one.width() >= one.sizeHint().width(), name);
        }
    }
    QCOMPARE(button(*m_fixture.window, "uploadProject").text(), QString::fromUtf8("上传项目"));
}

void tst_ProjectUpload::buttonsAreReachedByKeys()
{
    m_fixture.openBlock();
    QApplication::setActiveWindow(m_fixture.window.get());
    m_fixture.window->blockPanel()->findChild<QAbstractItemView*>()->setFocus();
    QTest::keyClick(m_fixture.window.get(), Qt::Key_Tab);
    QVERIFY(button(*m_fixture.window, "applyForLift").hasFocus());
    QTest::keyClick(m_fixture.window.get(), Qt::Key_Tab);
    QVERIFY(button(*m_fixture.window, "uploadProject").hasFocus());
}

void tst_ProjectUpload::userHasAToken()
{
    QCOMPARE(GetCurUserInfo().strUserId, sampleUserId());
    QCOMPARE(GetCurUserInfo().strToken, sampleUserId());
    qputenv("RK_SERVER_TOKEN", "secret");
    HostSettings::setCurrentUser("somebody");
    qunsetenv("RK_SERVER_TOKEN");
    QCOMPARE(GetCurUserInfo().strUserId, QString("somebody"));
    QCOMPARE(GetCurUserInfo().strToken, QString("secret"));
}

void tst_ProjectUpload::projectIsShownBeforeItIsSent()
{
    m_fixture.openBlock();
    m_fixture.startService();
    QString name;
    QString summary;
    QString address;
    int rows = 0;
    bool isOver = false;
    const DialogSteps steps({[&](QDialog& dialog) {
        QVERIFY(comesOnScreen(&dialog));
        name = labelText(dialog, "projectName");
        summary = labelText(dialog, "summary");
        address = labelText(dialog, "status");
        const auto* tree = dialog.findChild<QTreeView*>();
        rows = tree->model()->rowCount();
        QVERIFY(!tree->accessibleName().isEmpty());
        QVERIFY(!dialog.findChild<QProgressBar*>()->isVisible());
        isOver = m_fixture.window->frameGeometry().contains(dialog.geometry().center());
        QCOMPARE(uploadOf(dialog).state(), State::Ready);
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QCOMPARE(name, m_fixture.window->blockPanel()->project().projectName);
    QVERIFY2(summary.startsWith("Blocks: "), qPrintable(summary));
    QCOMPARE(address, "Goes to " + QString::fromUtf8(m_fixture.server->address()));
    QVERIFY(rows > 5);
    QVERIFY(isOver);
    QCOMPARE(m_fixture.stored("count(*) FROM project_document"), QStringList("0"));
}

void tst_ProjectUpload::projectArrives()
{
    m_fixture.openBlock();
    m_fixture.startService();
    const DialogSteps steps({[](QDialog& dialog) {
        click(dialog, "m_pBtnOK");
        QTRY_COMPARE(uploadOf(dialog).state(), State::Done);
        QCOMPARE(labelText(dialog, "status"), QString("The project has been uploaded."));
        QVERIFY(!button(dialog, "m_pBtnOK").isVisible());
        QCOMPARE(button(dialog, "m_pBtnCancel").text(), QString("Close"));
        QVERIFY(button(dialog, "m_pBtnCancel").hasFocus());
        click(dialog, "m_pBtnCancel");
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    const QString name = m_fixture.window->blockPanel()->project().projectName;
    QCOMPARE(m_fixture.stored("project_name FROM project_document"), QStringList(name));
    QCOMPARE(m_fixture.stored("json FROM project_document").value(0).toUtf8(),
             GetUploadArray(m_fixture.project));
    QCOMPARE(m_fixture.result(), QString("Upload: project %1 has been uploaded.").arg(name));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(m_fixture.result(), QString::fromUtf8("上传：项目“%1”已上传。").arg(name));
}

void tst_ProjectUpload::projectIsSentByKeysAlone()
{
    m_fixture.openBlock();
    m_fixture.startService();
    const DialogSteps steps({[](QDialog& dialog) {
        QApplication::setActiveWindow(&dialog);
        QTRY_VERIFY(button(dialog, "m_pBtnOK").hasFocus());
        QTest::keyClick(&dialog, Qt::Key_Return);
        QTRY_COMPARE(uploadOf(dialog).state(), State::Done);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    }});
    QPushButton& upload = button(*m_fixture.window, "uploadProject");
    upload.setFocus();
    QTest::keyClick(&upload, Qt::Key_Space);
    QCOMPARE(steps.left(), 0);
    QCOMPARE(m_fixture.stored("count(*) FROM project_document"), QStringList("1"));
}

void tst_ProjectUpload::dismissedDialogSendsNothing_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("Cancel") << "m_pBtnCancel";
    QTest::newRow("close") << "m_pBtnClose";
    QTest::newRow("Escape") << "";
}

void tst_ProjectUpload::dismissedDialogSendsNothing()
{
    QFETCH(QString, button);
    m_fixture.openBlock();
    m_fixture.startService();
    const DialogSteps steps({[&](QDialog& dialog) {
        if (button.isEmpty())
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            click(dialog, qPrintable(button));
        QVERIFY(!dialog.isVisible());
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QCOMPARE(m_fixture.stored("count(*) FROM project_document"), QStringList("0"));
    QVERIFY(m_fixture.result().isEmpty());
}

void tst_ProjectUpload::uploadOutcomes_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("state");
    QTest::newRow("none") << "" << int(State::Done);
    QTest::newRow("delay") << "delay:100" << int(State::Done);
    QTest::newRow("trickle") << "trickle:1" << int(State::Done);
    QTest::newRow("500") << "500" << int(State::Failed);
    QTest::newRow("garbage") << "garbage" << int(State::Failed);
    QTest::newRow("cut") << "cut" << int(State::Failed);
    QTest::newRow("stall") << "stall" << int(State::Failed);
    QTest::newRow("absent") << "absent" << int(State::Failed);
    QTest::newRow("401") << "401" << int(State::NotLoggedIn);
}

void tst_ProjectUpload::uploadOutcomes()
{
    QFETCH(QString, fault);
    QFETCH(int, state);
    m_fixture.openBlock();
    m_fixture.startService(fault);
    if (fault == "stall") // The others are to end by themselves, however slow the machine is.
        SetUploadTimeout(standstillLimit);
    const DialogSteps steps({[state](QDialog& dialog) {
        click(dialog, "m_pBtnOK");
        QCOMPARE(uploadOf(dialog).state(), State::Running);
        QVERIFY(!button(dialog, "m_pBtnOK").isEnabled());
        QTRY_VERIFY(uploadOf(dialog).state() != State::Running);
        QCOMPARE(int(uploadOf(dialog).state()), state);
        const bool isDone = state == int(State::Done);
        QVERIFY(labelText(dialog, "status").contains(isDone ? "has been uploaded" : "failed"));
        QCOMPARE(labelText(dialog, "status").contains("user"), state == int(State::NotLoggedIn));
        QCOMPARE(button(dialog, "m_pBtnOK").isVisible(), !isDone);
        QVERIFY(!dialog.findChild<QProgressBar*>()->isVisible());
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QVERIFY(
        m_fixture.result().endsWith(state == int(State::Done) ? "has been uploaded." : "failed."));
}

void tst_ProjectUpload::uploadIsRetried()
{
    m_fixture.openBlock();
    m_fixture.startService("absent");
    const DialogSteps steps({[this](QDialog& dialog) {
        click(dialog, "m_pBtnOK");
        QTRY_COMPARE(uploadOf(dialog).state(), State::Failed);
        QCOMPARE(button(dialog, "m_pBtnOK").text(), QString("Retry"));
        QVERIFY(button(dialog, "m_pBtnOK").isEnabled());
        click(dialog, "m_pBtnOK");
        QTRY_COMPARE(uploadOf(dialog).state(), State::Failed);
        SetServerIP(m_fixture.server->address());
        click(dialog, "m_pBtnOK");
        QTRY_COMPARE(uploadOf(dialog).state(), State::Done);
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QCOMPARE(m_fixture.stored("count(*) FROM project_document"), QStringList("1"));
    QVERIFY(m_fixture.result().endsWith("has been uploaded."));
}

void tst_ProjectUpload::uploadIsCancelled()
{
    m_fixture.openBlock();
    m_fixture.startService("stall");
    const DialogSteps steps({[](QDialog& dialog) {
        click(dialog, "m_pBtnOK");
        QTRY_VERIFY(labelText(dialog, "status").startsWith("Sent."));
        QCOMPARE(dialog.findChild<QProgressBar*>()->maximum(), 0);
        QVERIFY(button(dialog, "m_pBtnCancel").hasFocus());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QVERIFY(m_fixture.result().endsWith("was cancelled."));
}

void tst_ProjectUpload::progressIsShown()
{
    UploadDialog dialog("River", R"({"id":"1"})");
    dialog.show();
    const auto* bar = dialog.findChild<QProgressBar*>();
    dialog.showProgress(0, 0);
    QCOMPARE(dialog.state(), State::Ready);
    dialog.showProgress(5'000'000'000, 20'000'000'000);
    QCOMPARE(dialog.state(), State::Running);
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->value() * 4, bar->maximum());
    QCOMPARE(labelText(dialog, "status"), QString::fromUtf8("Uploading … 5.0 GB of 20.0 GB"));
}

void tst_ProjectUpload::projectThatCannotBeRead()
{
    m_fixture.openBlock();
    m_fixture.startService();
    CRkOpenedProjectInfo gone = m_fixture.window->blockPanel()->project();
    gone.projectFilePath = m_fixture.home.path() + "/gone.proj";
    m_fixture.window->showBlock(gone, m_fixture.blockId);
    const DialogSteps steps({[](QDialog& dialog) {
        QCOMPARE(uploadOf(dialog).state(), State::Empty);
        QVERIFY(!button(dialog, "m_pBtnOK").isEnabled());
        QCOMPARE(labelText(dialog, "status"), QString("Nothing can be read of this project."));
        QTest::keyClick(&dialog, Qt::Key_Return);
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QCOMPARE(m_fixture.stored("count(*) FROM project_document"), QStringList("0"));
    QVERIFY(m_fixture.result().isEmpty());
}

void tst_ProjectUpload::entriesOpenByKeys()
{
    UploadDialog dialog("River", R"({"id":"1","blocks":[{"id":"b","survey_area_name":"North"}]})");
    dialog.show();
    auto* tree = dialog.findChild<QTreeView*>();
    const QAbstractItemModel& model = *tree->model();
    const QModelIndex blocks = model.index(model.rowCount() - 1, 0);
    QCOMPARE(model.rowCount(blocks), 0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(blocks).center());
    QTest::keyClick(tree, Qt::Key_Right);
    QCOMPARE(model.rowCount(blocks), 1);
    QTest::keyClick(tree, Qt::Key_Right);
    QCOMPARE(tree->currentIndex().data().toString(), QString("North"));
}

void tst_ProjectUpload::windowMayGoMeanwhile_data()
{
    QTest::addColumn<bool>("isRunning");
    QTest::newRow("open") << false;
    QTest::newRow("under way") << true;
}

void tst_ProjectUpload::windowMayGoMeanwhile()
{
    QFETCH(bool, isRunning);
    m_fixture.openBlock();
    m_fixture.startService("stall");
    const DialogSteps steps({[&](QDialog& dialog) {
        if (isRunning) {
            click(dialog, "m_pBtnOK");
            QTRY_VERIFY(labelText(dialog, "status").startsWith("Sent."));
        }
        m_fixture.window.reset();
        QVERIFY2(!dialog.isVisible(), "the dialog goes with it");
    }});
    click(*m_fixture.window, "uploadProject");
    QCOMPARE(steps.left(), 0);
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(tst_ProjectUpload)
#include "tst_ProjectUpload.moc"
