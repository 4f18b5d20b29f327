// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A home of its own for one test: settings, documents and the project root lie in a temporary
/// folder that disappears with the object. Where settings lie in a registry, they have a key of
/// their own there for as long. Construct it before the first QSettings of the process.
///
///     TestHome home;
///     home.setCurrentUserId("user-1");
///     const QString file = home.projectRoot() + "Hill/Hill.proj";
class TestHome
{
public:
    TestHome();
    ~TestHome();
    Q_DISABLE_COPY(TestHome)

    /// The temporary folder, without a trailing slash.
    QString path() const;

    /// The project root, ending with "/". It exists.
    QString projectRoot() const;

    /// Writes the id of the current user into the settings where the library reads it.
    void setCurrentUserId(const QString& userId);

private:
    class Registry;

    QTemporaryDir m_dir;
    std::unique_ptr<Registry> m_registry;
};

/// Sets a variable of the environment, in any letters.
void setEnvironment(const char* name, const QString& value);

/// Runs the statements on the SQLite file, which is made when it is missing. False on the first
/// failure.
bool runSql(const QString& file, const QStringList& statements);

/// The first column of every row that the statement gives, as text. Empty on failure.
QStringList readSql(const QString& file, const QString& statement);

/// The content of a file; empty when it cannot be read.
QByteArray readFile(const QString& path);

/// Writes a file with its folder. False when it cannot.
bool writeFile(const QString& path, const QByteArray& content);
