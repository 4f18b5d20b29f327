// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkData/CRkDataBase.h>

#include <QSqlRecord>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace {

QStringList messages;

void collectMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    messages.append(text);
}

/// Keeps what Qt prints while it lives.
class MessageCollector
{
public:
    MessageCollector()
        : m_previous(qInstallMessageHandler(collectMessage))
    {
        messages.clear();
    }
    ~MessageCollector() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(MessageCollector)

private:
    QtMessageHandler m_previous;
};

QStringList column(QSqlQuery query)
{
    QStringList values;
    while (query.next())
        values.append(query.value(0).toString());
    return values;
}

/// Whether this process has no handle of the file.
bool isReleased(const QString& file)
{
#ifdef Q_OS_WIN
    // As long as there is one, the file cannot be moved.
    const QString moved = file + QStringLiteral(".moved");
    return QFile::rename(file, moved) && QFile::rename(moved, file);
#else
    const QFileInfoList handles =
        QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System);
    return std::none_of(handles.begin(), handles.end(), [&file](const QFileInfo& handle) {
        return handle.symLinkTarget().startsWith(file);
    });
#endif
}

} // namespace

class tst_CRkDataBase : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void bindingTouchesNothing();
    void openMakesAMissingFile();
    void openOfAnOpenObject();
    void openFails_data();
    void openFails();
    void openAgainAfterClose();
    void openOfALongPath();

    void queryStandsBeforeTheFirstRow();
    void writesReachTheFile();
    void failingStatements_data();
    void failingStatements();
    void severalStatementsRunNone();
    void statementsWithoutOpen();
    void defaultConnectionStaysOut();
    void nestedQueries();
    void severalObjectsOnOneFile();
    void lockedFileIsNotWaitedForLong();
    void openedDefensively();

    void closeReleasesTheFile();
    void destructorReleasesTheFile();
    void noConnectionIsLeft();
    void fileIsRemovedAndReplaced();

    void readingLeavesTheFile_data();
    void readingLeavesTheFile();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<MessageCollector> m_collector;
    QString m_file;
};

void tst_CRkDataBase::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_file = m_dir->filePath(QStringLiteral("\u9879\u76ee a'b.proj"));
    QVERIFY(runSql(
        m_file,
        {"CREATE TABLE t (n INTEGER, s TEXT)", "INSERT INTO t VALUES (1,'a'),(2,'b'),(3,'c')"}));
    m_collector = std::make_unique<MessageCollector>();
}

void tst_CRkDataBase::cleanup()
{
    m_collector.reset();
    QCOMPARE(messages, QStringList());
}

void tst_CRkDataBase::bindingTouchesNothing()
{
    const QString missing = m_dir->filePath("missing.proj");
    {
        CRkDataBase database(missing);
        database.close();
    }
    QVERIFY(!QFile::exists(missing));
}

void tst_CRkDataBase::openMakesAMissingFile()
{
    const QString missing = m_dir->filePath("missing.proj");
    CRkDataBase database(missing);
    QVERIFY(database.open());
    QVERIFY(QFile::exists(missing));
    database.exec("CREATE TABLE u (n INTEGER)");
    database.exec("INSERT INTO u VALUES (7)");
    QCOMPARE(column(database.exec("select n from u")), QStringList("7"));
}

void tst_CRkDataBase::openOfAnOpenObject()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QSqlQuery rows = database.exec("select n from t");
    QVERIFY(rows.next());
    QVERIFY(database.open());
    QVERIFY(rows.next());
}

void tst_CRkDataBase::openFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such folder") << "none/x.proj";
    QTest::newRow("a folder") << "folder.proj";
    QTest::newRow("a file on the way") << "file/x.proj";
#ifndef Q_OS_WIN // Its links are files for themselves.
    QTest::newRow("dangling link into no folder") << "link.proj";
#endif
}

void tst_CRkDataBase::openFails()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_dir->path()).mkdir("folder.proj"));
    QVERIFY(writeFile(m_dir->filePath("file"), "text"));
    QVERIFY(QFile::link(m_dir->filePath("none/y.proj"), m_dir->filePath("link.proj")));
    CRkDataBase database(m_dir->filePath(name));
    QVERIFY(!database.open());
    QVERIFY(!database.exec("select 1").next());
    QVERIFY(!QFile::exists(m_dir->filePath("none")));
    QVERIFY(!CRkDataBase(QString()).open());
}

void tst_CRkDataBase::openAgainAfterClose()
{
    CRkDataBase database(m_file);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(database.open());
        QCOMPARE(column(database.exec("select s from t where n=2")), QStringList("b"));
        database.close();
        database.close();
    }
}

