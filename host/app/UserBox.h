// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QComboBox>

/// Chooses whose projects are shown: the users of the sample projects by name, or anybody by the
/// id that is typed.
class UserBox : public QComboBox
{
    Q_OBJECT

public:
    /// Shows the current user of the settings.
    explicit UserBox(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user has chosen another one, who is the current user of the settings by now.
    void userChanged(const QString& userId);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    /// The row of the user, which is made where there is none.
    int rowOf(const QString& userId);
    void chooseTyped();
    void choose(int row);

    QString m_userId;
};
