// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QList>
#include <QStringList>

#include <functional>
#include <memory>

class CRkGraphicsProjectRectItem;
class CRkProjectManagerView;
class QWidget;

/// What the makers of the gallery's windows share.
namespace GalleryParts {

using Window = std::unique_ptr<QWidget>;

/// The texts of the gallery's own.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

/// The view alone, four tiles wide.
Window viewPage();

/// All project files below the project root, in the same order on every machine.
QStringList projectFiles();

/// The view in a window that has one.
CRkProjectManagerView& viewOf(QWidget& window);

QList<CRkGraphicsProjectRectItem*> tilesOf(QWidget& window);

/// The tile in the corner where reading begins. There must be one.
CRkGraphicsProjectRectItem& firstTile(QWidget& window);

/// Lets the widget look as it does under the mouse, wherever the pointer is.
void hover(QWidget& widget);

/// The same for a button of the window.
void hover(QWidget& window, const char* button);

/// The window with the last message box that the action brings up over its middle, on a larger
/// ground where the box is larger than the window. Questions are answered with `answer`.
QImage withMessage(QWidget& window, const std::function<void()>& action,
                   const char* answer = "m_pBtnCancel");

} // namespace GalleryParts
