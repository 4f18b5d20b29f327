// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProjectManagerView.h>

#include "ProjectFixture.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/SharedHelpers.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

using Tile = CRkGraphicsProjectRectItem;

/// The tiles in the scene, in the order in which they were added.
QList<Tile*> tilesOf(const CRkProjectManagerView& view)
{
    QList<Tile*> tiles;
    const QList<QGraphicsItem*> items = view.scene()->items(Qt::AscendingOrder);
    for (QGraphicsItem* item : items) {
        if (auto* tile = dynamic_cast<Tile*>(item))
            tiles.append(tile);
    }
    return tiles;
}

QStringList namesOf(const CRkProjectManagerView& view)
{
    QStringList names;
    for (const Tile* tile : tilesOf(view))
        names.append(tile->GetProjectName());
    return names;
}

QStringList sortedNamesOf(const CRkProjectManagerView& view)
{
    QStringList names = namesOf(view);
    names.sort();
    return names;
}

Tile* tileNamed(const CRkProjectManagerView& view, const QString& name)
{
    for (Tile* tile : tilesOf(view)) {
        if (tile->GetProjectName() == name)
            return tile;
    }
    return nullptr;
}

QStringList selectedNamesOf(const CRkProjectManagerView& view)
{
    QStringList names;
    const QList<QGraphicsItem*> selected = view.scene()->selectedItems();
    for (const QGraphicsItem* item : selected)
        names.append(dynamic_cast<const Tile*>(item)->GetProjectName());
    return names;
}

/// Notes the mouse events that reach a scene.
class MouseRecorder : public QObject
{
public:
    explicit MouseRecorder(QGraphicsScene* scene) { scene->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() >= QEvent::GraphicsSceneMouseMove
            && event->type() <= QEvent::GraphicsSceneMouseDoubleClick)
            types.append(event->type());
        return false;
    }
    QList<QEvent::Type> types;
};

/// Translates single words of a context.
class WordTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        return QLatin1String(context) == "CRkProjectManagerView"
            ? words.value(QString::fromUtf8(sourceText))
            : QString();
    }
    bool isEmpty() const override { return words.isEmpty(); }
    QHash<QString, QString> words;
};

} // namespace

class tst_CRkProjectManagerView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void signalsAndSlotsInOrder();
    void takesTheSizeOfItsParent();
    void nullParentKeepsTheDefaultSize();
    void missingRoot();
    void whatIsListed();
    void noUserSeesOnlyNobodysProjects();
    void listingChangesNoFile();
    void tileParts();
    void nameComesFromTheRow();
    void thumbnails_data();
    void thumbnails();
    void everyTileHasItsOwnThumbnail();
    void places();

    void fourthTileOfThreeColumns();
    void narrowParent();
    void sceneFollowsTheLastTile();
    void resizing();
    void resizingAcrossTheScrollBar();

    void keywordFilter();
    void dateFilter();
    void cityFilter();
    void translatedWords();
    void filterKeepsTheOrder();
    void filterLaysOutAnew();
    void filterThatHidesAll();
    void hiddenTilesAreDeselected();
    void filterEndsEditing();
    void hiddenTilesGoWithTheView();

    void clickSelectsOne();
    void controlClickSelectsOne();
    void releaseOverAThumbnailSelects();
    void programSelectsOne();
    void doubleClickOnAThumbnailOpens();
    void doubleClickOnACaptionIsForTheCaption();
    void doubleClickOnNothingIsAMovement();

    void newProject();
    void newProjectsAreNumbered();
    void newProjectInAView();
    void newProjectBesideFilteredTiles();
    void userWithAQuote();

private:
    void project(const QString& name)
    {
        QVERIFY(!ProjectFixture{name}.write(m_home->projectRoot()).isEmpty());
    }
    void projects(int count)
    {
        for (int i = 0; i < count; ++i)
            project(QString("p%1").arg(i, 2, 10, QChar('0')));
    }
    std::unique_ptr<CRkProjectManagerView> shownView(const QSize& size);
    void click(CRkProjectManagerView& view, const QString& name, const QPoint& offset,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::unique_ptr<TestHome> m_home;
};

namespace {

const QPoint onThumbnail(60, 60);
const QPoint onCaption(60, 158);
const QPoint onMargin(2, 2);

} // namespace

void tst_CRkProjectManagerView::init()
{
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
}

void tst_CRkProjectManagerView::cleanup()
{
    m_home.reset();
}