void tst_CRkDataBase::openOfALongPath()
{
    QString folder = m_dir->path();
    while (folder.size() < 300)
        folder += '/' + QString(60, 'd');
    const QString file = folder + "/x.proj";
    CRkDataBase missing(file);
    QVERIFY(!missing.open());
    QVERIFY(QDir().mkpath(folder));
    CRkDataBase database(file);
    QVERIFY(database.open());
    database.exec("CREATE TABLE t (n INTEGER)");
    database.exec("INSERT INTO t VALUES (7)");
    database.close();
    QVERIFY(QFileInfo(file).size() > 0);
    QVERIFY(database.open());
    QCOMPARE(column(database.exec("select n from t")), QStringList("7"));
}

void tst_CRkDataBase::queryStandsBeforeTheFirstRow()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QSqlQuery rows = database.exec("select n, s from t order by n;");
    QCOMPARE(rows.at(), int(QSql::BeforeFirstRow));
    QCOMPARE(rows.record().indexOf("s"), 1);
    QVERIFY(rows.next());
    QCOMPARE(rows.value(0).toInt(), 1);
    QCOMPARE(rows.value("s").toString(), QString("a"));
    QVERIFY(rows.next());
    QVERIFY(rows.next());
    QVERIFY(!rows.next());
    QVERIFY(!rows.next());
    QVERIFY(!database.exec("select n from t where n>3").next());
}

void tst_CRkDataBase::writesReachTheFile()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QCOMPARE(database.exec("UPDATE t SET s='z' WHERE n>1").numRowsAffected(), 2);
    QCOMPARE(readSql(m_file, "select s from t order by n"), QStringList({"a", "z", "z"}));
}

void tst_CRkDataBase::failingStatements_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("no text") << QString();
    QTest::newRow("blanks") << QStringLiteral("  \n ");
    QTest::newRow("semicolon") << QStringLiteral(";");
    QTest::newRow("not SQL") << QStringLiteral("give me rows");
    QTest::newRow("cut off") << QStringLiteral("select n from t where s='a");
    QTest::newRow("no such table") << QStringLiteral("select * from u");
    QTest::newRow("no such column") << QStringLiteral("select m from t");
    QTest::newRow("unquoted time") << QStringLiteral("UPDATE t SET s=2026-01-02 03:04:05");
    QTest::newRow("parameter without a value") << QStringLiteral("select n from t where n=?");
    QTest::newRow("error while it runs") << QStringLiteral("select abs(-9223372036854775807 - 1)");
    QTest::newRow("no such file to attach") << QStringLiteral("ATTACH '/no/such/folder/x.db' AS x");
}

void tst_CRkDataBase::failingStatements()
{
    QFETCH(QString, sql);
    const QByteArray before = readFile(m_file);
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QSqlQuery query = database.exec(sql);
    QVERIFY(!query.next());
    QVERIFY(!query.isActive());
    QCOMPARE(column(database.exec("select s from t")),
             QStringList({"a", "b", "c"})); // It works on.
    database.close();
    QCOMPARE(readFile(m_file), before);
}

void tst_CRkDataBase::severalStatementsRunNone()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QVERIFY(!database.exec("select n from t; DELETE FROM t").next());
    QVERIFY(!database.exec("DELETE FROM t; DROP TABLE t").next());
    QCOMPARE(column(database.exec("select count(*) from t")), QStringList("3"));
}

void tst_CRkDataBase::statementsWithoutOpen()
{
    CRkDataBase database(m_file);
    QVERIFY(!database.exec("select n from t").next());
    QVERIFY(database.open());
    database.close();
    QVERIFY(!database.exec("select n from t").next());
    database.exec("DELETE FROM t");
    QCOMPARE(readSql(m_file, "select count(*) from t"), QStringList("3"));
}

void tst_CRkDataBase::defaultConnectionStaysOut()
{
    {
        QSqlDatabase host = QSqlDatabase::addDatabase("QSQLITE");
        host.setDatabaseName(m_file);
        QVERIFY(host.open());
        CRkDataBase database(m_file);
        QSqlQuery query = database.exec("select n from t");
        QVERIFY(!query.next());
        QVERIFY(!query.driver() || query.driver() != host.driver());
    }
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

void tst_CRkDataBase::nestedQueries()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QStringList pairs;
    QSqlQuery outer = database.exec("select n from t order by n");
    while (outer.next()) {
        QSqlQuery inner =
            database.exec("select s from t where n<=" + outer.value(0).toString() + " order by n");
        while (inner.next())
            pairs.append(outer.value(0).toString() + inner.value(0).toString());
    }
    QCOMPARE(pairs, QStringList({"1a", "2a", "2b", "3a", "3b", "3c"}));
}

void tst_CRkDataBase::severalObjectsOnOneFile()
{
    CRkDataBase first(m_file);
    CRkDataBase second(m_file);
    QVERIFY(first.open());
    QVERIFY(second.open());
    first.exec("INSERT INTO t VALUES (4,'d')");
    QCOMPARE(column(second.exec("select count(*) from t")), QStringList("4"));
    first.close();
    QCOMPARE(column(second.exec("select s from t where n=4")), QStringList("d"));
}

