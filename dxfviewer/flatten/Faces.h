// SPDX-License-Identifier: GPL-2.0-or-later

#pragma once

#include "dxfviewer/flatten/Point3.h"

#include <array>

namespace dxfviewer
{

class Chains;

/// A face of four corners, or of three if the last two are the same.
struct Face {
    std::array<Point3, 4> corners;
    /// Bit i hides the edge from corner i to the next.
    unsigned hiddenEdges = 0;
};

/// Appends the outline of a face, in as many chains as its hidden edges leave.
void appendFace(Chains& chains, const Face& face);

} // namespace dxfviewer
