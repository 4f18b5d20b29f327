// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProjectManagerView.h>

#include "ProjectFixture.h"
#include "support/BoxAnswerer.h"
#include "support/Brackets.h"
#include "support/MessageLog.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkData/RkData.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QProcess>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QTest>

#include <cstdio>
#include <memory>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

using Tile = CRkGraphicsProjectRectItem;

#ifdef Q_OS_WIN
constexpr bool isWindows = true;
#else
constexpr bool isWindows = false;
#endif

const QString inUseText = QStringLiteral(
    "The action can't be completed because the file is open in other application or project name "
    "has been exist.");

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

Tile* tileNamed(const CRkProjectManagerView& view, const QString& name)
{
    for (Tile* tile : tilesOf(view)) {
        if (tile->GetProjectName() == name)
            return tile;
    }
    return nullptr;
}

QStringList sortedNamesOf(const CRkProjectManagerView& view)
{
    QStringList names;
    for (const Tile* tile : tilesOf(view))
        names.append(tile->GetProjectName());
    names.sort();
    return names;
}

bool select(const CRkProjectManagerView& view, const QString& name)
{
    Tile* tile = tileNamed(view, name);
    if (tile)
        tile->setSelected(true);
    return tile;
}

/// What the user's renaming sends.
void rename(const CRkProjectManagerView& view, const QString& name, const QString& newName)
{
    Tile* tile = tileNamed(view, name);
    QVERIFY(tile);
    emit tile->GetTextItem()->editFinished(newName);
}

QList<QPointF> positionsOf(const QList<Tile*>& tiles)
{
    QList<QPointF> positions;
    for (const Tile* tile : tiles)
        positions.append(tile->pos());
    return positions;
}

/// Where so many tiles stand in so many columns.
QList<QPointF> placesOf(int count, int columns)
{
    QList<QPointF> places;
    for (int i = 0; i < count; ++i)
        places.append(QPointF(i % columns * 210 + 32, i / columns * 220));
    return places;
}

/// Every file and folder below the root with the content of the files.
QMap<QString, QByteArray> content(const QString& root)
{
    QMap<QString, QByteArray> entries;
    QDirIterator entry(root, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (entry.hasNext()) {
        const QString path = entry.next();
        entries.insert(QDir(root).relativeFilePath(path),
                       entry.fileInfo().isDir() ? QByteArray("folder") : readFile(path));
    }
    return entries;
}

/// Has a file open while it lives.
class Holder
{
public:
    virtual ~Holder() = default;
    virtual bool isHolding() const = 0;
};

class FileHolder : public Holder
{
public:
    explicit FileHolder(const QString& file)
        : m_file(file)
    {
        m_file.open(QIODevice::ReadOnly);
    }
    bool isHolding() const override { return m_file.isOpen(); }

private:
    QFile m_file;
};

class ConnectionHolder : public Holder
{
public:
    explicit ConnectionHolder(const QString& file)
        : m_database(file)
        , m_isOpen(m_database.open() && m_database.exec("select * from sqlite_master").next())
    {
    }
    bool isHolding() const override { return m_isOpen; }

private:
    CRkDataBase m_database;
    bool m_isOpen;
};

const char* const holdOption = "--hold";
const char* const endOption = "--end";

/// This program once more, which holds the file until its input ends.
class ProcessHolder : public Holder
{
public:
    explicit ProcessHolder(const QString& file)
    {
        m_process.start(QCoreApplication::applicationFilePath(), {holdOption, file});
        m_isHolding = m_process.waitForReadyRead();
    }
    ~ProcessHolder() override
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    bool isHolding() const override { return m_isHolding; }

private:
    QProcess m_process;
    bool m_isHolding = false;
};

/// What the other process of a ProcessHolder does.
int holdFile(const QString& path)
{
    const ConnectionHolder holder(path);
    if (!holder.isHolding())
        return 1;
    std::puts("open");
    std::fflush(stdout);
    return std::getchar() == EOF ? 0 : 1;
}

/// A program that ends, with the view, while a message of the view is up.
int endDuringAMessage()
{
    TestHome home;
    home.setCurrentUserId("user-1");
    if (ProjectFixture{"Hill"}.write(home.projectRoot()).isEmpty())
        return 1;
    auto view = std::make_unique<CRkProjectManagerView>(nullptr);
    BoxAnswerer answers;
    answers.beforeAnswer = [&view] {
        view.reset();
        QCoreApplication::quit();
    };
    view->show();
    if (!comesOnScreen(view.get()))
        return 1;
    // By a timer of its own: behind a posted event the loop would still handle all others.
    QTimer::singleShot(1, qApp, [&view] { rename(*view, "Hill", " "); });
    return QCoreApplication::exec() == 0 && answers.boxes.size() == 1 ? 0 : 1;
}

using MakeHolder = std::unique_ptr<Holder> (*)(const QString& file);

template <typename Kind>
std::unique_ptr<Holder> makeHolder(const QString& file)
{
    return std::make_unique<Kind>(file);
}

void addHolders()
{
    QTest::addColumn<MakeHolder>("hold");
    const auto row = [](const char* name, MakeHolder make) { QTest::newRow(name) << make; };
    row("file", makeHolder<FileHolder>);
    row("connection", makeHolder<ConnectionHolder>);
    row("other process", makeHolder<ProcessHolder>);
}

/// Whether names that differ in case name the same file in the folder.
bool ignoresCase(const QString& folder)
{
    const QString file = folder + "Case";
    const bool isSame = writeFile(file, "") && QFileInfo::exists(folder + "cASE");
    QFile::remove(file);
    return isSame;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(CRkProjectManagerView&)>)
Q_DECLARE_METATYPE(MakeHolder)

class tst_ProjectOperations : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void newProject();
    void newNamesAreCounted();
    void filteredTilesCountForNames();
    void missingFileEndsTheSearchForNames();
    void newProjectIsScrolledIntoView();
    void newProjectInAnothersFile();

    void copyNeedsASelection();
    void copy();
    void copiesAreCounted();
    void copyKeepsEverythingElse();
    void copyConnectionStaysRegistered();
    void copyOfDoubleSeparator();
    void copyThatFails_data();
    void copyThatFails();
    void copyOntoAnExistingFile();
    void copyOfAMissingFile();
    void copyOfANameWithAQuote_data();
    void copyOfANameWithAQuote();
    void copyOfAnOddName_data();
    void copyOfAnOddName();
    void copyThatCannotBeOpened();
    void copyIsScrolledTo();
    void copyForAnotherUser();
    void copyOntoAnotherCase();

    void deleteNeedsASelection();
    void deleteAsksFirst_data();
    void deleteAsksFirst();
    void deleteShowsMarkupAsItIs();
    void deleteEndsEditingFirst_data();
    void deleteEndsEditingFirst();
    void deleteKeepsFolderAndCompanion();
    void deleteTheOnlyProject();
    void deleteMovesTheOthersUp_data();
    void deleteMovesTheOthersUp();
    void deleteAfterAHiddenResize_data();
    void deleteAfterAHiddenResize();
    void deleteWhatAFilterHidMeanwhile();
    void deleteWhatWasDeletedMeanwhile();
    void deleteFileThatCannotBeRemoved();
    void deleteTileOfAnotherView();
    void deleteOfAnOpenFile_data() { addHolders(); }
    void deleteOfAnOpenFile();

    void renameProject();
    void renameTakesTheCompanionAlong();
    void journalOfACrash_data();
    void journalOfACrash();
    void renameWritesTheBookkeeping();
    void renameBlanks();
    void renameToNothing_data();
    void renameToNothing();
    void renameOntoAnotherProject();
    void renameOntoItself();
    void renameToAnotherCase();
    void renameOntoAnotherCase();
    void renameOfAnOpenFile_data() { addHolders(); }
    void renameOfAnOpenFile();
    void renameOfAnOpenCompanion_data() { addHolders(); }
    void renameOfAnOpenCompanion();
    void renameWhenTheCompanionCannotMove_data();
    void renameWhenTheCompanionCannotMove();
    void renameThatCannotBeTakenBack();
    void renameOfAMissingFile();
    void renameOfATileThatIsGone();
    void renameOfAHiddenTile();
    void renameWithoutASender();
    void renameToOddNames_data();
    void renameToOddNames();
    void renameToANameThatIsAStatement();
    void renameToAPathThatCannotBeOpened();
    void renameOutOfTheRoot_data();
    void renameOutOfTheRoot();
    void renameOutOfTheRootByTheFileAlone();
    void renameOnceOnly();

    void longPaths();
    void rootInTheSystemsForm();
    void rootOfADrive();

    void viewThatGoesDuringAMessage_data();
    void viewThatGoesDuringAMessage();
    void viewThatGoesWithACopy();
    void programThatEndsDuringAMessage();
    void tileThatGoesDuringAMessage_data();
    void tileThatGoesDuringAMessage();

    void openSelected();
    void openWithoutSelection();

    void removedRoot();
    void messagesAreTranslated();

private:
    /// A name whose project file has a path of so many bytes, or of one less.
    QString nameWithPathOf(int bytes) const;

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<BoxAnswerer> m_answers;
    QString m_root;
};

