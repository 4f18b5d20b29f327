// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/HostWindow.h"
#include "samples/SampleProjects.h"
#include "support/BoxAnswerer.h"
#include "support/TestSupport.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QComboBox>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>

class tst_HostWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void settingsHoldTheUser();
    void countsTheProjectsOfTheUser();
    void anotherUserSeesOtherProjects();
    void keywordFilters();
    void placeFilters();
    void dateFilters();
    void emptyPageSaysSo();
    void newProjectIsMadeAndCounted();
    void selectedProjectIsCopiedAndDeleted();
    void openedProjectShowsItsBlocks();
    void programKeepsItsSettingsWhereItIsTold();

private:
    static QStringList statusTexts(const HostWindow& window);
    static QPushButton* action(const HostWindow& window, const char* text);

    TestHome m_home;
};

void tst_HostWindow::initTestCase()
{
    SampleOptions samples;
    samples.root = m_home.projectRoot();
    samples.userId = sampleUserId();
    samples.now = QDateTime::currentDateTime();
    QCOMPARE(writeSampleProjects(samples).size(), 24);
}

void tst_HostWindow::init()
{
    HostSettings::setProjectRoot(m_home.projectRoot());
    HostSettings::setCurrentUser(sampleUserId());
}

QStringList tst_HostWindow::statusTexts(const HostWindow& window)
{
    QStringList texts;
    for (const QLabel* label : window.findChild<QStatusBar*>()->findChildren<QLabel*>())
        texts.append(label->text());
    return texts;
}

QPushButton* tst_HostWindow::action(const HostWindow& window, const char* text)
{
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [text](const auto* button) {
        return button->text() == QLatin1String(text);
    });
    return found == buttons.end() ? nullptr : *found;
}

void tst_HostWindow::settingsHoldTheUser()
{
    HostSettings::setCurrentUser(QStringLiteral("somebody"));
    QCOMPARE(QSettings(QStringLiteral("RkOrganization"), QStringLiteral("RkCloud"))
                 .value(QStringLiteral("UserInfo/UserID"))
                 .toString(),
             QStringLiteral("somebody"));
}

void tst_HostWindow::countsTheProjectsOfTheUser()
{
    const HostWindow window;
    QVERIFY(statusTexts(window).contains(QStringLiteral("20 projects")));
}

void tst_HostWindow::anotherUserSeesOtherProjects()
{
    HostSettings::setCurrentUser(QStringLiteral("nobody"));
    const HostWindow window;
    QVERIFY(statusTexts(window).contains(QStringLiteral("0 projects")));
}

void tst_HostWindow::keywordFilters()
{
    SampleOptions samples;
    samples.userId = sampleUserId();
    samples.now = QDateTime::currentDateTime();
    const QString name = planSampleProjects(samples).first().name;
    HostWindow window;
    window.setKeyword(name.toUpper());
    QVERIFY(statusTexts(window).contains(QStringLiteral("1 project")));
    window.setKeyword(QString());
    QVERIFY(statusTexts(window).contains(QStringLiteral("20 projects")));
}

void tst_HostWindow::placeFilters()
{
    HostWindow window;
    auto* place = window.findChildren<QComboBox*>().at(0);
    QCOMPARE(place->count(), 1 + 34);
    int sum = 0;
    for (int i = 1; i < place->count(); ++i) {
        place->setCurrentIndex(i);
        sum += statusTexts(window).first().section(QLatin1Char(' '), 0, 0).toInt();
    }
    QCOMPARE(sum, 20); // Every project lies in one province.
}

void tst_HostWindow::dateFilters()
{
    HostWindow window;
    auto* date = window.findChildren<QComboBox*>().at(1);
    int last = 0;
    for (int i = 1; i < date->count(); ++i) {
        date->setCurrentIndex(i);
        const int count = statusTexts(window).first().section(QLatin1Char(' '), 0, 0).toInt();
        QVERIFY2(count >= last, "longer times hold more");
        last = count;
    }
    QVERIFY(last > 3 && last < 20);
}

