// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Placement.h"

namespace
{

// A direction this near to upwards takes its x axis from the drawing's y axis: the format's rule.
constexpr double nearlyUp = 1.0 / 64.0;

} // namespace

namespace dxfviewer
{

Placement operator*(const Placement& outer, const Placement& inner)
{
    return {outer.mapVector(inner.xAxis), outer.mapVector(inner.yAxis),
            outer.mapVector(inner.zAxis), outer.map(inner.origin)};
}

Placement extruded(const Point3& direction)
{
    const Point3 z = normalized(direction, up);
    if (z == up)
        return {};
    const bool isNearlyUp = std::abs(z.x) < nearlyUp && std::abs(z.y) < nearlyUp;
    const Point3 side = isNearlyUp ? Point3{0.0, 1.0, 0.0} : up;
    const Point3 x = normalized(cross(side, z), {1.0, 0.0, 0.0});
    const Point3 y = normalized(cross(z, x), {0.0, 1.0, 0.0});
    return {x, y, z, {}};
}

Placement moved(const Point3& origin)
{
    Placement placement;
    placement.origin = origin;
    return placement;
}

Placement turned(double radians)
{
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    return {{cosine, sine, 0.0}, {-sine, cosine, 0.0}, up, {}};
}

Placement scaled(const Point3& factors)
{
    return {{factors.x, 0.0, 0.0}, {0.0, factors.y, 0.0}, {0.0, 0.0, factors.z}, {}};
}

} // namespace dxfviewer
