// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Painting of the small controls, each against the plain control that it is based on, in the same
// state and on the same image, painted over and over without a change in between; and filling a
// list with many tools, against the plain list widget.

#include "Bench.h"

#include <RkBaseUI/CRkActionView.h>
#include <RkBaseUI/CRkGraphicsPixmapItem.h>
#include <RkBaseUI/CRkMenuButton.h>
#include <RkBaseUI/CRkSlider.h>
#include <RkBaseUI/CRkTipPushButton.h>
#include <RkBaseUI/RkHoveredPushButton.h>

#include <QApplication>
#include <QCursor>
#include <QGraphicsScene>
#include <QListWidget>
#include <QPainter>

#include <cstdlib>
#include <functional>

namespace {

constexpr int runs = 21;
constexpr int paints = 500;
constexpr int tools = 10000;
constexpr double limit = 1.5;

/// A plain button that asks for the place of the mouse whenever it is painted, which is a question
/// to the display server on some systems.
class AskingButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (rect().contains(mapFromGlobal(QCursor::pos())))
            std::abort();
        QPushButton::paintEvent(event);
    }
};

using Work = std::function<void()>;

/// Times both in turn, so that whatever else the machine does strikes both alike.
bool compare(const char* name, long size, const Work& ours, const Work& floor)
{
    std::vector<double> oursSeconds;
    std::vector<double> floorSeconds;
    ours();
    floor();
    for (int run = 0; run < runs; ++run) {
        oursSeconds.push_back(bench::medianSeconds(1, ours));
        floorSeconds.push_back(bench::medianSeconds(1, floor));
    }
    std::sort(oursSeconds.begin(), oursSeconds.end());
    std::sort(floorSeconds.begin(), floorSeconds.end());
    return bench::report(name, size, oursSeconds[runs / 2], floorSeconds[runs / 2], limit);
}

QImage canvas()
{
    QImage image(120, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

bool comparePainting(const char* name, QWidget& ours, QWidget& floor)
{
    QImage image = canvas();
    const auto paint = [&image](QWidget& widget) {
        widget.resize(image.size());
        return [&image, &widget] {
            for (int i = 0; i < paints; ++i)
                widget.render(&image);
        };
    };
    return compare(name, paints, paint(ours), paint(floor));
}

bool compareItems()
{
    QPixmap picture(100, 30);
    picture.fill(Qt::blue);
    QGraphicsScene ourScene(0, 0, 120, 40);
    auto* ours = new CRkGraphicsPixmapItem;
    ours->SetNormalPixmap(picture);
    ourScene.addItem(ours);
    QGraphicsScene floorScene(0, 0, 120, 40);
    floorScene.addPixmap(picture);
    QImage image = canvas();
    const auto paint = [&image](QGraphicsScene& scene) {
        return [&image, &scene] {
            QPainter painter(&image);
            for (int i = 0; i < paints; ++i)
                scene.render(&painter);
        };
    };
    return compare("CRkGraphicsPixmapItem / QGraphicsPixmapItem", paints, paint(ourScene),
                   paint(floorScene));
}

bool compareMenuButtons()
{
    QPushButton plain("text");
    CRkMenuButton without(nullptr);
    without.setText("text");
    bool met = comparePainting("CRkMenuButton / QPushButton", without, plain);
    CRkMenuButton with(nullptr);
    with.setText("text");
    with.AddAction("Line", QString(), EToolType(1));
    met = comparePainting("CRkMenuButton with tools / QPushButton", with, plain) && met;
    return met;
}

bool compareTipButtons()
{
    QPushButton plain("text");
    CRkTipPushButton button(nullptr);
    button.setText("text");
    bool met = comparePainting("CRkTipPushButton / QPushButton", button, plain);
    button.SetTipVisible(true);
    met = comparePainting("CRkTipPushButton with dot / QPushButton", button, plain) && met;
    button.SetTipText("3");
    met = comparePainting("CRkTipPushButton with text / QPushButton", button, plain) && met;
    return met;
}

bool compareSliders()
{
    QSlider plain(Qt::Horizontal);
    CRkSlider slider(nullptr);
    slider.setOrientation(Qt::Horizontal);
    for (QSlider* one : {static_cast<QSlider*>(&slider), &plain})
        one->setValue(45);
    slider.SetHandleTextPattern("45%");
    bool met = comparePainting("CRkSlider / QSlider", slider, plain);
    slider.SetLoading(true);
    met = comparePainting("CRkSlider, loading / QSlider", slider, plain) && met;
    return met;
}

bool compareHoveredButtons()
{
    QCursor::setPos(0, 0);
    RkHoveredPushButton button("text", nullptr);
    AskingButton asking("text");
    asking.setStyleSheet(button.styleSheet().replace("RkHoveredPushButton", "QPushButton"));
    for (QPushButton* one :
         {static_cast<QPushButton*>(&button), static_cast<QPushButton*>(&asking)})
        one->move(500, 500);
    bool met = comparePainting("RkHoveredPushButton / QPushButton+mouse", button, asking);

    QPushButton plain("text");
    plain.setStyleSheet(asking.styleSheet());
    for (QPushButton* one : {static_cast<QPushButton*>(&button), &plain})
        one->setAttribute(Qt::WA_UnderMouse);
    met = comparePainting("RkHoveredPushButton, hovered / QPushButton", button, plain) && met;
    return met;
}

bool compareFilling()
{
    const QString picture(":/images/Normal/Common_close1_but_nor.png");
    return compare(
        "fill CRkActionView / QListWidget", tools,
        [&picture] {
            CRkActionView view(nullptr);
            for (int i = 0; i < tools; ++i)
                view.AddItem("text", picture, EToolType(i));
            if (view.GetItemCount() != tools)
                std::abort();
        },
        [&picture] {
            QListWidget list;
            for (int i = 0; i < tools; ++i)
                list.addItem(new QListWidgetItem(QIcon(picture), "text"));
            if (list.count() != tools)
                std::abort();
        });
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    bool met = compareMenuButtons();
    met = compareTipButtons() && met;
    met = compareSliders() && met;
    met = compareHoveredButtons() && met;
    met = compareItems() && met;
    met = compareFilling() && met;
    return met ? 0 : 1;
}
