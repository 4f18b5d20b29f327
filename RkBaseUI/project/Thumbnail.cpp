// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/Thumbnail.h"

#include <QBuffer>
#include <QImageReader>
#include <QList>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>

namespace Thumbnail {

namespace {

constexpr int maximumBase64Size = 16 * 1024 * 1024;
constexpr qint64 maximumPixels = 64'000'000;

thread_local bool threadIsQuiet = false;
std::atomic<QtMessageHandler> handlerBefore = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // None yet for the moment between putting this handler in and knowing the one before.
    const QtMessageHandler handler = handlerBefore;
    if (handler && !threadIsQuiet)
        handler(type, context, message);
}

/// Image decoders print a warning for every damaged picture. While one of these lives, what its
/// thread would print is dropped; other threads print as before.
class QuietThread
{
public:
    QuietThread()
    {
        const std::lock_guard<std::mutex> lock(s_mutex);
        if (s_count++ == 0)
            handlerBefore = qInstallMessageHandler(handleMessage);
        threadIsQuiet = true;
    }
    ~QuietThread()
    {
        const std::lock_guard<std::mutex> lock(s_mutex);
        threadIsQuiet = false;
        if (--s_count > 0)
            return;
        const QtMessageHandler handler = qInstallMessageHandler(handlerBefore);
        if (handler != handleMessage)
            qInstallMessageHandler(handler); // Somebody put in another one meanwhile.
    }
    Q_DISABLE_COPY(QuietThread)

private:
    static inline std::mutex s_mutex;
    static inline int s_count = 0;
};

/// The CRC-32 of a PNG chunk (ISO 3309).
quint32 crc32(const char* begin, const char* end)
{
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> values = {};
        for (quint32 byte = 0; byte < values.size(); ++byte) {
            quint32 value = byte;
            for (int bit = 0; bit < 8; ++bit)
                value = (value >> 1) ^ (value & 1 ? 0xEDB88320U : 0U);
            values[byte] = value;
        }
        return values;
    }();
    quint32 crc = 0xFFFFFFFFU;
    for (const char* byte = begin; byte != end; ++byte)
        crc = (crc >> 8) ^ table[(crc ^ quint8(*byte)) & 0xFFU];
    return ~crc;
}

bool isLetter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// False for a PNG file with a chunk that its decoder would stop at, which then prints past every
/// message handler. A chunk is length, type, data and checksum; only those of a critical type,
/// which begins with a capital, must have a right checksum.
bool isWhole(const QByteArray& file)
{
    if (!file.startsWith("\x89PNG\r\n\x1A\n"))
        return true;
    constexpr int frame = 12;
    qint64 position = 8;
    bool hasPixels = false;
    while (position + frame <= file.size()) {
        const char* chunk = file.constData() + position;
        const char* type = chunk + 4;
        const auto length = qFromBigEndian<quint32>(chunk);
        if (length > file.size() - position - frame || !std::all_of(type, type + 4, isLetter))
            return false;
        const char* end = type + 4 + length;
        const bool isCritical = *type <= 'Z';
        if (isCritical && crc32(type, end) != qFromBigEndian<quint32>(end))
            return false;
        if (std::equal(type, type + 4, "IEND"))
            return hasPixels;
        hasPixels = hasPixels || std::equal(type, type + 4, "IDAT");
        position += frame + length;
    }
    return false;
}

bool isSafeToDecode(const QImageReader& reader)
{
    static const QList<QByteArray> boundless = {"svg", "svgz", "ico", "cur"};
    if (boundless.contains(reader.format()))
        return false;
    const QSize size = reader.size();
    return size.isValid() && qint64(size.width()) * size.height() <= maximumPixels;
}

} // namespace

QImage decode(const QByteArray& base64)
{
    if (base64.isEmpty() || base64.size() > maximumBase64Size)
        return {};
    const QuietThread quiet;
    QByteArray file = QByteArray::fromBase64(base64);
    if (!isWhole(file))
        return {};
    QBuffer buffer(&file);
    QImageReader reader(&buffer);
    if (!isSafeToDecode(reader))
        return {};
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    // In the order of a pixmap: its own format first, so that scaling sees the same pixels.
    const QImage::Format format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return image.convertToFormat(format).scaled(width, height);
}

} // namespace Thumbnail
