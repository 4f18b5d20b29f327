// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/PciNames.h"

#include <QTest>

namespace {

const QByteArray database = "# comment\n"
                            "\n"
                            "1002  Advanced Micro Devices, Inc. [AMD/ATI]\n"
                            "\t1638  Cezanne [Radeon Vega Series]\n"
                            "10de  NVIDIA Corporation\n"
                            "\t1c03  GP106 [GeForce GTX 1060 6GB]\n"
                            "\t\t1043 85ac  STRIX GeForce GTX 1060\n"
                            "\t\t2204 1638  A board\n"
                            "# comment between\n"
                            "\n"
                            "\t2204  GA102 [GeForce RTX 3090]\n"
                            "ffff  Illegal Vendor ID\n"
                            "C 03  Display controller\n"
                            "\t00  VGA compatible controller\n";

} // namespace

class tst_PciNames : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void brokenDatabase_data();
    void brokenDatabase();
};

void tst_PciNames::names_data()
{
    QTest::addColumn<int>("vendor");
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, int vendor, int device, const char* expected) {
        QTest::newRow(name) << vendor << device << QString::fromUtf8(expected);
    };
    row("first vendor", 0x1002, 0x1638,
        "Advanced Micro Devices, Inc. [AMD/ATI] Cezanne [Radeon Vega Series]");
    row("first device", 0x10de, 0x1c03, "NVIDIA Corporation GP106 [GeForce GTX 1060 6GB]");
    row("behind boards and comments", 0x10de, 0x2204,
        "NVIDIA Corporation GA102 [GeForce RTX 3090]");
    row("device of a later vendor", 0x1002, 0x1c03,
        "Advanced Micro Devices, Inc. [AMD/ATI] Device 1c03");
    row("device of an earlier vendor", 0x10de, 0x1638, "NVIDIA Corporation Device 1638");
    row("board is no device", 0x10de, 0x1043, "NVIDIA Corporation Device 1043");
    row("vendor without devices", 0xffff, 0x0001, "Illegal Vendor ID Device 0001");
    row("device is no vendor", 0x2204, 0x1043, "Device 2204:1043");
    row("class is no vendor", 0x0003, 0x0000, "Device 0003:0000");
    row("neither known", 0x1a03, 0x000a, "Device 1a03:000a");
}

void tst_PciNames::names()
{
    QFETCH(int, vendor);
    QFETCH(int, device);
    QTEST(PciNames::name(database, quint16(vendor), quint16(device)), "expected");
}

void tst_PciNames::brokenDatabase_data()
{
    QTest::addColumn<QByteArray>("database");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QByteArray& text, const QString& expected) {
        QTest::newRow(name) << text << expected;
    };
    const QString unknown = QStringLiteral("Device 10de:2204");
    row("empty", QByteArray(), unknown);
    row("zeros", QByteArray(5000, '\0'), unknown);
    row("new lines", QByteArray(5000, '\n'), unknown);
    row("cut in the vendor's id", "10d", unknown);
    row("cut behind the vendor's id", "10de", unknown);
    row("vendor without a name", "10de  ", QStringLiteral(" Device 2204"));
    row("cut behind the vendor", "10de  NVIDIA", QStringLiteral("NVIDIA Device 2204"));
    row("cut in the device", "10de  NVIDIA\n\t2204  GA1", QStringLiteral("NVIDIA GA1"));
    row("carriage returns", "1002  AMD\r\n10de  NVIDIA\r\n\t2204  GA102\r\n",
        QStringLiteral("NVIDIA GA102"));
    row("no UTF-8", "10de  NV\xff\xfeIDIA\n\t2204  GA\xc3\n",
        QStringLiteral("NV\ufffd\ufffdIDIA GA\ufffd"));
    row("vendor twice", "10de  First\n\t0001  One\n10de  Second\n\t2204  Two\n",
        QStringLiteral("First Device 2204"));
}

void tst_PciNames::brokenDatabase()
{
    QFETCH(QByteArray, database);
    QTEST(PciNames::name(database, 0x10de, 0x2204), "expected");
}

QTEST_APPLESS_MAIN(tst_PciNames)
#include "tst_PciNames.moc"
