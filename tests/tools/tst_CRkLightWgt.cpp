// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkLightDir.h>
#include <RkBaseUI/CRkLightWgt.h>
#include <RkBaseUI/SharedHelpers.h>

#include "support/Brackets.h"
#include "support/WindowWaits.h"
#include "widgets/KeyboardFocus.h"
#include "widgets/Render.h"
#include "widgets/SendMouse.h"

#include <QAccessible>
#include <QApplication>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QtMath>
#include <QTranslator>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QStringList messages;

void recordMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    messages.append(text);
}

/// A part of the form, whose names may be those of parts of the frame.
template <typename T>
T* part(const QWidget& dialog, const QString& name)
{
    return dialog.findChild<QWidget*>("RkLightWgt")->findChild<T*>(name);
}

QDoubleSpinBox* azimuth(const QWidget& dialog)
{
    return part<QDoubleSpinBox>(dialog, "doubleSpinBox_Azimuth");
}

QDoubleSpinBox* elevation(const QWidget& dialog)
{
    return part<QDoubleSpinBox>(dialog, "doubleSpinBox_Elevation");
}

QSlider* slider(const QWidget& dialog, const QString& name)
{
    return part<QSlider>(dialog, "horizontalSlider_" + name);
}

QPushButton* swatch(const QWidget& dialog, const QString& name)
{
    return part<QPushButton>(dialog, "btn_color_" + name);
}

QList<int> sliderValues(const QWidget& dialog)
{
    QList<int> values;
    for (const char* name : {"ambient", "diffuse", "specular", "shininess", "blend"})
        values.append(slider(dialog, name)->value());
    return values;
}

/// What a dialog sends, in order: "para" or "angle".
class Recorder
{
public:
    explicit Recorder(CRkLightWgt& dialog)
    {
        QObject::connect(&dialog, &CRkLightWgt::signalLightPara, &m_context,
                         [this](const QVariant& var, const QString& name) {
                             order.append("para");
                             records.append(var);
                             names.append(name);
                         });
        QObject::connect(&dialog, &CRkLightWgt::signalUpdateAngle, &m_context,
                         [this](float az, float el) {
                             order.append("angle");
                             angles.append({az, el});
                         });
    }

    void clear()
    {
        order.clear();
        records.clear();
        names.clear();
        angles.clear();
    }

    QStringList order;
    QVariantList records;
    QStringList names;
    QVector<QPair<float, float>> angles;

private:
    QObject m_context;
};

QVariantList sample()
{
    return {3.0, 4.0, 12.0, 0.25, 0.5, 0.75, QColor(10, 20, 30), QColor(40, 50, 60), 128.0, 0.35};
}

QVariantList withElement(int index, const QVariant& value)
{
    QVariantList record = sample();
    record[index] = value;
    return record;
}

QString styleOf(const QColor& color)
{
    return QString("background-color: rgba(%1, %2, %3, %4);")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

/// Sends the value of the widget as it is, without changing it.
QVariantList currentRecord(CRkLightWgt& dialog)
{
    Recorder sent(dialog);
    QMetaObject::invokeMethod(&dialog, "slotBlendSliderValueChanged", Q_ARG(int, 0));
    return sent.records.value(0).toList();
}

void comparePosition(const QVariantList& record, double az, double el, double distance)
{
    const double a = az * M_PI / 180;
    const double e = el * M_PI / 180;
    const QList<double> expected = {distance * std::sin(e) * std::sin(a),
                                    -distance * std::sin(e) * std::cos(a), distance * std::cos(e)};
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(std::abs(record[i].toDouble() - expected[i]) < 1e-5 * distance,
                 qPrintable(
                     QString("%1: %2, not %3").arg(i).arg(record[i].toDouble()).arg(expected[i])));
    }
}

} // namespace

class tst_CRkLightWgt : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void metaObject();
    void form();
    void ranges_data();
    void ranges();
    void labels_data();
    void labels();
    void formLiesInTheContentArea();
    void textsAreOfTheClassContext();
    void accessibleNames();
    void tabOrder();
    void enterKeepsTheDialogOpen();
    void printsNothing();
    void nothingIsCutOff_data();
    void nothingIsCutOff();

    void initShowsTheRecord();
    void initAnswers();
    void initAnswersNothingNew();
    void directions_data();
    void directions();
    void listTakesWhatIsSent();
    void originHasNoElevation();
    void coefficientsAreCut_data();
    void coefficientsAreCut();
    void shininess_data();
    void shininess();
    void colors_data();
    void colors();
    void shortRecords_data();
    void shortRecords();
    void wrongTypes();
    void numbersThatAreNone_data();
    void numbersThatAreNone();

    void recordBeforeInit();
    void typesOfTheRecord();
    void positionOfTheRecord_data();
    void positionOfTheRecord();
    void sliders_data();
    void sliders();
    void everySliderStepIsSent();
    void spinBoxes();
    void anglesFromTheView();
    void viewFollows();
    void viewAndDialogComeToRest();
    void dragInTheView();

    void colorDialog_data();
    void colorDialog();
    void colorDialogIsMadeOnce();
    void colorDialogOpensWithTheColor();
    void everyColorIsSentAtOnce();
    void invalidColorOpensBlack();
    void translucentColorOpensOpaque();
    void colorDialogCanBeRead();
    void colorDialogIsHiddenWithTheDialog();
    void colorDialogGoesWithTheDialog();
};

