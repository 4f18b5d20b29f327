// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkVerHighCalculator.h>

#include "support/BoxAnswerer.h"
#include "support/Brackets.h"
#include "support/WindowWaits.h"
#include "widgets/AtScale.h"
#include "widgets/ExecAnd.h"
#include "widgets/KeyboardFocus.h"
#include "widgets/Render.h"

#include <QAccessible>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPainter>

#include <limits>

namespace {

const QString title = QStringLiteral("Vertical Hight Calculator");
const QString pictureFile = QStringLiteral(":/images/Normal/GNSS_plumb_PIC_1");
const QString incomplete = QStringLiteral("Please input all base station parameter.");
const QString invalid = QStringLiteral("Invalid value, please check base station parameter.");

/// The part of the form, which has names of the frame's parts a second time.
template <typename T>
T* part(const QWidget& dialog, const QString& name)
{
    return dialog.findChild<QWidget*>("CRkVerHighCalculator")->findChild<T*>(name);
}

/// The field of P, G or L.
QLineEdit* edit(const QWidget& dialog, const char* symbol)
{
    return part<QLineEdit>(dialog, QString("m_pEdt%1_Value2").arg(symbol));
}

QPushButton* okButton(const QWidget& dialog)
{
    return dialog.findChild<QPushButton*>("m_pBtnOK");
}

void fill(const QWidget& dialog, const QString& p, const QString& g, const QString& l)
{
    edit(dialog, "P")->setText(p);
    edit(dialog, "G")->setText(g);
    edit(dialog, "L")->setText(l);
}

} // namespace

class tst_CRkVerHighCalculator : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void flags();
    void form();
    void grid();
    void metaObject();
    void textsAreOfTheClassContext();
    void validators_data() { addFields(); }
    void validators();
    void typing_data();
    void typing();
    void typingInAnotherLocale();
    void pictureIsSharpAtEveryScale_data() { addScales(); }
    void pictureIsSharpAtEveryScale();
    void tabOrder();
    void embeddedDialogTakesNoFocus();
    void accessibleNames();

    void height_data();
    void height();
    void heightOfAnEmptyField_data();
    void heightOfAnEmptyField();
    void boxLook();

    void accepts_data();
    void accepts();
    void refuses_data();
    void refuses();
    void acceptsAfterARefusal();
    void otherEnds();

private:
    static void addFields();
};

void tst_CRkVerHighCalculator::addFields()
{
    QTest::addColumn<QByteArray>("symbol");
    for (const char* symbol : {"P", "L", "G"})
        QTest::newRow(symbol) << QByteArray(symbol);
}

void tst_CRkVerHighCalculator::construction()
{
    const CRkVerHighCalculator dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("CRkBaseDialog"));
    QCOMPARE(dialog.windowTitle(), title);
    QCOMPARE(dialog.findChild<QLabel*>("m_pLalTitle")->text(), title);
    QCOMPARE(edit(dialog, "P")->text(), QString("0.0942"));
    QCOMPARE(edit(dialog, "G")->text(), QString("0.3"));
    QCOMPARE(edit(dialog, "L")->text(), QString());
    for (const char* button : {"m_pBtnOK", "m_pBtnCancel", "m_pBtnClose"})
        QVERIFY(!dialog.findChild<QWidget*>(button)->isHidden());
}

void tst_CRkVerHighCalculator::flags()
{
    QWidget parent;
    const CRkVerHighCalculator embedded(&parent);
    QCOMPARE(int(embedded.windowFlags()), 0x40800);
    QCOMPARE(embedded.parentWidget(), &parent);
    const CRkVerHighCalculator window(nullptr);
    QVERIFY(window.isWindow());
}

void tst_CRkVerHighCalculator::form()
{
    const CRkVerHighCalculator dialog(nullptr);
    const auto* content = dialog.findChild<QGridLayout*>("m_pContainsLayout");
    QCOMPARE(content->count(), 1);
    const QLayout* handedOver = content->itemAtPosition(1, 0)->layout();
    QVERIFY(handedOver);
    QCOMPARE(handedOver->itemAt(0)->widget(), dialog.findChild<QWidget*>("CRkVerHighCalculator"));

    const auto* picture = part<QLabel>(dialog, "label_22");
    QCOMPARE(picture->minimumSize(), QSize(141, 186));
    QCOMPARE(picture->styleSheet(), QString("image: url(:/images/Normal/GNSS_plumb_PIC_1.png);"));
    QCOMPARE(picture->text(), QString());
}