void tst_ProjectOperations::init()
{
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
    m_answers = std::make_unique<BoxAnswerer>();
}

void tst_ProjectOperations::cleanup()
{
    m_answers.reset();
    m_home.reset();
}

QString tst_ProjectOperations::nameWithPathOf(int bytes) const
{
    return QString((bytes - m_root.size() - int(qstrlen("/.proj"))) / 2, 'n');
}

void tst_ProjectOperations::newProject()
{
    CRkProjectManagerView view(nullptr);
    const QDateTime before = QDateTime::currentDateTime();
    view.slotNewProject();
    const QString file = m_root + "New Project/New Project.proj";
    QVERIFY(QFileInfo::exists(file));
    QCOMPARE(sortedNamesOf(view), QStringList{"New Project"});
    QCOMPARE(tilesOf(view).first()->GetProjectFilePath(), file);
    QCOMPARE(readSql(file, "select project_name from " + ProjectTableName),
             QStringList{"New Project"});
    QCOMPARE(readSql(file, "select user_id from " + ProjectTableName), QStringList{"user-1"});
    const QString created = readSql(file, "select created_at from " + ProjectTableName).value(0);
    const QDateTime time = QDateTime::fromString(created, DateTimeSFormat);
    QVERIFY(before.secsTo(time) >= -1);
    QVERIFY(time <= QDateTime::currentDateTime());
    QVERIFY(readSql(file, "select id from " + SurveyAreaTableName).isEmpty());
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::newNamesAreCounted()
{
    CRkProjectManagerView view(nullptr);
    for (int i = 0; i < 3; ++i)
        view.slotNewProject();
    QCOMPARE(sortedNamesOf(view), QStringList({"New Project", "New Project_1", "New Project_2"}));
}

void tst_ProjectOperations::filteredTilesCountForNames()
{
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    view.slotFilterConditionChanged({}, {}, {}, "nothing of that name");
    view.slotNewProject();
    QCOMPARE(sortedNamesOf(view), QStringList{"New Project_1"});
}

void tst_ProjectOperations::missingFileEndsTheSearchForNames()
{
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    view.slotNewProject();
    // What stands behind a missing file is not looked at.
    QVERIFY(QFile::remove(m_root + "New Project/New Project.proj"));
    view.slotNewProject();
    QVERIFY(QFileInfo::exists(m_root + "New Project/New Project.proj"));
    QCOMPARE(sortedNamesOf(view), QStringList({"New Project", "New Project", "New Project_1"}));
}

void tst_ProjectOperations::newProjectIsScrolledIntoView()
{
    CRkProjectManagerView view(nullptr);
    view.resize(220, 300);
    view.show();
    for (int i = 0; i < 5; ++i) {
        view.slotNewProject();
        QCOMPARE(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    }
    QVERIFY(view.verticalScrollBar()->maximum() > 0);
}

void tst_ProjectOperations::newProjectInAnothersFile()
{
    // The other user's project has no tile here, so its name counts as free.
    ProjectFixture other{"New Project"};
    other.userId = "user-2";
    const QString file = other.write(m_root);
    QVERIFY(!file.isEmpty());
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    QCOMPARE(sortedNamesOf(view), QStringList{"New Project"});
    QCOMPARE(readSql(file, "select user_id from " + ProjectTableName + " order by user_id"),
             QStringList({"user-1", "user-2"}));
}

void tst_ProjectOperations::copyNeedsASelection()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    view.slotCopyProject();
    QCOMPARE(m_answers->boxes.size(), 1);
    const ShownBox& box = m_answers->boxes.first();
    QCOMPARE(box.title, QString("Copy Project"));
    QCOMPARE(box.text, QString("Please select a project to copy."));
    QCOMPARE(box.icon, QPixmap(":/images/Normal/Exclamation_mark.png").toImage());
    QVERIFY(!box.icon.isNull());
    QVERIFY(box.isCancelHidden);
    QVERIFY(box.isModalWindow);
    QCOMPARE(copied.count(), 0);
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
}

void tst_ProjectOperations::copy()
{
    ProjectFixture fixture{"Hill"};
    fixture.outlines << squareAround(30, 104) << squareAround(31, 105) << squareAround(32, 106);
    const QString source = fixture.write(m_root);
    QVERIFY(runSql(source,
                   {"INSERT INTO " + MissionTableName
                        + " (id,flight_task_guid,survey_block_id) VALUES ('m1','t1','a0')",
                    "INSERT INTO " + MissionTableName
                        + " (id,flight_task_guid,survey_block_id) VALUES ('m2','t2','a1')"}));
    const QByteArray before = readFile(source);
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    QCOMPARE(copied.count(), 1);
    QCOMPARE(sortedNamesOf(view), QStringList({"Hill", "copy of Hill"}));
    QCOMPARE(readFile(source), before);

    const QString file = m_root + "copy of Hill/copy of Hill.proj";
    QCOMPARE(readSql(file, "select project_name from " + ProjectTableName),
             QStringList{"copy of Hill"});
    const QString id = readSql(file, "select id from " + ProjectTableName).value(0);
    QVERIFY(!id.isEmpty() && id != fixture.id);
    QCOMPARE(readSql(file, "select project_id from " + SurveyAreaTableName),
             QStringList({id, id, id}));
    const QString area = readSql(file, "select id from " + SurveyAreaTableName).value(0);
    QVERIFY(!area.isEmpty() && area != id);
    QCOMPARE(readSql(file, "select id from " + SurveyAreaTableName),
             QStringList({area, area, area}));
    QCOMPARE(readSql(file, "select survey_area_guid from " + SurveyAreaTableName),
             QStringList({area, area, area}));
    QCOMPARE(readSql(file, "select survey_block_id from " + MissionTableName),
             QStringList({area, area}));
    const QString mission = readSql(file, "select id from " + MissionTableName).value(0);
    QVERIFY(!mission.isEmpty() && mission != area && mission != id);
    QCOMPARE(readSql(file, "select id from " + MissionTableName), QStringList({mission, mission}));
    QCOMPARE(readSql(file, "select flight_task_guid from " + MissionTableName),
             QStringList({"t1", "t2"}));
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::copiesAreCounted()
{
    ProjectFixture{"A"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "A"));
    view.slotCopyProject();
    view.slotCopyProject();
    QCOMPARE(sortedNamesOf(view), QStringList({"A", "copy of A", "copy of A_1"}));
    QVERIFY(QFileInfo::exists(m_root + "copy of A_1/copy of A_1.proj"));
}

void tst_ProjectOperations::copyKeepsEverythingElse()
{
    ProjectFixture fixture{"Hill"};
    fixture.imageData = thumbnailText(Qt::darkGreen);
    const QString source = fixture.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    const QString file = m_root + "copy of Hill/copy of Hill.proj";
    for (const char* column :
         {"user_id", "created_at", "updated_at", "version", "software_version", "image_data"}) {
        const QString statement = QString("select %1 from ").arg(column) + ProjectTableName;
        QVERIFY(!readSql(source, statement).isEmpty());
        QCOMPARE(readSql(file, statement), readSql(source, statement));
    }
}

void tst_ProjectOperations::copyConnectionStaysRegistered()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    const QStringList before = QSqlDatabase::connectionNames();
    view.slotCopyProject();
    QStringList added = QSqlDatabase::connectionNames();
    for (const QString& name : before)
        added.removeOne(name);
    QCOMPARE(added.size(), 1);
    QVERIFY(!QSqlDatabase::database(added.first(), false).isOpen());
    QSqlDatabase::removeDatabase(added.first());
}

