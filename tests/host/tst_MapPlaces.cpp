// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/MapPanel.h"
#include "app/MapPlaces.h"
#include "app/PlaceSearchBox.h"
#include "map/MapProjection.h"
#include "service/WebServiceServer.h"
#include "support/RawServer.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/Render.h"

#include <RkAlgorthm/ReferenceSettings.h>

#include <QElapsedTimer>
#include <QFrame>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <cmath>
#include <memory>

using Note = PlaceSearchBox::Note;
Q_DECLARE_METATYPE(ServiceFault)
Q_DECLARE_METATYPE(Note)

namespace {

constexpr int searchLimit = 5000; // Milliseconds.
constexpr int locationLimit = 3000;
constexpr int tolerance = 1000;

} // namespace

class tst_MapPlaces : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void enterSearchesAndEnterPicks();
    void buttonSearchesAndMousePicks();
    void keywordsOfAllKinds_data();
    void keywordsOfAllKinds();
    void nothingToSearchForAsksNobody();
    void nothingFoundIsSaid();
    void faultOfTheSearchIsSaid_data();
    void faultOfTheSearchIsSaid();
    void absentServiceIsSaid();
    void locateCentresTheMap();
    void locateKeepsANearerView();
    void placesFarAwayAreReached();
    void faultOfLocatingIsSaid_data();
    void faultOfLocatingIsSaid();
    void waitingIsShownAndTheMapIsAlive();
    void lastQuestionCounts();
    void escapeGivesUp();
    void mapIsDestroyedMeanwhile_data();
    void mapIsDestroyedMeanwhile();
    void clearedFieldTakesTheMarkerAway();
    void keysStayInTheBox();
    void clicksStayInTheBox();
    void languageChangesTheTexts();

private:
    void startService(const ServiceFault& fault = {});
    void typeKeyword(const QString& keyword);
    PlaceSearchBox& box() const { return *m_panel->places()->box(); }
    QLineEdit& field() const { return *m_panel->findChild<QLineEdit*>("keyword"); }
    QListWidget& list() const { return *m_panel->findChild<QListWidget*>("places"); }
    QToolButton& button(const char* name) const
    {
        return *m_panel->findChild<QToolButton*>(QLatin1String(name));
    }
    bool isInTheMiddle(double latitude, double longitude) const;
    bool isAt(const FoundPlace& place) const
    {
        return isInTheMiddle(place.degrees.x(), place.degrees.y());
    }

    TestHome m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WebServiceServer> m_service;
    std::unique_ptr<MapPanel> m_panel;
};

void tst_MapPlaces::init()
{
    HostSettings::installLanguage(QStringLiteral("en"));
    m_folder = std::make_unique<QTemporaryDir>();
    m_panel = std::make_unique<MapPanel>();
    m_panel->resize(900, 650);
    m_panel->show();
    QVERIFY(comesOnScreen(m_panel.get()));
    QApplication::setActiveWindow(m_panel.get());
    QTRY_VERIFY(m_panel->isActiveWindow());
}

void tst_MapPlaces::cleanup()
{
    m_panel.reset();
    m_service.reset();
    SetServerIP({});
    HostSettings::installLanguage(QStringLiteral("en"));
}

void tst_MapPlaces::startService(const ServiceFault& fault)
{
    ServiceOptions options;
    options.storeFile = m_folder->filePath(QStringLiteral("store.db"));
    options.fault = fault;
    m_service = std::make_unique<WebServiceServer>(options);
    QVERIFY(m_service->start());
    SetServerIP(m_service->address());
}

void tst_MapPlaces::typeKeyword(const QString& keyword)
{
    QTest::mouseClick(&field(), Qt::LeftButton);
    field().clear();
    QInputMethodEvent typed; // Which can be Chinese, other than keys.
    typed.setCommitString(keyword);
    QApplication::sendEvent(&field(), &typed);
    QCOMPARE(field().text(), keyword);
}

