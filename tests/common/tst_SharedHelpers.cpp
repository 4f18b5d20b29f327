// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/SharedHelpers.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTest>
#include <QTranslator>

#include <limits>
#include <map>
#include <memory>
#include <type_traits>

static_assert(std::is_same_v<std::underlying_type_t<EToolType>, int>);
static_assert(std::is_same_v<std::underlying_type_t<EToolKind>, int>);

class tst_SharedHelpers : public QObject
{
    Q_OBJECT

private slots:
    void fileNameContainsNotAllowChar_data();
    void fileNameContainsNotAllowChar();
    void humanReadableFileSize_data();
    void humanReadableFileSize();
    void uidToString_data();
    void uidToString();
    void toolKind();
    void translatorLoadsFromLangFolder_data();
    void translatorLoadsFromLangFolder();
    void translatorOfMissingFileIsEmpty_data();
    void translatorOfMissingFileIsEmpty();
    void translatorOfDamagedFileIsEmpty();
};

void tst_SharedHelpers::fileNameContainsNotAllowChar_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("notAllowed");
    QTest::newRow("empty") << QString("") << true;
    QTest::newRow("null") << QString() << true;
    for (const char c : {'\\', '/', ':', '*', '?', '"', '<', '>', '|'}) {
        const QByteArray sign(1, c);
        QTest::newRow(sign + " alone") << QString(sign) << true;
        QTest::newRow(sign + " first") << QString(sign + "dam") << true;
        QTest::newRow(sign + " inside") << QString("d" + sign + "am") << true;
        QTest::newRow(sign + " last") << QString("dam" + sign) << true;
    }
    QTest::newRow("dot") << "a.b" << false;
    QTest::newRow("blank") << " " << false;
    QTest::newRow("other signs") << "a'b-c_d(e)[f]{g}#%&+,;=@~!$^`" << false;
    QTest::newRow("control character") << QString(QChar(7)) << false;
    QTest::newRow("Chinese") << QString::fromUtf8("成都测区") << false;
    QTest::newRow("full-width colon") << QString::fromUtf8("成都：测区") << false;
    QTest::newRow("reserved device name") << "CON" << false;
}

void tst_SharedHelpers::fileNameContainsNotAllowChar()
{
    QFETCH(QString, name);
    QFETCH(bool, notAllowed);
    QCOMPARE(FileNameContainsNotAllowChar(name), notAllowed);
}

void tst_SharedHelpers::humanReadableFileSize_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << qint64(0) << "0B";
    QTest::newRow("bytes") << qint64(512) << "512B";
    QTest::newRow("last in bytes") << qint64(1023) << "1023B";
    QTest::newRow("first in K") << qint64(1024) << "1KB";
    QTest::newRow("cut off, not rounded") << qint64(1535) << "1KB";
    QTest::newRow("just below 2K") << qint64(2047) << "1KB";
    QTest::newRow("last in K") << qint64(1048575) << "1023KB";
    QTest::newRow("first in M") << qint64(1048576) << "1MB";
    QTest::newRow("three M") << qint64(3) * 1048576 + 5 << "3MB";
    QTest::newRow("first in G") << qint64(1073741824) << "1GB";
    QTest::newRow("first in T") << (qint64(1) << 40) << "1TB";
    QTest::newRow("last in T") << (qint64(1) << 50) - 1 << "1023TB";
    QTest::newRow("first in P") << (qint64(1) << 50) << "1PB";
    QTest::newRow("last in P") << (qint64(1) << 60) - 1 << "1023PB";
    QTest::newRow("2^60") << (qint64(1) << 60) << "1" + QString(QChar(0)) + "B";
    QTest::newRow("largest") << std::numeric_limits<qint64>::max() << "7" + QString(QChar(0)) + "B";
    QTest::newRow("negative") << qint64(-5) << "-5B";
    QTest::newRow("negative beyond 1024") << qint64(-4096) << "-4096B";
    QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << "-9223372036854775808B";
}

void tst_SharedHelpers::humanReadableFileSize()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QCOMPARE(getHumanReadableFileSize(bytes), text);
}

