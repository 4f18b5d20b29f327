// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Listing and filtering of project tiles. The floor of the listing is a plain loop over the same
// files: the SQLite C API, the same two selects, and the same thumbnails decoded and scaled, one
// after the other.

#include "Bench.h"

#include <RkBaseUI/CRkGraphicsProjectImageItem.h>
#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/RkCityCategory.h>
#include <samples/SampleProjects.h>

#include <RkAlgorthm/RkAlgorthm.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGraphicsScene>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cstdlib>
#include <memory>

namespace {

constexpr int runs = 5;

std::unique_ptr<CRkProjectManagerView> makeView()
{
    QWidget parent;
    parent.resize(960, 600);
    auto view = std::make_unique<CRkProjectManagerView>(&parent);
    view->setParent(nullptr);
    return view;
}

QList<CRkGraphicsProjectRectItem*> tilesOf(const CRkProjectManagerView& view)
{
    QList<CRkGraphicsProjectRectItem*> tiles;
    const QList<QGraphicsItem*> items = view.scene()->items(Qt::AscendingOrder);
    for (QGraphicsItem* item : items) {
        if (auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item))
            tiles.append(tile);
    }
    return tiles;
}

/// What the floor keeps of the files, so that no work can be left out.
struct Floor
{
    int thumbnails = 0;
    long outlineBytes = 0;
};

QByteArray columnNamed(sqlite3_stmt* statement, const char* name)
{
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        if (qstrcmp(sqlite3_column_name(statement, i), name) == 0) {
            return QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)),
                              sqlite3_column_bytes(statement, i));
        }
    }
    return {};
}

void readPlainly(const QByteArray& file, const QByteArray& userId, Floor& floor)
{
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    sqlite3_open_v2(file.constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    const QByteArray project =
        "select * from " + ProjectTableName.toUtf8() + " where user_id='" + userId + "'";
    sqlite3_prepare_v2(database, project.constData(), -1, &statement, nullptr);
    QByteArray id;
    QByteArray image;
    if (sqlite3_step(statement) == SQLITE_ROW) {
        id = columnNamed(statement, "id");
        image = columnNamed(statement, "image_data");
    }
    sqlite3_finalize(statement);

    const QByteArray outlines = "select survey_area_coordinate_points from "
        + SurveyAreaTableName.toUtf8() + " where project_id='" + id + "'";
    sqlite3_prepare_v2(database, outlines.constData(), -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW)
        floor.outlineBytes += sqlite3_column_bytes(statement, 0);
    sqlite3_finalize(statement);
    sqlite3_close(database);

    const QImage picture = QImage::fromData(QByteArray::fromBase64(image))
                               .scaled(190, 143, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    floor.thumbnails += picture.isNull() ? 0 : 1;
}

QByteArrayList allProjectFiles(const QString& root)
{
    QByteArrayList files;
    const QStringList folders =
        QDir(root).entryList(QDir::AllDirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString& folder : folders) {
        const QStringList names =
            QDir(root + folder).entryList({"*.proj"}, QDir::Files, QDir::Unsorted);
        for (const QString& name : names)
            files.append(QFile::encodeName(root + folder + '/' + name));
    }
    return files;
}

double plainLoopSeconds(const QString& root)
{
    return bench::medianSeconds(runs, [&root] {
        Floor floor;
        const QByteArrayList files = allProjectFiles(root);
        for (const QByteArray& file : files)
            readPlainly(file, sampleUserId().toUtf8(), floor);
        if (floor.thumbnails != files.size() || floor.outlineBytes == 0)
            std::abort();
    });
}

double listingSeconds(const QString& root, int count)
{
    qputenv("RK_PROJECT_DIR", QFile::encodeName(root));
    std::unique_ptr<CRkProjectManagerView> view;
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        view.reset(); // Taking the last one down is not what is measured.
        seconds.push_back(bench::medianSeconds(1, [&view] { view = makeView(); }));
    }
    if (tilesOf(*view).size() != count)
        std::abort();
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[runs / 2];
}

QString makeProjects(const QTemporaryDir& folder, int count)
{
    SampleOptions options;
    options.root = folder.filePath(QString("%1/").arg(count));
    options.userId = sampleUserId();
    options.count = count;
    options.now = QDateTime(QDate(2026, 6, 1), QTime(12, 0));
    options.withSpecialCases = false;
    if (writeSampleProjects(options).size() != count)
        std::abort();
    return options.root;
}

long residentBytes()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLong() * 4096 : 0;
}

