// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/MapPanel.h"
#include "app/OutlinePlate.h"
#include "app/OutlineTool.h"
#include "map/MapProjection.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/Render.h"
#include "widgets/SendMouse.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

#include <cmath>
#include <memory>

using Mood = OutlineTexts::Mood;
Q_DECLARE_METATYPE(Mood)

namespace {

const QVector<QPoint> convex = {{400, 150}, {700, 150}, {750, 400}, {420, 450}};
const QVector<QPoint> bent = {{400, 150}, {700, 150}, {560, 250}, {420, 450}};
const QVector<QPoint> crossing = {{400, 150}, {700, 450}, {700, 150}, {400, 450}};

} // namespace

class tst_OutlineTool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void buttonBeginsAndEnds();
    void clickAddsAVertex();
    void dragMovesTheMapInstead();
    void slightMoveIsAClick();
    void sameVertexIsAddedOnce();
    void otherButtonsAddNothing();
    void outlineIsClosed_data();
    void outlineIsClosed();
    void closingNeedsThreeVertices();
    void backspaceRemovesTheLast();
    void escapeLeaves();
    void spaceAddsTheMiddle();
    void keysOfTheMapStillWork();
    void openOutlineIsNotChecked();
    void plateIsAsHighAsItsLines();
    void checkColoursAndTells_data();
    void checkColoursAndTells();
    void changedOutlineIsUnchecked();
    void segmentShowsThePartsInColours();
    void segmentSaysWhyNot_data();
    void segmentSaysWhyNot();
    void otherSizeIsCheckedAtOnce();
    void plateIsReachedByKeyboard();
    void clicksStayOnThePlate();
    void doubleClickZoomsWithoutTheTool();
    void languageChangesTheTexts();

private:
    void draw(const QVector<QPoint>& vertices, bool isClosed = true);
    void press(const char* name) const
    {
        QTest::mouseClick(m_panel->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    QToolButton& outlineButton() const
    {
        return *m_panel->findChild<QToolButton*>(QStringLiteral("outline"));
    }
    QDoubleSpinBox& sizeField() const
    {
        return *m_panel->findChild<QDoubleSpinBox*>(QStringLiteral("largestPart"));
    }
    OutlineTool& tool() const { return *m_panel->outline(); }
    int vertices() const { return tool().drawing().vertices.size(); }
    QString text() const { return tool().plate()->text(); }

    TestHome m_home;
    std::unique_ptr<MapPanel> m_panel;
};

void tst_OutlineTool::init()
{
    HostSettings::installLanguage(QStringLiteral("en"));
    m_panel = std::make_unique<MapPanel>();
    m_panel->resize(900, 650);
    m_panel->show();
    QVERIFY(comesOnScreen(m_panel.get()));
    QApplication::setActiveWindow(m_panel.get());
    QTRY_VERIFY(m_panel->isActiveWindow());
    m_panel->setFocus();
    MapView view = m_panel->view();
    view.centre = MapProjection::toPlane(QPointF(30.66, 104.06));
    view.scale = 4e6; // Some 9 metres to a pixel.
    m_panel->setView(view);
}

void tst_OutlineTool::cleanup()
{
    m_panel.reset();
    HostSettings::installLanguage(QStringLiteral("en"));
}

/// With the mouse, and closed with Enter.
void tst_OutlineTool::draw(const QVector<QPoint>& vertices, bool isClosed)
{
    QTest::mouseClick(&outlineButton(), Qt::LeftButton);
    for (const QPoint& vertex : vertices)
        QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, vertex);
    if (isClosed)
        QTest::keyClick(m_panel.get(), Qt::Key_Return);
}

void tst_OutlineTool::buttonBeginsAndEnds()
{
    QVERIFY(!tool().plate()->isVisible());
    QTest::mouseClick(&outlineButton(), Qt::LeftButton);
    QVERIFY(tool().isDrawing() && outlineButton().isChecked());
    QVERIFY(tool().plate()->isVisible());
    QVERIFY(m_panel->hasFocus());
    QCOMPARE(m_panel->cursor().shape(), Qt::CrossCursor);
    const QImage empty = rendered(*m_panel, 1);
    for (const QPoint& vertex : convex)
        QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, vertex);
    QVERIFY(rendered(*m_panel, 1) != empty);
    QTest::mouseClick(&outlineButton(), Qt::LeftButton);
    QVERIFY(!tool().isActive() && !outlineButton().isChecked());
    QVERIFY(!tool().plate()->isVisible());
    QCOMPARE(vertices(), 0);
    QCOMPARE(m_panel->cursor().shape(), Qt::OpenHandCursor);
}

