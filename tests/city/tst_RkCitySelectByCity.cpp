// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/RkCitySelectByCity.h>

#include "support/WindowWaits.h"
#include "widgets/Render.h"

#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/RkHoveredPushButton.h>

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

namespace {

QWidget& listOf(const QWidget& page)
{
    return *page.findChild<QWidget*>("widgetCityList");
}

QList<RkHoveredPushButton*> buttonsOf(const QWidget& page)
{
    return listOf(page).findChildren<RkHoveredPushButton*>();
}

} // namespace

class tst_RkCitySelectByCity : public QObject
{
    Q_OBJECT

private slots:
    void empty();
    void letter();
    void cityButtons();
    void fontIsSmallWhateverTheApplicationHas_data();
    void fontIsSmallWhateverTheApplicationHas();
    void clickSelectsTheCity();
    void slotWithoutAButtonDoesNothing();
    void secondListIsAppended();
    void linesWrapAndNothingIsCut_data();
    void linesWrapAndNothingIsCut();
    void buttonLooks_data() { addScales(); }
    void buttonLooks();
};

void tst_RkCitySelectByCity::empty()
{
    const RkCitySelectByCity page;
    QVERIFY(buttonsOf(page).isEmpty());
    QVERIFY(qobject_cast<FlowLayout*>(listOf(page).layout()));
    QCOMPARE(page.findChild<QLabel*>("labelCityLetter")->text(), QString());
}

void tst_RkCitySelectByCity::letter()
{
    RkCitySelectByCity page;
    page.SetLetter("C");
    QCOMPARE(page.findChild<QLabel*>("labelCityLetter")->text(), QString("C"));
    page.SetLetter("<b>");
    QCOMPARE(page.findChild<QLabel*>("labelCityLetter")->textFormat(), Qt::PlainText);
}

void tst_RkCitySelectByCity::cityButtons()
{
    RkCitySelectByCity page;
    page.SetCities({"Chengdu", "Changsha", "Chengdu"});
    const auto buttons = buttonsOf(page);
    QCOMPARE(buttons.size(), 3);
    QLayout& layout = *listOf(page).layout();
    QCOMPARE(layout.count(), 3);
    const QStringList names = {"Chengdu", "Changsha", "Chengdu"};
    for (int i = 0; i < 3; ++i) {
        auto* button = qobject_cast<RkHoveredPushButton*>(layout.itemAt(i)->widget());
        QVERIFY(button);
        QCOMPARE(button->text(), names[i]);
        QVERIFY(button->isFlat());
        QCOMPARE(button->minimumHeight(), 25);
    }
}

void tst_RkCitySelectByCity::fontIsSmallWhateverTheApplicationHas_data()
{
    QTest::addColumn<QFont>("large");
    QTest::newRow("family set") << QFont("Serif");
    QTest::newRow("family left") << QFont();
}

void tst_RkCitySelectByCity::fontIsSmallWhateverTheApplicationHas()
{
    QFETCH(QFont, large);
    const QFont before = QApplication::font();
    large.setPointSize(17);
    large.setBold(true);
    large.setItalic(true);
    QApplication::setFont(large);
    {
        QWidget window;
        QFont other("Courier", 20);
        other.setFamilies({"Courier", "Serif"});
        window.setFont(other);
        auto* page = new RkCitySelectByCity(&window);
        page->SetCities({"Chengdu"});
        const QFont font = buttonsOf(*page).first()->font();
        QCOMPARE(font.pointSize(), 8);
        QCOMPARE(font.weight(), int(QFont::Normal));
        QVERIFY(!font.italic());
        QCOMPARE(font.family(), large.family());
        QCOMPARE(font.families(), large.families());
    }
    QApplication::setFont(before);
}

void tst_RkCitySelectByCity::clickSelectsTheCity()
{
    RkCitySelectByCity page;
    page.SetCities({"Chengdu", "Xi'an", "100%"});
    QSignalSpy selected(&page, &RkCitySelectByCity::signalCitySelected);
    for (RkHoveredPushButton* button : buttonsOf(page)) {
        selected.clear();
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected[0][0].toString(), button->text());
    }
}

void tst_RkCitySelectByCity::slotWithoutAButtonDoesNothing()
{
    RkCitySelectByCity page;
    QSignalSpy selected(&page, &RkCitySelectByCity::signalCitySelected);
    page.slotCityButtonClicked();
    QCOMPARE(selected.count(), 0);
}

void tst_RkCitySelectByCity::secondListIsAppended()
{
    RkCitySelectByCity page;
    page.SetCities({"Chengdu"});
    page.SetCities({"Changsha"});
    QCOMPARE(buttonsOf(page).size(), 2);
    QCOMPARE(buttonsOf(page).last()->text(), QString("Changsha"));
}

void tst_RkCitySelectByCity::linesWrapAndNothingIsCut_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("narrow") << 260;
    QTest::newRow("as in the picker") << 640;
}

void tst_RkCitySelectByCity::linesWrapAndNothingIsCut()
{
    QFETCH(int, width);
    RkCitySelectByCity page;
    QStringList names;
    for (int i = 0; i < 30; ++i)
        names.append(QString(1 + i % 7, 'n') + QString::fromUtf8(" \u6210\u90fd\u5e02"));
    page.SetCities(names);
    page.resize(width, page.heightForWidth(width));
    page.show();
    QVERIFY(comesOnScreen(&page));
    QSet<int> lines;
    for (const RkHoveredPushButton* button : buttonsOf(page)) {
        QVERIFY(listOf(page).rect().contains(button->geometry()));
        QVERIFY(button->width() > button->fontMetrics().horizontalAdvance(button->text()));
        lines.insert(button->y());
    }
    QVERIFY(lines.size() > 1);
}

// A blue name on the ground of the page, and a plate in another colour under the mouse.
void tst_RkCitySelectByCity::buttonLooks()
{
    QFETCH(int, scale);
    RkCitySelectByCity page;
    page.SetCities({"\u2588\u2588\u2588"});
    page.resize(300, 40);
    page.show();
    QVERIFY(comesOnScreen(&page));
    RkHoveredPushButton& button = *buttonsOf(page).first();
    QCursor::setPos(page.mapToGlobal({290, 39}));
    button.setAttribute(Qt::WA_UnderMouse, false);
    const QColor ground = colorAt(rendered(button, scale), {2, 12});
    QCOMPARE(colorAt(rendered(button, scale), button.rect().center()), QColor(58, 136, 244));
    button.setAttribute(Qt::WA_UnderMouse);
    const QColor plate = colorAt(rendered(button, scale), {2, 12});
    QVERIFY(plate != ground);
    button.setDown(true);
    QVERIFY(colorAt(rendered(button, scale), {2, 12}) != plate);
}

QTEST_MAIN(tst_RkCitySelectByCity)
#include "tst_RkCitySelectByCity.moc"