void tst_ProjectOperations::copyOfDoubleSeparator()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    QCOMPARE(tileNamed(view, "copy of Hill")->GetProjectFilePath(),
             m_root + "/copy of Hill/copy of Hill.proj");
}

void tst_ProjectOperations::copyThatFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("slash") << "a/b";
    QTest::newRow("out of the root") << "x/../../../outside";
    QTest::newRow("name of 255 bytes") << QString(255, 'n');
}

void tst_ProjectOperations::copyThatFails()
{
    QFETCH(QString, name);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET project_name='" + name + "'"}));
    const auto before = content(m_home->path());
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QVERIFY(select(view, name));
    view.slotCopyProject();
    QCOMPARE(copied.count(), 0);
    QCOMPARE(tilesOf(view).size(), 1);
    QCOMPARE(content(m_home->path()), before);
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::copyOntoAnExistingFile()
{
    // The other user's project has no tile here, so its name counts as free.
    ProjectFixture{"Hill"}.write(m_root);
    ProjectFixture other{"copy of Hill"};
    other.userId = "user-2";
    QVERIFY(!other.write(m_root).isEmpty());
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    QCOMPARE(copied.count(), 0);
    QCOMPARE(content(m_root), before);
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::copyOfAMissingFile()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QVERIFY(select(view, "Hill"));
    QVERIFY(QDir(m_root + "Hill").removeRecursively());
    view.slotCopyProject();
    QCOMPARE(copied.count(), 0);
    QCOMPARE(content(m_root).keys(), QStringList());
    QVERIFY2(QDir(m_root).exists(), "the root stays though it is empty");
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::copyOfANameWithAQuote_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nameInCopy");
    QTest::newRow("quote") << "O'Hara"
                           << "O'Hara";
    QTest::newRow("two quotes") << "O''Hara"
                                << "copy of O'Hara";
    QTest::newRow("statement") << "x', user_id='nobody"
                               << "x', user_id='nobody";
}

void tst_ProjectOperations::copyOfANameWithAQuote()
{
    QFETCH(QString, name);
    const QString source = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(runSql(source,
                   {"UPDATE " + ProjectTableName + " SET project_name='"
                    + QString(name).replace("'", "''") + "'"}));
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, name));
    view.slotCopyProject();
    QCOMPARE(tilesOf(view).size(), 2);
    const QString file = m_root + "copy of " + name + "/copy of " + name + ".proj";
    QTEST(readSql(file, "select project_name from " + ProjectTableName).value(0), "nameInCopy");
    QCOMPARE(readSql(file, "select user_id from " + ProjectTableName), QStringList{"user-1"});
    QVERIFY(readSql(file, "select id from " + ProjectTableName)
            != readSql(source, "select id from " + ProjectTableName));
}

void tst_ProjectOperations::copyOfAnOddName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("canBeAFile");
    QTest::newRow("double quote") << "\"Hill\"" << !isWindows;
    QTest::newRow("per cent") << "100%" << true;
    QTest::newRow("marker") << "Hill %1 %2" << true;
    QTest::newRow("newline") << "Hill\nDale" << !isWindows;
    QTest::newRow("emoji") << QString::fromUtf8("山丘 🛩") << true;
    QTest::newRow("backslash") << "Hill\\Dale" << !isWindows;
    QTest::newRow("leading dot") << ".Hill" << true;
}

void tst_ProjectOperations::copyOfAnOddName()
{
    QFETCH(QString, name);
    QFETCH(bool, canBeAFile);
    const QString source = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(runSql(source, {"UPDATE " + ProjectTableName + " SET project_name='" + name + "'"}));
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, name));
    view.slotCopyProject();
    const QString copyName = "copy of " + name;
    QStringList names = {name};
    if (canBeAFile)
        names.prepend(copyName);
    names.sort();
    QCOMPARE(sortedNamesOf(view), names);
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), names);
    if (canBeAFile)
        QVERIFY(QFileInfo::exists(m_root + copyName + '/' + copyName + ".proj"));
    else
        QCOMPARE(content(m_root), before);
    QCOMPARE(readFile(source), before.value("Hill/Hill.proj"));
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::copyThatCannotBeOpened()
{
    // SQLite opens no path of more than 504 bytes, and the copy's is longer than the original's.
    const QString name = nameWithPathOf(500);
    const QString source = ProjectFixture{name}.write(m_root);
    QVERIFY(!source.isEmpty());
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QVERIFY(select(view, name));
    view.slotCopyProject();
    QCOMPARE(copied.count(), 0);
    QCOMPARE(sortedNamesOf(view), QStringList{name});
    const QString file = m_root + "copy of " + name + "/copy of " + name + ".proj";
    QVERIFY2(readFile(file) == readFile(source), "the copy stays as it is");
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::copyIsScrolledTo()
{
    for (const char* name : {"A", "B", "C", "D"})
        ProjectFixture{name}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.resize(220, 300);
    view.show();
    // As a page does that filters after each copy.
    connect(&view, &CRkProjectManagerView::projectCopied, &view,
            [&view] { view.verticalScrollBar()->setValue(0); });
    QVERIFY(select(view, "A"));
    view.slotCopyProject();
    QVERIFY(view.verticalScrollBar()->maximum() > 0);
    QCOMPARE(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
}

void tst_ProjectOperations::copyForAnotherUser()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QVERIFY(select(view, "Hill"));
    m_home->setCurrentUserId("user-2");
    view.slotCopyProject();
    QCOMPARE(copied.count(), 1);
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
    QVERIFY(QFileInfo::exists(m_root + "copy of Hill/copy of Hill.proj"));
}

void tst_ProjectOperations::copyOntoAnotherCase()
{
    ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(!ProjectFixture{"COPY of hill"}.write(m_root).isEmpty());
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    // Names that differ in case count as different ones, and then the file is there already.
    if (ignoresCase(m_root))
        QCOMPARE(content(m_root), before);
    else
        QVERIFY(QFileInfo::exists(m_root + "copy of Hill/copy of Hill.proj"));
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::deleteNeedsASelection()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.slotDeleteProject();
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().title, QString("Delete Project"));
    QCOMPARE(m_answers->boxes.first().text, QString("Please select a project to delete."));
    QVERIFY(m_answers->boxes.first().isCancelHidden);
    QVERIFY(QFileInfo::exists(file));
}

void tst_ProjectOperations::deleteAsksFirst_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("OK") << "m_pBtnOK" << true;
    QTest::newRow("Cancel") << "m_pBtnCancel" << false;
    QTest::newRow("close") << "m_pBtnClose" << false;
}

void tst_ProjectOperations::deleteAsksFirst()
{
    QFETCH(QString, button);
    QFETCH(bool, isDeleted);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy deleted(&view, &CRkProjectManagerView::projectDeleted);
    m_answers->button = button;
    QVERIFY(select(view, "Hill"));
    view.slotDeleteProject();
    QCOMPARE(m_answers->boxes.size(), 1);
    const ShownBox& box = m_answers->boxes.first();
    QCOMPARE(box.title, QString("Delete Project"));
    QCOMPARE(box.text, QString("confirm delete \"Hill\"?"));
    QVERIFY(!box.isCancelHidden);
    QVERIFY(box.isModalWindow);
    QCOMPARE(QFileInfo::exists(file), !isDeleted);
    QCOMPARE(tilesOf(view).isEmpty(), isDeleted);
    QCOMPARE(deleted.count(), 0);
}

void tst_ProjectOperations::deleteShowsMarkupAsItIs()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const QString name = "<b>Hill</b>";
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET project_name='" + name + "'"}));
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, name));
    view.slotDeleteProject();
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().text, QString("confirm delete \"<b>Hill</b>\"?"));
    QCOMPARE(m_answers->boxes.first().textFormat, Qt::PlainText);
}