void tst_SharedHelpers::uidToString_data()
{
    QTest::addColumn<QString>("uid");
    QTest::addColumn<QString>("key");
    QTest::newRow("braced") << "{6F9619FF-8B86-D011-B42D-00C04FC964FF}"
                            << "6F9619FF8B86D011B42D00C04FC964FF";
    QTest::newRow("letter case kept") << "{6f9619FF-aB}"
                                      << "6f9619FFaB";
    QTest::newRow("nothing to remove") << "6F9619FF8B86"
                                       << "6F9619FF8B86";
    QTest::newRow("signs anywhere") << "-}a{{-b}-"
                                    << "ab";
    QTest::newRow("other brackets stay") << "(a)[b]_c"
                                         << "(a)[b]_c";
    QTest::newRow("nothing left") << "{-}"
                                  << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_SharedHelpers::uidToString()
{
    QFETCH(QString, uid);
    QFETCH(QString, key);
    const QString before = uid;
    QCOMPARE(UidToString(uid), key);
    QCOMPARE(uid, before);
}

void tst_SharedHelpers::toolKind()
{
    const std::map<int, int> kinds = {{1, 1},  {2, 1},  {3, 2},  {4, 2},  {5, 2},  {6, 2},  {7, 2},
                                      {8, 2},  {9, 2},  {10, 2}, {11, 2}, {12, 2}, {13, 2}, {14, 2},
                                      {15, 1}, {16, 2}, {17, 2}, {19, 3}, {20, 3}, {21, 4}, {22, 4},
                                      {23, 4}, {24, 1}, {25, 5}, {29, 1}, {31, 2}};
    for (int type = -100; type <= 100; ++type) {
        const auto found = kinds.find(type);
        const int expected = found == kinds.end() ? 0 : found->second;
        QVERIFY2(GetToolKind(EToolType(type)) == expected, qPrintable(QString::number(type)));
    }
    QCOMPARE(int(GetToolKind(EToolType(std::numeric_limits<int>::max()))), 0);
    QCOMPARE(int(GetToolKind(EToolType(std::numeric_limits<int>::min()))), 0);
}

void tst_SharedHelpers::translatorLoadsFromLangFolder_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("with suffix") << "RkBaseUI_zh_CN.qm";
    QTest::newRow("without suffix") << "RkBaseUI_zh_CN";
    QTest::newRow("variant of the language") << "RkBaseUI_zh_CN_variant";
}

void tst_SharedHelpers::translatorLoadsFromLangFolder()
{
    QFETCH(QString, fileName);
    const std::unique_ptr<QTranslator> translator(CreateTranslator(fileName));
    QVERIFY(translator);
    QVERIFY(!translator->isEmpty());
    QVERIFY(!translator->parent());
    QCOMPARE(translator->filePath(),
             QCoreApplication::applicationDirPath() + "/lang/RkBaseUI_zh_CN.qm");
    QCOMPARE(translator->translate("CRkBaseDialog", "Cancel"), QString::fromUtf8("取消"));
}

void tst_SharedHelpers::translatorOfMissingFileIsEmpty_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("no such file") << "no such language";
    QTest::newRow("empty name") << "";
    QTest::newRow("folder") << ".";
}

void tst_SharedHelpers::translatorOfMissingFileIsEmpty()
{
    QFETCH(QString, fileName);
    const std::unique_ptr<QTranslator> translator(CreateTranslator(fileName));
    QVERIFY(translator);
    QVERIFY(translator->isEmpty());
    QVERIFY(!translator->parent());
    QVERIFY(translator->translate("Any", "text").isNull());
}

void tst_SharedHelpers::translatorOfDamagedFileIsEmpty()
{
    QTemporaryFile file(QCoreApplication::applicationDirPath() + "/lang/XXXXXX.qm");
    QVERIFY(file.open());
    QVERIFY(file.write("no translations") > 0);
    QVERIFY(file.flush());
    const std::unique_ptr<QTranslator> translator(
        CreateTranslator(QFileInfo(file.fileName()).fileName()));
    QVERIFY(translator);
    QVERIFY(translator->isEmpty());
}

QTEST_GUILESS_MAIN(tst_SharedHelpers)
#include "tst_SharedHelpers.moc"
