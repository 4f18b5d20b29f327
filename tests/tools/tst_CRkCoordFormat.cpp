// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkCoordFormat.h>

#include "support/BoxAnswerer.h"
#include "support/Brackets.h"
#include "support/WindowWaits.h"
#include "widgets/ExecAnd.h"
#include "widgets/KeyboardFocus.h"

#include <QAccessible>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QRadioButton>

namespace {

const QString title = QStringLiteral("Coordinate Format");
const QString missing = QStringLiteral("Please input parameter.");
const QString invalid = QStringLiteral("Invalid parameter.");

/// The form: its label has the name of one in the frame.
const QWidget& form(const QWidget& dialog)
{
    return *dialog.findChild<QWidget*>("CRkCoordFormat");
}

template <typename T>
T* part(const QWidget& dialog, const char* name)
{
    return form(dialog).findChild<T*>(name);
}

QLineEdit* latitude(const QWidget& dialog)
{
    return part<QLineEdit>(dialog, "m_pEdtCoordLat");
}

QLineEdit* longitude(const QWidget& dialog)
{
    return part<QLineEdit>(dialog, "m_pEdtCoordLng");
}

QRadioButton* dec(const QWidget& dialog)
{
    return part<QRadioButton>(dialog, "m_pRdoDec");
}

QRadioButton* dms(const QWidget& dialog)
{
    return part<QRadioButton>(dialog, "m_pRdoDms");
}

QPushButton* okButton(const QWidget& dialog)
{
    return dialog.findChild<QPushButton*>("m_pBtnOK");
}

void fill(const QWidget& dialog, const QString& lat, const QString& lng)
{
    latitude(dialog)->setText(lat);
    longitude(dialog)->setText(lng);
}

QStringList fields(const QWidget& dialog)
{
    return {latitude(dialog)->text(), longitude(dialog)->text()};
}

QStringList placeholders(const QWidget& dialog)
{
    return {latitude(dialog)->placeholderText(), longitude(dialog)->placeholderText()};
}

/// Both coordinates, split.
QStringList converted(const CRkCoordFormat& dialog)
{
    QStringList lat;
    QStringList lng;
    dialog.ConvertToDMSCoord(lat, lng);
    return lat + lng;
}

/// One row for each format, with the name of its button.
void addFormats()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("decimal degrees") << "m_pRdoDec";
    QTest::newRow("degrees, minutes and seconds") << "m_pRdoDms";
}

} // namespace

class tst_CRkCoordFormat : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void flags();
    void formLiesInTheContentArea();
    void formFitsItsContent();
    void metaObject();
    void textsAreOfTheClassContext();
    void validators();
    void typing_data();
    void typing();
    void typingInAnotherLocale();
    void tabOrder();
    void embeddedDialogTakesNoFocus();
    void accessibleNames();

    void formatChange();
    void formatThatIsSetAlready_data() { addFormats(); }
    void formatThatIsSetAlready();
    void formatSlotWithoutAButton_data() { addFormats(); }
    void formatSlotWithoutAButton();

    void conversion_data();
    void conversion();
    void conversionAppends();
    void conversionOfAnEmptyField_data();
    void conversionOfAnEmptyField();

    void accepts_data();
    void accepts();
    void refuses_data();
    void refuses();
    void boxLook();
    void acceptsAfterARefusal();
    void otherEnds();
};

void tst_CRkCoordFormat::construction()
{
    const CRkCoordFormat dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("CRkBaseDialog"));
    QCOMPARE(dialog.windowTitle(), title);
    QCOMPARE(dialog.findChild<QLabel*>("m_pLalTitle")->text(), title);
    QCOMPARE(form(dialog).size(), QSize(327, 106));
    QCOMPARE(dec(dialog)->text(), QString("Dec"));
    QCOMPARE(dms(dialog)->text(), QString("DMS"));
    QCOMPARE(part<QLabel>(dialog, "label")->text(), QString("Latitude:"));
    QCOMPARE(part<QLabel>(dialog, "label_2")->text(), QString("Longitude:"));
    QCOMPARE(part<QLabel>(dialog, "label")->buddy(), latitude(dialog));
    QCOMPARE(part<QLabel>(dialog, "label_2")->buddy(), longitude(dialog));
    QVERIFY(dec(dialog)->isChecked());
    QVERIFY(!dms(dialog)->isChecked());
    QCOMPARE(fields(dialog), QStringList({"", ""}));
    QCOMPARE(placeholders(dialog), QStringList({"00.00000000", "000.00000000"}));
}