std::unique_ptr<CRkProjectManagerView> tst_CRkProjectManagerView::shownView(const QSize& size)
{
    QWidget parent;
    parent.resize(size);
    auto view = std::make_unique<CRkProjectManagerView>(&parent);
    view->setParent(nullptr);
    view->resize(size);
    view->show();
    if (!comesOnScreen(view.get()))
        return nullptr;
    QApplication::setActiveWindow(view.get());
    return view;
}

void tst_CRkProjectManagerView::click(CRkProjectManagerView& view, const QString& name,
                                      const QPoint& offset, Qt::KeyboardModifiers modifiers)
{
    const Tile* tile = tileNamed(view, name);
    QVERIFY(tile);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers,
                      view.mapFromScene(tile->pos() + offset));
}

void tst_CRkProjectManagerView::construction()
{
    QWidget parent;
    parent.resize(640, 480);
    const CRkProjectManagerView view(&parent);
    QVERIFY(view.scene());
    QVERIFY(!view.scene()->parent());
    QCOMPARE(view.alignment(), Qt::AlignLeft | Qt::AlignTop);
    QVERIFY(view.hasMouseTracking());
    QCOMPARE(view.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(view.verticalScrollBar()->objectName(),
             QString("verticalScrollBarProjectManagerView"));
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 640, 480));
    QCOMPARE(view.GetProjectName(), QString());
    QVERIFY(!view.accessibleName().isEmpty());
    QVERIFY(tilesOf(view).isEmpty());
}

void tst_CRkProjectManagerView::signalsAndSlotsInOrder()
{
    const QMetaObject& meta = CRkProjectManagerView::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    const QStringList expected = {"projectRenamed()",
                                  "projectCopied()",
                                  "projectDeleted()",
                                  "projectOpened(QString)",
                                  "blockOpened(QString)",
                                  "slotNewProject()",
                                  "slotCopyProject()",
                                  "slotDeleteProject()",
                                  "slotFilterConditionChanged(QString,QString,QString,QString)",
                                  "slotOpenProject()",
                                  "slotRenameProjectItem(QString)"};
    QCOMPARE(methods, expected);
}

void tst_CRkProjectManagerView::takesTheSizeOfItsParent()
{
    QWidget parent;
    parent.resize(777, 333);
    const CRkProjectManagerView view(&parent);
    QCOMPARE(view.size(), QSize(777, 333));
    QCOMPARE(view.parentWidget(), &parent);
}

void tst_CRkProjectManagerView::nullParentKeepsTheDefaultSize()
{
    project("Hill");
    const QGraphicsView plain;
    const CRkProjectManagerView view(nullptr);
    QCOMPARE(view.size(), plain.size());
    QCOMPARE(namesOf(view), QStringList("Hill"));
}

void tst_CRkProjectManagerView::missingRoot()
{
    QVERIFY(QDir(m_home->projectRoot()).removeRecursively());
    const CRkProjectManagerView view(nullptr);
    QVERIFY(tilesOf(view).isEmpty());
    QVERIFY2(!QDir(m_home->projectRoot()).exists(), "listing makes no folder");
}

void tst_CRkProjectManagerView::whatIsListed()
{
    const QString root = m_home->projectRoot();
    project("Hill");
    project("a.b");
    project(QStringLiteral("北山水库"));
    const QString other = ProjectFixture{"of another user", "user-2"}.write(root);
    const QString capital = ProjectFixture{"of User-1", "USER-1"}.write(root);
    QVERIFY(!other.isEmpty() && !capital.isEmpty());
    QVERIFY(writeFile(root + "empty/empty.proj", QByteArray()));
    QVERIFY(writeFile(root + "text/text.proj", "not a database"));
    QVERIFY(QDir().mkpath(root + "folder/folder.proj"));
    QVERIFY(QDir().mkpath(root + "nothing"));
    QVERIFY(runSql(root + "no tables/x.proj", {"CREATE TABLE other (a)"}));
    QVERIFY(runSql(root + "no row/x.proj",
                   {"CREATE TABLE " + ProjectTableName + " " + GetProjectTableContents()}));
    QVERIFY(runSql(root + "no columns/x.proj",
                   {"CREATE TABLE " + ProjectTableName + " (user_id)",
                    "INSERT INTO " + ProjectTableName + " VALUES ('user-1')"}));
    QVERIFY(QFile::copy(root + "Hill/Hill.proj", root + "in the root.proj"));
    QVERIFY(QDir().mkpath(root + "deep/er"));
    QVERIFY(QFile::copy(root + "Hill/Hill.proj", root + "deep/er/Hill.proj"));
    QVERIFY(QFile::copy(root + "Hill/Hill.proj", root + "Hill/Hill.proj.bak"));
    QVERIFY(QFile::link(root + "nowhere", root + "nothing/dangling.proj"));

    const CRkProjectManagerView view(nullptr);
    QCOMPARE(sortedNamesOf(view), QStringList({"Hill", "a.b", QStringLiteral("北山水库")}));
    QVERIFY(!QFileInfo::exists(root + "nowhere"));
    QCOMPARE(tileNamed(view, "a.b")->GetProjectFilePath(), root + "a.b/a.b.proj");
}

