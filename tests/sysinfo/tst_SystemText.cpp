// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/SystemText.h"

#include <QTest>

namespace {

const QByteArray intel = "processor\t: 0\n"
                         "vendor_id\t: GenuineIntel\n"
                         "cpu family\t: 6\n"
                         "model\t\t: 85\n"
                         "model name\t: Intel(R) Xeon(R) Gold 6230 CPU @ 2.10GHz\n"
                         "stepping\t: 7\n"
                         "cpu MHz\t\t: 2095.076\n"
                         "flags\t\t: fpu lm sse\n"
                         "\n"
                         "processor\t: 1\n"
                         "vendor_id\t: GenuineIntel\n"
                         "model name\t: of the second\n"
                         "cpu MHz\t\t: 1000.000\n"
                         "\n";

const QByteArray arm = "processor\t: 0\n"
                       "CPU implementer\t: 0x51\n"
                       "CPU architecture: 8\n"
                       "CPU variant\t: 0x7\n"
                       "CPU part\t: 0x803\n"
                       "CPU revision\t: 12\n";

/// The text with another value in the place of one.
QByteArray with(QByteArray text, const char* before, const char* after)
{
    return text.replace(before, after);
}

} // namespace

class tst_SystemText : public QObject
{
    Q_OBJECT

private slots:
    void processors_data();
    void processors();
    void badProcessors_data();
    void badProcessors();
    void everyPrefixIsBorne_data();
    void everyPrefixIsBorne();
    void clock_data();
    void clock();
    void manyProcessors();
    void totalMemory_data();
    void totalMemory();
    void addressSpace_data();
    void addressSpace();
    void clean_data();
    void clean();
    void hexNumber_data();
    void hexNumber();
};

void tst_SystemText::processors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("identifier");
    const auto row = [](const char* title, const QByteArray& text, int count, const char* name,
                        const char* identifier) {
        QTest::newRow(title) << text << count << QString::fromUtf8(name)
                             << QString::fromUtf8(identifier);
    };
    const char* gold = "Intel(R) Xeon(R) Gold 6230 CPU @ 2.10GHz";
    row("Intel", intel, 2, gold, "Intel64 Family 6 Model 85 Stepping 7");
    row("AMD", with(intel, "GenuineIntel", "AuthenticAMD"), 2, gold,
        "AMD64 Family 6 Model 85 Stepping 7");
    row("VIA", with(intel, "GenuineIntel", "CentaurHauls"), 2, gold,
        "VIA64 Family 6 Model 85 Stepping 7");
    row("other vendor", with(intel, "GenuineIntel", "HygonGenuine"), 2, gold,
        "AMD64 Family 6 Model 85 Stepping 7");
    row("32 bits", with(intel, "fpu lm sse", "fpu lm64 sse"), 2, gold,
        "x86 Family 6 Model 85 Stepping 7");
    row("last flag", with(intel, "fpu lm sse", "fpu lm"), 2, gold,
        "Intel64 Family 6 Model 85 Stepping 7");
    row("stepping not known", with(intel, "stepping\t: 7", "stepping\t: unknown"), 2, gold, "");
    row("ARM", arm, 1, "", "ARMv8 (64-bit) Family 8 Model 803 Revision 70C");
    row("ARM with letters", with(arm, "0x803", "0xd08"), 1, "",
        "ARMv8 (64-bit) Family 8 Model D08 Revision 70C");
    row("ARM of an older kernel", with(arm, "architecture: 8", "architecture: AArch64"), 1, "",
        "ARMv8 (64-bit) Family 8 Model 803 Revision 70C");
    row("ARM with a count before the cores",
        "Processor\t: ARMv7 Processor rev 10 (v7l)\n"
        "processor\t: 0\nBogoMIPS\t: 7.5\n\nprocessor\t: 1\nBogoMIPS\t: 7.5\n\n"
        "Features\t: swp half\nCPU implementer\t: 0x41\nCPU architecture: 7\n"
        "CPU variant\t: 0x2\nCPU part\t: 0xc09\nCPU revision\t: 10\n",
        2, "ARMv7 Processor rev 10 (v7l)", "ARMv7 (32-bit) Family 7 Model C09 Revision 20A");
    row("ARM without a part", with(arm, "CPU part\t: 0x803\n", ""), 1, "", "");
    row("ARM before the numbers of parts", with(arm, "architecture: 8", "architecture: TEJ"), 1, "",
        "");
    row("POWER",
        "processor\t: 0\ncpu\t\t: POWER9, altivec supported\nclock\t\t: 3800.000000MHz\n"
        "revision\t: 2.2\n",
        1, "POWER9, altivec supported", "");
    row("other letters", "processor : 0\nModel Name : Loongson-3A5000\nCPU MHz : 2500.00\n", 1,
        "Loongson-3A5000", "");
}