void tst_CRkVerHighCalculator::grid()
{
    const CRkVerHighCalculator dialog(nullptr);
    const QWidget* form = dialog.findChild<QWidget*>("CRkVerHighCalculator");
    const auto* grid = qobject_cast<QGridLayout*>(form->layout());
    QVERIFY(grid);
    for (int row = 0; row <= 4; ++row)
        QCOMPARE(grid->itemAtPosition(row, 0)->widget(), part<QWidget>(dialog, "label_22"));
    QCOMPARE(grid->rowCount(), 5);
    int row = 1;
    for (const char* symbol : {"P", "G", "L"}) {
        const auto* name = qobject_cast<QLabel*>(grid->itemAtPosition(row, 1)->widget());
        const auto* unit = qobject_cast<QLabel*>(grid->itemAtPosition(row, 3)->widget());
        QCOMPARE(name->text(), QString(symbol));
        QCOMPARE(name->buddy(), edit(dialog, symbol));
        QCOMPARE(grid->itemAtPosition(row, 2)->widget(), edit(dialog, symbol));
        QCOMPARE(unit->text(), QString("m"));
        ++row;
    }
}

void tst_CRkVerHighCalculator::metaObject()
{
    const QMetaObject& meta = CRkVerHighCalculator::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkBaseDialog::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("slotBtnAcceptClicked()"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
}

/// The symbols, the unit and the numbers are the same in every language.
void tst_CRkVerHighCalculator::textsAreOfTheClassContext()
{
    Brackets brackets("CRkVerHighCalculator");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    CRkVerHighCalculator dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), '[' + title + ']');
    QStringList labels;
    for (const QLabel* label :
         dialog.findChild<QWidget*>("CRkVerHighCalculator")->findChildren<QLabel*>())
        labels.append(label->text());
    QCOMPARE(labels.filter("[").size(), 0);
    QCOMPARE(edit(dialog, "P")->text(), QString("0.0942"));
    QCOMPARE(edit(dialog, "G")->text(), QString("0.3"));
    QCOMPARE(edit(dialog, "L")->accessibleName(),
             QString("[Slant height L from the mark to the edge of the antenna, in metres]"));

    const BoxAnswerer answerer;
    okButton(dialog)->click();
    QCOMPARE(answerer.texts(), QStringList({'[' + incomplete + ']', '[' + invalid + ']'}));
    QCOMPARE(answerer.boxes.at(0).title, '[' + title + ']');
    QCOMPARE(answerer.boxes.at(1).title, '[' + title + ']');
}

void tst_CRkVerHighCalculator::validators()
{
    QFETCH(QByteArray, symbol);
    const CRkVerHighCalculator dialog(nullptr);
    const auto* validator =
        qobject_cast<const QDoubleValidator*>(edit(dialog, symbol)->validator());
    QVERIFY(validator);
    const QDoubleValidator plain;
    QCOMPARE(validator->bottom(), plain.bottom());
    QCOMPARE(validator->top(), plain.top());
    QCOMPARE(validator->decimals(), plain.decimals());
    QCOMPARE(validator->notation(), plain.notation());
    QCOMPARE(validator->locale().language(), QLocale::C);
}

void tst_CRkVerHighCalculator::typing_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("number") << "1.482"
                            << "1.482";
    QTest::newRow("negative") << "-1.5"
                              << "-1.5";
    QTest::newRow("exponent") << "15e-1"
                              << "15e-1";
    QTest::newRow("letters") << "1x.y5z"
                             << "1.5";
    QTest::newRow("decimal comma") << "1,5"
                                   << "15";
    QTest::newRow("group separator") << "1,000"
                                     << "1000";
    QTest::newRow("spaces") << " 1 5 "
                            << "15";
    QTest::newRow("words") << "nan"
                           << "";
}

void tst_CRkVerHighCalculator::typing()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    const CRkVerHighCalculator dialog(nullptr);
    for (const char* symbol : {"P", "G", "L"}) {
        edit(dialog, symbol)->clear();
        QTest::keyClicks(edit(dialog, symbol), keys);
        QCOMPARE(edit(dialog, symbol)->text(), text);
    }
}

void tst_CRkVerHighCalculator::typingInAnotherLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    CRkVerHighCalculator dialog(nullptr);
    QTest::keyClicks(edit(dialog, "L"), "1.0");
    QLocale::setDefault(before);
    QCOMPARE(edit(dialog, "L")->text(), QString("1.0"));
    QVERIFY(edit(dialog, "L")->hasAcceptableInput());
    QCOMPARE(dialog.GetVerticalHeight(), 1.3857139675140382);
}

void tst_CRkVerHighCalculator::pictureIsSharpAtEveryScale()
{
    QFETCH(int, scale);
    if (!isAtScale(scale))
        return;
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    CRkVerHighCalculator dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    auto* label = part<QLabel>(dialog, "label_22");
    QCOMPARE(label->size(), QSize(141, 186));

    const QImage picture(pictureFile + (scale == 2 ? "@2x.png" : ".png"));
    QCOMPARE(picture.size(), label->size() * scale);
    QImage expected(picture.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::white);
    QPainter(&expected).drawImage(expected.rect(), picture);
    QVERIFY(alike(rendered(*label, scale), expected));
}

