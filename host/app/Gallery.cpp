// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/Gallery.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QPixmap>
#include <QSet>
#include <QTextStream>
#include <QWidget>
#include <QWindow>

namespace Gallery {

namespace {

constexpr int longestWait = 5000; // Milliseconds.

void showAndActivate(QWidget& window)
{
    window.show();
    // Without a window manager nobody else makes a window active, and only an active one has a
    // focus.
    QApplication::setActiveWindow(&window);
    const QDeadlineTimer deadline(longestWait);
    while (!window.windowHandle()->isExposed() && !deadline.hasExpired())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    QApplication::processEvents();
}

QImage picture(const Entry& entry)
{
    const std::unique_ptr<QWidget> window = entry.make();
    showAndActivate(*window);
    if (entry.prepare) {
        entry.prepare(*window);
        QApplication::processEvents();
    }
    return entry.picture ? entry.picture(*window) : window->grab().toImage();
}

QString fileName(const Entry& entry, const QString& language, const QImage& image)
{
    return QStringLiteral("%1_%2_%3x.png").arg(entry.name, language).arg(image.devicePixelRatio());
}

} // namespace

bool isBlank(const QImage& image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> colours;
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            colours.insert(line[x]);
            if (colours.size() >= fewestColours)
                return false;
        }
    }
    return true;
}

bool render(const QVector<Entry>& entries, const QString& folder, const QString& language,
            QTextStream& out, QTextStream& errors)
{
    if (!QDir().mkpath(folder)) {
        errors << "Cannot make the folder " << folder << Qt::endl;
        return false;
    }
    bool isSound = true;
    for (const Entry& entry : entries) {
        const QImage image = picture(entry);
        const QString path = QDir(folder).filePath(fileName(entry, language, image));
        if (!image.save(path)) {
            errors << "Cannot write " << path << Qt::endl;
            isSound = false;
            continue;
        }
        out << path << Qt::endl;
        if (isBlank(image)) {
            errors << "Blank: " << path << Qt::endl;
            isSound = false;
        }
    }
    return isSound;
}

} // namespace Gallery
