// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProgressWgt.h>

#include "support/Brackets.h"
#include "support/WindowWaits.h"

#include "widgets/Render.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMetaMethod>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <limits>

namespace {

template <typename T>
T& part(const CRkProgressWgt& widget, const char* name)
{
    return *widget.findChild<T*>(QString::fromLatin1(name));
}

QProgressBar& bar(const CRkProgressWgt& widget)
{
    return part<QProgressBar>(widget, "m_pProgressBar");
}

QString prompt(const CRkProgressWgt& widget)
{
    return part<QLabel>(widget, "m_pPromptLabel").text();
}

/// Notes which virtual slots the buttons reach.
class Widget : public CRkProgressWgt
{
public:
    using CRkProgressWgt::CRkProgressWgt;

    void slotBtnCannelClicked() override
    {
        handlers.append(QStringLiteral("cancel"));
        CRkProgressWgt::slotBtnCannelClicked();
    }
    void slotBtnRetryClicked() override
    {
        handlers.append(QStringLiteral("retry"));
        CRkProgressWgt::slotBtnRetryClicked();
    }

    QStringList handlers;
};

QStringList messages;

void recordMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    messages.append(text);
}

using Setter = void (CRkProgressWgt::*)(bool);

} // namespace

Q_DECLARE_METATYPE(Setter)

class tst_CRkProgressWgt : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void objectTree();
    void parts();
    void buttons();
    void styleSheets_data();
    void styleSheets();
    void styleSheetsPrintNothing();
    void barRunsFromWhiteToGreen();
    void buttonColours();
    void metaObject();
    void texts();
    void textsAreOfTheClassContext();
    void visibility_data();
    void visibility();
    void value();
    void maximum();
    void buttonsReachTheirSlots();
    void buttonsEndTheRun_data();
    void buttonsEndTheRun();
    void execNotModal();
    void loadCount_data();
    void loadCount();
    void loadBytes_data();
    void loadBytes();
    void countBeyondTheBar();
    void stepsWithText();
    void stepsWithoutText();
    void stepsAreNeverSetBack();
    void stepsBeyondTheMaximum();
    void wrappedTextIsShownWhole();
    void textShownLaterIsShownWhole();
    void longTexts();
};

void tst_CRkProgressWgt::construction()
{
    const QIcon previous = QApplication::windowIcon();
    QPixmap mark(16, 16);
    mark.fill(Qt::darkRed);
    QApplication::setWindowIcon(QIcon(mark));
    const CRkProgressWgt widget("Upload", nullptr);
    QCOMPARE(widget.windowIcon().pixmap(16, 16).toImage(), mark.toImage());
    QApplication::setWindowIcon(previous);

    QCOMPARE(part<QLabel>(widget, "m_pLalTitle").text(), QString("Upload"));
    QCOMPARE(widget.windowModality(), Qt::ApplicationModal);
    QCOMPARE(int(widget.windowFlags() & ~Qt::WindowType_Mask), 0x40800);
    QVERIFY(widget.isWindow());
    QCOMPARE(widget.size(), QSize(310, 144));
    QCOMPARE(bar(widget).minimum(), 0);
    QCOMPARE(bar(widget).maximum(), 100);
    QCOMPARE(bar(widget).value(), 0);
    QCOMPARE(prompt(widget), QString());

    QWidget parent;
    const CRkProgressWgt embedded("Upload", &parent);
    QCOMPARE(int(embedded.windowFlags()), 0x40800);
    QVERIFY(!embedded.isWindow());
}

void tst_CRkProgressWgt::objectTree()
{
    const CRkProgressWgt widget("Upload", nullptr);
    QCOMPARE(widget.layout()->objectName(), QString("gridLayout"));
    QCOMPARE(part<QWidget>(widget, "widget_2").layout()->objectName(),
             QString("horizontalLayout_4"));

    QStringList names;
    for (const QWidget* child : widget.findChildren<QWidget*>())
        names.append(child->objectName());
    QCOMPARE(names,
             QStringList({"widget_2", "m_pLalTitle", "m_pBtnClose", "m_pBtnRetry", "m_pBtnCancel",
                          "m_pProgressBar", "m_pPromptLabel"}));
    QVERIFY(widget.findChild<QHBoxLayout*>(QStringLiteral("horizontalLayout")));
}