void tst_CRkVerHighCalculator::tabOrder()
{
    CRkVerHighCalculator dialog(nullptr);
    const QStringList expected = {"m_pEdtL_Value2", "m_pBtnOK",       "m_pBtnCancel",
                                  "m_pBtnClose",    "m_pEdtP_Value2", "m_pEdtG_Value2",
                                  "m_pEdtL_Value2"};
    QCOMPARE(tabStops(dialog, expected.size()), expected);
    QVERIFY(okButton(dialog)->isDefault());
}

void tst_CRkVerHighCalculator::embeddedDialogTakesNoFocus()
{
    QVERIFY(leavesFocusWhenEmbedded<CRkVerHighCalculator>());
}

void tst_CRkVerHighCalculator::accessibleNames()
{
    const CRkVerHighCalculator dialog(nullptr);
    const auto text = [](QWidget* widget, QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(widget)->text(kind);
    };
    for (const char* symbol : {"P", "G"}) {
        QCOMPARE(text(edit(dialog, symbol), QAccessible::Name),
                 QString("Vertical offset %1, in metres").arg(symbol));
    }
    const QString slantHeight =
        QStringLiteral("Slant height L from the mark to the edge of the antenna, in metres");
    QCOMPARE(text(edit(dialog, "L"), QAccessible::Name), slantHeight);
    QCOMPARE(edit(dialog, "L")->toolTip(), slantHeight);
    auto* picture = part<QLabel>(dialog, "label_22");
    QVERIFY(text(picture, QAccessible::Name).startsWith("Antenna on a tripod"));
    QCOMPARE(text(picture, QAccessible::Description),
             QString::fromUtf8("H = √(L² − 0.13²) + G + P"));
}

void tst_CRkVerHighCalculator::height_data()
{
    QTest::addColumn<QString>("p");
    QTest::addColumn<QString>("g");
    QTest::addColumn<QString>("l");
    QTest::addColumn<double>("expected");
    QTest::newRow("one metre") << "0.0942"
                               << "0.3"
                               << "1.0" << 1.3857139675140382;
    QTest::newRow("the radius") << "0.0942"
                                << "0.3"
                                << "0.13" << 0.3942;
    QTest::newRow("negative") << "0.0942"
                              << "0.3"
                              << "-1.0" << 1.3857139675140382;
    QTest::newRow("exponent") << "0"
                              << "0"
                              << "10e-1" << 0x1.fba7b8p-1;
    QTest::newRow("too short") << "0.0942"
                               << "0.3"
                               << "0.1" << -9999.0;
    QTest::newRow("negative and too short") << "0.0942"
                                            << "0.3"
                                            << "-0.1" << -9999.0;
    QTest::newRow("slant height is no number") << "0.0942"
                                               << "0.3"
                                               << "-" << -9999.0;
    QTest::newRow("offset P is no number") << "."
                                           << "0.3"
                                           << "0.13" << 0.3;
    QTest::newRow("offset G is no number") << "0.0942"
                                           << "1e"
                                           << "0.13" << 0.0942;
    QTest::newRow("beyond the range of numbers")
        << "0.0942"
        << "0.3"
        << "1e999" << std::numeric_limits<double>::infinity();
    QTest::newRow("pasted text of no number") << "0.0942"
                                              << "0.3"
                                              << "one" << -9999.0;
}

void tst_CRkVerHighCalculator::height()
{
    QFETCH(QString, p);
    QFETCH(QString, g);
    QFETCH(QString, l);
    QFETCH(double, expected);
    const BoxAnswerer answerer;
    CRkVerHighCalculator dialog(nullptr);
    fill(dialog, p, g, l);
    const double height = dialog.GetVerticalHeight();
    QVERIFY2(height == expected, qPrintable(QString::number(height, 'g', 17)));
    QCOMPARE(answerer.texts(), QStringList());
}

void tst_CRkVerHighCalculator::heightOfAnEmptyField_data()
{
    QTest::addColumn<QString>("p");
    QTest::addColumn<QString>("g");
    QTest::addColumn<QString>("l");
    QTest::newRow("P") << ""
                       << "0.3"
                       << "1.0";
    QTest::newRow("G") << "0.0942"
                       << ""
                       << "1.0";
    QTest::newRow("L") << "0.0942"
                       << "0.3"
                       << "";
    QTest::newRow("all") << ""
                         << ""
                         << "";
}

