// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QCoreApplication>

#include <memory>

class QWidget;

/// What the makers of the gallery's windows share.
namespace GalleryParts {

using Window = std::unique_ptr<QWidget>;

/// The texts of the gallery's own.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

/// Lets the widget look as it does under the mouse, wherever the pointer is.
void hover(QWidget& widget);

/// The same for a button of the window.
void hover(QWidget& window, const char* button);

} // namespace GalleryParts
