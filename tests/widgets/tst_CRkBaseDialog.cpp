// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseDialog.h>

#include "support/Brackets.h"
#include "widgets/ExecAnd.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

/// A derived dialog: sees what derived dialogs see and notes which handlers the buttons reach.
class Dialog : public CRkBaseDialog
{
public:
    using CRkBaseDialog::CRkBaseDialog;

    using CRkBaseDialog::cancelButton;
    using CRkBaseDialog::closeButton;
    using CRkBaseDialog::execResult;
    using CRkBaseDialog::okButton;
    using CRkBaseDialog::setExecResult;
    using CRkBaseDialog::titleBar;
    using CRkBaseDialog::titleLabel;

    void slotCloseClicked() override
    {
        handlers.append(QStringLiteral("close"));
        CRkBaseDialog::slotCloseClicked();
    }
    void slotBtnAcceptClicked() override
    {
        handlers.append(QStringLiteral("accept"));
        CRkBaseDialog::slotBtnAcceptClicked();
    }

    QStringList handlers;
};

template <typename T>
T* part(const QWidget& dialog, const char* name)
{
    return dialog.findChild<T*>(QString::fromLatin1(name));
}

/// The cells of the layout's item `index`: column, row, columns, rows.
QRect cellsOf(const QGridLayout& grid, int index)
{
    int row = -1;
    int column = -1;
    int rows = -1;
    int columns = -1;
    grid.getItemPosition(index, &row, &column, &rows, &columns);
    return {column, row, columns, rows};
}

using Action = void (*)(Dialog&);

QString buttonSheet(const QString& name, const QString& end)
{
    return QString(
               "QPushButton#%1{\nbackground-color:transparent;\n"
               "\tbackground-image: url(:/images/Normal/ProjMgr/btn_nor.png);\n"
               "\tbackground-repeat:none;\n\tbackground-position:center;\ncolor:rgb(70,107,162);\n"
               "border: 0px solid rgb(70,107,162);\n}\nQPushButton#%1::hover{\n"
               "background-image: url(:/images/Normal/ProjMgr/btn_hovpre.png);\n"
               "color:rgb(255,255,255);\n}\nQPushButton#%1::pressed{\n"
               "background-image: url(:/images/Normal/ProjMgr/btn_hovpre.png);\n"
               "color:rgb(0,191,255);\n}\nQPushButton#%1::disabled{\n"
               "\tcolor:rgb(147, 151, 157);\n}%2")
        .arg(name, end);
}

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_CRkBaseDialog : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void flags();
    void flagsOfTheWindow();
    void textsAreOfTheClassContext();
    void objectTree();
    void places_data();
    void places();
    void frameProperties();
    void buttonProperties();
    void styleSheets_data();
    void styleSheets();
    void metaObject();
    void connections();
    void accessibleNames();
    void okHasTheFocusFirst();

    void addLayout();
    void buttonTexts();
    void hiddenButtons_data();
    void hiddenButtons();
    void hiddenFrame();
    void windowTitle();
    void partsForDerivedDialogs();

    void execResult_data();
    void execResult();
    void execKeepsTheResultOfTheRunBefore_data();
    void execKeepsTheResultOfTheRunBefore();
    void execOfDialogThatDeletesItself();
    void execOfDialogDestroyedMeanwhile();
    void buttonsOfEmbeddedDialog();
};

void tst_CRkBaseDialog::construction()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    const QIcon before = QApplication::windowIcon();
    QApplication::setWindowIcon(QIcon(picture));
    const Dialog dialog(nullptr);
    const qint64 iconKey = QApplication::windowIcon().cacheKey();
    QApplication::setWindowIcon(before);

    QCOMPARE(dialog.windowIcon().cacheKey(), iconKey);
    QCOMPARE(dialog.objectName(), QString("CRkBaseDialog"));
    QCOMPARE(dialog.size(), QSize(293, 97));
    QCOMPARE(dialog.windowTitle(), QString("Vantrell"));
    QCOMPARE(part<QLabel>(dialog, "m_pLalTitle")->text(), QString("Vantrell"));
    QCOMPARE(dialog.execResult(), 0);
    QVERIFY(!dialog.isVisible());
}

