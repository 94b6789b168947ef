// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <limits>

namespace dxftest
{

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace dxftest
