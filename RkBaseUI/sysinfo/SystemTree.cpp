// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "sysinfo/SystemTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

namespace {

constexpr int mostBytes = 64 << 20;
constexpr int firstPiece = 4096; // An attribute of a device is never longer.

/// An open file.
class Descriptor
{
public:
    /// Does not wait for a writer where somebody put a pipe.
    explicit Descriptor(const QByteArray& path)
        : m_number(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY(Descriptor)

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    const int m_number;
};

/// Reads until the buffer is full. Gives the count of bytes.
int readSome(const Descriptor& file, char* buffer, int size)
{
    int filled = 0;
    while (filled < size) {
        const ssize_t count =
            ::read(file.number(), buffer + filled, static_cast<std::size_t>(size - filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        filled += static_cast<int>(count);
    }
    return filled;
}

struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

} // namespace

SystemTree::SystemTree(const QByteArray& root)
    : m_root(root)
{
}

QByteArray SystemTree::read(const QByteArray& path) const
{
    const Descriptor file(systemPath(path));
    if (!file.isOpen())
        return {};
    char piece[firstPiece];
    const int first = readSome(file, piece, firstPiece);
    if (first < firstPiece)
        return QByteArray(piece, first);
    // Files that the kernel writes as they are read have no size; then it grows with the content.
    struct stat status = {};
    int size = 4 * firstPiece;
    if (::fstat(file.number(), &status) == 0 && status.st_size > size)
        size = static_cast<int>(std::min<off_t>(status.st_size + 1, mostBytes));
    QByteArray content(piece, first);
    content.resize(size);
    int filled = firstPiece;
    for (;;) {
        filled += readSome(file, content.data() + filled, content.size() - filled);
        if (filled < content.size() || filled == mostBytes)
            break;
        content.resize(std::min(2 * content.size(), mostBytes));
    }
    content.resize(filled);
    return content;
}

QList<QByteArray> SystemTree::names(const QByteArray& folder) const
{
    QList<QByteArray> names;
    const std::unique_ptr<DIR, CloseFolder> open(::opendir(systemPath(folder).constData()));
    if (!open)
        return names;
    while (const dirent* entry = ::readdir(open.get())) {
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.append(entry->d_name);
    }
    return names;
}

bool SystemTree::exists(const QByteArray& path) const
{
    return ::access(systemPath(path).constData(), F_OK) == 0;
}
