// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/NumberInput.h"

#include <QDoubleValidator>
#include <QLineEdit>

namespace NumberInput {

void accept(QLineEdit& edit)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(locale.numberOptions() | QLocale::RejectGroupSeparator);
    auto* validator = new QDoubleValidator(&edit);
    validator->setLocale(locale);
    edit.setValidator(validator);
}

} // namespace NumberInput
