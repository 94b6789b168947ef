// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include <cstddef>

namespace dxfviewer
{

class WorkMeter;

/// How finely curves are flattened, and when to stop.
struct Fineness {
    /// How far an arc goes from point to point at most, in radians.
    double longestStep;
    /// At this many points an entity is given up: the drawing has become too large.
    std::size_t mostPoints;
    /// Told of all work: it ends the read, by an exception, if nobody waits for it any more.
    WorkMeter& meter;
};

} // namespace dxfviewer
