// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// How the document of a project reads to the person who is about to send it.
namespace UploadNames {

/// What an entry is called, with its unit where it has one; the key itself when it is unknown.
QString nameOf(const QString& key);

/// The keys of an object as they are read: those that say what it is, the rest, and lists last.
QStringList orderedKeys(const QJsonObject& object);

/// What an element of a list is called: by its own name, or by its number, from 1 on, when it has
/// none.
QString elementName(const QString& listKey, const QJsonValue& element, int number);

/// A value in few words. A list tells how many there are, a block how many tasks it has, and of a
/// long text only the beginning is shown.
QString valueText(const QJsonValue& value);

/// What the whole document holds.
QString summary(const QJsonObject& project, qint64 bytes);

/// A number of bytes for the eye, such as "12.3 MB".
QString sizeText(qint64 bytes);

} // namespace UploadNames
