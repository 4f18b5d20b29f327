// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QTranslator>

/// Answers every text of one context with the text in brackets, so that a test sees which texts are
/// translated, and where.
class Brackets : public QTranslator
{
public:
    explicit Brackets(const char* context)
        : m_context(context)
    {
    }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, m_context) == 0 ? QStringLiteral("[%1]").arg(text) : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const char* const m_context;
};
