// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkCitySelectWidget.h>

#include "support/Brackets.h"
#include "support/ProgramCopy.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/Render.h"

#include <RkAlgorthm/Constants.h>
#include <RkBaseUI/FlowLayout.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkBaseUI/RkCitySelectByCity.h>
#include <RkBaseUI/RkCitySelectByProvince.h>
#include <RkBaseUI/SharedHelpers.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

constexpr int provinceTab = 0;
constexpr int cityTab = 1;
constexpr int keywordTab = 2;

/// The picker as a test sees it.
class Picker : public CRkCitySelectWidget
{
public:
    QWidget& part(const QString& name) const { return *findChild<QWidget*>(name); }
    QPushButton& button(const QString& name) const { return *findChild<QPushButton*>(name); }
    QLineEdit& keyword() const { return *findChild<QLineEdit*>("lineEditSearchCity"); }
    QTabWidget& tabs() const { return *findChild<QTabWidget*>("tabWidget"); }
    QScrollArea& area(const QString& name) const { return *findChild<QScrollArea*>(name); }
    QString current() const { return findChild<QLabel*>("labelCurrentCity")->text(); }

    QList<QPushButton*> buttonsIn(const QString& name) const
    {
        return part(name).findChildren<QPushButton*>();
    }
    QStringList textsIn(const QString& name) const
    {
        QStringList texts;
        const QLayout& layout = *part(name).layout();
        for (int i = 0; i < layout.count(); ++i)
            texts.append(qobject_cast<QPushButton*>(layout.itemAt(i)->widget())->text());
        return texts;
    }
    QStringList results() const { return textsIn("scrollAreaWidgetContentsSearchResult"); }
    QList<RkCitySelectByProvince*> provincePages() const
    {
        return findChildren<RkCitySelectByProvince*>();
    }
    QList<RkCitySelectByCity*> cityPages() const { return findChildren<RkCitySelectByCity*>(); }

    void search(const QString& text)
    {
        keyword().setText(text);
        button("pushButtonSearchCity").click();
    }
    void clickLetter(const QString& row, const QString& letter)
    {
        for (QPushButton* one : buttonsIn(row)) {
            if (one->text() == letter)
                one->click();
        }
    }
    bool showAsPopup()
    {
        InitWidget();
        setFixedHeight(600);
        show();
        return comesOnScreen(this);
    }
};

QString textOf(const QWidget& page, const char* label)
{
    return page.findChild<QLabel*>(label)->text();
}

QStringList citiesOf(const QWidget& page)
{
    QStringList names;
    for (const auto* button :
         page.findChild<QWidget*>("widgetCityList")->findChildren<QPushButton*>())
        names.append(button->text());
    return names;
}

QSettings settings()
{
    return QSettings(OrganizationName, QStringLiteral("Corvel_clound"));
}

void storeDefault(const QVariant& city)
{
    settings().setValue("Application/defaultcity", city);
}

const char* const createTable =
    "create table city (id, name, letter, parent_id, level, lat, lng, polyline)";

/// Whether this process has the catalogue of the statements, or none without statements: the
/// catalogue is read once, from the folder of the executable. Where it has not, runs the current
/// test in a copy of the executable beside such a catalogue, and the test fails with it.
bool hasCatalogue(const QStringList& statements)
{
    const QString mark = QStringLiteral("RK_TEST_INNER");
    QProcessEnvironment environment = ProgramCopy::environment();
    if (environment.contains(mark))
        return true;
    environment.insert(mark, QStringLiteral("1"));
    const QTemporaryDir folder;
    const QString program =
        ProgramCopy::make(QStringLiteral("tst_CRkCitySelectWidget"), folder.path());
    const bool ready = !program.isEmpty()
        && (statements.isEmpty() || runSql(folder.filePath("ChinaAdminiDstrict.db"), statements));
    QProcess inner;
    inner.setProcessEnvironment(environment);
    inner.start(program, {QString::fromLatin1(QTest::currentTestFunction())});
    const bool passed = ready && inner.waitForFinished(60000)
        && inner.exitStatus() == QProcess::NormalExit && inner.exitCode() == 0;
    if (!passed)
        QTest::qFail(inner.readAllStandardOutput().constData(), __FILE__, __LINE__);
    return false;
}

} // namespace

