// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkCityDateFilterWidget.h>

#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/AtScale.h"
#include "widgets/ExecAnd.h"
#include "widgets/Render.h"
#include "widgets/SendMouse.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/CRkCitySelectWidget.h>
#include <RkBaseUI/CRkDateSelectWidget.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

/// The window of the process that is of the class.
template <typename Popup>
Popup* onlyWindow()
{
    QList<Popup*> found;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* popup = qobject_cast<Popup*>(window))
            found.append(popup);
    }
    return found.size() == 1 ? found.first() : nullptr;
}

/// The bar as a test sees it.
class Bar : public CRkCityDateFilterWidget
{
public:
    using CRkCityDateFilterWidget::CRkCityDateFilterWidget;

    QLabel& cityLabel() const { return *findChild<QLabel*>("m_pLblCity"); }
    QLabel& dateLabel() const { return *findChild<QLabel*>("m_pLblDate"); }
    QPushButton& cityButton() const { return *findChild<QPushButton*>("m_pBtnCitySelect"); }
    QPushButton& dateButton() const { return *findChild<QPushButton*>("m_pBtnDateSelect"); }

    CRkCitySelectWidget& cityPopup() const { return *m_cityPopup; }
    CRkDateSelectWidget& datePopup() const { return *m_datePopup; }

    QPushButton& button(bool isCity) const { return isCity ? cityButton() : dateButton(); }
    QWidget& popup(bool isCity) const
    {
        return isCity ? static_cast<QWidget&>(cityPopup()) : static_cast<QWidget&>(datePopup());
    }

    /// Whether both buttons say of their popups what is the case, and which is open.
    bool agree(bool cityIsOpen, bool dateIsOpen) const
    {
        return cityButton().isChecked() == cityIsOpen && cityPopup().isVisible() == cityIsOpen
            && dateButton().isChecked() == dateIsOpen && datePopup().isVisible() == dateIsOpen;
    }
    bool isClosed() const { return agree(false, false); }

private:
    const QPointer<CRkCitySelectWidget> m_cityPopup = onlyWindow<CRkCitySelectWidget>();
    const QPointer<CRkDateSelectWidget> m_datePopup = onlyWindow<CRkDateSelectWidget>();
};

/// A window with the bar, and a button beside it.
class Window : public QWidget
{
public:
    Window()
    {
        auto* layout = new QGridLayout(this);
        layout->addWidget(bar, 0, 0);
        layout->addWidget(other, 1, 0);
        resize(500, 120);
        move(400, 60);
    }

    bool open()
    {
        show();
        activateWindow();
        return comesToFront(this);
    }

    void clickOn(const QWidget& widget) const
    {
        pressOn(widget, QEvent::MouseButtonPress);
        releaseOn(widget);
    }
    void doubleClickOn(const QWidget& widget) const
    {
        clickOn(widget);
        pressOn(widget, QEvent::MouseButtonDblClick);
        releaseOn(widget);
    }

    /// Whether a press that closed a popup goes on to what lies there, as on Windows and not on
    /// X11. Here the test does it in the place of the toolkit, and honours the same attribute.
    bool replays = false;
    Bar* const bar = new Bar(this);
    QPushButton* const other = new QPushButton("other", this);

private:
    void pressOn(const QWidget& widget, QEvent::Type type) const
    {
        const QPointer<QWidget> popup = QApplication::activePopupWidget();
        sendTo(popup ? *popup : static_cast<const QWidget&>(*this), widget, type, Qt::LeftButton);
        const bool isPassedOn =
            replays && popup && !popup->isVisible() && !popup->testAttribute(Qt::WA_NoMouseReplay);
        if (isPassedOn && type == QEvent::MouseButtonPress)
            sendTo(*this, widget, type, Qt::LeftButton);
    }
    void releaseOn(const QWidget& widget) const
    {
        const QWidget* popup = QApplication::activePopupWidget();
        sendTo(popup ? *popup : static_cast<const QWidget&>(*this), widget,
               QEvent::MouseButtonRelease, Qt::NoButton);
    }
    /// An event as the window gets it from the window system, from which popups keep the mouse of
    /// the whole application.
    static void sendTo(const QWidget& window, const QWidget& widget, QEvent::Type type,
                       Qt::MouseButtons held)
    {
        const QPoint at = widget.mapToGlobal(widget.rect().center());
        QMouseEvent event(type, window.mapFromGlobal(at), at, Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
        QCoreApplication::processEvents();
    }
};

/// A click in a popup.
void clickIn(QWidget& popup, const QWidget& widget)
{
    QTest::mouseClick(popup.windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(&popup, widget.rect().center()));
}

/// Translates the bar's texts, in its context alone.
class Words : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "CRkCityDateFilterWidget") != 0)
            return {};
        const QMap<QByteArray, QString> words = {
            {"City", "Stadt"}, {"Date", "Datum"}, {"All", "Alle"}};
        return words.value(source);
    }
    bool isEmpty() const override { return false; }
};