void tst_CRkDataBase::lockedFileIsNotWaitedForLong()
{
    CRkDataBase owner(m_file);
    CRkDataBase other(m_file);
    QVERIFY(owner.open());
    QVERIFY(other.open());
    owner.exec("BEGIN EXCLUSIVE");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!other.exec("select n from t").next());
    QVERIFY(timer.elapsed() < 3000);
    owner.exec("COMMIT");
    QVERIFY(other.exec("select n from t").next());
}

void tst_CRkDataBase::openedDefensively()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QCOMPARE(column(database.exec("PRAGMA trusted_schema")), QStringList("0"));
    QCOMPARE(column(database.exec("PRAGMA cell_size_check")), QStringList("1"));
}

void tst_CRkDataBase::closeReleasesTheFile()
{
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QSqlQuery untouched = database.exec("select n from t");
    QSqlQuery halfRead = database.exec("select n from t");
    QVERIFY(halfRead.next());
    QSqlQuery written = database.exec("INSERT INTO t VALUES (4,'d')");
    QVERIFY(!isReleased(m_file));
    database.close();
    QVERIFY(isReleased(m_file));

    QVERIFY(!halfRead.next());
    untouched.next(); // It may have read its first row in advance,
    QVERIFY(!untouched.next()); // but no more.
    QVERIFY(!written.next());
    halfRead.finish();
}

void tst_CRkDataBase::destructorReleasesTheFile()
{
    QSqlQuery outliving = [this] {
        CRkDataBase database(m_file);
        database.open();
        QSqlQuery query = database.exec("select n from t");
        query.next();
        return query;
    }();
    QVERIFY(isReleased(m_file));
    QVERIFY(!outliving.next());
    QSqlQuery copy = outliving;
    QVERIFY(!copy.next());
}

void tst_CRkDataBase::noConnectionIsLeft()
{
    const QStringList before = QSqlDatabase::connectionNames();
    {
        CRkDataBase first(m_file);
        CRkDataBase second(m_file);
        CRkDataBase failing(m_dir->filePath("none/x.proj"));
        QVERIFY(first.open() && second.open() && !failing.open());
        QCOMPARE(QSqlDatabase::connectionNames().size(), before.size() + 2);
        first.close();
    }
    QCOMPARE(QSqlDatabase::connectionNames(), before);
}

void tst_CRkDataBase::fileIsRemovedAndReplaced()
{
    const QString moved = m_dir->filePath("moved.proj");
    CRkDataBase database(m_file);
    QVERIFY(database.open());
    QSqlQuery rows = database.exec("select n from t");
    QVERIFY(rows.next());
    database.close();
    QVERIFY(QFile::rename(m_file, moved));
    QVERIFY(database.open()); // A new, empty file of the old name.
    QVERIFY(!database.exec("select n from t").next());
    database.close();
    QVERIFY(QFile::remove(m_file));
    QCOMPARE(readSql(moved, "select count(*) from t"), QStringList("3"));
}

void tst_CRkDataBase::readingLeavesTheFile_data()
{
    QTest::addColumn<int>("damage");
    QTest::newRow("sound") << 0;
    QTest::newRow("cut inside the header") << 1;
    QTest::newRow("cut inside the first page") << 2;
    QTest::newRow("second page lost") << 3;
    QTest::newRow("cell sizes destroyed") << 4;
    QTest::newRow("write-ahead log") << 5;
    QTest::newRow("text") << 6;
    QTest::newRow("empty") << 7;
    QTest::newRow("nothing but ones") << 8;
}

void tst_CRkDataBase::readingLeavesTheFile()
{
    QFETCH(int, damage);
    QByteArray content = readFile(m_file);
    QCOMPARE(content.size(), 2 * 4096);
    switch (damage) {
    case 1:
        content.truncate(50);
        break;
    case 2:
        content.truncate(1000);
        break;
    case 3:
        content.truncate(4096);
        break;
    case 4:
        content.replace(4096 + 8, 200, QByteArray(200, '\xff'));
        break;
    case 5:
        content[18] = content[19] = 2;
        break;
    case 6:
        content = "This is no database, only a text that is longer than a header. "
            + QByteArray(500, 'x');
        break;
    case 7:
        content.clear();
        break;
    case 8:
        content.fill('\xff');
        break;
    default:
        break;
    }
    QVERIFY(writeFile(m_file, content));
    const QStringList files = QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::Hidden);

    CRkDataBase database(m_file);
    if (database.open()) {
        const bool isReadable = damage == 0 || damage == 5;
        QCOMPARE(column(database.exec("select n from t")).size(), isReadable ? 3 : 0);
        QCOMPARE(column(database.exec("select * from t where s='b'")).size(), isReadable ? 1 : 0);
    }
    database.close();
    QCOMPARE(readFile(m_file), content);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::Hidden), files);
}

QTEST_GUILESS_MAIN(tst_CRkDataBase)
#include "tst_CRkDataBase.moc"