void tst_CRkVerHighCalculator::heightOfAnEmptyField()
{
    QFETCH(QString, p);
    QFETCH(QString, g);
    QFETCH(QString, l);
    const BoxAnswerer answerer;
    CRkVerHighCalculator dialog(nullptr);
    fill(dialog, p, g, l);
    QCOMPARE(dialog.GetVerticalHeight(), -9999.0);
    QCOMPARE(answerer.texts(), QStringList(incomplete));
}

void tst_CRkVerHighCalculator::boxLook()
{
    const BoxAnswerer answerer;
    const CRkVerHighCalculator dialog(nullptr);
    okButton(dialog)->click();
    QCOMPARE(answerer.boxes.size(), 2);
    for (const ShownBox& box : answerer.boxes) {
        QCOMPARE(box.title, title);
        QCOMPARE(box.icon, QPixmap(":/images/Normal/Exclamation_mark.png").toImage());
        QVERIFY(box.isCancelHidden);
        QVERIFY(box.isModalWindow);
    }
}

void tst_CRkVerHighCalculator::accepts_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<double>("expected");
    QTest::newRow("one metre") << "1.0" << 1.3857139675140382;
    QTest::newRow("the radius") << "0.13" << 0.3942;
    QTest::newRow("negative") << "-1.0" << 1.3857139675140382;
}

void tst_CRkVerHighCalculator::accepts()
{
    QFETCH(QString, keys);
    QFETCH(double, expected);
    const BoxAnswerer answerer;
    for (const bool byKeyboard : {false, true}) {
        CRkVerHighCalculator dialog(nullptr);
        const int result = execAnd(dialog, [&] {
            QTest::keyClicks(edit(dialog, "L"), keys);
            if (byKeyboard)
                QTest::keyClick(edit(dialog, "L"), Qt::Key_Return);
            else
                okButton(dialog)->click();
        });
        QCOMPARE(result, 1);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(dialog.GetVerticalHeight() == expected);
    }
    QCOMPARE(answerer.texts(), QStringList());
}

void tst_CRkVerHighCalculator::refuses_data()
{
    QTest::addColumn<QString>("p");
    QTest::addColumn<QString>("g");
    QTest::addColumn<QString>("l");
    QTest::addColumn<QStringList>("messages");
    const QStringList both = {incomplete, invalid};
    QTest::newRow("P is empty") << ""
                                << "0.3"
                                << "1.0" << both;
    QTest::newRow("G is empty") << "0.0942"
                                << ""
                                << "1.0" << both;
    QTest::newRow("L is empty") << "0.0942"
                                << "0.3"
                                << "" << both;
    QTest::newRow("too short") << "0.0942"
                               << "0.3"
                               << "0.1" << QStringList(invalid);
    QTest::newRow("unfinished number") << "0.0942"
                                       << "0.3"
                                       << "-." << QStringList(invalid);
    QTest::newRow("the very number of no height") << "-9999"
                                                  << "0"
                                                  << "0.13" << QStringList(invalid);
}

void tst_CRkVerHighCalculator::refuses()
{
    QFETCH(QString, p);
    QFETCH(QString, g);
    QFETCH(QString, l);
    QFETCH(QStringList, messages);
    const BoxAnswerer answerer;
    CRkVerHighCalculator dialog(nullptr);
    bool staysOpen = false;
    const int result = execAnd(dialog, [&] {
        fill(dialog, p, g, l);
        okButton(dialog)->click();
        staysOpen = dialog.isVisible();
        dialog.reject();
    });
    QVERIFY(staysOpen);
    QCOMPARE(result, 0);
    QCOMPARE(answerer.texts(), messages);
    QCOMPARE(edit(dialog, "P")->text(), p);
    QCOMPARE(edit(dialog, "G")->text(), g);
    QCOMPARE(edit(dialog, "L")->text(), l);
}

void tst_CRkVerHighCalculator::acceptsAfterARefusal()
{
    const BoxAnswerer answerer;
    CRkVerHighCalculator dialog(nullptr);
    const int result = execAnd(dialog, [&] {
        okButton(dialog)->click();
        QTest::keyClicks(edit(dialog, "L"), "1.0");
        okButton(dialog)->click();
    });
    QCOMPARE(result, 1);
    QCOMPARE(answerer.boxes.size(), 2);
}

void tst_CRkVerHighCalculator::otherEnds()
{
    const BoxAnswerer answerer;
    CRkVerHighCalculator dialog(nullptr);
    const auto press = [&dialog](const char* button) {
        return execAnd(dialog, [&] { dialog.findChild<QPushButton*>(button)->click(); });
    };
    QCOMPARE(press("m_pBtnCancel"), 0);
    QCOMPARE(press("m_pBtnClose"), -1);
    QCOMPARE(answerer.texts(), QStringList());
}

QTEST_MAIN(tst_CRkVerHighCalculator)
#include "tst_CRkVerHighCalculator.moc"
