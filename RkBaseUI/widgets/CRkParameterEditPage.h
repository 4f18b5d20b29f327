// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

#include <QList>
#include <QStringList>

#include <array>
#include <memory>

class QLabel;
class QLineEdit;

namespace Ui {
class CRkParameterEditPage;
}

/// Dialog in which up to four texts are edited, each below its name.
///
///     CRkParameterEditPage page;
///     page.SetElementParas({tr("Name"), tr("Height")}, {name, height}, {true, false});
///     page.SetGroupHidden(false, false, true, true);
///     if (page.exec() == 1) store(page.GetElementValues());
///
/// An "&" in a name makes the next letter the shortcut to its field; "&&" shows the character. A
/// name is plain text of which at most 480 x 60 pixels are seen; a value has up to 1,000,000
/// characters.
class RKBASEUI_EXPORT CRkParameterEditPage : public CRkBaseDialog
{
    Q_OBJECT

public:
    explicit CRkParameterEditPage(QWidget* parent = nullptr);
    ~CRkParameterEditPage() override;

    /// Sets the title of the dialog.
    void SetDialogInfo(const QString& title);

    /// Names elements 1 and 2.
    void SetElementName(const QString& name1, const QString& name2);

    void SetElement1Value(const QString& value, bool readOnly);
    void SetElement2Value(const QString& value, bool readOnly);
    QString GetElement1Value() const;
    QString GetElement2Value() const;

    /// Names, texts and locks of elements 1 to 4, in order. Entries that are missing count as empty
    /// and editable; further ones are ignored.
    void SetElementParas(const QStringList& names, const QStringList& values,
                         const QList<bool>& readOnly);
    /// The four texts, those of hidden elements included.
    QStringList GetElementValues() const;

    /// Hides the elements whose flag is true and shows the others.
    void SetGroupHidden(bool hidden1, bool hidden2, bool hidden3, bool hidden4);

    /// Shows the buttons whose flag is true and hides the others.
    void SetOKCancelBtnVisible(bool okVisible, bool cancelVisible);

private:
    struct Element
    {
        QWidget* group;
        QLabel* label;
        QLineEdit* edit;

        void setValue(const QString& value, bool readOnly) const;
    };

    /// Elements 1 to 4 of the form.
    std::array<Element, 4> elements() const;

    const std::unique_ptr<Ui::CRkParameterEditPage> m_form;
};
