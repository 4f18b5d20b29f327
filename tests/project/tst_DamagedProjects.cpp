// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProjectManagerView.h>

#include "ProjectFixture.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>
#include <QtTest>

#include <sys/stat.h>
#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <unistd.h>
#endif

#include <atomic>
#include <cstdio>
#include <memory>

namespace {

std::atomic<int> messages = 0;
void countMessage(QtMsgType, const QMessageLogContext&, const QString&)
{
    ++messages;
}

QSet<QString> listedFiles(const CRkProjectManagerView& view)
{
    QSet<QString> files;
    const QList<QGraphicsItem*> items = view.scene()->items();
    for (const QGraphicsItem* item : items) {
        if (const auto* tile = dynamic_cast<const CRkGraphicsProjectRectItem*>(item))
            files.insert(tile->GetProjectFilePath());
    }
    return files;
}

/// Calls it as somebody who may not do everything, where the tests are run by one who may.
template <typename Function>
void withoutPrivileges(Function function)
{
#ifdef Q_OS_UNIX
    const bool isSuperuser = geteuid() == 0;
    if (isSuperuser)
        QCOMPARE(seteuid(65534), 0);
    function();
    if (isSuperuser)
        QCOMPARE(seteuid(0), 0);
#else
    function();
#endif
}

/// Every path below a folder with its kind and content.
QMap<QString, QByteArray> contentOf(const QString& folder)
{
    QMap<QString, QByteArray> content;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        content[entry.filePath()] = entry.isDir()
            ? QByteArray("folder")
            : QCryptographicHash::hash(readFile(entry.filePath()), QCryptographicHash::Sha256);
    }
    return content;
}

} // namespace

class tst_DamagedProjects : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void truncated();
    void flippedBytes();
    void emptyFile();
    void folderWithTheNameOfAFile();
    void danglingLink();
    void linkToItself();
    void unreadable();
    void onlyReadable();
    void withoutColumns_data();
    void withoutColumns();
    void textForNumbers();
    void nullEverywhere();
    void blobsForTexts();
    void endlessName();
    void identifierThatIsAStatement();
    void largeImageData_data();
    void largeImageData();
    void hugeValueFromALittleFile();
    void viewForATable_data();
    void viewForATable();
    void viewForTheAreas();
    void virtualTable();
    void otherViewsAndColumns();
    void triggers();
    void thousandsOfOutlines();
    void writeAheadLogMark();
    void journalOfAnotherProgram();

private:
    QString root() const { return m_home->projectRoot(); }
    QString project(const QString& name) const;
    QString fileNamed(const QString& name) const { return root() + name + '/' + name + ".proj"; }

    /// Lists the folder and verifies that nothing is printed and nothing changed.
    QSet<QString> list() const;

    std::unique_ptr<TestHome> m_home;
};

void tst_DamagedProjects::init()
{
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    QVERIFY(!project("sound").isEmpty());
}

QString tst_DamagedProjects::project(const QString& name) const
{
    ProjectFixture fixture{name};
    fixture.imageData = thumbnailText(Qt::darkGreen, {120, 90}, "png");
    fixture.outlines = QStringList{squareAround(30.66, 104.07), squareAround(24.48, 118.10)};
    return fixture.write(root());
}

QSet<QString> tst_DamagedProjects::list() const
{
    const QMap<QString, QByteArray> before = contentOf(root());
    QTemporaryFile printed;
    printed.open();
    const int errors = dup(STDERR_FILENO);
    fflush(stderr);
    dup2(printed.handle(), STDERR_FILENO);
    messages = 0;
    const QtMessageHandler handler = qInstallMessageHandler(countMessage);

    QSet<QString> files = listedFiles(CRkProjectManagerView(nullptr));

    qInstallMessageHandler(handler);
    fflush(stderr);
    dup2(errors, STDERR_FILENO);
    close(errors);
    printed.seek(0);
    if (messages != 0 || !printed.readAll().isEmpty())
        files.insert("something was printed");
    if (contentOf(root()) != before)
        files.insert("something was changed");
    return files;
}

void tst_DamagedProjects::truncated()
{
    const QByteArray whole = readFile(fileNamed("sound"));
    QVERIFY(whole.size() > 400);
    for (int i = 0; i < 200; ++i) {
        const int size = int(qint64(whole.size()) * i / 200);
        QVERIFY(writeFile(fileNamed(QString("cut %1").arg(i)), whole.left(size)));
    }
    const QSet<QString> listed = list();
    QVERIFY(listed.contains(fileNamed("sound")));
    for (const QString& file : listed) {
        // A file may have lost only what its project's row does not need.
        QVERIFY2(!readSql(file, "select * from " + ProjectTableName).isEmpty(), qPrintable(file));
    }
    for (const char* name : {"cut 0", "cut 1", "cut 20"})
        QVERIFY(!listed.contains(fileNamed(name)));
}