void tst_OutlineTool::clickAddsAVertex()
{
    draw(convex, false);
    QCOMPARE(vertices(), convex.size());
    for (int i = 0; i < convex.size(); ++i) {
        const QPointF place = m_panel->view().toScreen(tool().drawing().vertices[i]);
        QCOMPARE(place.toPoint(), convex[i]);
    }
    QVERIFY(tool().isDrawing());
    QCOMPARE(m_panel->findChild<QLabel*>(QStringLiteral("count"))->text(),
             QStringLiteral("Vertices: 4"));
    const QImage image = rendered(*m_panel, 1);
    QCOMPARE(colorAt(image, convex[1]), QColor(Qt::white)); // The middle of its mark.
    const QColor edge = colorAt(image, (convex[0] + convex[1]) / 2);
    QVERIFY2(edge.blue() > edge.red() + 80, qPrintable(edge.name()));
}

void tst_OutlineTool::dragMovesTheMapInstead()
{
    draw({}, false);
    const MapView before = m_panel->view();
    sendMouse(*m_panel, QEvent::MouseButtonPress, {400, 300}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(*m_panel, QEvent::MouseMove, {460, 320}, Qt::NoButton, Qt::LeftButton);
    // Back again, which makes no click of it.
    sendMouse(*m_panel, QEvent::MouseMove, {402, 300}, Qt::NoButton, Qt::LeftButton);
    sendMouse(*m_panel, QEvent::MouseButtonRelease, {402, 300}, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(vertices(), 0);
    QCOMPARE(m_panel->view().toScreen(before.toPlane({400, 300})).toPoint(), QPoint(402, 300));
}

void tst_OutlineTool::slightMoveIsAClick()
{
    draw({}, false);
    const MapView before = m_panel->view();
    sendMouse(*m_panel, QEvent::MouseButtonPress, {400, 300}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(*m_panel, QEvent::MouseMove, {402, 301}, Qt::NoButton, Qt::LeftButton);
    sendMouse(*m_panel, QEvent::MouseButtonRelease, {402, 301}, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(vertices(), 1);
    QVERIFY(m_panel->view() == before);
}

void tst_OutlineTool::sameVertexIsAddedOnce()
{
    draw({{400, 300}, {401, 301}, {420, 300}, {400, 300}}, false);
    QCOMPARE(vertices(), 3);
}

void tst_OutlineTool::otherButtonsAddNothing()
{
    draw({}, false);
    QTest::mouseClick(m_panel.get(), Qt::RightButton, Qt::NoModifier, {400, 300});
    QTest::mouseClick(m_panel.get(), Qt::MiddleButton, Qt::NoModifier, {400, 300});
    QCOMPARE(vertices(), 0);
}

void tst_OutlineTool::outlineIsClosed_data()
{
    QTest::addColumn<int>("key"); // 0 for a double click.
    QTest::newRow("double click") << 0;
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_OutlineTool::outlineIsClosed()
{
    QFETCH(int, key);
    const MapView before = m_panel->view();
    draw(convex, false);
    if (key) {
        QTest::keyClick(m_panel.get(), Qt::Key(key));
    } else {
        // As the window system sends it at the place of the last vertex.
        sendMouse(*m_panel, QEvent::MouseButtonDblClick, convex.last(), Qt::LeftButton,
                  Qt::LeftButton);
        sendMouse(*m_panel, QEvent::MouseButtonRelease, convex.last(), Qt::LeftButton,
                  Qt::NoButton);
    }
    QVERIFY(tool().isActive() && !tool().isDrawing());
    QCOMPARE(vertices(), convex.size());
    QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, {300, 500});
    QCOMPARE(vertices(), convex.size());
    QVERIFY(m_panel->view() == before);
    QCOMPARE(m_panel->cursor().shape(), Qt::OpenHandCursor);
}

void tst_OutlineTool::closingNeedsThreeVertices()
{
    draw(convex.mid(0, 2));
    QVERIFY(tool().isDrawing());
    QCOMPARE(text(), QStringLiteral("An outline needs at least three vertices."));
    QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, convex[2]);
    QTest::keyClick(m_panel.get(), Qt::Key_Return);
    QVERIFY(!tool().isDrawing());
}

void tst_OutlineTool::backspaceRemovesTheLast()
{
    draw(convex);
    press("check");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QVERIFY2(tool().isDrawing(), "a closed outline is open again");
    QVERIFY(m_panel->hasFocus());
    QCOMPARE(vertices(), 3);
    QCOMPARE(m_panel->view().toScreen(tool().drawing().vertices.last()).toPoint(), convex[2]);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(m_panel.get(), Qt::Key_Backspace);
    QCOMPARE(vertices(), 0);
}

void tst_OutlineTool::escapeLeaves()
{
    const QImage before = rendered(*m_panel, 1);
    draw(convex);
    press("check");
    QTest::keyClick(m_panel.get(), Qt::Key_Escape);
    QVERIFY(!tool().isActive() && !outlineButton().isChecked());
    QVERIFY(m_panel->hasFocus());
    QCOMPARE(rendered(*m_panel, 1), before);
    QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, {400, 300});
    QCOMPARE(vertices(), 0);
}

void tst_OutlineTool::spaceAddsTheMiddle()
{
    QTest::keyClick(m_panel.get(), Qt::Key_Space);
    QCOMPARE(vertices(), 0);
    draw({}, false);
    for (const Qt::Key move : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right}) {
        QTest::keyClick(m_panel.get(), Qt::Key_Space);
        QTest::keyClick(m_panel.get(), move);
        QTRY_VERIFY(!m_panel->isMoving());
    }
    QTest::keyClick(m_panel.get(), Qt::Key_Return);
    QCOMPARE(vertices(), 3);
    QVERIFY(!tool().isDrawing());
}

void tst_OutlineTool::keysOfTheMapStillWork()
{
    draw(convex);
    const double scale = m_panel->view().scale;
    QTest::keyClick(m_panel.get(), Qt::Key_Plus);
    QTRY_COMPARE(m_panel->view().scale, scale * 2);
    QCOMPARE(vertices(), convex.size());
}

void tst_OutlineTool::openOutlineIsNotChecked()
{
    draw(convex, false);
    press("check");
    press("segment");
    QVERIFY(!tool().lastCheck());
    tool().check();
    QVERIFY(!tool().lastCheck());
}

void tst_OutlineTool::plateIsAsHighAsItsLines()
{
    draw({}, false);
    const int ofHint = tool().plate()->height();
    tool().close();
    QCOMPARE(text().count('\n'), 0);
    QVERIFY(tool().plate()->height() < ofHint);
    QTest::mouseClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, convex.first());
    QCOMPARE(tool().plate()->height(), ofHint);
}

