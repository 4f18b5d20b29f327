// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/UniqueProjectName.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <optional>
#include <vector>

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
    std::vector<std::optional<QString>> names; // Nothing for a missing file.
    for (const QString& file : files) {
        names.push_back(fileExists(file) ? std::make_optional(QFileInfo(file).completeBaseName())
                                         : std::nullopt);
    }
    QString candidate = base;
    const QString pattern = candidate + "_%1";
    int number = 1;
    for (std::size_t i = 0; i < names.size();) {
        if (!names[i])
            return candidate;
        if (names[i] == candidate) {
            candidate = QString(pattern).replace("%1", QString::number(number++));
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
    void thousandsOfEqualNames_data();
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
    QTest::newRow("no other marker is filled") << "A%0%2" << QStringList({"A%0%2"}) << "A%0%2_1";
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

void tst_UniqueProjectName::thousandsOfEqualNames_data()
{
    QTest::addColumn<bool>("isShuffled");
    QTest::addColumn<int>("missing");
    QTest::newRow("in the order of their making") << false << -1;
    QTest::newRow("in the order of their making, one missing") << false << 1234;
    QTest::newRow("shuffled") << true << -1;
    QTest::newRow("shuffled, one missing") << true << 1234;
}

void tst_UniqueProjectName::thousandsOfEqualNames()
{
    QFETCH(bool, isShuffled);
    QFETCH(int, missing);
    constexpr int count = 5000;
    QStringList names = {"New Project"};
    for (int i = 1; i < count; ++i)
        names.append(QString("New Project_%1").arg(i));
    if (isShuffled) {
        QRandomGenerator random(20261121);
        std::shuffle(names.begin(), names.end(), random);
    }
    QStringList files;
    for (const QString& name : qAsConst(names))
        files.append(fileOf(name));
    const FileExists fileExists = [&](const QString& file) {
        return missing < 0 || file != files[missing];
    };
    int looks = 0;
    const FileExists countingLooks = [&](const QString& file) {
        ++looks;
        return fileExists(file);
    };
    QCOMPARE(UniqueProjectName::make("New Project", files, countingLooks),
             literalName("New Project", files, fileExists));
    QCOMPARE(looks, missing < 0 ? count : missing + 1);
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
