// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/HostSettings.h"
#include "app/HostWindow.h"
#include "app/MapPanel.h"
#include "samples/SampleProjects.h"
#include "service/WebServiceServer.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkAlgorthm/ReferenceSettings.h>
#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>
#include <RkProjectDbOperator/ReferenceSettings.h>

#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTest>

#include <memory>

/// The application's window with a block opened, and a web service in this process, whatever it
/// does wrong. The user's token is the one that the service knows.
class UploadFixture
{
public:
    /// Writes the sample projects. Whether it could.
    bool makeProjects()
    {
        SampleOptions samples;
        samples.root = home.projectRoot();
        samples.userId = sampleUserId();
        samples.count = 4;
        samples.withSpecialCases = false;
        samples.now = QDateTime::currentDateTime();
        project = writeSampleProjects(samples).value(0);
        blockId = readSql(project, "SELECT survey_area_guid FROM survey_area").value(0);
        blockName = readSql(project, "SELECT survey_area_name FROM survey_area").value(0);
        return !blockId.isEmpty() && !blockName.isEmpty();
    }

    void begin()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_store = m_dir->filePath("service.db");
        qunsetenv("RK_SERVER_TOKEN");
        HostSettings::setProjectRoot(home.projectRoot());
        HostSettings::setCurrentUser(sampleUserId());
        HostSettings::installLanguage("en");
        ClearBlocks();
        window = std::make_unique<HostWindow>();
        window->show();
        QVERIFY(comesOnScreen(window.get()));
    }

    void end()
    {
        window.reset();
        server.reset();
        SetUploadTimeout(60000);
    }

    void openBlock()
    {
        CRkBlockManagerWidget page;
        QVERIFY(page.LoadExistBlocks(project));
        QVERIFY(page.OpenBlock(blockId));
        window->showBlock(page.getOpenedProjectInfo(), blockId);
        QTRY_VERIFY(!window->map()->isMoving());
    }

    /// Makes a service of this process the one that is asked. With the fault "absent" it runs, but
    /// an address where nobody listens is asked.
    void startService(const QString& fault = QString())
    {
        ServiceOptions options;
        options.storeFile = m_store;
        options.token = sampleUserId().toLatin1();
        options.fault = parseServiceFault(fault).value_or(ServiceFault());
        server = std::make_unique<WebServiceServer>(options);
        QVERIFY(server->start());
        SetServerIP(fault == "absent" ? emptyAddress() : server->address());
    }

    /// A column of the service's store.
    QStringList stored(const QString& what) const { return readSql(m_store, "SELECT " + what); }

    /// What the status bar says.
    QString result() const { return window->findChild<QLabel*>("result")->text(); }

    TestHome home;
    QString project; ///< The file.
    QString blockId;
    QString blockName;
    std::unique_ptr<WebServiceServer> server;
    std::unique_ptr<HostWindow> window;

private:
    static QByteArray emptyAddress()
    {
        QTcpServer taken;
        taken.listen(QHostAddress::LocalHost);
        return "http://127.0.0.1:" + QByteArray::number(taken.serverPort());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_store;
};

constexpr int standstillLimit = 400; ///< Milliseconds that a service may stand still.

inline QPushButton& button(const QWidget& window, const char* name)
{
    return *window.findChild<QPushButton*>(QLatin1String(name));
}

inline void click(const QWidget& window, const char* name)
{
    QTest::mouseClick(&button(window, name), Qt::LeftButton);
}

inline QString labelText(const QWidget& window, const char* label)
{
    return window.findChild<QLabel*>(QLatin1String(label))->text();
}
