// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkMessageBox.h>
#include <RkBaseUI/CRkProjectManagerView.h>
#include <RkData/CRkControl.h>

#include <QDirIterator>
#include <QApplication>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace GalleryParts {

namespace {

const char* const pageStyle = R"(
#page { background-color: rgb(240, 240, 240); }
#page CRkProjectManagerView { background-color: rgb(240, 240, 240); border: none; }
#page QScrollBar { background: transparent; width: 10px; margin: 0; }
#page QScrollBar::handle {
    background: rgb(198, 205, 216); border-radius: 4px; min-height: 40px; margin: 1px;
}
#page QScrollBar::add-line, #page QScrollBar::sub-line { height: 0; }
#page QScrollBar::add-page, #page QScrollBar::sub-page { background: transparent; }
)";

/// Calls a function for every message box that comes up while the object lives.
class BoxWatch : public QObject
{
public:
    explicit BoxWatch(std::function<void(CRkMessageBox&)> onBox)
        : m_onBox(std::move(onBox))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<CRkMessageBox*>(watched);
        if (box && event->type() == QEvent::Show)
            QTimer::singleShot(0, box, [this, box] { m_onBox(*box); });
        return false;
    }

private:
    const std::function<void(CRkMessageBox&)> m_onBox;
};

/// One widget over the middle of another.
QPixmap stacked(QWidget& below, QWidget& above)
{
    constexpr int margin = 24;
    const QSize room = above.size() + QSize(margin, margin) * 2;
    const QRect canvas(QPoint(0, 0), below.size().expandedTo(room));
    const qreal scale = below.devicePixelRatioF();
    QPixmap picture(canvas.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(QColor(214, 220, 230)); // Of a desktop, seen where the window ends.
    QPainter painter(&picture);
    for (QWidget* widget : {&below, &above})
        painter.drawPixmap(canvas.center() - widget->rect().center(), widget->grab());
    return picture;
}

} // namespace

void hover(QWidget& widget)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    QMouseEvent move(QEvent::MouseMove, widget.rect().center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void hover(QWidget& window, const char* button)
{
    hover(*window.findChild<QPushButton*>(QLatin1String(button)));
}

Window viewPage()
{
    auto page = std::make_unique<QWidget>();
    page->setObjectName(QStringLiteral("page"));
    page->setStyleSheet(QString::fromLatin1(pageStyle));
    page->resize(904, 640);
    auto* layout = new QVBoxLayout(page.get());
    layout->setContentsMargins(0, 16, 0, 0);
    layout->addWidget(new CRkProjectManagerView(page.get()));
    return page;
}

QStringList projectFiles()
{
    QStringList files;
    QDirIterator projects(CRkControl::GetProjectDirPath(), {QStringLiteral("*.proj")}, QDir::Files,
                          QDirIterator::Subdirectories);
    while (projects.hasNext())
        files.append(projects.next());
    files.sort();
    return files;
}

CRkProjectManagerView& viewOf(QWidget& window)
{
    return *window.findChild<CRkProjectManagerView*>();
}

QList<CRkGraphicsProjectRectItem*> tilesOf(QWidget& window)
{
    QList<CRkGraphicsProjectRectItem*> tiles;
    const QList<QGraphicsItem*> items = viewOf(window).scene()->items();
    for (QGraphicsItem* item : items) {
        if (auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item))
            tiles.append(tile);
    }
    return tiles;
}

CRkGraphicsProjectRectItem& firstTile(QWidget& window)
{
    const QList<CRkGraphicsProjectRectItem*> tiles = tilesOf(window);
    Q_ASSERT(!tiles.isEmpty());
    return **std::min_element(tiles.cbegin(), tiles.cend(), [](const auto* a, const auto* b) {
        return a->y() < b->y() || (a->y() == b->y() && a->x() < b->x());
    });
}

QImage withMessage(QWidget& window, const std::function<void()>& action, const char* answer)
{
    QPixmap picture;
    const BoxWatch watch([&](CRkMessageBox& box) {
        picture = stacked(window, box);
        const auto* cancel = box.findChild<QPushButton*>(QStringLiteral("m_pBtnCancel"));
        box.findChild<QPushButton*>(cancel->isHidden() ? QStringLiteral("m_pBtnOK")
                                                       : QLatin1String(answer))
            ->click();
    });
    action();
    return picture.toImage();
}

} // namespace GalleryParts
