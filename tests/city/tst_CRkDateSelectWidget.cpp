// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkDateSelectWidget.h>

#include "support/Readability.h"
#include "support/WindowWaits.h"
#include "widgets/Render.h"
#include "widgets/SendMouse.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/SharedHelpers.h>

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextCharFormat>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

const QString passiveStyle = "border-width:0px; border-style:solid;\tborder-color:rgb(0,0,0);";
const QString activeStyle = "border-width:1px; border-style:solid;\tborder-color:rgb(58,136,244);";

const QStringList quickButtons = {
    "pushButtonYesterday",   "pushButtonToday",         "pushButtonAll",      "pushButtonLastWeek",
    "pushButtonLastTwoWeek", "pushButtonLastThreeWeek", "pushButtonLastMonth"};

/// The page as a test sees it: a popup, as it is used.
class Page : public CRkDateSelectWidget
{
public:
    Page()
        : CRkDateSelectWidget(nullptr)
    {
        setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    }

    QPushButton& button(const QString& name) const { return *findChild<QPushButton*>(name); }
    QLineEdit& from() const { return *findChild<QLineEdit*>("lineEditDateFrom"); }
    QLineEdit& to() const { return *findChild<QLineEdit*>("lineEditDateTo"); }
    QCalendarWidget& calendar() const { return *findChild<QCalendarWidget*>("m_pCalendarWidget"); }
    QWidget& days() const { return *findChild<QAbstractItemView*>("qt_calendar_calendarview"); }
    QWidget& bar() const { return *findChild<QWidget*>("qt_calendar_navigationbar"); }

    /// The cell of the table that the calendar shows, the names of the days being row 0.
    QRect cell(int row, int column) const
    {
        const auto& view = static_cast<const QAbstractItemView&>(days());
        return view.visualRect(view.model()->index(row, column));
    }

    bool open()
    {
        show();
        return comesOnScreen(this);
    }

    /// A click as the window system sends it.
    void clickAt(QWidget& widget, QPoint at, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        QTest::mouseClick(windowHandle(), mouseButton, {}, widget.mapTo(this, at));
    }
    void clickOn(QWidget& widget, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        clickAt(widget, widget.rect().center(), mouseButton);
    }
};

/// What the page's only pick was; null when there was none or more.
QString pick(const QSignalSpy& spy)
{
    return spy.size() == 1 ? spy.first().first().toString() : QString();
}

/// Translates three texts, in the context of the page alone.
class Words : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "CRkDateSelectWidget") != 0)
            return {};
        const QMap<QByteArray, QString> words = {
            {"Date", "Tag"}, {"%1 to %2", "%1 bis %2"}, {"Last week", "Woche"}};
        return words.value(source);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_CRkDateSelectWidget : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void texts_data();
    void texts();
    void calendar();
    void validator_data();
    void validator();
    void quickChoices_data();
    void quickChoices();
    void all();
    void rangeOfTheFields_data();
    void rangeOfTheFields();
    void picksAreTranslated();
    void calendarWithoutActiveField();
    void calendarFillsTheActiveField_data();
    void calendarFillsTheActiveField();
    void frameShowsTheActiveField();
    void foreignFieldChangesNoFrame();
    void foreignFieldThatIsGone();
    void pressMakesActive_data();
    void pressMakesActive();
    void pressSelectsTheDate_data();
    void pressSelectsTheDate();
    void pressesElsewhere();
    void eventsAreNeverConsumed_data();
    void eventsAreNeverConsumed();
    void hidingEndsTheActiveField();
    void closingIsNotHiding();
    void monthMenuLeavesThePageOpen();
    void wholeRangeByMouse();
    void dialogKeysDoNotClose();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void colours_data();
    void colours();
    void daysInTheLanguageOfTheLocale();
};

