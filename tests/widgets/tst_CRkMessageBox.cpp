// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkMessageBox.h>

#include "support/WindowWaits.h"
#include "widgets/AtScale.h"
#include "widgets/ExecAnd.h"
#include "widgets/Render.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace {

QLabel& icon(const CRkMessageBox& box)
{
    return *box.findChild<QLabel*>(QStringLiteral("Icon"));
}

QLabel& text(const CRkMessageBox& box)
{
    return *box.findChild<QLabel*>(QStringLiteral("TextMsg"));
}

/// Writes a picture and gives its path.
QString writePicture(const QTemporaryDir& folder, const QString& name, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::darkGreen);
    const QString path = folder.filePath(name);
    return image.save(path) ? path : QString();
}

class Browser : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }
};

} // namespace

class tst_CRkMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void frameIsThatOfTheBaseDialog();
    void defaultIcon();
    void iconLabelTakesThePicturesSize_data();
    void iconLabelTakesThePicturesSize();
    void iconOfADenseScreen();
    void iconIsSharpAtEveryScale_data() { addScales(); }
    void iconIsSharpAtEveryScale();
    void missingIconLeavesAnEmptyLabel_data();
    void missingIconLeavesAnEmptyLabel();
    void setMsgText();
    void textFitsTheBox_data();
    void textFitsTheBox();
    void endlessTextLeavesTheButtonsOnTheScreen_data();
    void endlessTextLeavesTheButtonsOnTheScreen();
    void openExternalLinks_data();
    void openExternalLinks();
    void linkOpensInTheBrowser();
    void closedByCloseEvent();
    void closeEventHidesAndAccepts();
    void otherEndsDoNotCountAsClosed_data();
    void otherEndsDoNotCountAsClosed();
};

void tst_CRkMessageBox::form()
{
    const CRkMessageBox box(nullptr);
    auto* layout = box.findChild<QHBoxLayout*>(QStringLiteral("horizontalLayout"));
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(20, 20, 20, 9));
    QCOMPARE(layout->spacing(), 2);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), &icon(box));
    QCOMPARE(layout->itemAt(1)->widget(), &text(box));
    QCOMPARE(layout->parent(), box.findChild<QGridLayout*>(QStringLiteral("m_pContainsLayout")));
    QCOMPARE(text(box).alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QVERIFY(text(box).wordWrap());
    QCOMPARE(text(box).text(), QString());
    QVERIFY(!box.isClosed());
}

void tst_CRkMessageBox::frameIsThatOfTheBaseDialog()
{
    const QIcon previous = QApplication::windowIcon();
    QPixmap mark(16, 16);
    mark.fill(Qt::darkRed);
    QApplication::setWindowIcon(QIcon(mark));
    const CRkMessageBox box(nullptr);
    QCOMPARE(box.windowIcon().pixmap(16, 16).toImage(), mark.toImage());
    QApplication::setWindowIcon(previous);

    QCOMPARE(box.objectName(), QString("CRkBaseDialog"));
    QCOMPARE(box.windowTitle(), QString("Vantrell"));
    QCOMPARE(int(box.windowFlags() & ~Qt::WindowType_Mask), 0x40800);
}

void tst_CRkMessageBox::defaultIcon()
{
    const CRkMessageBox box(nullptr);
    QCOMPARE(icon(box).minimumSize(), QSize(43, 43));
    QCOMPARE(icon(box).maximumSize(), QSize(43, 43));
    const QPixmap expected(":/images/Normal/corvellogo42.png");
    QVERIFY(!expected.isNull());
    QCOMPARE(icon(box).pixmap(Qt::ReturnByValue).toImage(), expected.toImage());
}

void tst_CRkMessageBox::iconLabelTakesThePicturesSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smaller") << QSize(16, 24);
    QTest::newRow("larger") << QSize(120, 60);
    QTest::newRow("one pixel") << QSize(1, 1);
}

void tst_CRkMessageBox::iconLabelTakesThePicturesSize()
{
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    CRkMessageBox box(nullptr);
    box.SetIcon(writePicture(folder, "icon.png", size));
    QCOMPARE(icon(box).minimumSize(), size);
    QCOMPARE(icon(box).maximumSize(), size);
    QCOMPARE(icon(box).pixmap(Qt::ReturnByValue).size(), size);
}

