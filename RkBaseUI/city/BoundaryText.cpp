// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/BoundaryText.h"

#include <QChar>
#include <QString>

#include <algorithm>

namespace {

constexpr QLatin1Char pointSeparator(';');
constexpr QLatin1Char fieldSeparator(',');

bool isSeparator(QChar character)
{
    return character == pointSeparator || character == fieldSeparator;
}

/// Not `QChar::isDigit`, which takes the digits of all scripts.
bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// A cursor over the text that reads it field by field.
class FieldReader
{
public:
    explicit FieldReader(QStringView text)
        : m_position(text.begin())
        , m_end(text.end())
    {
    }

    bool atEnd() const { return m_position == m_end; }

    bool atSeparator() const { return atEnd() || isSeparator(*m_position); }

    /// Steps over the separator, if there is one, and tells whether the point ended with it.
    bool nextFieldIsOfNewPoint() { return atEnd() || *m_position++ == pointSeparator; }

    void skipField() { m_position = std::find_if(m_position, m_end, isSeparator); }

    /// Reads the field as `QString::toDouble` does and goes to the separator after it.
    bool readNumber(double& number)
    {
        const QChar* const start = m_position;
        if (readPlainDecimal(number))
            return true;
        m_position = start;
        skipField();
        bool ok = false;
        number = QString(start, static_cast<int>(m_position - start)).toDouble(&ok);
        return ok;
    }

private:
    /// Adds the digits at the cursor to `mantissa` and gives their count.
    int readDigits(quint64& mantissa)
    {
        const QChar* const start = m_position;
        for (; m_position != m_end && isDigit(*m_position); ++m_position)
            mantissa = mantissa * 10 + (m_position->unicode() - '0');
        return static_cast<int>(std::min<std::ptrdiff_t>(m_position - start, maximumDigits + 1));
    }

    /// The usual form, digits with a decimal point and perhaps a minus, in one pass. Integer and
    /// power of ten are exact doubles, so that the one division rounds just as a full conversion
    /// would.
    bool readPlainDecimal(double& number)
    {
        static constexpr double powersOfTen[maximumDigits + 1] = {
            1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        const bool negative = !atEnd() && *m_position == QLatin1Char('-');
        if (negative)
            ++m_position;
        quint64 mantissa = 0;
        const int whole = readDigits(mantissa);
        int decimals = 0;
        if (!atEnd() && *m_position == QLatin1Char('.')) {
            ++m_position;
            decimals = readDigits(mantissa);
        }
        if (whole == 0 || whole + decimals > maximumDigits || !atSeparator())
            return false;
        const double magnitude = static_cast<double>(mantissa) / powersOfTen[decimals];
        number = negative ? -magnitude : magnitude;
        return true;
    }

    /// Every integer of so many digits is a double.
    static constexpr int maximumDigits = 15;

    const QChar* m_position;
    const QChar* m_end;
};

/// Reads one point and the separator after it. False when the point is to be left out.
bool readPoint(FieldReader& reader, QPointF& point)
{
    double numbers[2] = {0.0, 0.0};
    int count = 0;
    bool valid = true;
    do {
        if (reader.atSeparator())
            continue;
        if (count < 2)
            valid = reader.readNumber(numbers[count++]) && valid;
        else
            reader.skipField();
    } while (!reader.nextFieldIsOfNewPoint());
    point = QPointF(numbers[1], numbers[0]);
    return count == 2 && valid;
}

} // namespace

QPolygonF parseBoundary(QStringView text)
{
    QPolygonF boundary;
    FieldReader reader(text);
    while (!reader.atEnd()) {
        QPointF point;
        if (readPoint(reader, point))
            boundary.append(point);
    }
    return boundary;
}
