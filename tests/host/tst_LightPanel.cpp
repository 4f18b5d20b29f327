// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Runs with OpenGL and, where the toolkit is told to do without, without.

#include "app/HostSettings.h"
#include "app/LightPanel.h"
#include "app/MapPanel.h"
#include "app/SurveyTools.h"
#include "app/TerrainPanel.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/CRkLightWgt.h>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QOpenGLWidget>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr QSize panelSize(700, 500);

bool isWithoutOpenGL()
{
    return qgetenv("QT_XCB_GL_INTEGRATION") == "none";
}

QVariantList record(const QVector3D& position, double ambient = 0.2, double diffuse = 0.8)
{
    return {position.x(), position.y(),      position.z(),      ambient, diffuse,
            0.0,          QColor(Qt::white), QColor(Qt::white), 20.0,    0.0};
}

/// Mean of a part of the picture.
QVector3D mean(const QImage& image, const QRect& part)
{
    QVector3D sum;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            sum += QVector3D(float(qRed(image.pixel(x, y))), float(qGreen(image.pixel(x, y))),
                             float(qBlue(image.pixel(x, y))));
    }
    return sum / float(part.width() * part.height());
}

float brightness(const QVector3D& colour)
{
    return (colour.x() + colour.y() + colour.z()) / 3;
}

template <typename T>
T& part(const QWidget& window, const char* name)
{
    return *window.findChild<T*>(QLatin1String(name));
}

} // namespace

class tst_LightPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void viewIsTheOneThatIsPossible();
    void terrainIsShown();
    void hillFollowsTheDirection();
    void coefficientsAndColours_data();
    void coefficientsAndColours();
    void shininessMakesHighlightsSmall();
    void blendBringsTheTerrainsColours();
    void badRecords_data();
    void badRecords();
    void otherNamesAreNotHeard();
    void mouseTurnsTheTerrain();
    void wheelAndKeys();
    void dialogLightsTheTerrain();
    void openingTheDialogKeepsTheLight();
    void captionSaysWhatIsMissing();

private:
    QImage picture() { return m_panel->grab().toImage(); }
    /// Where a place of the mesh is in the picture.
    QPoint inPicture(const QVector3D& place) const;
    /// Mean colour about a place of the terrain.
    QVector3D colourAt(const QVector3D& place);

    TestHome m_home;
    std::unique_ptr<QWidget> m_window;
    LightPanel* m_panel = nullptr;
    SurveyTools* m_tools = nullptr;
};