void tst_CRkMessageBox::iconOfADenseScreen()
{
    const QTemporaryDir folder;
    CRkMessageBox box(nullptr);
    box.SetIcon(writePicture(folder, "icon@2x.png", {80, 60}));
    QCOMPARE(icon(box).pixmap(Qt::ReturnByValue).devicePixelRatio(), 2.0);
    QCOMPARE(icon(box).minimumSize(), QSize(40, 30));
    QCOMPARE(icon(box).maximumSize(), QSize(40, 30));
}

void tst_CRkMessageBox::iconIsSharpAtEveryScale()
{
    QFETCH(int, scale);
    if (!isAtScale(scale))
        return;
    const QString twin = scale == 2 ? "@2x" : "";
    const QTemporaryDir folder;
    CRkMessageBox box(nullptr);
    const QPixmap expected(":/images/Normal/corvellogo42" + twin + ".png");
    QCOMPARE(expected.devicePixelRatio(), qreal(scale));
    QCOMPARE(icon(box).pixmap(Qt::ReturnByValue).toImage(), expected.toImage());
    QCOMPARE(icon(box).maximumSize(), QSize(43, 43));

    QVERIFY(!writePicture(folder, "two.dots@2x.png", {80, 60}).isEmpty());
    box.SetIcon(writePicture(folder, "two.dots.png", {40, 30}));
    QCOMPARE(icon(box).pixmap(Qt::ReturnByValue).size(), QSize(40, 30) * scale);
    QCOMPARE(icon(box).maximumSize(), QSize(40, 30));

    box.SetIcon(writePicture(folder, "alone.png", {20, 10}));
    QCOMPARE(icon(box).pixmap(Qt::ReturnByValue).size(), QSize(20, 10));
    QCOMPARE(icon(box).maximumSize(), QSize(20, 10));
}

void tst_CRkMessageBox::missingIconLeavesAnEmptyLabel_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("missing resource") << ":/images/Normal/none.png";
    QTest::newRow("missing file") << "/none/none.png";
    QTest::newRow("not a picture") << QCoreApplication::applicationFilePath();
}

void tst_CRkMessageBox::missingIconLeavesAnEmptyLabel()
{
    QFETCH(QString, path);
    CRkMessageBox box(nullptr);
    box.SetIcon(path);
    QVERIFY(icon(box).pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(icon(box).text(), QString());
    QCOMPARE(icon(box).maximumSize(), QSize(0, 0));
}

void tst_CRkMessageBox::setMsgText()
{
    CRkMessageBox box(nullptr);
    text(box).setWordWrap(false);
    box.resize(900, 700);
    box.SetMsgText("The project is open.");
    QCOMPARE(text(box).text(), QString("The project is open."));
    QVERIFY(text(box).wordWrap());
    QVERIFY(box.width() < 900);
    QVERIFY(box.height() < 700);
    QCOMPARE(box.windowTitle(), QString("Vantrell"));
}

void tst_CRkMessageBox::textFitsTheBox_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QString();
    QTest::newRow("one word") << "Done";
    QTest::newRow("sentence") << "The database file is locked by another process.";
    QTest::newRow("many lines") << QString("A line\n").repeated(20);
    QTest::newRow("right to left") << QString::fromUtf8("تم حذف المشروع ولا يمكن استعادته.");
    QTest::newRow("Chinese") << QString::fromUtf8("项目名称已存在，请输入其他名称。");
}

void tst_CRkMessageBox::textFitsTheBox()
{
    QFETCH(QString, message);
    CRkMessageBox box(nullptr);
    box.SetMsgText(message);
    box.show();
    QVERIFY(comesOnScreen(&box));
    const QLabel& label = text(box);
    QVERIFY(label.width() >= label.fontMetrics()
                                 .boundingRect(QRect(0, 0, label.width(), 0),
                                               Qt::AlignCenter | Qt::TextWordWrap, message)
                                 .width());
    QVERIFY(label.height() >= label.heightForWidth(label.width()));
}

