// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/FolderPaths.h"

#include <QtTest>

class tst_FolderPaths : public QObject
{
    Q_OBJECT

private slots:
    void below_data();
    void below();
    void areWindowsFolders_data();
    void areWindowsFolders();
    void everyForbiddenLetter();
};

void tst_FolderPaths::below_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* root, const char* path, const char* rest) {
        QTest::newRow(name) << QString(root) << QString(path) << QString(rest);
    };
    row("folder", "/p/", "/p/Hill/", "Hill");
    row("file", "/p/", "/p/Hill/Hill.proj", "Hill/Hill.proj");
    row("root without its slash", "/p", "/p/Hill", "Hill");
    row("two slashes behind the root", "/p/", "/p//Hill/", "Hill");
    row("to and fro", "/p/", "/p/Dale/../Hill/", "Hill");
    row("root with dots", "/p/../q/", "/q/Hill/", "Hill");
    row("root of the system", "/", "/Hill/", "Hill");
    row("root of a drive", "R:/", "R:/Hill/Hill.proj", "Hill/Hill.proj");
    row("share", "//server/surveys/", "//server/surveys/Hill/", "Hill");
    row("the root", "/p/", "/p/", "");
    row("the root by dots", "/p/", "/p/Hill/..", "");
    row("the root of the system", "/", "/", "");
    row("the root of a drive", "R:/", "R:/", "");
    row("parent", "/p/q/", "/p/q/../", "");
    row("sibling", "/p/", "/p/../outside/", "");
    row("sibling with a longer name", "/p/", "/p2/Hill/", "");
    row("other drive", "R:/", "S:/Hill/", "");
    row("nothing", "/p/", "", "");
    row("current folder", "./", "./Hill/", "Hill");
    row("parent of the current folder", "./", "./../Hill/", "");
    row("root above the current folder", "../", "../Hill/", "Hill");
    row("parent of a root above the current folder", "../", "../../Hill/", "");
    row("folder of the current one", "projects/", "projects/Hill/", "Hill");
}

void tst_FolderPaths::below()
{
    QFETCH(QString, root);
    QFETCH(QString, path);
    QTEST(FolderPaths::below(root, path), "expected");
}

void tst_FolderPaths::areWindowsFolders_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("expected");
    for (const char* name :
         {"Hill",      "  Hill",     "v1.2.final", ".Hill",      "100%",  "O'Hara",
          "Hill/Dale", "Hill\\Dale", "/Hill",      "Hill//Dale", "CONE",  "ICON",
          "NULL",      "COM",        "COM10",      "LPT",        "a.NUL", "copy of NUL",
          "CON-1",     "AUX_1",      "CONIN",      "x$",         ""})
        QTest::newRow(qPrintable(QStringLiteral("folder %1").arg(name))) << QString(name) << true;
    for (const char* name :
         {"CON",          "con",    "PRN",      "AUX",      "Nul",        "COM1",
          "com9",         "LPT1",   "lpt0",     "CONIN$",   "conout$",    "NUL.proj",
          "com1.old.txt", "NUL .x", "AUX ",     "Hill/NUL", "NUL/Hill",   "Hill\\con\\Dale",
          "/NUL/",        "Hill.",  "Hill . .", "Hill ",    "Hill./Dale", ".",
          "..",           "...",    ". .",      " ",        "Hill/...",   "...\\Hill"})
        QTest::newRow(qPrintable(QStringLiteral("none %1").arg(name))) << QString(name) << false;
    QTest::newRow("none COM with a raised two") << QStringLiteral("COM\u00b2") << false;
    QTest::newRow("folder in other letters") << QStringLiteral("\u9879\u76ee") << true;
}

void tst_FolderPaths::areWindowsFolders()
{
    QFETCH(QString, path);
    QTEST(FolderPaths::areWindowsFolders(path), "expected");
}

void tst_FolderPaths::everyForbiddenLetter()
{
    QString letters = QStringLiteral("<>:\"|?*");
    for (int control = 0; control < 32; ++control)
        letters += QChar(control);
    for (const QChar letter : qAsConst(letters)) {
        QVERIFY(!FolderPaths::areWindowsFolders(letter));
        QVERIFY(!FolderPaths::areWindowsFolders(QStringLiteral("Hill") + letter
                                                + QStringLiteral("Dale")));
        QVERIFY(!FolderPaths::areWindowsFolders(QStringLiteral("Hill") + letter));
    }
}

QTEST_APPLESS_MAIN(tst_FolderPaths)
#include "tst_FolderPaths.moc"
