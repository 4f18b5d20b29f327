// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkParameterEditPage.h>

#include "support/Brackets.h"
#include "support/WindowWaits.h"
#include "widgets/ExecAnd.h"
#include "widgets/KeyboardFocus.h"

#include <QAccessible>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {

QStringList messages;

void recordMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    messages.append(text);
}

template <typename T>
T* part(const QWidget& dialog, const QString& name)
{
    return dialog.findChild<T*>(name);
}

QLineEdit* edit(const QWidget& page, int number)
{
    return part<QLineEdit>(page, QString("m_pEdtElement%1").arg(number));
}

QLabel* label(const QWidget& page, int number)
{
    return part<QLabel>(page, QString("m_pLblElement%1").arg(number));
}

QWidget* group(const QWidget& page, int number)
{
    return part<QWidget>(page, QString("m_pGroupElement%1").arg(number));
}

QStringList names(const QWidget& page)
{
    QStringList texts;
    for (int number = 1; number <= 4; ++number)
        texts.append(label(page, number)->text());
    return texts;
}

QList<bool> locks(const QWidget& page)
{
    QList<bool> readOnly;
    for (int number = 1; number <= 4; ++number)
        readOnly.append(edit(page, number)->isReadOnly());
    return readOnly;
}

/// The place of the widget in the dialog.
QRect placeIn(const QWidget& dialog, const QWidget& widget)
{
    return {widget.mapTo(&dialog, QPoint(0, 0)), widget.size()};
}

} // namespace

class tst_CRkParameterEditPage : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void flags();
    void formLiesInTheContentArea();
    void textsAreOfTheClassContext();
    void metaObject();
    void styleSheetsPrintNothing();
    void look();
    void buddies();
    void tabOrder_data();
    void tabOrder();
    void embeddedPageTakesNoFocus();
    void accessibleNames();

    void dialogInfo();
    void elementName();
    void element1Value_data();
    void element1Value();
    void element2Value_data();
    void element2Value();
    void elementParas();
    void elementParasOfOtherLengths_data();
    void elementParasOfOtherLengths();
    void valuesAreWhatTheUserTyped();
    void groupHidden_data();
    void groupHidden();
    void hiddenGroupsLeaveNoGap();
    void buttonsVisible_data();
    void buttonsVisible();
    void buttonTexts();
    void exec_data();
    void exec();

    void longNamesWidenThePage();
    void longTexts();
    void markupAndRightToLeftTexts();
};

void tst_CRkParameterEditPage::construction()
{
    const CRkParameterEditPage page;
    QCOMPARE(page.objectName(), QString("CRkBaseDialog"));
    QCOMPARE(page.windowTitle(), QString("Vantrell"));
    QCOMPARE(names(page),
             QStringList({"Parameter 1", "Parameter 2", "Parameter 3", "Parameter 4"}));
    QCOMPARE(page.GetElementValues(), QStringList({"", "", "", ""}));
    QCOMPARE(locks(page), QList<bool>({false, false, false, false}));
    for (int number = 1; number <= 4; ++number) {
        QVERIFY(!group(page, number)->isHidden());
        QVERIFY(group(page, number)->isAncestorOf(label(page, number)));
        QVERIFY(group(page, number)->isAncestorOf(edit(page, number)));
    }
    QVERIFY(!part<QPushButton>(page, "m_pBtnOK")->isHidden());
    QVERIFY(!part<QPushButton>(page, "m_pBtnCancel")->isHidden());
}

void tst_CRkParameterEditPage::flags()
{
    QWidget parent;
    const CRkParameterEditPage embedded(&parent);
    QCOMPARE(int(embedded.windowFlags()), 0x40800);
    QCOMPARE(embedded.parentWidget(), &parent);
    const CRkParameterEditPage window(nullptr);
    QVERIFY(window.isWindow());
}

void tst_CRkParameterEditPage::formLiesInTheContentArea()
{
    const CRkParameterEditPage page;
    const auto* content = part<QGridLayout>(page, "m_pContainsLayout");
    QCOMPARE(content->count(), 1);
    const QLayout* handedOver = content->itemAtPosition(1, 0)->layout();
    QVERIFY(handedOver);
    const QWidget* form = handedOver->itemAt(0)->widget();
    QCOMPARE(form->objectName(), QString("CRkParameterEditPage"));
    QCOMPARE(form->parentWidget()->objectName(), QString("widget"));
    for (int number = 1; number <= 4; ++number)
        QCOMPARE(group(page, number)->parentWidget(), form);
}