/// Runs the current row of the current test in a process of its own with these changes to the
/// environment; the test fails with it. True in that process.
bool isWith(const QMap<QString, QString>& changes)
{
    const QString mark = "RK_TEST_INNER";
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (environment.contains(mark))
        return true;
    environment.insert(mark, "1");
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        environment.insert(change.key(), change.value());
    QProcess inner;
    inner.setProcessEnvironment(environment);
    inner.start(QCoreApplication::applicationFilePath(),
                {QTest::currentDataTag()
                     ? QString("%1:%2").arg(QTest::currentTestFunction(), QTest::currentDataTag())
                     : QString(QTest::currentTestFunction())});
    const bool passed = inner.waitForFinished() && inner.exitStatus() == QProcess::NormalExit
        && inner.exitCode() == 0;
    if (!passed)
        QTest::qFail(inner.readAllStandardOutput().constData(), __FILE__, __LINE__);
    return false;
}

/// The same on a display with two screens.
bool isOnTwoScreens()
{
    if (QGuiApplication::screens().size() == 2)
        return true;
    QProcess display;
    display.start(
        "Xvfb",
        {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-screen", "1", "1280x1024x24"});
    while (!display.canReadLine()) {
        if (!display.waitForReadyRead()) {
            QTest::qFail("There is no second display.", __FILE__, __LINE__);
            return false;
        }
    }
    const bool isInner =
        isWith({{"DISPLAY", ':' + QString::fromLatin1(display.readLine().trimmed())}});
    display.terminate();
    display.waitForFinished();
    return isInner;
}

QString picture(const QString& name)
{
    return ":/images/Normal/" + name + ".png";
}

} // namespace

class tst_CRkCityDateFilterWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void construction();
    void form();
    void popups();
    void arrows_data();
    void arrows();
    void textsAreTranslated();
    void labelsShowPlainText();
    void defaultCity_data();
    void defaultCity();
    void defaultCityIsThePopupsSelection();
    void popupHangsUnderTheButton_data();
    void popupHangsUnderTheButton();
    void popupFollowsTheBar();
    void cityPopupIsMadeReady();
    void keysGoToTheKeyword();
    void switchingOffDoesNothing();
    void cityIsPicked();
    void dateIsPicked();
    void allResetsTheDate();
    void picksWithoutAnOpenPopup();
    void conditionsAreReadyWithTheSignal_data();
    void conditionsAreReadyWithTheSignal();
    void closingSwitchesOff_data();
    void closingSwitchesOff();
    void mouseOpens_data();
    void mouseOpens();
    void clickElsewhereCloses_data();
    void clickElsewhereCloses();
    void clickOnTheButtonCloses_data();
    void clickOnTheButtonCloses();
    void clickOnTheOtherButtonChangesPopups_data();
    void clickOnTheOtherButtonChangesPopups();
    void pressOutsideIsPassedOn();
    void doubleClickOnTheButton_data();
    void doubleClickOnTheButton();
    void escapeCloses_data();
    void escapeCloses();
    void keyboardOpens();
    void dateFieldsSurvive();
    void popupsDieWithTheBar_data();
    void popupsDieWithTheBar();
    void barDiesWhenAPickIsTold_data();
    void barDiesWhenAPickIsTold();
    void popupsCloseWithTheWindow_data();
    void popupsCloseWithTheWindow();
    void popupsWorkInAModalDialog_data();
    void popupsWorkInAModalDialog();
    void popupOnTheSecondScreen_data();
    void popupOnTheSecondScreen();

private:
    std::unique_ptr<TestHome> m_home;
};

