// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Curves.h"

#include <cstddef>

/// @file What the tests of arcs and splines measure traced curves with.

namespace dxftest
{

/// In radians, from one point to the next.
inline const double usualStep = dxfviewer::radians(5.625);

/// The largest difference from the exact curve that nobody sees, as a share of the size.
inline constexpr double closeness = 0.002;

inline double lengthOf(const dxfviewer::Points& points)
{
    double sum = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i)
        sum += dxfviewer::length(points[i] - points[i - 1]);
    return sum;
}

} // namespace dxftest
