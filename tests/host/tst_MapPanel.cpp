// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/MapButtons.h"
#include "app/MapPanel.h"
#include "map/MapProjection.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/Render.h"
#include "widgets/SendMouse.h"

#include <QPaintEvent>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <cmath>
#include <memory>

namespace {

constexpr QPoint middle(400, 300);

/// Notes what is painted anew.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }

    QRegion painted;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

/// A square kilometre at Chengdu that is opened, and a strip of 30 kilometres to the east.
QVector<MapBlocks::Block> twoBlocks()
{
    return {
        {QStringLiteral("Strip"), QVector<QPointF>{{30.66, 104.1}, {30.67, 104.4}}, true, false},
        {QStringLiteral("Field"),
         QPolygonF({{30.66, 104.06}, {30.67, 104.06}, {30.67, 104.07}, {30.66, 104.07}}), false,
         true}};
}

QPointF onPanel(const MapPanel& panel, double latitude, double longitude)
{
    return panel.view().toScreen(MapProjection::toPlane(QPointF(latitude, longitude)));
}

void turnWheel(QWidget& panel, QPoint at, int eighthsOfDegrees)
{
    QWheelEvent event(at, panel.mapToGlobal(at), QPoint(), QPoint(0, eighthsOfDegrees),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&panel, &event);
}

bool near(const QPointF& a, const QPointF& b, double tolerance = 0.01)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) <= tolerance;
}

/// How much of two pictures of one size differs, as a share of the pixels.
double differing(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p(a.pixel(x, y));
            const QColor q(b.pixel(x, y));
            if (std::abs(p.red() - q.red()) + std::abs(p.green() - q.green())
                    + std::abs(p.blue() - q.blue())
                > 24)
                ++count;
        }
    }
    return double(count) / (double(a.width()) * a.height());
}

} // namespace

class tst_MapPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void countryFillsThePanelAtFirst();
    void chosenViewOutlivesAResize();
    void shownBlockOutlivesAResize_data();
    void shownBlockOutlivesAResize();
    void blockIsBroughtIntoSight_data();
    void blockIsBroughtIntoSight();
    void nothingToBringIntoSight();
    void mouseDragsTheMap();
    void otherButtonsDoNotDrag();
    void zoomLetsGo();
    void lostReleaseLetsGo();
    void wheelZoomsAtTheCursor_data();
    void wheelZoomsAtTheCursor();
    void quickWheelTurnsAddUp();
    void keysMoveAndZoom();
    void homeGoesBackToTheBlock();
    void mapIsNotLost();
    void blockAndProjectAreShown();
    void nothingOpenedShowsTheCountry();
    void buttonsAreThereForWhatIsShown();
    void openedBlockIsHighlighted_data();
    void openedBlockIsHighlighted();
    void farBlocksAreMarks();
    void blocksGoAgain();
    void movedPictureIsTheDrawnPicture_data();
    void movedPictureIsTheDrawnPicture();
    void mapAtRestIsDrawnFinely();
    void draftIsReplaced();
    void coordinatesFollowTheCursor();
    void cursorRepaintsTheCornerOnly();
    void languageChangesNamesAndTips();
    void cleanup();

private:
    double differenceFromANewPanel();

    TestHome m_home;
    std::unique_ptr<MapPanel> m_panel;
};

void tst_MapPanel::init()
{
    HostSettings::installLanguage(QStringLiteral("en"));
    m_panel = std::make_unique<MapPanel>();
    m_panel->resize(800, 600);
    m_panel->show();
    QVERIFY(comesOnScreen(m_panel.get()));
}

void tst_MapPanel::cleanup()
{
    m_panel.reset();
    HostSettings::installLanguage(QStringLiteral("en"));
}

void tst_MapPanel::countryFillsThePanelAtFirst()
{
    const QRectF panel(m_panel->rect());
    const QVector<QPointF> corners = {onPanel(*m_panel, 18.3, 109.5), onPanel(*m_panel, 53.4, 123),
                                      onPanel(*m_panel, 39.4, 73.7),
                                      onPanel(*m_panel, 48.4, 134.7)};
    for (const QPointF& corner : corners)
        QVERIFY(panel.contains(corner));
    QVERIFY(corners[3].x() - corners[2].x() > 0.8 * panel.width());
    m_panel->resize(500, 400);
    QVERIFY(m_panel->rect().contains(onPanel(*m_panel, 39.4, 73.7).toPoint()));
}

