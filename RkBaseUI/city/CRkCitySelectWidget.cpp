// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/CRkCitySelectWidget.h"

#include "city/PlaceButton.h"
#include "ui_CRkCitySelectWidget.h"

#include <RkAlgorthm/Constants.h>
#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/RkCitySelectByCity.h>
#include <RkBaseUI/RkCitySelectByProvince.h>

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QSettings>
#include <QTabBar>

#include <algorithm>
#include <initializer_list>

namespace {

enum Tab { provinceTab, cityTab, keywordTab };

constexpr int pageSpacing = 6;

/// Of the tab bar alone: on the tab widget it would reach every button in the tabs.
const char* const tabBarStyle = R"(QTabBar::tab {
background-color: transparent;
color: rgb(70, 78, 92);
border: none;
border-bottom: 2px solid rgb(206, 210, 216);
padding: 5px 18px;
}
QTabBar::tab:hover {
color: rgb(58, 136, 244);
}
QTabBar::tab:selected {
color: rgb(9, 2, 38);
border-bottom-color: rgb(58, 136, 244);
}
QTabBar::tab:focus {
color: rgb(58, 136, 244);
})";

QString defaultCityKey()
{
    return QStringLiteral("Application/defaultcity");
}

QSettings citySettings()
{
    return QSettings(OrganizationName, QStringLiteral("Corvel_clound"));
}

QVBoxLayout* pageLayout(QWidget* contents, const QString& name)
{
    auto* layout = new QVBoxLayout(contents);
    layout->setObjectName(name);
    layout->setSpacing(pageSpacing);
    layout->setContentsMargins(0, 5, 0, 5);
    return layout;
}

template <typename Slot>
void addButtons(QWidget* parent, const QStringList& texts, CRkCitySelectWidget* receiver, Slot slot)
{
    auto* layout = new FlowLayout(parent, 0, 0, 2);
    for (const QString& text : texts) {
        auto* button = new PlaceButton(text, parent);
        button->setMinimumWidth(24);
        QObject::connect(button, &QPushButton::clicked, receiver, slot);
        layout->addWidget(button);
    }
}

/// Brings the first page after `count` pages to the top.
template <typename Page>
void jumpBehind(int count, const QVector<Page*>& pages, QScrollArea& area)
{
    // The heights are final only when no widget in the pages waits to be laid out. The first round
    // gives the list its new height, the second the pages theirs.
    for (int round = 0; round < 2; ++round)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    int offset = 0;
    for (int i = 0; i < count; ++i)
        offset += pages[i]->height() + pageSpacing;
    area.verticalScrollBar()->setSliderPosition(offset);
}

} // namespace

CRkCitySelectWidget::CRkCitySelectWidget(QWidget* parent)
    : CRkBaseWidget(parent)
    , m_ui(std::make_unique<Ui::CRkCitySelectWidget>())
{
    m_ui->setupUi(this);
    m_ui->tabWidget->tabBar()->setFont(m_ui->groupBox->font());
    m_ui->tabWidget->tabBar()->setDrawBase(false);
    m_ui->tabWidget->tabBar()->setStyleSheet(QString::fromLatin1(tabBarStyle));
    for (QScrollArea* area : findChildren<QScrollArea*>()) {
        area->viewport()->setAutoFillBackground(false);
        area->widget()->setAutoFillBackground(false);
    }
    InitWidget();
    m_ui->lineEditSearchCity->setPlaceholderText(tr("input the city name"));
    _addFrequentCities();
    _addLetters();
    _addProvincePages();
    _addCityPages();
    new FlowLayout(m_ui->scrollAreaWidgetContentsSearchResult, 8, 16, 10);
    _connectButtons();
    _setTabOrder();

    const QString stored = citySettings().value(defaultCityKey()).toString();
    m_ui->labelCurrentCity->setText(stored.isEmpty() ? tr("All") : stored);
}

CRkCitySelectWidget::~CRkCitySelectWidget() = default;

void CRkCitySelectWidget::InitWidget()
{
    m_ui->tabWidget->setCurrentIndex(provinceTab);
    m_ui->lineEditSearchCity->setFocus();
    m_ui->lineEditSearchCity->selectAll();
}

