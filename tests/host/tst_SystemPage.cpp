// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostSettings.h"
#include "app/SystemPage.h"
#include "support/WindowWaits.h"

#include <RkBaseUI/CRkSystemInfo.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>

namespace {

SystemValues workstation()
{
    SystemValues values;
    values.processorName = QStringLiteral("Processor <b>One</b>");
    values.processorIdentifier = QStringLiteral("Intel64 Family 6 Model 85 Stepping 7");
    values.processorCount = 40;
    values.processorMhz = QStringLiteral("2100");
    values.storageCount = 4;
    values.diskNames = QStringList{QStringLiteral("Disk A"), QString(), QStringLiteral("Disk C")};
    values.displayCount = 2;
    values.displayNames = QStringList{QStringLiteral("Adapter & more")};
    values.graphicsMemory = QStringLiteral("8192MB");
    values.memory = QStringLiteral("65199");
    values.addressSpace = QStringLiteral("134217727");
    values.operatingSystem = QStringLiteral("Windows 10_10.0.17134_X64 ");
    return values;
}

SystemValues nothing()
{
    return {};
}

QPushButton* copyButton(const SystemPage& page)
{
    return page.findChild<QPushButton*>();
}

/// The label whose buddy has that title.
QLabel* valueOf(const SystemPage& page, const QString& title)
{
    const QList<QLabel*> labels = page.findChildren<QLabel*>();
    const auto found = std::find_if(labels.begin(), labels.end(), [&](const QLabel* label) {
        return label->text() == title && label->buddy();
    });
    return found == labels.end() ? nullptr : qobject_cast<QLabel*>((*found)->buddy());
}

QString shown(const SystemPage& page, const char* title)
{
    const QLabel* value = valueOf(page, QString::fromUtf8(title));
    return value ? value->text() : QStringLiteral("(no such row)");
}

bool isShown(const SystemPage& page, const QString& text)
{
    const QList<QLabel*> labels = page.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text() == text; });
}

} // namespace

class tst_SystemPage : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void showsEveryValue();
    void showsThisComputer();
    void emptyValuesAreNotFound();
    void isThereBeforeTheSystemAnswers();
    void isGatheredOnAnotherThread();
    void asksAgainWhenShownAgain();
    void asksOnceAtATime();
    void goesWhileTheSystemIsAsked();
    void copiesPlainText();
    void copiesNothingBeforeTheAnswer();
    void saysThatItCopied();
    void valuesCanBeSelected();
    void titlesStandInOneColumn();
    void narrowPageWrapsValues();
    void widePageKeepsItsColumn();
    void keysScroll();
    void languageChanges();
};

void tst_SystemPage::cleanup()
{
    HostSettings::installLanguage(QStringLiteral("en"));
    QApplication::clipboard()->clear();
}