namespace {

/// Rows for tests of either popup.
void addPopups()
{
    QTest::addColumn<bool>("isCity");
    QTest::newRow("city") << true;
    QTest::newRow("date") << false;
}

/// The same, also where a press outside is passed on.
void addPopupsAndPlatforms()
{
    QTest::addColumn<bool>("isCity");
    QTest::addColumn<bool>("replays");
    QTest::newRow("city") << true << false;
    QTest::newRow("date") << false << false;
    QTest::newRow("city, press passed on") << true << true;
    QTest::newRow("date, press passed on") << false << true;
}

} // namespace

void tst_CRkCityDateFilterWidget::init()
{
    m_home = std::make_unique<TestHome>();
}

void tst_CRkCityDateFilterWidget::construction()
{
    const Bar bar;
    QCOMPARE(bar.GetCurCity(), QString("City"));
    QCOMPARE(bar.GetCurDate(), QString("Date"));
    QCOMPARE(bar.cityLabel().text(), QString("City"));
    QCOMPARE(bar.dateLabel().text(), QString("Date"));
    QVERIFY(bar.isClosed());
}

void tst_CRkCityDateFilterWidget::form()
{
    const Bar bar;
    const auto* grid = qobject_cast<const QGridLayout*>(bar.layout());
    QVERIFY(grid);
    const QList<const QWidget*> order = {&bar.cityLabel(), &bar.cityButton(), &bar.dateLabel(),
                                         &bar.dateButton()};
    for (int column = 0; column < order.size(); ++column)
        QCOMPARE(grid->itemAtPosition(0, column)->widget(), order[column]);
    for (const QLabel* label : {&bar.cityLabel(), &bar.dateLabel()}) {
        QCOMPARE(label->styleSheet(), QString("color: rgb(255, 255, 255);"));
        QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    }
    for (const bool isCity : {true, false}) {
        const QPushButton& button = bar.button(isCity);
        QVERIFY(button.isCheckable());
        QCOMPARE(button.minimumSize(), QSize(21, 21));
        QCOMPARE(button.maximumSize(), QSize(21, 21));
        QVERIFY(button.text().isEmpty());
        QVERIFY(!button.accessibleName().isEmpty());
    }
    QVERIFY(bar.cityButton().accessibleName() != bar.dateButton().accessibleName());
    QVERIFY(bar.minimumSizeHint().width() >= 100);
}

void tst_CRkCityDateFilterWidget::popups()
{
    const Bar bar;
    for (const bool isCity : {true, false}) {
        const QWidget& popup = bar.popup(isCity);
        QCOMPARE(popup.windowFlags(),
                 Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        QVERIFY(!popup.parentWidget());
        QVERIFY(!popup.testAttribute(Qt::WA_DeleteOnClose));
    }
}

void tst_CRkCityDateFilterWidget::arrows_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("name");
    for (const int scale : {1, 2}) {
        const auto row = [scale](const char* state, bool checked, bool hovered, const char* name) {
            QTest::newRow(qPrintable(QString("%1 at %2").arg(state).arg(scale)))
                << scale << checked << hovered << QString(name);
        };
        row("plain", false, false, "eng_search_arrow_nor");
        row("hovered", false, true, "eng_search_arrow_hov");
        row("checked", true, false, "eng_search_arrow1_nor");
        row("checked and hovered", true, true, "eng_search_arrow1_hov");
    }
}

