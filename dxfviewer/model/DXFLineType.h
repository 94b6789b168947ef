// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QString>

/**
 * A record of the LTYPE table: a name, a description and a dash pattern.
 *
 * The pattern belongs to whoever made the line type and must outlive it: it is neither copied nor
 * freed here. Line types that were read from a drawing have no pattern, only the number of dashes.
 */
class DXFVIEWER_EXPORT DXFLineType
{
public:
    DXFLineType(const QString& name, const QString& description, int flags, int numberOfDashes,
                double patternLength, double* pattern);

    /// Group 2.
    QString name() const { return m_name; }
    /// Group 3.
    QString description() const { return m_description; }
    /// Group 70.
    int flags() const { return m_flags; }
    /// Group 73.
    int numberOfDashes() const { return m_numberOfDashes; }
    /// Length of the whole pattern in drawing units (group 40).
    double patternLength() const { return m_patternLength; }
    /// The numberOfDashes() dash lengths in drawing units (group 49), or null.
    double* pattern() const { return m_pattern; }

    /// One line for the log.
    QString toString() const;

private:
    QString m_name;
    QString m_description;
    int m_flags;
    int m_numberOfDashes;
    double m_patternLength;
    double* m_pattern;
};
