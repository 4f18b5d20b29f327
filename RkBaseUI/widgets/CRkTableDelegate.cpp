// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkTableDelegate.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include <optional>

namespace {

/// Characters that a line edit takes. Its own limit would cut a longer text of the cell.
constexpr int longestText = 1000000;

/// Property of a spin box: whether it has reported a number since it was loaded.
constexpr char isEdited[] = "isEdited";

/// On Return the toolkit's spin box reports its number even when nobody has touched it.
class NumberEditor : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const QSignalBlocker blocker(isReturn && !lineEdit()->isModified() ? this : nullptr);
        QDoubleSpinBox::keyPressEvent(event);
    }
};

RkEditorDescriptor descriptorOfTexts(const QStringList& texts)
{
    return {texts.size() == 1 ? RkEditorDescriptor::SpinBox : 0, {}};
}

void registerDescriptor()
{
    qRegisterMetaType<RkEditorDescriptor>("RkEditorDescriptor");
    if (!QMetaType::hasRegisteredConverterFunction<QStringList, RkEditorDescriptor>())
        QMetaType::registerConverter<QStringList, RkEditorDescriptor>(descriptorOfTexts);
}

/// Nothing where the cell leaves the choice of its editor to the base class.
std::optional<RkEditorDescriptor> descriptorOf(const QModelIndex& index)
{
    const QVariant data = index.data(Qt::UserRole);
    if (!data.canConvert<RkEditorDescriptor>())
        return std::nullopt;
    const auto descriptor = data.value<RkEditorDescriptor>();
    const bool isConverted = data.userType() != qMetaTypeId<RkEditorDescriptor>();
    if (isConverted && descriptor.kind == 0)
        return std::nullopt;
    return descriptor;
}

/// The editor, if the cell has that kind of editor and this is one.
template <typename Editor>
Editor* editorOf(QWidget* editor, const QModelIndex& index, RkEditorDescriptor::Kind kind)
{
    const std::optional<RkEditorDescriptor> descriptor = descriptorOf(index);
    return descriptor && descriptor->kind == kind ? qobject_cast<Editor*>(editor) : nullptr;
}

/// The toolkit does not report a typed number that equals the loaded one, which may be another than
/// the cell's.
void takeTypedNumber(QDoubleSpinBox& spinBox)
{
    const bool isTyped =
        spinBox.findChild<QLineEdit*>()->isModified() && spinBox.hasAcceptableInput();
    spinBox.interpretText();
    if (isTyped && !spinBox.property(isEdited).toBool())
        emit spinBox.valueChanged(spinBox.value());
}

void selectValue(QComboBox& comboBox, const QVariant& value)
{
    int entry =
        comboBox.findData(value, Qt::UserRole, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (entry < 0) {
        entry = comboBox.count();
        comboBox.insertItem(entry, value.toString(), value);
    }
    comboBox.setCurrentIndex(entry);
}

} // namespace

CRkTableDelegate::CRkTableDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
    registerDescriptor();
}

QString CRkTableDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    if (value.userType() != QMetaType::Double)
        return QStyledItemDelegate::displayText(value, locale);
    QLocale ungrouped(locale);
    ungrouped.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return ungrouped.toString(value.toDouble(), 'f', 2);
}

QWidget* CRkTableDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    const std::optional<RkEditorDescriptor> descriptor = descriptorOf(index);
    if (!descriptor)
        return QStyledItemDelegate::createEditor(parent, option, index);

    QWidget* editor = nullptr;
    switch (descriptor->kind) {
    case RkEditorDescriptor::SpinBox: {
        auto* spinBox = new NumberEditor(parent);
        spinBox->setRange(0.0, 1e9);
        connect(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &CRkTableDelegate::SpinBoxValueChanged);
        connect(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), spinBox,
                [spinBox] { spinBox->setProperty(isEdited, true); });
        editor = spinBox;
        break;
    }
    case RkEditorDescriptor::ComboBox: {
        auto* comboBox = new QComboBox(parent);
        for (const auto& entry : descriptor->entries)
            comboBox->addItem(entry.first, entry.second);
        connect(comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &CRkTableDelegate::ComboBoxChanged);
        editor = comboBox;
        break;
    }
    case RkEditorDescriptor::LineEdit: {
        auto* lineEdit = new QLineEdit(parent);
        lineEdit->setMaxLength(longestText);
        connect(lineEdit, &QLineEdit::editingFinished, this, &CRkTableDelegate::LineEditFinished);
        connect(lineEdit, &QLineEdit::textChanged, this, &CRkTableDelegate::LineEditTextChanged);
        editor = lineEdit;
        break;
    }
    default:
        return nullptr;
    }
    editor->setObjectName(index.data(Qt::StatusTipRole).toString());
    return editor;
}

void CRkTableDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    // Only the editors made here keep silent: the base class's line edit listens to its own signal
    // to grow with the text.
    const QSignalBlocker blocker(descriptorOf(index) ? editor : nullptr);
    if (auto* comboBox = editorOf<QComboBox>(editor, index, RkEditorDescriptor::ComboBox))
        selectValue(*comboBox, index.data(Qt::EditRole));
    else
        QStyledItemDelegate::setEditorData(editor, index);
    if (editorOf<QDoubleSpinBox>(editor, index, RkEditorDescriptor::SpinBox))
        editor->setProperty(isEdited, false);
}

void CRkTableDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    if (auto* spinBox = editorOf<QDoubleSpinBox>(editor, index, RkEditorDescriptor::SpinBox)) {
        takeTypedNumber(*spinBox);
        // A cell that was only opened keeps its number, which the range may not have.
        if (spinBox->property(isEdited).toBool())
            model->setData(index, spinBox->value(), Qt::EditRole);
    } else if (auto* comboBox = editorOf<QComboBox>(editor, index, RkEditorDescriptor::ComboBox)) {
        model->setData(index, comboBox->currentText(), Qt::EditRole);
    } else if (auto* lineEdit = editorOf<QLineEdit>(editor, index, RkEditorDescriptor::LineEdit)) {
        model->setData(index, lineEdit->text(), Qt::EditRole);
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

void CRkTableDelegate::SpinBoxValueChanged(double value)
{
    const QObject* spinBox = sender();
    emit signalSpinBoxChanged(value, spinBox ? spinBox->objectName() : QString());
}

void CRkTableDelegate::ComboBoxChanged(int)
{
}

void CRkTableDelegate::LineEditFinished()
{
}

void CRkTableDelegate::LineEditTextChanged(const QString&)
{
}