void tst_OutlineTool::checkColoursAndTells_data()
{
    QTest::addColumn<QVector<QPoint>>("outline");
    QTest::addColumn<Mood>("mood");
    QTest::addColumn<QString>("said");
    QTest::newRow("convex") << convex << Mood::Good
                            << QStringLiteral("Convex\nDoes not cross itself\nArea ");
    QTest::newRow("bent") << bent << Mood::Doubtful
                          << QStringLiteral("Not convex\nDoes not cross itself\nArea ");
    QTest::newRow("crossing") << crossing << Mood::Bad
                              << QStringLiteral("Crosses itself\nPerimeter ");
}

void tst_OutlineTool::checkColoursAndTells()
{
    QFETCH(QVector<QPoint>, outline);
    QFETCH(Mood, mood);
    QFETCH(QString, said);
    draw(outline);
    press("check");
    QVERIFY(tool().drawing().mood == mood);
    QVERIFY2(text().startsWith(said), qPrintable(text()));
    const QImage image = rendered(*m_panel, 1);
    const QColor edge = colorAt(image, (outline[0] + outline[1]) / 2);
    const QColor want = tool().drawing().colour();
    QVERIFY2(std::abs(edge.red() - want.red()) < 30 && std::abs(edge.green() - want.green()) < 30
                 && std::abs(edge.blue() - want.blue()) < 30,
             qPrintable(edge.name()));
    QVERIFY(mood == Mood::Good ? want.green() > want.red() + 60 : want.red() > want.green() + 60);
}

void tst_OutlineTool::changedOutlineIsUnchecked()
{
    draw(convex);
    press("segment");
    QVERIFY(tool().drawing().parts.size() > 1);
    QTest::keyClick(m_panel.get(), Qt::Key_Backspace);
    QVERIFY(!tool().lastCheck() && !tool().drawing().mood && tool().drawing().parts.isEmpty());
}