void tst_CRkParameterEditPage::textsAreOfTheClassContext()
{
    Brackets brackets("CRkParameterEditPage");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    const CRkParameterEditPage page;
    QCOMPARE(names(page),
             QStringList({"[Parameter 1]", "[Parameter 2]", "[Parameter 3]", "[Parameter 4]"}));
}

void tst_CRkParameterEditPage::metaObject()
{
    const QMetaObject& meta = CRkParameterEditPage::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkBaseDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_CRkParameterEditPage::styleSheetsPrintNothing()
{
    messages.clear();
    const QtMessageHandler before = qInstallMessageHandler(recordMessage);
    CRkParameterEditPage page;
    page.SetElement1Value("locked", true);
    page.grab();
    qInstallMessageHandler(before);
    QVERIFY2(messages.isEmpty(), qPrintable(messages.join('\n')));
}

/// Labels stand above their fields, all in one column with room around it.
void tst_CRkParameterEditPage::look()
{
    CRkParameterEditPage page;
    page.show();
    QVERIFY(comesOnScreen(&page));
    const QRect content = placeIn(page, *part<QWidget>(page, "widget"));
    const QRect first = placeIn(page, *edit(page, 1));
    QVERIFY(first.width() >= 300);
    QVERIFY(first.left() >= content.left() + 16);
    QVERIFY(first.right() <= content.right() - 16);
    int above = content.top() + 12;
    for (int number = 1; number <= 4; ++number) {
        const QRect name = placeIn(page, *label(page, number));
        const QRect field = placeIn(page, *edit(page, number));
        QCOMPARE(name.left(), first.left());
        QCOMPARE(field.left(), first.left());
        QCOMPARE(field.size(), first.size());
        QVERIFY(name.top() >= above);
        QVERIFY(field.top() > name.bottom());
        QVERIFY(name.height() >= label(page, number)->fontMetrics().height());
        above = field.bottom() + 8;
    }
    QVERIFY(above <= content.bottom());

    // A locked field shows it.
    edit(page, 4)->setFocus();
    const auto ground = [&page](int number) {
        return page.grab().toImage().pixelColor(placeIn(page, *edit(page, number)).center());
    };
    QCOMPARE(ground(1), QColor(Qt::white));
    page.SetElement1Value(QString(), true);
    QCOMPARE(ground(1), QColor(232, 237, 246));
    page.SetElement1Value(QString(), false);
    QCOMPARE(ground(1), QColor(Qt::white));

    // Room that is left over goes below the fields.
    const QRect before = placeIn(page, *edit(page, 4));
    page.resize(page.width(), page.height() + 200);
    QTRY_COMPARE(part<QWidget>(page, "widget")->height(), content.height() + 200);
    QCOMPARE(placeIn(page, *edit(page, 4)), before);
}

void tst_CRkParameterEditPage::buddies()
{
    CRkParameterEditPage page;
    for (int number = 1; number <= 4; ++number)
        QCOMPARE(label(page, number)->buddy(), edit(page, number));

    page.SetElementName("&Length", "&Width");
    page.show();
    QApplication::setActiveWindow(&page);
    QTRY_VERIFY(page.isActiveWindow());
    QTest::keyClick(&page, Qt::Key_W, Qt::AltModifier);
    QVERIFY(edit(page, 2)->hasFocus());
    QTest::keyClick(&page, Qt::Key_L, Qt::AltModifier);
    QVERIFY(edit(page, 1)->hasFocus());
}

void tst_CRkParameterEditPage::tabOrder_data()
{
    QTest::addColumn<int>("hidden"); // bit i for element i + 1
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("all") << 0
                         << QStringList({"m_pEdtElement1", "m_pEdtElement2", "m_pEdtElement3",
                                         "m_pEdtElement4"});
    QTest::newRow("second hidden")
        << 2 << QStringList({"m_pEdtElement1", "m_pEdtElement3", "m_pEdtElement4"});
    QTest::newRow("first hidden") << 1
                                  << QStringList(
                                         {"m_pEdtElement2", "m_pEdtElement3", "m_pEdtElement4"});
    QTest::newRow("last alone") << 7 << QStringList({"m_pEdtElement4"});
}

void tst_CRkParameterEditPage::tabOrder()
{
    QFETCH(int, hidden);
    QFETCH(QStringList, fields);
    CRkParameterEditPage page;
    page.SetGroupHidden(hidden & 1, hidden & 2, hidden & 4, hidden & 8);
    const QStringList expected =
        fields + QStringList({"m_pBtnOK", "m_pBtnCancel", "m_pBtnClose", fields.first()});
    QCOMPARE(tabStops(page, expected.size()), expected);
    QVERIFY(part<QPushButton>(page, "m_pBtnOK")->isDefault());
}

void tst_CRkParameterEditPage::embeddedPageTakesNoFocus()
{
    QVERIFY(leavesFocusWhenEmbedded<CRkParameterEditPage>());
}

void tst_CRkParameterEditPage::accessibleNames()
{
    CRkParameterEditPage page;
    const auto nameOf = [&page](int number) {
        return QAccessible::queryAccessibleInterface(edit(page, number))->text(QAccessible::Name);
    };
    QCOMPARE(nameOf(3), QString("Parameter 3"));
    page.SetElementParas({"Base", "H&eight", "c", "d"}, {}, {});
    QCOMPARE(nameOf(1), QString("Base"));
    QCOMPARE(nameOf(2), QString("Height"));
}

void tst_CRkParameterEditPage::dialogInfo()
{
    CRkParameterEditPage page;
    page.SetDialogInfo("Marker point");
    QCOMPARE(page.windowTitle(), QString("Marker point"));
    QCOMPARE(part<QLabel>(page, "m_pLalTitle")->text(), QString("Marker point"));
}

void tst_CRkParameterEditPage::elementName()
{
    CRkParameterEditPage page;
    page.SetElementName("Length", "Width");
    QCOMPARE(names(page), QStringList({"Length", "Width", "Parameter 3", "Parameter 4"}));
    QCOMPARE(page.GetElementValues(), QStringList({"", "", "", ""}));
}

void tst_CRkParameterEditPage::element1Value_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("editable") << "12.5 m" << false;
    QTest::newRow("locked") << "12.5 m" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("spaces") << "  12  " << false;
    QTest::newRow("Chinese") << QString::fromUtf8("成都") << true;
}