void tst_CRkProgressWgt::parts()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetCurrentText("3 of 8 files");
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    const QFont font = part<QLabel>(widget, "m_pLalTitle").font();
    QCOMPARE(font.family(), QString("Arial"));
    QCOMPARE(font.pointSize(), 9);

    // From top to bottom: the title bar over the whole width, the bar, the text, the buttons.
    const QWidget& titleBar = part<QWidget>(widget, "widget_2");
    QCOMPARE(titleBar.geometry(), QRect(0, 0, 310, 32));
    const QRect text = part<QWidget>(widget, "m_pPromptLabel").geometry();
    const QRect retry = part<QWidget>(widget, "m_pBtnRetry").geometry();
    const QRect cancel = part<QWidget>(widget, "m_pBtnCancel").geometry();
    QVERIFY(bar(widget).geometry().top() > titleBar.geometry().bottom());
    QVERIFY(text.top() > bar(widget).geometry().bottom());
    QVERIFY(retry.top() > text.bottom());
    QCOMPARE(cancel.top(), retry.top());
    QVERIFY(cancel.left() > retry.right());
    QCOMPARE(bar(widget).width(), text.width());
    QVERIFY(widget.rect().contains(cancel));
}

void tst_CRkProgressWgt::buttons()
{
    const CRkProgressWgt widget("Upload", nullptr);
    const auto& close = part<QPushButton>(widget, "m_pBtnClose");
    QCOMPARE(close.minimumSize(), QSize(32, 32));
    QCOMPARE(close.maximumSize(), QSize(32, 32));
    QCOMPARE(close.text(), QString());
    QVERIFY(!close.accessibleName().isEmpty());
    const QSize iconSize(32, 32);
    const QPixmap cross(":/images/Normal/Common_close1_but_nor.png");
    QVERIFY(!cross.isNull());
    QCOMPARE(close.icon().pixmap(iconSize).toImage(), QIcon(cross).pixmap(iconSize).toImage());

    const auto& retry = part<QPushButton>(widget, "m_pBtnRetry");
    QCOMPARE(retry.text(), QString("Retry"));
    QCOMPARE(retry.minimumSize(), QSize(82, 34));
    const auto& cancel = part<QPushButton>(widget, "m_pBtnCancel");
    QCOMPARE(cancel.text(), QString("Cancel"));
    QCOMPARE(cancel.minimumSize(), QSize(82, 34));
}

void tst_CRkProgressWgt::styleSheets_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("sheet");
    const QString button =
        "QPushButton{\nbackground-color:transparent;\n"
        "\tbackground-image: url(:/images/Normal/ProjMgr/btn_nor.png);\n"
        "\tbackground-repeat:none;\n\tbackground-position:center;\ncolor:rgb(70,107,162);\n"
        "border: 0px solid rgb(70,107,162);\n}\nQPushButton::hover{\n"
        "background-image: url(:/images/Normal/ProjMgr/btn_hovpre.png);\n"
        "color:rgb(255,255,255);\n}\nQPushButton::pressed{\n"
        "background-image: url(:/images/Normal/ProjMgr/btn_hovpre.png);\n"
        "color:rgb(0,191,255);\n}\nQPushButton::disabled{\ncolor:rgb(255, 255, 255);\n"
        "background-image: url(:/images/Normal/ProjMgr/btn_gray.png);\n}\n\n\t";
    QTest::newRow("Retry") << "m_pBtnRetry" << button;
    QTest::newRow("Cancel") << "m_pBtnCancel" << button;
    QTest::newRow("title bar") << "widget_2"
                               << "background-color: rgba(6, 1, 51,200);";
    QTest::newRow("bar") << "m_pProgressBar"
                         << " QProgressBar {border: 0px solid grey;text-align: center;"
                            "color: rgb(255, 255, 255);color: rgb(0, 0, 0);}\n"
                            " QProgressBar::chunk {background-color: qlineargradient("
                            "x1:0, y1:0, x2:1, y2:0, stop:0 white, stop:1 rgb(39,174,96) )};\n";
}

