// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseWidget.h>

#include <QDirIterator>
#include <QImage>
#include <QSet>
#include <QTest>

namespace {

const QString root = QStringLiteral(":/images/Normal/");

bool isTwin(const QString& path)
{
    return path.endsWith(QLatin1String("@2x.png"));
}

QString twinOf(const QString& path)
{
    return path.chopped(4) + QStringLiteral("@2x.png");
}

/// Every picture in the library but the twins.
QStringList pictures()
{
    QStringList paths;
    QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.endsWith(QLatin1String(".png")) && !isTwin(path))
            paths.append(path);
    }
    paths.sort();
    return paths;
}

/// How many different colours the picture has.
int colourCount(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return colours.size();
}

} // namespace

class tst_Pictures : public QObject
{
    Q_OBJECT

private slots:
    void size_data();
    void size();
    void twin_data();
    void twin();
    void everyTwinHasItsPicture();
    void closeCrossesCover();

private:
    // A use of the library, so that the linker keeps it and its pictures.
    CRkBaseWidget m_widget;
};

void tst_Pictures::size_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("transparent");
    QTest::newRow("ProjMgr/titl_logo.png") << QSize(34, 24) << QPoint(0, 0);
    QTest::newRow("ProjMgr/btn_nor.png") << QSize(82, 34) << QPoint(2, 2);
    QTest::newRow("ProjMgr/btn_hovpre.png") << QSize(82, 34) << QPoint(2, 2);
    QTest::newRow("ProjMgr/btn_gray.png") << QSize(82, 34) << QPoint(2, 2);
    QTest::newRow("Common_close1_but_nor.png") << QSize(32, 32) << QPoint(5, 16);
    QTest::newRow("eng_close_but_nor.png") << QSize(30, 30) << QPoint(5, 15);
    QTest::newRow("eng_close_but_hov.png") << QSize(30, 30) << QPoint(0, 0);
    QTest::newRow("eng_close_but_per.png") << QSize(30, 30) << QPoint(0, 0);
    QTest::newRow("Thumbnails.png") << QSize(190, 143) << QPoint(0, 0);
}

void tst_Pictures::size()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, transparent);
    const QString path = root + QTest::currentDataTag();
    const QImage image(path);
    QCOMPARE(image.size(), size);
    QCOMPARE(image.pixelColor(transparent).alpha(), 0);
    QCOMPARE(QImage(twinOf(path)).pixelColor(transparent * 2).alpha(), 0);
}

void tst_Pictures::twin_data()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = pictures();
    QVERIFY(paths.size() >= 9);
    for (const QString& path : paths)
        QTest::newRow(qPrintable(path.mid(root.size()))) << path;
}

void tst_Pictures::twin()
{
    QFETCH(QString, path);
    const QImage image(path);
    const QImage twin(twinOf(path));
    QVERIFY(!image.isNull());
    QCOMPARE(twin.size(), image.size() * 2);
    QVERIFY(colourCount(image) > 1);
    QVERIFY(colourCount(twin) > 1);

    // The twin is the same drawing, and it is a drawing of its own.
    const QImage whole = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage halved = twin.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    qint64 difference = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb p = whole.pixel(x, y);
            const QRgb q = halved.pixel(x, y);
            difference += qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q))
                + qAbs(qBlue(p) - qBlue(q)) + qAbs(qAlpha(p) - qAlpha(q));
        }
    }
    // On average, less than half a step in each of the four channels.
    QVERIFY(difference < 2 * qint64(image.width()) * image.height());
    QVERIFY(twin != image.scaled(twin.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

void tst_Pictures::everyTwinHasItsPicture()
{
    QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (isTwin(path))
            QVERIFY2(QFile::exists(path.chopped(7) + ".png"), qPrintable(path));
    }
}

// The icon of the close button lies over a background that carries the cross too.
void tst_Pictures::closeCrossesCover()
{
    for (const QString& suffix : {QStringLiteral(".png"), QStringLiteral("@2x.png")}) {
        const QImage icon(root + "Common_close1_but_nor" + suffix);
        const QImage background(root + "eng_close_but_nor" + suffix);
        const QSize margin = (icon.size() - background.size()) / 2;
        QCOMPARE(icon.copy(QRect(QPoint(margin.width(), margin.height()), background.size())),
                 background);
    }
}

QTEST_MAIN(tst_Pictures)
#include "tst_Pictures.moc"
