// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cmath>

namespace dxfviewer
{

/// Unlike ==, this tells 0 from -0: a file keeps the sign of a zero.
inline bool identical(double a, double b)
{
    return a == b && std::signbit(a) == std::signbit(b);
}

} // namespace dxfviewer