void tst_OutlineTool::segmentShowsThePartsInColours()
{
    draw(convex);
    press("segment");
    const QVector<QPolygonF>& parts = tool().drawing().parts;
    const auto check = tool().lastCheck();
    QVERIFY(check);
    QCOMPARE(parts.size(), int(std::ceil(check->area / 1e6)));
    QVERIFY(parts.size() > 2);
    QVERIFY2(text().contains(QStringLiteral("\n%1 parts, the largest ").arg(parts.size())),
             qPrintable(text()));
    const QImage image = rendered(*m_panel, 1);
    QColor last;
    for (const QPolygonF& part : parts) {
        QPolygonF ring = part;
        for (QPointF& point : ring)
            point = m_panel->view().toScreen(point);
        // Between the middle, where the number stands, and a vertex.
        const QPointF place = ring.boundingRect().center() * 0.4 + ring.first() * 0.6;
        const QColor colour = colorAt(image, place.toPoint());
        if (last.isValid()) {
            QVERIFY2(std::abs(colour.red() - last.red()) + std::abs(colour.green() - last.green())
                             + std::abs(colour.blue() - last.blue())
                         > 40,
                     qPrintable(colour.name()));
        }
        last = colour;
    }
}

void tst_OutlineTool::segmentSaysWhyNot_data()
{
    QTest::addColumn<QVector<QPoint>>("outline");
    QTest::addColumn<double>("size"); // Square kilometres.
    QTest::addColumn<QString>("reason");
    QTest::newRow("crossing") << crossing << 1.0
                              << QStringLiteral("Cannot be split while it crosses itself");
    QTest::newRow("small enough") << convex << 500.0
                                  << QStringLiteral("Need not be split: no larger than one part "
                                                    "of 500 km\u00b2");
}

void tst_OutlineTool::segmentSaysWhyNot()
{
    QFETCH(QVector<QPoint>, outline);
    QFETCH(double, size);
    QFETCH(QString, reason);
    draw(outline);
    sizeField().setValue(size);
    press("segment");
    QVERIFY(tool().drawing().parts.isEmpty());
    QVERIFY2(text().endsWith(reason), qPrintable(text()));
}

void tst_OutlineTool::otherSizeIsCheckedAtOnce()
{
    draw(convex);
    press("segment");
    sizeField().setFocus();
    sizeField().selectAll();
    QTest::keyClicks(&sizeField(), QStringLiteral("900"));
    QTest::keyClick(&sizeField(), Qt::Key_Return);
    QVERIFY(tool().drawing().parts.isEmpty());
    QVERIFY2(text().endsWith(QStringLiteral("one part of 900 km\u00b2")), qPrintable(text()));
}

void tst_OutlineTool::plateIsReachedByKeyboard()
{
    draw(convex);
    QStringList reached;
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.append(QApplication::focusWidget()->objectName());
    }
    for (const char* name :
         {"keyword", "search", "leave", "largestPart", "check", "segment", "locate", "outline"})
        QVERIFY2(reached.contains(QLatin1String(name)), name);
    QVERIFY(reached.indexOf("keyword") < reached.indexOf("search"));
    QVERIFY(reached.indexOf("check") < reached.indexOf("segment"));
    auto* check = m_panel->findChild<QPushButton*>(QStringLiteral("check"));
    check->setFocus();
    QTest::keyClick(check, Qt::Key_Space);
    QVERIFY(tool().lastCheck());
    QTest::keyClick(check, Qt::Key_Escape);
    QVERIFY(!tool().isActive());
}

void tst_OutlineTool::clicksStayOnThePlate()
{
    draw({}, false);
    QTest::mouseClick(tool().plate(), Qt::LeftButton, Qt::NoModifier, {8, 8});
    QTest::mouseClick(m_panel->findChild<QLabel*>(QStringLiteral("lines")), Qt::LeftButton);
    QCOMPARE(vertices(), 0);
}

void tst_OutlineTool::doubleClickZoomsWithoutTheTool()
{
    const double scale = m_panel->view().scale;
    QTest::mouseDClick(m_panel.get(), Qt::LeftButton, Qt::NoModifier, {400, 300});
    QTRY_COMPARE(m_panel->view().scale, scale * 2);
}

void tst_OutlineTool::languageChangesTheTexts()
{
    draw(crossing);
    press("check");
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_VERIFY(text().startsWith(QString::fromUtf8("自相交\n周长 ")));
    QCOMPARE(m_panel->findChild<QPushButton*>(QStringLiteral("check"))->text(),
             QString::fromUtf8("检查范围线"));
    QVERIFY(!sizeField().accessibleName().isEmpty());
    const auto buttons = m_panel->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons)
        QVERIFY(!button->text().isEmpty() || !button->accessibleName().isEmpty());
}

QTEST_MAIN(tst_OutlineTool)
#include "tst_OutlineTool.moc"
