// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Machine.h"

#include "support/TestSupport.h"
#include "sysinfo/LinuxProbes.h"
#include "sysinfo/SystemText.h"
#include "sysinfo/SystemTree.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

QByteArray data(const QString& name)
{
    return readFile(QStringLiteral(RK_DATA "/") + name);
}

/// An entry of /sys/block with what a SCSI device tells.
bool addScsi(Machine& machine, const QByteArray& name, const QByteArray& type,
             const QByteArray& vendor, const QByteArray& model)
{
    const QByteArray device = "/sys/block/" + name + "/device/";
    return machine.addFile(device + "type", type) && machine.addFile(device + "vendor", vendor)
        && machine.addFile(device + "model", model);
}

/// An adapter whose attributes have these contents.
bool addAdapter(Machine& machine, const QByteArray& address, const QByteArray& pciClass,
                const QByteArray& vendor, const QByteArray& device)
{
    const QByteArray folder = "/sys/bus/pci/devices/" + address + '/';
    return machine.addFile(folder + "class", pciClass) && machine.addFile(folder + "vendor", vendor)
        && machine.addFile(folder + "device", device);
}

QStringList diskNames(const Machine& machine)
{
    return LinuxProbes::disks(SystemTree(machine.root())).names;
}

QStringList adapters(const Machine& machine)
{
    return LinuxProbes::displayAdapters(SystemTree(machine.root()));
}

} // namespace

class tst_LinuxProbes : public QObject
{
    Q_OBJECT

private slots:
    void processors_data();
    void processors();
    void clockComesFromTheBestSource_data();
    void clockComesFromTheBestSource();
    void disks_data();
    void disks();
    void diskAndOpticalDrive();
    void diskTypes_data();
    void diskTypes();
    void unreadableDisks();
    void diskNamesOfAnyBytes();
    void tenThousandBlockDevices();
    void displayAdapters_data();
    void displayAdapters();
    void adaptersWithoutDatabase();
    void databaseOfEitherPlace();
    void classDecides_data();
    void classDecides();
    void unreadableAdapters();
    void totalMemory_data();
    void totalMemory();
    void emptyMachine();
    void runtimesInTheirOrder();
    void relativeFoldersAreNotSearched();
};

void tst_LinuxProbes::processors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("mhz");
    const auto row = [](const char* machine, const char* name, const char* identifier, int count,
                        const char* mhz) {
        QTest::newRow(machine) << QString::fromUtf8(name) << QString::fromUtf8(identifier) << count
                               << QString::fromUtf8(mhz);
    };
    row("virtual-machine", "AMD EPYC", "AMD64 Family 26 Model 2 Stepping 1", 2, "2596");
    row("workstation", "Intel(R) Core(TM) i5-7500 CPU @ 3.40GHz",
        "Intel64 Family 6 Model 158 Stepping 9", 4, "3400");
    row("server", "Intel(R) Xeon(R) Gold 6230 CPU @ 2.10GHz",
        "Intel64 Family 6 Model 85 Stepping 7", 8, "2100");
    row("laptop", "AMD Ryzen 5 5600H with Radeon Graphics", "AMD64 Family 25 Model 80 Stepping 0",
        4, "1200");
    row("board", "cortex-a72", "ARMv8 (64-bit) Family 8 Model D08 Revision 3", 4, "1500");
    row("arm-server", "", "ARMv8 (64-bit) Family 8 Model D01 Revision 100", 6, "2600");
}

void tst_LinuxProbes::processors()
{
    Machine machine;
    QVERIFY(machine.add(data(QLatin1String(QTest::currentDataTag()) + QLatin1String(".machine"))));
    const Processor processor = LinuxProbes::processor(SystemTree(machine.root()));
    QTEST(processor.name, "name");
    QTEST(processor.identifier, "identifier");
    QTEST(processor.count, "count");
    QTEST(processor.mhz, "mhz");
}

void tst_LinuxProbes::clockComesFromTheBestSource_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("nominal");
    QTest::addColumn<QByteArray>("present");
    QTest::addColumn<QByteArray>("highest");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* base, const char* nominal,
                        const char* present, const char* highest, const char* expected) {
        QTest::newRow(name) << QByteArray(base) << QByteArray(nominal) << QByteArray(present)
                            << QByteArray(highest) << QString::fromLatin1(expected);
    };
    row("base", "2100000", "2200", "2300.4", "2400000", "2100");
    row("nominal", "", "2200", "2300.4", "2400000", "2200");
    row("present", "", "", "2300.4", "2400000", "2300");
    row("highest", "", "", "", "2400000", "2400");
    row("none", "", "", "", "", "");
    row("base of zero", "0", "2200", "2300.4", "2400000", "2200");
    row("base is no number", "fast", "0", "2300.4", "", "2300");
    row("all absurd", "-5", "99999999999", "x", "1", "");
    row("rounded", "2099999", "", "", "", "2100");
}

