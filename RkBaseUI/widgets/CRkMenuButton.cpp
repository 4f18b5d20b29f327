// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkMenuButton.h"

#include "widgets/CRkActionView.h"
#include "widgets/ScreenPicture.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

/// %0 and %5 to %7 are the button's object name, %1 to %4 what its pictures have in common.
QString pictureSheet(const QString& name, const QString& prefix)
{
    // All in one pass: a name or path may itself hold what looks like a place marker.
    return QStringLiteral("QPushButton#%0{\t\tbackground-color:transparent;\t\t"
                          "background-image:url(%1nor.png);\t\tbackground-repeat:none;\t\t"
                          "background-position:center;\t\t}\t\t"
                          "QPushButton#%5::hover{\t\tbackground-image:url(%2hov.png);\t}\t\t"
                          "QPushButton#%6::pressed{\t\tbackground-image:url(%3pre.png);\t}\t\t"
                          "QPushButton#%7::checked{\t\tbackground-image:url(%4pre.png);\t}")
        .arg(name, prefix, prefix, prefix, prefix, name, name, name);
}

} // namespace

CRkMenuButton::CRkMenuButton(QWidget* parent)
    : QPushButton(parent)
    , m_triangle(
          screenPicture(QStringLiteral(":/images/Normal/Tarnplan/tool_Right_Triangle_but_nor.png")))
    , m_actionView(std::make_unique<CRkActionView>())
{
    m_actionView->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    m_actionView->installEventFilter(this);
    connect(this, &CRkMenuButton::TrangleClicked, this, &CRkMenuButton::slotShowPopMenu);
    connect(m_actionView.get(), &CRkActionView::ActionClicked, this,
            &CRkMenuButton::slotActionClicked);
}

CRkMenuButton::~CRkMenuButton() = default;

void CRkMenuButton::AddAction(const QString& text, const QString& iconPath, EToolType toolType)
{
    m_actionView->AddItem(text, iconPath, toolType);
    if (accessibleDescription().isEmpty())
        setAccessibleDescription(tr("Alt+Down opens the list of tools"));
    update();
}

void CRkMenuButton::SetBtnState(EToolType toolType)
{
    m_actionView->SetItemClicked(toolType);
}

void CRkMenuButton::slotShowPopMenu()
{
    m_actionView->UnSelectAll();
    if (m_actionView->isVisible()) {
        m_actionView->hide();
    } else if (hasActions()) {
        m_actionView->move(QCursor::pos());
        m_actionView->show();
    }
}

void CRkMenuButton::slotActionClicked(int toolType, const QString& iconPrefix)
{
    setProperty("ToolType", toolType);
    setStyleSheet(pictureSheet(objectName(), iconPrefix));
    setChecked(true);
    // Also when the button was checked before or cannot be: another tool counts as a change.
    emit toggled(true);
}

bool CRkMenuButton::hasActions() const
{
    return m_actionView->GetItemCount() > 0;
}

bool CRkMenuButton::isInCorner(QPoint at) const
{
    QRect corner = rect();
    corner.setTopLeft(QPoint(int(rect().right() * 0.7), int(rect().height() * 0.7)));
    return corner.contains(at);
}

void CRkMenuButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (hasActions() && event->button() == Qt::LeftButton && isInCorner(event->pos())) {
        // Up again before the base class sees the release, which thus is no click.
        setDown(false);
        QPushButton::mouseReleaseEvent(event);
        event->accept();
        emit TrangleClicked();
    } else if (hasActions() && event->button() == Qt::RightButton) {
        emit TrangleClicked();
    } else {
        QPushButton::mouseReleaseEvent(event);
    }
}

void CRkMenuButton::keyPressEvent(QKeyEvent* event)
{
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier;
    if (hasActions() && (altDown || event->key() == Qt::Key_Menu))
        emit TrangleClicked();
    else
        QPushButton::keyPressEvent(event);
}

void CRkMenuButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (hasActions())
        QPainter(this).drawPixmap(QPoint(-1, -1), m_triangle);
}

// The open list has the mouse, and a press beside it would close it. Where the release is going to
// close it, that would open it again.
bool CRkMenuButton::eventFilter(QObject* watched, QEvent* event)
{
    const bool release = event->type() == QEvent::MouseButtonRelease;
    if (watched != m_actionView.get() || (!release && event->type() != QEvent::MouseButtonPress))
        return QPushButton::eventFilter(watched, event);

    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QPoint at = mapFromGlobal(mouse->globalPos());
    const bool closes = (mouse->button() == Qt::LeftButton && isInCorner(at))
        || (mouse->button() == Qt::RightButton && rect().contains(at));
    if (!closes || m_actionView->rect().contains(mouse->pos()))
        return QPushButton::eventFilter(watched, event);
    if (release)
        emit TrangleClicked();
    return true;
}