/// Bytes of one tile without the pixels of its thumbnail. Run in a process that has made nothing
/// before.
double bytesPerTile(const QString& root, int count)
{
    qputenv("RK_PROJECT_DIR", QFile::encodeName(root));
    RkCityCategory::instance();
    const QPixmap warmUp(":/images/Normal/Thumbnails.png");
    const long before = residentBytes();
    const std::unique_ptr<CRkProjectManagerView> view = makeView();
    const long after = residentBytes();
    qint64 pixels = 0;
    const QList<CRkGraphicsProjectRectItem*> tiles = tilesOf(*view);
    for (const CRkGraphicsProjectRectItem* tile : tiles)
        pixels += tile->GetImageItem()->pixmap().toImage().sizeInBytes();
    return double(after - before - pixels) / count;
}

/// One pass that lets half of the tiles pass, with all three conditions in use.
double filterSeconds(const QString& root)
{
    qputenv("RK_PROJECT_DIR", QFile::encodeName(root));
    const std::unique_ptr<CRkProjectManagerView> view = makeView();
    const QList<CRkGraphicsProjectRectItem*> tiles = tilesOf(*view);
    for (int i = 0; i < tiles.size(); ++i) {
        // One in six fails by each condition; the others pass all.
        tiles[i]->SetProjectFilePath(
            QString("/projects/%1/%1.proj").arg(i % 6 == 0 ? "Dale" : "Hill"));
        tiles[i]->SetProvinceCityList({i % 6 == 1 ? "Xiamen" : "Chengdu", "a province"});
        tiles[i]->GetTextItem()->SetPrjModifiedDateTime(i % 6 == 2 ? "2026-04-30 23:59:59"
                                                                   : "2026-05-03 12:00:00");
    }
    QApplication::processEvents();
    const auto filter = [&view](const QString& keyword) {
        view->slotFilterConditionChanged("Chengdu", "2026-05-01 to 2026-05-31", "", keyword);
        return tilesOf(*view).size();
    };
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        view->slotFilterConditionChanged("", "", "", "");
        QApplication::processEvents();
        seconds.push_back(bench::medianSeconds(1, [&view] {
            view->slotFilterConditionChanged("Chengdu", "2026-05-01 to 2026-05-31", "", "hill");
        }));
    }
    if (qAbs(filter("hill") - tiles.size() / 2) > 1 || filter("moor") != 0)
        std::abort();
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[runs / 2];
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath("config")));
    const QApplication application(argc, argv);
    QSettings(OrganizationName, CloundApplicationName)
        .setValue(UserInfoGroupName + '/' + UserInfoUserID, sampleUserId());

    const QString few = makeProjects(folder, 100);
    const QString some = makeProjects(folder, 1000);
    const QString many = makeProjects(folder, 5000);

    const double bytes = bytesPerTile(many, 5000);
    const double listingSome = listingSeconds(some, 1000);
    const double listingMany = listingSeconds(many, 5000);
    bool met =
        bench::report("list projects / plain loop", 1000, listingSome, plainLoopSeconds(some), 0.8);
    met =
        bench::report("list projects / plain loop", 5000, listingMany, plainLoopSeconds(many), 0.8)
        && met;
    met =
        bench::report("list 5000 projects / list 1000", 5000, listingMany, listingSome, 5.5) && met;
    met = bench::report("filter tiles / list 100 projects", 5000, filterSeconds(many),
                        listingSeconds(few, 100), 1.0)
        && met;
    constexpr double limit = 40 * 1024;
    std::printf("%-44s %9d %11.1f KB %35s (<= 40) %s\n", "memory of a tile over its pixels", 5000,
                bytes / 1024, "", bytes <= limit ? "ok" : "MISSED");
    return met && bytes <= limit ? 0 : 1;
}
