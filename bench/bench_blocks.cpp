// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The block page. The floor of loading is a plain loop with the SQLite C API that answers the same
// questions, one statement after the other, each prepared once: which blocks a project has, where
// each lies, its tasks, and how many flights each task has. For comparison, the same loop with one
// transaction around it, so that its statements do not lock the files one by one. The floor of
// sorting and searching sorts or filters plain records and fills a bare tree with them.

#include "Bench.h"
#include "PlainDatabase.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <sqlite3.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

constexpr int runs = 7;
constexpr int tasksOfABlock = 10;
constexpr int flightsOfATask = 10;
const QString userId = QStringLiteral("user-1");
const QString projectId = QStringLiteral("6f9619ff-8b86-d011-b42d-00c04fc964ff");

/// A prepared statement that is asked again with other values.
class Statement
{
public:
    Statement(const bench::PlainDatabase& database, const QString& sql)
    {
        if (sqlite3_prepare_v2(database.handle(), sql.toUtf8().constData(), -1, &m_handle, nullptr)
            != SQLITE_OK)
            std::abort();
    }
    ~Statement() { sqlite3_finalize(m_handle); }
    Q_DISABLE_COPY(Statement)

    Statement& ask(const QByteArray& value)
    {
        sqlite3_reset(m_handle);
        sqlite3_bind_text(m_handle, 1, value.constData(), value.size(), SQLITE_TRANSIENT);
        return *this;
    }
    bool next() { return sqlite3_step(m_handle) == SQLITE_ROW; }
    int number(int column) const { return sqlite3_column_int(m_handle, column); }
    QByteArray text(int column) const
    {
        return {reinterpret_cast<const char*>(sqlite3_column_text(m_handle, column)),
                sqlite3_column_bytes(m_handle, column)};
    }

private:
    sqlite3_stmt* m_handle = nullptr;
};

/// Names in no order, and types from a few.
QString blockName(int number)
{
    return QString("Block %1").arg((number * 7919L) % 100003, 6, 10, QLatin1Char('0'));
}

QString makeProject(const QTemporaryDir& folder, int blocks)
{
    const QString name = QString::number(blocks);
    const QString file = folder.filePath(name + ".proj");
    const bench::PlainDatabase project(file);
    const bench::PlainDatabase flights(CRkControl::GetFlightMissionFilePath(file));
    for (const bench::PlainDatabase* database : {&project, &flights})
        database->run("PRAGMA synchronous=OFF; BEGIN");
    project.run("CREATE TABLE " + ProjectTableName + GetProjectTableContents());
    project.run("CREATE TABLE " + SurveyAreaTableName + GetSurveyAreaTableContents());
    project.run("CREATE TABLE " + MissionTableName + GetMissionTableContents());
    flights.run("CREATE TABLE " + FlightMissionTableName + GetFlightMissionTableContents());
    project.run("INSERT INTO " + ProjectTableName + " (id, project_name, user_id) VALUES ('"
                + projectId + "','" + name + "','" + userId + "')");
    for (int i = 0; i < blocks; ++i) {
        const QString block = name + "-00c04fc964ff-" + QString::number(i);
        project.run("INSERT INTO " + SurveyAreaTableName
                    + " (id, survey_area_guid, project_id, survey_area_name, camera_type,"
                      " plane_type, block_type, survey_area_coordinate_points) VALUES ('"
                    + block + "','" + block + "','" + projectId + "','" + blockName(i) + "','"
                    + GetCameraStringByType(ECameraType(1 + i % 7)) + "','"
                    + GetPlaneStringByType(EPlaneType(1 + i % 6))
                    + "',1,'30.6512345,104.0612345;30.6512345,104.0712345;30.6612345,104.0712345;"
                      "30.6612345,104.0612345')");
        for (int j = 0; j < tasksOfABlock; ++j) {
            const QString task = block + "-task-" + QString::number(j);
            project.run("INSERT INTO " + MissionTableName
                        + " (id, flight_task_guid, survey_block_id) VALUES ('" + task + "','" + task
                        + "','" + block + "')");
            flights.run("INSERT INTO " + FlightMissionTableName
                        + " (id, flight_task_id) WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL"
                          " SELECT i+1 FROM n LIMIT "
                        + QString::number(flightsOfATask) + ") SELECT '" + task + "-' || i, '"
                        + task + "' FROM n");
        }
    }
    const auto makeIndex = [](const bench::PlainDatabase& database, const QString& table,
                              const char* column) {
        database.run("CREATE INDEX " + table + "_" + column + " ON " + table + " (" + column + ")");
    };
    makeIndex(project, SurveyAreaTableName, "project_id");
    makeIndex(project, MissionTableName, "survey_block_id");
    makeIndex(flights, FlightMissionTableName, "flight_task_id");
    project.run("COMMIT");
    flights.run("COMMIT");
    return file;
}