void tst_CRkLightWgt::construction()
{
    const CRkLightWgt dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Light Parameter"));
    QCOMPARE(dialog.findChild<QLabel*>("m_pLalTitle")->text(), QString("Light Parameter"));
    QCOMPARE(dialog.windowFlags() & ~Qt::WindowFlags(Qt::WindowSystemMenuHint),
             Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(dialog.size(), QSize(455, 572));
    QVERIFY(dialog.findChild<QWidget*>("m_pBtnOK")->isHidden());
    QVERIFY(dialog.findChild<QWidget*>("m_pBtnCancel")->isHidden());
    QVERIFY(!dialog.findChild<QWidget*>("m_pBtnClose")->isHidden());
    QVERIFY(!dialog.findChild<QColorDialog*>());
    QVERIFY(!dialog.isModal());

    QWidget parent;
    const CRkLightWgt child(&parent);
    QVERIFY(child.isWindow());
    QCOMPARE(child.parentWidget(), &parent);
}

void tst_CRkLightWgt::metaObject()
{
    const QMetaObject& meta = CRkLightWgt::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkBaseDialog::staticMetaObject);
    const QList<QByteArray> expected = {"signalLightPara(QVariant,QString)",
                                        "signalUpdateAngle(float,float)",
                                        "slotAmbientSliderValueChanged(int)",
                                        "slotDiffuseSliderValueChanged(int)",
                                        "slotSpecularSliderValueChanged(int)",
                                        "slotShininessSliderValueChanged(int)",
                                        "slotBlendSliderValueChanged(int)",
                                        "slotClickLightColor()",
                                        "slotClickSpecularColor()",
                                        "slotColorChanged(QColor)",
                                        "sloSpinBoxValueChanged(double)",
                                        "slotUpdateAngle(float,float)"};
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods.append(meta.method(i).methodSignature());
        QCOMPARE(meta.method(i).methodType(),
                 methods.size() <= 2 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    QCOMPARE(methods, expected);
}

void tst_CRkLightWgt::form()
{
    const CRkLightWgt dialog(nullptr);
    QVERIFY(part<CRkLightDir>(dialog, "widget"));
    const auto* light = part<QGroupBox>(dialog, "groupBox_light");
    QCOMPARE(light->title(), QString("Light Dir"));
    const auto* design = part<QGroupBox>(dialog, "groupBox_design");
    QCOMPARE(design->title(), QString());
    QVERIFY(light->isAncestorOf(part<QWidget>(dialog, "widget")));
    for (const QDoubleSpinBox* box : {azimuth(dialog), elevation(dialog)}) {
        QVERIFY(light->isAncestorOf(box));
        QCOMPARE(box->styleSheet(), QString("background-color: rgb(165, 165, 165);"));
        QCOMPARE(box->decimals(), 2);
        QCOMPARE(box->value(), 0.0);
    }
    for (const char* name : {"ambient", "diffuse", "specular", "shininess", "blend"}) {
        const QSlider* one = slider(dialog, name);
        QVERIFY(design->isAncestorOf(one));
        QCOMPARE(one->orientation(), Qt::Horizontal);
        QCOMPARE(one->singleStep(), 1);
        QCOMPARE(one->value(), one->minimum());
    }
    for (const char* name : {"light", "specular"}) {
        QVERIFY(design->isAncestorOf(swatch(dialog, name)));
        QCOMPARE(swatch(dialog, name)->text(), QString());
        QCOMPARE(swatch(dialog, name)->styleSheet(), QString());
    }
}

void tst_CRkLightWgt::ranges_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("azimuth") << "doubleSpinBox_Azimuth" << 0.0 << 360.0;
    QTest::newRow("elevation") << "doubleSpinBox_Elevation" << -180.0 << 180.0;
    QTest::newRow("ambient") << "horizontalSlider_ambient" << 0.0 << 100.0;
    QTest::newRow("diffuse") << "horizontalSlider_diffuse" << 0.0 << 100.0;
    QTest::newRow("specular") << "horizontalSlider_specular" << 0.0 << 100.0;
    QTest::newRow("shininess") << "horizontalSlider_shininess" << 3.0 << 1000.0;
    QTest::newRow("blend") << "horizontalSlider_blend" << 0.0 << 100.0;
}

void tst_CRkLightWgt::ranges()
{
    QFETCH(QString, name);
    const CRkLightWgt dialog(nullptr);
    const auto* widget = part<QWidget>(dialog, name);
    QTEST(widget->property("minimum").toDouble(), "minimum");
    QTEST(widget->property("maximum").toDouble(), "maximum");
}

void tst_CRkLightWgt::labels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("azimuth") << "doubleSpinBox_Azimuth"
                             << "Azimuth:";
    QTest::newRow("elevation") << "doubleSpinBox_Elevation"
                               << "Elevation:";
    QTest::newRow("ambient") << "horizontalSlider_ambient"
                             << "ambient uKa:";
    QTest::newRow("diffuse") << "horizontalSlider_diffuse"
                             << "diffuse uKd:";
    QTest::newRow("specular") << "horizontalSlider_specular"
                              << "specular uKs:";
    QTest::newRow("light colour") << "btn_color_light"
                                  << "light color:";
    QTest::newRow("specular colour") << "btn_color_specular"
                                     << "specular color:";
    QTest::newRow("shininess") << "horizontalSlider_shininess"
                               << "shininess:";
    QTest::newRow("blend") << "horizontalSlider_blend"
                           << "blend:";
}

/// Each is the buddy of its field and stands before it.
void tst_CRkLightWgt::labels()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    CRkLightWgt dialog(nullptr);
    dialog.grab();
    const auto* field = part<QWidget>(dialog, name);
    const QLabel* label = nullptr;
    for (const QLabel* one : dialog.findChildren<QLabel*>()) {
        if (one->buddy() == field)
            label = one;
    }
    QVERIFY(label);
    QCOMPARE(label->text(), text);
    QCOMPARE(label->parentWidget(), field->parentWidget());
    QVERIFY(label->geometry().right() < field->geometry().left());
    QVERIFY(qAbs(label->geometry().center().y() - field->geometry().center().y()) <= 2);
}

