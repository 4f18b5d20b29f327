// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "Machine.h"

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <filesystem>
#include <system_error>

Machine::~Machine()
{
    std::error_code error; // Qt leaves what it knows no names of.
    std::filesystem::remove_all(root().toStdString(), error);
}

bool Machine::add(const QByteArray& description)
{
    int at = description.startsWith('@') ? 0 : description.indexOf("\n@") + 1;
    if (at == 0 && !description.startsWith('@'))
        return false;
    while (at < description.size()) {
        const int lineEnd = description.indexOf('\n', at);
        const int next = description.indexOf("\n@", at);
        const int end = next < 0 ? description.size() : next + 1;
        const QByteArray line = description.mid(at, lineEnd - at);
        const QByteArray path = line.mid(line.indexOf(' ') + 1);
        const bool isAdded = line.startsWith("@/")
            ? addFolder(path)
            : addFile(path, description.mid(lineEnd + 1, end - lineEnd - 1));
        if (!isAdded)
            return false;
        at = end;
    }
    return true;
}

bool Machine::addFile(const QByteArray& path, const QByteArray& content)
{
    return writeFile(QFile::decodeName(root() + path), content);
}

bool Machine::addFolder(const QByteArray& path)
{
    std::error_code error; // Not by Qt, which knows no names but those of text.
    std::filesystem::create_directories((root() + path).toStdString(), error);
    return !error;
}

bool Machine::addLink(const QByteArray& path, const QByteArray& target)
{
    const QByteArray whole = root() + path;
    return QDir().mkpath(QFileInfo(QFile::decodeName(whole)).path())
        && ::symlink(target.constData(), whole.constData()) == 0;
}

bool Machine::addManyNames(const QByteArray& path, int count)
{
    const QByteArray first = path + '0';
    bool isAdded = addFile(first, {});
    for (int i = 1; i < count && isAdded; ++i) {
        const QByteArray name = path + QByteArray::number(i);
        isAdded = ::link((root() + first).constData(), (root() + name).constData()) == 0;
    }
    return isAdded;
}

QByteArray Machine::root() const
{
    return QFile::encodeName(m_folder.path());
}
