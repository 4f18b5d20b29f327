// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/RkCitySelectByProvince.h>

#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/RkHoveredPushButton.h>

#include "support/WindowWaits.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

namespace {

QWidget& listOf(const QWidget& page)
{
    return *page.findChild<QWidget*>("widgetCityList");
}

QPushButton& provinceOf(const QWidget& page)
{
    return *page.findChild<QPushButton*>("pushButtonProvinceName");
}

} // namespace

class tst_RkCitySelectByProvince : public QObject
{
    Q_OBJECT

private slots:
    void empty();
    void letterAndName();
    void cityButtons();
    void clickSelectsProvinceOrCity();
    void slotWithoutAButtonDoesNothing();
    void namesLineUp();
};

void tst_RkCitySelectByProvince::empty()
{
    const RkCitySelectByProvince page;
    QVERIFY(qobject_cast<FlowLayout*>(listOf(page).layout()));
    QCOMPARE(listOf(page).layout()->count(), 0);
    QCOMPARE(provinceOf(page).text(), QString());
}

void tst_RkCitySelectByProvince::letterAndName()
{
    RkCitySelectByProvince page;
    page.SetProvinceLetter("S");
    page.SetProvinceName("Sichuan");
    const auto* letter = page.findChild<QLabel*>("labelProvinceLetter");
    QCOMPARE(letter->text(), QString("S"));
    QCOMPARE(provinceOf(page).text(), QString("Sichuan"));
    page.SetProvinceLetter(" ");
    QCOMPARE(letter->text(), QString(" "));
}

void tst_RkCitySelectByProvince::cityButtons()
{
    RkCitySelectByProvince page;
    const QStringList names = {"Chengdu", "Mianyang"};
    page.SetProvinceCities(names);
    const QLayout& layout = *listOf(page).layout();
    QCOMPARE(layout.count(), 2);
    for (int i = 0; i < 2; ++i) {
        const auto* button = qobject_cast<RkHoveredPushButton*>(layout.itemAt(i)->widget());
        QVERIFY(button);
        QCOMPARE(button->text(), names[i]);
        QVERIFY(button->isFlat());
        QCOMPARE(button->minimumHeight(), 25);
        QCOMPARE(button->font().pointSize(), 8);
        QCOMPARE(button->font().weight(), int(QFont::Normal));
    }
}

void tst_RkCitySelectByProvince::clickSelectsProvinceOrCity()
{
    RkCitySelectByProvince page;
    page.SetProvinceName("Sichuan");
    page.SetProvinceCities({"Chengdu", "Mianyang"});
    QSignalSpy selected(&page, &RkCitySelectByProvince::signalCitySelected);
    for (QPushButton* button : page.findChildren<QPushButton*>())
        QTest::mouseClick(button, Qt::LeftButton);
    QStringList places;
    for (const QList<QVariant>& arguments : selected)
        places.append(arguments[0].toString());
    QCOMPARE(places, (QStringList{"Sichuan", "Chengdu", "Mianyang"}));
}

void tst_RkCitySelectByProvince::slotWithoutAButtonDoesNothing()
{
    RkCitySelectByProvince page;
    QSignalSpy selected(&page, &RkCitySelectByProvince::signalCitySelected);
    page.slotCityButtonClicked();
    QCOMPARE(selected.count(), 0);
}

// Pages below each other make columns: the province at one place and the cities at another.
void tst_RkCitySelectByProvince::namesLineUp()
{
    const auto show = [](RkCitySelectByProvince& page, const QString& letter, const QString& name) {
        page.SetProvinceLetter(letter);
        page.SetProvinceName(name);
        page.SetProvinceCities({"Chengdu", "Mianyang"});
        page.resize(600, 60);
        page.show();
        return comesOnScreen(&page);
    };
    RkCitySelectByProvince first;
    RkCitySelectByProvince second;
    QVERIFY(show(first, "S", "Sichuan"));
    QVERIFY(show(second, " ", "Shan"));
    QCOMPARE(provinceOf(first).x(), provinceOf(second).x());
    QCOMPARE(listOf(first).x(), listOf(second).x());
    QCOMPARE(provinceOf(first).y(), 0);
    QCOMPARE(listOf(first).y(), 0);
}

QTEST_MAIN(tst_RkCitySelectByProvince)
#include "tst_RkCitySelectByProvince.moc"