void tst_CRkProjectManagerView::noUserSeesOnlyNobodysProjects()
{
    m_home->setCurrentUserId(QString());
    project("Hill");
    const QString file = ProjectFixture{"Dale", QString("")}.write(m_home->projectRoot());
    QVERIFY(!file.isEmpty());
    const CRkProjectManagerView view(nullptr);
    QCOMPARE(namesOf(view), QStringList("Dale"));
}

void tst_CRkProjectManagerView::listingChangesNoFile()
{
    project("Hill");
    const QString folder = m_home->projectRoot() + "Hill";
    const QByteArray before = readFile(folder + "/Hill.proj");
    const QDateTime time = QFileInfo(folder + "/Hill.proj").lastModified();
    CRkProjectManagerView view(nullptr);
    view.slotFilterConditionChanged("Chengdu", "2026-05-03", "", "h");
    QCOMPARE(readFile(folder + "/Hill.proj"), before);
    QCOMPARE(QFileInfo(folder + "/Hill.proj").lastModified(), time);
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList("Hill.proj"));
}

void tst_CRkProjectManagerView::tileParts()
{
    project("Hill");
    const CRkProjectManagerView view(nullptr);
    const Tile* tile = tileNamed(view, "Hill");
    QVERIFY(tile);
    QCOMPARE(tile->rect(), QRectF(0, 0, 200, 180));
    QVERIFY(tile->flags() & QGraphicsItem::ItemIsSelectable);
    QCOMPARE(tile->GetProjectFilePath(), m_home->projectRoot() + "Hill/Hill.proj");
    QCOMPARE(tile->GetProjectID(), QString("id-of-Hill"));
    QCOMPARE(tile->GetSoftwareVersion(), QString("0.9.8"));
    QVERIFY(tile->GetProvinceCityList().isEmpty());

    const CRkGraphicsProjectImageItem* thumbnail = tile->GetImageItem();
    QVERIFY(thumbnail);
    QCOMPARE(thumbnail->parentItem(), tile);
    QCOMPARE(thumbnail->objectName(), QString("PrjImage"));
    QCOMPARE(thumbnail->pos(), QPointF(5, 5));
    QCOMPARE(thumbnail->toolTip(), QString("Hill"));
    QVERIFY(!thumbnail->GetProjectItem());

    const CRkGraphicsProjectTextItem* caption = tile->GetTextItem();
    QVERIFY(caption);
    QCOMPARE(caption->parentItem(), tile);
    QCOMPARE(caption->objectName(), QString("PrjText"));
    QCOMPARE(caption->pos(), QPointF(5, 148));
    QCOMPARE(caption->textWidth(), 190.0);
    QCOMPARE(caption->zValue(), 2.0);
    QCOMPARE(caption->GetPrjName(), QString("Hill"));
    QCOMPARE(caption->GetPrjModifiedDateTime(), QString("2026-05-03 12:00:00"));
    QCOMPARE(caption->toPlainText(), QString("Hill"));
    const QString size = getHumanReadableFileSize(QFileInfo(tile->GetProjectFilePath()).size());
    QCOMPARE(caption->toolTip(),
             "Name:Hill\n Size:" + size + "\n Modification time:2026-05-03 12:00:00");
}

void tst_CRkProjectManagerView::nameComesFromTheRow()
{
    const QString file = ProjectFixture{"Hill"}.write(m_home->projectRoot());
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET project_name='Dale'"}));
    CRkProjectManagerView view(nullptr);
    QCOMPARE(namesOf(view), QStringList("Dale"));
    // The keyword looks at the file's name all the same.
    view.slotFilterConditionChanged("", "", "", "dale");
    QCOMPARE(namesOf(view), QStringList());
    view.slotFilterConditionChanged("", "", "", "hill");
    QCOMPARE(namesOf(view), QStringList("Dale"));
}