void tst_ProjectOperations::deleteEndsEditingFirst_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("another name") << "Vale" << QStringList{"confirm delete \"Vale\"?"};
    QTest::newRow("nothing") << ""
                             << QStringList(
                                    {"You must type a project name.", "confirm delete \"Hill\"?"});
}

void tst_ProjectOperations::deleteEndsEditingFirst()
{
    QFETCH(QString, typed);
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.show();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    QTRY_VERIFY(view.scene()->isActive());
    QVERIFY(select(view, "Hill"));
    CRkGraphicsProjectTextItem* caption = tileNamed(view, "Hill")->GetTextItem();
    caption->setFocus();
    QTRY_VERIFY(caption->hasFocus());
    caption->setPlainText(typed);
    view.slotDeleteProject();
    QStringList texts;
    for (const ShownBox& box : m_answers->boxes)
        texts.append(box.text);
    QTEST(texts, "texts");
    QVERIFY(tilesOf(view).isEmpty());
    const QStringList entries = content(m_root).keys();
    QVERIFY2(entries.filter(".proj").isEmpty(), qPrintable(entries.join('\n')));
}

void tst_ProjectOperations::deleteKeepsFolderAndCompanion()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const QString companion = CRkControl::GetInstance()->GetFlightMissionFilePath(file);
    QVERIFY(writeFile(companion, "flights"));
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    view.slotDeleteProject();
    QCOMPARE(content(m_root).keys(), QStringList({"Hill", "Hill/Hill_flight.db"}));
    QCOMPARE(readFile(companion), QByteArray("flights"));
}

void tst_ProjectOperations::deleteTheOnlyProject()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    const QPointer<Tile> tile = tileNamed(view, "Hill");
    QVERIFY(select(view, "Hill"));
    view.slotDeleteProject();
    QVERIFY(tilesOf(view).isEmpty());
    QVERIFY(QFileInfo(m_root + "Hill").isDir());
    QVERIFY(tile);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!tile);
    // Nothing of it is left in the lists.
    view.slotFilterConditionChanged({}, {}, {}, {});
    QVERIFY(tilesOf(view).isEmpty());
}

void tst_ProjectOperations::deleteMovesTheOthersUp_data()
{
    QTest::addColumn<int>("deleted");
    QTest::newRow("first") << 0;
    QTest::newRow("in the middle of a row") << 4;
    QTest::newRow("at the end of a row") << 2;
    QTest::newRow("last, alone in its row") << 6;
}

void tst_ProjectOperations::deleteMovesTheOthersUp()
{
    QFETCH(int, deleted);
    for (const char* name : {"A", "B", "C", "D", "E", "F", "G"})
        ProjectFixture{name}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.resize(640, 400);
    view.show();
    QVERIFY(comesOnScreen(&view));
    QList<Tile*> tiles = tilesOf(view);
    QCOMPARE(view.sceneRect().height(), 2 * 220.0 + 363);
    tiles.takeAt(deleted)->setSelected(true);
    view.slotDeleteProject();
    QCOMPARE(tilesOf(view).size(), 6);
    QCOMPARE(positionsOf(tiles), placesOf(6, 3));
    QCOMPARE(view.sceneRect().height(), 220.0 + 363);
    QCOMPARE(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    QVERIFY(view.verticalScrollBar()->maximum() > 0);
}

void tst_ProjectOperations::deleteAfterAHiddenResize_data()
{
    QTest::addColumn<bool>("withNewProject");
    QTest::newRow("at once") << false;
    QTest::newRow("of a project made since then") << true;
}

void tst_ProjectOperations::deleteAfterAHiddenResize()
{
    // A view that is not shown hears of its new size later, but lays out the tiles for it.
    QFETCH(bool, withNewProject);
    for (const char* name : {"A", "B", "C", "D", "E"})
        ProjectFixture{name}.write(m_root);
    QWidget parent;
    parent.resize(640, 400);
    CRkProjectManagerView view(&parent);
    QCOMPARE(positionsOf(tilesOf(view)), placesOf(5, 3));
    view.resize(430, 400);
    if (withNewProject)
        view.slotNewProject();
    QList<Tile*> tiles = tilesOf(view);
    tiles.takeLast()->setSelected(true);
    view.slotDeleteProject();
    QCOMPARE(positionsOf(tiles), placesOf(tiles.size(), 2));
}

void tst_ProjectOperations::deleteWhatAFilterHidMeanwhile()
{
    for (const char* name : {"A", "B", "C"})
        ProjectFixture{name}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.resize(640, 400);
    QVERIFY(select(view, "A"));
    m_answers->beforeAnswer = [&view] { view.slotFilterConditionChanged({}, {}, {}, "C"); };
    MessageLog log;
    log.start();
    view.slotDeleteProject();
    QCOMPARE(log.stop(), QStringList());
    QCOMPARE(sortedNamesOf(view), QStringList{"C"});
    QCOMPARE(positionsOf(tilesOf(view)), placesOf(1, 3));
    view.slotFilterConditionChanged({}, {}, {}, {});
    QCOMPARE(sortedNamesOf(view), QStringList({"B", "C"}));
    QCOMPARE(positionsOf(tilesOf(view)), placesOf(2, 3));
}

void tst_ProjectOperations::deleteWhatWasDeletedMeanwhile()
{
    ProjectFixture{"A"}.write(m_root);
    ProjectFixture{"B"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    const QPointer<Tile> tile = tileNamed(view, "A");
    QVERIFY(select(view, "A"));
    // The host deletes it while the user is still asked.
    m_answers->beforeAnswer = [&] {
        m_answers->beforeAnswer = nullptr;
        view.slotDeleteProject();
    };
    view.slotDeleteProject();
    QCOMPARE(m_answers->texts(), QStringList({"confirm delete \"A\"?", "confirm delete \"A\"?"}));
    QCOMPARE(sortedNamesOf(view), QStringList{"B"});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!tile);
}

void tst_ProjectOperations::deleteFileThatCannotBeRemoved()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    QVERIFY(QFile::remove(file)); // Somebody was faster.
    view.slotDeleteProject();
    QCOMPARE(m_answers->boxes.size(), 2);
    const ShownBox& box = m_answers->boxes.last();
    QCOMPARE(box.title, QString("File In Use"));
    QCOMPARE(box.text,
             QString("The action can't be completed because the file is open in other "
                     "application.Close the file and try again."));
    QVERIFY(box.isCancelHidden);
    QVERIFY(box.isModalWindow);
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
}

void tst_ProjectOperations::deleteTileOfAnotherView()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    // A host put a tile of its own into the scene.
    auto* foreign = new Tile;
    foreign->setRect(0, 0, 200, 180);
    foreign->setFlag(QGraphicsItem::ItemIsSelectable);
    foreign->SetProjectFilePath(file);
    view.scene()->addItem(foreign);
    foreign->setSelected(true);
    view.slotDeleteProject();
    QVERIFY(m_answers->boxes.isEmpty());
    QVERIFY(QFileInfo::exists(file));
}

void tst_ProjectOperations::deleteOfAnOpenFile()
{
    QFETCH(MakeHolder, hold);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    {
        const std::unique_ptr<Holder> holder = hold(file);
        QVERIFY(holder->isHolding());
        view.slotDeleteProject();
    }
    if (isWindows) {
        QCOMPARE(m_answers->boxes.size(), 2);
        QCOMPARE(m_answers->boxes.last().title, QString("File In Use"));
        QCOMPARE(m_answers->boxes.last().text,
                 QString("The action can't be completed because the file is open in other "
                         "application.Close the file and try again."));
        QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
        QCOMPARE(content(m_root), before);
        view.slotDeleteProject(); // The file is closed now.
    }
    QVERIFY(!QFileInfo::exists(file));
    QVERIFY(tilesOf(view).isEmpty());
}