void tst_CRkLightWgt::formLiesInTheContentArea()
{
    const CRkLightWgt dialog(nullptr);
    const auto* content = dialog.findChild<QGridLayout*>("m_pContainsLayout");
    QCOMPARE(content->count(), 1);
    const QWidget* container = content->itemAtPosition(1, 0)->layout()->itemAt(0)->widget();
    QCOMPARE(container->objectName(), QString("RkLightWgt"));
    QCOMPARE(dialog.objectName(), QString("CRkBaseDialog"));
    // Names that the frame has as well.
    QVERIFY(container->findChild<CRkLightDir*>("widget"));
    QCOMPARE(container->findChild<QLabel*>("label")->text(), QString("Azimuth:"));
}

void tst_CRkLightWgt::textsAreOfTheClassContext()
{
    Brackets brackets("CRkLightWgt");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    const CRkLightWgt dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("[Light Parameter]"));
    QCOMPARE(part<QGroupBox>(dialog, "groupBox_light")->title(), QString("[Light Dir]"));
    for (const QLabel* label : dialog.findChild<QWidget*>("RkLightWgt")->findChildren<QLabel*>())
        QVERIFY2(label->text().startsWith("["), qPrintable(label->text()));
}

void tst_CRkLightWgt::accessibleNames()
{
    const CRkLightWgt dialog(nullptr);
    QList<QWidget*> fields = dialog.findChild<QWidget*>("RkLightWgt")->findChildren<QWidget*>();
    int count = 0;
    for (QWidget* field : fields) {
        if (!qobject_cast<QSlider*>(field) && !qobject_cast<QDoubleSpinBox*>(field)
            && !qobject_cast<QPushButton*>(field) && !qobject_cast<CRkLightDir*>(field))
            continue;
        ++count;
        QVERIFY2(!QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name).isEmpty(),
                 qPrintable(field->objectName()));
    }
    QCOMPARE(count, 10);
}

void tst_CRkLightWgt::tabOrder()
{
    CRkLightWgt dialog(nullptr);
    const QStringList expected = {"doubleSpinBox_Azimuth",     "doubleSpinBox_Elevation",
                                  "horizontalSlider_ambient",  "horizontalSlider_diffuse",
                                  "horizontalSlider_specular", "btn_color_light",
                                  "btn_color_specular",        "horizontalSlider_shininess",
                                  "horizontalSlider_blend",    "m_pBtnClose",
                                  "doubleSpinBox_Azimuth"};
    QCOMPARE(tabStops(dialog, expected.size()), expected);
}

void tst_CRkLightWgt::enterKeepsTheDialogOpen()
{
    CRkLightWgt dialog(nullptr);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QTRY_VERIFY(dialog.isActiveWindow());
    azimuth(dialog)->selectAll();
    QTest::keyClicks(azimuth(dialog), "12.5");
    QTest::keyClick(azimuth(dialog), Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.findChild<QColorDialog*>());
    QCOMPARE(azimuth(dialog)->value(), 12.5);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void tst_CRkLightWgt::printsNothing()
{
    messages.clear();
    const QtMessageHandler before = qInstallMessageHandler(recordMessage);
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    dialog.show();
    const bool isExposed = comesOnScreen(&dialog);
    dialog.grab();
    qInstallMessageHandler(before);
    QVERIFY(isExposed);
    QVERIFY2(messages.isEmpty(), qPrintable(messages.join('\n')));
}

void tst_CRkLightWgt::nothingIsCutOff_data()
{
    QTest::addColumn<bool>("isChinese");
    QTest::newRow("English") << false;
    QTest::newRow("Chinese") << true;
}

void tst_CRkLightWgt::nothingIsCutOff()
{
    QFETCH(bool, isChinese);
    const std::unique_ptr<QTranslator> translator(CreateTranslator("RkBaseUI_zh_CN"));
    if (isChinese)
        QVERIFY(QCoreApplication::installTranslator(translator.get()));
    CRkLightWgt dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QCOMPARE(dialog.size(), QSize(455, 572));
    for (const QLabel* label : dialog.findChild<QWidget*>("RkLightWgt")->findChildren<QLabel*>()) {
        QVERIFY2(label->width() >= label->sizeHint().width()
                     && label->height() >= label->sizeHint().height(),
                 qPrintable(label->text()));
    }
    const auto* view = part<CRkLightDir>(dialog, "widget");
    QVERIFY(view->width() >= 160 && view->height() >= 160);
    QVERIFY(slider(dialog, "blend")->width() >= 200);
}

void tst_CRkLightWgt::initShowsTheRecord()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    QCOMPARE(azimuth(dialog)->value(), 36.87); // asin(3 / 5) in units of 1 / 57.3
    QCOMPARE(elevation(dialog)->value(), 67.39);
    QCOMPARE(sliderValues(dialog), QList<int>({25, 50, 75, 128, 35}));
    QCOMPARE(swatch(dialog, "light")->styleSheet(),
             QString("background-color: rgba(10, 20, 30, 255);"));
    QCOMPARE(swatch(dialog, "specular")->styleSheet(),
             QString("background-color: rgba(40, 50, 60, 255);"));
}