void tst_CRkProjectManagerView::thumbnails_data()
{
    QTest::addColumn<QByteArray>("imageData");
    QTest::addColumn<bool>("isDefault");
    const QByteArray png = thumbnailText(Qt::cyan);
    QTest::newRow("PNG") << png << false;
    QTest::newRow("JPEG") << thumbnailText(Qt::cyan, {400, 300}, "jpg") << false;
    QTest::newRow("BMP") << thumbnailText(Qt::cyan, {40, 30}, "bmp") << false;
    QTest::newRow("transparent") << thumbnailText(QColor(0, 200, 100, 90)) << false;
    QTest::newRow("of the right size") << thumbnailText(Qt::cyan, {190, 143}) << false;
    QTest::newRow("tall") << thumbnailText(Qt::cyan, {3, 900}) << false;
    QTest::newRow("none") << QByteArray() << true;
    QTest::newRow("no base64") << QByteArray("!!!") << true;
    QTest::newRow("damaged") << png.left(60) << true;
    QTest::newRow("too large") << QByteArray(17 * 1024 * 1024, 'A') << true;
}

void tst_CRkProjectManagerView::thumbnails()
{
    QFETCH(QByteArray, imageData);
    QFETCH(bool, isDefault);
    ProjectFixture fixture{"Hill"};
    fixture.imageData = imageData;
    QVERIFY(!fixture.write(m_home->projectRoot()).isEmpty());

    QPixmap expected(":/images/Normal/Thumbnails.png");
    QVERIFY(!expected.isNull());
    if (!isDefault) {
        QPixmap pixmap;
        QVERIFY(pixmap.loadFromData(QByteArray::fromBase64(imageData)));
        expected = pixmap.scaled(190, 143, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    }
    const CRkProjectManagerView view(nullptr);
    const Tile* tile = tileNamed(view, "Hill");
    QVERIFY(tile);
    QCOMPARE(tile->GetImageItem()->pixmap().toImage(), expected.toImage());
}

void tst_CRkProjectManagerView::everyTileHasItsOwnThumbnail()
{
    for (int i = 0; i < 100; ++i) {
        ProjectFixture fixture{QString::number(i)};
        if (i % 3)
            fixture.imageData = thumbnailText(QColor(i, 100, 200));
        QVERIFY(!fixture.write(m_home->projectRoot()).isEmpty());
    }
    const CRkProjectManagerView view(nullptr);
    const QImage standard = QPixmap(":/images/Normal/Thumbnails.png").toImage();
    QCOMPARE(tilesOf(view).size(), 100);
    for (const Tile* tile : tilesOf(view)) {
        const int i = tile->GetProjectName().toInt();
        const QImage image = tile->GetImageItem()->pixmap().toImage();
        if (i % 3)
            QCOMPARE(image.pixelColor(10, 10), QColor(i, 100, 200));
        else
            QCOMPARE(image, standard);
    }
}

void tst_CRkProjectManagerView::places()
{
    const QString chengdu = squareAround(30.66, 104.07);
    const QString xiamen = squareAround(24.48, 118.10);
    const QString sea = squareAround(10, 160);
    ProjectFixture hill{"Hill"};
    hill.outlines = QStringList{chengdu, xiamen, squareAround(30.65, 104.06), sea, "no outline"};
    QVERIFY(!hill.write(m_home->projectRoot()).isEmpty());
    ProjectFixture dale{"Dale"};
    dale.outlines = QStringList{"30.66,104.07;a,b;30.67;1,2,3"};
    QVERIFY(!dale.write(m_home->projectRoot()).isEmpty());
    project("Moor");

    const RkCityCategory& catalogue = RkCityCategory::instance();
    QStringList expected;
    for (const PointLatLng& point : {PointLatLng(30.66, 104.07), PointLatLng(24.48, 118.10)}) {
        const QString city = catalogue.GetCityName(point);
        expected.append(city);
        const QMap<QString, QStringList> provinces = catalogue.provinceToCities();
        for (auto province = provinces.begin(); province != provinces.end(); ++province) {
            if (province->contains(city))
                expected.append(province.key());
        }
    }
    QCOMPARE(expected.size(), 4);
    const CRkProjectManagerView view(nullptr);
    QCOMPARE(tileNamed(view, "Hill")->GetProvinceCityList(), expected + QStringList("N/A"));
    QCOMPARE(tileNamed(view, "Dale")->GetProvinceCityList(), expected.mid(0, 2));
    QCOMPARE(tileNamed(view, "Moor")->GetProvinceCityList(), QStringList());
}

void tst_CRkProjectManagerView::fourthTileOfThreeColumns()
{
    projects(4);
    QWidget parent;
    parent.resize(640, 480);
    const CRkProjectManagerView view(&parent);
    QList<QPointF> positions;
    for (const Tile* tile : tilesOf(view))
        positions.append(tile->pos());
    QCOMPARE(positions, QList<QPointF>({{32, 0}, {242, 0}, {452, 0}, {32, 220}}));
}

void tst_CRkProjectManagerView::narrowParent()
{
    projects(2);
    QWidget parent;
    parent.resize(20, 20);
    const CRkProjectManagerView view(&parent);
    QCOMPARE(tilesOf(view)[0]->pos(), QPointF(32, 0));
    QCOMPARE(tilesOf(view)[1]->pos(), QPointF(32, 220));
}

void tst_CRkProjectManagerView::sceneFollowsTheLastTile()
{
    projects(7);
    QWidget parent;
    parent.resize(640, 480);
    CRkProjectManagerView view(&parent);
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 640, 2 * 220 + 363));
    QCOMPARE(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    QVERIFY(view.verticalScrollBar()->maximum() > 0);

    view.verticalScrollBar()->setValue(0);
    view.ResetItemPos();
    QCOMPARE(view.sceneRect(), QRectF(0, 0, 640, 2 * 220 + 363));
    QCOMPARE(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
}

void tst_CRkProjectManagerView::resizing()
{
    projects(7);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(100);
    view->resize(860, 480);
    QTRY_COMPARE(tilesOf(*view)[3]->pos(), QPointF(662, 0));
    QCOMPARE(tilesOf(*view)[4]->pos(), QPointF(32, 220));
    QCOMPARE(view->sceneRect(), QRectF(0, 0, 640, 220 + 363));
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    view->resize(430, 480);
    QTRY_COMPARE(tilesOf(*view)[2]->pos(), QPointF(32, 220));
    QCOMPARE(view->sceneRect(), QRectF(0, 0, 640, 3 * 220 + 363));
    QCOMPARE(view->verticalScrollBar()->value(), 0);
}

void tst_CRkProjectManagerView::resizingAcrossTheScrollBar()
{
    // Around the height where the scroll bar appears, showing it resizes the viewport in turn.
    projects(4);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    for (int height = 560; height < 620; ++height) {
        view->resize(640, height);
        QTRY_COMPARE(view->height(), height);
        QCOMPARE(view->verticalScrollBar()->value(), 0);
    }
    QCOMPARE(tilesOf(*view)[3]->pos(), QPointF(32, 220));
    QVERIFY(!view->verticalScrollBar()->isVisible());
    view->resize(640, 300);
    QTRY_VERIFY(view->verticalScrollBar()->isVisible());
}

void tst_CRkProjectManagerView::keywordFilter()
{
    project("xABy");
    project("a b");
    CRkProjectManagerView view(nullptr);
    view.slotFilterConditionChanged("City", "Date", "", "ab");
    QCOMPARE(namesOf(view), QStringList("xABy"));
    view.slotFilterConditionChanged("City", "Date", "anything", "");
    QCOMPARE(sortedNamesOf(view), QStringList({"a b", "xABy"}));
}

void tst_CRkProjectManagerView::dateFilter()
{
    const QString root = m_home->projectRoot();
    for (const char* day : {"01", "02", "03"}) {
        ProjectFixture fixture{QString("May ") + day};
        fixture.modified = QString("2026-05-%1 23:59:59").arg(day);
        QVERIFY(!fixture.write(root).isEmpty());
    }
    ProjectFixture unknown{"no date"};
    unknown.modified = "soon";
    QVERIFY(!unknown.write(root).isEmpty());

    CRkProjectManagerView view(nullptr);
    view.slotFilterConditionChanged("", "2026-05-02", "", "");
    QCOMPARE(sortedNamesOf(view), QStringList({"May 02", "no date"}));
    view.slotFilterConditionChanged("", "2026-05-02 to 2026-05-02", "", "");
    QCOMPARE(sortedNamesOf(view), QStringList({"May 02", "no date"}));
    view.slotFilterConditionChanged("", "2026-05-02 to 2026-05-03", "", "");
    QCOMPARE(sortedNamesOf(view), QStringList({"May 02", "May 03", "no date"}));
    view.slotFilterConditionChanged("", "2026-05-01 to 2026-05-02 to 2026-05-03", "", "");
    QCOMPARE(sortedNamesOf(view), QStringList());
    view.slotFilterConditionChanged("", "Date", "", "");
    QCOMPARE(tilesOf(view).size(), 4);
}

void tst_CRkProjectManagerView::cityFilter()
{
    ProjectFixture hill{"Hill"};
    hill.outlines = QStringList{squareAround(30.66, 104.07)};
    QVERIFY(!hill.write(m_home->projectRoot()).isEmpty());
    project("Dale");
    CRkProjectManagerView view(nullptr);
    const QStringList places = tileNamed(view, "Hill")->GetProvinceCityList();
    QCOMPARE(places.size(), 2);
    for (const QString& place : places) {
        view.slotFilterConditionChanged(place, "", "", "");
        QCOMPARE(namesOf(view), QStringList("Hill"));
    }
    view.slotFilterConditionChanged("no such city", "", "", "");
    QCOMPARE(namesOf(view), QStringList());
    for (const char* placeholder : {"City", "city", "All", ""}) {
        view.slotFilterConditionChanged(placeholder, "", "", "");
        QCOMPARE(sortedNamesOf(view), QStringList({"Dale", "Hill"}));
    }
}

void tst_CRkProjectManagerView::translatedWords()
{
    project("Hill");
    CRkProjectManagerView view(nullptr);
    WordTranslator translator;
    translator.words = {{"date", QStringLiteral("日期")},
                        {"to", QStringLiteral("至")},
                        {"city", QStringLiteral("城市")},
                        {"all", QStringLiteral("全部")}};
    QVERIFY(QCoreApplication::installTranslator(&translator));
    view.slotFilterConditionChanged(QStringLiteral("全部"), QStringLiteral("日期"), "", "");
    QCOMPARE(tilesOf(view).size(), 1);
    view.slotFilterConditionChanged(QStringLiteral("城市"),
                                    QStringLiteral("2026-05-01 至 2026-05-03"), "", "");
    QCOMPARE(tilesOf(view).size(), 1);
    view.slotFilterConditionChanged("", QStringLiteral("2026-05-04 至 2026-05-05"), "", "");
    QCOMPARE(tilesOf(view).size(), 0);
}

void tst_CRkProjectManagerView::filterKeepsTheOrder()
{
    projects(10);
    CRkProjectManagerView view(nullptr);
    const QStringList all = namesOf(view);
    QCOMPARE(all.size(), 10);
    view.slotFilterConditionChanged("", "", "", all[6]);
    QCOMPARE(namesOf(view), all.mid(6, 1));
    view.slotFilterConditionChanged("", "", "", "");
    QCOMPARE(namesOf(view), all);
}

void tst_CRkProjectManagerView::filterLaysOutAnew()
{
    projects(20);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->slotFilterConditionChanged("", "", "", "p1");
    const QList<Tile*> tiles = tilesOf(*view);
    QCOMPARE(tiles.size(), 10);
    for (int i = 0; i < tiles.size(); ++i)
        QCOMPARE(tiles[i]->pos(), QPointF(i % 3 * 210 + 32, i / 3 * 220));
    QCOMPARE(view->sceneRect(), QRectF(0, 0, 640, 3 * 220 + 363));
    QCOMPARE(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
}

void tst_CRkProjectManagerView::filterThatHidesAll()
{
    projects(9);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(50);
    view->slotFilterConditionChanged("", "", "", "no such name");
    QVERIFY(view->scene()->items().isEmpty());
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    QCOMPARE(view->verticalScrollBar()->maximum(), 0); // Nothing to scroll to.
    view->slotFilterConditionChanged("", "", "", "");
    QCOMPARE(tilesOf(*view).size(), 9);
}

void tst_CRkProjectManagerView::hiddenTilesAreDeselected()
{
    project("Hill");
    project("Dale");
    CRkProjectManagerView view(nullptr);
    const Tile* hill = tileNamed(view, "Hill");
    tileNamed(view, "Hill")->setSelected(true);
    view.slotFilterConditionChanged("", "", "", "hill");
    QCOMPARE(selectedNamesOf(view), QStringList("Hill"));
    view.slotFilterConditionChanged("", "", "", "dale");
    QCOMPARE(selectedNamesOf(view), QStringList());
    QVERIFY(!hill->isSelected());
    tileNamed(view, "Dale")->setSelected(true);
    view.slotFilterConditionChanged("", "", "", "");
    QCOMPARE(selectedNamesOf(view), QStringList("Dale"));
    QVERIFY(!tileNamed(view, "Hill")->isSelected());
}

void tst_CRkProjectManagerView::filterEndsEditing()
{
    project("Hill");
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->setFocus();
    CRkGraphicsProjectTextItem* caption = tileNamed(*view, "Hill")->GetTextItem();
    caption->setFocus();
    QVERIFY(caption->hasFocus());
    int tilesAtSignal = -1;
    connect(caption, &CRkGraphicsProjectTextItem::editFinished, this,
            [&] { tilesAtSignal = tilesOf(*view).size(); });
    caption->setPlainText("Dale");
    view->slotFilterConditionChanged("", "", "", "no such name");
    QVERIFY(!caption->hasFocus());
    QCOMPARE(tilesAtSignal, 1);
}

void tst_CRkProjectManagerView::hiddenTilesGoWithTheView()
{
    projects(3);
    auto view = std::make_unique<CRkProjectManagerView>(nullptr);
    QList<QPointer<Tile>> tiles;
    for (Tile* tile : tilesOf(*view))
        tiles.append(tile);
    view->slotFilterConditionChanged("", "", "", "p01");
    QCOMPARE(tilesOf(*view).size(), 1);
    tiles[0]->setSelected(true);
    view.reset();
    for (const QPointer<Tile>& tile : qAsConst(tiles))
        QVERIFY(tile.isNull());
}

void tst_CRkProjectManagerView::clickSelectsOne()
{
    projects(4);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(0);
    click(*view, "p00", onThumbnail);
    QCOMPARE(selectedNamesOf(*view), QStringList("p00"));
    click(*view, "p02", onThumbnail);
    QCOMPARE(selectedNamesOf(*view), QStringList("p02"));
    click(*view, "p02", onThumbnail);
    QCOMPARE(selectedNamesOf(*view), QStringList("p02"));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    QCOMPARE(selectedNamesOf(*view), QStringList());
}

void tst_CRkProjectManagerView::controlClickSelectsOne()
{
    projects(3);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(0);
    click(*view, "p00", onThumbnail);
    click(*view, "p01", onThumbnail, Qt::ControlModifier);
    QVERIFY(view->scene()->selectedItems().size() <= 1);
    click(*view, "p00", onMargin);
    QCOMPARE(selectedNamesOf(*view), QStringList("p00"));
    click(*view, "p02", onMargin, Qt::ControlModifier);
    QCOMPARE(selectedNamesOf(*view), QStringList("p02"));
}

void tst_CRkProjectManagerView::releaseOverAThumbnailSelects()
{
    projects(3);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(0);
    tileNamed(*view, "p00")->setSelected(true);
    const auto placeOf = [&](const QString& name) {
        return view->mapFromScene(tileNamed(*view, name)->pos() + onThumbnail);
    };
    // The scene itself would select only what was pressed, and only with the left button.
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, placeOf("p01"));
    QCOMPARE(selectedNamesOf(*view), QStringList("p01"));
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(10, 300));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, placeOf("p02"));
    QCOMPARE(selectedNamesOf(*view), QStringList("p02"));
}