void tst_CRkProgressWgt::styleSheets()
{
    QFETCH(QString, part);
    QFETCH(QString, sheet);
    const CRkProgressWgt widget("Upload", nullptr);
    QCOMPARE(widget.findChild<QWidget*>(part)->styleSheet(), sheet);
}

void tst_CRkProgressWgt::styleSheetsPrintNothing()
{
    messages.clear();
    const QtMessageHandler before = qInstallMessageHandler(recordMessage);
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetCurrentValue(40);
    part<QPushButton>(widget, "m_pBtnRetry").setDown(true);
    part<QPushButton>(widget, "m_pBtnCancel").setEnabled(false);
    widget.grab();
    qInstallMessageHandler(before);
    QVERIFY2(messages.isEmpty(), qPrintable(messages.join(QLatin1Char('\n'))));
}

void tst_CRkProgressWgt::barRunsFromWhiteToGreen()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    bar(widget).setTextVisible(false);
    const int right = bar(widget).width() - 1;
    const int middle = bar(widget).height() / 2;
    const QImage empty = rendered(bar(widget), 1);
    widget.SetCurrentValue(40);
    const QRect chunk = difference(rendered(bar(widget), 1), empty);
    QVERIFY2(qAbs(chunk.right() - right * 2 / 5) <= 2, qPrintable(QString::number(chunk.right())));

    widget.SetCurrentValue(100);
    const QImage full = rendered(bar(widget), 1);
    const QColor first = colorAt(full, {1, middle});
    QVERIFY(first.red() > 248 && first.green() > 248 && first.blue() > 248);
    const QColor last = colorAt(full, {right - 1, middle});
    QVERIFY(qAbs(last.red() - 39) < 6 && qAbs(last.green() - 174) < 6
            && qAbs(last.blue() - 96) < 6);

    // The text is black.
    bar(widget).setTextVisible(true);
    const QImage text = rendered(bar(widget), 1);
    const QRect letters = difference(text, full);
    QVERIFY(qAbs(letters.center().x() - right / 2) < 5);
    int darkest = 255;
    for (int x = letters.left(); x <= letters.right(); ++x)
        darkest = qMin(darkest, text.pixelColor(x, letters.center().y()).lightness());
    QVERIFY2(darkest < 40, qPrintable(QString::number(darkest)));
}