class tst_CRkCitySelectWidget : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home = std::make_unique<TestHome>(); }

    void form();
    void texts_data();
    void texts();
    void looks_data() { addScales(); }
    void looks();
    void textColours_data();
    void textColours();
    void labelsAreDark();
    void tabKeyFollowsTheForm();
    void letterRows();
    void provincePages();
    void cityPages();
    void frequentCities();
    void frequentCitiesAreInTheCatalogue_data();
    void frequentCitiesAreInTheCatalogue();
    void tabsAndPlaceholders();
    void placeholdersAreTranslated();
    void initWidget();

    void startsWithAll();
    void startsWithTheStoredDefault_data();
    void startsWithTheStoredDefault();
    void storedDefaultIsNoText_data();
    void storedDefaultIsNoText();
    void setDefaultCity();
    void pickingStoresNothing();
    void pick_data();
    void pick();
    void pickIsCurrentWhenItIsTold();
    void selectionSurvivesShowings();
    void slotsWithoutAButtonDoNothing();

    void blankKeyword_data();
    void blankKeyword();
    void search_data();
    void search();
    void returnKeySearches();
    void blanksOfTheKeywordAreKept();
    void resultsAccumulate();
    void resultButtons();

    void jumpToProvinceLetter_data();
    void jumpToProvinceLetter();
    void jumpToCityLetter_data();
    void jumpToCityLetter();
    void jumpIsExactRightAfterAResize();
    void jumpIsExactWhileALayoutIsPending();
    void jumpToAbsentLetter_data();
    void jumpToAbsentLetter();

    void closing();
    void showingAgainAddsNothing();
    void nothingIsCut_data();
    void nothingIsCut();

    void withoutCatalogue();
    void fewPlaces();
    void tenThousandPlaces();

private:
    std::unique_ptr<TestHome> m_home;
};

void tst_CRkCitySelectWidget::form()
{
    const Picker picker;
    QCOMPARE(picker.windowTitle(), QString("RkCitySelectWidget"));
    for (const char* name : {"groupBox", "groupBox_2"})
        QVERIFY(picker.findChild<QGroupBox*>(name)->styleSheet().contains("rgb(215,218,220)"));
    QCOMPARE(picker.part("widgetFrequentCities").styleSheet(), QString("color: rgb(0,51,153);"));
    QCOMPARE(picker.part("widgetByCity").styleSheet(), QString("color: rgb(46, 109, 255);"));
    QCOMPARE(picker.keyword().palette().color(QPalette::Text), QColor(58, 136, 244));
    QCOMPARE(picker.part("labelCurrentCity").styleSheet(), QString("color: rgb(9,2,38);"));
    QVERIFY(!picker.keyword().accessibleName().isEmpty());
    QVERIFY(picker.part("widgetByProvinceLetters").parent() == &picker.part("widgetByProvince"));
    QVERIFY(picker.part("widgetByCityLetters").parent() == &picker.part("widgetByCity"));
    QCOMPARE(picker.area("scrollAreaByProvince").widget(),
             &picker.part("scrollAreaWidgetContentsByProvince"));
    QCOMPARE(picker.area("scrollAreaByCity").widget(),
             &picker.part("scrollAreaWidgetContentsByCity"));
    QCOMPARE(picker.area("scrollAreaSearchResult").widget(),
             &picker.part("scrollAreaWidgetContentsSearchResult"));
    for (const char* name : {"widgetByProvinceLetters", "widgetByCityLetters",
                             "widgetFrequentCities", "scrollAreaWidgetContentsSearchResult"})
        QVERIFY2(qobject_cast<FlowLayout*>(picker.part(name).layout()), name);
    QCOMPARE(picker.tabs().indexOf(&picker.part("tabGroupCityByProvince")), provinceTab);
    QCOMPARE(picker.tabs().indexOf(&picker.part("tabGroupCityByCity")), cityTab);
    QCOMPARE(picker.tabs().indexOf(&picker.part("tabGroupByKeyword")), keywordTab);
    QCOMPARE(picker.part("groupBox").font().pointSize(), 10);
    const auto width = [&](const char* name) { return picker.button(name).minimumWidth(); };
    QCOMPARE(width("pushButtonGroupCityByProvince"), 100);
    QCOMPARE(width("pushButtonGroupCityByLetter"), 70);
    QCOMPARE(width("pushButtonSearchCity"), 60);
    QCOMPARE(width("pushButtonSetDefaultCity"), 100);
    for (const char* name : {"pushButtonGroupCityByProvince", "pushButtonGroupCityByLetter",
                             "pushButtonSearchCity", "pushButtonSetDefaultCity"})
        QCOMPARE(picker.button(name).maximumWidth(), width(name));
}

void tst_CRkCitySelectWidget::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("pushButtonGroupCityByProvince") << "By Province";
    QTest::newRow("pushButtonGroupCityByLetter") << "By City";
    QTest::newRow("pushButtonSearchCity") << "Search";
    QTest::newRow("pushButtonSetDefaultCity") << "Set default city";
    QTest::newRow("label1") << "current city:";
    QTest::newRow("tab 0") << "Province";
    QTest::newRow("tab 1") << "City";
    QTest::newRow("tab 2") << "Keywords";
}

void tst_CRkCitySelectWidget::texts()
{
    QFETCH(QString, text);
    const QString name = QTest::currentDataTag();
    const auto shown = [&name](const Picker& picker) {
        return name.startsWith("tab ") ? picker.tabs().tabText(name.mid(4).toInt())
                                       : picker.part(name).property("text").toString();
    };
    QCOMPARE(shown(Picker()), text);
    Brackets translator("CRkCitySelectWidget");
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(shown(Picker()), '[' + text + ']');
}