void tst_CRkCityDateFilterWidget::arrows()
{
    QFETCH(int, scale);
    QFETCH(bool, checked);
    QFETCH(bool, hovered);
    QFETCH(QString, name);
    if (!isAtScale(scale))
        return;
    const QString path = picture(scale == 2 ? name + "@2x" : name);
    QImage image(path);
    QVERIFY(!image.isNull());
    QCOMPARE(image.size(), QSize(21, 21) * scale);
    image.setDevicePixelRatio(1);
    QImage expected(image.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.drawImage(0, 0, image);
    painter.end();

    Window window;
    QVERIFY(window.open());
    for (const bool isCity : {true, false}) {
        QPushButton& button = window.bar->button(isCity);
        const QSignalBlocker noPopup(button);
        button.setChecked(checked);
        button.setAttribute(Qt::WA_UnderMouse, hovered);
        sendMouse(button, QEvent::MouseMove, {10, 10}, Qt::NoButton, Qt::NoButton);
        QImage drawn(button.size() * scale, QImage::Format_ARGB32_Premultiplied);
        drawn.setDevicePixelRatio(scale);
        drawn.fill(Qt::white);
        button.render(&drawn, {}, {}, QWidget::RenderFlags()); // Its own ground must be clear.
        QVERIFY(alike(drawn, expected));
    }
}

void tst_CRkCityDateFilterWidget::textsAreTranslated()
{
    Words words;
    QVERIFY(QCoreApplication::installTranslator(&words));
    Bar bar;
    QCOMPARE(bar.GetCurCity(), QString("Stadt"));
    QCOMPARE(bar.GetCurDate(), QString("Datum"));
    bar.cityPopup().slotCitySelected(QString());
    bar.LoadDefaultContiditions();
    QCOMPARE(bar.GetCurCity(), QString("Alle"));
}

void tst_CRkCityDateFilterWidget::labelsShowPlainText()
{
    const Bar bar;
    QCOMPARE(bar.cityLabel().textFormat(), Qt::PlainText);
    QCOMPARE(bar.dateLabel().textFormat(), Qt::PlainText);
}

void tst_CRkCityDateFilterWidget::defaultCity_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << QString() << "All";
    QTest::newRow("a city") << "Chengdu"
                            << "Chengdu";
    QTest::newRow("no such city") << "Nowhere"
                                  << "Nowhere";
    QTest::newRow("another language") << QString::fromUtf8("成都") << QString::fromUtf8("成都");
}

void tst_CRkCityDateFilterWidget::defaultCity()
{
    QFETCH(QString, stored);
    if (!stored.isNull()) {
        QSettings settings(OrganizationName, "Corvel_clound");
        settings.setValue("Application/defaultcity", stored);
    }
    Bar bar;
    const QSignalSpy city(&bar, &CRkCityDateFilterWidget::CityConditionChanged);
    const QSignalSpy date(&bar, &CRkCityDateFilterWidget::DateConditionChanged);
    QCOMPARE(bar.GetCurCity(), QString("City"));
    bar.slotDateSelected("2026-06-15");
    QCOMPARE(date.size(), 1);
    bar.LoadDefaultContiditions();
    QTEST(bar.GetCurCity(), "shown");
    QCOMPARE(bar.GetCurDate(), QString("2026-06-15"));
    QCOMPARE(city.size(), 0);
    QCOMPARE(date.size(), 1);
}

void tst_CRkCityDateFilterWidget::defaultCityIsThePopupsSelection()
{
    Bar bar;
    emit bar.cityPopup().signalCitySelected("Lhasa");
    bar.slotCitySelected("Xining"); // The popup does not hear of this.
    bar.LoadDefaultContiditions();
    QCOMPARE(bar.GetCurCity(), QString("Lhasa"));
}

void tst_CRkCityDateFilterWidget::popupHangsUnderTheButton_data()
{
    QTest::addColumn<bool>("isCity");
    QTest::addColumn<QPoint>("at");
    for (const bool isCity : {true, false}) {
        const auto row = [isCity](const char* where, QPoint at) {
            QTest::newRow(qPrintable(QString(isCity ? "city, %1" : "date, %1").arg(where)))
                << isCity << at;
        };
        row("middle", {800, 300});
        row("left edge", {0, 0});
        row("right edge", {1640, 100});
        row("lower edge", {800, 1120});
        row("partly off the screen", {-90, -10});
    }
}

void tst_CRkCityDateFilterWidget::popupHangsUnderTheButton()
{
    QFETCH(bool, isCity);
    QFETCH(QPoint, at);
    Window window;
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.move(at);
    QVERIFY(window.open());
    window.clickOn(window.bar->button(isCity));
    QWidget& popup = window.bar->popup(isCity);
    QVERIFY(comesOnScreen(&popup));
    const QRect button = window.bar->button(isCity).geometry();
    const QPoint expected =
        window.bar->mapToGlobal({button.center().x() - popup.width() / 2, button.bottom()});
    QCOMPARE(popup.pos(), expected);
    QCOMPARE(popup.windowHandle()->position(), expected);
    QCOMPARE(popup.height(), isCity ? 600 : 403);
}

