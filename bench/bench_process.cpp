// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Bench.h"

#include <RkBaseUI/CRkProcessDialog.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QMovie>
#include <QTimer>

#include <ctime>

namespace {

/// The CPU time, in seconds, that all threads of this process take in one second of an idle event
/// loop.
double cpuSecondsOfOneSecond()
{
    const std::clock_t start = std::clock();
    QElapsedTimer timer;
    timer.start();
    QEventLoop loop;
    QTimer::singleShot(1000, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    const double cpu = double(std::clock() - start) / CLOCKS_PER_SEC;
    return cpu * 1000 / double(timer.elapsed());
}

struct Load
{
    double first; ///< The second in which every frame is read for the first time.
    double later; ///< The median of the seconds after that.
};

Load load(QWidget& window)
{
    window.show();
    Load load{};
    load.first = cpuSecondsOfOneSecond();
    std::vector<double> seconds;
    for (int i = 0; i < 7; ++i)
        seconds.push_back(cpuSecondsOfOneSecond());
    std::sort(seconds.begin(), seconds.end());
    load.later = seconds[seconds.size() / 2];
    window.hide();
    return load;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);

    QLabel bare;
    QMovie movie(QStringLiteral(":/images/Normal/loading.gif"));
    if (!movie.isValid())
        return 2;
    movie.setScaledSize({150, 150});
    movie.start();
    bare.setMovie(&movie);
    bare.resize(299, 150);
    const Load floor = load(bare);
    movie.stop();

    CRkProcessDialog dialog(nullptr);
    dialog.setSumNum(10);
    const Load ours = load(dialog);

    bool met = bench::report("busy dialog, CPU of a second / one core", 1, ours.later, 1.0, 0.03);
    met &=
        bench::report("busy dialog, CPU of the first second / one core", 1, ours.first, 1.0, 0.1);
    met &= bench::report("busy dialog / bare movie in a label", 1, ours.later, floor.later, 1.0);
    return met ? 0 : 1;
}