void tst_CRkCitySelectWidget::looks()
{
    QFETCH(int, scale);
    Picker picker;
    QVERIFY(picker.showAsPopup());
    const QImage image = rendered(picker, scale);
    QCOMPARE(colorAt(image, {2, 2}), QColor(240, 240, 241));
    QCOMPARE(colorAt(image, {picker.width() - 3, 597}), QColor(240, 240, 241));
    const QWidget& list = picker.part("scrollAreaByProvince");
    QCOMPARE(colorAt(image, list.mapTo(&picker, QPoint(2, 2))), QColor(240, 240, 241));
    for (const char* name : {"groupBox", "groupBox_2"}) {
        const QWidget& box = picker.part(name);
        QCOMPARE(colorAt(image, box.mapTo(&picker, QPoint(box.width() / 2, 2))),
                 QColor(215, 218, 220));
    }
    for (const char* name : {"pushButtonGroupCityByProvince", "pushButtonGroupCityByLetter",
                             "pushButtonSearchCity", "pushButtonSetDefaultCity"}) {
        const QWidget& button = picker.part(name);
        QCOMPARE(colorAt(image, button.mapTo(&picker, QPoint(button.width() / 2, 3))),
                 QColor(58, 136, 244));
    }
}

void tst_CRkCitySelectWidget::textColours_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("frequent cities") << "widgetFrequentCities" << QColor(0, 51, 153);
    QTest::newRow("action buttons") << "groupBox" << QColor(Qt::white);
    QTest::newRow("city letters") << "widgetByCityLetters" << QColor(46, 109, 255);
    QTest::newRow("cities") << "scrollAreaWidgetContentsByCity" << QColor(58, 136, 244);
    QTest::newRow("search results")
        << "scrollAreaWidgetContentsSearchResult" << QColor(58, 136, 244);
}

void tst_CRkCitySelectWidget::textColours()
{
    QFETCH(QString, list);
    QFETCH(QColor, colour);
    Picker picker;
    picker.search("jiang");
    QPushButton& button = *picker.buttonsIn(list).first();
    button.setText(QString(20, QChar(0x2588)));
    const QImage image = rendered(button, 1);
    int pixels = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            pixels += image.pixelColor(x, y) == colour;
    }
    QVERIFY2(pixels > 150, qPrintable(QString::number(pixels)));
}

/// The ground is light whatever the colours of the system.
void tst_CRkCitySelectWidget::labelsAreDark()
{
    const auto restore =
        qScopeGuard([palette = QApplication::palette()] { QApplication::setPalette(palette); });
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    const Picker picker;
    QCOMPARE(picker.palette().color(QPalette::WindowText), QColor(Qt::white));
    const QList<QLabel*> labels = picker.findChildren<QLabel*>();
    QVERIFY(labels.size() > 20);
    for (const QLabel* label : labels) {
        label->ensurePolished();
        QVERIFY2(label->palette().color(label->foregroundRole()).lightness() < 100,
                 qPrintable(label->objectName()));
    }
}

void tst_CRkCitySelectWidget::tabKeyFollowsTheForm()
{
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.activateWindow();
    QVERIFY(comesToFront(&picker));
    const auto frequent = picker.buttonsIn("widgetFrequentCities");
    const auto letters = picker.buttonsIn("widgetByProvinceLetters");
    QList<QWidget*> order;
    for (QPushButton* button : frequent)
        order.append(button);
    for (const char* name :
         {"pushButtonGroupCityByProvince", "pushButtonGroupCityByLetter", "lineEditSearchCity",
          "pushButtonSearchCity", "pushButtonSetDefaultCity", "qt_tabwidget_tabbar"})
        order.append(&picker.part(name));
    for (QPushButton* button : letters)
        order.append(button);
    order.append(picker.buttonsIn("scrollAreaWidgetContentsByProvince").first());
    order.first()->setFocus();
    for (QWidget* widget : order) {
        QCOMPARE(QApplication::focusWidget(), widget);
        QTest::keyClick(widget, Qt::Key_Tab);
    }
    picker.search("jiang");
    picker.tabs().tabBar()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(),
             picker.buttonsIn("scrollAreaWidgetContentsSearchResult").first());
}

void tst_CRkCitySelectWidget::letterRows()
{
    const Picker picker;
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QVERIFY(catalogue.provinceLetters().size() > 10);
    QCOMPARE(picker.textsIn("widgetByProvinceLetters"), catalogue.provinceLetters());
    QCOMPARE(picker.textsIn("widgetByCityLetters"), catalogue.allLetters());
}

