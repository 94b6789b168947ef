// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/dxfviewer_export.h"

#include <QtGlobal>

/// A vertex of a polyline, in drawing units.
class DXFVIEWER_EXPORT DXFVertex
{
public:
    /// The origin, without a bulge.
    DXFVertex() = default;
    DXFVertex(double x, double y, double z, bool flag, double bulge)
        : m_x(x)
        , m_y(y)
        , m_z(z)
        , m_flag(flag)
        , m_bulge(bulge)
    {
    }

    /// Group 10.
    double x() const { return m_x; }
    /// Group 20.
    double y() const { return m_y; }
    /// Group 30.
    double z() const { return m_z; }
    /// Tangent of a quarter of the angle of the arc to the next vertex (group 42). It is read and
    /// written, but segments are always straight.
    double bulge() const { return m_bulge; }

private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
    // Every creator sets it, and nobody reads it. It belongs to the fixed members of a vertex and
    // stays only for that reason.
    [[maybe_unused]] bool m_flag = true;
    double m_bulge = 0.0;
};

Q_DECLARE_TYPEINFO(DXFVertex, Q_MOVABLE_TYPE);