void tst_CRkDateSelectWidget::form()
{
    const Page page;
    QCOMPARE(page.size(), QSize(402, 403));
    QCOMPARE(page.objectName(), QString("CRkDateSelectWidget"));
    for (const QLineEdit* edit : {&page.from(), &page.to()}) {
        QVERIFY(!edit->isEnabled());
        QVERIFY(edit->text().isEmpty());
        QVERIFY(!edit->accessibleName().isEmpty());
        QCOMPARE(edit->styleSheet(), passiveStyle);
    }
    QCOMPARE(page.from().validator(), page.to().validator());
    QVERIFY(page.from().accessibleName() != page.to().accessibleName());
    QVERIFY(!page.calendar().accessibleName().isEmpty());
    QCOMPARE(page.button("pushButtonDateRangeOk").minimumWidth(), 60);
    QCOMPARE(page.button("pushButtonDateRangeOk").maximumWidth(), 60);
    for (const QString& name : quickButtons)
        QVERIFY2(page.button(name).isFlat(), qPrintable(name));

    QStringList order;
    for (const QWidget* next = page.nextInFocusChain(); next != &page;
         next = next->nextInFocusChain()) {
        if (qobject_cast<const QPushButton*>(next))
            order.append(next->objectName());
    }
    QCOMPARE(order, quickButtons + QStringList{"pushButtonDateRangeOk"});
}

void tst_CRkDateSelectWidget::texts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    for (const auto& [name, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"pushButtonYesterday", "Yesterday"},
             {"pushButtonToday", "Today"},
             {"pushButtonAll", "All"},
             {"pushButtonLastWeek", "Last week"},
             {"pushButtonLastTwoWeek", "Two weeks ago"},
             {"pushButtonLastThreeWeek", "Three weeks ago"},
             {"pushButtonLastMonth", "Last month"},
             {"labelTimePeriod", "Time period"},
             {"labelTo", "To"},
             {"pushButtonDateRangeOk", "OK"}})
        QTest::newRow(name) << QString(name) << QString(text);
}

void tst_CRkDateSelectWidget::texts()
{
    QFETCH(QString, name);
    const Page page;
    QTEST(page.findChild<QWidget*>(name)->property("text").toString(), "text");
}

void tst_CRkDateSelectWidget::calendar()
{
    const QDate before = QDate::currentDate();
    const Page page;
    const QCalendarWidget& calendar = page.calendar();
    QCOMPARE(calendar.minimumDate(), QDate(1752, 9, 14));
    QCOMPARE(calendar.firstDayOfWeek(), Qt::Sunday);
    QVERIFY(!calendar.isGridVisible());
    QCOMPARE(calendar.selectionMode(), QCalendarWidget::SingleSelection);
    QCOMPARE(calendar.horizontalHeaderFormat(), QCalendarWidget::ShortDayNames);
    QCOMPARE(calendar.verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
    QVERIFY(calendar.isNavigationBarVisible());
    QVERIFY(calendar.isDateEditEnabled());
    QVERIFY(calendar.selectedDate() >= before);
    QVERIFY(calendar.selectedDate() <= QDate::currentDate());
}

void tst_CRkDateSelectWidget::validator_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("acceptable");
    QTest::newRow("as it is written") << "2026-06-15" << true;
    QTest::newRow("short month and day") << "2026-6-1" << true;
    QTest::newRow("no such day") << "2026-99-99" << true;
    QTest::newRow("last century") << "1999-06-15" << false;
    QTest::newRow("unfinished") << "2026-06-" << false;
    QTest::newRow("slashes") << "2026/06/15" << false;
    QTest::newRow("more behind") << "2026-06-150" << false;
    QTest::newRow("blank before") << " 2026-06-15" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_CRkDateSelectWidget::validator()
{
    QFETCH(QString, text);
    const Page page;
    const auto* regExp = qobject_cast<const QRegExpValidator*>(page.from().validator());
    QVERIFY(regExp);
    QCOMPARE(regExp->regExp().pattern(), QString("20\\d{2}-\\d{1,2}-\\d{1,2}"));
    QCOMPARE(regExp->regExp().caseSensitivity(), Qt::CaseSensitive);
    page.to().setText(text);
    QTEST(page.to().hasAcceptableInput(), "acceptable");
}

void tst_CRkDateSelectWidget::quickChoices_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("days");
    QTest::addColumn<bool>("isRange");
    QTest::newRow("today") << "pushButtonToday" << 0 << false;
    QTest::newRow("yesterday") << "pushButtonYesterday" << 1 << false;
    QTest::newRow("week") << "pushButtonLastWeek" << 7 << true;
    QTest::newRow("two weeks") << "pushButtonLastTwoWeek" << 14 << true;
    QTest::newRow("three weeks") << "pushButtonLastThreeWeek" << 21 << true;
    QTest::newRow("month") << "pushButtonLastMonth" << 30 << true;
}

