// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

/// The small picture of a project, as its file holds it: an image file in base64.
namespace Thumbnail {

/// Pixels of every decoded thumbnail.
constexpr int width = 190;
constexpr int height = 143;

/// The picture, scaled to exactly width x height without regard to its proportions and without
/// smoothing, in RGB32 or, with an alpha channel, in premultiplied ARGB32.
///
/// A null image for what is no picture, and for what could exhaust memory: more than 16 MiB of
/// base64, a header of more than 64 million pixels, and the kinds of picture whose header does not
/// tell what decoding would cost (vector drawings, and icons, which may wrap another picture of any
/// size).
///
/// May be called from any thread. Nothing is printed.
QImage decode(const QByteArray& base64);

} // namespace Thumbnail
