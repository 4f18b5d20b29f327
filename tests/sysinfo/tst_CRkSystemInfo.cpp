// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"

#include <RkBaseUI/CRkSystemInfo.h>

#include <QDir>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSysInfo>
#include <QTest>
#include <QUuid>

#include <cerrno>
#include <thread>
#include <vector>

#ifdef Q_OS_WIN
#include <windows.h>

#include <string>
#endif

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_WIN
const char* const searchPath = "PATH";
#else
const char* const searchPath = "LD_LIBRARY_PATH";
#endif

struct Display
{
    unsigned long count = 77;
    QStringList names;
    QString memory = QStringLiteral("as before");
};

Display display(const QStringList& names = {})
{
    Display result;
    result.names = names;
    CRkSystemInfo().GetDisplayCardInfo(result.count, result.names, result.memory);
    return result;
}

/// Everything in one text.
QString everything()
{
    CRkSystemInfo info;
    QString name, identifier, mhz, memory, total, virtualTotal;
    int processors = 0;
    unsigned long disks = 0;
    unsigned long adapters = 0;
    QStringList diskNames, adapterNames;
    info.GetCpuInfo(name, identifier, processors, mhz);
    info.GetDiskInfo(disks, diskNames);
    info.GetDisplayCardInfo(adapters, adapterNames, memory);
    info.GetMemoryInfo(total, virtualTotal);
    // The present clock of a processor changes from call to call.
    return QStringList{name,
                       identifier,
                       QString::number(processors),
                       QString::number(disks),
                       diskNames.join(QLatin1Char(',')),
                       QString::number(adapters),
                       adapterNames.join(QLatin1Char(',')),
                       memory,
                       total,
                       virtualTotal,
                       info.GetOSVersion()}
        .join(QLatin1Char('|'));
}

} // namespace

/// What this machine is, is asked by other means here.
class tst_CRkSystemInfo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void processor();
    void earlierValuesAreReplaced();
    void diskNamesAreAppended();
#ifdef Q_OS_WIN
    void disksOfTheRegistry();
#endif
    void adapterNamesAreAppended();
    void cudaDevicesCountInstead();
    void runtimeWithoutDevices();
    void memory();
    void operatingSystem();
    void sameFromEveryThread();
#ifdef Q_OS_LINUX
    void limitedAddressSpace();
    void startsNoProcess();
#endif
};

void tst_CRkSystemInfo::init()
{
    qunsetenv("RK_TEST_CUDA");
#ifdef Q_OS_LINUX
    qunsetenv(searchPath);
#endif
}

void tst_CRkSystemInfo::processor()
{
    QString name, identifier, mhz;
    int count = -1;
    CRkSystemInfo().GetCpuInfo(name, identifier, count, mhz);
#ifdef Q_OS_LINUX
    QCOMPARE(long(count), ::sysconf(_SC_NPROCESSORS_ONLN));
    QCOMPARE(name, name.simplified());
#else
    QVERIFY(count >= 1);
#endif
    if (QSysInfo::currentCpuArchitecture() == QLatin1String("x86_64")) {
        QVERIFY(!name.isEmpty());
        QVERIFY2(identifier.contains(QRegularExpression(
                     QStringLiteral("^\\w+ Family \\d+ Model \\d+ Stepping \\d+$"))),
                 qPrintable(identifier));
        bool isNumber = false;
        QVERIFY2(mhz.toInt(&isNumber) > 100 && isNumber, qPrintable(mhz));
    }
}

void tst_CRkSystemInfo::earlierValuesAreReplaced()
{
    const QString earlier = QStringLiteral("an earlier value");
    QString name = earlier;
    QString identifier = earlier;
    QString mhz = earlier;
    int count = -1;
    CRkSystemInfo().GetCpuInfo(name, identifier, count, mhz);
    QString total = earlier;
    QString virtualTotal = earlier;
    CRkSystemInfo().GetMemoryInfo(total, virtualTotal);
    for (const QString& value : {name, identifier, mhz, total, virtualTotal})
        QVERIFY(value != earlier);
    QVERIFY(count >= 0);
}

