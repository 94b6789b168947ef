// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

namespace dxfviewer
{

/// Where something goes: its axes and its origin in the coordinates of what it is placed in.
struct Placement {
    Point3 xAxis{1.0, 0.0, 0.0};
    Point3 yAxis{0.0, 1.0, 0.0};
    Point3 zAxis{0.0, 0.0, 1.0};
    Point3 origin;

    Point3 mapVector(const Point3& vector) const
    {
        return xAxis * vector.x + yAxis * vector.y + zAxis * vector.z;
    }
    Point3 map(const Point3& point) const { return mapVector(point) + origin; }
};

/// The inner placement followed by the outer one.
Placement operator*(const Placement& outer, const Placement& inner);

/// The coordinates in which an entity with this extrusion direction is given. A direction without
/// length counts as the usual one, upwards.
Placement extruded(const Point3& direction);

/// A move.
Placement moved(const Point3& origin);

/// A turn about the z axis.
Placement turned(double radians);

/// A scale, unequal and mirroring too.
Placement scaled(const Point3& factors);

} // namespace dxfviewer
