// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"

#include <RkBaseUI/CRkActionView.h>
#include <RkBaseUI/CRkGraphicsPixmapItem.h>
#include <RkBaseUI/CRkMenuButton.h>
#include <RkBaseUI/CRkParameterEditPage.h>
#include <RkBaseUI/CRkSlider.h>
#include <RkBaseUI/CRkTableDelegate.h>
#include <RkBaseUI/CRkTipPushButton.h>
#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/RkHoveredPushButton.h>

#include <QApplication>
#include <QDir>
#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

namespace {

using GalleryParts::hover;
using GalleryParts::Texts;
using GalleryParts::Window;

/// A sheet of controls, each with its caption below, so many in a row.
class Sheet : public QWidget
{
public:
    explicit Sheet(int columns)
        : m_columns(columns)
    {
        setStyleSheet(QStringLiteral("Sheet, .QWidget { background: white; }"));
        m_grid->setContentsMargins(24, 24, 24, 20);
        m_grid->setHorizontalSpacing(28);
        m_grid->setVerticalSpacing(6);
    }

    void add(QWidget* control, const QString& caption)
    {
        const int row = 2 * (m_count / m_columns);
        const int column = m_count % m_columns;
        auto* label = new QLabel(caption);
        label->setStyleSheet(QStringLiteral("color: rgb(110, 118, 130); margin-bottom: 12px;"));
        m_grid->addWidget(control, row, column, Qt::AlignCenter);
        m_grid->addWidget(label, row + 1, column, Qt::AlignHCenter | Qt::AlignTop);
        ++m_count;
    }

private:
    QGridLayout* const m_grid = new QGridLayout(this);
    const int m_columns;
    int m_count = 0;
};

/// The tools of a host: pictures in a folder, as a menu button looks for them.
class ToolPictures
{
public:
    ToolPictures()
    {
        for (int tool = 0; tool < count; ++tool) {
            write(tool, "tool2", "nor", QColor(220, 228, 240), 32);
            write(tool, "tool", "nor", Qt::white);
            write(tool, "tool", "hov", QColor(232, 237, 246));
            write(tool, "tool", "pre", QColor(196, 219, 252));
        }
    }

    static constexpr int count = 3;

    QString path(int tool) const { return file(tool, "tool2", "nor", 1); }

    static QString name(int tool)
    {
        const QStringList names = {Texts::tr("Line"), Texts::tr("Area"), Texts::tr("Circle")};
        return names.value(tool);
    }

private:
    QString file(int tool, const char* kind, const char* state, int scale) const
    {
        return m_folder.filePath(QStringLiteral("%1_%2_%3%4.png")
                                     .arg(QLatin1String(kind), QString::number(tool),
                                          QLatin1String(state),
                                          scale == 1 ? QString() : QStringLiteral("@2x")));
    }