void tst_ProjectOperations::renameProject()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    Tile* tile = tileNamed(view, "Hill");
    rename(view, "Hill", "Dale");
    QCOMPARE(renamed.count(), 1);
    QVERIFY(m_answers->boxes.isEmpty());
    const QString file = m_root + "Dale/Dale.proj";
    QCOMPARE(content(m_root).keys(), QStringList({"Dale", "Dale/Dale.proj"}));
    QCOMPARE(tile->GetProjectName(), QString("Dale"));
    QCOMPARE(tile->GetProjectFilePath(), file);
    QCOMPARE(tile->GetImageItem()->toolTip(), QString("Dale"));
    const CRkGraphicsProjectTextItem* caption = tile->GetTextItem();
    QCOMPARE(caption->GetPrjName(), QString("Dale"));
    QCOMPARE(caption->toPlainText(), QString("Dale"));
    QVERIFY(caption->toolTip().startsWith("Name:Dale\n"));
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList{"Dale"});
}

void tst_ProjectOperations::renameTakesTheCompanionAlong()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(writeFile(CRkControl::GetInstance()->GetFlightMissionFilePath(file), "flights"));
    QVERIFY(writeFile(m_root + "Hill/notes.txt", "notes"));
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", "Dale");
    QCOMPARE(
        content(m_root).keys(),
        QStringList({"Dale", "Dale/Dale.proj", "Dale/Dale_flight.db", "Hill", "Hill/notes.txt"}));
    QCOMPARE(readFile(m_root + "Dale/Dale_flight.db"), QByteArray("flights"));
}

void tst_ProjectOperations::journalOfACrash_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("of what was there before") << "journal";
    QTest::newRow("of what is not taken over yet") << "wal";
}

/// Whoever wrote the files ended half way, and left the journals to the next who opens them.
void tst_ProjectOperations::journalOfACrash()
{
    QFETCH(QString, mode);
    const QString hill = ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    const QString flights = CRkControl::GetInstance()->GetFlightMissionFilePath(hill);
    const QString whole = "select count(*) from crash where value = 'whole'";
    const QString rows = "3000";
    const QString fill =
        "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < " + rows
        + ") INSERT INTO crash SELECT 'whole' FROM n";
    for (const QString& file : {hill, flights}) {
        const QString source = m_home->path() + "/crash.db";
        QVERIFY(!QFileInfo::exists(file) || QFile::copy(file, source));
        QVERIFY(runSql(source, {"CREATE TABLE crash (value TEXT)", fill}));
        {
            CRkDataBase writer(source);
            QVERIFY(writer.open());
            if (mode == "wal") {
                writer.exec("PRAGMA journal_mode=wal");
                writer.exec("DELETE FROM crash");
                writer.exec(fill);
            } else {
                writer.exec("PRAGMA cache_size=2");
                writer.exec("BEGIN");
                writer.exec("UPDATE crash SET value = 'half ' || rowid");
            }
            QFile::remove(file);
            QVERIFY(QFile::copy(source, file));
            QVERIFY(QFile::copy(source + '-' + mode, file + '-' + mode));
            if (mode != "wal")
                writer.exec("ROLLBACK");
        }
        QVERIFY(QFile::remove(source));
    }

    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    QCOMPARE(readSql(m_root + "copy of Hill/copy of Hill.proj", whole), QStringList(rows));
    rename(view, "Hill", "Dale");
    QVERIFY(m_answers->boxes.isEmpty());
    QVERIFY(!QFileInfo::exists(m_root + "Hill"));
    for (const char* file : {"Dale/Dale.proj", "Dale/Dale_flight.db"}) {
        QCOMPARE(readSql(m_root + file, whole), QStringList(rows));
        QCOMPARE(readSql(m_root + file, "PRAGMA integrity_check"), QStringList("ok"));
    }
}

void tst_ProjectOperations::renameWritesTheBookkeeping()
{
    const ProjectFixture fixture{"Hill"};
    const QString old = fixture.write(m_root);
    QVERIFY(runSql(old, {"UPDATE " + ProjectTableName + " SET version='41'"}));
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", "Dale");
    const QString file = m_root + "Dale/Dale.proj";
    QCOMPARE(readSql(file, "select project_name from " + ProjectTableName), QStringList{"Dale"});
    QCOMPARE(readSql(file, "select version from " + ProjectTableName), QStringList{"42"});
    QCOMPARE(readSql(file, "select id from " + ProjectTableName), QStringList{fixture.id});
    // The statement with the time lacks its quotes and fails.
    QCOMPARE(readSql(file, "select updated_at from " + ProjectTableName),
             QStringList{fixture.modified});
    rename(view, "Dale", "Vale");
    QCOMPARE(readSql(m_root + "Vale/Vale.proj", "select version from " + ProjectTableName),
             QStringList{"43"});
}

void tst_ProjectOperations::renameBlanks()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", "  Dale of A  ");
    QCOMPARE(content(m_root).keys(), QStringList({"  Dale of A", "  Dale of A/  Dale of A.proj"}));
    QCOMPARE(sortedNamesOf(view), QStringList{"  Dale of A"});
}

void tst_ProjectOperations::renameToNothing_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << " ";
    QTest::newRow("blanks") << "    ";
}

void tst_ProjectOperations::renameToNothing()
{
    QFETCH(QString, newName);
    const QString name = QString("Hill ").repeated(20).trimmed();
    ProjectFixture{name}.write(m_root);
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    Tile* tile = tileNamed(view, name);
    rename(view, name, newName);
    QCOMPARE(m_answers->boxes.size(), 1);
    const ShownBox& box = m_answers->boxes.first();
    QCOMPARE(box.title, QString("Rename Project"));
    QCOMPARE(box.text, QString("You must type a project name."));
    QVERIFY(box.isCancelHidden);
    QVERIFY(box.isModalWindow);
    QCOMPARE(tile->toolTip(), name);
    const CRkGraphicsProjectTextItem* caption = tile->GetTextItem();
    const QString elided = QFontMetricsF(caption->font()).elidedText(name, Qt::ElideRight, 140);
    QVERIFY(elided != name);
    QCOMPARE(caption->toPlainText(), elided);
    QCOMPARE(caption->GetPrjName(), elided);
    QCOMPARE(tile->GetProjectName(), name);
    QCOMPARE(renamed.count(), 0);
    QCOMPARE(content(m_root), before);
}

void tst_ProjectOperations::renameOntoAnotherProject()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(writeFile(CRkControl::GetInstance()->GetFlightMissionFilePath(file), "flights"));
    ProjectFixture{"Dale"}.write(m_root);
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    Tile* tile = tileNamed(view, "Hill");
    tile->GetTextItem()->SetPrjName("Dale"); // As the caption does before it sends its signal.
    rename(view, "Hill", "Dale");
    QCOMPARE(m_answers->boxes.size(), 1);
    const ShownBox& box = m_answers->boxes.first();
    QCOMPARE(box.title, QString("Rename Project"));
    QCOMPARE(box.text, inUseText);
    QVERIFY(box.isCancelHidden);
    QVERIFY(box.isModalWindow);
    QCOMPARE(renamed.count(), 0);
    QCOMPARE(content(m_root), before);
    QCOMPARE(tile->GetTextItem()->GetPrjName(), QString("Hill"));
    QCOMPARE(tile->GetTextItem()->toPlainText(), QString("Hill"));
    QVERIFY(tile->GetTextItem()->toolTip().startsWith("Name:Hill\n"));
}

void tst_ProjectOperations::renameOntoItself()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(writeFile(CRkControl::GetInstance()->GetFlightMissionFilePath(file), "flights"));
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", "Hill");
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().text, inUseText);
    QCOMPARE(content(m_root), before);
}

void tst_ProjectOperations::renameToAnotherCase()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(writeFile(CRkControl::GetInstance()->GetFlightMissionFilePath(file), "flights"));
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", "hill");
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(sortedNamesOf(view), QStringList{"hill"});
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList{"hill"});
    // Where case is ignored, a system may keep the letters that the file has.
    QStringList names = QDir(m_root + "hill").entryList(QDir::Files, QDir::Name);
    if (ignoresCase(m_root))
        names = names.join('/').toLower().split('/');
    QCOMPARE(names, QStringList({"hill.proj", "hill_flight.db"}));
    QCOMPARE(readSql(m_root + "hill/hill.proj", "select version from " + ProjectTableName),
             QStringList{"2"});
    QCOMPARE(readFile(m_root + "hill/hill_flight.db"), QByteArray("flights"));
}

