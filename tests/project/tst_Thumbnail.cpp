// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/Thumbnail.h"
#include "project/ThumbnailQueue.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <thread>

namespace {

/// A picture in which every pixel differs from its neighbours.
QImage pattern(int width, int height, QImage::Format format)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(
                x, y, QColor((x * 37) % 256, (y * 59) % 256, (x * y) % 256, (x + y) % 256));
    }
    return image.convertToFormat(format);
}

QByteArray fileOf(const QImage& image, const QByteArray& format)
{
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, format.constData());
    return file;
}

/// What a pixmap does with the file: its own format, then nearest neighbours.
QImage literal(const QByteArray& file)
{
    const QImage image = QImage::fromData(file);
    if (image.isNull())
        return image;
    return image
        .convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                 : QImage::Format_RGB32)
        .scaled(QSize(190, 143), Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

QByteArray withDimensions(QByteArray png, quint32 width, quint32 height)
{
    // The type of the first chunk follows the signature and the chunk's length.
    const int header = 12;
    const auto write = [&png](quint32 number, int at) {
        for (int i = 0; i < 4; ++i)
            png[at + i] = char(number >> (24 - 8 * i) & 0xFFU);
    };
    write(width, header + 4);
    write(height, header + 8);
    quint32 crc = 0xFFFFFFFFU;
    for (int i = header; i < header + 17; ++i) {
        crc ^= quint8(png[i]);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0U);
    }
    write(~crc, header + 17);
    return png;
}

/// While one lives, what is printed as an error goes to a file.
class ErrorsTo
{
public:
    explicit ErrorsTo(const QString& path)
        : m_errors(dup(STDERR_FILENO))
    {
        const int file = open(QFile::encodeName(path).constData(), O_WRONLY);
        fflush(stderr);
        dup2(file, STDERR_FILENO);
        close(file);
    }
    ~ErrorsTo()
    {
        fflush(stderr);
        dup2(m_errors, STDERR_FILENO);
        close(m_errors);
    }
    Q_DISABLE_COPY(ErrorsTo)

private:
    int m_errors;
};

std::atomic<int> messages = 0;
void countMessage(QtMsgType, const QMessageLogContext&, const QString&)
{
    ++messages;
}

} // namespace

class tst_Thumbnail : public QObject
{
    Q_OBJECT

private slots:
    void everyFormat_data();
    void everyFormat();
    void everyPixelFormat_data();
    void everyPixelFormat();
    void base64WithLineBreaks();
    void noPicture_data();
    void noPicture();
    void tooManyPixels();
    void tooMuchBase64();
    void picturesWithoutABindingHeader_data();
    void picturesWithoutABindingHeader();
    void damagedPictures_data();
    void damagedPictures();
    void otherThreadsAreHeard();
    void queueKeepsTheOrder_data();
    void queueKeepsTheOrder();
    void queueAbandoned();
};

void tst_Thumbnail::everyFormat_data()
{
    QTest::addColumn<QByteArray>("format");
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    QVERIFY(formats.contains("png") && formats.contains("jpg") && formats.contains("bmp"));
    for (const QByteArray& format : formats) {
        if (format != "ico" && format != "cur"
            && QImageReader::supportedImageFormats().contains(format))
            QTest::newRow(format.constData()) << format;
    }
}

void tst_Thumbnail::everyFormat()
{
    QFETCH(QByteArray, format);
    for (const QSize size :
         {QSize(380, 286), QSize(190, 143), QSize(7, 5), QSize(1, 1), QSize(1000, 20)}) {
        const QByteArray file =
            fileOf(pattern(size.width(), size.height(), QImage::Format_RGB32), format);
        QVERIFY(!file.isEmpty());
        const QImage thumbnail = Thumbnail::decode(file.toBase64());
        QCOMPARE(thumbnail.size(), QSize(190, 143));
        QCOMPARE(thumbnail, literal(file));
    }
}

void tst_Thumbnail::everyPixelFormat_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("transparent") << int(QImage::Format_ARGB32);
    QTest::newRow("premultiplied") << int(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("opaque") << int(QImage::Format_RGB32);
    QTest::newRow("24 bits") << int(QImage::Format_RGB888);
    QTest::newRow("palette") << int(QImage::Format_Indexed8);
    QTest::newRow("grey") << int(QImage::Format_Grayscale8);
    QTest::newRow("16 bits grey") << int(QImage::Format_Grayscale16);
    QTest::newRow("16 bits a channel") << int(QImage::Format_RGBA64);
    QTest::newRow("black and white") << int(QImage::Format_Mono);
}

