// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseWidget.h>

#include <QDirIterator>
#include <QImage>
#include <QImageReader>
#include <QMap>
#include <QPainter>
#include <QRegularExpression>
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

/// The pictures that the library has, by name, and their sizes.
QMap<QString, QSize> wantedSizes()
{
    const QSize dialogButton(82, 34);
    QMap<QString, QSize> sizes{
        {"Common_close1_but_nor.png", {32, 32}},
        {"Exclamation_mark.png", {43, 43}},
        {"GNSS_plumb_PIC_1.png", {141, 186}},
        {"corvellogo42.png", {43, 43}},
        {"ProjMgr/titl_logo.png", {34, 24}},
        {"ProjMgr/btn_nor.png", dialogButton},
        {"ProjMgr/btn_hovpre.png", dialogButton},
        {"ProjMgr/btn_gray.png", dialogButton},
        {"Tarnplan/tool_Right_Triangle_but_nor.png", {50, 50}},
        {"Tarnplan_ic_24.png", {24, 24}},
        {"Thumbnails.png", {190, 143}},
    };
    const auto addFamily = [&sizes](const char* name, const QStringList& states, QSize size) {
        for (const QString& state : states)
            sizes.insert(QString("%1_%2.png").arg(name, state), size);
    };
    const QStringList two = {"nor", "hov"};
    const QStringList three = {"nor", "hov", "per"};
    for (const char* name : {"eng_close_but", "eng_max_but", "eng_win_but"})
        addFamily(name, three, {30, 30});
    for (const char* name : {"eng_new_but", "eng_Copy_but", "eng_Delete_but", "eng_back_but"})
        addFamily(name, three, {72, 33});
    addFamily("eng_search_but", three, {40, 32});
    for (const char* name : {"eng_search_arrow", "eng_search_arrow1"})
        addFamily(name, two, {21, 21});
    return sizes;
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
    void everyPictureHasASize();
    void sourcesNamePicturesThatAreThere();
    void showsOnBothGrounds_data();
    void showsOnBothGrounds();
    void statesDiffer();
    void loadingMovie();
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
    const QMap<QString, QSize> sizes = wantedSizes();
    for (auto size = sizes.cbegin(); size != sizes.cend(); ++size)
        QTest::newRow(qPrintable(size.key())) << size.value();
}

void tst_Pictures::size()
{
    QFETCH(QSize, size);
    const QString path = root + QTest::currentDataTag();
    const QImage image(path);
    QCOMPARE(image.size(), size);
    // A plate has round corners, and what has none does not fill the picture.
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(QImage(twinOf(path)).pixelColor(0, 0).alpha(), 0);
}

void tst_Pictures::everyPictureHasASize()
{
    QStringList names;
    for (const QString& path : pictures())
        names.append(path.mid(root.size()));
    QCOMPARE(names, QStringList(wantedSizes().keys()));
}

void tst_Pictures::sourcesNamePicturesThatAreThere()
{
    static const QRegularExpression name(":/images/Normal/[\\w/@]+\\.(png|gif)");
    QStringList missing;
    int found = 0;
    QDirIterator files(RK_SOURCE_DIR "/RkBaseUI", {"*.cpp", "*.h", "*.ui"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto match = name.globalMatch(QString::fromUtf8(file.readAll()));
        while (match.hasNext()) {
            const QString path = match.next().captured();
            ++found;
            if (QImage(path).isNull())
                missing.append(path + " in " + file.fileName());
        }
    }
    QVERIFY(found > 20);
    QCOMPARE(missing, QStringList());
}

void tst_Pictures::showsOnBothGrounds_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QColor>("ground");
    for (const QString& path : pictures()) {
        const QByteArray name = path.mid(root.size()).toUtf8();
        QTest::newRow(name + " on navy") << path << QColor(4, 21, 46);
        QTest::newRow(name + " on white") << path << QColor(Qt::white);
    }
}

void tst_Pictures::showsOnBothGrounds()
{
    QFETCH(QString, path);
    QFETCH(QColor, ground);
    const QImage picture(path);
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter(&image).drawImage(0, 0, picture);
    // Pixels that are clearly not the ground: those of a thin cross at the least.
    int clear = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            clear += qAbs(pixel.lightness() - ground.lightness()) > 40;
        }
    }
    QVERIFY2(clear >= 20, qPrintable(QString::number(clear)));
}

void tst_Pictures::statesDiffer()
{
    QMap<QString, QVector<QImage>> families;
    static const QRegularExpression state("_(nor|hov|per|hovpre|gray)\\.png$");
    for (const QString& path : pictures())
        families[QString(path).remove(state)].append(QImage(path));
    for (auto family = families.cbegin(); family != families.cend(); ++family) {
        for (int i = 0; i < family->size(); ++i) {
            for (int j = 0; j < i; ++j)
                QVERIFY2(family->at(i) != family->at(j), qPrintable(family.key()));
        }
    }
}

void tst_Pictures::loadingMovie()
{
    QFile file(root + "loading.gif");
    QFile twin(root + "loading@2x.gif");
    QVERIFY(file.open(QIODevice::ReadOnly) && twin.open(QIODevice::ReadOnly));
    QVERIFY(file.size() <= 250 * 1024);
    QCOMPARE(file.readAll(), twin.readAll());

    QImageReader reader(root + "loading.gif");
    QCOMPARE(reader.imageCount(), 24);
    QCOMPARE(reader.loopCount(), -1);
    QVector<QImage> frames;
    for (int i = 0; i < 24; ++i) {
        frames.append(reader.read());
        QCOMPARE(frames.last().size(), QSize(600, 600));
        QCOMPARE(frames.last().pixelColor(0, 0).alpha(), 0);
        QCOMPARE(frames.last().pixelColor(300, 300).alpha(), 0);
        QVERIFY(colourCount(frames.last()) > 12);
        QCOMPARE(reader.nextImageDelay(), 40);
        for (int j = 0; j < i; ++j)
            QVERIFY(frames.at(i) != frames.at(j));
    }
    QImageReader dense(root + "loading@2x.gif");
    QCOMPARE(dense.read().devicePixelRatio(), 2.0);
}

void tst_Pictures::twin_data()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = pictures();
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