void tst_ProjectOperations::renameOntoAnotherCase()
{
    ProjectFixture{"Hill"}.write(m_root);
    ProjectFixture{"Dale"}.write(m_root);
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    rename(view, "Dale", "HILL");
    if (ignoresCase(m_root)) {
        QCOMPARE(m_answers->boxes.size(), 1);
        QCOMPARE(m_answers->boxes.first().text, inUseText);
        QCOMPARE(content(m_root), before);
    } else {
        QVERIFY(m_answers->boxes.isEmpty());
        QCOMPARE(sortedNamesOf(view), QStringList({"HILL", "Hill"}));
    }
}

void tst_ProjectOperations::renameOfAnOpenFile()
{
    QFETCH(MakeHolder, hold);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const QString companion = CRkControl::GetInstance()->GetFlightMissionFilePath(file);
    QVERIFY(writeFile(companion, "flights"));
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    {
        const std::unique_ptr<Holder> holder = hold(file);
        QVERIFY(holder->isHolding());
        rename(view, "Hill", "Dale");
    }
    QCOMPARE(renamed.count(), isWindows ? 0 : 1);
    if (isWindows) {
        QCOMPARE(m_answers->boxes.size(), 1);
        QCOMPARE(m_answers->boxes.first().title, QString("Rename Project"));
        QCOMPARE(m_answers->boxes.first().text, inUseText);
        QCOMPARE(content(m_root), before);
        QCOMPARE(tileNamed(view, "Hill")->GetProjectFilePath(), file);
        rename(view, "Hill", "Dale"); // The file is closed now.
    }
    QCOMPARE(content(m_root).keys(),
             QStringList({"Dale", "Dale/Dale.proj", "Dale/Dale_flight.db"}));
    QCOMPARE(renamed.count(), 1);
}

void tst_ProjectOperations::renameOfAnOpenCompanion()
{
    QFETCH(MakeHolder, hold);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const QString companion = CRkControl::GetInstance()->GetFlightMissionFilePath(file);
    QVERIFY(runSql(companion, {"CREATE TABLE flights (id TEXT)"}));
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    {
        const std::unique_ptr<Holder> holder = hold(companion);
        QVERIFY(holder->isHolding());
        rename(view, "Hill", "Dale");
    }
    if (isWindows) {
        QCOMPARE(m_answers->boxes.size(), 1);
        QCOMPARE(m_answers->boxes.first().text, inUseText);
        QCOMPARE(content(m_root), before);
        QCOMPARE(tileNamed(view, "Hill")->GetProjectFilePath(), file);
        rename(view, "Hill", "Dale");
    }
    QCOMPARE(content(m_root).keys(),
             QStringList({"Dale", "Dale/Dale.proj", "Dale/Dale_flight.db"}));
}

void tst_ProjectOperations::renameWhenTheCompanionCannotMove_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("another stands there") << "Dale";
    QTest::newRow("too long for the companion alone") << QString(248, 'n');
}

void tst_ProjectOperations::renameWhenTheCompanionCannotMove()
{
    QFETCH(QString, newName);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    QVERIFY(writeFile(CRkControl::GetInstance()->GetFlightMissionFilePath(file), "flights"));
    QVERIFY(writeFile(m_root + "Dale/Dale_flight.db", "flights of a deleted project"));
    const auto before = content(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    Tile* tile = tileNamed(view, "Hill");
    tile->GetTextItem()->SetPrjName(newName); // As the caption does before it sends its signal.
    rename(view, "Hill", newName);
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().title, QString("Rename Project"));
    QCOMPARE(m_answers->boxes.first().text, inUseText);
    QCOMPARE(content(m_root), before);
    QCOMPARE(renamed.count(), 0);
    QCOMPARE(tile->GetProjectName(), QString("Hill"));
    QCOMPARE(tile->GetProjectFilePath(), file);
    QCOMPARE(tile->GetTextItem()->GetPrjName(), QString("Hill"));
}

void tst_ProjectOperations::renameThatCannotBeTakenBack()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const QByteArray project = readFile(file);
    QVERIFY(writeFile(CRkControl::GetInstance()->GetFlightMissionFilePath(file), "flights"));
    QVERIFY(writeFile(m_root + "Dale/Dale_flight.db", "flights of a deleted project"));
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    // While the user reads the message, another program takes the place of the project.
    bool isPlaceTaken = false;
    m_answers->beforeAnswer = [&] { isPlaceTaken = writeFile(file, "another program's"); };
    rename(view, "Hill", "Dale");
    QVERIFY(isPlaceTaken);
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(renamed.count(), 0);
    const QMap<QString, QByteArray> expected = {
        {"Dale", "folder"},
        {"Dale/Dale.proj", project},
        {"Dale/Dale_flight.db", "flights of a deleted project"},
        {"Hill", "folder"},
        {"Hill/Hill.proj", "another program's"},
        {"Hill/Hill_flight.db", "flights"},
    };
    QCOMPARE(content(m_root), expected);
}

void tst_ProjectOperations::renameOfATileThatIsGone()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const QByteArray project = readFile(file);
    CRkProjectManagerView view(nullptr);
    Tile* tile = tileNamed(view, "Hill");
    QVERIFY(select(view, "Hill"));
    view.slotDeleteProject();
    QVERIFY(writeFile(file, project)); // Another program puts it back before the tile is freed.
    emit tile->GetTextItem()->editFinished("Dale");
    QCOMPARE(m_answers->boxes.size(), 1); // The question before the deletion alone.
    QCOMPARE(content(m_root).keys(), QStringList({"Hill", "Hill/Hill.proj"}));
}

void tst_ProjectOperations::renameOfAMissingFile()
{
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(QFile::remove(file));
    rename(view, "Hill", "Dale");
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(content(m_root).keys(), QStringList{"Hill"});
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
    rename(view, "Hill", " ");
    QVERIFY2(m_answers->texts() == QStringList("You must type a project name."),
             "the name is looked at first");
}

void tst_ProjectOperations::renameOfAHiddenTile()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    Tile* tile = tileNamed(view, "Hill");
    view.slotFilterConditionChanged({}, {}, {}, "none");
    QVERIFY(!tile->scene());
    emit tile->GetTextItem()->editFinished("Dale");
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList{"Dale"});
}

void tst_ProjectOperations::renameWithoutASender()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QVERIFY(select(view, "Hill"));
    view.slotRenameProjectItem("Dale");
    view.slotRenameProjectItem(QString());
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
}

void tst_ProjectOperations::renameToOddNames_data()
{
    QTest::addColumn<QString>("newName");
    QTest::addColumn<bool>("succeeds");
    QTest::newRow("quote") << "O'Hara" << true;
    QTest::newRow("per cent") << "100%" << true;
    QTest::newRow("marker") << "Hill %1 %2" << true;
    QTest::newRow("emoji") << QString::fromUtf8("山丘 🛩") << true;
    QTest::newRow("dots") << "v1.2.final" << true;
    QTest::newRow("leading dot") << ".Hill" << true;
    QTest::newRow("tab alone") << "\t" << !isWindows;
    QTest::newRow("trailing dot") << "Dale." << !isWindows;
    QTest::newRow("blank and dot") << "Dale ." << !isWindows;
    QTest::newRow("dots alone") << "..." << !isWindows;
    QTest::newRow("double quote") << "\"Hill\"" << !isWindows;
    QTest::newRow("newline") << "Hill\nDale" << !isWindows;
    QTest::newRow("colon") << "Hill: Dale" << !isWindows;
    QTest::newRow("stream of a file") << "Hill.proj:Dale" << !isWindows;
    QTest::newRow("drive") << "C:" << !isWindows;
    QTest::newRow("path on a drive") << "C:\\Dale" << !isWindows;
    QTest::newRow("asterisk") << "*" << !isWindows;
    QTest::newRow("question mark") << "Hill?" << !isWindows;
    QTest::newRow("angle brackets") << "<Hill>" << !isWindows;
    QTest::newRow("bar") << "Hill|Dale" << !isWindows;
    QTest::newRow("backslash") << "Hill\\Dale" << !isWindows;
    for (const char* device : {"CON", "nul", "COM1", "Lpt9.txt", "aux.proj", "/NUL"})
        QTest::addRow("device %s", device) << QString(device) << !isWindows;
    QTest::newRow("markup") << "<b>Hill</b>" << false;
    QTest::newRow("slash") << "Hill/Dale" << false;
    QTest::newRow("leading slash") << "/Dale" << true;
    QTest::newRow("255 bytes") << QString(255, 'n') << false;
    QTest::newRow("longer than any path") << QString(5000, 'n') << false;
}