void tst_CRkCityDateFilterWidget::popupFollowsTheBar()
{
    Window window;
    QVERIFY(window.open());
    window.bar->dateButton().setChecked(true);
    const QPoint first = window.bar->datePopup().pos();
    window.bar->datePopup().close();
    const QPoint before = window.bar->mapToGlobal(QPoint());
    window.move(window.pos() + QPoint(70, 40));
    QTRY_COMPARE(window.bar->mapToGlobal(QPoint()), before + QPoint(70, 40));
    window.bar->dateButton().setChecked(true);
    QCOMPARE(window.bar->datePopup().pos(), first + QPoint(70, 40));
}

void tst_CRkCityDateFilterWidget::cityPopupIsMadeReady()
{
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    auto& tabs = *bar.cityPopup().findChild<QTabWidget*>("tabWidget");
    tabs.setCurrentIndex(1);
    bar.slotCityBtnToggled(true);
    QVERIFY(bar.cityPopup().isVisible());
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(bar.cityPopup().minimumHeight(), 600);
    QCOMPARE(bar.cityPopup().maximumHeight(), 600);
    QTRY_COMPARE(QGuiApplication::focusWindow(), bar.cityPopup().windowHandle());
    QVERIFY(!bar.datePopup().isVisible());
}

void tst_CRkCityDateFilterWidget::keysGoToTheKeyword()
{
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    const auto& keyword = *bar.cityPopup().findChild<QLineEdit*>("lineEditSearchCity");
    for (const char* word : {"zhou", "an"}) { // The second takes the place of the first.
        bar.slotCityBtnToggled(true);
        QTRY_COMPARE(QGuiApplication::focusWindow(), bar.cityPopup().windowHandle());
        for (const char* letter = word; *letter; ++letter)
            QTest::keyClick(bar.cityPopup().windowHandle(), *letter);
        QCOMPARE(keyword.text(), QString(word));
        QTest::keyClick(bar.cityPopup().windowHandle(), Qt::Key_Tab);
        bar.cityPopup().close();
    }
}

void tst_CRkCityDateFilterWidget::switchingOffDoesNothing()
{
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    bar.slotCityBtnToggled(false);
    bar.slotDateBtnToggled(false);
    QVERIFY(bar.isClosed());
    bar.dateButton().setChecked(true);
    bar.slotDateBtnToggled(false);
    QVERIFY(bar.agree(false, true));
    bar.datePopup().close();
    bar.cityButton().setChecked(true);
    bar.slotCityBtnToggled(false);
    QVERIFY(bar.agree(true, false));
}

void tst_CRkCityDateFilterWidget::cityIsPicked()
{
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    const QSignalSpy city(&bar, &CRkCityDateFilterWidget::CityConditionChanged);
    const QSignalSpy date(&bar, &CRkCityDateFilterWidget::DateConditionChanged);
    window.clickOn(bar.cityButton());
    QVERIFY(comesOnScreen(&bar.cityPopup()));
    QWidget* frequent = bar.cityPopup().findChild<QWidget*>("widgetFrequentCities");
    clickIn(bar.cityPopup(), *frequent->findChildren<QPushButton*>().at(1));
    QCOMPARE(bar.GetCurCity(), QString("Beijing"));
    QVERIFY(bar.isClosed());
    QCOMPARE(city.size(), 1);
    QCOMPARE(date.size(), 0);
    QCOMPARE(bar.GetCurDate(), QString("Date"));
}

void tst_CRkCityDateFilterWidget::dateIsPicked()
{
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    const QSignalSpy city(&bar, &CRkCityDateFilterWidget::CityConditionChanged);
    const QSignalSpy date(&bar, &CRkCityDateFilterWidget::DateConditionChanged);
    window.clickOn(bar.dateButton());
    QVERIFY(comesOnScreen(&bar.datePopup()));
    clickIn(bar.datePopup(), *bar.datePopup().findChild<QPushButton*>("pushButtonLastWeek"));
    QVERIFY2(bar.GetCurDate().contains(" to "), qPrintable(bar.GetCurDate()));
    QVERIFY(bar.isClosed());
    QCOMPARE(date.size(), 1);
    QCOMPARE(city.size(), 0);
    QCOMPARE(bar.GetCurCity(), QString("City"));
}

void tst_CRkCityDateFilterWidget::allResetsTheDate()
{
    Bar bar;
    bar.slotDateSelected("2026-06-15");
    const QSignalSpy date(&bar, &CRkCityDateFilterWidget::DateConditionChanged);
    bar.datePopup().slotButtonAllClicked();
    QCOMPARE(bar.GetCurDate(), QString("Date"));
    QCOMPARE(date.size(), 1);
    bar.datePopup().slotButtonAllClicked(); // Told again, though nothing changed.
    QCOMPARE(date.size(), 2);
}