void tst_CRkBaseDialog::flags()
{
    QWidget parent;
    const CRkBaseDialog embedded(&parent);
    QCOMPARE(int(embedded.windowFlags()), 0x40800);
    QVERIFY(!embedded.isWindow());
    QCOMPARE(embedded.parentWidget(), &parent);

    // Qt adds the bit of a window to whatever has no parent.
    const CRkBaseDialog window(nullptr);
    QCOMPARE(int(window.windowFlags()) & ~int(Qt::Window), 0x40800);
    QVERIFY(window.isWindow());
}

void tst_CRkBaseDialog::flagsOfTheWindow()
{
    Dialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    const QWindow& window = *dialog.windowHandle();
    QVERIFY(window.flags() & Qt::WindowStaysOnTopHint);
    QVERIFY(window.frameMargins().isNull());
#ifdef Q_OS_WIN
    // What the system itself says.
    const auto handle = reinterpret_cast<HWND>(dialog.winId());
    QVERIFY(GetWindowLongW(handle, GWL_EXSTYLE) & WS_EX_TOPMOST);
    QVERIFY((GetWindowLongW(handle, GWL_STYLE) & WS_CAPTION) != WS_CAPTION);
    RECT outside;
    RECT inside;
    QVERIFY(GetWindowRect(handle, &outside) && GetClientRect(handle, &inside));
    QCOMPARE(outside.bottom - outside.top, inside.bottom);
    QCOMPARE(outside.right - outside.left, inside.right);
#endif
}

void tst_CRkBaseDialog::textsAreOfTheClassContext()
{
    Brackets brackets("CRkBaseDialog");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    const Dialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("[Vantrell]"));
    QCOMPARE(dialog.titleLabel()->text(), QString("[Vantrell]"));
    QCOMPARE(dialog.okButton()->text(), QString("[OK]"));
    QCOMPARE(dialog.cancelButton()->text(), QString("[Cancel]"));
    QCOMPARE(dialog.closeButton()->accessibleName(), QString("[Close]"));
}

void tst_CRkBaseDialog::objectTree()
{
    const CRkBaseDialog dialog(nullptr);
    QStringList tree;
    for (const QObject* object : dialog.findChildren<QObject*>()) {
        tree.append(QString("%1 %2 in %3")
                        .arg(object->metaObject()->className(), object->objectName(),
                             object->parent()->objectName()));
    }
    const QStringList expected = {
        "QGridLayout m_pMainLayout in CRkBaseDialog",
        "QWidget widget_2 in CRkBaseDialog",
        "QHBoxLayout horizontalLayout_4 in widget_2",
        "QLabel label in widget_2",
        "QLabel m_pLalTitle in widget_2",
        "QPushButton m_pBtnClose in widget_2",
        "QWidget widget in CRkBaseDialog",
        "QGridLayout gridLayout_2 in widget",
        "QGridLayout m_pContainsLayout in gridLayout_2",
        "QPushButton m_pBtnOK in CRkBaseDialog",
        "QPushButton m_pBtnCancel in CRkBaseDialog",
    };
    QCOMPARE(tree, expected);

    const auto* bar = part<QHBoxLayout>(dialog, "horizontalLayout_4");
    QCOMPARE(bar->count(), 4);
    QCOMPARE(bar->itemAt(0)->widget()->objectName(), QString("label"));
    QCOMPARE(bar->itemAt(1)->widget()->objectName(), QString("m_pLalTitle"));
    QVERIFY(bar->itemAt(2)->spacerItem());
    QCOMPARE(bar->itemAt(3)->widget()->objectName(), QString("m_pBtnClose"));
    QCOMPARE(
        part<QGridLayout>(dialog, "gridLayout_2")->itemAtPosition(0, 0)->layout()->objectName(),
        QString("m_pContainsLayout"));
}

void tst_CRkBaseDialog::places_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("cells"); // column, row, columns, rows
    QTest::newRow("title bar") << "widget_2" << QRect(0, 0, 3, 1);
    QTest::newRow("content") << "widget" << QRect(0, 1, 3, 1);
    QTest::newRow("spacer") << "" << QRect(0, 2, 1, 1);
    QTest::newRow("OK") << "m_pBtnOK" << QRect(1, 2, 1, 1);
    QTest::newRow("Cancel") << "m_pBtnCancel" << QRect(2, 2, 1, 1);
}