void tst_ProjectOperations::renameToOddNames()
{
    QFETCH(QString, newName);
    QFETCH(bool, succeeds);
    const QString file = ProjectFixture{"Hill"}.write(m_root);
    const auto before = content(m_home->path());
    CRkProjectManagerView view(nullptr);
    Tile* tile = tileNamed(view, "Hill");
    rename(view, "Hill", newName);
    QCOMPARE(m_answers->boxes.size(), succeeds ? 0 : 1);
    if (!succeeds) {
        QCOMPARE(m_answers->boxes.first().text, inUseText);
        QCOMPARE(content(m_home->path()), before);
        return;
    }
    QVERIFY(!QFileInfo::exists(file));
    const QString renamed = m_root + newName + '/' + newName + ".proj";
    QCOMPARE(tile->GetProjectFilePath(), renamed);
    QCOMPARE(tile->GetProjectName(), newName);
    const QString nameInRow = newName.contains('\'') ? QString("Hill") : newName;
    QCOMPARE(readSql(renamed, "select project_name from " + ProjectTableName),
             QStringList{nameInRow});
    QCOMPARE(readSql(renamed, "select count(*) from " + ProjectTableName), QStringList{"1"});
    QCOMPARE(readSql(renamed, "select version from " + ProjectTableName), QStringList{"2"});
    // What begins with a dot is hidden on some systems, also from the list.
    if (!newName.startsWith('.'))
        QCOMPARE(tilesOf(CRkProjectManagerView(nullptr)).size(), 1);
}

void tst_ProjectOperations::renameToANameThatIsAStatement()
{
    const ProjectFixture fixture{"Hill"};
    fixture.write(m_root);
    CRkProjectManagerView view(nullptr);
    const QString name = "x', user_id='nobody";
    rename(view, "Hill", name);
    const QString file = m_root + name + '/' + name + ".proj";
    QCOMPARE(tileNamed(view, name)->GetProjectFilePath(), file);
    QCOMPARE(readSql(file, "select user_id from " + ProjectTableName), QStringList{"user-1"});
    QCOMPARE(readSql(file, "select project_name from " + ProjectTableName), QStringList{"Hill"});
    QCOMPARE(readSql(file, "select version from " + ProjectTableName), QStringList{"2"});
}

void tst_ProjectOperations::renameToAPathThatCannotBeOpened()
{
    // The file can move there, but SQLite opens no path of more than 504 bytes.
    const QString old = ProjectFixture{"Hill"}.write(m_root);
    const QByteArray project = readFile(old);
    CRkProjectManagerView view(nullptr);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    const QString name = nameWithPathOf(506);
    QVERIFY(name.size() < 250);
    rename(view, "Hill", name);
    QCOMPARE(renamed.count(), 1);
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(readFile(m_root + name + '/' + name + ".proj"), project);
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList());
    rename(view, name, "Dale");
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList{"Dale"});
}

void tst_ProjectOperations::renameOutOfTheRoot_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("parent") << "..";
    QTest::newRow("root itself") << ".";
    QTest::newRow("sibling of the root") << "../outside";
    QTest::newRow("through a folder") << "a/../../outside";
    QTest::newRow("back to the root") << "a/..";
#ifdef Q_OS_WIN
    QTest::newRow("sibling of the root, backslash") << "..\\outside";
    QTest::newRow("through a folder, both separators") << "a\\../..\\outside";
    QTest::newRow("back to the root, backslash") << "a\\..";
#endif
}

void tst_ProjectOperations::renameOutOfTheRoot()
{
    QFETCH(QString, newName);
    ProjectFixture{"Hill"}.write(m_root);
    const auto before = content(m_home->path());
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", newName);
    QCOMPARE(m_answers->boxes.size(), 1);
    QCOMPARE(m_answers->boxes.first().text, inUseText);
    QCOMPARE(content(m_home->path()), before);
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
}

void tst_ProjectOperations::renameOutOfTheRootByTheFileAlone()
{
    // The folder of this name leads out of the root and back, and its file once more out of it.
    const QString rootName = QDir(m_root).dirName();
    const QString homeName = QDir(m_home->path()).dirName();
    QVERIFY(QDir(m_home->path()).mkpath(homeName + '/' + rootName));
    ProjectFixture{"Hill"}.write(m_root);
    const auto before = content(m_home->path());
    CRkProjectManagerView view(nullptr);
    rename(view, "Hill", "../../" + homeName + '/' + rootName + "/Dale");
    QCOMPARE(m_answers->texts(), QStringList{inUseText});
    QCOMPARE(content(m_home->path()), before);
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});
}

void tst_ProjectOperations::renameOnceOnly()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.show();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    CRkGraphicsProjectTextItem* caption = tileNamed(view, "Hill")->GetTextItem();
    QTRY_VERIFY(view.scene()->isActive());
    caption->setFocus();
    QTRY_VERIFY(caption->hasFocus());
    caption->setPlainText("Dale ");
    caption->clearFocus();
    QCOMPARE(renamed.count(), 1);
    QCOMPARE(sortedNamesOf(view), QStringList{"Dale"});
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::longPaths()
{
    QString root = m_root;
    while (root.size() < 300)
        root += QString(60, 'd') + '/';
    setEnvironment("RK_PROJECT_DIR", root);
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    QCOMPARE(sortedNamesOf(view), QStringList{"New Project"});
    QVERIFY(select(view, "New Project"));
    view.slotCopyProject();
    rename(view, "New Project", "Hill");
    QCOMPARE(sortedNamesOf(view), QStringList({"Hill", "copy of New Project"}));
    QVERIFY(m_answers->boxes.isEmpty());

    // The files can be read, and what has been written is in them.
    CRkProjectManagerView again(nullptr);
    QCOMPARE(sortedNamesOf(again), QStringList({"Hill", "copy of New Project"}));
    QVERIFY(select(again, "Hill"));
    again.slotDeleteProject();
    QVERIFY(!QFileInfo::exists(root + "Hill/Hill.proj"));
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList{"copy of New Project"});
}

void tst_ProjectOperations::rootInTheSystemsForm()
{
    setEnvironment("RK_PROJECT_DIR", QDir::toNativeSeparators(m_home->path() + "/projects"));
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    QVERIFY(select(view, "New Project"));
    QCOMPARE(tilesOf(view).first()->GetProjectFilePath(), m_root + "New Project/New Project.proj");
    rename(view, "New Project", "Hill");
    QVERIFY(select(view, "Hill"));
    view.slotCopyProject();
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(
        content(m_root).keys(),
        QStringList({"Hill", "Hill/Hill.proj", "copy of Hill", "copy of Hill/copy of Hill.proj"}));
}

void tst_ProjectOperations::rootOfADrive()
{
#ifndef Q_OS_WIN
    QSKIP("There are no drives"); // A root is the folder of a drive on Windows alone.
#else
    const wchar_t drive[] = L"R:";
    const std::wstring folder =
        QDir::toNativeSeparators(m_home->path() + "/projects").toStdWString();
    QVERIFY(DefineDosDeviceW(0, drive, folder.c_str()));
    const auto undefine =
        qScopeGuard([&] { DefineDosDeviceW(DDD_REMOVE_DEFINITION, drive, nullptr); });
    if (!QDir("R:/").mkdir("Hill")) // Wine takes the definition, and finds nothing there.
        QSKIP("This system takes no folder for a drive");
    QVERIFY(QDir("R:/").rmdir("Hill"));
    setEnvironment("RK_PROJECT_DIR", "R:\\");
    CRkProjectManagerView view(nullptr);
    view.slotNewProject();
    QVERIFY(select(view, "New Project"));
    QCOMPARE(tilesOf(view).first()->GetProjectFilePath(),
             QString("R:/New Project/New Project.proj"));
    view.slotCopyProject();
    rename(view, "New Project", "Hill");
    QVERIFY(m_answers->boxes.isEmpty());
    QCOMPARE(content(m_root).keys(),
             QStringList({"Hill", "Hill/Hill.proj", "copy of New Project",
                          "copy of New Project/copy of New Project.proj"}));
    rename(view, "Hill", "..\\Dale");
    rename(view, "Hill", ".");
    QCOMPARE(m_answers->boxes.size(), 2);
    QVERIFY(QFileInfo::exists(m_root + "Hill/Hill.proj"));
#endif
}

