// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstddef>

namespace dxfviewer
{

/// How finely curves are flattened, and when to stop.
struct Fineness {
    /// How far an arc goes from point to point at most, in radians.
    double longestStep;
    /// At this many points an entity is given up: the drawing has become too large.
    std::size_t mostPoints;
};

} // namespace dxfviewer
