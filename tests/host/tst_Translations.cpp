// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkBaseUI/SharedHelpers.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
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

/// The text in the file; empty when it has none.
QString translated(const QVector<Message>& messages, const char* context, const char* text)
{
    for (const Message& message : messages) {
        if (message.context == QLatin1String(context) && message.source == QLatin1String(text))
            return message.translation;
    }
    return {};
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
    void everyTextOfTheSourcesIsTranslated_data();
    void everyTextOfTheSourcesIsTranslated();
    void translationsKeepPlaceholdersAndLines_data();
    void translationsKeepPlaceholdersAndLines();
    void loadedFileTranslates_data();
    void loadedFileTranslates();
    void customIsOneText_data();
    void customIsOneText();
    void placeholdersAreThoseOfTheView_data();
    void placeholdersAreThoseOfTheView();
    void rangeIsReadByTheView_data();
    void rangeIsReadByTheView();
    void frequentCitiesAreInTheCatalogue_data();
    void frequentCitiesAreInTheCatalogue();

private:
    void addFiles(bool isLibraryOnly);
    QVector<Message> upToDate();
    static QString source(const QString& path);

    TestHome m_home;
};

/// One row for each translation file shipped, with the folder whose texts it holds.
void tst_Translations::addFiles(bool isLibraryOnly)
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");
    const QString library = QStringLiteral("RkBaseUI");
    QStringList folders;
    const QStringList files =
        QDir(source(QStringLiteral("lang"))).entryList({QStringLiteral("*.ts")}, QDir::Files);
    for (const QString& name : files) {
        const QString file = name.chopped(3);
        const QString folder =
            file.startsWith(library + QLatin1Char('_')) ? library : QStringLiteral("host");
        folders.append(folder);
        if (!isLibraryOnly || folder == library)
            QTest::newRow(qPrintable(file)) << file << folder;
    }
    QVERIFY(folders.contains(library) && folders.contains(QStringLiteral("host")));
}

QString tst_Translations::source(const QString& path)
{
    return QStringLiteral(RK_SOURCE_DIR "/") + path;
}

/// The messages of a copy of the file that is brought up to date with the sources.
QVector<Message> tst_Translations::upToDate()
{
    QFETCH(QString, file);
    QFETCH(QString, folder);
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

void tst_Translations::everyTextOfTheSourcesIsTranslated_data()
{
    addFiles(false);
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

void tst_Translations::translationsKeepPlaceholdersAndLines_data()
{
    addFiles(false);
}

void tst_Translations::translationsKeepPlaceholdersAndLines()
{
    for (const Message& message : upToDate()) {
        QVERIFY2(placeholders(message.translation) == placeholders(message.source),
                 qPrintable(message.source));
        QVERIFY2(message.translation.count(QLatin1Char('\n'))
                     == message.source.count(QLatin1Char('\n')),
                 qPrintable(message.source));
    }
}

void tst_Translations::loadedFileTranslates_data()
{
    addFiles(false);
}

void tst_Translations::loadedFileTranslates()
{
    QFETCH(QString, file);
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

void tst_Translations::customIsOneText_data()
{
    addFiles(false);
}

/// The word has a blank behind it at some places, by which nobody should see two.
void tst_Translations::customIsOneText()
{
    QSet<QString> texts;
    for (const Message& message : upToDate()) {
        if (message.source.trimmed() == QLatin1String("Custom"))
            texts.insert(message.translation);
    }
    QVERIFY2(texts.size() <= 1, qPrintable(QStringList(texts.values()).join(QLatin1Char('|'))));
}

void tst_Translations::placeholdersAreThoseOfTheView_data()
{
    addFiles(true);
}

/// The project view compares what the filter bar and its pickers show with words of its own.
void tst_Translations::placeholdersAreThoseOfTheView()
{
    const QVector<Message> messages = upToDate();
    const auto check = [&](const char* context, const char* text, const char* viewText) {
        const QString shown = translated(messages, context, text);
        const QString compared = translated(messages, "CRkProjectManagerView", viewText);
        QVERIFY2(!compared.isEmpty(), viewText);
        QVERIFY2(
            shown.compare(compared, Qt::CaseInsensitive) == 0,
            qPrintable(QStringLiteral("%1 %2: \"%3\", in the view \"%4\"")
                           .arg(QLatin1String(context), QLatin1String(text), shown, compared)));
    };
    check("CRkCityDateFilterWidget", "City", "city");
    check("CRkCityDateFilterWidget", "All", "all");
    check("CRkCitySelectWidget", "All", "all");
    check("CRkCityDateFilterWidget", "Date", "date");
    check("CRkDateSelectWidget", "Date", "date");
}

void tst_Translations::rangeIsReadByTheView_data()
{
    addFiles(true);
}

/// The view splits a range at its word for "to" and takes the blanks away from the two days.
void tst_Translations::rangeIsReadByTheView()
{
    const QVector<Message> messages = upToDate();
    const QString to = translated(messages, "CRkProjectManagerView", "to");
    const QString range = translated(messages, "CRkDateSelectWidget", "%1 to %2");
    QVERIFY(!to.isEmpty());
    for (const QChar c : to) // It must not look like a part of a day.
        QVERIFY(!c.isDigit() && c != QLatin1Char('-') && !c.isSpace());
    const QRegularExpression shape(
        QStringLiteral("^%1 *%2 *%3$")
            .arg(QStringLiteral("%1"), QRegularExpression::escape(to), QStringLiteral("%2")));
    QVERIFY2(shape.match(range).hasMatch(), qPrintable(range));
    QCOMPARE(range.count(to), 1);
}

void tst_Translations::frequentCitiesAreInTheCatalogue_data()
{
    addFiles(true);
}

/// A project passes the city filter when one of its places contains the text.
void tst_Translations::frequentCitiesAreInTheCatalogue()
{
    const QStringList names =
        readSql(QCoreApplication::applicationDirPath() + QStringLiteral("/ChinaAdminiDstrict.db"),
                QStringLiteral("select name from city"));
    QVERIFY(names.size() > 300);
    const QVector<Message> messages = upToDate();
    for (const char* city : {"Beijing", "Shanghai", "Guangzhou", "Shenzhen", "Chengdu", "Tianjin",
                             "Nanjing", "Hangzhou", "Wuhan", "Chongqing"}) {
        const QString text = translated(messages, "CRkCitySelectWidget", city);
        QVERIFY2(!text.isEmpty(), city);
        QVERIFY2(!names.filter(text).isEmpty(), qPrintable(text));
    }
}

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
