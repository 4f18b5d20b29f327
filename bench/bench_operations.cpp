// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Copying, renaming and deleting one of 5,000 projects. The floor is a plain program that makes the
// same file system calls and sends the same statements through the SQLite C API.

#include "Bench.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkMessageBox.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <samples/SampleProjects.h>

#include <RkAlgorthm/RkAlgorthm.h>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QGraphicsScene>
#include <QImage>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <sqlite3.h>

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int count = 5000;
constexpr int runs = 15;

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double median(std::vector<double> seconds)
{
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[runs / 2];
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

/// Answers the question of the deletion.
class Answerer : public QObject
{
public:
    Answerer() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<CRkMessageBox*>(watched);
        if (box && event->type() == QEvent::Show) {
            QTimer::singleShot(0, box, [box] {
                box->findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->click();
            });
        }
        return false;
    }
};

Clock::time_point removed;

class PlainDatabase
{
public:
    explicit PlainDatabase(const std::string& file)
    {
        sqlite3_open_v2(file.c_str(), &m_database, SQLITE_OPEN_READWRITE, nullptr);
    }
    ~PlainDatabase() { sqlite3_close(m_database); }
    Q_DISABLE_COPY(PlainDatabase)

    void exec(const QByteArray& sql)
    {
        sqlite3_exec(m_database, sql.constData(), nullptr, nullptr, nullptr);
    }

    /// The column of the first row.
    QByteArray value(const QByteArray& sql, const char* column)
    {
        QByteArray found;
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(m_database, sql.constData(), -1, &statement, nullptr);
        if (sqlite3_step(statement) == SQLITE_ROW) {
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                if (qstrcmp(sqlite3_column_name(statement, i), column) == 0)
                    found =
                        QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)),
                                   sqlite3_column_bytes(statement, i));
            }
        }
        sqlite3_finalize(statement);
        return found;
    }

private:
    sqlite3* m_database = nullptr;
};

const QByteArray project = ProjectTableName.toUtf8();
const QByteArray areas = SurveyAreaTableName.toUtf8();
const QByteArray missions = MissionTableName.toUtf8();

std::string plainFile(const std::string& root, const std::string& name)
{
    return root + name + "/" + name + ".proj";
}

void copyPlainly(const std::vector<std::string>& files, const std::string& root,
                 const std::string& source, const std::string& name)
{
    // The rule of the name looks at every file.
    long there = 0;
    for (const std::string& file : files)
        there += access(file.c_str(), F_OK) == 0;
    if (there == 0)
        std::abort();
    const std::string target = plainFile(root, name);
    fs::create_directory(root + name);
    fs::copy_file(source, target);
    const int descriptor = open(target.c_str(), O_RDWR | O_CLOEXEC);
    fdatasync(descriptor);
    close(descriptor);
    {
        PlainDatabase database(target);
        database.exec("BEGIN");
        database.exec("UPDATE " + project + " SET id = 'p'");
        database.exec("UPDATE " + project + " SET project_name = 'n'");
        database.exec("UPDATE " + areas + " SET project_id='p'");
        database.exec("UPDATE " + areas + " SET id='s'");
        database.exec("UPDATE " + areas + " SET survey_area_guid='s'");
        database.exec("UPDATE " + missions + " SET survey_block_id='s'");
        database.exec("UPDATE " + missions + " SET id='m'");
        database.exec("UPDATE " + missions + " SET id='m'");
        database.exec("COMMIT");
    }
    PlainDatabase database(target);
    const QByteArray image = database.value("select * from " + project, "image_data");
    database.value("select survey_area_coordinate_points from " + areas,
                   "survey_area_coordinate_points");
    const QImage picture = QImage::fromData(QByteArray::fromBase64(image))
                               .scaled(190, 143, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (picture.isNull())
        std::abort();
}

void renamePlainly(const std::string& root, const std::string& name, const std::string& newName)
{
    const std::string file = plainFile(root, newName);
    fs::create_directory(root + newName);
    fs::rename(plainFile(root, name), file);
    const std::string companion = root + name + "/" + name + "_flight.db";
    if (access(companion.c_str(), F_OK) == 0)
        fs::rename(companion, root + newName + "/" + newName + "_flight.db");
    {
        PlainDatabase database(file);
        const QByteArray version = QByteArray::number(
            database.value("select version from " + project, "version").toInt() + 1);
        database.exec("UPDATE " + project + " SET project_name = 'n'");
        database.exec("UPDATE " + project + " SET version=" + version);
        database.exec("UPDATE " + project + " SET updated_at=2026-01-01 00:00:00");
    }
    fs::remove(root + name);
}

} // namespace