void tst_SystemPage::showsEveryValue()
{
    SystemPage page(nullptr, workstation);
    page.show();
    QTRY_VERIFY(page.isGathered());
    QCOMPARE(page.windowTitle(), QStringLiteral("System"));
    QCOMPARE(shown(page, "Name"), QStringLiteral("Processor <b>One</b>"));
    QCOMPARE(shown(page, "Identifier"), QStringLiteral("Intel64 Family 6 Model 85 Stepping 7"));
    QCOMPARE(shown(page, "Logical processors"), QStringLiteral("40"));
    QCOMPARE(shown(page, "Clock"), QStringLiteral("2100 MHz"));
    QCOMPARE(shown(page, "Disks"), QStringLiteral("Disk A\nnot found\nDisk C"));
    QCOMPARE(shown(page, "Storage devices of all kinds"), QStringLiteral("4"));
    QCOMPARE(shown(page, "Display adapters"), QStringLiteral("Adapter & more"));
    QCOMPARE(shown(page, "Number of adapters"), QStringLiteral("2"));
    QCOMPARE(shown(page, "Graphics memory"), QStringLiteral("8192MB"));
    QCOMPARE(shown(page, "Physical memory"), QStringLiteral("65,199 MiB"));
    QCOMPARE(shown(page, "Address space"), QStringLiteral("134,217,727 MiB"));
    QCOMPARE(shown(page, "Version"), QStringLiteral("Windows 10_10.0.17134_X64"));
    for (const QLabel* label : page.findChildren<QLabel*>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

void tst_SystemPage::showsThisComputer()
{
    SystemPage page;
    page.show();
    QTRY_VERIFY(page.isGathered());
    QCOMPARE(shown(page, "Version"), CRkSystemInfo().GetOSVersion().trimmed());
    QString total, virtualTotal;
    CRkSystemInfo().GetMemoryInfo(total, virtualTotal);
    QCOMPARE(shown(page, "Physical memory").remove(QLatin1Char(',')),
             total + QStringLiteral(" MiB"));
    QString name, identifier, mhz;
    int count = 0;
    CRkSystemInfo().GetCpuInfo(name, identifier, count, mhz);
    QCOMPARE(shown(page, "Logical processors"), QString::number(count));
    unsigned long disks = 0;
    QStringList diskNames;
    CRkSystemInfo().GetDiskInfo(disks, diskNames);
    QCOMPARE(shown(page, "Storage devices of all kinds"), QString::number(disks));
    unsigned long adapters = 0;
    QStringList adapterNames;
    QString memory;
    CRkSystemInfo().GetDisplayCardInfo(adapters, adapterNames, memory);
    QCOMPARE(shown(page, "Number of adapters"), QString::number(adapters));
}

void tst_SystemPage::emptyValuesAreNotFound()
{
    SystemPage page(nullptr, nothing);
    page.show();
    QTRY_VERIFY(page.isGathered());
    for (const char* title :
         {"Name", "Identifier", "Logical processors", "Clock", "Disks", "Display adapters",
          "Graphics memory", "Physical memory", "Address space", "Version"})
        QCOMPARE(shown(page, title), QStringLiteral("not found"));
    QCOMPARE(shown(page, "Storage devices of all kinds"), QStringLiteral("0"));
    QCOMPARE(shown(page, "Number of adapters"), QStringLiteral("0"));
}

void tst_SystemPage::isThereBeforeTheSystemAnswers()
{
    QSemaphore answer;
    SystemPage page(nullptr, [&] {
        answer.acquire();
        return workstation();
    });
    page.show();
    QVERIFY(comesOnScreen(&page));
    QVERIFY(!page.isGathered());
    QVERIFY(isShown(page, QString::fromUtf8("Asking the system…")));
    QCOMPARE(shown(page, "Name"), QString());
    QVERIFY(!copyButton(page)->isEnabled());
    answer.release();
    QTRY_VERIFY(page.isGathered());
    QVERIFY(copyButton(page)->isEnabled());
    QVERIFY(!isShown(page, QString::fromUtf8("Asking the system…")));
}

void tst_SystemPage::isGatheredOnAnotherThread()
{
    std::atomic<QThread*> thread(nullptr);
    SystemPage page(nullptr, [&] {
        thread = QThread::currentThread();
        return workstation();
    });
    QVERIFY2(!thread, "nobody is asked before the page is shown");
    page.show();
    QTRY_VERIFY(page.isGathered());
    QVERIFY(thread && thread != QThread::currentThread());
}

void tst_SystemPage::asksAgainWhenShownAgain()
{
    std::atomic<int> calls(0);
    SystemPage page(nullptr, [&] {
        SystemValues values;
        values.processorCount = ++calls;
        return values;
    });
    page.show();
    QTRY_COMPARE(shown(page, "Logical processors"), QStringLiteral("1"));
    page.hide();
    page.show();
    QTRY_COMPARE(shown(page, "Logical processors"), QStringLiteral("2"));
    page.refresh();
    QTRY_COMPARE(shown(page, "Logical processors"), QStringLiteral("3"));
}

void tst_SystemPage::asksOnceAtATime()
{
    QSemaphore answer;
    std::atomic<int> calls(0);
    SystemPage page(nullptr, [&] {
        ++calls;
        answer.acquire();
        return workstation();
    });
    page.show();
    page.refresh();
    page.refresh();
    answer.release(5);
    QTRY_VERIFY(page.isGathered());
    QCOMPARE(int(calls), 1);
}

void tst_SystemPage::goesWhileTheSystemIsAsked()
{
    QSemaphore asked;
    QSemaphore answer;
    std::atomic<bool> isAnswered(false);
    {
        SystemPage page(nullptr, [&] {
            asked.release();
            answer.acquire();
            isAnswered = true;
            return workstation();
        });
        page.show();
        asked.acquire();
        answer.release();
    }
    QVERIFY2(isAnswered, "the page waited for the answer");
    QCoreApplication::processEvents();
}

void tst_SystemPage::copiesPlainText()
{
    SystemPage page(nullptr, workstation);
    page.show();
    QTRY_VERIFY(page.isGathered());
    QTest::mouseClick(copyButton(page), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("System\n"
                            "\nPROCESSOR\n"
                            "Name: Processor <b>One</b>\n"
                            "Identifier: Intel64 Family 6 Model 85 Stepping 7\n"
                            "Logical processors: 40\n"
                            "Clock: 2100 MHz\n"
                            "\nSTORAGE\n"
                            "Disks: Disk A\n"
                            "Disks: not found\n"
                            "Disks: Disk C\n"
                            "Storage devices of all kinds: 4\n"
                            "\nDISPLAY\n"
                            "Display adapters: Adapter & more\n"
                            "Number of adapters: 2\n"
                            "Graphics memory: 8192MB\n"
                            "\nMEMORY\n"
                            "Physical memory: 65,199 MiB\n"
                            "Address space: 134,217,727 MiB\n"
                            "\nOPERATING SYSTEM\n"
                            "Version: Windows 10_10.0.17134_X64\n"));
}

void tst_SystemPage::copiesNothingBeforeTheAnswer()
{
    SystemPage page(nullptr, workstation);
    QApplication::clipboard()->setText(QStringLiteral("the user's own"));
    page.copy();
    QCOMPARE(page.plainText(), QString());
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("the user's own"));
}

void tst_SystemPage::saysThatItCopied()
{
    const QString copied = QStringLiteral("Copied to the clipboard.");
    SystemPage page(nullptr, workstation);
    page.show();
    QTRY_VERIFY(page.isGathered());
    QVERIFY(!isShown(page, copied));
    page.copy();
    QVERIFY(isShown(page, copied));
    page.refresh();
    QTRY_VERIFY(!isShown(page, copied));
}

void tst_SystemPage::valuesCanBeSelected()
{
    SystemPage page(nullptr, workstation);
    page.show();
    QApplication::setActiveWindow(&page);
    QTRY_VERIFY(page.isGathered());
    QLabel* name = valueOf(page, QStringLiteral("Name"));
    name->setFocus();
    QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(name->selectedText(), name->text());
    QTest::keyClick(name, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), name->text());
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->buddy()) {
            const auto* value = qobject_cast<QLabel*>(label->buddy());
            QVERIFY(value->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
            QVERIFY(value->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
        }
    }
}

