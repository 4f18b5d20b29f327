// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"
#include "sysinfo/SystemTree.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

class tst_SystemTree : public QObject
{
    Q_OBJECT

private slots:
    void readsWholeFiles_data();
    void readsWholeFiles();
    void readsFilesWithoutSize();
    void stopsAtTheLimit();
    void whatCannotBeReadIsEmpty();
    void doesNotWaitForAPipe();
    void listsNames();
    void namesAreBytes();
    void withoutRootItIsThisMachine();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    SystemTree tree() const { return SystemTree(QFile::encodeName(m_folder.path())); }

    QTemporaryDir m_folder;
};

void tst_SystemTree::readsWholeFiles_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 4095, 4096, 4097, 16384, 16385, 1000000})
        QTest::addRow("%d bytes", size) << size;
}

void tst_SystemTree::readsWholeFiles()
{
    QFETCH(int, size);
    QByteArray content(size, ' ');
    for (int i = 0; i < size; ++i)
        content[i] = char(i * 7 + i / 251);
    QVERIFY(writeFile(path("file"), content));
    QCOMPARE(tree().read("/file"), content);
}

/// The kernel says 0 bytes of them.
void tst_SystemTree::readsFilesWithoutSize()
{
    const QByteArray mappings = SystemTree().read("/proc/self/smaps");
    QVERIFY(mappings.size() > 20000); // More than one piece.
    QVERIFY(mappings.endsWith('\n'));
    QVERIFY(mappings.contains("[stack]"));
}

void tst_SystemTree::stopsAtTheLimit()
{
    QFile file(path("large"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(qint64(65) << 20));
    QCOMPARE(tree().read("/large").size(), 64 << 20);
    QVERIFY(file.remove());
}

void tst_SystemTree::whatCannotBeReadIsEmpty()
{
    QVERIFY(QDir().mkpath(path("folder")));
    const QByteArray root = QFile::encodeName(m_folder.path());
    QCOMPARE(::symlink("nowhere", (root + "/dangling").constData()), 0);
    QCOMPARE(::symlink("loop", (root + "/loop").constData()), 0);
    QVERIFY(writeFile(path("forbidden"), "content"));
    QCOMPARE(::chmod((root + "/forbidden").constData(), 0), 0);
    for (const char* name : {"/missing", "/folder", "/dangling", "/loop", "/missing/file", ""})
        QVERIFY2(tree().read(name).isEmpty(), name);
    for (const char* name : {"/missing", "/folder", "/dangling", "/loop", "/forbidden"})
        QVERIFY2(tree().names(name).isEmpty(), name);
    if (::geteuid() != 0) // Nothing is forbidden to root.
        QVERIFY(tree().read("/forbidden").isEmpty());
    QVERIFY(tree().exists("/folder"));
    QVERIFY(!tree().exists("/dangling"));
    QVERIFY(!tree().exists("/missing"));
}

void tst_SystemTree::doesNotWaitForAPipe()
{
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QVERIFY(tree().read("/pipe").isEmpty());
}

void tst_SystemTree::listsNames()
{
    for (const char* name : {"many/b", "many/a", "many/.hidden"})
        QVERIFY(writeFile(path(name), "x"));
    QList<QByteArray> names = tree().names("/many");
    std::sort(names.begin(), names.end());
    QCOMPARE(names, (QList<QByteArray>{".hidden", "a", "b"}));
}

void tst_SystemTree::namesAreBytes()
{
    QVERIFY(QDir().mkpath(path("bytes")));
    const QByteArray name("\xff\xfe\x80");
    const QByteArray whole = QFile::encodeName(path("bytes")) + '/' + name;
    QCOMPARE(::mkdir(whole.constData(), 0700), 0);
    QCOMPARE(tree().names("/bytes"), QList<QByteArray>{name});
    QVERIFY(tree().exists("/bytes/" + name));
    QCOMPARE(::rmdir(whole.constData()), 0); // Which Qt cannot.
}

void tst_SystemTree::withoutRootItIsThisMachine()
{
    QVERIFY(!SystemTree().read("/proc/version").isEmpty());
    QCOMPARE(SystemTree().systemPath("/proc"), QByteArray("/proc"));
    QVERIFY(SystemTree().names("/").contains("proc"));
}

QTEST_APPLESS_MAIN(tst_SystemTree)
#include "tst_SystemTree.moc"