void tst_DamagedProjects::flippedBytes()
{
    const QByteArray whole = readFile(fileNamed("sound"));
    QRandomGenerator random(20261121);
    for (int i = 0; i < 2000; ++i) {
        QByteArray damaged = whole;
        // Few flips leave the pages in order, many reach the header and the schema.
        for (int flips = 1 << random.bounded(9); flips > 0; --flips)
            damaged[random.bounded(damaged.size())] = char(random.bounded(256));
        QVERIFY(writeFile(fileNamed(QString("flip %1").arg(i)), damaged));
    }
    for (const char* name : {"another", "one more"})
        QVERIFY(!project(name).isEmpty());

    const QSet<QString> listed = list();
    for (const char* name : {"sound", "another", "one more"})
        QVERIFY(listed.contains(fileNamed(name)));
    QVERIFY2(!listed.contains("something was printed"), "nothing is printed");
    QVERIFY2(!listed.contains("something was changed"), "nothing is changed");

    // What an independent reader finds whole must be there, and what it finds nothing in must not.
    const QString row = "select count(*) from " + ProjectTableName + " where user_id='user-1'";
    int soundCopies = 0;
    for (int i = 0; i < 2000; ++i) {
        const QString file = fileNamed(QString("flip %1").arg(i));
        const bool hasRow = readSql(file, row).value(0).toInt() > 0;
        const bool isWhole = hasRow && readSql(file, "pragma integrity_check") == QStringList("ok")
            && readSql(file, "select sql from sqlite_master")
                == readSql(fileNamed("sound"), "select sql from sqlite_master");
        if (isWhole)
            QVERIFY2(listed.contains(file), qPrintable(file));
        if (!hasRow)
            QVERIFY2(!listed.contains(file), qPrintable(file));
        soundCopies += isWhole ? 1 : 0;
    }
    QVERIFY(soundCopies > 0 && soundCopies < 1500);
}

void tst_DamagedProjects::emptyFile()
{
    QVERIFY(writeFile(fileNamed("empty"), QByteArray()));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
    QCOMPARE(QFileInfo(fileNamed("empty")).size(), 0);
}

void tst_DamagedProjects::folderWithTheNameOfAFile()
{
    QVERIFY(QDir().mkpath(fileNamed("folder")));
    QVERIFY(QDir().mkpath(root() + "x.proj"));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::danglingLink()
{
    QVERIFY(QDir().mkpath(root() + "link"));
    QVERIFY(QFile::link(root() + "link/target", fileNamed("link")));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
    QVERIFY(!QFileInfo::exists(root() + "link/target"));
}

void tst_DamagedProjects::linkToItself()
{
    QVERIFY(QDir().mkpath(root() + "loop"));
    QVERIFY(QFile::link(fileNamed("loop"), fileNamed("loop")));
    QVERIFY(QFile::link(root(), root() + "root"));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::unreadable()
{
    QVERIFY(!project("secret").isEmpty());
#ifdef Q_OS_WIN
    // Somebody has it for himself.
    const std::wstring path = QDir::toNativeSeparators(fileNamed("secret")).toStdWString();
    const HANDLE owner =
        CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    QVERIFY(owner != INVALID_HANDLE_VALUE);
#else
    QCOMPARE(chmod(QFile::encodeName(fileNamed("secret")).constData(), 0), 0);
#endif
    for (const QString& folder : {m_home->path(), m_home->path() + "/config"})
        chmod(QFile::encodeName(folder).constData(), 0755);
    bool isReadable = true;
    QSet<QString> listed;
    withoutPrivileges([&] {
        isReadable = QFile(fileNamed("secret")).open(QIODevice::ReadOnly);
        listed = listedFiles(CRkProjectManagerView(nullptr));
    });
    QVERIFY(!isReadable);
    QCOMPARE(listed, QSet<QString>({fileNamed("sound")}));
#ifdef Q_OS_WIN
    CloseHandle(owner);
#else
    QCOMPARE(chmod(QFile::encodeName(fileNamed("secret")).constData(), 0644), 0);
#endif
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), fileNamed("secret")}));
}

void tst_DamagedProjects::onlyReadable()
{
    QVERIFY(!project("locked").isEmpty());
    QCOMPARE(chmod(QFile::encodeName(fileNamed("locked")).constData(), 0444), 0);
    QCOMPARE(chmod(QFile::encodeName(root() + "locked").constData(), 0555), 0);
    const QSet<QString> listed = list();
    chmod(QFile::encodeName(root() + "locked").constData(), 0755);
    QCOMPARE(listed, QSet<QString>({fileNamed("sound"), fileNamed("locked")}));
}