/// Every widget that takes another value sends the record as it is at that moment.
void tst_CRkLightWgt::initAnswers()
{
    CRkLightWgt dialog(nullptr);
    Recorder sent(dialog);
    dialog.InitWgt(sample(), "light");
    QCOMPARE(sent.order,
             QStringList({"para", "angle", "para", "angle", "angle", "para", "para", "para", "para",
                          "para"}));
    QCOMPARE(sent.names,
             QStringList({"light", "light", "light", "light", "light", "light", "light"}));
    // The name, the colours and the distance are known before the first.
    comparePosition(sent.records[0].toList(), 36.87, 0, 13);
    comparePosition(sent.records[1].toList(), 36.87, 67.39, 13);
    QCOMPARE(sent.records[0].toList()[6].value<QColor>(), QColor(10, 20, 30));
    QCOMPARE(sent.records[0].toList()[7].value<QColor>(), QColor(40, 50, 60));
    const QList<QVariantList> expected = {
        {0.0, 0.0, 0.0, 3.0, 0.0},     {0.0, 0.0, 0.0, 3.0, 0.0},   {0.25, 0.0, 0.0, 3.0, 0.0},
        {0.25, 0.5, 0.0, 3.0, 0.0},    {0.25, 0.5, 0.75, 3.0, 0.0}, {0.25, 0.5, 0.75, 128.0, 0.0},
        {0.25, 0.5, 0.75, 128.0, 0.35}};
    for (int i = 0; i < expected.size(); ++i) {
        const QVariantList record = sent.records[i].toList();
        QCOMPARE(QVariantList({record[3], record[4], record[5], record[8], record[9]}),
                 expected[i]);
    }
    // The spin boxes send what they show, the dialog what it computed.
    QCOMPARE(sent.angles[0], qMakePair(36.87F, 0.0F));
    QCOMPARE(sent.angles[1], qMakePair(36.87F, 67.39F));
    QVERIFY(sent.angles[2].first != 36.87F && qAbs(sent.angles[2].first - 36.87F) < 0.005F);
    QVERIFY(sent.angles[2].second != 67.39F && qAbs(sent.angles[2].second - 67.39F) < 0.005F);
}

void tst_CRkLightWgt::initAnswersNothingNew()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    Recorder sent(dialog);
    dialog.InitWgt(sample(), "other");
    QCOMPARE(sent.order, QStringList("angle"));
    slider(dialog, "blend")->setValue(1);
    QCOMPARE(sent.names, QStringList("other"));
}

void tst_CRkLightWgt::directions_data()
{
    QTest::addColumn<QVector3D>("point");
    QTest::addColumn<double>("expectedAzimuth");
    QTest::addColumn<double>("expectedElevation");
    QTest::addColumn<QString>("sent"); // Azimuth before it is rounded.
    QTest::newRow("straight up") << QVector3D(0, 0, 9) << 0.0 << 90.01 << "0.0000";
    QTest::newRow("straight down") << QVector3D(0, 0, -9) << 0.0 << -90.01 << "0.0000";
    QTest::newRow("south-west") << QVector3D(-1, -1, 0) << 225.0 << 0.0 << "225.0033";
    QTest::newRow("north-west") << QVector3D(-1, 1, 0) << 315.0 << 0.0 << "314.9967";
    QTest::newRow("east") << QVector3D(4, 0, 0) << 90.01 << 0.0 << "90.0066";
}

void tst_CRkLightWgt::directions()
{
    QFETCH(QVector3D, point);
    CRkLightWgt dialog(nullptr);
    Recorder sent(dialog);
    QVariantList record = sample();
    for (int i = 0; i < 3; ++i)
        record[i] = static_cast<double>(point[i]);
    dialog.InitWgt(record, "light");
    QTEST(azimuth(dialog)->value(), "expectedAzimuth");
    QTEST(elevation(dialog)->value(), "expectedElevation");
    QTEST(QString::number(double(sent.angles.last().first), 'f', 4), "sent");
}

void tst_CRkLightWgt::listTakesWhatIsSent()
{
    CRkLightWgt dialog(nullptr);
    QVariantList light = sample();
    connect(&dialog, &CRkLightWgt::signalLightPara,
            [&light](const QVariant& record) { light = record.toList(); });
    dialog.InitWgt(light, "light");
    CRkLightWgt other(nullptr);
    other.InitWgt(sample(), "light");
    QCOMPARE(sliderValues(dialog), sliderValues(other));
    QCOMPARE(azimuth(dialog)->value(), azimuth(other)->value());
    QCOMPARE(elevation(dialog)->value(), elevation(other)->value());
}

void tst_CRkLightWgt::originHasNoElevation()
{
    CRkLightWgt dialog(nullptr);
    dialog.show();
    Recorder sent(dialog);
    dialog.InitWgt({0.0, 0.0, 0.0, 0.25, 0.5, 0.75, QColor(Qt::red), QColor(Qt::blue), 8.0, 0.5},
                   "light");
    QCOMPARE(azimuth(dialog)->value(), 0.0);
    QVERIFY(std::isnan(sent.angles.last().second));
    QCOMPARE(sent.angles.last().first, 0.0F);
    QCOMPARE(sliderValues(dialog), QList<int>({25, 50, 75, 8, 50}));
    QCOMPARE(currentRecord(dialog).mid(0, 3), QVariantList({0.0F, 0.0F, 0.0F}));
    QVERIFY(!dialog.grab().isNull());

    dialog.InitWgt(sample(), "light"); // And it recovers.
    QCOMPARE(elevation(dialog)->value(), 67.39);
}

void tst_CRkLightWgt::coefficientsAreCut_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("0") << QVariant(0.0) << 0;
    QTest::newRow("0.55") << QVariant(0.55) << 55;
    QTest::newRow("1") << QVariant(1.0) << 100;
    QTest::newRow("cut, not rounded") << QVariant(0.559) << 55;
    QTest::newRow("a hundredth below in binary") << QVariant(0.29) << 28;
    QTest::newRow("single precision") << QVariant(0.7F) << 69;
    QTest::newRow("towards zero") << QVariant(-0.009) << 0;
    QTest::newRow("below the range") << QVariant(-0.5) << 0;
    QTest::newRow("above the range") << QVariant(1.5) << 100;
    QTest::newRow("beyond an int") << QVariant(1e300) << 100;
    QTest::newRow("beyond an int, below") << QVariant(-1e300) << 0;
    QTest::newRow("infinite") << QVariant(infinity) << 100;
    QTest::newRow("no number") << QVariant(notANumber) << 0;
    QTest::newRow("text") << QVariant("0.25") << 25;
    QTest::newRow("other text") << QVariant("bright") << 0;
    QTest::newRow("integer") << QVariant(1) << 100;
}