void tst_SystemPage::titlesStandInOneColumn()
{
    SystemPage page(nullptr, workstation);
    page.show();
    QTRY_VERIFY(page.isGathered());
    QCoreApplication::processEvents();
    QVector<int> columns;
    for (const char* title : {"Name", "Disks", "Graphics memory", "Address space", "Version"}) {
        const QLabel* value = valueOf(page, QLatin1String(title));
        columns.append(value->mapTo(&page, QPoint()).x());
    }
    QCOMPARE(columns, QVector<int>(columns.size(), columns.constFirst()));
}

void tst_SystemPage::narrowPageWrapsValues()
{
    SystemPage page(nullptr, [] {
        SystemValues values = workstation();
        values.processorName = QStringLiteral("A long name ").repeated(20);
        return values;
    });
    page.resize(420, 500);
    page.show();
    QTRY_VERIFY(page.isGathered());
    const QLabel* name = valueOf(page, QStringLiteral("Name"));
    QTRY_VERIFY(name->height() > 3 * name->fontMetrics().height());
    QVERIFY(name->mapTo(&page, QPoint(name->width(), 0)).x() <= page.width());
}

/// In the middle, with the button at its end.
void tst_SystemPage::widePageKeepsItsColumn()
{
    SystemPage page(nullptr, workstation);
    page.resize(1600, 800);
    page.show();
    QTRY_VERIFY(page.isGathered());
    QCoreApplication::processEvents();
    const auto left = [&page](const QWidget* widget) { return widget->mapTo(&page, {}).x(); };
    const QLabel* name = valueOf(page, QStringLiteral("Name"));
    const QPushButton* copy = copyButton(page);
    const int margin = left(copy->parentWidget()->findChild<QLabel*>());
    QVERIFY2(margin > 400, qPrintable(QString::number(margin)));
    QCOMPARE(page.width() - left(copy) - copy->width(), margin);
    QCOMPARE(left(name) + name->width(), left(copy) + copy->width());
}

void tst_SystemPage::keysScroll()
{
    SystemPage page(nullptr, workstation);
    page.resize(600, 300);
    page.show();
    QApplication::setActiveWindow(&page);
    QTRY_VERIFY(page.isGathered());
    page.setFocus();
    const auto* bar = page.findChild<QScrollArea*>()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
    QVERIFY(bar->value() > 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
    QCOMPARE(bar->value(), 0);
}

void tst_SystemPage::languageChanges()
{
    SystemPage page(nullptr, workstation);
    page.show();
    QTRY_VERIFY(page.isGathered());
    page.copy();
    HostSettings::installLanguage(QStringLiteral("zh_CN"));
    QTRY_COMPARE(shown(page, "名称"), QStringLiteral("Processor <b>One</b>"));
    QCOMPARE(page.windowTitle(), QString::fromUtf8("系统信息"));
    QCOMPARE(shown(page, "硬盘"), QString::fromUtf8("Disk A\n未找到\nDisk C"));
    QVERIFY(page.plainText().contains(QString::fromUtf8("显存：8192MB\n")));
    QVERIFY(!isShown(page, QString::fromUtf8("已复制到剪贴板。")));
}

QTEST_MAIN(tst_SystemPage)
#include "tst_SystemPage.moc"