void tst_CRkCitySelectWidget::provincePages()
{
    const Picker picker;
    const RkCityCategory& catalogue = RkCityCategory::instance();
    const QWidget& contents = picker.part("scrollAreaWidgetContentsByProvince");
    QCOMPARE(contents.layout()->objectName(), QString("verticalLayoutByProvinceContents"));
    QCOMPARE(contents.layout()->spacing(), 6);
    QCOMPARE(contents.layout()->contentsMargins(), QMargins(0, 5, 0, 5));
    const auto pages = picker.provincePages();
    QCOMPARE(pages.size(), catalogue.provinceNames().size());
    QSet<QString> seen;
    for (int i = 0; i < pages.size(); ++i) {
        const QString province = catalogue.provinceNames()[i];
        const QString letter = catalogue.provinceToLetter()[province];
        QCOMPARE(contents.layout()->itemAt(i)->widget(), pages[i]);
        QCOMPARE(pages[i]->findChild<QPushButton*>("pushButtonProvinceName")->text(), province);
        QCOMPARE(textOf(*pages[i], "labelProvinceLetter"),
                 seen.contains(letter) ? QString(" ") : letter);
        QCOMPARE(citiesOf(*pages[i]), catalogue.provinceToCities()[province]);
        seen.insert(letter);
    }
}

void tst_CRkCitySelectWidget::cityPages()
{
    const Picker picker;
    const RkCityCategory& catalogue = RkCityCategory::instance();
    const QWidget& contents = picker.part("scrollAreaWidgetContentsByCity");
    QCOMPARE(contents.layout()->objectName(), QString("verticalLayoutByCityContents"));
    QCOMPARE(contents.layout()->spacing(), 6);
    QCOMPARE(contents.layout()->contentsMargins(), QMargins(0, 5, 0, 5));
    const auto pages = picker.cityPages();
    QCOMPARE(pages.size(), catalogue.allLetters().size());
    for (int i = 0; i < pages.size(); ++i) {
        QCOMPARE(contents.layout()->itemAt(i)->widget(), pages[i]);
        QCOMPARE(textOf(*pages[i], "labelCityLetter"), catalogue.allLetters()[i]);
        QCOMPARE(citiesOf(*pages[i]), catalogue.letterToCities()[catalogue.allLetters()[i]]);
    }
}

void tst_CRkCitySelectWidget::frequentCities()
{
    const QStringList names = {"All",     "Beijing", "Shanghai", "Guangzhou", "Shenzhen", "Chengdu",
                               "Tianjin", "Nanjing", "Hangzhou", "Wuhan",     "Chongqing"};
    QCOMPARE(Picker().textsIn("widgetFrequentCities"), names);
    Brackets translator("CRkCitySelectWidget");
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(Picker().textsIn("widgetFrequentCities").join(' '), '[' + names.join("] [") + ']');
}

void tst_CRkCitySelectWidget::frequentCitiesAreInTheCatalogue_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("English") << "none";
    QTest::newRow("Chinese") << "RkBaseUI_zh_CN";
}

/// A filter by the text of a frequent city must find the places of the catalogue.
void tst_CRkCitySelectWidget::frequentCitiesAreInTheCatalogue()
{
    QFETCH(QString, file);
    const std::unique_ptr<QTranslator> translator(CreateTranslator(file));
    QCOMPARE(translator->isEmpty(), file == "none");
    QCoreApplication::installTranslator(translator.get());
    const QStringList texts = Picker().textsIn("widgetFrequentCities");
    const QStringList names = RkCityCategory::instance().centreByName().keys();
    for (const QString& city : texts.mid(1))
        QVERIFY2(!names.filter(city).isEmpty(), qPrintable(city));
    const QString all = QCoreApplication::translate("CRkProjectManagerView", "all");
    QCOMPARE(texts.first().compare(all, Qt::CaseInsensitive), 0);
}

void tst_CRkCitySelectWidget::tabsAndPlaceholders()
{
    const Picker picker;
    QCOMPARE(picker.tabs().currentIndex(), provinceTab);
    QCOMPARE(picker.keyword().placeholderText(), QString("input the city name"));
    picker.button("pushButtonGroupCityByLetter").click();
    QCOMPARE(picker.tabs().currentIndex(), cityTab);
    QCOMPARE(picker.keyword().placeholderText(), QString("Enter a city name"));
    picker.button("pushButtonGroupCityByProvince").click();
    QCOMPARE(picker.tabs().currentIndex(), provinceTab);
    QCOMPARE(picker.keyword().placeholderText(), QString("Enter the province name"));
}

void tst_CRkCitySelectWidget::placeholdersAreTranslated()
{
    Brackets translator("CRkCitySelectWidget");
    QCoreApplication::installTranslator(&translator);
    Picker picker;
    QCOMPARE(picker.keyword().placeholderText(), QString("[input the city name]"));
    picker.slotButtonGroupCityByLetterClicked();
    QCOMPARE(picker.keyword().placeholderText(), QString("[Enter a city name]"));
    picker.slotButtonGroupCityByProvinceClicked();
    QCOMPARE(picker.keyword().placeholderText(), QString("[Enter the province name]"));
}

void tst_CRkCitySelectWidget::initWidget()
{
    Picker picker;
    picker.button("pushButtonGroupCityByLetter").click();
    picker.InitWidget();
    QCOMPARE(picker.tabs().currentIndex(), provinceTab);
    QCOMPARE(picker.keyword().placeholderText(), QString("Enter a city name"));
}

