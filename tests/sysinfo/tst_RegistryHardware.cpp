// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/RegistryHardware.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString mhz = QStringLiteral("~MHz");
const QString nameKey = QStringLiteral("ProcessorNameString");
const QString identifierKey = QStringLiteral("Identifier");
const QString friendlyName = QStringLiteral("/FriendlyName");

} // namespace

/// The keys are files here, which settings objects read as they read the registry.
class tst_RegistryHardware : public QObject
{
    Q_OBJECT

private slots:
    void workstation();
    void missingKey();
    void missingValues();
    void firstSubkeyOnly();
    void keysAreLeftAsTheyWere();
    void wrongTypes_data();
    void wrongTypes();
    void diskAndOpticalDrive();
    void everyDeviceOfEveryDiskType();
    void diskInNameDecides_data();
    void diskInNameDecides();
    void missingFriendlyNameIsEmpty();
    void tenThousandTypes();
    void namesInOtherScripts();

private:
    QString newFile() { return m_folder.filePath(QString::number(++m_files)); }

    QTemporaryDir m_folder;
    int m_files = 0;
};

void tst_RegistryHardware::workstation()
{
    QSettings processors(QStringLiteral(RK_DATA "/workstation-processor.ini"),
                         QSettings::IniFormat);
    const Processor processor = RegistryHardware::processor(processors);
    QCOMPARE(processor.name, QStringLiteral("Intel(R) Core(TM) i5-7500 CPU @ 3.40GHz"));
    QCOMPARE(processor.identifier, QStringLiteral("Intel64 Family 6 Model 158 Stepping 9"));
    QCOMPARE(processor.count, 4);
    QCOMPARE(processor.mhz, QStringLiteral("3408"));
    QSettings scsi(QStringLiteral(RK_DATA "/workstation-scsi.ini"), QSettings::IniFormat);
    const Disks disks = RegistryHardware::disks(scsi);
    QCOMPARE(disks.count, 2UL);
    QCOMPARE(disks.names, QStringList{QStringLiteral("Samsung SSD 860 EVO 500GB")});
}

void tst_RegistryHardware::missingKey()
{
    QSettings key(newFile(), QSettings::IniFormat);
    const Processor processor = RegistryHardware::processor(key);
    QCOMPARE(processor.count, 0);
    QCOMPARE(processor.name + processor.identifier + processor.mhz, QString());
    const Disks disks = RegistryHardware::disks(key);
    QCOMPARE(disks.count, 0UL);
    QCOMPARE(disks.names, QStringList());
}

void tst_RegistryHardware::missingValues()
{
    QSettings key(newFile(), QSettings::IniFormat);
    key.setValue(QStringLiteral("0/VendorIdentifier"), QStringLiteral("GenuineIntel"));
    key.setValue(nameKey, QStringLiteral("of the key itself"));
    const Processor processor = RegistryHardware::processor(key);
    QCOMPARE(processor.count, 1);
    QCOMPARE(processor.name + processor.identifier + processor.mhz, QString());
}

void tst_RegistryHardware::firstSubkeyOnly()
{
    QSettings key(newFile(), QSettings::IniFormat);
    for (int i = 0; i < 12; ++i)
        key.setValue(QStringLiteral("%1/ProcessorNameString").arg(i), QString::number(i));
    key.setValue(QStringLiteral("1/Identifier"), QStringLiteral("of the second"));
    const QString first = key.childGroups().constFirst();
    const Processor processor = RegistryHardware::processor(key);
    QCOMPARE(processor.count, 12);
    QCOMPARE(processor.name, first);
    QCOMPARE(processor.identifier, QString());
}

void tst_RegistryHardware::keysAreLeftAsTheyWere()
{
    QSettings key(newFile(), QSettings::IniFormat);
    key.setValue(QStringLiteral("Disk&Ven_A/1") + friendlyName, QStringLiteral("A"));
    RegistryHardware::processor(key);
    RegistryHardware::disks(key);
    QCOMPARE(key.group(), QString());
    QCOMPARE(key.allKeys(), QStringList{QStringLiteral("Disk&Ven_A/1") + friendlyName});
}

void tst_RegistryHardware::wrongTypes_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("number") << QVariant(2400) << QStringLiteral("2400");
    QTest::newRow("large number") << QVariant(quint64(1) << 40) << QStringLiteral("1099511627776");
    QTest::newRow("negative number") << QVariant(-1) << QStringLiteral("-1");
    QTest::newRow("bytes") << QVariant(QByteArray("3408")) << QStringLiteral("3408");
    QTest::newRow("no bytes") << QVariant(QByteArray()) << QString();
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")})
                          << QString();
    QTest::newRow("point") << QVariant(QPoint(1, 2)) << QString();
    QTest::newRow("nothing") << QVariant() << QString();
}