void tst_CRkProjectManagerView::programSelectsOne()
{
    projects(3);
    const CRkProjectManagerView view(nullptr);
    for (Tile* tile : tilesOf(view)) {
        tile->setSelected(true);
        QCOMPARE(selectedNamesOf(view), QStringList(tile->GetProjectName()));
    }
}

void tst_CRkProjectManagerView::doubleClickOnAThumbnailOpens()
{
    project("Hill");
    const QString file = ProjectFixture{"a.b"}.write(m_home->projectRoot());
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET project_name='another'"}));
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(0);
    QString nameAtSignal;
    connect(view.get(), &CRkProjectManagerView::projectOpened, this,
            [&] { nameAtSignal = view->GetProjectName(); });
    QSignalSpy opened(view.get(), &CRkProjectManagerView::projectOpened);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                       view->mapFromScene(tileNamed(*view, "another")->pos() + onThumbnail));
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened[0][0].toString(), file);
    QCOMPARE(nameAtSignal, QString("a.b"));
}

void tst_CRkProjectManagerView::doubleClickOnACaptionIsForTheCaption()
{
    project("Hill");
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->verticalScrollBar()->setValue(0);
    QSignalSpy opened(view.get(), &CRkProjectManagerView::projectOpened);
    MouseRecorder recorder(view->scene());
    for (const QPoint& place : {onCaption, onMargin}) {
        recorder.types.clear();
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                           view->mapFromScene(tileNamed(*view, "Hill")->pos() + place));
        QVERIFY(recorder.types.contains(QEvent::GraphicsSceneMouseDoubleClick));
    }
    QCOMPARE(opened.count(), 0);
    QCOMPARE(view->GetProjectName(), QString());
}