/// What the floor learns of a project.
struct Answers
{
    int blocks = 0;
    int tasks = 0;
    int flights = 0;
    long textBytes = 0;
};

enum class Locking { EachStatement, Once };

Answers askPlainly(const QString& file, Locking locking)
{
    const bench::PlainDatabase project(file);
    const bench::PlainDatabase flightFile(CRkControl::GetFlightMissionFilePath(file));
    if (locking == Locking::Once) {
        project.run("BEGIN");
        flightFile.run("BEGIN");
    }
    Statement projects(project, "select * from " + ProjectTableName + " where user_id=?");
    Statement blocks(project,
                     "select survey_area_guid, survey_area_name, camera_type, plane_type,"
                     " block_type, survey_area_coordinate_points from "
                         + SurveyAreaTableName + " where project_id=?");
    Statement tasks(
        project, "select flight_task_guid from " + MissionTableName + " where survey_block_id=?");
    Statement flights(
        flightFile, "select count(id) from " + FlightMissionTableName + " where flight_task_id=?");
    Answers answers;
    if (!projects.ask(userId.toUtf8()).next())
        return answers;
    blocks.ask(projects.text(0));
    while (blocks.next()) {
        ++answers.blocks;
        for (int column = 1; column < 6; ++column)
            answers.textBytes += blocks.text(column).size();
        tasks.ask(blocks.text(0));
        while (tasks.next()) {
            ++answers.tasks;
            if (flights.ask(tasks.text(0)).next())
                answers.flights += flights.number(0);
        }
    }
    return answers;
}

double plainLoopSeconds(const QString& file, int blocks, Locking locking = Locking::EachStatement)
{
    return bench::medianSeconds(runs, [&] {
        const Answers answers = askPlainly(file, locking);
        if (answers.blocks != blocks || answers.textBytes == 0
            || answers.flights != blocks * tasksOfABlock * flightsOfATask)
            std::abort();
    });
}

QString labelText(const QWidget& page, const char* name)
{
    return page.findChild<QLabel*>(name)->text();
}

/// First loads: no block is known, and the page is new.
double loadSeconds(const QString& file, int blocks)
{
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        ClearBlocks();
        CRkBlockManagerWidget page;
        page.resize(960, 568);
        page.show();
        QApplication::processEvents();
        seconds.push_back(bench::medianSeconds(1, [&] { page.LoadExistBlocks(file); }));
        if (labelText(page, "labelTotalBlockCount").toInt() != blocks
            || labelText(page, "labelTotalFlightCount").toInt()
                != blocks * tasksOfABlock * flightsOfATask)
            std::abort();
    }
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[runs / 2];
}

using Record = std::array<QString, 5>;

std::vector<Record> recordsOf(const QTreeWidget& tree)
{
    std::vector<Record> records;
    for (int row = 0; row < tree.topLevelItemCount(); ++row) {
        Record record;
        for (int column = 0; column < 5; ++column)
            record[std::size_t(column)] = tree.topLevelItem(row)->text(column);
        records.push_back(record);
    }
    return records;
}

void fill(QTreeWidget& tree, const std::vector<const Record*>& records)
{
    tree.clear();
    QList<QTreeWidgetItem*> items;
    for (const Record* record : records)
        items.append(new QTreeWidgetItem(
            QStringList{(*record)[0], (*record)[1], (*record)[2], (*record)[3], (*record)[4]}));
    tree.addTopLevelItems(items);
}

