// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QImage>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>

class QTextStream;
class QWidget;

/// Pictures of windows in files, to be looked at and compared.
namespace Gallery {

/// One picture.
struct Entry
{
    QString name; ///< Of the file, for example "view-tiles".
    std::function<std::unique_ptr<QWidget>()> make;
    /// Brings the shown and active window into the state of the picture; may be empty.
    std::function<void(QWidget& window)> prepare;
    /// Makes the picture of the window; the window alone when empty.
    std::function<QImage(QWidget& window)> picture = {};
};

/// A picture with fewer distinct colours than this shows nothing: even one word in black on white
/// has more, from the smoothing of its edges.
constexpr int fewestColours = 16;

/// Whether the picture has fewer than `fewestColours` distinct colours, or no pixels.
bool isBlank(const QImage& image);

/// Writes `<name>_<language>_<scale>x.png` for every entry into the folder, which is made when it
/// is missing, and prints the path of each on a line of its own. The scale is that of the screen.
///
/// @return whether every picture was written and none is blank; what is wrong goes to `errors`
bool render(const QVector<Entry>& entries, const QString& folder, const QString& language,
            QTextStream& out, QTextStream& errors);

} // namespace Gallery