void tst_MapPanel::chosenViewOutlivesAResize()
{
    MapView view = m_panel->view();
    view.centre = MapProjection::toPlane(QPointF(30.66, 104.06));
    view.scale = 100'000;
    m_panel->setView(view);
    m_panel->resize(500, 400);
    QCOMPARE(m_panel->view().scale, 100'000.0);
    QVERIFY(near(onPanel(*m_panel, 30.66, 104.06), QPointF(250, 200)));
}

void tst_MapPanel::shownBlockOutlivesAResize_data()
{
    QTest::addColumn<bool>("isMoving");
    QTest::newRow("at rest") << false;
    QTest::newRow("on its way") << true;
}

void tst_MapPanel::shownBlockOutlivesAResize()
{
    QFETCH(bool, isMoving);
    m_panel->setBlocks(twoBlocks());
    m_panel->showBlock();
    if (!isMoving)
        QTRY_VERIFY(!m_panel->isMoving());
    m_panel->resize(500, 400);
    QVERIFY(near(onPanel(*m_panel, 30.665, 104.065), QPointF(250, 200), 0.5));
    QVERIFY(m_panel->view().scale > 100'000);
}

void tst_MapPanel::blockIsBroughtIntoSight_data()
{
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("isInSight");
    QTest::newRow("in sight") << QPointF(30.665, 104.065) << 2e6 << true;
    QTest::newRow("in a corner") << QPointF(30.72, 104.13) << 1e6 << true;
    QTest::newRow("elsewhere") << QPointF(39.91, 116.4) << 2e6 << false;
    QTest::newRow("half of it") << QPointF(30.66, 104.06) << 3e7 << false;
}

void tst_MapPanel::blockIsBroughtIntoSight()
{
    QFETCH(QPointF, centre);
    QFETCH(double, scale);
    QFETCH(bool, isInSight);
    const QVector<MapBlocks::Block> blocks = twoBlocks();
    m_panel->setBlocks(blocks);
    MapView view = m_panel->view();
    view.centre = MapProjection::toPlane(centre);
    view.scale = scale;
    m_panel->setView(view);
    m_panel->bringBlockIntoSight();
    QVERIFY(!m_panel->isMoving());
    QCOMPARE(m_panel->view() == view, isInSight);
    for (const QPointF& corner : blocks[1].outline)
        QVERIFY(m_panel->rect().contains(onPanel(*m_panel, corner.x(), corner.y()).toPoint()));
}

void tst_MapPanel::nothingToBringIntoSight()
{
    m_panel->setBlocks({{QStringLiteral("No outline"), {}, false, true}});
    m_panel->setView(m_panel->view().zoomed(9, middle));
    const MapView view = m_panel->view();
    m_panel->bringBlockIntoSight();
    QVERIFY(m_panel->view() == view);
}

void tst_MapPanel::mouseDragsTheMap()
{
    const QPointF before = onPanel(*m_panel, 30, 104);
    sendMouse(*m_panel, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(m_panel->cursor().shape(), Qt::ClosedHandCursor);
    sendMouse(*m_panel, QEvent::MouseMove, middle + QPoint(10, 5), Qt::NoButton, Qt::LeftButton);
    sendMouse(*m_panel, QEvent::MouseMove, middle + QPoint(33, -21), Qt::NoButton, Qt::LeftButton);
    QVERIFY(near(onPanel(*m_panel, 30, 104), before + QPointF(33, -21)));
    sendMouse(*m_panel, QEvent::MouseButtonRelease, middle + QPoint(33, -21), Qt::LeftButton,
              Qt::NoButton);
    QCOMPARE(m_panel->cursor().shape(), Qt::OpenHandCursor);
    sendMouse(*m_panel, QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton);
    QVERIFY(near(onPanel(*m_panel, 30, 104), before + QPointF(33, -21)));
}

void tst_MapPanel::otherButtonsDoNotDrag()
{
    const MapView before = m_panel->view();
    sendMouse(*m_panel, QEvent::MouseButtonPress, middle, Qt::RightButton, Qt::RightButton);
    sendMouse(*m_panel, QEvent::MouseMove, middle + QPoint(30, 5), Qt::NoButton, Qt::RightButton);
    QVERIFY(m_panel->view() == before);
}

void tst_MapPanel::zoomLetsGo()
{
    sendMouse(*m_panel, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
    turnWheel(*m_panel, middle, 240);
    QTRY_VERIFY(!m_panel->isMoving());
    const MapView zoomed = m_panel->view();
    sendMouse(*m_panel, QEvent::MouseMove, middle + QPoint(9, 0), Qt::NoButton, Qt::LeftButton);
    QVERIFY(m_panel->view() == zoomed);
}

void tst_MapPanel::lostReleaseLetsGo()
{
    const MapView before = m_panel->view();
    sendMouse(*m_panel, QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton);
    sendMouse(*m_panel, QEvent::MouseMove, middle + QPoint(9, 0), Qt::NoButton, Qt::NoButton);
    QVERIFY(m_panel->view() == before);
    QCOMPARE(m_panel->cursor().shape(), Qt::OpenHandCursor);
}

void tst_MapPanel::wheelZoomsAtTheCursor_data()
{
    QTest::addColumn<int>("turn");
    QTest::addColumn<double>("factor");
    QTest::newRow("a notch nearer") << 120 << std::sqrt(2.0);
    QTest::newRow("a notch away") << -120 << std::sqrt(0.5);
    QTest::newRow("a touch pad's little") << 15 << std::pow(2, 1.0 / 16);
}

void tst_MapPanel::wheelZoomsAtTheCursor()
{
    QFETCH(int, turn);
    QFETCH(double, factor);
    const QPoint cursor(300, 200);
    const MapView before = m_panel->view();
    const QPointF place = before.toPlane(cursor);
    turnWheel(*m_panel, cursor, turn);
    QTRY_VERIFY(!m_panel->isMoving());
    QCOMPARE(m_panel->view().scale, before.scale * factor);
    QVERIFY(near(m_panel->view().toScreen(place), cursor));
}

void tst_MapPanel::quickWheelTurnsAddUp()
{
    const MapView before = m_panel->view();
    for (int i = 0; i < 6; ++i)
        turnWheel(*m_panel, middle, 120);
    QTRY_VERIFY(!m_panel->isMoving());
    QCOMPARE(m_panel->view().scale, before.scale * 8);
}

void tst_MapPanel::keysMoveAndZoom()
{
    const MapView before = m_panel->view();
    const QPointF place = before.toPlane(middle);
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(m_panel.get(), key);
        // The map glides; QTRY_VERIFY cannot leave a function of a view.
        const bool isAtRest = QTest::qWaitFor([this] { return !m_panel->isMoving(); });
        return isAtRest ? m_panel->view() : MapView();
    };
    QCOMPARE(press(Qt::Key_Plus).scale, before.scale * 2);
    QCOMPARE(press(Qt::Key_Minus).scale, before.scale);
    QVERIFY(near(press(Qt::Key_Left).toScreen(place), middle + QPoint(80, 0)));
    QVERIFY(near(press(Qt::Key_Up).toScreen(place), middle + QPoint(80, 80)));
    QVERIFY(near(press(Qt::Key_Right).toScreen(place), middle + QPoint(0, 80)));
    QVERIFY(near(press(Qt::Key_Down).toScreen(place), middle));
}

void tst_MapPanel::homeGoesBackToTheBlock()
{
    m_panel->setBlocks(twoBlocks());
    QTest::keyClick(m_panel.get(), Qt::Key_Home);
    QTRY_VERIFY(near(onPanel(*m_panel, 30.665, 104.065), middle, 0.5));
}

void tst_MapPanel::mapIsNotLost()
{
    MapView view = m_panel->view();
    view.centre = QPointF(0.01, 0.99);
    m_panel->setView(view);
    const QPointF degrees = MapProjection::toDegrees(m_panel->view().centre);
    QVERIFY(degrees.x() > 3 && degrees.x() < 54 && degrees.y() > 73 && degrees.y() < 136);
}

void tst_MapPanel::blockAndProjectAreShown()
{
    m_panel->setBlocks(twoBlocks());
    m_panel->showBlock();
    QTRY_VERIFY(!m_panel->isMoving());
    QVERIFY(near(onPanel(*m_panel, 30.665, 104.065), middle, 0.5));
    const double side =
        onPanel(*m_panel, 30.665, 104.07).x() - onPanel(*m_panel, 30.665, 104.06).x();
    QVERIFY(side > 150 && side < 300);

    m_panel->showProject();
    QTRY_VERIFY(!m_panel->isMoving());
    for (const MapBlocks::Block& block : twoBlocks()) {
        for (const QPointF& corner : block.outline)
            QVERIFY(m_panel->rect().contains(onPanel(*m_panel, corner.x(), corner.y()).toPoint()));
    }
    QVERIFY(onPanel(*m_panel, 30.67, 104.4).x() > 600);
}

void tst_MapPanel::nothingOpenedShowsTheCountry()
{
    const MapView country = m_panel->view();
    m_panel->setView(country.zoomed(9, middle));
    m_panel->showBlock();
    QTRY_COMPARE(m_panel->view().scale, country.scale);
    m_panel->setView(country.zoomed(9, middle));
    m_panel->showProject();
    QTRY_COMPARE(m_panel->view().scale, country.scale);
}

void tst_MapPanel::buttonsAreThereForWhatIsShown()
{
    const auto buttons = m_panel->findChild<MapButtons*>()->findChildren<QToolButton*>();
    QCOMPARE(buttons.size(), 7);
    for (const QToolButton* button : buttons)
        QVERIFY(!button->accessibleName().isEmpty());
    QVERIFY(!buttons[2]->isEnabled() && !buttons[3]->isEnabled());
    m_panel->setBlocks(twoBlocks());
    QVERIFY(buttons[2]->isEnabled() && buttons[3]->isEnabled());
    const double scale = m_panel->view().scale;
    buttons[0]->click();
    QTRY_COMPARE(m_panel->view().scale, scale * 2);
    buttons[1]->click();
    QTRY_COMPARE(m_panel->view().scale, scale);
    buttons[2]->click();
    QTRY_VERIFY(near(onPanel(*m_panel, 30.665, 104.065), middle, 0.5));
    buttons[3]->click();
    QTRY_VERIFY(near(onPanel(*m_panel, 30.665, 104.23), middle, 2));
    buttons[4]->click();
    QTRY_COMPARE(m_panel->view().scale, scale);
}

void tst_MapPanel::openedBlockIsHighlighted_data()
{
    addScales();
}

void tst_MapPanel::openedBlockIsHighlighted()
{
    QFETCH(int, scale);
    QVector<MapBlocks::Block> blocks = twoBlocks();
    blocks[0] = blocks[1];
    blocks[0].isOpened = false;
    for (QPointF& corner : blocks[0].outline)
        corner += QPointF(0, 0.012);
    m_panel->setBlocks(blocks);
    m_panel->showProject();
    QTRY_VERIFY(!m_panel->isMoving());
    const QImage image = rendered(*m_panel, scale);
    const auto blueness = [&](double latitude, double longitude) {
        const QColor colour = colorAt(image, onPanel(*m_panel, latitude, longitude).toPoint());
        return colour.blue() - colour.red();
    };
    const int ground = blueness(30.6655, 104.0705);
    QVERIFY2(blueness(30.665, 104.065) > ground + 30, "the opened block is filled");
    QVERIFY2(blueness(30.665, 104.06) > 120, "and has an outline of the accent");
    const int other = blueness(30.665, 104.077);
    QVERIFY2(other > ground && other < ground + 15, "the other is filled faintly");
}

void tst_MapPanel::farBlocksAreMarks()
{
    m_panel->setBlocks(twoBlocks());
    const QColor colour =
        colorAt(rendered(*m_panel, 1), onPanel(*m_panel, 30.665, 104.065).toPoint());
    QCOMPARE(colour, QColor(58, 136, 244));
}

void tst_MapPanel::blocksGoAgain()
{
    const QImage before = rendered(*m_panel, 1);
    m_panel->setBlocks(twoBlocks());
    QVERIFY(differing(rendered(*m_panel, 1), before) > 0);
    m_panel->setBlocks({});
    // The buttons for the block come and go slowly in some styles; the map does not.
    const QRect map(0, 0, 700, 600);
    QCOMPARE(rendered(*m_panel, 1).copy(map), before.copy(map));
}

/// The share of the pixels that a panel which was never anywhere else shows in another colour.
double tst_MapPanel::differenceFromANewPanel()
{
    MapPanel fresh;
    fresh.resize(m_panel->size());
    fresh.setView(m_panel->view());
    if (QWidget* focus = m_panel->focusWidget())
        focus->clearFocus(); // The new one has none, and a ring shows where it is.
    return differing(m_panel->grab().toImage(), fresh.grab().toImage());
}

void tst_MapPanel::movedPictureIsTheDrawnPicture_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("country") << 256.0 * 12;
    QTest::newRow("provinces") << 256.0 * 80;
    QTest::newRow("cities") << 256.0 * 1024;
    QTest::newRow("a street") << 256.0 * 100'000;
}

void tst_MapPanel::movedPictureIsTheDrawnPicture()
{
    QFETCH(double, scale);
    MapView view = m_panel->view();
    view.centre = MapProjection::toPlane(QPointF(30.66, 104.06));
    view.scale = scale;
    m_panel->setView(view);
    m_panel->grab();
    QPoint at = middle;
    sendMouse(*m_panel, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    for (const QPoint& step : {QPoint(37, 0), QPoint(0, -51), QPoint(-110, 64), QPoint(7, 9),
                               QPoint(200, 150), QPoint(-90, -260)}) {
        at += step;
        sendMouse(*m_panel, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        m_panel->grab();
    }
    sendMouse(*m_panel, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_panel.get(), &leave);

    const double share = differenceFromANewPanel();
    QVERIFY2(share < 0.001, qPrintable(QString::number(share)));
}

/// On the way there it need not be.
void tst_MapPanel::mapAtRestIsDrawnFinely()
{
    m_panel->setView(m_panel->view().zoomed(6, middle));
    m_panel->zoomIn();
    QTRY_VERIFY(!m_panel->isMoving());
    QVERIFY(differenceFromANewPanel() < 0.001);
}

void tst_MapPanel::draftIsReplaced()
{
    const MapView view = m_panel->view().zoomed(6, middle);
    MapCanvas canvas;
    canvas.renewNames(false, QFont());
    const QImage fine = canvas.picture(view, 1).toImage();
    QVERIFY(canvas.picture(view, 1, MapCanvas::Quality::Draft).toImage() != fine);
    QCOMPARE(canvas.picture(view, 1).toImage(), fine);
}

void tst_MapPanel::coordinatesFollowTheCursor()
{
    QVERIFY(m_panel->coordinates().isEmpty());
    m_panel->setBlocks(twoBlocks());
    m_panel->showBlock();
    QTRY_VERIFY(!m_panel->isMoving());
    sendMouse(*m_panel, QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton);
    QVERIFY2(m_panel->coordinates().startsWith(QString::fromUtf8("30.6650")),
             qPrintable(m_panel->coordinates()));
    QVERIFY(m_panel->coordinates().contains(QString::fromUtf8("° N  104.065")));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_panel.get(), &leave);
    QVERIFY(m_panel->coordinates().isEmpty());
}

void tst_MapPanel::cursorRepaintsTheCornerOnly()
{
    QCoreApplication::processEvents();
    PaintWatch watch(*m_panel);
    sendMouse(*m_panel, QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton);
    QTRY_VERIFY(!watch.painted.isEmpty());
    QVERIFY(QRect(0, 540, 400, 60).contains(watch.painted.boundingRect()));
}

void tst_MapPanel::languageChangesNamesAndTips()
{
    const QImage english = rendered(*m_panel, 1);
    const auto* zoomIn = m_panel->findChild<MapButtons*>()->findChild<QToolButton*>();
    QCOMPARE(zoomIn->toolTip(), QStringLiteral("Zoom in"));
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(zoomIn->toolTip(), QString::fromUtf8("放大"));
    QTRY_VERIFY(differing(rendered(*m_panel, 1), english) > 0.005);
    HostSettings::installLanguage(QStringLiteral("en"));
    QTRY_COMPARE(rendered(*m_panel, 1).copy(0, 0, 700, 600), english.copy(0, 0, 700, 600));
}

QTEST_MAIN(tst_MapPanel)
#include "tst_MapPanel.moc"