void tst_CRkCitySelectWidget::startsWithAll()
{
    QCOMPARE(Picker().current(), QString("All"));
    storeDefault(QString());
    QCOMPARE(Picker().current(), QString("All"));
    Brackets translator("CRkCitySelectWidget");
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(Picker().getDefaultSelection(), QString("[All]"));
}

void tst_CRkCitySelectWidget::startsWithTheStoredDefault_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("city") << QString::fromUtf8("Chengdu \u6210\u90fd\u5e02");
    QTest::newRow("place that is gone") << "Atlantis";
    QTest::newRow("in another language") << QString::fromUtf8("\u5168\u90e8");
    QTest::newRow("blank") << " ";
    QTest::newRow("with a comma") << "Beijing, China";
    QTest::newRow("markup") << "<h1>Beijing</h1>";
    QTest::newRow("very long") << QString(5000, 'n');
}

void tst_CRkCitySelectWidget::startsWithTheStoredDefault()
{
    QFETCH(QString, stored);
    storeDefault(stored);
    Picker picker;
    QCOMPARE(picker.getDefaultSelection(), stored);
    QCOMPARE(picker.current(), stored);
    QVERIFY(picker.minimumSizeHint().width() <= 740);
    QVERIFY(picker.minimumSizeHint().height() <= 600);
}

void tst_CRkCitySelectWidget::storedDefaultIsNoText_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");
    // What a comma without quotes makes of a text in the file.
    QTest::newRow("list") << QVariant(QStringList{"Beijing", "China"}) << "All";
    QTest::newRow("invalid") << QVariant() << "All";
    QTest::newRow("number") << QVariant(42) << "42";
    QTest::newRow("date") << QVariant(QDate(2026, 6, 15)) << "2026-06-15";
}

/// Somebody edited the settings by hand.
void tst_CRkCitySelectWidget::storedDefaultIsNoText()
{
    QFETCH(QVariant, stored);
    storeDefault(stored);
    QTEST(Picker().getDefaultSelection(), "shown");
}

void tst_CRkCitySelectWidget::setDefaultCity()
{
    Picker picker;
    picker.buttonsIn("widgetFrequentCities")[3]->click();
    picker.button("pushButtonSetDefaultCity").click();
    QSettings stored = settings();
    stored.beginGroup("Application");
    QCOMPARE(stored.value("defaultcity").toString(), QString("Guangzhou"));
    QCOMPARE(stored.allKeys(), QStringList("defaultcity"));
    QCOMPARE(Picker().getDefaultSelection(), QString("Guangzhou"));
    storeDefault("Wuhan");
    QCOMPARE(picker.getDefaultSelection(), QString("Guangzhou"));
}

void tst_CRkCitySelectWidget::pickingStoresNothing()
{
    storeDefault("Wuhan");
    Picker picker;
    picker.buttonsIn("widgetFrequentCities")[3]->click();
    QCOMPARE(settings().value("Application/defaultcity").toString(), QString("Wuhan"));
}

void tst_CRkCitySelectWidget::pick_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("number");
    QTest::newRow("all") << "widgetFrequentCities" << 0;
    QTest::newRow("frequent city") << "widgetFrequentCities" << 10;
    QTest::newRow("province") << "scrollAreaWidgetContentsByProvince" << 0;
    QTest::newRow("city of a province") << "scrollAreaWidgetContentsByProvince" << 5;
    QTest::newRow("city of a letter") << "scrollAreaWidgetContentsByCity" << 20;
    QTest::newRow("search result") << "scrollAreaWidgetContentsSearchResult" << 3;
}

void tst_CRkCitySelectWidget::pick()
{
    QFETCH(QString, list);
    QFETCH(int, number);
    Picker picker;
    picker.search("zhou");
    QSignalSpy selected(&picker, &CRkCitySelectWidget::signalCitySelected);
    QPushButton& button = *picker.buttonsIn(list)[number];
    QVERIFY(!button.text().isEmpty());
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected[0][0].toString(), button.text());
    QCOMPARE(picker.current(), button.text());
    QCOMPARE(picker.getDefaultSelection(), button.text());
}

void tst_CRkCitySelectWidget::pickIsCurrentWhenItIsTold()
{
    Picker picker;
    QString current;
    connect(&picker, &CRkCitySelectWidget::signalCitySelected,
            [&] { current = picker.getDefaultSelection(); });
    picker.buttonsIn("widgetFrequentCities")[2]->click();
    QCOMPARE(current, QString("Shanghai"));
    picker.buttonsIn("scrollAreaWidgetContentsByCity")[0]->click();
    QCOMPARE(current, picker.buttonsIn("scrollAreaWidgetContentsByCity")[0]->text());
}

void tst_CRkCitySelectWidget::selectionSurvivesShowings()
{
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.buttonsIn("widgetFrequentCities")[2]->click();
    picker.hide();
    QVERIFY(picker.showAsPopup());
    QCOMPARE(picker.getDefaultSelection(), QString("Shanghai"));
}