void tst_CRkCityDateFilterWidget::picksWithoutAnOpenPopup()
{
    Bar bar;
    const QSignalSpy city(&bar, &CRkCityDateFilterWidget::CityConditionChanged);
    emit bar.cityPopup().signalCitySelected("<b>&Lhasa</b>");
    QCOMPARE(bar.GetCurCity(), QString("<b>&Lhasa</b>"));
    QCOMPARE(city.size(), 1);
    QVERIFY(bar.isClosed());
}

void tst_CRkCityDateFilterWidget::conditionsAreReadyWithTheSignal_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::conditionsAreReadyWithTheSignal()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    bar.button(isCity).setChecked(true);
    QStringList seen;
    const auto look = [&] {
        seen = QStringList{bar.GetCurCity(), bar.GetCurDate(), bar.isClosed() ? "closed" : "open"};
    };
    connect(&bar, &CRkCityDateFilterWidget::CityConditionChanged, &bar, look);
    connect(&bar, &CRkCityDateFilterWidget::DateConditionChanged, &bar, look);
    if (isCity)
        emit bar.cityPopup().signalCitySelected("picked");
    else
        emit bar.datePopup().signalDateSelected("picked");
    QCOMPARE(seen,
             (isCity ? QStringList{"picked", "Date", "closed"}
                     : QStringList{"City", "picked", "closed"}));
}

void tst_CRkCityDateFilterWidget::closingSwitchesOff_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::closingSwitchesOff()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    bar.button(isCity).setChecked(true);
    QVERIFY(bar.agree(isCity, !isCity));
    const QSignalSpy city(&bar, &CRkCityDateFilterWidget::CityConditionChanged);
    const QSignalSpy date(&bar, &CRkCityDateFilterWidget::DateConditionChanged);
    bar.popup(isCity).close();
    QVERIFY(bar.isClosed());
    QCOMPARE(city.size() + date.size(), 0);
    QCOMPARE(bar.GetCurCity(), QString("City"));
    QCOMPARE(bar.GetCurDate(), QString("Date"));
}

void tst_CRkCityDateFilterWidget::mouseOpens_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::mouseOpens()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    window.clickOn(window.bar->button(isCity));
    QVERIFY(window.bar->agree(isCity, !isCity));
    QCOMPARE(QApplication::activePopupWidget(), &window.bar->popup(isCity));
    QTRY_COMPARE(QGuiApplication::focusWindow(), window.bar->popup(isCity).windowHandle());
}

void tst_CRkCityDateFilterWidget::clickElsewhereCloses_data()
{
    addPopupsAndPlatforms();
}

void tst_CRkCityDateFilterWidget::clickElsewhereCloses()
{
    QFETCH(bool, isCity);
    QFETCH(bool, replays);
    Window window;
    window.replays = replays;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    const QSignalSpy city(&bar, &CRkCityDateFilterWidget::CityConditionChanged);
    const QSignalSpy date(&bar, &CRkCityDateFilterWidget::DateConditionChanged);
    for (int time = 0; time < 2; ++time) {
        window.clickOn(bar.button(isCity));
        QVERIFY(bar.agree(isCity, !isCity));
        window.clickOn(bar.cityLabel());
        QVERIFY(bar.isClosed());
        QVERIFY(!QApplication::activePopupWidget());
    }
    QCOMPARE(bar.GetCurCity(), QString("City"));
    QCOMPARE(bar.GetCurDate(), QString("Date"));
    QCOMPARE(city.size() + date.size(), 0);
}

void tst_CRkCityDateFilterWidget::clickOnTheButtonCloses_data()
{
    addPopupsAndPlatforms();
}

void tst_CRkCityDateFilterWidget::clickOnTheButtonCloses()
{
    QFETCH(bool, isCity);
    QFETCH(bool, replays);
    Window window;
    window.replays = replays;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    for (int time = 0; time < 3; ++time) {
        window.clickOn(bar.button(isCity));
        QVERIFY(bar.agree(isCity, !isCity));
        window.clickOn(bar.button(isCity));
        QCoreApplication::processEvents();
        QVERIFY(bar.isClosed());
        QVERIFY(!bar.button(isCity).isDown());
    }
    window.clickOn(*window.other); // Nothing holds the mouse.
    QVERIFY(bar.isClosed());
}