/// Sorting by the type in a column or, with a text, keeping the names that hold it.
double plainSeconds(const std::vector<Record>& records, std::size_t column, const QString& text)
{
    QTreeWidget tree;
    tree.setColumnCount(5);
    tree.setHeaderHidden(true);
    tree.resize(960, 480);
    tree.show();
    QApplication::processEvents();
    return bench::medianSeconds(runs, [&] {
        std::vector<const Record*> rows;
        for (const Record& record : records) {
            if (text.isEmpty() || record[0].contains(text))
                rows.push_back(&record);
        }
        if (text.isEmpty())
            std::stable_sort(rows.begin(), rows.end(), [&](const Record* a, const Record* b) {
                return (*a)[column] < (*b)[column];
            });
        fill(tree, rows);
    });
}

bool reportTable(const QString& file, int blocks)
{
    CRkBlockManagerWidget page;
    page.resize(960, 568);
    page.show();
    page.LoadExistBlocks(file);
    QApplication::processEvents();
    auto* tree = page.findChild<QTreeWidget*>("treeWidgetBlocks");
    const std::vector<Record> records = recordsOf(*tree);

    // By turns, so that each click finds an order that is not its own.
    std::vector<QPushButton*> headers = {page.findChild<QPushButton*>("pushButtonAirplaneType"),
                                         page.findChild<QPushButton*>("pushButtonCameraType")};
    const double sort = bench::medianSeconds(runs, [&] {
        headers[0]->click();
        std::swap(headers[0], headers[1]);
    });
    tree->topLevelItem(blocks / 2)->setSelected(true);
    const double sortSelected = bench::medianSeconds(runs, [&] {
        headers[0]->click();
        std::swap(headers[0], headers[1]);
    });

    auto* text = page.findChild<QLineEdit*>("lineEditSearch");
    auto* search = page.findChild<QPushButton*>("pushButtonSearch");
    const auto searchSeconds = [&](const QString& sought) {
        std::vector<double> seconds;
        for (int run = 0; run < runs; ++run) {
            text->setText("Block 0000");
            search->click();
            text->setText(sought);
            seconds.push_back(bench::medianSeconds(1, [&] { search->click(); }));
        }
        std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
        return seconds[runs / 2];
    };
    const double searchAll = searchSeconds("Block");
    if (tree->topLevelItemCount() != blocks)
        std::abort();
    const double searchSome = searchSeconds("3");

    bool met = bench::report("sort blocks by type / bare tree", blocks, sort,
                             plainSeconds(records, 1, QString()), 3);
    met = bench::report("sort blocks, one selected / bare tree", blocks, sortSelected,
                        plainSeconds(records, 2, QString()), 3)
        && met;
    met = bench::report("search blocks, all found / bare tree", blocks, searchAll,
                        plainSeconds(records, 0, "Block"), 3)
        && met;
    return bench::report("search blocks, some found / bare tree", blocks, searchSome,
                         plainSeconds(records, 0, "3"), 3)
        && met;
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath("config")));
    const QApplication application(argc, argv);
    QSettings(OrganizationName, CloundApplicationName)
        .setValue(UserInfoGroupName + '/' + UserInfoUserID, userId);

    const QString some = makeProject(folder, 1000);
    const QString many = makeProject(folder, 10000);

    const double loadSome = loadSeconds(some, 1000);
    const double loadMany = loadSeconds(many, 10000);
    bool met = bench::report("load blocks / plain loop", 1000, loadSome,
                             plainLoopSeconds(some, 1000), 1.5);
    met = bench::report("load blocks / plain loop", 10000, loadMany, plainLoopSeconds(many, 10000),
                        1.5)
        && met;
    const double inOneTransaction = plainLoopSeconds(some, 1000, Locking::Once);
    std::printf("%-44s %9d %11.3f ms %11.3f ms %8.3f\n",
                "load blocks / plain loop in a transaction", 1000, loadSome * 1e3,
                inOneTransaction * 1e3, loadSome / inOneTransaction);
    met = bench::report("load 10000 blocks / load 1000", 10000, loadMany, loadSome, 11) && met;
    return reportTable(many, 10000) && met ? 0 : 1;
}