void tst_CRkDateSelectWidget::quickChoices()
{
    QFETCH(QString, name);
    QFETCH(int, days);
    QFETCH(bool, isRange);
    Page page;
    QVERIFY(page.open());
    const QSignalSpy spy(&page, &CRkDateSelectWidget::signalDateSelected);
    const auto expected = [&] {
        const QDate today = QDate::currentDate();
        const QString first = today.addDays(-days).toString(Qt::ISODate);
        return isRange ? first + " to " + today.toString(Qt::ISODate) : first;
    };
    const QString before = expected();
    page.clickOn(page.button(name));
    const QStringList either = {before, expected()}; // Midnight may lie between them.
    QVERIFY2(either.contains(pick(spy)), qPrintable(pick(spy)));
    QVERIFY(page.isVisible());
}

void tst_CRkDateSelectWidget::all()
{
    Page page;
    const QSignalSpy spy(&page, &CRkDateSelectWidget::signalDateSelected);
    page.button("pushButtonAll").click();
    QCOMPARE(pick(spy), QString("Date"));
}

void tst_CRkDateSelectWidget::rangeOfTheFields_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("picked");
    QTest::newRow("both") << "2026-06-01"
                          << "2026-06-15"
                          << "2026-06-01 to 2026-06-15";
    QTest::newRow("one day") << "2026-06-01"
                             << "2026-06-01"
                             << "2026-06-01 to 2026-06-01";
    QTest::newRow("backwards") << "2026-06-15"
                               << "2026-06-01"
                               << "2026-06-15 to 2026-06-01";
    QTest::newRow("as they are written") << "2026-6-1"
                                         << "x"
                                         << "2026-6-1 to x";
    QTest::newRow("blank is a text") << " "
                                     << "2026-06-15"
                                     << "  to 2026-06-15";
    QTest::newRow("a field that looks like a gap") << "%2"
                                                   << "b"
                                                   << "%2 to b";
    QTest::newRow("no start") << ""
                              << "2026-06-15" << QString();
    QTest::newRow("no end") << "2026-06-01"
                            << "" << QString();
    QTest::newRow("neither") << ""
                             << "" << QString();
}

void tst_CRkDateSelectWidget::rangeOfTheFields()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, picked);
    Page page;
    const QSignalSpy spy(&page, &CRkDateSelectWidget::signalDateSelected);
    page.from().setText(from);
    page.to().setText(to);
    page.button("pushButtonDateRangeOk").click();
    QCOMPARE(spy.size(), picked.isNull() ? 0 : 1);
    QCOMPARE(pick(spy), picked);
}

void tst_CRkDateSelectWidget::picksAreTranslated()
{
    Words words;
    QVERIFY(QCoreApplication::installTranslator(&words));
    Page page;
    QCOMPARE(page.button("pushButtonLastWeek").text(), QString("Woche"));
    QSignalSpy spy(&page, &CRkDateSelectWidget::signalDateSelected);
    page.slotButtonAllClicked();
    QCOMPARE(pick(spy), QString("Tag"));
    spy.clear();
    page.from().setText("2026-06-01");
    page.to().setText("2026-06-15");
    page.slotButtonDateRangeOkClicked();
    QCOMPARE(pick(spy), QString("2026-06-01 bis 2026-06-15"));
    spy.clear();
    page.slotButtonLastWeekClicked();
    QVERIFY2(pick(spy).contains(" bis "), qPrintable(pick(spy)));
    spy.clear();
    page.slotButtonTodayClicked();
    QVERIFY(QDate::fromString(pick(spy), DateFormat).isValid());
}