void tst_CRkProgressWgt::buttonColours()
{
    CRkProgressWgt widget("Upload", nullptr);
    auto& button = part<QPushButton>(widget, "m_pBtnRetry");
    button.setText(QString());
    button.setFocusPolicy(Qt::NoFocus);
    button.setAutoDefault(false);
    button.ensurePolished();
    button.resize(82, 34);
    const auto plate = [](const char* name) {
        QImage image(82, 34, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter(&image).drawImage(0, 0, QImage(QString(":/images/Normal/ProjMgr/%1").arg(name)));
        return image;
    };
    const auto drawn = [&button] {
        QImage image(82, 34, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        button.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    };
    QVERIFY(alike(drawn(), plate("btn_nor.png")));
    button.setDown(true);
    QVERIFY(alike(drawn(), plate("btn_hovpre.png")));
    button.setDown(false);
    button.setEnabled(false);
    QVERIFY(alike(drawn(), plate("btn_gray.png")));
}

void tst_CRkProgressWgt::metaObject()
{
    const QMetaObject& meta = CRkProgressWgt::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(methods,
             QStringList({"signalBtnRetryClicked()", "slotCloseClicked()", "slotBtnOkClicked()",
                          "slotBtnCannelClicked()", "slotBtnRetryClicked()",
                          "slotLoadProcess(int,int)", "slotLoadProcess(qlonglong,qlonglong)",
                          "slotLoadProcess(QString)", "slotLoadProcess()"}));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    const QList<QByteArray> names{"nCurrent", "nCount"};
    QCOMPARE(meta.method(meta.indexOfSlot("slotLoadProcess(int,int)")).parameterNames(), names);
    QCOMPARE(meta.method(meta.indexOfSlot("slotLoadProcess(qlonglong,qlonglong)")).parameterNames(),
             names);
}

void tst_CRkProgressWgt::texts()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetCurrTitle("Download");
    widget.SetCurrentText("Reading");
    widget.SetBtnCannelTxt("Stop");
    QCOMPARE(part<QLabel>(widget, "m_pLalTitle").text(), QString("Download"));
    QCOMPARE(prompt(widget), QString("Reading"));
    QCOMPARE(part<QPushButton>(widget, "m_pBtnCancel").text(), QString("Stop"));
}

void tst_CRkProgressWgt::textsAreOfTheClassContext()
{
    Brackets brackets("CRkProgressWgt");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    CRkProgressWgt widget("Upload", nullptr);
    QCOMPARE(part<QPushButton>(widget, "m_pBtnRetry").text(), QString("[Retry]"));
    QCOMPARE(part<QPushButton>(widget, "m_pBtnCancel").text(), QString("[Cancel]"));
    widget.SetMaxValue(1);
    widget.slotLoadProcess();
    QCOMPARE(prompt(widget), QString("[loading completed !]"));
}

void tst_CRkProgressWgt::visibility_data()
{
    QTest::addColumn<Setter>("setter");
    QTest::addColumn<QString>("part");
    QTest::newRow("close") << &CRkProgressWgt::VisibleBtnClose << "m_pBtnClose";
    QTest::newRow("retry") << &CRkProgressWgt::VisibleBtnRetry << "m_pBtnRetry";
    QTest::newRow("cancel") << &CRkProgressWgt::VisibleBtnCannel << "m_pBtnCancel";
    QTest::newRow("text") << &CRkProgressWgt::VisibleText << "m_pPromptLabel";
}

void tst_CRkProgressWgt::visibility()
{
    QFETCH(Setter, setter);
    QFETCH(QString, part);
    CRkProgressWgt widget("Upload", nullptr);
    for (const bool visible : {false, true}) {
        (widget.*setter)(visible);
        for (const QWidget* child : widget.findChildren<QWidget*>())
            QCOMPARE(child->isHidden(), child->objectName() == part && !visible);
    }
}

void tst_CRkProgressWgt::value()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetCurrentValue(40);
    QCOMPARE(bar(widget).value(), 40);
    QCOMPARE(bar(widget).text(), QString("40%"));
    widget.SetCurrentValue(101);
    QCOMPARE(bar(widget).value(), 40);
    widget.SetCurrentValue(-1);
    QCOMPARE(bar(widget).value(), 40);
}

void tst_CRkProgressWgt::maximum()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(8);
    QCOMPARE(bar(widget).maximum(), 8);
    widget.SetMaxValue(8);
    QCOMPARE(bar(widget).maximum(), 8);
    // A maximum below the minimum would pull the minimum with it; the same maximum again does not.
    bar(widget).setRange(3, 8);
    widget.SetMaxValue(8);
    QCOMPARE(bar(widget).minimum(), 3);
    widget.SetMaxValue(0);
    QCOMPARE(bar(widget).maximum(), 0);
}

void tst_CRkProgressWgt::buttonsReachTheirSlots()
{
    Widget widget("Upload", nullptr);
    widget.show();
    QSignalSpy retried(&widget, &CRkProgressWgt::signalBtnRetryClicked);
    part<QPushButton>(widget, "m_pBtnRetry").click();
    QCOMPARE(retried.count(), 1);
    QVERIFY(widget.isVisible());
    part<QPushButton>(widget, "m_pBtnCancel").click();
    QVERIFY(!widget.isVisible());
    QCOMPARE(widget.handlers, QStringList({"retry", "cancel"}));
    QCOMPARE(retried.count(), 1);

    widget.show();
    part<QPushButton>(widget, "m_pBtnClose").click();
    QVERIFY(!widget.isVisible());
    QCOMPARE(widget.handlers.size(), 2);
}