void tst_DamagedProjects::withoutColumns_data()
{
    QTest::addColumn<QString>("columns");
    const QStringList all = {"project_name",     "updated_at", "id",
                             "software_version", "image_data", "user_id"};
    for (const QString& missing : all) {
        QStringList columns = all;
        columns.removeAll(missing);
        QTest::newRow(qPrintable("without " + missing)) << columns.join(',');
    }
    QTest::newRow("none of them") << "a,b";
}

void tst_DamagedProjects::withoutColumns()
{
    QFETCH(QString, columns);
    QString values = columns;
    values.replace("user_id", "'user-1'")
        .replace(QRegularExpression("\\b[a-z_]+\\b(?!-|')"), "'x'");
    QVERIFY2(runSql(fileNamed("less"),
                    {"CREATE TABLE " + ProjectTableName + " (" + columns + ")",
                     "INSERT INTO " + ProjectTableName + " VALUES (" + values + ")"}),
             qPrintable(values));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::textForNumbers()
{
    // Nothing of this is read for the tile, so that the project is as sound as before.
    const QString file = project("words");
    QVERIFY(
        runSql(file,
               {"UPDATE " + ProjectTableName
                    + " SET version='many', map_scale='large', center_position_lat='north',"
                      " updated_at='yesterday'",
                "UPDATE " + SurveyAreaTableName
                    + " SET block_type='wide', survey_area_coordinate_points='north,east;a;1,b'"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::nullEverywhere()
{
    const QString file = project("null");
    QVERIFY(runSql(file,
                   {"UPDATE " + ProjectTableName
                        + " SET project_name=NULL, id=NULL, updated_at=NULL, software_version=NULL,"
                          " image_data=NULL",
                    "UPDATE " + SurveyAreaTableName
                        + " SET project_id='', survey_area_coordinate_points=NULL"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::blobsForTexts()
{
    const QString file = project("blobs");
    QVERIFY(runSql(
        file,
        {"UPDATE " + ProjectTableName
             + " SET project_name=x'ff00fe', updated_at=x'00', software_version=zeroblob(9),"
               " image_data=CAST(image_data AS BLOB)",
         "UPDATE " + SurveyAreaTableName + " SET survey_area_coordinate_points=randomblob(5000)"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::endlessName()
{
    const QString file = project("name");
    QVERIFY(runSql(file,
                   {"UPDATE " + ProjectTableName
                    + " SET project_name=replace(hex(zeroblob(5000000)), '00', 'wW ')"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
    QVERIFY(!CRkProjectManagerView(nullptr).grab().isNull());
}

void tst_DamagedProjects::identifierThatIsAStatement()
{
    // Taken as it is, it would give outlines without end.
    ProjectFixture fixture{"statement"};
    fixture.id = "'' UNION ALL SELECT i FROM (WITH RECURSIVE n(i) AS"
                 " (VALUES(1) UNION ALL SELECT i+1 FROM n) SELECT i FROM n) --";
    const QString file = fixture.write(root());
    QVERIFY(readSql(file, "select id from " + ProjectTableName).value(0).startsWith("' UNION"));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::largeImageData_data()
{
    QTest::addColumn<QByteArray>("imageData");
    QTest::addColumn<bool>("isDefault");
    constexpr int size = 10 * 1024 * 1024;
    QTest::newRow("no picture") << QByteArray(size, 'A') << true;
    QTest::newRow("no base64") << QByteArray(size, '?') << true;
    QByteArray picture = thumbnailText(Qt::darkGreen, {120, 90}, "png");
    while (picture.endsWith('='))
        picture.chop(1);
    QTest::newRow("a picture and then nothing") << picture + QByteArray(size, 'A') << false;
    QTest::newRow("40 MB") << picture + QByteArray(4 * size, 'A') << true;
}

void tst_DamagedProjects::largeImageData()
{
    QFETCH(QByteArray, imageData);
    QFETCH(bool, isDefault);
    ProjectFixture fixture{"large"};
    fixture.imageData = imageData;
    const QString file = fixture.write(root());
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));

    QVERIFY(QFile::remove(fileNamed("sound")));
    const CRkProjectManagerView view(nullptr);
    const auto* tile =
        dynamic_cast<CRkGraphicsProjectRectItem*>(view.scene()->items(Qt::AscendingOrder)[0]);
    QVERIFY(tile);
    const QImage standard = QPixmap(":/images/Normal/Thumbnails.png").toImage();
    QCOMPARE(tile->GetImageItem()->pixmap().toImage() == standard, isDefault);
}

void tst_DamagedProjects::hugeValueFromALittleFile()
{
    // A generated column can be far larger than the file that describes it.
    QVERIFY(runSql(fileNamed("bomb"),
                   {"CREATE TABLE " + ProjectTableName
                        + " (project_name, updated_at, id, software_version, user_id,"
                          " image_data AS (hex(zeroblob(400000000))))",
                    "INSERT INTO " + ProjectTableName
                        + " (project_name, user_id) VALUES ('bomb', 'user-1')"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::viewForATable_data()
{
    QTest::addColumn<QString>("query");
    const QString columns =
        "'v' project_name, '' updated_at, '' id, '' software_version, '' image_data, ";
    QTest::newRow("endless")
        << "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n) SELECT " + columns
            + "CAST(i AS TEXT) user_id FROM n";
    QTest::newRow("of itself") << "SELECT * FROM " + ProjectTableName;
    QTest::newRow("endless, of a user")
        << "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n) SELECT " + columns
            + "'user-1' user_id FROM n";
    QTest::newRow("of a pragma") << "SELECT " + columns
            + "name user_id FROM pragma_table_info('x')";
}

void tst_DamagedProjects::viewForATable()
{
    QFETCH(QString, query);
    QVERIFY(runSql(fileNamed("view"), {"CREATE VIEW " + ProjectTableName + " AS " + query}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::viewForTheAreas()
{
    const QString file = project("areas");
    QVERIFY(
        runSql(file,
               {"DROP TABLE " + SurveyAreaTableName,
                "CREATE VIEW " + SurveyAreaTableName.toUpper()
                    + " AS WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n)"
                      " SELECT 'id-of-areas' project_id, i survey_area_coordinate_points FROM n"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::virtualTable()
{
    const QString create = "CREATE VIRTUAL TABLE " + ProjectTableName
        + " USING fts5(project_name, updated_at, id, software_version, image_data, user_id)";
    const bool isWorking = runSql(
        fileNamed("virtual"),
        {create,
         "INSERT INTO " + ProjectTableName + " (project_name, user_id) VALUES ('v', 'user-1')"});
    // Not every build of SQLite has the module.
    QVERIFY(isWorking
            || runSql(fileNamed("virtual"),
                      {"PRAGMA writable_schema=ON",
                       "INSERT INTO sqlite_master VALUES ('table', '" + ProjectTableName + "', '"
                           + ProjectTableName + "', 0, '" + create + "')"}));
    QVERIFY(QFileInfo(fileNamed("virtual")).size() > 0);
    QCOMPARE(list(), QSet<QString>({fileNamed("sound")}));
}

void tst_DamagedProjects::otherViewsAndColumns()
{
    const QString file = project("views");
    QVERIFY(runSql(file,
                   {"CREATE VIEW names AS SELECT project_name FROM " + ProjectTableName,
                    "ALTER TABLE " + ProjectTableName + " ADD COLUMN remark"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::triggers()
{
    const QString file = project("triggers");
    QVERIFY(runSql(file,
                   {"CREATE TRIGGER t AFTER UPDATE ON " + ProjectTableName + " BEGIN DELETE FROM "
                    + ProjectTableName + "; END"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::thousandsOfOutlines()
{
    const QString file = project("many");
    QVERIFY(runSql(
        file,
        {"INSERT INTO " + SurveyAreaTableName
         + " (project_id, survey_area_coordinate_points)"
           " WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n LIMIT 20000)"
           " SELECT 'id-of-many', printf('%f,%f;%f,100;30,%f', 20+i%30, 80+i%50, i, i) FROM n"}));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), file}));
}

void tst_DamagedProjects::writeAheadLogMark()
{
    // Bytes 18 and 19 say how the file is written; a listing must not act on them for ever.
    QByteArray content = readFile(fileNamed("sound"));
    content[18] = 2;
    content[19] = 2;
    QVERIFY(writeFile(fileNamed("log"), content));
    QCOMPARE(list(), QSet<QString>({fileNamed("sound"), fileNamed("log")}));
    QCOMPARE(readFile(fileNamed("log")), content);
}

void tst_DamagedProjects::journalOfAnotherProgram()
{
    // SQLite clears away what is no journal of the file, and takes nothing from it.
    QVERIFY(writeFile(fileNamed("sound") + "-journal", QByteArray(4096, 'j')));
    const QByteArray content = readFile(fileNamed("sound"));
    const CRkProjectManagerView view(nullptr);
    QCOMPARE(listedFiles(view), QSet<QString>({fileNamed("sound")}));
    QCOMPARE(readFile(fileNamed("sound")), content);
}

QTEST_MAIN(tst_DamagedProjects)
#include "tst_DamagedProjects.moc"