QString CRkCitySelectWidget::getDefaultSelection() const
{
    return m_ui->labelCurrentCity->text();
}

void CRkCitySelectWidget::slotButtonGroupCityByProvinceClicked()
{
    m_ui->lineEditSearchCity->setPlaceholderText(tr("Enter the province name"));
    m_ui->tabWidget->setCurrentIndex(provinceTab);
}

void CRkCitySelectWidget::slotButtonGroupCityByLetterClicked()
{
    m_ui->lineEditSearchCity->setPlaceholderText(tr("Enter a city name"));
    m_ui->tabWidget->setCurrentIndex(cityTab);
}

void CRkCitySelectWidget::slotButtonSearchCityClicked()
{
    const QString keyword = m_ui->lineEditSearchCity->text();
    if (keyword.trimmed().isEmpty())
        return;
    const QFont font = QApplication::font();
    const QFontMetrics metrics(font);
    QWidget* contents = m_ui->scrollAreaWidgetContentsSearchResult;
    // The results of earlier searches stay: several searches make one list to pick from.
    for (const QString& place : RkCityCategory::instance().searchByKeyword(keyword)) {
        auto* button = new QPushButton(place, contents);
        button->setFlat(true);
        button->setFont(font);
        button->setFixedSize(metrics.boundingRect(place).size());
        contents->layout()->addWidget(button);
        connect(button, &QPushButton::clicked, this, &CRkCitySelectWidget::slotListedCityClicked);
    }
    m_ui->tabWidget->setCurrentIndex(keywordTab);
}

void CRkCitySelectWidget::slotButtonByProvinceLetterClicked()
{
    const auto* button = qobject_cast<QPushButton*>(sender());
    const RkCityCategory& catalogue = RkCityCategory::instance();
    const int index = button ? catalogue.provinceLetters().indexOf(button->text()) : -1;
    if (index < 0)
        return;
    const QStringList passedLetters = catalogue.provinceLetters().mid(0, index);
    const QStringList& names = catalogue.provinceNames();
    // The letter of the catalogue: on the page there may be a blank instead.
    const auto target = std::find_if(names.cbegin(), names.cend(), [&](const QString& name) {
        return !passedLetters.contains(catalogue.provinceToLetter().value(name));
    });
    jumpBehind(int(target - names.cbegin()), m_provincePages, *m_ui->scrollAreaByProvince);
}

void CRkCitySelectWidget::slotButtonByCityLetterClicked()
{
    const auto* button = qobject_cast<QPushButton*>(sender());
    const int index = button ? RkCityCategory::instance().allLetters().indexOf(button->text()) : -1;
    if (index >= 0)
        jumpBehind(index, m_cityPages, *m_ui->scrollAreaByCity);
}

void CRkCitySelectWidget::slotListedCityClicked()
{
    if (const auto* button = qobject_cast<QPushButton*>(sender()))
        emit signalCitySelected(button->text());
}

void CRkCitySelectWidget::slotCitySelected(const QString& city)
{
    m_ui->labelCurrentCity->setText(city);
}

void CRkCitySelectWidget::slotButtonSetDefaultCityClicked()
{
    QSettings settings = citySettings();
    settings.setValue(defaultCityKey(), m_ui->labelCurrentCity->text());
}

void CRkCitySelectWidget::closeEvent(QCloseEvent* event)
{
    emit signalWidgetClosed();
    CRkBaseWidget::closeEvent(event);
}

void CRkCitySelectWidget::paintEvent(QPaintEvent* event)
{
    // Painted, because a style sheet or a palette of the window reaches every button in it, which
    // makes each of them several times as expensive.
    QPainter(this).fillRect(event->rect(), QColor(240, 240, 241));
}

void CRkCitySelectWidget::_addLetters()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    addButtons(m_ui->widgetByProvinceLetters, catalogue.provinceLetters(), this,
               &CRkCitySelectWidget::slotButtonByProvinceLetterClicked);
    addButtons(m_ui->widgetByCityLetters, catalogue.allLetters(), this,
               &CRkCitySelectWidget::slotButtonByCityLetterClicked);
}