void tst_LightPanel::init()
{
    HostSettings::installLanguage(QStringLiteral("en"));
    // A dome in a plain.
    const ElevationModel model(101, 10, [](double x, double y) {
        return 110 * std::exp(-(std::pow(x - 500, 2) + std::pow(y - 500, 2)) / 30'000);
    });
    m_window = std::make_unique<QWidget>();
    m_window->resize(panelSize);
    auto* layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    m_panel = new LightPanel(model, m_window.get());
    layout->addWidget(m_panel);
    auto* map = new MapPanel(m_window.get());
    map->hide();
    auto* terrain = new TerrainPanel(model, m_window.get());
    terrain->hide();
    m_tools = new SurveyTools(map, terrain, m_panel, m_window.get());
    connect(m_panel, &LightPanel::lightWanted, m_tools, &SurveyTools::openLight);
    m_panel->setCamera({180, 60, 1700}); // From the south: west is on the left.
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(comesOnScreen(m_window.get()));
}

void tst_LightPanel::cleanup()
{
    m_window.reset();
}

QPoint tst_LightPanel::inPicture(const QVector3D& place) const
{
    const OrbitCamera& camera = m_panel->camera();
    const QVector3D at = (camera.projection(panelSize, 0) * camera.view()).map(place);
    return {qRound((double(at.x()) + 1) * panelSize.width() / 2),
            qRound((1 - double(at.y())) * panelSize.height() / 2)};
}

QVector3D tst_LightPanel::colourAt(const QVector3D& place)
{
    const QPoint at = inPicture(place);
    return mean(picture(), QRect(at - QPoint(4, 4), QSize(9, 9)));
}

void tst_LightPanel::viewIsTheOneThatIsPossible()
{
    QCOMPARE(m_panel->hasOpenGL(), !isWithoutOpenGL());
    const auto* view = m_panel->findChild<QOpenGLWidget*>();
    QCOMPARE(view != nullptr, m_panel->hasOpenGL());
    QVERIFY(!view || view->isValid());
}

void tst_LightPanel::terrainIsShown()
{
    m_panel->setLight(record({0, 0, 1}), LightPanel::lightName());
    const QImage image = picture();
    QVERIFY2(brightness(mean(image, QRect(650, 5, 20, 20))) < 60, "the sky");
    QVERIFY2(brightness(colourAt({0, -380, -80})) > 120, "the plain");
    // Its edges are where the camera sees them.
    const QPoint east = inPicture({500, 0, -88});
    const auto at = [&](const QPoint& place) {
        return brightness(mean(image, QRect(place - QPoint(2, 2), QSize(5, 5))));
    };
    QVERIFY(at(east - QPoint(8, 0)) > at(east + QPoint(30, 0)) + 40);
}

void tst_LightPanel::hillFollowsTheDirection()
{
    const QVector3D west(-110, 0, -10);
    const QVector3D east(110, 0, -10);
    m_panel->setLight(record({-1, 0, 1}), LightPanel::lightName());
    QVERIFY(brightness(colourAt(west)) > brightness(colourAt(east)) + 30);
    m_panel->setLight(record({1, 0, 1}), LightPanel::lightName());
    QVERIFY(brightness(colourAt(east)) > brightness(colourAt(west)) + 30);
    m_panel->setLight(record({0, 0, 1}), LightPanel::lightName());
    QVERIFY(std::abs(brightness(colourAt(east)) - brightness(colourAt(west))) < 8);
}

void tst_LightPanel::coefficientsAndColours_data()
{
    QTest::addColumn<QVariantList>("record");
    QTest::addColumn<QVector3D>("expected"); ///< Of level clay, 0 to 255.
    const QVector3D clay = QVector3D(0.74F, 0.72F, 0.70F) * 255;
    const QColor red(255, 0, 0);
    const QColor white(Qt::white);
    QTest::newRow("ambient") << QVariantList{0, 0, 1, 0.5, 0.0, 0.0, white, white, 20.0, 0.0}
                             << clay * 0.5F;
    QTest::newRow("diffuse") << QVariantList{0, 0, 1, 0.0, 1.0, 0.0, white, white, 20.0, 0.0}
                             << clay;
    QTest::newRow("diffuse, low light")
        << QVariantList{-4, 0, 3, 0.0, 1.0, 0.0, white, white, 20.0, 0.0} << clay * 0.6F;
    QTest::newRow("from below: ambient alone")
        << QVariantList{0, 0, -1, 0.3, 1.0, 1.0, white, white, 20.0, 0.0} << clay * 0.3F;
    QTest::newRow("red light") << QVariantList{0, 0, 1, 0.2, 0.6, 0.0, red, white, 20.0, 0.0}
                               << QVector3D(clay.x() * 0.8F, 0, 0);
    QTest::newRow("dark") << QVariantList{0, 0, 1, 0.0, 0.0, 0.0, white, white, 20.0, 0.0}
                          << QVector3D();
}

void tst_LightPanel::coefficientsAndColours()
{
    QFETCH(QVariantList, record);
    QFETCH(QVector3D, expected);
    m_panel->setLight(record, LightPanel::lightName());
    const QVector3D colour = colourAt({-350, -330, -88});
    QVERIFY2((colour - expected).length() < 6,
             qPrintable(QStringLiteral("%1 %2 %3")
                            .arg(double(colour.x()))
                            .arg(double(colour.y()))
                            .arg(double(colour.z()))));
}

void tst_LightPanel::shininessMakesHighlightsSmall()
{
    const auto redPixels = [this](double specular, double shininess) {
        m_panel->setLight(QVariantList{0, -600, 900, 0.0, 0.2, specular, QColor(Qt::white),
                                       QColor(255, 0, 0), shininess, 0.0},
                          LightPanel::lightName());
        const QImage image = picture();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                count += colour.red() > colour.green() + 60 ? 1 : 0;
            }
        }
        return count;
    };
    const int none = redPixels(0, 10);
    const int wide = redPixels(1, 5);
    const int narrow = redPixels(1, 100);
    QCOMPARE(none, 0);
    QVERIFY2(wide > 3 * narrow && narrow > 20,
             qPrintable(QStringLiteral("%1 %2").arg(wide).arg(narrow)));
    QCOMPARE(redPixels(1, 1000), redPixels(1, 128)); // As far as it goes.
}