void tst_CRkProgressWgt::buttonsEndTheRun_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("Cancel") << "m_pBtnCancel";
    QTest::newRow("close") << "m_pBtnClose";
    QTest::newRow("accepted") << QString();
}

void tst_CRkProgressWgt::buttonsEndTheRun()
{
    QFETCH(QString, button);
    CRkProgressWgt widget("Upload", nullptr);
    QTimer::singleShot(0, &widget, [&widget, &button] {
        if (button.isEmpty())
            widget.slotBtnOkClicked();
        else
            part<QPushButton>(widget, button.toLatin1().constData()).click();
    });
    QCOMPARE(widget.exec(true), int(button.isEmpty() ? QDialog::Accepted : QDialog::Rejected));
}

void tst_CRkProgressWgt::execNotModal()
{
    CRkProgressWgt widget("Upload", nullptr);
    QCOMPARE(widget.exec(false), 0);
    QVERIFY(widget.isVisible());
    QCOMPARE(widget.windowModality(), Qt::ApplicationModal);
}

void tst_CRkProgressWgt::loadCount_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("maximum");
    QTest::newRow("part") << 3 << 8 << 3 << 8;
    QTest::newRow("all") << 8 << 8 << 8 << 8;
    QTest::newRow("none") << 0 << 8 << 0 << 8;
    QTest::newRow("no count") << 5 << 0 << 20 << 50;
    QTest::newRow("neither") << 0 << 0 << 20 << 50;
    QTest::newRow("the same maximum") << 30 << 50 << 30 << 50;
    QTest::newRow("beyond the count") << 9 << 8 << 0 << 8;
}

void tst_CRkProgressWgt::loadCount()
{
    QFETCH(int, current);
    QFETCH(int, count);
    QFETCH(int, maximum);
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(50);
    widget.SetCurrentValue(20);
    widget.SetCurrentText("Sending");
    widget.slotLoadProcess(current, count);
    QCOMPARE(bar(widget).maximum(), maximum);
    if (QTest::currentDataTag() == QByteArray("beyond the count"))
        QVERIFY(bar(widget).value() <= maximum);
    else
        QTEST(bar(widget).value(), "value");
    QCOMPARE(prompt(widget), QString("Sending"));
}

void tst_CRkProgressWgt::loadBytes_data()
{
    QTest::addColumn<qint64>("current");
    QTest::addColumn<qint64>("count");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("maximum");
    const qint64 wrap = qint64(1) << 32;
    QTest::newRow("small") << qint64(3) << qint64(8) << 3 << 8;
    QTest::newRow("no count") << qint64(5) << qint64(0) << 20 << 50;
    QTest::newRow("largest that fits") << qint64(7) << qint64(std::numeric_limits<int>::max()) << 7
                                       << std::numeric_limits<int>::max();
    QTest::newRow("upper half is cut off") << wrap + 3 << wrap + 8 << 3 << 8;
    QTest::newRow("nothing left of the count") << qint64(5) << wrap << 20 << 50;
}

void tst_CRkProgressWgt::loadBytes()
{
    QFETCH(qint64, current);
    QFETCH(qint64, count);
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(50);
    widget.SetCurrentValue(20);
    widget.slotLoadProcess(current, count);
    QTEST(bar(widget).maximum(), "maximum");
    QTEST(bar(widget).value(), "value");
}

// More bytes than the bar can count leave it empty until all are there; the next count is shown.
void tst_CRkProgressWgt::countBeyondTheBar()
{
    CRkProgressWgt widget("Upload", nullptr);
    const qint64 count = 3000000000;
    for (const qint64 current : {qint64(1000), qint64(2500000000)}) {
        widget.slotLoadProcess(current, count);
        QCOMPARE(bar(widget).maximum(), int(count));
        QCOMPARE(bar(widget).text(), QString());
    }
    widget.slotLoadProcess(count, count);
    QCOMPARE(bar(widget).text(), QString("100%"));
    QVERIFY(!widget.grab().isNull());

    widget.slotLoadProcess(2, 8);
    QCOMPARE(bar(widget).minimum(), 0);
    QCOMPARE(bar(widget).text(), QString("25%"));
}

