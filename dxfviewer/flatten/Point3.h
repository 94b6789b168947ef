// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cmath>
#include <vector>

namespace dxfviewer
{

/// A point or a vector of the drawing, before it is seen from above.
struct Point3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

using Points = std::vector<Point3>;

/// Towards who looks at the drawing.
inline constexpr Point3 up{0.0, 0.0, 1.0};

inline Point3 operator+(const Point3& a, const Point3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Point3 operator-(const Point3& a, const Point3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Point3 operator*(const Point3& a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

inline bool operator==(const Point3& a, const Point3& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

inline bool operator!=(const Point3& a, const Point3& b)
{
    return !(a == b);
}

inline double dot(const Point3& a, const Point3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Point3 cross(const Point3& a, const Point3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(const Point3& a)
{
    return std::hypot(a.x, a.y, a.z);
}

inline bool isFinite(const Point3& a)
{
    return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z);
}

/// The vector at length 1, or a replacement if it has no direction.
inline Point3 normalized(const Point3& a, const Point3& replacement)
{
    const double size = length(a);
    if (!(size > 0.0) || !std::isfinite(size))
        return replacement;
    return {a.x / size, a.y / size, a.z / size};
}

} // namespace dxfviewer
