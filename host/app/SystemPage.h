// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/SystemValues.h"

#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class QBoxLayout;
class QLabel;
class QPushButton;
class QThread;

/// What this computer is: processor, storage, display, memory and operating system, to be read,
/// selected and copied as plain text. The system is asked on another thread each time the page is
/// shown, so that it is there at once.
///
///     auto* page = new SystemPage(parent);
///     page->show();
class SystemPage : public QWidget
{
    Q_OBJECT

public:
    using Gather = std::function<SystemValues()>;

    /// `gather` is called on a thread of its own.
    explicit SystemPage(QWidget* parent = nullptr, const Gather& gather = gatherSystemValues);
    /// Waits for the other thread.
    ~SystemPage() override;

    /// Whether the system has answered at least once.
    bool isGathered() const { return m_isGathered; }

    /// All headings and values, one a line; empty before the system has answered.
    QString plainText() const;

public Q_SLOTS:
    /// Asks the system again; what is shown stays until the answer is there.
    void refresh();

    /// Puts the plain text onto the clipboard.
    void copy();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Row
    {
        QLabel* title = nullptr;
        QLabel* value = nullptr;
    };
    struct Section
    {
        QLabel* heading = nullptr;
        QVector<Row> rows;
    };

    QWidget* makeHead();
    QWidget* makeBody();
    void addSection(QBoxLayout* layout, int rowCount);
    void takeOver();
    void retranslate();
    void retranslateTitles();
    void fillValues();
    void setValues(int section, const QStringList& texts);
    QString orNotFound(const QString& text) const;
    QString megabytes(const QString& mebibytes) const;

    Gather m_gather;
    std::unique_ptr<QThread> m_gathering; ///< Null while nobody gathers.
    SystemValues m_arriving; ///< Belongs to the thread while it is there.
    SystemValues m_values;
    bool m_isGathered = false;
    bool m_isCopied = false; ///< What is on the page is what was copied last.

    QLabel* m_title = nullptr;
    QLabel* m_note = nullptr;
    QPushButton* m_copy = nullptr;
    QVector<Section> m_sections;
};