void tst_RegistryHardware::wrongTypes()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    const QString file = newFile();
    {
        QSettings writer(file, QSettings::IniFormat);
        for (const QString& name : {mhz, nameKey, identifierKey})
            writer.setValue(QStringLiteral("0/") + name, value);
        writer.setValue(QStringLiteral("Disk&Ven_A/1") + friendlyName, value);
    }
    QSettings key(file, QSettings::IniFormat);
    const Processor processor = RegistryHardware::processor(key);
    QCOMPARE(processor.mhz, expected);
    QCOMPARE(processor.name, expected);
    QCOMPARE(processor.identifier, expected);
    QCOMPARE(RegistryHardware::disks(key).names, QStringList{expected});
}

void tst_RegistryHardware::diskAndOpticalDrive()
{
    QSettings key(newFile(), QSettings::IniFormat);
    key.setValue(QStringLiteral("Disk&Ven_Samsung&Prod_SSD/4&1") + friendlyName,
                 QStringLiteral("Samsung SSD"));
    key.setValue(QStringLiteral("CdRom&Ven_HL-DT-ST&Prod_DVD/4&2") + friendlyName,
                 QStringLiteral("HL-DT-ST DVD"));
    const Disks disks = RegistryHardware::disks(key);
    QCOMPARE(disks.count, 2UL);
    QCOMPARE(disks.names, QStringList{QStringLiteral("Samsung SSD")});
}

void tst_RegistryHardware::everyDeviceOfEveryDiskType()
{
    QSettings key(newFile(), QSettings::IniFormat);
    for (const char* path : {"Disk&Ven_A/1", "Disk&Ven_A/2", "Disk&Ven_B/1"})
        key.setValue(QLatin1String(path) + friendlyName, QLatin1String(path));
    const Disks disks = RegistryHardware::disks(key);
    QCOMPARE(disks.count, 2UL);
    QCOMPARE(disks.names,
             (QStringList{QStringLiteral("Disk&Ven_A/1"), QStringLiteral("Disk&Ven_A/2"),
                          QStringLiteral("Disk&Ven_B/1")}));
}

void tst_RegistryHardware::diskInNameDecides_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isDisk");
    QTest::newRow("at the start") << QStringLiteral("Disk&Ven_A") << true;
    QTest::newRow("inside") << QStringLiteral("Other&Ven_FlashDisk") << true;
    QTest::newRow("small") << QStringLiteral("disk&Ven_A") << false;
    QTest::newRow("large") << QStringLiteral("DISK&Ven_A") << false;
    QTest::newRow("optical") << QStringLiteral("CdRom&Ven_A") << false;
}

void tst_RegistryHardware::diskInNameDecides()
{
    QFETCH(QString, type);
    QSettings key(newFile(), QSettings::IniFormat);
    key.setValue(type + QStringLiteral("/1") + friendlyName, QStringLiteral("A"));
    const Disks disks = RegistryHardware::disks(key);
    QCOMPARE(disks.count, 1UL);
    QTEST(!disks.names.isEmpty(), "isDisk");
}

void tst_RegistryHardware::missingFriendlyNameIsEmpty()
{
    QSettings key(newFile(), QSettings::IniFormat);
    key.setValue(QStringLiteral("Disk&Ven_A/1/DeviceDesc"), QStringLiteral("A disk"));
    key.setValue(QStringLiteral("Disk&Ven_A/FriendlyName"), QStringLiteral("of the type"));
    QCOMPARE(RegistryHardware::disks(key).names, QStringList{QString()});
}

void tst_RegistryHardware::tenThousandTypes()
{
    QSettings key(newFile(), QSettings::IniFormat);
    for (int i = 0; i < 10000; ++i)
        key.setValue(QStringLiteral("Disk&Ven_%1/1").arg(i) + friendlyName, QString::number(i));
    const Disks disks = RegistryHardware::disks(key);
    QCOMPARE(disks.count, 10000UL);
    QCOMPARE(disks.names.size(), 10000);
}

void tst_RegistryHardware::namesInOtherScripts()
{
    const QString text = QString::fromUtf8("固态硬盘 \xf0\x9f\x92\xbd, 1 TB");
    QSettings key(newFile(), QSettings::IniFormat);
    key.setValue(QStringLiteral("Disk&Ven_A/1") + friendlyName, text);
    QCOMPARE(RegistryHardware::disks(key).names, QStringList{text});
}

QTEST_GUILESS_MAIN(tst_RegistryHardware)
#include "tst_RegistryHardware.moc"