void tst_LinuxProbes::clockComesFromTheBestSource()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, nominal);
    QFETCH(QByteArray, present);
    QFETCH(QByteArray, highest);
    const QByteArray folder("/sys/devices/system/cpu/cpu0/");
    Machine machine;
    QVERIFY(machine.addFile("/proc/cpuinfo", "processor : 0\ncpu MHz : " + present + '\n'));
    if (!base.isEmpty())
        QVERIFY(machine.addFile(folder + "cpufreq/base_frequency", base + '\n'));
    if (!nominal.isEmpty())
        QVERIFY(machine.addFile(folder + "acpi_cppc/nominal_freq", nominal + '\n'));
    if (!highest.isEmpty())
        QVERIFY(machine.addFile(folder + "cpufreq/cpuinfo_max_freq", highest + '\n'));
    QTEST(LinuxProbes::processor(SystemTree(machine.root())).mhz, "expected");
}

void tst_LinuxProbes::disks_data()
{
    QTest::addColumn<ulong>("count");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* machine, ulong count, const QStringList& names) {
        QTest::newRow(machine) << count << names;
    };
    row("virtual-machine", 10, {"vda"});
    row("workstation", 7,
        {"WDC WD10EZEX-08W", "SanDisk Ultra Fit", "Samsung SSD 970 EVO Plus 500GB"});
    row("server", 7,
        {"DELL PERC H740P Mini", "Dell Express Flash NVMe P4610 1.6TB SFF", "INTEL SSDPE2KX010T8",
         "INTEL SSDPE2KX010T8"});
    row("laptop", 1, {"SKHynix_HFS512GDE9X084N"});
    row("board", 6, {"Seagate Expansion", "SD32G", "BJTD4R"});
    row("arm-server", 1, {"HUAWEI HWE52SS3960L005N"});
}

void tst_LinuxProbes::disks()
{
    Machine machine;
    QVERIFY(machine.add(data(QLatin1String(QTest::currentDataTag()) + QLatin1String(".machine"))));
    const Disks disks = LinuxProbes::disks(SystemTree(machine.root()));
    QTEST(disks.count, "count");
    QTEST(disks.names, "names");
}

void tst_LinuxProbes::diskAndOpticalDrive()
{
    Machine machine;
    QVERIFY(addScsi(machine, "sda", "0\n", "ATA     \n", "Samsung SSD 860 \n"));
    QVERIFY(addScsi(machine, "sr0", "5\n", "HL-DT-ST\n", "DVDRAM GH24NSD1\n"));
    const Disks disks = LinuxProbes::disks(SystemTree(machine.root()));
    QCOMPARE(disks.count, 2UL);
    QCOMPARE(disks.names, QStringList{QStringLiteral("Samsung SSD 860")});
}

void tst_LinuxProbes::diskTypes_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QStringList>("names");
    const QStringList shown{QStringLiteral("Maker Model")};
    QTest::newRow("direct access") << QByteArray("0\n") << shown;
    QTest::newRow("tape") << QByteArray("1\n") << QStringList();
    QTest::newRow("optical") << QByteArray("5\n") << QStringList();
    QTest::newRow("magneto-optical") << QByteArray("7\n") << QStringList();
    QTest::newRow("reduced direct access") << QByteArray("14\n") << shown;
    QTest::newRow("zoned") << QByteArray("20\n") << shown;
    QTest::newRow("absurd number") << QByteArray("99\n") << QStringList();
    QTest::newRow("flash card") << QByteArray("SD\n") << shown;
    QTest::newRow("empty") << QByteArray() << shown;
}

void tst_LinuxProbes::diskTypes()
{
    QFETCH(QByteArray, type);
    Machine machine;
    QVERIFY(addScsi(machine, "sda", type, "Maker", "Model"));
    QTEST(diskNames(machine), "names");
}

/// Attributes that are folders or lead nowhere cannot be read, whoever asks.
void tst_LinuxProbes::unreadableDisks()
{
    Machine machine;
    QVERIFY(machine.addFolder("/sys/block/sda/device/model"));
    QVERIFY(machine.addFolder("/sys/block/sda/device/vendor"));
    QVERIFY(machine.addLink("/sys/block/sdb/device/model", "model"));
    QVERIFY(machine.addFile("/sys/block/sdb/device/vendor", "Maker\n"));
    QVERIFY(machine.addLink("/sys/block/sdc/device", "../../nowhere"));
    QVERIFY(machine.addLink("/sys/block/sdd", "../nowhere"));
    QVERIFY(machine.addFile("/sys/block/sde", "a file"));
    const Disks disks = LinuxProbes::disks(SystemTree(machine.root()));
    QCOMPARE(disks.count, 5UL);
    QCOMPARE(disks.names, (QStringList{QStringLiteral("sda"), QStringLiteral("Maker")}));
}

