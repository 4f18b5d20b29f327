// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProjectManagerView.h>

#include "ProjectFixture.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QProcess>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QTest>

#include <sys/mount.h>

#include <cerrno>
#include <memory>
#include <sched.h>

namespace {

/// What the probe did.
struct Run
{
    bool isKilled = false;
    int exitCode = -1;
    int calls = 0;
    QStringList boxes;
};

/// Lets the probe act with a fault at the n-th call that changes a file: killed when `error` is 0.
Run act(const QStringList& action, int faultyCall, int error)
{
    const QString folder = QCoreApplication::applicationDirPath();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", RK_FAULT_SHIM);
    environment.insert("RK_FAULT_CALL", QString::number(faultyCall));
    environment.insert("RK_FAULT_ERROR", QString::number(error));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    // The address sanitizer wants to be the first library, and a killed process leaks.
    environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0");
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.start(folder + "/operations_probe", action);
    Run run;
    if (!probe.waitForFinished())
        return run;
    run.isKilled = probe.exitStatus() == QProcess::CrashExit;
    run.exitCode = probe.exitCode();
    const QStringList lines = QString::fromUtf8(probe.readAllStandardOutput()).split('\n');
    for (const QString& line : lines) {
        if (line.startsWith("box: "))
            run.boxes.append(line.mid(5));
        else if (line.startsWith("calls: "))
            run.calls = line.mid(7).toInt();
    }
    return run;
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

/// The listed projects: name of the file, and identifier.
QMap<QString, QString> listed()
{
    QMap<QString, QString> projects;
    const CRkProjectManagerView view(nullptr);
    const QList<QGraphicsItem*> items = view.scene()->items();
    for (const QGraphicsItem* item : items) {
        if (const auto* tile = dynamic_cast<const CRkGraphicsProjectRectItem*>(item)) {
            projects.insert(QFileInfo(tile->GetProjectFilePath()).completeBaseName(),
                            tile->GetProjectID());
        }
    }
    return projects;
}

/// A disk of so many bytes in a folder, for this process and those that it starts; it goes with the
/// object.
class SmallDisk
{
public:
    SmallDisk(const QString& folder, int bytes)
        : m_folder(QFile::encodeName(folder))
    {
        const QByteArray size = "size=" + QByteArray::number(bytes);
        m_isMounted = mount("none", m_folder.constData(), "tmpfs", 0, size.constData()) == 0;
    }
    ~SmallDisk()
    {
        if (m_isMounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY(SmallDisk)

    bool isMounted() const { return m_isMounted; }

    /// Lets this process mount what no other process sees; false where it may not.
    static bool isAllowed()
    {
        static const bool isPrivate = unshare(CLONE_NEWNS) == 0
            && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        return isPrivate;
    }

private:
    const QByteArray m_folder;
    bool m_isMounted;
};

/// Writes to the file until the disk is full but for so many bytes.
bool fillDisk(const QString& path, qint64 left)
{
    QFile file(path);
    const QStorageInfo disk(QFileInfo(path).path());
    const qint64 size = disk.bytesAvailable() - left;
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray(int(size), 'x')) == size
        && file.flush();
}

const QString hillId = QStringLiteral("id-of-Hill");
const QByteArray flights = "the flights of Hill";
const QByteArray otherFlights = "the flights of a deleted project";

const QStringList newProject = {"new"};
const QStringList copyHill = {"copy", "Hill"};
const QStringList renameHill = {"rename", "Hill", "Vale"};
/// Where it would go there are flights already.
const QStringList renameHillInVain = {"rename", "Hill", "Glen"};
const QStringList deleteHill = {"delete", "Hill"};

} // namespace

/// New, copy, rename and delete, each killed at every call that changes a file, each with every
/// such call and all after it failing, and each on a disk with little room. Afterwards the listing
/// works, nothing is lost, and the project in work is there under its old or its new name.
class tst_ProjectFaults : public QObject
{
    Q_OBJECT

private slots:
    void soundRuns_data();
    void soundRuns();
    void everyFault_data();
    void everyFault();
    void readOnlyRoot_data();
    void readOnlyRoot();
    void smallDisk_data();
    void smallDisk();

private:
    /// A fresh, empty root.
    void makeHome();
    /// Writes the project Hill, its flights, and the project Dale into the root.
    void writeProjects();
    void makeRoot();
    /// Why the root is not as it should be after an action; empty when it is.
    QString damage(const QString& action) const;
    QString damageOfWork(const QString& action, const QMap<QString, QString>& projects) const;

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<SmallDisk> m_disk;
    QString m_root;
    QByteArray m_dale;
    QByteArray m_hill;
};

void tst_ProjectFaults::makeHome()
{
    m_disk.reset();
    m_home.reset();
    m_home = std::make_unique<TestHome>();
    m_home->setCurrentUserId("user-1");
    m_root = m_home->projectRoot();
}

void tst_ProjectFaults::writeProjects()
{
    ProjectFixture hill{"Hill"};
    hill.outlines << squareAround(30, 104) << squareAround(31, 105);
    const QString hillFile = hill.write(m_root);
    const QString daleFile = ProjectFixture{"Dale"}.write(m_root);
    QVERIFY(!hillFile.isEmpty() && !daleFile.isEmpty());
    QVERIFY(writeFile(m_root + "Hill/Hill_flight.db", flights));
    QVERIFY(QDir(m_root).mkdir("Glen") && writeFile(m_root + "Glen/Glen_flight.db", otherFlights));
    m_hill = readFile(hillFile);
    m_dale = readFile(daleFile);
}

void tst_ProjectFaults::makeRoot()
{
    makeHome();
    writeProjects();
}

QString tst_ProjectFaults::damage(const QString& action) const
{
    const QMap<QString, QString> projects = listed();
    if (projects.value("Dale") != "id-of-Dale" || readFile(m_root + "Dale/Dale.proj") != m_dale)
        return "another project is damaged";
    if (const QString work = damageOfWork(action, projects); !work.isEmpty())
        return work;

    int companions = 0;
    for (const char* name : {"Hill", "Vale"})
        companions += readFile(m_root + name + '/' + name + "_flight.db") == flights;
    if (companions != 1 || readFile(m_root + "Glen/Glen_flight.db") != otherFlights)
        return "flights are lost";

    // What may be left behind: an empty folder, a temporary file of a copy, a journal.
    static const QRegularExpression known(
        "^(Hill|Dale|Vale|Glen|New Project|copy of Hill)"
        "(/(qt_temp\\.\\w+|(Hill|Dale|Vale|Glen|New Project|copy of "
        "Hill)(\\.proj(-journal)?|_flight\\.db)))?$");
    const QStringList entries = content(m_root).keys();
    for (const QString& entry : entries) {
        if (!known.match(entry).hasMatch())
            return "left behind: " + entry;
    }
    return {};
}

QString tst_ProjectFaults::damageOfWork(const QString& action,
                                        const QMap<QString, QString>& projects) const
{
    const int areas = 2;
    const auto isComplete = [this](const QString& name) {
        return readSql(m_root + name + '/' + name + ".proj",
                       "select id from " + SurveyAreaTableName)
                   .size()
            == areas;
    };
    if (action == "rename") {
        const QStringList both = projects.keys(hillId);
        return both.size() == 1 && isComplete(both.first())
            ? QString()
            : "not there exactly once: " + both.join(',');
    }
    if (action == "delete") {
        const bool isThere = QFileInfo::exists(m_root + "Hill/Hill.proj");
        if (projects.contains("Hill") != isThere)
            return "neither there nor gone";
        return isThere && readFile(m_root + "Hill/Hill.proj") != m_hill ? "damaged" : QString();
    }
    if (readFile(m_root + "Hill/Hill.proj") != m_hill || projects.value("Hill") != hillId)
        return "the project in work is damaged";
    if (projects.contains("copy of Hill")) {
        // All identifiers of the original still, or all of its own.
        const QString file = m_root + "copy of Hill/copy of Hill.proj";
        const QStringList owners = readSql(file, "select project_id from " + SurveyAreaTableName);
        const QString id = projects.value("copy of Hill");
        if (owners != QStringList({id, id}))
            return "the copy is half another project";
        const QStringList ids = readSql(file, "select distinct id from " + SurveyAreaTableName);
        if (ids.size() != (id == hillId ? areas : 1))
            return "the areas of the copy are half those of another";
    }
    return {};
}

namespace {

void addActions()
{
    QTest::addColumn<QStringList>("action");
    QTest::newRow("new") << newProject;
    QTest::newRow("copy") << copyHill;
    QTest::newRow("rename") << renameHill;
    QTest::newRow("rename that is taken back") << renameHillInVain;
    QTest::newRow("delete") << deleteHill;
}

/// The listed projects after an action that met no fault.
QStringList namesAfter(const QStringList& action)
{
    const QMap<QStringList, QStringList> names = {
        {newProject, {"Dale", "Hill", "New Project"}},
        {copyHill, {"Dale", "Hill", "copy of Hill"}},
        {renameHill, {"Dale", "Vale"}},
        {renameHillInVain, {"Dale", "Hill"}},
        {deleteHill, {"Dale"}},
    };
    return names.value(action);
}

} // namespace

void tst_ProjectFaults::soundRuns_data()
{
    addActions();
}

void tst_ProjectFaults::soundRuns()
{
    // The probe does what it says, and the preloaded library sees it.
    QFETCH(QStringList, action);
    makeRoot();
    const Run run = act(action, 0, 0);
    QVERIFY(!run.isKilled);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.calls > 0);
    QCOMPARE(damage(action.first()), QString());
    QCOMPARE(QStringList(listed().keys()), namesAfter(action));
}

void tst_ProjectFaults::everyFault_data()
{
    QTest::addColumn<QStringList>("action");
    QTest::addColumn<int>("error");
    for (const QStringList& action :
         {newProject, copyHill, renameHill, renameHillInVain, deleteHill}) {
        const QByteArray name = action.join(' ').toLatin1();
        QTest::newRow(name + ", killed") << action << 0;
        QTest::newRow(name + ", disk full") << action << ENOSPC;
    }
}

void tst_ProjectFaults::everyFault()
{
    QFETCH(QStringList, action);
    QFETCH(int, error);
    makeRoot();
    const int calls = act(action, 0, 0).calls;
    QVERIFY(calls > 0);
    for (int n = 1; n <= calls; ++n) {
        makeRoot();
        const Run run = act(action, n, error);
        QCOMPARE(run.isKilled, error == 0);
        if (error != 0)
            QCOMPARE(run.exitCode, 0);
        const QString found = damage(action.first());
        QVERIFY2(found.isEmpty(),
                 qPrintable(QString("call %1 of %2: %3").arg(n).arg(calls).arg(found)));
        // What a failed start has left behind is not in the way of the next.
        if (action.first() == "new" && !listed().contains("New Project")) {
            QCOMPARE(act(action, 0, 0).exitCode, 0);
            QVERIFY(listed().contains("New Project"));
        }
    }
}

void tst_ProjectFaults::readOnlyRoot_data()
{
    QTest::addColumn<QStringList>("action");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("new") << newProject << QStringList();
    QTest::newRow("copy") << copyHill << QStringList();
    QTest::newRow("rename") << renameHill << QStringList("Rename Project");
    QTest::newRow("delete") << deleteHill << QStringList({"Delete Project", "File In Use"});
}

void tst_ProjectFaults::readOnlyRoot()
{
    QFETCH(QStringList, action);
    makeRoot();
    const auto before = content(m_root);
    const Run run = act(action, 1, EROFS);
    QCOMPARE(run.exitCode, 0);
    QTEST(run.boxes, "boxes");
    QCOMPARE(content(m_root), before);
    QCOMPARE(QStringList(listed().keys()), QStringList({"Dale", "Hill"}));
}

void tst_ProjectFaults::smallDisk_data()
{
    addActions();
}

void tst_ProjectFaults::smallDisk()
{
    QFETCH(QStringList, action);
    if (!SmallDisk::isAllowed()) // Without them the disk cannot be there at all.
        QSKIP("mounting a small disk takes the rights of an administrator");
    constexpr int page = 4096;
    constexpr int enough = 10 * page;
    for (int left = 0; left <= enough; left += page) {
        makeHome();
        m_disk = std::make_unique<SmallDisk>(m_root, 64 * page);
        QVERIFY(m_disk->isMounted());
        writeProjects();
        const QString ballast = m_root + "ballast";
        QVERIFY(fillDisk(ballast, left));
        QCOMPARE(int(QStorageInfo(m_root).bytesAvailable()), left);
        const Run run = act(action, 0, 0);
        QCOMPARE(run.exitCode, 0);
        // A name takes no room.
        QCOMPARE(run.boxes.contains("Rename Project"), action == renameHillInVain);
        QVERIFY(QFile::remove(ballast));
        const QString found = damage(action.first());
        QVERIFY2(found.isEmpty(), qPrintable(QString("%1 bytes left: %2").arg(left).arg(found)));
        const QStringList names = listed().keys();
        if (left == 0 && (action.first() == "new" || action.first() == "copy"))
            QCOMPARE(names, QStringList({"Dale", "Hill"}));
        if (left == enough)
            QCOMPARE(names, namesAfter(action));
    }
}

QTEST_MAIN(tst_ProjectFaults)
#include "tst_ProjectFaults.moc"
