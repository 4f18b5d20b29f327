// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QList>
#include <QMetaType>
#include <QPair>
#include <QString>
#include <QVariant>

/// Which editor `CRkTableDelegate` opens on a cell; stands in the cell's `Qt::UserRole`.
///
///     const RkEditorDescriptor camera{RkEditorDescriptor::ComboBox,
///                                     {{"Nadir", 1}, {"Oblique", 5}}};
///     item->setData(Qt::UserRole, QVariant::fromValue(camera));
///
/// Once a delegate was made, a string list converts to a descriptor: one with a single element, of
/// whatever text, to a spin box, any other one to kind 0.
struct RkEditorDescriptor
{
    enum Kind { SpinBox = 1, ComboBox = 2, LineEdit = 3 };

    /// One of `Kind`. Any other number makes the cell one without an editor.
    int kind = 0;
    /// Text and data of each entry of a combo box, in order.
    QList<QPair<QString, QVariant>> entries;
};

Q_DECLARE_METATYPE(RkEditorDescriptor)