void tst_CRkCoordFormat::flags()
{
    QWidget parent;
    const CRkCoordFormat embedded(&parent);
    QCOMPARE(int(embedded.windowFlags()), 0x40800);
    QCOMPARE(embedded.parentWidget(), &parent);
    const CRkCoordFormat window(nullptr);
    QVERIFY(window.isWindow());
}

void tst_CRkCoordFormat::formLiesInTheContentArea()
{
    const CRkCoordFormat dialog(nullptr);
    const auto* content = dialog.findChild<QGridLayout*>("m_pContainsLayout");
    QCOMPARE(content->count(), 1);
    const QLayout* handedOver = content->itemAtPosition(1, 0)->layout();
    QVERIFY(handedOver);
    QCOMPARE(handedOver->itemAt(0)->widget(), &form(dialog));
}

/// No field is squeezed, whatever the font.
void tst_CRkCoordFormat::formFitsItsContent()
{
    CRkCoordFormat dialog(nullptr);
    QFont font = dialog.font();
    font.setPointSize(font.pointSize() * 2);
    for (const bool isLarge : {false, true}) {
        if (isLarge)
            dialog.setFont(font);
        dialog.show();
        QVERIFY(comesOnScreen(&dialog));
        QTRY_VERIFY(latitude(dialog)->height() >= latitude(dialog)->sizeHint().height());
        QTRY_VERIFY(longitude(dialog)->height() >= longitude(dialog)->sizeHint().height());
        QVERIFY(form(dialog).width() >= 327);
    }
}

void tst_CRkCoordFormat::metaObject()
{
    const QMetaObject& meta = CRkCoordFormat::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkBaseDialog::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
    const QMetaMethod format = meta.method(meta.methodOffset());
    const QMetaMethod accept = meta.method(meta.methodOffset() + 1);
    QCOMPARE(format.methodSignature(), QByteArray("slotFormatTypeChanged(bool)"));
    QCOMPARE(format.access(), QMetaMethod::Private);
    QCOMPARE(accept.methodSignature(), QByteArray("slotBtnAcceptClicked()"));
    for (const QMetaMethod& method : {format, accept})
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
}

void tst_CRkCoordFormat::textsAreOfTheClassContext()
{
    Brackets brackets("CRkCoordFormat");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    CRkCoordFormat dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), '[' + title + ']');
    QCOMPARE(dec(dialog)->text(), QString("[Dec]"));
    QCOMPARE(dms(dialog)->text(), QString("[DMS]"));
    QCOMPARE(part<QLabel>(dialog, "label")->text(), QString("[Latitude:]"));
    QCOMPARE(part<QLabel>(dialog, "label_2")->text(), QString("[Longitude:]"));
    QCOMPARE(placeholders(dialog), QStringList({"00.00000000", "000.00000000"}));
    dms(dialog)->click();
    QCOMPARE(placeholders(dialog), QStringList({"[dd.mmssss]", "[ddd.mmssss]"}));

    const BoxAnswerer answerer;
    okButton(dialog)->click();
    fill(dialog, "91", "0");
    okButton(dialog)->click();
    QCOMPARE(answerer.texts(), QStringList({'[' + missing + ']', '[' + invalid + ']'}));
    QCOMPARE(answerer.boxes.at(0).title, '[' + title + ']');
    QCOMPARE(answerer.boxes.at(1).title, '[' + title + ']');
}

void tst_CRkCoordFormat::validators()
{
    const CRkCoordFormat dialog(nullptr);
    const QDoubleValidator plain;
    for (const QLineEdit* edit : {latitude(dialog), longitude(dialog)}) {
        const auto* validator = qobject_cast<const QDoubleValidator*>(edit->validator());
        QVERIFY(validator);
        QCOMPARE(validator->bottom(), plain.bottom());
        QCOMPARE(validator->top(), plain.top());
        QCOMPARE(validator->decimals(), plain.decimals());
        QCOMPARE(validator->notation(), plain.notation());
        QCOMPARE(validator->locale().language(), QLocale::C);
    }
}