void tst_CRkParameterEditPage::element1Value()
{
    QFETCH(QString, value);
    QFETCH(bool, readOnly);
    CRkParameterEditPage page;
    page.SetElement1Value("before", !readOnly);
    page.SetElement1Value(value, readOnly);
    QCOMPARE(page.GetElement1Value(), value);
    QCOMPARE(page.GetElement2Value(), QString());
    QCOMPARE(page.GetElementValues(), QStringList({value, "", "", ""}));
    QCOMPARE(locks(page), QList<bool>({readOnly, false, false, false}));
}

void tst_CRkParameterEditPage::element2Value_data()
{
    element1Value_data();
}

void tst_CRkParameterEditPage::element2Value()
{
    QFETCH(QString, value);
    QFETCH(bool, readOnly);
    CRkParameterEditPage page;
    page.SetElement2Value("before", !readOnly);
    page.SetElement2Value(value, readOnly);
    QCOMPARE(page.GetElement2Value(), value);
    QCOMPARE(page.GetElement1Value(), QString());
    QCOMPARE(page.GetElementValues(), QStringList({"", value, "", ""}));
    QCOMPARE(locks(page), QList<bool>({false, readOnly, false, false}));
}

void tst_CRkParameterEditPage::elementParas()
{
    CRkParameterEditPage page;
    page.SetElementParas({"a", "b", "c", "d"}, {"1", "2", "3", "4"}, {true, false, false, true});
    QCOMPARE(names(page), QStringList({"a", "b", "c", "d"}));
    QCOMPARE(page.GetElementValues(), QStringList({"1", "2", "3", "4"}));
    QCOMPARE(page.GetElement1Value(), QString("1"));
    QCOMPARE(page.GetElement2Value(), QString("2"));
    QCOMPARE(locks(page), QList<bool>({true, false, false, true}));
    page.SetElementParas({"a", "b", "c", "d"}, {"1", "2", "3", "4"}, {false, true, true, false});
    QCOMPARE(locks(page), QList<bool>({false, true, true, false}));
}