void tst_CRkBaseDialog::places()
{
    QFETCH(QString, name);
    QFETCH(QRect, cells);
    const CRkBaseDialog dialog(nullptr);
    const auto* grid = part<QGridLayout>(dialog, "m_pMainLayout");
    QCOMPARE(dialog.layout(), grid);
    QCOMPARE(grid->count(), 5);
    for (int i = 0; i < grid->count(); ++i) {
        const QWidget* widget = grid->itemAt(i)->widget();
        if ((widget ? widget->objectName() : QString()) != name)
            continue;
        QCOMPARE(cellsOf(*grid, i), cells);
        return;
    }
    QFAIL("not in the layout");
}

void tst_CRkBaseDialog::frameProperties()
{
    const CRkBaseDialog dialog(nullptr);
    const auto* grid = part<QGridLayout>(dialog, "m_pMainLayout");
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins());
    const QSpacerItem* rowSpacer = grid->itemAtPosition(2, 0)->spacerItem();
    QVERIFY(rowSpacer);
    QCOMPARE(rowSpacer->sizeHint(), QSize(40, 20));
    QCOMPARE(rowSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);

    const auto* bar = part<QWidget>(dialog, "widget_2");
    QCOMPARE(bar->minimumSize(), QSize(0, 32));
    QCOMPARE(bar->maximumSize(), QSize(QWIDGETSIZE_MAX, 32));
    const auto* barLayout = part<QHBoxLayout>(dialog, "horizontalLayout_4");
    QCOMPARE(barLayout->spacing(), 0);
    QCOMPARE(barLayout->contentsMargins(), QMargins(9, 0, 0, 0));
    const QSpacerItem* barSpacer = barLayout->itemAt(2)->spacerItem();
    QCOMPARE(barSpacer->sizeHint(), QSize(232, 35));
    QCOMPARE(barSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(barSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);

    const auto* logo = part<QLabel>(dialog, "label");
    QCOMPARE(logo->minimumSize(), QSize(34, 24));
    QCOMPARE(logo->text(), QString());
    const QFont titleFont = part<QLabel>(dialog, "m_pLalTitle")->font();
    QCOMPARE(titleFont.family(), QString("Arial"));
    QCOMPARE(titleFont.pointSize(), 12);

    QCOMPARE(part<QGridLayout>(dialog, "gridLayout_2")->contentsMargins(), QMargins());
    QCOMPARE(part<QGridLayout>(dialog, "m_pContainsLayout")->contentsMargins(), QMargins());
    QCOMPARE(part<QGridLayout>(dialog, "m_pContainsLayout")->count(), 0);
}

void tst_CRkBaseDialog::buttonProperties()
{
    const CRkBaseDialog dialog(nullptr);
    const auto* close = part<QPushButton>(dialog, "m_pBtnClose");
    QCOMPARE(close->minimumSize(), QSize(32, 32));
    QCOMPARE(close->maximumSize(), QSize(32, 32));
    QCOMPARE(close->iconSize(), QSize(32, 32));
    QCOMPARE(close->icon().pixmap(32, 32).toImage(),
             QIcon(":/images/Normal/Common_close1_but_nor.png").pixmap(32, 32).toImage());
    QVERIFY(!close->icon().pixmap(32, 32).isNull());
    QCOMPARE(close->text(), QString());
    QVERIFY(!close->isFlat());
    QVERIFY(!close->isDefault());

    const auto* ok = part<QPushButton>(dialog, "m_pBtnOK");
    QCOMPARE(ok->minimumSize(), QSize(82, 34));
    QCOMPARE(ok->iconSize(), QSize(62, 26));
    QCOMPARE(ok->text(), QString("OK"));
    QVERIFY(!ok->isFlat());
    QVERIFY(ok->isDefault());

    const auto* cancel = part<QPushButton>(dialog, "m_pBtnCancel");
    QCOMPARE(cancel->minimumSize(), QSize(82, 34));
    QCOMPARE(cancel->text(), QString("Cancel"));
    QVERIFY(!cancel->isFlat());
    QVERIFY(!cancel->isDefault());
}

