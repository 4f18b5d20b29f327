// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Preloaded into operations_probe: counts the calls that change files and, at the one that
// RK_FAULT_CALL names, kills the process or lets this and every later one fail with the error
// number RK_FAULT_ERROR. Counting begins with rkFaultBegin(). It knows one thread.

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isCounting = false;
int calls = 0;

int numberFrom(const char* variable)
{
    const char* text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

/// Whether the call may go on; otherwise errno is set.
bool mayGoOn()
{
    if (!isCounting)
        return true;
    static const int faultyCall = numberFrom("RK_FAULT_CALL");
    static const int error = numberFrom("RK_FAULT_ERROR");
    ++calls;
    if (faultyCall == 0 || calls < faultyCall)
        return true;
    if (error == 0)
        kill(getpid(), SIGKILL);
    errno = error;
    return false;
}

bool isRegularFile(int descriptor)
{
    struct stat status
    {
    };
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

bool mayChange(int descriptor)
{
    return !isCounting || !isRegularFile(descriptor) || mayGoOn();
}

bool takesMode(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

bool changesFiles(int flags)
{
    return takesMode(flags) || (flags & O_TRUNC) != 0;
}

template <typename Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// A call with the same name in the C library, behind the check.
#define RK_FAULT_CALL_OF(result, name, parameters, arguments, condition)                           \
    extern "C" result name parameters                                                              \
    {                                                                                              \
        static auto* const original = next<result parameters>(#name);                              \
        return (condition) ? original arguments : result(-1);                                      \
    }

#define RK_FAULT_OPEN(name)                                                                        \
    extern "C" int name(const char* path, int flags, ...)                                          \
    {                                                                                              \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        const mode_t mode = takesMode(flags) ? va_arg(list, mode_t) : 0;                           \
        va_end(list);                                                                              \
        static auto* const original = next<int(const char*, int, ...)>(#name);                     \
        return !changesFiles(flags) || mayGoOn() ? original(path, flags, mode) : -1;               \
    }

#define RK_FAULT_OPENAT(name)                                                                      \
    extern "C" int name(int folder, const char* path, int flags, ...)                              \
    {                                                                                              \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        const mode_t mode = takesMode(flags) ? va_arg(list, mode_t) : 0;                           \
        va_end(list);                                                                              \
        static auto* const original = next<int(int, const char*, int, ...)>(#name);                \
        return !changesFiles(flags) || mayGoOn() ? original(folder, path, flags, mode) : -1;       \
    }

RK_FAULT_OPEN(open)
RK_FAULT_OPEN(open64)
RK_FAULT_OPENAT(openat)
RK_FAULT_OPENAT(openat64)

RK_FAULT_CALL_OF(int, mkdir, (const char* path, mode_t mode), (path, mode), mayGoOn())
RK_FAULT_CALL_OF(int, rmdir, (const char* path), (path), mayGoOn())
RK_FAULT_CALL_OF(int, unlink, (const char* path), (path), mayGoOn())
RK_FAULT_CALL_OF(int, remove, (const char* path), (path), mayGoOn())
RK_FAULT_CALL_OF(int, link, (const char* from, const char* to), (from, to), mayGoOn())
RK_FAULT_CALL_OF(int, linkat,
                 (int fromFolder, const char* from, int toFolder, const char* to, int flags),
                 (fromFolder, from, toFolder, to, flags), mayGoOn())
RK_FAULT_CALL_OF(int, unlinkat, (int folder, const char* path, int flags), (folder, path, flags),
                 mayGoOn())
RK_FAULT_CALL_OF(int, rename, (const char* from, const char* to), (from, to), mayGoOn())
RK_FAULT_CALL_OF(int, renameat2,
                 (int fromFolder, const char* from, int toFolder, const char* to, unsigned flags),
                 (fromFolder, from, toFolder, to, flags), mayGoOn())
RK_FAULT_CALL_OF(int, chmod, (const char* path, mode_t mode), (path, mode), mayGoOn())
RK_FAULT_CALL_OF(int, fchmod, (int file, mode_t mode), (file, mode), mayChange(file))
RK_FAULT_CALL_OF(int, fchown, (int file, uid_t owner, gid_t group), (file, owner, group),
                 mayChange(file))
RK_FAULT_CALL_OF(int, ftruncate, (int file, off_t size), (file, size), mayChange(file))
RK_FAULT_CALL_OF(int, ftruncate64, (int file, off64_t size), (file, size), mayChange(file))
RK_FAULT_CALL_OF(int, fsync, (int file), (file), mayChange(file))
RK_FAULT_CALL_OF(int, fdatasync, (int file), (file), mayChange(file))
RK_FAULT_CALL_OF(ssize_t, write, (int file, const void* bytes, size_t size), (file, bytes, size),
                 mayChange(file))
RK_FAULT_CALL_OF(ssize_t, pwrite, (int file, const void* bytes, size_t size, off_t at),
                 (file, bytes, size, at), mayChange(file))
RK_FAULT_CALL_OF(ssize_t, pwrite64, (int file, const void* bytes, size_t size, off64_t at),
                 (file, bytes, size, at), mayChange(file))
RK_FAULT_CALL_OF(ssize_t, sendfile, (int to, int from, off_t* at, size_t size),
                 (to, from, at, size), mayChange(to))
RK_FAULT_CALL_OF(ssize_t, sendfile64, (int to, int from, off64_t* at, size_t size),
                 (to, from, at, size), mayChange(to))
RK_FAULT_CALL_OF(ssize_t, copy_file_range,
                 (int from, off64_t* fromAt, int to, off64_t* toAt, size_t size, unsigned flags),
                 (from, fromAt, to, toAt, size, flags), mayChange(to))

extern "C" void rkFaultBegin()
{
    isCounting = true;
}

/// Ends the counting and gives how many calls there were.
extern "C" int rkFaultEnd()
{
    isCounting = false;
    return calls;
}