void tst_CRkProjectManagerView::doubleClickOnNothingIsAMovement()
{
    project("Hill");
    const auto view = shownView({640, 480});
    QVERIFY(view);
    QSignalSpy opened(view.get(), &CRkProjectManagerView::projectOpened);
    const MouseRecorder recorder(view->scene());
    const QPoint beside(500, 300);
    QVERIFY(!view->itemAt(beside));
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, beside);
    QVERIFY(!recorder.types.contains(QEvent::GraphicsSceneMouseDoubleClick));
    QVERIFY(recorder.types.contains(QEvent::GraphicsSceneMouseMove));
    QCOMPARE(opened.count(), 0);
}

void tst_CRkProjectManagerView::newProject()
{
    CRkProjectManagerView view(nullptr);
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    view.slotNewProject();
    const QString file = m_home->projectRoot() + "New Project/New Project.proj";
    QCOMPARE(namesOf(view), QStringList("New Project"));
    const Tile* tile = tilesOf(view).first();
    QCOMPARE(tile->GetProjectFilePath(), file);
    QCOMPARE(tile->GetSoftwareVersion(), VANTRELL_VERSION);
    QCOMPARE(tile->GetImageItem()->pixmap().toImage(),
             QPixmap(":/images/Normal/Thumbnails.png").toImage());
    QVERIFY(tile->GetTextItem()->toolTip().contains("Size:0B"));

    const auto column = [&](const QString& name) {
        return readSql(file, "select " + name + " from " + ProjectTableName).value(0);
    };
    QCOMPARE(column("project_name"), QString("New Project"));
    QCOMPARE(column("user_id"), QString("user-1"));
    QCOMPARE(column("version"), QString("1"));
    QCOMPARE(column("id"), tile->GetProjectID());
    QCOMPARE(column("id").size(), 36);
    QCOMPARE(column("created_at"), column("updated_at"));
    const QDateTime made = QDateTime::fromString(column("created_at"), DateTimeSFormat);
    QVERIFY(made.isValid() && made >= before && made <= QDateTime::currentDateTime());
    QCOMPARE(readSql(file, "select count(*) from " + SurveyAreaTableName), QStringList("0"));
    QCOMPARE(readSql(file, "select count(*) from " + MissionTableName), QStringList("0"));

    const CRkProjectManagerView later(nullptr);
    QCOMPARE(namesOf(later), QStringList("New Project"));
}

