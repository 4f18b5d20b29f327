// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Loading the city catalogue, against reading the same rows with the SQLite C API and parsing their
// numbers with std::from_chars. The catalogue loads once in a process, so each measurement is a
// process of its own: the program starts itself with "--once".

#include "Bench.h"

#include <RkBaseUI/RkCityCategory.h>

#include <QCoreApplication>
#include <QProcess>
#include <QSqlDatabase>
#include <QStringList>

#include <sqlite3.h>

#include <charconv>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr int runs = 31;

struct Place
{
    std::string name;
    std::string letter;
    int parent = 0;
    int level = 0;
    double lat = 0.0;
    double lng = 0.0;
    std::vector<std::pair<double, double>> outline;
};

std::vector<std::pair<double, double>> parseOutline(std::string_view text)
{
    std::vector<std::pair<double, double>> outline;
    const char* position = text.data();
    const char* const end = position + text.size();
    while (position < end) {
        double longitude = 0.0;
        double latitude = 0.0;
        position = std::from_chars(position, end, longitude).ptr + 1;
        position = std::from_chars(position, end, latitude).ptr + 1;
        outline.emplace_back(latitude, longitude);
    }
    return outline;
}

std::string_view column(sqlite3_stmt* statement, int index)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, index));
    return text ? std::string_view(text, std::size_t(sqlite3_column_bytes(statement, index)))
                : std::string_view();
}

/// Every row once, each number parsed once.
std::vector<Place> readPlainly(const std::string& file)
{
    std::vector<Place> places;
    sqlite3* handle = nullptr;
    const int opened = sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(handle, sqlite3_close);
    sqlite3_stmt* prepared = nullptr;
    if (opened != SQLITE_OK
        || sqlite3_prepare_v2(handle,
                              "select name,letter,parent_id,level,lat,lng,polyline from city", -1,
                              &prepared, nullptr)
            != SQLITE_OK) {
        return places;
    }
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(prepared,
                                                                               sqlite3_finalize);
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        places.push_back({std::string(column(prepared, 0)),
                          std::string(column(prepared, 1)),
                          sqlite3_column_int(prepared, 2),
                          sqlite3_column_int(prepared, 3),
                          sqlite3_column_double(prepared, 4),
                          sqlite3_column_double(prepared, 5),
                          {}});
        if (places.back().level == 2)
            places.back().outline = parseOutline(column(prepared, 6));
    }
    return places;
}

/// Prints the seconds of the catalogue, those of the floor, and the number of places.
int measureOnce()
{
    const std::string file =
        QCoreApplication::applicationDirPath().toStdString() + "/ChinaAdminiDstrict.db";
    // The driver is a plugin; loading it is no part of either side.
    QSqlDatabase::addDatabase("QSQLITE").setDatabaseName(":memory:");
    QSqlDatabase::database().open();

    std::vector<Place> places = readPlainly(file);
    const double floor = bench::medianSeconds(1, [&] { places = readPlainly(file); });
    const RkCityCategory* catalogue = nullptr;
    const double ours = bench::medianSeconds(1, [&] { catalogue = &RkCityCategory::instance(); });
    if (places.empty() || catalogue->centreByName().size() != int(places.size()))
        return 1;
    std::printf("%.9f %.9f %zu\n", ours, floor, places.size());
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains("--once"))
        return measureOnce();

    std::vector<double> ours;
    std::vector<double> floor;
    long places = 0;
    for (int run = 0; run < runs; ++run) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--once"});
        process.waitForFinished(-1);
        const QStringList fields = QString(process.readAllStandardOutput()).split(' ');
        if (process.exitCode() != 0 || fields.size() != 3) {
            std::fprintf(stderr, "the catalogue beside the program cannot be read\n");
            return 1;
        }
        ours.push_back(fields.at(0).toDouble());
        floor.push_back(fields.at(1).toDouble());
        places = fields.at(2).toLong();
    }
    std::sort(ours.begin(), ours.end());
    std::sort(floor.begin(), floor.end());
    return bench::report("city catalogue load / plain SQLite", places, ours[runs / 2],
                         floor[runs / 2], 2.0)
        ? 0
        : 1;
}