void tst_CRkLightWgt::coefficientsAreCut()
{
    QFETCH(QVariant, value);
    QFETCH(int, expected);
    const QList<QPair<int, QString>> elements = {
        {3, "ambient"}, {4, "diffuse"}, {5, "specular"}, {9, "blend"}};
    for (const auto& element : elements) {
        CRkLightWgt dialog(nullptr);
        dialog.InitWgt(sample(), "light");
        dialog.InitWgt(withElement(element.first, value), "light");
        QCOMPARE(slider(dialog, element.second)->value(), expected);
    }
}

void tst_CRkLightWgt::shininess_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("128") << QVariant(128.0) << 128;
    QTest::newRow("cut, not rounded") << QVariant(128.9) << 128;
    QTest::newRow("least") << QVariant(3.0) << 3;
    QTest::newRow("most") << QVariant(1000.0) << 1000;
    QTest::newRow("below the range") << QVariant(2.0) << 3;
    QTest::newRow("above the range") << QVariant(5000.0) << 1000;
    QTest::newRow("infinite") << QVariant(infinity) << 1000;
    QTest::newRow("infinite, below") << QVariant(-infinity) << 3;
    QTest::newRow("no number") << QVariant(notANumber) << 3;
}

void tst_CRkLightWgt::shininess()
{
    QFETCH(QVariant, value);
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(withElement(8, 500.0), "light");
    dialog.InitWgt(withElement(8, value), "light");
    QTEST(slider(dialog, "shininess")->value(), "expected");
}

void tst_CRkLightWgt::colors_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<QString>("style");
    QTest::newRow("opaque") << QVariant(QColor(1, 2, 3)) << QColor(1, 2, 3)
                            << "background-color: rgba(1, 2, 3, 255);";
    QTest::newRow("translucent") << QVariant(QColor(255, 0, 128, 64)) << QColor(255, 0, 128, 64)
                                 << "background-color: rgba(255, 0, 128, 64);";
    QTest::newRow("other model") << QVariant(QColor::fromHsv(120, 255, 255))
                                 << QColor::fromHsv(120, 255, 255)
                                 << "background-color: rgba(0, 255, 0, 255);";
    QTest::newRow("name") << QVariant("#0a141e") << QColor(10, 20, 30)
                          << "background-color: rgba(10, 20, 30, 255);";
    QTest::newRow("invalid") << QVariant(QColor()) << QColor()
                             << "background-color: rgba(0, 0, 0, 255);";
    QTest::newRow("no colour's name")
        << QVariant("bright") << QColor() << "background-color: rgba(0, 0, 0, 255);";
    QTest::newRow("number") << QVariant(7.0) << QColor() << "background-color: rgba(0, 0, 0, 255);";
    QTest::newRow("nothing") << QVariant() << QColor() << "background-color: rgba(0, 0, 0, 255);";
}

void tst_CRkLightWgt::colors()
{
    QFETCH(QVariant, value);
    QFETCH(QColor, expected);
    QFETCH(QString, style);
    for (const int index : {6, 7}) {
        CRkLightWgt dialog(nullptr);
        dialog.InitWgt(withElement(index, value), "light");
        QCOMPARE(swatch(dialog, index == 6 ? "light" : "specular")->styleSheet(), style);
        QCOMPARE(currentRecord(dialog)[index].value<QColor>(), expected);
        const int other = index == 6 ? 7 : 6;
        QCOMPARE(currentRecord(dialog)[other], sample()[other]);
    }
}

void tst_CRkLightWgt::shortRecords_data()
{
    QTest::addColumn<int>("size");
    for (int size = 0; size < 10; ++size)
        QTest::addRow("%d elements", size) << size;
}

void tst_CRkLightWgt::shortRecords()
{
    QFETCH(int, size);
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    dialog.InitWgt(sample().mid(0, size), "light");
    const QList<int> full = {25, 50, 75, 128, 35};
    const QList<int> none = {0, 0, 0, 3, 0};
    const QList<int> needed = {4, 5, 6, 9, 10};
    QList<int> expected;
    for (int i = 0; i < 5; ++i)
        expected.append(size >= needed[i] ? full[i] : none[i]);
    QCOMPARE(sliderValues(dialog), expected);
    QCOMPARE(swatch(dialog, "light")->styleSheet(),
             styleOf(size > 6 ? QColor(10, 20, 30) : QColor()));
    QCOMPARE(swatch(dialog, "specular")->styleSheet(),
             styleOf(size > 7 ? QColor(40, 50, 60) : QColor()));
    QCOMPARE(azimuth(dialog)->value(), size == 0 ? 0.0 : (size == 1 ? 90.01 : 36.87));
    QCOMPARE(currentRecord(dialog).size(), 10);

    dialog.InitWgt(sample() + sample(), "light"); // Further elements count for nothing.
    QCOMPARE(sliderValues(dialog), full);
}

