// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkBaseUI/SharedHelpers.h>

#include <QProcess>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <memory>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString type; ///< Empty for a finished one; else "unfinished", "vanished" or "obsolete".
};

QVector<Message> readMessages(const QString& path)
{
    QVector<Message> messages;
    QXmlStreamReader xml(readFile(path));
    Message message;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            message.context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.type = xml.attributes().value(QLatin1String("type")).toString();
            message.translation = xml.readElementText();
            messages.append(message);
        }
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

QVector<int> placeholders(const QString& text)
{
    QVector<int> numbers;
    for (int number = 1; number <= 9; ++number)
        numbers.append(text.count(QStringLiteral("%%1").arg(number)));
    return numbers;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void everyTextOfTheSourcesIsTranslated();
    void translationsKeepPlaceholdersAndEdges();
    void loadedFileTranslates();
    void wordsOfDateConditions();

private:
    QVector<Message> upToDate();
    static QString source(const QString& path);

    TestHome m_home;
};

/// One run for each translation file, with the folder whose texts it holds.
void tst_Translations::initTestCase_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");
    QTest::newRow("library") << QStringLiteral("RkBaseUI_zh_CN") << QStringLiteral("RkBaseUI");
    QTest::newRow("host") << QStringLiteral("RkSurveyHost_zh_CN") << QStringLiteral("host");
}

QString tst_Translations::source(const QString& path)
{
    return QStringLiteral(RK_SOURCE_DIR "/") + path;
}

/// The messages of a copy of the file that is brought up to date with the sources.
QVector<Message> tst_Translations::upToDate()
{
    QFETCH_GLOBAL(QString, file);
    QFETCH_GLOBAL(QString, folder);
    const QString copy = QStringLiteral("%1/%2.ts").arg(m_home.path(), file);
    if (!writeFile(copy, readFile(source(QStringLiteral("lang/%1.ts").arg(file)))))
        return {};
    QProcess update;
    update.start(QStringLiteral(RK_LUPDATE),
                 {QStringLiteral("-silent"), source(folder), QStringLiteral("-ts"), copy});
    if (!update.waitForFinished() || update.exitCode() != 0)
        return {};
    return readMessages(copy);
}

void tst_Translations::everyTextOfTheSourcesIsTranslated()
{
    const QVector<Message> messages = upToDate();
    QVERIFY(messages.size() >= 10);
    for (const Message& message : messages) {
        const QString what = message.context + QLatin1String(": ") + message.source;
        QVERIFY2(message.type.isEmpty(), qPrintable(message.type + QLatin1Char(' ') + what));
        QVERIFY2(!message.translation.isEmpty(), qPrintable(what));
    }
}

void tst_Translations::translationsKeepPlaceholdersAndEdges()
{
    for (const Message& message : upToDate()) {
        QVERIFY2(placeholders(message.translation) == placeholders(message.source),
                 qPrintable(message.source));
        QVERIFY2(message.translation.count(QLatin1Char('\n'))
                     == message.source.count(QLatin1Char('\n')),
                 qPrintable(message.source));
    }
}

void tst_Translations::loadedFileTranslates()
{
    QFETCH_GLOBAL(QString, file);
    const std::unique_ptr<QTranslator> translator(CreateTranslator(file));
    QVERIFY(!translator->isEmpty());
    const QVector<Message> messages = upToDate();
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages) {
        QCOMPARE(translator->translate(message.context.toUtf8().constData(),
                                       message.source.toUtf8().constData()),
                 message.translation);
    }
}

/// The word between two dates must not look like a part of one.
void tst_Translations::wordsOfDateConditions()
{
    const std::unique_ptr<QTranslator> translator(
        CreateTranslator(QStringLiteral("RkBaseUI_zh_CN")));
    const QString to = translator->translate("CRkProjectManagerView", "to");
    QVERIFY(!to.isEmpty());
    for (const QChar c : to)
        QVERIFY(!c.isDigit() && c != QLatin1Char('-') && !c.isSpace());
}

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