void tst_SystemText::processors()
{
    QFETCH(QByteArray, text);
    const Processor processor = SystemText::processor(text);
    QTEST(processor.count, "count");
    QTEST(processor.name, "name");
    QTEST(processor.identifier, "identifier");
}

void tst_SystemText::badProcessors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("zeros") << QByteArray(5000, '\0') << 0;
    QTest::newRow("new lines") << QByteArray(5000, '\n') << 0;
    QTest::newRow("colons") << QByteArray(5000, ':') << 0;
    QTest::newRow("one key over and over") << QByteArray("processor").repeated(2000) << 0;
    QTest::newRow("key inside a line") << QByteArray("my processor : 0\nprocessors : 2\n") << 0;
    QTest::newRow("nothing but the key") << QByteArray("processor:") << 1;
    QTest::newRow("values without keys") << QByteArray("processor : 0\n: 5\n : \n") << 1;
    QTest::newRow("values of other kinds")
        << QByteArray("processor : x\nvendor_id : 5\ncpu family : -6\nmodel : \n"
                      "stepping : 99999999999\ncpu MHz : fast\n")
        << 1;
    QTest::newRow("no UTF-8") << QByteArray("processor : 0\n\xff\xfe : \x80\n") << 1;
}

void tst_SystemText::badProcessors()
{
    QFETCH(QByteArray, text);
    const Processor processor = SystemText::processor(text);
    QTEST(processor.count, "count");
    QCOMPARE(processor.name + processor.identifier + processor.mhz, QString());
}

void tst_SystemText::everyPrefixIsBorne_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("Intel") << intel;
    QTest::newRow("ARM") << arm;
}

/// What a text that is cut tells is empty, or what the whole one tells, or the begin of it.
void tst_SystemText::everyPrefixIsBorne()
{
    QFETCH(QByteArray, text);
    const Processor whole = SystemText::processor(text);
    for (int size = 0; size < text.size(); ++size) {
        const Processor cut = SystemText::processor(text.left(size));
        QVERIFY(cut.count <= whole.count);
        QVERIFY(whole.name.startsWith(cut.name));
        QVERIFY(cut.identifier.size() <= whole.identifier.size());
        QVERIFY(whole.mhz.startsWith(cut.mhz));
    }
}

void tst_SystemText::clock_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("fraction below a half") << QByteArray("2095.076") << QStringLiteral("2095");
    QTest::newRow("fraction above a half") << QByteArray("3399.998") << QStringLiteral("3400");
    QTest::newRow("no fraction") << QByteArray("800") << QStringLiteral("800");
    QTest::newRow("with its unit") << QByteArray("3800.000000MHz") << QStringLiteral("3800");
    QTest::newRow("zero") << QByteArray("0.000") << QString();
    QTest::newRow("negative") << QByteArray("-2095.076") << QString();
    QTest::newRow("endless") << QByteArray("inf") << QString();
    QTest::newRow("no number") << QByteArray("nan") << QString();
    QTest::newRow("absurd") << QByteArray("1e300") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
}

void tst_SystemText::clock()
{
    QFETCH(QByteArray, value);
    QTEST(SystemText::processor(with(intel, "2095.076", value.constData())).mhz, "expected");
}

void tst_SystemText::manyProcessors()
{
    const Processor processor = SystemText::processor(intel.repeated(2048));
    QCOMPARE(processor.count, 4096);
    QCOMPARE(processor.mhz, QStringLiteral("2095"));
}

