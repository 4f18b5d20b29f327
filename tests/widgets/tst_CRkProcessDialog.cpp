// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkProcessDialog.h>

#include "support/Brackets.h"
#include "support/WindowWaits.h"

#include "widgets/AtScale.h"
#include "widgets/Render.h"

#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

namespace {

template <typename T>
T& part(const CRkProcessDialog& dialog, const char* name)
{
    return *dialog.findChild<T*>(QString::fromLatin1(name));
}

QString count(const CRkProcessDialog& dialog)
{
    return part<QLabel>(dialog, "label_sum").text();
}

} // namespace

class tst_CRkProcessDialog : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void window();
    void titleIsTranslated();
    void movie();
    void movieRunsOnTheScreen();
    void movieIsSharpAtEveryScale_data() { addScales(); }
    void movieIsSharpAtEveryScale();
    void counting();
    void startCountsFromZero();
    void extremeSums_data();
    void extremeSums();
    void state();
    void endlessStateStaysOnTheScreen_data();
    void endlessStateStaysOnTheScreen();
    void currentProcessIsNotShown();
    void okButtonFlagDoesNothing();
    void stopClosesASecondLater();
    void stopKeepsTheLabel();
    void destroyedWhileStopping();
};

void tst_CRkProcessDialog::form()
{
    const CRkProcessDialog dialog(nullptr);
    const auto& grid = part<QGridLayout>(dialog, "gridLayout");
    QCOMPARE(dialog.layout(), &grid);
    QCOMPARE(grid.horizontalSpacing(), 0);
    QCOMPARE(grid.verticalSpacing(), 0);
    QCOMPARE(grid.contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid.itemAtPosition(0, 0)->widget(), &part<QWidget>(dialog, "label_movie"));
    QCOMPARE(grid.itemAtPosition(0, 1)->widget(), &part<QWidget>(dialog, "widget"));

    const auto& inner = part<QGridLayout>(dialog, "gridLayout_2");
    QCOMPARE(part<QWidget>(dialog, "widget").layout(), &inner);
    const auto& current = part<QLabel>(dialog, "label_cur");
    QCOMPARE(inner.itemAtPosition(0, 0)->widget(), &current);
    QCOMPARE(current.alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(current.text(), QString("0%"));
    const auto& sum = part<QLabel>(dialog, "label_sum");
    QCOMPARE(inner.itemAtPosition(1, 0)->widget(), &sum);
    QCOMPARE(sum.alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(sum.text(), QString("0/0"));
    QVERIFY(dialog.findChildren<QPushButton*>().isEmpty());
}

void tst_CRkProcessDialog::window()
{
    const CRkProcessDialog dialog(nullptr);
    QCOMPARE(dialog.size(), QSize(299, 150));
    QCOMPARE(dialog.windowFlags() & ~Qt::WindowType_Mask, Qt::FramelessWindowHint);
    QVERIFY(dialog.isWindow());
    QVERIFY(!dialog.isModal());

    QWidget parent;
    const CRkProcessDialog embedded(&parent);
    QCOMPARE(int(embedded.windowFlags()), 0x800);
    QVERIFY(!embedded.isWindow());
}

void tst_CRkProcessDialog::titleIsTranslated()
{
    QCOMPARE(CRkProcessDialog(nullptr).windowTitle(), QString("Vantrell"));
    Brackets brackets("CRkProcessDialog");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    QCOMPARE(CRkProcessDialog(nullptr).windowTitle(), QString("[Vantrell]"));
}

void tst_CRkProcessDialog::movie()
{
    const CRkProcessDialog dialog(nullptr);
    QMovie* movie = part<QLabel>(dialog, "label_movie").movie();
    QVERIFY(movie);
    QVERIFY(movie->isValid());
    QCOMPARE(movie->fileName(), QString(":/images/Normal/loading.gif"));
    QCOMPARE(movie->format(), QByteArray("gif"));
    QCOMPARE(movie->scaledSize(), QSize(150, 150));
    QCOMPARE(movie->state(), QMovie::Running);
    QCOMPARE(movie->currentPixmap().size(), QSize(150, 150));
}

void tst_CRkProcessDialog::movieRunsOnTheScreen()
{
    CRkProcessDialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    const auto& label = part<QLabel>(dialog, "label_movie");
    QCOMPARE(label.size(), QSize(150, 150));
    QSignalSpy frames(label.movie(), &QMovie::frameChanged);
    const QImage first = dialog.grab().toImage();
    QVERIFY(frames.wait());
    QTRY_VERIFY(dialog.grab().toImage() != first);
}

void tst_CRkProcessDialog::movieIsSharpAtEveryScale()
{
    QFETCH(int, scale);
    if (!isAtScale(scale))
        return;
    const CRkProcessDialog dialog(nullptr);
    const auto& label = part<QLabel>(dialog, "label_movie");
    const QPixmap frame = label.movie()->currentPixmap();
    QCOMPARE(frame.size(), QSize(150, 150) * scale);
    QCOMPARE(frame.devicePixelRatio(), qreal(scale));
    QCOMPARE(label.sizeHint(), QSize(150, 150));
}

void tst_CRkProcessDialog::counting()
{
    CRkProcessDialog dialog(nullptr);
    dialog.setSumNum(10);
    QCOMPARE(count(dialog), QString("0/10"));
    for (int i = 0; i < 3; ++i)
        dialog.addCurNum();
    QCOMPARE(count(dialog), QString("3/10"));
    dialog.setSumNum(2000);
    QCOMPARE(count(dialog), QString("3/2000"));
}

void tst_CRkProcessDialog::startCountsFromZero()
{
    CRkProcessDialog dialog(nullptr);
    dialog.setSumNum(4);
    dialog.addCurNum();
    dialog.StartMoive();
    QCOMPARE(count(dialog), QString("0/4"));
    dialog.addCurNum();
    QCOMPARE(count(dialog), QString("1/4"));
}

void tst_CRkProcessDialog::extremeSums_data()
{
    QTest::addColumn<int>("sum");
    QTest::addColumn<QString>("text");
    QTest::newRow("largest") << std::numeric_limits<int>::max() << "0/2147483647";
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << "0/-2147483648";
}

void tst_CRkProcessDialog::extremeSums()
{
    QFETCH(int, sum);
    QFETCH(QString, text);
    CRkProcessDialog dialog(nullptr);
    dialog.setSumNum(sum);
    QCOMPARE(count(dialog), text);
}

void tst_CRkProcessDialog::state()
{
    CRkProcessDialog dialog(nullptr);
    dialog.SetProcessState("Reading the blocks");
    QCOMPARE(part<QLabel>(dialog, "label_cur").text(), QString("Reading the blocks"));
    QCOMPARE(count(dialog), QString("0/0"));
}

void tst_CRkProcessDialog::endlessStateStaysOnTheScreen_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("one word") << QString(100000, QLatin1Char('m'));
    QTest::newRow("many words") << QString("word ").repeated(20000);
    QTest::newRow("many lines") << QString("a\n").repeated(50000);
}

void tst_CRkProcessDialog::endlessStateStaysOnTheScreen()
{
    QFETCH(QString, state);
    CRkProcessDialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    dialog.SetProcessState(state);
    const auto& label = part<QLabel>(dialog, "label_cur");
    QCOMPARE(label.text(), state);
    QTRY_VERIFY(label.width() > 400 || label.height() > 200);
    QVERIFY(dialog.width() < 850);
    QVERIFY(dialog.height() < 450);
    QVERIFY(dialog.rect().contains(part<QWidget>(dialog, "label_movie").geometry()));
}

void tst_CRkProcessDialog::currentProcessIsNotShown()
{
    CRkProcessDialog dialog(nullptr);
    dialog.setCurrentProcess("50%");
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        QVERIFY(label->text() != "50%");
}

void tst_CRkProcessDialog::okButtonFlagDoesNothing()
{
    CRkProcessDialog dialog(nullptr);
    part<QLabel>(dialog, "label_movie").movie()->setPaused(true);
    const QImage paused = dialog.grab().toImage();
    dialog.SetOkBtnHidden(true);
    QCOMPARE(dialog.grab().toImage(), paused);
    dialog.SetOkBtnHidden(false);
    QCOMPARE(dialog.grab().toImage(), paused);
}

void tst_CRkProcessDialog::stopClosesASecondLater()
{
    CRkProcessDialog dialog(nullptr);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QElapsedTimer timer;
    timer.start();
    dialog.StopMoive();
    QVERIFY(dialog.isVisible());
    QVERIFY(rejected.wait());
    QVERIFY(timer.elapsed() >= 999); // The timer counts in whole milliseconds.
    QVERIFY(!dialog.isVisible());
}

void tst_CRkProcessDialog::stopKeepsTheLabel()
{
    CRkProcessDialog dialog(nullptr);
    dialog.setSumNum(2);
    dialog.addCurNum();
    dialog.addCurNum();
    dialog.StopMoive();
    QCOMPARE(count(dialog), QString("2/2"));
    dialog.addCurNum();
    QCOMPARE(count(dialog), QString("1/2"));
}

void tst_CRkProcessDialog::destroyedWhileStopping()
{
    auto dialog = std::make_unique<CRkProcessDialog>(nullptr);
    dialog->show();
    dialog->StopMoive();
    dialog.reset();
    CRkProcessDialog later(nullptr);
    later.show();
    QSignalSpy rejected(&later, &QDialog::rejected);
    later.StopMoive();
    QVERIFY(rejected.wait());
}

QTEST_MAIN(tst_CRkProcessDialog)
#include "tst_CRkProcessDialog.moc"