void tst_LinuxProbes::diskNamesOfAnyBytes()
{
    Machine machine;
    QVERIFY(addScsi(machine, "sda", "0\n", "M\xffker\n", QByteArray("Mod\0el\x1b  \n", 10)));
    QVERIFY(machine.addFolder("/sys/block/\xff\xfe/device"));
    QVERIFY(addScsi(machine, "sdc", "0\n", "M", QByteArray(100000, 'm')));
    QCOMPARE(diskNames(machine),
             (QStringList{QStringLiteral("\ufffd\ufffd"), QStringLiteral("M\ufffdker Mod el"),
                          QStringLiteral("M ") + QString(100000, QLatin1Char('m'))}));
}

void tst_LinuxProbes::tenThousandBlockDevices()
{
    Machine machine;
    QVERIFY(machine.addManyNames("/sys/block/loop", 9990));
    QStringList expected;
    for (int i = 0; i < 10; ++i) {
        const QByteArray digit = QByteArray::number(i);
        QVERIFY(addScsi(machine, "sd" + QByteArray(1, char('j' - i)), "0\n", "Maker", digit));
        expected.prepend(QStringLiteral("Maker ") + QLatin1String(digit));
    }
    const Disks disks = LinuxProbes::disks(SystemTree(machine.root()));
    QCOMPARE(disks.count, 10000UL);
    QCOMPARE(disks.names, expected);
}

void tst_LinuxProbes::displayAdapters_data()
{
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* machine, const QStringList& names) {
        QTest::newRow(machine) << names;
    };
    row("virtual-machine", {});
    row("board", {});
    row("workstation", {"NVIDIA Corporation GP106 [GeForce GTX 1060 6GB]"});
    row("server", {"NVIDIA Corporation Device fff0", "NVIDIA Corporation TU104GL [Tesla T4]"});
    row("laptop",
        {"NVIDIA Corporation GA106M [GeForce RTX 3060 Mobile / Max-Q]",
         "Advanced Micro Devices, Inc. [AMD/ATI] Cezanne [Radeon Vega Series / Radeon Vega Mobile "
         "Series]"});
    row("arm-server",
        {"Huawei Technologies Co., Ltd. Hi171x Series [iBMC Intelligent Management system chip "
         "w/VGA support]"});
}

void tst_LinuxProbes::displayAdapters()
{
    Machine machine;
    QVERIFY(machine.add(data(QLatin1String(QTest::currentDataTag()) + QLatin1String(".machine"))));
    QVERIFY(machine.addFile("/usr/share/misc/pci.ids", data(QStringLiteral("pci.ids"))));
    QTEST(adapters(machine), "names");
}

void tst_LinuxProbes::adaptersWithoutDatabase()
{
    Machine machine;
    QVERIFY(machine.add(data(QStringLiteral("laptop.machine"))));
    QCOMPARE(adapters(machine),
             (QStringList{QStringLiteral("Device 10de:2520"), QStringLiteral("Device 1002:1638")}));
}

void tst_LinuxProbes::databaseOfEitherPlace()
{
    Machine machine;
    QVERIFY(addAdapter(machine, "0000:01:00.0", "0x030000\n", "0x10de\n", "0x0001\n"));
    QVERIFY(machine.addFile("/usr/share/misc/pci.ids", "10de  Second place\n"));
    QCOMPARE(adapters(machine), QStringList{QStringLiteral("Second place Device 0001")});
    QVERIFY(machine.addFile("/usr/share/hwdata/pci.ids", "10de  First place\n"));
    QCOMPARE(adapters(machine), QStringList{QStringLiteral("First place Device 0001")});
}