void tst_LightPanel::blendBringsTheTerrainsColours()
{
    QVariantList light = record({0, 0, 1}, 0.3, 0.7);
    m_panel->setLight(light, LightPanel::lightName());
    const QVector3D plain = colourAt({-350, -330, -88});
    QVERIFY(std::abs(plain.x() - plain.y()) < 12);
    light[9] = 1.0;
    m_panel->setLight(light, LightPanel::lightName());
    const QVector3D own = colourAt({-350, -330, -88});
    QVERIFY2(own.y() > own.x() + 20, "low ground is green");
    light[9] = 0.5;
    m_panel->setLight(light, LightPanel::lightName());
    QVERIFY((colourAt({-350, -330, -88}) - (plain + own) / 2).length() < 6);
}

void tst_LightPanel::badRecords_data()
{
    QTest::addColumn<QVariant>("record");
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("no list") << QVariant(3);
    QTest::newRow("short") << QVariant(QVariantList{1.0, 2.0});
    QTest::newRow("origin") << QVariant(record({0, 0, 0}));
    QTest::newRow("not a number") << QVariant(
        QVariantList{notANumber, notANumber, notANumber, notANumber, notANumber, notANumber,
                     QColor(), QColor(), notANumber, notANumber});
    QTest::newRow("texts") << QVariant(
        QVariantList{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
}

void tst_LightPanel::badRecords()
{
    QFETCH(QVariant, record);
    m_panel->setLight(record, LightPanel::lightName());
    const QImage image = picture();
    QVERIFY2(brightness(mean(image, QRect(650, 480, 20, 10))) > 30, "the sky is there");
    m_panel->setLight(::record({0, 0, 1}), LightPanel::lightName());
    QVERIFY2(brightness(colourAt({0, -380, -88})) > 120, "and so is the next light");
}

void tst_LightPanel::otherNamesAreNotHeard()
{
    m_panel->setLight(record({0, 0, 1}), LightPanel::lightName());
    const QImage before = picture();
    m_panel->setLight(record({0, 0, 1}, 0, 0), QStringLiteral("building"));
    QCOMPARE(picture(), before);
}

void tst_LightPanel::mouseTurnsTheTerrain()
{
    const QImage before = picture();
    QTest::mousePress(m_panel, Qt::LeftButton, {}, {300, 250});
    QTest::mouseMove(m_panel, {350, 230});
    QMouseEvent move(QEvent::MouseMove, QPointF(350, 230), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(m_panel, &move);
    QCOMPARE(m_panel->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(m_panel, Qt::LeftButton, {}, {350, 230});
    QVERIFY(std::abs(m_panel->camera().azimuth - -160) < 1e-9);
    QCOMPARE(m_panel->camera().tilt, 52.0);
    QCOMPARE(m_panel->cursor().shape(), Qt::OpenHandCursor);
    QVERIFY(picture() != before);
    // Nothing is held any more.
    QMouseEvent hover(QEvent::MouseMove, QPointF(400, 250), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(m_panel, &hover);
    QCOMPARE(m_panel->camera().tilt, 52.0);
}

void tst_LightPanel::wheelAndKeys()
{
    QWheelEvent event(QPointF(300, 250), m_panel->mapToGlobal(QPoint(300, 250)), QPoint(),
                      QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_panel, &event);
    const double nearer = m_panel->camera().distance;
    QVERIFY(nearer < 1600);
    QTest::keyClick(m_panel, Qt::Key_Minus);
    QVERIFY(m_panel->camera().distance > nearer);
    QTest::keyClick(m_panel, Qt::Key_Up);
    QCOMPARE(m_panel->camera().tilt, 65.0);
    QTest::keyClick(m_panel, Qt::Key_Right);
    QCOMPARE(m_panel->camera().azimuth, -175.0);
    QTest::keyClick(m_panel, Qt::Key_Home);
    QCOMPARE(m_panel->camera().distance, OrbitCamera().distance);
    QCOMPARE(m_panel->camera().tilt, OrbitCamera().tilt);
}

void tst_LightPanel::dialogLightsTheTerrain()
{
    m_panel->findChild<QToolButton*>(QStringLiteral("tool"))->click();
    CRkLightWgt* dialog = m_tools->light();
    QVERIFY(dialog && dialog->isVisible() && dialog->isWindow() && !dialog->isModal());
    QSignalSpy sent(dialog, &CRkLightWgt::signalLightPara);
    const QImage before = picture();
    part<QSlider>(*dialog, "horizontalSlider_diffuse").setValue(5);
    QCOMPARE(sent.last().at(0).toList(), m_panel->light());
    const QImage dim = picture();
    // Beside the dialog.
    const QRect terrain(70, 220, 70, 40);
    QVERIFY(brightness(mean(dim, terrain)) < brightness(mean(before, terrain)) - 30);
    part<QDoubleSpinBox>(*dialog, "doubleSpinBox_Azimuth").setValue(90);
    QCOMPARE(sent.last().at(0).toList(), m_panel->light());
    QVERIFY(m_panel->light().at(0).toDouble() > 500);
    QVERIFY(picture() != dim);
    m_tools->openLight();
    QCOMPARE(m_tools->light(), dialog);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!m_tools->light());
    // The light stays, and the next dialog shows it.
    QVERIFY(m_panel->light().at(0).toDouble() > 500);
    m_tools->openLight();
    QCOMPARE(part<QSlider>(*m_tools->light(), "horizontalSlider_diffuse").value(), 5);
}

void tst_LightPanel::openingTheDialogKeepsTheLight()
{
    const QVariantList before = m_panel->light();
    m_tools->openLight();
    const QVariantList after = m_panel->light();
    QCOMPARE(after.size(), 10);
    for (int i = 0; i < 3; ++i)
        QVERIFY(std::abs(after[i].toDouble() - before[i].toDouble()) < 1);
    for (const int i : {3, 4, 5, 9})
        QVERIFY(std::abs(after[i].toDouble() - before[i].toDouble()) < 0.011);
    for (const int i : {6, 7, 8})
        QCOMPARE(after[i], before[i]);
}

void tst_LightPanel::captionSaysWhatIsMissing()
{
    const QString caption = m_panel->findChild<QLabel*>()->text();
    QCOMPARE(caption.contains(QStringLiteral("no OpenGL")), isWithoutOpenGL());
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_VERIFY(m_panel->findChild<QLabel*>()->text() != caption);
    QCOMPARE(m_panel->accessibleName(), QString::fromUtf8("三维视图"));
    HostSettings::installLanguage(QStringLiteral("en"));
}

QTEST_MAIN(tst_LightPanel)
#include "tst_LightPanel.moc"
