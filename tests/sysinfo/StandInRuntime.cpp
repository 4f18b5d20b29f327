// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// A library with the functions of the CUDA runtime that are asked for. The variable RK_TEST_CUDA
// tells its devices: the MiB of each between commas, "x" for one whose properties cannot be read;
// "fail" lets the count fail, and "many" tells of more devices than there can be, with the MiB
// 0, 1, 2 and so on.

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#ifdef _WIN32
#define STAND_IN extern "C" __declspec(dllexport)
#else
#define STAND_IN extern "C" __attribute__((visibility("default")))
#endif

namespace {

constexpr int noDevice = 100;
constexpr int invalidDevice = 101;

/// Of the versions before 10.
struct OlderRecord
{
    char name[256];
    std::size_t totalGlobalMem;
    std::size_t sharedMemPerBlock;
    int regsPerBlock;
    int warpSize;
    std::size_t memPitch;
    int maxThreadsPerBlock;
    int maxThreadsDim[3];
    char rest[328];
};

/// Of version 10 and later, as long as that of version 12.
struct NewerRecord
{
    char name[256];
    unsigned char uuid[16];
    unsigned char luid[8];
    unsigned luidDeviceNodeMask;
    std::size_t totalGlobalMem;
    std::size_t sharedMemPerBlock;
    int regsPerBlock;
    int warpSize;
    std::size_t memPitch;
    int maxThreadsPerBlock;
    int maxThreadsDim[3];
    char rest[696];
};
static_assert(offsetof(OlderRecord, totalGlobalMem) == 256);
static_assert(offsetof(NewerRecord, totalGlobalMem) == 288);
static_assert(sizeof(NewerRecord) == 1032);

std::string setting()
{
    const char* text = std::getenv("RK_TEST_CUDA");
    return text ? text : "";
}

std::vector<std::string> deviceTexts()
{
    std::vector<std::string> texts;
    std::istringstream stream(setting());
    for (std::string text; std::getline(stream, text, ',');)
        texts.push_back(text);
    return texts;
}

template <typename Record>
void fill(Record& record, std::size_t mebibytes)
{
    std::memset(static_cast<void*>(&record), 0, sizeof record);
    std::strcpy(record.name, "Stand-in");
    record.totalGlobalMem = mebibytes << 20;
    record.sharedMemPerBlock = 49152;
    record.regsPerBlock = 65536;
    record.warpSize = 32;
    record.memPitch = 2147483647;
    record.maxThreadsPerBlock = 1024;
    record.maxThreadsDim[0] = record.maxThreadsDim[1] = 1024;
    record.maxThreadsDim[2] = 64;
    std::fill(std::begin(record.rest), std::end(record.rest), char(0x5a));
}

template <typename Record>
int readProperties(void* target, int device, bool hasIds)
{
    const std::vector<std::string> texts = deviceTexts();
    const auto index = static_cast<std::size_t>(device);
    const bool isMany = setting() == "many";
    if (device < 0 || (!isMany && (index >= texts.size() || texts[index] == "x")))
        return invalidDevice;
    Record record;
    fill(record, isMany ? index : std::strtoull(texts[index].c_str(), nullptr, 10));
    if (hasIds)
        std::memset(record.name + sizeof record.name, 0xc3, 20); // uuid and half of the luid.
    std::memcpy(target, &record, sizeof record);
    return 0;
}

} // namespace

#ifndef RK_PROPERTIES_ONLY
STAND_IN int cudaGetDeviceCount(int* count)
{
    if (setting() == "fail") {
        *count = 7; // What a failed call leaves there counts for nothing.
        return noDevice;
    }
    *count = setting() == "many" ? std::numeric_limits<int>::max()
                                 : static_cast<int>(deviceTexts().size());
    return 0;
}
#endif

#if defined(RK_NEWER) || defined(RK_PROPERTIES_ONLY)
STAND_IN int cudaGetDeviceProperties(void* record, int device)
{
    return readProperties<NewerRecord>(record, device, true);
}
#elif defined(RK_OLDER)
STAND_IN int cudaGetDeviceProperties(void* record, int device)
{
    return readProperties<OlderRecord>(record, device, false);
}
#elif defined(RK_V2)
STAND_IN int cudaGetDeviceProperties_v2(void* record, int device)
{
    return readProperties<NewerRecord>(record, device, true);
}

// For programs built with an earlier version: nobody else may call it.
STAND_IN int cudaGetDeviceProperties(void*, int)
{
    return invalidDevice;
}
#endif