void tst_CRkCityDateFilterWidget::clickOnTheOtherButtonChangesPopups_data()
{
    addPopupsAndPlatforms();
}

void tst_CRkCityDateFilterWidget::clickOnTheOtherButtonChangesPopups()
{
    QFETCH(bool, isCity);
    QFETCH(bool, replays);
    Window window;
    window.replays = replays;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    window.clickOn(bar.button(isCity));
    QVERIFY(bar.agree(isCity, !isCity));
    window.clickOn(bar.button(!isCity));
    if (!replays) {
        QVERIFY(bar.isClosed());
        window.clickOn(bar.button(!isCity));
    }
    QVERIFY(bar.agree(!isCity, isCity));
}

void tst_CRkCityDateFilterWidget::pressOutsideIsPassedOn()
{
    Window window;
    window.replays = true;
    window.move(400, 300);
    QVERIFY(window.open());
    const QSignalSpy clicked(window.other, &QPushButton::clicked);
    // Also after a press on its own button, which is not passed on.
    for (int time = 1; time <= 2; ++time) {
        window.clickOn(window.bar->dateButton());
        window.clickOn(window.bar->dateButton());
        QVERIFY(window.bar->isClosed());
        window.clickOn(window.bar->dateButton());
        window.bar->datePopup().move(0, 0); // Out of the way.
        window.clickOn(*window.other);
        QCOMPARE(clicked.size(), time);
        QVERIFY(window.bar->isClosed());
    }
}

void tst_CRkCityDateFilterWidget::doubleClickOnTheButton_data()
{
    addPopupsAndPlatforms();
}

void tst_CRkCityDateFilterWidget::doubleClickOnTheButton()
{
    QFETCH(bool, isCity);
    QFETCH(bool, replays);
    Window window;
    window.replays = replays;
    QVERIFY(window.open());
    for (int time = 0; time < 2; ++time) {
        window.doubleClickOn(window.bar->button(isCity));
        QVERIFY(window.bar->isClosed());
    }
}

void tst_CRkCityDateFilterWidget::escapeCloses_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::escapeCloses()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    window.clickOn(window.bar->button(isCity));
    QTest::keyClick(window.bar->popup(isCity).windowHandle(), Qt::Key_Escape);
    QVERIFY(window.bar->isClosed());
}

void tst_CRkCityDateFilterWidget::keyboardOpens()
{
    Window window;
    QVERIFY(window.open());
    window.bar->cityButton().setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &window.bar->dateButton());
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    QVERIFY(window.bar->agree(false, true));
}

void tst_CRkCityDateFilterWidget::dateFieldsSurvive()
{
    Window window;
    QVERIFY(window.open());
    Bar& bar = *window.bar;
    auto& from = *bar.datePopup().findChild<QLineEdit*>("lineEditDateFrom");
    auto& to = *bar.datePopup().findChild<QLineEdit*>("lineEditDateTo");
    window.clickOn(bar.dateButton());
    clickIn(bar.datePopup(), from);
    bar.datePopup().slotCalenderClicked(QDate(2026, 6, 1));
    clickIn(bar.datePopup(), to);
    bar.datePopup().slotCalenderClicked(QDate(2026, 6, 15));
    bar.datePopup().slotButtonDateRangeOkClicked();
    QCOMPARE(bar.GetCurDate(), QString("2026-06-01 to 2026-06-15"));
    window.clickOn(bar.dateButton());
    QCOMPARE(from.text(), QString("2026-06-01"));
    QCOMPARE(to.text(), QString("2026-06-15"));
    bar.datePopup().slotCalenderClicked(QDate(2026, 7, 1)); // No field is active any more.
    QCOMPARE(to.text(), QString("2026-06-15"));
}

void tst_CRkCityDateFilterWidget::popupsDieWithTheBar_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::popupsDieWithTheBar()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    window.clickOn(window.bar->button(isCity));
    const QPointer<QWidget> city = &window.bar->cityPopup();
    const QPointer<QWidget> date = &window.bar->datePopup();
    delete window.bar;
    QVERIFY(!city);
    QVERIFY(!date);
    QVERIFY(!QApplication::activePopupWidget());
    const QSignalSpy clicked(window.other, &QPushButton::clicked);
    QCoreApplication::processEvents(); // The button takes the place of the bar.
    window.clickOn(*window.other);
    QCOMPARE(clicked.size(), 1);
}