void tst_SystemText::totalMemory_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<quint64>("expected");
    const auto row = [](const char* name, const char* text, quint64 expected) {
        QTest::newRow(name) << QByteArray(text) << expected;
    };
    row("rounds down", "MemTotal:       24684092 kB\nMemFree:        19658468 kB\n", 24105);
    row("not in the first line", "MemFree: 1 kB\nMemTotal: 2048 kB\n", 2);
    row("below a MiB", "MemTotal: 1023 kB\n", 0);
    row("huge", "MemTotal: 18014398509481984 kB\n", quint64(1) << 44);
    row("empty", "", 0);
    row("cut in the number", "MemTotal:       2468", 0);
    row("cut in the unit", "MemTotal:       24684092 k", 0);
    row("other unit", "MemTotal: 24684092 MB\n", 0);
    row("negative", "MemTotal: -5 kB\n", 0);
    row("too large a number", "MemTotal: 99999999999999999999999 kB\n", 0);
    row("other line", "MyMemTotal: 2048 kB\n", 0);
}

void tst_SystemText::totalMemory()
{
    QFETCH(QByteArray, text);
    QTEST(SystemText::totalMemory(text), "expected");
}

void tst_SystemText::addressSpace_data()
{
    QTest::addColumn<quint64>("highAddress");
    QTest::addColumn<quint64>("limit");
    QTest::addColumn<quint64>("expected");
    const quint64 none = ~quint64(0);
    const auto row = [](const char* name, quint64 address, quint64 limit, quint64 expected) {
        QTest::newRow(name) << address << limit << expected;
    };
    row("x86, 47 bits", 0x7ffd4c3e2fe0, none, 134217727);
    row("end of the stack not near the end", 0x7000'0000'0000, none, 134217727);
    row("ARM, 48 bits", 0xffffe2b1fff0, none, 268435455);
    row("ARM, 39 bits", 0x7fe2b1fff0, none, 524287);
    row("32 bits", 0xbf8a1ff0, none, 4095);
    row("limited to 8 GiB", 0x7ffd4c3e2fe0, quint64(8) << 30, 8192);
    row("limit above the end", 0x7ffd4c3e2fe0, quint64(1) << 60, 134217727);
    row("nothing known", 0, none, 0);
    row("highest address", none, none, (quint64(1) << 43) - 1);
    row("nothing allowed", 0x7ffd4c3e2fe0, 0, 0);
}

void tst_SystemText::addressSpace()
{
    QFETCH(quint64, highAddress);
    QFETCH(quint64, limit);
    QTEST(SystemText::addressSpace(highAddress, 4096, limit), "expected");
}

void tst_SystemText::clean_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("padded") << QByteArray("  Ultra Fit       \n") << QStringLiteral("Ultra Fit");
    QTest::newRow("blanks inside") << QByteArray("WDC  WD10") << QStringLiteral("WDC WD10");
    QTest::newRow("control characters")
        << QByteArray("A\0B\x1b[1mC\x7f", 9) << QStringLiteral("A B [1mC");
    QTest::newRow("Chinese") << QByteArray("固态硬盘") << QString::fromUtf8("固态硬盘");
    QTest::newRow("no UTF-8") << QByteArray("A\xff\xfe\x42") << QStringLiteral("A\ufffd\ufffdB");
    QTest::newRow("cut in a character")
        << QByteArray("A\xe5\x9b") << QStringLiteral("A\ufffd\ufffd");
    QTest::newRow("blanks") << QByteArray(" \t\n ") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
}

void tst_SystemText::clean()
{
    QFETCH(QByteArray, text);
    QTEST(SystemText::clean(text), "expected");
}

void tst_SystemText::hexNumber_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("expected");
    const auto row = [](const char* name, const char* text, qint64 expected) {
        QTest::newRow(name) << QByteArray(text) << expected;
    };
    row("attribute", "0x10de\n", 0x10de);
    row("without its prefix", "10de", 0x10de);
    row("zero", "0x0", 0);
    row("largest", "0xffffffff", 0xffffffff);
    row("too large", "0x100000000", -1);
    row("negative", "-1", -1);
    row("prefix alone", "0x", -1);
    row("two numbers", "0x10 0x20", -1);
    row("no number", "virtio", -1);
    row("empty", "", -1);
}

void tst_SystemText::hexNumber()
{
    QFETCH(QByteArray, text);
    QTEST(SystemText::hexNumber(text), "expected");
}

QTEST_APPLESS_MAIN(tst_SystemText)
#include "tst_SystemText.moc"