void tst_HostWindow::emptyPageSaysSo()
{
    HostWindow window;
    window.show();
    const auto message = [&] {
        const QList<QLabel*> labels = window.findChildren<QLabel*>();
        return *std::find_if(labels.cbegin(), labels.cend(), [](const QLabel* label) {
            return label->text() == QLatin1String("No projects to show");
        });
    }();
    QVERIFY(!message->isVisible());
    window.setKeyword(QStringLiteral("no such name"));
    QVERIFY(message->isVisible());
    QVERIFY(statusTexts(window).contains(QStringLiteral("0 projects")));
}

void tst_HostWindow::newProjectIsMadeAndCounted()
{
    HostWindow window;
    QTest::mouseClick(action(window, "New project"), Qt::LeftButton);
    QVERIFY(statusTexts(window).contains(QStringLiteral("21 projects")));
    const QString file = m_home.projectRoot() + QStringLiteral("New Project/New Project.proj");
    QVERIFY(QFileInfo::exists(file));
    QVERIFY(QFile::remove(file));
}

void tst_HostWindow::selectedProjectIsCopiedAndDeleted()
{
    HostWindow window;
    const BoxAnswerer answers;
    const auto isTile = [](const QGraphicsItem* item) {
        return dynamic_cast<const CRkGraphicsProjectRectItem*>(item) != nullptr;
    };
    const QList<QGraphicsItem*> items = window.view()->scene()->items();
    auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(
        *std::find_if(items.begin(), items.end(), isTile));
    const QString copy = QStringLiteral("copy of ") + tile->GetProjectName();
    tile->setSelected(true);
    QTest::mouseClick(action(window, "Copy"), Qt::LeftButton);
    QVERIFY(statusTexts(window).contains(QStringLiteral("21 projects")));
    const QString file = m_home.projectRoot() + copy + '/' + copy + ".proj";
    QVERIFY(QFileInfo::exists(file));

    window.setKeyword(copy);
    const QList<QGraphicsItem*> shown = window.view()->scene()->items();
    (*std::find_if(shown.begin(), shown.end(), isTile))->setSelected(true);
    QTest::mouseClick(action(window, "Delete"), Qt::LeftButton);
    QVERIFY(statusTexts(window).contains(QStringLiteral("0 projects")));
    QVERIFY(!QFileInfo::exists(file));
    QCOMPARE(answers.boxes.size(), 1);
}

void tst_HostWindow::openedProjectShowsItsBlocks()
{
    HostWindow window;
    window.show();
    auto* page = window.findChild<CRkBlockManagerWidget*>();
    QVERIFY(!page->isVisible());
    emit window.view()->projectOpened(QStringLiteral("/projects/River.1/River.1.proj"));
    QVERIFY(!page->isVisible()); // It is not there.

    SampleOptions samples;
    samples.userId = sampleUserId();
    samples.now = QDateTime::currentDateTime();
    const QString name = planSampleProjects(samples).first().name;
    emit window.view()->projectOpened(m_home.projectRoot() + name + '/' + name + ".proj");
    QVERIFY(page->isVisible());
    QVERIFY(!window.view()->isVisible());
    QCOMPARE(page->getOpenedProjectInfo().projectName, name);
    QVERIFY(page->findChild<QTreeWidget*>()->topLevelItemCount() > 0);

    emit page->backToProjectView();
    QVERIFY(window.view()->isVisible());
    QVERIFY(statusTexts(window).contains(QStringLiteral("Opened: ") + name));

    emit window.view()->projectOpened(page->getOpenedProjectInfo().projectFilePath);
    emit page->blockOpened(QStringLiteral("any"));
    QVERIFY(window.view()->isVisible());
}

void tst_HostWindow::programKeepsItsSettingsWhereItIsTold()
{
    const QString personal = m_home.path() + QStringLiteral("/personal");
    const QString chosen = m_home.path() + QStringLiteral("/chosen");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), personal);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(RK_SURVEY_HOST),
                  {QStringLiteral("--settings"), chosen, QStringLiteral("--user"),
                   QStringLiteral("somebody"), QStringLiteral("--projects"),
                   m_home.path() + QStringLiteral("/none")});
    const QString file = QStringLiteral("/RkOrganization/RkCloud.conf");
    QTRY_VERIFY_WITH_TIMEOUT(readFile(chosen + file).contains("UserID=somebody"), 30'000);
    program.kill();
    QVERIFY(program.waitForFinished());
    QVERIFY(!QFileInfo::exists(personal + file));
}

QTEST_MAIN(tst_HostWindow)
#include "tst_HostWindow.moc"