void tst_CRkCityDateFilterWidget::barDiesWhenAPickIsTold_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::barDiesWhenAPickIsTold()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    const QPointer<Bar> bar = window.bar;
    const auto remove = [bar] { delete bar.data(); };
    connect(bar, &CRkCityDateFilterWidget::CityConditionChanged, &window, remove);
    connect(bar, &CRkCityDateFilterWidget::DateConditionChanged, &window, remove);
    window.clickOn(bar->button(isCity));
    QWidget& popup = bar->popup(isCity);
    const QWidget* pick = isCity
        ? popup.findChild<QWidget*>("widgetFrequentCities")->findChildren<QPushButton*>().first()
        : popup.findChild<QPushButton*>("pushButtonToday");
    clickIn(popup, *pick);
    QVERIFY(!bar);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CRkCityDateFilterWidget::popupsCloseWithTheWindow_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::popupsCloseWithTheWindow()
{
    QFETCH(bool, isCity);
    Window window;
    QVERIFY(window.open());
    window.clickOn(window.bar->button(isCity));
    QVERIFY(window.bar->agree(isCity, !isCity));
    window.close();
    QVERIFY(window.bar->isClosed());
    QVERIFY(window.open());
    QVERIFY(window.bar->isClosed());
    window.clickOn(window.bar->button(isCity));
    window.bar->hide(); // As on a page that is turned.
    QVERIFY(window.bar->isClosed());
}

void tst_CRkCityDateFilterWidget::popupsWorkInAModalDialog_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::popupsWorkInAModalDialog()
{
    QFETCH(bool, isCity);
    QDialog dialog;
    auto* layout = new QGridLayout(&dialog);
    auto* bar = new Bar(&dialog);
    layout->addWidget(bar);
    dialog.move(500, 50);
    QString picked;
    execAnd(dialog, [&] {
        const QPushButton& button = bar->button(isCity);
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {},
                          button.mapTo(&dialog, button.rect().center()));
        QWidget& popup = bar->popup(isCity);
        const QWidget* pick = isCity
            ? popup.findChild<QWidget*>("widgetFrequentCities")->findChildren<QPushButton*>().at(2)
            : popup.findChild<QPushButton*>("pushButtonLastMonth");
        if (comesOnScreen(&popup))
            clickIn(popup, *pick);
        picked = isCity ? bar->GetCurCity() : bar->GetCurDate();
        bar->button(isCity).setChecked(true);
        dialog.accept();
    });
    QVERIFY2(isCity ? picked == "Shanghai" : picked.contains(" to "), qPrintable(picked));
    QVERIFY(bar->isClosed());
}

void tst_CRkCityDateFilterWidget::popupOnTheSecondScreen_data()
{
    addPopups();
}

void tst_CRkCityDateFilterWidget::popupOnTheSecondScreen()
{
    QFETCH(bool, isCity);
#ifdef Q_OS_WIN
    if (QGuiApplication::screens().size() != 2)
        QSKIP("A second screen cannot be made here"); // The screens are those of the machine.
#endif
    if (!isOnTwoScreens())
        return;
    const QList<QScreen*> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    Window window;
    window.winId();
    // To the second screen and back: a popup goes with the bar.
    for (QScreen* screen : {screens.last(), screens.first(), screens.last()}) {
        window.hide();
        window.windowHandle()->setScreen(screen);
        window.move(400, 60);
        window.show();
        QVERIFY(comesOnScreen(&window));
        window.bar->button(isCity).click();
        QWidget& popup = window.bar->popup(isCity);
        QVERIFY(comesOnScreen(&popup));
        QCOMPARE(popup.windowHandle()->screen(), screen);
        const QRect button = window.bar->button(isCity).geometry();
        const QPoint under =
            window.bar->mapToGlobal({button.center().x() - popup.width() / 2, button.bottom()});
        QCOMPARE(popup.pos(), under);
        popup.close();
    }
}

QTEST_MAIN(tst_CRkCityDateFilterWidget)
#include "tst_CRkCityDateFilterWidget.moc"
