// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cmath>

namespace dxfviewer
{

/// Tells zeros of different sign apart: both are written to a file as they are.
inline bool identical(double a, double b)
{
    return a == b && std::signbit(a) == std::signbit(b);
}

} // namespace dxfviewer