void tst_Thumbnail::everyPixelFormat()
{
    QFETCH(int, format);
    const QByteArray file = fileOf(pattern(301, 77, QImage::Format(format)), "png");
    QVERIFY(!file.isEmpty());
    QCOMPARE(Thumbnail::decode(file.toBase64()), literal(file));
}

void tst_Thumbnail::base64WithLineBreaks()
{
    const QByteArray file = fileOf(pattern(40, 30, QImage::Format_RGB32), "png");
    QByteArray text = file.toBase64();
    for (int i = 76; i < text.size(); i += 78)
        text.insert(i, "\r\n");
    QCOMPARE(Thumbnail::decode(text), literal(file));
}

void tst_Thumbnail::noPicture_data()
{
    QTest::addColumn<QByteArray>("base64");
    const QByteArray png = fileOf(pattern(40, 30, QImage::Format_RGB32), "png");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no base64") << QByteArray("?!*#");
    QTest::newRow("base64 of a text") << QByteArray("a picture of a hill").toBase64();
    QTest::newRow("signature alone") << png.left(8).toBase64();
    QTest::newRow("header alone") << png.left(33).toBase64();
    QTest::newRow("no width") << withDimensions(png, 0, 30).toBase64();
    QTest::newRow("a picture that is not encoded") << png;
    QTest::newRow("zeros") << QByteArray(5000, '\0').toBase64();
}

void tst_Thumbnail::noPicture()
{
    QFETCH(QByteArray, base64);
    QVERIFY(Thumbnail::decode(base64).isNull());
}

void tst_Thumbnail::tooManyPixels()
{
    // A flat picture is small as a file, so that a hostile one fits into any project.
    QImage large(8000, 8000, QImage::Format_Mono);
    large.fill(1);
    const QByteArray allowed = fileOf(large, "png");
    QVERIFY(!Thumbnail::decode(allowed.toBase64()).isNull());
    const QByteArray tooLarge = fileOf(QImage(8001, 8000, QImage::Format_Mono), "png");
    QVERIFY(!QImage::fromData(tooLarge).isNull());
    QVERIFY(Thumbnail::decode(tooLarge.toBase64()).isNull());

    const QByteArray png = fileOf(pattern(40, 30, QImage::Format_RGB32), "png");
    QCOMPARE(withDimensions(png, 40, 30), png);
    QVERIFY(Thumbnail::decode(withDimensions(png, 900'000, 900'000).toBase64()).isNull());
    QVERIFY(Thumbnail::decode(withDimensions(png, 0x7FFFFFFF, 0x7FFFFFFF).toBase64()).isNull());
}

void tst_Thumbnail::tooMuchBase64()
{
    constexpr int limit = 16 * 1024 * 1024;
    const QByteArray file = fileOf(pattern(40, 30, QImage::Format_RGB32), "png");
    // What follows a picture's end is of no account to its decoder.
    QByteArray text = file.toBase64(QByteArray::OmitTrailingEquals);
    text += QByteArray(limit - text.size(), 'A');
    QVERIFY(!Thumbnail::decode(text).isNull());
    text += 'A';
    QVERIFY(Thumbnail::decode(text).isNull());
}

void tst_Thumbnail::picturesWithoutABindingHeader_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("vector drawing")
        << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"30\">"
                      "<rect width=\"40\" height=\"30\" fill=\"red\"/></svg>");
    const QByteArray png = fileOf(pattern(300, 300, QImage::Format_ARGB32), "png");
    QByteArray icon("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0", 14);
    char bytes[8];
    qToLittleEndian(quint32(png.size()), bytes);
    qToLittleEndian(quint32(22), bytes + 4);
    icon.append(bytes, 8);
    QTest::newRow("an icon of 16 pixels that holds 300") << icon + png;
}

void tst_Thumbnail::picturesWithoutABindingHeader()
{
    QFETCH(QByteArray, file);
    if (QImage::fromData(file).isNull())
        QSKIP("this Qt has no decoder for it");
    QVERIFY(Thumbnail::decode(file.toBase64()).isNull());
}