void tst_CRkBaseDialog::styleSheets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("dialog") << ""
                            << "QWidget#CRkBaseDialog{\nbackground-color: rgb(232,237,246);\t\n}";
    QTest::newRow("title bar") << "widget_2"
                               << "background-color: rgb(4,21,46);\n";
    QTest::newRow("logo") << "label"
                          << "background-image: url(:/images/Normal/ProjMgr/titl_logo.png);\n"
                             "\tbackground-color:transparent;\n\tbackground-repeat:none;\n"
                             "\tbackground-position:center;";
    QTest::newRow("title")
        << "m_pLalTitle"
        << "color: rgb(255, 255, 255);\nbackground-color: rgba(255, 255, 255,0);";
    QTest::newRow("close button")
        << "m_pBtnClose"
        << "QPushButton#m_pBtnClose{\nbackground-color:transparent;\n"
           "\tbackground-image: url(:/images/Normal/eng_close_but_nor.png);\n"
           "\tbackground-repeat:none;\n\tbackground-position:center;\nborder: none;\n}\n"
           "QPushButton#m_pBtnClose::hover{\n"
           "background-image: url(:/images/Normal/eng_close_but_hov.png);\n}\n"
           "QPushButton#m_pBtnClose::pressed{\n"
           "background-image: url(:/images/Normal/eng_close_but_per.png);\n}";
    QTest::newRow("content") << "widget"
                             << "background-color: rgb(255, 255, 255);";
    QTest::newRow("OK") << "m_pBtnOK" << buttonSheet("m_pBtnOK", "\n\n\t");
    QTest::newRow("Cancel") << "m_pBtnCancel" << buttonSheet("m_pBtnCancel", "");
}

void tst_CRkBaseDialog::styleSheets()
{
    QFETCH(QString, name);
    QFETCH(QString, sheet);
    const CRkBaseDialog dialog(nullptr);
    const QWidget* widget = name.isEmpty() ? &dialog : dialog.findChild<QWidget*>(name);
    QCOMPARE(widget->styleSheet(), sheet);
}

