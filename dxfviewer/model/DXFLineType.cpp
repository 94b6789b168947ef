// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/model/DXFLineType.h"

namespace
{

/// Base 16 with a minus sign. QString::number(int, 16) does that only in Qt 6; in Qt 5 it prints
/// the two's complement.
QString signedHex(int value)
{
    const auto magnitude = static_cast<qulonglong>(qAbs(static_cast<qint64>(value)));
    const QString digits = QString::number(magnitude, 16);
    return value < 0 ? QLatin1Char('-') + digits : digits;
}

} // namespace

DXFLineType::DXFLineType(const QString& name, const QString& description, int flags,
                         int numberOfDashes, double patternLength, double* pattern)
    : m_name(name)
    , m_description(description)
    , m_flags(flags)
    , m_numberOfDashes(numberOfDashes)
    , m_patternLength(patternLength)
    , m_pattern(pattern)
{
}

QString DXFLineType::toString() const
{
    return QStringLiteral("[LTYPE name: %1, description: %2, flags: %3, numberOfDashes: %4, "
                          "patternLength: %5, pattern: %6]")
        .arg(m_name, m_description, signedHex(m_flags), QString::number(m_numberOfDashes),
             QString::number(m_patternLength),
             m_pattern ? QStringLiteral("present") : QStringLiteral("NULL"));
}
