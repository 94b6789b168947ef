// SPDX-License-Identifier: GPL-2.0-or-later

#include "dxfviewer/flatten/Faces.h"

#include "dxfviewer/flatten/Chains.h"

namespace dxfviewer
{

void appendFace(Chains& chains, const Face& face)
{
    const std::size_t count = face.corners.size();
    // Begins after a hidden edge, so that neighbouring visible edges become one chain.
    std::size_t first = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (((face.hiddenEdges >> i) & 1U) != 0)
            first = i + 1;
    }

    bool isOpen = false;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t edge = (first + i) % count;
        const Point3& from = face.corners[edge];
        const Point3& to = face.corners[(edge + 1) % count];
        if (((face.hiddenEdges >> edge) & 1U) != 0) {
            chains.close();
            isOpen = false;
            continue;
        }
        if (!isOpen)
            chains.open().push_back(from);
        isOpen = true;
        // A face of three corners has an edge without length.
        if (from != to)
            chains.open().push_back(to);
    }
    chains.close();
}

} // namespace dxfviewer