void tst_CRkDateSelectWidget::calendarWithoutActiveField()
{
    Page page;
    QVERIFY(page.open());
    page.from().setText("2026-06-01");
    page.clickAt(page.days(), page.cell(3, 3).center());
    QCOMPARE(page.from().text(), QString("2026-06-01"));
    QVERIFY(page.to().text().isEmpty());
    page.slotCalenderClicked(QDate(2026, 6, 9));
    QCOMPARE(page.from().text(), QString("2026-06-01"));
    QVERIFY(page.to().text().isEmpty());
}

void tst_CRkDateSelectWidget::calendarFillsTheActiveField_data()
{
    QTest::addColumn<bool>("isFrom");
    QTest::newRow("from") << true;
    QTest::newRow("to") << false;
}

void tst_CRkDateSelectWidget::calendarFillsTheActiveField()
{
    QFETCH(bool, isFrom);
    Page page;
    QVERIFY(page.open());
    QLineEdit& active = isFrom ? page.from() : page.to();
    const QLineEdit& other = isFrom ? page.to() : page.from();
    page.calendar().setSelectedDate(QDate(2026, 6, 15));
    page.SetActiveCalendarEdit(&active);
    page.clickAt(page.days(), page.cell(3, 3).center()); // The second Wednesday.
    QCOMPARE(active.text(), QString("2026-06-17"));
    QCOMPARE(page.calendar().selectedDate(), QDate(2026, 6, 17));
    page.clickAt(page.days(), page.cell(1, 0).center()); // Of the month before.
    QCOMPARE(active.text(), QString("2026-05-31"));
    page.slotCalenderClicked(QDate(2001, 1, 2));
    QCOMPARE(active.text(), QString("2001-01-02"));
    QVERIFY(other.text().isEmpty());
}

void tst_CRkDateSelectWidget::frameShowsTheActiveField()
{
    Page page;
    page.SetActiveCalendarEdit(&page.from());
    QCOMPARE(page.from().styleSheet(), activeStyle);
    QCOMPARE(page.to().styleSheet(), passiveStyle);
    page.SetActiveCalendarEdit(&page.to());
    QCOMPARE(page.from().styleSheet(), passiveStyle);
    QCOMPARE(page.to().styleSheet(), activeStyle);
    page.SetActiveCalendarEdit(nullptr);
    QCOMPARE(page.from().styleSheet(), passiveStyle);
    QCOMPARE(page.to().styleSheet(), passiveStyle);
}

void tst_CRkDateSelectWidget::foreignFieldChangesNoFrame()
{
    Page page;
    QLineEdit foreign;
    page.SetActiveCalendarEdit(&page.to());
    page.SetActiveCalendarEdit(&foreign);
    QCOMPARE(page.from().styleSheet(), passiveStyle);
    QCOMPARE(page.to().styleSheet(), activeStyle);
    QVERIFY(foreign.styleSheet().isEmpty());
    page.slotCalenderClicked(QDate(2026, 6, 9));
    QCOMPARE(foreign.text(), QString("2026-06-09"));
    QVERIFY(page.to().text().isEmpty());
}

void tst_CRkDateSelectWidget::foreignFieldThatIsGone()
{
    Page page;
    auto foreign = std::make_unique<QLineEdit>();
    page.SetActiveCalendarEdit(foreign.get());
    foreign.reset();
    page.slotCalenderClicked(QDate(2026, 6, 9));
    QVERIFY(page.from().text().isEmpty());
    QVERIFY(page.to().text().isEmpty());
}

