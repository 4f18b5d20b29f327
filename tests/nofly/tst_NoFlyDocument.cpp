// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "nofly/NoFlyDocument.h"

#include "support/MessageLog.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

using NoFlyDocument::Application;

namespace {

QDateTime at(const QString& text)
{
    return QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

Application sound()
{
    Application application;
    application.documentPath = "/surveys/permit.pdf";
    application.document = QByteArray("\0text\xff", 6);
    application.area = {{"104.000000", "30.500000", "N/A"}, {"105.000000", "30.600000", "N/A"}};
    application.begin = at("2026-05-01 08:05:09");
    application.end = at("2026-12-31 18:00:00");
    application.localIds = QStringList{"a", "b"};
    application.name = "Wang";
    application.contact = "13800000000";
    application.company = "Survey & Co";
    application.explanation = "for the dam";
    return application;
}

QJsonObject objectOf(const Application& application)
{
    return QJsonDocument::fromJson(NoFlyDocument::json(application)).object();
}

} // namespace

class tst_NoFlyDocument : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rows_data();
    void rows();
    void area_data();
    void area();
    void earlier_data();
    void earlier();
    void values();
    void keysWithoutAnything();
    void fileName_data();
    void fileName();
    void localIds_data();
    void localIds();
    void picture();
    void compactAsTheToolkitWritesIt_data();
    void compactAsTheToolkitWritesIt();
    void documentsOfEveryLength_data();
    void documentsOfEveryLength();
    void bodyIsNotEncoded();

private:
    MessageLog m_log;
};

void tst_NoFlyDocument::init()
{
    m_log.start();
}

void tst_NoFlyDocument::cleanup()
{
    QCOMPARE(m_log.stop(), QStringList());
}

void tst_NoFlyDocument::rows_data()
{
    QTest::addColumn<QPointF>("corner");
    QTest::addColumn<QStringList>("cells");
    QTest::newRow("x is the latitude")
        << QPointF(30.5, 104) << QStringList{"104.000000", "30.500000", "N/A"};
    QTest::newRow("rounded to six decimals")
        << QPointF(-30.1234567, 179.9999999) << QStringList{"180.000000", "-30.123457", "N/A"};
    QTest::newRow("never with an exponent")
        << QPointF(1e-7, 1e10) << QStringList{"10000000000.000000", "0.000000", "N/A"};
    QTest::newRow("no numbers") << QPointF(std::numeric_limits<double>::quiet_NaN(),
                                           std::numeric_limits<double>::infinity())
                                << QStringList{"inf", "nan", "N/A"};
}

void tst_NoFlyDocument::rows()
{
    QFETCH(QPointF, corner);
    QFETCH(QStringList, cells);
    QCOMPARE(NoFlyDocument::coordinateRows({corner}), QVector<QStringList>{cells});
    QCOMPARE(NoFlyDocument::coordinateRows({{1, 2}, corner, {3, 4}}).at(1), cells);
}

void tst_NoFlyDocument::area_data()
{
    QTest::addColumn<QVector<QStringList>>("rows");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QVector<QStringList>() << "";
    QTest::newRow("one row") << QVector<QStringList>{{"104", "30", "N/A"}} << "104,30,N/A";
    QTest::newRow("rows") << QVector<QStringList>{{"104", "30", "N/A"}, {"105", "31", "N/A"}}
                          << "104,30,N/A|105,31,N/A";
    QTest::newRow("empty cells") << QVector<QStringList>{{"", "", ""}, {"", "", ""}} << ",,|,,";
}

void tst_NoFlyDocument::area()
{
    QFETCH(QVector<QStringList>, rows);
    QFETCH(QString, text);
    QCOMPARE(NoFlyDocument::areaText(rows), text);
}

void tst_NoFlyDocument::earlier_data()
{
    QTest::addColumn<QDateTime>("begin");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<bool>("expected");
    const QDateTime time = at("2026-05-01 08:00:00");
    QTest::newRow("a second before") << time << time.addSecs(1) << true;
    QTest::newRow("equal") << time << time << false;
    QTest::newRow("a second after") << time << time.addSecs(-1) << false;
    QTest::newRow("equal where it is shown") << time << time.addMSecs(999) << false;
    QTest::newRow("a millisecond into the next second")
        << time.addMSecs(999) << time.addMSecs(1000) << true;
    QTest::newRow("a year") << time << time.addYears(1) << true;
}

void tst_NoFlyDocument::earlier()
{
    QFETCH(QDateTime, begin);
    QFETCH(QDateTime, end);
    QFETCH(bool, expected);
    QCOMPARE(NoFlyDocument::isEarlier(begin, end), expected);
}

void tst_NoFlyDocument::values()
{
    const QJsonObject expected{
        {"filename", "permit.pdf"},
        {"data", "AHRleHT/"},
        {"area", "104.000000,30.500000,N/A|105.000000,30.600000,N/A"},
        {"beginat", "2026-05-01 08:05:09"},
        {"expiredat", "2026-12-31 18:00:00"},
        {"localids", "a,b"},
        {"pic", ""},
        {"name", "Wang"},
        {"contact", "13800000000"},
        {"strCompany", "Survey & Co"},
        {"explain", "for the dam"},
    };
    QCOMPARE(objectOf(sound()), expected);
}