void CRkCitySelectWidget::_addProvincePages()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    const QStringList& firsts = catalogue.firstProvincePerLetter();
    const QSet<QString> firstPerLetter(firsts.cbegin(), firsts.cend());
    QWidget* contents = m_ui->scrollAreaWidgetContentsByProvince;
    QVBoxLayout* layout = pageLayout(contents, QStringLiteral("verticalLayoutByProvinceContents"));
    for (const QString& province : catalogue.provinceNames()) {
        auto* page = new RkCitySelectByProvince(contents);
        page->SetProvinceName(province);
        page->SetProvinceLetter(firstPerLetter.contains(province)
                                    ? catalogue.provinceToLetter().value(province)
                                    : QStringLiteral(" "));
        page->SetProvinceCities(catalogue.provinceToCities().value(province));
        layout->addWidget(page);
        m_provincePages.append(page);
        connect(page, &RkCitySelectByProvince::signalCitySelected, this,
                &CRkCitySelectWidget::signalCitySelected);
    }
    layout->addStretch();
}

void CRkCitySelectWidget::_addCityPages()
{
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QWidget* contents = m_ui->scrollAreaWidgetContentsByCity;
    QVBoxLayout* layout = pageLayout(contents, QStringLiteral("verticalLayoutByCityContents"));
    for (const QString& letter : catalogue.allLetters()) {
        auto* page = new RkCitySelectByCity(contents);
        page->SetLetter(letter);
        page->SetCities(catalogue.letterToCities().value(letter));
        layout->addWidget(page);
        m_cityPages.append(page);
        connect(page, &RkCitySelectByCity::signalCitySelected, this,
                &CRkCitySelectWidget::signalCitySelected);
    }
    layout->addStretch();
}

void CRkCitySelectWidget::_addFrequentCities()
{
    addButtons(m_ui->widgetFrequentCities,
               {tr("All"), tr("Beijing"), tr("Shanghai"), tr("Guangzhou"), tr("Shenzhen"),
                tr("Chengdu"), tr("Tianjin"), tr("Nanjing"), tr("Hangzhou"), tr("Wuhan"),
                tr("Chongqing")},
               this, &CRkCitySelectWidget::slotListedCityClicked);
}

void CRkCitySelectWidget::_connectButtons()
{
    const auto connectButton = [this](const QPushButton* button, auto slot) {
        connect(button, &QPushButton::clicked, this, slot);
    };
    connectButton(m_ui->pushButtonGroupCityByProvince,
                  &CRkCitySelectWidget::slotButtonGroupCityByProvinceClicked);
    connectButton(m_ui->pushButtonGroupCityByLetter,
                  &CRkCitySelectWidget::slotButtonGroupCityByLetterClicked);
    connectButton(m_ui->pushButtonSearchCity, &CRkCitySelectWidget::slotButtonSearchCityClicked);
    connectButton(m_ui->pushButtonSetDefaultCity,
                  &CRkCitySelectWidget::slotButtonSetDefaultCityClicked);
    connect(m_ui->lineEditSearchCity, &QLineEdit::returnPressed, this,
            &CRkCitySelectWidget::slotButtonSearchCityClicked);
    connect(this, &CRkCitySelectWidget::signalCitySelected, this,
            &CRkCitySelectWidget::slotCitySelected);
}

void CRkCitySelectWidget::_setTabOrder()
{
    // The buttons made here come behind those of the form, which is right but for the first row.
    const QLayout& firstRow = *m_ui->widgetFrequentCities->layout();
    QWidget* previous = firstRow.itemAt(firstRow.count() - 1)->widget();
    const std::initializer_list<QWidget*> rows = {m_ui->pushButtonGroupCityByProvince,
                                                  m_ui->pushButtonGroupCityByLetter,
                                                  m_ui->lineEditSearchCity,
                                                  m_ui->pushButtonSearchCity,
                                                  m_ui->pushButtonSetDefaultCity,
                                                  m_ui->tabWidget->tabBar()};
    for (QWidget* widget : rows) {
        setTabOrder(previous, widget);
        previous = widget;
    }
}
