// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/TestSupport.h"
#include "sysinfo/CudaRuntime.h"

#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <vector>

namespace {

QString runtime(const QString& kind)
{
    return QStringLiteral(RK_RUNTIMES "/%1/" RK_RUNTIME_NAME).arg(kind);
}

} // namespace

class tst_CudaRuntime : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void standInsCanBeLoaded_data();
    void standInsCanBeLoaded();
    void devices_data();
    void devices();
    void nothingToLoad();
    void firstUsableRuntimeCounts();
    void failedCountStops();
    void tooManyDevices();
    void recordOfAnyVersionFits();
    void newestFirst();
    void cache_data();
    void cache();
};

void tst_CudaRuntime::initTestCase()
{
    QVERIFY(qunsetenv("RK_TEST_CUDA") || !qEnvironmentVariableIsSet("RK_TEST_CUDA"));
}

void tst_CudaRuntime::standInsCanBeLoaded_data()
{
    QTest::addColumn<QStringList>("functions");
    const QString count = QStringLiteral("cudaGetDeviceCount");
    const QString properties = QStringLiteral("cudaGetDeviceProperties");
    const QString second = QStringLiteral("cudaGetDeviceProperties_v2");
    QTest::newRow("V2") << QStringList{count, properties, second};
    QTest::newRow("NEWER") << QStringList{count, properties};
    QTest::newRow("OLDER") << QStringList{count, properties};
    QTest::newRow("COUNT_ONLY") << QStringList{count};
    QTest::newRow("PROPERTIES_ONLY") << QStringList{properties};
}

/// What the others find missing is missing on purpose.
void tst_CudaRuntime::standInsCanBeLoaded()
{
    QFETCH(QStringList, functions);
    QLibrary library(runtime(QLatin1String(QTest::currentDataTag())));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    for (const char* name :
         {"cudaGetDeviceCount", "cudaGetDeviceProperties", "cudaGetDeviceProperties_v2"})
        QCOMPARE(library.resolve(name) != nullptr, functions.contains(QLatin1String(name)));
}

void tst_CudaRuntime::devices_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<ulong>("count");
    QTest::addColumn<QString>("memory");
    const QString unchanged = QStringLiteral("as before");
    for (const char* name : {"V2", "NEWER", "OLDER"}) {
        const QString kind = QLatin1String(name);
        const auto row = [&](const char* what, const char* setting, ulong count,
                             const QString& memory) {
            QTest::addRow("%s: %s", name, what) << kind << QByteArray(setting) << count << memory;
        };
        row("no device", "", 5, unchanged);
        row("one device", "4096", 1, QStringLiteral("4096MB"));
        row("two devices", "2048,8192", 2, QStringLiteral("8192MB"));
        row("the last counts, not the largest", "8192,2048", 2, QStringLiteral("2048MB"));
        row("last cannot be read", "2048,x", 2, QStringLiteral("2048MB"));
        row("first cannot be read", "x,8192", 2, QStringLiteral("8192MB"));
        row("none can be read", "x,x", 2, unchanged);
        row("count fails", "fail", 5, unchanged);
        row("more memory than 32 bits count", "8388608", 1, QStringLiteral("8388608MB"));
    }
    QTest::newRow("no properties")
        << QStringLiteral("COUNT_ONLY") << QByteArray("2048,8192") << 2UL << unchanged;
    QTest::newRow("no count") << QStringLiteral("PROPERTIES_ONLY") << QByteArray("2048") << 5UL
                              << unchanged;
}

void tst_CudaRuntime::devices()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, setting);
    qputenv("RK_TEST_CUDA", setting);
    unsigned long count = 5;
    QString memory = QStringLiteral("as before");
    CudaRuntime::describe({runtime(kind)}, count, memory);
    QTEST(count, "count");
    QTEST(memory, "memory");
}

void tst_CudaRuntime::nothingToLoad()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral(RK_RUNTIME_NAME));
    QVERIFY(!CudaRuntime::devices({}));
    QVERIFY(!CudaRuntime::devices({file}));
    QVERIFY(!CudaRuntime::devices({folder.path()}));
    QVERIFY(writeFile(file, "no library"));
    QVERIFY(!CudaRuntime::devices({file}));
    QVERIFY(writeFile(file, readFile(runtime(QStringLiteral("V2"))).left(40)));
    QVERIFY(!CudaRuntime::devices({file}));
}

void tst_CudaRuntime::firstUsableRuntimeCounts()
{
    qputenv("RK_TEST_CUDA", "1024");
    const QString missing = runtime(QStringLiteral("MISSING"));
    const QString useless = runtime(QStringLiteral("PROPERTIES_ONLY"));
    const QString countOnly = runtime(QStringLiteral("COUNT_ONLY"));
    const QString whole = runtime(QStringLiteral("V2"));
    const auto skipping = CudaRuntime::devices({missing, useless, whole, countOnly});
    QVERIFY(skipping);
    QCOMPARE(skipping->count, 1);
    QCOMPARE(skipping->memory.value_or(0), quint64(1024) << 20);
    const auto first = CudaRuntime::devices({countOnly, whole});
    QVERIFY(first);
    QVERIFY(!first->memory);
}