/// All keys are there, with texts.
void tst_NoFlyDocument::keysWithoutAnything()
{
    const QJsonObject object = objectOf({});
    QCOMPARE(object.keys(),
             QStringList({"area", "beginat", "contact", "data", "expiredat", "explain", "filename",
                          "localids", "name", "pic", "strCompany"}));
    for (const QJsonValue& value : object)
        QCOMPARE(value, QJsonValue(""));
}

void tst_NoFlyDocument::fileName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("in a folder") << "/a/b/permit.pdf"
                                 << "permit.pdf";
    QTest::newRow("alone") << "permit.pdf"
                           << "permit.pdf";
    QTest::newRow("a folder") << "/a/b/"
                              << "";
    QTest::newRow("other separators") << "C:\\a\\b.pdf"
                                      << "C:\\a\\b.pdf";
    QTest::newRow("several dots") << "/a.b/c.d.e"
                                  << "c.d.e";
    QTest::newRow("not Latin") << "/a/批文 #1.pdf"
                               << "批文 #1.pdf";
}

void tst_NoFlyDocument::fileName()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    Application application = sound();
    application.documentPath = path;
    QCOMPARE(objectOf(application).value("filename").toString(), name);
}

void tst_NoFlyDocument::localIds_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("one") << QStringList("510100") << "510100";
    QTest::newRow("several") << QStringList{"510100", "", "510200"} << "510100,,510200";
}

void tst_NoFlyDocument::localIds()
{
    QFETCH(QStringList, ids);
    QFETCH(QString, text);
    Application application = sound();
    application.localIds = ids;
    QCOMPARE(objectOf(application).value("localids").toString(), text);
}

void tst_NoFlyDocument::picture()
{
    Application application = sound();
    application.picture = QImage(7, 5, QImage::Format_RGB32);
    application.picture.fill(QColor(10, 200, 30));
    application.picture.setPixelColor(6, 4, Qt::red);
    const QByteArray png =
        QByteArray::fromBase64(objectOf(application).value("pic").toString().toLatin1());
    QVERIFY(png.startsWith("\x89PNG"));
    QCOMPARE(QImage::fromData(png).convertToFormat(QImage::Format_RGB32), application.picture);
}

void tst_NoFlyDocument::compactAsTheToolkitWritesIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Wang";
    QTest::newRow("empty") << "";
    QTest::newRow("quotes and backslashes") << "\"a\\\" \\\\";
    QTest::newRow("the key of the document") << "\"data\":\"\"";
    QTest::newRow("the key, escaped already") << "\\\"data\\\":\\\"\\\"";
    QTest::newRow("the key and a backslash") << ",\"data\":\"\"\\";
    QTest::newRow("lines and other control characters") << "a\r\n\tb\u0001";
    QTest::newRow("Chinese") << "汛后堤防测绘";
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x9b\xa9");
    QTest::newRow("characters of forms") << "a=b&c=%41+d";
}

void tst_NoFlyDocument::compactAsTheToolkitWritesIt()
{
    QFETCH(QString, text);
    Application application = sound();
    application.documentPath = text;
    application.area = {{text}};
    application.localIds = QStringList(text);
    application.name = text;
    application.contact = text;
    application.company = text;
    application.explanation = text;
    const QByteArray json = NoFlyDocument::json(application);
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    QCOMPARE(object.value("explain").toString(), text);
    QCOMPARE(object.value("area").toString(), text);
    QCOMPARE(object.value("data").toString(), QString("AHRleHT/"));
    QCOMPARE(json, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void tst_NoFlyDocument::documentsOfEveryLength_data()
{
    QTest::addColumn<int>("size");
    for (int size : {0, 1, 2, 3, 4, 65536, 196607, 196608, 196609, 393216, 393218, 20'000'000})
        QTest::addRow("%d bytes", size) << size;
}

/// The Base64 is made in pieces, and is the same as in one.
void tst_NoFlyDocument::documentsOfEveryLength()
{
    QFETCH(int, size);
    Application application = sound();
    application.document = QByteArray(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        application.document[i] = char(i % 251 + i / 65536);
    const QByteArray data = objectOf(application).value("data").toString().toLatin1();
    QVERIFY(data == application.document.toBase64());
}

void tst_NoFlyDocument::bodyIsNotEncoded()
{
    QCOMPARE(NoFlyDocument::requestBody("{\"a\":\"x&y=%41+\xe9\xa1\xb9\"}"),
             QByteArray("data={\"a\":\"x&y=%41+\xe9\xa1\xb9\"}"));
    QCOMPARE(NoFlyDocument::requestBody({}), QByteArray("data="));
}

QTEST_GUILESS_MAIN(tst_NoFlyDocument)
#include "tst_NoFlyDocument.moc"