void tst_Thumbnail::damagedPictures_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("png");
    QTest::newRow("JPEG") << QByteArray("jpg");
    QTest::newRow("BMP") << QByteArray("bmp");
}

void tst_Thumbnail::damagedPictures()
{
    QFETCH(QByteArray, format);
    QRandomGenerator random(11);
    const QByteArray sound = fileOf(pattern(60, 40, QImage::Format_RGB32), format);
    QList<QByteArray> files;
    for (int round = 0; round < 400; ++round) {
        QByteArray file = round % 2 ? sound : sound.left(random.bounded(sound.size()) + 1);
        for (int flips = random.bounded(1, 4); flips > 0; --flips)
            file[random.bounded(file.size())] = char(random.bounded(256));
        files.append(file);
    }

    QTemporaryFile printed;
    QVERIFY(printed.open());
    const QtMessageHandler before = qInstallMessageHandler(countMessage);
    messages = 0;
    QList<QImage> expected;
    QList<QImage> thumbnails;
    {
        const ErrorsTo nowhere(QStringLiteral("/dev/null"));
        for (const QByteArray& file : qAsConst(files))
            expected.append(literal(file));
    }
    const int heardFromQt = messages.exchange(0);
    {
        const ErrorsTo recorded(printed.fileName());
        for (const QByteArray& file : qAsConst(files))
            thumbnails.append(Thumbnail::decode(file.toBase64()));
    }
    const QtMessageHandler after = qInstallMessageHandler(before);

    QVERIFY2(after == countMessage, "the host's message handler is back");
    QVERIFY2(format == "bmp" || heardFromQt > 0, "its decoder does print otherwise");
    QCOMPARE(messages.load(), 0);
    QCOMPARE(printed.readAll(), QByteArray());
    for (int i = 0; i < files.size(); ++i) {
        // A changed header can ask for a picture too large, or make it another kind of picture.
        if (thumbnails[i].isNull() && !expected[i].isNull())
            QVERIFY(QImage::fromData(files[i]).sizeInBytes() > 64'000'000);
        else if (format == "bmp") // Pixels that the file lacks are whatever the memory held.
            QCOMPARE(thumbnails[i].size(), expected[i].size());
        else
            QCOMPARE(thumbnails[i], expected[i]);
    }
}

void tst_Thumbnail::otherThreadsAreHeard()
{
    const QByteArray file = fileOf(pattern(600, 400, QImage::Format_RGB32), "jpg");
    const QByteArray damaged = file.left(file.size() / 2).toBase64();
    const QtMessageHandler before = qInstallMessageHandler(countMessage);
    messages = 0;
    std::atomic<bool> done = false;
    std::thread decoding([&] {
        while (!done)
            Thumbnail::decode(damaged);
    });
    for (int i = 0; i < 1000; ++i)
        qWarning("heard");
    done = true;
    decoding.join();
    qInstallMessageHandler(before);
    QCOMPARE(messages.load(), 1000);
}

void tst_Thumbnail::queueKeepsTheOrder_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("more than wait") << 500;
}

void tst_Thumbnail::queueKeepsTheOrder()
{
    QFETCH(int, count);
    QList<QByteArray> pictures;
    for (int i = 0; i < 7; ++i) {
        QImage image(50, 40, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(i * 40, 200, 200));
        pictures.append(fileOf(image, "png").toBase64());
    }
    pictures.append(QByteArray());
    pictures.append("damaged");

    ThumbnailQueue queue;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < count; ++i)
            queue.add(pictures[i % pictures.size()]);
        const std::deque<QImage> images = queue.takeImages();
        QCOMPARE(int(images.size()), count);
        for (int i = 0; i < count; ++i)
            QCOMPARE(images[std::size_t(i)], Thumbnail::decode(pictures[i % pictures.size()]));
    }
}

void tst_Thumbnail::queueAbandoned()
{
    const QByteArray picture = fileOf(pattern(200, 200, QImage::Format_RGB32), "png").toBase64();
    for (int round = 0; round < 50; ++round) {
        ThumbnailQueue queue;
        for (int i = 0; i < round % 5; ++i)
            queue.add(picture);
    }
}

QTEST_GUILESS_MAIN(tst_Thumbnail)
#include "tst_Thumbnail.moc"