void tst_CRkBaseDialog::metaObject()
{
    const QMetaObject& meta = CRkBaseDialog::staticMetaObject;
    QCOMPARE(meta.className(), "CRkBaseDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Protected);
        methods.append(method.methodSignature());
    }
    QCOMPARE(methods,
             QStringList({"slotCloseClicked()", "slotBtnAcceptClicked()", "slotBtnBtn2Clicked()"}));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_CRkBaseDialog::connections()
{
    Dialog dialog(nullptr);
    dialog.closeButton()->click();
    QCOMPARE(dialog.handlers, QStringList({"close"}));
    QCOMPARE(dialog.execResult(), -1);
    dialog.okButton()->click();
    QCOMPARE(dialog.handlers, QStringList({"close", "accept"}));
    QCOMPARE(dialog.execResult(), 1);
    dialog.cancelButton()->click();
    QCOMPARE(dialog.handlers, QStringList({"close", "accept"}));
    QCOMPARE(dialog.execResult(), 0);
}

void tst_CRkBaseDialog::accessibleNames()
{
    const Dialog dialog(nullptr);
    QCOMPARE(dialog.closeButton()->accessibleName(), QString("Close"));
    QCOMPARE(part<QLabel>(dialog, "label")->accessibleName(), QString("Logo"));
}

void tst_CRkBaseDialog::okHasTheFocusFirst()
{
    Dialog dialog(nullptr);
    auto* form = new QVBoxLayout;
    form->addWidget(new QLineEdit);
    dialog.AddLayout(form);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(dialog.okButton()->hasFocus());
}

void tst_CRkBaseDialog::addLayout()
{
    CRkBaseDialog dialog(nullptr);
    auto* content = part<QGridLayout>(dialog, "m_pContainsLayout");
    dialog.AddLayout(nullptr);
    QCOMPARE(content->count(), 0);

    auto* layout = new QHBoxLayout;
    auto* label = new QLabel("text");
    layout->addWidget(label);
    dialog.AddLayout(layout);
    QCOMPARE(content->count(), 1);
    QCOMPARE(cellsOf(*content, 0), QRect(0, 1, 1, 1));
    QCOMPARE(layout->parent(), content);
    QCOMPARE(label->parentWidget(), part<QWidget>(dialog, "widget"));

    dialog.AddLayout(nullptr);
    QCOMPARE(content->count(), 1);
}

void tst_CRkBaseDialog::buttonTexts()
{
    Dialog dialog(nullptr);
    dialog.SetBtnOKText("Yes");
    QCOMPARE(dialog.okButton()->text(), QString("Yes"));
    QCOMPARE(dialog.cancelButton()->text(), QString("Cancel"));
    dialog.SetBtnCancelText("No");
    QCOMPARE(dialog.okButton()->text(), QString("Yes"));
    QCOMPARE(dialog.cancelButton()->text(), QString("No"));
}

void tst_CRkBaseDialog::hiddenButtons_data()
{
    QTest::addColumn<bool>("ok");
    QTest::addColumn<bool>("cancel");
    QTest::addColumn<bool>("close");
    QTest::newRow("none") << false << false << false;
    QTest::newRow("OK") << true << false << false;
    QTest::newRow("Cancel") << false << true << false;
    QTest::newRow("close") << false << false << true;
    QTest::newRow("OK and Cancel") << true << true << false;
    QTest::newRow("OK and close") << true << false << true;
    QTest::newRow("Cancel and close") << false << true << true;
    QTest::newRow("all") << true << true << true;
}

void tst_CRkBaseDialog::hiddenButtons()
{
    QFETCH(bool, ok);
    QFETCH(bool, cancel);
    QFETCH(bool, close);
    Dialog dialog(nullptr);
    dialog.show();
    dialog.SetBtnHidden(ok, cancel, close);
    QCOMPARE(dialog.okButton()->isVisible(), !ok);
    QCOMPARE(dialog.cancelButton()->isVisible(), !cancel);
    QCOMPARE(dialog.closeButton()->isVisible(), !close);
    dialog.SetBtnHidden(false, false, false);
    QVERIFY(dialog.okButton()->isVisible());
    QVERIFY(dialog.cancelButton()->isVisible());
    QVERIFY(dialog.closeButton()->isVisible());
}

void tst_CRkBaseDialog::hiddenFrame()
{
    Dialog dialog(nullptr);
    dialog.show();
    QVERIFY(dialog.titleBar()->isVisible());
    dialog.SetFrameHidden(true);
    QVERIFY(!dialog.titleBar()->isVisible());
    QVERIFY(!dialog.titleLabel()->isVisible());
    QVERIFY(!dialog.closeButton()->isVisible());
    QVERIFY(dialog.okButton()->isVisible());
    dialog.SetFrameHidden(false);
    QVERIFY(dialog.titleBar()->isVisible());
    QVERIFY(dialog.closeButton()->isVisible());
}

void tst_CRkBaseDialog::windowTitle()
{
    Dialog dialog(nullptr);
    dialog.SetWindowTitle("Copy Project");
    QCOMPARE(dialog.titleLabel()->text(), QString("Copy Project"));
    QCOMPARE(dialog.windowTitle(), QString("Copy Project"));
    dialog.SetWindowTitle("");
    QCOMPARE(dialog.titleLabel()->text(), QString());
    QCOMPARE(dialog.windowTitle(), QString());
}

void tst_CRkBaseDialog::partsForDerivedDialogs()
{
    Dialog dialog(nullptr);
    QCOMPARE(dialog.titleBar(), part<QWidget>(dialog, "widget_2"));
    QCOMPARE(dialog.titleLabel(), part<QLabel>(dialog, "m_pLalTitle"));
    QCOMPARE(dialog.closeButton(), part<QPushButton>(dialog, "m_pBtnClose"));
    QCOMPARE(dialog.okButton(), part<QPushButton>(dialog, "m_pBtnOK"));
    QCOMPARE(dialog.cancelButton(), part<QPushButton>(dialog, "m_pBtnCancel"));
    dialog.setExecResult(5);
    QCOMPARE(execAnd(dialog, [&dialog] { dialog.accept(); }), 5);
}

void tst_CRkBaseDialog::execResult_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("result");
    const auto row = [](const char* name, Action action, int result) {
        QTest::newRow(name) << action << result;
    };
    row(
        "OK", [](Dialog& d) { QTest::mouseClick(d.okButton(), Qt::LeftButton); }, 1);
    row(
        "Cancel", [](Dialog& d) { QTest::mouseClick(d.cancelButton(), Qt::LeftButton); }, 0);
    row(
        "close button", [](Dialog& d) { QTest::mouseClick(d.closeButton(), Qt::LeftButton); }, -1);
    row(
        "Escape", [](Dialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }, 0);
    row(
        "Enter is OK", [](Dialog& d) { QTest::keyClick(&d, Qt::Key_Return); }, 1);
    row(
        "window closed from outside", [](Dialog& d) { d.close(); }, 0);
    row(
        "accepted without a button", [](Dialog& d) { d.accept(); }, 0);
    row(
        "rejected without a button", [](Dialog& d) { d.reject(); }, 0);
    row(
        "done with another code", [](Dialog& d) { d.done(7); }, 0);
    row(
        "hidden", [](Dialog& d) { d.hide(); }, 0);
}