void tst_CRkLightWgt::wrongTypes()
{
    CRkLightWgt dialog(nullptr);
    QVariantList record;
    for (int i = 0; i < 10; ++i)
        record.append(QVariant::fromValue(QVariantList({i})));
    dialog.InitWgt(record, "light");
    QCOMPARE(sliderValues(dialog), QList<int>({0, 0, 0, 3, 0}));

    record = {"3", "4", "12", "0.25", 1, true, "red", "#80ff0000", "128", "0.35"};
    dialog.InitWgt(record, "light");
    QCOMPARE(azimuth(dialog)->value(), 36.87);
    QCOMPARE(sliderValues(dialog), QList<int>({25, 100, 100, 128, 35}));
    QCOMPARE(swatch(dialog, "light")->styleSheet(),
             QString("background-color: rgba(255, 0, 0, 255);"));
    QCOMPARE(swatch(dialog, "specular")->styleSheet(),
             QString("background-color: rgba(255, 0, 0, 128);"));
}

void tst_CRkLightWgt::numbersThatAreNone_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    const QList<QPair<QString, double>> values = {{"no number", notANumber},
                                                  {"infinite", infinity},
                                                  {"-infinite", -infinity},
                                                  {"beyond a float", 1e300},
                                                  {"below a float", 1e-300}};
    for (const auto& value : values) {
        QTest::addRow("x is %s", qPrintable(value.first)) << value.second << 1.0 << 1.0;
        QTest::addRow("y is %s", qPrintable(value.first)) << 1.0 << value.second << 1.0;
        QTest::addRow("z is %s", qPrintable(value.first)) << 1.0 << 1.0 << value.second;
        QTest::addRow("all are %s", qPrintable(value.first))
            << value.second << value.second << value.second;
    }
}

/// Whatever the position, everything else is shown and sent.
void tst_CRkLightWgt::numbersThatAreNone()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    CRkLightWgt dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QVariantList record = sample();
    record[0] = x;
    record[1] = y;
    record[2] = z;
    dialog.InitWgt(record, "light");
    QCOMPARE(sliderValues(dialog), QList<int>({25, 50, 75, 128, 35}));
    QVERIFY(azimuth(dialog)->value() >= 0 && azimuth(dialog)->value() <= 360);
    QVERIFY(qAbs(elevation(dialog)->value()) <= 180);
    const QVariantList sent = currentRecord(dialog);
    QCOMPARE(sent.mid(3), sample().mid(3));
    QVERIFY(!dialog.grab().isNull());
}

void tst_CRkLightWgt::recordBeforeInit()
{
    CRkLightWgt dialog(nullptr);
    Recorder sent(dialog);
    slider(dialog, "ambient")->setValue(10);
    QCOMPARE(sent.names, QStringList(QString()));
    const QVariantList record = sent.records[0].toList();
    QCOMPARE(record.mid(0, 6), QVariantList({0.0F, 0.0F, 0.0F, 0.1, 0.0, 0.0}));
    QVERIFY(!record[6].value<QColor>().isValid());
    QVERIFY(!record[7].value<QColor>().isValid());
    QCOMPARE(record.mid(8), QVariantList({3.0, 0.0}));
}

void tst_CRkLightWgt::typesOfTheRecord()
{
    CRkLightWgt dialog(nullptr);
    Recorder sent(dialog);
    dialog.InitWgt(sample(), "light");
    QCOMPARE(sent.records.last().type(), QVariant::List);
    QList<int> types;
    for (const QVariant& element : sent.records.last().toList())
        types.append(element.userType());
    QCOMPARE(types,
             QList<int>({QMetaType::Float, QMetaType::Float, QMetaType::Float, QMetaType::Double,
                         QMetaType::Double, QMetaType::Double, QMetaType::QColor, QMetaType::QColor,
                         QMetaType::Double, QMetaType::Double}));
}

void tst_CRkLightWgt::positionOfTheRecord_data()
{
    QTest::addColumn<double>("az");
    QTest::addColumn<double>("el");
    QTest::newRow("no turn") << 0.0 << 0.0;
    QTest::newRow("azimuth alone") << 90.0 << 0.0;
    QTest::newRow("elevation alone") << 0.0 << 90.0;
    QTest::newRow("both") << 225.0 << 35.5;
    QTest::newRow("below") << 12.34 << -56.78;
    QTest::newRow("ends of the ranges") << 360.0 << 180.0;
    QTest::newRow("other end") << 359.99 << -180.0;
}

void tst_CRkLightWgt::positionOfTheRecord()
{
    QFETCH(double, az);
    QFETCH(double, el);
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    azimuth(dialog)->setValue(az);
    elevation(dialog)->setValue(el);
    comparePosition(currentRecord(dialog), az, el, 13);
}

void tst_CRkLightWgt::sliders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("expected");
    QTest::newRow("ambient") << "ambient" << 55 << 3 << 0.55;
    QTest::newRow("diffuse") << "diffuse" << 1 << 4 << 0.01;
    QTest::newRow("specular") << "specular" << 100 << 5 << 1.0;
    QTest::newRow("shininess") << "shininess" << 129 << 8 << 129.0;
    QTest::newRow("blend") << "blend" << 0 << 9 << 0.0;
}

void tst_CRkLightWgt::sliders()
{
    QFETCH(QString, name);
    QFETCH(int, value);
    QFETCH(int, index);
    QFETCH(double, expected);
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    const QVariantList before = currentRecord(dialog);
    Recorder sent(dialog);
    slider(dialog, name)->setValue(value);
    QCOMPARE(sent.order, QStringList("para"));
    QCOMPARE(sent.names, QStringList("light"));
    QVariantList wanted = before;
    wanted[index] = expected;
    QCOMPARE(sent.records[0].toList(), wanted);
    slider(dialog, name)->setValue(value);
    QCOMPARE(sent.order.size(), 1);
}