void tst_CRkSystemInfo::diskNamesAreAppended()
{
    const QString earlier = QStringLiteral("an earlier disk");
    unsigned long count = 77;
    QStringList names{earlier};
    CRkSystemInfo().GetDiskInfo(count, names);
    QCOMPARE(names.constFirst(), earlier);
    unsigned long again = 77;
    QStringList others;
    CRkSystemInfo().GetDiskInfo(again, others);
    QCOMPARE(names.mid(1), others);
    QCOMPARE(again, count);
#ifdef Q_OS_LINUX
    const QDir blocks(QStringLiteral("/sys/block"));
    QCOMPARE(
        count,
        ulong(blocks.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size()));
#endif
}

#ifdef Q_OS_WIN
/// A key of this process's own stands in the place of the machine's.
void tst_CRkSystemInfo::disksOfTheRegistry()
{
    const std::wstring own = L"Software\\RkTests" + QUuid::createUuid().toString().toStdWString();
    HKEY machine = nullptr;
    QCOMPARE(RegCreateKeyExW(HKEY_CURRENT_USER, own.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                             &machine, nullptr),
             LSTATUS(ERROR_SUCCESS));
    const auto restore = qScopeGuard([&] {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegCloseKey(machine);
        RegDeleteTreeW(HKEY_CURRENT_USER, own.c_str());
    });
    QCOMPARE(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine), LSTATUS(ERROR_SUCCESS));
    const auto write = [](const wchar_t* device, DWORD type, const std::wstring& text) {
        const std::wstring path = std::wstring(L"SYSTEM\\CurrentControlSet\\Enum\\SCSI\\") + device;
        return RegSetKeyValueW(HKEY_LOCAL_MACHINE, path.c_str(), L"FriendlyName", type,
                               text.c_str(), DWORD((text.size() + 1) * sizeof(wchar_t)));
    };
    QCOMPARE(write(L"Disk&Ven_A\\1", REG_SZ, L"Fast Disk"), LSTATUS(ERROR_SUCCESS));
    QCOMPARE(write(L"CdRom&Ven_B\\1", REG_SZ, L"Drive"), LSTATUS(ERROR_SUCCESS));
    unsigned long count = 0;
    QStringList names;
    CRkSystemInfo().GetDiskInfo(count, names);
    QCOMPARE(count, 2UL);
    QCOMPARE(names, QStringList{QStringLiteral("Fast Disk")});

    // Of another type than a name.
    QCOMPARE(write(L"Disk&Ven_C\\1", REG_MULTI_SZ, L""), LSTATUS(ERROR_SUCCESS));
    QCOMPARE(write(L"Disk&Ven_D\\1", REG_BINARY, L""), LSTATUS(ERROR_SUCCESS));
    names.clear();
    CRkSystemInfo().GetDiskInfo(count, names);
    QCOMPARE(count, 4UL);
    QCOMPARE(names.size(), 3);
    QVERIFY(names.contains(QStringLiteral("Fast Disk")));
}
#endif

/// And all of the list is counted.
void tst_CRkSystemInfo::adapterNamesAreAppended()
{
    if (display().memory != QLatin1String("as before"))
        QSKIP("The CUDA devices of this machine are counted instead.");
    const QString earlier = QStringLiteral("an earlier adapter");
    const Display empty = display();
    const Display filled = display({earlier});
    QCOMPARE(empty.count, ulong(empty.names.size()));
    QCOMPARE(filled.names, QStringList{earlier} + empty.names);
    QCOMPARE(filled.count, ulong(filled.names.size()));
    QCOMPARE(filled.memory, QStringLiteral("as before"));
#ifdef Q_OS_WIN
    QVERIFY2(!empty.names.isEmpty(), "what shows this window");
#endif
}