bool tst_MapPlaces::isInTheMiddle(double latitude, double longitude) const
{
    const QPointF at = m_panel->view().toScreen(MapProjection::toPlane({latitude, longitude}));
    return !m_panel->isMoving()
        && std::hypot(at.x() - m_panel->width() / 2.0, at.y() - m_panel->height() / 2.0) < 1;
}

void tst_MapPlaces::enterSearchesAndEnterPicks()
{
    startService();
    typeKeyword(QStringLiteral("cheng"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_VERIFY(list().isVisible());
    QVERIFY(list().count() > 1);
    QCOMPARE(list().count(), box().places().size());
    for (int i = 0; i < list().count(); ++i) {
        const QString name = list().item(i)->text();
        QVERIFY2(name.contains(QStringLiteral("cheng"), Qt::CaseInsensitive), qPrintable(name));
    }
    QTest::keyClick(&field(), Qt::Key_Down);
    QVERIFY(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Down);
    const FoundPlace second = box().places().at(1);
    QTest::keyClick(&list(), Qt::Key_Return);
    QVERIFY(!list().isVisible());
    QTRY_VERIFY(isAt(second));
    QVERIFY(m_panel->hasFocus());
    QVERIFY(m_panel->places()->marker());
    QCOMPARE(m_panel->places()->marker()->place, MapProjection::toPlane(second.degrees));
    QVERIFY(second.name.startsWith(m_panel->places()->marker()->name));
    QCOMPARE(field().text(), m_panel->places()->marker()->name);
    const QColor mark = colorAt(rendered(*m_panel, 1),
                                QPoint(m_panel->width() / 2 - 8, m_panel->height() / 2 - 23));
    QVERIFY2(mark.red() > 200 && mark.green() < 120, qPrintable(mark.name()));
}

void tst_MapPlaces::buttonSearchesAndMousePicks()
{
    startService();
    typeKeyword(QString::fromUtf8("成都"));
    QTest::mouseClick(&button("search"), Qt::LeftButton);
    QTRY_VERIFY(list().isVisible());
    const FoundPlace first = box().places().first();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier,
                      list().visualItemRect(list().item(0)).center());
    QTRY_VERIFY(isAt(first));
}

void tst_MapPlaces::keywordsOfAllKinds_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("space") << "San Ya" << QByteArray("San%20Ya");
    QTest::newRow("ampersand") << "a&b=c" << QByteArray("a%26b%3Dc");
    QTest::newRow("hash") << "a#b" << QByteArray("a%23b");
    QTest::newRow("percent") << "%41" << QByteArray("%2541");
    QTest::newRow("plus") << "a+b" << QByteArray("a%2Bb");
    QTest::newRow("quotes") << "\"a'" << QByteArray("%22a%27");
}

void tst_MapPlaces::keywordsOfAllKinds()
{
    QFETCH(QString, keyword);
    QFETCH(QByteArray, sent);
    RawServer server;
    server.answer = httpAnswer(200, R"({"status":1,"data":[{"name":"Here","location":"104,30"}]})");
    SetServerIP(server.address());
    typeKeyword(keyword);
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_VERIFY(list().isVisible());
    QCOMPARE(server.requestLines.first(), "GET /bing/fuzzysearch?keyword=" + sent + " HTTP/1.1");
}

void tst_MapPlaces::nothingToSearchForAsksNobody()
{
    RawServer server;
    SetServerIP(server.address());
    QTest::mouseClick(&button("search"), Qt::LeftButton);
    QVERIFY(field().hasFocus());
    typeKeyword(QStringLiteral("   "));
    QTest::keyClick(&field(), Qt::Key_Return);
    QVERIFY(!m_panel->places()->isAsking());
    QCOMPARE(box().note(), Note::None);
    QVERIFY(server.requestLines.isEmpty());
}