void tst_CRkDateSelectWidget::pressMakesActive_data()
{
    QTest::addColumn<bool>("isFrom");
    QTest::addColumn<Qt::MouseButton>("mouseButton");
    QTest::newRow("from") << true << Qt::LeftButton;
    QTest::newRow("to") << false << Qt::LeftButton;
    QTest::newRow("from, right button") << true << Qt::RightButton;
    QTest::newRow("to, middle button") << false << Qt::MiddleButton;
}

void tst_CRkDateSelectWidget::pressMakesActive()
{
    QFETCH(bool, isFrom);
    QFETCH(Qt::MouseButton, mouseButton);
    Page page;
    QVERIFY(page.open());
    const QDate selected = page.calendar().selectedDate();
    QLineEdit& edit = isFrom ? page.from() : page.to();
    page.clickOn(edit, mouseButton);
    QCOMPARE(edit.styleSheet(), activeStyle);
    QCOMPARE((isFrom ? page.to() : page.from()).styleSheet(), passiveStyle);
    page.slotCalenderClicked(QDate(2026, 6, 9));
    QCOMPARE(edit.text(), QString("2026-06-09"));
    QCOMPARE(page.calendar().selectedDate(), selected);
    QVERIFY(page.isVisible());
}

void tst_CRkDateSelectWidget::pressSelectsTheDate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("selected");
    const QDate before(2026, 6, 15);
    QTest::newRow("another month") << "2025-12-31" << QDate(2025, 12, 31);
    QTest::newRow("the same day") << "2026-06-15" << before;
    QTest::newRow("empty") << "" << before;
    QTest::newRow("no such day") << "2026-02-30" << before;
    QTest::newRow("no date") << "x" << before;
    QTest::newRow("not in the format") << "2026-6-1" << before;
}

void tst_CRkDateSelectWidget::pressSelectsTheDate()
{
    QFETCH(QString, text);
    QFETCH(QDate, selected);
    Page page;
    QVERIFY(page.open());
    for (QLineEdit* edit : {&page.from(), &page.to()}) {
        page.calendar().setSelectedDate(QDate(2026, 6, 15));
        edit->setText(text);
        page.clickOn(*edit);
        QCOMPARE(page.calendar().selectedDate(), selected);
        QCOMPARE(page.calendar().monthShown(), selected.month());
        QCOMPARE(edit->text(), text);
    }
}

void tst_CRkDateSelectWidget::pressesElsewhere()
{
    Page page;
    QVERIFY(page.open());
    page.clickOn(page.from());
    page.clickOn(*page.findChild<QLabel*>("labelTo"));
    page.clickAt(page, QPoint(5, 5));
    QCOMPARE(page.from().styleSheet(), activeStyle);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    page.eventFilter(&page.to(), &release);
    QCOMPARE(page.from().styleSheet(), activeStyle);
}

void tst_CRkDateSelectWidget::eventsAreNeverConsumed_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("press") << int(QEvent::MouseButtonPress);
    QTest::newRow("release") << int(QEvent::MouseButtonRelease);
    QTest::newRow("hide") << int(QEvent::Hide);
    QTest::newRow("close") << int(QEvent::Close);
}