void tst_CRkProjectManagerView::newProjectsAreNumbered()
{
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    view.slotNewProject();
    // A tile that a filter hides counts as well.
    view.slotFilterConditionChanged("", "", "", "_1");
    view.slotNewProject();
    view.slotFilterConditionChanged("", "", "", "");
    QCOMPARE(namesOf(view), QStringList({"New Project", "New Project_1", "New Project_2"}));
    QVERIFY(tilesOf(view)[0]->GetProjectID() != tilesOf(view)[1]->GetProjectID());

    // A file that has gone ends the search for the name: the first name is free again.
    QVERIFY(QFile::remove(tilesOf(view)[0]->GetProjectFilePath()));
    view.slotNewProject();
    QCOMPARE(namesOf(view).last(), QString("New Project"));
}

void tst_CRkProjectManagerView::newProjectInAView()
{
    projects(9);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    view->slotNewProject();
    QCOMPARE(tilesOf(*view).last()->pos(), QPointF(32, 3 * 220));
    QCOMPARE(view->sceneRect(), QRectF(0, 0, 640, 3 * 220 + 363));
    QCOMPARE(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
}

void tst_CRkProjectManagerView::newProjectBesideFilteredTiles()
{
    projects(9);
    const auto view = shownView({640, 480});
    QVERIFY(view);
    view->slotFilterConditionChanged("", "", "", "p05");
    view->slotNewProject();
    QCOMPARE(namesOf(*view), QStringList({"p05", "New Project"}));
    QCOMPARE(tilesOf(*view).last()->pos(), QPointF(242, 0));
    view->slotFilterConditionChanged("", "", "", "");
    QCOMPARE(tilesOf(*view).size(), 10);
    QCOMPARE(namesOf(*view).last(), QString("New Project"));
    QCOMPARE(tilesOf(*view).last()->pos(), QPointF(32, 3 * 220));
}

void tst_CRkProjectManagerView::userWithAQuote()
{
    project("Hill");
    m_home->setCurrentUserId("user-1' or '1'='2");
    const CRkProjectManagerView view(nullptr);
    QCOMPARE(namesOf(view), QStringList("Hill"));
    m_home->setCurrentUserId("it's");
    const CRkProjectManagerView none(nullptr);
    QCOMPARE(namesOf(none), QStringList());
}

QTEST_MAIN(tst_CRkProjectManagerView)
#include "tst_CRkProjectManagerView.moc"