void tst_CRkLightWgt::everySliderStepIsSent()
{
    CRkLightWgt dialog(nullptr);
    dialog.show();
    Recorder sent(dialog);
    QTest::keyClick(slider(dialog, "ambient"), Qt::Key_Right);
    QTest::keyClick(slider(dialog, "ambient"), Qt::Key_Right);
    QCOMPARE(sent.records.size(), 2);
    QCOMPARE(sent.records[0].toList()[3], QVariant(0.01));
    QCOMPARE(sent.records[1].toList()[3], QVariant(0.02));
}

void tst_CRkLightWgt::spinBoxes()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    Recorder sent(dialog);
    azimuth(dialog)->setValue(200.25);
    QCOMPARE(sent.order, QStringList({"para", "angle"}));
    QCOMPARE(sent.angles[0], qMakePair(200.25F, 67.39F));
    comparePosition(sent.records[0].toList(), 200.25, 67.39, 13);
    sent.clear();
    elevation(dialog)->setValue(-10.5);
    QCOMPARE(sent.order, QStringList({"para", "angle"}));
    QCOMPARE(sent.angles[0], qMakePair(200.25F, -10.5F));
    QCOMPARE(sent.names, QStringList("light"));
}

void tst_CRkLightWgt::anglesFromTheView()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    Recorder sent(dialog);
    auto* view = part<CRkLightDir>(dialog, "widget");
    emit view->signalUpdateAngle(100.126F, -30.0F);
    QCOMPARE(azimuth(dialog)->value(), 100.13);
    QCOMPARE(elevation(dialog)->value(), -30.0);
    QCOMPARE(sent.order, QStringList({"para", "angle", "para", "angle"}));
    QCOMPARE(sent.angles[0], qMakePair(100.13F, 67.39F));
    QCOMPARE(sent.angles[1], qMakePair(100.13F, -30.0F));
    comparePosition(sent.records[0].toList(), 100.13, 67.39, 13);
    comparePosition(sent.records[1].toList(), 100.13, -30, 13);

    sent.clear();
    emit view->signalUpdateAngle(100.13F, -30.0F);
    QVERIFY(sent.order.isEmpty());
    emit view->signalUpdateAngle(-5.0F, 400.0F);
    QCOMPARE(azimuth(dialog)->value(), 0.0);
    QCOMPARE(elevation(dialog)->value(), 180.0);
}

/// The angle that the view has shows in what a drag makes of it.
QPair<float, float> angleOf(CRkLightDir& view)
{
    const QSignalSpy sent(&view, &CRkLightDir::signalUpdateAngle);
    sendMouse(view, QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, {50, 50}, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, {50, 50}, Qt::LeftButton, Qt::NoButton);
    return {sent.value(0).value(0).toFloat(), sent.value(0).value(1).toFloat()};
}

void tst_CRkLightWgt::viewFollows()
{
    CRkLightWgt dialog(nullptr);
    auto* view = part<CRkLightDir>(dialog, "widget");
    dialog.InitWgt(sample(), "light");
    azimuth(dialog)->setValue(12.5);
    elevation(dialog)->setValue(-33.25);
    QCOMPARE(angleOf(*view), qMakePair(12.5F, -33.25F));

    // What InitWgt computed reaches the view unrounded, last of all.
    dialog.InitWgt(withElement(2, 0.0), "light");
    const rk::LightAngles angles = rk::lightAngles(3, 4, 0);
    QCOMPARE(angleOf(*view), qMakePair(angles.azimuth, angles.elevation));
}

void tst_CRkLightWgt::viewAndDialogComeToRest()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    auto* view = part<CRkLightDir>(dialog, "widget");
    const QSignalSpy fromView(view, &CRkLightDir::signalUpdateAngle);
    azimuth(dialog)->setValue(12.5);
    QVERIFY(fromView.isEmpty());
}

void tst_CRkLightWgt::dragInTheView()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    azimuth(dialog)->setValue(5);
    elevation(dialog)->setValue(180);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    const QPoint place = dialog.pos();
    Recorder sent(dialog);
    auto* view = part<CRkLightDir>(dialog, "widget");
    QCOMPARE(dialog.childAt(view->mapTo(&dialog, QPoint(50, 50))), view);
    sendMouse(*view, QEvent::MouseButtonPress, {20, 20}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(*view, QEvent::MouseMove, {30, 19}, Qt::NoButton, Qt::LeftButton);
    sendMouse(*view, QEvent::MouseButtonRelease, {30, 19}, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(azimuth(dialog)->value(), 355.0);
    QCOMPARE(elevation(dialog)->value(), -179.0);
    comparePosition(sent.records.last().toList(), 355, -179, 13);
    QCOMPARE(angleOf(*view), qMakePair(355.0F, -179.0F));
    QCOMPARE(dialog.pos(), place); // The dialog is not dragged along.
}

void tst_CRkLightWgt::colorDialog_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");
    QTest::newRow("light") << "light" << 6;
    QTest::newRow("specular") << "specular" << 7;
}