void tst_CRkCitySelectWidget::slotsWithoutAButtonDoNothing()
{
    Picker picker;
    QSignalSpy selected(&picker, &CRkCitySelectWidget::signalCitySelected);
    picker.slotListedCityClicked();
    picker.slotButtonByProvinceLetterClicked();
    picker.slotButtonByCityLetterClicked();
    QCOMPARE(selected.count(), 0);
    picker.slotCitySelected("Wuhan");
    QCOMPARE(picker.current(), QString("Wuhan"));
    QCOMPARE(selected.count(), 0);
}

void tst_CRkCitySelectWidget::blankKeyword_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("tab") << "\t";
}

void tst_CRkCitySelectWidget::blankKeyword()
{
    QFETCH(QString, keyword);
    Picker picker;
    picker.button("pushButtonGroupCityByLetter").click();
    picker.search(keyword);
    QCOMPARE(picker.tabs().currentIndex(), cityTab);
    QVERIFY(picker.results().isEmpty());
}

void tst_CRkCitySelectWidget::search_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<bool>("finds");
    QTest::newRow("part of names") << "jiang" << true;
    QTest::newRow("in any case") << "CHENGDU" << true;
    QTest::newRow("Chinese") << QString::fromUtf8("\u6210\u90fd") << true;
    QTest::newRow("per cent sign finds all") << "%" << true;
    QTest::newRow("wildcard") << "B%g" << true;
    QTest::newRow("nothing") << "Atlantis" << false;
    QTest::newRow("quote") << "Xi'an" << false;
    QTest::newRow("quotes") << "''" << false;
    QTest::newRow("place marker") << "%1" << false;
    QTest::newRow("statement") << "'; drop table city; --" << false;
}

void tst_CRkCitySelectWidget::search()
{
    QFETCH(QString, keyword);
    QFETCH(bool, finds);
    Picker picker;
    picker.search(keyword);
    QCOMPARE(picker.tabs().currentIndex(), keywordTab);
    QCOMPARE(picker.results(), RkCityCategory::instance().searchByKeyword(keyword));
    QCOMPARE(!picker.results().isEmpty(), finds);
}

void tst_CRkCitySelectWidget::returnKeySearches()
{
    Picker picker;
    QTest::keyClicks(&picker.keyword(), "jiang");
    QTest::keyClick(&picker.keyword(), Qt::Key_Return);
    QCOMPARE(picker.tabs().currentIndex(), keywordTab);
    QCOMPARE(picker.results(), RkCityCategory::instance().searchByKeyword("jiang"));
}

void tst_CRkCitySelectWidget::blanksOfTheKeywordAreKept()
{
    Picker picker;
    picker.search(" City ");
    const QStringList results = picker.results();
    QVERIFY(!results.isEmpty());
    for (const QString& place : results)
        QVERIFY(place.contains(" City "));
    Picker other;
    other.search(" Beijing");
    QVERIFY(other.results().isEmpty());
}

void tst_CRkCitySelectWidget::resultsAccumulate()
{
    Picker picker;
    picker.search("jiang");
    const QStringList first = picker.results();
    picker.search("Atlantis");
    QCOMPARE(picker.results(), first);
    picker.search("jiang");
    picker.search("zhou");
    QCOMPARE(picker.results(), first + first + RkCityCategory::instance().searchByKeyword("zhou"));
}

void tst_CRkCitySelectWidget::resultButtons()
{
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.search("jiang");
    const QFontMetrics metrics(QApplication::font());
    for (const QPushButton* button : picker.buttonsIn("scrollAreaWidgetContentsSearchResult")) {
        QVERIFY(button->isFlat());
        const QSize size = metrics.boundingRect(button->text()).size();
        QCOMPARE(button->minimumSize(), size);
        QCOMPARE(button->maximumSize(), size);
        QCOMPARE(button->font().toString(), QApplication::font().toString());
    }
}

void tst_CRkCitySelectWidget::jumpToProvinceLetter_data()
{
    QTest::addColumn<QString>("letter");
    for (const QString& letter : RkCityCategory::instance().provinceLetters())
        QTest::newRow(qPrintable(letter)) << letter;
}

void tst_CRkCitySelectWidget::jumpToProvinceLetter()
{
    QFETCH(QString, letter);
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.clickLetter("widgetByProvinceLetters", letter);
    const QScrollArea& area = picker.area("scrollAreaByProvince");
    int offset = 0;
    const RkCitySelectByProvince* target = nullptr;
    for (const RkCitySelectByProvince* page : picker.provincePages()) {
        const QString province = page->findChild<QPushButton*>("pushButtonProvinceName")->text();
        if (RkCityCategory::instance().provinceToLetter()[province] == letter) {
            target = page;
            break;
        }
        offset += page->height() + 6;
    }
    const QScrollBar& bar = *area.verticalScrollBar();
    QCOMPARE(bar.sliderPosition(), qMin(offset, bar.maximum()));
    QCOMPARE(bar.value(), bar.sliderPosition());
    // Five is the margin above the first page.
    const int top = target->mapTo(area.viewport(), QPoint(0, 0)).y();
    if (offset <= bar.maximum())
        QCOMPARE(top, 5);
    else
        QVERIFY(top > 0 && top < area.viewport()->height());
}

