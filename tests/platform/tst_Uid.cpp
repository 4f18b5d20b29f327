// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/Uid.h>

#include <QtTest>
#include <QUuid>

class tst_Uid : public QObject
{
    Q_OBJECT

private slots:
    void variant_data();
    void variant();
    void namesTheSameUuid();
};

void tst_Uid::variant_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const QString plain = QStringLiteral("6F9619ff-8b86-d011-b42d-00c04fc964ff");
    QTest::newRow("braces") << QString('{' + plain + '}') << plain;
    QTest::newRow("no braces") << plain << plain;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("braces alone") << QStringLiteral("{}") << QString();
}

void tst_Uid::variant()
{
    QFETCH(QString, text);
    QTEST(GetUidVariant(text), "expected");
}

void tst_Uid::namesTheSameUuid()
{
    const QUuid uuid = QUuid::createUuid();
    QCOMPARE(QUuid::fromString(GetUidVariant(uuid.toString())), uuid);
}

QTEST_GUILESS_MAIN(tst_Uid)
#include "tst_Uid.moc"