void tst_CRkBaseDialog::execResult()
{
    QFETCH(Action, action);
    QFETCH(int, result);
    Dialog dialog(nullptr);
    bool modal = false;
    const int returned = execAnd(dialog, [&dialog, &modal, action] {
        modal = dialog.isModal() && dialog.isVisible();
        action(dialog);
    });
    QCOMPARE(returned, result);
    QVERIFY(modal);
    QVERIFY(!dialog.isVisible());
}

void tst_CRkBaseDialog::execKeepsTheResultOfTheRunBefore_data()
{
    QTest::addColumn<int>("first");
    QTest::newRow("OK") << 1;
    QTest::newRow("Cancel") << 0;
    QTest::newRow("close") << -1;
}

void tst_CRkBaseDialog::execKeepsTheResultOfTheRunBefore()
{
    QFETCH(int, first);
    Dialog dialog(nullptr);
    QPushButton* button = first == 1 ? dialog.okButton()
        : first == 0                 ? dialog.cancelButton()
                                     : dialog.closeButton();
    QCOMPARE(execAnd(dialog, [button] { button->click(); }), first);
    QCOMPARE(execAnd(dialog, [&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); }), first);
    QCOMPARE(execAnd(dialog, [&dialog] { dialog.accept(); }), first);
    QCOMPARE(execAnd(dialog, [&dialog] { dialog.okButton()->click(); }), 1);
    QCOMPARE(execAnd(dialog, [&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); }), 1);
}

void tst_CRkBaseDialog::execOfDialogThatDeletesItself()
{
    auto* dialog = new Dialog(nullptr);
    const QPointer<Dialog> alive(dialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QCOMPARE(execAnd(*dialog, [dialog] { dialog->okButton()->click(); }), 1);
    QTRY_VERIFY(!alive);
}

void tst_CRkBaseDialog::execOfDialogDestroyedMeanwhile()
{
    auto dialog = std::make_unique<Dialog>(nullptr);
    Dialog* running = dialog.get();
    QTimer::singleShot(0, this, [&dialog] {
        dialog->setExecResult(1);
        dialog.reset();
    });
    QCOMPARE(running->exec(), 0);
}

void tst_CRkBaseDialog::buttonsOfEmbeddedDialog()
{
    QWidget parent;
    Dialog dialog(&parent);
    QSignalSpy finished(&dialog, &QDialog::finished);
    parent.show();
    dialog.show();
    dialog.okButton()->click();
    QCOMPARE(finished.count(), 1);
    QVERIFY(!dialog.isVisible());
    dialog.show();
    dialog.closeButton()->click();
    QCOMPARE(finished.count(), 2);
    QVERIFY(!dialog.isVisible());
    QVERIFY(parent.isVisible());
}

QTEST_MAIN(tst_CRkBaseDialog)
#include "tst_CRkBaseDialog.moc"