void tst_CRkCitySelectWidget::jumpToCityLetter_data()
{
    QTest::addColumn<QString>("letter");
    for (const QString& letter : RkCityCategory::instance().allLetters())
        QTest::newRow(qPrintable(letter)) << letter;
}

void tst_CRkCitySelectWidget::jumpToCityLetter()
{
    QFETCH(QString, letter);
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.button("pushButtonGroupCityByLetter").click();
    // At once, without a turn of the event loop for the new tab.
    picker.clickLetter("widgetByCityLetters", letter);
    const QScrollArea& area = picker.area("scrollAreaByCity");
    const int index = RkCityCategory::instance().allLetters().indexOf(letter);
    int offset = 0;
    for (int i = 0; i < index; ++i)
        offset += picker.cityPages()[i]->height() + 6;
    const QScrollBar& bar = *area.verticalScrollBar();
    QCOMPARE(bar.sliderPosition(), qMin(offset, bar.maximum()));
    const int top = picker.cityPages()[index]->mapTo(area.viewport(), QPoint(0, 0)).y();
    if (offset <= bar.maximum())
        QCOMPARE(top, 5);
    const int before = bar.value();
    QCoreApplication::processEvents();
    QCOMPARE(bar.value(), before);
}

void tst_CRkCitySelectWidget::jumpIsExactRightAfterAResize()
{
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.resize(420, 600);
    picker.clickLetter("widgetByProvinceLetters", "H");
    const QScrollArea& area = picker.area("scrollAreaByProvince");
    const auto isTarget = [](const RkCitySelectByProvince* page) {
        return textOf(*page, "labelProvinceLetter") == "H";
    };
    const auto pages = picker.provincePages();
    const auto target = std::find_if(pages.cbegin(), pages.cend(), isTarget);
    QCOMPARE((*target)->mapTo(area.viewport(), QPoint(0, 0)).y(), 5);
}

void tst_CRkCitySelectWidget::jumpIsExactWhileALayoutIsPending()
{
    Picker picker;
    QVERIFY(picker.showAsPopup());
    QCoreApplication::processEvents();
    const auto pages = picker.provincePages();
    const int height = pages[0]->height();
    for (auto* button :
         pages[0]->findChild<QWidget*>("widgetCityList")->findChildren<QPushButton*>())
        button->setMinimumHeight(60);
    QCOMPARE(pages[0]->height(), height);
    picker.clickLetter("widgetByProvinceLetters", "B");
    QVERIFY(pages[0]->height() > height);
    const auto beijing = std::find_if(pages.cbegin(), pages.cend(), [](const QWidget* page) {
        return textOf(*page, "labelProvinceLetter") == "B";
    });
    const QWidget& viewport = *picker.area("scrollAreaByProvince").viewport();
    QCOMPARE((*beijing)->mapTo(&viewport, QPoint(0, 0)).y(), 5);
    QCoreApplication::processEvents();
    QCOMPARE((*beijing)->mapTo(&viewport, QPoint(0, 0)).y(), 5);
}

void tst_CRkCitySelectWidget::jumpToAbsentLetter_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("area");
    QTest::newRow("provinces") << "widgetByProvinceLetters"
                               << "scrollAreaByProvince";
    QTest::newRow("cities") << "widgetByCityLetters"
                            << "scrollAreaByCity";
}

void tst_CRkCitySelectWidget::jumpToAbsentLetter()
{
    QFETCH(QString, row);
    QFETCH(QString, area);
    Picker picker;
    QVERIFY(picker.showAsPopup());
    if (row == "widgetByCityLetters")
        picker.button("pushButtonGroupCityByLetter").click();
    picker.clickLetter(row, "H");
    const int before = picker.area(area).verticalScrollBar()->value();
    QVERIFY(before > 0);
    QPushButton& letter = *picker.buttonsIn(row).first();
    letter.setText("?");
    letter.click();
    QCOMPARE(picker.area(area).verticalScrollBar()->value(), before);
}

void tst_CRkCitySelectWidget::closing()
{
    Picker picker;
    picker.setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    QSignalSpy closed(&picker, &CRkCitySelectWidget::signalWidgetClosed);
    QVERIFY(picker.showAsPopup());
    picker.hide();
    QCOMPARE(closed.count(), 0);
    QVERIFY(picker.showAsPopup());
    picker.close();
    QCOMPARE(closed.count(), 1);
    QVERIFY(picker.showAsPopup());
    QTest::mouseClick(&picker, Qt::LeftButton, {}, {picker.width() + 50, 10});
    QCOMPARE(closed.count(), 2);
    QVERIFY(!picker.isVisible());
}

void tst_CRkCitySelectWidget::showingAgainAddsNothing()
{
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.hide();
    const int objects = picker.findChildren<QObject*>().size();
    for (int i = 0; i < 5; ++i) {
        QVERIFY(picker.showAsPopup());
        picker.hide();
    }
    QCOMPARE(picker.findChildren<QObject*>().size(), objects);
}