/// Takes the place of the system's function, which Qt calls: until here a deletion is the user's
/// time and that of the box with the question.
extern "C" Q_DECL_EXPORT int unlink(const char* path) noexcept
{
    removed = Clock::now();
    return unlinkat(AT_FDCWD, path, 0);
}

int main(int argc, char* argv[])
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath("config")));
    qputenv("QT_QPA_PLATFORM", "offscreen"); // Message boxes come up without a display server.
    const QApplication application(argc, argv);
    QSettings(OrganizationName, CloundApplicationName)
        .setValue(UserInfoGroupName + '/' + UserInfoUserID, sampleUserId());

    SampleOptions options;
    options.root = folder.filePath("projects/");
    options.userId = sampleUserId();
    options.count = count;
    options.now = QDateTime(QDate(2026, 6, 1), QTime(12, 0));
    options.withSpecialCases = false;
    const QStringList files = writeSampleProjects(options);
    if (files.size() != count)
        std::abort();
    qputenv("RK_PROJECT_DIR", QFile::encodeName(options.root));

    QWidget parent;
    parent.resize(960, 600);
    CRkProjectManagerView view(&parent);
    parent.show();
    QList<CRkGraphicsProjectRectItem*> tiles = tilesOf(view);
    const std::string root = options.root.toStdString();
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(file.toStdString());

    std::vector<double> ours;
    std::vector<double> floor;
    const auto tileFor = [&](int run) { return tiles[(run * 331) % tiles.size()]; };

    for (int run = 0; run < runs; ++run) {
        CRkGraphicsProjectRectItem* tile = tileFor(run);
        tile->setSelected(true);
        const auto start = Clock::now();
        view.slotCopyProject();
        ours.push_back(secondsSince(start));
        QApplication::processEvents();
        const std::string source = tile->GetProjectFilePath().toStdString();
        floor.push_back(bench::medianSeconds(
            1, [&] { copyPlainly(paths, root, source, "plain copy " + std::to_string(run)); }));
    }
    if (tilesOf(view).size() != count + runs)
        std::abort();
    bool met =
        bench::report("copy a project / plain program", count, median(ours), median(floor), 2);

    ours.clear();
    floor.clear();
    for (int run = 0; run < runs; ++run) {
        CRkGraphicsProjectRectItem* tile = tileFor(run);
        const auto start = Clock::now();
        emit tile->GetTextItem()->editFinished(QString("renamed %1").arg(run));
        ours.push_back(secondsSince(start));
        QApplication::processEvents();
        if (!QFileInfo(tile->GetProjectFilePath()).fileName().startsWith("renamed"))
            std::abort();
        floor.push_back(bench::medianSeconds(1, [&] {
            renamePlainly(root, "renamed " + std::to_string(run), "plain " + std::to_string(run));
        }));
        tile->SetProjectFilePath(options.root + QString("plain %1/plain %1.proj").arg(run));
    }
    met &= bench::report("rename a project / plain program", count, median(ours), median(floor), 2);

    ours.clear();
    floor.clear();
    const Answerer answerer;
    for (int run = 0; run < runs; ++run) {
        CRkGraphicsProjectRectItem* tile = tiles.takeAt((run * 331) % tiles.size());
        // Another project file, whose tile is then not used any more.
        const QByteArray other = QFile::encodeName(tiles.takeLast()->GetProjectFilePath());
        const QString file = tile->GetProjectFilePath();
        tile->setSelected(true);
        view.slotDeleteProject();
        ours.push_back(secondsSince(removed));
        if (QFileInfo::exists(file))
            std::abort();
        QApplication::processEvents();
        floor.push_back(bench::medianSeconds(1, [&other] { unlink(other.constData()); }));
    }
    met &= bench::report("delete a project / plain program", count, median(ours), median(floor), 2);
    return met ? 0 : 1;
}