void tst_CRkProgressWgt::stepsWithText()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(3);
    QSignalSpy accepted(&widget, &QDialog::accepted);
    widget.show();
    widget.slotLoadProcess("first");
    QCOMPARE(bar(widget).value(), 1);
    QCOMPARE(prompt(widget), QString("first"));
    widget.slotLoadProcess("second");
    QCOMPARE(prompt(widget), QString("second"));
    QCOMPARE(accepted.count(), 0);
    QVERIFY(widget.isVisible());
    widget.slotLoadProcess("third");
    QCOMPARE(bar(widget).value(), 3);
    QCOMPARE(prompt(widget), QString("loading completed !"));
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!widget.isVisible());
    QCOMPARE(widget.result(), int(QDialog::Accepted));
}

void tst_CRkProgressWgt::stepsWithoutText()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(3);
    widget.SetCurrentText("Reading");
    QSignalSpy finished(&widget, &QDialog::finished);
    widget.show();
    widget.slotLoadProcess();
    widget.slotLoadProcess();
    QCOMPARE(bar(widget).value(), 2);
    QCOMPARE(prompt(widget), QString("Reading"));
    widget.slotLoadProcess();
    QCOMPARE(bar(widget).value(), 3);
    QCOMPARE(prompt(widget), QString("loading completed !"));
    QVERIFY(widget.isVisible());
    QCOMPARE(finished.count(), 0);
}

void tst_CRkProgressWgt::stepsAreNeverSetBack()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(5);
    widget.slotLoadProcess("first");
    widget.slotLoadProcess();
    widget.slotLoadProcess(4, 5); // Sets the bar without counting.
    QCOMPARE(bar(widget).value(), 4);
    widget.exec(false);
    widget.reject();
    widget.exec(false);
    widget.slotLoadProcess();
    QCOMPARE(bar(widget).value(), 3);
}

void tst_CRkProgressWgt::stepsBeyondTheMaximum()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.SetMaxValue(1);
    QSignalSpy accepted(&widget, &QDialog::accepted);
    widget.slotLoadProcess();
    widget.slotLoadProcess("more");
    QCOMPARE(prompt(widget), QString("more"));
    QCOMPARE(bar(widget).value(), 1);
    QCOMPARE(accepted.count(), 0);
}

void tst_CRkProgressWgt::wrappedTextIsShownWhole()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    widget.SetCurrentText(QString("several words ").repeated(20));
    QCOMPARE(widget.width(), 310);
    QVERIFY(widget.height() > 144);
    const auto& text = part<QLabel>(widget, "m_pPromptLabel");
    QTRY_VERIFY(text.height() >= text.heightForWidth(text.width()));
    const int height = widget.height();
    widget.SetCurrentText("short");
    QCOMPARE(widget.height(), height); // Jumping up and down would be restless.
}

void tst_CRkProgressWgt::textShownLaterIsShownWhole()
{
    CRkProgressWgt widget("Upload", nullptr);
    widget.VisibleText(false);
    widget.SetCurrentText(QString("several words ").repeated(20));
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    QCOMPARE(widget.size(), QSize(310, 144));
    widget.VisibleText(true);
    const auto& text = part<QLabel>(widget, "m_pPromptLabel");
    QTRY_VERIFY(text.height() >= text.heightForWidth(text.width()));
}

void tst_CRkProgressWgt::longTexts()
{
    const QString longest(100000, QLatin1Char('m'));
    CRkProgressWgt widget(longest, nullptr);
    widget.SetCurrentText(longest);
    widget.show();
    QVERIFY(comesOnScreen(&widget));
    QCOMPARE(prompt(widget), longest);
    QVERIFY(widget.width() < 800);
    widget.SetCurrentText(QString("a\n").repeated(50000));
    QTRY_VERIFY(widget.height() > 200);
    QVERIFY(widget.height() < 800);
}

QTEST_MAIN(tst_CRkProgressWgt)
#include "tst_CRkProgressWgt.moc"