void tst_CRkCoordFormat::typing_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("number") << "30.57281490"
                            << "30.57281490";
    QTest::newRow("negative") << "-39.5"
                              << "-39.5";
    QTest::newRow("out of range") << "1000"
                                  << "1000";
    QTest::newRow("letters") << "39.5N"
                             << "39.5";
    QTest::newRow("decimal comma") << "39,5"
                                   << "395";
    QTest::newRow("group separator") << "1,000"
                                     << "1000";
    QTest::newRow("two points") << "39.30.12"
                                << "39.3012";
}

void tst_CRkCoordFormat::typing()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    const CRkCoordFormat dialog(nullptr);
    for (QLineEdit* edit : {latitude(dialog), longitude(dialog)}) {
        QTest::keyClicks(edit, keys);
        QCOMPARE(edit->text(), text);
    }
}

void tst_CRkCoordFormat::typingInAnotherLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const CRkCoordFormat dialog(nullptr);
    QTest::keyClicks(latitude(dialog), "39.5");
    QTest::keyClicks(longitude(dialog), "116.391234");
    QLocale::setDefault(before);
    QCOMPARE(fields(dialog), QStringList({"39.5", "116.391234"}));
    QVERIFY(latitude(dialog)->hasAcceptableInput());
    QCOMPARE(converted(dialog), QStringList({"39", "30", "0", "116", "23", "28.4424"}));
}

void tst_CRkCoordFormat::tabOrder()
{
    CRkCoordFormat dialog(nullptr);
    // Tab goes to the button of the group that is checked.
    const QStringList expected = {"m_pEdtCoordLat", "m_pEdtCoordLng", "m_pBtnOK",
                                  "m_pBtnCancel",   "m_pBtnClose",    "m_pRdoDec",
                                  "m_pEdtCoordLat"};
    QCOMPARE(tabStops(dialog, expected.size()), expected);
    QVERIFY(okButton(dialog)->isDefault());
}

void tst_CRkCoordFormat::embeddedDialogTakesNoFocus()
{
    QVERIFY(leavesFocusWhenEmbedded<CRkCoordFormat>());
}

void tst_CRkCoordFormat::accessibleNames()
{
    const CRkCoordFormat dialog(nullptr);
    const auto name = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    QCOMPARE(name(latitude(dialog)), QString("Latitude:"));
    QCOMPARE(name(longitude(dialog)), QString("Longitude:"));
}

void tst_CRkCoordFormat::formatChange()
{
    const CRkCoordFormat dialog(nullptr);
    fill(dialog, "39.5", "116.391234");
    dms(dialog)->click();
    QVERIFY(!dec(dialog)->isChecked());
    QCOMPARE(fields(dialog), QStringList({"", ""}));
    QCOMPARE(placeholders(dialog), QStringList({"dd.mmssss", "ddd.mmssss"}));

    fill(dialog, "39.5", "116.391234");
    dec(dialog)->click();
    QVERIFY(!dms(dialog)->isChecked());
    QCOMPARE(fields(dialog), QStringList({"", ""}));
    QCOMPARE(placeholders(dialog), QStringList({"00.00000000", "000.00000000"}));
}

void tst_CRkCoordFormat::formatThatIsSetAlready()
{
    QFETCH(QString, button);
    const CRkCoordFormat dialog(nullptr);
    auto* radioButton = form(dialog).findChild<QRadioButton*>(button);
    radioButton->click();
    fill(dialog, "39.5", "116.391234");
    const QStringList before = placeholders(dialog);
    radioButton->click();
    QCOMPARE(fields(dialog), QStringList({"39.5", "116.391234"}));
    QCOMPARE(placeholders(dialog), before);
}

