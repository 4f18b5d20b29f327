// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Making the city picker, against as many bare buttons with the same texts in as many bare flow
// layouts, each on a bare widget; and showing it over and over, late showings against early ones.

#include "Bench.h"

#include <RkBaseUI/CRkCitySelectWidget.h>
#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/RkCityCategory.h>

#include <QApplication>
#include <QPushButton>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr int runs = 41;
constexpr int showings = 100; // of one picker, before and between those that are measured

/// The texts of the buttons, layout by layout.
using Texts = QVector<QStringList>;

Texts textsOf(const QWidget& window)
{
    Texts texts;
    int inLayouts = 0;
    for (const FlowLayout* layout : window.findChildren<FlowLayout*>()) {
        QStringList list;
        for (int i = 0; i < layout->count(); ++i)
            list.append(static_cast<QPushButton*>(layout->itemAt(i)->widget())->text());
        texts.append(list);
        inLayouts += list.size();
    }
    // Those of the form and of the provinces, which stand in other layouts.
    texts.append(QStringList());
    for (const QPushButton* button : window.findChildren<QPushButton*>())
        texts.last().append(button->text());
    texts.last() = texts.last().mid(0, texts.last().size() - inLayouts);
    return texts;
}

int countOf(const Texts& texts)
{
    int count = 0;
    for (const QStringList& list : texts)
        count += list.size();
    return count;
}

std::unique_ptr<QWidget> makePicker()
{
    return std::make_unique<CRkCitySelectWidget>(nullptr);
}

std::unique_ptr<QWidget> makeBareButtons(const Texts& texts)
{
    auto window = std::make_unique<QWidget>();
    for (const QStringList& list : texts) {
        auto* page = new QWidget(window.get());
        auto* layout = new FlowLayout(page);
        for (const QString& text : list)
            layout->addWidget(new QPushButton(text, page));
    }
    return window;
}

/// Runs both in turn, so that whatever else the machine does meets both, and reports the making
/// alone.
bool compareMaking(const Texts& texts)
{
    std::vector<double> ours;
    std::vector<double> floor;
    std::unique_ptr<QWidget> window;
    for (int run = 0; run < runs; ++run) {
        ours.push_back(bench::medianSeconds(1, [&] { window = makePicker(); }));
        window.reset();
        floor.push_back(bench::medianSeconds(1, [&] { window = makeBareButtons(texts); }));
        window.reset();
    }
    std::sort(ours.begin(), ours.end());
    std::sort(floor.begin(), floor.end());
    return bench::report("make city picker / bare buttons", countOf(texts), ours[runs / 2],
                         floor[runs / 2], 2.0);
}

/// Until it is painted and nothing is left to be laid out.
void showAndHide(CRkCitySelectWidget& picker)
{
    picker.InitWidget();
    picker.setFixedHeight(600);
    picker.show();
    while (!picker.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
    picker.hide();
    QApplication::processEvents();
}

bool compareShowings()
{
    CRkCitySelectWidget picker(nullptr);
    picker.setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    const double first = bench::medianSeconds(1, [&] { showAndHide(picker); });
    const double second = bench::medianSeconds(1, [&] { showAndHide(picker); });
    const double early = bench::medianSeconds(runs, [&] { showAndHide(picker); });
    const int objects = picker.findChildren<QObject*>().size();
    for (int i = 0; i < showings; ++i)
        showAndHide(picker);
    const double late = bench::medianSeconds(runs, [&] { showAndHide(picker); });
    if (picker.findChildren<QObject*>().size() != objects)
        std::abort();
    bool met = bench::report("second showing / first", 1, second, first, 1.0);
    met = bench::report("showings after 140 / first 40", showings, late, early, 1.2) && met;
    return met;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    // Reading the catalogue is measured elsewhere.
    if (RkCityCategory::instance().provinceNames().isEmpty()) {
        std::fprintf(stderr, "there is no catalogue\n");
        return 1;
    }
    const bool made = compareMaking(textsOf(*makePicker()));
    return compareShowings() && made ? 0 : 1;
}