void tst_CRkDateSelectWidget::eventsAreNeverConsumed()
{
    QFETCH(int, type);
    Page page;
    QMouseEvent event(QEvent::Type(type), QPointF(2, 2), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    for (QObject* object : {static_cast<QObject*>(&page), static_cast<QObject*>(&page.from()),
                            static_cast<QObject*>(&page.to())}) {
        QVERIFY(!page.eventFilter(object, &event));
        QVERIFY(event.isAccepted());
    }
}

void tst_CRkDateSelectWidget::hidingEndsTheActiveField()
{
    Page page;
    QVERIFY(page.open());
    page.clickOn(page.to());
    page.slotCalenderClicked(QDate(2026, 6, 9));
    page.hide();
    QCOMPARE(page.to().styleSheet(), passiveStyle);
    page.slotCalenderClicked(QDate(2026, 6, 10));
    QCOMPARE(page.to().text(), QString("2026-06-09"));
    QVERIFY(page.from().text().isEmpty());

    QVERIFY(page.open());
    QCOMPARE(page.to().text(), QString("2026-06-09"));
    page.SetActiveCalendarEdit(&page.from());
    page.to().hide(); // Not the page itself.
    QCOMPARE(page.from().styleSheet(), activeStyle);
}

void tst_CRkDateSelectWidget::closingIsNotHiding()
{
    Page page;
    const QSignalSpy closed(&page, &CRkDateSelectWidget::signalWidgetClosed);
    QVERIFY(page.open());
    page.hide();
    QCOMPARE(closed.size(), 0);
    QVERIFY(page.open());
    page.close();
    QCOMPARE(closed.size(), 1);
    QVERIFY(!page.isVisible());
    QVERIFY(page.open());
    QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, QPoint(-20, 100));
    QCOMPARE(closed.size(), 2);
    QVERIFY(!page.isVisible());
}

void tst_CRkDateSelectWidget::monthMenuLeavesThePageOpen()
{
    Page page;
    page.calendar().setSelectedDate(QDate(2026, 6, 15));
    QVERIFY(page.open());
    auto* month = page.findChild<QToolButton*>("qt_calendar_monthbutton");
    QMenu* menu = month->menu();
    connect(menu, &QMenu::aboutToShow, menu, [menu] {
        QTimer::singleShot(0, menu, [menu] {
            const bool isShown = comesOnScreen(menu);
            const QRect december = menu->actionGeometry(menu->actions().constLast());
            if (isShown)
                QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, december.center());
            menu->close();
        });
    });
    QTest::mousePress(page.windowHandle(), Qt::LeftButton, {},
                      month->mapTo(&page, month->rect().center()));
    QTRY_VERIFY(!menu->isVisible());
    QCOMPARE(page.calendar().monthShown(), 12);
    QVERIFY(page.isVisible());
}

void tst_CRkDateSelectWidget::wholeRangeByMouse()
{
    Page page;
    page.calendar().setSelectedDate(QDate(2026, 6, 15));
    const QSignalSpy spy(&page, &CRkDateSelectWidget::signalDateSelected);
    QVERIFY(page.open());
    page.clickOn(page.from());
    page.clickAt(page.days(), page.cell(1, 1).center());
    page.clickOn(page.to());
    page.clickOn(*page.findChild<QToolButton*>("qt_calendar_nextmonth"));
    page.clickAt(page.days(), page.cell(1, 3).center());
    page.clickOn(page.button("pushButtonDateRangeOk"));
    QCOMPARE(pick(spy), QString("2026-06-01 to 2026-07-01"));
}

void tst_CRkDateSelectWidget::dialogKeysDoNotClose()
{
    Page page;
    const QSignalSpy spy(&page, &CRkDateSelectWidget::signalDateSelected);
    QVERIFY(page.open());
    QTest::keyClick(page.windowHandle(), Qt::Key_Return);
    QVERIFY(page.isVisible());
    QCOMPARE(spy.size(), 0);
    QTest::keyClick(page.windowHandle(), Qt::Key_Escape);
    QVERIFY(!page.isVisible());
}

void tst_CRkDateSelectWidget::nothingIsClipped_data()
{
    QTest::addColumn<QString>("translation");
    QTest::newRow("English") << QString();
    QTest::newRow("Chinese") << "RkBaseUI_zh_CN";
}