void tst_CRkCoordFormat::formatSlotWithoutAButton()
{
    QFETCH(QString, button);
    CRkCoordFormat dialog(nullptr);
    form(dialog).findChild<QRadioButton*>(button)->click();
    fill(dialog, "39.5", "116.391234");
    const QStringList before = placeholders(dialog);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "slotFormatTypeChanged", Q_ARG(bool, false)));
    QCOMPARE(fields(dialog), QStringList({"39.5", "116.391234"}));

    QVERIFY(QMetaObject::invokeMethod(&dialog, "slotFormatTypeChanged", Q_ARG(bool, true)));
    QCOMPARE(fields(dialog), QStringList({"", ""}));
    QCOMPARE(placeholders(dialog), before);
    QVERIFY(form(dialog).findChild<QRadioButton*>(button)->isChecked());
    fill(dialog, "39.5", "0");
    QCOMPARE(converted(dialog), QStringList({"39", "30", "0", "0", "0", "0"}));
}

void tst_CRkCoordFormat::conversion_data()
{
    QTest::addColumn<QString>("lat");
    QTest::addColumn<QString>("lng");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("usual") << "39.5"
                           << "116.391234"
                           << QStringList({"39", "30", "0", "116", "23", "28.4424"});
    QTest::newRow("negative") << "-39.5"
                              << "-116.391234"
                              << QStringList({"-39", "-30", "0", "-116", "-23", "-28.4424"});
    QTest::newRow("in the layout of degrees, minutes and seconds")
        << "30.3422"
        << "104.0400" << QStringList({"30", "20", "31.92", "104", "2", "24"});
    QTest::newRow("bounds") << "90"
                            << "-180" << QStringList({"90", "0", "0", "-180", "0", "0"});
    QTest::newRow("out of range") << "91.5"
                                  << "1000.25" << QStringList({"91", "30", "0", "1000", "15", "0"});
    QTest::newRow("no numbers") << "-"
                                << "1e" << QStringList({"0", "0", "0", "0", "0", "0"});
    QTest::newRow("beyond the range of numbers")
        << "1e999"
        << "0" << QStringList({"inf", "nan", "nan", "0", "0", "0"});
}

void tst_CRkCoordFormat::conversion()
{
    QFETCH(QString, lat);
    QFETCH(QString, lng);
    QFETCH(QStringList, expected);
    const CRkCoordFormat dialog(nullptr);
    for (QRadioButton* format : {dec(dialog), dms(dialog)}) {
        format->click();
        fill(dialog, lat, lng);
        QCOMPARE(converted(dialog), expected);
    }
}

void tst_CRkCoordFormat::conversionAppends()
{
    const CRkCoordFormat dialog(nullptr);
    fill(dialog, "39.5", "116.391234");
    QStringList lat = {"lat"};
    QStringList lng = {"lng"};
    dialog.ConvertToDMSCoord(lat, lng);
    QCOMPARE(lat, QStringList({"lat", "39", "30", "0"}));
    QCOMPARE(lng, QStringList({"lng", "116", "23", "28.4424"}));
}

void tst_CRkCoordFormat::conversionOfAnEmptyField_data()
{
    QTest::addColumn<QString>("lat");
    QTest::addColumn<QString>("lng");
    QTest::newRow("latitude") << ""
                              << "116.391234";
    QTest::newRow("longitude") << "39.5"
                               << "";
    QTest::newRow("both") << ""
                          << "";
}

void tst_CRkCoordFormat::conversionOfAnEmptyField()
{
    QFETCH(QString, lat);
    QFETCH(QString, lng);
    const BoxAnswerer answerer;
    const CRkCoordFormat dialog(nullptr);
    for (QRadioButton* format : {dec(dialog), dms(dialog)}) {
        format->click();
        fill(dialog, lat, lng);
        QCOMPARE(converted(dialog), QStringList());
    }
    QCOMPARE(answerer.texts(), QStringList());
}

void tst_CRkCoordFormat::accepts_data()
{
    QTest::addColumn<QString>("lat");
    QTest::addColumn<QString>("lng");
    QTest::newRow("usual") << "39.5"
                           << "116.391234";
    QTest::newRow("upper bounds") << "90"
                                  << "180";
    QTest::newRow("lower bounds") << "-90"
                                  << "-180";
    QTest::newRow("exponents") << "9e1"
                               << "-1.8e2";
    QTest::newRow("no numbers") << "-"
                                << "1e";
}