void tst_CRkParameterEditPage::elementParasOfOtherLengths_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QList<bool>>("givenLocks");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QList<bool>>("expectedLocks");
    QTest::newRow("none") << QStringList() << QList<bool>() << QStringList({"", "", "", ""})
                          << QList<bool>({false, false, false, false});
    QTest::newRow("two") << QStringList({"a", "b"}) << QList<bool>({true, true})
                         << QStringList({"a", "b", "", ""})
                         << QList<bool>({true, true, false, false});
    QTest::newRow("fewer locks") << QStringList({"a", "b", "c", "d"}) << QList<bool>({true})
                                 << QStringList({"a", "b", "c", "d"})
                                 << QList<bool>({true, false, false, false});
    QTest::newRow("fewer texts") << QStringList({"a"}) << QList<bool>({false, true, true, true})
                                 << QStringList({"a", "", "", ""})
                                 << QList<bool>({false, true, true, true});
    QTest::newRow("five") << QStringList({"a", "b", "c", "d", "e"})
                          << QList<bool>({true, true, true, true, true})
                          << QStringList({"a", "b", "c", "d"})
                          << QList<bool>({true, true, true, true});
}

void tst_CRkParameterEditPage::elementParasOfOtherLengths()
{
    QFETCH(QStringList, given);
    QFETCH(QList<bool>, givenLocks);
    QFETCH(QStringList, expected);
    QFETCH(QList<bool>, expectedLocks);
    CRkParameterEditPage page;
    page.SetElementParas({"w", "x", "y", "z"}, {"6", "7", "8", "9"}, {true, true, true, true});
    page.SetElementParas(given, given, givenLocks);
    QCOMPARE(names(page), expected);
    QCOMPARE(page.GetElementValues(), expected);
    QCOMPARE(locks(page), expectedLocks);
}

void tst_CRkParameterEditPage::valuesAreWhatTheUserTyped()
{
    CRkParameterEditPage page;
    page.SetElementParas({"a", "b", "c", "d"}, {"1", "2", "3", "4"}, {false, true, false, true});
    page.show();
    for (int number = 1; number <= 4; ++number) {
        QTest::keyClick(edit(page, number), Qt::Key_End);
        QTest::keyClicks(edit(page, number), "0");
    }
    QCOMPARE(page.GetElementValues(), QStringList({"10", "2", "30", "4"}));
}

void tst_CRkParameterEditPage::groupHidden_data()
{
    QTest::addColumn<int>("hidden"); // bit i for element i + 1
    for (int hidden = 0; hidden < 16; ++hidden)
        QTest::addRow("%d%d%d%d", hidden & 1, hidden >> 1 & 1, hidden >> 2 & 1, hidden >> 3 & 1)
            << hidden;
}

void tst_CRkParameterEditPage::groupHidden()
{
    QFETCH(int, hidden);
    CRkParameterEditPage page;
    page.show();
    page.SetElementParas({}, {"1", "2", "3", "4"}, {});
    page.SetGroupHidden(hidden & 1, hidden & 2, hidden & 4, hidden & 8);
    for (int number = 1; number <= 4; ++number) {
        const bool shown = !(hidden >> (number - 1) & 1);
        QCOMPARE(group(page, number)->isVisible(), shown);
        QCOMPARE(label(page, number)->isVisible(), shown);
        QCOMPARE(edit(page, number)->isVisible(), shown);
    }
    QCOMPARE(page.GetElementValues(), QStringList({"1", "2", "3", "4"}));
    page.SetGroupHidden(false, false, false, false);
    for (int number = 1; number <= 4; ++number)
        QVERIFY(edit(page, number)->isVisible());
}

void tst_CRkParameterEditPage::hiddenGroupsLeaveNoGap()
{
    CRkParameterEditPage page;
    page.show();
    const QRect first = placeIn(page, *group(page, 1));
    page.SetGroupHidden(true, true, false, true);
    QTRY_COMPARE(placeIn(page, *group(page, 3)), first);

    CRkParameterEditPage small;
    small.SetGroupHidden(false, true, true, true);
    small.show();
    QVERIFY(small.height() < page.height() - 2 * first.height());
}

void tst_CRkParameterEditPage::buttonsVisible_data()
{
    QTest::addColumn<bool>("ok");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("both") << true << true;
    QTest::newRow("OK") << true << false;
    QTest::newRow("Cancel") << false << true;
    QTest::newRow("none") << false << false;
}

