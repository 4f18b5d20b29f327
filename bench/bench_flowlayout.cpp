// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Setting out many small items with FlowLayout, against a plain flow layout that does no more than
// one pass over a list, and against itself with half of the items.

#include "Bench.h"

#include <RkBaseUI/FlowLayout.h>

#include <QApplication>
#include <QPushButton>
#include <QStyle>

#include <iterator>

namespace {

constexpr int items = 2000;
constexpr int runs = 31;
constexpr int passes = 50; // in one run, narrow and wide in turn

/// The floor: left to right, a new line where an item does not fit, the spacing of the style.
class PlainFlowLayout : public QLayout
{
public:
    explicit PlainFlowLayout(QWidget* parent)
        : QLayout(parent)
    {
    }
    ~PlainFlowLayout() override { qDeleteAll(m_items); }
    Q_DISABLE_COPY(PlainFlowLayout)

    void addItem(QLayoutItem* item) override { m_items.append(item); }
    int count() const override { return m_items.size(); }
    QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override
    {
        return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
    }
    QSize sizeHint() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return pass({0, 0, width, 0}, false); }
    void setGeometry(const QRect& rect) override
    {
        QLayout::setGeometry(rect);
        pass(rect, true);
    }

private:
    int pass(const QRect& rect, bool place) const
    {
        const QMargins margins = contentsMargins();
        const QRect area = rect.marginsRemoved(margins);
        const QWidget* widget = parentWidget();
        const QStyle* style = widget->style();
        const int across = style->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, widget);
        const int down = style->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, widget);
        QPoint corner = area.topLeft();
        int tallest = 0;
        for (QLayoutItem* item : m_items) {
            const QSize size = item->sizeHint();
            if (corner.x() > area.left() && corner.x() + size.width() > area.right() + 1) {
                corner = {area.left(), corner.y() + tallest + down};
                tallest = 0;
            }
            if (place)
                item->setGeometry({corner, size});
            corner.rx() += size.width() + across;
            tallest = qMax(tallest, size.height());
        }
        return corner.y() + tallest - rect.top() + margins.bottom();
    }

    QList<QLayoutItem*> m_items;
};

/// A widget with that layout, and the items in it.
template <typename Layout>
class Page
{
public:
    Page()
        : m_layout(new Layout(&m_widget))
    {
    }

    /// The widget is not on the screen: what the system does to move buttons is no part of a
    /// layout.
    void addButtons(int count)
    {
        for (int i = 0; i < count; ++i)
            m_layout->addWidget(new QPushButton(QString(1 + i % 17, 'n')));
        m_widget.adjustSize();
    }
    void addSpacers(int count)
    {
        for (int i = 0; i < count; ++i)
            m_layout->addItem(new QSpacerItem(20 + i % 97, 15 + i % 11));
    }

    /// Places the items on a narrow page and a wide one in turn.
    void place()
    {
        for (int i = 0; i < passes; ++i)
            m_layout->setGeometry({0, 0, width(i), 20000});
    }
    /// Asks for the height of a narrow page and a wide one in turn.
    void measure()
    {
        for (int i = 0; i < passes; ++i)
            m_height += m_layout->heightForWidth(width(i));
    }

    /// Where the items lie on the narrow page.
    std::vector<QRect> places()
    {
        m_layout->setGeometry({0, 0, width(0), 20000});
        std::vector<QRect> rects;
        for (int i = 0; i < m_layout->count(); ++i)
            rects.push_back(m_layout->itemAt(i)->geometry());
        return rects;
    }
    int height() const { return m_layout->heightForWidth(width(0)); }

private:
    static int width(int i) { return i % 2 == 0 ? 800 : 1200; }

    QWidget m_widget;
    Layout* m_layout;
    long m_height = 0; // keeps the calls from being left out
};

using Ours = Page<FlowLayout>;
using Plain = Page<PlainFlowLayout>;

/// Runs both in turn, so that whatever else the machine does meets both, and reports one pass.
template <typename First, typename Second>
bool compare(const char* name, int size, double limit, First&& ours, Second&& floor)
{
    std::vector<double> ourSeconds;
    std::vector<double> floorSeconds;
    for (int run = 0; run < runs; ++run) {
        ourSeconds.push_back(bench::medianSeconds(1, ours) / passes);
        floorSeconds.push_back(bench::medianSeconds(1, floor) / passes);
    }
    std::sort(ourSeconds.begin(), ourSeconds.end());
    std::sort(floorSeconds.begin(), floorSeconds.end());
    return bench::report(name, size, ourSeconds[runs / 2], floorSeconds[runs / 2], limit);
}

bool areAlike(Ours& ours, Plain& plain)
{
    return ours.places() == plain.places() && ours.height() == plain.height();
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Ours buttons;
    Ours spacers;
    Ours twiceTheSpacers;
    Plain plainButtons;
    Plain plainSpacers;
    buttons.addButtons(items);
    spacers.addSpacers(items);
    twiceTheSpacers.addSpacers(2 * items);
    plainButtons.addButtons(items);
    plainSpacers.addSpacers(items);
    if (!areAlike(buttons, plainButtons) || !areAlike(spacers, plainSpacers)) {
        std::fprintf(stderr, "the two layouts differ\n");
        return 1;
    }

    const bool met[] = {
        compare(
            "flow layout places buttons / plain one", items, 2.0, [&] { buttons.place(); },
            [&] { plainButtons.place(); }),
        compare(
            "height for width of buttons / plain one", items, 2.0, [&] { buttons.measure(); },
            [&] { plainButtons.measure(); }),
        compare(
            "flow layout places spacers / plain one", items, 2.0, [&] { spacers.place(); },
            [&] { plainSpacers.place(); }),
        compare(
            "height for width of spacers / plain one", items, 2.0, [&] { spacers.measure(); },
            [&] { plainSpacers.measure(); }),
        compare(
            "place 4000 spacers / place 2000", 2 * items, 2.5, [&] { twiceTheSpacers.place(); },
            [&] { spacers.place(); }),
        compare(
            "height for width of 4000 spacers / of 2000", 2 * items, 2.5,
            [&] { twiceTheSpacers.measure(); }, [&] { spacers.measure(); }),
    };
    return std::all_of(std::begin(met), std::end(met), [](bool ok) { return ok; }) ? 0 : 1;
}