void tst_CRkCoordFormat::accepts()
{
    QFETCH(QString, lat);
    QFETCH(QString, lng);
    const BoxAnswerer answerer;
    for (const char* format : {"m_pRdoDec", "m_pRdoDms"}) {
        CRkCoordFormat dialog(nullptr);
        const int result = execAnd(dialog, [&] {
            part<QRadioButton>(dialog, format)->click();
            QTest::keyClicks(latitude(dialog), lat);
            QTest::keyClicks(longitude(dialog), lng);
            QTest::keyClick(longitude(dialog), Qt::Key_Return);
        });
        QCOMPARE(result, 1);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(fields(dialog), QStringList({lat, lng}));
    }
    QCOMPARE(answerer.texts(), QStringList());
}

void tst_CRkCoordFormat::refuses_data()
{
    QTest::addColumn<QString>("lat");
    QTest::addColumn<QString>("lng");
    QTest::addColumn<QString>("message");
    QTest::newRow("both missing") << ""
                                  << "" << missing;
    QTest::newRow("latitude missing") << ""
                                      << "116.391234" << missing;
    QTest::newRow("longitude missing") << "39.5"
                                       << "" << missing;
    QTest::newRow("missing before invalid") << "91"
                                            << "" << missing;
    QTest::newRow("latitude too large") << "90.000001"
                                        << "0" << invalid;
    QTest::newRow("latitude too small") << "-90.000001"
                                        << "0" << invalid;
    QTest::newRow("longitude too large") << "0"
                                         << "180.000001" << invalid;
    QTest::newRow("longitude too small") << "0"
                                         << "-180.000001" << invalid;
    QTest::newRow("beyond the range of numbers") << "0"
                                                 << "1e999" << invalid;
    QTest::newRow("pasted not-a-number") << "nan"
                                         << "0" << invalid;
}

void tst_CRkCoordFormat::refuses()
{
    QFETCH(QString, lat);
    QFETCH(QString, lng);
    QFETCH(QString, message);
    for (const char* format : {"m_pRdoDec", "m_pRdoDms"}) {
        const BoxAnswerer answerer;
        CRkCoordFormat dialog(nullptr);
        bool staysOpen = false;
        const int result = execAnd(dialog, [&] {
            part<QRadioButton>(dialog, format)->click();
            fill(dialog, lat, lng);
            okButton(dialog)->click();
            staysOpen = dialog.isVisible();
            dialog.reject();
        });
        QVERIFY(staysOpen);
        QCOMPARE(result, 0);
        QCOMPARE(answerer.texts(), QStringList(message));
        QCOMPARE(fields(dialog), QStringList({lat, lng}));
    }
}

void tst_CRkCoordFormat::boxLook()
{
    const BoxAnswerer answerer;
    const CRkCoordFormat dialog(nullptr);
    okButton(dialog)->click();
    fill(dialog, "91", "0");
    okButton(dialog)->click();
    QCOMPARE(answerer.boxes.size(), 2);
    for (const ShownBox& box : answerer.boxes) {
        QCOMPARE(box.title, title);
        QCOMPARE(box.icon, QPixmap(":/images/Normal/Exclamation_mark.png").toImage());
        QVERIFY(box.isCancelHidden);
        QVERIFY(box.isModalWindow);
    }
}

void tst_CRkCoordFormat::acceptsAfterARefusal()
{
    const BoxAnswerer answerer;
    CRkCoordFormat dialog(nullptr);
    const int result = execAnd(dialog, [&] {
        okButton(dialog)->click();
        fill(dialog, "39.5", "116.391234");
        okButton(dialog)->click();
    });
    QCOMPARE(result, 1);
    QCOMPARE(answerer.texts(), QStringList(missing));
}

void tst_CRkCoordFormat::otherEnds()
{
    const BoxAnswerer answerer;
    CRkCoordFormat dialog(nullptr);
    const auto press = [&dialog](const char* button) {
        return execAnd(dialog, [&] { dialog.findChild<QPushButton*>(button)->click(); });
    };
    QCOMPARE(press("m_pBtnCancel"), 0);
    QCOMPARE(press("m_pBtnClose"), -1);
    QCOMPARE(answerer.texts(), QStringList());
}

QTEST_MAIN(tst_CRkCoordFormat)
#include "tst_CRkCoordFormat.moc"
