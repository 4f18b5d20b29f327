// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The project manager dialog against the view of the projects alone: opening it, and the time from
// a key in its search field to the repainted tiles.

#include "Bench.h"

#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <samples/SampleProjects.h>

#include <RkAlgorthm/RkAlgorthm.h>

#include <QApplication>
#include <QFile>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>

namespace {

constexpr int runs = 5;

void makeProjects(const QString& root, int count)
{
    SampleOptions options;
    options.root = root;
    options.userId = sampleUserId();
    options.count = count;
    options.now = QDateTime(QDate(2026, 6, 1), QTime(12, 0));
    options.withSpecialCases = false;
    if (writeSampleProjects(options).size() != count)
        std::abort();
}

void useProjects(const QString& root)
{
    qputenv("RK_PROJECT_DIR", QFile::encodeName(root));
}

std::unique_ptr<QWidget> viewAlone()
{
    auto page = std::make_unique<QWidget>();
    page->resize(960, 568);
    new CRkProjectManagerView(page.get());
    return page;
}

std::unique_ptr<QWidget> dialog()
{
    auto dialog = std::make_unique<CRkProjectManagerDialog>();
    dialog->getProjectManagerWidget()->loadDefaultContiditions();
    return dialog;
}

/// Until the window is on the screen.
double secondsToOpen(std::unique_ptr<QWidget> (*make)())
{
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        std::unique_ptr<QWidget> window;
        seconds.push_back(bench::medianSeconds(1, [&window, make] {
            window = make();
            window->show();
            QApplication::processEvents();
        }));
    }
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[runs / 2];
}

double secondsOfKey(const CRkProjectManagerView& view, QLineEdit& search, int key,
                    const QString& text)
{
    return bench::medianSeconds(1, [&] {
        QKeyEvent press(QEvent::KeyPress, key, {}, text);
        QApplication::sendEvent(&search, &press);
        view.viewport()->repaint();
    });
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath("config")));
    const QApplication application(argc, argv);
    QSettings(OrganizationName, CloundApplicationName)
        .setValue(UserInfoGroupName + '/' + UserInfoUserID, sampleUserId());
    const QString many = folder.filePath("many/");
    const QString few = folder.filePath("few/");
    makeProjects(many, 5000);
    makeProjects(few, 150);

    useProjects(many);
    const double alone = secondsToOpen(viewAlone);
    bool met =
        bench::report("open the dialog / view alone", 5000, secondsToOpen(dialog), alone, 1.2);

    CRkProjectManagerDialog shown;
    shown.show();
    QApplication::processEvents();
    const CRkProjectManagerView& view = *shown.getProjectManagerWidget()->getProjectManagerView();
    auto& search = *shown.getProjectManagerWidget()->findChild<QLineEdit*>("lineEditSearch");
    const int all = view.scene()->items().size();
    std::vector<double> fewer;
    std::vector<double> more;
    for (int run = 0; run < runs; ++run) {
        fewer.push_back(secondsOfKey(view, search, Qt::Key_0, "0"));
        if (view.scene()->items().size() >= all)
            std::abort();
        QApplication::processEvents();
        more.push_back(secondsOfKey(view, search, Qt::Key_Backspace, {}));
        if (view.scene()->items().size() != all)
            std::abort();
        QApplication::processEvents();
    }
    std::nth_element(fewer.begin(), fewer.begin() + runs / 2, fewer.end());
    std::nth_element(more.begin(), more.begin() + runs / 2, more.end());

    useProjects(few);
    const double listing = bench::medianSeconds(runs, [] { viewAlone(); });
    met =
        bench::report("a key to fewer tiles / list 150", 5000, fewer[runs / 2], listing, 1) && met;
    met = bench::report("a key to all tiles / list 150", 5000, more[runs / 2], listing, 1) && met;
    return met ? 0 : 1;
}