void tst_CRkDateSelectWidget::nothingIsClipped()
{
    QFETCH(QString, translation);
    std::unique_ptr<QTranslator> translator;
    if (!translation.isEmpty()) {
        translator.reset(CreateTranslator(translation));
        QVERIFY(QCoreApplication::installTranslator(translator.get()));
    }
    Page page;
    page.from().setText("2026-12-28");
    page.to().setText("2026-12-28");
    page.calendar().setSelectedDate(QDate(2026, 9, 15));
    QVERIFY(page.open());
    QCOMPARE(page.size(), QSize(402, 403));
    const QList<QWidget*> widgets = page.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (qobject_cast<const QPushButton*>(widget) || qobject_cast<const QLabel*>(widget)) {
            QVERIFY2(widget->width() >= widget->sizeHint().width()
                         && widget->height() >= widget->sizeHint().height(),
                     qPrintable(widget->objectName()));
        }
    }
    for (const QLineEdit* edit : {&page.from(), &page.to()})
        QVERIFY(edit->width() >= edit->fontMetrics().horizontalAdvance(edit->text()) + 14);
    QVERIFY(page.bar().width() >= page.bar().sizeHint().width());
    QVERIFY(page.days().rect().contains(page.cell(6, 6)));
}

void tst_CRkDateSelectWidget::colours_data()
{
    addScales();
}

void tst_CRkDateSelectWidget::colours()
{
    QFETCH(int, scale);
    Page page;
    page.calendar().setSelectedDate(QDate(2026, 6, 15));
    QVERIFY(page.open());
    const QImage image = rendered(page, scale);
    const auto readAt = [&](const QWidget& widget, const QRect& part) {
        const QRect area(widget.mapTo(&page, part.topLeft()), part.size());
        return read(image, QRect(area.topLeft() * scale, area.size() * scale));
    };
    const auto readOf = [&](const QWidget& widget) { return readAt(widget, widget.rect()); };

    const QPushButton& ok = page.button("pushButtonDateRangeOk");
    QCOMPARE(readOf(ok).ground, QColor(58, 136, 244));
    QVERIFY(readOf(ok).contrast >= contrast(qRgb(255, 255, 255), qRgb(58, 136, 244)) - 0.1);
    QVERIFY(readOf(page.button("pushButtonLastMonth")).contrast > 2.9);
    QCOMPARE(page.button("pushButtonLastMonth").palette().color(QPalette::ButtonText),
             QColor(58, 136, 244));
    QVERIFY(readOf(page.bar()).contrast >= 7);
    for (int column = 0; column < 7; ++column)
        QVERIFY(readAt(page.days(), page.cell(0, column)).contrast >= 4);
    QCOMPARE(readAt(page.days(), page.cell(3, 1)).ground, QColor(58, 136, 244)); // 15 June.
    QVERIFY(readAt(page.days(), page.cell(3, 1)).contrast >= 3);
    QCOMPARE(readAt(page.days(), page.cell(3, 2)).ground, QColor(Qt::white));
    QVERIFY(readAt(page.days(), page.cell(3, 2)).contrast >= 10);
    QVERIFY(readAt(page.days(), page.cell(3, 6)).contrast >= 4);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
        QVERIFY(page.calendar().weekdayTextFormat(day).foreground().color()
                != page.calendar().weekdayTextFormat(Qt::Monday).foreground().color());
    }

    QPushButton& hovered = page.button("pushButtonToday");
    hovered.setAttribute(Qt::WA_UnderMouse);
    sendMouse(hovered, QEvent::MouseMove, {2, 2}, Qt::NoButton, Qt::NoButton);
    const QImage picture = rendered(hovered, scale);
    const Reading reading = read(picture, picture.rect());
    QCOMPARE(reading.ground, QColor(146, 179, 229));
    QVERIFY(reading.contrast >= 4.5);
}

void tst_CRkDateSelectWidget::daysInTheLanguageOfTheLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    Page page;
    QLocale::setDefault(before);
    page.calendar().setSelectedDate(QDate(2026, 6, 15));
    QCOMPARE(page.findChild<QToolButton*>("qt_calendar_monthbutton")->text(),
             QString::fromUtf8("六月"));
}

QTEST_MAIN(tst_CRkDateSelectWidget)
#include "tst_CRkDateSelectWidget.moc"
