// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/UniqueProjectName.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QtTest>

namespace {

using UniqueProjectName::FileExists;

QString fileOf(const QString& name)
{
    return QStringLiteral("/projects/%1/%1.proj").replace(QStringLiteral("%1"), name);
}

bool everyFileExists(const QString& /*file*/)
{
    return true;
}

/// The definition word for word: the walk begins anew after every candidate.
QString literalName(const QString& base, const QStringList& files, const FileExists& fileExists)
{
    QString candidate = base;
    const QString pattern = candidate + "_%1";
    int number = 1;
    for (int i = 0; i < files.size();) {
        if (!fileExists(files[i]))
            return candidate;
        if (QFileInfo(files[i]).completeBaseName() == candidate) {
            candidate = pattern.arg(number++);
            i = 0;
        } else {
            ++i;
        }
    }
    return candidate;
}

} // namespace

class tst_UniqueProjectName : public QObject
{
    Q_OBJECT

private slots:
    void make_data();
    void make();
    void onlyFilesBeforeAMissingOneCount();
    void sameAsTheLiteralWalk();
    void thousandsOfEqualNames();
    void isTaken();
};

void tst_UniqueProjectName::make_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no project") << "New Project" << QStringList() << "New Project";
    QTest::newRow("free") << "Hill" << QStringList({"Dale"}) << "Hill";
    QTest::newRow("second") << "Hill" << QStringList({"Hill"}) << "Hill_1";
    QTest::newRow("third, in any order") << "Hill" << QStringList({"Hill_1", "Hill"}) << "Hill_2";
    QTest::newRow("gap") << "Hill" << QStringList({"Hill", "Hill_2"}) << "Hill_1";
    QTest::newRow("letter case matters") << "Hill" << QStringList({"hill"}) << "Hill";
    QTest::newRow("dots belong to the name") << "a.b" << QStringList({"a.b", "a"}) << "a.b_1";
    QTest::newRow("the number fills every marker") << "A%1" << QStringList({"A%1"}) << "A1_1";
}

void tst_UniqueProjectName::make()
{
    QFETCH(QString, base);
    QFETCH(QStringList, names);
    QStringList files;
    for (const QString& name : qAsConst(names))
        files.append(fileOf(name));
    QTEST(UniqueProjectName::make(base, files, everyFileExists), "expected");
}

void tst_UniqueProjectName::onlyFilesBeforeAMissingOneCount()
{
    const QStringList files = {fileOf("Hill"), fileOf("gone"), fileOf("Hill_1")};
    const FileExists allButOne = [&](const QString& file) { return file != files[1]; };
    QCOMPARE(UniqueProjectName::make("Hill", files, allButOne), QString("Hill_1"));
    QCOMPARE(UniqueProjectName::make("Hill", files, everyFileExists), QString("Hill_2"));
}

void tst_UniqueProjectName::sameAsTheLiteralWalk()
{
    QRandomGenerator random(20260521);
    const QStringList bases = {"A", "B", "A_1", "A%1", "%2", "%0", "A_%1", "copy of A", ""};
    for (int round = 0; round < 3000; ++round) {
        QStringList files;
        const int count = random.bounded(12);
        for (int i = 0; i < count; ++i) {
            QString name = bases[random.bounded(bases.size())];
            if (random.bounded(2))
                name += QString("_%1").arg(random.bounded(1, 5));
            files.append(fileOf(name));
        }
        const int missing = random.bounded(16);
        const FileExists fileExists = [&](const QString& file) {
            return missing >= files.size() || file != files[missing];
        };
        for (const QString& base : bases) {
            QCOMPARE(UniqueProjectName::make(base, files, fileExists),
                     literalName(base, files, fileExists));
        }
    }
}

void tst_UniqueProjectName::thousandsOfEqualNames()
{
    QStringList files = {fileOf("Hill")};
    for (int i = 1; i < 20000; ++i)
        files.append(fileOf(QString("Hill_%1").arg(i)));
    int looks = 0;
    const FileExists countingLooks = [&](const QString&) { return ++looks > 0; };
    QCOMPARE(UniqueProjectName::make("Hill", files, countingLooks), QString("Hill_20000"));
    QCOMPARE(looks, 20000);
}

void tst_UniqueProjectName::isTaken()
{
    const QStringList files = {fileOf("Hill"), fileOf("gone"), fileOf("Dale")};
    const FileExists allButOne = [&](const QString& file) { return file != files[1]; };
    QVERIFY(UniqueProjectName::isTaken("Hill", files, allButOne));
    QVERIFY(!UniqueProjectName::isTaken("hill", files, allButOne));
    QVERIFY(!UniqueProjectName::isTaken("gone", files, allButOne));
    QVERIFY(!UniqueProjectName::isTaken("Dale", files, allButOne));
    QVERIFY(UniqueProjectName::isTaken("Dale", files, everyFileExists));
    QVERIFY(!UniqueProjectName::isTaken("Hill", {}, everyFileExists));
}

QTEST_GUILESS_MAIN(tst_UniqueProjectName)
#include "tst_UniqueProjectName.moc"