void tst_CRkLightWgt::colorDialog()
{
    QFETCH(QString, name);
    QFETCH(int, index);
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    dialog.show();
    swatch(dialog, name)->click();
    auto* colors = dialog.findChild<QColorDialog*>();
    QVERIFY(colors);
    QCOMPARE(colors->parentWidget(), &dialog);
    QVERIFY(colors->isVisible());
    QVERIFY(!colors->isModal());
    QVERIFY(colors->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(colors->windowOpacity(), 1.0);
    QCOMPARE(colors->currentColor(), sample()[index].value<QColor>());

    Recorder sent(dialog);
    colors->setCurrentColor(QColor(200, 100, 50));
    QCOMPARE(sent.order, QStringList("para"));
    QCOMPARE(sent.names, QStringList("light"));
    QVariantList expected = currentRecord(dialog);
    QCOMPARE(sent.records[0].toList(), expected);
    QCOMPARE(expected[index].value<QColor>(), QColor(200, 100, 50));
    QCOMPARE(expected[13 - index], sample()[13 - index]);
    QCOMPARE(swatch(dialog, name)->styleSheet(),
             QString("background-color: rgba(200, 100, 50, 255);"));
    const QString other = index == 6 ? "specular" : "light";
    QCOMPARE(swatch(dialog, other)->styleSheet(), styleOf(sample()[13 - index].value<QColor>()));
}

void tst_CRkLightWgt::colorDialogIsMadeOnce()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    dialog.show();
    swatch(dialog, "light")->click();
    QPointer<QColorDialog> colors = dialog.findChild<QColorDialog*>();
    colors->accept();
    QVERIFY(!colors->isVisible());
    swatch(dialog, "specular")->click();
    QVERIFY(colors);
    QVERIFY(colors->isVisible());
    QCOMPARE(dialog.findChildren<QColorDialog*>().size(), 1);
    Recorder sent(dialog);
    colors->setCurrentColor(QColor(1, 2, 3));
    QCOMPARE(sent.order, QStringList("para")); // Connected once.
    QCOMPARE(sent.records[0].toList()[7].value<QColor>(), QColor(1, 2, 3));
    QCOMPARE(sent.records[0].toList()[6].value<QColor>(), QColor(10, 20, 30));
}

/// The target is set before the colour, so that the other colour stays as it is.
void tst_CRkLightWgt::colorDialogOpensWithTheColor()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    Recorder sent(dialog);
    swatch(dialog, "light")->click();
    swatch(dialog, "specular")->click();
    swatch(dialog, "light")->click();
    QCOMPARE(dialog.findChild<QColorDialog*>()->currentColor(), QColor(10, 20, 30));
    for (const QVariant& record : qAsConst(sent.records)) {
        QCOMPARE(record.toList()[6].value<QColor>(), QColor(10, 20, 30));
        QCOMPARE(record.toList()[7].value<QColor>(), QColor(40, 50, 60));
    }
    QCOMPARE(sent.records.size(), 3); // The colour in the dialog changes each time.
}

void tst_CRkLightWgt::everyColorIsSentAtOnce()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    swatch(dialog, "light")->click();
    Recorder sent(dialog);
    auto* colors = dialog.findChild<QColorDialog*>();
    for (int red = 100; red < 110; ++red)
        colors->setCurrentColor(QColor(red, 20, 30));
    QCOMPARE(sent.records.size(), 10);
    for (int i = 0; i < 10; ++i)
        QCOMPARE(sent.records[i].toList()[6].value<QColor>(), QColor(100 + i, 20, 30));
    colors->reject();
    QCOMPARE(currentRecord(dialog)[6].value<QColor>(), QColor(109, 20, 30));
}

void tst_CRkLightWgt::invalidColorOpensBlack()
{
    CRkLightWgt dialog(nullptr);
    swatch(dialog, "specular")->click();
    QCOMPARE(dialog.findChild<QColorDialog*>()->currentColor(), QColor(Qt::black));
    QVERIFY(!currentRecord(dialog)[6].value<QColor>().isValid());
}

void tst_CRkLightWgt::translucentColorOpensOpaque()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(withElement(7, QColor(255, 200, 0, 100)), "light");
    Recorder sent(dialog);
    swatch(dialog, "specular")->click();
    QCOMPARE(sent.order, QStringList("para"));
    QCOMPARE(sent.records[0].toList()[7].value<QColor>(), QColor(255, 200, 0));
    QCOMPARE(swatch(dialog, "specular")->styleSheet(), styleOf(QColor(255, 200, 0)));
}

/// The background attribute alone would leave its texts on nothing.
void tst_CRkLightWgt::colorDialogCanBeRead()
{
    CRkLightWgt dialog(nullptr);
    dialog.show();
    swatch(dialog, "light")->click();
    auto* colors = dialog.findChild<QColorDialog*>();
    QVERIFY(comesOnScreen(colors));
    QImage image(colors->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    colors->render(&image, {}, {}, QWidget::DrawWindowBackground | QWidget::DrawChildren);
    QCOMPARE(image.pixelColor(2, 2), colors->palette().color(QPalette::Window));
    const auto shown = [colors] {
        const QPoint corner = colors->mapToGlobal({2, 2});
        return colors->screen()
            ->grabWindow(0, corner.x(), corner.y(), 1, 1)
            .toImage()
            .pixelColor(0, 0);
    };
    QTRY_COMPARE(shown(), colors->palette().color(QPalette::Window));
}

void tst_CRkLightWgt::colorDialogIsHiddenWithTheDialog()
{
    CRkLightWgt dialog(nullptr);
    dialog.InitWgt(sample(), "light");
    dialog.show();
    swatch(dialog, "light")->click();
    auto* colors = dialog.findChild<QColorDialog*>();
    colors->setCurrentColor(QColor(1, 2, 3));
    dialog.findChild<QPushButton*>("m_pBtnClose")->click();
    QVERIFY(!dialog.isVisible());
    QVERIFY(!colors->isVisible());
    QCOMPARE(currentRecord(dialog)[6].value<QColor>(), QColor(1, 2, 3));

    dialog.show(); // And it comes back at its next use only.
    QVERIFY(!colors->isVisible());
    swatch(dialog, "light")->click();
    QVERIFY(colors->isVisible());
}

void tst_CRkLightWgt::colorDialogGoesWithTheDialog()
{
    QPointer<QColorDialog> colors;
    {
        CRkLightWgt dialog(nullptr);
        swatch(dialog, "light")->click();
        colors = dialog.findChild<QColorDialog*>();
        QVERIFY(colors);
    }
    QVERIFY(!colors);
}

QTEST_MAIN(tst_CRkLightWgt)
#include "tst_CRkLightWgt.moc"