void tst_CRkParameterEditPage::buttonsVisible()
{
    QFETCH(bool, ok);
    QFETCH(bool, cancel);
    CRkParameterEditPage page;
    page.show();
    page.SetOKCancelBtnVisible(ok, cancel);
    QCOMPARE(part<QPushButton>(page, "m_pBtnOK")->isVisible(), ok);
    QCOMPARE(part<QPushButton>(page, "m_pBtnCancel")->isVisible(), cancel);
    QVERIFY(part<QPushButton>(page, "m_pBtnClose")->isVisible());
    page.SetOKCancelBtnVisible(true, true);
    QVERIFY(part<QPushButton>(page, "m_pBtnOK")->isVisible());
    QVERIFY(part<QPushButton>(page, "m_pBtnCancel")->isVisible());

    // The close button stays as it was set.
    page.SetBtnHidden(false, false, true);
    page.SetOKCancelBtnVisible(ok, cancel);
    QVERIFY(!part<QPushButton>(page, "m_pBtnClose")->isVisible());
}

void tst_CRkParameterEditPage::buttonTexts()
{
    CRkParameterEditPage page;
    page.SetBtnOKText("Apply");
    page.SetBtnCancelText("Back");
    QCOMPARE(part<QPushButton>(page, "m_pBtnOK")->text(), QString("Apply"));
    QCOMPARE(part<QPushButton>(page, "m_pBtnCancel")->text(), QString("Back"));
}

void tst_CRkParameterEditPage::exec_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "m_pBtnOK" << 1;
    QTest::newRow("Cancel") << "m_pBtnCancel" << 0;
    QTest::newRow("close") << "m_pBtnClose" << -1;
}

void tst_CRkParameterEditPage::exec()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    CRkParameterEditPage page;
    bool modal = false;
    const int returned = execAnd(page, [&page, &modal, &button] {
        modal = page.isModal();
        QTest::keyClicks(edit(page, 1), "120");
        part<QPushButton>(page, button)->click();
    });
    QCOMPARE(returned, result);
    QVERIFY(modal);
    QCOMPARE(page.GetElement1Value(), QString("120"));

    const int afterEnter =
        execAnd(page, [&page] { QTest::keyClick(edit(page, 1), Qt::Key_Return); });
    QCOMPARE(afterEnter, 1);
}

void tst_CRkParameterEditPage::longNamesWidenThePage()
{
    CRkParameterEditPage page;
    page.SetElementName("Height above the ellipsoid, at the foot of the pillar (m)", "Width");
    page.show();
    const QLabel* name = label(page, 1);
    QVERIFY(name->width() >= name->fontMetrics().horizontalAdvance(name->text()));
    QVERIFY(name->height() >= name->fontMetrics().height());
    QVERIFY(edit(page, 1)->width() >= name->width());
    QCOMPARE(edit(page, 4)->width(), edit(page, 1)->width());

    // On a wide page the names stay with their fields.
    page.resize(900, page.height());
    QTRY_VERIFY(edit(page, 1)->width() > 700);
    QCOMPARE(placeIn(page, *name).left(), placeIn(page, *edit(page, 1)).left());
}

void tst_CRkParameterEditPage::longTexts()
{
    for (const QString& text : {QString(100000, 'm'), QString("mm mm ").repeated(16667),
                                QString(100000, QChar(0x57ce)), QString("m\n").repeated(50000)}) {
        CRkParameterEditPage page;
        page.SetElementParas({text, text, text, text}, {text, text, text, text}, {});
        QCOMPARE(page.GetElementValues(), QStringList({text, text, text, text}));
        QCOMPARE(names(page), QStringList({text, text, text, text}));
        page.show();
        QVERIFY(comesOnScreen(&page));
        QVERIFY2(page.width() < 560 && page.height() < 640,
                 qPrintable(QString("%1 x %2").arg(page.width()).arg(page.height())));
        QVERIFY(!page.grab().isNull());
    }
    CRkParameterEditPage page;
    page.SetElement1Value(QString(100000, 'm'), true);
    QCOMPARE(page.GetElement1Value().size(), 100000);
}

void tst_CRkParameterEditPage::markupAndRightToLeftTexts()
{
    CRkParameterEditPage page;
    const QString hebrew = QString::fromUtf8("גובה");
    page.SetElementName("<b>a</b>", hebrew);
    QCOMPARE(label(page, 1)->textFormat(), Qt::PlainText);
    page.SetElement1Value("<b>1</b>", false);
    page.SetElement2Value(hebrew, false);
    QCOMPARE(page.GetElementValues(), QStringList({"<b>1</b>", hebrew, "", ""}));
    QVERIFY(!page.grab().isNull());
}

QTEST_MAIN(tst_CRkParameterEditPage)
#include "tst_CRkParameterEditPage.moc"