void tst_CRkSystemInfo::cudaDevicesCountInstead()
{
    const QStringList names = display().names;
    const QByteArray before = qgetenv(searchPath);
    for (const char* kind : {"V2", "NEWER", "OLDER"}) {
        qputenv(searchPath, RK_RUNTIMES "/" + QByteArray(kind));
        qputenv("RK_TEST_CUDA", "2048,8192");
        const Display found = display();
        QCOMPARE(found.count, 2UL);
        QCOMPARE(found.memory, QStringLiteral("8192MB"));
        QCOMPARE(found.names, names);
    }
    qputenv(searchPath, before);
}

void tst_CRkSystemInfo::runtimeWithoutDevices()
{
    const QByteArray before = qgetenv(searchPath);
    qputenv(searchPath, RK_RUNTIMES "/V2");
    for (const char* setting : {"", "fail"}) {
        qputenv("RK_TEST_CUDA", setting);
        const Display found = display();
        QCOMPARE(found.count, ulong(found.names.size()));
        QCOMPARE(found.memory, QStringLiteral("as before"));
    }
    qputenv(searchPath, before);
}

void tst_CRkSystemInfo::memory()
{
    QString total, virtualTotal;
    CRkSystemInfo().GetMemoryInfo(total, virtualTotal);
    bool isNumber = false;
    const quint64 megabytes = total.toULongLong(&isNumber);
    QVERIFY2(isNumber, qPrintable(total));
#ifdef Q_OS_LINUX
    QCOMPARE(megabytes,
             quint64(::sysconf(_SC_PHYS_PAGES)) * quint64(::sysconf(_SC_PAGESIZE)) >> 20);
#else
    QVERIFY(megabytes > 100);
#endif
    if (QSysInfo::currentCpuArchitecture() == QLatin1String("x86_64")) {
        // 128 TiB but for a last part that Windows keeps and Linux, too.
        const qint64 least = qint64(134217727) - 1;
        QVERIFY2(virtualTotal.toLongLong() >= least && virtualTotal.toLongLong() <= least + 2,
                 qPrintable(virtualTotal));
    }
}

void tst_CRkSystemInfo::operatingSystem()
{
    const QString version = CRkSystemInfo().GetOSVersion();
    QVERIFY(version.endsWith(QLatin1String("_X64 ")));
    QCOMPARE(version,
             QSysInfo::prettyProductName() + QStringLiteral("_") + QSysInfo::kernelVersion()
                 + QStringLiteral("_X64 "));
}

void tst_CRkSystemInfo::sameFromEveryThread()
{
    const QString expected = everything();
    std::vector<QString> found(4);
    std::vector<std::thread> threads;
    for (QString& text : found) {
        threads.emplace_back([&text] {
            for (int i = 0; i < 20; ++i)
                text = everything();
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const QString& text : found)
        QCOMPARE(text, expected);
}

#ifdef Q_OS_LINUX
void tst_CRkSystemInfo::limitedAddressSpace()
{
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_AS, &before), 0);
    rlimit limited = before;
    limited.rlim_cur = rlim_t(1) << 46;
    if (limited.rlim_cur > before.rlim_max)
        QSKIP("Less than that is allowed here.");
    QCOMPARE(::setrlimit(RLIMIT_AS, &limited), 0);
    QString total, virtualTotal;
    CRkSystemInfo().GetMemoryInfo(total, virtualTotal);
    QCOMPARE(::setrlimit(RLIMIT_AS, &before), 0);
    QCOMPARE(virtualTotal, QStringLiteral("67108864"));
}

void tst_CRkSystemInfo::startsNoProcess()
{
    everything();
    rusage children = {};
    QCOMPARE(::getrusage(RUSAGE_CHILDREN, &children), 0);
    QCOMPARE(children.ru_maxrss, 0L); // None that has ended.
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD); // And none that runs.
}
#endif

QTEST_GUILESS_MAIN(tst_CRkSystemInfo)
#include "tst_CRkSystemInfo.moc"
