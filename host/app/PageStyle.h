// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

class QLabel;
class QWidget;

/// What the pages, panels and lists of the host have in common.
namespace PageStyle {

/// A narrow scroll bar without arrows, for the style sheet of a window with lists.
extern const char* const scrollBar;

/// An empty label whose property "role" tells the style sheet how it looks.
QLabel* makeLabel(const char* role, QWidget* parent);

} // namespace PageStyle
