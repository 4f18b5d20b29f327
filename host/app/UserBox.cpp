// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/UserBox.h"

#include "app/HostSettings.h"
#include "samples/SampleProjects.h"

#include <QEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <array>

namespace {

/// Of the users of the sample projects, in their order.
const std::array<const char*, 6> names = {
    QT_TRANSLATE_NOOP("UserBox", "Lin Yue"),   QT_TRANSLATE_NOOP("UserBox", "Chen Bo"),
    QT_TRANSLATE_NOOP("UserBox", "Zhao Min"),  QT_TRANSLATE_NOOP("UserBox", "Wang Jia"),
    QT_TRANSLATE_NOOP("UserBox", "Huang Rui"), QT_TRANSLATE_NOOP("UserBox", "Sun Tao"),
};

} // namespace

UserBox::UserBox(QWidget* parent)
    : QComboBox(parent)
    , m_userId(HostSettings::currentUser())
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr); // An id may be the beginning of another.
    const QStringList ids = sampleUserIds();
    for (const QString& id : ids)
        addItem(id, id);
    retranslate();
    setCurrentIndex(rowOf(m_userId));
    connect(this, qOverload<int>(&QComboBox::activated), this, &UserBox::choose);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &UserBox::chooseTyped);
}

void UserBox::retranslate()
{
    for (size_t i = 0; i < names.size() && int(i) < count(); ++i)
        setItemText(int(i), tr("%1 (%2)").arg(tr(names[i]), itemData(int(i)).toString()));
    setAccessibleName(tr("Current user"));
    setToolTip(tr("Whose projects are shown. Choose a user or type an id."));
}

int UserBox::rowOf(const QString& userId)
{
    const int row = findData(userId);
    if (row >= 0)
        return row;
    addItem(userId, userId);
    return count() - 1;
}

void UserBox::chooseTyped()
{
    const QString typed = lineEdit()->text().trimmed();
    const int row = findText(typed);
    choose(row >= 0 ? row : rowOf(typed));
}

void UserBox::choose(int row)
{
    const QString userId = itemData(row).toString();
    setCurrentIndex(row);
    lineEdit()->setText(itemText(row));
    if (userId == m_userId)
        return;
    m_userId = userId;
    HostSettings::setCurrentUser(userId);
    emit userChanged(userId);
}

/// Or a turn of the wheel over the tool bar would close the block.
void UserBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void UserBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QComboBox::changeEvent(event);
}