void tst_CRkCitySelectWidget::nothingIsCut_data()
{
    frequentCitiesAreInTheCatalogue_data();
}

void tst_CRkCitySelectWidget::nothingIsCut()
{
    QFETCH(QString, file);
    const std::unique_ptr<QTranslator> translator(CreateTranslator(file));
    QCoreApplication::installTranslator(translator.get());
    Picker picker;
    QVERIFY(picker.showAsPopup());
    picker.search("a");
    for (const int tab : {provinceTab, cityTab, keywordTab}) {
        picker.tabs().setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (const QPushButton* button : picker.findChildren<QPushButton*>()) {
            if (!button->isVisible())
                continue;
            QVERIFY2(button->parentWidget()->rect().contains(button->geometry()),
                     qPrintable(button->text()));
            const int text = button->fontMetrics().boundingRect(button->text()).width();
            QVERIFY2(text <= button->width(), qPrintable(button->text()));
        }
    }
    for (const char* name : {"scrollAreaByProvince", "scrollAreaByCity", "scrollAreaSearchResult"})
        QCOMPARE(picker.area(name).horizontalScrollBar()->maximum(), 0);
}

void tst_CRkCitySelectWidget::withoutCatalogue()
{
    if (!hasCatalogue({}))
        return;
    Picker picker;
    QVERIFY(picker.textsIn("widgetByProvinceLetters").isEmpty());
    QVERIFY(picker.textsIn("widgetByCityLetters").isEmpty());
    QVERIFY(picker.provincePages().isEmpty());
    QVERIFY(picker.cityPages().isEmpty());
    QVERIFY(picker.showAsPopup());
    picker.search("Beijing");
    QCOMPARE(picker.tabs().currentIndex(), keywordTab);
    QVERIFY(picker.results().isEmpty());
    QSignalSpy selected(&picker, &CRkCitySelectWidget::signalCitySelected);
    for (QPushButton* button : picker.buttonsIn("widgetFrequentCities"))
        button->click();
    QCOMPARE(selected.count(), 11);
    QCOMPARE(picker.current(), QString("Chongqing"));
}

/// Two provinces share a letter, one letter has no city, and the pages do not fill the list.
void tst_CRkCitySelectWidget::fewPlaces()
{
    if (!hasCatalogue({createTable,
                       "insert into city values (20, 'Guangdong', 'G', 1, 1, 23, 113, '')",
                       "insert into city values (30, 'Gansu', 'G', 1, 1, 36, 103, '')",
                       "insert into city values (21, 'Shenzhen', 'S', 20, 2, 2, 12, '')"}))
        return;
    Picker picker;
    QVERIFY(picker.showAsPopup());
    const auto pages = picker.provincePages();
    QCOMPARE(textOf(*pages[0], "labelProvinceLetter"), QString("G"));
    QCOMPARE(textOf(*pages[1], "labelProvinceLetter"), QString(" "));
    QCOMPARE(pages[0]->y(), 5);
    QCOMPARE(pages[1]->y(), 5 + pages[0]->height() + 6);
    QVERIFY(pages[1]->geometry().bottom() < 100);
    QCOMPARE(picker.cityPages().size(), 2);
    QVERIFY(citiesOf(*picker.cityPages()[0]).isEmpty());
    picker.clickLetter("widgetByProvinceLetters", "G");
    QCOMPARE(picker.area("scrollAreaByProvince").verticalScrollBar()->value(), 0);
}

void tst_CRkCitySelectWidget::tenThousandPlaces()
{
    const QString rows = "insert into city with recursive n(i) as "
                         "(select 1 union all select i + 1 from n where i < 10000) "
                         "select i + 1, 'Place ' || i, char(65 + i % 26), "
                         "iif(i <= 40, 1, 2 + i % 40), iif(i <= 40, 1, 2), 1, 100, '' from n";
    if (!hasCatalogue({createTable, rows}))
        return;
    Picker picker;
    QCOMPARE(picker.provincePages().size(), 40);
    QCOMPARE(picker.cityPages().size(), 26);
    int cities = 0;
    for (const RkCitySelectByCity* page : picker.cityPages())
        cities += citiesOf(*page).size();
    QCOMPARE(cities, 9960);
    QVERIFY(picker.showAsPopup());
    picker.button("pushButtonGroupCityByLetter").click();
    picker.clickLetter("widgetByCityLetters", "M");
    QCOMPARE(
        picker.cityPages()[12]->mapTo(picker.area("scrollAreaByCity").viewport(), QPoint(0, 0)).y(),
        5);
    picker.search("%");
    QCOMPARE(picker.results().size(), 10000);
    QCoreApplication::processEvents();
    picker.buttonsIn("scrollAreaWidgetContentsSearchResult").last()->click();
    QCOMPARE(picker.current(), QString("Place 10000"));
}

QTEST_MAIN(tst_CRkCitySelectWidget)
#include "tst_CRkCitySelectWidget.moc"