    void write(int tool, const char* kind, const char* state, const QColor& plate,
               int size = 48) const
    {
        for (const int scale : {1, 2}) {
            QImage image(size * scale, size * scale, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(scale * size / 48.0, scale * size / 48.0);
            painter.setPen(QPen(QColor(169, 187, 216), 1));
            painter.setBrush(plate);
            painter.drawRoundedRect(QRectF(1.5, 1.5, 45, 45), 4, 4);
            painter.setPen(
                QPen(QColor(29, 63, 117), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.setBrush(Qt::NoBrush);
            if (tool == 0)
                painter.drawPolyline(QPolygonF({{13, 34}, {20, 18}, {27, 29}, {35, 13}}));
            else if (tool == 1)
                painter.drawPolygon(QPolygonF({{13, 32}, {17, 14}, {34, 17}, {31, 35}}));
            else
                painter.drawEllipse(QPointF(24, 24), 11, 11);
            painter.end();
            image.save(file(tool, kind, state, scale));
        }
    }

    QTemporaryDir m_folder;
};

const ToolPictures& toolPictures()
{
    static const ToolPictures pictures;
    return pictures;
}

CRkMenuButton* menuButton(const char* name, bool hasTools)
{
    auto* button = new CRkMenuButton;
    button->setObjectName(QLatin1String(name));
    button->setCheckable(true);
    button->setFixedSize(48, 48);
    button->slotActionClicked(
        0,
        toolPictures().path(0).replace(QStringLiteral("tool2"), QStringLiteral("tool")).chopped(7));
    button->setChecked(false);
    for (int tool = 0; hasTools && tool < ToolPictures::count; ++tool)
        button->AddAction(ToolPictures::name(tool), toolPictures().path(tool), EToolType(tool));
    return button;
}

Window menuButtons()
{
    auto sheet = std::make_unique<Sheet>(6);
    sheet->add(menuButton("plain", false), Texts::tr("without tools"));
    sheet->add(menuButton("tools", true), Texts::tr("with tools"));
    sheet->add(menuButton("hovered", true), Texts::tr("hovered"));
    sheet->add(menuButton("pressed", true), Texts::tr("pressed"));
    CRkMenuButton* disabled = menuButton("disabled", true);
    disabled->setEnabled(false);
    sheet->add(disabled, Texts::tr("disabled"));
    CRkMenuButton* picked = menuButton("picked", true);
    picked->SetBtnState(EToolType(1));
    sheet->add(picked, Texts::tr("a tool picked"));
    return sheet;
}

void showMenuButtonStates(QWidget& window)
{
    hover(window, "hovered");
    hover(window, "pressed");
    window.findChild<CRkMenuButton*>(QStringLiteral("pressed"))->setDown(true);
}

Window actionList()
{
    auto view = std::make_unique<CRkActionView>(nullptr);
    for (int tool = 0; tool < ToolPictures::count; ++tool)
        view->AddItem(ToolPictures::name(tool), toolPictures().path(tool), EToolType(tool));
    return view;
}

CRkTipPushButton* tipButton(const QString& tip, const QSize& size, const QColor& color = Qt::red)
{
    auto* button = new CRkTipPushButton;
    button->setText(Texts::tr("Messages"));
    button->setMinimumSize(110, 40);
    button->SetTipText(tip);
    button->SetTipSize(size);
    button->SetTipMargin(4, 4);
    button->SetTipBackgroundColor(color);
    button->SetTipVisible(true);
    return button;
}

Window tipButtons()
{
    auto sheet = std::make_unique<Sheet>(3);
    auto* plain = tipButton({}, {10, 10});
    plain->SetTipVisible(false);
    sheet->add(plain, Texts::tr("without tip"));
    sheet->add(tipButton({}, {10, 10}), Texts::tr("dot"));
    sheet->add(tipButton(QStringLiteral("3"), {16, 16}, QColor(255, 200, 60)), Texts::tr("count"));
    auto* hovered = tipButton(QStringLiteral("3"), {16, 16}, QColor(255, 200, 60));
    hovered->setObjectName(QStringLiteral("hovered"));
    sheet->add(hovered, Texts::tr("hovered"));
    auto* pressed = tipButton({}, {10, 10});
    pressed->setDown(true);
    sheet->add(pressed, Texts::tr("pressed"));
    auto* disabled = tipButton({}, {10, 10});
    disabled->setEnabled(false);
    sheet->add(disabled, Texts::tr("disabled"));
    return sheet;
}

void hoverTipButton(QWidget& window)
{
    hover(window, "hovered");
}

CRkSlider* slider(int value, const QString& text)
{
    auto* control = new CRkSlider;
    control->setOrientation(Qt::Horizontal);
    control->setFixedSize(220, 32);
    control->setRange(0, 100);
    control->setValue(value);
    control->SetLoading(!text.isEmpty());
    control->SetHandleTextPattern(text);
    return control;
}

Window sliders()
{
    auto sheet = std::make_unique<Sheet>(2);
    sheet->add(slider(40, {}), Texts::tr("not loading"));
    sheet->add(slider(0, QStringLiteral(" 0% ")), Texts::tr("loading, at the start"));
    sheet->add(slider(40, QStringLiteral(" 40% ")), Texts::tr("loading"));
    auto* disabled = slider(40, QStringLiteral(" 40% "));
    disabled->setEnabled(false);
    sheet->add(disabled, Texts::tr("loading, disabled"));
    return sheet;
}

Window hoveredButtons()
{
    auto sheet = std::make_unique<Sheet>(4);
    const auto button = [](const char* name) {
        auto* made = new RkHoveredPushButton(Texts::tr("Chengdu"), nullptr);
        made->setObjectName(QLatin1String(name));
        made->setMinimumWidth(80);
        made->setStyleSheet(
            made->styleSheet()
            + QStringLiteral("RkHoveredPushButton:hover{background-color:rgb(146,179,229);}"));
        return made;
    };
    sheet->add(button("normal"), Texts::tr("normal"));
    sheet->add(button("hovered"), Texts::tr("hovered"));
    RkHoveredPushButton* pressed = button("pressed");
    pressed->setDown(true);
    sheet->add(pressed, Texts::tr("pressed"));
    RkHoveredPushButton* disabled = button("disabled");
    disabled->setEnabled(false);
    sheet->add(disabled, Texts::tr("disabled"));
    return sheet;
}

/// A round button of a scene.
QPixmap knob(const QColor& fill)
{
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap pixmap(QSize(40, 40) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(29, 63, 117), 2));
    painter.setBrush(fill);
    painter.drawEllipse(QRectF(2, 2, 36, 36));
    return pixmap;
}

Window pixmapItems()
{
    const QStringList captions = {Texts::tr("normal"),   Texts::tr("hovered"),
                                  Texts::tr("pressed"),  Texts::tr("checked"),
                                  Texts::tr("disabled"), Texts::tr("highlighted")};
    auto view = std::make_unique<QGraphicsView>();
    auto* scene = new QGraphicsScene(view.get());
    for (int i = 0; i < captions.size(); ++i) {
        auto* item = new CRkGraphicsPixmapItem;
        item->SetNormalPixmap(knob(Qt::white));
        item->SetHoverPixmap(knob(QColor(232, 237, 246)));
        item->SetPressPixmap(knob(QColor(146, 179, 229)));
        item->SetCheckedPixmap(knob(QColor(58, 136, 244)));
        item->SetDisabledPixmap(knob(QColor(200, 204, 210)));
        item->SetHighlightPixmap(knob(QColor(255, 200, 60)));
        item->SetChecked(i == 3);
        item->SetEnabled(i != 4);
        item->SetHighlight(i == 5);
        item->setPos(100 * i + 30, 20);
        scene->addItem(item);
        if (i == 1) {
            QGraphicsSceneHoverEvent enter(QEvent::GraphicsSceneHoverEnter);
            scene->sendEvent(item, &enter);
        } else if (i == 2) {
            QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
            press.setButton(Qt::LeftButton);
            scene->sendEvent(item, &press);
        }
        QGraphicsSimpleTextItem* caption = scene->addSimpleText(captions.at(i));
        caption->setPos(100 * i + 50 - caption->boundingRect().width() / 2, 68);
    }
    scene->setSceneRect(0, 0, 600, 100);
    view->setScene(scene);
    view->setFrameShape(QFrame::NoFrame);
    view->resize(600, 100);
    return view;
}

Window flow()
{
    auto page = std::make_unique<QWidget>();
    page->setObjectName(QStringLiteral("page"));
    page->setStyleSheet(QStringLiteral("#page { background: white; }"));
    auto* layout = new FlowLayout(page.get(), 16, 8, 8);
    const QStringList cities = {Texts::tr("Chengdu"), Texts::tr("Beijing"),  Texts::tr("Harbin"),
                                Texts::tr("Urumqi"),  Texts::tr("Shanghai"), Texts::tr("Lhasa"),
                                Texts::tr("Xiamen"),  Texts::tr("Kunming"),  Texts::tr("Hohhot"),
                                Texts::tr("Sanya")};
    for (const QString& city : cities)
        layout->addWidget(new RkHoveredPushButton(city, nullptr));
    page->resize(360, layout->heightForWidth(360));
    return page;
}

/// One row for each kind of editor.
Window table()
{
    auto view = std::make_unique<QTableView>();
    auto* model = new QStandardItemModel(3, 2, view.get());
    model->setHorizontalHeaderLabels({Texts::tr("Parameter"), Texts::tr("Value")});
    const auto fill = [model](int row, const QString& name, const QVariant& value,
                              const RkEditorDescriptor& editor) {
        model->setItem(row, 0, new QStandardItem(name));
        auto* item = new QStandardItem;
        item->setData(value, Qt::EditRole);
        item->setData(QVariant::fromValue(editor), Qt::UserRole);
        model->setItem(row, 1, item);
    };
    fill(0, Texts::tr("Height"), 120.5, {1, {}});
    fill(
        1, Texts::tr("Camera"), QStringLiteral("A"),
        {2,
         {{QStringLiteral("A"), QStringLiteral("A")}, {QStringLiteral("B"), QStringLiteral("B")}}});
    fill(2, Texts::tr("Name"), Texts::tr("Line"), {3, {}});
    view->setModel(model);
    view->setItemDelegate(new CRkTableDelegate(view.get()));
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view->verticalHeader()->hide();
    view->resize(340, 150);
    return view;
}

void openEditors(QWidget& window)
{
    auto& view = static_cast<QTableView&>(window);
    for (int row = 0; row < view.model()->rowCount(); ++row)
        view.openPersistentEditor(view.model()->index(row, 1));
}

std::unique_ptr<CRkParameterEditPage> parameters()
{
    auto page = std::make_unique<CRkParameterEditPage>(nullptr);
    page->SetDialogInfo(Texts::tr("Edit Parameters"));
    page->SetElementParas(
        {Texts::tr("Name"), Texts::tr("Height"), Texts::tr("Camera"), Texts::tr("Scale")},
        {Texts::tr("Line"), QStringLiteral("120.5"), QStringLiteral("A"),
         QStringLiteral("1 : 1000")},
        {false, false, true, false});
    return page;
}

Window fourParameters()
{
    return parameters();
}

Window twoParameters()
{
    auto page = parameters();
    page->SetGroupHidden(false, false, true, true);
    page->adjustSize();
    return page;
}

} // namespace

QVector<Gallery::Entry> galleryControls()
{
    return {
        {QStringLiteral("menu-button"), menuButtons, showMenuButtonStates},
        {QStringLiteral("action-view"), actionList, {}},
        {QStringLiteral("tip-button"), tipButtons, hoverTipButton},
        {QStringLiteral("slider"), sliders, {}},
        {QStringLiteral("hovered-button"), hoveredButtons,
         [](QWidget& window) { hover(window, "hovered"); }},
        {QStringLiteral("pixmap-item"), pixmapItems, {}},
        {QStringLiteral("flow-layout"), flow, {}},
        {QStringLiteral("table-delegate"), table, {}},
        {QStringLiteral("table-delegate-editors"), table, openEditors},
        {QStringLiteral("parameter-edit-page"), fourParameters, {}},
        {QStringLiteral("parameter-edit-page-two"), twoParameters, {}},
    };
}