void tst_LinuxProbes::classDecides_data()
{
    QTest::addColumn<QByteArray>("pciClass");
    QTest::addColumn<bool>("isAdapter");
    QTest::newRow("VGA") << QByteArray("0x030000\n") << true;
    QTest::newRow("XGA") << QByteArray("0x030100\n") << true;
    QTest::newRow("3D") << QByteArray("0x030200\n") << true;
    QTest::newRow("other display") << QByteArray("0x038000\n") << true;
    QTest::newRow("network") << QByteArray("0x020000\n") << false;
    QTest::newRow("multimedia") << QByteArray("0x040300\n") << false;
    QTest::newRow("one digit too many") << QByteArray("0x1030000\n") << false;
    QTest::newRow("small") << QByteArray("0x03\n") << false;
    QTest::newRow("no number") << QByteArray("display\n") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void tst_LinuxProbes::classDecides()
{
    QFETCH(QByteArray, pciClass);
    Machine machine;
    QVERIFY(addAdapter(machine, "0000:01:00.0", pciClass, "0x10de\n", "0x0001\n"));
    QTEST(!adapters(machine).isEmpty(), "isAdapter");
}

void tst_LinuxProbes::unreadableAdapters()
{
    Machine machine;
    const QByteArray folder("/sys/bus/pci/devices/");
    QVERIFY(machine.addFile(folder + "0000:00:01.0/class", "0x030000\n"));
    QVERIFY(machine.addFolder(folder + "0000:00:01.0/vendor"));
    QVERIFY(machine.addFolder(folder + "0000:00:02.0/class"));
    QVERIFY(machine.addLink(folder + "0000:00:03.0", "nowhere"));
    QVERIFY(machine.addFile(folder + "0000:00:04.0", "a file"));
    QVERIFY(addAdapter(machine, "0000:00:05.0", "0x030000\n", "0x110de\n", "0x0001\n"));
    QVERIFY(addAdapter(machine, "0000:00:06.0", "0x030000\n", "0x10de\n", "0x10001\n"));
    QVERIFY(addAdapter(machine, "0000:00:07.0", "0x030000\n", "0x10de\n", "0x0001\n"));
    QCOMPARE(adapters(machine), QStringList{QStringLiteral("Device 10de:0001")});
}

void tst_LinuxProbes::totalMemory_data()
{
    QTest::addColumn<quint64>("expected");
    QTest::newRow("virtual-machine") << quint64(24105);
    QTest::newRow("workstation") << quint64(15936);
    QTest::newRow("server") << quint64(385504);
    QTest::newRow("board") << quint64(3794);
}

void tst_LinuxProbes::totalMemory()
{
    Machine machine;
    QVERIFY(machine.add(data(QLatin1String(QTest::currentDataTag()) + QLatin1String(".machine"))));
    QTEST(SystemText::totalMemory(SystemTree(machine.root()).read("/proc/meminfo")), "expected");
}

void tst_LinuxProbes::emptyMachine()
{
    const Machine machine;
    const SystemTree tree(machine.root());
    const Processor processor = LinuxProbes::processor(tree);
    QCOMPARE(processor.count, 0);
    QCOMPARE(processor.name + processor.identifier + processor.mhz, QString());
    QCOMPARE(LinuxProbes::disks(tree).count, 0UL);
    QCOMPARE(diskNames(machine), QStringList());
    QCOMPARE(adapters(machine), QStringList());
    QCOMPARE(LinuxProbes::cudaLibraries(tree, {}), QStringList());
}

void tst_LinuxProbes::runtimesInTheirOrder()
{
    Machine searched;
    for (const char* name : {"libcudart.so.9.2", "libcudart.so", "libcudart.so.12",
                             "libcudart_static.a", "libcudart.software", "libcuda.so.1"})
        QVERIFY(searched.addFile(QByteArray("/lib/") + name, "x"));
    Machine machine;
    QVERIFY(machine.addFile(
        "/etc/ld.so.cache",
        QByteArray("|libcudart.so.11.0|/opt/lib/libcudart.so.11.0|").replace('|', '\0')));
    QVERIFY(machine.addFile("/usr/local/cuda/lib64/libcudart.so.13", "x"));
    QVERIFY(machine.addFile("/opt/cuda/lib64/libcudart.so.10.1", "x"));
    const QString first = QFile::decodeName(searched.root()) + QStringLiteral("/lib/");
    const QString root = QFile::decodeName(machine.root());
    QCOMPARE(LinuxProbes::cudaLibraries(SystemTree(machine.root()), searched.root() + "/lib"),
             (QStringList{first + QStringLiteral("libcudart.so.12"),
                          first + QStringLiteral("libcudart.so.9.2"),
                          first + QStringLiteral("libcudart.so"),
                          root + QStringLiteral("/opt/lib/libcudart.so.11.0"),
                          root + QStringLiteral("/usr/local/cuda/lib64/libcudart.so.13"),
                          root + QStringLiteral("/opt/cuda/lib64/libcudart.so.10.1")}));
}

void tst_LinuxProbes::relativeFoldersAreNotSearched()
{
    Machine machine;
    QVERIFY(machine.addFile("/lib/libcudart.so.12", "x"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QFile::decodeName(machine.root())));
    const QStringList found =
        LinuxProbes::cudaLibraries(SystemTree(machine.root()), ":lib:./lib::");
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(found, QStringList());
}

QTEST_APPLESS_MAIN(tst_LinuxProbes)
#include "tst_LinuxProbes.moc"