void tst_CudaRuntime::failedCountStops()
{
    qputenv("RK_TEST_CUDA", "fail");
    QVERIFY(!CudaRuntime::devices({runtime(QStringLiteral("V2"))}));
    qputenv("RK_TEST_CUDA", "");
    const auto none = CudaRuntime::devices({runtime(QStringLiteral("V2"))});
    QVERIFY(none);
    QCOMPARE(none->count, 0);
}

/// The count is what the runtime says, but not each of them is asked.
void tst_CudaRuntime::tooManyDevices()
{
    qputenv("RK_TEST_CUDA", "many");
    unsigned long count = 0;
    QString memory;
    CudaRuntime::describe({runtime(QStringLiteral("V2"))}, count, memory);
    QCOMPARE(count, 2147483647UL);
    QCOMPARE(memory, QStringLiteral("1023MB")); // Of the last one asked.
}

void tst_CudaRuntime::recordOfAnyVersionFits()
{
    std::vector<char> record(CudaRuntime::recordSize);
    const quint64 memory = quint64(6) << 30;
    const int warpSize = 32;
    std::memcpy(&record[288], &memory, sizeof memory);
    QVERIFY(CudaRuntime::isNewerRecord(record.data()));
    QCOMPARE(CudaRuntime::memoryOf(record.data(), true), memory);
    std::memcpy(&record[276], &warpSize, sizeof warpSize);
    std::memcpy(&record[256], &memory, sizeof memory);
    QVERIFY(!CudaRuntime::isNewerRecord(record.data()));
    QCOMPARE(CudaRuntime::memoryOf(record.data(), false), memory);
    QVERIFY(CudaRuntime::recordSize >= 4096);
}

void tst_CudaRuntime::newestFirst()
{
    QCOMPARE(CudaRuntime::newestFirst({"/a2/libcudart.so", "/a/libcudart.so.9.2",
                                       "/a99/libcudart.so.11.0", "/a/libcudart.so.12.4.99",
                                       "/a/libcudart.so.12", "/a/libcudart.so.11.8.89",
                                       "/a/libcudart.so.99999999999999999999"}),
             (QStringList{"/a/libcudart.so.99999999999999999999", "/a/libcudart.so.12.4.99",
                          "/a/libcudart.so.12", "/a/libcudart.so.11.8.89", "/a99/libcudart.so.11.0",
                          "/a/libcudart.so.9.2", "/a2/libcudart.so"}));
    QCOMPARE(CudaRuntime::newestFirst(
                 {"C:/x/cudart64_12.dll", "C:/x/cudart64_13.dll", "C:/x/cudart64_.dll"}),
             (QStringList{"C:/x/cudart64_13.dll", "C:/x/cudart64_12.dll", "C:/x/cudart64_.dll"}));
}

void tst_CudaRuntime::cache_data()
{
    QTest::addColumn<QByteArray>("cache");
    QTest::addColumn<QStringList>("expected");
    const auto text = [](const char* words) { return QByteArray(words).replace('|', '\0'); };
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("zeros") << QByteArray(1000, '\0') << QStringList();
    QTest::newRow("other libraries")
        << text("|libc.so.6|/lib/libc.so.6|libcuda.so.1|/usr/lib/libcuda.so.1|") << QStringList();
    QTest::newRow("names and paths")
        << text("|libcudart.so.12|/usr/local/cuda/lib64/libcudart.so.12|")
        << QStringList{"/usr/local/cuda/lib64/libcudart.so.12"};
    QTest::newRow("two versions and the link")
        << text("|/a/libcudart.so.11.0|/b/libcudart.so|/c/libcudart.so.12|/a/libcudart.so.11.0|")
        << QStringList{"/c/libcudart.so.12", "/a/libcudart.so.11.0", "/b/libcudart.so"};
    QTest::newRow("longer name") << text("|/a/libcudart.software|") << QStringList();
    QTest::newRow("relative") << text("|a/libcudart.so.12|") << QStringList();
    QTest::newRow("cut in the path") << text("|/a/libcudart.so.1") << QStringList();
    QTest::newRow("cut behind the name") << text("/a/libcudart.so") << QStringList();
    QTest::newRow("at the very start")
        << text("/libcudart.so.12|") << QStringList{"/libcudart.so.12"};
}

void tst_CudaRuntime::cache()
{
    QFETCH(QByteArray, cache);
    QTEST(CudaRuntime::librariesInCache(cache), "expected");
}

QTEST_GUILESS_MAIN(tst_CudaRuntime)
#include "tst_CudaRuntime.moc"
