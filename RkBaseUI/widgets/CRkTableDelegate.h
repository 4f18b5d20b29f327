// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/RkBaseUIExport.h>
#include <RkBaseUI/RkEditorDescriptor.h>

#include <QStyledItemDelegate>

/// Delegate whose cells say in their `Qt::UserRole` which editor they open: a number, a choice or a
/// text.
///
///     auto* delegate = new CRkTableDelegate(table);
///     table->setItemDelegate(delegate);
///     item->setData(Qt::UserRole, QVariant::fromValue(RkEditorDescriptor{1, {}}));
///
/// A cell without an `RkEditorDescriptor` (or something that converts to one of a kind other than
/// 0) has the base class's editor. The editors made here take the cell's status tip as object name,
/// by which a receiver tells the cells apart.
class RKBASEUI_EXPORT CRkTableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CRkTableDelegate(QObject* parent = nullptr);

    /// Shows doubles with two decimals, as the spin box of the cell does.
    QString displayText(const QVariant& value, const QLocale& locale) const override;

    /// A spin box of 0 to 1e9, a combo box of the entries or a line edit; null for any other kind.
    /// The parent owns the editor.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

    /// Loads the cell's value, which emits nothing. A combo box selects the entry whose data is the
    /// value (both as texts, case-sensitive), and has the value as a further entry when none is.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

    /// Stores the number of a spin box once the user has changed it, the current text of a combo
    /// box, the text of a line edit.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user changed the number in a spin box whose object name is `name`.
    void signalSpinBoxChanged(double value, const QString& name);

public Q_SLOTS:
    /// A spin box has a new number: emits `signalSpinBoxChanged` with the sender's object name,
    /// which is empty in a direct call.
    virtual void SpinBoxValueChanged(double value);
    /// What editors report while they are open. Nothing is done here; derived delegates may.
    virtual void ComboBoxChanged(int index);
    virtual void LineEditFinished();
    virtual void LineEditTextChanged(const QString& text);
};