void tst_CRkMessageBox::endlessTextLeavesTheButtonsOnTheScreen_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("one word") << QString(100000, QLatin1Char('m'));
    QTest::newRow("many words") << QString("word ").repeated(20000);
    QTest::newRow("many lines") << QString("a\n").repeated(50000);
}

void tst_CRkMessageBox::endlessTextLeavesTheButtonsOnTheScreen()
{
    QFETCH(QString, message);
    CRkMessageBox box(nullptr);
    box.SetMsgText(message);
    box.show();
    QVERIFY(comesOnScreen(&box));
    QCOMPARE(text(box).text(), message);
    const QSize available = box.screen()->availableSize();
    QVERIFY(box.width() <= available.width());
    QVERIFY(box.height() <= available.height());
    QVERIFY(box.rect().contains(
        box.findChild<QPushButton*>(QStringLiteral("m_pBtnCancel"))->geometry()));
}

void tst_CRkMessageBox::openExternalLinks_data()
{
    QTest::addColumn<bool>("open");
    QTest::newRow("open") << true;
    QTest::newRow("leave to the host") << false;
}

void tst_CRkMessageBox::openExternalLinks()
{
    QFETCH(bool, open);
    CRkMessageBox box(nullptr);
    QVERIFY(!text(box).openExternalLinks());
    box.SetOpenExteranlLinks(!open);
    box.SetOpenExteranlLinks(open);
    QCOMPARE(text(box).openExternalLinks(), open);
    QCOMPARE(int(text(box).textInteractionFlags()), 4);
}

void tst_CRkMessageBox::linkOpensInTheBrowser()
{
    Browser browser;
    QDesktopServices::setUrlHandler(QStringLiteral("http"), &browser, "open");
    CRkMessageBox box(nullptr);
    box.SetOpenExteranlLinks(true);
    box.SetMsgText(QStringLiteral("<a href=\"http://127.0.0.1/help\">MMMMMMMM</a>"));
    box.show();
    QVERIFY(comesOnScreen(&box));
    QTest::mouseClick(&text(box), Qt::LeftButton);
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QCOMPARE(browser.opened, QList<QUrl>{QUrl("http://127.0.0.1/help")});
}

void tst_CRkMessageBox::closedByCloseEvent()
{
    CRkMessageBox box(nullptr);
    QCOMPARE(execAnd(box,
                     [&box] {
                         QVERIFY(!box.isClosed());
                         box.close();
                     }),
             0);
    QVERIFY(box.isClosed());
    QVERIFY(box.isHidden());

    CRkMessageBox byButton(nullptr);
    auto* button = byButton.findChild<QPushButton*>(QStringLiteral("m_pBtnClose"));
    QCOMPARE(execAnd(byButton, [button] { button->click(); }), -1);
    QVERIFY(byButton.isClosed());
    QCOMPARE(execAnd(byButton, [&byButton] { byButton.accept(); }), -1);
    QVERIFY(byButton.isClosed());
}

void tst_CRkMessageBox::closeEventHidesAndAccepts()
{
    CRkMessageBox box(nullptr);
    box.show();
    int finished = 0;
    connect(&box, &QDialog::finished, &box, [&finished] { ++finished; });
    QCloseEvent event;
    event.ignore();
    QCoreApplication::sendEvent(&box, &event);
    QVERIFY(event.isAccepted());
    QVERIFY(box.isHidden());
    QVERIFY(box.isClosed());
    QCOMPARE(finished, 0);
}

void tst_CRkMessageBox::otherEndsDoNotCountAsClosed_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "m_pBtnOK" << 1;
    QTest::newRow("Cancel") << "m_pBtnCancel" << 0;
    QTest::newRow("Escape") << QString() << 0;
}

void tst_CRkMessageBox::otherEndsDoNotCountAsClosed()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    CRkMessageBox box(nullptr);
    const int actual = execAnd(box, [&box, &button] {
        if (button.isEmpty())
            QTest::keyClick(&box, Qt::Key_Escape);
        else
            box.findChild<QPushButton*>(button)->click();
    });
    QCOMPARE(actual, result);
    QVERIFY(!box.isClosed());
}

QTEST_MAIN(tst_CRkMessageBox)
#include "tst_CRkMessageBox.moc"