void tst_MapPlaces::nothingFoundIsSaid()
{
    startService();
    typeKeyword(QStringLiteral("<b>Atlantis</b>"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_COMPARE(box().note(), Note::NoneFound);
    QCOMPARE(box().noteText(), QStringLiteral("No place found for \"<b>Atlantis</b>\""));
    const auto* plate = m_panel->findChild<QFrame*>(QStringLiteral("note"));
    QVERIFY(plate->isVisible());
    QVERIFY(!list().isVisible());
}

void tst_MapPlaces::faultOfTheSearchIsSaid_data()
{
    QTest::addColumn<ServiceFault>("fault");
    QTest::addColumn<int>("atLeast");
    QTest::addColumn<int>("atMost");
    const auto row = [](const char* name, const char* fault, int atLeast, int atMost) {
        QTest::newRow(name) << *parseServiceFault(QLatin1String(fault)) << atLeast << atMost;
    };
    row("error of the server", "500", 0, searchLimit);
    row("garbage", "garbage", 0, searchLimit);
    row("cut", "cut", 0, searchLimit);
    row("unauthorized", "401", 0, searchLimit);
    row("stalled", "stall", searchLimit, searchLimit + tolerance);
    row("trickling", "trickle:2000", searchLimit, searchLimit + tolerance);
}

void tst_MapPlaces::faultOfTheSearchIsSaid()
{
    QFETCH(ServiceFault, fault);
    QFETCH(int, atLeast);
    QFETCH(int, atMost);
    startService(fault);
    typeKeyword(QStringLiteral("cheng"));
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(&field(), Qt::Key_Return);
    QCOMPARE(box().note(), Note::Searching);
    while (m_panel->places()->isAsking())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(box().note(), Note::NoSearch);
    QVERIFY2(elapsed >= atLeast && elapsed <= atMost, qPrintable(QString::number(elapsed)));
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!m_panel->places()->marker());
}

void tst_MapPlaces::absentServiceIsSaid()
{
    {
        RawServer server;
        SetServerIP(server.address());
    }
    typeKeyword(QStringLiteral("cheng"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_COMPARE(box().note(), Note::NoSearch);
    QTest::mouseClick(&button("locate"), Qt::LeftButton);
    QTRY_COMPARE(box().note(), Note::NoLocation);
}

void tst_MapPlaces::locateCentresTheMap()
{
    startService();
    const MapView before = m_panel->view();
    QTest::mouseClick(&button("locate"), Qt::LeftButton);
    QCOMPARE(box().note(), Note::Locating);
    QTRY_VERIFY(isInTheMiddle(39.91, 116.40));
    QVERIFY(m_panel->view().scale > before.scale * 4);
    QCOMPARE(box().note(), Note::None);
    QCOMPARE(m_panel->places()->marker()->name, QStringLiteral("You are here"));
    const QColor mark = colorAt(rendered(*m_panel, 1), m_panel->rect().center());
    QVERIFY2(mark.blue() > 220 && mark.red() < 100, qPrintable(mark.name()));
}

void tst_MapPlaces::locateKeepsANearerView()
{
    startService();
    MapView near = m_panel->view();
    near.scale = 3e7;
    m_panel->setView(near);
    QTest::mouseClick(&button("locate"), Qt::LeftButton);
    QTRY_VERIFY(isInTheMiddle(39.91, 116.40));
    QCOMPARE(m_panel->view().scale, 3e7);
}

void tst_MapPlaces::placesFarAwayAreReached()
{
    m_panel->places()->showHere(QPointF(-33.87, 151.21));
    QTRY_VERIFY(isInTheMiddle(-33.87, 151.21));
}

void tst_MapPlaces::faultOfLocatingIsSaid_data()
{
    QTest::addColumn<ServiceFault>("fault");
    QTest::addColumn<int>("atLeast");
    const auto row = [](const char* name, const char* fault, int atLeast) {
        QTest::newRow(name) << *parseServiceFault(QLatin1String(fault)) << atLeast;
    };
    row("error of the server", "500", 0);
    row("garbage", "garbage", 0);
    row("stalled", "stall", locationLimit);
}

void tst_MapPlaces::faultOfLocatingIsSaid()
{
    QFETCH(ServiceFault, fault);
    QFETCH(int, atLeast);
    startService(fault);
    const MapView before = m_panel->view();
    QElapsedTimer timer;
    timer.start();
    QTest::mouseClick(&button("locate"), Qt::LeftButton);
    while (m_panel->places()->isAsking())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(box().note(), Note::NoLocation);
    QVERIFY2(elapsed >= atLeast && elapsed <= locationLimit + tolerance,
             qPrintable(QString::number(elapsed)));
    QVERIFY(m_panel->view() == before);
    QVERIFY(!m_panel->places()->marker());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_MapPlaces::waitingIsShownAndTheMapIsAlive()
{
    startService(*parseServiceFault(QStringLiteral("delay:1000")));
    typeKeyword(QStringLiteral("cheng"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QCOMPARE(box().noteText(), QString::fromUtf8("Searching…"));
    const double scale = m_panel->view().scale;
    QTest::keyClick(m_panel.get(), Qt::Key_Plus);
    // The loop that waits for the answer runs within any loop of the test; this looks from inside.
    QImage first;
    int ticks = 0;
    bool hasTurned = false;
    bool hasZoomed = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (!m_panel->places()->isAsking())
            return;
        ++ticks;
        QFrame& plate = *m_panel->findChild<QFrame*>(QStringLiteral("note"));
        if (first.isNull())
            first = rendered(plate, 1);
        hasTurned = hasTurned || (plate.isVisible() && rendered(plate, 1) != first);
        hasZoomed = hasZoomed || m_panel->view().scale == scale * 2;
    });
    timer.start(20);
    QTRY_VERIFY(list().isVisible());
    QVERIFY2(ticks > 10, qPrintable(QString::number(ticks)));
    QVERIFY(hasTurned && hasZoomed);
}

void tst_MapPlaces::lastQuestionCounts()
{
    const auto named = [](const QByteArray& name) {
        return httpAnswer(200,
                          R"({"status":1,"data":[{"name":")" + name + R"(","location":"1,2"}]})");
    };
    RawServer server;
    server.closes = false; // It says nothing until it is released.
    SetServerIP(server.address());
    QVector<Note> notes;
    server.onRequest = [&] {
        if (server.requestLines.size() == 1) {
            for (const char* keyword : {"second", "third"}) {
                typeKeyword(QLatin1String(keyword));
                QTest::keyClick(&field(), Qt::Key_Return);
            }
        }
        notes.append(box().note());
        const QByteArray name = QByteArray::number(server.requestLines.size());
        QTimer::singleShot(0, &server, [&server, named, name] { server.release(named(name)); });
    };
    typeKeyword(QStringLiteral("first"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_VERIFY(list().isVisible());
    QCOMPARE(server.requestLines.size(), 2);
    QVERIFY(server.requestLines[1].contains("keyword=third "));
    QCOMPARE(notes, QVector<Note>({Note::Searching, Note::Searching}));
    QCOMPARE(box().places().first().name, QStringLiteral("2"));
}

void tst_MapPlaces::escapeGivesUp()
{
    const QByteArray answer =
        httpAnswer(200, R"({"status":1,"data":[{"name":"A","location":"1,2"}]})");
    RawServer server;
    server.closes = false;
    SetServerIP(server.address());
    bool hasGivenUp = false;
    server.onRequest = [&] {
        QTest::keyClick(&field(), Qt::Key_Escape);
        hasGivenUp = box().note() == Note::None && !m_panel->places()->isAsking();
        QTimer::singleShot(0, &server, [&] { server.release(answer); });
    };
    typeKeyword(QStringLiteral("cheng"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_COMPARE(server.requestLines.size(), 1);
    QTRY_COMPARE(server.openConnections(), 0);
    QVERIFY(hasGivenUp && !list().isVisible());
    // And the next question is asked as ever.
    server.onRequest = [] {};
    server.closes = true;
    server.answer = answer;
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_VERIFY(list().isVisible());
    QTest::keyClick(&field(), Qt::Key_Escape);
    QVERIFY(!list().isVisible());
    QVERIFY(field().hasFocus());
    QTest::keyClick(&field(), Qt::Key_Escape);
    QVERIFY2(m_panel->hasFocus(), "with nothing shown Escape goes back to the map");
}

void tst_MapPlaces::mapIsDestroyedMeanwhile_data()
{
    QTest::addColumn<bool>("isSearch");
    QTest::newRow("search") << true;
    QTest::newRow("location") << false;
}

void tst_MapPlaces::mapIsDestroyedMeanwhile()
{
    QFETCH(bool, isSearch);
    RawServer server;
    server.closes = false;
    SetServerIP(server.address());
    bool isDestroyed = false;
    server.onRequest = [&] {
        m_panel.reset();
        isDestroyed = true;
    };
    if (isSearch) {
        typeKeyword(QStringLiteral("cheng"));
        QTest::keyClick(&field(), Qt::Key_Return);
    } else {
        QTest::mouseClick(&button("locate"), Qt::LeftButton);
    }
    QTRY_VERIFY(isDestroyed);
    server.release(httpAnswer(200, R"({"status":1,"data":[{"name":"A","location":"1,2"}]})"));
    QTRY_COMPARE(server.openConnections(), 0);
}

void tst_MapPlaces::clearedFieldTakesTheMarkerAway()
{
    m_panel->places()->showPlace({QStringLiteral("Chengdu"), {30.66, 104.06}});
    box().setKeyword(QStringLiteral("Chengdu"));
    QVERIFY(m_panel->places()->marker());
    QTest::mouseClick(&field(), Qt::LeftButton);
    QTest::keyClick(&field(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field(), Qt::Key_Delete);
    QVERIFY(!m_panel->places()->marker());
}

void tst_MapPlaces::keysStayInTheBox()
{
    startService();
    const MapView before = m_panel->view();
    typeKeyword(QStringLiteral("+-"));
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_Left})
        QTest::keyClick(&field(), key);
    QVERIFY(!m_panel->isMoving());
    QVERIFY(m_panel->view() == before);
    typeKeyword(QStringLiteral("cheng"));
    QTest::keyClick(&field(), Qt::Key_Return);
    QTRY_VERIFY(list().isVisible());
    QTest::keyClick(&field(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Up);
    QVERIFY2(field().hasFocus(), "from the first row up to the field");
    QVERIFY(m_panel->view() == before);
}

void tst_MapPlaces::clicksStayInTheBox()
{
    box().showNote(Note::NoSearch);
    const MapView before = m_panel->view();
    auto* plate = m_panel->findChild<QFrame*>(QStringLiteral("note"));
    QTRY_VERIFY(plate->isVisible());
    QTest::mouseDClick(plate, Qt::LeftButton);
    QVERIFY(!m_panel->isMoving());
    QVERIFY(m_panel->view() == before);
}

void tst_MapPlaces::languageChangesTheTexts()
{
    box().showPlaces(QStringLiteral("a"), {{QString::fromUtf8("Chengdu 成都市"), {30.6, 104}}});
    QCOMPARE(list().item(0)->text(), QStringLiteral("Chengdu"));
    m_panel->places()->showHere(QPointF(30, 104));
    box().showNote(Note::NoSearch);
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(field().placeholderText(), QString::fromUtf8("搜索地点"));
    QCOMPARE(box().noteText(), QString::fromUtf8("网络服务无响应，无法搜索"));
    QCOMPARE(m_panel->places()->marker()->name, QString::fromUtf8("当前位置"));
    QCOMPARE(button("locate").accessibleName(), QString::fromUtf8("定位到我的位置"));
    box().showPlaces(QStringLiteral("a"), {{QString::fromUtf8("Chengdu 成都市"), {30.6, 104}}});
    QCOMPARE(list().item(0)->text(), QString::fromUtf8("成都市"));
}

QTEST_MAIN(tst_MapPlaces)
#include "tst_MapPlaces.moc"
