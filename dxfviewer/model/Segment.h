// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"
#include "dxfviewer/model/IDeletable.h"

#include <QLineF>

/// One straight piece of a polyline, in drawing units, that can be picked and erased by itself.
class DXFVIEWER_EXPORT Segment final : public IDeletable
{
public:
    Segment() = default;
    explicit Segment(const QLineF& line)
        : m_line(line)
    {
    }
    Segment(const Segment&) = default;
    Segment& operator=(const Segment&) = default;
    ~Segment() override = default;

    /// From the start point (p1) to the end point (p2).
    QLineF line() const { return m_line; }
    void setLine(const QLineF& line) { m_line = line; }

private:
    QLineF m_line;
};

Q_DECLARE_TYPEINFO(Segment, Q_MOVABLE_TYPE);