void tst_ProjectOperations::viewThatGoesDuringAMessage_data()
{
    QTest::addColumn<std::function<void(CRkProjectManagerView&)>>("action");
    QTest::addColumn<QStringList>("projects");
    using View = CRkProjectManagerView;
    const auto row = [](const char* name, const std::function<void(View&)>& action,
                        const QStringList& projects) { QTest::newRow(name) << action << projects; };
    row("copy nothing", [](View& view) { view.slotCopyProject(); }, {"Dale", "Hill"});
    row("delete nothing", [](View& view) { view.slotDeleteProject(); }, {"Dale", "Hill"});
    row("delete",
        [](View& view) {
            select(view, "Hill");
            view.slotDeleteProject();
        },
        {"Dale", "Hill"});
    row("rename to nothing", [](View& view) { rename(view, "Hill", " "); }, {"Dale", "Hill"});
    row("rename onto another", [](View& view) { rename(view, "Hill", "Dale"); }, {"Dale", "Hill"});
}

void tst_ProjectOperations::viewThatGoesDuringAMessage()
{
    QFETCH(std::function<void(CRkProjectManagerView&)>, action);
    ProjectFixture{"Hill"}.write(m_root);
    ProjectFixture{"Dale"}.write(m_root);
    auto view = std::make_unique<CRkProjectManagerView>(nullptr);
    m_answers->beforeAnswer = [&view] { view.reset(); };
    action(*view);
    QCOMPARE(m_answers->boxes.size(), 1);
    QVERIFY(!view);
    m_answers->beforeAnswer = nullptr;
    QTEST(sortedNamesOf(CRkProjectManagerView(nullptr)), "projects");
}

void tst_ProjectOperations::viewThatGoesWithACopy()
{
    ProjectFixture{"Hill"}.write(m_root);
    auto view = std::make_unique<CRkProjectManagerView>(nullptr);
    connect(view.get(), &CRkProjectManagerView::projectCopied, this, [&view] { view.reset(); });
    QVERIFY(select(*view, "Hill"));
    view->slotCopyProject();
    QVERIFY(!view);
    QCOMPARE(sortedNamesOf(CRkProjectManagerView(nullptr)), QStringList({"Hill", "copy of Hill"}));
}

void tst_ProjectOperations::programThatEndsDuringAMessage()
{
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {endOption});
    QVERIFY2(program.waitForFinished(), "it does not end");
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

void tst_ProjectOperations::tileThatGoesDuringAMessage_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("rename to nothing") << " ";
    QTest::newRow("rename onto another") << "Dale";
}

void tst_ProjectOperations::tileThatGoesDuringAMessage()
{
    QFETCH(QString, newName);
    ProjectFixture{"Hill"}.write(m_root);
    ProjectFixture{"Dale"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.show();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    QTRY_VERIFY(view.scene()->isActive());
    QVERIFY(select(view, "Hill"));
    const QPointer<Tile> tile = tileNamed(view, "Hill");
    tile->GetTextItem()->setFocus();
    QTRY_VERIFY(tile->GetTextItem()->hasFocus());
    tile->GetTextItem()->setPlainText(newName);
    // The host deletes the project while the user reads the message.
    m_answers->beforeAnswer = [&] {
        m_answers->beforeAnswer = nullptr;
        view.slotDeleteProject();
        QCoreApplication::sendPostedEvents(tile, QEvent::DeferredDelete);
    };
    QTest::keyClick(view.viewport(), Qt::Key_Return);
    QCOMPARE(m_answers->boxes.size(), 2);
    QVERIFY(!tile);
    QCOMPARE(sortedNamesOf(view), QStringList{"Dale"});
}

void tst_ProjectOperations::openSelected()
{
    const QString file = ProjectFixture{"Hill.v2"}.write(m_root);
    ProjectFixture{"Dale"}.write(m_root);
    QVERIFY(runSql(file, {"UPDATE " + ProjectTableName + " SET project_name='shown'"}));
    CRkProjectManagerView view(nullptr);
    QStringList events;
    connect(&view, &CRkProjectManagerView::projectOpened, this, [&](const QString& path) {
        events.append(path);
        events.append(view.GetProjectName()); // The name is there before the signal.
    });
    QVERIFY(select(view, "shown"));
    view.slotOpenProject();
    QCOMPARE(events, QStringList({file, "Hill.v2"}));
}

void tst_ProjectOperations::openWithoutSelection()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy opened(&view, &CRkProjectManagerView::projectOpened);
    view.slotOpenProject();
    QCOMPARE(opened.count(), 0);
    QCOMPARE(view.GetProjectName(), QString());
    QVERIFY(m_answers->boxes.isEmpty());
}

void tst_ProjectOperations::removedRoot()
{
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    QSignalSpy copied(&view, &CRkProjectManagerView::projectCopied);
    QSignalSpy renamed(&view, &CRkProjectManagerView::projectRenamed);
    QVERIFY(select(view, "Hill"));
    QVERIFY(QDir(m_root).removeRecursively());

    rename(view, "Hill", "Dale");
    QVERIFY(m_answers->boxes.isEmpty());
    view.slotCopyProject();
    QVERIFY(m_answers->boxes.isEmpty());
    view.slotDeleteProject();
    QCOMPARE(m_answers->boxes.size(), 2);
    QCOMPARE(m_answers->boxes.last().title, QString("File In Use"));
    QCOMPARE(renamed.count() + copied.count(), 0);
    QCOMPARE(content(m_root).keys(), QStringList());
    QCOMPARE(sortedNamesOf(view), QStringList{"Hill"});

    view.slotNewProject();
    QCOMPARE(sortedNamesOf(view), QStringList({"Hill", "New Project"}));
    QVERIFY(QFileInfo::exists(m_root + "New Project/New Project.proj"));
}

void tst_ProjectOperations::messagesAreTranslated()
{
    Brackets brackets("CRkProjectManagerView");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    ProjectFixture{"Hill"}.write(m_root);
    CRkProjectManagerView view(nullptr);
    view.slotCopyProject();
    view.slotDeleteProject();
    rename(view, "Hill", " ");
    rename(view, "Hill", "Hill");
    QVERIFY(select(view, "Hill"));
    m_answers->button = "m_pBtnCancel";
    view.slotDeleteProject();
    QStringList texts;
    for (const ShownBox& box : m_answers->boxes)
        texts.append(box.title + ' ' + box.text);
    QCOMPARE(texts,
             QStringList({"[Copy Project] [Please select a project to copy.]",
                          "[Delete Project] [Please select a project to delete.]",
                          "[Rename Project] [You must type a project name.]",
                          "[Rename Project] [" + inUseText + "]",
                          "[Delete Project] [confirm delete \"]Hill[\"?]"}));
    view.slotCopyProject();
    QCOMPARE(sortedNamesOf(view), QStringList({"Hill", "[copy of ]Hill"}));
    view.slotNewProject();
    QVERIFY(select(view, "[New Project]"));
    m_answers->button = "m_pBtnOK";
    QVERIFY(QDir(m_root + "[New Project]").removeRecursively());
    view.slotDeleteProject();
    QCOMPARE(m_answers->boxes.last().title, QString("[File In Use]"));
    QCOMPARE(m_answers->boxes.last().text,
             QString("[The action can't be completed because the file is open in other "
                     "application.Close the file and try again.]"));
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QLatin1String(holdOption))
        return holdFile(arguments.value(2));
    if (arguments.value(1) == QLatin1String(endOption))
        return endDuringAMessage();
    QTEST_SET_MAIN_SOURCE_PATH
    tst_ProjectOperations test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ProjectOperations.moc"
