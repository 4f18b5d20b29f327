// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/CRkCityDateFilterWidget.h"

#include "ui_CRkCityDateFilterWidget.h"

#include <RkBaseUI/CRkCitySelectWidget.h>
#include <RkBaseUI/CRkDateSelectWidget.h>

#include <QLayout>
#include <QMouseEvent>
#include <QWindow>

namespace {

constexpr int cityPopupHeight = 600;

void showActive(QWidget& popup)
{
    popup.show();
    popup.activateWindow();
}

} // namespace

CRkCityDateFilterWidget::CRkCityDateFilterWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CRkCityDateFilterWidget>())
    , m_cityPopup(std::make_unique<CRkCitySelectWidget>(nullptr))
    , m_datePopup(std::make_unique<CRkDateSelectWidget>(nullptr))
{
    using Bar = CRkCityDateFilterWidget;
    m_ui->setupUi(this);
    m_ui->m_pLblCity->setText(tr("City"));
    m_ui->m_pLblDate->setText(tr("Date"));
    connect(m_ui->m_pBtnCitySelect, &QPushButton::toggled, this, &Bar::slotCityBtnToggled);
    connect(m_ui->m_pBtnDateSelect, &QPushButton::toggled, this, &Bar::slotDateBtnToggled);

    _setUpPopup(*m_cityPopup);
    connect(m_cityPopup.get(), &CRkCitySelectWidget::signalCitySelected, this,
            &Bar::slotCitySelected);
    connect(m_cityPopup.get(), &CRkCitySelectWidget::signalWidgetClosed, this,
            &Bar::slotCityWidgetClosed);
    _setUpPopup(*m_datePopup);
    connect(m_datePopup.get(), &CRkDateSelectWidget::signalDateSelected, this,
            &Bar::slotDateSelected);
    connect(m_datePopup.get(), &CRkDateSelectWidget::signalWidgetClosed, this,
            &Bar::slotDateWidgetClosed);
}

CRkCityDateFilterWidget::~CRkCityDateFilterWidget() = default;

void CRkCityDateFilterWidget::LoadDefaultContiditions()
{
    const QString city = m_cityPopup->getDefaultSelection();
    m_ui->m_pLblCity->setText(city.isEmpty() ? tr("All") : city);
}

QString CRkCityDateFilterWidget::GetCurCity() const
{
    return m_ui->m_pLblCity->text();
}

QString CRkCityDateFilterWidget::GetCurDate() const
{
    return m_ui->m_pLblDate->text();
}

void CRkCityDateFilterWidget::slotCityBtnToggled(bool checked)
{
    if (!checked)
        return;
    _moveBelow(*m_cityPopup, *m_ui->m_pBtnCitySelect);
    m_cityPopup->InitWidget();
    m_cityPopup->setFixedHeight(cityPopupHeight);
    showActive(*m_cityPopup);
}

void CRkCityDateFilterWidget::slotDateBtnToggled(bool checked)
{
    if (!checked)
        return;
    _moveBelow(*m_datePopup, *m_ui->m_pBtnDateSelect);
    showActive(*m_datePopup);
}

void CRkCityDateFilterWidget::slotCitySelected(const QString& city)
{
    m_ui->m_pLblCity->setText(city);
    m_cityPopup->hide();
    m_ui->m_pBtnCitySelect->setChecked(false);
    emit CityConditionChanged();
}

void CRkCityDateFilterWidget::slotDateSelected(const QString& date)
{
    m_ui->m_pLblDate->setText(date);
    m_datePopup->hide();
    m_ui->m_pBtnDateSelect->setChecked(false);
    emit DateConditionChanged();
}

void CRkCityDateFilterWidget::slotCityWidgetClosed()
{
    m_ui->m_pBtnCitySelect->setChecked(false);
}

void CRkCityDateFilterWidget::slotDateWidgetClosed()
{
    m_ui->m_pBtnDateSelect->setChecked(false);
}

bool CRkCityDateFilterWidget::eventFilter(QObject* object, QEvent* event)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (isPress && (object == m_cityPopup.get() || object == m_datePopup.get())) {
        // A press outside closes the popup and goes on to what lies there. On the button that
        // opened the popup it must not, or the button would open it again.
        const QPushButton& opener =
            object == m_cityPopup.get() ? *m_ui->m_pBtnCitySelect : *m_ui->m_pBtnDateSelect;
        const QPoint at = opener.mapFromGlobal(static_cast<const QMouseEvent*>(event)->globalPos());
        static_cast<QWidget*>(object)->setAttribute(Qt::WA_NoMouseReplay,
                                                    opener.rect().contains(at));
    }
    return QWidget::eventFilter(object, event);
}

void CRkCityDateFilterWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    if (m_cityPopup->isVisible())
        m_cityPopup->close();
    if (m_datePopup->isVisible())
        m_datePopup->close();
}

void CRkCityDateFilterWidget::_setUpPopup(QWidget& popup)
{
    popup.setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    popup.installEventFilter(this);
}

/// Lets the popup hang centred under the button.
void CRkCityDateFilterWidget::_moveBelow(QWidget& popup, const QPushButton& button) const
{
    // It has to be on the bar's screen first: coordinates are of the screen and its scale.
    popup.winId();
    popup.windowHandle()->setScreen(screen());
    popup.ensurePolished();
    popup.layout()->activate(); // With the width in which it will show.
    const QRect area = button.geometry();
    popup.move(mapToGlobal(QPoint(area.center().x() - popup.width() / 2, area.bottom())));
}
